"""The session's owner: the note beside the marker, and who may end or replace another user's session."""

import os
import subprocess

import namespace
from namespace import HASH, INSTALLED, OTHER_UID, TOR, USER_UID, HelperTest

OWNER = "/var/lib/veldmark/state/owner"
CONNECT = ["connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0"]
IN_USE = "Veldmark is in use by alice. An administrator password is needed to end that session."

# Runs its arguments as a child, prints the exit status, and stays until its input ends.
PROGRAM = """#!/usr/bin/python3
import subprocess, sys
print(subprocess.run(sys.argv[1:], stdin=subprocess.DEVNULL).returncode, flush=True)
sys.stdin.read()
"""


class Owner(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.install_copy()
        for name in "veldmark", "veldmarkctl", "another":
            cls.machine.shell('install -m 0755 /dev/stdin "/usr/local/bin/$1"', name, stdin=PROGRAM)
        cls.machine.shell(
            "grep -q '^@includedir /etc/sudoers.d' /etc/sudoers || echo '@includedir /etc/sudoers.d' >>/etc/sudoers;"
            f"echo '#{USER_UID} ALL=(root) NOPASSWD:NOSETENV: {INSTALLED}' >/etc/sudoers.d/veldmark; chmod 0440 /etc/sudoers.d/veldmark"
        )

    def tearDown(self):
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/state"), "")

    def begin(self, name="veldmarkctl", *words, uid=0, env=None):
        """Starts a program of that name that connects and keeps running."""
        words = words or ("/bin/bash", self.machine.helper)
        program = self.machine.start(
            f"/usr/local/bin/{name}",
            *words,
            *CONNECT,
            uid=uid,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
            env={"PATH": os.environ["PATH"], **(env or {"PKEXEC_UID": str(USER_UID)})},
        )
        self.addCleanup(program.communicate)
        self.assertEqual(program.stdout.readline(), "0\n")
        return program

    def note(self):
        lines = self.machine.shell(f"cat {OWNER}").splitlines()
        self.assertEqual(lines.pop(), "end")
        return dict(line.split(" ", 1) for line in lines)

    def pid_of(self, name):
        return self.machine.shell(f"pgrep -x {name}").strip()

    def test_user_and_program_are_noted_for_everybody_to_read(self):
        for name in "veldmark", "veldmarkctl":
            program = self.begin(name)
            pid = self.pid_of(name)
            start = self.machine.shell(f"cat /proc/{pid}/stat").rpartition(") ")[2].split()[19]
            boot = self.machine.shell("cat /proc/sys/kernel/random/boot_id").strip()
            self.assertEqual(self.note(), {"uid": str(USER_UID), "pid": pid, "start": start, "boot": boot})
            self.assertEqual(self.machine.shell(f"stat -c '%a %u' {OWNER}"), "644 0\n")
            self.machine.run("cat", OWNER, uid=OTHER_UID)
            program.communicate()
            self.machine.help("disconnect")

    def test_program_behind_sudo_is_noted_and_not_sudo(self):
        self.begin("veldmarkctl", "sudo", "-n", INSTALLED, uid=USER_UID, env={"A": "1"})
        self.assertEqual((self.note()["uid"], self.note()["pid"]), (str(USER_UID), self.pid_of("veldmarkctl")))

    def test_who_connects_by_hand_is_noted_without_a_program(self):
        self.begin("another")
        self.assertEqual(self.note(), {"uid": str(USER_UID)})
        self.machine.help_by_rule("disconnect", uid=OTHER_UID)  # no program is noted, so it is not in use

    def test_owner_that_cannot_be_looked_at_is_not_taken_for_nobody(self):
        """A program that the helper runs may be killed at that moment, as when memory is short."""
        self.begin()
        folders = "/ /var /var/lib /var/lib/veldmark "
        self.machine.shell(
            "cp /usr/bin/stat /mnt/stat.true; printf '%s\\n' '#!/bin/sh' 'case $* in *\"'\"$1\"'\"*) echo >>/mnt/looks; [ $(wc -l </mnt/looks) != \"$(cat /mnt/fails)\" ] || kill -9 $$ ;; esac'"
            " 'exec /mnt/stat.true \"$@\"' >/mnt/stat; chmod 755 /mnt/stat; mount --bind /mnt/stat /usr/bin/stat",
            folders,
        )
        try:
            for fails in 1, 2:
                for words in ["disconnect"], CONNECT:
                    self.machine.shell(f"echo {fails} >/mnt/fails; : >/mnt/looks")
                    done = self.machine.help_by_rule(*words, uid=OTHER_UID, check=False)
                    self.assertNotEqual(done.returncode, 0)
                    self.assertEqual(self.note()["uid"], str(USER_UID), (fails, words))
        finally:
            self.machine.shell("umount /usr/bin/stat")

    def test_next_owner_takes_the_place_of_the_former(self):
        self.begin("veldmarkctl")
        self.begin("veldmark", env={"PKEXEC_UID": str(OTHER_UID)})
        self.assertEqual((self.note()["uid"], self.note()["pid"]), (str(OTHER_UID), self.pid_of("veldmark")))

    def refused(self, uid=OTHER_UID):
        self.machine.await_watcher()
        before = self.machine.snapshot(), self.note()
        for words in ["disconnect"], CONNECT:
            done = self.machine.help_by_rule(*words, uid=uid, check=False)
            self.assertEqual((done.returncode, done.stderr), (3, f"ERROR: {IN_USE}\n"))  # then the program asks
        self.assertEqual((self.machine.snapshot(), self.note()), before)

    def test_another_users_session_is_neither_ended_nor_replaced_by_the_rule(self):
        self.begin()
        self.refused()

    def test_an_administrators_word_ends_or_replaces_it(self):
        for env in {"PKEXEC_UID": str(OTHER_UID)}, {"SUDO_UID": str(OTHER_UID)}, {"A": "1"}:
            with self.subTest(env):
                self.begin()
                self.machine.help("disconnect", env={"PATH": os.environ["PATH"], **env})
                self.assertEqual(self.machine.shell("ls /var/lib/veldmark/state"), "")
        self.begin()
        self.machine.help(*CONNECT, env={"PATH": os.environ["PATH"], "PKEXEC_UID": str(OTHER_UID)})
        self.assertEqual(self.note(), {"uid": str(OTHER_UID)})

    def test_a_disconnect_that_means_another_programs_session_leaves_it_alone(self):
        program = self.begin()
        pid = self.note()["pid"]
        self.machine.await_watcher()
        before = self.machine.snapshot(), self.note()
        for value, words in (
            ("1", f"Another program (process {pid}) has started a session meanwhile. That session was left alone."),
            (pid + "0", f"Another program (process {pid}) has started a session meanwhile. That session was left alone."),
            ("0", "The process id is not valid."),
            ("x[$(reboot)]", "The process id is not valid."),
        ):
            done = self.machine.help("disconnect", "--process", value, check=False)
            self.assertEqual((done.returncode, done.stderr), (1, f"ERROR: {words}\n"))
        self.assertEqual((self.machine.snapshot(), self.note()), before)
        self.machine.help("disconnect", "--process", pid)
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/state"), "")
        program.communicate()
        self.begin().communicate()
        self.machine.help("disconnect", "--process", "1")  # a session whose program has ended can be ended by any program
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/state"), "")

    def test_the_user_ends_the_own_session_from_elsewhere(self):
        self.begin()
        self.machine.help_by_rule("disconnect")

    def test_what_was_left_over_is_anybodys_to_restore(self):
        program = self.begin()
        self.refused()
        program.communicate()
        self.machine.help_by_rule("disconnect", uid=OTHER_UID)

    def test_reused_process_id_keeps_nobody_out(self):
        for change in "s/^start .*/start 1/", "s/^boot .*/boot other/":
            with self.subTest(change):
                self.begin()
                self.refused()
                self.machine.shell(f"sed -i '{change}' {OWNER}")
                self.machine.help_by_rule("disconnect", uid=OTHER_UID)

    def test_note_that_tells_nothing_keeps_nobody_out(self):
        for text in "", "uid 4242\n", "uid a[$(touch /run/pwned)]\npid 1\nstart x\nend\n", "\0\0", "end\n":
            with self.subTest(text):
                self.begin().communicate()
                self.machine.shell(f"cat >{OWNER}", stdin=text)
                self.machine.help_by_rule("disconnect", uid=OTHER_UID)
                self.assertEqual(self.machine.shell("ls /run/pwned 2>/dev/null || true"), "")
        self.begin().communicate()
        self.machine.shell(f"rm {OWNER}; ln -s /etc/passwd {OWNER}")
        self.machine.help_by_rule("disconnect", uid=OTHER_UID)

    def test_note_that_cannot_be_written_changes_nothing(self):
        before = self.machine.snapshot()
        self.machine.shell(f"mkdir -p {OWNER}.new/x")
        try:
            self.assertOneLine(self.machine.connect(strict=0, check=False), "owner cannot be written")
        finally:
            self.machine.shell(f"rm -r {OWNER}.new")
        self.assertEqual(self.machine.snapshot(), before)


if __name__ == "__main__":
    namespace.main()
