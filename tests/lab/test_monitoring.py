"""The shipped program shows the counters and Tor's log while a session runs."""

import re
import subprocess
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import OPEN_DEATH, REAL_NFT, SKIPPED, LabCase  # noqa: E402
from veldlab import shell  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.product import is_probed  # noqa: E402

AMOUNT = 3_000_000
NOTICES = "/var/lib/veldmark/run/notices.log"
STARTUP = "/var/lib/veldmark/run/start.out"


class Counters(LabCase):
    SHARED = True

    def connected(self):
        session = self.enterContext(self.product.session())
        session.wait(lambda s: is_probed(s) and s["bytesRead"] > 0)
        return session

    def test_they_move_with_the_traffic(self):
        session = self.connected()
        before = self.product.status()
        self.lab.host.run(
            ["curl", "-sS", "-o", "/dev/null", "--proxy", "socks5h://127.0.0.1:9050", f"http://{at.WEB_HOSTS[0]}/bytes/{AMOUNT}"],
            check=True,
        )
        after = session.wait(lambda s: s["bytesRead"] - before["bytesRead"] >= AMOUNT, 15)
        self.assertLess(after["bytesRead"] - before["bytesRead"], 3 * AMOUNT)
        self.assertGreater(after["bytesWritten"], before["bytesWritten"])

    def test_a_dead_tor_is_noticed_after_three_failed_reads(self):
        session = self.connected()
        moment = time.monotonic()
        self.kill_tor()
        session.wait_phase("stale")
        elapsed = time.monotonic() - moment
        self.assertGreater(elapsed, 3.5)  # the third read after the death is 4 to 6 seconds later
        self.assertLess(elapsed, 12)

    def test_a_tor_that_hangs_keeps_nobody_waiting(self):
        session = self.connected()
        self.kill_tor("STOP")
        self.addCleanup(self.lab.host.run, ["pkill", "-CONT", "-u", "_veldmark"])
        asked = self.product.run_verb("circuits", timeout=60)  # it runs while the monitor gives tor up
        self.assertEqual((asked.returncode, asked.stdout), (1, ""))
        self.assertEqual(len(asked.stderr.splitlines()), 1, asked.stderr)
        session.wait_phase("stale")


class KillSwitch(LabCase):
    """Another program removes rules. The messages must agree with the kernel's rules."""

    SHARED = True

    def address_seen_directly(self):
        answer = self.direct("-4", "--resolve", f"{at.CHECK_HOST}:443:{at.CHECK_ADDRESS}")
        return answer and answer["IP"]

    def assert_said_everywhere(self, session, title, detail):
        state = self.product.status()
        self.assertEqual((state["title"], state["statusDetail"]), (title, detail))
        self.assertEqual((state["level"], state["menuBarSymbol"]), ("danger", "exclamationmark.shield"))
        for name, value in (("title", title), ("statusDetail", detail), ("killSwitch", "open")):
            self.assertEqual(self.product.run_verb("get", name, check=True).stdout, value + "\n")
        report = self.product.run_verb("status", check=True).stdout
        self.assertEqual([line.strip() for line in report.splitlines()[:2]], [title, detail])
        self.assertRegex(report, r"\n  Kill switch +NOT BLOCKING since ")
        for claim in "locked to Tor", "only Tor's traffic", "blocked", "nothing leaked", "blocking traffic":
            self.assertNotIn(claim, report)
        self.assertIn(title, session.output)  # the running program has printed it by itself

    def test_an_open_one_is_never_called_closed(self):
        session = self.enterContext(self.product.session())
        state = session.wait(lambda s: is_probed(s) and not s["isChecking"])
        self.assertEqual((state["title"], state["level"], state["killSwitch"]), ("Protected", "good", "standing"))
        self.assertEqual(state["leakStatus"], "blocked")
        self.assertIsNone(self.address_seen_directly())
        opened = ("Kill Switch Failed", "Traffic may leave this computer directly")
        with self.broken_nft():
            self.lab.host.run([REAL_NFT, "delete", "table", "inet", "veldmark"], check=True)
            self.assertEqual(self.address_seen_directly(), at.HOST_ADDRESS)
            state = session.wait(lambda s: s["killSwitch"] == "open", 30)
            since = state["killSwitchSince"]
            self.assertIn("could not be put back", state["errorMessage"])
            self.assert_said_everywhere(session, *opened)
            self.product.run_verb("check", check=True)
            self.assert_said_everywhere(session, *opened)
            self.kill_tor()
            self.assertEqual(session.wait_phase("stale")["errorMessage"], OPEN_DEATH)
            self.assert_said_everywhere(session, *opened)
            note = self.lab.host.path("/run/veldmark.watch")
            tried = note.stat().st_mtime_ns
            while note.stat().st_mtime_ns == tried:  # the watcher tries again, and so does the test
                time.sleep(0.1)
            time.sleep(3)
            state = self.product.status()
            self.assertEqual((state["errorMessage"], state["killSwitchSince"]), (OPEN_DEATH, since))
            self.assertEqual(self.address_seen_directly(), at.HOST_ADDRESS)
        state = session.wait(lambda s: s["killSwitch"] == "putBack", 30)  # still watched, though Tor is dead
        self.assertEqual(state["title"], "Needs Attention")
        self.assertIn("blocking traffic again", state["errorMessage"])
        self.assertIsNone(self.address_seen_directly())
        self.product.run_verb("restore", check=True)
        self.assertIsNone(self.product.status()["killSwitch"])
        self.assertEqual(session.interrupt(), 0)
        self.assert_restored()

    def test_a_watcher_that_was_killed_is_missed(self):
        session = self.enterContext(self.product.session())
        session.wait(is_probed)
        self.lab.host.run(["pkill", "-KILL", "-f", "^/bin/bash -p -- /var/lib/veldmark/run/watcher.sh$"], check=True)
        moment = time.monotonic()
        state = session.wait(lambda s: s["killSwitch"] == "unknown", 60)
        print(f"the kill switch shows as unknown after {time.monotonic() - moment:.1f} s", flush=True)
        self.assertEqual((state["title"], state["level"]), ("Needs Attention", "warning"))
        self.assertNotIn("locked to Tor", state["statusDetail"])
        self.product.run_verb("fix-dns", check=True)  # fix-dns starts another watcher
        self.assertEqual(session.wait(lambda s: s["killSwitch"] == "standing" and not s["isChecking"], 30)["title"], "Protected")

    def test_proxy_mode_shows_nothing_of_a_strict_session_before_it(self):
        with self.product.session() as session:
            session.wait(is_probed)
            self.lab.host.run(["nft", "delete", "table", "inet", "veldmark"], check=True)
            session.wait(lambda s: s["killSwitch"] == "putBack", 30)
            session.process.kill()
            session.process.wait()
        self.set("strictMode", "false")
        session = self.enterContext(self.product.session())
        state = session.wait(is_probed)
        time.sleep(4)  # two looks
        state = self.product.status()
        self.assertEqual((state["title"], state["killSwitch"], state["errorMessage"]), ("Proxy Active", None, None))
        self.assertFalse(self.lab.host.path("/run/veldmark.watch").exists())


class Log(LabCase):
    SHARED = True

    def test_it_shows_how_tor_started(self):
        self.enterContext(self.product.session()).wait_phase("connected")
        shown = self.product.run_verb("log", check=True)
        self.assertRegex(shown.stdout, r"(?m)^[A-Z][a-z]{2} [ \d]\d [\d:.]+ \[notice\] Bootstrapped 100% \(done\): Done$")
        self.assertNotIn("\x1b", shown.stdout)
        lines = shown.stdout.splitlines()
        steps = [line for line in self.lab.host.read(NOTICES).splitlines() if "Bootstrapped" in line]
        self.assertTrue(steps)
        for line in steps:  # also when both files contain it
            self.assertEqual(lines.count(line.strip()), 1, line)
        for line in self.lab.host.read(STARTUP).splitlines():
            if line.strip():
                self.assertIn(line.strip(), lines)

    def test_another_users_log_is_closed(self):
        self.enterContext(self.product.session()).wait_phase("connected")
        refused = self.lab.host.run([self.product.ctl, "log"], user="alice")
        self.assertEqual((refused.returncode, refused.stdout), (1, ""))
        self.assertTrue(refused.stderr.startswith("veldmarkctl: Can't read Tor's log: "), refused.stderr)

    def test_problems_alone(self):
        self.enterContext(self.product.session()).wait_phase("connected")
        every = self.product.run_verb("log", check=True).stdout.splitlines()
        problems = self.product.run_verb("log", "--problems", check=True).stdout.splitlines()
        self.assertEqual([line for line in problems if "[notice]" in line], [])
        self.assertEqual(
            [line for line in every if re.search(r"\[(warn|err)\]", line)],
            [line for line in problems if re.search(r"\[(warn|err)\]", line)],
        )

    def test_a_tor_that_cannot_start_shows_its_reason(self):
        self.lab.host.write(
            "/usr/local/broken/tor",
            '#!/bin/sh\ncase " $* " in *hash-password*|*verify-config*) exec /usr/bin/tor "$@";; esac\n'
            "echo 'Nov 16 00:41:07.123 [err] The clock says it is yesterday.'; exit 1\n",
            mode=0o755,
        )
        self.addCleanup(self.lab.host.run, ["rm", "-f", "/usr/local/broken/tor"])
        self.set("customTorPath", "/usr/local/broken/tor")
        with self.product.session() as session:
            self.assertIn("The clock says it is yesterday.", session.wait_phase("stale")["errorMessage"])
            problems = self.product.run_verb("log", "--problems", check=True).stdout
        self.assertIn("[err] The clock says it is yesterday.", problems)

    def test_colours_are_for_terminals(self):
        self.enterContext(self.product.session()).wait_phase("connected")
        self.lab.host.run(["bash", "-c", f"echo 'Nov 16 00:41:07.123 [warn] Guard is down' >>{NOTICES}"], check=True)
        shell.prepare(self.lab, "root")
        with shell.Shell(self.lab, "bash", "root") as terminal:
            self.assertNotIn("\x1b", terminal.run(f"{self.product.ctl} log --problems"))  # TERM=dumb
            shown = terminal.run(f"TERM=xterm {self.product.ctl} log --problems")
        self.assertIn("\x1b[33m [warn] Guard is down\x1b[0m", shown)
        self.assertNotIn("\x1b", self.product.run_verb("log", "--problems", check=True).stdout)

    def test_following_shows_what_comes(self):
        self.enterContext(self.product.session()).wait_phase("connected")
        with self.lab.host.popen([self.product.ctl, "log", "--follow"], stdout=subprocess.PIPE, text=True) as follow:
            try:
                for line in follow.stdout:
                    if "Bootstrapped 100%" in line:
                        break
                self.lab.host.run(["bash", "-c", f"echo 'Nov 16 00:41:07.123 [warn] Guard is down' >>{NOTICES}"], check=True)
                rest = next(line for line in follow.stdout if "Guard" in line)
                self.assertEqual(rest, "Nov 16 00:41:07.123 [warn] Guard is down\n")
                # After a rotation the new lines of the new file are shown.
                rotate = f"mv {NOTICES} {NOTICES}.1; echo 'Nov 16 00:41:08.000 [notice] Again' >{NOTICES}"
                self.lab.host.run(["bash", "-c", rotate], check=True)
                self.assertTrue(any("Again" in line for line in follow.stdout))
            finally:
                follow.terminate()

    def test_no_log_is_said_in_one_line(self):
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run"], check=True)
        shown = self.product.run_verb("log")
        self.assertEqual((shown.returncode, shown.stdout), (0, ""))
        self.assertTrue(shown.stderr.startswith("veldmarkctl: No log yet"), shown.stderr)


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)
