#!/usr/bin/python3
"""Runs the fuzzers, and the root helper's argument harness.

usage: fuzz/run.py [--short | --minutes M] [NAME...]

--short    a fixed number of inputs for each, always the same ones; `./build.sh test` does this
--minutes  this long over all targets together (default 60), each with an equal share and a seed of its own
NAME       only these, such as BridgeLinesFuzz or helper

Each fuzzer starts from fuzz/corpus/NAME, which it does not change. New inputs go to build/fuzz/corpus/NAME, and an input that broke
it to build/fuzz/found/. Prints a table and writes build/fuzz/report.json. Exit status 1 when a fuzzer failed.
"""

import argparse
import json
import os
import re
import shutil
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(HERE, "..", "tools"))

from moving import Moving  # noqa: E402

BUILD = os.path.join(HERE, "..", "build", "fuzz")
HELPER = os.path.join(HERE, "..", "build", "bin", "veldmark-helper.sh")

# Inputs of a short run: a few seconds each on one core. Those that touch files or sockets are slower.
SHORT_RUNS = {"RequestFuzz": 5000, "SettingsFuzz": 2000, "LogFuzz": 2000, "BridgeLinesFuzz": 10000, "ReportFuzz": 300}
SHORT_DEFAULT = 20000
SHORT_HELPER_CASES = 1500
LARGEST_INPUT_BYTES = 4096
IN_MEMORY = "/dev/shm" if os.access("/dev/shm", os.W_OK) else "/tmp"  # for fuzzers that write inputs to files
INPUT_SECONDS = 10  # an input that takes longer is a finding
# Qt keeps objects between calls, which libFuzzer takes for a leak and searches for after every such input; one search at the end
# finds real leaks. The sanitizer's quarantine of freed memory is small enough for the processor's cache.
SANITIZER = "quarantine_size_mb=16"


def targets():
    folder = os.path.join(BUILD, "bin")
    return sorted(name for name in os.listdir(folder) if name.endswith("Fuzz")) if os.path.isdir(folder) else []


def fuzz(name, runs=None, seconds=None):
    """One fuzzer's figures."""
    found = os.path.join(BUILD, "found")
    # libFuzzer adds to its first folder. A short run begins with only the committed inputs, so it is always the same.
    corpus = os.path.join(BUILD, "scratch" if runs else "corpus", name)
    if runs and os.path.isdir(corpus):
        shutil.rmtree(corpus)
    for folder in found, corpus:
        os.makedirs(folder, exist_ok=True)
    bound = [f"-runs={runs}", "-seed=1"] if runs else [f"-max_total_time={seconds}"]
    start = time.monotonic()
    done = subprocess.run(
        [
            os.path.join(BUILD, "bin", name),
            *bound,
            f"-max_len={LARGEST_INPUT_BYTES}",
            f"-timeout={INPUT_SECONDS}",
            "-detect_leaks=0",
            "-print_final_stats=1",
            f"-artifact_prefix={found}/{name}-",
            f"-dict={HERE}/words/{name}.txt",
            corpus,
            os.path.join(HERE, "corpus", name),
        ],
        capture_output=True,
        text=True,
        errors="replace",
        check=False,
        env={**os.environ, "TMPDIR": IN_MEMORY, "ASAN_OPTIONS": SANITIZER},
    )
    log = os.path.join(BUILD, f"{name}.log")
    with open(log, "w", encoding="utf-8") as file:
        file.write(done.stderr)
    executed = re.search(r"number_of_executed_units: (\d+)", done.stderr)
    edges = re.findall(r"cov: (\d+)", done.stderr)
    return {
        "name": name,
        "inputs": int(executed[1]) if executed else 0,
        "seconds": round(time.monotonic() - start, 1),
        "edges": int(edges[-1]) if edges else 0,
        "failed": done.returncode != 0,
        "log": os.path.normpath(log),
    }


def helper(cases, seed):
    start = time.monotonic()
    done = subprocess.run(
        [sys.executable, os.path.join(HERE, "helper_arguments.py"), HELPER, "--cases", str(cases), "--seed", str(seed)],
        capture_output=True,
        text=True,
        check=False,
    )
    log = os.path.join(BUILD, "helper.log")
    os.makedirs(BUILD, exist_ok=True)
    with open(log, "w", encoding="utf-8") as file:
        file.write(done.stdout + done.stderr)
    return {
        "name": "helper",
        "inputs": cases if done.returncode == 0 else 0,
        "edges": 0,
        "seconds": round(time.monotonic() - start, 1),
        "failed": done.returncode != 0,
        "log": os.path.normpath(log),
    }


def helper_for(seconds):
    """Runs as many rounds as fit, each with a seed of its own."""
    total = {"name": "helper", "inputs": 0, "edges": 0, "seconds": 0.0, "failed": False, "log": ""}
    start = time.monotonic()
    seed = int(time.time())
    while not total["failed"] and time.monotonic() - start < seconds:
        one = helper(5000, seed)
        seed += 1
        total = {**one, "inputs": total["inputs"] + one["inputs"]}
    total["seconds"] = round(time.monotonic() - start, 1)
    return total


def main():
    options = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    options.add_argument("--short", action="store_true")
    options.add_argument("--minutes", type=float, default=60)
    options.add_argument("names", nargs="*")
    given = options.parse_args()
    built = targets()
    names = given.names or [*built, "helper"]
    if not built and names != ["helper"]:
        print("The fuzzers are not built: ./build.sh test or ./build.sh fuzz builds them.")
        sys.exit(77)
    unknown = set(names) - {*built, "helper"}
    if unknown:
        sys.exit("no such fuzzer: " + ", ".join(sorted(unknown)))

    share = int(given.minutes * 60 / len(names))
    reports = []
    print(f"{'':28}{'inputs':>12}{'seconds':>10}{'edges':>8}")
    for name in names:
        with Moving(name):
            if name == "helper":
                report = helper(SHORT_HELPER_CASES, 1) if given.short else helper_for(share)
            elif given.short:
                report = fuzz(name, runs=SHORT_RUNS.get(name, SHORT_DEFAULT))
            else:
                report = fuzz(name, seconds=share)
        reports.append(report)
        verdict = f"  BROKEN, see {report['log']}" if report["failed"] else ""
        print(f"{name:28}{report['inputs']:12,}{report['seconds']:10}{report['edges']:8}{verdict}", flush=True)
    print(f"{'together':28}{sum(r['inputs'] for r in reports):12,}{round(sum(r['seconds'] for r in reports), 1):10}")
    os.makedirs(BUILD, exist_ok=True)
    with open(os.path.join(BUILD, "report.json"), "w", encoding="utf-8") as file:
        json.dump(reports, file, indent=1)
    sys.exit(1 if any(report["failed"] for report in reports) else 0)


if __name__ == "__main__":
    main()
