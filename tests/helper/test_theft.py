"""The user's own programs take over the output of what the helper runs as that user, to change the bytes that root copies. As long
as such a program keeps the output, the run sees no end of the file and refuses it."""

import hashlib
import os
import subprocess

import namespace
from namespace import HASH, INSTALLED, USER_UID, HelperTest
from thief import Thief

PROMPT = {"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)}
PATH, GOOD = "/home/alice/program", "/home/alice/good"
RULE = "/etc/sudoers.d/veldmark"
LAUNCHER = os.path.join(os.path.dirname(INSTALLED), "veldmark-launch")


class Theft(HelperTest):
    def run_against(self, *words):
        """Runs the helper, which reads PATH as the user. The file is good until the run waits for the lock; afterwards it is read
        slowly, as from a slow medium. Returns the run, what the thief has taken, and what the thief can do with that after the run.
        """
        self.machine.shell(f"rm -f {PATH} {GOOD}; install -o alice -m 0755 /usr/bin/true {PATH}; install -o alice {PATH} {GOOD}")
        holder = self.machine.hold("/run/veldmark.lock")
        run = self.machine.start("/bin/bash", self.machine.helper, *words, env=PROMPT, stderr=subprocess.PIPE, text=True)
        self.machine.shell("until pgrep -xf 'flock -w 20 9'; do sleep 0.01; done", timeout=30)
        self.machine.shell(f"rm {PATH}; mkfifo -m 0700 {PATH}; chown alice {PATH}")
        thief = Thief(self.machine, USER_UID, "head", pipe=PATH, file=GOOD)
        self.addCleanup(thief.close)
        holder.communicate("go on\n")
        got = thief.says()
        said = run.communicate(timeout=60)[1]
        return said, got, thief.write("#!/bin/sh")

    def test_approved_copy_is_not_changed_afterwards(self):
        with open("/usr/bin/true", "rb") as file:
            digest = hashlib.sha256(file.read()).hexdigest()
        said, *thiefs = self.run_against("approve", "--program", PATH, "--as", "tor", "--sha256", digest)
        self.assertEqual(thiefs, ["a pipe", "Broken pipe"])
        self.assertEqual(said, f"ERROR: The program {PATH} cannot be copied.\n")
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/programs"), "")

    def test_what_runs_without_a_password_is_not_changed_afterwards(self):
        self.addCleanup(self.machine.help, "uninstall-privileged")
        said, *thiefs = self.run_against("install-privileged", "--user", "alice", "--launch", PATH)
        self.assertEqual(thiefs, ["a pipe", "Broken pipe"])
        self.assertEqual(said, f"ERROR: The launcher could not be copied to {os.path.dirname(LAUNCHER)}.\n")
        self.assertEqual(self.machine.shell(f"ls {LAUNCHER}* {RULE} 2>/dev/null || true"), "")

    def run_while_copied(self, *words, env):
        """Runs the helper against a thief who writes into what a reader of a copy prints, as soon as there is one. Returns the run."""
        thief = Thief(self.machine, USER_UID, "head")
        self.addCleanup(thief.close)
        thief.order_at_once("write #!/bin/sh")
        return self.machine.run("/bin/bash", *words, env=env, check=False)

    def test_helper_that_runs_without_a_password_is_roots_own_reading(self):
        """Long, so that a reader with the user's rights is found: a helper that reads itself so installs what the thief has written."""
        self.addCleanup(self.machine.help, "uninstall-privileged")
        long = "/usr/local/veldmark-helper.sh"
        self.addCleanup(self.machine.shell, f"rm {long}")
        for careless in (True, False):
            with self.subTest(careless=careless):
                reader = "s/install_file print_self/install_file print_file/" if careless else ""
                self.machine.shell('sed "$3" "$1" >"$2"; truncate -s 150M "$2"', self.machine.helper, long, reader)
                done = self.run_while_copied(long, "install-privileged", "--user", "alice", env=PROMPT)
                self.assertEqual((done.returncode, done.stderr), (0, ""))
                same = self.machine.shell_run(f"cmp {long} {INSTALLED}").returncode == 0
                self.assertEqual(same, not careless)

    def test_the_systems_program_at_an_odd_path_is_not_changed_on_its_way(self):
        """Tor's configuration takes such a path only as a copy, which needs no approval."""
        self.machine.install_copy()
        self.machine.shell(
            "rm -rf /var/lib/veldmark/programs; mkdir '/opt/a place'; cp /usr/bin/tor '/opt/a place/tor'; truncate -s 150M '/opt/a place/tor'"
        )
        self.addCleanup(self.machine.shell, "rm -r '/opt/a place'")
        self.addCleanup(self.machine.help, "disconnect")
        rule = {"PATH": os.environ["PATH"], "SUDO_UID": str(USER_UID)}
        words = ["connect", "--tor", "/opt/a place/tor", "--hash", HASH, "--strict", "1", "--lan", "0"]
        done = self.run_while_copied(INSTALLED, *words, env=rule)
        self.assertOneLine(done, "An administrator password is needed to approve /opt/a place/tor.")
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/programs"), "")
        self.assertEqual(self.machine.run("/bin/bash", INSTALLED, *words, env=rule).stderr, "")


if __name__ == "__main__":
    namespace.main()
