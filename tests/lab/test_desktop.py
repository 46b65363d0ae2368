"""The real desktop application on an X server of its own, on the private Tor network. The test looks and clicks."""

import json
import signal
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import MARKER, OPEN_DEATH, PROGRAMS, REAL_NFT, SKIPPED, STRICT_DEATH, LabCase  # noqa: E402
from veldlab import desktop as person  # noqa: E402
from veldlab import requirements  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.product import Product, difference, is_probed  # noqa: E402

LOCK = "/run/veldmark.lock"


class DesktopCase(LabCase):
    """alice at her desktop, with the passwordless rule. Each test begins with the application running."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.as_root, cls.product = cls.product, Product(cls.lab, PROGRAMS, user=cls.lab.host.user)
        cls.allow()
        cls.desktop = cls.enterClassContext(person.Desktop(cls.lab, cls.lab.host.user))

    @classmethod
    def allow(cls):
        cls.as_root.run_helper("install-privileged", "--user", cls.lab.host.user, check=True)

    def setUp(self):
        self.lab.host.run(["rm", "-rf", f"/home/{self.lab.host.user}/.config/veldmark"], check=True)
        self.addCleanup(self.restore)
        self.desktop.forget_notifications()
        self.window = self.start()
        self.window.wait_for("heading", "Not Protected")  # the desktop's own services have started by now
        self.before = self.snapshot()

    def restore(self):
        """Restores the network after a failed test."""
        self.as_root.run_helper("disconnect", check=True)

    def start(self, *arguments, env=None):
        return self.enterContext(self.desktop.start(PROGRAMS, *arguments, env=env))

    def snapshot(self):
        """A snapshot without the application itself, which some tests end."""
        state = self.lab.host.snapshot()
        kept = [line for line in state["processes"].splitlines() if not line.endswith("/veldmark")]
        return state | {"processes": "\n".join(kept)}

    def assert_restored(self):
        self.assertFalse(self.lab.host.path(MARKER).exists(), "the session marker is still there")
        self.assertEqual(difference(self.before, self.snapshot()), "")

    def wait_state(self, condition, timeout=60):
        try:
            return self.product.wait_state(condition, timeout)
        except TimeoutError as error:
            self.fail(f"{error}\n{self.window.errors}")

    def connect(self):
        self.window.click("push button", "Connect to Tor")
        return self.wait_state(is_probed)


class ByClicking(DesktopCase):
    def test_connecting_losing_tor_and_restoring(self):
        state = self.connect()
        self.assertEqual((state["title"], state["activeMode"], state["torVerified"]), ("Protected", "strict", True))
        self.window.wait_for("heading", "Protected")
        self.assertIsNone(self.direct("-4"))
        shown = [node["name"] for node in self.window.nodes()]
        self.assertTrue(any(state["exitIP"] in name for name in shown), shown)

        self.window.click("push button", "Circuits")
        self.window.wait_for("frame", "Circuits")
        circuits = json.loads(self.product.run_verb("circuits", "--json", check=True).stdout)
        self.assertTrue(circuits)
        built = {f"Circuit {circuit['id']}" for circuit in circuits}
        listed = {node["name"] for node in self.window.nodes() if node["role"] == "list item"}
        self.assertTrue(built & listed, (built, listed))

        self.assertEqual(self.desktop.notifications, [])  # all of this was routine
        self.kill_tor()
        told = self.desktop.wait_notification("Tor stopped running")
        self.assertEqual((told["text"], told["urgency"]), (STRICT_DEATH, 2))
        self.window.wait_for("heading", "Needs Attention")
        shown = [node["name"] for node in self.window.nodes()]
        self.assertIn(STRICT_DEATH, shown)
        self.assertFalse([name for name in shown if state["exitIP"] in name or name == "No leaks"], shown)
        self.assertIsNone(self.direct("-4"))

        self.window.click("push button", "Restore Network")
        self.window.wait_for("heading", "Not Protected")
        self.assert_restored()
        self.assertEqual(self.direct("-4")["IP"], at.HOST_ADDRESS)
        self.assertEqual(len(self.desktop.notifications), 1)

    def circuits_shown(self):
        return {node["name"] for node in self.window.nodes() if node["role"] == "list item" and node["name"].startswith("Circuit ")}

    def test_the_circuits_are_kept_up_to_date_without_being_asked_for(self):
        state = self.connect()
        country = self.lab.tor.exits[state["exitIP"]].upper()
        # The panel shows the exit's country although no window shows circuits.
        self.window.wait_until(lambda: any(node["name"] == country for node in self.window.nodes()))
        self.window.click("push button", "Circuits")
        self.window.wait_for("frame", "Circuits")
        self.window.wait_until(self.circuits_shown)
        first = self.circuits_shown()
        self.product.run_verb("new-identity", check=True)
        with self.download(at.WEB_HOSTS[0]):
            self.window.wait_until(lambda: self.circuits_shown() - first)
            # The window and the command line show the same circuits, although "circuits" has not run. Not all rows need be visible.
            self.window.wait_until(
                lambda: first
                != self.circuits_shown()
                <= {f"Circuit {circuit['id']}" for circuit in self.product.status()["circuits"]}
            )
        # The window stays open and shows the next session, too.
        self.kill_tor()
        self.window.wait_for("heading", "Needs Attention")
        self.window.wait_until(lambda: not self.circuits_shown())
        self.window.click("push button", "Reconnect")
        self.wait_state(is_probed)
        self.window.wait_until(self.circuits_shown)
        self.window.click("push button", "Disconnect")
        self.window.wait_for("heading", "Not Protected")
        self.assert_restored()

    def test_rules_that_another_program_removed_are_told(self):
        self.connect()
        self.lab.host.run(["nft", "delete", "table", "inet", "veldmark"], check=True)
        told = self.desktop.wait_notification("Firewall rules were removed")
        self.assertIn("back in place", told["text"])
        self.assertIsNone(self.direct("-4"))
        self.window.click("push button", "Disconnect")
        self.window.wait_for("heading", "Not Protected")
        self.assert_restored()

    def test_a_kill_switch_that_cannot_be_closed_is_told_once(self):
        self.connect()
        self.wait_state(lambda s: not s["isChecking"])
        with self.broken_nft():
            self.lab.host.run([REAL_NFT, "delete", "table", "inet", "veldmark"], check=True)
            self.window.wait_for("heading", "Kill Switch Failed")
            self.desktop.wait_notification("Traffic can leave around Tor")
            time.sleep(8)  # the watcher tries again at least twice
            self.assertEqual(len(self.desktop.notifications), 1)
            shown = [node["name"] for node in self.window.nodes()]
            self.assertFalse([name for name in shown if "locked to Tor" in name or name in ("No leaks", "Protected")], shown)
            self.kill_tor()
            self.assertEqual(self.desktop.wait_notification("Tor stopped running")["text"], OPEN_DEATH)
            self.window.wait_for("heading", "Kill Switch Failed")
        self.desktop.wait_notification("Firewall rules were removed")
        self.window.wait_for("heading", "Needs Attention")
        self.window.click("push button", "Restore Network")
        self.window.wait_for("heading", "Not Protected")
        self.assert_restored()

    def test_a_leak_that_a_check_finds_is_told(self):
        self.connect()
        self.wait_state(lambda s: not s["isChecking"])
        self.lab.host.run(["umount", "/etc/resolv.conf"], check=True)  # a network manager writes the file like this
        self.window.click("push button", "Leak Test")
        self.desktop.wait_notification("Lookups can go around Tor")
        self.window.wait_for("heading", "DNS Leak")
        self.window.click("push button", "Fix DNS")
        self.window.wait_for("heading", "Protected")
        self.window.click("push button", "Disconnect")
        self.window.wait_for("heading", "Not Protected")
        self.assert_restored()


class BadCircumstances(DesktopCase):
    def as_root_run(self, *command):
        self.lab.host.run(command, check=True)

    def test_nobody_reads_its_memory(self):
        """Another program of the user can neither read the application's memory nor attach to it: the control password is in
        there."""
        read = 'for pid in $(pgrep -u $(id -u) -x "$0"); do head -c 1 /proc/$pid/environ >/dev/null || exit 1; done'
        for name, status in ("openbox", 0), ("veldmark", 1):
            self.assertEqual(self.lab.host.run(["sh", "-c", read, name], user=self.lab.host.user).returncode, status, name)

    def test_settings_that_cannot_be_saved_are_told_and_nothing_else_is_lost(self):
        config = f"/home/{self.lab.host.user}/.config"
        self.as_root_run("sh", "-c", f"rm -rf {config}; mkdir -m 555 {config}")
        self.addCleanup(self.as_root_run, "rm", "-rf", config)
        self.window.click("check box", "Optimize for speed")
        self.window.wait_for("alert", "The settings couldn't be saved. Changes to them may last only until you quit.")
        self.connect()
        self.window.click("push button", "Disconnect")
        self.window.wait_for("heading", "Not Protected")
        self.assert_restored()

    def test_a_home_without_a_place_for_the_instance_says_so_and_how_to_restore(self):
        self.connect()
        self.lab.host.run(["kill", "-KILL", str(self.window.pid)], check=True)
        self.window.wait()
        nowhere = {"HOME": "/nowhere", "XDG_RUNTIME_DIR": "/nowhere/run"}
        window = self.start(env=nowhere)
        window.wait_for("push button", "OK")
        own = [line for line in window.errors.splitlines() if line.startswith("veldmark: ")]  # Qt prints a message as well
        self.assertEqual(len(own), 1, window.errors)
        shown = " ".join(node["name"] + node["text"] for node in window.nodes())
        self.assertIn("veldmark-helper.sh disconnect", shown)
        window.click("push button", "OK")
        self.assertEqual(window.wait(), 1)
        self.window = self.start()
        self.window.click("push button", "Restore Network")
        self.window.wait_for("heading", "Not Protected")
        self.assert_restored()

    def test_the_windows_stand_where_they_were(self):
        self.window.click("push button", "Settings")
        frame = self.window.wait_for("frame", "Settings")
        self.desktop.run(
            ["xdotool", "search", "--name", "^Settings$", "windowmove", "300", "200", "windowsize", "800", "500"], check=True
        )
        self.window.wait_until(lambda: self.size_of("Settings") == (800, 500))
        moved = self.window.wait_for("frame", "Settings")
        self.assertNotEqual((moved["x"], moved["y"]), (frame["x"], frame["y"]))
        self.window.signal(signal.SIGTERM)
        self.assertEqual(self.window.wait(), 0)
        self.window = self.start()
        self.window.click("push button", "Settings")
        self.window.wait_until(lambda: self.size_of("Settings") == (800, 500))
        again = self.window.wait_for("frame", "Settings", state="active")
        self.assertEqual((again["x"], again["y"]), (moved["x"], moved["y"]))

    def size_of(self, title):
        frame = self.window.find("frame", title)
        return frame and (frame["width"], frame["height"])


class WithALoginManager(DesktopCase):
    """A lab of its own, with a system bus that can start polkit."""

    def setUp(self):
        super().setUp()
        self.login = self.enterContext(self.desktop.login_manager())
        self.window.signal(signal.SIGTERM)
        self.window.wait()
        self.window = self.start()
        self.window.wait_for("heading", "Not Protected")
        self.before = self.snapshot()  # with the bus

    def test_a_shutdown_waits_until_the_network_is_restored(self):
        self.assertNotIn("held", self.login.lines.all)  # the shutdown must not wait for an idle program
        self.connect()
        self.login.lines.wait(lambda line: line == "held")
        self.login.tell("shut down")
        self.login.lines.wait(lambda line: line == "released")
        self.assert_restored()
        self.assertEqual(self.product.status()["phase"], "disconnected")

    def test_after_a_sleep_tor_opens_its_connections_anew(self):
        """The connections of before may be dead without a word."""

        def closings():
            return self.product.run_verb("log", check=True).stdout.count("Shutting down all existing connections")

        self.connect()
        self.wait_state(lambda state: not state["isChecking"])
        before = closings()
        self.login.tell("wake up")
        self.window.wait_until(lambda: closings() > before, 20)
        state = self.wait_state(lambda state: is_probed(state) and not state["isChecking"])
        self.assertEqual((state["title"], state["torVerified"]), ("Protected", True))


class ToldToEnd(DesktopCase):
    def test_each_signal_restores_the_network_first(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=number.name):
                if number != signal.SIGTERM:
                    self.window = self.start()
                self.connect()
                self.assertIsNone(self.direct("-4"))
                self.window.signal(number)
                self.assertEqual((self.window.wait(), self.window.errors), (0, ""))
                self.assert_restored()
        self.assertEqual(self.desktop.notifications, [])

    def test_the_end_of_the_desktops_session(self):
        manager = self.desktop.start_session_manager()
        self.addCleanup(self.desktop.env.pop, "SESSION_MANAGER")
        self.window.signal(signal.SIGTERM)
        self.window.wait()
        self.before = self.snapshot()  # with the session manager
        self.window = self.start()
        manager.lines.wait(lambda line: line == "registered")
        self.connect()
        manager.tell("save")  # the first stage of a logout, which may still be cancelled
        manager.lines.wait(lambda line: line == "saved")
        self.assertEqual(self.product.status()["phase"], "connected")
        self.assertIsNone(self.direct("-4"))
        manager.tell("die")
        self.assertEqual((self.window.wait(), self.window.errors), (0, ""))
        manager.lines.wait(lambda line: line == "closed")
        self.assert_restored()

    def test_a_signal_while_tor_is_starting(self):
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/tor/data"], check=True)
        with self.lab.netem(loss=1.0):
            self.window.click("push button", "Connect to Tor")
            self.wait_state(lambda s: s["phase"] == "connecting")
            self.window.signal(signal.SIGTERM)
            self.assertEqual((self.window.wait(), self.window.errors), (0, ""))
        self.assert_restored()

    def test_the_second_signal_ends_at_once(self):
        self.connect()
        # A process holds the lock, so the helper waits as for another run.
        with self.lab.host.popen(
            ["flock", "--no-fork", LOCK, "sh", "-c", "echo held; exec sleep 600"], stdout=-1, text=True
        ) as holder:
            try:
                self.assertEqual(holder.stdout.readline(), "held\n")
                self.window.signal(signal.SIGTERM)
                self.wait_state(lambda s: s["phase"] == "disconnecting")
                self.window.signal(signal.SIGHUP)  # follows SIGTERM when a session ends
                self.assertEqual(self.product.status()["phase"], "disconnecting")
                began = time.monotonic()
                self.window.signal(signal.SIGTERM)
                self.assertEqual(self.window.wait(), 1)
                self.assertLess(time.monotonic() - began, 5)  # the helper waits 20 s for the lock
                self.assertTrue(self.lab.host.path(MARKER).exists())
                self.assertIn("The network is still set up for Tor. Restore it with: ", self.window.errors)
            finally:
                holder.kill()
        self.desktop.wait_notification("Your network is still set up for Tor")

    def test_without_the_right_to_restore_it_says_so_and_the_next_start_shows_it(self):
        self.connect()
        self.as_root.run_helper("uninstall-privileged", check=True)
        self.addCleanup(self.allow)
        self.window.signal(signal.SIGTERM)
        self.assertEqual(self.window.wait(), 1)
        self.assertIn("Restore it with: sudo ", self.window.errors)
        self.desktop.wait_notification("Your network is still set up for Tor")
        self.assertIsNone(self.direct("-4"))
        self.allow()
        self.window = self.start()
        self.window.wait_for("heading", "Needs Attention")
        self.window.click("push button", "Restore Network")
        self.window.wait_for("heading", "Not Protected")
        self.assert_restored()

    def test_a_display_that_goes_leaves_the_kill_switch_closed_and_the_next_start_shows_it(self):
        self.connect()
        self.desktop.kill_display()
        self.assertEqual(self.window.wait(), 1)
        self.assertIn("veldmark: Ended because the display is gone. Your network is still set up for Tor", self.window.errors)
        self.assertIsNone(self.direct("-4"))
        self.desktop.start_display()
        self.window = self.start()
        self.window.wait_for("heading", "Needs Attention")
        self.window.click("push button", "Restore Network")
        self.window.wait_for("heading", "Not Protected")
        self.assertFalse(self.lab.host.path(MARKER).exists())
        self.assertIsNotNone(self.direct("-4"))


if __name__ == "__main__":
    reason = requirements.missing() or person.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)
