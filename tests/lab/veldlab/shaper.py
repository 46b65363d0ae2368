"""The process behind shaping.py, at the router: `shaper.py DEVICE DELAY_MS LOSS`.

Makes the tun device, prints "ready", then delays every packet, or loses it with the probability LOSS (0 to 1). The program and the
device end with its standard input.
"""

import collections
import fcntl
import os
import random
import select
import struct
import subprocess
import sys
import time
from pathlib import Path

_TUNSETIFF, _IFF_TUN, _IFF_NO_PI = 0x400454CA, 1, 0x1000


def open_device(name: str) -> int:
    fd = os.open("/dev/net/tun", os.O_RDWR | os.O_NONBLOCK)
    fcntl.ioctl(fd, _TUNSETIFF, struct.pack("16sH22x", name.encode(), _IFF_TUN | _IFF_NO_PI))
    Path(f"/proc/sys/net/ipv4/conf/{name}/rp_filter").write_text("0")
    subprocess.run(["ip", "link", "set", name, "up", "txqueuelen", "5000"], check=True)
    return fd


def shape(fd: int, delay: float, loss: float) -> None:
    """`delay` in seconds."""
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
    device = open_device(sys.argv[1])
    print("ready", flush=True)
    shape(device, float(sys.argv[2]) / 1000, float(sys.argv[3]))
