#!/usr/bin/python3
"""Texts name the thing: "the caller", "the helper", not an indefinite person. This holds for documents, comments, names and sentences."""

import re
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
# The noun "lookup" is one word; the verb "look up" is two.
WRONG = re.compile(r"whoever|somebody|\bas\s+ever\b|\blook[-_ ]ups\b|\blook-up\b|_look_ups?(?![a-z])|(?-i:lookUps)", re.IGNORECASE)
TOP = "README.md", "CONTRIBUTING.md", "CHANGELOG.md", "CMakeLists.txt", "build.sh", ".ci/run"
FOLDERS = "bench", "cmake", "docs", "fuzz", "packaging", "resources", "src", "tests", "tools"
# Translations have their English from src; the fuzzers' inputs are data.
OTHERS = {".ts", ".png", ".svg", ".icns", ".pyc"}
COMMENT = re.compile(r"(?m)^([ \t]*)(?://|#)")  # a phrase may go on in the next line's comment


def wrong(text: str) -> list[tuple[int, str]]:
    joined = COMMENT.sub(lambda match: match.group(1), text)
    return [(joined.count("\n", 0, match.start()) + 1, match.group()) for match in WRONG.finditer(joined)]


def texts() -> list[tuple[Path, str]]:
    files = [PROJECT / name for name in TOP] + [
        file for folder in FOLDERS for file in (PROJECT / folder).rglob("*") if file.is_file()
    ]
    own = Path(__file__).resolve()
    found = []
    for file in sorted(files):
        if file.suffix in OTHERS or "corpus" in file.parts or file == own:
            continue
        try:
            found.append((file, file.read_text(encoding="utf-8")))
        except UnicodeDecodeError:  # no text
            continue
    return found


class English(unittest.TestCase):
    def test_the_words_are_found(self):
        for text, expected in (
            ("Whoever asks\nwaits as\never; as everybody", [(1, "Whoever"), (2, "as\never")]),
            ('tr("so somebody has to approve it"); // as\n// ever', [(1, "somebody"), (1, "as\n ever")]),
            ("def test_not_for_somebody_else(self):\n    pass  # as\n    # ever", [(1, "somebody"), (2, "as\n     ever")]),
            (
                "chain look_ups {\na look-up, two look ups, test_look_up_by_name",
                [(1, "look_ups"), (2, "look-up"), (2, "look ups"), (2, "_look_up")],
            ),
            ("programs look up names; it looks up one lookup, and lookups; look_up(name)", []),
            ("void theSessionOfSomebodyElse()", [(1, "Somebody")]),
        ):
            found = wrong(text)
            self.assertEqual([word for _, word in found], [word for _, word in expected], text)
            self.assertEqual([line for line, _ in found][:1], [line for line, _ in expected][:1], text)

    def test_no_text_has_them(self):
        looked = texts()
        for folder in FOLDERS:
            self.assertTrue(any(folder == file.relative_to(PROJECT).parts[0] for file, _ in looked), folder)
        self.assertGreater(len(looked), 600)
        self.assertEqual([f"{file.relative_to(PROJECT)}:{line}: {word}" for file, text in looked for line, word in wrong(text)], [])


if __name__ == "__main__":
    unittest.main()
