"""An identity for each application: the address that Tor sees, which has no other effect. Tor is a stand-in that tells each client
the address that it sees."""

import os
import re
import subprocess
import time

import namespace
from namespace import HASH, INSTALLED, OTHER_UID, TOR, TOR_GROUP, USER_UID, HelperTest
from wire import Wire

BUILT = os.path.join(namespace.HERE, "..", "..", "build", "bin", "veldmark-identify")
PLACE = "/usr/local/libexec/veldmark"
STATE = "/run/veldmark.identities"
TABLE = "veldmark-identities"
USER = f"/sys/fs/cgroup/user.slice/user-{USER_UID}.slice"
APPS = f"{USER}/user@{USER_UID}.service/app.slice"
ACCOUNT = {USER_UID: "127.64.16.146", OTHER_UID: "127.64.16.147", 0: "127.64.0.0"}
SHARED = "127.0.0.1"

SERVER = (
    "import os, socket, sys, threading\nthreading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()\ns = socket.create_server(('127.0.0.1', 9050), backlog=64); print('up', flush=True)\n"
    "while True:\n c, a = s.accept(); c.sendall(a[0].encode()); c.close()"
)
ASK = "import socket, sys\nfor _ in range(int(sys.argv[2])):\n c = socket.socket(); c.settimeout(10); c.bind((sys.argv[1], 0)); c.connect(('127.0.0.1', 9050)); print(c.recv(99).decode())"
WISH = "import socket, sys\ns = socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM)\nfor w in sys.argv[1:]: s.sendto(w.encode('utf-8', 'surrogateescape'), '/run/veldmark.identify')"


def program():
    given = os.environ.get("VELDMARK_HELPER")
    return os.path.join(os.path.dirname(given), "veldmark-identify") if given else BUILT


class Identities(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        m = cls.machine
        m.install_copy()
        m.shell('install -m 0755 "$1" "$2"', os.path.abspath(program()), PLACE)
        m.shell(f"chmod 755 /sys/fs/cgroup; mkdir -p {USER}/session-2.scope {APPS}; chown -R {USER_UID} {USER}/user@*")
        m.tor_uid = m.shell("id -u _veldmark").strip()
        cls.server = cls.serve(int(m.tor_uid))
        cls.wire = Wire(m)

    @classmethod
    def tearDownClass(cls):
        cls.wire.close()
        cls.server.communicate()
        cls.machine.shell(
            "cd /sys/fs/cgroup/user.slice; while ! find . -mindepth 1 -depth -type d -exec rmdir {} +; do sleep 0.01; done; rmdir /sys/fs/cgroup/user.slice"
        )
        super().tearDownClass()

    @classmethod
    def serve(cls, uid):
        """Starts the stand-in of Tor, which ends at its input's end."""
        server = cls.machine.start("/usr/bin/python3", "-c", SERVER, uid=uid, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        server.stdout.readline()
        return server

    def setUp(self):
        self.before = self.machine.snapshot()

    def tearDown(self):
        self.machine.help("disconnect")
        self.clear()
        self.assertEqual(self.machine.snapshot(), self.before)
        self.assertEqual(self.machine.shell(f"ls {STATE} /run/veldmark.identify 2>&1 | grep -c cannot").strip(), "2")

    def clear(self):
        """Removes the folders of the applications that tests have made."""
        self.machine.shell(
            f'cd {APPS}; while [ -n "$(find . -mindepth 1 -type d)" ]; do find . -mindepth 1 -depth -type d -exec rmdir {{}} + || sleep 0.01; done'
        )

    def connect(self, separate="1", strict="1", **options):
        self.machine.run(
            "/bin/bash",
            INSTALLED,
            "connect",
            "--tor",
            TOR,
            "--hash",
            HASH,
            "--strict",
            strict,
            "--lan",
            "0",
            "--separate",
            separate,
            **options,
        )
        if separate == "1":
            self.until(lambda: "\nstanding\n" in self.state())

    def until(self, condition):
        deadline = time.monotonic() + 20
        while not condition():
            self.assertLess(time.monotonic(), deadline)
            time.sleep(0.01)

    def state(self):
        return self.machine.shell(f"cat {STATE} || true")

    def pid(self):
        return self.machine.shell("pgrep -x veldmark-identi").strip()

    def application(self, *names):
        """Makes the applications' groups, and waits until veldmark-identify knows them."""
        self.machine.run(
            "/usr/bin/python3",
            "-c",
            "import os, sys\nfor n in sys.argv[2:]: os.mkdir(os.path.join(os.fsencode(sys.argv[1]), os.fsencode(n)))",
            APPS,
            *names,
            uid=USER_UID,
        )

    def mapped(self, *names):
        """Makes the groups, and waits until the firewall knows all of them."""
        count = self.known()
        self.application(*names)
        self.until(lambda: self.known() == count + len(names))

    def known(self):
        return len(re.findall('" : 0x', self.machine.run("nft", "list", "map", "inet", TABLE, "applications").stdout))

    def seen(self, group=None, uid=USER_UID, source="0.0.0.0", times=1):
        answers = set(
            self.machine.run(
                "/usr/bin/python3", "-c", ASK, source, str(times), uid=uid, group=group and f"{APPS}/{group}"
            ).stdout.split()
        )
        self.assertEqual(len(answers), 1, answers)
        return answers.pop()

    # ---- Which address an application has ----

    def test_each_application_has_its_own(self):
        """In both modes two windows of a program share an address, two programs never do, and a child process has its program's."""
        for strict in "1", "0":
            self.connect(strict=strict)
            windows = ["app-gnome-org.example.Browser-12.scope", "app-gnome-org.example.Browser-13.scope"]
            others = [
                "app-mail-7.scope",
                "app-flatpak-org.example.Mail-8.scope",
                "snap.chat.chat-0f0f0f0f-1111-2222-3333-444444444444.scope",
                "player.service",
            ]
            self.mapped(*windows, *others)
            browser = self.seen(windows[0], times=50)
            self.assertEqual(browser, self.seen(windows[1]))
            self.machine.shell(f"mkdir {APPS}/{windows[0]}/inside")
            self.assertEqual(browser, self.seen(windows[0] + "/inside"))
            addresses = [
                browser,
                *map(self.seen, others),
                self.seen("../../session-2.scope"),
                *(self.seen(uid=uid) for uid in ACCOUNT),
            ]
            self.assertEqual(len(set(addresses)), len(addresses), addresses)
            self.assertEqual(addresses[-3:], list(ACCOUNT.values()))
            self.assertTrue(all(address.startswith("127.") for address in addresses))
            self.assertIn(f"\n{USER_UID} {browser} org.example.Browser\n", self.state())
            self.machine.help("disconnect")
            self.clear()

    def test_without_the_setting_all_share_one(self):
        self.connect(separate="0")
        self.application("app-mail-7.scope")
        self.assertEqual({self.seen(), self.seen("app-mail-7.scope"), self.seen(uid=OTHER_UID)}, {SHARED})
        self.assertNotIn(TABLE, self.machine.run("nft", "list", "tables").stdout)

    def test_an_application_that_is_seen_too_late_has_the_accounts(self):
        self.connect()
        self.machine.shell(f"kill -STOP {self.pid()}")
        self.application("app-mail-7.scope")
        self.assertEqual(self.seen("app-mail-7.scope"), ACCOUNT[USER_UID])
        self.machine.shell(f"kill -CONT {self.pid()}")
        self.until(lambda: self.seen("app-mail-7.scope") != ACCOUNT[USER_UID])

    def test_nobody_chooses_an_identity_by_an_address(self):
        self.connect()
        self.mapped("app-mail-7.scope")
        mail = self.seen("app-mail-7.scope")
        self.assertEqual(self.seen(uid=OTHER_UID, source=mail), ACCOUNT[OTHER_UID])
        self.assertEqual(self.seen("app-mail-7.scope", source="127.0.0.9"), mail)
        # A process without an identity has the shared one. Without that rule it could take an application's address.
        self.assertEqual(self.seen(uid=70000, source=mail), SHARED)
        handle = re.search(
            r"snat ip to 127.0.0.1 # handle (\d+)", self.machine.run("nft", "-a", "list", "chain", "inet", TABLE, "address").stdout
        )[1]
        self.machine.shell(f"kill -STOP {self.pid()}; nft delete rule inet {TABLE} address handle {handle}")
        self.assertEqual(self.seen(uid=70000, source=mail), mail)

    def test_another_identity_for_one_application(self):
        self.connect()
        self.mapped("app-mail-7.scope", "app-chat-8.scope")
        mail, chat = self.seen("app-mail-7.scope"), self.seen("app-chat-8.scope")
        self.machine.run(
            "/usr/bin/python3", "-c", WISH, "new mail", "new", "newmail", "new nobody", "new " + "x" * 5000, "\udcff", uid=OTHER_UID
        )
        self.machine.run("/usr/bin/python3", "-c", WISH, "new chat", uid=USER_UID)
        self.until(lambda: self.seen("app-chat-8.scope") != chat)
        self.assertEqual(self.seen("app-mail-7.scope"), mail)
        self.until(lambda: chat not in self.state())

    # ---- Names that other programs choose ----

    def test_hostile_names_are_names(self):
        self.connect()
        names = [
            "app-\\x0aend 1\\x0a-1.scope",
            "app-a b\r4242 127.0.0.1 mail-1.scope",
            "app-\udcff\udcfe-1.scope",
            "app--.scope",
            "app-" + "y" * 240 + "-1.scope",
            "$(reboot).service",
            "@.service",
            "app-\\x.slice",
            "app-app\\x2dapp\\x2dx.slice",
        ]
        self.mapped(*names)
        self.until(lambda: re.search(r"\nend \d+\n\Z", self.state()) and len(self.state().splitlines()) == 3 + len(names) + 1)
        state = self.state().splitlines()
        self.assertTrue(all(re.fullmatch(rf"{USER_UID} 127(\.\d+){{3}} [!-~]+", line) for line in state[2:-1]), state)
        self.application("no-unit", "app-x-1.mount", ".scope", ".service")
        self.mapped("app-last-1.scope")
        self.assertEqual(self.known(), len(names) + 1)

    def test_two_hundred_at_once_and_ten_thousand(self):
        self.connect()
        self.mapped(*(f"app-prog{n}-1.scope" for n in range(200)))
        self.assertEqual(len({self.seen(f"app-prog{n}-1.scope") for n in (0, 1, 99, 199)}), 4)
        self.application(*(f"app-more{n}-1.scope" for n in range(9800)))
        self.until(lambda: len(self.state().splitlines()) == 1000 + 3)
        self.assertEqual(self.seen("app-prog0-1.scope").split(".")[0], "127")
        self.assertEqual(self.seen("app-more9799-1.scope"), ACCOUNT[USER_UID])
        self.clear()
        self.until(lambda: self.known() == 0)
        self.mapped("app-after-1.scope")

    # ---- The rights of veldmark-identify ----

    def test_it_has_one_right_of_roots(self):
        self.connect()
        status = dict(
            line.split(":\t", 1) for line in self.machine.shell(f"cat /proc/{self.pid()}/status").splitlines() if ":\t" in line
        )
        self.assertEqual(set(status["Uid"].split() + status["Gid"].split()), {"65533"})
        self.assertEqual({int(status[key], 16) for key in ("CapInh", "CapPrm", "CapEff", "CapBnd", "CapAmb")}, {1 << 12})
        self.assertEqual((status["NoNewPrivs"], status["Groups"].strip()), ("1", ""))
        links = self.machine.shell(f"ls -l /proc/{self.pid()}/fd | grep -o '>.*'").splitlines()
        self.assertEqual(
            sorted(re.sub(r"\d+", "N", link) for link in links),
            sorted(
                ["> /dev/null"] * 2
                + [f"> {STATE}", "> anon_inode:inotify"]
                + ["> socket:[N]"] * 3
                + [link for link in map(lambda l: re.sub(r"\d+", "N", l), links) if "pipe" in link or "deleted" in link]
            ),
        )

    def test_what_runs_as_nobody_does_not_stop_it(self):
        """Other services run as nobody."""
        self.connect()
        other = self.machine.start(
            "setpriv",
            "--reuid=65534",
            "--regid=65534",
            "--clear-groups",
            "sh",
            "-c",
            "echo $$; exec sleep 1000",
            stdout=subprocess.PIPE,
            text=True,
        )
        nobodys = other.stdout.readline().strip()
        try:
            for pid, refused in (self.pid(), True), (nobodys, False):
                for words in (
                    ["kill", "-STOP", pid],
                    ["prlimit", "--fsize=0:0", "--pid", pid],
                    ["renice", "19", "-p", pid],
                    ["kill", "-KILL", pid],
                ):
                    self.assertEqual(self.machine.run(*words, uid=65534, check=False).returncode != 0, refused, words)
        finally:
            self.machine.run("kill", "-KILL", nobodys, check=False)
            other.kill()  # its processes in the group are still stopped
            other.communicate()
        self.mapped("app-mail-7.scope")

    def test_a_users_program_is_not_run(self):
        self.machine.shell(f"chown {USER_UID} {PLACE}/veldmark-identify")
        try:
            self.machine.run(
                "/bin/bash", INSTALLED, "connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0", "--separate", "1"
            )
            self.assertNotIn(TABLE, self.machine.run("nft", "list", "tables").stdout)
            self.assertEqual(self.machine.shell("pgrep -x veldmark-identi || echo none"), "none\n")
        finally:
            self.machine.shell(f"chown 0 {PLACE}/veldmark-identify")

    def test_the_kill_switch_does_not_know_of_it(self):
        """The kill switch's table stays the same, and a process that moves between groups sends nothing out."""
        self.connect(separate="0")
        rules = self.machine.run("nft", "-s", "-t", "list", "table", "inet", "veldmark").stdout
        self.machine.help("disconnect")
        self.assertIn("https", self.wire.arrivals(USER_UID))
        self.connect()
        self.mapped("app-mail-7.scope", "app-chat-8.scope")
        self.assertEqual(self.machine.run("nft", "-s", "-t", "list", "table", "inet", "veldmark").stdout, rules)
        for group in f"{APPS}/app-mail-7.scope", f"{APPS}/app-chat-8.scope", f"{USER}/session-2.scope":
            self.assertEqual(self.wire.arrivals(USER_UID, group), set())

    def test_nobody_answers_in_tors_place(self):
        """No other program answers at an application's address either."""
        self.connect()
        self.mapped("app-mail-7.scope")
        self.server.communicate()
        false = self.serve(OTHER_UID)
        try:
            self.assertNotEqual(
                self.machine.run(
                    "/usr/bin/python3", "-c", ASK, "0.0.0.0", "1", uid=USER_UID, group=f"{APPS}/app-mail-7.scope", check=False
                ).returncode,
                0,
            )
        finally:
            false.communicate()
            type(self).server = self.serve(int(self.machine.tor_uid))

    # ---- Applications that start and end ----

    def test_rules_that_others_flush_come_back(self):
        self.connect()
        self.mapped("app-mail-7.scope")
        mail = self.seen("app-mail-7.scope")
        for flush in (
            "flush ruleset",
            f"delete table inet {TABLE}",
            f"flush chain inet {TABLE} identify",
            f"flush map inet {TABLE} applications",
        ):
            self.machine.run("nft", flush)
            self.until(lambda: TABLE in self.machine.run("nft", "list", "tables").stdout and self.seen("app-mail-7.scope") == mail)
        self.assertIn("\nstanding\n", self.state())

    def test_after_its_death_fix_dns_brings_it_back(self):
        self.connect()
        former = self.pid()
        self.machine.shell(f"kill -9 {former}")
        self.assertEqual(self.seen(), ACCOUNT[USER_UID])
        self.machine.run("/bin/bash", INSTALLED, "fix-dns")
        self.until(lambda: "\nstanding\n" in self.state())
        self.assertNotEqual(self.pid(), former)

    def test_without_a_record_it_is_found(self):
        self.connect()
        self.machine.shell("echo torn >/var/lib/veldmark/journal/17-identifier")
        self.machine.help("disconnect", check=False)
        self.assertEqual(self.machine.shell("pgrep -x veldmark-identi || echo none"), "none\n")

    def test_a_connect_again_gives_other_addresses(self):
        """A later session never gives an application the circuits of another application."""
        self.connect()
        self.mapped("app-mail-7.scope")
        mail = self.seen("app-mail-7.scope")
        self.connect()
        self.assertNotEqual(self.seen("app-mail-7.scope"), mail)
        self.connect(separate="0")
        self.assertEqual(self.seen("app-mail-7.scope"), SHARED)

    def stepped(self, kill_after, *words):
        return self.machine.run(
            "env",
            "-i",
            f"PKEXEC_UID={USER_UID}",
            "/bin/bash",
            "-p",
            f"{PLACE}/stepped.sh",
            INSTALLED,
            "/run/changes",
            kill_after,
            "",
            "true",
            *words,
            check=False,
        )

    def test_killed_at_each_of_its_changes(self):
        """The helper is killed at each change of a connect, and of the disconnect after it."""
        words = {
            "connect": ["connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0", "--separate", "1"],
            "disconnect": ["disconnect"],
        }
        self.machine.shell('cp "$1" "$2"', os.path.join(namespace.HERE, "stepped.sh"), PLACE)
        tried = 0
        try:
            for verb in words:
                self.machine.help("disconnect")
                if verb == "disconnect":
                    self.connect()
                self.assertEqual(self.stepped("", *words[verb]).returncode, 0)
                points = [
                    line
                    for line in self.machine.shell("cat /run/changes").splitlines()
                    if "identif" in line or "identit" in line or "separate_app" in line
                ]
                for point in points:
                    with self.subTest(f"{verb}: {point}"):
                        self.machine.help("disconnect")
                        if verb == "disconnect":
                            self.connect()
                        done = self.stepped(point, *words[verb])
                        self.assertIn(done.returncode, (-9, 137), f"this change was not reached: {done.stderr}")
                        self.machine.shell("flock /run/veldmark.lock true")
                        self.machine.help("disconnect")
                        self.assertEqual(
                            self.machine.shell("pgrep -x veldmark-identi || nft list tables; ls /var/lib/veldmark/journal"), ""
                        )
                        tried += 1
        finally:
            self.machine.shell(f"rm -f {PLACE}/stepped.sh /run/changes /run/changes.marked")
        self.assertGreater(tried, 6)

    def test_what_comes_and_goes_costs_the_watcher_no_look(self):
        """A look at the rules for each new group would fully load a processor."""
        self.connect()
        self.machine.await_watcher()

        def looks(script):
            # Each look is an nft process; the kernel counts processes.
            self.machine.shell("sleep 0.5")
            [watcher] = self.machine.watchers()
            spent = "cut -d' ' -f16,17 /proc/%s/stat" % watcher  # the processor time of its children, in hundredths of a second
            before = sum(map(int, self.machine.shell(spent).split()))
            self.machine.shell(script)
            return sum(map(int, self.machine.shell(spent).split())) - before

        many = f"for i in $(seq 100); do mkdir {APPS}/app-a$i-1.scope; sleep 0.02; done; for i in $(seq 100); do rmdir {APPS}/app-a$i-1.scope; done"
        rules = "for i in $(seq 100); do nft add table inet other; nft delete table inet other; sleep 0.01; done"
        self.assertGreater(looks(rules), 3 * max(1, looks(many)))


if __name__ == "__main__":
    if not os.path.exists(program()):
        raise SystemExit(f"{os.path.normpath(program())} is missing: build the target veldmark-identify first.")
    namespace.main()
