"""Passwordless mode on a Mac with the real sudo, the programs that may run as Tor's account, and applications without Tor."""

import os
import time
import unittest

import mac
from mac import HASH, TOR, USER_UID, MacTest

INSTALLED = "/Library/Application Support/Veldmark/bin/veldmark-helper.sh"
LAUNCHER = "/Library/Application Support/Veldmark/bin/veldmark-launch"
RULE = "/etc/sudoers.d/veldmark"
UNDER_RULE = {"PATH": os.environ["PATH"], "SUDO_UID": str(USER_UID)}
REAL_LAUNCHER = os.environ.get("VELDMARK_MAC_LAUNCH", "")
PLIST_BUDDY = """#!/usr/bin/perl
die unless "@ARGV[0, 1]" eq "-c Print :CFBundleExecutable";
my $text = do { local (@ARGV, $/) = $ARGV[2]; <> };
$text =~ m{<key>CFBundleExecutable</key>\\s*<string>([^<]*)</string>} or die; print "$1\\n";
"""
SHOW = '#!/bin/sh\n{ id -u; id -g; id -G; echo "$@"; env; } >/home/alice/launched\n'


class Privileged(MacTest):
    def setUp(self):
        super().setUp()
        self.machine.shell(
            "mkdir -p /run/sudo /etc/sudoers.d; chmod 755 /etc/sudoers.d; rm -f /home/alice/*;"
            "grep -q '^@includedir /etc/sudoers.d' /etc/sudoers || echo '@includedir /etc/sudoers.d' >>/etc/sudoers;"
            "grep -q ^alice: /etc/shadow || echo 'alice:*:19000:0:99999:7:::' >>/etc/shadow"
        )

    def tearDown(self):
        self.machine.help("uninstall-privileged")
        for path in INSTALLED, LAUNCHER, RULE:
            self.assertIsNone(self.machine.read(path))

    def by_rule(self, *words, **options):
        return self.machine.run("/bin/bash", INSTALLED, *words, env=UNDER_RULE, **options)

    def sudo(self, *words):
        return self.machine.run("sudo", "-n", *words, uid=USER_UID, check=False)

    def test_the_user_connects_and_disconnects_without_a_password(self):
        self.assertNotEqual(self.sudo(INSTALLED, "disconnect").returncode, 0)
        self.machine.help("install-privileged", "--user", "alice", "--launch", "/usr/bin/true")
        self.assertEqual(self.machine.read(INSTALLED), self.machine.read(self.machine.helper))
        done = self.sudo(INSTALLED, "connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertIsNotNone(self.machine.tor())
        self.assertEqual(self.sudo(INSTALLED, "disconnect").returncode, 0)
        self.assertRestored()

    def test_the_rule_lets_in_that_helper_alone(self):
        self.machine.help("install-privileged", "--user", "alice")
        for words in ["/bin/bash"], ["/bin/bash", INSTALLED, "disconnect"], ["/Library/Application"], ["/usr/bin/id"]:
            self.assertNotEqual(self.sudo(*words).returncode, 0, words)
        self.assertOneLine(self.sudo(INSTALLED, "install-privileged", "--user", "alice"), "password")

    def test_nobody_but_the_user_who_asks_is_let_in(self):
        self.machine.change(console="4243")
        self.assertOneLine(self.machine.help("install-privileged", "--user", "alice", check=False))
        self.assertIsNone(self.machine.read(RULE))

    def test_a_tor_of_the_users_needs_an_approval_of_its_content(self):
        self.machine.shell("/usr/bin/install -o alice -m 0755 /usr/bin/tor /home/alice/tor")
        words = ["connect", "--tor", "/home/alice/tor", "--hash", HASH, "--strict", "1", "--lan", "0"]
        self.machine.help("install-privileged", "--user", "alice")
        self.assertOneLine(self.by_rule(*words, check=False), "password")
        self.assertRestored()
        self.assertOneLine(self.machine.help(*words, check=False), "password")  # the prompt of a connect names no program
        self.machine.approve("/home/alice/tor")
        self.machine.help(*words)
        program = os.readlink(f"{self.machine.root}/proc/{self.machine.tor()}/exe")
        self.assertRegex(program, r"/db/veldmark/programs/[0-9a-f]{64}/tor$")
        self.machine.help("disconnect")
        self.by_rule(*words)
        self.machine.help("disconnect")
        self.machine.shell("echo >>/home/alice/tor")
        self.assertOneLine(self.by_rule(*words, check=False), "password")
        self.machine.approve("/home/alice/tor", env=UNDER_RULE)  # another copy, by the user's own right to sudo
        self.machine.help(*words, env=UNDER_RULE)
        self.machine.help("disconnect")

    def test_a_transport_of_the_users_needs_an_approval_with_a_bundle_too(self):
        """A Mac has no gpgv, so the bundle is not verified. The helper accepts the option anyway."""
        self.machine.shell(
            "/usr/bin/install -o alice -m 0755 /usr/bin/obfs4proxy /home/alice/lyrebird; echo bundle >>/home/alice/lyrebird"
        )
        words = [
            "connect",
            "--tor",
            TOR,
            "--hash",
            HASH,
            "--strict",
            "1",
            "--lan",
            "0",
            "--bridge",
            "obfs4 192.0.2.1:443 cert=a",
            "--pt-lyrebird",
            "/home/alice/lyrebird",
            "--bundle",
            "/home/alice/bundle.tar.gz",
        ]
        self.machine.help("install-privileged", "--user", "alice")
        self.assertOneLine(self.by_rule(*words, check=False), "An administrator password is needed to approve")
        self.machine.approve("/home/alice/lyrebird", "lyrebird")
        self.by_rule(*words)
        self.machine.help("disconnect")

    def test_rule_does_not_lessen_what_runs(self):
        words = ["connect", "--tor", "/usr/bin/tor", "--hash", HASH, "--strict", "1", "--lan", "0"]
        self.machine.help("install-privileged", "--user", "alice")
        self.by_rule(*words)
        for change in ["--strict", "0"], ["--lan", "1"], ["--hash", HASH[:-1] + "F"]:
            less = list(words)
            less[less.index(change[0]) + 1] = change[1]
            done = self.by_rule(*less, check=False)
            self.assertOneLine(done, "An administrator password is needed to change the running strict session.")
            self.assertEqual(done.returncode, 3)
        self.by_rule(*words)
        self.by_rule("disconnect")
        self.by_rule(*less)

    def test_roots_tor_on_an_attached_volume_is_the_users(self):
        words = ["connect", "--tor", "/opt/image/tor", "--hash", HASH, "--strict", "1", "--lan", "0"]
        self.machine.help("install-privileged", "--user", "alice")
        # New content that no test has approved: a copy from an earlier test would be accepted from any place.
        self.machine.shell("mkdir -p /opt/image; cp /usr/bin/tor /opt/image/tor; echo image >>/opt/image/tor")
        self.by_rule(*words)
        self.machine.help("disconnect")
        self.machine.change(attached="/opt/image")
        self.assertOneLine(self.by_rule(*words, check=False), "password")

    def test_an_application_runs_as_the_user_in_the_bypass_group(self):
        self.machine.write("/Applications/Veldmark.app/Contents/MacOS-launch", SHOW)
        self.machine.shell(
            "mkdir -p /Applications/Veldmark.app/Contents/MacOS; mv -f /Applications/Veldmark.app/Contents/MacOS-launch "
            "/Applications/Veldmark.app/Contents/MacOS/veldmark-launch; chmod 755 /Applications/Veldmark.app/Contents/MacOS/veldmark-launch"
        )
        words = ["launch", "--uid", str(USER_UID), "--app", "/Applications/Some “New”.app"]
        self.machine.connect()
        self.machine.help("install-privileged", "--user", "alice")
        self.assertOneLine(self.by_rule(*words, check=False), "password")
        self.assertIsNone(self.machine.read("/home/alice/launched"))
        self.machine.help(*words)
        lines = self.machine.read("/home/alice/launched").splitlines()
        group = self.machine.state["record /Groups/_veldmark_bypass PrimaryGroupID"]
        self.assertEqual(lines[:2], [str(USER_UID), group])
        self.assertEqual(set(lines[2].split()), {group, str(USER_UID)})
        self.assertEqual(lines[3], "--app /Applications/Some “New”.app")
        self.assertEqual({line.split("=")[0] for line in lines[4:]} - {"PWD", "SHLVL", "_"}, {"HOME", "LC_ALL", "PATH"})
        self.assertEqual(self.machine.verdict("out", group=group, user=USER_UID), "pass")
        self.machine.connect(strict=0)
        self.assertOneLine(self.machine.help(*words, check=False), "kill switch is not on")

    @unittest.skipUnless(os.path.exists(REAL_LAUNCHER), "veldmark-launch-mac has not been built")
    def test_the_real_launcher_starts_the_bundles_own_program(self):
        m = self.machine
        m.place(REAL_LAUNCHER, "/Applications/Veldmark.app/Contents/MacOS/veldmark-launch")
        m.shell("mkdir -p /usr/libexec '/Applications/Some “New”.app/Contents/MacOS'")
        m.write("/usr/libexec/PlistBuddy", PLIST_BUDDY)
        m.write(
            "/Applications/Some “New”.app/Contents/MacOS/Some New", SHOW + "echo pid=$$ >>/home/alice/launched; exec sleep 1000\n"
        )
        m.shell("chmod 755 /usr/libexec/PlistBuddy /Applications/Some*/Contents/MacOS/*")
        words = ["launch", "--uid", str(USER_UID), "--app", "/Applications/Some “New”.app"]
        m.connect()
        for name, wanted in (
            ("Some New", ""),
            ("../../../../usr/bin/id", "There is no application"),
            ("Missing", "There is no application"),
        ):
            with self.subTest(name):
                m.write(
                    "/Applications/Some “New”.app/Contents/Info.plist", f"<key>CFBundleExecutable</key>\n<string>{name}</string>\n"
                )
                done = m.help(*words, check=False)
                if wanted:
                    self.assertOneLine(done, wanted)
                else:
                    self.assertEqual((done.returncode, done.stderr), (0, ""))
        deadline = time.monotonic() + 30
        while "pid=" not in (m.read("/home/alice/launched") or ""):
            self.assertLess(time.monotonic(), deadline)
            time.sleep(0.02)
        lines = m.read("/home/alice/launched").splitlines()
        group = m.state["record /Groups/_veldmark_bypass PrimaryGroupID"]
        self.assertEqual(lines[:2], [str(USER_UID), group])
        values = dict(line.split("=", 1) for line in lines[4:] if "=" in line)
        self.assertEqual(
            {name: values[name] for name in ("HOME", "USER", "LOGNAME", "PATH")},
            {"HOME": "/home/alice", "USER": "alice", "LOGNAME": "alice", "PATH": "/usr/bin:/bin:/usr/sbin:/sbin"},
        )
        m.shell(f"kill {values['pid']}")

    def test_the_real_launcher_refuses_root(self):
        if os.path.exists(REAL_LAUNCHER):
            self.machine.place(REAL_LAUNCHER, "/mac/veldmark-launch")
            done = self.machine.run("/mac/veldmark-launch", "--app", "/Applications/Some.app", check=False)
            self.assertEqual((done.returncode, done.stderr), (1, "Applications are not opened as root.\n"))

    def test_a_group_with_members_is_not_used(self):
        self.machine.connect()
        self.machine.help("disconnect")
        state = self.machine.state
        state["record /Groups/_veldmark_bypass GroupMembership"] = "alice"
        self.machine.state = state
        self.machine.connect()
        group = state["record /Groups/_veldmark_bypass PrimaryGroupID"]
        self.assertEqual(self.machine.verdict("out", group=group, user=USER_UID), "block")


if __name__ == "__main__":
    mac.main()
