"""An interactive shell on the lab's host, at a terminal of its own, used as a person would: type a line, wait for the prompt.

    shell.prepare(lab, "alice")
    with shell.Shell(lab, "bash", "alice") as bash:
        print(bash.run("echo $ALL_PROXY"))
"""

import contextlib
import os
import pty
import select
import time

PROMPT = "lab-prompt> "
# zsh without its line editor, which would draw the typed line between the answers.
_PROMPT_LINES = f"PS1='{PROMPT}'; [ -z \"${{ZSH_VERSION:-}}\" ] || unsetopt zle prompt_sp prompt_cr\n"
START_UP = (".bashrc", ".zshrc")
# The computer's own start-up files are left out.
_WORDS = {"bash": ["bash", "-i"], "zsh": ["zsh", "-d", "-i"]}


def prepare(lab, user: str, extra: str = "") -> None:
    """Start-up files of this user's for both shells: `extra`, and the prompt that `Shell` waits for."""
    home, uid = ("/root", 0) if user == "root" else (f"/home/{user}", lab.host.uid)
    for name in START_UP:
        lab.host.write(f"{home}/{name}", _PROMPT_LINES + extra, uid=uid)


class Shell(contextlib.AbstractContextManager):
    """`program`: bash or zsh, started as an interactive shell with the start-up files that `prepare` made."""

    def __init__(self, lab, program: str, user: str, timeout: float = 60):
        self._timeout = timeout
        self._master, slave = pty.openpty()
        # A terminal without any capabilities: it returns exactly what programs print.
        self._process = lab.host.popen(
            ["setsid", "--ctty", "--wait", *_WORDS[program]],
            user=user,
            env={"TERM": "dumb"},
            stdin=slave,
            stdout=slave,
            stderr=slave,
        )
        os.close(slave)
        self._seen = b""
        self._until_prompt()
        self.run("stty -echo")

    def run(self, line: str) -> str:
        """Runs the line; returns what the shell printed before the next prompt."""
        os.write(self._master, line.encode() + b"\n")
        return self._until_prompt()

    def _until_prompt(self) -> str:
        deadline = time.monotonic() + self._timeout
        mark = PROMPT.encode()
        while mark not in self._seen:
            ready, _, _ = select.select([self._master], [], [], max(0, deadline - time.monotonic()))
            if not ready:
                raise TimeoutError(f"no prompt within {self._timeout:.0f} s after {self._seen!r}")
            try:
                read = os.read(self._master, 65536)
            except OSError:  # Linux reports this way that the other end is closed
                read = b""
            if not read:
                raise RuntimeError(f"the shell has ended after {self._seen!r}")
            self._seen += read
        before, _, self._seen = self._seen.partition(mark)
        return before.decode("utf-8", "replace").replace("\r", "").strip("\n")

    def __exit__(self, *_) -> None:
        os.close(self._master)  # hangs the terminal up
        self._process.kill()
        self._process.wait()
