"""The Debian package on a clean Debian 12 with only its own dependencies, in the private Tor network.

    test_debian.py PACKAGE.deb [unittest arguments]

Status 77 where Debian's registry or the lab is out of reach.
"""

import contextlib
import json
import subprocess
import sys
import tempfile
import time
import types
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parent / "lab"), str(HERE.parents[1] / "tools")]

from clean_debian import CleanDebian, Unprepared, prepare  # noqa: E402
from later_package import HELPER, newer  # noqa: E402
from moving import Moving  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.lab import PROJECT, Lab, LabUnavailable  # noqa: E402
from veldlab.product import Product  # noqa: E402

PACKAGE = Path(sys.argv.pop(1)).resolve() if len(sys.argv) > 1 and sys.argv[1].endswith(".deb") else None
MARKER = "/var/lib/veldmark/state/active"
SKIPPED = 77
PROBE_PORT = 4999

# Sends a datagram and a connection attempt to the world as nobody, repeatedly.
PROBE = f"""
import os, socket, time
os.setgid(65534); os.setuid(65534)
print("ready", flush=True)
while True:
    for kind in (socket.SOCK_DGRAM, socket.SOCK_STREAM):
        with socket.socket(socket.AF_INET, kind) as s:
            s.setblocking(False)
            try:
                s.connect(("{at.WEB_ADDRESS}", {PROBE_PORT}))
                s.send(b"probe")
            except OSError:
                pass
    time.sleep(0.005)
"""

# Prints the kernel's rules repeatedly, each time as one line.
LOOK = "while :; do nft -s list table inet veldmark 2>&1 | sha256sum; done"


class Case(unittest.TestCase):
    """One lab and one installation for all tests. Each test has a fresh copy of the installed system."""

    lab: Lab
    base: Path
    newer = "/var/local/newer.deb"
    installed: CleanDebian

    @staticmethod
    def install(lab: Lab, base: Path) -> CleanDebian:
        """Makes the system with the package, its dependencies, and a later package for an upgrade. It is not mounted any more."""
        with CleanDebian(lab, base, "installed") as debian, tempfile.TemporaryDirectory() as folder:
            debian.put(PACKAGE, "/var/local/veldmark.deb")
            debian.put(newer(PACKAGE, Path(folder)), Case.newer)
            started = time.monotonic()
            with Moving("Installing the package"):
                result = debian.run(["apt-get", "install", "--yes", "/var/local/veldmark.deb"], timeout=600)
            if result.returncode:
                raise AssertionError(f"{result.stdout}{result.stderr}")
            print(f"installed with all that it depends on in {time.monotonic() - started:.0f} s", file=sys.stderr)
            debian.join_lab()
        return debian

    def setUp(self):
        self.enterContext(Moving(self.id().removeprefix("__main__.")))
        self.debian = self.enterContext(CleanDebian(self.lab, self.base, f"test-{self.id()}", over=self.installed))
        self.product = Product(types.SimpleNamespace(host=self.debian), Path("/usr/bin"))
        self.assertEqual(self.rules(), "", "another test has left rules behind")
        self.resolver = self.debian.shell("cat /etc/resolv.conf")
        self.addCleanup(self.restore)

    def restore(self):
        """Restores the network, so that one test's failure does not fail the next one."""
        if self.debian.path(HELPER).exists() and self.debian.path(MARKER).exists():
            self.debian.run([HELPER, "disconnect"])

    def rules(self) -> str:
        return self.lab.host.run(["nft", "-s", "list", "ruleset"], check=True).stdout

    def dpkg(self, *words, **options):
        return self.debian.run(["dpkg", *words], **options)

    def direct(self) -> bool:
        result = self.debian.run(["/usr/bin/bash", "-c", f"exec 3<>/dev/tcp/{at.WEB_ADDRESS}/443"])
        return result.returncode == 0

    def tor_runs(self) -> bool:
        return self.lab.host.run(["pgrep", "-x", "tor"]).returncode == 0

    def assert_filtered(self):
        """The package's filter stands before Tor's control port."""
        self.lab.host.run(["pgrep", "-x", "veldmark-contro"], check=True)

    def assert_network_is_whole(self):
        self.assertEqual(self.rules(), "")
        self.assertEqual(self.debian.shell("cat /etc/resolv.conf"), self.resolver)
        self.assertNotIn("resolv.conf", self.debian.shell("cut -d' ' -f5 /proc/self/mountinfo"))
        self.assertFalse(self.tor_runs())
        self.assertTrue(self.direct())

    @contextlib.contextmanager
    def connected(self, strict: bool = True, user: str = "root"):
        product = Product(types.SimpleNamespace(host=self.debian), Path("/usr/bin"), user=user)
        product.run_verb("set", "strictMode", "true" if strict else "false", check=True)
        self.assertTrue(self.direct())
        with product.session() as session:
            session.wait(lambda s: s["phase"] == "connected" and not s["isChecking"] and s["exitIP"], 90)
            self.assertEqual(self.direct(), not strict)
            yield session

    def wait_for_word(self, session, word: str) -> None:
        deadline = time.monotonic() + 30
        while word not in session.output:
            self.assertLess(time.monotonic(), deadline, session.output)
            time.sleep(0.05)

    @contextlib.contextmanager
    def probing(self):
        """Sends probes during the context."""
        probe = self.lab.host.popen([at.PYTHON, "-c", PROBE], stdout=subprocess.PIPE, text=True)
        try:
            self.assertEqual(probe.stdout.readline(), "ready\n")
            yield
        finally:
            probe.terminate()
            probe.wait()
            probe.stdout.close()

    def probes_seen(self, capture) -> int:
        return sum(p.out and p.dst == at.WEB_ADDRESS and p.dport == PROBE_PORT for p in capture.packets)


class Installed(Case):
    def test_everything_is_in_its_place_and_whole(self):
        self.assertEqual(self.dpkg("--verify", "veldmark", check=True).stdout, "")
        self.assertEqual(self.debian.run(["veldmarkctl", "--version"], check=True).stdout.split()[0], "veldmarkctl")
        for page in ("veldmark", "veldmarkctl", "veldmark-launch"):
            self.assertTrue(self.debian.path(f"/usr/share/man/man1/{page}.1.gz").exists())
        helper = self.debian.shell(f"stat -c '%a %u %g' {HELPER}")
        self.assertEqual(helper, "755 0 0\n")
        own = self.debian.shell("stat -c '%a %u %g' /usr/libexec/veldmark/veldmark-control /usr/libexec/veldmark/veldmark-identify")
        self.assertEqual(own, "755 0 0\n" * 2)
        # The installation changes neither the network nor accounts; starting at login is a setting.
        self.assertNotIn("_veldmark", self.debian.shell("cat /etc/passwd"))
        self.assertEqual(self.debian.shell("find / -xdev -path '*autostart*veldmark*'"), "")
        self.assertFalse(self.debian.path("/var/lib/veldmark").exists())

    def test_every_library_and_module_of_the_programs_is_there(self):
        for program in ("veldmark", "veldmarkctl", "veldmark-launch"):
            self.assertNotIn("not found", self.debian.shell(f"ldd /usr/bin/{program}"))
        window = self.debian.popen(
            ["veldmark"],
            user="alice",
            env={"QT_QPA_PLATFORM": "offscreen"},
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
        )
        try:
            product = Product(types.SimpleNamespace(host=self.debian), Path("/usr/bin"), user="alice")
            deadline = time.monotonic() + 30
            while product.run_verb("connect").returncode == 3:
                self.assertIsNone(window.poll(), window.stdout)
                self.assertLess(time.monotonic(), deadline)
                time.sleep(0.1)
        finally:
            window.terminate()
            output = window.communicate(timeout=30)[0]
        # A window without a module, a plugin or a file prints an error.
        self.assertNotRegex(output, r"qrc:|not installed|[Cc]ould not|[Cc]annot|[Ee]rror|no Qt platform plugin")

    def test_a_user_connects_and_disconnects(self):
        self.debian.run([HELPER, "install-privileged", "--user", "alice"], check=True)
        files = self.debian.shell("find /etc -type f ! -name '*-' ! -name '.pwd.lock' | sort")
        with self.connected(user="alice") as session:
            state = session.wait(lambda s: s["exitIP"])
            self.assertEqual((state["torVerified"], state["leakStatus"]), (True, "blocked"))
            self.assert_filtered()
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_network_is_whole()
        self.assertEqual(self.debian.shell("find /etc -type f ! -name '*-' ! -name '.pwd.lock' | sort"), files)

    def test_the_application_connects_at_once_when_its_entry_says_so(self):
        self.debian.run([HELPER, "install-privileged", "--user", "alice"], check=True)
        product = Product(types.SimpleNamespace(host=self.debian), Path("/usr/bin"), user="alice")
        offscreen = {"QT_QPA_PLATFORM": "offscreen"}
        window = self.debian.popen(
            ["veldmark", "--connect"], user="alice", env=offscreen, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True
        )
        try:
            deadline = time.monotonic() + 90
            while json.loads(product.run_verb("status", "--json", check=True).stdout)["phase"] != "connected":
                self.assertIsNone(window.poll())
                self.assertLess(time.monotonic(), deadline)
                time.sleep(0.1)
            again = self.debian.run(["veldmark", "--connect"], user="alice", env=offscreen, timeout=30)
            self.assertEqual(again.returncode, 1)
            self.assertIn("veldmark: Already connected", again.stderr)
            product.run_verb("disconnect", check=True, timeout=60)
            self.debian.run(["veldmark", "--connect"], user="alice", env=offscreen, timeout=90, check=True)
            self.assertFalse(self.direct())
            product.run_verb("disconnect", check=True, timeout=60)
        finally:
            window.terminate()
            window.communicate(timeout=60)
        self.assert_network_is_whole()

    def test_another_tor_on_the_port_is_named(self):
        """Debian's own service starts when tor is installed."""
        other = self.debian.popen(
            ["tor", "-f", "/none", "--ignore-missing-torrc", "--SocksPort", "9050", "--DataDirectory", "/tmp/other"],
            stdout=subprocess.PIPE,
            text=True,
        )
        try:
            self.assertTrue(any("Opened Socks listener" in line for line in other.stdout))
            with self.product.session() as session:
                state = session.wait(lambda s: s["errorMessage"])
                self.assertRegex(state["errorMessage"], r"^Tor did not start: .*9050")
                session.interrupt()
        finally:
            other.terminate()
            other.communicate()
        self.assert_network_is_whole()


class Upgraded(Case):
    def test_while_connected_nothing_gets_out_and_the_rules_stand(self):
        with self.probing():
            with self.lab.capture() as before:
                time.sleep(0.5)
            self.assertGreater(self.probes_seen(before), 20, "the probe must be seen while nothing blocks it")
            with self.connected() as session:
                pids = self.lab.host.run(["pgrep", "-x", "tor"], check=True).stdout
                rules = self.rules()
                self.assertIn("table inet veldmark", rules)
                looker = self.lab.host.popen(["/bin/sh", "-c", LOOK], stdout=subprocess.PIPE, text=True)
                first = looker.stdout.readline()
                with self.lab.capture() as during:
                    started = time.monotonic()
                    self.dpkg("--install", self.newer, check=True, timeout=120)
                    seconds = time.monotonic() - started
                looker.terminate()
                looks = looker.communicate()[0].splitlines()
                self.assertEqual(self.probes_seen(during), 0)
                self.assertGreater(len(looks), 5)
                self.assertEqual(set(looks), {first.strip()})
                self.assertEqual(self.rules(), rules)
                print(
                    f"upgrade: {seconds:.1f} s, {len(looks)} looks at the rules, 0 probes out "
                    f"({self.probes_seen(before)} in half a second before)",
                    file=sys.stderr,
                )
                self.assertIn("+later", self.dpkg("--status", "veldmark", check=True).stdout)
                self.assertEqual(self.lab.host.run(["pgrep", "-x", "tor"], check=True).stdout, pids)
                self.assertEqual(session.wait(lambda s: True)["phase"], "connected")
                self.assertFalse(self.direct())
                self.assertEqual(session.interrupt(), 0, session.output)  # with the later version's helper
            self.assert_network_is_whole()

    def test_the_passwordless_copy_is_known_to_be_outdated(self):
        self.debian.run([HELPER, "install-privileged", "--user", "alice"], check=True)
        copy = "/usr/local/libexec/veldmark/veldmark-helper.sh"
        self.debian.run(["cmp", HELPER, copy], check=True)
        self.dpkg("--install", self.newer, check=True, timeout=120)
        self.assertNotEqual(self.debian.run(["cmp", HELPER, copy]).returncode, 0)
        self.debian.run([copy, "disconnect"], check=True)  # and the restore still works


class Removed(Case):
    def leftovers(self) -> str:
        return self.debian.shell(
            "find / -xdev \\( -iname '*veldmark*' -o -user _veldmark \\) ! -path '/var/local/*' ! -path '/var/lib/dpkg/*'"
            " ! -path '/home/*' ! -path '/root/*' ! -name '*veldmark-lab-ca*' 2>/dev/null; true"
            if "_veldmark" in self.debian.shell("cat /etc/passwd")
            else "find / -xdev -iname '*veldmark*' ! -path '/var/local/*' ! -path '/var/lib/dpkg/*' ! -path '/home/*'"
            " ! -path '/root/*' ! -name '*veldmark-lab-ca*'; ls -A /run | grep veldmark; true"
        )

    def test_while_connected_the_network_is_restored_first(self):
        for strict in (True, False):
            with self.subTest(strict=strict), CleanDebian(
                self.lab, self.base, f"removed-{strict}", over=self.installed
            ) as self.debian:
                self.debian.run([HELPER, "install-privileged", "--user", "alice"], check=True)
                with self.connected(strict=strict) as session:
                    self.dpkg("--remove", "veldmark", check=True, timeout=120)
                    self.assert_network_is_whole()
                    self.wait_for_word(session, "Not Protected")  # the running program has noticed
                    session.interrupt()
                for gone in (
                    "/etc/sudoers.d/veldmark",
                    "/usr/local/libexec/veldmark",
                    "/usr/share/veldmark",
                    "/var/lib/veldmark/run",
                    "/var/lib/veldmark/programs",
                    MARKER,
                ):
                    self.assertFalse(self.debian.path(gone).exists(), gone)
                self.assertEqual(self.debian.shell("find / -xdev -user _veldmark"), "")
                self.dpkg("--purge", "veldmark", check=True)
                self.assertNotIn("_veldmark", self.debian.shell("cat /etc/passwd /etc/group /etc/shadow"))
                self.assertEqual(self.leftovers(), "")

    def test_purging_while_connected_leaves_no_trace(self):
        etc = "find /etc -type f ! -name '*-' ! -name '.pwd.lock' -exec md5sum {} + | sort -k2"
        before = self.debian.shell(etc)
        with self.connected() as session:
            self.dpkg("--purge", "veldmark", check=True, timeout=120)
            self.assert_network_is_whole()
            self.wait_for_word(session, "Not Protected")
            session.interrupt()
        self.assertEqual(self.leftovers(), "")
        self.assertEqual(self.debian.shell(etc), before)

    def test_what_a_crash_left_behind_is_restored_too(self):
        with self.connected() as session:
            session.send(9)
            session.process.wait()
        self.assertFalse(self.direct())
        self.dpkg("--remove", "veldmark", check=True, timeout=120)
        self.assert_network_is_whole()

    def test_a_network_that_cannot_be_restored_keeps_the_package(self):
        with self.connected() as session:
            session.send(9)
            session.process.wait()
        self.debian.shell("mv /usr/sbin/nft /usr/sbin/nft.away")
        result = self.dpkg("--remove", "veldmark", timeout=120)
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("The program nft is missing on this system.", result.stderr)
        self.assertIn("veldmark: the network could not be restored, so the package stays.", result.stderr)
        self.assertFalse(self.direct())
        self.assertTrue(self.debian.path(HELPER).exists())
        self.debian.shell("mv /usr/sbin/nft.away /usr/sbin/nft")
        self.dpkg("--remove", "veldmark", check=True, timeout=120)
        self.assert_network_is_whole()

    def test_a_session_begun_while_the_package_goes_is_restored(self):
        hashed = self.debian.run(["tor", "--quiet", "--hash-password", "x"], check=True).stdout.strip()
        self.debian.run([HELPER, "connect", "--tor", "/usr/bin/tor", "--hash", hashed, "--strict", "1", "--lan", "0"], check=True)
        self.assert_filtered()
        ask = 'exec 3<>/dev/tcp/127.0.0.1/9051; printf "%s\\r\\n" "AUTHENTICATE \\"x\\"" "SETCONF HTTPSProxy=192.0.2.8:8" QUIT >&3; cat <&3'
        self.assertRegex(self.debian.run(["/usr/bin/bash", "-c", ask], check=True).stdout, r"\A250 OK\s+510 .*\s+250 ")
        scripts = "/var/lib/dpkg/info/veldmark"
        self.debian.run([f"{scripts}.prerm", "remove"], check=True)
        self.assert_network_is_whole()
        self.debian.run([HELPER, "connect", "--tor", "/usr/bin/tor", "--hash", hashed, "--strict", "1", "--lan", "0"], check=True)
        self.assertFalse(self.direct())
        self.debian.run(["rm", "-r", "/usr/share/veldmark"], check=True)
        self.debian.run([f"{scripts}.postrm", "remove"], check=True)
        self.assert_network_is_whole()
        self.assertFalse(self.debian.path("/var/lib/veldmark/leaving.sh").exists())

    def test_a_foreign_account_of_that_name_stays(self):
        self.debian.shell("useradd --system --comment 'Not yours' _veldmark")
        self.dpkg("--purge", "veldmark", check=True, timeout=120)
        self.assertIn("Not yours", self.debian.shell("getent passwd _veldmark"))


def main() -> None:
    package = PACKAGE or max((PROJECT / "build").glob("veldmark_*.deb"), default=None)
    if package is None:
        print("There is no package yet: ./build.sh package makes it.")
        sys.exit(SKIPPED)
    globals()["PACKAGE"] = package
    lab = Lab()
    try:
        Case.base = prepare(PROJECT / "build" / "debian12", package)
        with Moving("Starting the private Tor network"):
            lab.up()
    except (Unprepared, LabUnavailable) as reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    Case.lab = lab
    try:
        Case.installed = Case.install(lab, Case.base)
        program = unittest.main(exit=False, verbosity=2)
    finally:
        lab.down()
    sys.exit(not program.result.wasSuccessful())


if __name__ == "__main__":
    main()
