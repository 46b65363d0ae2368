"""The administrator prompt: the real program asks the real polkit with the shipped policy, as an ordinary user.

    test_prompt.py [unittest arguments]

The programs, the helper and the policy are in the package's places. A small agent replaces the desktop's dialog.
"""

import contextlib
import json
import os
import pty
import subprocess
import sys
import termios
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab import topology as at  # noqa: E402
from veldlab.lab import PROJECT, Lab, LabUnavailable  # noqa: E402
from veldlab.product import Product, difference  # noqa: E402

PROGRAMS = Path(os.environ.get("VELDMARK_PROGRAMS", PROJECT / "build" / "bin"))
AGENT = Path(__file__).resolve().parent / "veldlab" / "polkit_agent.py"
POLICY = PROJECT / "packaging" / "org.veldmark.helper.policy"
HELPER = "/usr/share/veldmark/veldmark-helper.sh"
VERBS = ("connect", "replace", "approve", "disconnect", "fix-dns", "launch", "install-privileged", "uninstall-privileged")
NO_AGENT = (
    "veldmarkctl: Administrator access can't be asked for: no PolicyKit authentication agent is running in this " "session.\n"
)
SKIPPED = 77
# alice is the administrator and enters her own password, like the first user of a desktop.
RULES = 'polkit.addAdminRule(function(action, subject) { return ["unix-user:alice"]; });\n'


class Prompt(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.lab = Lab()
        cls.lab.up()
        cls.addClassCleanup(cls.lab.down)
        host = cls.lab.host
        for name in ("veldmarkctl", "veldmark-launch"):
            if (PROGRAMS / name).exists():
                host.write(f"/usr/bin/{name}", (PROGRAMS / name).read_bytes(), 0o755)
        host.write(HELPER, (PROGRAMS / "veldmark-helper.sh").read_bytes(), 0o755)
        Product(cls.lab, PROGRAMS).install_filter()
        host.write(f"/usr/share/polkit-1/actions/{POLICY.name}", POLICY.read_bytes())
        host.start_polkit(RULES)
        cls.product = Product(cls.lab, Path("/usr/bin"), user=host.user)

    def setUp(self):
        self.before = self.lab.host.snapshot()

    def assert_untouched(self):
        self.assertFalse(self.lab.host.path("/var/lib/veldmark/state/active").exists())
        self.assertEqual(difference(self.before, self.lab.host.snapshot()), "")

    @contextlib.contextmanager
    def agent(self, process: int, answer: str):
        """Yields the list of requests, which is filled when the agent has ended."""
        asked: list[dict] = []
        agent = self.lab.host.popen(
            [at.PYTHON, AGENT, process, answer, self.lab.host.user], user=self.lab.host.user, stdout=subprocess.PIPE, text=True
        )
        try:
            self.assertEqual(agent.stdout.readline(), "ready\n")
            yield asked
        finally:
            agent.terminate()
            asked += map(json.loads, agent.communicate(timeout=20)[0].splitlines())

    def pid(self, program: str) -> int:
        return int(self.lab.host.run(["pgrep", "-x", "-u", self.lab.host.user, program], check=True).stdout)

    @contextlib.contextmanager
    def session(self):
        with self.product.session(connect=False) as session:
            session.wait_phase("disconnected")
            yield session

    def test_an_approved_prompt_connects_and_disconnects(self):
        with self.session() as session:
            with self.agent(self.pid("veldmarkctl"), "approve") as asked:
                connect = self.product.run_verb("connect", timeout=90)
                self.assertEqual(connect.returncode, 0, connect.stderr)
                session.wait(lambda s: s["phase"] == "connected" and s["torVerified"])
                disconnect = self.product.run_verb("disconnect", timeout=60)
                self.assertEqual(disconnect.returncode, 0, disconnect.stderr)
            self.assertEqual(
                [request["action"] for request in asked], ["org.veldmark.helper.connect", "org.veldmark.helper.disconnect"]
            )
            self.assertEqual(
                [request["message"] for request in asked],
                [
                    "Veldmark needs administrator access to manage Tor routing on this computer. "
                    "While connected, Veldmark stops the system's own Tor service.",
                    "Veldmark needs administrator access to stop Tor and restore this computer's network.",
                ],
            )
            self.assertEqual(asked[0]["identities"], [self.lab.host.uid])
            session.interrupt()
        self.assert_untouched()

    def test_a_cancelled_prompt_is_silent(self):
        with self.session() as session:
            with self.agent(self.pid("veldmarkctl"), "cancel") as asked:
                connect = self.product.run_verb("connect", timeout=60)
                self.assertEqual((connect.returncode, connect.stderr), (1, "veldmarkctl: Cancelled.\n"))
            self.assertEqual(len(asked), 1)
            state = session.wait_phase("disconnected")
            self.assertIsNone(state["errorMessage"])
            session.interrupt()
        self.assert_untouched()

    def test_a_wrong_password_is_refused(self):
        with self.session() as session:
            with self.agent(self.pid("veldmarkctl"), "refuse") as asked:
                connect = self.product.run_verb("connect", timeout=60)
                self.assertEqual(
                    (connect.returncode, connect.stderr),
                    (1, "veldmarkctl: Administrator access was refused, or the agent that asks for the password gave no answer.\n"),
                )
            self.assertGreaterEqual(len(asked), 1)
            session.interrupt()
        self.assert_untouched()

    def test_without_an_agent_a_sentence_says_so(self):
        with self.session() as session:
            connect = self.product.run_verb("connect", timeout=60)
            self.assertEqual((connect.returncode, connect.stderr), (1, NO_AGENT))
            self.assertEqual(session.wait_phase("disconnected")["errorMessage"], NO_AGENT[len("veldmarkctl: ") : -1])
            session.interrupt()
        self.assert_untouched()

    def test_polkits_own_agent_on_a_terminal_asks_there(self):
        with self.session() as session:
            registered = "/home/alice/registered"  # pkttyagent closes it once it is registered with polkit
            self.lab.host.run(["mkfifo", registered], user=self.lab.host.user, check=True)
            command = f"exec pkttyagent --notify-fd 9 --process {self.pid('veldmarkctl')} 9>{registered}"
            terminal, inner = pty.openpty()
            agent = self.lab.host.popen(
                ["setsid", "--ctty", "--wait", "sh", "-c", command],
                user=self.lab.host.user,
                stdin=inner,
                stdout=inner,
                stderr=inner,
            )
            os.close(inner)
            try:
                self.lab.host.run(["cat", registered], user=self.lab.host.user, check=True, timeout=20)
                connect = self.lab.host.popen(
                    [self.product.ctl, "connect"],
                    user=self.lab.host.user,
                    stdout=subprocess.PIPE,
                    stderr=subprocess.STDOUT,
                    text=True,
                )
                shown = b""
                while b"Password: " not in shown:
                    shown += os.read(terminal, 4096)  # fails when the agent has ended
                self.assertIn(b"Veldmark needs administrator access to manage Tor routing on this computer.", shown)
                # pkttyagent drops the keys that were typed before it switched the echo off.
                while termios.tcgetattr(terminal)[3] & termios.ECHO:
                    time.sleep(0.01)
                os.write(terminal, self.lab.host.user.encode() + b"\n")
                output = connect.communicate(timeout=90)[0]
                self.assertEqual(connect.returncode, 0, output)
            finally:
                agent.terminate()
                agent.wait(20)
                os.close(terminal)
            with self.agent(self.pid("veldmarkctl"), "approve"):
                self.assertEqual(self.product.run_verb("disconnect", timeout=60).returncode, 0)
            self.lab.host.run(["rm", registered], check=True)
            session.interrupt()
        self.assert_untouched()

    def test_pkexecs_own_question_on_a_terminal_ends_with_a_sentence(self):
        terminal, inner = pty.openpty()
        run = self.lab.host.popen(
            ["setsid", "--ctty", "--wait", self.product.ctl, "run", "--connect"],
            user=self.lab.host.user,
            stdin=inner,
            stdout=inner,
            stderr=inner,
        )
        os.close(inner)
        shown = b""
        try:
            while b"Password: " not in shown:
                shown += os.read(terminal, 4096)
            self.assertIn(b"Veldmark needs administrator access to manage Tor routing on this computer.", shown)
            while termios.tcgetattr(terminal)[3] & termios.ECHO:
                time.sleep(0.01)
            os.write(terminal, self.lab.host.user.encode() + b"\n")
            with contextlib.suppress(OSError):  # Linux reports this way that the other end is closed
                while some := os.read(terminal, 4096):
                    shown += some
            self.assertEqual(run.wait(30), 1)
        finally:
            os.close(terminal)
        self.assertIn(
            "veldmarkctl: The password could not be checked: polkit accepts no password from this terminal. "
            "Run the command with sudo.\r\n",
            shown.decode(),
        )
        self.assert_untouched()

    def test_an_approval_is_not_kept_for_the_next_time(self):
        with self.session() as session:
            with self.agent(self.pid("veldmarkctl"), "approve") as asked:
                for _ in range(2):
                    self.assertEqual(self.product.run_verb("connect", timeout=90).returncode, 0)
                    self.assertEqual(self.product.run_verb("disconnect", timeout=60).returncode, 0)
            self.assertEqual(
                [request["action"].rpartition(".")[2] for request in asked], ["connect", "disconnect", "connect", "disconnect"]
            )
            session.interrupt()
        self.assert_untouched()

    def ask(self, *words: str) -> tuple[list[dict], int]:
        """The agent's requests when alice runs these words through pkexec, and pkexec's exit status."""
        shell = self.lab.host.popen(
            ["/bin/sh", "-c", 'echo $$; read line; pkexec "$@"; exit $?', "sh", *words],
            user=self.lab.host.user,
            session=True,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
        )
        with self.agent(int(shell.stdout.readline()), "cancel") as asked:
            shell.communicate("\n", timeout=30)
        return asked, shell.returncode

    def test_each_verb_has_an_action_of_its_own(self):
        for verb in VERBS:
            with self.subTest(verb):
                asked, status = self.ask(HELPER, verb, "--anything")
                self.assertEqual((asked[0]["action"], status), (f"org.veldmark.helper.{verb}", 126))
                self.assertTrue(asked[0]["message"].startswith("Veldmark needs administrator access to "))

    def test_the_prompt_shows_what_is_approved(self):
        digest = "0123456789abcdef" * 4
        for words, shown in (
            (["approve", "--program", "/home/alice/my tor", "--as", "tor", "--sha256", digest], ("/home/alice/my tor", digest)),
            (["launch", "--uid", "4242", "--app", "/usr/bin/some-app"], ("/usr/bin/some-app",)),
        ):
            with self.subTest(words[0]):
                asked, status = self.ask(HELPER, *words)
                self.assertEqual(status, 126)
                for part in shown:
                    self.assertIn(part, asked[0]["message"])

    def test_nothing_else_passes_for_the_helper(self):
        self.lab.host.write("/home/alice/veldmark-helper.sh", "#!/bin/sh\n", 0o755, self.lab.host.uid)
        self.lab.host.run(["ln", "-sf", HELPER, "/home/alice/link.sh"], user=self.lab.host.user, check=True)
        for words in (
            [HELPER],
            [HELPER, "frobnicate"],
            [HELPER, "connectx"],
            ["/bin/bash", HELPER, "connect"],
            ["/home/alice/veldmark-helper.sh", "connect"],
            ["/home/alice/link.sh", "connect"],
        ):
            with self.subTest(words):
                asked, status = self.ask(*words)
                self.assertEqual((asked[0]["action"], status), ("org.freedesktop.policykit.exec", 126))


if __name__ == "__main__":
    try:
        unittest.main(verbosity=2)
    except LabUnavailable as reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
