"""The German translation: every text of the sources is in it, finished, with the same place holders."""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as tree

LUPDATE = sys.argv.pop(1)
ROOT = pathlib.Path(__file__).resolve().parents[2]
FILE = ROOT / "resources" / "translations" / "veldmark_de.ts"


def messages(path):
    return list(tree.parse(path).iter("message"))


class Translation(unittest.TestCase):
    def test_no_text_is_missing(self):
        with tempfile.TemporaryDirectory() as folder:
            copy = pathlib.Path(folder) / FILE.name
            shutil.copy(FILE, copy)
            subprocess.run(
                [LUPDATE, "-silent", "-locations", "none", "-no-obsolete", "-I", "src", "-disable-heuristic",
                 "sametext", "-disable-heuristic", "similartext", "src/ui", "src/app", "src/doctor", "-ts", copy],
                cwd=ROOT, check=True)
            found = messages(copy)
            self.assertGreater(len(found), 200)
            for message in found:
                self.assertNotEqual(message.find("translation").get("type"), "unfinished",
                                    message.find("source").text)

    def test_what_says_how_safe_it_is_is_translated(self):
        """The session's own words come from rooms without translations; each stands in the list for the translators."""
        known = {message.find("source").text for context in tree.parse(FILE).iter("context")
                 if context.find("name").text == "Session" for message in context.iter("message")}
        for name in "checks/Verdict.cpp", "controller/KillSwitchWatch.cpp":
            text = re.sub(r'"\s*\n\s*"', "", (ROOT / "src" / name).read_text())
            words = [word for word in re.findall(r'QStringLiteral\("([^"]*)"\)', text) if re.match(r"[A-Z]", word)]
            self.assertGreater(len(words), 5)
            for word in words:
                self.assertIn(word, known)

    def test_place_holders_are_kept(self):
        for message in messages(FILE):
            source, translation = message.find("source").text, message.find("translation").text
            self.assertEqual(sorted(re.findall(r"%\d", source)), sorted(re.findall(r"%\d", translation)), source)


if __name__ == "__main__":
    unittest.main()
