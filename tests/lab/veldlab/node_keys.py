"""The keys of the lab's nodes, which later labs use again. Making them is most of the work of a lab's start, and labs never meet
each other.

They are in build/lab-keys, readable by root only, and are made again after a week, long before the authorities' certificates
expire. Where that folder cannot be written, every lab makes its own. Labs may start side by side: one of them makes the keys and
the others wait. Kept keys appear as a whole folder and are never changed; new keys get a new folder.
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
_LINES = "identities"  # the maker's output; written last


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
    """Copies the kept keys to NAME/keys below the target; returns the text that `keep` was given, or None without usable keys."""
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
    """A lock: only one lab at a time makes keys to keep. The lock ends with its process."""
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
    """Keeps a copy of NAME/keys below the source. A second lab, or one that cannot write, keeps nothing."""
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
        new.rename(place / f"set-{int(now // _WEEK)}")  # fails when the folder exists already
    except OSError:
        shutil.rmtree(new, ignore_errors=True)
    for old in (folder for folder in place.glob("*") if folder.is_dir()):
        try:
            # Another lab may be reading or writing a newer one.
            if now - old.stat().st_mtime > 2 * _WEEK:
                shutil.rmtree(old, ignore_errors=True)
        except OSError:
            pass
