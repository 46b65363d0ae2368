"""DNS lookups of other accounts, and other traffic on the loopback device."""

import subprocess

import namespace
import probes
from hostile import HostileTest
from namespace import AS_TOR, DNS_PORT, OTHER_UID, TOR_GROUP, USER_UID


class Loopback(HostileTest):
    def test_nobody_gets_what_others_ask(self):
        """A second socket at Tor's DNS port would receive them. Only root and Tor can open one."""
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

    def test_a_socket_beside_tors_gets_no_lookups(self):
        """The administrator may have opened the port to every account. Here every socket gets the right to it."""
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

    def test_nobody_else_answers_a_lookup(self):
        """The port is open to every account here, and every account can see the port that a lookup comes from."""
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
        """A piece that is shorter than a DNS header ends some versions of Tor."""
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
            self.machine.connect(strict=strict)  # a second connect, which has a note already
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
        """A program on this computer can forge the sender of a packet. An answer of Tor or of a bridge program would go to that
        sender where Tor's account may send datagrams."""
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

    def test_a_neighbour_does_not_reach_the_loopback_address(self):
        """The kernel's route_localnet is on, and the local network is allowed."""
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


if __name__ == "__main__":
    namespace.main()
