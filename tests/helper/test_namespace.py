"""The private machine itself: nothing of it is left, however its test ends."""

import os
import signal
import subprocess
import sys
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


if __name__ == "__main__":
    namespace.main()
