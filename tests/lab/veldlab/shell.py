"""An interactive shell on the lab's host, at a terminal of its own, used as a person would: type a line, wait for the prompt.

    with Shell(lab, "bash", "alice") as shell:
        print(shell.run("echo $ALL_PROXY"))
"""

import contextlib
import os
import pty
import select
import time

PROMPT = "lab-prompt> "
# zsh would else end a line that has no line break for the reader.
_PROMPT_LINES = f"PS1='{PROMPT}'; [ -z \"${{ZSH_VERSION:-}}\" ] || unsetopt prompt_sp prompt_cr\n"
START_UP = {"bash": ".bashrc", "zsh": ".zshrc"}


class Shell(contextlib.AbstractContextManager):
    """`program`: bash or zsh, started as an interactive shell with the user's own start-up files.

