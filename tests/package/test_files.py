"""The files that come with the programs are valid and agree with the programs and the helper."""

import json
import os
import re
import struct
import subprocess
import sys
import tempfile
import unicodedata
import unittest
import xml.etree.ElementTree as tree
from pathlib import Path

sys.dont_write_bytecode = True
ROOT = Path(__file__).resolve().parents[2]
PACKAGING = ROOT / "packaging"
PROGRAMS = Path(os.environ.get("VELDMARK_PROGRAMS", ROOT / "build" / "bin"))
POLICY = PACKAGING / "org.veldmark.helper.policy"
METAINFO = Path(os.environ.get("VELDMARK_METAINFO", ROOT / "build/dev/packaging/org.veldmark.Veldmark.metainfo.xml"))


def run(*words, **options):
    return subprocess.run(list(map(str, words)), capture_output=True, text=True, check=False, timeout=60, **options)


class InAHome(unittest.TestCase):
    """A home folder of its own, so that the test neither reads nor changes the caller's files."""

    def setUp(self):
        self.home = self.enterContext(tempfile.TemporaryDirectory())
        os.mkdir(f"{self.home}/run", 0o700)
        self.environment = {
            "HOME": self.home,
            "PATH": f"{PROGRAMS}:{os.environ['PATH']}",
            "LANG": "C.UTF-8",
            "XDG_RUNTIME_DIR": f"{self.home}/run",
            "QT_QPA_PLATFORM": "offscreen",
        }

    def ctl(self, *words):
        return run(PROGRAMS / "veldmarkctl", *words, env=self.environment)

    def commands(self) -> dict[str, set[str]]:
        """Each command of the usage text with its options."""
        usage = self.ctl("help").stdout
        found = {}
        for line in re.findall(r"(?m)^  ([a-z][a-z-]*(?: \S+)*)", usage):
            command, *rest = re.split(r"\s{2,}", line)[0].split()
            found[command] = {word.strip("[]") for word in rest if word.startswith("[--")}
        self.assertGreater(len(found), 10, usage)
        return found

    def fields(self) -> set[str]:
        return set(json.loads(self.ctl("status", "--json").stdout))

    def settings(self) -> set[str]:
        message = self.ctl("set", "nothing", "1").stderr
        return set(re.search(r"Settings: (.*)\.", message).group(1).split(", "))


class Language(InAHome):
    """veldmarkctl speaks the user's language to people and English to programs."""

    def setUp(self):
        super().setUp()
        self.environment["LANG"] = "de_DE.UTF-8"

    def test_people_read_their_language(self):
        self.assertTrue(self.ctl("status").stdout.startswith("Nicht geschützt\n"))
        self.assertIn("Aufruf: veldmarkctl BEFEHL", self.ctl("help").stdout)
        self.assertIn("Unbekannter Befehl", self.ctl("nothing").stderr)
        self.assertIn("Veldmark läuft nicht.", self.ctl("connect").stderr)
        self.environment["LANG"] = "C.UTF-8"
        self.assertTrue(self.ctl("status").stdout.startswith("Not Protected\n"))

    def test_programs_read_english(self):
        self.assertEqual(json.loads(self.ctl("status", "--json").stdout)["title"], "Not Protected")
        self.assertEqual(self.ctl("get", "title").stdout, "Not Protected\n")
        for finding in json.loads(self.ctl("doctor", "--json").stdout)["findings"]:
            self.assertNotRegex(finding["text"], "[äöüß]| ist ")

    def test_an_instance_of_another_language_is_understood(self):
        with subprocess.Popen(
            [PROGRAMS / "veldmarkctl", "run"], env={**self.environment, "LANG": "C.UTF-8"}, stdout=subprocess.PIPE, text=True
        ) as instance:
            try:
                self.assertTrue(instance.stdout.readline().startswith("Ready."))
                self.assertTrue(self.ctl("status").stdout.startswith("Nicht geschützt\n"))
                self.assertEqual(self.ctl("new-identity").stderr, "veldmarkctl: Nicht verbunden.\n")
                state = json.loads(self.ctl("status", "--json").stdout)
                self.assertEqual(state["title"], "Not Protected")
                self.assertNotIn("texts", state)
            finally:
                instance.terminate()


class Questions(InAHome):
    def test_what_the_application_only_tells_needs_no_display(self):
        program = PROGRAMS / "veldmark"
        nowhere = {name: value for name, value in self.environment.items() if name != "QT_QPA_PLATFORM"}
        self.assertNotEqual(run(program, "--hidden", env=nowhere).returncode, 0)  # there is none
        for question, answer in (("--help", "--hidden"), ("-h", "--hidden"), ("--version", "veldmark "), ("-v", "veldmark ")):
            result = run(program, question, env=nowhere)
            self.assertEqual((result.returncode, result.stderr), (0, ""), question)
            self.assertIn(answer, result.stdout)


class Completion(InAHome):
    def complete(self, *words: str) -> set[str]:
        """bash's completions after these words, of which the last is incomplete."""
        script = (
            f'source "{PACKAGING}/completions/veldmarkctl.bash"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); '
            'case $1 in veldmarkctl) _veldmarkctl ;; veldmark) _veldmark ;; esac; printf "%s\\n" "${COMPREPLY[@]}"'
        )
        result = run("/bin/bash", "--norc", "-c", script, "bash", *words, env=self.environment)
        self.assertEqual(result.stderr, "")
        return set(result.stdout.split())

    def test_bash_knows_the_commands_and_their_options(self):
        commands = self.commands()
        self.assertEqual(self.complete("veldmarkctl", ""), set(commands) | {"help", "--help", "--version"})
        for command, options in commands.items():
            if command not in ("get", "set", "add-bridges"):
                self.assertEqual((command, self.complete("veldmarkctl", command, "")), (command, options))
        self.assertEqual(self.complete("veldmarkctl", "st"), {"status"})
        self.assertEqual(self.complete("veldmarkctl", "add-bridges", "/etc/debian_v"), {"/etc/debian_version"})

    def test_bash_knows_the_fields_and_settings(self):
        self.assertEqual(self.complete("veldmarkctl", "get", ""), self.fields())
        self.assertEqual(self.complete("veldmarkctl", "set", ""), self.settings())

    def test_every_value_that_bash_offers_is_taken(self):
        texts = {"bypassApps", "customBridges", "customTorPath", "exitCountry"}
        self.assertLess(texts, self.settings())
        for setting in sorted(self.settings() - {"customTorPath"}):  # which offers files
            values = sorted(self.complete("veldmarkctl", "set", setting, ""))
            self.assertEqual((setting, len(values) >= 2), (setting, setting not in texts), values)
            for value in values:
                result = self.ctl("set", setting, value)
                self.assertEqual((setting, value, result.returncode), (setting, value, 0), result.stderr)

    def test_bash_knows_the_options_of_the_application(self):
        shown = run(PROGRAMS / "veldmark", "--help", env=self.environment).stdout
        options = set(re.findall(r"--[a-z]+", shown)) - {"--help-all"}  # without Qt's own options
        self.assertIn("--hidden", options)
        self.assertEqual(self.complete("veldmark", ""), options)

    def zsh(self, *words: str) -> set[str]:
        """zsh's completions without the help. Functions that print their arguments replace zsh's own."""
        script = (
            "_describe() { print -rl -- ${(P)@[-1]} }; _files() { print FILES }; _message() { }; service=veldmarkctl; "
            '_arguments() { if (( CURRENT == 2 )) { state=command } else { state=rest; words=("${(@)words[2,-1]}"); (( CURRENT -= 1 )) } }; '
            'words=("$@"); CURRENT=$#; source "$COMPLETION"'
        )
        result = run(
            "zsh",
            "-f",
            "-c",
            script,
            "zsh",
            *words,
            env={**self.environment, "COMPLETION": str(PACKAGING / "completions" / "_veldmarkctl")},
        )
        self.assertEqual(result.stderr, "")
        return {line.split(":")[0] for line in result.stdout.split("\n") if line}

    def test_zsh_offers_the_same_words(self):
        commands = self.commands()
        self.assertEqual(self.zsh("veldmarkctl", ""), set(commands) | {"help"})
        for command, options in commands.items():
            if command not in ("get", "set", "launch", "add-bridges"):
                self.assertEqual((command, self.zsh("veldmarkctl", command, "")), (command, options))
        self.assertEqual(self.zsh("veldmarkctl", "get", ""), self.fields())
        self.assertEqual(self.zsh("veldmarkctl", "set", ""), self.settings())
        self.assertEqual(self.zsh("veldmarkctl", "set", "bridgeChoice", ""), {"off", "obfs4", "snowflake", "meek", "custom"})
        self.assertEqual(self.zsh("veldmarkctl", "set", "customTorPath", ""), {"FILES"})
        self.assertEqual(self.zsh("veldmarkctl", "add-bridges", ""), {"FILES"})

    def test_each_word_has_its_help(self):
        for what in ("commands", "settings"):
            lines = self.ctl("complete", what).stdout.splitlines()
            self.assertGreater(len(lines), 5)
            for line in lines:
                self.assertRegex(line, r"^[A-Za-z-]+:[A-Za-z].{3,}")


class Manuals(InAHome):
    def page(self, name: str) -> str:
        """The page as a reader sees it, without line breaks."""
        shown = run("mandoc", "-Tutf8", "-O", "width=78", PACKAGING / "man" / name)
        plain = re.sub(r".\x08", "", shown.stdout)
        return " ".join(plain.split())

    def test_mandoc_has_no_complaint(self):
        for path in sorted((PACKAGING / "man").iterdir()):
            result = run("mandoc", "-Tlint", "-Wwarning", path)
            self.assertEqual((path.name, result.stdout, result.returncode), (path.name, "", 0))

    def test_veldmarkctl_tells_every_command_option_and_setting(self):
        source = (PACKAGING / "man" / "veldmarkctl.1").read_text()
        for command, options in self.commands().items():
            item = re.search(rf"(?m)^\.It Cm {command}\b(?!-)(.*)$", source)
            self.assertIsNotNone(item, command)
            self.assertEqual((command, {f"-{o}" for o in re.findall(r"Fl (-\w+)", item.group(1))}), (command, options))
        part = source.split(".Sh SETTINGS")[1].split(".Sh ")[0]
        self.assertEqual(set(re.findall(r"(?m)^\.It Cm (\w+)$", part)), self.settings())
        usage = self.ctl("help").stdout
        for status in range(5):
            self.assertRegex(usage, rf"\b{status} ")
            self.assertIn(f".It {status}\n", source)

    def test_veldmark_tells_its_options(self):
        shown = run(PROGRAMS / "veldmark", "--help", env=self.environment).stdout
        for option in set(re.findall(r"--[a-z]+", shown)) - {"--help-all"}:
            self.assertIn(option, self.page("veldmark.1"))

    def test_the_helper_tells_every_verb_and_option(self):
        head = (PROGRAMS / "veldmark-helper.sh").read_text().split("\n#\n")[1]
        page = self.page("veldmark-helper.8")
        words = set(re.findall(r"--[a-z][a-z0-9-]*", head)) | set(re.findall(r"veldmark-helper\.sh ([a-z-]+)", head))
        self.assertGreater(len(words), 15)
        for word in sorted(words):
            self.assertRegex(page, rf"(?<![\w-]){word}(?![\w-])")


class Metadata(InAHome):
    def test_the_desktop_entry_is_valid(self):
        result = run("desktop-file-validate", PACKAGING / "veldmark.desktop")
        self.assertEqual((result.stdout + result.stderr, result.returncode), ("", 0))

    def test_the_desktop_entry_runs_what_exists(self):
        options = run(PROGRAMS / "veldmark", "--help", env=self.environment).stdout
        lines = re.findall(r"(?m)^Exec=(.*)$", (PACKAGING / "veldmark.desktop").read_text())
        self.assertEqual(len(lines), 3)
        for line in lines:
            program, *words = line.split()
            self.assertIn(program, ("veldmark", "veldmarkctl"))
            for word in words:
                self.assertIn(word, re.findall(r"--\w+", options) if program == "veldmark" else self.commands())

    def test_the_metainfo_is_valid(self):
        result = run("appstreamcli", "validate", "--no-net", "--no-color", METAINFO)
        self.assertEqual(result.returncode, 0, result.stdout)
        version = re.search(r"project\(Veldmark VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text()).group(1)
        self.assertEqual([release.get("version") for release in tree.parse(METAINFO).iter("release")][0], version)
        self.assertIn(f"veldmark ({version})", (PACKAGING / "debian" / "changelog").read_text().splitlines()[0])

    def test_the_helpers_own_programs_go_where_it_looks_for_them(self):
        place = re.search(r"(?m)^readonly OWN_PLACE=/usr/(\S+)", (PROGRAMS / "veldmark-helper.sh").read_text()).group(1)
        script = METAINFO.with_name("cmake_install.cmake").read_text()
        goes = re.findall(r'DESTINATION "\$\{CMAKE_INSTALL_PREFIX\}/([^"]+)" TYPE EXECUTABLE FILES "[^"]*/([^/"]+)"', script)
        for name in "veldmark-identify", "veldmark-control":
            self.assertIn((place, name), goes)

    def test_the_policy_has_an_action_for_each_verb_of_the_helper_and_keeps_no_approval(self):
        helper = (PROGRAMS / "veldmark-helper.sh").read_text()
        cases = helper.split("\nmain() {\n")[-1].split("  case $VERB in\n")[1].split("  esac\n")[0]
        verbs = {verb for line in re.findall(r"(?m)^  ([a-z| -]+)\)", cases) for verb in line.split(" | ")}
        self.assertLessEqual({"connect", "disconnect", "launch", "install-privileged"}, verbs)
        actions = {
            action.get("id"): {note.get("key").rpartition(".")[2]: note.text for note in action.iter("annotate")}
            for action in tree.parse(POLICY).iter("action")
        }
        path = "/usr/share/veldmark/veldmark-helper.sh"
        self.assertEqual(actions, {f"org.veldmark.helper.{verb}": {"path": path, "argv1": verb} for verb in verbs})
        for kind in ("allow_any", "allow_inactive", "allow_active"):
            self.assertEqual([e.text for e in tree.parse(POLICY).iter(kind)], ["auth_admin"] * len(verbs))

    def test_the_pictures_can_be_drawn(self):
        for path in (PACKAGING / "icons").iterdir():
            self.assertEqual(tree.parse(path).getroot().tag, "{http://www.w3.org/2000/svg}svg")

    def test_the_program_has_a_picture_where_no_svg_is_shown(self):
        """The build draws a PNG of every installed size. It has that size and contains the drawing's colour."""
        sizes = re.search(r"set\(sizes ([0-9 ]+)\)", (PACKAGING / "CMakeLists.txt").read_text()).group(1).split()
        self.assertLessEqual({"16", "22", "24", "32", "48", "64", "128", "256"}, set(sizes))
        for size in map(int, sizes):
            png = (METAINFO.parent / f"{size}.png").read_bytes()
            self.assertEqual((png[:8], png[12:16]), (b"\x89PNG\r\n\x1a\n", b"IHDR"), size)
            self.assertEqual((*struct.unpack(">II", png[16:24]), png[25]), (size, size, 6), "with transparency")
        self.assertGreater(len(png), 1000)

    def test_the_scripts_are_clean(self):
        for name in ("prerm", "postinst", "postrm"):
            result = run("shellcheck", "--shell=dash", PACKAGING / "debian" / name)
            self.assertEqual((name, result.stdout), (name, ""))


class Translations(unittest.TestCase):
    """What a desktop shows of the program speaks the languages of its windows."""

    LANGUAGES = {path.stem.partition("_")[2]: path for path in (ROOT / "resources" / "translations").glob("*.ts")}
    LANG = "{http://www.w3.org/XML/1998/namespace}lang"

    def windows(self, sentence: str) -> dict[str, str]:
        """The sentence of the windows in each language."""
        found = {"": sentence}
        for language, path in self.LANGUAGES.items():
            for message in tree.parse(path).iter("message"):
                if message.find("source").text == sentence:
                    found[language] = message.find("translation").text
        return found

    def in_xml(self, root, *tags):
        """Each text of these elements by language: one without a language, and after it its translations."""
        for parent in root.iter():
            texts: list[list[tuple[str, str]]] = []
            for element in parent:
                if element.tag in tags:
                    language = element.get(self.LANG, "")
                    if not language:
                        texts.append([])
                    texts[-1].append((language, " ".join("".join(element.itertext()).split())))
            yield from texts

    def in_desktop_entry(self):
        """Each text by language. The program's name is the same in all."""
        for group in re.split(r"(?m)^(?=\[)", (PACKAGING / "veldmark.desktop").read_text()):
            for key in ("Name", "GenericName", "Comment", "Keywords"):
                texts = re.findall(rf"(?m)^{key}(?:\[(.*)\])?=(.*)$", group)
                if texts not in ([], [("", "Veldmark")]):
                    yield texts

    def in_policy(self):
        return self.in_xml(tree.parse(POLICY), "description", "message")

    def in_metainfo(self):
        return self.in_xml(
            tree.parse(PACKAGING / "org.veldmark.Veldmark.metainfo.xml.in"), "summary", "p", "li", "caption", "keyword"
        )

    def test_each_text_speaks_each_language_of_the_windows(self):
        self.assertEqual(len(self.LANGUAGES), 10)
        for texts, number in ((self.in_policy(), 16), (self.in_desktop_entry(), 5), (self.in_metainfo(), 7)):
            found = list(texts)
            self.assertGreaterEqual(len(found), number)
            for text in found:
                self.assertEqual(sorted(language for language, _ in text), ["", *sorted(self.LANGUAGES)], text[0])
                for _, words in text[1:]:
                    self.assertNotIn(words, ("", text[0][1]))

    def test_what_the_system_fills_in_is_kept(self):
        filled = 0
        for text in self.in_policy():
            variables = re.findall(r"\$\([^)]*\)", text[0][1])
            filled += len(variables)
            for language, words in text:
                self.assertEqual(re.findall(r"\$\([^)]*\)", words), variables, language)
                if language in ("ar", "fa"):  # a path keeps its own direction
                    self.assertEqual(re.findall(r"\u2068\$\([^)]*\)\u2069", words), [f"\u2068{name}\u2069" for name in variables])
        self.assertEqual(filled, 2)

    def test_keywords_end_with_a_separator(self):
        keywords = [text for text in self.in_desktop_entry() if text[0][1].startswith("Tor;")]
        self.assertEqual(len(keywords), 1)
        for language, words in keywords[0]:
            self.assertRegex(words, r"^Tor;(?:[^;،؛；]+;){4,}$", language)

    def test_what_is_read_from_the_right_begins_there(self):
        """A toolkit lays a text out from the side of its first letter."""
        seen = 0
        for text in (*self.in_policy(), *self.in_desktop_entry(), *self.in_metainfo()):
            for language, words in text:
                if language in ("ar", "fa") and not words.startswith("Tor;"):
                    first = next(letter for letter in words if unicodedata.bidirectional(letter) in ("L", "R", "AL"))
                    self.assertEqual(unicodedata.bidirectional(first), "AL", words)
                    seen += 1
        self.assertGreaterEqual(seen, 2 * (16 + 4 + 7))

    def test_the_prompt_for_connecting_is_the_programs_own_text(self):
        profile = (ROOT / "src/platform/LinuxProfile.cpp").read_text()
        sentence = re.search(r'promptText\s*=\s*Text::\s*tr\(\s*"([^"]+)"\)', profile).group(1)
        connect = tree.parse(POLICY).find("action[@id='org.veldmark.helper.connect']")
        self.assertEqual({e.get(self.LANG, ""): e.text for e in connect.iter("message")}, self.windows(sentence))

    def test_restoring_is_called_as_in_the_windows(self):
        names = [dict(text) for text in self.in_desktop_entry() if text[0][1] == "Restore Network"]
        self.assertEqual(names, [self.windows("Restore Network")])


if __name__ == "__main__":
    unittest.main(verbosity=2)
