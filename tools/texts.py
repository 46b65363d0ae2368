#!/usr/bin/python3
"""Brings resources/translations up to date with the texts of src/: new ones are added, without a translation, and old ones dropped.

Prints the texts that are not translated yet; exit status 1 when there are some.
"""

import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
FILES = sorted((ROOT / "resources" / "translations").glob("*.ts"))
OPTIONS = [
    "-silent",
    "-extensions",
    "h,cpp,mm,qml",
    "-locations",
    "none",
    "-I",
    "src",
    "-disable-heuristic",
    "sametext",
    "-disable-heuristic",
    "similartext",
]
MISSING = re.compile(r'<source>([^<]*)</source>(?:(?!</message>).)*?<translation type="unfinished">', re.DOTALL)


def update(path, lupdate, keep_old=False):
    """Updates one file; with `keep_old` old texts are only marked. lupdate writes a no-break space as a reference; the files have the
    character."""
    old = [] if keep_old else ["-no-obsolete"]
    subprocess.run([lupdate, *OPTIONS, *old, "src", "-ts", path], cwd=ROOT, check=True, capture_output=True)
    text = pathlib.Path(path).read_text(encoding="utf-8")
    pathlib.Path(path).write_text(text.replace("&#xa0;", "\u00a0"), encoding="utf-8")


def main():
    lupdate = shutil.which("lupdate", path="/usr/lib/qt6/bin") or shutil.which("lupdate")
    if not lupdate:
        sys.exit("lupdate, of Qt's tools for translators, is not installed: run ./build.sh deps")
    missing = 0
    for path in FILES:
        update(path, lupdate)
        for source in MISSING.findall(path.read_text(encoding="utf-8")):
            print(f"{path.name}: {source}")
            missing += 1
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
