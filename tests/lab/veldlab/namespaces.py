"""The lab's network namespaces, their links and routes (see the picture in topology.py).

They are ordinary named namespaces of ip(8), but /run/netns is private to the lab's mount namespace: the machine's own
`ip netns` never shows them, and their names are the same in every lab.
"""

import subprocess

from veldlab import kernel
from veldlab import topology as at

_FOLDER = "/run/netns"


def _links() -> list[str]:
    """ip(8) commands, one per line, run in the named namespace before the colon."""
    prefix = 24, 64
    lines = [f"{space}: link set lo up" for space in at.SPACES] + [
        "router: link add world0 type veth peer name eth0 netns world",
        "router: link add host0 type veth peer name eth0 netns host",
        "router: link add lan0 type veth peer name eth0 netns lan",
        "router: link add br0 type bridge forward_delay 0 mcast_snooping 0",
        "router: link set host0 master br0",
        "router: link set lan0 master br0",
    ]
    lines += [f"router: link set {link} up" for link in ("world0", "host0", "lan0", "br0")]
    lines += [f"{space}: link set eth0 up" for space in ("world", "host", "lan")]
    addresses = [
        ("world", "eth0", at.WORLD_ADDRESS, at.WORLD_ADDRESS6),
        ("router", "world0", at.ROUTER_WORLD_ADDRESS, at.ROUTER_WORLD_ADDRESS6),
        ("router", "br0", at.ROUTER_LAN_ADDRESS, at.ROUTER_LAN_ADDRESS6),
        ("host", "eth0", at.HOST_ADDRESS, at.HOST_ADDRESS6),
        ("lan", "eth0", at.LAN_ADDRESS, at.LAN_ADDRESS6),
    ]
    for space, link, v4, v6 in addresses:
        lines.append(f"{space}: addr add {v4}/{prefix[0]} brd + dev {link}")
        lines.append(f"{space}: addr add {v6}/{prefix[1]} dev {link} nodad")
    lines += [f"world: addr add 203.0.113.{i}/32 dev lo" for i in range(1, 40)]
    services6 = (at.WEB_ADDRESS6, at.CHECK_ADDRESS6, at.DNS_ADDRESS6, *(node.address6 for node in at.BRIDGES))
    lines += [f"world: addr add {v6}/128 dev lo nodad" for v6 in services6]
    lines += [
        f"router: route add 203.0.113.0/24 via {at.WORLD_ADDRESS}",
        f"router: route add 2001:db8:cb::/64 via {at.WORLD_ADDRESS6}",
        f"world: route add default via {at.ROUTER_WORLD_ADDRESS}",
        f"world: route add ::/0 via {at.ROUTER_WORLD_ADDRESS6}",
    ]
    for space in ("host", "lan"):
        lines.append(f"{space}: route add default via {at.ROUTER_LAN_ADDRESS}")
        lines.append(f"{space}: route add ::/0 via {at.ROUTER_LAN_ADDRESS6}")
    return lines


def _script() -> str:
    """All of it as one shell script: some 80 ip commands in five batches, well below a second."""
    settings = {
        "net/ipv6/conf/all/disable_ipv6": 0,
        "net/ipv6/conf/default/disable_ipv6": 0,
        "net/ipv6/conf/default/accept_dad": 0,
        "net/ipv6/conf/default/accept_ra": 0,
        "net/ipv6/conf/default/router_solicitations": 0,
        "net/ipv4/conf/default/rp_filter": 0,
        "net/ipv4/conf/all/rp_filter": 0,
    }
    forwarding = {"net/ipv4/ip_forward": 1, "net/ipv6/conf/all/forwarding": 1}
    lines = ["set -eu"]
    for space in at.SPACES:
        wanted = settings | (forwarding if space == "router" else {})
        writes = "; ".join(f"echo {value} > /proc/sys/{key}" for key, value in wanted.items())
        lines += [f"ip netns add {space}", f"ip netns exec {space} sh -euc '{writes}'"]
    batch: list[str] = []
    current = ""
    for line in _links() + [":"]:
        space, _, command = line.partition(": ")
        if space != current and batch:
            lines += [f"ip -n {current} -batch - <<'END'", *batch, "END"]
            batch = []
        current = space
        batch.append(command)
    return "\n".join(lines) + "\n"


def create() -> None:
    """Makes the namespaces; called once, in the lab's own mount namespace with an empty /run/netns."""
    subprocess.run(["/bin/sh", "-s"], input=_script(), text=True, check=True, capture_output=True)


def enter(space: str) -> None:
    """Moves the calling thread into the network namespace."""
    with open(f"{_FOLDER}/{space}", "rb") as name:
        kernel.setns(name.fileno(), kernel.CLONE_NEWNET)
