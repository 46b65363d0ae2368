"""Restoring the network without the program, by the README's own commands.

    test_by_hand.py [unittest arguments]
"""

import os
import re
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab import topology as at  # noqa: E402
from veldlab.lab import PROJECT, Lab, LabUnavailable  # noqa: E402
from veldlab.product import Product, difference  # noqa: E402

PROGRAMS = Path(os.environ.get("VELDMARK_PROGRAMS", PROJECT / "build" / "bin"))
HEADING = "## Getting the network back without the program"
SKIPPED = 77


def blocks() -> list[list[str]]:
    """The commands of each code block below the heading, without their comments."""
    part = (PROJECT / "README.md").read_text().split(HEADING)[1].split("\n## ")[0]
    return [
        [line.split("    #")[0].rstrip() for line in block.strip().splitlines()]
        for block in re.findall(r"```sh\n(.*?)```", part, re.DOTALL)
    ]


class ByHand(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.lab = Lab()
        cls.lab.up()
        cls.addClassCleanup(cls.lab.down)
        cls.product = Product(cls.lab, PROGRAMS)
        helper = (PROGRAMS / "veldmark-helper.sh").read_bytes()
        cls.lab.host.write("/usr/share/veldmark/veldmark-helper.sh", helper, 0o755)
        cls.product.install_identifier()
        cls.product.install_filter()

    def left_behind(self) -> dict[str, str]:
        """Makes a strict session and kills its program; returns the state before it."""
        before = self.lab.host.snapshot()
        self.assertTrue(self.direct())
        with self.product.session() as session:
            session.wait_phase("connected")
            session.send(9)
            session.process.wait()
        self.assertFalse(self.direct())
        return before

    def direct(self) -> bool:
        return self.lab.host.run(["curl", "-s", "--noproxy", "*", "--max-time", "5", at.CHECK_URL]).returncode == 0

    def test_the_helper_alone_restores_everything(self):
        before = self.left_behind()
        (command,) = blocks()[0]
        self.assertIn("veldmark-helper.sh disconnect", command)
        self.lab.host.run(["/bin/bash", "-c", command], check=True)
        self.assertEqual(difference(before, self.lab.host.snapshot()), "")
        self.assertTrue(self.direct())

    def test_without_the_helper_the_commands_open_the_network(self):
        before = self.left_behind()
        commands = blocks()[1]
        self.assertEqual(len(commands), 7)
        for command in commands:
            user = "root" if command.startswith("sudo ") else self.lab.host.user
            result = self.lab.host.run(["dbus-run-session", "/bin/bash", "-c", command], user=user)
            self.assertEqual((command, result.returncode), (command, 0), result.stderr)
        self.assertTrue(self.direct())
        deadline = time.monotonic() + 30  # the watcher checks every few seconds whether the session still exists
        while self.lab.host.run(["pgrep", "-f", "/run/watcher[.]sh"]).returncode == 0:
            self.assertLess(time.monotonic(), deadline, "the watcher lives on")
            time.sleep(0.1)
        self.assertTrue(self.direct())
        after = self.lab.host.snapshot()
        for section in ("nft", "resolv", "routes", "mounts", "listening", "processes"):
            self.assertEqual((section, after[section]), (section, before[section]))
        # The next disconnect cleans up the rest.
        self.product.run_helper("disconnect", check=True)
        self.assertEqual(difference(before, self.lab.host.snapshot()), "")

    def test_the_manual_has_the_same_commands(self):
        page = (PROJECT / "packaging/man/veldmark-helper.8").read_text()
        literal = page.split(".Bd -literal -offset indent\n")[1].split("\n.Ed")[0].splitlines()
        self.assertEqual(literal, blocks()[1])
        self.assertIn(blocks()[0][0], page)


if __name__ == "__main__":
    try:
        unittest.main(verbosity=2)
    except LabUnavailable as reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
