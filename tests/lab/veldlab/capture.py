"""Records every packet on one of the router's links, with no filter, through an AF_PACKET socket.

    with lab.capture() as c:
        ...
    assert {p.dst for p in c.packets if p.out} <= topology.RELAY_ADDRESSES

Entering returns after a marker frame that is sent over the link has been recorded. Leaving records a second marker last, so every
earlier packet is recorded. A capture that lost packets raises at its end instead of pretending to be complete.
"""

import os
import select
import socket
import struct
import threading
import time
from dataclasses import dataclass

from veldlab import kernel
from veldlab import topology as at

_ETH_P_ALL = 3
_MARKER_TYPE = 0x88B5  # reserved for local experiments: no program on the link answers it
_SOL_PACKET, _PACKET_STATISTICS, _PACKET_OUTGOING = 263, 6, 4
_SO_RCVBUFFORCE = 33
_HEADER_BYTES = 256
_PROTOCOLS = {1: "icmp", 2: "igmp", 6: "tcp", 17: "udp", 58: "icmp6", 132: "sctp"}
_EXTENSIONS = {0, 43, 44, 60, 135}  # IPv6 headers that another header follows


@dataclass(frozen=True)
class Packet:
    """One packet. `out`: it goes to the world; on the links "host" and "lan" it comes from that machine.

    Addresses are text ("" where the protocol has none), ports 0 where there are none; `length` is that of the IP
    packet, or of the frame's content for other protocols, in bytes. A large TCP segment may be one packet here and
    several on a wire.
    """

    time: float
    out: bool
    family: str
    proto: str
    src: str
    dst: str
    sport: int
    dport: int
    length: int
    tcp_flags: int = 0

    @property
    def is_opening(self) -> bool:
        """False for a TCP packet of an existing connection, such as the last packets of an earlier program."""
        return self.proto != "tcp" or self.tcp_flags & 0x12 == 0x02

    def __str__(self) -> str:
        arrow = "->" if self.out else "<-"
        return f"{arrow} {self.proto} {self.src}:{self.sport} {self.dst}:{self.dport} {self.length} bytes"


def decode(frame: bytes, length: int, out: bool, when: float) -> Packet:
    """`frame`: an Ethernet frame, possibly truncated; `length`: its full length. Fields that cannot be read stay empty."""
    kind = struct.unpack_from("!H", frame, 12)[0] if len(frame) >= 14 else 0
    data, size = frame[14:], max(length - 14, 0)
    if kind == 0x0800 and len(data) >= 20:
        start = (data[0] & 15) * 4
        src, dst = (socket.inet_ntop(socket.AF_INET, data[i : i + 4]) for i in (12, 16))
        fragment = struct.unpack_from("!H", data, 6)[0] & 0x1FFF
        return _transport("ipv4", data[9], b"" if fragment else data[start:], src, dst, size, out, when)
    if kind == 0x86DD and len(data) >= 40:
        src, dst = (socket.inet_ntop(socket.AF_INET6, data[i : i + 16]) for i in (8, 24))
        number, rest = data[6], data[40:]
        while number in _EXTENSIONS and len(rest) >= 8:
            if number == 44 and struct.unpack_from("!H", rest, 2)[0] & 0xFFF8:
                return _transport("ipv6", rest[0], b"", src, dst, size, out, when)
            number, rest = rest[0], rest[8 if number == 44 else (rest[1] + 1) * 8 :]
        return _transport("ipv6", number, rest, src, dst, size, out, when)
    if kind == 0x0806 and len(data) >= 28:
        src, dst = (socket.inet_ntop(socket.AF_INET, data[i : i + 4]) for i in (14, 24))
        return Packet(when, out, "arp", "arp", src, dst, 0, 0, size)
    return Packet(when, out, f"0x{kind:04x}", "other", "", "", 0, 0, size)


def _transport(family, number, data, src, dst, size, out, when) -> Packet:
    proto = _PROTOCOLS.get(number, str(number))
    sport, dport = struct.unpack_from("!HH", data) if proto in ("tcp", "udp", "sctp") and len(data) >= 4 else (0, 0)
    flags = data[13] if proto == "tcp" and len(data) >= 14 else 0
    return Packet(when, out, family, proto, src, dst, sport, dport, size, flags)


class Capture:
    """`space`: the router; `link`: world, host or lan. `packets` may be read at any time, also while it runs."""

    def __init__(self, space, link: str = "world"):
        self.link, self.interface = link, at.ROUTER_LINKS[link]
        self._space = space
        self._packets: list[Packet] = []
        self._changed = threading.Condition()
        self._markers: set[bytes] = set()
        self._socket: socket.socket | None = None

    @property
    def packets(self) -> list[Packet]:
        with self._changed:
            return list(self._packets)

    def __enter__(self) -> "Capture":
        self._socket = self._open()
        self._thread = threading.Thread(target=self._record, daemon=True)
        self._thread.start()
        self._mark()
        return self

    def __exit__(self, kind, *_) -> None:
        try:
            self._mark()
            _, lost = struct.unpack("II", self._socket.getsockopt(_SOL_PACKET, _PACKET_STATISTICS, 8))
        finally:
            self._wake.close()
            self._thread.join()
            self._socket.close()
        if lost and kind is None:
            raise RuntimeError(f"the capture lost {lost} packets and proves nothing")

    def wait_for(self, predicate, timeout: float = 10) -> Packet:
        """The first packet, recorded already or to come, that the predicate accepts. Raises TimeoutError."""
        deadline = time.monotonic() + timeout
        seen = 0
        with self._changed:
            while True:
                for packet in self._packets[seen:]:
                    if predicate(packet):
                        return packet
                seen = len(self._packets)
                if not self._changed.wait(deadline - time.monotonic()):
                    raise TimeoutError(f"no such packet within {timeout} s among {seen}")

    def _in_router(self, action):
        """Runs `action` in a thread of its own that has joined the router's network namespace."""
        result: list = []

        def work() -> None:
            try:
                with open(self._space.path("/run/netns/router"), "rb") as namespace:
                    kernel.setns(namespace.fileno(), kernel.CLONE_NEWNET)
                result.append(action())
            except BaseException as error:
                result.append(error)

        thread = threading.Thread(target=work)
        thread.start()
        thread.join()
        if isinstance(result[0], BaseException):
            raise result[0]
        return result[0]

    def _open(self) -> socket.socket:
        def make() -> socket.socket:
            made = socket.socket(socket.AF_PACKET, socket.SOCK_RAW, 0)
            made.setsockopt(socket.SOL_SOCKET, _SO_RCVBUFFORCE, 256 << 20)
            made.bind((self.interface, _ETH_P_ALL))
            return made

        self._wake, self._woken = socket.socketpair()
        return self._in_router(make)

    def _mark(self) -> None:
        """Sends a marker frame over the link and waits until it has been recorded."""
        token = os.urandom(16)

        def send() -> None:
            with socket.socket(socket.AF_PACKET, socket.SOCK_RAW, 0) as sender:
                sender.bind((self.interface, 0))
                addresses = b"\x02\0\0\0\0\1" b"\x02\0\0\0\0\2"
                sender.send(addresses + struct.pack("!H", _MARKER_TYPE) + token.ljust(46, b"\0"))

        self._in_router(send)
        with self._changed:
            if not self._changed.wait_for(lambda: token in self._markers, 10):
                raise RuntimeError("the capture does not see its own marker")

    def _record(self) -> None:
        poller = select.poll()
        poller.register(self._socket, select.POLLIN)
        poller.register(self._woken, select.POLLIN)
        buffer = bytearray(_HEADER_BYTES)
        while True:
            ready = dict(poller.poll())
            if self._socket.fileno() not in ready:
                self._woken.close()
                return
            length, _, _, address = self._socket.recvmsg_into([buffer], 0, socket.MSG_TRUNC)
            frame = bytes(buffer[: min(length, _HEADER_BYTES)])
            outgoing = address[2] == _PACKET_OUTGOING
            packet = decode(frame, length, outgoing if self.link == "world" else not outgoing, time.time())
            with self._changed:
                if packet.family == f"0x{_MARKER_TYPE:04x}":
                    self._markers.add(frame[14:30])
                else:
                    self._packets.append(packet)
                self._changed.notify_all()
