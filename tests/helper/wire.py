"""A machine's only link, and everything that arrives at its other end.

    wire = Wire(machine)         a Peer with a listener and a server; machine.tor_uid must be set
    wire.mark()                  the listener's lines since the mark before
    with Flood(machine) as f:    sends the probes of probes.FLOOD repeatedly while it runs
"""

import os
import subprocess
import threading
import time

import namespace
import probes
from namespace import TOR_GROUP, Peer

PROBES_PY = os.path.join(namespace.HERE, "probes.py")
# Seen in every state when nothing blocks it.
LINK = {"neighbour"}
EDGE = "sentinel 1"  # sent by edge_program()
# Packets that one processor sends reach the peer in their order.
ONE_PROCESSOR = ("taskset", "--cpu-list", str(min(os.sched_getaffinity(0))))


class Wire:
    def __init__(self, machine):
        self.machine = machine
        self.peer = Peer(machine)
        self.marks = 2000
        self.peer.run(
            "/bin/bash",
            "-c",
            f"""
            ip link set lo up; ip link set veth1 up
            ip addr add {probes.LAN}/24 dev veth1; ip addr add {probes.LAN6}/64 dev veth1 nodad
            for a in {probes.PUBLIC} {probes.SENTINEL} 203.0.113.53; do ip addr add $a/32 dev lo; done
            ip addr add {probes.PUBLIC6}/128 dev lo
        """,
        )
        machine.shell(
            f"""
            ip link set veth0 up; ip addr add 192.168.77.2/24 dev veth0; ip addr add fd00:77::2/64 dev veth0 nodad
            ip route add default via {probes.LAN}; ip -6 route add default via {probes.LAN6}
        """
        )
        self.listener = subprocess.Popen(
            self.peer.command(["/usr/bin/python3", PROBES_PY, "listen"]), stdout=subprocess.PIPE, bufsize=0
        )
        assert self.listener.stdout.readline() == b"ready\n"
        self.lines, self.taken, self.more = [], 0, threading.Condition()
        self.reader = threading.Thread(target=self._read, daemon=True)
        self.reader.start()
        self.server = subprocess.Popen(
            self.peer.command(
                [
                    "/usr/bin/python3",
                    "-c",
                    "import socket; s = socket.create_server(('0.0.0.0', 1001), backlog=64); print('up', flush=True);\n"
                    "kept = []\nwhile True: kept.append(s.accept())",
                ]
            ),
            stdout=subprocess.PIPE,
            text=True,
        )
        assert self.server.stdout.readline() == "up\n"
        self.sender = machine.start(
            *ONE_PROCESSOR,
            "/usr/bin/python3",
            "-I",
            "-S",
            PROBES_PY,
            "serve",
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        assert self.sender.stdout.readline() == "ready\n"

    def _read(self):
        rest = b""
        while data := self.listener.stdout.read(1 << 16):
            *lines, rest = (rest + data).split(b"\n")
            with self.more:
                self.lines += [line.decode() for line in lines]
                self.more.notify_all()

    def _send(self, uid, group, what):
        line = f"{uid} {group or '-'} {what}\n"
        self.sender.stdin.write(line)
        self.sender.stdin.flush()
        assert self.sender.stdout.readline() == line

    def close(self):
        self.sender.communicate()
        for process in self.listener, self.server:
            process.kill()
            process.wait()
        self.reader.join()
        self.listener.stdout.close()
        self.server.stdout.close()
        self.peer.close()

    def wait_for(self, wanted, seconds=30):
        """Takes and returns the listener's next lines, up to the first one for which `wanted` holds."""
        deadline = time.monotonic() + seconds
        with self.more:
            at = self.taken
            while True:
                while at < len(self.lines):
                    at += 1
                    if wanted(self.lines[at - 1]):
                        found = self.lines[self.taken : at]
                        self.taken = at
                        return found
                if not self.more.wait(deadline - time.monotonic()):
                    raise TimeoutError(f"not seen at the other end within {seconds} s")

    def mark(self):
        """Sends a packet that passes in every state (a connection attempt of Tor's account), and returns the listener's lines up to
        its arrival. Packets of one link keep their order."""
        self.marks += 1
        self._send(self.machine.tor_uid, TOR_GROUP, self.marks)
        return self.wait_for(lambda line: line == f"sentinel {self.marks}")[:-1]

    def arrivals(self, uid=0, group=None):
        self.mark()
        self._send(uid, group, "send")
        return set(self.mark()) - LINK

    def edge_program(self):
        """The path in the machine of root's program that sends EDGE."""
        path = "/run/edge"
        self.machine.shell(
            f"printf '%s\\n' '#!/bin/sh' '[ ! -d {TOR_GROUP} ] || echo $$ >{TOR_GROUP}/cgroup.procs' \"$1\" >{path}; chmod 755 {path}",
            f"exec {' '.join(ONE_PROCESSOR)} setpriv --reuid {self.machine.tor_uid} --clear-groups "
            f"/bin/bash -c 'exec 3<>/dev/tcp/{probes.SENTINEL}/1' 2>/dev/null 8>&- 9>&-",
        )
        return path


class Flood:
    """Root's probes without pause. The flood begins paused."""

    def __init__(self, machine):
        self.process = machine.start(
            *ONE_PROCESSOR, "/usr/bin/python3", PROBES_PY, "flood", stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        )
        assert self.process.stdout.readline() == "ready\n"

    def _say(self, word):
        self.process.stdin.write(word + "\n")
        self.process.stdin.flush()
        assert self.process.stdout.readline() == word + "\n"

    def go(self):
        self._say("go")

    def round(self):
        """Returns when each probe has been sent once more."""
        self._say("round")

    def stop(self):
        """Returns when the flood sends nothing more and has no open socket."""
        self._say("stop")

    def close(self):
        self.process.communicate()
