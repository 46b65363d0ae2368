"""Sends one packet of each kind as the current identity. A packet that the kernel refuses at once raises OSError."""

import os
import socket
import struct
import time

import probes

DEVICE = "eth0"


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
    """Joins a multicast group, and waits until the kernel has sent its report (or tried to)."""
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
        # The sixth column: bit 0: the timer runs; bit 1: this host sent the last report.
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
    """Runs in a child that is root in its own user namespace, as far as the system permits it. Its network is the host's."""
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
    how, _, _ = probes.PROBES[name]
    address, port = probes.target(name, index)
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
        udp(address, port, source=probes.own_port(name, index))
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
