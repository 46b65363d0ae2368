"""Setting up and removing passwordless mode, with the real sudo and an unprivileged user."""

import os

import namespace
from namespace import HASH, INSTALLED, OTHER_UID, TOR, HelperTest, USER_UID

LAUNCHER = "/usr/local/libexec/veldmark/veldmark-launch"
RULE = "/etc/sudoers.d/veldmark"
POSTINST = os.path.join(namespace.HERE, "..", "..", "packaging", "debian", "postinst")
PROMPT = {"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)}


class Privileged(HelperTest):
    def setUp(self):
        self.machine.shell("grep -q '^@includedir /etc/sudoers.d' /etc/sudoers || echo '@includedir /etc/sudoers.d' >>/etc/sudoers")

    def tearDown(self):
        self.machine.help("uninstall-privileged")
        self.assertEqual(self.machine.shell(f"ls {INSTALLED} {LAUNCHER} {RULE} 2>/dev/null || true"), "")

    def install(self, *more, env=None, **options):
        return self.machine.help("install-privileged", "--user", "alice", *more, env=env or PROMPT, **options)

    def sudo(self, *words, uid=USER_UID):
        return self.machine.run("sudo", "-n", *words, uid=uid, check=False)

    def test_user_connects_and_disconnects_without_a_password(self):
        self.assertNotEqual(self.sudo(INSTALLED, "disconnect").returncode, 0)
        self.install()
        done = self.sudo(INSTALLED, "connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual(len(self.machine.tor_pids()), 1)
        self.assertEqual(self.machine.shell("stat -c %u /var/lib/veldmark/run/notices.log").strip(), str(USER_UID))
        self.assertEqual(self.sudo(INSTALLED, "disconnect").returncode, 0)
        self.assertEqual(self.machine.tor_pids(), [])

    def test_rule_lets_in_that_user_with_that_helper_alone(self):
        self.install()
        self.assertEqual(self.sudo(INSTALLED, "disconnect").returncode, 0)
        for words in (
            ["/bin/bash"],
            ["/bin/bash", INSTALLED, "disconnect"],
            ["/usr/bin/id"],
            ["BASH_ENV=/home/alice/x", INSTALLED, "disconnect"],
            ["-u", "_veldmark", INSTALLED, "disconnect"],
        ):
            self.assertNotEqual(self.sudo(*words).returncode, 0, words)
        self.assertNotEqual(self.sudo(INSTALLED, "disconnect", uid=OTHER_UID).returncode, 0)

    def test_copy_is_the_helper_and_roots(self):
        self.install()
        self.machine.shell(f"cmp {INSTALLED} {self.machine.helper}")
        self.assertEqual(self.machine.shell(f"stat -c '%a %u %g' {INSTALLED} {RULE}"), "755 0 0\n440 0 0\n")

    def test_launcher_is_copied(self):
        self.install("--launch", "/usr/bin/true")
        self.assertEqual(self.machine.shell(f"stat -c '%a %u' {LAUNCHER}; cmp {LAUNCHER} /usr/bin/true"), "755 0\n")

    def test_installing_again_replaces(self):
        self.install("--launch", "/usr/bin/true")
        self.machine.shell(f"echo >>{INSTALLED}")
        self.install("--launch", "/usr/bin/false")
        self.machine.shell(f"cmp {INSTALLED} {self.machine.helper}; cmp {LAUNCHER} /usr/bin/false")

    def upgrade(self):
        """Runs the package's script after the new version's files are installed, by another administrator's sudo."""
        self.machine.shell(
            "mountpoint -q /usr/share || { mkdir -p /mnt/share/upper /mnt/share/work;"
            "mount -t overlay -o lowerdir=/usr/share,upperdir=/mnt/share/upper,workdir=/mnt/share/work private /usr/share; };"
            'install -D -m 0755 "$1" /usr/share/veldmark/veldmark-helper.sh',
            self.machine.helper,
        )
        self.addCleanup(self.machine.shell, "! mountpoint -q /usr/share || umount -l /usr/share")  # the package has more than that
        return self.machine.run(
            "/bin/sh", POSTINST, "configure", "0.1", env={"PATH": os.environ["PATH"], "SUDO_UID": str(OTHER_UID)}
        )

    def test_upgrade_renews_what_runs_without_a_password(self):
        self.install("--launch", "/usr/bin/true")
        self.machine.shell(f"echo '# an older one' >>{INSTALLED}; cp {RULE} /run/rule")
        self.assertEqual(self.upgrade().stderr, "")
        self.machine.shell(f"cmp {INSTALLED} {self.machine.helper}; cmp {RULE} /run/rule")
        self.assertEqual(self.sudo(INSTALLED, "disconnect").returncode, 0)

    def test_upgrade_lets_nobody_in_anew(self):
        self.upgrade()
        self.assertEqual(self.machine.shell(f"ls {INSTALLED} {RULE} 2>/dev/null || true"), "")

    def test_upgrade_removes_a_rule_that_it_cannot_renew(self):
        self.install()
        for change in f"sed -i 's/^#{USER_UID} /#9999 /' {RULE}", f"echo >{RULE}":
            with self.subTest(change):
                self.install()
                self.machine.shell(f"echo '# an older one' >>{INSTALLED}; {change}")
                self.assertIn("passwordless mode is off", self.upgrade().stderr)
                self.assertEqual(self.machine.shell(f"ls {INSTALLED} {RULE} 2>/dev/null || true"), "")

    def test_rule_cannot_change_what_it_lets_in(self):
        self.install()
        done = self.sudo(INSTALLED, "install-privileged", "--user", "alice", "--launch", "/usr/bin/true")
        self.assertOneLine(done, "password")
        self.assertEqual(self.machine.shell(f"ls {LAUNCHER} 2>/dev/null || true"), "")

    def test_rule_runs_no_program_of_the_users(self):
        self.install()
        self.machine.shell("install -o alice -m 0755 /usr/bin/tor /home/alice/tor")
        done = self.sudo(INSTALLED, "connect", "--tor", "/home/alice/tor", "--hash", HASH, "--strict", "1", "--lan", "0")
        self.assertOneLine(done, "password")

    def test_users_own_right_to_sudo_approves_what_the_rule_does_not(self):
        """The user runs the same helper from another path with the real sudo."""
        self.install()
        self.machine.shell(
            'install -o alice -m 0755 /usr/bin/tor /home/alice/tor; cp "$1" /usr/local/helper.sh', self.machine.helper
        )
        digest = self.machine.run("sha256sum", "/home/alice/tor").stdout.split()[0]
        words = ["approve", "--program", "/home/alice/tor", "--as", "tor", "--sha256", digest]
        self.assertNotEqual(self.sudo("/bin/bash", "/usr/local/helper.sh", *words).returncode, 0)
        self.machine.shell(
            "echo 'alice ALL=(root) NOPASSWD: /bin/bash /usr/local/helper.sh *' >/etc/sudoers.d/own; chmod 0440 /etc/sudoers.d/own"
        )
        try:
            self.assertOneLine(self.sudo(INSTALLED, *words), "password")
            done = self.sudo("/bin/bash", "/usr/local/helper.sh", *words)
            self.assertEqual((done.returncode, done.stderr), (0, ""))
        finally:
            self.machine.shell("rm /etc/sudoers.d/own /usr/local/helper.sh")
            self.machine.help("disconnect")

    def test_user_can_remove_it_without_a_password(self):
        self.install()
        self.assertEqual(self.sudo(INSTALLED, "uninstall-privileged").returncode, 0)
        self.assertNotEqual(self.sudo(INSTALLED, "disconnect").returncode, 0)

    def test_other_user_cannot_be_let_in(self):
        self.machine.shell("echo 'carol:x:4244:4244::/home/carol:/bin/bash' >>/etc/passwd")
        done = self.machine.help("install-privileged", "--user", "carol", env=PROMPT, check=False)
        self.assertOneLine(done, "only for the user who asks")

    def test_folder_that_others_can_write_is_refused(self):
        self.machine.shell("mkdir -p /usr/local/libexec/veldmark; chmod 0777 /usr/local/libexec")
        self.assertOneLine(self.install(check=False), "not safe")
        self.machine.shell("chmod 0755 /usr/local/libexec")

    def test_secret_of_roots_is_not_copied_for_the_user(self):
        self.machine.shell("install -m 0700 /usr/bin/true /etc/secret")
        self.assertOneLine(self.install("--launch", "/etc/secret", check=False), "could not be copied")
        self.machine.shell("rm /etc/secret")


if __name__ == "__main__":
    namespace.main()
