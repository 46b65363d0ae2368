"""Shared parts of the tests of hostile programs without root's rights. Each test first shows that the attack works without the
defence."""

import subprocess

from namespace import AS_TOR, DNS_PORT, USER_UID, HelperTest
from wire import Wire


# Listens on 127.0.0.1 at the given port (0: any), prints the port, and greets each client until its input ends.
SERVER = (
    "import os, socket, sys, threading\nthreading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()\ns = socket.create_server(('127.0.0.1', int(sys.argv[1]))); print(s.getsockname()[1], flush=True)\n"
    "while True:\n c, _ = s.accept(); c.sendall(b'hello'); c.close()"
)

# Connects to 127.0.0.1 at the given port from the given port (0: any), and prints the greeting.
CLIENT = (
    "import socket, sys\nc = socket.socket(); c.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1); c.settimeout(float(sys.argv[3]))\n"
    "c.bind(('127.0.0.1', int(sys.argv[2])))\n"
    "try: c.connect(('127.0.0.1', int(sys.argv[1]))); print(c.recv(9).decode())\nexcept OSError as e: print('refused')"
)


class HostileTest(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.tor_uid = int(cls.machine.shell("id -u _veldmark"))
        cls.machine.tor_uid = str(cls.tor_uid)
        cls.wire = Wire(cls.machine)

    @classmethod
    def tearDownClass(cls):
        cls.wire.close()
        super().tearDownClass()

    def setUp(self):
        self.before = self.machine.snapshot()

    def tearDown(self):
        self.machine.help("disconnect")
        self.assertEqual(self.machine.snapshot(), self.before)

    def serve(self, port, **who):
        process = self.machine.start(
            "/usr/bin/python3", "-c", SERVER, str(port), stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, **who
        )
        port = int(process.stdout.readline())

        def end():
            if process.poll() is None:
                process.communicate()

        self.addCleanup(end)
        return port, end

    def reach(self, port, source=0, seconds=1, **who):
        return (
            self.machine.run("/usr/bin/python3", "-c", CLIENT, str(port), str(source), str(seconds), **who).stdout.strip()
            == "hello"
        )

    def without(self, *chains):
        """The session's rules with those chains emptied."""
        if self.machine.shell("cat /var/lib/veldmark/state/active") == "strict\n":
            self.machine.end_watcher()
        for chain in chains:
            self.machine.shell(f"nft flush chain inet veldmark {chain}; nft add rule inet veldmark {chain} accept")

    def asked(self, script, *who):
        """What the sockets at Tor's DNS port receive when SCRIPT asks, as "NAME LENGTH". who: (name, address, uid, group). The
        kernel delivers to the last one that binds."""
        listen = (
            "import socket, sys\ns = socket.socket(socket.AF_INET6 if ':' in sys.argv[2] else socket.AF_INET, socket.SOCK_DGRAM)\n"
            "s.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1); s.bind((sys.argv[2], int(sys.argv[3]))); print('up', flush=True)\n"
            "while True:\n data = s.recv(999)\n if data == b'e' * 20: break\n print(sys.argv[1], len(data), flush=True)"
        )
        up = []
        for name, address, uid, group in who:
            up.append(
                self.machine.start(
                    "setpriv",
                    f"--reuid={uid}",
                    *AS_TOR[2:],
                    "/usr/bin/python3",
                    "-c",
                    listen,
                    name,
                    address,
                    str(DNS_PORT),
                    group=group,
                    stdout=subprocess.PIPE,
                    text=True,
                )
            )
            self.assertEqual(up[-1].stdout.readline(), "up\n")
        try:
            said = self.machine.run("/usr/bin/python3", "-c", script, uid=USER_UID).stdout
            # The packets that end the sockets come after all others.
            self.machine.run(
                "/usr/bin/python3",
                "-c",
                "import socket\nfor a in '127.0.0.1', '::1':\n s = socket.socket(socket.AF_INET6 if ':' in a else socket.AF_INET, socket.SOCK_DGRAM)\n"
                f" s.sendto(b'e' * 20, (a, {DNS_PORT}))",
                uid=USER_UID,
                check=False,
            )
            got = []
            for process in up:
                try:
                    got += process.communicate(timeout=1)[0].splitlines()
                except subprocess.TimeoutExpired:
                    self.machine.shell("pkill -KILL -f 's.setsockopt[(]' || true")
                    got += process.communicate()[0].splitlines()
            return said, got
        finally:
            for process in up:
                process.kill()

    ASK = (
        "import socket\nfor a, p in ('127.0.0.1', 53), ('192.0.2.53', 53), ('127.0.0.1', 293), ('::1', 293):\n"
        " s = socket.socket(socket.AF_INET6 if ':' in a else socket.AF_INET, socket.SOCK_DGRAM); s.settimeout(1)\n"
        " try:\n  s.connect((a, p)); s.send(b'q' * 30); s.send(b'q' * 11)\n except OSError as e: pass"
    )
