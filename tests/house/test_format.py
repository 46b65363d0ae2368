#!/usr/bin/python3
"""Every source is formatted by clang-format or black; `./build.sh format` rewrites the others."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(PROJECT / "tools"))

from moving import Moving  # noqa: E402

FOLDERS = ("bench", "fuzz", "packaging", "resources", "src", "tests", "tools")
CPP = ("*.cpp", "*.h", "*.mm", "*.m", "*.c")
CLANG_FORMAT = ["clang-format", f"--style=file:{PROJECT}/.clang-format"]
BLACK = ["black", f"--config={PROJECT}/pyproject.toml"]


def files(*patterns: str) -> list[Path]:
    return sorted(file for folder in FOLDERS for pattern in patterns for file in (PROJECT / folder).rglob(pattern))


def misformatted(command: list[str], sources: list[Path]) -> list[str]:
    """The tool's messages about the sources that it would change."""
    result = subprocess.run([*command, *sources], capture_output=True, text=True, check=False)
    return [
        line
        for line in (result.stdout + result.stderr).splitlines()
        if "clang-formatted" in line or line.startswith("would reformat")
    ]


class Format(unittest.TestCase):
    def assert_formatted(self, command: list[str], sources: list[Path], wrong: str) -> None:
        self.assertGreater(len(sources), 100)
        self.assertEqual(misformatted(command, sources), [])
        with tempfile.NamedTemporaryFile("w", suffix=sources[0].suffix) as file:
            file.write(wrong)
            file.flush()
            self.assertEqual(len(misformatted(command, [Path(file.name)])), 1)

    def test_cpp(self):
        self.assert_formatted([*CLANG_FORMAT, "--dry-run", "-Werror"], files(*CPP), "int  x;\n")

    def test_python(self):
        self.assert_formatted([*BLACK, "--check"], files("*.py"), "x  = 1\n")


if __name__ == "__main__":
    if sys.argv[1:] == ["--write"]:
        with Moving("Formatting"):
            subprocess.run([*CLANG_FORMAT, "-i", *files(*CPP)], check=True)
            subprocess.run([*BLACK, "--quiet", *files("*.py")], check=True)
    else:
        unittest.main()
