#!/usr/bin/python3
"""Prints each test that a run has skipped, with its reason: skipped.py JUNIT-FILE. CTest itself hides the reasons.

With VELDMARK_NO_SKIPS=1 in the environment a skipped test is a failure: exit status 1.
"""

import os
import re
import sys
import xml.etree.ElementTree as ElementTree

REASON = re.compile(r"^(?:SKIP\s*:\s*(?P<case>\S+?)\(.*?\)\s*(?P<qt>.*)|skipped: (?P<own>.*))$", re.MULTILINE)
# Python's unittest tells the reasons only when it is asked to be verbose.
COUNT = re.compile(r"^(?:OK|FAILED) \(.*\bskipped=(\d+)", re.MULTILINE)


def skipped(path: str):
    for case in ElementTree.parse(path).iter("testcase"):
        output = "".join(case.itertext())
        found = list(REASON.finditer(output))
        for match in found:
            yield case.get("name"), match["case"] or "", (match["qt"] or match["own"]).strip()
        count = COUNT.search(output)
        if count:
            yield case.get("name"), "", f"{count[1]} of its cases; run it with -v to see why"
        elif not found and case.find("skipped") is not None:
            last = [line for line in output.splitlines() if line.strip()]
            yield case.get("name"), "", last[-1].strip() if last else "no reason given"


found = list(skipped(sys.argv[1]))
for name, part, reason in found:
    print(f"skipped {name}{' ' + part if part else ''}: {reason}")
if found and os.environ.get("VELDMARK_NO_SKIPS") == "1":
    print(f"{len(found)} tests were skipped, and none may be here.")
    sys.exit(1)
