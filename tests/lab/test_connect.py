"""The main job on real Tor with the shipped programs: connect in both modes, disconnect, and failures in between.

    test_connect.py [--programs FOLDER] [unittest arguments]
"""

import os
import re
import signal
import subprocess
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab import topology as at  # noqa: E402
from veldlab.case import MARKER, PROGRAMS, PROXY_DEATH, SETTINGS, SKIPPED, STRICT_DEATH, LabCase  # noqa: E402
from veldlab.lab import PROJECT  # noqa: E402
from veldlab.product import Product, is_probed  # noqa: E402

# Listens at Tor's control port and prints the first line that it receives, first as Tor's account, then as nobody.
LISTENERS = """import os, pwd, signal, socket, subprocess
tor = pwd.getpwnam("_veldmark").pw_uid
subprocess.run(["pkill", "-KILL", "-u", str(tor)])
s = socket.socket(); s.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
while True:
    try: s.bind(("127.0.0.1", 9051)); break
    except OSError: pass
s.listen()
for uid in tor, 65534:
    os.seteuid(uid); c = s.accept()[0]; os.seteuid(0)
    c.settimeout(30); print(c.makefile().readline().strip(), flush=True); c.close()
"""

# Takes Tor's place at the control port as soon as it is free, and prints the first line that each client says.
FALSE_TOR = """import socket, time
s = socket.socket(); s.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
print("waits", flush=True)
while True:
    try: s.bind(("127.0.0.1", 9051)); break
    except OSError: time.sleep(0.001)
s.listen(); print("listens", flush=True)
while True:
    c = s.accept()[0]; c.settimeout(5)
    try: print(c.makefile().readline().strip(), flush=True)
    except OSError: pass
"""
INSTALLED = "/usr/local/libexec/veldmark/veldmark-helper.sh"
OWN_HASH = "16:" + "0123456789ABCDEF" * 3 + "0123456789"


class BothModes(LabCase):
    def test_strict_mode_goes_out_through_tor_alone(self):
        self.assertEqual(self.direct("-4")["IP"], at.HOST_ADDRESS)  # the probe leaves when nothing blocks it
        self.assertEqual(self.direct("-6")["IP"], at.HOST_ADDRESS6)
        with self.lab.capture() as capture, self.product.session() as session:
            state = session.wait(lambda s: s["phase"] == "connected" and not s["isChecking"] and s["exitIP"])
            self.assertEqual(state["title"], "Protected")
            self.assertEqual(state["statusDetail"], "All traffic is locked to Tor")
            self.assertEqual(state["activeMode"], "strict")
            self.assertIn(state["exitIP"], self.lab.tor.exits)
            self.assertIs(state["torVerified"], True)
            self.assertEqual(state["leakStatus"], "blocked")
            self.assertEqual(state["dnsStatus"], "throughTor")
            self.assertEqual(self.lab.host.read(MARKER), "strict\n")
            self.lab.host.run(["pgrep", "-u", "_veldmark", "-x", "veldmark-contro"], check=True)  # the filter, as with a package
            self.assertIsNone(self.direct("-4"))
            self.assertIsNone(self.direct("-6"))
            answer = self.through_tor()
            self.assertTrue(answer["IsTor"])
            seen = len(capture.packets)
            self.assertEqual(session.interrupt(), 0, session.output)
        # The router's own neighbour discovery on its link is not the host's.
        sent = [p for p in capture.packets[:seen] if p.out and p.family != "arp" and not p.src.startswith("fe80:")]
        strangers = {p.dst for p in sent} - at.RELAY_ADDRESSES
        self.assertEqual(strangers, set(), "packets that were not for a relay")
        self.assertTrue(any(p.out and p.dst in at.RELAY_ADDRESSES for p in capture.packets))
        self.assert_restored()
        self.assertEqual(self.direct("-4")["IP"], at.HOST_ADDRESS)

    def test_proxy_mode_leaves_the_direct_path_open_and_says_so(self):
        self.set("strictMode", "false")
        with self.product.session() as session:
            state = session.wait(lambda s: s["phase"] == "connected" and not s["isChecking"] and s["exitIP"])
            self.assertEqual(state["title"], "Proxy Active")
            self.assertEqual(state["statusDetail"], "Apps that use system proxy settings go through Tor")
            self.assertEqual(state["activeMode"], "proxy")
            self.assertEqual(self.lab.host.read(MARKER), "proxy\n")
            self.assertIn(state["leakStatus"], ({"exposed": at.HOST_ADDRESS}, {"exposed": at.HOST_ADDRESS6}))
            self.assertEqual(self.direct("-4")["IP"], at.HOST_ADDRESS)
            self.assertTrue(self.through_tor()["IsTor"])
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_tor_keeps_its_guards_between_sessions(self):
        guards = []
        for _ in range(2):
            with self.product.session() as session:
                session.wait_phase("connected")
                session.interrupt()
            state = self.lab.host.read("/var/lib/veldmark/run/tor/data/state")
            guards.append(
                [
                    line.split("rsa_id=")[1].split()[0]
                    for line in state.splitlines()
                    if line.startswith("Guard ") and "confirmed_on=" in line
                ]
            )
        self.assertTrue(guards[0])
        self.assertEqual(guards[0][0], guards[1][0])

    def test_an_exit_country_is_kept_to(self):
        self.set("exitCountry", "de")
        german = {address for address, country in self.lab.tor.exits.items() if country == "de"}
        with self.product.session() as session:
            session.wait(is_probed)
            self.assertIn(session.product.status()["exitIP"], german)
            for _ in range(3):
                self.product.run_verb("new-identity", check=True)
                self.assertIn(self.through_tor()["IP"], german)
            with self.download(at.WEB_HOSTS[0]):
                carrying = self.circuits_to(*at.WEB_SITES)
            for circuit in carrying:
                self.assertEqual(circuit["hops"][-1]["country"], "de")
        self.assert_restored()

    def test_connecting_again_switches_the_mode(self):
        with self.product.session() as session:
            session.wait(is_probed)
            self.kill_tor()
            session.wait_phase("stale")
            self.set("strictMode", "false")
            self.product.run_verb("connect", check=True)
            self.assertEqual(self.product.status()["activeMode"], "proxy")
            self.assertEqual(self.direct("-4")["IP"], at.HOST_ADDRESS)
        self.assert_restored()


class WhenThingsGoWrong(LabCase):
    def test_the_death_of_tor_is_noticed_and_strict_mode_stays_closed(self):
        with self.product.session() as session:
            session.wait(is_probed)
            self.kill_tor()
            state = session.wait_phase("stale")
            self.assertEqual(state["statusDetail"], "Tor stopped running")
            self.assertEqual(state["errorMessage"], STRICT_DEATH)
            self.assertEqual(state["title"], "Needs Attention")
            self.assertIsNone(self.direct("-4"))
            self.product.run_verb("restore", check=True)
            self.assertEqual(self.product.status()["phase"], "disconnected")
            self.assertEqual(self.direct("-4")["IP"], at.HOST_ADDRESS)
        self.assert_restored()

    def test_the_death_of_tor_in_proxy_mode_names_the_proxy(self):
        self.set("strictMode", "false")
        with self.product.session() as session:
            session.wait(is_probed)
            self.kill_tor()
            self.assertEqual(session.wait_phase("stale")["errorMessage"], PROXY_DEATH)
        self.assert_restored()

    def test_a_tor_that_hangs_is_noticed_too(self):
        with self.product.session() as session:
            session.wait(is_probed)
            self.kill_tor("STOP")
            self.assertEqual(session.wait_phase("stale")["errorMessage"], STRICT_DEATH)
        self.assert_restored()

    def test_disconnecting_during_the_bootstrap(self):
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/tor/data"], check=True)
        with self.lab.netem(loss=1.0), self.product.session() as session:
            state = session.wait(lambda s: s["canCancel"] and s["bootstrapProgress"] > 0)
            self.assertEqual(state["phase"], "connecting")
            self.product.run_verb("disconnect", check=True)
            self.assertEqual(self.product.status()["phase"], "disconnected")
            self.assertIsNone(self.product.status()["errorMessage"])
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_ctrl_c_during_the_bootstrap(self):
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/tor/data"], check=True)
        with self.lab.netem(loss=1.0), self.product.session() as session:
            session.wait(lambda s: s["phase"] == "connecting")
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_a_second_ctrl_c_does_not_leave_the_network_half_way(self):
        for delay in (0.0, 0.02, 0.1, 0.2):
            with self.subTest(delay=delay), self.product.session() as session:
                session.wait_phase("connected")
                session.send(signal.SIGINT)
                time.sleep(delay)  # an interrupt must work at any moment; these are four of them
                # At the end the signal may come so late that it ends the program by itself.
                self.assertIn(session.interrupt(), (0, -signal.SIGINT), session.output)
                self.assertTrue(session.lines[-1].startswith("Not Protected: "), session.output)
                self.assert_restored()

    def test_sigterm_disconnects(self):
        with self.product.session() as session:
            session.wait_phase("connected")
            self.assertEqual(session.interrupt(signal.SIGTERM), 0, session.output)
        self.assert_restored()

    def test_a_killed_program_leaves_a_stale_session_that_can_be_restored(self):
        with self.product.session() as session:
            session.wait_phase("connected")
            self.lab.host.run(["pkill", "-KILL", "veldmarkctl"], check=True)
            session.process.wait()
        self.assertIsNone(self.direct("-4"))  # the kill switch outlives the program
        state = self.product.status()
        self.assertEqual((state["phase"], state["activeMode"]), ("stale", "strict"))
        self.assertEqual(state["statusDetail"], "Your network is still set up for Tor from an earlier session")
        self.set("autoConnect", "true")
        with self.product.session(connect=False) as session:  # the program does not connect by itself over a leftover session
            self.assertEqual(session.wait_phase("stale")["activeMode"], "strict")
            self.product.run_verb("restore", check=True)
        self.assert_restored()

    def test_a_marker_with_another_word_has_no_mode(self):
        self.lab.host.write(MARKER, "perhaps\n")
        state = self.product.status()
        self.assertEqual((state["phase"], state["activeMode"]), ("stale", None))
        self.product.run_verb("restore", check=True)
        self.assert_restored()

    def test_restoring_without_anything_to_restore_is_fine(self):
        self.assertEqual(self.product.run_verb("restore").returncode, 0)
        self.assert_restored()

    def test_a_connection_that_is_wanted_at_the_start(self):
        self.set("autoConnect", "true")
        with self.product.session(connect=False) as session:
            session.wait_phase("connected")
        self.assert_restored()

    def test_a_tor_that_cannot_start_says_why(self):
        self.lab.host.write(
            "/usr/local/broken/tor",
            '#!/bin/sh\ncase " $* " in *hash-password*) exec /usr/bin/tor "$@";; esac\n'
            "echo '[err] The clock says it is yesterday.'; exit 1\n",
            mode=0o755,
        )
        self.addCleanup(self.lab.host.run, ["rm", "-rf", "/usr/local/broken"])
        self.set("customTorPath", "/usr/local/broken/tor")
        with self.product.session() as session:
            self.assertEqual(session.process.wait(30), 1)
        self.assertIn("The clock says it is yesterday.", session.output)
        self.lab.host.run(["rm", "-rf", "/usr/local/broken"])
        self.assert_restored()


class AnOrdinaryUser(LabCase):
    """alice is no administrator. She has the root-owned helper and its sudo rule, or does not."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.as_root, cls.product = cls.product, Product(cls.lab, PROGRAMS, user=cls.lab.host.user)

    def test_without_the_rule_and_without_polkit_one_line_says_so(self):
        result = self.product.run_verb("run", "--connect")
        self.assertEqual(result.returncode, 1)
        self.assertEqual(
            result.stderr, "veldmarkctl: Administrator access can't be asked for: " "polkit is not running on this system.\n"
        )
        self.assert_restored()

    def test_with_the_rule_no_password_is_needed(self):
        self.as_root.run_helper("install-privileged", "--user", self.lab.host.user, check=True)
        self.addCleanup(self.as_root.run_helper, "uninstall-privileged", check=True)
        self.before = self.lab.host.snapshot()
        self.assertIs(self.product.status()["passwordlessInstalled"], True)
        with self.product.session() as session:
            state = session.wait(lambda s: s["phase"] == "connected" and not s["isChecking"] and s["exitIP"])
            self.assertEqual((state["torVerified"], state["leakStatus"]), (True, "blocked"))
            log = self.product.run_verb("log", check=True).stdout  # the session's user may read Tor's log
            self.assertIn("Bootstrapped 100%", log)
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_a_hostile_program_does_not_have_an_open_network_called_protected(self):
        """It is the user's, in passwordless mode. It may not lessen the session. It may end it, and takes Tor's place at once."""
        self.as_root.run_helper("install-privileged", "--user", self.lab.host.user, check=True)
        self.addCleanup(self.as_root.run_helper, "uninstall-privileged", check=True)
        self.before = self.lab.host.snapshot()

        def by_rule(*words):
            return self.lab.host.run(["sudo", "-n", INSTALLED, *words], user=self.lab.host.user)

        with self.product.session() as session:
            session.wait(lambda s: is_probed(s) and s["title"] == "Protected")
            refused = by_rule("connect", "--tor", "/usr/bin/tor", "--hash", OWN_HASH, "--strict", "0", "--lan", "0")
            self.assertEqual(
                (refused.returncode, refused.stderr),
                (3, "ERROR: An administrator password is needed to change the running strict session.\n"),
            )
            self.assertIsNone(self.direct("-4"))
            self.assertEqual(self.product.status()["title"], "Protected")
            with self.lab.host.popen(
                ["/usr/bin/python3", "-c", FALSE_TOR], user=self.lab.host.user, stdout=subprocess.PIPE, text=True
            ) as false_tor:
                try:
                    self.assertEqual(false_tor.stdout.readline(), "waits\n")
                    ended = by_rule("disconnect")
                    moment = time.monotonic()
                    self.assertEqual((ended.returncode, ended.stderr), (0, ""))
                    self.assertEqual(false_tor.stdout.readline(), "listens\n")
                    state = session.wait(lambda s: s["title"] != "Protected", 3.5)
                    print(f"{state['title']} after {time.monotonic() - moment:.1f} s", flush=True)
                    self.assertEqual(self.direct("-4")["IP"], at.HOST_ADDRESS)  # the network is open
                    state = session.wait(lambda s: s["killSwitch"] == "open", 10)
                    self.assertEqual((state["title"], state["level"]), ("Kill Switch Failed", "danger"))
                    state = session.wait(lambda s: s["phase"] != "connected", 30)
                    self.assertEqual((state["title"], state["activeMode"]), ("Not Protected", None))
                finally:
                    false_tor.kill()
                self.assertEqual(set(false_tor.stdout.read().split()), set())  # nobody has told it the password
            session.interrupt()
        self.assert_restored()

    def test_the_password_is_nobody_elses_to_get(self):
        """The kill switch is removed, and another program listens in Tor's place. The first listener is of Tor's account and gets
        the password; the second is not and gets nothing. Other programs cannot read the password from the program's memory
        either."""
        self.as_root.run_helper("install-privileged", "--user", self.lab.host.user, check=True)
        self.addCleanup(self.as_root.run_helper, "uninstall-privileged", check=True)
        self.before = self.lab.host.snapshot()
        with self.product.session() as session:
            session.wait(is_probed)
            read = 'for pid in $(pgrep -u $(id -u) -x "$0"); do head -c 1 /proc/$pid/environ >/dev/null || exit 1; done'
            for name, status in ("sleep", 0), ("veldmarkctl", 1):
                with self.lab.host.popen(["sleep", "60"], user=self.lab.host.user) as sleeper:
                    self.assertEqual(self.lab.host.run(["sh", "-c", read, name], user=self.lab.host.user).returncode, status, name)
                    sleeper.kill()
            self.lab.host.run(["/bin/sh", "-c", "pkill -STOP -f watcher[.]sh; nft delete table inet veldmark"], check=True)
            heard = self.lab.host.run(["/usr/bin/python3", "-c", LISTENERS], check=True, timeout=60).stdout.splitlines()
            self.lab.host.run(["pkill", "-CONT", "-f", "watcher[.]sh"], check=True)
            self.assertRegex(heard[0], '^AUTHENTICATE "[0-9a-f]{64}"$')
            self.assertEqual(heard[1:], [""])
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()


class UnderTheLeakChecker(LabCase):
    """The shipped program under LeakSanitizer, ended at several moments. Exit status 23 would mean a memory leak."""

    LEFT = 23

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        checker = next(Path("/usr/lib").glob("*/liblsan.so.0"), None)
        forget = os.environ.get("VELDMARK_FORGET_PRELOAD", str(PROJECT / "build/dev/tests/ForgetPreload.so"))
        if checker is None:
            raise unittest.SkipTest("liblsan is not installed")
        env = {
            "LD_PRELOAD": cls.lab.host.preload(checker, forget),
            # Blanks separate the options, so the file's path is quoted.
            "LSAN_OPTIONS": f"suppressions='{PROJECT}/tests/lsan.supp':print_suppressions=0",
        }
        cls.product = Product(cls.lab, PROGRAMS, env=env)

    def end(self, session):
        status = session.interrupt(signal.SIGTERM, timeout=90)
        self.assertEqual(status, 0, session.output[-6000:])
        self.assertNotIn("LeakSanitizer", session.output)

    def test_the_checker_sees_what_is_lost(self):
        lose = "import ctypes; ctypes.CDLL(None).malloc(123456)"
        done = self.lab.host.run(["python3", "-c", lose], env=self.product.env)
        self.assertEqual(done.returncode, self.LEFT, done.stderr)

    def test_ready(self):
        with self.product.session(connect=False) as session:
            session.wait_phase("disconnected")
            self.end(session)

    def test_soon_after_the_start(self):
        for pause in (0.05, 0.3, 0.6, 1.2):
            with self.subTest(pause), self.product.session() as session:
                time.sleep(pause)
                session.send(signal.SIGTERM)
                # A signal before the handler's installation simply ends the program.
                self.assertIn(session.process.wait(90), (0, -signal.SIGTERM), session.output[-6000:])
                self.assertNotIn("LeakSanitizer", session.output)
        self.assert_restored()

    def test_while_it_bootstraps(self):
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/tor/data"], check=True)
        with self.lab.netem(loss=1.0), self.product.session() as session:
            session.wait(lambda s: s["phase"] == "connecting" and s["bootstrapProgress"] > 0)
            self.end(session)
        self.assert_restored()

    def test_during_the_checks(self):
        with self.product.session() as session:
            session.wait(lambda s: s["phase"] == "connected" and s["isChecking"])
            self.end(session)
            self.assertEqual(session.output.count("Restoring your network settings…"), 1, session.output)
        self.assert_restored()

    def test_with_a_client_that_follows(self):
        with self.product.session() as session:
            session.wait(lambda s: s["phase"] == "connected" and not s["isChecking"] and s["exitIP"])
            with self.lab.host.popen([self.product.ctl, "status", "--watch"], stdout=-3, stderr=-3) as following:
                self.product.run_verb("circuits", check=True)
                self.product.run_verb("new-identity", check=True)
                self.end(session)
                following.wait(20)
        self.assert_restored()


class OneInstanceAndBadInput(LabCase):
    def test_a_second_instance_says_that_one_is_running(self):
        with self.product.session(connect=False) as session:
            session.wait_phase("disconnected")
            second = self.product.run_verb("run")
            self.assertEqual(second.returncode, 4)
            self.assertRegex(second.stderr, r"^veldmarkctl: Veldmark is already running \(process \d+\)\.\n$")

    def test_the_socket_is_the_users_alone(self):
        with self.product.session(connect=False) as session:
            session.wait_phase("disconnected")
            found = self.lab.host.run(["find", "/root", "/run", "-name", "control", "-type", "s"], check=True)
            (socket,) = found.stdout.split()
            folder = self.lab.host.run(["stat", "-c", "%a %u", str(Path(socket).parent)], check=True).stdout.split()
            self.assertEqual(folder, ["700", "0"])
            as_alice = self.lab.host.run(["nc", "-U", "-N", socket], user=self.lab.host.user, input="{}\n")
            self.assertNotEqual(as_alice.returncode, 0)
            as_root = self.lab.host.run(["nc", "-U", "-N", socket], input='{"command": "status"}\n')
            self.assertIn('"phase":"disconnected"', as_root.stdout)

    def test_commands_without_an_instance(self):
        for verb in ("connect", "check", "circuits", "new-identity"):
            result = self.product.run_verb(verb)
            self.assertEqual((verb, result.returncode), (verb, 3))
            self.assertEqual(result.stderr.count("\n"), 1)

    def test_bad_words_get_one_line_and_status_2(self):
        for words in (
            ["frobnicate"],
            ["get", "nothing"],
            ["set", "exitCountry", "DE"],
            ["set", "exitCountry", "deu"],
            ["set", "nothing", "1"],
            ["set", "strictMode", "perhaps"],
            ["set", "bridgeChoice", "ftp"],
            ["status", "--xml"],
            ["get"],
            ["set", "strictMode"],
            [],
        ):
            result = self.product.run_verb(*words)
            self.assertEqual((words, result.returncode), (words, 2))
            self.assertEqual(result.stderr.count("\n"), 1, result.stderr)
            self.assertEqual(result.stdout, "")

    def test_settings_are_kept_and_read_back(self):
        self.set("exitCountry", "de")
        self.assertEqual(self.product.run_verb("get", "exitCountry", check=True).stdout, "de\n")
        self.assertEqual(self.product.status()["exitCountry"], "de")
        self.assertEqual(self.lab.host.run(["stat", "-c", "%a", SETTINGS], check=True).stdout, "600\n")

    def test_a_corrupt_settings_file_is_put_aside_and_said_once(self):
        self.lab.host.write(SETTINGS, os.urandom(300) + b"\0\xff=")
        first = self.product.run_verb("get", "strictMode")
        self.assertEqual((first.returncode, first.stdout), (0, "true\n"))
        self.assertEqual(first.stderr.count("\n"), 1, first.stderr)
        self.assertEqual(self.product.run_verb("get", "strictMode").stderr, "")
        names = sorted(p.name for p in self.lab.host.path("/root/.config/veldmark").iterdir())
        self.assertIn("veldmark.conf.broken", names)

    def test_status_prints_every_published_field(self):
        state = self.product.status()
        settings = re.search(r"Settings: (.*)\.", self.product.run_verb("set", "nothing", "1").stderr).group(1).split(", ")
        self.assertIn("strictMode", settings)
        self.assertLessEqual(set(settings), set(state))
        for field in (
            "ladder climbOffer separated latencyMs optimizeStatus isOptimizing transports activeBridge phase activeMode "
            "bootstrapProgress statusDetail exitIP torVerified leakStatus bytesRead bytesWritten isChecking canCancel "
            "errorMessage dnsStatus passwordlessInstalled startupError circuits circuitError transportDownload "
            "terminalError terminalHint settingsProblems"
        ).split():
            self.assertIn(field, state)
        self.assertEqual(state["leakStatus"], "notTested")
        self.assertIsNone(state["exitIP"])
        self.assertEqual(set(state["transports"]), {"lyrebird", "snowflake", "webtunnel", "builtin", "source"})


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)
