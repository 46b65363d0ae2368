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
        """As the README says it."""
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

    def test_look_ups_of_links_come_to_tors_port(self):
        self.machine.connect()
        stand_in = self.machine.start("/usr/bin/python3", "-c",
            "import socket\ns = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); s.bind(('127.0.0.1', 9053)); print('up', flush=True)\n"
            "print(s.recvfrom(999)[0])", stdout=subprocess.PIPE, text=True)
        self.assertEqual(stand_in.stdout.readline(), "up\n")
        query = self.machine.start("resolvectl", "query", "probe.example.org", stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.assertIn("probe", stand_in.communicate()[0])
        self.machine.shell("pkill -x resolvectl || true")
        query.wait()
        self.machine.help("disconnect")


if __name__ == "__main__":
    namespace.require_namespaces()
    services.require_resolved()
    namespace.main()
