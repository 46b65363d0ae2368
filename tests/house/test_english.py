#!/usr/bin/python3
"""Documents, manual pages and comments name the thing: "the caller", "the helper", not an indefinite person."""

import re
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
VAGUE = re.compile(r"\b(?:whoever|somebody|as\s+ever)\b", re.IGNORECASE)
DOCUMENTS = "README.md", "CONTRIBUTING.md", "CHANGELOG.md", "docs/*.md", "packaging/man/*"
SOURCES = "src/**/*.h", "src/**/*.cpp", "src/**/*.mm", "src/**/*.qml"
SCRIPTS = "resources/helper/*.sh", "packaging/debian/*"
LITERAL_OR_COMMENT = re.compile(r'"(?:[^"\\\n]|\\.)*"|(//[^\n]*|/\*.*?\*/)', re.DOTALL)
SHELL_COMMENT = re.compile(r"(?:^|(?<=\s))#[^\n]*", re.MULTILINE)


def blanked(text: str, keep: re.Pattern, group: int) -> str:
    """The text with blanks in place of everything but these matches, so that numbers of lines stay."""
    kept = list(re.sub(r"[^\n]", " ", text))
    for match in keep.finditer(text):
        if match.group(group):
            kept[match.start(group) : match.end(group)] = match.group(group)
    return "".join(kept)


def words_of(path: Path) -> str:
    text = path.read_text(encoding="utf-8")
    if path.suffix in (".h", ".cpp", ".mm", ".qml"):
        # A phrase may go on in the next line's comment.
        return re.sub(r"//", "  ", blanked(text, LITERAL_OR_COMMENT, 1))
    if path.suffix == ".sh" or path.parent.name == "debian":
        return re.sub(r"(?m)^( *)#", r"\1 ", blanked(text, SHELL_COMMENT, 0))
    return text


def vague(text: str) -> list[tuple[int, str]]:
    return [(text.count("\n", 0, match.start()) + 1, match.group()) for match in VAGUE.finditer(text)]


class English(unittest.TestCase):
    def test_the_words_are_found(self):
        self.assertEqual(vague("Whoever asks\nwaits as\never; somebody_else, everybody"), [(1, "Whoever"), (2, "as\never")])
        source = 'call("somebody"); // as\n// ever\nint whoever; /* for\nsomebody */\n'
        self.assertEqual(len(vague(re.sub("//", "  ", blanked(source, LITERAL_OR_COMMENT, 1)))), 2)
        script = 'say "somebody"  # whoever asks\nsomebody=1\n'
        self.assertEqual(vague(blanked(script, SHELL_COMMENT, 0)), [(1, "whoever")])

    def test_documents_and_comments_do_without_them(self):
        files = sorted(path for pattern in (*DOCUMENTS, *SOURCES, *SCRIPTS) for path in PROJECT.glob(pattern) if path.is_file())
        self.assertGreater(len(files), 300)
        found = [f"{path.relative_to(PROJECT)}:{line}: {word}" for path in files for line, word in vague(words_of(path))]
        self.assertEqual(found, [])


if __name__ == "__main__":
    unittest.main()
