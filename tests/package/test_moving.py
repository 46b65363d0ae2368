#!/usr/bin/python3
"""Whatever a verb does that takes longer than two seconds shows that it moves. What takes its time here is a stand-in that sleeps."""

import contextlib
import importlib.util
import io
import json
import os
import subprocess
import sys
import tempfile
import time
import types
import unittest
from pathlib import Path
from unittest import mock

sys.dont_write_bytecode = True
PROJECT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(PROJECT / part) for part in ("tools", "bench", "tests/package", "tests/lab", "tests/mutate")]

import moving  # noqa: E402
from moving import Moving, say  # noqa: E402

NAP = 0.5


def nap(*_, **__):
    time.sleep(NAP)


def module(path: str):
    """A program of the tree, by its path: several are called run.py."""
    spec = importlib.util.spec_from_file_location(path.replace("/", "_").removesuffix(".py"), PROJECT / path)
    loaded = importlib.util.module_from_spec(spec)
    with mock.patch.object(sys, "argv", [path]):
        spec.loader.exec_module(loaded)
    return loaded


class SlowLab(contextlib.AbstractContextManager):
    def __init__(self, *_, **__):
        pass

    def __enter__(self):
        nap()
        return self

    def __exit__(self, *_):
        pass

    up, down = nap, __exit__


class Case(unittest.TestCase):
    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))

    def patch(self, thing, **values):
        self.enterContext(mock.patch.multiple(thing, **values))

    def program(self, name: str, script: str) -> None:
        """A program of that name is the first on the path."""
        place = self.folder / "path" / name
        place.parent.mkdir(exist_ok=True)
        place.write_text(f"#!/bin/sh\n{script}\n")
        place.chmod(0o755)

    def path(self) -> str:
        return f"{self.folder}/path:{os.environ['PATH']}"


class ByItself(Case):
    SLOW = "from moving import Moving, say; import time\nwith Moving('Packing') as m:\n m.step(1, 4); time.sleep(2.6); say('half')"

    def terminal(self, script: str) -> str:
        self.folder.joinpath("shown.py").write_text(f"import sys; sys.path.insert(0, {str(PROJECT / 'tools')!r})\n{script}\n")
        command = f"/usr/bin/python3 -B {self.folder}/shown.py"
        told = subprocess.run(
            ["script", "-qec", command, "/dev/null"], stdin=subprocess.DEVNULL, capture_output=True, check=True, timeout=60
        ).stdout
        return told.decode().replace("\r\n", "\n")

    def test_a_terminal_gets_one_line_that_changes_and_goes(self):
        self.assertEqual(self.terminal(self.SLOW), "\rPacking: 1 of 4, 2 s \033[K\r\033[Khalf\n\r\033[K")

    def test_another_reader_gets_a_line_after_two_seconds(self):
        with contextlib.redirect_stdout(io.StringIO()) as told:
            with Moving("Packing") as packing:
                packing.step(1, 4)
                time.sleep(2.6)
                say("half")
        self.assertEqual(told.getvalue(), "Packing: 1 of 4, 2 s\nhalf\n")

    def test_what_is_short_shows_nothing(self):
        with contextlib.redirect_stdout(io.StringIO()) as told, Moving("Packing"):
            time.sleep(0.1)
        self.assertEqual(told.getvalue(), "")

    def test_of_one_in_another_the_inner_is_shown_once_it_takes_long(self):
        self.patch(moving, FIRST=0.4, EACH=0.2)
        with contextlib.redirect_stdout(io.StringIO()) as told, Moving(lambda: "outer"):
            for _ in range(8):
                with Moving("short"):
                    time.sleep(0.1)
            with Moving("long"):
                time.sleep(1.1)
        shown = [line.split(":")[0] for line in told.getvalue().splitlines()]
        self.assertEqual(shown[:2], ["outer", "outer"])
        self.assertEqual(shown[-3:], ["long"] * 3)
        self.assertNotIn("short", shown)


class Verbs(Case):
    """Each shows this line before what takes its time has ended."""

    def setUp(self):
        super().setUp()
        self.patch(moving, FIRST=0.2)
        self.enterContext(mock.patch.dict(os.environ, {"PATH": self.path()}))

    def shows(self, line: str, action) -> None:
        with contextlib.redirect_stdout(io.StringIO()) as told, contextlib.redirect_stderr(io.StringIO()):
            action()
        self.assertRegex(told.getvalue(), rf"(?m)^{line}\d+ s$")

    def main(self, program, *words: str):
        def run():
            with mock.patch.object(sys, "argv", ["program", *words]):
                program.main()

        return run

    def test_coverage(self):
        program = module("tests/coverage.py")
        self.patch(program, PROJECT=self.folder, BUILD=self.folder / "asan")
        (self.folder / "build/coverage").mkdir(parents=True)
        self.patch(program, unmarked_copy=lambda: self.folder)
        self.program("gcovr", f"sleep {NAP}; echo '{json.dumps({'files': []})}'")
        self.shows("Counting the lines that were run: ", self.main(program, "--no-run"))

    def test_package_test(self):
        program = module("tests/package/test_debian.py")
        self.patch(program, PACKAGE=self.folder / "x.deb", Lab=SlowLab, prepare=lambda *_: self.folder)
        self.patch(program.Case, install=staticmethod(lambda *_: None))
        ended = types.SimpleNamespace(result=types.SimpleNamespace(wasSuccessful=lambda: True))

        def run():
            with mock.patch.object(program.unittest, "main", lambda **_: ended), self.assertRaises(SystemExit):
                program.main()

        self.shows("Starting the private Tor network: ", run)

    def test_demo(self):
        program = module("tests/lab/demo.py")

        class DemoLab(SlowLab):
            timings = {"total": 1.0}
            host = mock.MagicMock()

            def __enter__(self):
                self.on_step("the relays start")
                return super().__enter__()

            def __init__(self, on_step):
                self.on_step = on_step

        self.patch(program, Lab=DemoLab, PROJECT=self.folder, Product=mock.Mock(), show_mode=mock.Mock())
        self.patch(program, ask_check_service=lambda *_: "no answer")
        self.shows("  the relays start: ", self.main(program, "network"))
        self.assertEqual(program.show_mode.call_count, 2)
        pictures = self.folder / "build/dev/tests/ui/veldmark-pictures"
        pictures.parent.mkdir(parents=True)
        pictures.write_text(f'#!/bin/sh\nmkdir "$1"; touch "$1/panel.png"; sleep {2 * NAP}\n')
        pictures.chmod(0o755)
        self.shows("  1 pictures drawn: ", self.main(program, "pictures"))
        self.assertIn("panel.png", (self.folder / "build/demo/index.html").read_text())

    def test_machine_test(self):
        """The lab and the cases: tests/package/test_machine.py. Here its base is made."""
        base = module("tests/machine/base.py")
        self.patch(base, FOLDER=self.folder, registry=lambda: "http://mirror.example.test/debian")
        self.program("debootstrap", f'sleep {NAP}; mkdir -p "$4/etc" "$4/usr/sbin" "$4/tmp"')
        self.program("chroot", f"sleep {NAP}")
        self.program("dpkg-deb", "echo tor")
        package = self.folder / "x.deb"
        package.touch()
        with contextlib.redirect_stdout(io.StringIO()) as told:
            base.prepare(package)
        for line in (
            "Fetching a minimal Debian from its registry",
            "Asking Debian's registry",
            "Installing a desktop",
            "Setting the machine up",
            "Clearing up",
            "Fetching what the package depends on",
        ):
            self.assertRegex(told.getvalue(), rf"(?m)^{line}: \d+ s$")

    def test_soak(self):
        program = module("tests/lab/soak.py")
        self.patch(program, Lab=SlowLab)
        nothing = ("--cycles", "0", "--hours", "0", "--rounds", "0")
        self.shows("Starting the private Tor network: ", self.main(program, *nothing, "--programs", str(self.folder)))
        self.patch(program, connect_only=nap, taken=lambda *_: {}, growth=lambda *_: [], difference=lambda *_: "")
        lab, product = mock.MagicMock(), mock.MagicMock(run_verb=nap)
        self.shows("Cycles: 1 of 1, ", lambda: program.cycles(lab, product, 1, 1, mock.Mock(random=lambda: 1)))

    def test_bench(self):
        program = module("bench/run.py")
        self.patch(program.importlib, import_module=lambda _: types.SimpleNamespace(run=nap))
        self.shows("parsing: ", self.main(program, "--quick", "--only", "parsing"))

    def test_fuzz(self):
        program = module("fuzz/run.py")
        self.patch(program, BUILD=str(self.folder), targets=lambda: ["ReplyFuzz"])
        report = {"name": "ReplyFuzz", "inputs": 1, "seconds": 1, "edges": 1, "failed": False, "log": ""}
        self.patch(program, fuzz=lambda *_, **__: nap() or report)

        def run():
            with self.assertRaises(SystemExit):
                self.main(program, "--short", "ReplyFuzz")()

        self.shows("ReplyFuzz: ", run)

    def test_mutate(self):
        program = module("tests/mutate/run.py")
        clone = program.Clone.__new__(program.Clone)
        clone.build = self.folder
        self.program("cmake", f"echo '[3/7] Building'; sleep {NAP}; echo 'it is broken: error: x'; exit 3")
        said = []
        self.shows("Compiling: 3 of 7, ", lambda: said.append(clone.compile(["x"])))
        self.assertEqual(said, [(3, "[3/7] Building\nit is broken: error: x\n")])
        proved = program.Proved.__new__(program.Proved)
        proved.clone, proved.note = clone, self.folder / "note"
        test = mock.Mock(run=lambda _: nap() or "")
        test.name = "unit/x"
        self.shows("unit/x without a mistake: ", lambda: proved.prove(test))
        self.patch(program, Clone=lambda _: mock.Mock(place=PROJECT), Proved=mock.Mock(), ROOT=self.folder)
        self.patch(program, noticed_by=lambda *_: nap() or "unit/x (y)")
        self.shows(r"1/1 src/base/.*:\d+: ", self.main(program, "base", "--count", "1"))


class Format(Case):
    def test_format(self):
        """The program is the whole verb, with formatters that sleep."""
        self.program("clang-format", "sleep 1.2")
        self.program("black", "sleep 1.2")
        told = subprocess.run(
            ["/usr/bin/python3", PROJECT / "tests/house/test_format.py", "--write"],
            capture_output=True,
            text=True,
            check=False,
            env=os.environ | {"PATH": self.path()},
        )
        self.assertEqual((told.stdout, told.stderr), ("Formatting: 2 s\n", ""))


class Apple(Case):
    def test_apple(self):
        """The program is the whole test, with a compiler that sleeps."""
        self.program("clang++-16", "sleep 2.2")
        source = self.folder / "src/one.cpp"
        source.parent.mkdir()
        source.write_text("int one;\n")
        entry = {"file": str(source), "command": f"c++ -I{self.folder} -c {source}"}
        (self.folder / "compile_commands.json").write_text(json.dumps([entry]))
        told = subprocess.run(
            ["/usr/bin/python3", PROJECT / "tests/house/test_apple.py", self.folder, self.folder, "one.cpp"],
            capture_output=True,
            text=True,
            check=False,
            env=os.environ | {"PATH": self.path()},
        ).stdout
        self.assertIn("Compiling the common headers: 2 s\n", told)
        self.assertRegex(told, r"(?m)^Checking sources: (\d of 2, )?2 s$")


if __name__ == "__main__":
    unittest.main()
