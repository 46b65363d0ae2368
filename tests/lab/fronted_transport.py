#!/usr/bin/python3
"""A transport program for the lab, which tor starts as a managed proxy. It looks up a front by name, then carries plain bytes.

It stands for transports such as webtunnel and meek, which know their server by a name. The test replaces the words FRONT, HOST and
PORT. Every connection first looks up FRONT and then goes to HOST:PORT.
"""

import os
import socket
import socketserver
import threading

NAMES = [name for name in os.environ["TOR_PT_CLIENT_TRANSPORTS"].split(",") if name == "webtunnel"]
STATE = os.environ["TOR_PT_STATE_LOCATION"]


def copy(source, target):
    try:
        while data := source.recv(65536):
            target.sendall(data)
        target.shutdown(socket.SHUT_WR)
    except OSError:
        pass


class Socks(socketserver.StreamRequestHandler):
    def handle(self):
        _, count = self.rfile.read(2)
        methods = self.rfile.read(count)
        if 2 in methods:  # tor passes the bridge line's arguments as user name and password
            self.wfile.write(b"\x05\x02")
            self.rfile.read(1)
            for _ in range(2):
                self.rfile.read(self.rfile.read(1)[0])
            self.wfile.write(b"\x01\x00")
        else:
            self.wfile.write(b"\x05\x00")
        kind = self.rfile.read(4)[3]
        self.rfile.read({1: 4, 4: 16}.get(kind) or self.rfile.read(1)[0])
        self.rfile.read(2)
        answers = socket.getaddrinfo("FRONT", 443, socket.AF_INET)
        with open("/etc/resolv.conf") as resolver, open(f"{STATE}/front", "w") as file:
            file.write(f"{answers[0][4][0]}\n{resolver.read()}")
        with socket.create_connection(("HOST", PORT)) as bridge:  # noqa: F821
            self.wfile.write(b"\x05\x00\x00\x01\x00\x00\x00\x00\x00\x00")
            back = threading.Thread(target=copy, args=(bridge, self.connection), daemon=True)
            back.start()
            copy(self.connection, bridge)
            back.join()


os.makedirs(STATE, exist_ok=True)
server = socketserver.ThreadingTCPServer(("127.0.0.1", 0), Socks)
server.daemon_threads = True
print("VERSION 1", flush=True)
for name in NAMES:
    print(f"CMETHOD {name} socks5 127.0.0.1:{server.server_address[1]}", flush=True)
print("CMETHODS DONE", flush=True)
server.serve_forever()
