"""A caller with passwordless rights tries to disturb a run of the helper by what the run inherits."""

import fcntl
import os
import subprocess
import time

import namespace
from namespace import HASH, TOR, USER_UID, HelperTest

CONNECT = ["connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0"]


class Callers(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.install_copy()

    def tearDown(self):
        self.machine.help("disconnect")

    def begin(self, *words, **options):
        return self.machine.start(
            "/bin/sh",
            "-c",
            'echo $$; exec /bin/bash "$0" "$@"',
            namespace.INSTALLED,
            *words,
            env={"PATH": os.environ["PATH"], "SUDO_UID": str(USER_UID)},
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            text=True,
            **options,
        )

    def full_pipe(self):
        """A full pipe."""
        reading, writing = os.pipe()
        flags = fcntl.fcntl(writing, fcntl.F_GETFL)
        fcntl.fcntl(writing, fcntl.F_SETFL, flags | os.O_NONBLOCK)
        try:
            for size in 4096, 1:
                try:
                    while True:
                        os.write(writing, b"x" * size)
                except BlockingIOError:
                    pass
        finally:
            fcntl.fcntl(writing, fcntl.F_SETFL, flags)
        self.addCleanup(os.close, reading)
        self.addCleanup(os.close, writing)
        return reading, writing

    def await_lock(self, run):
        """Returns when a run has taken and released the lock."""
        pid = run.stdout.readline().strip()
        self.machine.shell(
            f"held() {{ ls -l /proc/{pid}/fd | grep -q veldmark.lock; }}; until held; do :; done; while held; do sleep 0.01; done",
            timeout=30,
        )

    def test_a_file_system_that_never_answers_keeps_no_lock(self):
        """A user's own does that where others may look into it. Not even SIGKILL ends who has asked it."""
        slow = '#!/bin/sh\ncase $* in "-e -- /home/alice/slow") setsid sleep 1000; esac\nexec /mnt/readlink "$@"\n'
        self.machine.shell(
            "cp -a /usr/bin/readlink /mnt/readlink; install -m 0755 /dev/stdin /mnt/slow; mount --bind /mnt/slow /usr/bin/readlink;"
            "install -o alice -m 0755 /usr/bin/true /home/alice/slow",
            stdin=slow,
        )
        try:
            run = self.begin(*[word.replace(TOR, "/home/alice/slow") for word in CONNECT], stderr=subprocess.PIPE)
            self.machine.shell("until pgrep -xf 'sleep 1000'; do sleep 0.01; done", timeout=30)
            self.machine.help("disconnect", env={"PATH": os.environ["PATH"], "PKEXEC_UID": str(namespace.OTHER_UID)})
            self.machine.shell("pgrep -xf 'sleep 1000'")
            self.assertEqual(run.communicate(timeout=20)[1], "ERROR: The program /home/alice/slow cannot be found.\n")
        finally:
            self.machine.shell("pkill -xf 'sleep 1000'; umount /usr/bin/readlink; rm /mnt/readlink /mnt/slow /home/alice/slow")

    def test_who_does_not_read_what_it_says_keeps_no_lock(self):
        reading, writing = self.full_pipe()
        self.machine.connect()
        run = self.begin("replace", *CONNECT[1:-1], "1", stderr=writing)
        self.await_lock(run)
        self.assertIsNone(run.poll(), "it waits for its reader")
        self.machine.shell("flock -n /run/veldmark.lock true && flock -n /run/veldmark.rules true")
        self.machine.help("disconnect")
        said = b""
        while not said.endswith(b".\n"):
            said += os.read(reading, 65536)
        self.assertEqual(run.wait(20), 3)
        self.assertEqual(said.lstrip(b"x"), b"ERROR: An administrator password is needed to change the running strict session.\n")

    def test_what_it_says_of_a_failure_comes_after_all_is_undone(self):
        before = self.machine.snapshot()
        reading, writing = self.full_pipe()
        self.machine.shell("printf '#!/bin/sh\n[ \"$1\" != --verify-config ] || exit 0\nexit 7\n' >/run/tor; chmod 755 /run/tor")
        self.machine.approve("/run/tor")
        run = self.begin("connect", "--tor", "/run/tor", *CONNECT[3:-4], "--strict", "0", "--lan", "0", stderr=writing)
        self.await_lock(run)

        def left():
            return [line for line in self.machine.snapshot().splitlines() if "veldmark-helper.sh connect" not in line]

        deadline = time.monotonic() + 20  # the groups go when the lock has gone
        while left() != before.splitlines() and time.monotonic() < deadline:
            pass
        self.assertEqual(left(), before.splitlines())
        self.assertIsNone(run.poll(), "it waits for its reader")
        os.read(reading, 65536)
        self.assertEqual(run.wait(20), 1)

    def test_rules_that_cannot_be_looked_at_are_not_taken_for_gone(self):
        """nft may fail because no process can be started. A strict session must not be weakened then."""
        self.machine.help_by_rule(*CONNECT)
        self.machine.shell(
            'cp /usr/sbin/nft /mnt/nft.true; printf \'#!/bin/sh\\n[ "$1 $2" != "list chain" ] || kill -9 $$\\nexec /mnt/nft.true "$@"\\n\' >/mnt/nft;'
            "chmod 755 /mnt/nft; mount --bind /mnt/nft /usr/sbin/nft"
        )
        try:
            for line in [*CONNECT[:-4], "--strict", "0", "--lan", "0"], CONNECT[:-1] + ["1"], CONNECT:
                done = self.machine.help_by_rule(*line, check=False)
                self.assertOneLine(done, "The firewall rules cannot be read")
                self.assertEqual(
                    self.machine.shell("cat /var/lib/veldmark/state/active; grep lan /var/lib/veldmark/asked"), "strict\nlan 0\n"
                )
        finally:
            self.machine.shell("umount /usr/sbin/nft")
        self.machine.help_by_rule(*CONNECT)

    def test_programs_of_others_get_no_descriptor_of_the_runs(self):
        """A program with the descriptor of a lock could keep the lock or pass it on."""
        script = (
            '. "$1"; exec 7>/run/seven 8>/run/eight 9>/run/nine; CALLER_UID=4242 CALLER_GID=4242 CALLER_HOME=/; cd /; as_caller 5 ls -l /proc/self/fd || echo $?;'
            "ls -l /proc/self/fd >&2"
        )
        done = self.machine.run("/bin/bash", "-p", "-c", script, "shell", self.machine.helper)
        self.assertIn("0 -> ", done.stdout)
        for name in "seven", "eight", "nine":
            self.assertIn(f"/run/{name}", done.stderr)
            self.assertNotIn(f"/run/{name}", done.stdout)

    def test_timers_of_the_callers_are_not_taken_over(self):
        """A timer slack of a minute would let the watcher sleep for a minute."""
        late = "import ctypes, os, sys; ctypes.CDLL(None).prctl(29, ctypes.c_ulong(60 * 10 ** 9), 0, 0, 0); os.execv(sys.argv[1], sys.argv[1:])"
        self.assertEqual(
            self.machine.run("/usr/bin/python3", "-c", late, "/bin/cat", "/proc/self/timerslack_ns").stdout, "60000000000\n"
        )
        self.machine.run(
            "/usr/bin/python3",
            "-c",
            late,
            "/bin/bash",
            namespace.INSTALLED,
            *CONNECT,
            env={"PATH": os.environ["PATH"], "SUDO_UID": str(USER_UID)},
        )
        [tor] = self.machine.tor_pids()
        [watcher] = self.machine.watchers()
        for pid in tor, watcher:
            self.assertEqual(self.machine.shell(f"cat /proc/{pid}/timerslack_ns").strip(), "50000")


if __name__ == "__main__":
    namespace.main()
