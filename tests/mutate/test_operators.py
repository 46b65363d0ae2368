"""The mistakes for the code: the variants of a line, and the lines that are left alone."""

import os
import re
import sys
import tempfile
import unittest
import unittest.mock
from pathlib import Path

sys.dont_write_bytecode = True
import operators
import run


def made(path, text, *line):
    """The variants of the whole text, or of its lines in a range (None: the line is removed)."""
    return {
        mutant.after if mutant.after is None else mutant.after.strip()
        for mutant in operators.mutants(path, text)
        if not line or mutant.line == line[0]
    }


def kinds(path, text):
    return {mutant.kind for mutant in operators.mutants(path, text)}


class Cpp(unittest.TestCase):
    def test_a_condition_is_negated_and_its_parts_are_changed(self):
        self.assertEqual(
            made("a.cpp", "    if (!a && b < 3)"),
            {"if (!(!a && b < 3))", "if (a && b < 3)", "if (!a || b < 3)", "if (!a && b <= 3)", "if (!a && b < 4)"},
        )

    def test_a_condition_after_a_declaration_is_negated_without_it(self):
        self.assertIn("if (const auto n = f(x); !(n))", made("a.cpp", "    if (const auto n = f(x); n)"))

    def test_statements_signals_and_early_returns_are_dropped(self):
        text = "void f()\n{\n    if (a)\n        return;\n    m_a.reset();\n    m_b = false;\n    Q_EMIT changed(1);\n    co_await g();\n    ++m_n;\n}\n"
        for line in (4, 5, 6, 7, 8, 9):
            self.assertIn("{}", made("a.cpp", text, line), text.split("\n")[line - 1])

    def test_declarations_parts_of_statements_and_last_returns_stay(self):
        text = "int f()\n{\n    int a = g();\n    h(a,\n      b);\n    auto c = a\n        + d();\n    return a;\n}\n"
        self.assertNotIn("{}", made("a.cpp", text))

    def test_texts_and_comments_are_left_alone(self):
        self.assertEqual(
            made("a.cpp", "    auto a = u\"if (x && 1)\"; // true && 2\n    /* 3 == 4\n   true */ auto c = u'7';"), set()
        )
        self.assertEqual(made("a.cpp", '    auto a = R"(if (1 < 2)\n true && 7)";'), set())
        self.assertEqual(made("a.cpp", "#if 1 == 2\nQ_ASSERT(1);"), set())

    def test_constants_are_swapped_with_another_of_their_kind(self):
        text = "    p = Phase::off;\n    q = Phase::on;"
        self.assertIn("p = Phase::on;", made("a.cpp", text, 1))
        self.assertIn("q = Phase::off;", made("a.cpp", text, 2))

    def test_numbers_and_times(self):
        self.assertIn("x = a;", made("a.cpp", "    x = a + 1;"))
        self.assertIn("f(100s);", made("a.cpp", "    f(100ms);"))
        self.assertEqual({"{}"}, made("a.cpp", "void f()\n{\n    x2.f(u8);\n}", 3))


class Qml(unittest.TestCase):
    def test_handlers_and_bindings_are_dropped_negated_and_mixed_up(self):
        text = "Item {\n    visible: model.a\n    onClicked: model.b()\n    text: model.c\n}"
        self.assertEqual(made("a.qml", text, 2), {None, "visible: !(model.a)", "visible: model.c"})
        self.assertEqual(made("a.qml", text, 3), {None})
        self.assertIn("handler dropped", kinds("a.qml", text))

    def test_what_names_an_object_stays(self):
        self.assertEqual(made("a.qml", "import QtQuick 2\nItem {\n    id: item1\n    required property bool on\n}"), set())


class Shell(unittest.TestCase):
    def test_what_guards_is_dropped(self):
        self.assertIn("a b", made("a.sh", "  a b || return 1"))
        self.assertIn("[[ $a == 1 ]]", made("a.sh", '  [[ $a == 1 ]] || die "No."'))

    def test_tests_are_negated_and_changed(self):
        found = made("a.sh", "  if [[ -z $a && $b == c ]]; then")
        self.assertLessEqual(
            {
                "if ! [[ -z $a && $b == c ]]; then",
                "if [[ -n $a && $b == c ]]; then",
                "if [[ -z $a && $b != c ]]; then",
                "if [[ -z $a || $b == c ]]; then",
            },
            found,
        )
        self.assertIn("if ! f; then", made("a.sh", "  if f; then"))
        self.assertIn("if f; then", made("a.sh", "  if ! f; then"))

    def test_options_and_numbers(self):
        found = made("a.sh", "  install -d -m 0700 --owner root $1 2>&1")
        self.assertIn("install  -m 0700 --owner root $1 2>&1", found)
        self.assertIn("install -d -m 0701 --owner root $1 2>&1", found)
        self.assertFalse([after for after in found if "3>" in after or ">&2" in after or "$2" in after], found)
        self.assertIn("return 0", made("a.sh", "f() {\n  return 1\n}", 2))

    def test_lines_are_dropped_also_in_texts_that_are_written(self):
        text = "  cat <<END\n  SocksPort 9050\nEND\n  f\n"
        self.assertEqual(made("a.sh", text, 2), {None, "SocksPort 9051"})
        self.assertEqual(made("a.sh", text, 3), set())
        self.assertEqual(made("a.sh", text, 4), {":"})

    def test_frames_and_comments_stay(self):
        self.assertEqual(made("a.sh", "# a || return 1\nf() {\n  local a\n  done\n  fi\n}\n"), set())


class Runs(unittest.TestCase):
    def test_a_seed_always_chooses_the_same_and_another_others(self):
        rooms = [run.Room("checks")]
        first, second, other = (run.chosen(rooms, seed, run.PROJECT)[:20] for seed in (1, 1, 2))
        self.assertEqual([entry[1:] for entry in first], [entry[1:] for entry in second])
        self.assertNotEqual([entry[1:] for entry in first], [entry[1:] for entry in other])

    def test_every_room_with_unit_tests_is_a_room(self):
        tested = {folder.name for folder in (run.PROJECT / "tests/unit").iterdir() if (folder / "CMakeLists.txt").is_file()}
        self.assertIn("report", tested)
        self.assertEqual(tested - set(run.ROOMS), set())
        self.assertEqual(tested - set(run.LOGIC), {"ui", "app", "cli"})
        for name in run.RESIDENT:
            self.assertRegex(f"unit/{name}/ATest", run.Room(name).tests[0])
            self.assertRegex("helper/" + run.RESIDENT[name].split("|", maxsplit=1)[0], run.Room(name).tests[0])

    def test_every_mistake_changes_one_line_of_a_real_file_and_no_other(self):
        files = [file for name in run.ROOMS for file in run.Room(name).files(run.PROJECT)]
        self.assertGreater(len(files), 100)
        for file in files:
            text = file.read_text()
            found = operators.mutants(str(file), text)
            for mutant in found[::20]:
                before, after = text.split("\n"), mutant.apply(text).split("\n")
                self.assertEqual(before[: mutant.line - 1], after[: mutant.line - 1])
                self.assertEqual(before[mutant.line :], after[mutant.line - (mutant.after is None) :])
                self.assertNotEqual(text, mutant.apply(text))

    def test_what_is_set_aside_is_known_by_its_lines(self):
        aside = run.Aside(
            "# A comment.\nsrc/a.cpp\n- x = 1;\n+ x = 2;\nit is a hint only\n\nb.qml\n- spacing: 3\nnothing is beside it\n"
        )
        text = "int x;\n\n    x = 1;\n"
        self.assertEqual(aside.reason("src/a.cpp", operators.Mutant(3, "    x = 1;", "    x = 2;", ""), text), "it is a hint only")
        self.assertEqual(
            aside.reason("b.qml", operators.Mutant(1, "  spacing: 3", None, ""), "  spacing: 3\n"), "nothing is beside it"
        )
        self.assertIsNone(aside.reason("src/a.cpp", operators.Mutant(3, "    x = 1;", "    x = 3;", ""), text))
        self.assertIsNone(aside.reason("src/b.cpp", operators.Mutant(3, "    x = 1;", "    x = 2;", ""), text))

    def test_what_is_set_aside_is_told_from_the_same_line_elsewhere(self):
        aside = run.Aside("src/a.cpp\n- if (a)\n- return;\n+ {}\nb() asks it again\n")
        text = "    if (a)\n        return;\n    if (c)\n        return;\n"
        self.assertEqual(
            aside.reason("src/a.cpp", operators.Mutant(2, "        return;", "        {}", ""), text), "b() asks it again"
        )
        self.assertIsNone(aside.reason("src/a.cpp", operators.Mutant(4, "        return;", "        {}", ""), text))

    def test_what_is_set_aside_can_still_be_made(self):
        for key, reason in run.Aside((run.HERE / "aside.txt").read_text()).known.items():
            one, path = run.Aside(""), key[0]
            one.known[key] = reason
            text = (run.PROJECT / path).read_text()
            found = any(one.reason(path, mutant, text) for mutant in operators.mutants(path, text))
            self.assertTrue(found, f"{path} has no such line any more: take it out of aside.txt: {key[1:]}")

    def test_a_checkout_of_another_user_is_cloned(self):
        if os.geteuid() != 0:
            self.skipTest("only root gives files to another user")
        folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        project = folder / "a checkout"
        project.mkdir()
        (project / "CMakeLists.txt").write_text("cmake_minimum_required(VERSION 3.25)\nproject(Small LANGUAGES NONE)\n")
        (project / "CMakePresets.json").write_text(
            '{"version": 6, "configurePresets": [{"name": "dev", "generator": "Ninja", "binaryDir": "${sourceDir}/build/dev"}]}'
        )
        git = ["git", "-C", project, "-c", "user.name=x", "-c", "user.email=x@example.test"]
        for words in (["init", "--quiet"], ["add", "."], ["commit", "--quiet", "--message", "x"]):
            run.subprocess.run(git + words, check=True)
        commit = run.subprocess.run(git + ["rev-parse", "HEAD"], check=True, capture_output=True, text=True).stdout.strip()
        run.subprocess.run(["chown", "-R", "4242:4242", project], check=True)
        told = run.subprocess.run(git + ["log"], capture_output=True, text=True, check=False)
        self.assertIn("dubious ownership", told.stderr)
        with unittest.mock.patch.multiple(run, PROJECT=project, ROOT=folder / "mutate"):
            for _ in range(2):  # the second time the clone exists
                clone = run.Clone("code")
                self.assertEqual(clone.commit, commit)
                self.assertTrue((clone.place / "CMakeLists.txt").exists())
                clone.lock.close()

    def test_what_the_helpers_tests_need_is_built(self):
        texts = [file.read_text() for file in (run.PROJECT / "tests/helper").glob("test_*.py")]
        needed = {name for text in texts for name in re.findall(r"build the target ([a-z-]+) first", text)}
        self.assertIn("veldmark-identify", needed)
        for name in run.HELPERS:
            for targets in run.Room(name).targets:
                self.assertLessEqual(needed, set(targets))

    def test_no_test_is_proved_on_the_last_mistake(self):
        """The file is as it was again, but what is built from it is not yet."""
        folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        source, built = folder / "file.sh", folder / "built"
        source.write_text("true\n")
        built.write_text("true\n")

        class Clone:
            place = folder

            @staticmethod
            def compile(targets):
                built.write_text(source.read_text())
                return 0, ""

        class Passing:
            usual = 0.0

            def __init__(self, name):
                self.name = name

            def run(self, clone, *case):
                return "" if built.read_text() == "true\n" else "a_case"

        proved = object.__new__(run.Proved)
        proved.clone, proved.targets, proved.ask_all, proved.note = Clone, [["all"]], False, folder / "times.json"
        proved.groups = [[Passing("helper/first")]]
        mistake = operators.Mutant(1, "true", "false", "")
        self.assertEqual(run.noticed_by(Clone, "file.sh", mistake, proved), "helper/first (a_case)")
        self.assertEqual((source.read_text(), built.read_text()), ("true\n", "false\n"))
        proved.groups = [[Passing("helper/second")]]
        self.assertEqual(run.noticed_by(Clone, "file.sh", mistake, proved), "helper/second (a_case)")

    def test_the_walls_hold(self):
        tried = run.subprocess.run(
            [run.HERE / "walls.sh", "/bin/bash", "-c", f"touch /tmp/mine && ! touch {run.HERE}/mine && echo /proc/[0-9]*"],
            capture_output=True,
            text=True,
            check=False,
        )
        if tried.returncode == 125 or "unshare" in tried.stderr:
            self.skipTest("no namespaces here")
        self.assertEqual(tried.returncode, 0, tried.stderr)
        self.assertLess(len(tried.stdout.split()), 5)
        self.assertFalse(Path("/tmp/mine").exists())


if __name__ == "__main__":
    unittest.main()
