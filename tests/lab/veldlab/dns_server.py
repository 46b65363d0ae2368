"""The world's DNS server: UDP and TCP, IPv4 and IPv6; run by world_services.py inside the world.

Answers A and AAAA for the lab's own names and for every site that has a folder, and NXDOMAIN for the rest. Each query is logged
before its answer is sent, so a client with an answer finds its query in the log.
"""

import os
import socket
import socketserver
import struct

from veldlab import topology as at

_A, _AAAA, _IN = 1, 28, 1
_TYPES = {1: "A", 2: "NS", 5: "CNAME", 6: "SOA", 12: "PTR", 15: "MX", 16: "TXT", 28: "AAAA", 33: "SRV", 65: "HTTPS"}
_SERVFAIL, _NXDOMAIN = 2, 3


def parse_question(message: bytes) -> tuple[str, int, int]:
    """Name in lower case, type, and the offset behind the question. Raises ValueError on anything odd."""
    if len(message) < 12 or struct.unpack_from("!H", message, 4)[0] != 1:
        raise ValueError("not one question")
    labels, offset = [], 12
    while True:
        if offset >= len(message):
            raise ValueError("name runs past the end")
        length = message[offset]
        offset += 1
        if length == 0:
            break
        if length > 63 or offset + length > len(message):
            raise ValueError("bad label")
        labels.append(message[offset : offset + length].decode("ascii", "backslashreplace").lower())
        offset += length
    if offset + 4 > len(message):
        raise ValueError("question is cut short")
    return ".".join(labels), struct.unpack_from("!H", message, offset)[0], offset + 4


def addresses_of(name: str, sites_folder: str) -> tuple[str, str] | None:
    """IPv4 and IPv6 address of a name, or None."""
    if name == at.CHECK_HOST:
        return at.CHECK_ADDRESS, at.CHECK_ADDRESS6
    if name in at.WEB_HOSTS or (name and "/" not in name and os.path.isdir(f"{sites_folder}/{name}")):
        return at.WEB_ADDRESS, at.WEB_ADDRESS6
    return None


def reply(message: bytes, sites_folder: str, behaviour: str) -> bytes:
    name, kind, end = parse_question(message)
    found = addresses_of(name, sites_folder)
    code, answers = 0, []
    if behaviour == "servfail":
        code = _SERVFAIL
    elif found is None:
        code = _NXDOMAIN
    elif kind == _A:
        answers = [socket.inet_pton(socket.AF_INET, found[0])]
    elif kind == _AAAA:
        answers = [socket.inet_pton(socket.AF_INET6, found[1])]
    flags = 0x8480 | (struct.unpack_from("!H", message, 2)[0] & 0x0100) | code
    header = message[:2] + struct.pack("!HHHHH", flags, 1, len(answers), 0, 0)
    records = b"".join(struct.pack("!HHHIH", 0xC00C, kind, _IN, 30, len(data)) + data for data in answers)
    return header + message[12:end] + records


class NameService:
    """`log` takes one dict per query; `behaviour` is asked each time: ok, servfail or silent."""

    def __init__(self, sites_folder: str, log, behaviour):
        self.sites_folder, self.log, self.behaviour = sites_folder, log, behaviour

    def answer(self, message: bytes, source: str, transport: str) -> bytes | None:
        try:
            name, kind, _ = parse_question(message)
        except ValueError as error:
            self.log({"source": source, "transport": transport, "error": str(error)})
            return None
        self.log({"source": source, "transport": transport, "name": name, "type": _TYPES.get(kind, str(kind))})
        behaviour = self.behaviour()
        return None if behaviour == "silent" else reply(message, self.sites_folder, behaviour)

    def servers(self) -> list[socketserver.BaseServer]:
        """Bound servers, ready for serve_forever."""
        made: list[socketserver.BaseServer] = []
        for address in (at.DNS_ADDRESS, at.DNS_ADDRESS6):
            for base, handler in ((_UDPServer, _UDPHandler), (_TCPServer, _TCPHandler)):
                server = base((address, 53), handler, bind_and_activate=False)
                server.address_family = socket.AF_INET6 if ":" in address else socket.AF_INET
                server.socket.close()
                server.socket = socket.socket(server.address_family, server.socket_type)
                server.service = self
                server.server_bind()
                server.server_activate()
                made.append(server)
        return made


class _UDPServer(socketserver.UDPServer):
    allow_reuse_address = True


class _TCPServer(socketserver.ThreadingTCPServer):
    allow_reuse_address = True
    daemon_threads = True
    request_queue_size = 128


class _UDPHandler(socketserver.BaseRequestHandler):
    def handle(self) -> None:
        message, channel = self.request
        answer = self.server.service.answer(message, self.client_address[0], "udp")
        if answer is not None:
            channel.sendto(answer, self.client_address)


class _TCPHandler(socketserver.StreamRequestHandler):
    def handle(self) -> None:
        while len(prefix := self.rfile.read(2)) == 2:
            message = self.rfile.read(int.from_bytes(prefix, "big"))
            answer = self.server.service.answer(message, self.client_address[0], "tcp")
            if answer is None:
                continue
            self.wfile.write(len(answer).to_bytes(2, "big") + answer)
