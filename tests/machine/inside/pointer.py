"""Clicks in a wlroots compositor: pointer.py X Y BUTTON WIDTH HEIGHT, the last two being the output's size.

A headless compositor has no mouse. This program makes one (wlr-virtual-pointer), gives the clients a moment to notice it, moves it,
presses and releases.
"""

import os
import socket
import struct
import sys
import time

BUTTONS = {1: 0x110, 3: 0x111}


class Wayland:
    def __init__(self):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(os.path.join(os.environ["XDG_RUNTIME_DIR"], os.environ["WAYLAND_DISPLAY"]))
        self.last, self.names, self.rest = 1, {}, b""
        self.registry = self.new()
        self.send(1, 1, struct.pack("=I", self.registry))
        self.wait()

    def new(self) -> int:
        self.last += 1
        return self.last

    def send(self, target: int, code: int, arguments: bytes = b"") -> None:
        self.socket.sendall(struct.pack("=II", target, (8 + len(arguments)) << 16 | code) + arguments)

    def wait(self) -> None:
        """Waits until the compositor has handled all requests."""
        callback = self.new()
        self.send(1, 0, struct.pack("=I", callback))
        while True:
            self.rest += self.socket.recv(65536)
            while len(self.rest) >= 8:
                target, word = struct.unpack_from("=II", self.rest)
                if len(self.rest) < word >> 16:
                    break
                body, self.rest = self.rest[8 : word >> 16], self.rest[word >> 16 :]
                if target == 1 and word & 0xFFFF == 0:
                    sys.exit(f"the compositor refuses: {body!r}")
                if target == self.registry and word & 0xFFFF == 0:
                    name, length = struct.unpack_from("=II", body)
                    self.names[body[8 : 8 + length - 1].decode()] = name
                if target == callback:
                    return

    def bind(self, interface: str) -> int:
        made, text = self.new(), interface.encode() + b"\0"
        padded = text + b"\0" * (-len(text) % 4)
        self.send(self.registry, 0, struct.pack("=II", self.names[interface], len(text)) + padded + struct.pack("=II", 1, made))
        return made


def main() -> None:
    x, y, button, width, height = map(int, sys.argv[1:])
    wayland = Wayland()
    seat, manager = wayland.bind("wl_seat"), wayland.bind("zwlr_virtual_pointer_manager_v1")
    pointer = wayland.new()
    wayland.send(manager, 0, struct.pack("=II", seat, pointer))
    wayland.wait()
    time.sleep(0.4)
    wayland.send(pointer, 1, struct.pack("=IIIII", 0, x, y, width, height))
    wayland.send(pointer, 4)
    wayland.wait()
    time.sleep(0.3)
    for pressed in (1, 0):
        wayland.send(pointer, 2, struct.pack("=III", pressed, BUTTONS[button], pressed))
        wayland.send(pointer, 4)
        wayland.wait()
        time.sleep(0.1)
    time.sleep(0.3)


main()
