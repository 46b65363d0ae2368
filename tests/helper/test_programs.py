"""Nothing that a user can change runs as Tor's account unasked, and nothing of it ever as root."""

import os

import namespace
from namespace import HASH, TOR, HelperTest, USER_UID

PROMPT = {"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)}
RULE = {"PATH": os.environ["PATH"], "SUDO_UID": str(USER_UID)}
BRIDGE = "obfs4 192.0.2.1:443 0123456789012345678901234567890123456789 cert=a iat-mode=0"


class Programs(HelperTest):
    def setUp(self):
        self.machine.shell("rm -rf /home/alice/* /var/lib/veldmark/programs; install -o alice -g alice -m 0755 /usr/bin/tor /home/alice/tor")

    def tearDown(self):
        self.machine.help("disconnect")

    def connect(self, env, tor="/home/alice/tor", more=(), **options):
        return self.machine.help("connect", "--tor", tor, "--hash", HASH, "--strict", "1", "--lan", "0", *more, env=env, **options)

    def running(self):
        return self.machine.shell("readlink /proc/$(pgrep -u _veldmark | head -1)/exe").strip()

    def test_roots_own_tor_runs_in_place_without_a_prompt(self):
        self.connect(RULE, TOR)
        self.assertEqual(self.running(), TOR)

    def test_users_tor_needs_a_password_under_the_rule(self):
        before = self.machine.snapshot()
        self.assertOneLine(self.connect(RULE, check=False), "password")
        self.assertEqual(self.machine.snapshot(), before)
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/programs"), "")

    def test_approved_copy_runs_and_its_content_alone(self):
        self.connect(PROMPT)
        self.assertRegex(self.running(), r"^/var/lib/veldmark/programs/[0-9a-f]{64}/tor$")
        self.machine.help("disconnect")
        self.connect(RULE)
        self.assertRegex(self.running(), r"/programs/[0-9a-f]{64}/tor$")
        self.machine.help("disconnect")
        self.machine.shell("echo >>/home/alice/tor")
        self.assertOneLine(self.connect(RULE, check=False), "password")

    def test_copy_is_roots_alone(self):
        self.connect(PROMPT)
        self.assertEqual(self.machine.shell("stat -c '%a %u %g' /var/lib/veldmark/programs/*/tor"), "755 0 0\n")

    def test_folder_that_the_user_owns_makes_roots_program_the_users(self):
        self.machine.shell("mkdir /home/alice/bin; cp /usr/bin/tor /home/alice/bin/tor")
        self.assertOneLine(self.connect(RULE, "/home/alice/bin/tor", check=False), "password")

    def test_program_that_a_group_can_write_counts_as_the_users(self):
        self.machine.shell("mkdir -p /usr/local/bin; cp /usr/bin/tor /usr/local/bin/tor; chmod 0775 /usr/local/bin/tor")
        self.assertOneLine(self.connect(RULE, "/usr/local/bin/tor", check=False), "password")
        self.machine.shell("chmod 0755 /usr/local/bin/tor")
        self.connect(RULE, "/usr/local/bin/tor")
        self.assertEqual(self.running(), "/usr/local/bin/tor")
        self.machine.shell("rm /usr/local/bin/tor")

    def test_link_of_the_users_to_roots_tor_is_roots_tor(self):
        self.machine.shell("ln -s /usr/bin/tor /home/alice/link")
        self.connect(RULE, "/home/alice/link")
        self.assertEqual(self.running(), TOR)

    def test_interpreter_is_no_tor(self):
        for program in "/bin/bash", "/usr/bin/perl", "/usr/bin/python3":
            self.assertOneLine(self.connect(RULE, program, check=False), "password")

    def test_file_that_the_user_cannot_read_is_not_read_for_them(self):
        self.machine.shell("install -m 0700 /usr/bin/tor /home/alice/secret; chmod 0700 /home/alice/secret")
        self.assertOneLine(self.connect(PROMPT, "/home/alice/secret", check=False), "cannot be copied")
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/programs"), "")

    def test_path_with_blanks_and_odd_characters(self):
        self.machine.shell("mkdir \"/home/alice/my; tor's\"; chown alice \"/home/alice/my; tor's\"; mv /home/alice/tor \"/home/alice/my; tor's/tor\"")
        self.connect(PROMPT, "/home/alice/my; tor's/tor")
        self.assertRegex(self.running(), r"/programs/")

    def test_transport_of_the_users(self):
        self.machine.shell("install -o alice -g alice -m 0755 /usr/bin/obfs4proxy '/home/alice/lyre bird'")
        more = ["--bridge", BRIDGE, "--pt-lyrebird", "/home/alice/lyre bird"]
        self.assertOneLine(self.connect(RULE, TOR, more, check=False), "password")
        self.connect(PROMPT, TOR, more)
        self.assertRegex(self.machine.shell("cat /var/lib/veldmark/run/torrc"),
                         r"\nClientTransportPlugin obfs4 exec /var/lib/veldmark/programs/[0-9a-f]{64}/lyrebird\n")
        self.machine.help("disconnect")
        self.connect(RULE, TOR, more)

    def test_transport_that_is_not_used_is_not_asked_for(self):
        self.machine.shell("install -o alice -m 0755 /usr/bin/true /home/alice/lyrebird")
        self.connect(RULE, TOR, ["--pt-lyrebird", "/home/alice/lyrebird"])
        self.assertIn("\nNoExec 1\n", self.machine.shell("cat /var/lib/veldmark/run/torrc"))

    def test_nothing_of_the_users_ever_runs_as_root(self):
        """A 'tor' that tells who it is: run for the check of its configuration and to be Tor, as Tor's account alone."""
        self.machine.shell("mkdir -m 1777 -p /run/told; rm -f /run/told/*; printf '#!/bin/sh\\nid -u >/run/told/$$\\n' >/home/alice/tor")
        self.assertOneLine(self.connect(PROMPT, check=False), "Tor did not start")
        told = set(self.machine.shell("cat /run/told/*").split())
        self.assertEqual(told, {self.machine.shell("id -u _veldmark").strip()})
        self.machine.shell("rm -r /run/told")

    def test_tor_dies_with_its_transports_and_alone(self):
        self.machine.shell("printf '#!/bin/sh\\nsleep 12345 & exec sleep 54321\\n' >/home/alice/tor")
        self.connect(PROMPT, check=False, timeout=60)
        self.machine.help("disconnect")
        self.assertEqual(self.machine.tor_pids(), [])


if __name__ == "__main__":
    namespace.main()
