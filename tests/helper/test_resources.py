"""The caller of a run chooses its control group, priority and limits. It must not use them against the run."""

import subprocess

import namespace
from hostile import HostileTest
from namespace import TOR_GROUP, USER_UID


class Resources(HostileTest):
    def test_the_callers_group_ends_and_stops_nothing(self):
        own = "/sys/fs/cgroup/alices"
        self.machine.shell(f"chmod 755 /sys/fs/cgroup; mkdir {own}; chown -R {USER_UID} {own}")
        try:
            self.machine.connect(group=own)
            self.machine.await_watcher()
            sleeper = self.machine.start("sleep", "1000", group=own)
            watcher = self.machine.shell("pgrep -f /watcher[.]sh").strip()
            [tor] = self.machine.tor_pids()
            self.machine.run("/bin/sh", "-c", f"echo 1 >{own}/cgroup.kill", uid=USER_UID)
            self.assertEqual(sleeper.wait(10), -9)
            self.machine.shell(f"kill -0 {watcher} {tor}")
            self.assertNotEqual(
                self.machine.run(
                    "/bin/sh", "-c", "echo 1 >/sys/fs/cgroup/veldmark/cgroup.kill", uid=USER_UID, check=False
                ).returncode,
                0,
            )
            # A run that waits for the lock has left the caller's group before it gets the lock.
            holder = self.machine.hold("/run/veldmark.lock")
            waiting = self.machine.start("/bin/bash", self.machine.helper, "fix-dns", group=own)
            self.machine.shell("until pgrep -xf 'flock -w 20 9'; do sleep 0.01; done")
            self.machine.run("/bin/sh", "-c", f"echo 1 >{own}/cgroup.freeze", uid=USER_UID)
            holder.communicate("go on\n")
            self.assertEqual(waiting.wait(20), 0)
        finally:
            self.machine.shell(f"echo 0 >{own}/cgroup.freeze")
            self.machine.help("disconnect")
            self.machine.shell(f"rmdir {own}")

    def test_a_run_that_its_caller_stops_takes_nothing_from_a_later_session(self):
        """At its end a run is in the caller's group again, where the caller can stop it for any time."""
        own = "/sys/fs/cgroup/alices"
        self.machine.shell(f"chmod 755 /sys/fs/cgroup; mkdir {own}; chown -R {USER_UID} {own}")
        holder = self.machine.start(
            "flock",
            "/run/veldmark.lock",
            "/bin/sh",
            "-c",
            "echo held; read word",
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        try:
            self.assertEqual(holder.stdout.readline(), "held\n")
            run = self.machine.start("/bin/bash", self.machine.helper, "disconnect", group=own)
            self.machine.shell("until pgrep -xf 'flock -w 20 9'; do sleep 0.01; done")
            self.machine.run("/bin/sh", "-c", f"echo 1 >{own}/cgroup.freeze", uid=USER_UID)
            holder.communicate("go on\n")
            self.machine.shell(
                f"until grep -q . {own}/cgroup.procs && grep 'frozen 1' {own}/cgroup.events; do sleep 0.01; done", timeout=30
            )
            self.machine.connect()
            self.machine.shell(f"test -d {TOR_GROUP}; pkill -KILL -u _veldmark; while pgrep -u _veldmark; do sleep 0.01; done")
            self.assertIsNone(run.poll())
            self.machine.run("/bin/sh", "-c", f"echo 0 >{own}/cgroup.freeze", uid=USER_UID)
            self.assertEqual(run.wait(20), 0)
            self.machine.shell(f"test -d {TOR_GROUP}")
        finally:
            self.machine.shell(f"echo 0 >{own}/cgroup.freeze")
            holder.kill()
            holder.communicate()
            self.machine.help("disconnect")
            self.machine.shell(f"rmdir {own}")

    def test_no_session_begins_where_the_system_makes_no_more_groups(self):
        """Any user may make that many. The run, Tor and the watcher would be in the caller's group, and the account alone the key."""
        self.machine.shell(
            "cat /sys/fs/cgroup/cgroup.stat | grep -q '^nr_descendants 0$'; echo 0 >/sys/fs/cgroup/cgroup.max.descendants"
        )
        try:
            end = self.serve(9050)[1]
            for strict in 1, 0:
                done = self.machine.connect(strict=strict, check=False)
                self.assertOneLine(done, "The control group for Tor cannot be made.")  # said before it looks who has Tor's ports
            end()
        finally:
            self.machine.shell("echo max >/sys/fs/cgroup/cgroup.max.descendants")
        self.machine.connect()
        self.machine.shell("echo 0 >/sys/fs/cgroup/cgroup.max.descendants")
        try:
            self.machine.help("disconnect")
        finally:
            self.machine.shell("echo max >/sys/fs/cgroup/cgroup.max.descendants")

    def test_the_callers_version_of_the_kernel_is_not_believed(self):
        """Else the account alone would be the key, in a container."""
        old = "setarch --uname-2.6"
        self.assertTrue(self.machine.shell(f"{old} uname -r").startswith("2.6."))
        self.machine.shell(
            f'exec {old} /bin/bash "$@"',
            self.machine.helper,
            *("connect", "--tor", namespace.TOR, "--hash", namespace.HASH, "--strict", "1", "--lan", "0"),
        )
        self.assertIn("cgroupv2", self.machine.run("nft", "list", "table", "inet", "veldmark").stdout)

    def test_the_callers_priorities_are_not_taken_over(self):
        self.machine.shell(
            'echo 500 >/proc/self/oom_score_adj; exec taskset --cpu-list 0 ionice --class idle chrt --idle 0 nice -n 15 /bin/bash "$@"',
            self.machine.helper,
            "connect",
            "--tor",
            namespace.TOR,
            "--hash",
            namespace.HASH,
            "--strict",
            "1",
            "--lan",
            "0",
        )
        every = self.machine.shell(
            "taskset --cpu-list $(cat /sys/devices/system/cpu/possible) grep Cpus_allowed_list /proc/self/status"
        )
        [tor] = self.machine.tor_pids()
        # -1000, but in a container without the right to it.
        least = self.machine.shell("echo -1000 2>/dev/null >/proc/self/oom_score_adj || true; cat /proc/self/oom_score_adj").strip()
        self.assertIn(least, ("-1000", "0"))
        for pid, score in (tor, "0"), (self.machine.shell("pgrep -f /watcher[.]sh").strip(), least):
            self.assertEqual(self.machine.shell(f"cat /proc/{pid}/oom_score_adj").strip(), score)
            self.assertEqual(self.machine.shell(f"ps -o ni=,cls= -p {pid}").split(), ["0", "TS"])
            self.assertTrue(self.machine.shell(f"ionice --pid {pid}").startswith("none"))
            self.assertEqual(self.machine.shell(f"grep Cpus_allowed_list /proc/{pid}/status"), every)


if __name__ == "__main__":
    namespace.main()
