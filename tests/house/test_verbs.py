#!/usr/bin/python3
"""Each verb of build.sh that compiles everything once more does so here for one room, so that none stops working unnoticed."""

import pathlib
import re
import subprocess
import sys
import tarfile
import unittest

ROOT = pathlib.Path(sys.argv.pop(1)).resolve()


class VerbsTest(unittest.TestCase):
    def verb(self, *words, status=0):
        """What build.sh says, its errors first."""
        done = subprocess.run([ROOT / "build.sh", *words], capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, status, done.stderr + done.stdout)
        return done.stderr + done.stdout

    def assert_passed(self, output, least):
        passed = re.search(r"100% tests passed, 0 tests failed out of (\d+)", output)
        self.assertTrue(passed, output)
        self.assertGreaterEqual(int(passed[1]), least)

    def test_the_sanitizers_and_the_count_of_lines(self):
        self.assert_passed(self.verb("asan", "base"), 7)
        output = self.verb("coverage", "base")
        self.assert_passed(output, 7)
        self.assertRegex(output, r"(?m)^base +9\d\.\d % of +\d{3} lines +goal 90$")
        self.assertNotIn("controller ", output)

    def test_the_thread_sanitizer(self):
        self.assert_passed(self.verb("tsan", "--quick"), 7)

    def test_the_source_archive(self):
        if subprocess.run(["git", "-c", f"safe.directory={ROOT}", "rev-parse", "HEAD"], cwd=ROOT, capture_output=True).returncode:
            self.skipTest("this is no git repository")
        made = self.verb("dist", "--quick").splitlines()[-1]
        with tarfile.open(ROOT / made) as archive:
            self.assertIn("build.sh", {pathlib.PurePath(name).name for name in archive.getnames()})

    def test_what_is_not_there_is_refused(self):
        self.assertIn("there is no room 'attic'; rooms: ", self.verb("asan", "attic", status=1))
        self.assertIn("dist has one option, --quick", self.verb("dist", "--fast", status=1))


if __name__ == "__main__":
    unittest.main()
