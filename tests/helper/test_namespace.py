"""The private machine itself: nothing of it is left after its test, also after a kill."""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import namespace

OWNER = (
    "import namespace\nwith namespace.Machine() as m: print(m.group, m.init.pid, flush=True); m.shell('sleep 1000', timeout=None)"
)


class Left(unittest.TestCase):
    def test_nothing_after_a_kill(self):
        for number in signal.SIGKILL, signal.SIGTERM, signal.SIGINT:
            with self.subTest(number):
                owner = subprocess.Popen(
                    [sys.executable, "-B", "-c", OWNER],
                    cwd=namespace.HERE,
                    stdout=subprocess.PIPE,
                    stderr=subprocess.DEVNULL,
                    text=True,
                    start_new_session=True,
                )
                group, init = owner.stdout.readline().split()
                self.assertTrue(os.path.isdir(group))
                with open(f"/proc/{init}/stat", encoding="ascii") as stat:
                    started = stat.read().split()[21]
                os.killpg(owner.pid, number)
                owner.wait()
                owner.stdout.close()
                self.wait(lambda: not os.path.exists(group), "its control group is left")
                self.wait(lambda: self.started(init) != started, "its first process is left")

    @staticmethod
    def started(pid):
        try:
            with open(f"/proc/{pid}/stat", encoding="ascii") as stat:
                fields = stat.read().rpartition(")")[2].split()
            return "" if fields[0] in "ZX" else fields[19]
        except OSError:
            return ""

    def wait(self, condition, words):
        for _ in range(2000):
            if condition():
                return
            time.sleep(0.01)
        self.fail(words)


class Place(unittest.TestCase):
    """A checkout that a machine would hide is refused with one line, and not by every test in its own words."""

    def main_of(self, folder, **environment):
        """The test program's own start, of the tests' support in that folder."""
        return subprocess.run(
            [sys.executable, "-B", "-c", "import namespace; namespace.main()"],
            cwd=folder,
            env={**{name: value for name, value in os.environ.items() if name != "VELDMARK_HELPER"}, **environment},
            capture_output=True,
            text=True,
            check=False,
        )

    def assertRefused(self, done, folder, path):
        self.assertEqual(
            (done.returncode, done.stdout, done.stderr),
            (
                1,
                f"The machines of these tests hide {folder}, and {path} is there: move the checkout to a folder such as /srv.\n",
                "",
            ),
        )

    def test_hidden_checkouts_are_refused(self):
        done = self.main_of(namespace.HERE)
        self.assertNotIn("hide", done.stdout)  # it would have run what there is
        self.assertIn("Ran 0 tests", done.stderr)
        for hidden in "/tmp", "/run", "/var/lib", "/home":
            with self.subTest(hidden), tempfile.TemporaryDirectory(dir=hidden) as folder:
                shutil.copy(namespace.__file__, folder)
                self.assertRefused(self.main_of(folder), hidden, folder)
                helper = f"{folder}/veldmark-helper.sh"
                self.assertRefused(self.main_of(namespace.HERE, VELDMARK_HELPER=helper), hidden, helper)

    def test_a_link_hides_nothing(self):
        with tempfile.TemporaryDirectory(dir="/var/tmp") as folder, tempfile.TemporaryDirectory() as hidden:
            os.symlink(hidden, f"{folder}/build")
            helper = f"{folder}/build/veldmark-helper.sh"
            self.assertRefused(self.main_of(namespace.HERE, VELDMARK_HELPER=helper), "/tmp", helper)


if __name__ == "__main__":
    namespace.main()
