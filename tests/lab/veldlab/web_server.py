"""The world's web servers: plain and TLS web pages, and the exit check; run by world_services.py inside the world.

Pages of the web server, under any of its names:

    /            a short text            /bytes/N   N zero bytes        /status/NNN   that status
    /ip          the client's address    any other path: a file of the site, from sites/NAME/PATH

The exit check answers /api/ip with {"IsTor": ..., "IP": ...}. Each connection reads its behaviour again; see CHECK_BEHAVIOURS.
Every request is logged before its answer is sent; a connection without a request is logged as well.
"""

import http.server
import json
import os
import socket
import socketserver
import ssl

from veldlab import odd_answers
from veldlab import topology as at

CHECK_BEHAVIOURS = {
    "ok": "answers as the real service does",
    "status-503": "HTTP status 503",
    "garbage": "status 200 with bytes that are no JSON",
    "half-body": "announces a body, sends half of it and closes",
    "huge": "a body of 100 MB",
    "silent": "accepts the connection and says nothing",
    "expired": "a certificate that has expired",
    "wrong-host": "a certificate for another name",
    "untrusted": "a certificate of an authority that nobody trusts",
}
HUGE_BYTES = 100_000_000
_CHUNK = bytes(65536)


class WebServer(http.server.ThreadingHTTPServer):
    """`log` takes a dict; `behaviour` is asked per connection; `certificates` is None for plain HTTP."""

    daemon_threads = True
    request_queue_size = 256

    def __init__(self, address: str, port: int, handler, service: str, log, behaviour=lambda: "ok", certificates=None):
        self.address_family = socket.AF_INET6 if ":" in address else socket.AF_INET
        self.service, self.log, self.behaviour, self.certificates = service, log, behaviour, certificates
        super().__init__((address, port), handler)

    def server_bind(self) -> None:
        socketserver.TCPServer.server_bind(self)  # HTTPServer's own would look its name up in DNS
        self.server_name, self.server_port = self.server_address[:2]

    def finish_request(self, request, client_address) -> None:
        behaviour = self.behaviour()
        if behaviour == "silent":
            self.log({"service": self.service, "source": client_address[0], "silent": True})
            while request.recv(65536):
                pass
            return
        if self.certificates:
            try:
                request = self.certificates.wrap(request, behaviour)
            except (OSError, ssl.SSLError) as error:
                self.log({"service": self.service, "source": client_address[0], "tls_error": str(error)})
                return
        try:
            self.RequestHandlerClass(request, client_address, self, behaviour)
        except OSError:
            pass  # the client went away
        finally:
            request.close()

    def handle_error(self, request, client_address) -> None:
        import traceback

        self.log({"service": self.service, "source": client_address[0], "failure": traceback.format_exc()})


class Certificates:
    """Chooses the certificate for the client's server name: the name's own file, else `default`."""

    def __init__(self, folder: str, default: str):
        self.folder, self.default = folder, default
        self.loaded: dict[tuple[str, int], ssl.SSLContext] = {}

    def context(self, name: str) -> ssl.SSLContext:
        path = f"{self.folder}/{name}.pem"
        key = name, os.stat(path).st_mtime_ns
        if key not in self.loaded:
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(path)
            self.loaded[key] = context
        return self.loaded[key]

    def wrap(self, connection: socket.socket, behaviour: str) -> ssl.SSLSocket:
        odd = behaviour if behaviour in ("expired", "wrong-host", "untrusted") else ""
        outer = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        outer.load_cert_chain(f"{self.folder}/{odd or self.default}.pem")

        def choose(tls: ssl.SSLSocket, name: str | None, _: ssl.SSLContext) -> None:
            known = name and "/" not in name and os.path.exists(f"{self.folder}/{name}.pem")
            if known and not odd:
                tls.context = self.context(name)

        outer.sni_callback = choose
        return outer.wrap_socket(connection, server_side=True)


class _Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    server: WebServer

    def __init__(self, request, client_address, server, behaviour: str):
        self.behaviour = behaviour
        super().__init__(request, client_address, server)

    @property
    def source(self) -> str:
        return self.client_address[0]

    def log_message(self, *_) -> None:
        pass

    def send(self, body: bytes | int, status: int = 200, kind: str = "text/plain") -> None:
        """Sends a whole answer; a number as body means that many zero bytes."""
        length = body if isinstance(body, int) else len(body)
        self.send_response(status)
        self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(length))
        if self.server.service == "check":
            self.send_header("Connection", "close")  # so that a change of behaviour applies from the next request on
        self.end_headers()
        if self.command == "HEAD":
            return
        if not isinstance(body, int):
            self.wfile.write(body)
            return
        for start in range(0, body, len(_CHUNK)):
            self.wfile.write(_CHUNK[: body - start])

    def log_request_line(self) -> None:
        self.server.log(
            {
                "service": self.server.service,
                "source": self.source,
                "method": self.command,
                "path": self.path,
                "host": self.headers.get("Host", ""),
                "agent": self.headers.get("User-Agent", ""),
            }
        )

    def do_GET(self) -> None:
        self.log_request_line()
        self.answer()

    do_HEAD = do_GET

    def answer(self) -> None:
        raise NotImplementedError


class CheckHandler(_Handler):
    def answer(self) -> None:
        text = json.dumps({"IsTor": self.source in at.EXIT_ADDRESSES, "IP": self.source}).encode()
        if self.behaviour == "status-503":
            self.send(b"unavailable\n", 503)
        elif self.behaviour == "garbage":
            self.send(b"\x00\xff<html>{{not json", kind="application/json")
        elif self.behaviour == "huge":
            self.send(HUGE_BYTES, kind="application/json")
        elif self.behaviour == "half-body":
            self.send_response(200)
            self.send_header("Content-Length", str(len(text)))
            self.end_headers()
            self.wfile.write(text[: len(text) // 2])
            self.close_connection = True
        elif self.path.split("?")[0] == "/api/ip":
            self.send(text, kind="application/json")
        else:
            self.send(b"not found\n", 404)


class PageHandler(_Handler):
    sites_folder = ""

    def answer(self) -> None:
        path = self.path.split("?")[0]
        kind, _, argument = path[1:].partition("/")
        if path == "/":
            self.send(b"A page of the lab.\n")
        elif path == "/ip":
            self.send(f"{self.source}\n".encode())
        elif kind == "bytes" and argument.isdigit():
            self.send(int(argument), kind="application/octet-stream")
        elif kind == "status" and argument.isdigit() and 200 <= int(argument) <= 599:
            self.send(b"as asked\n", int(argument))
        else:
            self.send_file(path)

    def send_file(self, path: str) -> None:
        site = self.headers.get("Host", "").partition(":")[0].lower()
        base = os.path.realpath(f"{self.sites_folder}/{site}")
        full = os.path.realpath(f"{base}/{path}")
        if site and full.startswith(base + "/") and (odd := odd_answers.find(full)):
            odd_answers.give(self, full, odd)
            return
        if not site or not full.startswith(base + "/") or not os.path.isfile(full):
            self.send(b"not found\n", 404)
            return
        with open(full, "rb") as file:
            self.send(file.read(), kind="application/octet-stream")
