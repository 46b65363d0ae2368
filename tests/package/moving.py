"""Shows that something that takes its time moves, as busy in tools/progress.sh does for the shell.

    with Moving("Fetching a minimal Debian"):
        fetch()

A terminal sees the seconds pass in one line; another reader gets a line after two seconds and one each half minute.
"""

import contextlib
import sys
import threading
import time

FIRST, EACH = 2.0, 30.0


class Moving(contextlib.AbstractContextManager):
    def __init__(self, what: str):
        self.what = what
        self._ended = threading.Event()
        self._thread = threading.Thread(target=self._show, daemon=True)

    def __enter__(self) -> "Moving":
        self._thread.start()
        return self

    def __exit__(self, *_) -> None:
        self._ended.set()
        self._thread.join()

    def _show(self) -> None:
        began = time.monotonic()
        on_terminal = sys.stdout.isatty()
        wait = FIRST
        while not self._ended.wait(wait):
            line = f"{self.what}: {time.monotonic() - began:.0f} s"
            print(f"\r{line} " if on_terminal else line, end="" if on_terminal else "\n", flush=True)
            wait = 1.0 if on_terminal else EACH
        if on_terminal and time.monotonic() - began >= FIRST:
            print("\r\033[K", end="", flush=True)
