"""Reads 10,000 circuit-status lines with python3-stem, a maintained control library, for comparison with Veldmark's reader.

The lines are like those of the C++ benchmarks: three hops with nicknames, build flags, purpose and time, about 200 bytes each.
"""

import time

LINES = 10_000


def circuit_lines() -> list[str]:
    def hop(number: int) -> str:
        return f"${number:040X}~relay{number % 9000}"

    return [
        f"{i} BUILT {hop(i)},{hop(i * 7 + 1)},{hop(i * 13 + 5)} BUILD_FLAGS=NEED_CAPACITY,IS_INTERNAL "
        f"PURPOSE=GENERAL TIME_CREATED=2026-11-20T10:20:{i % 60:02d}.{i % 1000:03d}000"
        for i in range(1, LINES + 1)
    ]


def read_with_stem() -> float:
    """The seconds that stem needs to parse the reply into circuit events."""
    from stem.response import ControlMessage, convert  # noqa: F401, PLC0415

    lines = circuit_lines()
    start = time.perf_counter()
    for line in lines:
        message = ControlMessage.from_str(f"650 CIRC {line}\r\n", "EVENT", normalize=False)
        assert message.path[0][1].startswith("relay")
    return time.perf_counter() - start
