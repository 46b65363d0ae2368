"""Programs on the machine itself as attackers, without root's rights: each attack is first seen to work where its defence is
taken out."""

import os
import subprocess

import namespace
import probes
from namespace import AS_TOR, DNS_PORT, OTHER_UID, TOR_GROUP, USER_UID, HelperTest
from wire import LINK, Wire

RULES = "/var/lib/veldmark/run/firewall.nft"
DATA = "/var/lib/veldmark/run/tor/data"

# Listens on 127.0.0.1 at the port given, any for 0, prints it, and greets whoever comes, until its input ends.
SERVER = (
    "import os, socket, sys, threading\nthreading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()\ns = socket.create_server(('127.0.0.1', int(sys.argv[1]))); print(s.getsockname()[1], flush=True)\n"
    "while True:\n c, _ = s.accept(); c.sendall(b'hello'); c.close()"
)
# Connects to 127.0.0.1 at the port given, from the port given, any for 0; prints the greeting.
CLIENT = (
    "import socket, sys\nc = socket.socket(); c.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1); c.settimeout(float(sys.argv[3]))\n"
    "c.bind(('127.0.0.1', int(sys.argv[2])))\n"
    "try: c.connect(('127.0.0.1', int(sys.argv[1]))); print(c.recv(9).decode())\nexcept OSError as e: print('refused')"
)

# Listens on 127.0.0.1 at the port given until somebody waits for an answer from there, then opens a connection of its own from that
# port to the one who waits: two openings that meet are a connection, which nobody has answered.
MEETING = (
    "import socket, sys\nport = int(sys.argv[1]); at = f'0100007F:{port:04X}'; s = socket.create_server(('127.0.0.1', port)); print('up', flush=True)\n"
    "while True:\n"
    " waiting = [int(f[1][-4:], 16) for f in map(str.split, open('/proc/net/tcp')) if f[2] == at and f[3] == '02']\n"
    " if waiting: break\n"
    "s.close(); c = socket.socket(); c.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1); c.bind(('127.0.0.1', port)); c.settimeout(10)\n"
    "try: c.connect(('127.0.0.1', waiting[0])); c.sendall(b'hello'); print('met', flush=True)\nexcept OSError as e: print('refused', flush=True)\n"
    "sys.stdin.read()"
)


class Hostile(HelperTest):
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
        """The rules of the session without what is in those chains."""
        if self.machine.shell("cat /var/lib/veldmark/state/active") == "strict\n":
            self.machine.end_watcher()
        for chain in chains:
            self.machine.shell(f"nft flush chain inet veldmark {chain}; nft add rule inet veldmark {chain} accept")

    # ---- Tor's account and its ports ----

    def test_a_transports_port_is_tors_alone(self):
        """Else it is a tunnel to a server of anybody's, from the real address."""
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

    def test_nobody_else_answers_at_tors_ports(self):
        """While Tor is away, a false listener would get the control password and what others ask."""
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
        """Programs that are told "localhost:9050" try it first."""
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
        """While Tor is away: an opening packet from Tor's port meets that of who waits for Tor, and neither has been answered."""
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

    def test_nobody_gets_what_others_ask(self):
        """A second socket at Tor's port for look-ups would get them. Nobody but root and Tor can have one."""
        bind = (
            "import socket, sys\ntwo = []\nfor _ in 1, 2:\n two.append(socket.socket(socket.AF_INET, socket.SOCK_DGRAM))\n"
            " for option in socket.SO_REUSEADDR, socket.SO_REUSEPORT: two[-1].setsockopt(socket.SOL_SOCKET, option, 1)\n"
            " two[-1].bind(('127.0.0.1', int(sys.argv[1])))\nprint('beside')"
        )
        for strict in 1, 0:
            self.machine.connect(strict=strict)
            rules = self.machine.run("nft", "list", "chain", "inet", "veldmark", "redirect_dns").stdout
            self.assertIn(f"redirect to :{DNS_PORT}\n", rules)
            self.assertEqual(self.machine.run("/usr/bin/python3", "-c", bind, "9053", uid=OTHER_UID).stdout, "beside\n")
            for uid in USER_UID, OTHER_UID:
                self.assertIn(
                    "PermissionError", self.machine.run("/usr/bin/python3", "-c", bind, str(DNS_PORT), uid=uid, check=False).stderr
                )
            self.machine.help("disconnect")

    def asked(self, script, *who):
        """What sockets at Tor's port for look-ups get when SCRIPT asks: "NAME LENGTH" each. who: (name, address, uid, group), the last
        one to bind is the kernel's choice."""
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
            # What ends each that gets anything comes after all else.
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

    def test_a_socket_beside_tors_gets_no_look_ups(self):
        """Where somebody has opened the port to everybody: they are all given the right to it."""
        tor, tor6 = ("tor", "127.0.0.1", self.tor_uid, TOR_GROUP), ("tor", "::1", self.tor_uid, TOR_GROUP)
        evil, evil6 = ("other", "127.0.0.1", OTHER_UID, None), ("other", "::1", OTHER_UID, None)
        account = ("account", "127.0.0.1", self.tor_uid, None)
        for strict in 1, 0:
            self.machine.connect(strict=strict)
            self.assertEqual(self.asked(self.ASK, tor, tor6)[1], ["tor 30"] * 4)
            for who in ((tor, tor6, evil, evil6), (evil, evil6), (tor, account)):
                self.assertEqual([line for line in self.asked(self.ASK, *who)[1] if not line.startswith("tor")], [], who)
            self.without("from_loopback")
            self.assertLessEqual({"other 30", "other 11"}, set(self.asked(self.ASK, tor, tor6, evil, evil6)[1]))
            self.machine.help("disconnect")

    def test_nobody_else_answers_a_look_up(self):
        """Likewise: who asks, and from which port, everybody can see."""
        ask = (
            "import socket\ns = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); s.settimeout(2); s.connect(('127.0.0.1', 53)); s.send(b'q' * 30)\n"
            "t = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); t.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1); t.bind(('127.0.0.1', 293))\n"
            "try: t.sendto(b'lie', s.getsockname())\nexcept OSError: pass\n"
            "try: print(s.recv(9).decode())\nexcept OSError: print('nothing')"
        )
        self.machine.shell("sysctl -qw net.ipv4.ip_unprivileged_port_start=0")
        try:
            for strict in 1, 0:
                self.machine.connect(strict=strict)
                tor = "tor", "127.0.0.1", self.tor_uid, TOR_GROUP
                self.assertEqual(self.asked(ask, tor)[0], "nothing\n")
                self.without("looked_up")
                self.assertEqual(self.asked(ask, tor)[0], "lie\n")
                self.machine.help("disconnect")
        finally:
            self.machine.shell("sysctl -qw net.ipv4.ip_unprivileged_port_start=1024")

    def has_late_cut(self):
        return "\ntx-udp-segmentation: on\n" in self.machine.run("ethtool", "-k", "lo").stdout

    def give_ethtool(self):
        self.machine.give_ethtool()
        self.before = self.machine.snapshot()

    def test_what_the_kernel_cuts_reaches_tor_in_no_piece(self):
        """Pieces that are too short for a look-up's header end some versions of Tor."""
        self.give_ethtool()
        pieces = (
            f"import socket\nfor a, p in ('127.0.0.1', {DNS_PORT}), ('127.0.0.1', 53):\n s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)\n"
            " s.setsockopt(socket.SOL_UDP, 103, 11); s.sendto(b'p' * 33, (a, p))\n"  # UDP_SEGMENT
            " s.setsockopt(socket.SOL_UDP, 103, 0); s.sendto(b'w' * 33, (a, p))"
        )
        tor = "tor", "127.0.0.1", self.tor_uid, TOR_GROUP
        for strict in 1, 0:
            self.assertTrue(self.has_late_cut())
            self.machine.connect(strict=strict)
            self.assertEqual(self.asked(pieces, tor)[1], ["tor 33"] * 2)
            self.machine.connect(strict=strict)  # once more upon what it has noted
            self.machine.run("ethtool", "-K", "lo", "tx-udp-segmentation", "on")
            self.assertEqual(self.asked(pieces, tor)[1], (["tor 11"] * 3 + ["tor 33"]) * 2)
            self.machine.help(
                "fix-dns" if strict else "connect",
                *([] if strict else ["--tor", namespace.TOR, "--hash", namespace.HASH, "--strict", "0", "--lan", "0"]),
            )
            self.assertFalse(self.has_late_cut())
            self.machine.help("disconnect")
        self.assertTrue(self.has_late_cut())

    def test_a_loopback_device_that_cannot_be_put_back_is_told_and_tried_again(self):
        self.give_ethtool()
        self.machine.connect()
        self.machine.shell(
            "printf '#!/bin/sh\nexit 1\n' >/mnt/broken; chmod 755 /mnt/broken; mount --bind /mnt/broken /usr/sbin/ethtool"
        )
        done = self.machine.help("disconnect", check=False)
        self.machine.shell("umount /usr/sbin/ethtool; rm /mnt/broken")
        self.assertOneLine(done, "The network is open again, but the loopback device could not be set up as before.")
        self.assertEqual(self.machine.shell("nft list ruleset; ls /var/lib/veldmark/state"), "")
        self.assertFalse(self.has_late_cut())
        self.machine.help("disconnect")
        self.assertTrue(self.has_late_cut())

    def test_what_tor_answers_does_not_leave(self):
        """Neither a look-up's answer nor a bridge program's: what comes from this computer may bear any sender, who then gets the answer,
        where Tor's account may send datagrams."""
        answer = (
            "import os, socket, sys, threading\nthreading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()\n"
            "s = socket.socket(socket.AF_INET6, socket.SOCK_DGRAM); s.bind((sys.argv[1], int(sys.argv[2]))); print('up', flush=True)\n"
            "while True:\n data, where = s.recvfrom(999)\n try: s.sendto(b'answer', where); print('sent', flush=True)\n except OSError: print('refused', flush=True)"
        )
        ask = (
            f"import socket, sys\ns = socket.socket(socket.AF_INET6, socket.SOCK_DGRAM); s.setsockopt(socket.IPPROTO_IPV6, 78, 1); s.bind(('{probes.PUBLIC6}', 40404))\n"
            "s.sendto(b'q' * 30, (sys.argv[1], int(sys.argv[2])))"
        )  # 78: IPV6_FREEBIND
        for own, at, port in ("::1", "::1", DNS_PORT), ("::", "fd00:77::2", 6881):
            self.machine.connect(more=["--bridge", "snowflake 192.0.2.3:80", "--pt-snowflake", "/usr/bin/snowflake-client"])
            tor = self.machine.start(
                *AS_TOR,
                "/usr/bin/python3",
                "-c",
                answer,
                own,
                str(port),
                group=TOR_GROUP,
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
                text=True,
            )
            self.assertEqual(tor.stdout.readline(), "up\n")
            try:
                for said, seen in ("refused\n", False), ("sent\n", True):
                    if seen:
                        self.machine.end_watcher()
                        self.machine.shell(
                            "nft flush chain inet veldmark tors_account; nft add rule inet veldmark tors_account accept"
                        )
                    self.wire.mark()
                    self.machine.run("/usr/bin/python3", "-c", ask, at, str(port), uid=OTHER_UID)
                    self.assertEqual(tor.stdout.readline(), said)
                    self.assertEqual(f"other udp {probes.PUBLIC6} 40404" in self.wire.mark(), seen)
            finally:
                tor.communicate()

    def test_tors_account_alone_passes_nothing(self):
        """A setuid file that it has left in an earlier session, say."""
        self.machine.connect()
        self.assertIn("https", self.wire.arrivals(self.tor_uid, TOR_GROUP))
        self.assertEqual(self.wire.arrivals(self.tor_uid), set())
        self.assertNotEqual(
            self.machine.run("/bin/sh", "-c", f"echo 0 >{TOR_GROUP}/cgroup.procs", uid=self.tor_uid, check=False).returncode, 0
        )
        self.machine.help("disconnect")
        self.assertIn("https", self.wire.arrivals(self.tor_uid))

    def test_without_such_groups_it_is_the_account_alone(self):
        self.machine.shell("umount /sys/fs/cgroup")
        try:
            self.machine.connect()
            self.assertNotIn("cgroupv2", self.machine.run("nft", "list", "ruleset").stdout)
            self.assertIn("https", self.wire.arrivals(self.tor_uid))
            port, end = self.serve(0, uid=self.tor_uid)
            self.assertFalse(self.reach(port, uid=OTHER_UID))
            end()
            self.assertEqual(self.asked(self.ASK, ("tor", "127.0.0.1", self.tor_uid, None))[1], ["tor 30"] * 3)
            self.machine.help("disconnect")
        finally:
            self.machine.shell("mount -t cgroup2 private /sys/fs/cgroup")

    def test_tor_reaches_the_local_network_for_a_bridge_there_alone(self):
        lan = {"lan-tcp", "lan-dns-tcp", "lan-dns-tls"}
        for url, reached in (None, set()), ("https://203.0.113.7/", set()), ("https://192.168.77.30/", lan):
            self.machine.connect(
                more=["--bridge", f"webtunnel 192.0.2.3:80 url={url}", "--pt-lyrebird", "/usr/bin/obfs4proxy"] if url else []
            )
            self.assertEqual(self.wire.arrivals(self.tor_uid, TOR_GROUP) & lan, reached, url)

    def test_over_bridges_tors_account_reaches_nothing_else(self):
        """Whoever has the control password can name proxies, bridges and programs."""
        bridges = [f"{probes.SENTINEL}:{self.wire.marks + number}" for number in range(1, 5)]  # what tells the end of a round
        bridges += [f"obfs4 {probes.PUBLIC}:443 cert=a iat-mode=0", f"[{probes.PUBLIC6}]:1002", f"{probes.LAN}:1006"]
        more = [word for bridge in bridges for word in ("--bridge", bridge)] + ["--pt-lyrebird", "/usr/bin/obfs4proxy"]
        self.machine.connect(more=more)
        self.assertEqual(self.wire.arrivals(self.tor_uid, TOR_GROUP), {"https", "tcp6", "lan-tcp"})
        # Where the transport asks a front, or the administrator has put a proxy in between, it may be anybody.
        self.machine.connect(more=[*more, "--bridge", "webtunnel 192.0.2.3:80 url=https://a.example/"])
        self.assertLessEqual({"tcp", "https", "dns-tls"}, self.wire.arrivals(self.tor_uid, TOR_GROUP))
        for line in "HTTPSProxy 192.0.2.8:8", "%include /run/more":
            self.machine.shell(
                f"cp /etc/tor/torrc-defaults /run/defaults; echo HTTPSProxy 192.0.2.8:8 >/run/more; echo '{line}' >>/etc/tor/torrc-defaults"
            )
            try:
                self.machine.connect(more=more)
                self.assertLessEqual({"tcp", "https", "dns-tls"}, self.wire.arrivals(self.tor_uid, TOR_GROUP), line)
            finally:
                self.machine.help("disconnect")
                self.machine.shell("cat /run/defaults >/etc/tor/torrc-defaults; rm /run/defaults /run/more")
        self.before = self.machine.snapshot()

    # ---- The control port ----

    def control(self, *lines, uid=USER_UID):
        """Tor's replies, one for each line."""
        talk = (
            "import socket, sys\nc = socket.create_connection(('127.0.0.1', 9051), 10); f = c.makefile('rw', newline='\\r\\n')\n"
            "for line in sys.argv[1:]:\n f.write(line + '\\n'); f.flush(); reply = f.readline()\n while reply[3:4] == '-': print(reply.strip()); reply = f.readline()\n print(reply.strip())"
        )
        return self.machine.run("/usr/bin/python3", "-c", talk, *lines, uid=uid).stdout.splitlines()

    def connect_with_password(self, *more):
        hashed = self.machine.run(namespace.TOR, "--quiet", "--hash-password", "the word").stdout.strip()
        self.machine.help(
            "connect",
            "--tor",
            namespace.TOR,
            "--hash",
            hashed,
            "--strict",
            "1",
            "--lan",
            "0",
            *more,
            env={"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)},
        )

    def test_without_the_password_the_control_port_does_nothing(self):
        self.connect_with_password()
        self.assertIn("250-AUTH METHODS=HASHEDPASSWORD", self.control("PROTOCOLINFO 1"))
        for words in (
            "AUTHENTICATE",
            'AUTHENTICATE ""',
            'AUTHENTICATE "another"',
            "GETINFO config-text",
            "SETCONF HTTPSProxy=192.0.2.8:8",
        ):
            self.assertRegex(self.control(words)[-1], "^51[45] ")
        self.assertEqual(self.control('AUTHENTICATE "the word"', "SETCONF HTTPSProxy=192.0.2.8:8"), ["250 OK", "250 OK"])
        # Not even its hash is told, which could be tried out elsewhere.
        for uid in USER_UID, OTHER_UID:
            self.assertNotEqual(self.machine.run("cat", "/var/lib/veldmark/run/torrc", uid=uid, check=False).returncode, 0)

    def test_without_bridges_the_password_runs_no_program(self):
        """Tor takes the words, and starts nothing. It is let to the network, which leads nowhere here: else it starts none anyhow."""
        words = (
            'AUTHENTICATE "the word"',
            f'SETCONF ClientTransportPlugin="obfs4 exec /usr/bin/touch {DATA}/ran" UseBridges=1 Bridge="obfs4 192.0.2.1:443"',
            "SETCONF DisableNetwork=0",
        )
        log = "/var/lib/veldmark/run/notices.log"
        for more, runs in ([], False), (
            ["--bridge", "obfs4 192.0.2.1:443 cert=a iat-mode=0", "--pt-lyrebird", "/usr/bin/obfs4proxy"],
            True,
        ):
            self.connect_with_password(*more)
            if not runs:
                self.assertNotEqual(self.control(words[0], "SETCONF NoExec=0")[-1][:3], "250")
            self.control(*words)
            self.machine.shell(f"until [ -e {DATA}/ran ] || grep -q 'not compatible with NoExec mode' {log}; do sleep 0.01; done")
            self.assertEqual(self.machine.shell(f"ls {DATA}/ran || true").strip() != "", runs)
            self.machine.help("disconnect")
            self.machine.shell(f"rm -f {DATA}/ran")

    # ---- What Tor's account leaves ----

    def as_tor_within(self, script):
        """In Tor's own mounts, as code of its account would run there."""
        [pid] = self.machine.tor_pids()
        return self.machine.run(
            "nsenter",
            "--target",
            pid,
            "--mount",
            "setpriv",
            "--reuid",
            "_veldmark",
            "--regid",
            "_veldmark",
            "--clear-groups",
            "/bin/sh",
            "-c",
            script,
            check=False,
        )

    def test_tors_account_leaves_nothing_that_others_can_run(self):
        self.machine.shell("mkdir -m 1777 /run/everybodys /home/everybodys; cp /usr/bin/id /run/id")
        places = ["/run/everybodys", "/home/everybodys", "/tmp", "/var/tmp", "/dev/shm", DATA]
        self.machine.shell(
            "setpriv --reuid _veldmark --clear-groups /bin/sh -c 'cp /run/id /run/everybodys/control; chmod 4755 /run/everybodys/control'"
        )
        self.assertIn(f"euid={self.tor_uid}", self.machine.run("/run/everybodys/control", uid=OTHER_UID).stdout)
        self.machine.shell("rm /run/everybodys/control")
        self.machine.connect()
        for place in places:
            self.as_tor_within(f"cp /run/id {place}/left; chmod 4755 {place}/left; chmod 755 {DATA}")
            done = self.machine.run("/bin/sh", "-c", f"{place}/left", uid=OTHER_UID, check=False)
            self.assertNotEqual(done.returncode, 0, f"{place}: {done.stdout}")
        self.assertEqual(
            self.machine.shell(f"find {' '.join(places)} -name left -perm -4000"), f"{DATA}/left\n"
        )  # it could write there
        self.assertNotIn("euid", self.as_tor_within(f"{DATA}/left").stdout)
        self.machine.help("disconnect")
        self.assertNotEqual(self.machine.run("/bin/sh", "-c", f"{DATA}/left", uid=OTHER_UID, check=False).returncode, 0)
        self.machine.shell(f"rm -r /run/everybodys /home/everybodys /run/id {DATA}/left; chmod 700 {DATA}")

    def test_what_is_unmounted_is_not_kept_by_tor(self):
        self.machine.shell("mkdir /opt/stick; mount -t tmpfs earlier /opt/stick; mount --make-rshared /")
        try:
            self.machine.connect()
            [pid] = self.machine.tor_pids()

            def mounted():
                return self.machine.shell(f"grep -c ' /opt/stick ' /proc/{pid}/mountinfo || true").strip()

            self.assertEqual(mounted(), "1")
            self.machine.shell("umount /opt/stick")
            self.assertEqual(mounted(), "0")
        finally:
            self.machine.shell("mountpoint -q /opt/stick && umount /opt/stick; rmdir /opt/stick; mount --make-rprivate /")

    def test_the_data_folder_of_an_earlier_version_is_taken_over(self):
        self.machine.shell(
            f"mv {DATA} /var/lib/veldmark/run/data; rmdir {os.path.dirname(DATA)}; touch /var/lib/veldmark/run/data/guards"
        )
        self.machine.connect()
        self.machine.shell(f"test -e {DATA}/guards; rm {DATA}/guards; test ! -e /var/lib/veldmark/run/data")

    # ---- Who can stop what ----

    def test_the_callers_group_ends_and_stops_nothing(self):
        own = "/sys/fs/cgroup/alices"
        self.machine.shell(f"chmod 755 /sys/fs/cgroup; mkdir {own}; chown -R {USER_UID} {own}")
        try:
            self.machine.connect(group=own)
            self.machine.await_watcher()
            sleeper = self.machine.start("sleep", "1000", group=own)
            watcher = self.machine.shell("pgrep -f /watcher[.]sh").strip()
            [tor] = self.machine.tor_pids()
            self.machine.run("/bin/sh", "-c", f"echo 1 >{own}/cgroup.kill", uid=USER_UID)
            self.assertEqual(sleeper.wait(10), -9)
            self.machine.shell(f"kill -0 {watcher} {tor}")
            self.assertNotEqual(
                self.machine.run(
                    "/bin/sh", "-c", "echo 1 >/sys/fs/cgroup/veldmark/cgroup.kill", uid=USER_UID, check=False
                ).returncode,
                0,
            )
            # One that waits for the lock has left the group as well, before it could have it.
            holder = self.machine.start(
                "flock",
                "/run/veldmark.lock",
                "/bin/sh",
                "-c",
                "echo held; read word",
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
                text=True,
            )
            self.assertEqual(holder.stdout.readline(), "held\n")
            waiting = self.machine.start("/bin/bash", self.machine.helper, "fix-dns", group=own)
            self.machine.shell("until pgrep -xf 'flock -w 20 9'; do sleep 0.01; done")
            self.machine.run("/bin/sh", "-c", f"echo 1 >{own}/cgroup.freeze", uid=USER_UID)
            holder.communicate("go on\n")
            self.assertEqual(waiting.wait(20), 0)
        finally:
            self.machine.shell(f"echo 0 >{own}/cgroup.freeze")
            self.machine.help("disconnect")
            self.machine.shell(f"rmdir {own}")

    def test_the_callers_priorities_are_not_taken_over(self):
        self.machine.shell(
            'echo 500 >/proc/self/oom_score_adj; exec taskset --cpu-list 0 ionice --class idle chrt --idle 0 nice -n 15 /bin/bash "$@"',
            self.machine.helper,
            "connect",
            "--tor",
            namespace.TOR,
            "--hash",
            namespace.HASH,
            "--strict",
            "1",
            "--lan",
            "0",
        )
        every = self.machine.shell(
            "taskset --cpu-list $(cat /sys/devices/system/cpu/possible) grep Cpus_allowed_list /proc/self/status"
        )
        [tor] = self.machine.tor_pids()
        for pid in tor, self.machine.shell("pgrep -f /watcher[.]sh").strip():
            self.assertLessEqual(int(self.machine.shell(f"cat /proc/{pid}/oom_score_adj")), 0)
            self.assertEqual(self.machine.shell(f"ps -o ni=,cls= -p {pid}").split(), ["0", "TS"])
            self.assertTrue(self.machine.shell(f"ionice --pid {pid}").startswith("none"))
            self.assertEqual(self.machine.shell(f"grep Cpus_allowed_list /proc/{pid}/status"), every)

    # ---- Ways around the rules ----

    def mapped(self, address, port):
        """What comes to the wire of a connection to this computer's own address that another table turns to `address`."""
        self.machine.shell(
            f"nft -f - <<<'table ip other {{ chain o {{ type nat hook output priority -100; ip daddr 192.168.77.2 tcp dport 8080 dnat to {address}:{port}; }}; }}'"
        )
        try:
            self.wire.mark()
            self.machine.run(
                "/usr/bin/python3",
                "-c",
                "import socket; s = socket.socket(); s.setblocking(False); s.connect_ex(('192.168.77.2', 8080))",
                uid=USER_UID,
            )
            return set(self.wire.mark()) & set(probes.PROBES)
        finally:
            self.machine.shell("nft delete table ip other")

    def test_a_port_mapping_of_others_is_no_way_out(self):
        self.assertEqual(self.mapped(probes.PUBLIC, 1001), {"tcp"})
        self.machine.connect()
        self.assertEqual(self.mapped(probes.PUBLIC, 1001), set())
        self.assertEqual(self.mapped(probes.LAN, 1006), set())
        self.machine.connect(lan=1)
        self.assertEqual(self.mapped(probes.PUBLIC, 1001), set())
        self.assertEqual(self.mapped(probes.LAN, 53), set())
        self.assertEqual(self.mapped(probes.LAN, 1006), {"lan-tcp"})

    def test_a_neighbour_does_not_reach_the_loopback_address(self):
        """With route_localnet on and the local network allowed."""
        self.machine.shell("sysctl -qw net.ipv4.conf.all.route_localnet=1")
        peer = self.wire.peer
        peer.run(
            "/bin/bash",
            "-c",
            "sysctl -qw net.ipv4.conf.all.route_localnet=1; ip route del local 127.0.0.0/8 dev lo table local;"
            f"ip route del local 127.0.0.1 dev lo table local; ip route add 127.0.0.0/8 via 192.168.77.2 src {probes.LAN}",
        )
        knock = (
            "import socket; s = socket.socket(); s.setblocking(False); s.bind(('192.168.77.1', 0)); s.connect_ex(('127.0.0.1', 1))"
        )

        def answers():
            self.wire.mark()
            peer.run("/usr/bin/python3", "-c", knock)
            return [line for line in self.wire.mark() if line.startswith(f"other tcp {probes.LAN} ")]

        try:
            self.assertTrue(answers())
            for strict in 1, 0:
                self.machine.connect(strict=strict, lan=1)
                self.assertEqual(answers(), [])
        finally:
            peer.run(
                "/bin/bash",
                "-c",
                "ip route del 127.0.0.0/8; ip route add local 127.0.0.0/8 dev lo table local src 127.0.0.1;"
                "ip route add local 127.0.0.1 dev lo table local src 127.0.0.1",
            )
            self.machine.shell("sysctl -qw net.ipv4.conf.all.route_localnet=0")

    def test_an_application_without_tor_answers_nobody_elsewhere(self):
        """What it is asked on this computer may come with any sender, who then gets the answer, from the real address."""
        server = (
            "import os, socket, sys, threading\nthreading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()\n"
            "s = socket.socket(socket.AF_INET6, socket.SOCK_DGRAM); s.bind(('::', 6881)); print('up', flush=True)\n"
            f"s.sendto(b'hello', ('{probes.PUBLIC6}', 40405))\n"
            "while True:\n data, where = s.recvfrom(999)\n try: s.sendto(b'answer', where); print('sent', flush=True)\n except OSError: print('refused', flush=True)"
        )
        ask = (
            f"import socket\ns = socket.socket(socket.AF_INET6, socket.SOCK_DGRAM); s.setsockopt(socket.IPPROTO_IPV6, 78, 1); s.bind(('{probes.PUBLIC6}', 40404))\n"
            "s.sendto(b'?', ('fd00:77::2', 6881))"
        )  # 78: IPV6_FREEBIND
        self.machine.connect()
        for said in "refused\n", "sent\n":
            if said == "sent\n":
                self.machine.end_watcher()
                self.machine.shell("nft insert rule inet veldmark refused socket cgroupv2 level 1 '\"veldmark-exempt\"' accept")
            self.wire.mark()
            process = self.machine.start(
                "/usr/bin/python3",
                "-c",
                server,
                uid=USER_UID,
                group="/sys/fs/cgroup/veldmark-exempt",
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
                text=True,
            )
            self.assertEqual(process.stdout.readline(), "up\n")
            self.machine.run("/usr/bin/python3", "-c", ask, uid=OTHER_UID)
            self.assertEqual(process.stdout.readline(), said)
            process.communicate()
            seen = self.wire.mark()
            self.assertIn(f"other udp {probes.PUBLIC6} 40405", seen, "what it sends of its own accord leaves")
            self.assertEqual(f"other udp {probes.PUBLIC6} 40404" in seen, said == "sent\n")

    def test_only_the_systems_own_ask_for_an_address(self):
        """Where somebody has opened the ports below 1024 to everybody."""
        ask = (
            "import socket\nfor a, own, port in ('192.168.77.1', 68, 67), ('255.255.255.255', 68, 67), ('fe80::1%veth0', 546, 547), ('ff02::1:2%veth0', 546, 547), ('203.0.113.9', 68, 67),"
            " ('2001:db8:9::9', 546, 547):\n"
            " family, kind, _, _, to = socket.getaddrinfo(a, port, type=socket.SOCK_DGRAM)[0]\n"
            " with socket.socket(family, kind) as s:\n  s.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1); s.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)\n"
            "  s.bind(('', own))\n  try: s.sendto(b'?', to)\n  except PermissionError: pass"
        )

        def seen(uid, group=None):
            self.wire.mark()
            self.machine.run("/usr/bin/python3", "-c", ask, uid=uid, group=group)
            return sorted(line.split()[2] for line in self.wire.mark() if line.endswith((" 67", " 547")))

        self.machine.shell(
            "sysctl -qw net.ipv4.ip_unprivileged_port_start=0; ip neigh replace fe80::1 lladdr 02:00:00:00:00:01 dev veth0"
        )
        try:
            everywhere = ["192.168.77.1", "255.255.255.255", "fe80::1", "ff02::1:2"]
            self.assertEqual(seen(OTHER_UID), sorted([*everywhere, probes.PUBLIC, probes.PUBLIC6]))
            self.machine.connect()
            self.assertEqual(seen(OTHER_UID), [])
            for uid in 0, 998:
                self.assertEqual(seen(uid), everywhere)
            self.assertLess(self.tor_uid, 1000)
            self.assertEqual(seen(self.tor_uid, TOR_GROUP), [], "Tor's account is one of the system's, and asks for none")
        finally:
            self.machine.shell("sysctl -qw net.ipv4.ip_unprivileged_port_start=1024; ip neigh del fe80::1 dev veth0")

    def test_what_a_program_makes_up_is_no_neighbour_discovery(self):
        solicit = (
            "import socket, struct; s = socket.socket(socket.AF_INET6, socket.SOCK_RAW, socket.IPPROTO_ICMPV6);"
            "s.setsockopt(socket.IPPROTO_IPV6, socket.IPV6_UNICAST_HOPS, 255);"
            f"s.sendto(struct.pack('!BBHI', 135, 0, 0, 0) + socket.inet_pton(socket.AF_INET6, '{probes.PUBLIC6}'), ('{probes.PUBLIC6}', 0))"
        )

        def seen():
            self.wire.mark()
            self.machine.run("/usr/bin/python3", "-c", solicit, check=False)
            return set(self.wire.mark()) - LINK

        self.assertEqual(seen(), {"icmp6 135 far away"})
        self.machine.connect()
        self.assertEqual(seen(), set())
        # The kernel's own goes on.
        self.machine.shell(f"ip neigh flush dev veth0; ping -6 -c 1 -W 0.1 {probes.LAN6} || true")


if __name__ == "__main__":
    namespace.main()
