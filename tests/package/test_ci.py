#!/usr/bin/python3
"""What continuous integration runs, and that each part counts. The verbs of build.sh are stand-ins; .ci/run is the real one."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
BUILD = """#!/bin/sh
echo "$*" >>called
[ ! -e "$1-hangs" ] || exec sleep 60
[ ! -e "$1-fails" ] || exit "$(cat "$1-fails")"
"""
# The real program, with a limit that a test can wait for.
TIMEOUT = """#!/bin/sh
echo "$2" >limit
shift 2
exec /usr/bin/timeout --kill-after=1 0.5 "$@"
"""


class Continuous(unittest.TestCase):
    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        for name, text in (("build.sh", BUILD), ("path/timeout", TIMEOUT)):
            file = self.folder / name
            file.parent.mkdir(exist_ok=True)
            file.write_text(text)
            file.chmod(0o755)
        (self.folder / ".ci").mkdir()
        shutil.copy(PROJECT / ".ci/run", self.folder / ".ci/run")

    def run_ci(self) -> tuple[int, str, list[str]]:
        (self.folder / "called").unlink(missing_ok=True)
        done = subprocess.run(
            [self.folder / ".ci/run"],
            cwd="/",
            env=os.environ | {"PATH": f"{self.folder}/path:{os.environ['PATH']}"},
            capture_output=True,
            text=True,
            check=False,
        )
        return done.returncode, done.stderr, (self.folder / "called").read_text().splitlines()

    def test_both_commands_run(self):
        self.assertEqual(self.run_ci(), (0, "", ["test", "fresh-test --quick demo"]))

    def test_a_failure_of_either_is_the_result(self):
        for verb, called in (("test", ["test"]), ("fresh-test", ["test", "fresh-test --quick demo"])):
            fails = self.folder / f"{verb}-fails"
            for status in (1, 3, 77):
                fails.write_text(str(status))
                self.assertEqual(self.run_ci(), (status, "", called))
            fails.unlink()

    def test_a_clean_debian_that_takes_too_long_is_told(self):
        (self.folder / "fresh-test-hangs").touch()
        status, said, called = self.run_ci()
        self.assertEqual((status, called), (124, ["test", "fresh-test --quick demo"]))
        minutes = int((self.folder / "limit").read_text()) // 60
        self.assertEqual(said, f".ci/run: the clean Debian took longer than {minutes} minutes\n")


if __name__ == "__main__":
    unittest.main()
