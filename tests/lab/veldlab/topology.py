"""Addresses and names of the private Tor network.

    +----------------------------- world --------------------------------+
    |  lo: 203.0.113.1-3    authorities   auth1 auth2 auth3              |
    |      203.0.113.10-15  exits         de us nl fr gb ch              |
    |      203.0.113.20-22  middle nodes  se fi at                       |
    |      203.0.113.30     obfs4 bridge  203.0.113.31  plain bridge     |
    |                       (2001:db8:cb::30 and ::31 likewise)          |
    |      203.0.113.37     web server    203.0.113.38  exit check       |
    |      203.0.113.39     DNS           (2001:db8:cb::37-39 likewise)  |
    |  eth0: 198.51.100.2, 2001:db8:64::2                                |
    +------------------------------+-------------------------------------+
                                   |  <- captures are taken here
    +------------------------------+-------------------------------------+
    |  world0: 198.51.100.1, 2001:db8:64::1              router          |
    |  br0:    192.168.77.1, 2001:db8:77::1  (bridge of host0 and lan0)  |
    +--------------+---------------------------------------+-------------+
                   |                                       |
    +--------------+--------------+         +--------------+-------------+
    |  eth0: 192.168.77.2         |         |  eth0: 192.168.77.9        |
    |        2001:db8:77::2       |         |        2001:db8:77::9      |
    |        host                 |         |        lan                 |
    |  the user's machine: the    |         |  a neighbour in the local  |
    |  program under test         |         |  network                   |
    +-----------------------------+         +----------------------------+

The router has no link to anything else, so nothing can leave. All addresses are from ranges reserved for
documentation or private use. Every lab has namespaces of its own, so labs that run at once may repeat them.
"""

from dataclasses import dataclass
from ipaddress import IPv4Address

SPACES = ("world", "router", "host", "lan")

WORLD_ADDRESS = "198.51.100.2"
WORLD_ADDRESS6 = "2001:db8:64::2"
ROUTER_WORLD_ADDRESS = "198.51.100.1"
ROUTER_WORLD_ADDRESS6 = "2001:db8:64::1"
ROUTER_LAN_ADDRESS = "192.168.77.1"
ROUTER_LAN_ADDRESS6 = "2001:db8:77::1"
HOST_ADDRESS = "192.168.77.2"
HOST_ADDRESS6 = "2001:db8:77::2"
LAN_ADDRESS = "192.168.77.9"
LAN_ADDRESS6 = "2001:db8:77::9"

WEB_ADDRESS, WEB_ADDRESS6 = "203.0.113.37", "2001:db8:cb::37"
CHECK_ADDRESS, CHECK_ADDRESS6 = "203.0.113.38", "2001:db8:cb::38"
DNS_ADDRESS, DNS_ADDRESS6 = "203.0.113.39", "2001:db8:cb::39"

CHECK_HOST = "check.torproject.org"
CHECK_URL = f"https://{CHECK_HOST}/api/ip"
WEB_HOSTS = ("www.example.test", "example.test", "files.example.test")
# How circuits show a site of it: by its name where the program heard of the stream, else by the address that Tor names.
WEB_SITES = (WEB_ADDRESS, *WEB_HOSTS)

OR_PORT = 5000
DIR_PORT = 7000
OBFS4_PORT = 9030

# The router's interface for each link, by the name of the machine at it.
ROUTER_LINKS = {"world": "world0", "host": "host0", "lan": "lan0"}


@dataclass(frozen=True)
class Node:
    """One tor process of the network. `role` is authority, exit, middle or bridge. Bridges listen at `address6` too."""

    name: str
    role: str
    address: str
    country: str
    transport: str = ""
    address6: str = ""

    @property
    def address_number(self) -> int:
        return int(IPv4Address(self.address))


AUTHORITIES = tuple(Node(f"auth{i}", "authority", f"203.0.113.{i}", "is") for i in (1, 2, 3))
EXITS = tuple(
    Node(f"exit{country}", "exit", f"203.0.113.{10 + i}", country) for i, country in enumerate(("de", "us", "nl", "fr", "gb", "ch"))
)
MIDDLES = tuple(Node(f"middle{country}", "middle", f"203.0.113.{20 + i}", country) for i, country in enumerate(("se", "fi", "at")))
BRIDGES = (
    Node("bridgeobfs4", "bridge", "203.0.113.30", "no", "obfs4", "2001:db8:cb::30"),
    Node("bridgeplain", "bridge", "203.0.113.31", "dk", address6="2001:db8:cb::31"),
)
NODES = AUTHORITIES + EXITS + MIDDLES + BRIDGES
RELAY_ADDRESSES = frozenset(node.address for node in NODES)
EXIT_ADDRESSES = frozenset(node.address for node in EXITS)

# Paths inside the lab's own mount namespace; no folder of the machine is used.
# The system's own interpreter exists in every view of the file system, unlike one in a home folder.
PYTHON = "/usr/bin/python3"

LAB_FOLDER = "/run/veldlab"
TOR_FOLDER = f"{LAB_FOLDER}/tor"
WORLD_FOLDER = f"{LAB_FOLDER}/world"


def node_named(name: str) -> Node:
    for node in NODES:
        if node.name == name:
            return node
    raise KeyError(f"no node is called {name!r}; there are {', '.join(n.name for n in NODES)}")
