"""Delay and loss on chosen paths, in user space: the kernel's own netem is missing from many small kernels.

Policy rules at the router lead the chosen packets into a tun device. A process reads them there, loses some, holds the others
back, and writes them to the device again, from where the router forwards them as before. Paths within the world (relay to
relay) do not pass the router and cannot be shaped. Each instance has its own device, table and rules, and removes them.
"""

import ipaddress
import itertools
import os
import struct
import sys
from pathlib import Path

from veldlab import topology as at

_SOURCES = {
    "host": (at.HOST_ADDRESS, at.HOST_ADDRESS6),
    "lan": (at.LAN_ADDRESS, at.LAN_ADDRESS6),
}
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
            [at.PYTHON, "-B", os.path.realpath(__file__), self._device, str(delay_ms), str(loss)],
            stdin=-1, stdout=-1, text=True,
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
        """The path is as before when this returns; packets that were held back are lost."""
        rules, self._rules = self._rules, []
        for family, *rule in rules:
            self._ip(family, "rule", "del", *rule, "lookup", self._table, check=False)
        self._process.communicate()

    def __enter__(self) -> "Shaping":
        return self

    def __exit__(self, *_) -> None:
        self.close()


def shape(device: str, delay: float, loss: float) -> None:
    """The process: ends when its standard input does. `delay` in seconds."""
    import collections
    import fcntl
    import random
    import select
    import subprocess
    import time

    set_interface, no_packet_information, tun = 0x400454CA, 0x1000, 1
    fd = os.open("/dev/net/tun", os.O_RDWR | os.O_NONBLOCK)
    fcntl.ioctl(fd, set_interface, struct.pack("16sH22x", device.encode(), tun | no_packet_information))
    subprocess.run(["ip", "link", "set", device, "up", "txqueuelen", "5000"], check=True)
    Path(f"/proc/sys/net/ipv4/conf/{device}/rp_filter").write_text("0")
    print("ready", flush=True)
    held: collections.deque[tuple[float, bytes]] = collections.deque()
    poller = select.poll()
    poller.register(fd, select.POLLIN)
    poller.register(0, select.POLLIN | select.POLLHUP)
    while True:
        wait_ms = max(0.0, held[0][0] - time.monotonic()) * 1000 if held else None
        for ready, _ in poller.poll(wait_ms):
            if ready == 0:
                return
            packet = os.read(fd, 65536)
            if random.random() >= loss:
                held.append((time.monotonic() + delay, packet))
        while held and held[0][0] <= time.monotonic():
            try:
                os.write(fd, held.popleft()[1])
            except OSError:
                pass  # a packet that the kernel does not take is a lost packet


if __name__ == "__main__":
    shape(sys.argv[1], float(sys.argv[2]) / 1000, float(sys.argv[3]))
