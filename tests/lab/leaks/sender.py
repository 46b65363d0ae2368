"""Sends the probes of the leak matrix from inside the host.

    sender.py send INDEX NAME...     sends the named probes as identity number INDEX, three of each, and ends when the kernel
                                     has nothing left to send for them
    sender.py flood INDEX NAME...    sends them repeatedly until its standard input ends
    sender.py hold INDEX             opens a TCP connection and two UDP flows, prints "ready", sends on them at each line
                                     that it reads
    sender.py forward INDEX          forwards from 127.0.0.1:5300 (UDP) and :5301 (TCP), like a local proxy
    sender.py ask                    sends through that proxy
"""

import os
import select
import socket
import sys
import threading

import kinds
import probes


def send(index, names):
    """Sends slow probes last and once: the kernel chooses when it sends their packets."""
    slow = [name for name in names if probes.PROBES[name][0] in ("igmp", "mld")]
    for name in names:
        for _ in range(0 if name in slow else probes.REPEATS):
            try:
                kinds.send_probe(name, index)
            except OSError as error:
                print(f"{name}: {error}", flush=True)  # refused at once; the router records what left
    children = []
    for name in slow:
        child = os.fork()
        if child == 0:
            status = 1
            try:
                kinds.send_probe(name, index)
                status = 0
            except OSError as error:
                print(f"{name}: {error}", flush=True)
                status = 0
            finally:
                os._exit(status)
        children.append(child)
    sys.exit(max([os.waitpid(child, 0)[1] >> 8 for child in children], default=0))


def flood(index, names):
    print("ready", flush=True)
    while not select.select([sys.stdin], [], [], 0)[0]:
        for name in names:
            try:
                kinds.send_probe(name, index)
            except OSError:
                pass


def hold(index):
    flows = []
    for kind, base, port in (
        (socket.SOCK_STREAM, probes.HELD_TCP, 80),
        (socket.SOCK_DGRAM, probes.HELD_UDP, 20018),
        (socket.SOCK_DGRAM, probes.HELD_DNS, 53),
    ):
        flow = socket.socket(socket.AF_INET, kind)
        flow.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
        flow.bind(("0.0.0.0", base + index))
        flow.connect((probes.HELD_SERVER if port != 53 else "203.0.113.39", port))
        if kind == socket.SOCK_DGRAM:
            flow.send(b"probe")
        flows.append(flow)
    print("ready", flush=True)
    for _ in sys.stdin:
        for flow in flows:
            for _ in range(2):  # the first send may only report the answer to the previous packet
                try:
                    flow.send(b"GET / HTTP/1.1\r\n")
                except OSError:
                    pass
        print("sent", flush=True)


def forward(index):
    def streams():
        listener = socket.create_server(("127.0.0.1", 5301))
        print("ready", flush=True)
        while True:
            client, _ = listener.accept()
            try:
                kinds.send_probe("TCP", index)
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
                    kinds.send_probe(name, index)
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
