"""Runs one command inside a lab: `enter.py SPEC COMMAND...`, SPEC being JSON.

    init    process id whose namespaces to join          net     name of a network namespace, "" for the process's own
    user    account to run as                            cwd     working folder, "" for the account's home
    env     variables on top of the account's own           session  true: a session of the command's own
    cgroup  control group to start in, as the lab's first mount namespace names it, with `cgroup_init` its process 1

This process stays outside. An attendant inside the lab's pid namespace is the command's parent, since some programs, such as
pkexec, need a visible parent. Both pass signals on, and end like the command: with the same exit status, or killed by the same
signal. If one of them is killed, the command is killed as well. 126 and 127
mean, as in a shell, that the command cannot be executed or was not found; 125, that the lab is gone or the account or
folder missing.
"""

import json
import os
import select
import signal
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
sys.dont_write_bytecode = True

from veldlab import kernel  # noqa: E402

_KINDS = {
    "ipc": kernel.CLONE_NEWIPC,
    "uts": kernel.CLONE_NEWUTS,
    "net": kernel.CLONE_NEWNET,
    "pid": kernel.CLONE_NEWPID,
    "cgroup": kernel.CLONE_NEWCGROUP,
    "mnt": kernel.CLONE_NEWNS,
}
_FORWARDED = [signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGQUIT, signal.SIGUSR1, signal.SIGUSR2, signal.SIGWINCH]
_SENT_BY_A_PROCESS = (0, -1, -6)  # si_code SI_USER, SI_QUEUE, SI_TKILL; a terminal's signals reach the command anyway


def join(spec: dict) -> int:
    """Joins the namespaces; returns an open `cgroup.procs` of the command's control group."""
    init = spec["init"]
    procs = os.open(f"/proc/{spec['cgroup_init']}/root{spec['cgroup']}/cgroup.procs", os.O_WRONLY)
    fds = []
    for name, kind in _KINDS.items():
        path = f"/proc/{init}/ns/{name}"
        if name == "net" and spec["net"]:
            path = f"/proc/{init}/root/run/netns/{spec['net']}"
        fds.append((os.open(path, os.O_RDONLY), kind))
    for fd, kind in fds:
        kernel.setns(fd, kind)
        os.close(fd)
    return procs


def become(spec: dict) -> None:
    """Takes on the account's identity and working folder."""
    import pwd

    try:
        account = pwd.getpwnam(spec["user"])
    except KeyError:
        fail(125, f"no account {spec['user']} here")
    os.environ |= {"HOME": account.pw_dir, "USER": account.pw_name, "LOGNAME": account.pw_name}
    os.environ |= {"SHELL": account.pw_shell, "XDG_RUNTIME_DIR": f"/run/user/{account.pw_uid}"}
    os.environ |= spec["env"]
    if account.pw_uid:
        os.initgroups(account.pw_name, account.pw_gid)
        os.setgid(account.pw_gid)
        os.setuid(account.pw_uid)
    os.umask(0o022)
    try:
        os.chdir(spec["cwd"] or account.pw_dir)
    except OSError as error:
        fail(125, f"{error.filename}: {error.strerror}")


def fail(status: int, text: str) -> None:
    os.write(2, f"veldlab: {text}\n".encode())
    os._exit(status)


def spawn(body) -> int:
    """Forks a child; returns its id. The child dies with this process once it has called the function that `body` gets."""
    held_read, held_write = os.pipe()
    child = os.fork()
    if child:
        os.close(held_read)
        return child  # and keep the other end open: it tells the child that this process lives

    def bind() -> None:
        kernel.die_with_parent(signal.SIGKILL)
        watch = select.poll()
        watch.register(held_read, 0)
        if watch.poll(0):
            os._exit(125)  # the parent died before the line above took effect
        os.close(held_read)

    os.close(held_write)
    body(bind)
    os._exit(125)


def attend(spec: dict, command: list[str], procs: int) -> None:
    """The attendant, then the command."""

    def attendant(bind) -> None:
        bind()
        kernel.set_process_name("veldlab-enter")
        os.write(procs, b"0")
        os.close(procs)
        end_like(spawn(lambda bind_command: execute(spec, command, bind_command)))

    child = spawn(attendant)
    os.close(procs)
    end_like(child)


def execute(spec: dict, command: list[str], bind) -> None:
    if spec["session"]:
        os.setsid()
    become(spec)
    bind()  # a change of account resets it, so it is set again
    signal.pthread_sigmask(signal.SIG_UNBLOCK, _FORWARDED + [signal.SIGCHLD])
    for number in (signal.SIGPIPE, signal.SIGXFSZ):
        signal.signal(number, signal.SIG_DFL)
    try:
        os.execvpe(command[0], command, os.environ)
    except FileNotFoundError:
        fail(127, f"{command[0]}: not found")
    except OSError as error:
        fail(126, f"{command[0]}: {error.strerror}")


def end_like(child: int) -> None:
    """Passes signals on until the child ends, then ends in the same way."""
    # A reader of the command's output must see its end when the command ends, not when this process does.
    for fd in (0, 1, 2):
        os.close(fd)
    status = wait_for(child)
    if os.WIFSIGNALED(status):
        number = os.WTERMSIG(status)
        if number != signal.SIGKILL:
            signal.signal(number, signal.SIG_DFL)
            signal.pthread_sigmask(signal.SIG_UNBLOCK, [number])
        os.kill(os.getpid(), number)
    os._exit(os.waitstatus_to_exitcode(status))


def wait_for(child: int) -> int:
    """Returns the child's wait status."""
    while True:
        ended, status = os.waitpid(child, os.WNOHANG)
        if ended:
            return status
        info = signal.sigwaitinfo(_FORWARDED + [signal.SIGCHLD])
        if info.si_signo != signal.SIGCHLD and info.si_code in _SENT_BY_A_PROCESS:
            os.kill(child, info.si_signo)


def main() -> None:
    spec, command = json.loads(sys.argv[1]), sys.argv[2:]
    signal.pthread_sigmask(signal.SIG_BLOCK, _FORWARDED + [signal.SIGCHLD])
    try:
        procs = join(spec)
    except OSError as error:
        fail(125, f"the lab has ended ({error.strerror})")
    attend(spec, command, procs)


if __name__ == "__main__":
    main()
