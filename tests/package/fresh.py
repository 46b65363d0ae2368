#!/usr/bin/python3
"""Runs the README's commands like a new user: from a clone of the last commit, on a minimal Debian 12.

usage: fresh.py [--short | --quick] [--without PACKAGE] [--cold] [--again] [--keep] [VERB...]

VERB       demo, test, package (default: all three); "test" may have further words: "test controller"; or one of the other verbs of
           build.sh with its words: "soak --cycles 2"
--short    leaves out tests that take minutes and need no further programs
--quick    runs only a few tests, which between them call every program that a test needs but clang-tidy and gcovr; .ci/run takes
           the demo of this
--without  takes a package out of the clone's list first, to show that the run notices it
--cold     compiles everything, without this machine's compiler cache
--again    continues in the first system of a former run, with the commits since then; helps to fix a failure, but proves nothing
--keep     keeps the first system also when everything passed

The package is made twice, in two such systems, in folders of different names and a day apart, and must have the same bytes. It is
compiled without a cache. A skipped test is a failure. Exit status 0 when everything passed; 1 with one line when something failed
or this machine cannot run it.

The minimal Debian and the fetched packages are kept in $XDG_CACHE_HOME/veldmark-fresh (~/.cache), for all checkouts. Remove the
folder to make them again.
"""

import argparse
import hashlib
import os
import resource
import shlex
import shutil
import subprocess
import sys
import time
from pathlib import Path

sys.dont_write_bytecode = True
sys.path[:0] = [str(Path(__file__).resolve().parent), str(Path(__file__).resolve().parents[2] / "tools")]

from clean_debian import Unprepared, minimal  # noqa: E402
from moving import Moving  # noqa: E402

PROJECT = Path(__file__).resolve().parents[2]
WORK = PROJECT / "build" / "fresh"
KEPT = Path(os.environ.get("XDG_CACHE_HOME") or Path.home() / ".cache") / "veldmark-fresh"
VERBS = ("demo", "test", "package")
OTHERS = (
    "deps",
    "build",
    "run",
    "asan",
    "tsan",
    "apple",
    "coverage",
    "format",
    "mutate",
    "fuzz",
    "soak",
    "bench",
    "package-test",
    "machine-test",
    "dist",
)
SHORT = ("-LE", "^long$", "-E", "^(lab/(trouble|sessions|leakcheck)|helper/(kill-.*|trouble|cycles)|ui/(Buttons|WindowsFit-.*))$")
# Each unit test, the tests of the sources and the package, and at least one test of each suite that calls further programs:
# polkit and pkexec (prompt), gpg (download), ssh, zsh and git (terminal), nc and ping (lab), a desktop's (desktop), clang's (fuzz).
# clang-tidy and gcovr are called only by the two that are left out, which take minutes.
QUICK = (
    "-R",
    "^(unit/.*|house/.*|package/(files|registry)|ui/(accessibility|qmllint|translation)|fuzz/LogFuzz|"
    "helper/(namespace|launch|resolved)|lab/(lab|prompt|download|terminal|desktop))$",
    "-E",
    "^house/(tidy|verbs)$",
)
# A folder that ordinary users can read, since tests run programs as such a user.
PLACES = {"first": "/srv/veldmark", "second": "/srv/a stranger/veld mark"}

# Makes the tree $1 the root of new mount and process namespaces and runs the other arguments in it, with the machine's own network,
# since the registry must be reachable. $2 and $3 are folders of this machine: fetched packages, and the compiler's cache. chroot
# alone is not enough: a process that enters these namespaces, like the lab's commands, starts in their first root.
ENTER = r"""
set -eu
tree=$1 archives=$2 cache=$3
shift 3
mount --bind "$tree" "$tree"
mount -t proc proc "$tree/proc"
mount --rbind /sys "$tree/sys"
mount --rbind /dev "$tree/dev"
mount -t tmpfs -o mode=755 private "$tree/run"
mount -t tmpfs -o mode=1777 private "$tree/tmp"
mount --bind "$archives" "$tree/var/cache/apt/archives"
if [ -n "$cache" ]; then
    mkdir -p "$tree/root/.cache/ccache"
    mount --bind "$cache" "$tree/root/.cache/ccache"
fi
cd "$tree"
pivot_root . mnt
umount --lazy /mnt
exec /usr/bin/env -i HOME=/root USER=root LOGNAME=root LANG=C.UTF-8 \
    PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin "$@"
"""


# A clone and a fetch start another program for the repository. That program does not get the option that permits another owner.
ASKED = "--upload-pack=git -c safe.directory='*' upload-pack"


class Failed(Exception):
    """One line for the user."""


class Step:
    """A step with its duration and the processor time of its programs; all steps are printed at the end."""

    done: list[str] = []

    def __init__(self, name: str):
        self.name, self.began, self.used = name, time.monotonic(), processor_time()

    def end(self) -> None:
        Step.done.append(f"{time.monotonic() - self.began:6.0f} s {processor_time() - self.used:6.0f} s  {self.name}")

    @staticmethod
    def table() -> None:
        print("\nfresh-test: time and processor time", *Step.done, sep="\nfresh-test: ", flush=True)


def own_git(*words: str) -> str:
    return subprocess.run(
        ["git", "-c", "safe.directory=*", "-C", PROJECT, *words], check=True, capture_output=True, text=True
    ).stdout.strip()


def compiler_cache() -> str:
    """The folder of this machine's compiler cache, or None."""
    if shutil.which("ccache") is None:
        return ""
    folder = subprocess.run(["ccache", "--get-config", "cache_dir"], capture_output=True, text=True, check=False).stdout.strip()
    if not folder:
        return ""
    Path(folder).mkdir(parents=True, exist_ok=True)
    return folder


class Stranger:
    """A minimal Debian with a clone of `commit` at `place`."""

    def __init__(self, name: str, base: Path, commit: str, cache: str, again: bool = False):
        self.name, self.place, self.commit, self.cache = name, PLACES[name], commit, cache
        self.tree = WORK / name
        self.archives = KEPT / "archives"
        (self.archives / "partial").mkdir(parents=True, exist_ok=True)
        WORK.mkdir(parents=True, exist_ok=True)
        self.clone = self.tree / self.place.lstrip("/")
        if again:
            if not (self.clone / ".git").exists():
                raise Failed("there is no system of an earlier run; leave out --again")
            subprocess.run(["git", "-C", self.clone, "fetch", "--quiet", ASKED, PROJECT, "HEAD"], check=True)
            subprocess.run(["git", "-C", self.clone, "reset", "--quiet", "--hard", commit], check=True)
            return
        remove(self.tree)
        with Moving("Copying the minimal Debian"):
            subprocess.run(["cp", "-a", "--reflink=auto", base, self.tree], check=True)
        for file in ("resolv.conf", "hosts"):
            shutil.copy(f"/etc/{file}", self.tree / "etc" / file)
        self.clone.parent.mkdir(parents=True, exist_ok=True)
        with Moving("Cloning the last commit"):
            own_git("clone", "--quiet", "--no-hardlinks", ASKED, str(PROJECT), str(self.clone))
        # Both systems get the same commit, also when there is a new one meanwhile.
        subprocess.run(["git", "-C", self.clone, "-c", "advice.detachedHead=false", "checkout", "--quiet", commit], check=True)

    def run(self, *words: str, environment: dict[str, str] | None = None, **options) -> subprocess.CompletedProcess:
        """Runs the words in the clone; their output goes to this program's unless asked otherwise."""
        variables = dict(environment or {})
        command = f"cd {shlex.quote(self.place)} && exec {shlex.join(words)}"
        return subprocess.run(
            [
                "unshare",
                "--mount",
                "--propagation",
                "private",
                "--pid",
                "--fork",
                "--kill-child",
                "--uts",
                "/bin/sh",
                "-c",
                ENTER,
                "enter",
                self.tree,
                self.archives,
                self.cache,
                *(f"{key}={value}" for key, value in variables.items()),
                "/bin/bash",
                "-c",
                command,
            ],
            stdin=subprocess.DEVNULL,
            check=False,
            **options,
        )

    def verb(self, *words: str, environment: dict[str, str] | None = None) -> None:
        heading(f"./build.sh {' '.join(words)} in {self.place}")
        step = Step(f"./build.sh {' '.join(words)} in {self.place}")
        status = self.run("./build.sh", *words, environment=environment).returncode
        step.end()
        if status != 0:
            raise Failed(
                f"./build.sh {' '.join(words)} failed on a clean Debian (exit status {status}); its files are in {self.clone}"
            )


def processor_time() -> float:
    """The processor time, in seconds, of this program's children."""
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def remove(tree: Path) -> None:
    # No folder of the machine is mounted in it any more: the mounts' namespaces have ended.
    if tree.exists():
        with Moving("Removing a former system"):
            subprocess.run(["rm", "-rf", "--one-file-system", tree], check=True)


def heading(text: str) -> None:
    print(f"\nfresh-test: {text}", flush=True)


def without(stranger: Stranger, package: str) -> None:
    """Removes the package from the clone's list, as if it were missing."""
    file = stranger.clone / "tools/deps.sh"
    lines = file.read_text().splitlines(keepends=True)
    changed = [
        " ".join(word for word in line.split(" ") if word.strip() != package) if line.startswith("    ") else line for line in lines
    ]
    changed = [line if line.endswith("\n") else line + "\n" for line in changed]
    if changed == lines:
        raise Failed(f"{package} is not in the list of packages")
    file.write_text("".join(changed))


def digest(folder: Path) -> tuple[str, str]:
    packages = sorted((folder / "build").glob("veldmark_*.deb"))
    if len(packages) != 1:
        raise Failed(f"{len(packages)} packages instead of one in {folder}/build")
    return packages[0].name, hashlib.sha256(packages[0].read_bytes()).hexdigest()


def tomorrow(stranger: Stranger) -> dict[str, str]:
    """Variables that set the clock of a program to the next day."""
    heading("tomorrow's clock for the second system")
    with Moving("Installing the program that sets a clock for others"):
        installed = stranger.run(
            "/bin/sh", "-c", "apt-get -qq update && apt-get -qq install -y --no-install-recommends faketime >/dev/null 2>&1"
        )
    if installed.returncode:
        raise Failed("the program that sets a clock for others cannot be installed")
    library = next((stranger.tree / "usr/lib").glob("*/faketime/libfaketime.so.1"))
    variables = {
        "LD_PRELOAD": "/" + str(library.relative_to(stranger.tree)),
        "FAKETIME": "+1d",
        "NO_FAKE_STAT": "1",
        "FAKETIME_DONT_RESET": "1",
    }
    told = stranger.run("date", "+%s", environment=variables, stdout=subprocess.PIPE, text=True).stdout.strip()
    if not told.isdigit() or int(told) < time.time() + 80000:
        raise Failed("the second system's clock did not take tomorrow's time")
    return variables


def same_package(first: Stranger, base: Path) -> None:
    """Makes the package in two systems, two folders and on two days, and compares the bytes."""
    uncached = {"CCACHE_DISABLE": "1"}
    first.verb("package", environment=uncached)
    second = Stranger("second", base, first.commit, "")
    second.verb("package", environment=uncached | tomorrow(second))
    one, other = digest(first.clone), digest(second.clone)
    print(f"fresh-test: {one[0]} {one[1]}\nfresh-test: {other[0]} {other[1]}", flush=True)
    if one != other:
        raise Failed(f"the package differs between {first.clone} and {second.clone}")


def verify(arguments: argparse.Namespace) -> None:
    if os.geteuid() != 0:
        raise Failed("a clean Debian is made by root: run sudo ./build.sh fresh-test")
    if subprocess.run(["unshare", "--mount", "--pid", "--fork", "true"], capture_output=True, check=False).returncode != 0:
        raise Failed("this machine does not permit namespaces")
    words = arguments.verbs or list(VERBS)
    alone = words[0] in OTHERS or words[0] == "test" and len(words) > 1
    for word in words[:1] if alone else words:
        if word not in VERBS + OTHERS:
            raise Failed(f"'{word}' is none of: {', '.join(VERBS + OTHERS)}")
    step = Step("a minimal Debian")
    base = minimal(KEPT)
    step.end()
    if own_git("status", "--porcelain"):
        print("fresh-test: what is not committed is not in the clone.", flush=True)
    stranger = Stranger("first", base, own_git("rev-parse", "HEAD"), "" if arguments.cold else compiler_cache(), arguments.again)
    if arguments.without:
        without(stranger, arguments.without)
    strict = {"VELDMARK_NO_SKIPS": "1"}
    if alone:
        stranger.verb(*words, environment=strict)
        return
    for verb in words:
        if verb == "package":
            same_package(stranger, base)
        else:
            further = () if verb != "test" else SHORT if arguments.short else QUICK if arguments.quick else ()
            stranger.verb(verb, *further, environment=strict if verb == "test" else None)


def main() -> int:
    parser = argparse.ArgumentParser(
        usage="./build.sh fresh-test [--short | --quick] [--without PACKAGE] [--cold] [--again] [--keep] [VERB...]"
    )
    share = parser.add_mutually_exclusive_group()
    share.add_argument("--short", action="store_true")
    share.add_argument("--quick", action="store_true")
    parser.add_argument("--without", metavar="PACKAGE")
    parser.add_argument("--cold", action="store_true")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--keep", action="store_true")
    parser.add_argument("verbs", nargs=argparse.REMAINDER)
    arguments = parser.parse_args()
    started = time.monotonic()
    try:
        verify(arguments)
    except (Failed, Unprepared, OSError, subprocess.CalledProcessError) as reason:
        Step.table()
        print(f"fresh-test: {reason}", file=sys.stderr)
        return 1
    Step.table()
    for name in PLACES:  # a failed system is kept for inspection
        if name != "first" or not arguments.keep:
            remove(WORK / name)
    print(f"\nfresh-test: everything went as it should, in {time.monotonic() - started:.0f} s", flush=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
