#!/usr/bin/python3
"""A clean Debian comes from the registry of this machine's apt. apt-get is a stand-in here."""

import os
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from clean_debian import Unprepared, registry  # noqa: E402


class Registry(unittest.TestCase):
    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.enterContext(mock.patch.dict(os.environ, {"PATH": str(self.folder)}))

    def apt(self, lines: str, status: int = 0) -> None:
        """An apt-get that answers only the expected request."""
        program = self.folder / "apt-get"
        program.write_text(
            "#!/bin/sh\n[ \"$*\" = 'indextargets --format $(SITE) $(RELEASE)' ] || exit 99\n" f"printf '{lines}'\nexit {status}\n"
        )
        program.chmod(0o755)

    def test_the_first_source_of_debian_12_is_taken(self):
        self.apt(
            "https://tools.example.test/apt stable\\n\\nhttp://mirror.example.test/debian bookworm-updates\\n"
            "http://mirror.example.test/debian bookworm\\nhttp://second.example.test/debian bookworm\\n"
        )
        self.assertEqual(registry(), "http://mirror.example.test/debian")

    def test_without_one_it_is_said(self):
        self.apt("http://mirror.example.test/debian trixie\\n")
        with self.assertRaisesRegex(Unprepared, r"name no registry of Debian 12 \(bookworm\)\.$"):
            registry()

    def test_an_apt_that_fails_or_is_missing_is_said(self):
        with self.assertRaisesRegex(Unprepared, "^This machine has no apt that works"):
            registry()
        self.apt("http://mirror.example.test/debian bookworm\\n", status=100)
        with self.assertRaisesRegex(Unprepared, "^This machine has no apt that works"):
            registry()


if __name__ == "__main__":
    unittest.main()
