"""A program that takes over the output of another process, as any program may do to a process of its own account."""

import subprocess

NOBODY = 65534

# UID COMMAND PIPE FILE: takes over standard output of the process COMMAND that runs as UID, and prints what it is, or the error.
# With PIPE it takes the process that reads PIPE, and sends it FILE through PIPE. Each line of input, "write TEXT" or "copy FILE",
# is written to the beginning of what was taken, which is then released; prints "written" or the error.
THIEF = """
import ctypes, os, select, signal, stat, sys
uid, command, pipe, file = int(sys.argv[1]), sys.argv[2].encode(), sys.argv[3].encode(), sys.argv[4]
call = ctypes.CDLL(None, use_errno=True).syscall
PIDFD_OPEN, PIDFD_GETFD = 434, 438

def victims():
    for pid in filter(str.isdigit, os.listdir('/proc')):
        try:
            words = open(f'/proc/{pid}/cmdline', 'rb').read().split(b'\\0')
            if os.stat(f'/proc/{pid}').st_uid == uid and words[0].endswith(command) and (not pipe or pipe in words):
                yield int(pid)
        except OSError:
            pass

print('waits', flush=True)
orders = select.poll()
orders.register(sys.stdin, 0)  # reports that nobody will write an order any more
found = []
while not found:
    found = list(victims())
    if not found and orders.poll(0):
        sys.exit()
number = call(PIDFD_GETFD, call(PIDFD_OPEN, found[0], 0), 1, 0)
if number < 0:
    print(os.strerror(ctypes.get_errno()), flush=True)
else:
    print('a file' if stat.S_ISREG(os.fstat(number).st_mode) else 'a pipe', flush=True)
if pipe:
    with open(pipe, 'wb') as out:
        out.write(open(file, 'rb').read())
signal.signal(signal.SIGPIPE, signal.SIG_IGN)
for line in sys.stdin:
    word, rest = line.split(' ', 1)
    data = rest.encode() if word == 'write' else open(rest.strip(), 'rb').read()
    try:
        if stat.S_ISREG(os.fstat(number).st_mode):
            os.ftruncate(number, 0)
            os.lseek(number, 0, os.SEEK_SET)
        os.write(number, data)
        os.close(number)
        print('written', flush=True)
    except OSError as error:
        print(error.strerror, flush=True)
"""


class Thief:
    """Runs as `uid` and attacks the process `command` of the account `victim` (default: its own)."""

    def __init__(self, machine, uid, command, victim=None, pipe="", file=""):
        self.process = machine.start(
            "/usr/bin/python3",
            "-c",
            THIEF,
            str(uid if victim is None else victim),
            command,
            pipe,
            file,
            uid=uid,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        assert self.says() == "waits"

    def says(self):
        return self.process.stdout.readline().strip()

    def order_at_once(self, line):
        """An order that is carried out once there is something to take. Does not wait for that."""
        self.process.stdin.write(line + "\n")
        self.process.stdin.flush()

    def _order(self, line):
        self.order_at_once(line)
        return self.says()

    def write(self, text):
        return self._order("write " + text)

    def copy(self, file):
        return self._order("copy " + file)

    def close(self):
        try:
            self.process.communicate(timeout=10)
        except subprocess.TimeoutExpired:  # it waits for a reader of a pipe
            self.process.kill()
            self.process.communicate()
