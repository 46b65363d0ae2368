#!/usr/bin/python3
"""The keys that labs share are complete or absent, last a week, and are readable by root only."""

import itertools
import sys
import tempfile
import time
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab import node_keys  # noqa: E402

NAMES, DAY, NOW = ["auth1", "exitde"], 24 * 3600, int(time.time())


class Keys(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.build = Path(folder.name, "build")
        self.build.mkdir()
        self.numbers = itertools.count()

    def lab(self, text="made"):
        """A lab's folder with keys of its own."""
        folder = self.build.parent / f"lab{next(self.numbers)}"
        for name in NAMES:
            (folder / name / "keys").mkdir(parents=True)
            (folder / name / "keys" / "secret").write_text(f"{text} {name}")
        return folder

    def empty_lab(self):
        folder = self.lab()
        for name in NAMES:
            (folder / name / "keys" / "secret").unlink()
            (folder / name / "keys").rmdir()
        return folder

    def take(self, now=NOW, names=NAMES):
        target = self.empty_lab()
        lines = node_keys.take(names, target, self.build, now)
        found = {path.parent.parent.name: path.read_text() for path in target.glob("*/keys/secret")}
        return lines, found

    def test_what_one_keeps_the_next_takes(self):
        self.assertEqual(self.take(), (None, {}))
        node_keys.keep(NAMES, self.lab(), "auth1 A B\n", self.build, NOW)
        self.assertEqual(self.take(), ("auth1 A B\n", {"auth1": "made auth1", "exitde": "made exitde"}))
        self.assertEqual((self.build / "lab-keys").stat().st_mode & 0o777, 0o700)

    def test_for_a_week(self):
        node_keys.keep(NAMES, self.lab(), "old\n", self.build, NOW)
        self.assertEqual(self.take(NOW + 6 * DAY)[0], "old\n")
        self.assertEqual(self.take(NOW + 8 * DAY), (None, {}))
        self.assertEqual(self.take(NOW - DAY), (None, {}))  # a clock that was set back
        node_keys.keep(NAMES, self.lab(), "new\n", self.build, NOW + 8 * DAY)
        self.assertEqual(self.take(NOW + 8 * DAY)[0], "new\n")

    def test_not_for_a_network_with_another_node(self):
        node_keys.keep(NAMES, self.lab(), "two\n", self.build, NOW)
        self.assertIsNone(self.take(names=[*NAMES, "another"])[0])

    def test_labs_side_by_side_keep_one_set(self):
        labs = [self.lab(f"lab {number}") for number in range(8)]
        with ThreadPoolExecutor(8) as pool:
            list(pool.map(lambda number: node_keys.keep(NAMES, labs[number], f"{number}\n", self.build, NOW), range(8)))
        self.assertEqual(len(list((self.build / "lab-keys").glob("*/identities"))), 1)
        lines, found = self.take()
        self.assertEqual(found, {name: f"lab {lines.strip()} {name}" for name in NAMES})

    def test_one_makes_them_and_the_others_wait(self):
        making, most = [], []

        def start(number):
            if self.take()[0] is not None:
                return
            with node_keys.one_at_a_time(self.build):
                if self.take()[0] is None:
                    making.append(number)
                    most.append(len(making))
                    time.sleep(0.05)
                    node_keys.keep(NAMES, labs[number], f"{number}\n", self.build, NOW)

        labs = [self.lab(f"lab {number}") for number in range(4)]
        with ThreadPoolExecutor(4) as pool:
            list(pool.map(start, range(4)))
        self.assertEqual(most, [1])
        with node_keys.one_at_a_time(self.build / "missing"):
            pass

    def test_half_a_set_is_none(self):
        node_keys.keep(NAMES, self.lab(), "half\n", self.build, NOW)
        (kept,) = (self.build / "lab-keys").glob("*/")
        (kept / "identities").unlink()
        self.assertEqual(self.take(), (None, {}))

    def test_where_nothing_can_be_kept_nothing_is_said(self):
        node_keys.keep(NAMES, self.lab(), "nowhere\n", self.build / "missing", NOW)
        self.assertEqual(node_keys.take(NAMES, self.empty_lab(), self.build / "missing", NOW), None)


if __name__ == "__main__":
    unittest.main()
