"""The real systemd-resolved, on a bus of the private machine. It is used from the system, or from an unpacked package:
VELDMARK_RESOLVED names the folder (dpkg -x of Debian's systemd-resolved; never install it for this, it takes over the
system's resolver)."""

import subprocess

import namespace
import services
from namespace import HelperTest


class Resolved(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.daemon = services.start_resolved(cls.machine)

    @classmethod
    def tearDownClass(cls):
        super().tearDownClass()
        cls.daemon.wait()

    def setUp(self):
        services.give_links_servers(self.machine)
        self.machine.shell("resolvectl dnssec w0 ''")

    def settings(self):
        return services.resolved_settings(self.machine)

    def test_links_are_switched_and_come_back(self):
        before = self.settings(), self.machine.snapshot()
        for strict in 0, 1:
            self.machine.connect(strict=strict)
            self.assertRegex(self.machine.shell("resolvectl dns w0"), r": 127\.0\.0\.1\n")
            self.assertRegex(self.machine.shell("resolvectl dnsovertls w0"), r": no\n")
            self.assertIn("nameserver 127.0.0.1\n", self.machine.shell("cat /etc/resolv.conf"))
            self.machine.connect(strict=strict)
            self.machine.help("disconnect")
            self.assertEqual((self.settings(), self.machine.snapshot()), before)

    def test_servers_that_a_link_got_meanwhile_stay_and_are_switched_by_fix_dns(self):
        self.machine.connect()
        self.machine.shell("resolvectl dns w0 192.0.2.99; resolvectl dns w1 192.0.2.98")
        self.machine.help("fix-dns")
        for link in "w0", "w1":
            self.assertRegex(self.machine.shell(f"resolvectl dns {link}"), r": 127\.0\.0\.1\n")
        self.machine.help("disconnect")
        self.assertIn(": 192.0.2.99\n", self.machine.shell("resolvectl dns w0"))
        self.assertIn(": 192.0.2.98\n", self.machine.shell("resolvectl dns w1"))

    def test_settings_beside_the_servers_outlive_new_servers(self):
        self.machine.shell("resolvectl dnssec w0 yes")
        before = self.settings()
        for fixed in True, False:
            self.machine.connect()
            self.machine.shell("resolvectl dns w0 192.0.2.99")
            if fixed:
                self.machine.help("fix-dns")
            self.assertRegex(self.machine.shell("resolvectl dnssec w0"), r": no\n")
            self.machine.help("disconnect")
            self.assertIn(": 192.0.2.99\n", self.machine.shell("resolvectl dns w0"))
            self.machine.shell("resolvectl dns w0 192.0.2.53 2001:db8::53 192.0.2.54:5353#dns.example")
            self.assertEqual(self.settings(), before)

    def test_settings_that_a_link_got_meanwhile_stay(self):
        self.machine.connect()
        self.machine.shell("resolvectl dnsovertls w0 yes; resolvectl dnssec w0 allow-downgrade")
        self.machine.help("disconnect")
        self.assertRegex(self.machine.shell("resolvectl dnsovertls w0"), ": yes\n")
        self.assertRegex(self.machine.shell("resolvectl dnssec w0"), ": allow-downgrade\n")

    def test_without_the_helper_a_link_is_reverted_by_hand(self):
        """The README describes these commands."""
        self.machine.connect()
        self.machine.shell("rm -f /var/lib/veldmark/state/active; nft delete table inet veldmark; umount /etc/resolv.conf")
        self.assertRegex(self.machine.shell("resolvectl dns"), r"\(w0\): 127\.0\.0\.1\n")
        self.machine.shell("resolvectl revert w0")
        self.assertNotIn("127.0.0.1", self.machine.shell("resolvectl dns"))
        self.machine.help("disconnect")

    def test_link_whose_name_looks_like_an_option(self):
        self.machine.shell("ip link add name -h type veth peer name plain; ip link set dev -h up; resolvectl dns -- -h 192.0.2.97")
        before = self.settings()
        self.machine.connect()
        self.assertRegex(self.machine.shell("resolvectl dns -- -h"), r": 127\.0\.0\.1\n")
        self.machine.help("disconnect")
        self.assertEqual(self.settings(), before)
        self.machine.shell("ip link del dev plain")

    def test_link_that_is_gone_does_not_matter(self):
        self.machine.shell("ip link add gone type veth peer name gone2; ip link set gone up; resolvectl dns gone 192.0.2.97")
        before = self.settings().replace("gone", "")
        self.machine.connect()
        self.machine.shell("ip link del gone")
        self.machine.help("disconnect")
        self.assertIn("192.0.2.53", self.settings())
        self.assertIn("192.0.2.97", before)

    def test_lookups_of_links_come_to_tors_port(self):
        self.machine.connect()
        stand_in = self.machine.start(
            *namespace.AS_TOR,
            "/usr/bin/python3",
            "-c",
            "import socket\ns = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); s.bind(('127.0.0.1', 293)); print('up', flush=True)\n"
            "print(s.recvfrom(999)[0])",
            group=namespace.TOR_GROUP,
            stdout=subprocess.PIPE,
            text=True,
        )
        self.assertEqual(stand_in.stdout.readline(), "up\n")
        query = self.machine.start("resolvectl", "query", "probe.lan.example", stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.assertIn("probe", stand_in.communicate()[0])
        self.machine.shell("pkill -x resolvectl || true")
        query.wait()
        self.machine.help("disconnect")


class Global(HelperTest):
    """Servers of the whole system, DNS= of the daemon's configuration."""

    FILE = "/run/systemd/resolved.conf.d/zz-veldmark.conf"
    SERVERS = "192.0.2.60 2001:db8::60"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.daemon = services.start_resolved(cls.machine)
        services.add_systemctl(cls.machine)

    @classmethod
    def tearDownClass(cls):
        super().tearDownClass()
        cls.daemon.wait()

    def setUp(self):
        services.add_global_servers(self.machine, self.SERVERS, "DNSSEC=allow-downgrade")
        services.give_links_servers(self.machine)
        self.before = self.state()
        self.assertIn(f"Global: {self.SERVERS}\n", self.before[0])

    def tearDown(self):
        self.machine.help("disconnect", check=False)
        self.machine.shell("rm -rf /run/NetworkManager /run/systemd/resolved.conf.d /run/units/*.stuck")

    def state(self):
        return services.resolved_settings(self.machine), self.machine.snapshot(), self.machine.shell("ls /run/systemd")

    def servers(self):
        return [line.strip() for line in self.machine.shell("resolvectl dns").splitlines() if "." in line]

    def assertOurs(self):
        """What the leak card checks: only this computer answers DNS."""
        for line in self.servers():
            self.assertRegex(line, r":( 127\.0\.0\.1)+$")

    def test_they_are_switched_and_come_back(self):
        for strict in 0, 1:
            for _ in range(2):
                self.machine.connect(strict=strict)
                self.assertOurs()
                self.assertRegex(self.machine.shell("resolvectl dnssec"), "Global: no\n")
            self.machine.help("disconnect")
            self.assertEqual(self.state(), self.before)

    def test_fix_dns_switches_what_came_meanwhile(self):
        self.machine.connect()
        self.machine.shell(f"rm {self.FILE}; systemctl restart systemd-resolved.service; resolvectl dns w0 192.0.2.53")
        self.assertIn(f"Global: {self.SERVERS}", self.servers())
        self.machine.help("fix-dns")
        self.assertOurs()
        self.machine.help("disconnect")
        self.assertIn(f"Global: {self.SERVERS}", self.servers())

    def test_servers_of_the_users_own_computer_are_left_alone(self):
        services.add_global_servers(self.machine, "127.0.0.1")
        before = self.state()
        self.machine.shell("rm -f /run/units/said")
        self.machine.connect()
        self.machine.help("disconnect")
        self.assertEqual(self.state(), before)
        self.assertNotIn("restart", self.machine.shell("cat /run/units/said 2>/dev/null || true"))

    def test_the_users_own_drop_ins_stay(self):
        self.machine.shell(
            "mkdir -p /run/systemd/resolved.conf.d; printf '[Resolve]\nDNS=192.0.2.61\n' >/run/systemd/resolved.conf.d/my.conf;"
            "systemctl restart systemd-resolved.service"
        )
        before = self.state()
        self.machine.connect()
        self.assertOurs()
        self.machine.help("disconnect")
        self.assertEqual(self.state(), before)
        self.assertEqual(self.machine.shell("ls /run/systemd/resolved.conf.d"), "my.conf\n")

    def test_a_restart_of_the_computer_has_removed_the_file(self):
        self.machine.connect()
        self.machine.shell(
            f"rm -r {self.FILE.rpartition('/')[0]}; systemctl restart systemd-resolved.service; rm -f /run/units/said"
        )
        self.machine.help("disconnect")
        self.assertIn(f"Global: {self.SERVERS}", self.servers())
        self.assertNotIn("restart", self.machine.shell("cat /run/units/said 2>/dev/null || true"))

    def test_network_manager_gives_the_links_their_servers_again(self):
        """NetworkManager does so a moment after the daemon's restart."""
        self.machine.shell(
            r"""
            mkdir /run/NetworkManager; cd /run/units
            printf '#!/bin/bash\n(sleep 0.5; resolvectl dns w0 192.0.2.53; sleep 0.2; resolvectl dns w1 192.0.2.55; touch /run/units/pushed) &\nexec %s\n' "$1" >systemd-resolved.service
        """,
            services.DAEMON,
        )
        self.machine.connect()
        self.machine.shell("until [ -e /run/units/pushed ]; do sleep 0.01; done; rm /run/units/pushed")
        self.assertOurs()
        self.assertEqual(len(self.servers()), 3)
        self.machine.help("disconnect")
        self.machine.shell("until [ -e /run/units/pushed ]; do sleep 0.01; done; rm /run/units/pushed")
        self.assertIn(f"Global: {self.SERVERS}", self.servers())
        self.assertRegex(self.machine.shell("resolvectl dns w0"), r": 192\.0\.2\.53\n")

    def test_a_daemon_that_cannot_be_started_anew(self):
        self.machine.shell("touch /run/units/systemd-resolved.service.stuck")
        self.machine.connect()
        self.assertOneLine(self.machine.help("fix-dns", check=False), "The DNS servers of systemd-resolved cannot be changed.")
        self.machine.shell("rm /run/units/systemd-resolved.service.stuck")
        self.machine.help("fix-dns")
        self.assertOurs()
        self.machine.shell("touch /run/units/systemd-resolved.service.stuck")
        self.assertOneLine(
            self.machine.help("disconnect", check=False), "could not be put back. Try: systemctl restart systemd-resolved.service."
        )
        self.machine.shell("rm /run/units/systemd-resolved.service.stuck")
        self.machine.help("disconnect")
        self.assertEqual(self.state(), self.before)


if __name__ == "__main__":
    namespace.require_namespaces()
    services.require_resolved()
    namespace.main()
