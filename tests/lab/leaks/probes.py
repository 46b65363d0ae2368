"""The table of the leak matrix's probes: kind, destination, and the identity of a captured packet.

The header of a packet identifies it: every identity has addresses (203.0.113.100 + 10 × index and the same in IPv6), ports
and multicast groups of its own, and every probe a port, protocol or address of its own. sender.py sends them.
"""

REPEATS = 3  # packets of each probe
NEIGHBOUR, NEIGHBOUR6, GATEWAY = "192.168.77.9", "2001:db8:77::9", "192.168.77.1"
HELD_SERVER, HELD_TCP, HELD_UDP, HELD_DNS = "203.0.113.37", 41000, 41100, 41200  # source ports, + index


def public(index):
    return f"203.0.113.{100 + 10 * index}"


def public6(index):
    return f"2001:db8:cb::{100 + 10 * index:x}"


# name: (how, destination, port or protocol). Destinations: 4 and 6 the identity's public address, lan and lan6 the neighbour,
# gateway; any other word is the address itself. "+ index" marks ports that tell identities apart where the address cannot.
PROBES = {
    "TCP": ("tcp", "4", 20001),
    "TCP, IPv6": ("tcp", "6", 20002),
    "TCP by an IPv4-mapped address": ("mapped", "4", 20003),
    "TCP Fast Open": ("fastopen", "4", 20004),
    "HTTP": ("tcp", "4", 80),
    "HTTPS": ("tcp", "4", 443),
    "HTTPS, IPv6": ("tcp", "6", 443),
    "SSH": ("tcp", "4", 22),
    "UDP": ("udp", "4", 20005),
    "UDP, IPv6": ("udp", "6", 20006),
    "UDP, connected": ("udp-connected", "4", 20007),
    "UDP in fragments": ("udp-large", "4", 20008),
    "UDP, time to live 1": ("udp-ttl", "4", 20009),
    "UDP-Lite": ("udplite", "4", 136),
    "QUIC": ("udp", "4", 443),
    "QUIC, IPv6": ("udp", "6", 443),
    "NTP": ("udp", "4", 123),
    "STUN": ("udp", "4", 3478),
    "WireGuard": ("udp", "4", 51820),
    "ICMP echo": ("ping", "4", 0),
    "ICMPv6 echo": ("ping6", "6", 0),
    "ICMP timestamp, raw": ("icmp-raw", "4 + 2", 1),
    "raw IP, protocol 99": ("raw", "4", 99),
    "raw IPv6, protocol 99": ("raw6", "6", 99),
    "GRE": ("raw", "4", 47),
    "ESP": ("raw", "4", 50),
    "SCTP, raw": ("raw", "4", 132),
    "own IP header": ("header", "4", 20010),
    "DNS": ("udp", "4", 53),
    "DNS, IPv6": ("udp", "6", 53),
    "DNS over TCP": ("tcp", "4", 53),
    "DNS over TCP, IPv6": ("tcp", "6", 53),
    "DNS over TLS": ("tcp", "4", 853),
    "DNS over QUIC": ("udp", "4", 853),
    "DNS to the gateway": ("udp-own-port", "gateway", 53),
    "DNS to a neighbour": ("udp-own-port", "lan", 53),
    "mDNS": ("udp-own-port", "224.0.0.251", 5353),
    "mDNS, IPv6": ("udp-own-port", "ff02::fb", 5353),
    "LLMNR": ("udp-own-port", "224.0.0.252", 5355),
    "LLMNR, IPv6": ("udp-own-port", "ff02::1:3", 5355),
    "NetBIOS names": ("udp-own-port", "192.168.77.255", 137),
    "NetBIOS datagrams": ("udp-own-port", "192.168.77.255", 138),
    "SSDP": ("udp-own-port", "239.255.255.250", 1900),
    "WS-Discovery": ("udp-own-port", "239.255.255.250", 3702),
    "broadcast": ("udp-own-port", "255.255.255.255", 20011),
    "forged DHCP to a public address": ("udp-from-68", "4", 67),
    "IGMP join": ("igmp", "239.77", 0),
    "MLD join": ("mld", "ff05::77", 0),
    "TCP bound to a device": ("tcp-bound", "4", 20012),
    "UDP bound to a device": ("udp-bound", "4", 20013),
    "DNS bound to a device": ("udp-bound", "4 + 1", 53),
    "UDP by a chosen device and source": ("udp-pktinfo", "4", 20014),
    "a neighbour, TCP": ("tcp-lan", "lan", 20100),
    "a neighbour, TCP, IPv6": ("tcp-lan", "lan6", 20110),
    "a neighbour, UDP": ("udp-lan", "lan", 20120),
    "the gateway, TCP": ("tcp-lan", "gateway", 20130),
    "in a user namespace, TCP": ("userns-tcp", "4", 20015),
    "in a user namespace, UDP": ("userns-udp", "4", 20019),
    "in a user namespace, UDP, IPv6": ("userns-udp", "6", 20020),
    "in a user namespace, ICMP echo": ("userns-ping", "4 + 3", 0),
    "in a user namespace, DNS": ("userns-udp", "4 + 3", 53),
    "in a user namespace, DNS over TCP": ("userns-tcp", "4 + 3", 53),
}
CORE = ("TCP", "TCP, IPv6", "UDP", "UDP, IPv6", "ICMP echo", "DNS", "DNS, IPv6")

# Probes that need root or a capability; other identities do not send them.
RAW = {
    "ICMP timestamp, raw",
    "raw IP, protocol 99",
    "raw IPv6, protocol 99",
    "GRE",
    "ESP",
    "SCTP, raw",
    "own IP header",
    "forged DHCP to a public address",
}

_PINGS = {"ping": "icmp", "ping6": "icmp6", "userns-ping": "icmp"}
_PROTOCOL_NAMES = {136: "136", 99: "99", 47: "47", 50: "50", 132: "sctp"}


def own_port(name, index):
    """The source port of probes whose destination is the same for all."""
    return 30000 + 10 * list(PROBES).index(name) + index


def target(name, index):
    """(address, port) that the probe is sent to."""
    how, where, port = PROBES[name]
    if where.startswith("4"):
        address = f"203.0.113.{100 + 10 * index + int(where[3:] or 0)}"
    elif where == "6":
        address = public6(index)
    else:
        address = {"lan": NEIGHBOUR, "lan6": NEIGHBOUR6, "gateway": GATEWAY}.get(where, where)
    if how == "igmp":
        address = f"239.77.0.{1 + index}"
    if how == "mld":
        address = f"ff05::77:{1 + index}"
    if how.endswith("-lan"):
        port += index
    return address, port


def owner(packet):
    """(name, identity's index) of the probe that a captured packet belongs to, or None."""
    return _TABLE.get(_key(packet))


def _key(packet):
    proto, dst, sport, dport = packet.proto, packet.dst, packet.sport, packet.dport
    if (dst, dport) in _SHARED:
        return proto, dst, sport, dport
    return proto, dst, 0, dport


def _expected(name, index):
    """The probe's header: (protocol, destination, source port or 0, destination port)."""
    how, _, _ = PROBES[name]
    address, port = target(name, index)
    if how in _PINGS:
        return _PINGS[how], address, 0, 0
    if how == "icmp-raw":
        return "icmp", address, 0, 0
    if how in ("raw", "raw6", "udplite"):
        if port == 132:
            return "sctp", address, 0, 20017
        return _PROTOCOL_NAMES[port], address, 0, 0
    if how == "igmp":
        return "igmp", address, 0, 0
    if how == "mld":
        return "icmp6", address, 0, 0
    if how == "udp-own-port":
        return "udp", address, own_port(name, index), port
    proto = "tcp" if how in ("tcp", "tcp-bound", "tcp-lan", "mapped", "fastopen", "userns-tcp") else "udp"
    return proto, address, 0, port


_SHARED = {target(name, 0) for name in PROBES if PROBES[name][0] == "udp-own-port"}
_TABLE = {_expected(name, index): (name, index) for name in PROBES for index in range(8)}
# The rest of a fragmented packet has no ports.
_TABLE |= {("udp", public(index), 0, 0): ("UDP in fragments", index) for index in range(8)}
