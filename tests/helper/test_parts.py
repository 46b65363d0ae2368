"""Small parts of the helper. Each is called by itself with files in the test's own folder, without a private machine."""

import os
import pathlib
import re
import stat
import subprocess
import tempfile
import unittest

import namespace
from namespace import HASH, TOR

HELPER = namespace.helper_path()


def run(script, *words, **environment):
    return subprocess.run(
        ["/bin/bash", "-p", "-c", f". {HELPER}; exec 8>&2; {script}", "test", *words],
        capture_output=True,
        text=True,
        errors="surrogateescape",
        check=False,
        timeout=60,
        env={**os.environ, **environment},
    )


class InAFolder(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(tempfile.TemporaryDirectory())

    def path(self, name):
        return os.path.join(self.folder, name)

    def write(self, name, text):
        with open(self.path(name), "w", encoding="utf-8") as file:
            file.write(text)
        return self.path(name)

    def text(self, name):
        with open(self.path(name), encoding="utf-8") as file:
            return file.read()


class Files(InAFolder):
    def test_a_file_has_its_text_and_mode_and_nothing_is_left_beside_it(self):
        target = self.write("a", "former")
        for mode in "0600", "0644", "0440":
            self.assertEqual(run('write_file "$1" "$2" root $\'one\\ntwo\'', target, mode).returncode, 0)
            self.assertEqual(self.text("a"), "one\ntwo")
            self.assertEqual(stat.S_IMODE(os.stat(target).st_mode), int(mode, 8))
            self.assertEqual(os.listdir(self.folder), ["a"])

    def test_what_a_killed_run_left_beside_it_is_replaced_and_links_are_not_followed(self):
        elsewhere = self.write("elsewhere", "kept")
        os.symlink(elsewhere, self.path("a.new"))
        self.assertEqual(run('write_file "$1" 0600 root text', self.path("a")).returncode, 0)
        self.assertEqual(self.text("a"), "text")
        self.assertEqual(self.text("elsewhere"), "kept")
        self.assertFalse(os.path.islink(self.path("a")))

    def test_what_cannot_be_put_in_place_is_told_and_leaves_nothing(self):
        os.makedirs(self.path("a/b"))  # a folder in the file's place
        done = run('write_file "$1" 0644 root text || echo "status $?"', self.path("a"))
        self.assertIn("status 1", done.stdout)
        self.assertEqual(os.listdir(self.folder), ["a"])
        done = run('write_file "$1" 0644 root text || echo "status $?"; set -o | grep noclobber', self.path("none/a"))
        self.assertIn("status 1", done.stdout)
        self.assertRegex(done.stdout, r"noclobber\s+off")

    def read(self, text):
        done = run(
            'read_lines "$1" && echo 0 || echo "$?"; printf "%s\\n" ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}',
            self.write("entry", text),
        )
        status, *lines = done.stdout.split("\n")[:-1]
        return int(status), [line for line in lines if line]

    def test_an_entry_is_whole_with_its_end_only(self):
        self.assertEqual(self.read("pid 1\nboot x y\nend\n"), (0, ["pid 1", "boot x y"]))
        self.assertEqual(self.read("pid 1\nboot x y\n")[0], 2)
        self.assertEqual(self.read("pid 1\nen")[0], 2)
        self.assertEqual(self.read("pid 1\nend")[0], 2)
        self.assertEqual(self.read("")[0], 2)
        self.assertEqual(self.read("end\n"), (0, []))

    def test_the_first_value_of_a_key_counts_and_no_other_key_is_taken_for_it(self):
        script = (
            'JOURNAL_LINES=("dns eth0 1.2.3.4" "dnssec eth0 no" "dns eth0 5.6.7.8" "bare");'
            'for key in "dns eth0" dnssec dn bare none; do journal_value "$key" && echo || echo "none"; done'
        )
        self.assertEqual(run(script).stdout.split("\n")[:-1], ["eth0 1.2.3.4", "eth0 no", "none", "none", "none"])


class Note(InAFolder):
    """The watcher's note for the application: WORD COUNT SINCE."""

    def setUp(self):
        super().setUp()
        # The helper has a fixed path for the note; the test replaces it in this copy.
        with open(HELPER, encoding="utf-8") as file:
            self.helper = self.write("helper.sh", file.read().replace("readonly KILL_SWITCH_NOTE=", "KILL_SWITCH_NOTE="))

    def looks(self, script, *words):
        return subprocess.run(
            ["/bin/bash", "-p", "-c", f". {self.helper}; KILL_SWITCH_NOTE=$1; shift; {script}", "test", self.path("note"), *words],
            capture_output=True,
            text=True,
            check=True,
            timeout=60,
        ).stdout

    def notes(self, *words):
        """The note after each look, one look a second."""
        return self.looks(
            'now=0; date() { echo "$now"; }; for word in "$@"; do now=$((now + 1)); note_rules "$word" || echo failed;'
            'cat -- "$KILL_SWITCH_NOTE"; done',
            *words,
        ).split("\n")[:-1]

    def test_standing_stays_since_it_stood(self):
        self.assertEqual(self.notes("standing", "standing", "standing"), ["standing 0 1"] * 3)

    def test_each_miss_is_counted_once_and_what_stands_again_was_put_back(self):
        self.assertEqual(
            self.notes("standing", "open", "open", "standing", "standing", "restored", "standing", "open", "restored"),
            [
                "standing 0 1",
                "open 1 2",
                "open 1 2",
                "restored 1 4",
                "restored 1 4",
                "restored 2 6",
                "restored 2 6",
                "open 3 8",
                "restored 3 9",
            ],
        )

    def test_a_removed_note_comes_back_and_all_may_read_it(self):
        self.looks('note_rules standing; rm -f -- "$KILL_SWITCH_NOTE"; note_rules standing')
        self.assertRegex(self.text("note"), r"^standing 0 \d+\n$")
        self.assertEqual(stat.S_IMODE(os.stat(self.path("note")).st_mode), 0o644)

    def test_each_look_makes_the_note_young(self):
        self.looks('note_rules standing; touch -d @1000 -- "$KILL_SWITCH_NOTE"; note_rules standing')
        self.assertGreater(os.stat(self.path("note")).st_mtime, 1000)


class BundleVerdict(unittest.TestCase):
    """How the helper reads gpgv's output about a bundle's signature, without running gpgv."""

    SIGNER = "EF6E286DDA85EA2A4BA7DE684E2C6E8793298290"
    GOOD = "[GNUPG:] VALIDSIG 0123456789012345678901234567890123456789 2026-01-01 1767225600 0 4 0 22 10 00 EF6E286DDA85EA2A4BA7DE684E2C6E8793298290"

    def signed(self, *lines):
        return run('read_verdict "$1" && printf %s "$BUNDLE_SIGNED"', "\n".join(lines)).stdout

    def test_signers_verdict_counts(self):
        self.assertEqual(self.signed("[GNUPG:] NEWSIG", "[GNUPG:] GOODSIG 0123 x", self.GOOD), "1767225600")
        self.assertEqual(self.signed("[GNUPG:] NEWSIG", "[GNUPG:] EXPKEYSIG 0123 x", self.GOOD), "1767225600")

    def test_no_other_verdict_counts(self):
        for bad in (
            self.GOOD.replace(" 10 00 ", " 2 00 "),
            self.GOOD.replace(" 10 00 ", " 10 01 "),
            self.GOOD.replace("[GNUPG:] ", ""),
            self.GOOD.replace(self.SIGNER, "0" * 40),
            self.GOOD.replace("1767225600", "0"),
            self.GOOD.replace("1767225600", "a[$(id)]"),
            self.GOOD.replace("VALIDSIG", "GOODSIG"),
            self.GOOD.rsplit(" ", 1)[0],
            "gpgv: " + self.GOOD,
            "",
        ):
            with self.subTest(bad):
                self.assertEqual(self.signed(bad), "")
        self.assertEqual(self.signed("[GNUPG:] NEWSIG", "[GNUPG:] REVKEYSIG 0123 x", self.GOOD), "")


class Arguments(InAFolder):
    """The helper names the refused option, and checks every option."""

    GOOD = {"--tor": TOR, "--hash": HASH, "--strict": "1", "--lan": "0"}
    PROGRAMS = ("--tor", "--pt-lyrebird", "--pt-snowflake", "--pt-webtunnel")

    def parse(self, *more, print_after="", **changes):
        options = {**self.GOOD, **{"--" + name.replace("_", "-"): value for name, value in changes.items()}}
        words = [word for name, value in options.items() if value is not None for word in (name, value)]
        return run(f'parse_connect "$@"; {print_after}', *words, *more)

    def test_the_good_ones_pass(self):
        done = self.parse(print_after='echo "$OPT_TOR $OPT_STRICT $OPT_LAN"')
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, f"{TOR} 1 0\n", ""))

    def test_each_program_must_be_an_absolute_path_of_an_executable_file(self):
        plain = self.write("plain", "")
        os.mkdir(self.path("folder"))
        for option in self.PROGRAMS:
            for value, says in (
                ("tor", f"The path given with {option} is not absolute."),
                ("./tor", f"The path given with {option} is not absolute."),
                ("/nonexistent", f"The program given with {option} is not an executable file."),
                (plain, f"The program given with {option} is not an executable file."),
                (self.path("folder"), f"The program given with {option} is not an executable file."),
            ):
                with self.subTest(option=option, value=value):
                    done = self.parse(**{option[2:].replace("-", "_"): value})
                    self.assertEqual((done.returncode, done.stderr), (1, f"ERROR: {says}\n"))

    def test_bundle_must_be_an_absolute_path_and_need_not_be_there(self):
        self.assertEqual(self.parse(bundle="/nonexistent", print_after='echo "$OPT_BUNDLE"').stdout, "/nonexistent\n")
        done = self.parse(bundle="bundle.tar.gz")
        self.assertEqual((done.returncode, done.stderr), (1, "ERROR: The path given with --bundle is not absolute.\n"))

    def test_each_needed_option_is_missed_by_name(self):
        for option in self.GOOD:
            done = self.parse(**{option[2:]: None})
            self.assertEqual((done.returncode, done.stderr), (1, f"ERROR: The option {option} is missing.\n"))

    def test_each_is_given_once_and_with_a_value(self):
        for option, value in (
            *self.GOOD.items(),
            ("--exit", "de"),
            ("--pt-lyrebird", "/usr/bin/true"),
            ("--pt-snowflake", "/usr/bin/true"),
            ("--pt-webtunnel", "/usr/bin/true"),
            ("--bundle", "/nonexistent"),
        ):
            done = self.parse(option, value, option, value)
            self.assertEqual((done.returncode, done.stderr), (1, f"ERROR: The option {option} was given twice.\n"))
            for end in [option], [option, ""]:
                done = self.parse(*end)
                self.assertEqual((done.returncode, done.stderr), (1, f"ERROR: The option {option} needs a value.\n"))

    def test_options_of_other_verbs_are_not_known(self):
        for option in "--user", "--launch", "--uid", "--app", "--torr", "tor", "--tor --hash", "":
            done = self.parse(option, "1")
            self.assertEqual((done.returncode, done.stderr), (1, "ERROR: The helper was given an option that it does not know.\n"))

    def test_the_longest_value_and_the_most_bridges(self):
        longest = "192.0.2.1:443 " + "a" * (4096 - 14)
        self.assertEqual(self.parse("--bridge", longest).returncode, 0)
        self.assertIn("The value of --bridge is too long.", self.parse("--bridge", longest + "a").stderr)
        hundred = ["--bridge", "192.0.2.1:443"] * 100
        self.assertEqual(self.parse(*hundred, print_after="((${#OPT_BRIDGES[@]} == 100))").returncode, 0)
        for option in "--bridge", "--reserve":
            self.assertIn("More than 100 bridges", self.parse(*hundred, option, "192.0.2.1:443").stderr)
        reserves = ["--reserve", "192.0.2.1:443"] * 100
        self.assertEqual(self.parse(*reserves, print_after="((${#OPT_RESERVES[@]} == 100))").returncode, 0)
        self.assertIn("More than 100 bridges", self.parse(*reserves, "--bridge", "192.0.2.1:443").stderr)

    def test_transports_need_their_programs(self):
        for line, says in (
            ("obfs4 192.0.2.1:1 x", "lyrebird"),
            ("meek_lite 192.0.2.1:1", "lyrebird"),
            ("obfs3 192.0.2.1:1", "lyrebird"),
            ("scramblesuit 192.0.2.1:1", "lyrebird"),
            ("webtunnel 192.0.2.1:1", "lyrebird"),
            ("snowflake 192.0.2.1:1", "snowflake-client"),
        ):
            for option in "--bridge", "--reserve":
                done = self.parse(option, line)
                self.assertEqual((done.returncode, done.stderr), (1, f"ERROR: These bridges need {says}, which was not given.\n"))

    def test_which_program_serves_which_transport_and_needs_names(self):
        programs = ["--pt-lyrebird", "/usr/bin/true", "--pt-snowflake", "/usr/bin/true"]
        web = ["--pt-webtunnel", "/usr/bin/true"]
        tell = 'transports_need_names && names=1 || names=0; echo "$USED_LYREBIRD|$USED_SNOWFLAKE|$USED_WEBTUNNEL|$names"'
        for lines, more, wanted in (
            (["192.0.2.1:1"], [], "|||0"),
            (["obfs4 192.0.2.1:1"], [], "obfs4|||0"),
            (["obfs4 192.0.2.1:1", "obfs4 192.0.2.2:1", "obfs3 192.0.2.1:1"], [], "obfs4,obfs3|||0"),
            (["meek_lite 192.0.2.1:1"], [], "meek_lite|||1"),
            (["webtunnel 192.0.2.1:1"], [], "webtunnel|||1"),
            (["obfs4 192.0.2.1:1", "webtunnel 192.0.2.1:1"], [], "obfs4,webtunnel|||1"),
            (["webtunnel 192.0.2.1:1"], web, "||webtunnel|1"),
            (["snowflake 192.0.2.1:1"], [], "|snowflake||1"),
        ):
            for option in "--bridge", "--reserve":
                done = self.parse(*programs, *more, *(word for line in lines for word in (option, line)), print_after=tell)
                self.assertEqual(done.stdout, wanted + "\n", lines)
        done = self.parse(*programs, "--bridge", "obfs4 192.0.2.1:1", "--reserve", "snowflake 192.0.2.1:1", print_after=tell)
        self.assertEqual(done.stdout, "obfs4|snowflake||1\n")


class Environment(InAFolder):
    @unittest.skipUnless(os.geteuid() == 0, "as nobody but root the helper ends before it calls a program")
    def test_no_program_of_ours_sees_the_callers_environment(self):
        """LD_DEBUG makes each process that sees it write a file. The first process always sees it."""
        seen = self.path("seen")
        os.mkdir(seen)
        environment = {"PATH": os.environ["PATH"], "LD_DEBUG": "libs", "LD_DEBUG_OUTPUT": f"{seen}/by"}
        subprocess.run(["/bin/bash", "-p", "-c", "a=$(uname; :)"], env=environment, check=True, capture_output=True, timeout=60)
        self.assertEqual(len(os.listdir(seen)), 2)  # the shell and uname
        for privileged in ["-p"], []:
            for name in os.listdir(seen):
                os.unlink(os.path.join(seen, name))
            done = subprocess.run(
                ["/bin/bash", *privileged, HELPER, "no-verb"],
                env=environment,
                capture_output=True,
                text=True,
                check=False,
                timeout=60,
            )
            self.assertEqual((done.returncode, done.stderr), (1, "ERROR: The helper does not know this verb.\n"))
            self.assertEqual(len(os.listdir(seen)), 1)


class Numbers(unittest.TestCase):
    def test_user_ids(self):
        for text, good in {
            "0": True,
            "1": True,
            "4294967294": True,
            "4294967295": False,
            "9999999999": False,
            "01": False,
            "": False,
            "-1": False,
            "1 ": False,
            "x": False,
            "12345678901": False,
        }.items():
            self.assertEqual(run('is_uid "$1"', text).returncode == 0, good, text)

    def test_control_characters(self):
        for text, has in {
            "a b~": False,
            "a\tb": True,
            "\x7f": True,
            "é": False,
            "\u0080": True,
            "\u009f": True,
            "\u00a0": False,
        }.items():
            self.assertEqual(run('has_controls "$1"', text, LC_ALL="C").returncode == 0, has, ascii(text))

    def test_programs_that_are_missing_are_named(self):
        self.assertEqual(run("need_programs cat ls").returncode, 0)
        done = run("need_programs cat no-such-program ls")
        self.assertEqual((done.returncode, done.stderr), (1, "ERROR: The program no-such-program is missing on this system.\n"))


# The first word of a command.
COMMAND = re.compile(r"(?:^|[;&|({!]|\b(?:then|do|if|elif|while|until|else)\b)[ \t]*(\w+)(?=[\s;)&|]|$)", re.MULTILINE)


class WatcherScripts(unittest.TestCase):
    """A watcher is a script of its own, written by the helper. What is missing there fails at the watcher's rarest step."""

    FOLDER = pathlib.Path(__file__).resolve().parents[2] / "resources" / "helper"

    def parts(self, system):
        other = {"linux": "darwin", "darwin": "linux"}[system]
        return "\n".join(file.read_text() for file in sorted(self.FOLDER.glob("*.sh")) if not file.name.startswith(other))

    def test_they_have_each_function_and_constant_that_they_use(self):
        for system in "linux", "darwin":
            text = self.parts(system)
            functions = dict(re.findall(r"^(\w+)\(\) \{((?: .*|\n(?:.*\n)*?)\}$)", text, re.MULTILINE))
            constants = set(re.findall(r"^readonly ([A-Z_]+)=", text, re.MULTILINE))
            constants |= set(re.findall(r"^readonly .* ([A-Z_]+)=", text, re.MULTILINE))
            script = functions["print_watcher"].replace("\\\n", " ")
            given = set(re.search(r"declare -f (.*)", script)[1].split())
            self.assertLess(10, len(given))
            self.assertLessEqual(given, set(functions))
            declared = set(re.search(r"declare -p (.*)", script)[1].split())
            self.assertLess(5, len(declared))
            for name in sorted(given):
                body = re.sub(r"(^|\s)#.*", "", functions[name])
                with self.subTest(system=system, function=name):
                    used = set(COMMAND.findall(body)) & set(functions)
                    self.assertLessEqual(used, given | {"die"})
                    used = set(re.findall(r"\$\{?#?([A-Z_]+)\b", body)) & constants
                    self.assertLessEqual(used, declared)


if __name__ == "__main__":
    unittest.main()
