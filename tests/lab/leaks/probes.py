"""The probes of the leak matrix, and the program that sends them from inside the host.

    probes.py send INDEX NAME...     sends the named probes as identity number INDEX, three of each, and ends when the kernel
                                     has nothing left to send for them
    probes.py flood INDEX NAME...    sends them again and again until its standard input ends
    probes.py hold INDEX             opens a TCP connection and two UDP flows, says "ready", uses them at each line it reads
    probes.py forward INDEX          hands on what comes to 127.0.0.1:5300 (UDP) and :5301 (TCP), as somebody's local proxy
    probes.py ask                    sends through that

A packet is known by what is in its header: every identity has addresses (203.0.113.100 + 10 × index and the same in IPv6), ports
and multicast groups of its own, and every probe a port, protocol or address of its own.
"""

import os
import socket
import struct
import sys
import time

REPEATS = 3
DEVICE = "eth0"
NEIGHBOUR, NEIGHBOUR6, GATEWAY = "192.168.77.9", "2001:db8:77::9", "192.168.77.1"


def public(index):
    return f"203.0.113.{100 + 10 * index}"


def public6(index):
    return f"2001:db8:cb::{100 + 10 * index:x}"


# name: (how, destination, port or protocol). Destinations: 4 and 6 the identity's public address, lan and lan6 the neighbour, gateway;
# anything else as it stands. "+ index" marks ports that tell identities apart where the address cannot.
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

# Those that need root or a capability, and are not sent by the others.
RAW = {"ICMP timestamp, raw", "raw IP, protocol 99", "raw IPv6, protocol 99", "GRE", "ESP", "SCTP, raw", "own IP header",
       "forged DHCP to a public address"}

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
    """Header facts of the probe: (protocol, destination, source port or 0, destination port)."""
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


# ---- Sending -----------------------------------------------------------------------------------------------------------------

def family_of(address):
    return socket.AF_INET6 if ":" in address else socket.AF_INET


def full(address, port):
    if address.startswith("ff0"):
        return address, port, 0, socket.if_nametoindex(DEVICE)
    return (address, port, 0, 0) if ":" in address else (address, port)


def checksum(data):
    total = sum(struct.unpack(f"!{len(data) // 2}H", data))
    total = (total & 0xFFFF) + (total >> 16)
    return ~(total + (total >> 16)) & 0xFFFF


def tcp(address, port, bound=False):
    with socket.socket(family_of(address), socket.SOCK_STREAM) as probe:
        if bound:
            probe.setsockopt(socket.SOL_SOCKET, socket.SO_BINDTODEVICE, DEVICE.encode())
        probe.setblocking(False)
        probe.connect_ex(full(address, port))


def udp(address, port, payload=b"probe", *options, source=None, connected=False):
    with socket.socket(family_of(address), socket.SOCK_DGRAM) as probe:
        probe.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
        for option in options:
            probe.setsockopt(*option)
        if source:
            probe.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
            probe.bind(("::" if ":" in address else "0.0.0.0", source))
        if connected:
            probe.connect(full(address, port))
            probe.send(payload)
        else:
            probe.sendto(payload, full(address, port))


def igmp(group):
    """Joins, and waits until the kernel has sent its report (or tried to)."""
    word = "".join(f"{part:02X}" for part in reversed(socket.inet_aton(group)))
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as probe:
        request = struct.pack("4s4si", socket.inet_aton(group), bytes(4), socket.if_nametoindex(DEVICE))
        probe.setsockopt(socket.IPPROTO_IP, socket.IP_ADD_MEMBERSHIP, request)
        wait(lambda: any(line.split()[0] == word and int(line.split()[3]) == 1 for line in open("/proc/net/igmp") if word in line))


def mld(group):
    word = socket.inet_pton(socket.AF_INET6, group).hex()
    with socket.socket(socket.AF_INET6, socket.SOCK_DGRAM) as probe:
        request = struct.pack("16si", socket.inet_pton(socket.AF_INET6, group), socket.if_nametoindex(DEVICE))
        probe.setsockopt(socket.IPPROTO_IPV6, socket.IPV6_JOIN_GROUP, request)
        # The sixth column: bit 0 the timer runs, bit 1 a report was sent last by us.
        wait(lambda: any(int(line.split()[4], 16) & 2 for line in open("/proc/net/igmp6") if word in line))


def wait(condition, seconds=12):
    deadline = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > deadline:
            raise TimeoutError("the kernel sent no report")
        time.sleep(0.02)


def raw(address, protocol, payload):
    with socket.socket(family_of(address), socket.SOCK_RAW, protocol) as probe:
        probe.sendto(payload, full(address, 0))


def header(address, port):
    data = struct.pack("!HHHH", port, port, 8, 0)
    ip = struct.pack("!BBHHHBBH4s4s", 0x45, 0, 28, 0, 0, 64, 17, 0, socket.inet_aton("192.168.77.2"), socket.inet_aton(address))
    with socket.socket(socket.AF_INET, socket.SOCK_RAW, socket.IPPROTO_RAW) as probe:
        probe.sendto(ip + data, (address, 0))


def ping(address, protocol, kind):
    message = struct.pack("!BBHHH", kind, 0, 0, 1, 1)
    if protocol == socket.IPPROTO_ICMP:
        message = message[:2] + struct.pack("!H", checksum(message)) + message[4:]
    try:
        probe = socket.socket(family_of(address), socket.SOCK_DGRAM, protocol)
    except PermissionError:
        probe = socket.socket(family_of(address), socket.SOCK_RAW, protocol)
    with probe:
        probe.sendto(message, full(address, 0))


def in_user_namespace(action, *arguments):
    """In a child that is root in a user namespace of its own, as far as it is allowed to be; its network is the host's."""
    child = os.fork()
    if child == 0:
        try:
            import ctypes
            uid = os.getuid()
            if ctypes.CDLL(None, use_errno=True).unshare(0x10000000) == 0:
                with open("/proc/self/uid_map", "w", encoding="ascii") as numbers:
                    numbers.write(f"0 {uid} 1")
                action(*arguments)
        except OSError as error:
            print(f"in a user namespace: {error}", flush=True)
        finally:
            os._exit(0)
    os.waitpid(child, 0)


def send_probe(name, index):
    how, _, _ = PROBES[name]
    address, port = target(name, index)
    if how in ("tcp", "tcp-lan"):
        tcp(address, port)
    elif how == "tcp-bound":
        tcp(address, port, bound=True)
    elif how == "mapped":
        with socket.socket(socket.AF_INET6, socket.SOCK_STREAM) as probe:
            probe.setblocking(False)
            probe.connect_ex((f"::ffff:{address}", port))
    elif how == "fastopen":
        with socket.socket(socket.AF_INET, socket.SOCK_STREAM) as probe:
            probe.setblocking(False)
            probe.sendto(b"probe", socket.MSG_FASTOPEN, (address, port))
    elif how in ("udp", "udp-lan"):
        udp(address, port)
    elif how == "udp-connected":
        udp(address, port, connected=True)
    elif how == "udp-large":
        udp(address, port, bytes(4000))
    elif how == "udp-ttl":
        udp(address, port, b"probe", (socket.IPPROTO_IP, socket.IP_TTL, 1))
    elif how == "udp-own-port":
        udp(address, port, source=own_port(name, index))
    elif how == "udp-from-68":
        udp(address, port, source=68)
    elif how == "udp-bound":
        udp(address, port, b"probe", (socket.SOL_SOCKET, socket.SO_BINDTODEVICE, DEVICE.encode()))
    elif how == "udp-pktinfo":
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as probe:
            info = struct.pack("i4s4s", socket.if_nametoindex(DEVICE), socket.inet_aton("192.168.77.2"), bytes(4))
            probe.sendmsg([b"probe"], [(socket.IPPROTO_IP, 8, info)], 0, (address, port))
    elif how == "udplite":
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM, 136) as probe:
            probe.sendto(b"probe", (address, 20016))
    elif how == "ping":
        ping(address, socket.IPPROTO_ICMP, 8)
    elif how == "ping6":
        ping(address, socket.IPPROTO_ICMPV6, 128)
    elif how == "icmp-raw":
        raw(address, socket.IPPROTO_ICMP, struct.pack("!BBHHHIII", 13, 0, 0, 1, 1, 0, 0, 0))
    elif how == "raw":
        raw(address, port, struct.pack("!HHHH", 20017, 20017, 0, 0))
    elif how == "raw6":
        raw(address, port, b"probe6")
    elif how == "header":
        header(address, port)
    elif how == "igmp":
        igmp(address)
    elif how == "mld":
        mld(address)
    elif how == "userns-tcp":
        in_user_namespace(tcp, address, port)
    elif how == "userns-udp":
        in_user_namespace(udp, address, port)
    elif how == "userns-ping":
        in_user_namespace(ping, address, socket.IPPROTO_ICMP, 8)
    else:
        raise ValueError(how)


def send(index, names):
    """Slow ones (the kernel sends their packets when it likes) last, once."""
    slow = [name for name in names if PROBES[name][0] in ("igmp", "mld")]
    for name in names:
        for _ in range(0 if name in slow else REPEATS):
            try:
                send_probe(name, index)
            except OSError as error:
                print(f"{name}: {error}", flush=True)   # refused on the spot; what got out is for the router to say
    children = []
    for name in slow:
        child = os.fork()
        if child == 0:
            status = 1
            try:
                send_probe(name, index)
                status = 0
            except OSError as error:
                print(f"{name}: {error}", flush=True)
                status = 0
            finally:
                os._exit(status)
        children.append(child)
    sys.exit(max([os.waitpid(child, 0)[1] >> 8 for child in children], default=0))


def flood(index, names):
    import select

    print("ready", flush=True)
    while not select.select([sys.stdin], [], [], 0)[0]:
        for name in names:
            try:
                send_probe(name, index)
            except OSError:
                pass


HELD_SERVER, HELD_TCP, HELD_UDP, HELD_DNS = "203.0.113.37", 41000, 41100, 41200   # source ports, + index


def hold(index):
    flows = []
    for kind, base, port in ((socket.SOCK_STREAM, HELD_TCP, 80), (socket.SOCK_DGRAM, HELD_UDP, 20018), (socket.SOCK_DGRAM, HELD_DNS, 53)):
        flow = socket.socket(socket.AF_INET, kind)
        flow.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
        flow.bind(("0.0.0.0", base + index))
        flow.connect((HELD_SERVER if port != 53 else "203.0.113.39", port))
        if kind == socket.SOCK_DGRAM:
            flow.send(b"probe")
        flows.append(flow)
    print("ready", flush=True)
    for _ in sys.stdin:
        for flow in flows:
            for _ in range(2):   # the first of the two may only report the answer to the one before
                try:
                    flow.send(b"GET / HTTP/1.1\r\n")
                except OSError:
                    pass
        print("sent", flush=True)


def forward(index):
    import threading

    def streams():
        listener = socket.create_server(("127.0.0.1", 5301))
        print("ready", flush=True)
        while True:
            client, _ = listener.accept()
            try:
                send_probe("TCP", index)
            except OSError:
                pass
            client.close()

    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as datagrams:
        datagrams.bind(("127.0.0.1", 5300))
        threading.Thread(target=streams, daemon=True).start()
        while True:
            _, sender = datagrams.recvfrom(100)
            for name in ("UDP", "DNS"):
                try:
                    send_probe(name, index)
                except OSError:
                    pass
            datagrams.sendto(b"done", sender)


def ask():
    with socket.create_connection(("127.0.0.1", 5301)) as stream:
        stream.recv(1)
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as datagrams:
        datagrams.sendto(b"x", ("127.0.0.1", 5300))
        datagrams.recv(100)


if __name__ == "__main__":
    if sys.argv[1] == "send":
        send(int(sys.argv[2]), sys.argv[3:])
    elif sys.argv[1] == "flood":
        flood(int(sys.argv[2]), sys.argv[3:])
    elif sys.argv[1] == "hold":
        hold(int(sys.argv[2]))
    elif sys.argv[1] == "forward":
        forward(int(sys.argv[2]))
    elif sys.argv[1] == "ask":
        ask()
