#!/usr/bin/python3
"""Puts small mistakes into the code, one at a time, and prints those that no test notices.

usage: run.py [ROOM...] [--count N] [--seed S] [--again] [--all] [--list]

ROOM: a room of src/ (its C++), qml, helper or helper_mac (the root helper's parts); without one all rooms of the logic: no ui, app, cli,
qml and helper. The seed chooses the lines of N mistakes. Each mistake is built in a clone of the last commit in build/mutate, and run
against the tests of its room; a mistake of the helper, against the tests that touch its part.

The next mistake replaces one that does not compile. A mistake is noticed when the same case of a test fails twice, or a test takes
ten times as long as without it. Those tests first run without a mistake. Tests run behind walls.sh, where a mistake can do no harm.

tests/mutate/aside.txt lists mistakes without any noticeable effect, each with its reason. They are not counted.

--all    tries missed mistakes against the tests of the rooms that use this one as well, and against the helper's long tests
--again  takes the mistakes that survived the last run with these words, instead of new ones
--list   only print the mistakes

Exit status 1 when a mistake survived.
"""

import argparse
import fcntl
import hashlib
import json
import os
import random
import re
import subprocess
import sys
import time
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import operators  # pylint: disable=wrong-import-position
from moving import Moving, say  # pylint: disable=wrong-import-position

HERE = Path(__file__).resolve().parent
PROJECT = HERE.parents[1]
ROOT = PROJECT / "build" / "mutate"
LOGIC = (
    "base",
    "platform",
    "system",
    "control",
    "bridges",
    "circuits",
    "checks",
    "log",
    "terminal",
    "doctor",
    "report",
    "controller",
    "instance",
    "identify",
    "controlfilter",
)
# The helper's tests that touch a part; a part that is not listed has all tests.
TOUCHED = {
    "core": "parts options privileged programs owner",
    "main": "parts options privileged owner programs",
    "session": "parts session watcher",
    "addresses": "texts firewall parts",
    "files": "parts session texts watcher programs",
    "linux-bypass": "launch firewall session",
    "linux-loopback": "hostile",
    "linux-bundle": "bundle programs parts options",
    "linux-bridges": "texts firewall hostile",
    "linux-identify": "identities account",
    "linux-others": "others watcher session",
    "linux-firewall": "rules texts firewall session watcher",
    "linux-owner": "owner",
    "linux-proxy": "proxy",
    "linux-resolved": "resolved",
    "linux-resolver": "session resolved texts",
    "linux-service": "service",
    "linux-session": "session watcher owner launch resolved",
    "linux-state": "options session programs owner privileged",
    "linux-tor": "session programs texts launch owner control",
    "linux-watcher": "watcher session",
    "note": "parts session owner watcher",
    "options": "parts options texts programs",
    "privileged": "privileged programs",
    "programs": "programs launch privileged",
    "torrc": "texts session options control",
}
HELPERS = ("helper", "helper_mac")
# Rooms of programs that the helper starts, and the helper's tests that run the whole program.
RESIDENT = {"identify": "identities|account", "controlfilter": "control"}
PROGRAMS = ["veldmark_helper", "veldmark-launch", "veldmark-launch-mac", "veldmark-identify", "veldmark-control"]
# src/launch has no tests of its own: tests/helper and tests/lab run it.
ROOMS = LOGIC + ("ui", "app", "cli", "qml") + HELPERS
LONG = r"/(kill-|trouble|cycles|failures|kill$)"
NO_HELPER = r"^helper/namespace$"  # tests of the tests' own tools
# A clone and a fetch start another program for the repository. That program does not get the option that permits another owner.
ASKED = "--upload-pack=git -c safe.directory='*' upload-pack"
SKIPPED = "skipped"
HANGS = "takes ten times as long"
SLOWER = 10  # times the usual time, plus half a minute: the test hangs


def link_lines() -> dict[str, set[str]]:
    rooms = {}
    for file in (PROJECT / "src").glob("*/CMakeLists.txt"):
        match = re.search(r"\bROOMS\s+([a-z\s]+?)(?=[A-Z)])", file.read_text())
        rooms[file.parent.name] = set(match[1].split()) if match else set()
    return rooms


class Room:
    """The sources of its mistakes, and the tests for them: its own, then those of rooms that use it, as patterns of CTest names."""

    def __init__(self, name):
        self.name = name
        self.users = sorted(
            room for room, linked in link_lines().items() if name in linked and (PROJECT / "tests/unit" / room).is_dir()
        )
        if name in HELPERS:
            self.tests = [rf"^{name}/", "^helper_mac/" if name == "helper" else ""]
            self.targets = [PROGRAMS] * 2
        elif name in RESIDENT:
            self.tests = [rf"^(unit/{name}/|helper/({RESIDENT[name]})$)", ""]
            self.targets = [[f"test-{name}", *PROGRAMS], []]
        elif name in ("qml", "ui"):
            self.tests = [r"^(unit/)?ui/(?!WindowsFit-|accessibility)", "^unit/app/"]
            self.targets = [["test-ui", "suite-ui"], ["test-app"]]
        else:
            self.tests = [f"^unit/{name}/", f"^unit/({'|'.join(self.users)})/" if self.users else ""]
            self.targets = [[f"test-{name}"], [f"test-{room}" for room in self.users]]

    def files(self, top) -> list[Path]:
        if self.name == "qml":
            return sorted((top / "src/ui/qml").rglob("*.qml"))
        if self.name in HELPERS:
            return sorted(
                file
                for file in (top / "resources/helper").glob("*.sh")
                if file.name != "join.sh" and file.name.startswith("darwin-") == (self.name == "helper_mac")
            )
        return sorted(file for file in (top / "src" / self.name).glob("*.cpp") if not file.name.startswith("Mac"))


class Aside:
    """tests/mutate/aside.txt: blocks of a file's path, "- LINE", "+ LINE" (none: the line is removed) and the reason. Of several "- LINE"
    only the last has the mistake; the others stand above it."""

    def __init__(self, text):
        self.known = {}
        for block in re.split(r"\n\s*\n", re.sub(r"(?m)^#.*\n", "", text)):
            if block.strip():
                path, *rest = block.strip().split("\n")
                before = []
                while rest and rest[0].startswith("- "):
                    before.append(rest.pop(0)[2:].strip())
                after = rest.pop(0)[2:].strip() if rest and rest[0].startswith("+ ") else None
                self.known[path.strip(), tuple(before), after] = " ".join(rest)
                assert before and rest, f"aside.txt: a mistake needs its lines and a reason:\n{block}"

    def reason(self, path, mutant, text):
        """`text`: the file without the mistake."""
        after = None if mutant.after is None else mutant.after.strip()
        lines = [line.strip() for line in text.split("\n")[: mutant.line]]
        for (known, before, instead), reason in self.known.items():
            if (known, instead) == (path, after) and lines[-len(before) :] == list(before):
                return reason
        return None


def chosen(rooms, seed, top):
    """All mistakes in the order of the seed, as (room, path from the top, mutant): each line once, with one of its mistakes."""
    places = []
    for room in rooms:
        for file in room.files(top):
            lines = {}
            for mutant in operators.mutants(str(file), file.read_text()):
                lines.setdefault(mutant.line, []).append(mutant)
            places += [(room, str(file.relative_to(top)), found) for found in lines.values()]
    dice = random.Random(seed)
    dice.shuffle(places)
    return [(room, path, dice.choice(found)) for room, path, found in places]


class Clone:
    def __init__(self, name):
        ROOT.mkdir(parents=True, exist_ok=True)
        # Two runs at the same time have a clone each.
        for number in range(1, 9):
            self.place = ROOT / (name if number == 1 else f"{name}-{number}")
            self.lock = open(f"{self.place}.lock", "w", encoding="ascii")
            try:
                fcntl.flock(self.lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
                break
            except BlockingIOError:
                self.lock.close()
        else:
            sys.exit("eight runs are enough")
        self.build = self.place / "build/dev"
        self.commit = self.git(PROJECT, "rev-parse", "HEAD")
        if self.git(PROJECT, "status", "--porcelain", "--untracked-files=no"):
            print("Uncommitted changes are ignored.")
        if not self.place.is_dir():
            self.git(ROOT, "clone", "--quiet", "--shared", "--no-checkout", ASKED, str(PROJECT), self.place.name)
        self.git(self.place, "fetch", "--quiet", ASKED, str(PROJECT), "HEAD")
        self.git(self.place, "checkout", "--quiet", "--force", "--detach", self.commit)
        self.build.parent.mkdir(exist_ok=True)
        for unpacked in ("resolved", "sshd", "gnustep"):
            if (PROJECT / "build" / unpacked).is_dir() and not (self.build.parent / unpacked).exists():
                (self.build.parent / unpacked).symlink_to(PROJECT / "build" / unpacked)
        if not (self.build / "build.ninja").exists():
            launcher = (
                ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"]
                if subprocess.run(["which", "ccache"], capture_output=True).returncode == 0
                else []
            )
            with Moving("Configuring"):
                subprocess.run(
                    ["cmake", "--preset", "dev", "-DVELDMARK_UNITY=OFF", *launcher],
                    cwd=self.place,
                    check=True,
                    stdout=subprocess.DEVNULL,
                )
        # CTest lists the tests before anything is compiled, and must know this commit's tests.
        status, said = self.compile(["build.ninja"])
        if status:
            sys.exit(said)

    @staticmethod
    def git(place, *words):
        return subprocess.run(
            ["git", "-c", "safe.directory=*", *words], cwd=place, check=True, capture_output=True, text=True
        ).stdout.strip()

    def compile(self, targets):
        """Compiles; returns the status (0: it compiles) and the output."""
        environment = {"CCACHE_SLOPPINESS": "pch_defines,time_macros", **os.environ}
        said = ""
        with Moving("Compiling") as moving, subprocess.Popen(
            ["cmake", "--build", self.build, "-j2", "--target", *targets],
            env=environment,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
            errors="replace",
        ) as process:
            for line in process.stdout:
                said += line
                if counted := re.match(r"\[(\d+)/(\d+)\]", line):
                    moving.step(*map(int, counted.groups()))
        return process.returncode, said

    def tests(self, pattern):
        if not pattern:
            return []
        told = subprocess.run(
            ["ctest", "--test-dir", self.build, "-R", pattern, "--show-only=json-v1"], capture_output=True, text=True, check=True
        )
        return [Test(test) for test in json.loads(told.stdout)["tests"]]


class Test:
    def __init__(self, told):
        properties = {entry["name"]: entry["value"] for entry in told.get("properties", [])}
        self.name, self.command, self.usual = told["name"], told["command"], 0.0
        if self.command[-1].endswith(".py"):
            self.command.append("--failfast")
        self.environment = dict(word.split("=", 1) for word in properties.get("ENVIRONMENT", []))
        self.limit = float(properties.get("TIMEOUT", 1200))

    def run(self, clone, *case):
        """ "" when it passed, SKIPPED, else the failed case or the kind of failure. Runs a single case when one is named."""
        with subprocess.Popen(
            [HERE / "walls.sh", *self.command, *case],
            cwd=clone.build,
            env={**os.environ, **self.environment},
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
            errors="replace",
        ) as process:
            try:
                output, _ = process.communicate(timeout=self.usual * SLOWER + 30 if self.usual else self.limit)
            except subprocess.TimeoutExpired:
                process.kill()  # the walls and every process inside end with it
                process.communicate()
                return HANGS
        if process.returncode == 125:
            sys.exit("the walls cannot be built:\n" + output)
        if process.returncode in (0, 77):
            return SKIPPED if process.returncode else ""
        named = re.search(r"(?m)^FAIL!  : \w+::(\w+)|^(?:FAIL|ERROR): test_\w+ \(__main__\.(\w+\.test_\w+)\)", output)
        return named[1] or named[2] if named else f"status {process.returncode}"


class Proved:
    """The tests of a room in those two groups. Each must pass without a mistake before it is used, which also gives its usual time.
    The result is kept as long as neither the program nor its tests change."""

    def __init__(self, clone, room, ask_all):
        self.clone, self.targets, self.groups = clone, room.targets, [None, None]
        self.ask_all = ask_all
        self.patterns, self.left_out = room.tests, NO_HELPER if ask_all else f"{NO_HELPER}|{LONG}"
        parts = (
            ("resources/helper", "tests/helper", "tests/helper_mac")
            if room.name in HELPERS
            else ("src", "tests/unit", "tests/support", "tests/ui", "tests/helper")
        )
        state = clone.git(PROJECT, "rev-parse", *(f"{clone.commit}:{part}" for part in parts))
        self.note = ROOT / f"times-{hashlib.sha256(state.encode()).hexdigest()[:12]}.json"

    def times(self):
        return json.loads(self.note.read_text()) if self.note.exists() else {}

    def tests(self, number):
        if self.groups[number] is None:
            # CTest knows the command of a program only once it is there.
            status, said = self.clone.compile(self.targets[number])
            if status:
                sys.exit(said)
            self.groups[number] = [
                test for test in self.clone.tests(self.patterns[number]) if not re.search(self.left_out, test.name)
            ]
        return self.groups[number]

    def require(self, number, tests):
        """Asserts that they pass now, without a mistake. The build may still contain the last one."""
        if any(not test.usual and not self.times().get(test.name) for test in tests):
            status, said = self.clone.compile(self.targets[number])
            if status:
                sys.exit(said)
        for test in tests:
            test.usual = test.usual or self.times().get(test.name) or self.prove(test)

    def prove(self, test):
        started = time.monotonic()
        with Moving(f"{test.name} without a mistake"):
            failed = test.run(self.clone)
        if failed == SKIPPED:
            say(f"{test.name} is skipped here, so it can notice nothing")
        elif failed:
            sys.exit(f"{test.name} fails without a mistake ({failed}), so it can tell nothing")
        usual = round(time.monotonic() - started, 2)
        self.note.write_text(json.dumps({**self.times(), test.name: usual}, indent=1))
        return usual


def kin(path, test):
    """How far a test's name is from the file's: 0 is closest and runs first."""
    words = lambda name: set(re.findall(r"[A-Z][a-z]+|[A-Z]+(?![a-z])|[a-z]+", re.sub(r"linux|darwin|Test|test", "", name)))
    mine, its = words(Path(path).stem), words(test.name.rsplit("/", 1)[1])
    return -len({word.lower()[:5] for word in mine} & {word.lower()[:5] for word in its})


def noticed_by(clone, path, mutant, proved):
    """The test that notices the mistake; None when none does; "" when it does not compile."""
    for number in range(2 if proved.ask_all else 1):
        tests = [] if number == 1 and Path(path).name.startswith("linux-") else proved.tests(number)
        touched = TOUCHED.get(Path(path).stem, "").split() if path.endswith(".sh") and number == 0 else []
        tests = [test for test in tests if not touched or test.name.rsplit("/", 1)[1] in touched or re.search(LONG, test.name)]
        if not tests:
            continue
        proved.require(number, tests)
        file = clone.place / path
        original = file.read_text()
        try:
            file.write_text(mutant.apply(original))
            if path.endswith(".sh") and subprocess.run(["/bin/bash", "-n", file], capture_output=True).returncode != 0:
                return ""
            status, said = clone.compile(proved.targets[number])
            if status:
                if number == 0 and re.search("error:|QML", said):
                    return ""
                sys.exit(said)
            for test in sorted(tests, key=lambda test: (kin(path, test), test.usual)):
                how = test.run(clone)
                if how in ("", SKIPPED):
                    continue
                # A crash names no case, so the whole test runs again.
                if how == HANGS or test.run(clone, *([how] if " " not in how else [])):
                    return f"{test.name} ({how})"
        finally:
            file.write_text(original)
    return None


def show(path, mutant):
    gone = "(gone)" if mutant.after is None else mutant.after.strip()
    return f"{path}:{mutant.line}: {mutant.kind}\n    - {mutant.before.strip()}\n    + {gone}"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("rooms", nargs="*", metavar="ROOM")
    parser.add_argument("--count", type=int, default=20)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--list", action="store_true")
    given = parser.parse_args()
    unknown = [name for name in given.rooms if name not in ROOMS]
    if unknown:
        parser.error(f"there is no room '{unknown[0]}'; rooms: {' '.join(ROOMS)}")
    names = given.rooms or LOGIC
    aside = Aside((HERE / "aside.txt").read_text())
    if given.list:
        for _, path, mutant in chosen([Room(name) for name in names], given.seed, PROJECT)[: given.count]:
            reason = aside.reason(path, mutant, (PROJECT / path).read_text())
            print(show(path, mutant), "\n    aside: " + reason if reason else "")
        return 0
    if any(place in map(str, PROJECT.parents) for place in ("/tmp", "/var/tmp", "/run")):
        sys.exit(
            "What stands behind the walls sees none of the computer's /tmp, /var/tmp and /run: run this from a checkout elsewhere."
        )
    clone = Clone("helper" if set(names) <= set(HELPERS) else "code")
    note = ROOT / f"survivors-{'-'.join(given.rooms) or 'logic'}-{given.seed}.json"
    wanted = [tuple(entry) for entry in json.loads(note.read_text())] if given.again else None
    proved, survivors, noticed, put_aside, refused = {}, [], 0, 0, 0
    for room, path, mutant in chosen([Room(name) for name in names], given.seed, clone.place):
        if wanted is not None and (path, mutant.before, mutant.after) not in wanted:
            continue
        if noticed + len(survivors) >= given.count:
            break
        if aside.reason(path, mutant, (clone.place / path).read_text()):
            put_aside += 1
            continue
        tests = proved.setdefault(room.name, Proved(clone, room, given.all))
        with Moving(f"{noticed + len(survivors) + 1}/{given.count} {path}:{mutant.line}"):
            by = noticed_by(clone, path, mutant, tests)
        if by == "":
            refused += 1
        elif by:
            noticed += 1
        else:
            survivors.append((path, mutant))
        if by != "":
            print(
                f"{noticed + len(survivors)}/{given.count} {'noticed by ' + by if by else 'SURVIVED'}: {show(path, mutant)}",
                flush=True,
            )
    note.write_text(json.dumps([(path, mutant.before, mutant.after) for path, mutant in survivors], indent=1))
    print(
        f"\n{noticed} of {noticed + len(survivors)} noticed, {put_aside} set aside as equivalent, {refused} refused by the compiler or the shell"
    )
    if survivors:
        print("Survivors:")
        for path, mutant in survivors:
            print(show(path, mutant))
    return 1 if survivors else 0


if __name__ == "__main__":
    sys.exit(main())
