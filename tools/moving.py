"""Shows that something that takes its time moves, as busy in tools/progress.sh does for the shell.

    with Moving("Checking sources") as moving:
        for number, source in enumerate(sources, 1):
            check(source)
            moving.step(number, len(sources))

A terminal sees the seconds pass in one line; another reader gets a line after two seconds and one each half minute. Of one in another the
inner is shown, once it has taken two seconds. What is printed meanwhile is printed by say.
"""

import contextlib
import sys
import threading
import time
from collections.abc import Callable

FIRST, EACH = 2.0, 30.0
_CLEARED = "\r\033[K"


def say(text: str) -> None:
    """Prints a line, in the place of one that moves."""
    print((_CLEARED if sys.stdout.isatty() else "") + text, flush=True)


class Moving(contextlib.AbstractContextManager):
    """`what` is a text, or gives the one of the moment."""

    _all: list["Moving"] = []  # each inside the one before

    def __init__(self, what: str | Callable[[], str]):
        self.what = what
        self._steps = ""
        self._began = 0.0
        self._ended = threading.Event()
        self._thread = threading.Thread(target=self._show, daemon=True)

    def step(self, done: int, total: int) -> None:
        self._steps = f"{done} of {total}, "

    def __enter__(self) -> "Moving":
        self._began = time.monotonic()
        Moving._all.append(self)
        self._thread.start()
        return self

    def __exit__(self, *_) -> None:
        self._ended.set()
        self._thread.join()
        Moving._all.remove(self)

    @property
    def _seconds(self) -> float:
        return time.monotonic() - self._began

    def _is_innermost(self) -> bool:
        inner = Moving._all[Moving._all.index(self) + 1 :]
        return not any(other._seconds >= FIRST for other in inner)

    def _show(self) -> None:
        on_terminal = sys.stdout.isatty()
        wait = FIRST
        while not self._ended.wait(wait):
            if self._is_innermost():
                what = self.what if isinstance(self.what, str) else self.what()
                line = f"{what}: {self._steps}{self._seconds:.0f} s"
                print(f"\r{line} \033[K" if on_terminal else line, end="" if on_terminal else "\n", flush=True)
            wait = 1.0 if on_terminal else EACH
        if on_terminal and self._seconds >= FIRST:
            print(_CLEARED, end="", flush=True)
