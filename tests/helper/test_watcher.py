"""The watcher of the firewall undoes every change of Veldmark's rules at once, as long as a strict session lasts."""

import contextlib
import os
import subprocess
import time

import namespace
import probes
from namespace import USER_UID, HelperTest
from wire import LINK, Flood, Wire

LIMIT = 5.0  # seconds from the change until the rules are back
NOTE = "/run/veldmark.watch"  # "WORD COUNT SINCE"; its time is that of the watcher's last look
GROUP = "/sys/fs/cgroup/veldmark-bypass"

CHANGES = {
    "flushed": "nft flush ruleset",
    "deleted": "nft delete table inet veldmark",
    "emptied": "nft flush chain inet veldmark output",
    "opened by policy": "nft chain inet veldmark output '{ policy accept; }'",
    "opened by a rule": "nft insert rule inet veldmark output accept",
    "opened for forwarding": "nft add rule inet veldmark forward accept",
    "without the redirect": "nft flush chain inet veldmark redirect_dns",
    "replaced": "printf 'table inet veldmark\\ndelete table inet veldmark\\ntable inet veldmark { chain output { }; }\\n' | nft -f -",
    "dormant": "nft add table inet veldmark '{ flags dormant; }'",
}


class Watcher(HelperTest):
    def setUp(self):
        self.before = self.machine.snapshot()
        self.machine.connect()
        self.machine.await_watcher()
        self.rules = self.listing()

    def tearDown(self):
        self.machine.help("disconnect")
        self.assertEqual(self.machine.snapshot(), self.before)

    def listing(self):
        return self.machine.run("nft", "-s", "-t", "list", "table", "inet", "veldmark", check=False).stdout

    def seconds_until_locked(self, change):
        self.machine.shell(change)
        started = time.monotonic()
        while self.listing() != self.rules:
            self.assertLess(time.monotonic() - started, LIMIT, change)
        return time.monotonic() - started

    @property
    def note_path(self):
        return f"/proc/{self.machine.pid}/root{NOTE}"

    def note(self):
        """The word, and how often rules were missing."""
        with open(self.note_path, encoding="ascii") as file:
            word, count, since = file.read().split(" ")
        self.assertTrue(since.endswith("\n") and abs(int(since) - time.time()) < 60, since)
        return f"{word} {count}"

    def wait_note(self, wanted, limit=LIMIT):
        deadline = time.monotonic() + limit
        while self.note() != wanted:
            self.assertLess(time.monotonic(), deadline, (wanted, self.note()))
            time.sleep(0.02)

    def wait_look(self):
        """Waits until the watcher has looked once more."""
        beats, deadline = {os.stat(self.note_path).st_mtime_ns}, time.monotonic() + 2 * LIMIT
        while len(beats) < 9:  # two a second, and a look after three seconds at the latest
            self.assertLess(time.monotonic(), deadline, "it does not look")
            time.sleep(0.02)
            beats.add(os.stat(self.note_path).st_mtime_ns)

    def watcher_seconds(self):
        """The processor time of the watcher and of the programs that it has run so far."""
        (pid,) = self.machine.watchers()
        with open(f"/proc/{self.machine.pid}/root/proc/{pid}/stat", encoding="ascii") as file:
            fields = file.read().rpartition(") ")[2].split(" ")
        return sum(map(int, fields[11:15])) / os.sysconf("SC_CLK_TCK")

    @contextlib.contextmanager
    def broken_nft(self):
        self.machine.shell("printf '#!/bin/sh\\nexit 1\\n' >/mnt/nft; chmod +x /mnt/nft; mount --bind /mnt/nft /usr/sbin/nft")
        try:
            yield
        finally:
            self.machine.shell("umount /usr/sbin/nft; rm /mnt/nft")

    def test_every_change_is_undone(self):
        for name, change in CHANGES.items():
            with self.subTest(name):
                before = self.listing()
                self.assertEqual(before, self.rules)
                print(f"{name}: {self.seconds_until_locked(change) * 1000:.0f} ms", flush=True)

    def test_what_is_sent_in_the_gap_is_counted(self):
        """Root sends probes without pause. The other end of the machine's only link sees them until the rules are back, and none
        afterwards."""
        self.machine.tor_uid = self.machine.shell("id -u _veldmark").strip()
        wire, flood = Wire(self.machine), Flood(self.machine)
        try:
            flood.go()
            for name, change in CHANGES.items():
                with self.subTest(name):
                    self.assertEqual(set(wire.mark()) - LINK, set())
                    seconds = self.seconds_until_locked(change)
                    seen = [line for line in wire.mark() if line not in LINK]
                    flood.round()
                    self.assertEqual(set(wire.mark()) - LINK, set())
                    print(f"{name}: {len(seen)} packets in {seconds * 1000:.0f} ms", flush=True)
            self.machine.help("disconnect")
            wire.mark()
            flood.round()
            self.assertLessEqual(set(probes.FLOOD), set(wire.mark()))
        finally:
            flood.close()
            wire.close()

    def test_it_looks_also_when_the_kernel_tells_nothing(self):
        self.machine.shell("pkill -STOP -xf 'nft monitor [a-z]*'")  # but not the nft process of a look
        self.seconds_until_locked("nft flush ruleset")
        self.machine.shell("pkill -CONT -xf 'nft monitor [a-z]*'")

    def test_groups_that_users_make_do_not_delay_it(self):
        """nft takes longer to print the names of control groups the more groups there are, and any user can make thousands a
        second."""
        self.machine.shell(f"chmod 755 /sys/fs/cgroup; mkdir /sys/fs/cgroup/user.slice; chown {USER_UID} /sys/fs/cgroup/user.slice")
        try:
            self.machine.run(
                "/usr/bin/python3",
                "-c",
                "import os\nfor n in range(8000): os.mkdir('/sys/fs/cgroup/user.slice/%d' % n)",
                uid=USER_UID,
            )
            started = time.monotonic()
            self.machine.shell("timeout 2 nft list table inet veldmark || test $? = 124")
            self.assertGreater(time.monotonic() - started, 1, "names take long")
            for number in 1, 2, 3:
                started = time.monotonic()
                self.machine.shell("nft flush ruleset; until nft list tables | grep -q veldmark; do sleep 0.01; done")
                self.assertLess(time.monotonic() - started, LIMIT)
                self.wait_note(f"restored {number}")  # the next is a change of its own
            self.wait_look()
            self.assertEqual(self.note(), "restored 3")
            self.machine.help("fix-dns", timeout=LIMIT)
        finally:
            self.machine.help("disconnect")
            self.machine.shell("cd /sys/fs/cgroup; find user.slice -depth -type d -exec rmdir {} +", timeout=120)

    def test_sockets_that_users_open_do_not_delay_it(self):
        """All of them stand in the list in which it looks for Tor's ports."""
        crowd = (
            "import resource, socket, sys\nresource.setrlimit(resource.RLIMIT_NOFILE, (19900, 20000))\nkept = []\n"
            "for n in range(19800):\n s = socket.socket(); s.bind(('127.1.%d.%d' % (n // 200, n % 200 + 1), 7000)); s.listen(1); kept.append(s)\n"
            "print('open', flush=True); sys.stdin.read()"
        )
        many = [
            self.machine.start(
                "/usr/bin/python3",
                "-c",
                crowd.replace("127.1", f"127.{turn}"),
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
                text=True,
            )
            for turn in range(1, 4)
        ]
        try:
            for process in many:
                self.assertEqual(process.stdout.readline(), "open\n")
            # In time of the processor: a busy computer may keep every program waiting for seconds.
            beat, began, most = os.stat(self.note_path).st_mtime_ns, self.watcher_seconds(), 0.0
            for _ in range(20):
                deadline = time.monotonic() + 60
                while (now := os.stat(self.note_path).st_mtime_ns) == beat:
                    self.assertLess(time.monotonic(), deadline, "it does not look")
                    time.sleep(0.02)
                used = self.watcher_seconds()
                beat, began, most = now, used, max(most, used - began)
            print(f"at most {most * 1000:.0f} ms of work between two notes", flush=True)
            self.assertLess(most, 1.5)
        finally:
            for process in many:
                process.communicate()

    def test_a_disk_that_is_full_keeps_no_rules_away(self):
        """It fills up during the session. The helper's folder gets a file system of its own for it."""
        folder = "/var/lib/veldmark"
        self.machine.help("disconnect")
        self.machine.shell(f"mount -t tmpfs -o size=4m,mode=755 disk {folder}")
        try:
            self.machine.connect()
            self.machine.await_watcher()
            self.machine.shell(f"! cat /dev/zero >{folder}/filler; ! echo more >{folder}/more")
            for number, change in enumerate((CHANGES["flushed"], CHANGES["opened by a rule"]), 1):
                self.seconds_until_locked(change)
                self.wait_note(f"restored {number}")
            self.wait_look()
            self.assertEqual(self.note(), "restored 2")
        finally:
            self.machine.help("disconnect")
            self.machine.shell(f"umount -l {folder}")

    def test_the_change_is_told(self):
        self.assertEqual(self.note(), "standing 0")
        self.seconds_until_locked("nft flush ruleset")
        self.wait_note("restored 1")
        self.wait_look()
        self.assertEqual(self.note(), "restored 1")  # the rules are loaded since; this is no second miss
        self.seconds_until_locked("nft delete table inet veldmark")
        self.wait_note("restored 2")
        self.assertEqual(self.machine.shell(f"stat -c '%a %u' {NOTE}"), "644 0\n")

    def test_its_note_is_as_young_as_its_last_look(self):
        ages = []  # the program takes this for a sign of life
        for _ in range(50):
            ages.append(time.time() - os.stat(self.note_path).st_mtime)
            time.sleep(0.1)
        self.assertLess(sorted(ages)[37], 1.0)  # of every four, one may be older on a busy computer
        self.machine.end_watcher()
        before = os.stat(self.note_path).st_mtime_ns
        time.sleep(2 * 3 + 1)
        self.assertEqual(os.stat(self.note_path).st_mtime_ns, before)

    def is_young(self):
        return time.time() - os.stat(self.note_path).st_mtime < 1.5  # the program believes 1.0; half a second for a busy computer

    def becomes(self, young):
        deadline = time.monotonic() + 10
        while self.is_young() != young:
            self.assertLess(time.monotonic(), deadline, f"young: {young}")
            time.sleep(0.05)

    def stays_young(self, why):
        for _ in range(40):
            self.assertTrue(self.is_young(), why)
            time.sleep(0.1)

    def end_tor(self):
        self.machine.shell("pkill -KILL -u _veldmark; while pgrep -u _veldmark; do sleep 0.01; done")

    def listener(self, address, port, uid, ipv6_alone=False, shares=False, device=""):
        """A process that listens there until its input ends."""
        listen = (
            "import socket, sys; address, device, port, alone, shares = *sys.argv[1:3], *map(int, sys.argv[3:])\n"
            "s = socket.socket(socket.AF_INET6 if ':' in address else socket.AF_INET, socket.SOCK_DGRAM if port == 293 else socket.SOCK_STREAM)\n"
            "if ':' in address: s.setsockopt(socket.IPPROTO_IPV6, socket.IPV6_V6ONLY, alone)\n"
            "s.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEPORT, shares)\n"
            "if device: s.setsockopt(socket.SOL_SOCKET, socket.SO_BINDTODEVICE, device.encode())\n"
            "s.bind((address, port)); port == 293 or s.listen(); print('up', flush=True); sys.stdin.read()"
        )
        process = self.machine.start(
            *("/usr/bin/python3", "-c", listen, address, device, str(port), str(int(ipv6_alone)), str(int(shares))),
            uid=uid,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        self.addCleanup(process.kill)
        self.assertEqual(process.stdout.readline(), "up\n")
        return process

    def test_note_ages_while_another_process_listens_at_tors_ports(self):
        # A listener of Tor's account is no proof: it must be this session's Tor.
        tor = int(self.machine.shell("id -u _veldmark"))
        for address, port, uid in (
            ("127.0.0.1", 9050, namespace.OTHER_UID),
            ("127.0.0.1", 9051, tor),
            ("127.0.0.1", 293, 0),
            ("::", 9050, namespace.OTHER_UID),
            ("::", 9051, tor),
            ("::ffff:127.0.0.1", 9050, namespace.OTHER_UID),
        ):
            with self.subTest(address=address, port=port):
                self.end_tor()
                self.stays_young("without a listener no program is in Tor's place")
                process = self.listener(address, port, uid)
                self.becomes(young=False)
                process.communicate()
                self.becomes(young=True)
                self.assertEqual(self.note(), "standing 0")
                self.machine.connect()
                self.stays_young("Tor of a session that was begun again")

    def test_who_takes_no_ipv4_connection_is_not_in_tors_place(self):
        """Unlike one beside it that does."""
        self.end_tor()
        alone = [self.listener("::", port, namespace.OTHER_UID, ipv6_alone=True, shares=True) for port in (9050, 9051)]
        self.stays_young("nobody answers at 127.0.0.1")
        for device in "", "lo":
            both = self.listener("::", 9051, namespace.OTHER_UID, shares=True, device=device)
            self.becomes(young=False)
            both.communicate()
            self.becomes(young=True)
        self.machine.shell("mount --bind /bin/false /usr/bin/ss")
        try:
            self.becomes(young=False)  # which of them it is nobody can tell
        finally:
            self.machine.shell("umount /usr/bin/ss")
        self.becomes(young=True)
        for process in alone:
            process.communicate()

    def test_the_note_is_there_when_the_helper_has_ended(self):
        """The application reads the note then, perhaps before the watcher's first look."""
        self.machine.help("disconnect")
        self.assertFalse(os.path.exists(self.note_path))
        self.machine.shell(
            "cp /usr/bin/setsid /mnt/setsid; printf '#!/bin/sh\\ncase $* in *watcher.sh) sleep 60 ;; esac\\nexec /mnt/setsid \"$@\"\\n' "
            ">/mnt/late; chmod +x /mnt/late; mount --bind /mnt/late /usr/bin/setsid"
        )
        try:
            self.machine.connect()
            self.assertEqual(self.note(), "standing 0")
            self.machine.help("disconnect")
        finally:
            self.machine.shell("umount /usr/bin/setsid; rm /mnt/late /mnt/setsid; pkill -x sleep || true")

    def test_no_note_survives_its_session(self):
        self.seconds_until_locked("nft flush ruleset")
        self.wait_note("restored 1")
        self.machine.connect(strict=0)
        self.assertFalse(os.path.exists(self.note_path))
        self.machine.help("disconnect")
        # A session before a restart leaves a marker and notes, but no rules and no watcher.
        self.machine.connect()
        self.machine.end_watcher()
        self.machine.shell(
            f"nft delete table inet veldmark; echo 'restored 9 1' >{NOTE}; echo 'restored 9' >/var/lib/veldmark/state/relocked"
        )
        self.machine.connect(strict=0)
        self.assertFalse(os.path.exists(self.note_path))
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/state"), "")
        self.machine.connect()
        self.machine.end_watcher()
        self.machine.shell(f"nft delete table inet veldmark; echo 'restored 9 1' >{NOTE}")
        self.machine.connect()
        self.assertEqual(self.note(), "standing 0")

    def test_a_change_that_cannot_be_undone_is_told(self):
        """Another program replaces nft itself. The watcher cannot put the rules back, and its note says so."""
        self.assertEqual(self.note(), "standing 0")
        with self.broken_nft():
            self.wait_note("open 1", 2 * LIMIT)
            self.wait_look()  # it tries again; this is the same miss
            self.wait_look()
            self.assertEqual(self.note(), "open 1")
        self.wait_note("restored 1", 2 * LIMIT)

    def test_rules_that_are_removed_as_fast_as_they_are_loaded_are_open(self):
        self.machine.shell(
            "rm -f /mnt/enough; (until [ -e /mnt/enough ]; do nft flush table inet veldmark; done) >/dev/null 2>&1 </dev/null &"
        )
        try:
            deadline = time.monotonic() + 2 * LIMIT
            while not self.note().startswith("open "):
                self.assertLess(time.monotonic(), deadline, self.note())
                time.sleep(0.02)
        finally:
            self.machine.shell("touch /mnt/enough")
        deadline = time.monotonic() + 2 * LIMIT
        while self.listing() != self.rules or not self.note().startswith("restored "):
            self.assertLess(time.monotonic(), deadline, self.note())
            time.sleep(0.02)

    def test_the_same_rules_in_other_words_are_no_change(self):
        """An upgrade of nft may print the same rules in another form. The watcher must neither raise an alarm nor load them
        endlessly."""
        for edit in ("s/ { 9050/  {  9050/", "s/priority filter/priority 0/"):
            with self.subTest(edit):
                self.machine.shell(
                    "cp --remove-destination /usr/sbin/nft /mnt/real; : >/mnt/loads; printf '%s\\n' '#!/bin/sh' '[ \"$1\" != -f ] || echo >>/mnt/loads' "
                    '\'case "$*" in *list*) /mnt/real "$@" | sed "\'"$1"\'" ;; *) exec /mnt/real "$@" ;; esac\' >/mnt/nft;'
                    "chmod +x /mnt/nft; mount --bind /mnt/nft /usr/sbin/nft",
                    edit,
                )
                try:
                    self.machine.shell("/mnt/real add table ip other; /mnt/real delete table ip other")  # so that it looks
                    self.wait_look()
                    self.wait_look()
                    self.assertEqual(self.note(), "standing 0")
                    self.assertLess(len(self.machine.shell("cat /mnt/loads")), 4)
                finally:
                    self.machine.shell(
                        "umount -l /usr/sbin/nft; mv /mnt/nft /mnt/nft.former; rm /mnt/loads"
                    )  # the watcher may be running it
                self.machine.help("disconnect")
                self.machine.connect()
                self.machine.await_watcher()

    def test_other_peoples_tables_are_left_alone(self):
        self.machine.shell("nft add table inet other; nft add chain inet other c")
        self.seconds_until_locked("nft delete table inet veldmark")
        self.machine.shell("nft list table inet other; nft delete table inet other")

    def test_a_removed_group_does_not_keep_the_lock_open(self):
        self.seconds_until_locked("rmdir /sys/fs/cgroup/veldmark-bypass; nft flush ruleset")

    def test_without_its_group_the_lock_is_loaded_and_with_it_the_bypass_comes_back(self):
        self.machine.shell(f"echo 0 >/sys/fs/cgroup/cgroup.max.descendants; rmdir {GROUP}")
        try:
            self.machine.shell("nft flush ruleset")
            self.wait_note("restored 1")
            self.assertIn("policy drop", self.listing())
            self.assertNotIn("cgroupv2", self.listing())
            self.wait_look()
            self.assertEqual(self.note(), "restored 1")  # it compares with the rules that it has loaded
        finally:
            self.machine.shell("echo max >/sys/fs/cgroup/cgroup.max.descendants")
        self.assertIn("cgroupv2", self.rules)
        self.seconds_until_locked("nft flush ruleset")
        self.wait_note("restored 2")
        self.wait_look()
        self.wait_look()
        self.assertEqual(self.note(), "restored 2")
        self.assertEqual(self.listing(), self.rules)

    def test_without_its_group_what_is_emptied_as_fast_as_it_is_loaded_is_open(self):
        """The watcher never compares with rules that another program has changed."""
        self.machine.shell(
            f"echo 0 >/sys/fs/cgroup/cgroup.max.descendants; rmdir {GROUP}; rm -f /mnt/enough;"
            "(until [ -e /mnt/enough ]; do nft flush table inet veldmark; done) >/dev/null 2>&1 </dev/null &"
        )
        deadline = time.monotonic() + 4 * LIMIT
        try:
            while not self.note().startswith("open "):
                self.assertLess(time.monotonic(), deadline, self.note())
                time.sleep(0.02)
            self.machine.shell("touch /mnt/enough")
            deadline = time.monotonic() + 2 * LIMIT
            while "policy drop" not in self.listing() or "9050" not in self.listing() or not self.note().startswith("restored "):
                self.assertLess(time.monotonic(), deadline, self.note())
                time.sleep(0.02)
            self.assertNotIn("cgroupv2", self.listing())
        finally:
            self.machine.shell("touch /mnt/enough; echo max >/sys/fs/cgroup/cgroup.max.descendants")
        self.seconds_until_locked("nft flush ruleset")  # with the bypass again

    def test_a_group_that_cannot_be_removed_keeps_nobody_from_proxy_mode(self):
        self.machine.shell(f"mkdir {GROUP}/foreign")
        try:
            self.machine.connect(strict=0)
            self.assertEqual(self.machine.shell("cat /var/lib/veldmark/state/active"), "proxy\n")
            self.assertNotIn("policy drop", self.listing())
            self.assertTrue(self.machine.tor_pids())
        finally:
            self.machine.shell(f"rmdir {GROUP}/foreign")

    def test_proxy_mode_has_none(self):
        self.machine.connect(strict=0)
        self.assertEqual(self.machine.shell("pgrep -f /watcher[.]sh || true"), "")
        self.assertFalse(self.machine.shell("ls /sys/fs/cgroup | grep bypass || true"))

    def test_a_second_connect_leaves_one(self):
        self.machine.connect(lan=1)
        self.machine.shell("flock /run/veldmark.lock true")
        self.assertEqual(len(self.machine.watchers()), 1)
        self.rules = self.listing()
        self.machine.await_watcher()
        self.seconds_until_locked("nft flush ruleset")

    def test_a_killed_one_is_started_again_by_fix_dns(self):
        self.machine.end_watcher()
        self.machine.help("fix-dns")
        self.machine.await_watcher()
        self.assertEqual(len(self.machine.watchers()), 1)
        self.seconds_until_locked("nft flush ruleset")

    def test_one_that_dies_while_its_monitor_starts_leaves_none(self):
        """The monitor's start is delayed until its watcher has ended, and no monitor stays. With a living watcher the delayed
        monitor does start."""
        self.machine.shell(
            """mkdir -m 755 /run/held; cp /usr/bin/setpriv /run/held/program; cat >/run/held/setpriv <<'END'
#!/bin/sh
case "$*" in *nft*) : >/run/held/reached; while [ -e /run/held/hold ]; do sleep 0.01; done ;; esac
exec /run/held/program "$@"
END
            chmod 755 /run/held/*; mount --bind /run/held/setpriv /usr/bin/setpriv"""
        )
        try:
            for dies in False, True:
                self.machine.end_watcher()
                self.machine.shell(
                    "cd /run/held; rm -f reached; : >hold; nft add table inet unrelated; nft delete table inet unrelated"
                )
                self.machine.help("fix-dns")
                self.machine.shell("until [ -e /run/held/reached ]; do sleep 0.01; done")
                (watcher,) = map(str, self.machine.watchers())
                held = self.machine.shell("pgrep -P $1 -f /usr/bin/setpriv", watcher).strip()
                if dies:
                    self.machine.shell("kill -KILL $1; while [ -e /proc/$1 ]; do :; done", watcher)
                self.machine.shell("rm /run/held/hold")
                if dies:
                    self.machine.shell('while [ -e /proc/$1 ] && [ "$(cat /proc/$1/comm)" != nft ]; do sleep 0.01; done', held)
                    self.assertEqual(self.machine.shell("pgrep -ax nft || true"), "")
                else:
                    self.machine.shell('until [ "$(cat /proc/$1/comm)" = nft ]; do sleep 0.01; done', held)
        finally:
            self.machine.shell("rm -f /run/held/hold; umount --lazy /usr/bin/setpriv; rm -r /run/held")

    def test_disconnecting_against_a_flusher_leaves_nothing(self):
        """The rules must not come back after the disconnect."""
        for _ in range(5):
            flusher = self.machine.start(
                "/bin/sh", "-c", "while [ ! -e /run/enough ]; do nft flush ruleset; done", stderr=subprocess.DEVNULL
            )
            self.machine.help("disconnect")
            self.machine.shell("touch /run/enough")
            flusher.wait()
            self.machine.shell("rm /run/enough")
            self.assertEqual(self.machine.snapshot(), self.before)
            self.machine.connect()

    def test_nothing_of_the_session_shows_in_its_command_line(self):
        (pid,) = self.machine.watchers()
        self.assertEqual(
            self.machine.shell(f"tr '\\0' ' ' </proc/{pid}/cmdline"), "/bin/bash -p -- /var/lib/veldmark/run/watcher.sh "
        )
        self.assertNotIn("veldmark.lock", self.machine.shell(f"ls -l /proc/{pid}/fd"))


if __name__ == "__main__":
    namespace.main()
