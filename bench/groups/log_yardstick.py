"""Reads three files of Tor's log in a short Python program, for comparison with Veldmark's reader: splits them into lines, drops
the start-up lines that are also in Tor's log, and parses the last 3,000 with the pattern of Tor's lines.
"""

import re
import time

FILE_BYTES = 1_000_000
LINES_KEPT = 3_000
PATTERN = re.compile(r"^([A-Z][a-z]{2} +\d{1,2} [0-9:.]+) \[(\w+)\] (.*)$")


def log_file() -> bytes:
    lines = (
        f"Nov 16 00:41:07.123 [notice] Bootstrapped {i % 100}% (loading_descriptors): Loading relay descriptors, circuit {i}\n"
        for i in range(FILE_BYTES // 90)
    )
    return "".join(lines).encode()[:FILE_BYTES]


def read_with_python(paths: list[str]) -> float:
    """Milliseconds."""
    start = time.perf_counter()
    texts = []
    for path in paths:
        with open(path, encoding="utf-8", errors="replace") as file:
            texts.append([line.strip() for line in file])
    known = set(texts[1])
    merged = [line for line in texts[0] if line not in known] + texts[1] + ["launcher: " + line for line in texts[2]]
    read = [match.groups() if (match := PATTERN.match(line)) else line for line in merged[-LINES_KEPT:]]
    took = (time.perf_counter() - start) * 1000
    assert len(read) == LINES_KEPT
    return took
