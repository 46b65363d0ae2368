#!/usr/bin/python3
"""The README's commands as a stranger runs them: from a clone of the last commit, on a Debian 12 with nothing installed.

usage: fresh.py [--short | --quick] [--without PACKAGE] [--cold] [--again] [VERB...]

VERB       demo, test, package (all three when none is named); "test" with further words: "test controller"
--short    leaves out tests that take minutes and need no program that the others do not
--quick    of the tests only a few, which between them call every program that a test needs; what .ci/run does
--without  takes a package out of the clone's list first, to see that this notices
--cold     compiles everything, without the compiler cache of this machine
--again    goes on in the first system as a failed run has left it, with what has been committed since: to mend what failed, no proof

The package is made twice, in two such systems, in folders of other names and a day apart, and has to have the same bytes; that
is compiled without a cache. A skipped test fails. Exit status 0 when everything went as it should, 1 with one line when something
did not or when this machine cannot run it.

The minimal Debian and the packages that were fetched are kept in $XDG_CACHE_HOME/veldmark-fresh (~/.cache), for all checkouts.
Remove it to begin anew.
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
sys.path.insert(0, str(Path(__file__).resolve().parent))

from clean_debian import Unprepared, minimal  # noqa: E402
from moving import Moving  # noqa: E402

PROJECT = Path(__file__).resolve().parents[2]
WORK = PROJECT / "build" / "fresh"
KEPT = Path(os.environ.get("XDG_CACHE_HOME") or Path.home() / ".cache") / "veldmark-fresh"
VERBS = ("demo", "test", "package")
SHORT = ("-LE", "^long$", "-E", "^(lab/(trouble|sessions|leakcheck)|helper/(kill-.*|trouble|cycles)|ui/(Buttons|WindowsFit-.*))$")
# Each unit test, what judges the sources and the package, and of the suites that call further programs at least one each:
# polkit and pkexec (prompt), gpg (download), ssh, zsh and git (terminal), nc and ping (lab), a desktop's (desktop), clang's (fuzz).
QUICK = (
    "-R",
    "^(unit/.*|house/.*|package/(files|registry)|ui/(accessibility|qmllint|translation)|fuzz/LogFuzz|"
    "helper/(namespace|launch|resolved)|lab/(lab|prompt|download|terminal|desktop))$",
)
# Where ordinary users can read them, since tests run programs as one.
PLACES = {"first": "/srv/veldmark", "second": "/srv/a stranger/veld mark"}

# Makes the tree $1 the root of new mount and process namespaces and runs the rest of the words in it, with the machine's own
# network: the registry has to be reached. $2 and $3 are kept on this machine: fetched packages, and the compiler's cache.
# A change of root alone would not do: whoever enters these namespaces, as the lab's commands do, finds himself in their first root.
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


# A clone and a fetch ask the repository by a program of their own, which does not hear that its owner may be another user.
ASKED = "--upload-pack=git -c safe.directory='*' upload-pack"


class Failed(Exception):
    """One line for the user."""


class Step:
    """How long something took, with the processor's time of the programs that were run for it; all are told at the end."""

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
    """The folder of this machine's compiler cache, or nothing."""
    if shutil.which("ccache") is None:
        return ""
    folder = subprocess.run(["ccache", "--get-config", "cache_dir"], capture_output=True, text=True, check=False).stdout.strip()
    if not folder:
        return ""
    Path(folder).mkdir(parents=True, exist_ok=True)
    return folder


class Stranger:
    """A minimal Debian of its own with a clone of `commit` at `place`."""

    def __init__(self, name: str, base: Path, commit: str, cache: str, again: bool = False):
        self.name, self.place, self.commit, self.cache = name, PLACES[name], commit, cache
        self.tree = WORK / name
        self.archives = KEPT / "archives"
        (self.archives / "partial").mkdir(parents=True, exist_ok=True)
        WORK.mkdir(parents=True, exist_ok=True)
        self.clone = self.tree / self.place.lstrip("/")
        if again:
            if not (self.clone / ".git").exists():
                raise Failed("there is no run that failed; leave out --again")
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
        # Both systems get the same one, whatever is committed meanwhile.
        subprocess.run(["git", "-C", self.clone, "-c", "advice.detachedHead=false", "checkout", "--quiet", commit], check=True)

    def run(self, *words: str, environment: dict[str, str] | None = None, **options) -> subprocess.CompletedProcess:
        """The words in the clone, their output on ours unless asked otherwise."""
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
    """Seconds that the programs which this one has run have used."""
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def remove(tree: Path) -> None:
    # Nothing of the machine is mounted in it any more: mounts were made in namespaces that have ended.
    if tree.exists():
        with Moving("Removing a former system"):
            subprocess.run(["rm", "-rf", "--one-file-system", tree], check=True)


def heading(text: str) -> None:
    print(f"\nfresh-test: {text}", flush=True)


def without(stranger: Stranger, package: str) -> None:
    """Takes the package out of the clone's list, as if it had been forgotten."""
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
    """Variables that set the clock of whatever runs with them to the next day."""
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
    """Two systems, two folders, two days: the same bytes."""
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
    if words[0] not in VERBS:
        raise Failed(f"'{words[0]}' is none of: {', '.join(VERBS)}")
    step = Step("a minimal Debian")
    base = minimal(KEPT)
    step.end()
    if own_git("status", "--porcelain"):
        print("fresh-test: what is not committed is not in the clone.", flush=True)
    stranger = Stranger("first", base, own_git("rev-parse", "HEAD"), "" if arguments.cold else compiler_cache(), arguments.again)
    if arguments.without:
        without(stranger, arguments.without)
    strict = {"VELDMARK_NO_SKIPS": "1"}
    if len(words) > 1 and words[0] == "test":  # some tests only
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
        usage="./build.sh fresh-test [--short | --quick] [--without PACKAGE] [--cold] [--again] [VERB...]"
    )
    share = parser.add_mutually_exclusive_group()
    share.add_argument("--short", action="store_true")
    share.add_argument("--quick", action="store_true")
    parser.add_argument("--without", metavar="PACKAGE")
    parser.add_argument("--cold", action="store_true")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("verbs", nargs="*")
    started = time.monotonic()
    try:
        verify(parser.parse_args())
    except (Failed, Unprepared, OSError, subprocess.CalledProcessError) as reason:
        Step.table()
        print(f"fresh-test: {reason}", file=sys.stderr)
        return 1
    Step.table()
    for name in PLACES:  # what failed stays, to be looked at
        remove(WORK / name)
    print(f"\nfresh-test: everything went as it should, in {time.monotonic() - started:.0f} s", flush=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
