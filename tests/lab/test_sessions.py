"""The computer has one session. Other instances, of the same user and of another one, see it and may end it within limits.

    test_sessions.py [unittest arguments]
"""

import contextlib
import hashlib
import os
import pty
import select
import signal
import subprocess
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import MARKER, PROGRAMS, SKIPPED, LabCase  # noqa: E402
from veldlab.product import Product, is_probed  # noqa: E402


class Sessions(LabCase):
    """alice has the passwordless rule. Root is the other user, and an administrator."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        user = cls.lab.host.user
        cls.root = cls.product
        cls.alice = Product(cls.lab, PROGRAMS, user=user)
        # Without a runtime folder, as in cron or after su, and with one that no other instance uses.
        cls.bare = Product(cls.lab, PROGRAMS, user=user, env={"XDG_RUNTIME_DIR": ""})
        cls.apart = Product(
            cls.lab, PROGRAMS, user=user, env={"XDG_RUNTIME_DIR": "/tmp/apart", "XDG_DATA_HOME": "/home/alice/apart"}
        )
        cls.root.run_helper("install-privileged", "--user", user, check=True)

    def setUp(self):
        self.lab.host.run(["rm", "-rf", "/home/alice/.config/veldmark", "/home/alice/apart", "/tmp/apart"], check=True)
        super().setUp()

    def tearDown(self):
        self.assertFalse(self.lab.host.path(MARKER).exists(), "the session marker is still there")

    def assert_stands(self, session):
        self.assertIsNone(session.process.poll(), session.output)
        self.assertEqual(self.lab.host.path(MARKER).read_text(), "strict\n")
        self.assertEqual(session.wait(is_probed)["phase"], "connected")
        self.assertIsNone(self.direct("-4"))

    def test_the_same_users_instance_is_found_without_the_runtime_folder(self):
        with self.alice.session() as session:
            session.wait(is_probed)
            self.assertEqual(self.bare.status()["phase"], "connected")
            second = self.bare.run_verb("run", "--connect")
            self.assertEqual((second.returncode, second.stderr.count("already running")), (4, 1), second.stderr)
            self.assertEqual(self.bare.run_verb("disconnect").returncode, 0)
            session.wait_phase("disconnected")
            self.assertEqual(session.interrupt(), 0)

    def test_an_instance_that_cannot_be_found_does_not_lose_its_session(self):
        with self.alice.session() as session:
            session.wait(is_probed)
            state = self.apart.status()
            self.assertEqual((state["phase"], state["otherSession"]["user"]), ("stale", "alice"))
            process = state["otherSession"]["process"]
            second = self.apart.run_verb("run", "--connect")
            self.assertEqual(second.returncode, 1, second.stderr)
            self.assertIn(f"Another Veldmark of yours is connected (process {process}).", second.stderr)
            self.assert_stands(session)
            with self.apart.session(connect=False) as idle:
                idle.wait(lambda s: s["otherSession"])
                self.assertEqual(idle.interrupt(signal.SIGINT), 0, idle.output)
            self.assert_stands(session)
            self.assertEqual(session.interrupt(), 0)

    def test_it_comes_and_goes_in_an_instance_at_rest(self):
        with self.apart.session(connect=False) as idle:
            idle.wait_phase("disconnected")
            with self.alice.session() as session:
                self.assertEqual(idle.wait(lambda s: s["otherSession"])["phase"], "stale")
                session.wait(is_probed)
                self.assertEqual(session.interrupt(), 0)
            self.assertIsNone(idle.wait_phase("disconnected")["otherSession"])

    def test_another_users_is_shown_and_not_ended_by_the_rule(self):
        with self.root.session() as session:
            session.wait(is_probed)
            state = self.alice.status()
            self.assertEqual((state["phase"], state["otherSession"]["user"]), ("stale", "root"))
            self.assertIn("root", self.alice.run_verb("status").stdout)
            for verb in ("restore",), ("disconnect",), ("run", "--connect"):
                done = self.alice.run_verb(*verb)
                self.assertEqual((done.returncode, done.stderr.count("\n")), (1, 1), done.stderr)
            self.assert_stands(session)
            self.assertEqual(session.interrupt(), 0)

    def test_an_administrator_ends_it(self):
        with self.alice.session() as session:
            session.wait(is_probed)
            self.assertEqual(self.root.status()["otherSession"]["user"], "alice")
            refused = self.root.run_verb("run", "--connect")
            self.assertEqual(refused.returncode, 1)
            self.assertIn("alice is connected with Veldmark", refused.stderr)
            self.assert_stands(session)
            self.assertEqual(self.root.run_verb("restore").returncode, 0)
            self.assertFalse(self.lab.host.path(MARKER).exists())
            session.wait_phase("disconnected")  # and alice's own sees it
            self.assertEqual(session.interrupt(), 0)

    @contextlib.contextmanager
    def sudo_at_a_terminal(self, *words):
        """alice's sudo of these words at a terminal of its own; gives the process and the terminal's other end."""
        terminal, inner = pty.openpty()
        process = self.lab.host.popen(
            ["setsid", "--ctty", "--wait", "sudo", "-n", self.root.ctl, *words],
            user="alice",
            stdin=inner,
            stdout=inner,
            stderr=inner,
        )
        os.close(inner)
        try:
            yield process, terminal
        finally:
            os.close(terminal)
            process.terminate()
            process.wait(30)

    def shown_until(self, terminal, words=None) -> str:
        """What the terminal shows up to these words, or up to the end of what runs there."""
        shown = ""
        with contextlib.suppress(OSError if words is None else ()):  # Linux reports this way that the other end is closed
            while words is None or words not in shown:
                self.assertTrue(select.select([terminal], [], [], 60)[0], shown)
                shown += os.read(terminal, 4096).decode()
        return shown

    def test_sudo_where_no_password_can_be_asked_for(self):
        """alice has her own right to sudo. The program's message names this way."""
        self.lab.host.run(
            [
                "/bin/sh",
                "-c",
                "echo 'alice ALL=(ALL) NOPASSWD: ALL' >/etc/sudoers.d/own; chmod 0440 /etc/sudoers.d/own;"
                "install -o alice -m 0755 /usr/bin/tor /home/alice/tor",
            ],
            check=True,
        )
        self.addCleanup(self.lab.host.run, ["rm", "-f", "/etc/sudoers.d/own", "/home/alice/tor", "/home/alice/opened"])
        self.addCleanup(self.lab.host.run, ["rm", "-rf", "/root/.config/veldmark"])

        def sudo(*words):
            return self.lab.host.run(["sudo", "-n", self.root.ctl, *words], user="alice")

        self.assertEqual(sudo("set", "customTorPath", "/home/alice/tor").returncode, 0)
        # Not a program of the system's: the user who types sudo's password sees what it is given for, and is asked.
        without = self.lab.host.run(["setsid", "--wait", "sudo", "-n", self.root.ctl, "run", "--connect"], user="alice", timeout=60)
        self.assertEqual(without.returncode, 1)
        self.assertIn("/home/alice/tor is not a program of the system, so an administrator has to approve it, but", without.stderr)
        digest = hashlib.sha256(self.lab.host.path("/home/alice/tor").read_bytes()).hexdigest()
        for typed, status, words in ((b"no\n", 1, "/home/alice/tor was not approved."), (b"\x03", 0, "")):
            with self.subTest(typed=typed), self.sudo_at_a_terminal("run", "--connect") as (running, terminal):
                shown = self.shown_until(terminal, "> ")
                self.assertIn(
                    f"/home/alice/tor as a part of Tor. No package of the system installed it. Its SHA-256 is {digest}.", shown
                )
                os.write(terminal, typed)
                self.assertIn(words, self.shown_until(terminal))
                self.assertEqual(running.wait(30), status)
        with self.sudo_at_a_terminal("run", "--connect") as (running, terminal):
            self.shown_until(terminal, "> ")
            self.lab.host.run(["sh", "-c", "echo >>/home/alice/tor"], check=True)
            os.write(terminal, b"yes\n")
            self.assertIn("The SHA-256 of the program /home/alice/tor differs from the one to approve.", self.shown_until(terminal))
            self.assertEqual(running.wait(30), 1)
        self.assertFalse(self.lab.host.path(MARKER).exists())
        self.assertEqual(self.lab.host.run(["find", "/var/lib/veldmark/programs", "-type", "f"]).stdout, "")
        with self.sudo_at_a_terminal("run", "--connect") as (running, terminal):
            self.shown_until(terminal, "> ")
            os.write(terminal, b"yes\n")
            self.root.wait_state(is_probed)
            program = self.lab.host.run(["/bin/sh", "-c", "readlink /proc/$(pgrep -u _veldmark -x tor)/exe"]).stdout
            self.assertRegex(program, r"^/var/lib/veldmark/programs/")
            self.lab.host.write("/usr/local/bin/opened", "#!/bin/sh\nid -un >/home/alice/opened\n", 0o755)
            self.assertEqual(sudo("launch", "/usr/local/bin/opened").returncode, 0)
            self.assertEqual(
                self.lab.host.run(
                    ["/bin/sh", "-c", "until [ -s /home/alice/opened ]; do sleep 0.05; done; cat /home/alice/opened"]
                ).stdout,
                "alice\n",
            )
            self.assertEqual(sudo("restore").returncode, 0)
            running.terminate()
        self.assertFalse(self.lab.host.path(MARKER).exists())


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)
