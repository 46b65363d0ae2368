"""Types a line into a shell on a terminal of its own, and the password at its prompt: terminal.py PASSWORD LINE

Prints what the terminal shows; ends with the line's exit status.
"""

import os
import pty
import sys

ANSWERS = {b"password for": sys.argv[1].encode() + b"\n", b"[Y/n]": b"\n"}


def main():
    process, terminal = pty.fork()
    if process == 0:
        os.execv("/bin/bash", ["bash", "-c", sys.argv[2]])
    rest = b""
    while True:
        try:
            shown = os.read(terminal, 4096)
        except OSError:  # its other end is closed
            break
        if not shown:
            break
        sys.stdout.buffer.write(shown)
        sys.stdout.buffer.flush()
        rest = (rest + shown).splitlines()[-1]
        for question, answer in ANSWERS.items():
            if question in rest:
                os.write(terminal, answer)
                rest = b""
    sys.exit(os.waitstatus_to_exitcode(os.waitpid(process, 0)[1]))


main()
