"""Delay and loss on chosen paths, in user space: the kernel's own netem is missing from many small kernels.

Policy rules at the router lead the chosen packets into a tun device. A process (shaper.py) reads them there, loses
some, holds the others back, and writes them to the device again, from where the router forwards them as before. Paths
within the world (relay to relay) do not pass the router and cannot be shaped. Each instance has its own device, table
and rules, and removes them.
"""

import ipaddress
import itertools
import os
from pathlib import Path

from veldlab import topology as at

_SOURCES = {"host": (at.HOST_ADDRESS, at.HOST_ADDRESS6), "lan": (at.LAN_ADDRESS, at.LAN_ADDRESS6)}
_SHAPER = str(Path(__file__).resolve().with_name("shaper.py"))
_numbers = itertools.count()


def destination(name: str) -> list[str]:
    """Networks for an address, a network or a node's name; everything for ""."""
    if not name:
        return ["0.0.0.0/0", "::/0"]
    try:
        return [str(ipaddress.ip_network(name))]
    except ValueError:
        return [at.node_named(name).address]


class Shaping:
    """In force once constructed; `close` ends it. Raises CommandFailed, ValueError, KeyError for an unknown node."""

    def __init__(self, router, source: str, to: str, delay_ms: float, loss: float):
        if source not in _SOURCES or not 0 <= loss <= 1 or delay_ms < 0:
            raise ValueError(f"no such path or figures: {source}, {delay_ms} ms, {loss}")
        number = f"{os.getpid()}{next(_numbers)}"
        self._router = router
        self._device, self._table = f"tun{number}"[:15], str(1000 + int(number) % 1_000_000)
        self._rules = []
        for network in destination(to):
            family = "-6" if ":" in network else "-4"
            own = _SOURCES[source][family == "-6"]
            self._rules += [
                [family, "from", own, "to", network, "iif", "br0"],
                [family, "from", network, "to", own, "iif", "world0"],
            ]
        self._process = router.popen(
            [at.PYTHON, "-B", _SHAPER, self._device, str(delay_ms), str(loss)], stdin=-1, stdout=-1, text=True
        )
        try:
            if self._process.stdout.readline() != "ready\n":
                raise RuntimeError("the shaping process did not start")
            for family in ("-4", "-6"):
                self._ip(family, "route", "add", "default", "dev", self._device, "table", self._table)
            for family, *rule in self._rules:
                self._ip(family, "rule", "add", *rule, "lookup", self._table)
        except BaseException:
            self.close()
            raise

    def _ip(self, *words: str, check: bool = True) -> None:
        self._router.run(["ip", *words], check=check)

    def close(self) -> None:
        """The path is as before when this returns; delayed packets are lost."""
        rules, self._rules = self._rules, []
        for family, *rule in rules:
            self._ip(family, "rule", "del", *rule, "lookup", self._table, check=False)
        self._process.communicate()

    def __enter__(self) -> "Shaping":
        return self

    def __exit__(self, *_) -> None:
        self.close()
