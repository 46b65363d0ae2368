#!/usr/bin/python3
"""docs/security.md names the tests of its promises, and docs/endurance.md those of what was found; this test checks that they exist.

usage: test_promises.py PROJECT

A name is written `file: test_name` or `NameTest: slotName`, or is a test file's name alone; with its folder
(`helper/test_kill.py`) where files of several folders have that name.
"""

import re
import sys
from pathlib import Path

NAME = re.compile(r"`([\w/]+(?:\.py|Test))(?:: (\w+))?`")


def main() -> int:
    project = Path(sys.argv[1])
    files: dict[str, list[Path]] = {}  # several files may have the same name
    for folder, pattern in (("tests", "*.py"), ("fuzz", "*.py"), ("tests", "*Test.cpp")):
        for path in (project / folder).rglob(pattern):
            files.setdefault(path.name.removesuffix(".cpp"), []).append(path)
    missing, found = [], 0
    for document in "docs/security.md", "docs/endurance.md":
        for file, test in NAME.findall((project / document).read_text(encoding="utf-8")):
            named = file.split("/")
            paths = [path for path in files.get(named[-1], []) if list(path.parts[-len(named) : -1]) == named[:-1]]
            if not paths:
                missing.append(f"{document}: there is no {file}")
            elif len(paths) > 1:
                places = ", ".join(str(path.relative_to(project)) for path in paths)
                missing.append(f"{document}: {file} may be any of {places}")
            elif test and not re.search(rf"\b(def|void) {test}\(", paths[0].read_text(encoding="utf-8")):
                missing.append(f"{document}: {file} has no test {test}")
            else:
                found += document == "docs/security.md"
    for problem in missing:
        print(problem)
    if found < 20:
        print(f"docs/security.md: only {found} tests are named")
    return 1 if missing or found < 20 else 0


if __name__ == "__main__":
    sys.exit(main())
