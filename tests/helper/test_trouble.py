"""The helper on a computer in trouble. Each run succeeds or prints one line that names the problem. The network is restored or
blocked as the line says. A disconnect after the trouble puts everything back."""

import concurrent.futures
import subprocess
import time

import namespace
from namespace import HASH, TOR, HelperTest
from wire import Wire

STATE = "/var/lib/veldmark"
OTHER_TOR = "/usr/local/other/tor"
DISK = 256  # kilobytes; our own folder gets a file system of its own
CLOSED = "The network stays blocked until you disconnect."
# The free room, from nothing to enough for a whole connect. The file system decides what a few missing bytes mean.
SPARE = (0, 4, 8, 12, 16, 24, 32, 48)
NOT_EXECUTABLE = "touch /mnt/empty; mount --bind /mnt/empty {0}"


def fill(spare):
    return f"dd if=/dev/zero of={STATE}/spare bs=1k count={spare} 2>/dev/null; cat /dev/zero >{STATE}/filler 2>/dev/null; rm -f {STATE}/spare"


# name: (how it begins, how it ends, the tor that is asked for)
TROUBLES = {f"a disk with {spare} kB left": (fill(spare), f"rm {STATE}/filler", TOR) for spare in SPARE} | {
    "a folder that is read-only": (f"mount --rbind {STATE} {STATE}; mount -o remount,bind,ro {STATE}", f"umount -l {STATE}", TOR),
    "a state folder that is read-only": (
        f"mount --bind {STATE}/state {STATE}/state; mount -o remount,bind,ro {STATE}/state",
        f"umount {STATE}/state",
        TOR,
    ),
    "a journal that is read-only": (
        f"mount --bind {STATE}/journal {STATE}/journal; mount -o remount,bind,ro {STATE}/journal",
        f"umount {STATE}/journal",
        TOR,
    ),
    "a read-only /etc": ("mount -o remount,bind,ro /etc", "mount -o remount,bind,rw /etc", TOR),
    "no nft": (NOT_EXECUTABLE.format("/usr/sbin/nft"), "umount /usr/sbin/nft", TOR),
    "an nft that fails": (
        "printf '#!/bin/sh\\necho broken >&2; exit 1\\n' >/mnt/nft; chmod +x /mnt/nft; mount --bind /mnt/nft /usr/sbin/nft",
        "umount /usr/sbin/nft",
        TOR,
    ),
    "an nft that is killed": (
        "printf '#!/bin/sh\\nkill -9 $$\\n' >/mnt/nft; chmod +x /mnt/nft; mount --bind /mnt/nft /usr/sbin/nft",
        "umount /usr/sbin/nft",
        TOR,
    ),
    "a stat that fails": (
        "printf '#!/bin/sh\\nexit 1\\n' >/mnt/stat; chmod +x /mnt/stat; mount --bind /mnt/stat /usr/bin/stat",
        "umount /usr/bin/stat",
        TOR,
    ),
    "no flock": (NOT_EXECUTABLE.format("/usr/bin/flock"), "umount /usr/bin/flock", TOR),
    "no mount": (NOT_EXECUTABLE.format("/usr/bin/mount"), "umount /usr/bin/mount", TOR),
    "no tor": (f"mv {OTHER_TOR} {OTHER_TOR}.away", f"mv {OTHER_TOR}.away {OTHER_TOR}", OTHER_TOR),
    "a tor that is not executable": (f"chmod -x {OTHER_TOR}", f"chmod +x {OTHER_TOR}", OTHER_TOR),
    "a tor that is a folder": (
        f"mv {OTHER_TOR} {OTHER_TOR}.away; mkdir {OTHER_TOR}",
        f"rmdir {OTHER_TOR}; mv {OTHER_TOR}.away {OTHER_TOR}",
        OTHER_TOR,
    ),
    "a tor that is no program": (
        f"mv {OTHER_TOR} {OTHER_TOR}.away; head -c 99 /dev/zero >{OTHER_TOR}; chmod 755 {OTHER_TOR}",
        f"mv -f {OTHER_TOR}.away {OTHER_TOR}",
        OTHER_TOR,
    ),
    "a tor that dies after its check": (
        f"mv {OTHER_TOR} {OTHER_TOR}.away; printf '#!/bin/sh\\ncase \"$*\" in *verify*) exit 0 ;; esac\\nexit 7\\n' >{OTHER_TOR}; chmod 755 {OTHER_TOR}",
        f"mv -f {OTHER_TOR}.away {OTHER_TOR}",
        OTHER_TOR,
    ),
}
HARMLESS = {"a read-only /etc"}  # Tor's account is there
SOME_ROOM = {f"a disk with {spare} kB left" for spare in SPARE[2:]}


class Trouble(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.tor_uid = cls.machine.shell("id -u _veldmark").strip()
        cls.wire = Wire(cls.machine)
        cls.machine.shell(f"mount -t tmpfs -o size={DISK}k,mode=755 disk {STATE}; mkdir -p /usr/local/other; cp {TOR} {OTHER_TOR}")
        # Tor's own data needs more room than this trouble leaves.
        cls.machine.connect()
        cls.machine.help("disconnect")
        cls.machine.shell(
            f"rm -rf {STATE}/run/tor/data; mkdir /run/data; chown _veldmark: /run/data; chmod 700 /run/data; mkdir -m 700 {STATE}/run/tor/data;"
            f"mount --bind /run/data {STATE}/run/tor/data"
        )
        cls.before = cls.machine.snapshot()
        cls.cells = 0

    @classmethod
    def tearDownClass(cls):
        print(f"{cls.cells} runs in trouble", flush=True)
        cls.wire.close()
        super().tearDownClass()

    def words(self, verb, tor):
        return {
            "connect": ["connect", "--tor", tor, "--hash", HASH, "--strict", "1", "--lan", "0"],
            "connect in proxy mode": ["connect", "--tor", tor, "--hash", HASH, "--strict", "0", "--lan", "0"],
            "fix-dns": ["fix-dns"],
            "disconnect": ["disconnect"],
        }[verb]

    def test_process_that_keeps_tors_output_open_is_not_waited_for(self):
        """Nor does the check of the configuration leave a process or a file of Tor's account behind."""
        self.machine.shell(
            f"mv {OTHER_TOR} {OTHER_TOR}.away; install -m 755 /dev/stdin {OTHER_TOR}; mkdir -m 777 /run/left",
            stdin="#!/bin/sh\nsetsid sleep 1000 &\n: >/run/left/began\n(trap '' XFSZ; echo more >/run/left/file) 2>/dev/null\nexit 1\n",
        )
        try:
            done = self.machine.help(*self.words("connect in proxy mode", OTHER_TOR), check=False, timeout=50)
            self.assertOneLine(done, "Tor does not accept its configuration")
            self.assertEqual(self.machine.tor_pids(), [])
            self.assertEqual(self.machine.shell("cat /run/left/began /run/left/file"), "")
        finally:
            self.machine.shell(f"pkill -u _veldmark; rm -r /run/left; mv -f {OTHER_TOR}.away {OTHER_TOR}")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.snapshot(), self.before)

    def test_tors_account_that_cannot_be_made_is_named(self):
        """As in the very first session of a computer whose /etc is read-only."""
        begin, end, _ = TROUBLES["a read-only /etc"]
        files = "/etc/passwd /etc/group /etc/shadow /etc/gshadow"
        self.machine.shell(f"mkdir /run/kept; cp -p {files} /run/kept; sed -i /^_veldmark:/d {files}; {begin}")
        try:
            for verb in "connect", "connect in proxy mode":
                done = self.machine.help(*self.words(verb, TOR), check=False)
                self.assertOneLine(done, "The account _veldmark cannot be created.")
                self.assertFalse(self.drops())
        finally:
            self.machine.shell(f"{end}; cp -p /run/kept/* /etc; rm -r /run/kept")
        self.assertEqual(self.machine.snapshot(), self.before)

    def test_folders_that_cannot_be_looked_at_are_not_taken_for_safe(self):
        begin, end, _ = TROUBLES["a stat that fails"]
        self.machine.connect()
        for verb in "connect", "fix-dns", "disconnect":
            self.machine.shell(f"chmod 777 {STATE}/state; {begin}")
            try:
                self.assertOneLine(self.machine.help(*self.words(verb, TOR), check=False), "cannot be read")
            finally:
                self.machine.shell(f"{end}; chmod 755 {STATE}/state")
            self.assertTrue(self.drops())
        self.machine.help("disconnect")
        self.assertEqual(self.machine.snapshot(), self.before)

    def drops(self):
        """Whether packets are dropped. It sends packets, since nft itself may be broken."""
        seen = self.wire.arrivals()
        self.assertIn(seen & {"tcp", "udp"}, (set(), {"tcp", "udp"}))
        return "tcp" not in seen

    def in_trouble(self, name, verb, session):
        begin, end, tor = TROUBLES[name]
        if session is not None:
            self.machine.connect(strict=session)
        self.machine.shell(begin)
        try:
            done = self.machine.help(*self.words(verb, tor), check=False)
            closed = self.drops()
        finally:
            self.machine.shell(end)
        type(self).cells += 1
        if done.returncode:
            self.assertOneLine(done)
            self.assertNotIn(": line ", done.stderr)
            if CLOSED in done.stderr or session is None:  # otherwise the earlier session goes on
                self.assertEqual(CLOSED in done.stderr, closed, done.stderr)
            if session == 1 and verb != "disconnect":
                self.assertTrue(closed, done.stderr)
            if session is None and not closed:
                self.assertEqual(self.machine.snapshot(), self.before, done.stderr)
        else:
            self.assertEqual((done.stdout, done.stderr), ("", ""))
            self.assertEqual(closed, {"connect": True, "connect in proxy mode": False, "disconnect": False}.get(verb, session == 1))
            if verb == "disconnect":
                self.assertEqual(self.machine.snapshot(), self.before)
        again = self.machine.help("disconnect", check=False)
        self.assertEqual((again.returncode, again.stderr), (0, ""))
        self.assertEqual(self.machine.snapshot(), self.before)
        if name in HARMLESS:
            self.assertEqual((done.returncode, done.stderr), (0, ""))
        return done

    def all_troubles(self, verb, session):
        self.assertFalse(self.drops())
        for name in TROUBLES:
            # A connect uses the room in steps; the other verbs either have enough room or not.
            if name in SOME_ROOM and (session is not None or not verb.startswith("connect")):
                continue
            with self.subTest(name, verb=verb, session={None: "none", 0: "proxy", 1: "strict"}[session]):
                done = self.in_trouble(name, verb, session)
                print(f"{name}, {verb}, session {session}: {done.returncode} {done.stderr.strip()}", flush=True)

    def test_connect(self):
        self.all_troubles("connect", None)

    def test_connect_in_proxy_mode(self):
        self.all_troubles("connect in proxy mode", None)

    def test_connect_again(self):
        self.all_troubles("connect", 1)

    def test_change_to_proxy_mode(self):
        self.all_troubles("connect in proxy mode", 1)

    def test_fix_dns(self):
        self.all_troubles("fix-dns", 1)

    def test_disconnect(self):
        self.all_troubles("disconnect", 1)

    def test_disconnect_from_proxy_mode(self):
        self.all_troubles("disconnect", 0)

    def together(self, verbs):
        """Runs the verbs at once. Returns each run's status and message, its seconds, and the runs' numbers in the order in which
        they had the lock."""
        self.machine.shell(
            """
            cp /usr/bin/flock /run/real-flock; rm -f /run/order
            printf '%s\n' '#!/bin/sh' '/run/real-flock "$@" || exit' 'case "$*" in "-w 20 9") echo "$PPID" >>/run/order ;; esac' >/run/flock
            chmod 755 /run/flock; mount --bind /run/flock /usr/bin/flock"""
        )
        try:
            started = time.monotonic()
            runs = [
                self.machine.start(
                    "/bin/sh",
                    "-c",
                    'echo $$ >"/run/pid-$0"; exec /bin/bash "$@"',
                    str(number),
                    self.machine.helper,
                    *self.words(verb, TOR),
                    stderr=subprocess.PIPE,
                    stdin=subprocess.DEVNULL,
                    text=True,
                )
                for number, verb in enumerate(verbs)
            ]
            ended = [0.0] * len(runs)

            def wait(number):
                message = runs[number].communicate()[1]
                ended[number] = time.monotonic() - started
                return runs[number].returncode, message

            with concurrent.futures.ThreadPoolExecutor(len(runs)) as threads:
                results = list(threads.map(wait, range(len(runs))))
        finally:
            self.machine.shell("umount /usr/bin/flock")
        pids = self.machine.shell("".join(f"cat /run/pid-{number};" for number in range(len(runs)))).split()
        return results, ended, [pids.index(pid) for pid in self.machine.shell("cat /run/order").split()]

    def assert_one_after_the_other(self, verbs):
        """Each run that had the lock has worked on the state that the run before it left. Each other run has waited as long as it
        should, and says so. The final state is the one that the last run made."""
        results, seconds, order = self.together(verbs)
        self.assertGreater(len(order), 0)
        self.assertEqual(len(set(order)), len(order))
        session = None
        for number in order:
            wanted = (0, "")
            if verbs[number] == "fix-dns" and session is None:
                wanted = (1, "ERROR: Veldmark is not connected, so the DNS settings were left alone.\n")
            self.assertEqual(results[number], wanted, verbs[number])
            session = {"connect": "strict", "connect in proxy mode": "proxy", "disconnect": None, "fix-dns": session}[verbs[number]]
        for number in set(range(len(verbs))) - set(order):
            self.assertEqual(results[number], (1, "ERROR: Another run of the helper is still working. Try again in a moment.\n"))
            self.assertGreaterEqual(seconds[number], 20)
        print(f"{len(order)} of {len(verbs)} had the lock, the last after {max(seconds):.1f} s; then: {session}", flush=True)
        self.assertEqual(self.machine.shell(f"cat {STATE}/state/active 2>/dev/null || true").strip(), session or "")
        self.assertEqual(self.drops(), session == "strict")
        self.assertEqual(len(self.machine.tor_pids()), 0 if session is None else 1)
        if session == "strict":
            self.machine.await_watcher()
        self.assertEqual(len(self.machine.watchers()), 1 if session == "strict" else 0)
        if session is None:
            self.assertEqual(self.machine.snapshot(), self.before)
        self.machine.help("disconnect")
        self.assertFalse(self.drops())
        self.assertEqual(self.machine.snapshot(), self.before)

    def test_twenty_at_once(self):
        self.assert_one_after_the_other(["connect", "fix-dns", "connect in proxy mode", "disconnect"] * 5)

    def test_twenty_connects_at_once(self):
        self.assert_one_after_the_other(["connect", "connect in proxy mode"] * 10)

    def test_a_run_waits_no_longer_for_the_lock_than_it_should(self):
        holder = self.machine.start(
            "flock", "/run/veldmark.lock", "sh", "-c", "echo $$; exec sleep 60", stdout=subprocess.PIPE, text=True
        )
        pid = holder.stdout.readline()
        try:
            started = time.monotonic()
            done = self.machine.help("fix-dns", check=False)
            self.assertOneLine(done, "Another run of the helper is still working.")
            self.assertGreaterEqual(time.monotonic() - started, 20)
        finally:
            self.machine.shell(f"kill {pid}")
            holder.communicate()
        self.assertOneLine(self.machine.help("fix-dns", check=False), "not connected")


if __name__ == "__main__":
    namespace.main()
