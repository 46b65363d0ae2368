"""Hostile programs connect to the ports of Tor and its bridge programs, or listen there while Tor is away."""

import subprocess

import namespace
from hostile import CLIENT, SERVER, HostileTest
from namespace import OTHER_UID, TOR_GROUP, USER_UID

# Listens on 127.0.0.1 at the given port until a client waits for an answer from there, then connects from that port to the client.
# Two SYN packets that cross make a connection without any SYN-ACK.
MEETING = (
    "import socket, sys\nport = int(sys.argv[1]); at = f'0100007F:{port:04X}'; s = socket.create_server(('127.0.0.1', port)); print('up', flush=True)\n"
    "while True:\n"
    " waiting = [int(f[1][-4:], 16) for f in map(str.split, open('/proc/net/tcp')) if f[2] == at and f[3] == '02']\n"
    " if waiting: break\n"
    "s.close(); c = socket.socket(); c.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1); c.bind(('127.0.0.1', port)); c.settimeout(10)\n"
    "try: c.connect(('127.0.0.1', waiting[0])); c.sendall(b'hello'); print('met', flush=True)\nexcept OSError as e: print('refused', flush=True)\n"
    "sys.stdin.read()"
)

# Listens at the given address and port and prints what it reads, also what came with the packet that opened the connection.
FAST_SERVER = (
    "import socket, sys\ns = socket.socket(socket.AF_INET6 if ':' in sys.argv[1] else socket.AF_INET)\n"
    "s.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)\n"
    "s.setsockopt(socket.IPPROTO_TCP, socket.TCP_FASTOPEN, 16); s.bind((sys.argv[1], int(sys.argv[2]))); s.listen(); print('up', flush=True)\n"
    "while True:\n c, _ = s.accept(); print(c.recv(100).decode(), flush=True); c.close()"
)
# Sends its request with that packet.
FAST_CLIENT = (
    "import socket, sys\ns = socket.socket(socket.AF_INET6 if ':' in sys.argv[1] else socket.AF_INET); s.settimeout(5)\n"
    "try: s.sendto(sys.argv[3].encode(), socket.MSG_FASTOPEN, (sys.argv[1], int(sys.argv[2]))); print('sent')\n"
    "except BlockingIOError: print('sent later')\nexcept OSError as e: print(e.strerror)"
)


class Sockets(HostileTest):
    def test_a_transports_port_is_tors_alone(self):
        """Otherwise any program could use the transport as a tunnel to a server of its own, from the real address."""
        port, end = self.serve(0, uid=self.tor_uid)
        self.assertTrue(self.reach(port, uid=OTHER_UID))
        end()
        for strict in 1, 0:
            self.machine.connect(strict=strict)
            port, end = self.serve(0, uid=self.tor_uid, group=TOR_GROUP)
            self.assertTrue(self.reach(port, uid=self.tor_uid, group=TOR_GROUP), "Tor reaches its transports")
            for uid in USER_UID, OTHER_UID, 0, self.tor_uid:
                self.assertFalse(self.reach(port, uid=uid), f"as {uid}")
            self.without("answering")
            self.assertTrue(self.reach(port, uid=OTHER_UID))
            end()
            self.machine.help("disconnect")

    def test_a_port_that_was_tors_lets_nobody_else_in(self):
        self.machine.connect()
        port, end = self.serve(0, uid=self.tor_uid, group=TOR_GROUP)
        self.assertTrue(self.reach(port, 40001, uid=self.tor_uid, group=TOR_GROUP))
        self.assertFalse(self.reach(port, 40001, uid=OTHER_UID))
        self.assertTrue(self.reach(port, 40001, 10, uid=self.tor_uid, group=TOR_GROUP), "the port was free for another connection")
        end()

    def test_nobody_else_reads_what_opens_a_connection_to_tors_ports(self):
        """Where the system lets servers have TCP Fast Open, a listener reads a request before it answers."""

        def serve(address, port):
            words = ("/usr/bin/python3", "-c", FAST_SERVER, address, str(port))
            process = self.machine.start(*words, uid=OTHER_UID, stdout=subprocess.PIPE, text=True)
            self.addCleanup(process.communicate)
            self.assertEqual(process.stdout.readline(), "up\n")
            return process

        def send(address, port, words):
            return self.machine.run("/usr/bin/python3", "-c", FAST_CLIENT, address, str(port), words, uid=USER_UID).stdout

        self.machine.shell("echo 3 >/proc/sys/net/ipv4/tcp_fastopen")
        try:
            for address in "127.0.0.1", "::1":
                with self.subTest(address):
                    # The system keeps the cookie of one port for all of the address.
                    other = serve(address, 7777)
                    send(address, 7777, "")
                    self.assertEqual(other.stdout.readline(), "\n")
                    self.machine.connect()
                    self.machine.shell("pkill -KILL -u _veldmark; while pgrep -u _veldmark; do sleep 0.01; done")
                    false_tor = serve(address, 9050)
                    for words in "a request", "secret7", "x":
                        send(address, 9050, words)
                    self.without("opening")
                    self.assertEqual(send(address, 9050, "another"), "sent\n")
                    self.assertEqual(false_tor.stdout.readline(), "another\n")
                    self.machine.shell("pkill -KILL -u bob; while pgrep -u bob; do sleep 0.01; done")
                    self.machine.help("disconnect")
        finally:
            self.machine.shell("echo 1 >/proc/sys/net/ipv4/tcp_fastopen; pkill -KILL -u bob || true")

    def test_nobody_else_answers_at_tors_ports(self):
        """While Tor is away, a false listener would receive the control password and other programs' requests."""
        for strict in 1, 0:
            self.machine.connect(strict=strict)
            self.machine.shell("pkill -KILL -u _veldmark; while pgrep -u _veldmark; do sleep 0.01; done")
            ends = [self.serve(port, uid=OTHER_UID)[1] for port in (9050, 9051)]
            mine, end_mine = self.serve(0, uid=OTHER_UID)
            for port, wanted in ((9050, False), (9051, False), (mine, True)):
                self.assertEqual(self.reach(port, uid=USER_UID, seconds=10 if wanted else 1), wanted, port)
            self.without("answering", "opening")
            self.assertTrue(self.reach(9050, uid=USER_UID) and self.reach(9051, uid=USER_UID))
            for end in (*ends, end_mine):
                end()
            self.machine.help("disconnect")

    def test_nobody_answers_at_tors_ports_of_the_other_loopback_address(self):
        """Programs that use "localhost:9050" try it first."""
        serve, ask = (
            text.replace("'127.0.0.1'", "'::1'")
            .replace("socket.socket()", "socket.socket(socket.AF_INET6)")
            .replace("create_server((", "create_server(family=socket.AF_INET6, address=(")
            for text in (SERVER, CLIENT)
        )

        def reached(port):
            server = self.machine.start(
                "/usr/bin/python3", "-c", serve, str(port), uid=OTHER_UID, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
            )
            port = server.stdout.readline().strip()
            try:
                return self.machine.run("/usr/bin/python3", "-c", ask, port, "0", "2", uid=USER_UID).stdout.strip() == "hello"
            finally:
                server.communicate()

        self.assertTrue(reached(9050))
        for strict in 1, 0:
            self.machine.connect(strict=strict)
            self.assertEqual([reached(port) for port in (9050, 9051, 0)], [False, False, True])
            self.machine.help("disconnect")

    def test_nobody_takes_tors_place_without_answering(self):
        """While Tor is away, a SYN packet from Tor's port crosses the SYN of a program that connects to Tor; no SYN-ACK is
        involved."""
        for strict in 1, 0:
            self.machine.connect(strict=strict)
            self.machine.shell("pkill -KILL -u _veldmark; while pgrep -u _veldmark; do sleep 0.01; done")
            for port, wanted in (9050, False), (9051, False), (9050, True):
                if wanted:
                    self.without("opening")
                    self.machine.shell("nft insert rule inet veldmark opening tcp flags \\& ack == ack goto answering")
                process = self.machine.start(
                    "/usr/bin/python3",
                    "-c",
                    MEETING,
                    str(port),
                    uid=OTHER_UID,
                    stdin=subprocess.PIPE,
                    stdout=subprocess.PIPE,
                    text=True,
                )
                self.addCleanup(process.kill)
                self.assertEqual(process.stdout.readline(), "up\n")
                reached = self.reach(port, seconds=10 if wanted else 3)
                met = process.communicate(timeout=30)[0].strip()
                self.assertEqual((reached, met), (True, "met") if wanted else (False, "refused"), port)
            self.machine.help("disconnect")

    def test_nobody_takes_tors_place_so_at_the_other_loopback_address(self):
        meeting = (
            MEETING.replace("0100007F", "0" * 24 + "01000000")
            .replace("/net/tcp", "/net/tcp6")
            .replace("create_server(('127.0.0.1', port))", "create_server(('::1', port), family=socket.AF_INET6)")
            .replace("socket.socket()", "socket.socket(socket.AF_INET6)")
            .replace("'127.0.0.1'", "'::1'")
        )
        ask = CLIENT.replace("'127.0.0.1'", "'::1'").replace("socket.socket()", "socket.socket(socket.AF_INET6)")
        self.machine.connect()
        for port, wanted in (9050, False), (9051, False), (9050, True):
            if wanted:
                self.without("opening")
                self.machine.shell("nft insert rule inet veldmark opening tcp flags \\& ack == ack goto answering")
            process = self.machine.start(
                "/usr/bin/python3",
                "-c",
                meeting,
                str(port),
                uid=OTHER_UID,
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
                text=True,
            )
            self.addCleanup(process.kill)
            self.assertEqual(process.stdout.readline(), "up\n")
            said = self.machine.run(
                "/usr/bin/python3", "-c", ask, str(port), "0", "10" if wanted else "3", uid=USER_UID
            ).stdout.strip()
            self.assertEqual(
                (said, process.communicate(timeout=30)[0].strip()), ("hello", "met") if wanted else ("refused", "refused"), port
            )


if __name__ == "__main__":
    namespace.main()
