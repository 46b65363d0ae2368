"""A room includes only itself and the rooms that it links, and docs/architecture.md names every room."""

import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(sys.argv.pop(1) if len(sys.argv) > 1 else __file__).resolve()
ROOT = ROOT if (ROOT / "src").is_dir() else ROOT.parents[2]
SOURCE = ROOT / "src"

INCLUDE = re.compile(r'^\s*#include "([a-z]+)/[^"]+"', re.MULTILINE)


def rooms():
    return sorted(p.name for p in SOURCE.iterdir() if (p / "CMakeLists.txt").exists())


def linked(room):
    text = (SOURCE / room / "CMakeLists.txt").read_text()
    match = re.search(r"\bROOMS\s+([a-z\s]+?)(?=[A-Z)])", text)
    named = set(match.group(1).split()) if match else set()
    for libraries in re.findall(r"target_link_libraries\(([^)]*)\)", text):
        named |= set(re.findall(r"\bveldmark_([a-z]+)", libraries)) & set(rooms())
    return named - {room}


def reachable(room):
    found, open_rooms = set(), {room}
    while open_rooms:
        current = open_rooms.pop()
        if current not in found:
            found.add(current)
            open_rooms |= linked(current)
    return found


class Rooms(unittest.TestCase):
    def test_there_are_rooms_and_they_include_each_other(self):
        self.assertIn("base", rooms())
        self.assertIn("base", reachable("control"))
        self.assertIn("plain", reachable("identify"))

    def test_no_room_links_itself_in_a_circle(self):
        for room in rooms():
            for below in linked(room):
                self.assertNotIn(room, reachable(below), f"{room} and {below} link each other")

    def test_a_room_includes_only_what_it_links(self):
        for room in rooms():
            allowed = reachable(room)
            for file in sorted((SOURCE / room).rglob("*")):
                if file.suffix not in (".h", ".cpp", ".mm"):
                    continue
                for included in INCLUDE.findall(file.read_text()):
                    self.assertIn(included, allowed, f"{file.relative_to(ROOT)} includes {included}/")

    def test_the_document_names_every_room(self):
        document = (ROOT / "docs" / "architecture.md").read_text()
        for room in rooms():
            self.assertRegex(document, rf"(?m)^  {room}/", f"docs/architecture.md does not name {room}/")

    def test_what_tests_share_is_no_test(self):
        """Its tests would run again in each module that imports it."""
        for file in (ROOT / "tests").rglob("*.py"):
            self.assertNotRegex(file.read_text(), r"(?m)^\s*(from|import) test_", str(file.relative_to(ROOT)))

    def test_one_source_sets_the_phase(self):
        assignment = re.compile(r"\bphase\s*=(?!=)|\bphase\.set\(")
        setting = {
            str(file.relative_to(SOURCE))
            for file in (SOURCE / "controller").glob("*.cpp")
            for line in file.read_text().splitlines()
            if assignment.search(line.split("//")[0]) and not re.search(r"ConnectionPhase phase\s*=|\.phase\s*=", line)
        }
        self.assertEqual(setting, {"controller/Phases.cpp"})


if __name__ == "__main__":
    unittest.main()
