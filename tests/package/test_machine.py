#!/usr/bin/python3
"""The judgement of machine-test: its message where it cannot run, and its handling of cases that fail or cannot be tried.

The machines, the network and the cases are stand-ins; machine_test.py is the real one.
"""

import contextlib
import io
import re
import sys
import tempfile
import time
import types
import unittest
import unittest.mock
from pathlib import Path

sys.dont_write_bytecode = True
TESTS = Path(__file__).resolve().parents[1]
sys.path[:0] = [str(TESTS / "machine"), str(TESTS / "lab")]

import boot  # noqa: E402
import case_readme  # noqa: E402
import machine_test  # noqa: E402
from base import Unprepared  # noqa: E402
from stage import Broken, CannotRun, expect  # noqa: E402
from veldlab.lab import LabUnavailable  # noqa: E402


class FakeLab:
    refusal = ""
    downs = 0

    def up(self):
        if self.refusal:
            raise LabUnavailable(self.refusal)

    def down(self):
        FakeLab.downs += 1


class FakeStage(contextlib.AbstractContextManager):
    def __init__(self, *_):
        self.leases, self.note = self, ""

    def __exit__(self, *_):
        pass


def passes(stage):
    stage.note = "in no time"


def is_broken(_):
    expect(False, "the network does not work")


def cannot(_):
    raise CannotRun("no tunnel device here")


def crashes(_):
    raise KeyError("state")


def slow(_):
    time.sleep(2.5)


class Judgement(unittest.TestCase):
    def setUp(self):
        folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        FakeLab.refusal, FakeLab.downs = "", 0
        self.patch(machine_test, Lab=FakeLab, Stage=FakeStage, program=lambda: Path("/nspawn"))
        self.patch(machine_test.base, FOLDER=folder, prepare=lambda package, say: folder)
        self.patch(machine_test.case_install, install=passes)
        self.patch(machine_test.os, geteuid=lambda: 0)
        self.folder = folder

    def patch(self, thing, **values):
        self.enterContext(unittest.mock.patch.multiple(thing, **values))

    def run_main(self, cases=None, *words) -> tuple[int, str]:
        self.patch(machine_test, CASES=cases or {"one": passes})
        with (
            unittest.mock.patch.object(sys, "argv", ["machine_test.py", "x.deb", *words]),
            contextlib.redirect_stdout(io.StringIO()) as told,
            contextlib.redirect_stderr(io.StringIO()),
        ):
            status = machine_test.main()
        return status, told.getvalue()

    def refuses(self, line):
        status, told = self.run_main()
        self.assertEqual(status, 77)
        self.assertRegex(told, rf"\AThe machine test cannot run here: {line}\n\Z")

    def test_root_is_asked_for_before_anything_else(self):
        def prepare(*_):
            self.fail("it prepares something before it says that it needs root")

        self.patch(machine_test.base, prepare=prepare)
        self.patch(machine_test.os, geteuid=lambda: 1000)
        self.refuses(r"a machine is booted by root; run sudo \./build\.sh machine-test")

    def test_what_is_missing_is_said_in_a_line(self):
        FakeLab.refusal = "This system permits no namespaces."
        self.refuses(r"This system permits no namespaces\.")

        def no_registry(*_):
            raise Unprepared("The apt sources of this machine name no registry of Debian 12 (bookworm).")

        self.patch(machine_test.base, prepare=no_registry)
        self.refuses(r"The apt sources of this machine name no registry of Debian 12 \(bookworm\)\.")
        self.patch(machine_test, program=boot.program)
        self.patch(boot, NSPAWN=self.folder)
        with unittest.mock.patch.object(boot.Path, "exists", lambda _: False):
            self.refuses("systemd-nspawn is missing: ./build.sh machine-test fetches it, or run sudo apt install systemd-container")

    def test_the_base_names_what_it_lacks(self):
        base = machine_test.base
        with unittest.mock.patch.object(base.shutil, "which", lambda _: None):
            with self.assertRaisesRegex(Unprepared, r"^debootstrap is not installed; \./build\.sh deps does it$"):
                REAL_PREPARE(Path("x.deb"), lambda _: None)

    def test_each_result_has_its_row_and_its_status(self):
        good, broken, odd, untried = ({"a case": case} for case in (passes, is_broken, crashes, cannot))
        for cases, status, row in (
            (good, 0, "passed: in no time"),
            (broken, 1, "FAILED: the network does not work"),
            (odd, 1, "FAILED: KeyError: 'state'"),
            (untried, 2, "cannot run here: no tunnel device here"),
            ({"b": cannot, "a case": is_broken}, 1, "FAILED: the network does not work"),
        ):
            found, told = self.run_main(cases)
            self.assertEqual(found, status, told)
            self.assertIn(f"| a case | {row} | 0 |\n", (self.folder / "table.md").read_text())
            self.assertRegex(
                told, rf"{len(cases) + 1} cases, {int(status == 1)} failed, {int(cannot in cases.values())} could not be tried here"
            )
        self.assertEqual(FakeLab.downs, 5)

    def test_only_the_cases_with_one_of_the_words_run(self):
        _, told = self.run_main({"Xfce: one": passes, "sway: two": is_broken}, "xfce", "lxqt")
        self.assertIn("Xfce: one: passed", told)
        self.assertNotIn("sway", told)

    def test_a_case_shows_that_it_moves(self):
        self.assertIn("slow: 2 s\nslow: passed (", self.run_main({"slow": slow})[1])


class Readme(unittest.TestCase):
    """The README's first pages can be typed from the first line to the last."""

    LINES = [line for line in case_readme.commands("First connect") if line.startswith("veldmarkctl ")]

    def judge(self, line: str, status: int, said: str) -> None:
        done = types.SimpleNamespace(returncode=status, stdout=said, stderr="")
        with unittest.mock.patch.object(case_readme, "typed", lambda *_: done):
            case_readme.first_pages_command(None, line)

    def test_what_a_connection_locks_comes_after_it(self):
        header = (TESTS.parent / "src/controller/TorController.h").read_text()
        locked = set(re.findall(r'"(\w+)",\s*Scope::connection', header))
        self.assertIn("exitCountry", locked)
        begun = True
        for _, verb, *words in map(str.split, self.LINES):
            begun = begun and verb != "restore"
            stored = words[0] if verb == "set" else "customBridges" if verb == "add-bridges" else ""
            self.assertFalse(begun and stored in locked, f"{verb} {words} is refused while connected")
        self.assertFalse(begun)

    def test_the_files_that_they_read_are_there(self):
        named = {word for line in self.LINES for word in line.split()[2:] if "." in word}
        self.assertEqual(named, set(case_readme.FILES))

    def test_what_is_to_be_refused_is_refused_with_these_words(self):
        words = {line.split()[1]: line for line in self.LINES}
        self.assertIn(f'Text::tr("{case_readme.REFUSED["climb"]}")', (TESTS.parent / "src/controller/Ladder.cpp").read_text())
        for verb, answer in case_readme.REFUSED.items():
            self.judge(words[verb], 1, f"veldmarkctl: {answer}")
            for status, said in ((0, answer), (1, "something else")):
                with self.assertRaises(Broken):
                    self.judge(words[verb], status, said)
        self.judge("veldmarkctl status", 0, "")
        with self.assertRaises(Broken):
            self.judge("veldmarkctl status", 1, "")


REAL_PREPARE = machine_test.base.prepare

if __name__ == "__main__":
    unittest.main()
