"""The few Linux system calls that Python 3.11 does not offer: unshare, setns, mount, prctl.

Every function raises OSError with the kernel's error number. Standard library only (ctypes).
"""

import ctypes
import os

CLONE_NEWNS = 0x00020000
CLONE_NEWCGROUP = 0x02000000
CLONE_NEWUTS = 0x04000000
CLONE_NEWIPC = 0x08000000
CLONE_NEWPID = 0x20000000
CLONE_NEWNET = 0x40000000

MS_RDONLY = 1
MS_NOSUID = 2
MS_NODEV = 4
MS_NOEXEC = 8
MS_REMOUNT = 32
MS_BIND = 4096
MS_REC = 16384
MS_PRIVATE = 1 << 18

_PR_SET_PDEATHSIG = 1
_PR_SET_NAME = 15
_libc = ctypes.CDLL(None, use_errno=True)


def _check(result: int, what: str) -> None:
    if result != 0:
        number = ctypes.get_errno()
        raise OSError(number, f"{what}: {os.strerror(number)}")


def unshare(flags: int) -> None:
    _check(_libc.unshare(flags), "unshare")


def setns(fd: int, kind: int = 0) -> None:
    _check(_libc.setns(fd, kind), "setns")


def mount(source: str, target: str, kind: str = "", flags: int = 0, options: str = "") -> None:
    result = _libc.mount(
        source.encode(), os.fsencode(target), kind.encode() or None, ctypes.c_ulong(flags), options.encode() or None
    )
    _check(result, f"mount {kind or source} on {target}")


def make_mounts_private() -> None:
    """No mount made from here on is seen outside this mount namespace, nor the other way round."""
    mount("none", "/", flags=MS_REC | MS_PRIVATE)


def bind(source: str, target: str) -> None:
    mount(source, target, flags=MS_BIND | MS_REC)


def die_with_parent(signal_number: int) -> None:
    _check(_libc.prctl(_PR_SET_PDEATHSIG, signal_number, 0, 0, 0), "prctl")


def set_process_name(name: str) -> None:
    _check(_libc.prctl(_PR_SET_NAME, name.encode()[:15], 0, 0, 0), "prctl")


def set_host_name(name: str) -> None:
    _check(_libc.sethostname(name.encode(), len(name.encode())), "sethostname")
