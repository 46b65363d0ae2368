"""Measures ten runs of connect and of disconnect on a private machine. It only prints the times."""

import time

import namespace

if __name__ == "__main__":
    namespace.require_namespaces()
    with namespace.Machine() as machine:
        machine.ready_account()
        took = {"connect": [], "disconnect": []}
        for _ in range(10):
            for verb, run in ("connect", machine.connect), ("disconnect", lambda: machine.help("disconnect")):
                start = time.monotonic()
                run()
                took[verb].append(time.monotonic() - start)
        for verb, times in took.items():
            times.sort()
            print(f"{verb}: median {times[5] * 1000:.0f} ms, longest {times[-1] * 1000:.0f} ms of {len(times)}")
