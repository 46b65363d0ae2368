"""The control group of the applications without Tor: who is left in it at a session's end, and where that process goes on."""

import os

import namespace
from namespace import OTHER_UID, USER_UID, HelperTest

STEPPED = os.path.join(namespace.HERE, "stepped.sh")

GROUPS = "/sys/fs/cgroup"
BYPASS = f"{GROUPS}/veldmark-bypass"
MANAGER = f"{GROUPS}/user.slice/user-{OTHER_UID}.slice/user@{OTHER_UID}.service/init.scope"

# Twenty processes of short life, which replace each other. They are counted by themselves: the system's limit counts the account's
# processes of every machine.
STORM = r"""
#include <sys/mman.h>
#include <unistd.h>
static int *many; /* usleep: others use the processors as well */
static int another(void)
{
    int child = -1;
    if (__sync_add_and_fetch(many, 1) > 20 || (child = fork()) < 0)
        __sync_sub_and_fetch(many, 1);
    return child;
}
int main(void)
{
    many = mmap(0, sizeof *many, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    for (*many = 1;; usleep(500))
        if (another() > 0 && another() != 0) {
            __sync_sub_and_fetch(many, 1);
            _exit(0);
        }
}
"""


class Bypass(HelperTest):
    def setUp(self):
        self.before = self.machine.snapshot()
        self.addCleanup(lambda: self.assertEqual(self.machine.snapshot(), self.before))
        self.alices = f"{GROUPS}/alices"
        self.machine.shell(f"mkdir {self.alices}")

    def tearDown(self):
        self.machine.shell(
            f"for group in {self.alices} {BYPASS}; do [ ! -d $group ] || echo 1 >$group/cgroup.kill; done; pkill -9 -u alice,bob; while pgrep -u alice,bob; do :; done"
        )
        self.machine.help("disconnect")
        self.machine.shell(f"cd {GROUPS}; rmdir alices; [ ! -d user.slice ] || find user.slice -depth -type d -delete")

    def connect(self, **options):
        return self.machine.connect(env={"PATH": "/usr/bin:/bin", "PKEXEC_UID": str(USER_UID)}, group=self.alices, **options)

    def disconnect(self):
        return self.machine.help("disconnect", env={"PATH": "/usr/bin:/bin", "PKEXEC_UID": str(USER_UID)}, group=self.alices)

    def application(self, uid):
        """Starts a process of the user's that bypasses Tor and touches a file again and again; returns its number inside the machine."""
        script = f"(while :; do : >/tmp/alive-{uid}; sleep 0.1; done) >/dev/null 2>&1 & echo $!"
        return self.machine.run("/bin/sh", "-c", script, uid=uid, group=BYPASS).stdout.strip()

    def assertGoesOn(self, uid):
        self.machine.shell(f"rm -f /tmp/alive-{uid}; until [ -e /tmp/alive-{uid} ]; do sleep 0.01; done", timeout=30)

    def group_of(self, pid):
        return GROUPS + self.machine.shell(f"sed -n s/^0:://p /proc/{pid}/cgroup").strip()

    def test_each_users_go_on_in_a_group_of_that_users(self):
        """In alice's group bob's programs would be hers to stop."""
        for manager, place in ((False, GROUPS + "/"), (True, MANAGER)):
            with self.subTest(manager=manager):
                if manager:
                    self.machine.shell(f"mkdir -p {MANAGER}")
                self.connect()
                alices, bobs = self.application(USER_UID), self.application(OTHER_UID)
                self.assertEqual([self.group_of(pid) for pid in (alices, bobs)], [BYPASS, BYPASS])
                self.disconnect()
                self.assertEqual([self.group_of(pid) for pid in (alices, bobs)], [self.alices, place])
                self.assertGoesOn(USER_UID)
                self.assertGoesOn(OTHER_UID)
                self.machine.shell(f"kill {alices} {bobs}; while pgrep -x sleep; do sleep 0.01; done")

    def test_a_number_that_is_used_again_is_nobody_to_move(self):
        """A user may end a process that was listed, and have the system give its number to another process: a run of the helper, which
        would be the user's to stop then."""
        self.connect()
        old = self.application(USER_UID)
        others = f"{GROUPS}/others"
        self.machine.shell(
            f"mkdir {others}; cat >/usr/local/reuse; chmod 0755 /usr/local/reuse",
            stdin=f"""#!/bin/bash
kill -9 {old}; while [ -d /proc/{old} ]; do sleep 0.01; done
until [ "${{pid-}}" = {old} ]; do
  [ -z "${{pid-}}" ] || kill -9 $pid
  echo $(({old} - 1)) >/proc/sys/kernel/ns_last_pid
  sleep 1000 >/dev/null 2>&1 7>&- 8>&- 9>&- & pid=$!
done
echo $pid >{others}/cgroup.procs
""",
        )
        try:
            words = ("", "((i = 0", "/usr/local/reuse", "disconnect")
            self.machine.run(
                *("/bin/bash", "-p", STEPPED, self.machine.helper, "/run/changes", *words),
                env={"PATH": "/usr/bin:/bin", "PKEXEC_UID": str(USER_UID)},
                group=self.alices,
            )
            self.assertEqual(self.group_of(old), others)
        finally:
            self.machine.shell(
                f"rm -f /usr/local/reuse /run/changes*; kill -9 $(cat {others}/cgroup.procs); until rmdir {others}; do sleep 0.01; done"
            )

    def test_what_starts_processes_without_end_does_not_stay(self):
        self.machine.shell("gcc -O2 -x c -o /usr/local/storm -", stdin=STORM)
        self.addCleanup(self.machine.shell, "rm /usr/local/storm")
        self.connect()
        storm = self.machine.start("/usr/local/storm", uid=USER_UID, group=BYPASS)
        storm.wait()
        self.machine.shell(f"until [ $(wc -l <{BYPASS}/cgroup.procs) -gt 15 ]; do :; done", timeout=30)
        self.disconnect()
        self.assertEqual(self.machine.shell(f"ls -d {BYPASS} 2>/dev/null || true"), "")
        self.assertGreater(len(self.machine.shell(f"cat {self.alices}/cgroup.procs").split()), 15)  # there it goes on

    def test_a_new_session_lets_nothing_of_an_earlier_one_out(self):
        """The kill switch of the earlier session is gone without a disconnect, as after a crash and a flush."""
        self.connect()
        alices = self.application(USER_UID)
        self.connect()  # upon the strict session, which goes on
        self.assertEqual(self.group_of(alices), BYPASS)
        self.machine.end_watcher()
        self.machine.shell("nft flush ruleset")
        self.connect()
        self.assertEqual(self.group_of(alices), self.alices)
        self.assertIn(f'"{BYPASS.removeprefix(GROUPS + "/")}"', self.machine.shell("cat /var/lib/veldmark/run/firewall.nft"))

    def test_a_disconnect_that_was_killed_leaves_nothing_standing_still(self):
        self.connect()
        alices = self.application(USER_UID)
        self.machine.shell(f"echo 1 >{BYPASS}/cgroup.freeze; until grep -q 'frozen 1' {BYPASS}/cgroup.events; do :; done")
        self.connect()
        self.machine.shell(f"until grep -q 'frozen 0' {BYPASS}/cgroup.events; do :; done", timeout=10)
        self.assertEqual(self.group_of(alices), BYPASS)
        self.assertGoesOn(USER_UID)

    def test_a_group_that_cannot_be_removed_is_left_running(self):
        """A program of root's in it has made a group of its own inside."""
        self.connect()
        self.application(USER_UID)
        self.machine.shell(f"mkdir {BYPASS}/inside; sleep 1000 >/dev/null 2>&1 & echo $! >{BYPASS}/inside/cgroup.procs")
        done = self.machine.help(
            "disconnect", env={"PATH": "/usr/bin:/bin", "PKEXEC_UID": str(USER_UID)}, group=self.alices, check=False
        )
        self.assertIn("The control group of the applications without Tor could not be removed.", done.stderr)
        self.assertIn("frozen 0", self.machine.shell(f"cat {BYPASS}/cgroup.events"))
        self.assertGoesOn(USER_UID)
        self.machine.shell(f"echo 1 >{BYPASS}/inside/cgroup.kill; until rmdir {BYPASS}/inside; do sleep 0.01; done 2>/dev/null")

    def test_one_users_proxy_is_put_back_outside_of_anothers_group(self):
        """Bob's session is ended by alice, who stops all that runs in her group."""
        self.machine.shell("install -d -o bob /home/bob/.config; install -o bob /dev/null /home/bob/.config/kioslaverc")
        self.addCleanup(self.machine.shell, "rm -r /home/bob/.config")
        self.machine.connect(strict=0, env={"PATH": "/usr/bin:/bin", "PKEXEC_UID": str(OTHER_UID)})
        self.assertIn("ProxyType=1", self.machine.shell("cat /home/bob/.config/kioslaverc"))
        holder = self.machine.hold("/run/veldmark.lock")
        env = {"PATH": "/usr/bin:/bin", "PKEXEC_UID": str(USER_UID)}
        run = self.machine.start("/bin/bash", self.machine.helper, "disconnect", env=env, group=self.alices)
        self.machine.shell("until pgrep -xf 'flock -w 20 9'; do sleep 0.01; done", timeout=30)
        self.machine.shell(f"echo 1 >{self.alices}/cgroup.freeze; until grep -q 'frozen 1' {self.alices}/cgroup.events; do :; done")
        holder.communicate("go on\n")
        self.machine.shell("while [ -e /var/lib/veldmark/state/active ]; do sleep 0.01; done")
        self.assertEqual(self.machine.shell("cat /home/bob/.config/kioslaverc"), "")
        self.machine.shell(f"echo 0 >{self.alices}/cgroup.freeze")
        self.assertEqual(run.wait(timeout=60), 0)


if __name__ == "__main__":
    namespace.main()
