#!/usr/bin/python3
"""docs/security.md names the tests that show its promises; here it is made sure that they exist.

usage: test_promises.py PROJECT

A name is written `file: test_name` or `NameTest: slotName`, or is a test file's name alone.
"""

import re
import sys
from pathlib import Path

NAME = re.compile(r"`([\w/]+(?:\.py|Test))(?:: (\w+))?`")


def main() -> int:
    project = Path(sys.argv[1])
    files: dict[str, list[str]] = {}   # of one name there may be several
    for folder, pattern in (("tests", "*.py"), ("fuzz", "*.py"), ("tests", "*Test.cpp")):
        for path in (project / folder).rglob(pattern):
            files.setdefault(path.name.removesuffix(".cpp"), []).append(path.read_text(encoding="utf-8"))
    promises = (project / "docs" / "security.md").read_text(encoding="utf-8")
    missing, found = [], 0
    for file, test in NAME.findall(promises):
        texts = files.get(file.split("/")[-1], [])
        if not texts:
            missing.append(f"there is no {file}")
        elif test and not any(re.search(rf"\b(def|void) {test}\(", text) for text in texts):
            missing.append(f"{file} has no test {test}")
        else:
            found += 1
    for problem in missing:
        print("docs/security.md:", problem)
    if found < 20:
        print(f"docs/security.md: only {found} tests are named")
    return 1 if missing or found < 20 else 0


if __name__ == "__main__":
    sys.exit(main())
