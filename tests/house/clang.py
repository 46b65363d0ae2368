"""Clang over the project's sources, with the options and the common headers of a build."""

import json
import pathlib
import re
import shlex
import shutil
import subprocess

CLANG = shutil.which("clang++-16") or "clang++"
TIDY = "clang-tidy-16"


class Clang:
    """`options` come before the build's own; `folder` keeps the compiled headers."""

    def __init__(self, root, build, folder, *options):
        self.root, self.build = pathlib.Path(root), pathlib.Path(build)
        self.entries = json.loads((self.build / "compile_commands.json").read_text(encoding="utf-8"))
        self.words = ["-std=c++20", "-fPIC", *options, *self.places()]
        self.without_qt = {entry["file"] for entry in self.entries if "QT_CORE_LIB" not in entry["command"]}
        common = next(self.build.rglob("veldmark_precompiled_tests.dir/cmake_pch.hxx"), None)
        lines = common.read_text(encoding="utf-8").splitlines() if common else []
        header = pathlib.Path(folder, "common.h")
        header.write_text("".join(line + "\n" for line in lines if line.startswith("#include")), encoding="utf-8")
        self.common = ["-include-pch", f"{header}.pch"]
        made = self.run([CLANG, *self.words, "-x", "c++-header", str(header), "-o", self.common[1]])
        if made.returncode:
            raise RuntimeError(made.stderr[-4000:])

    def compiled(self):
        """Each file that the compiler is given, with the sources in it: the build compiles some of a room together."""
        for entry in self.entries:
            path = pathlib.Path(entry["file"])
            together = path.parent.name == "Unity"
            paths = map(pathlib.Path, re.findall(r'#include "(.+)"', path.read_text())) if together else [path]
            names = {str(path.relative_to(self.root)) for path in paths if path.is_relative_to(self.root) and path.suffix == ".cpp"}
            yield path, {name for name in names if name.startswith(("src/", "tests/unit/", "tests/support/"))}

    def places(self):
        """The headers' places and the definitions that the sources have between them."""
        words = []
        for entry, (_, names) in zip(self.entries, self.compiled()):
            parts = iter(shlex.split(entry["command"]) if names else [])
            for word in parts:
                if word == "-isystem":
                    word += next(parts)
                if word.startswith(("-I", "-isystem", "-D")) and word not in words:
                    words.append(word)
        return words

    def check(self, path, common=True):
        """The compiler's messages; empty without any."""
        before = self.common if common else []
        return self.run([CLANG, "-fsyntax-only", *self.words, *before, str(path)]).stderr[:4000]

    def tidy(self, path, common=True):
        """What clang-tidy finds, with the rules of .clang-tidy. It looks at each header again, so a source of a program without Qt does
        not get the common headers."""
        before = self.common if common and str(path) not in self.without_qt else []
        rules = f"--config-file={self.root / '.clang-tidy'}"
        done = self.run([TIDY, "--quiet", rules, str(path), "--", *self.words, *before])
        return done.stdout[:4000] or (f"status {done.returncode}: {done.stderr[-4000:]}" if done.returncode else "")

    @staticmethod
    def run(words):
        return subprocess.run(words, capture_output=True, text=True, check=False)
