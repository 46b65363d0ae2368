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
    files = {path.name: path for folder in ("tests", "fuzz") for path in (project / folder).rglob("*.py")}
    files |= {path.stem: path for path in (project / "tests").rglob("*Test.cpp")}
    promises = (project / "docs" / "security.md").read_text(encoding="utf-8")
    missing, found = [], 0
    for file, test in NAME.findall(promises):
        path = files.get(file.split("/")[-1])
        if path is None:
            missing.append(f"there is no {file}")
        elif test and not re.search(rf"\b(def|void) {test}\(", path.read_text(encoding="utf-8")):
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
