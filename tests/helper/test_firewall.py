"""The rules as text, and real packets against real rules. The tests check which packets reach the wire in each state, and that each
probe reaches it when nothing blocks it."""

import subprocess

import namespace
import probes
from namespace import AS_TOR, DNS_PORT, TOR_GROUP, USER_UID, HelperTest, Peer
from wire import LINK, PROBES_PY, Wire

ALL = set(probes.PROBES)

# A packet to the loopback address never reaches the wire under the rules.
NEVER = {"bound-loopback"}


class Firewall(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.tor_uid = cls.machine.shell("id -u _veldmark").strip()
        cls.wire = Wire(cls.machine)

    @classmethod
    def tearDownClass(cls):
        cls.wire.close()
        super().tearDownClass()

    def tearDown(self):
        self.machine.help("disconnect")

    def test_control_every_probe_is_seen_when_nothing_blocks_it(self):
        self.assertEqual(ALL - self.wire.arrivals(), set())

    def test_strict_lets_nothing_out(self):
        self.machine.connect(strict=1)
        for uid in 0, USER_UID:
            self.assertEqual(self.wire.arrivals(uid), set(), f"as {uid}")

    def test_strict_with_the_local_network_lets_out_nothing_but_that(self):
        self.machine.connect(strict=1, lan=1)
        for uid in 0, USER_UID:
            self.assertEqual(self.wire.arrivals(uid), {"lan-tcp", "lan-udp", "lan-udp6"}, f"as {uid}")

    def test_strict_lets_tor_use_tcp_alone(self):
        self.machine.connect(strict=1)
        tcp = {name for name, (kind, _, _) in probes.PROBES.items() if kind == "tcp" and not name.startswith("lan-")}
        self.assertEqual(self.wire.arrivals(int(self.machine.tor_uid), TOR_GROUP), tcp)

    def test_strict_lets_tor_use_udp_for_snowflake(self):
        self.machine.connect(strict=1, more=["--bridge", "snowflake 192.0.2.3:80", "--pt-snowflake", "/usr/bin/snowflake-client"])
        self.assertLessEqual({"udp", "udp6", "tcp"}, self.wire.arrivals(int(self.machine.tor_uid), TOR_GROUP))
        self.assertEqual(self.wire.arrivals(USER_UID), set())

    def test_transports_may_ask_the_former_resolvers_and_no_others(self):
        self.machine.shell(f"echo 'nameserver {probes.LAN}' >/etc/resolv.conf")
        self.machine.connect(
            strict=1, more=["--bridge", "meek_lite 192.0.2.1:80 url=https://a.example/", "--pt-lyrebird", "/usr/bin/obfs4proxy"]
        )
        seen = self.wire.arrivals(int(self.machine.tor_uid), TOR_GROUP)
        self.assertIn("lan-dns", seen)
        self.assertNotIn("dns", seen)
        self.assertNotIn("udp", seen)

    def test_proxy_mode_keeps_names_in(self):
        self.machine.connect(strict=0)
        names = {"dns", "dns6", "dns-tcp", "dns-tls", "lan-dns", "lan-dns-tcp", "lan-dns-tls", "bound-dns"}
        for uid in 0, USER_UID:
            seen = self.wire.arrivals(uid)
            self.assertEqual(seen & names, set())
            self.assertLessEqual({"tcp", "udp", "lan-tcp"}, seen)
            self.assertEqual(seen & NEVER, set())

    def test_nothing_to_the_loopback_address_reaches_the_wire(self):
        for strict in 0, 1:
            self.machine.connect(strict=strict)
            self.assertEqual([line for line in self.wire.arrivals() if "127.0.0" in line or line in NEVER], [])

    def test_connections_from_before_do_not_go_on(self):
        """Strict mode cuts both connections; proxy mode cuts the DNS lookups."""
        for strict in 1, 0:
            holder = self.machine.start(
                "/usr/bin/python3", PROBES_PY, "hold", stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
            )
            self.assertEqual(holder.stdout.readline(), "ready\n")
            self.wire.mark()

            def use():
                holder.stdin.write("x\n")
                holder.stdin.flush()
                self.assertEqual(holder.stdout.readline(), "sent\n")
                return set(self.wire.mark()) - LINK

            self.assertEqual(use() & ALL, {"tcp", "dns"})  # besides the kernel's own packets
            self.machine.connect(strict=strict)
            self.wire.mark()
            self.assertEqual(use() & ALL if not strict else use(), set() if strict else {"tcp"})
            holder.communicate()
            self.machine.help("disconnect")

    def test_lookups_arrive_at_tors_port(self):
        """Lookups to any server arrive there. A stand-in listens at the port, since this Tor keeps it closed."""
        self.machine.connect(strict=1)
        self.wire.mark()
        stand_in = self.machine.start(
            *AS_TOR,
            "/usr/bin/python3",
            "-c",
            f"import socket\ns = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); s.bind(('127.0.0.1', {DNS_PORT})); print('up', flush=True)\n"
            "while True:\n d, a = s.recvfrom(99); s.sendto(b'answer to ' + d, a)\n if d == b'end of queries': break",
            group=TOR_GROUP,
            stdout=subprocess.PIPE,
            text=True,
        )
        self.assertEqual(stand_in.stdout.readline(), "up\n")
        ask = (
            "import socket, sys\nfor a in sys.argv[1:]:\n s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); s.settimeout(10)\n"
            " s.sendto(b'end of queries' if a == 'end' else b'a whole query', ('127.0.0.1' if a == 'end' else a, 53)); print(s.recvfrom(99)[0].decode())"
        )
        said = self.machine.run(
            "/usr/bin/python3", "-c", ask, "127.0.0.1", "127.0.0.53", probes.PUBLIC, probes.LAN, "end", uid=USER_UID
        ).stdout
        self.assertEqual(said, "answer to a whole query\n" * 4 + "answer to end of queries\n")
        stand_in.communicate()
        self.assertEqual(set(self.wire.mark()) - LINK, set())

    def control_port(self, uid):
        return (
            self.machine.run(
                "/usr/bin/python3", "-c", "import socket; socket.create_connection(('127.0.0.1', 9051), 10)", uid=uid, check=False
            ).returncode
            == 0
        )

    def test_control_port_is_the_sessions_users_alone(self):
        for strict in 0, 1:
            self.machine.connect(strict=strict, env={"PATH": "/usr/bin:/bin", "PKEXEC_UID": str(USER_UID)})
            self.assertTrue(self.control_port(USER_UID))
            self.assertTrue(self.control_port(0))
            self.assertTrue(self.control_port(int(self.machine.tor_uid)))
            self.assertFalse(self.control_port(4243))

    def test_firewall_is_not_opened_while_another_process_changes_it(self):
        """The watcher may be putting the rules back: a disconnect waits until it has finished."""
        self.machine.connect(strict=1)
        holder = self.machine.hold("/run/veldmark.rules")
        ending = self.machine.start("/bin/bash", self.machine.helper, "disconnect")
        while ending.poll() is None and not self.machine.shell("pgrep -xf 'flock -w 10 7' || true"):
            pass
        self.assertIsNone(ending.poll(), "it did not wait")
        self.assertIn("policy drop", self.machine.run("nft", "list", "ruleset").stdout)
        holder.communicate("go on\n")
        self.assertEqual(ending.wait(), 0)
        self.assertEqual(self.machine.run("nft", "list", "ruleset").stdout, "")

    def test_answers_come_in_and_what_others_began_does_not(self):
        """A packet of a connection counts as an answer only when this computer opened the connection, also before the rules."""
        server = self.machine.start(
            "/usr/bin/python3",
            "-c",
            """if True:
            import socket, sys
            server = socket.create_server(('192.168.77.2', 1002)); print('up', flush=True)
            taken, _ = server.accept(); print('taken', flush=True)
            for line in sys.stdin:
                taken.settimeout(float(line))
                try: print(taken.recv(1).decode(), flush=True)
                except OSError: print('nothing', flush=True)""",
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        self.addCleanup(server.communicate)
        self.assertEqual(server.stdout.readline(), "up\n")
        self.machine.connect(strict=0)  # these rules make the kernel track connections
        outside = subprocess.Popen(
            self.wire.peer.command(
                [
                    "/usr/bin/python3",
                    "-c",
                    "import socket, sys\ns = socket.create_connection(('192.168.77.2', 1002))\nfor word in sys.stdin: s.send(word[:1].encode()); print('sent', flush=True)",
                ]
            ),
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        self.addCleanup(outside.communicate)
        self.assertEqual(server.stdout.readline(), "taken\n")

        def arrives(word, seconds):
            outside.stdin.write(word + "\n")
            outside.stdin.flush()
            self.assertEqual(outside.stdout.readline(), "sent\n")
            server.stdin.write(f"{seconds}\n")
            server.stdin.flush()
            return server.stdout.readline().strip()

        self.assertEqual(arrives("a", 10), "a")
        self.machine.connect(strict=1)
        self.assertEqual(arrives("b", 0.5), "nothing")
        # Tor's own connections get their answers: the server at the other end accepts.
        self.machine.run(
            "/usr/bin/python3",
            "-c",
            f"import socket; socket.create_connection(('{probes.PUBLIC}', 1001), 10)",
            uid=int(self.machine.tor_uid),
            group=TOR_GROUP,
        )

    def test_programs_on_this_computer_reach_each_other(self):
        """Both kinds of addresses and every port work in both modes, also the DNS port over TCP."""
        talk = """if True:
            import socket
            for family, address in (socket.AF_INET, '127.0.0.1'), (socket.AF_INET6, '::1'), (socket.AF_INET, '192.168.77.2'):
                for port in 53, 2001:
                    with socket.create_server((address, port), family=family) as server:
                        socket.create_connection((address, port), 10).close()
                        print(address, port)"""
        expected = self.machine.run("/usr/bin/python3", "-c", talk).stdout
        self.assertEqual(len(expected.splitlines()), 6)
        for strict in 0, 1:
            self.machine.connect(strict=strict)
            self.assertEqual(self.machine.run("/usr/bin/python3", "-c", talk).stdout, expected)

    def test_lookup_without_a_header_does_not_reach_tor(self):
        """Such a lookup ends some versions of Tor. A complete lookup arrives."""
        ask = f"""if True:
            import os, socket
            there = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); there.bind(('127.0.0.1', {DNS_PORT})); there.settimeout(10)
            os.setuid({USER_UID})
            for place in ('127.0.0.1', {DNS_PORT}), ('127.0.0.1', 53), ('{probes.PUBLIC}', 53):
                asking = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
                asking.sendto(b'x' * 11, place)
                asking.sendto(b'y' * 12, place)
                print(there.recv(99).decode())"""
        for strict in 0, 1:
            self.machine.connect(strict=strict)
            self.assertEqual(self.machine.run("/usr/bin/python3", "-c", ask, group=TOR_GROUP).stdout, ("y" * 12 + "\n") * 3)

    def test_other_tables_stay(self):
        self.machine.shell("nft add table inet other; nft add chain inet other c")
        before = self.machine.snapshot()
        self.machine.connect()
        self.assertIn("table inet other", self.machine.run("nft", "list", "ruleset").stdout)
        self.machine.help("disconnect")
        self.assertEqual(self.machine.snapshot(), before)
        self.machine.shell("nft delete table inet other")

    def test_forwarded_traffic_obeys_the_same_policy(self):
        """A container has a link of its own, and the machine routes its traffic."""
        container = Peer(self.machine, "veth2", "veth3")
        self.addCleanup(container.close)
        container.run(
            "/bin/bash", "-c", "ip link set veth3 up; ip addr add 10.9.0.2/24 dev veth3; ip route add default via 10.9.0.1"
        )
        self.machine.shell("ip link set veth2 up; ip addr add 10.9.0.1/24 dev veth2; sysctl -qw net.ipv4.ip_forward=1")

        def forwarded():
            self.wire.mark()
            container.run(
                "/usr/bin/python3",
                "-c",
                "import sys; sys.path.insert(0, sys.argv[1]); import probes\n"
                "for n in 'tcp', 'udp', 'dns', 'ping', 'lan-tcp', 'lan-udp', 'lan-dns', 'lan-dns-tcp', 'lan-mdns':\n"
                " probes.send_probe(*probes.PROBES[n])",
                namespace.HERE,
            )

            return set(self.wire.mark()) & ALL

        self.assertEqual(forwarded(), {"tcp", "udp", "dns", "ping", "lan-tcp", "lan-udp", "lan-dns", "lan-dns-tcp", "lan-mdns"})
        self.machine.connect(strict=1)
        self.assertEqual(forwarded(), set())
        self.machine.connect(strict=1, lan=1)
        self.assertEqual(forwarded(), {"lan-tcp", "lan-udp"})

    def test_nobody_gets_in(self):
        """A probe from outside gets an answer without rules, and none in strict mode."""
        knock = [
            "/usr/bin/python3",
            "-c",
            "import socket; s = socket.socket(); s.settimeout(float(__import__('sys').argv[1]));"
            "print(s.connect_ex(('192.168.77.2', 1)))",
        ]
        self.assertEqual(self.wire.peer.run(*knock, "10").strip(), "111")
        self.machine.connect(strict=1)
        self.assertEqual(self.wire.peer.run(*knock, "0.5").strip(), "11")


if __name__ == "__main__":
    namespace.main()
