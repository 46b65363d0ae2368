#!/usr/bin/python3
"""Measures the resources of `veldmarkctl run` and nyx while each watches an idle Tor; prints one JSON object.

    service_probe.py PROGRAMS SECONDS

Runs on the lab's host. Both run at the same time: veldmarkctl connected in proxy mode, with its own Tor, and nyx on a terminal
of 80 by 24 characters with a bare one.
"""

import fcntl
import json
import os
import pty
import struct
import subprocess
import sys
import tempfile
import termios
import threading
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from desktop_probe import connected, idle, running, until  # noqa: E402

CONTROL_PORT = 9151
DRAWN_BYTES = 2000  # after this much output the terminal shows the whole page


def bare_tor(folder: str) -> subprocess.Popen:
    torrc = Path(folder, "torrc")
    torrc.write_text(
        f"DataDirectory {folder}/data\nSocksPort 9150\nControlPort {CONTROL_PORT}\nCookieAuthentication 1\nLog notice stdout\n"
    )
    process = subprocess.Popen(["tor", "-f", torrc], stdout=subprocess.PIPE, text=True)
    for line in process.stdout:
        if "Bootstrapped 100%" in line:
            return process
    raise RuntimeError("bare tor did not bootstrap")


class Terminal:
    """A program on a terminal of its own; its output is read and counted."""

    def __init__(self, words: list[str]):
        self.pid, self._end = pty.fork()
        if self.pid == 0:
            os.environ["TERM"] = "xterm"
            os.execvp(words[0], words)
        fcntl.ioctl(self._end, termios.TIOCSWINSZ, struct.pack("HHHH", 24, 80, 0, 0))
        self.drawn = 0
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self) -> None:
        while True:
            try:
                self.drawn += len(os.read(self._end, 65536))
            except OSError:
                return


def main() -> None:
    programs, seconds = sys.argv[1], float(sys.argv[2])
    ctl = f"{programs}/veldmarkctl"
    with tempfile.TemporaryDirectory() as folder:
        tor = bare_tor(folder)
        with running([ctl, "run"], stdout=subprocess.DEVNULL) as ours:
            until("no instance", lambda: subprocess.run([ctl, "status"], capture_output=True).returncode == 0)
            subprocess.run([ctl, "set", "strictMode", "false"], check=True, stdout=subprocess.DEVNULL)
            subprocess.run([ctl, "connect"], check=True, stdout=subprocess.DEVNULL)
            until("not connected", lambda: connected(ctl))
            nyx = Terminal(["nyx", "-i", f"127.0.0.1:{CONTROL_PORT}"])
            until("nyx drew nothing", lambda: nyx.drawn > DRAWN_BYTES)
            figures = idle({"run": ours.pid, "nyx": nyx.pid}, seconds)
            os.kill(nyx.pid, 9)
            os.waitpid(nyx.pid, 0)
        tor.terminate()
        tor.wait()
    print(json.dumps(figures))


if __name__ == "__main__":
    main()
