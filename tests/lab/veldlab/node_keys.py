"""The keys of the lab's nodes, kept between labs: making them is most of the work of a lab's start, and no lab meets another.

They lie in build/lab-keys, for root alone, and are made anew after a week, long before the authorities' certificates expire.
Where there is no such folder to write, every lab makes its own. Safe for labs that start side by side: one of them makes the keys
and the others wait for these; what is kept appears whole, and is replaced by the next folder's name, never changed.
"""

import contextlib
import fcntl
import os
import shutil
import tempfile
import time
from pathlib import Path

_BUILD = Path(__file__).resolve().parents[3] / "build"
_WEEK = 7 * 24 * 3600
_LINES = "identities"  # what the maker printed; written last


def _whole(kept: Path, names: list[str], now: float) -> bool:
    try:
        about = (kept / _LINES).stat()
        return (
            about.st_uid == os.geteuid()
            and 0 <= now - about.st_mtime < _WEEK
            and all((kept / name / "keys").is_dir() for name in names)
        )
    except OSError:
        return False


def take(names: list[str], target: Path, build: Path = _BUILD, now: float | None = None) -> str | None:
    """Copies the kept keys to NAME/keys below the target; returns what `keep` was given, or None when there are none to use."""
    now = time.time() if now is None else now
    for kept in sorted((build / "lab-keys").glob("set-*")):
        if not _whole(kept, names, now):
            continue
        for name in names:
            shutil.copytree(kept / name / "keys", target / name / "keys")
            (target / name / "keys").chmod(0o700)
        return (kept / _LINES).read_text()
    return None


@contextlib.contextmanager
def one_at_a_time(build: Path = _BUILD):
    """While a lab makes keys to be kept, no other one does. The lock ends with its process."""
    try:
        (build / "lab-keys").mkdir(mode=0o700, exist_ok=True)
        lock = os.open(build / "lab-keys" / "lock", os.O_RDWR | os.O_CREAT | os.O_CLOEXEC, 0o600)
    except OSError:  # nothing can be kept here
        yield
        return
    try:
        fcntl.flock(lock, fcntl.LOCK_EX)
        yield
    finally:
        os.close(lock)


def keep(names: list[str], source: Path, lines: str, build: Path = _BUILD, now: float | None = None) -> None:
    """Keeps a copy of NAME/keys below the source. Whoever comes second, or cannot write, keeps nothing."""
    now = time.time() if now is None else now
    place = build / "lab-keys"
    try:
        if not build.is_dir() or build.stat().st_uid != os.geteuid():
            return
        place.mkdir(mode=0o700, exist_ok=True)
        new = Path(tempfile.mkdtemp(prefix="new-", dir=place))
    except OSError:
        return
    try:
        for name in names:
            shutil.copytree(source / name / "keys", new / name / "keys")
        (new / _LINES).write_text(lines)
        os.utime(new / _LINES, (now, now))
        new.rename(place / f"set-{int(now // _WEEK)}")  # fails where one stands already
    except OSError:
        shutil.rmtree(new, ignore_errors=True)
    for old in (folder for folder in place.glob("*") if folder.is_dir()):
        try:
            # Not one that another lab may be reading or writing just now.
            if now - old.stat().st_mtime > 2 * _WEEK:
                shutil.rmtree(old, ignore_errors=True)
        except OSError:
            pass
