"""Checks the sources that a Mac compiles, of the program and of its unit tests, with clang and libc++, the base of Apple's compiler
and library. It checks syntax and types and produces nothing. test_macos.py checks Objective-C++.

Arguments: the project's folder and the build's, whose compile commands list the sources and options. Then the selection: "system":
all headers, and the program's sources that call the system, where systems differ; "all", which needs a full build; or parts of
paths. The check refuses a header that Apple's library lacks or has only behind a flag.
"""

import concurrent.futures
import os
import pathlib
import re
import shutil
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

from clang import CLANG, Clang  # noqa: E402
from moving import Moving  # noqa: E402

ROOT = pathlib.Path(sys.argv[1])
BUILD = pathlib.Path(sys.argv[2])
WANTED = sys.argv[3:] or ["system"]
SYSTEM_HEADER = re.compile(r"^#include <[a-z_/0-9]+\.h>", re.MULTILINE)
MISSING = "stop_token", "syncstream", "malloc.h", "format_kind"  # of the library and of the system
# Names that only Linux's headers have, which must not be in lines for a Mac. (timex, st_mtim and similar exist on both, or the code
# distinguishes them.)
LINUX_WORDS = re.compile(
    r"\b(SOCK_CLOEXEC|SOCK_NONBLOCK|tcp_info|TCP_INFO|mallinfo2?|malloc_trim|pipe2|accept4|prctl|PR_[A-Z_]+|[gs]etres[ug]id|"
    r"O_PATH|O_TMPFILE|epoll_\w+|signalfd|eventfd|timerfd\w*|inotify_\w+|memfd_create|renameat2|SO_PEERCRED|ucred|"
    r"pidfd_\w+|SYS_\w+|MSG_NOSIGNAL|unshare|setns|statx|secure_getenv|PTRACE_\w+|execvpe|POLLRDHUP|gettid|close_range)\b(?![\"/])"
)
# A Mac has another source in place of each, or the program is for Linux only.
LINUX_ONLY = {
    "src/platform/LinuxApplications.cpp",
    "src/platform/LinuxInstalledApplications.cpp",
    "src/app/Activation.cpp",
    "src/app/LoginItem.cpp",
    "src/launch/main.cpp",
    "src/launch/SessionEnvironment.cpp",
    "src/launch/Application.cpp",
}
LINUX_ROOMS = ("src/identify/", "src/controlfilter/", "tests/unit/identify/", "tests/unit/controlfilter/")


def for_macs(text):
    """The lines, with their numbers, that are not only for Linux."""
    inside = []
    for number, line in enumerate(text.splitlines(), 1):
        word = re.match(r"\s*#\s*(ifdef|ifndef|if|elif|else|endif)\b(.*)", line)
        if not word:
            if not any(inside):
                yield number, re.sub(r'//.*|"[^"]*"', "", line)
            continue
        linux = "__linux__" in word[2] or "Q_OS_LINUX" in word[2]
        negated = word[1] == "ifndef" or "!" in word[2]
        if word[1] in ("if", "ifdef", "ifndef"):
            inside.append(linux and not negated)
            elses = linux and negated
        elif word[1] == "endif":
            inside.pop()
        else:
            inside[-1] = elses if word[1] == "else" else linux


class Apple(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        for name in MISSING:
            pathlib.Path(cls.folder.name, name).write_text(f'#error "<{name}> is not on a Mac"\n', encoding="ascii")
        with Moving("Compiling the common headers"):
            cls.clang = Clang(
                ROOT, BUILD, cls.folder.name, "-stdlib=libc++", "-Wall", "-Wextra", "-Wshadow", "-Werror", f"-I{cls.folder.name}"
            )
        named = set().union(*(names for _, names in cls.clang.compiled()))
        cls.sources = sorted(name for name in named if name not in LINUX_ONLY and not name.startswith(LINUX_ROOMS))

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_what_a_mac_lacks_is_found(self):
        for text, wanted in (
            ("#include <stop_token>\n", "is not on a Mac"),
            ("#include <malloc.h>\n", "is not on a Mac"),
            ("#include <string>\nstd::string f() { return 1; }\n", "no viable conversion"),
        ):
            path = pathlib.Path(self.folder.name, "wrong.cpp")
            path.write_text(text, encoding="ascii")
            self.assertIn(wanted, self.clang.check(path, common=False))

    def test_words_of_linux_alone_are_found(self):
        found = lambda text: [number for number, line in for_macs(text) if LINUX_WORDS.search(line)]  # noqa: E731
        self.assertEqual(found("pipe2(p, 0);\n#ifdef __linux__\npipe2(p, 0);\n#else\npipe2(p, 0);\n#endif\n// pipe2\n"), [1, 5])
        self.assertEqual(
            found('#if !defined(__linux__) || defined(X)\nskip;\n#else\nprctl(PR_GET_DUMPABLE);\n#endif\nrun("unshare");\n'), []
        )

    def test_no_source_uses_what_linux_alone_has(self):
        for folder in "src", "tests/unit", "tests/support":
            for path in sorted((ROOT / folder).rglob("*")):
                name = str(path.relative_to(ROOT))
                if (
                    path.suffix not in (".cpp", ".h", ".mm")
                    or name in LINUX_ONLY
                    or name.startswith(LINUX_ROOMS)
                    or "/Linux" in name
                ):
                    continue
                for number, line in for_macs(path.read_text(encoding="utf-8")):
                    with self.subTest(f"{name}:{number}"):
                        self.assertIsNone(LINUX_WORDS.search(line), line)

    def test_no_source_includes_what_a_mac_lacks(self):
        """Only some of the sources are compiled here."""
        include = re.compile(rf"^\s*#\s*include\s*<({'|'.join(map(re.escape, MISSING))})>")
        self.assertTrue(include.match(next(line for _, line in for_macs("#include <malloc.h>\n"))))
        for folder in "src", "tests/unit", "tests/support":
            for path in sorted((ROOT / folder).rglob("*")):
                name = str(path.relative_to(ROOT))
                if path.suffix not in (".cpp", ".h", ".mm") or name in LINUX_ONLY or name.startswith(LINUX_ROOMS):
                    continue
                for number, line in for_macs(path.read_text(encoding="utf-8")):
                    self.assertIsNone(include.match(line), f"{name}:{number}")

    def wanted(self, name):
        if WANTED == ["system"]:
            return name.startswith("src/") and SYSTEM_HEADER.search((ROOT / name).read_text(encoding="utf-8"))
        return WANTED == ["all"] or any(part in name for part in WANTED)

    def test_every_source(self):
        sources = [name for name in self.sources if self.wanted(name)]
        if WANTED in (["all"], ["system"]):
            self.assertGreater(len(sources), 250 if WANTED == ["all"] else 30)
        headers = pathlib.Path(self.folder.name, "headers.cpp")
        headers.write_text(
            "".join(
                f'#include "{path.relative_to(ROOT / "src")}"\n'
                for path in sorted((ROOT / "src").rglob("*.h"))
                if not str(path.relative_to(ROOT)).startswith(LINUX_ROOMS)
            ),
            encoding="utf-8",
        )
        paths = [headers, *(ROOT / name for name in sources)]
        with Moving("Checking sources") as moving, concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            for number, (path, said) in enumerate(zip(paths, pool.map(self.clang.check, paths)), 1):
                moving.step(number, len(paths))
                with self.subTest(path.name):
                    self.assertEqual(said, "", said)


if __name__ == "__main__":
    if not shutil.which(CLANG) or not os.path.exists("/usr/lib/llvm-16/include/c++"):
        print("clang 16 and its library are not installed.")
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
