#!/usr/bin/python3
"""fresh-test notices each failure that it exists for. The Debian, its apt and the project are small stand-ins; fresh.py is the real
one."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
# The programs of this machine that the stand-in of a Debian has.
PROGRAMS = ("bash", "sh", "env", "umount", "mkdir", "nsenter")

BUILD = r"""#!/bin/bash
set -eu
source tools/deps.sh
need() { [[ " ${programs[*]} ${others[*]} " == *" $1 "* ]] || { echo "build.sh: $1 is missing" >&2; exit 1; }; }
echo "verb $* in $PWD, home $HOME, skips forbidden: ${VELDMARK_NO_SKIPS:-no}, cache off: ${CCACHE_DISABLE:-no}"
case $1 in
demo)
    need alpha
    # As the lab's commands do: a process that enters these namespaces is in the clean system as well.
    nsenter --target $$ --mount /bin/bash -c '[[ -e /clean ]]' || { echo "build.sh: this is another machine" >&2; exit 1; }
    ;;
test)
    need beta
    [[ ! -e a-skip || ${VELDMARK_NO_SKIPS:-} != 1 ]]
    ;;
package)
    need gamma
    mkdir -p build
    content=program
    [[ ! -e sloppy-folder ]] || content+=" from $PWD"
    [[ ! -e sloppy-day ]] || content+=" of $(date +%s)"
    printf '%s' "$content" >build/veldmark_1_all.deb
    ;;
esac
"""
DEPS = """programs=(
    alpha delta
)
others=(
    beta
    gamma
)
"""
DATE = """#!/bin/bash
printf -v now '%(%s)T' -1
[[ ${FAKETIME:-} != +1d || -e /no-clock ]] || now=$((now + 86400))
echo "$now"
"""
APT = """#!/bin/bash
[[ " $* " != *" faketime "* ]] || { mkdir -p /usr/lib/here/faketime; : >/usr/lib/here/faketime/libfaketime.so.1; }
"""


def put(path: Path, text: str, mode: int = 0o755) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)
    path.chmod(mode)


class Fresh(unittest.TestCase):
    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.base = self.folder / "cache/veldmark-fresh/minimal"
        for place in (
            "proc",
            "sys",
            "dev",
            "run",
            "tmp",
            "mnt",
            "root",
            "srv",
            "etc",
            "usr/lib",
            "usr/bin",
            "var/cache/apt/archives",
        ):
            (self.base / place).mkdir(parents=True)
        (self.base / "bin").symlink_to("usr/bin")
        for name in PROGRAMS:
            self.bring(name)
        put(self.base / "clean", "")
        put(self.base / "usr/bin/date", DATE)
        put(self.base / "usr/bin/apt-get", APT)
        put(self.folder / "path/debootstrap", "#!/bin/sh\nexit 1\n")  # the base exists already
        self.project = self.folder / "project"
        for name in ("fresh.py", "clean_debian.py"):
            put(self.project / "tests/package" / name, (HERE / name).read_text())
        for name in ("moving.py", "progress.sh"):
            put(self.project / "tools" / name, (HERE.parents[1] / "tools" / name).read_text())
        put(self.project / "build.sh", BUILD)
        put(self.project / "tools/deps.sh", DEPS)
        put(self.project / ".gitignore", "build/\n")
        self.git("init", "--quiet")
        self.commit()

    def bring(self, name: str) -> None:
        program = Path(shutil.which(name))
        shutil.copy(program, self.base / "usr/bin" / name)
        for word in subprocess.run(["ldd", program], capture_output=True, text=True, check=True).stdout.split():
            if word.startswith("/"):
                target = self.base / word.lstrip("/")
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(word, target)

    def git(self, *words: str) -> None:
        subprocess.run(
            ["git", "-C", self.project, "-c", "user.name=x", "-c", "user.email=x@example.test", *words],
            check=True,
            capture_output=True,
        )

    def commit(self, *names: str) -> None:
        for name in names:
            put(self.project / name, "")
        self.git("add", ".")
        self.git("commit", "--quiet", "--message", "x")

    def fresh(self, *words: str, **variables: str) -> subprocess.CompletedProcess:
        return subprocess.run(
            ["/usr/bin/python3", self.project / "tests/package/fresh.py", *words],
            capture_output=True,
            text=True,
            check=False,
            env=os.environ
            | {"XDG_CACHE_HOME": str(self.folder / "cache"), "PATH": f"{self.folder}/path:{os.environ['PATH']}"}
            | variables,
        )

    def fails(self, *words: str, line: str, **variables: str) -> str:
        result = self.fresh(*words, **variables)
        self.assertEqual(result.returncode, 1, result.stdout)
        self.assertRegex(result.stderr, rf"(?m)^fresh-test: {line}.*$")
        return result.stdout

    def test_all_three_commands_run_in_clean_systems_and_the_packages_are_compared(self):
        result = self.fresh()
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(
            [line for line in result.stdout.splitlines() if line.startswith("verb ")],
            [
                "verb demo in /srv/veldmark, home /root, skips forbidden: no, cache off: no",
                "verb test in /srv/veldmark, home /root, skips forbidden: 1, cache off: no",
                "verb package in /srv/veldmark, home /root, skips forbidden: no, cache off: 1",
                "verb package in /srv/a stranger/veld mark, home /root, skips forbidden: no, cache off: 1",
            ],
        )
        self.assertEqual(
            len(set(line.split(" ")[-1] for line in result.stdout.splitlines() if "veldmark_1_all.deb" in line)), 1, result.stdout
        )
        self.assertRegex(result.stdout, r"(?m)^fresh-test: +\d+ s +\d+ s  \./build\.sh test in /srv/veldmark$")
        self.assertFalse((self.project / "build/fresh/first").exists())

    def test_a_forgotten_package_fails_and_names_the_command(self):
        for package, verb in (("alpha", "demo"), ("beta", "test"), ("gamma", "package")):
            self.fails(
                "--without", package, line=rf"\./build\.sh {verb} failed on a clean Debian \(exit status 1\); its files are in "
            )
        self.fails("--without", "omega", line="omega is not in the list of packages")

    def test_a_skipped_test_fails(self):
        self.commit("a-skip")
        self.fails(line=r"\./build\.sh test failed on a clean Debian")
        self.fails("test", line=r"\./build\.sh test failed on a clean Debian")
        self.fails("test", "controller", line=r"\./build\.sh test controller failed on a clean Debian")

    def test_each_other_verb_runs_alone_with_its_words(self):
        """A system that is to be kept is there for the next."""
        usage = subprocess.run([HERE.parents[1] / "build.sh", "help"], capture_output=True, text=True, check=True).stdout
        known = set(re.findall(r"(?m)^  ([a-z-]+)\b", usage)) - {"demo", "test", "package", "fresh-test"}
        said = self.fresh("dinner").stderr
        self.assertEqual(known, set(said.split("none of: demo, test, package, ")[1].strip().split(", ")))
        kept = self.project / "build/fresh/first"
        for before, words in (("--keep",), "soak --cycles 2"), (("--keep", "--again"), "asan -R ^x demo"), (("--again",), "bench"):
            result = self.fresh(*before, *words.split())
            self.assertEqual(result.returncode, 0, result.stderr)
            told = [line for line in result.stdout.splitlines() if line.startswith("verb ")]
            self.assertEqual(told, [f"verb {words} in /srv/veldmark, home /root, skips forbidden: 1, cache off: no"])
            self.assertEqual(kept.exists(), "--keep" in before)
        self.fails("demo", "dinner", line="'dinner' is none of: demo")

    def test_a_package_that_knows_its_folder_or_its_day_fails(self):
        self.commit("sloppy-folder")
        self.fails("package", line="the package differs between ")
        (self.project / "sloppy-folder").unlink()
        self.commit("sloppy-day")
        self.fails("package", line="the package differs between ")

    def test_what_is_committed_meanwhile_is_not_taken_for_a_difference(self):
        git = shutil.which("git")
        put(
            self.folder / "path/git",
            f"""#!/bin/bash
{git} "$@" || exit
[[ " $* " != *" clone "* ]] || {{
    touch {self.project}/sloppy-folder
    {git} -C {self.project} add .
    {git} -C {self.project} -c user.name=x -c user.email=x@example.test commit --quiet --allow-empty -m x
}}
""",
        )
        result = self.fresh("package")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertTrue((self.project / "sloppy-folder").exists())

    def test_a_clock_that_stays_is_no_proof(self):
        put(self.base / "no-clock", "")
        self.fails("package", line="the second system's clock did not take tomorrow's time")

    def test_a_run_goes_on_where_another_failed_with_what_was_committed_since(self):
        self.fails("--again", "test", line="there is no system of an earlier run; leave out --again")
        self.commit("a-skip")
        self.fails("test", line=r"\./build\.sh test failed")
        kept = self.project / "build/fresh/first/srv/veldmark/build/kept"
        put(kept, "")
        (self.project / "a-skip").unlink()
        self.commit()
        put(self.project / "build.sh", BUILD.replace("need beta", "need beta\n    [[ -e build/kept ]]"))
        self.commit()
        self.assertEqual(self.fresh("--again", "test").returncode, 0)
        self.assertFalse(kept.exists())

    def test_a_checkout_of_another_user_is_cloned(self):
        subprocess.run(["chown", "-R", "4242:4242", self.project], check=True)
        told = subprocess.run(["git", "-C", self.project, "log"], capture_output=True, text=True, check=False)
        self.assertIn("dubious ownership", told.stderr)
        result = self.fresh("package")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.fails("--without", "beta", "test", line=r"\./build\.sh test failed")
        result = self.fresh("--again", "test")  # with the committed list
        self.assertEqual(result.returncode, 0, result.stderr)

    def test_what_takes_its_time_shows_that_it_moves(self):
        for program, shown in (("cp", "Copying the minimal Debian"), ("git", "Cloning the last commit")):
            put(
                self.folder / "path" / program,
                f'#!/bin/bash\n[[ $1 != -a && " $* " != *" clone "* ]] || sleep 3\nexec {shutil.which(program)} "$@"\n',
            )
            result = self.fresh("demo")
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertIn(f"{shown}: 2 s\n", result.stdout)
        shutil.rmtree(self.base)
        put(self.folder / "path/debootstrap", "#!/bin/sh\nsleep 3\nexit 1\n")
        self.assertIn("Fetching a minimal Debian from its registry: 2 s\n", self.fresh("demo").stdout)

    def test_only_what_is_committed_is_tried(self):
        put(self.project / "a-skip", "")
        result = self.fresh("test")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertIn("fresh-test: what is not committed is not in the clone.\n", result.stdout)

    def test_the_short_run_leaves_out_the_long_tests_and_nothing_else(self):
        verbs = [line.split(" in ")[0] for line in self.fresh("--short").stdout.splitlines() if line.startswith("verb ")]
        self.assertEqual(
            [verb.split(" -E ")[0] for verb in verbs], ["verb demo", "verb test -LE ^long$", "verb package", "verb package"]
        )
        known = "".join((HERE.parent / suite / "CMakeLists.txt").read_text() for suite in ("lab", "helper", "ui"))
        left_out = re.findall(r"[A-Za-z]+", verbs[1].split(" -E ")[1].replace("kill-.*", "kill"))
        self.assertIn("sessions", left_out)
        for word in left_out:
            self.assertIn(word, known + "lab helper ui", f"no test is called {word} any more")

    def test_the_quick_run_names_tests_that_there_are(self):
        verbs = [line.split(" in ")[0] for line in self.fresh("--quick").stdout.splitlines() if line.startswith("verb ")]
        self.assertEqual([verb.split(" -R ")[0] for verb in verbs], ["verb demo", "verb test", "verb package", "verb package"])
        suites = re.findall(r"(\w+)/(?:\(([\w|]+)\)|(\w+|\.\*))", verbs[1].split(" -R ")[1])
        self.assertIn("lab", [suite for suite, *_ in suites])
        self.assertIn(("house", "", ".*"), suites)
        self.assertEqual(suites[-1], ("house", "tidy|verbs", ""))  # what it leaves out
        for suite, several, one in suites:
            folder = HERE.parents[1] / "fuzz" if suite == "fuzz" else HERE.parent / suite
            known = "".join(file.read_text() for file in folder.rglob("CMakeLists.txt")) + "".join(
                file.stem for file in folder.glob("*")
            )
            for name in (several or one).split("|"):
                self.assertIn(name.removesuffix(".*"), known, f"no test is called {suite}/{name} any more")
        self.assertEqual(self.fresh("--quick", "--short").returncode, 2)

    def test_where_it_cannot_run_it_says_so(self):
        shutil.rmtree(self.base)
        self.fails(line="Fetching a minimal Debian from its registry failed; see ")
        self.fails("dinner", line="'dinner' is none of: demo, test, package")
        put(self.folder / "path/unshare", "#!/bin/sh\nexit 1\n")
        self.fails(line="this machine does not permit namespaces")

    def test_without_debootstrap_it_says_who_installs_it(self):
        """Everything else is there: with it the same path is enough."""
        (self.folder / "path/pivot_root").symlink_to(shutil.which("pivot_root"))
        path = f"{self.folder}/path:/usr/bin"
        result = self.fresh("demo", PATH=path)
        self.assertEqual(result.returncode, 0, result.stderr)
        (self.folder / "path/debootstrap").unlink()
        self.assertIsNone(shutil.which("debootstrap", path=path), "it is where this test does not expect it")
        self.fails("demo", line=r"debootstrap is not installed; \./build\.sh deps does it$", PATH=path)

    def test_without_a_registry_it_says_what_is_missing(self):
        shutil.rmtree(self.base)
        tried = self.folder / "tried"
        unreachable = (
            f"touch {tried}; echo E: Failed getting release file http://mirror.example.test/dists/bookworm/Release; exit 1"
        )
        put(self.folder / "path/debootstrap", f"#!/bin/sh\n{unreachable}\n")
        for answer, line in (
            ("exit 100", r"This machine has no apt that works, so there is no registry to make a Debian from\.$"),
            (
                "echo http://mirror.example.test/debian trixie",
                r"The apt sources of this machine name no registry of Debian 12 \(bookworm\)\.$",
            ),
        ):
            put(self.folder / "path/apt-get", f"#!/bin/sh\n{answer}\n")
            self.fails("demo", line=line)
            self.assertFalse(tried.exists())
        put(self.folder / "path/apt-get", "#!/bin/sh\necho http://mirror.example.test/debian bookworm\n")
        self.fails("demo", line="Debian's registry cannot be reached: connect to the network and run this again$")
        self.assertTrue(tried.exists())
        put(self.folder / "path/debootstrap", "#!/bin/sh\necho 'cp: error writing x: No space left on device'; exit 1\n")
        self.fails("demo", line=r"the disk is full: make room \(a full build takes 3 GB\) and run this again$")

    def test_an_ordinary_user_is_told_before_anything_is_made(self):
        subprocess.run(["chmod", "-R", "a+rX", self.folder], check=True)
        result = subprocess.run(
            [
                "setpriv",
                "--reuid=4242",
                "--regid=4242",
                "--clear-groups",
                "/usr/bin/python3",
                self.project / "tests/package/fresh.py",
            ],
            capture_output=True,
            text=True,
            check=False,
        )
        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stderr, "fresh-test: a clean Debian is made by root: run sudo ./build.sh fresh-test\n")
        self.assertFalse((self.project / "build").exists())


class Skipped(unittest.TestCase):
    """The clean run's judgement of skipped tests."""

    def judge(self, case: str, forbidden: bool) -> tuple[int, str]:
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder, "junit.xml")
            file.write_text(f"<testsuite>{case}</testsuite>")
            environment = {name: value for name, value in os.environ.items() if name != "VELDMARK_NO_SKIPS"}
            result = subprocess.run(
                ["/usr/bin/python3", HERE.parent / "skipped.py", file],
                capture_output=True,
                text=True,
                check=False,
                env=environment | ({"VELDMARK_NO_SKIPS": "1"} if forbidden else {}),
            )
            return result.returncode, result.stdout

    def test_a_skip_is_told_and_fails_where_none_may_be(self):
        ran = '<testcase name="unit/x"><system-out>PASS   : x()</system-out></testcase>'
        whole = '<testcase name="lab/x"><skipped message="x"/><system-out>skipped: no network here</system-out></testcase>'
        part = '<testcase name="unit/x"><system-out>SKIP   : XTest::slot() no tor here\nPASS   : XTest::other()</system-out></testcase>'
        self.assertEqual(self.judge(ran, True), (0, ""))
        python = '<testcase name="lab/y"><system-out>....s\nRan 5 tests in 2.000s\n\nOK (skipped=1)</system-out></testcase>'
        broken = '<testcase name="lab/y"><failure/><system-out>Ran 5 tests in 2.0s\n\nFAILED (failures=1, skipped=2)</system-out></testcase>'
        for case, reason in (
            (whole, "no network here"),
            (part, "no tor here"),
            (python, "1 of its cases"),
            (broken, "2 of its cases"),
        ):
            for forbidden in (False, True):
                status, output = self.judge(case, forbidden)
                self.assertEqual(status, 1 if forbidden else 0, output)
                self.assertIn(reason, output)


if __name__ == "__main__":
    if (
        os.geteuid() != 0
        or subprocess.run(["unshare", "--mount", "--pid", "--fork", "true"], capture_output=True, check=False).returncode
    ):
        print("skipped: a clean system needs root and a system that permits namespaces: run this test with sudo")
        sys.exit(77)
    unittest.main()
