"""Packets for the firewall test, and the listener that reports which of them arrive.

    probes.py send          sends one of each probe
    probes.py serve         for each line "UID GROUP send" or "UID GROUP PORT" on standard input, starts a process of that account
                            in that control group if it exists ("-": none). "send" sends one of each probe, PORT connects
                            to that port of the sentinel. Prints the line when the process has ended
    probes.py listen        prints "ready", then one line for each packet: KIND NAME-OR-PORT
    probes.py flood         sends the probes of FLOOD repeatedly from the line "go" on standard input until "stop"; sends
                            them once at "round"
    probes.py hold          opens a UDP socket and a TCP connection, and sends on both at each line of standard input

The destination identifies a probe: every probe has an address or a port of its own.
"""

import functools
import os
import select
import socket
import struct
import sys

PUBLIC, PUBLIC6 = "203.0.113.9", "2001:db8:9::9"
LAN, LAN6 = "192.168.77.1", "fd00:77::1"
SENTINEL = "203.0.113.99"

# name: (family, kind, address, port, options)
PROBES = {
    "tcp": ("tcp", PUBLIC, 1001),
    "tcp6": ("tcp", PUBLIC6, 1002),
    "https": ("tcp", PUBLIC, 443),
    "udp": ("udp", PUBLIC, 1003),
    "udp6": ("udp", PUBLIC6, 1004),
    "quic": ("udp", PUBLIC, 443),
    "dns": ("udp", PUBLIC, 53),
    "dns6": ("udp", PUBLIC6, 53),
    "dns-tcp": ("tcp", PUBLIC, 53),
    "dns-tls": ("tcp", PUBLIC, 853),
    "ntp": ("udp", PUBLIC, 123),
    "ping": ("icmp", PUBLIC, 0),
    "mdns": ("udp", "224.0.0.251", 5353),
    "mdns6": ("udp", "ff02::fb%veth0", 5353),
    "llmnr": ("udp", "224.0.0.252", 5355),
    "ssdp": ("udp", "239.255.255.250", 1900),
    "broadcast": ("udp", "255.255.255.255", 1005),
    "netbios": ("udp", "192.168.77.255", 137),
    "lan-tcp": ("tcp", LAN, 1006),
    "lan-udp": ("udp", LAN, 1007),
    "lan-udp6": ("udp", LAN6, 1008),
    "lan-dns": ("udp", LAN, 53),
    "lan-dns-tcp": ("tcp", LAN, 53),
    "lan-dns-tls": ("tcp", LAN, 853),
    "lan-mdns": ("udp", LAN, 5353),
    "bound-udp": ("udp-bound", PUBLIC, 1009),
    "bound-dns": ("udp-bound", "203.0.113.53", 53),
    "bound-loopback": ("udp-bound", "127.0.0.1", 1010),
    "raw-udp": ("raw", PUBLIC, 1011),
}


# Each probe closes its socket after sending, so no connection is established.
FLOOD = ("https", "tcp6", "udp", "udp6", "quic", "dns", "dns6", "ntp", "ping", "bound-udp", "lan-udp")
FLOOD_PAUSE = 0.005  # seconds between two rounds


def is6(address):
    return ":" in address


@functools.cache
def target_of(address, port):
    family = socket.AF_INET6 if is6(address) else socket.AF_INET
    return family, socket.getaddrinfo(address, port, family, socket.SOCK_DGRAM)[0][4]


def send_probe(kind, address, port):
    family, target = target_of(address, port)
    if kind == "tcp":
        with socket.socket(family, socket.SOCK_STREAM) as probe:
            probe.setblocking(False)
            probe.connect_ex(target)
    elif kind in ("udp", "udp-bound"):
        with socket.socket(family, socket.SOCK_DGRAM) as probe:
            probe.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
            if kind == "udp-bound":
                probe.setsockopt(socket.SOL_SOCKET, socket.SO_BINDTODEVICE, b"veth0")
            probe.sendto(b"probe", target)
    elif kind == "icmp":
        with socket.socket(family, socket.SOCK_RAW, socket.IPPROTO_ICMP) as probe:
            probe.sendto(struct.pack("!BBHHH", 8, 0, 0xF7FF, 0, 0), target)
    elif kind == "raw":
        with socket.socket(family, socket.SOCK_RAW, socket.IPPROTO_UDP) as probe:
            probe.sendto(struct.pack("!HHHH", port, port, 8, 0), target)


def send():
    for kind, address, port in PROBES.values():
        try:
            send_probe(kind, address, port)
        except OSError:
            pass  # refused at once; the listener reports whether it left


def become(uid, group):
    if group != "-" and os.path.isdir(group):
        with open(f"{group}/cgroup.procs", "w", encoding="ascii") as processes:
            processes.write("0")
    if uid:
        os.setgroups([])
        os.setresgid(uid, uid, uid)
        os.setresuid(uid, uid, uid)


def serve():
    """Forks a process for each line, which takes a twentieth of an interpreter's start."""
    target_of(SENTINEL, 0)  # loads the module that parses addresses
    print("ready", flush=True)
    for line in sys.stdin:
        uid, group, what = line.split()
        child = os.fork()
        if child == 0:
            status = 1
            try:
                become(int(uid), group)
                if what == "send":
                    send()
                else:
                    send_probe("tcp", SENTINEL, int(what))
                status = 0
            finally:
                os._exit(status)
        if os.waitpid(child, 0)[1]:
            sys.exit(f"this was not sent: {line}")
        print(line, end="", flush=True)


def flood():
    running = False
    print("ready", flush=True)
    while True:
        word = ""
        if select.select([sys.stdin], [], [], FLOOD_PAUSE if running else None)[0]:
            word = sys.stdin.readline().strip()
            if not word:
                return
        if word in ("go", "stop"):
            running = word == "go"
        else:
            for name in FLOOD:
                try:
                    send_probe(*PROBES[name])
                except OSError:
                    pass  # refused on the spot
        if word:
            print(word, flush=True)


@functools.cache
def known():
    """The probes by their destination."""
    names = {}
    for name, (kind, target, port) in PROBES.items():
        names.setdefault((target.split("%")[0], port, "tcp" if kind == "tcp" else "udp"), name)
    return names


def seen(packet):
    """'NAME' of the probe that an Ethernet frame carries, 'sentinel PORT', 'dhcp', 'neighbour', or 'other'."""
    protocol = struct.unpack("!H", packet[12:14])[0]
    body = packet[14:]
    if protocol == 0x0800:
        number, payload = body[9], body[(body[0] & 15) * 4 :]
        address = socket.inet_ntop(socket.AF_INET, body[16:20])
    elif protocol == 0x86DD:
        number, payload = body[6], body[40:]
        address = socket.inet_ntop(socket.AF_INET6, body[24:40])
    else:
        return None
    if number == 1:
        return "ping" if address == PUBLIC else "other icmp " + address
    if number == 58:
        if address == PUBLIC6:
            return f"icmp6 {payload[0]} far away"
        return "neighbour" if payload[0] in (133, 135, 136) else f"other icmp6 {payload[0]}"
    if number not in (6, 17):
        return f"other protocol {number} to {address}"
    port = struct.unpack("!H", payload[2:4])[0]
    transport = "tcp" if number == 6 else "udp"
    if address == SENTINEL:
        return f"sentinel {port}"
    return known().get((address, port, transport)) or f"other {transport} {address} {port}"


def listen():
    with socket.socket(socket.AF_PACKET, socket.SOCK_RAW, socket.htons(3)) as wire:
        wire.setsockopt(socket.SOL_SOCKET, 33, 64 << 20)  # SO_RCVBUFFORCE
        wire.bind(("veth1", 0))
        print("ready", flush=True)
        while True:
            lines = ""
            for turn in range(100):  # packets that have arrived already are reported with the first one
                try:
                    packet, about = wire.recvfrom(65535, socket.MSG_DONTWAIT if turn else 0)
                except BlockingIOError:
                    break
                line = about[2] != socket.PACKET_OUTGOING and seen(packet)
                if line:
                    lines += line + "\n"
            print(lines, end="", flush=True)


def hold():
    """Opens a UDP socket and a TCP connection to the peer before the rules are loaded, and sends on both at each line."""
    with socket.create_connection((PUBLIC, 1001)) as stream, socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as dgram:
        dgram.connect((PUBLIC, 53))
        dgram.send(b"probe")
        print("ready", flush=True)
        for _ in sys.stdin:
            for old in stream, dgram, dgram:  # the first send may only report the answer to the previous packet
                try:
                    old.send(b"more")
                except OSError:
                    pass
            print("sent", flush=True)


if __name__ == "__main__":
    if sys.argv[1] == "send":
        send()
    elif sys.argv[1] == "serve":
        serve()
    elif sys.argv[1] == "listen":
        listen()
    elif sys.argv[1] == "flood":
        flood()
    elif sys.argv[1] == "hold":
        hold()
