"""shellcheck finds nothing in any of the project's shell scripts, nor in the joined helpers.

Arguments: the project's folder and the helpers.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT, *HELPERS = (pathlib.Path(word).resolve() for word in sys.argv[1:])
del sys.argv[1:]
SHELL = re.compile(rb"#! *(?:/usr/bin/env +|/(?:usr/)?bin/)(?:ba|da)?sh\b")


def is_script(path):
    """The helper's parts are no scripts: they are checked as they are joined."""
    if path.parent == ROOT / "resources" / "helper" and path.name != "join.sh":
        return False
    with path.open("rb") as file:
        return path.suffix in (".sh", ".bash") or bool(SHELL.match(file.readline()))


def project_files():
    """Those of git, and new ones that it does not ignore. A source archive has no git."""
    git = ["git", "-c", "safe.directory=*", "-C", ROOT, "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
    listed = subprocess.run(git, capture_output=True, text=True, check=False)
    if listed.returncode == 0:
        return [ROOT / name for name in listed.stdout.split("\0") if name]
    return [path for path in ROOT.rglob("*") if path.relative_to(ROOT).parts[0] != "build"]


def findings(files):
    done = subprocess.run(["shellcheck", "-x", "-P", ROOT, *files], cwd=ROOT, capture_output=True, text=True, check=False)
    return done.stdout + done.stderr


class Shellcheck(unittest.TestCase):
    def test_a_mistake_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            script = pathlib.Path(folder, "script")
            script.write_text("#!/bin/sh\necho $1\n", encoding="ascii")
            self.assertTrue(is_script(script))
            self.assertIn("SC2086", findings([script]))
            script.write_text("#!/usr/bin/python3\n", encoding="ascii")
            self.assertFalse(is_script(script))

    def test_every_script(self):
        scripts = sorted(path for path in project_files() if path.is_file() and is_script(path))
        names = {str(path.relative_to(ROOT)) for path in scripts}
        # With a first line, without one, and without a suffix.
        self.assertLessEqual({"build.sh", "tools/deps.sh", ".ci/run", "packaging/debian/prerm"}, names)
        self.assertEqual(len(HELPERS), 2)
        self.assertEqual(findings([path.relative_to(ROOT) for path in scripts] + HELPERS), "")


if __name__ == "__main__":
    unittest.main()
