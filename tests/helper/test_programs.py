"""A program that a user can change runs as Tor's account only when an administrator has approved exactly that program, and never as
root."""

import os

import namespace
from namespace import HASH, INSTALLED, TOR, HelperTest, USER_UID

PROMPT = {"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)}
RULE = None  # the installed copy, by sudo's rule
SUDO = {"PATH": os.environ["PATH"], "SUDO_UID": str(USER_UID)}  # another copy, by the user's own right to sudo
BRIDGE = "obfs4 192.0.2.1:443 0123456789012345678901234567890123456789 cert=a iat-mode=0"


class Programs(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.install_copy()

    def setUp(self):
        self.machine.shell(
            "rm -rf /home/alice/* /var/lib/veldmark/programs; install -o alice -g alice -m 0755 /usr/bin/tor /home/alice/tor"
        )

    def tearDown(self):
        self.machine.help("disconnect")

    def connect(self, env, tor="/home/alice/tor", more=(), **options):
        words = ["connect", "--tor", tor, "--hash", HASH, "--strict", "1", "--lan", "0", *more]
        if env is RULE:
            return self.machine.help_by_rule(*words, **options)
        return self.machine.help(*words, env=env, **options)

    def running(self):
        return self.machine.shell(f"readlink /proc/{self.machine.tor_pids()[0]}/exe").strip()

    def test_roots_own_tor_runs_in_place_without_a_prompt(self):
        self.connect(RULE, TOR)
        self.assertEqual(self.running(), TOR)

    def test_users_tor_needs_a_password_under_the_rule(self):
        before = self.machine.snapshot()
        self.assertOneLine(self.connect(RULE, check=False), "password")
        self.assertEqual(self.machine.snapshot(), before)
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/programs"), "")

    def approve(self, path="/home/alice/tor", role="tor", env=PROMPT, **options):
        return self.machine.approve(path, role, env=env, **options)

    def test_the_prompt_of_a_connect_approves_no_program(self):
        """The prompt does not name the program, so it would approve a file that was swapped before it."""
        before = self.machine.snapshot()
        for env in PROMPT, SUDO, {"PATH": os.environ["PATH"]}:
            done = self.connect(env, check=False)
            self.assertOneLine(done, "An administrator password is needed to approve /home/alice/tor.")
            self.assertEqual(done.returncode, 4)
        self.assertEqual(self.machine.snapshot(), before)
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/programs"), "")

    def test_what_was_swapped_before_the_approval_does_not_run(self):
        digest = self.machine.run("sha256sum", "/home/alice/tor").stdout.split()[0]
        self.machine.shell("echo >>/home/alice/tor")
        done = self.machine.help(
            "approve", "--program", "/home/alice/tor", "--as", "tor", "--sha256", digest, env=PROMPT, check=False
        )
        self.assertOneLine(done, "differs from the one to approve")
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/programs"), "")

    def test_rule_approves_nothing(self):
        digest = self.machine.run("sha256sum", "/home/alice/tor").stdout.split()[0]
        done = self.machine.help_by_rule("approve", "--program", "/home/alice/tor", "--as", "tor", "--sha256", digest, check=False)
        self.assertOneLine(done, "password")
        self.assertEqual(done.returncode, 3)
        self.approve()
        self.connect(RULE)

    def test_approval_is_for_one_role(self):
        self.machine.shell("install -o alice -g alice -m 0755 /usr/bin/obfs4proxy /home/alice/lyrebird")
        self.approve("/home/alice/lyrebird", "lyrebird")
        self.assertOneLine(self.connect(RULE, "/home/alice/lyrebird", check=False), "password")
        self.connect(RULE, TOR, ["--bridge", BRIDGE, "--pt-lyrebird", "/home/alice/lyrebird"])

    def test_interpreter_is_no_transport(self):
        """Over the control port, Tor may start a transport's program again with other arguments."""
        for program in "/usr/bin/perl", "/bin/bash", "/usr/bin/python3", "/usr/bin/tor":
            with self.subTest(program):
                done = self.connect(RULE, TOR, ["--bridge", BRIDGE, "--pt-lyrebird", program], check=False)
                self.assertOneLine(done, "password")
        self.connect(RULE, TOR, ["--bridge", BRIDGE, "--pt-lyrebird", "/usr/bin/obfs4proxy"])
        self.assertIn(
            "\nClientTransportPlugin obfs4 exec /usr/bin/obfs4proxy\n", self.machine.shell("cat /var/lib/veldmark/run/torrc")
        )

    def test_roots_file_on_a_medium_that_a_user_mounted_is_the_users(self):
        """The desktop mounts an image with the owners that its maker chose. The rule holds in the system's own folders as well."""
        copy = "mkdir -p {0}; mount -t tmpfs -o mode=755{1} medium {0}; cp /usr/bin/tor {0}/tor"
        for place, options, runs in (
            ("/opt/medium", "", True),
            ("/opt/medium", ",nosuid,nodev", False),
            ("/media/medium", "", False),
            ("/run/media/alice/x", ",nosuid,nodev", False),
            ("/mnt/medium", "", False),
            ("/home/medium", "", False),
            ("/usr/local/medium", ",nosuid", False),
        ):
            with self.subTest(place + options):
                self.machine.shell(copy.format(place, options))
                self.addCleanup(self.machine.shell, f"mountpoint -q {place} && umount -l {place} && rmdir {place} || true")
                done = self.connect(RULE, place + "/tor", check=False)
                if runs:
                    self.assertEqual((done.returncode, done.stderr), (0, ""))
                    self.machine.help("disconnect")
                else:
                    self.assertOneLine(done, "password")
                self.machine.shell(f"umount -l {place}; rmdir {place}")

    def test_approved_copy_runs_and_its_content_alone(self):
        self.approve()
        self.connect(PROMPT)
        self.assertRegex(self.running(), r"^/var/lib/veldmark/programs/[0-9a-f]{64}/tor$")
        self.machine.help("disconnect")
        self.connect(RULE)
        self.assertRegex(self.running(), r"/programs/[0-9a-f]{64}/tor$")
        self.machine.help("disconnect")
        self.machine.shell("echo >>/home/alice/tor")
        self.assertOneLine(self.connect(RULE, check=False), "password")

    def test_sudo_with_a_right_of_the_users_own_is_an_approval(self):
        """sudo asks for a password where polkit cannot. The same helper by the passwordless rule is no approval."""
        self.approve(env=SUDO)
        self.connect(SUDO)
        self.assertRegex(self.running(), r"^/var/lib/veldmark/programs/[0-9a-f]{64}/tor$")

    def test_no_way_to_name_the_installed_copy_makes_the_rule_an_approval(self):
        words = ["connect", "--tor", "/home/alice/tor", "--hash", HASH, "--strict", "1", "--lan", "0"]
        folder = os.path.dirname(INSTALLED)
        self.machine.shell(
            f"ln -sf {INSTALLED} /home/alice/veldmark-helper.sh; ln -f {INSTALLED} /usr/local/hard.sh;"
            f"install -m 0755 {INSTALLED} {folder}/being-replaced.sh"
        )
        for path in (
            "/home/alice/veldmark-helper.sh",
            "/usr/local/hard.sh",
            f"{folder}/../veldmark/veldmark-helper.sh",
            f"{folder}/being-replaced.sh",
            f"/proc/self/root{INSTALLED}",
        ):
            with self.subTest(path):
                self.assertOneLine(self.machine.run("/bin/bash", path, *words, env=SUDO, check=False), "password")
        self.assertOneLine(
            self.machine.shell_run('exec 20<"$1"; shift; exec /bin/bash -p /dev/fd/20 "$@"', INSTALLED, *words, env=SUDO),
            "password",
        )
        self.machine.shell(f"rm /usr/local/hard.sh {folder}/being-replaced.sh")

    def test_copy_that_is_removed_while_it_starts_is_not_taken_for_another(self):
        """uninstall-privileged, which the rule allows as well, removes the copy."""
        self.machine.shell(f"cp {INSTALLED} /usr/local/kept; cp {INSTALLED} /usr/local/other.sh")
        words = ["connect", "--tor", "/home/alice/tor", "--hash", HASH, "--strict", "1", "--lan", "0"]
        try:
            # Bash has the file open; it is removed before the helper looks at its own path.
            for path in INSTALLED, "/usr/local/other.sh":
                done = self.machine.shell_run(
                    'rm "$1"; path=$1; shift; exec /bin/bash -p -c \'source /usr/local/kept; main "$@"\' "$path" "$@"',
                    path,
                    *words,
                    env=SUDO,
                )
                self.assertOneLine(done, "password")
            done = self.machine.shell_run(
                "exec 20</usr/local/kept; cp /usr/local/kept /usr/local/again; mv /usr/local/again /usr/local/kept;"
                'exec /bin/bash -p /dev/fd/20 "$@"',
                *words,
                env=SUDO,
            )
            self.assertOneLine(done, "password")
        finally:
            self.machine.shell(f"mv /usr/local/kept {INSTALLED}")

    def test_copy_is_roots_alone(self):
        self.approve()
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

    def test_programs_of_other_users_processes_are_not_named(self):
        """Root sees what the link leads to, the caller must not."""
        self.machine.shell("install -o bob -m 0755 /usr/bin/sleep /home/bob/quietly")
        running = self.machine.start("/home/bob/quietly", "60", uid=namespace.OTHER_UID)
        try:
            link = f"/proc/{self.machine.shell('until pgrep -x quietly; do sleep 0.01; done').strip()}/exe"
            self.assertEqual(self.machine.shell(f"readlink {link}"), "/home/bob/quietly\n")
            self.assertNotEqual(self.machine.run("readlink", link, uid=namespace.USER_UID, check=False).returncode, 0)
            self.assertOneLine(self.connect(PROMPT, link, check=False), f"The program {link} cannot be copied.")
        finally:
            running.kill()
            running.wait()
            self.machine.shell("pkill -x quietly; rm /home/bob/quietly")

    def test_file_that_the_user_cannot_read_is_not_read_for_them(self):
        self.machine.shell("install -m 0700 /usr/bin/tor /home/alice/secret; chmod 0700 /home/alice/secret")
        self.assertOneLine(self.connect(PROMPT, "/home/alice/secret", check=False), "cannot be copied")
        self.assertOneLine(self.approve("/home/alice/secret", check=False), "cannot be copied")
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/programs"), "")

    def test_path_with_blanks_and_odd_characters(self):
        self.machine.shell(
            'mkdir "/home/alice/my; tor\'s"; chown alice "/home/alice/my; tor\'s"; mv /home/alice/tor "/home/alice/my; tor\'s/tor"'
        )
        self.approve("/home/alice/my; tor's/tor")
        self.connect(PROMPT, "/home/alice/my; tor's/tor")
        self.assertRegex(self.running(), r"/programs/")

    def test_transport_of_the_users(self):
        self.machine.shell("install -o alice -g alice -m 0755 /usr/bin/obfs4proxy '/home/alice/lyre bird'")
        more = ["--bridge", BRIDGE, "--pt-lyrebird", "/home/alice/lyre bird"]
        self.assertOneLine(self.connect(RULE, TOR, more, check=False), "password")
        self.approve("/home/alice/lyre bird", "lyrebird")
        self.connect(PROMPT, TOR, more)
        self.assertRegex(
            self.machine.shell("cat /var/lib/veldmark/run/torrc"),
            r"\nClientTransportPlugin obfs4 exec /var/lib/veldmark/programs/[0-9a-f]{64}/lyrebird\n",
        )
        self.machine.help("disconnect")
        self.connect(RULE, TOR, more)

    def test_transport_that_is_not_used_is_not_asked_for(self):
        self.machine.shell("install -o alice -m 0755 /usr/bin/true /home/alice/lyrebird")
        self.connect(RULE, TOR, ["--pt-lyrebird", "/home/alice/lyrebird"])
        self.assertIn("\nNoExec 1\n", self.machine.shell("cat /var/lib/veldmark/run/torrc"))

    def test_nothing_of_the_users_ever_runs_as_root(self):
        """The 'tor' tells its user by a folder's name: it may write no file at the check. The helper runs it for the check of the configuration and as Tor, both as Tor's account."""
        self.machine.shell(
            "mkdir -m 1777 -p /run/told; rm -rf /run/told/*; printf '#!/bin/sh\\nmkdir -p /run/told/$(id -u)\\n' >/home/alice/tor"
        )
        self.approve()
        self.assertOneLine(self.connect(PROMPT, check=False), "Tor did not start")
        told = set(self.machine.shell("ls /run/told").split())
        self.assertEqual(told, {self.machine.shell("id -u _veldmark").strip()})
        self.machine.shell("rm -r /run/told")

    def test_tor_dies_with_its_transports_and_alone(self):
        self.machine.shell("printf '#!/bin/sh\\nsleep 12345 & exec sleep 54321\\n' >/home/alice/tor")
        self.approve()
        self.connect(PROMPT, check=False, timeout=60)
        self.machine.help("disconnect")
        self.assertEqual(self.machine.tor_pids(), [])


if __name__ == "__main__":
    namespace.main()
