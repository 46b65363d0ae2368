"""The translations: every sentence that can reach a user is a text, is in each language's file, finished, with the same place holders."""

import functools
import pathlib
import re
import shutil
import sys
import tempfile
import unicodedata
import unittest
import xml.etree.ElementTree as tree

LUPDATE = sys.argv.pop(1)
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tools"))

from texts import FILES, update  # noqa: E402

SOURCES = ROOT / "src"


def messages(path):
    """Each message of a file with the name of its context."""
    for context in tree.parse(path).iter("context"):
        for message in context.iter("message"):
            yield context.find("name").text, message


@functools.cache
def updated(path):
    """The messages of a file after lupdate has read all sources; None where it removed one."""
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder) / path.name
        shutil.copy(path, copy)
        update(copy, LUPDATE, keep_old=True)
        return list(messages(copy))


STRINGS = r'((?:"(?:[^"\\]|\\.)*"\s*)+)'


def joined(strings):
    return "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', strings)).replace('\\"', '"').replace("\\\\", "\\")


# A string after one of these is a text for the translators.
TRANSLATED = re.compile(r'(?:\btr|\btranslate|QT_TRANSLATE_NOOP)\(\s*(?:"[^"]*",\s*)?$')
# A string after one of these is for programs or programmers.
FOR_PROGRAMS = re.compile(
    r"(?:qWarning|qFatal|QML_UNCREATABLE|says|contains|startsWith|QLatin1String|QRegularExpression \w+|installing)\("
    r"(?:QStringLiteral\(|QLatin1String\()?\s*$|[=(] ?u$|\{Package\{$|(?<!Text\()words : \{$|FirewallName\{\"[a-z-]+\", $|reason:@$|qCritical\(\) << $"
)
# Commands, paths, patterns, names and formats.
NO_WORDS = re.compile(
    r"(?:sudo|veldmarkctl|brew|SETCONF|do shell script|Match exec|execution error:) |\./build|--| --|/|\^|# |\[Desktop|yyyy"
    r"|Tor version \(|(?:\\n)*Tor (?:Browser|Expert Bundle)|your package manager$|the file manager$|This Mac$|\" with "
)
# Sources whose sentences go to a log. (The programs of the rooms launch, identify and controlfilter
# have no translations: the helper calls them.)
LOGGED = "checks/ExitCheckProbe.cpp", "checks/IPCheck.cpp"
# The report is English, for those who help.
REPORTED = (
    "report/ReportMaker.cpp",
    "report/Redactor.cpp",
    "report/SupportReport.cpp",
    "report/KnownSecrets.cpp",
    "report/SecretPatterns.cpp",
)


def sentences(path):
    """The strings of a source that look like sentences for people and are not translated, as far as a pattern can tell."""
    text = re.sub(r"(?m)^\s*#include.*$|(?<!:)//.*$", "", path.read_text())
    text = re.sub(r"'\\?\"'", "' '", re.sub(r'R"\(.*?\)"', '""', text, flags=re.DOTALL))
    for match in re.finditer(STRINGS, text):
        words, before = joined(match.group(1)), text[max(0, match.start() - 80) : match.start()]
        if (
            re.search(r"[A-Za-z]{2,}[ ,:;%]+[a-zA-Z%]", words)
            and " " in words
            and re.search("[a-z]{2}", words)
            and not TRANSLATED.search(before)
            and not FOR_PROGRAMS.search(before)
            and not NO_WORDS.match(words)
        ):
            yield words


class Helper(unittest.TestCase):
    """The helper and the launcher print English; HelperSentences has all their sentences."""

    @staticmethod
    def form(text, start):
        """The shell's string that begins at `start`, with %1… for its variables."""
        form, number, i = "", 0, start
        while text[i] != '"':
            if text[i] == "\\":
                form, i = form + text[i + 1], i + 2
                continue
            if text[i] != "$":
                form, i = form + text[i], i + 1
                continue
            number += 1
            form += f"%{number}"
            i += 1
            if text[i] not in "({":
                i += len(re.match(r"\w+", text[i:]).group())
                continue
            depth = 0
            while True:
                depth += (text[i] in "({") - (text[i] in ")}")
                i += 1
                if depth == 0:
                    break
        return form

    def said(self):
        for path in (ROOT / "resources" / "helper").glob("*.sh"):
            text = re.sub(r"(?m)^\s*#.*$", "", path.read_text())
            for match in re.finditer(
                r'(?:\b(?:die|unapproved|no_program|say) |\b(?:UNDONE|reason|STAYS_CLOSED)=(?:\$\{\w+:-)?)"', text
            ):
                yield self.form(text, match.end()).strip()
            yield from re.findall(r":-((?:[A-Z][a-z]+|it) [^}\"$]*\.)\}", text)
            yield from (words.replace("%s", "%1") for words in re.findall(r"printf '(a program [^']*)'", text))
            yield from (
                words.replace("%s (", "a program (").replace("%s", "%1")
                for words in re.findall(r"printf '(%s \(process %s\))'", text)
            )
        for path in (SOURCES / "launch").glob("*.cpp"):
            text = path.read_text()
            yield from re.findall(r'(?:fail\(\s*(?:errors,\s*)?|return\s+)"([A-Z][^"]*\.)"', text)
            yield from (words + "%1." for words in re.findall(r'fail\("([^"]*)" \+ \w+ \+ "\."\)', text))
            for start in re.findall(r'return sentence\("([^"]*)"', text):
                yield from (start + ".", start + " (%1).")

    def test_each_sentence_is_known(self):
        source = (SOURCES / "system" / "HelperSentences.cpp").read_text()
        listed = [
            joined(strings) for strings in re.findall(r'QT_TRANSLATE_NOOP\(\s*"veldmark::Text",\s*' + STRINGS + r"\)", source)
        ]
        known = set(listed)
        ordered = listed[: listed.index("The network stays blocked until you disconnect.")]  # it stands behind the list
        self.assertGreater(len(ordered), 120)
        self.assertEqual(ordered, sorted(ordered))
        said = {form for form in self.said() if not re.fullmatch(r"(?:%\d)+", form)}
        self.assertGreater(len(said), 120)
        self.assertEqual(sorted(said - known), [])
        self.assertEqual(sorted(known - said), [])


class Sentences(unittest.TestCase):
    def test_no_text_is_missing(self):
        for path in FILES:
            found = updated(path)
            self.assertGreater(len(found), 700)
            for context, message in found:
                with self.subTest(path.name, context=context, text=message.find("source").text):
                    self.assertNotEqual(message.find("translation").get("type"), "unfinished")

    def test_a_text_from_right_to_left_begins_there(self):
        """Its first letter decides in which direction a text is laid out."""

        def first(text):
            letters = (unicodedata.bidirectional(c) for c in re.sub("\u2068[^\u2069]*\u2069|%n", "", text))
            return next((letter for letter in letters if letter in ("L", "R", "AL")), None)

        self.assertEqual([first(text) for text in ("Tor \u0648", "\u200fTor \u0648", "\u2068Tor\u2069 \u0648")], ["L", "R", "AL"])
        for path in FILES:
            if path.stem.endswith(("_ar", "_fa")):
                for _, message in updated(path):
                    for text in message.find("translation").itertext():
                        if any(unicodedata.bidirectional(letter) == "AL" for letter in text):
                            with self.subTest(path.name, text=text):
                                self.assertNotEqual(first(text), "L")

    def test_french_keeps_its_marks_with_their_words(self):
        """A line never begins with a mark, or ends with a guillemet that opens."""
        wrong = re.compile(r"(?<![\u00a0\u202f:])[:;?!»](?=\s|$)|«(?![\u00a0\u202f])")
        self.assertTrue(
            wrong.search("Essayez : %1") and wrong.search("« %1\u00a0»") and not wrong.search("Essayez\u00a0: «\u00a0%1\u00a0»")
        )
        for path in FILES:
            if path.stem.endswith("_fr"):
                for _, message in updated(path):
                    for text in message.find("translation").itertext():
                        with self.subTest(text=text):
                            self.assertIsNone(wrong.search(text))

    def test_what_users_read_is_a_text(self):
        for path in sorted(SOURCES.rglob("*")):
            name = str(path.relative_to(SOURCES))
            if (
                path.suffix in (".cpp", ".h", ".mm")
                and not name.startswith(("launch/", "identify/", "controlfilter/"))
                and name not in LOGGED + REPORTED
            ):
                self.assertEqual(list(sentences(path)), [], name)

    def test_no_text_is_of_former_times(self):
        for path in FILES:
            for context, message in updated(path):
                with self.subTest(path.name, context=context, text=message.find("source").text):
                    self.assertNotIn(message.find("translation").get("type"), ("vanished", "obsolete"))

    def test_an_update_changes_nothing_else(self):
        for path in FILES:
            with self.subTest(path.name), tempfile.TemporaryDirectory() as folder:
                copy = pathlib.Path(folder) / path.name
                text = path.read_text()
                first = text.index("    <message>")
                without = text[:first] + text[text.index("</message>\n", first) + len("</message>\n") :]
                copy.write_text(without)  # one text is new
                update(copy, LUPDATE)
                self.assertIn('<translation type="unfinished">', copy.read_text())
                copy.write_text(text)
                update(copy, LUPDATE)
                self.assertEqual(copy.read_text(), text)

    def test_place_holders_are_kept(self):
        for path in FILES:
            for _, message in messages(path):
                source, translation = message.find("source").text, message.find("translation")
                forms = [form.text for form in translation.iter("numerusform")] or [translation.text]
                for number, form in enumerate(forms):
                    found = re.findall(r"%[\dn]", form)
                    if len(forms) == 6 and number < 3 and "%n" not in found:
                        found.append("%n")  # Arabic has words for none, one and two
                    self.assertEqual(sorted(re.findall(r"%[\dn]", source)), sorted(found), source)


if __name__ == "__main__":
    unittest.main()
