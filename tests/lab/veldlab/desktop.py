"""A user's desktop on the lab's host: an X server, a window manager, a session bus with accessibility, and a service that records
notifications. Tests use the application on it like a user, by looking and clicking.

    with Desktop(lab, "alice") as desktop, desktop.start(programs) as window:
        window.click("push button", "Connect to Tor")
        window.wait_for("heading", "Protected")
"""

import contextlib
import json
import shutil
import subprocess
import threading
import time
from pathlib import Path

from veldlab import topology as at
from veldlab.lab import PROJECT

_SUPPORT = PROJECT / "tests" / "support"
_LOGIN_POLICY = """<busconfig><policy user="root"><allow own="org.freedesktop.login1"/></policy>
<policy context="default"><allow send_destination="org.freedesktop.login1"/>
<allow receive_sender="org.freedesktop.login1"/></policy></busconfig>
"""
_PROGRAMS = {"Xvfb": "xvfb", "xdotool": "xdotool", "openbox": "openbox", "dbus-daemon": "dbus-daemon", "gdbus": "libglib2.0-bin"}


def missing() -> str:
    """The missing packages as a line for the user, or ""."""
    packages = sorted({package for program, package in _PROGRAMS.items() if not shutil.which(program)})
    trial = "import dbus, gi; gi.require_version('Atspi', '2.0'); from gi.repository import Atspi"
    if subprocess.run([at.PYTHON, "-c", trial], capture_output=True).returncode != 0:
        packages += ["python3-dbus", "python3-gi", "gir1.2-atspi-2.0", "at-spi2-core"]
    return f"Programs are missing: run sudo apt install {' '.join(packages)}" if packages else ""


class Lines:
    """The lines that a process prints, as they come. `stream` of the process must be a pipe of text."""

    def __init__(self, stream):
        self.all: list[str] = []
        self._changed = threading.Condition()
        self._thread = threading.Thread(target=self._read, args=(stream,), daemon=True)
        self._thread.start()

    def _read(self, stream) -> None:
        for line in stream:
            with self._changed:
                self.all.append(line.rstrip("\n"))
                self._changed.notify_all()

    def forget(self) -> None:
        with self._changed:
            self.all.clear()

    def wait(self, condition, timeout: float = 30) -> str:
        """Waits for the first line for which `condition` holds; earlier lines count. Must not run while another thread forgets
        lines."""
        deadline, seen = time.monotonic() + timeout, 0
        with self._changed:
            while True:
                for line in self.all[seen:]:
                    if condition(line):
                        return line
                seen = len(self.all)
                if not self._changed.wait_for(lambda: len(self.all) > seen, max(0, deadline - time.monotonic())):
                    raise TimeoutError("not within {:.0f} s among:\n{}".format(timeout, "\n".join(self.all)))

    def join(self) -> str:
        """The whole output, once the other end is closed."""
        self._thread.join()
        return "\n".join(self.all)


class Desktop(contextlib.ExitStack):
    def __init__(self, lab, user: str):
        super().__init__()
        self.lab, self.user = lab, user
        self.env: dict[str, str] = {}

    def __enter__(self) -> "Desktop":
        with contextlib.ExitStack() as undo:
            undo.push(super().__exit__)
            self.lab.host.run(["mkdir", "-p", "-m", "1777", "/tmp/.X11-unix", "/tmp/.ICE-unix"], check=True)
            self.start_display()
            bus = self._start(["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE)
            self.env["DBUS_SESSION_BUS_ADDRESS"] = Lines(bus.stdout).wait(bool)
            recorder = self._start([at.PYTHON, str(_SUPPORT / "notifications.py")], stdout=subprocess.PIPE)
            self._notifications = Lines(recorder.stdout)
            self._notifications.wait(lambda line: "ready" in line)
            self._notifications.forget()
            undo.pop_all()
        return self

    def start_display(self) -> None:
        """Starts a new X server and its window manager. Programs of an earlier one stay there."""
        self.display = self._start(
            ["Xvfb", "-displayfd", "1", "-screen", "0", "1600x1000x24", "-nolisten", "tcp"],
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
        )
        self.env["DISPLAY"] = ":" + Lines(self.display.stdout).wait(bool)
        self.manager = self._start(["openbox", "--sm-disable"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.run(["xdotool", "search", "--sync", "--maxdepth", "1", "--name", ".*"], check=True)

    def kill_display(self) -> None:
        """Kills the X server, as a crash does."""
        self.display.kill()
        self.display.wait()
        self.manager.wait()

    def start_session_manager(self) -> "Service":
        """Starts tests/support/session_manager.py. Programs that start later belong to its session."""
        process = self._start([at.PYTHON, str(_SUPPORT / "session_manager.py")], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        manager = Service(process)
        self.env["SESSION_MANAGER"] = manager.lines.wait(bool)
        return manager

    @contextlib.contextmanager
    def login_manager(self):
        """Starts a system bus and tests/support/login_manager.py on it, as root; yields a `Service`. Both end with the context."""
        self.lab.host.write("/etc/dbus-1/system.d/veldlab-login.conf", _LOGIN_POLICY)
        self.lab.host.run(["mkdir", "-p", "/run/dbus"], check=True)
        bus = self._start(["dbus-daemon", "--system", "--nofork", "--nopidfile"], user="root")
        try:
            self.lab.host.run(
                ["sh", "-c", "until gdbus wait --system --timeout 20 org.freedesktop.DBus 2>/dev/null; do sleep 0.02; done"],
                check=True,
            )
            process = self._start(
                [at.PYTHON, str(_SUPPORT / "login_manager.py")], user="root", stdin=subprocess.PIPE, stdout=subprocess.PIPE
            )
            service = Service(process)
            try:
                service.lines.wait(lambda line: line == "ready")
                yield service
            finally:
                process.kill()
                process.wait()
        finally:
            bus.kill()
            bus.wait()

    def _start(self, command, user: str = "", **options) -> subprocess.Popen:
        options.setdefault("stdin", subprocess.DEVNULL)
        process = self.lab.host.popen(command, user=user or self.user, env=self.env, text=True, **options)
        self.callback(self._end, process)
        return process

    @staticmethod
    def _end(process) -> None:
        process.kill()
        process.wait()
        for pipe in filter(None, (process.stdin, process.stdout)):
            pipe.close()

    def run(self, command, **options) -> subprocess.CompletedProcess:
        return self.lab.host.run(command, user=self.user, env=self.env, **options)

    def start(self, programs: Path, *arguments: str, env: dict | None = None) -> "Application":
        return Application(self, programs, arguments, env or {})

    @property
    def notifications(self) -> list[dict]:
        """The notifications since forget_notifications()."""
        return [json.loads(line) for line in self._notifications.all]

    def forget_notifications(self) -> None:
        self._notifications.forget()

    def wait_notification(self, title: str, timeout: float = 30) -> dict:
        """Waits for the first notification with this title since forget_notifications()."""
        return json.loads(self._notifications.wait(lambda line: json.loads(line).get("title") == title, timeout))


class Service:
    """A process that obeys lines on its input and prints lines."""

    def __init__(self, process: subprocess.Popen):
        self._process, self.lines = process, Lines(process.stdout)

    def tell(self, word: str) -> None:
        self._process.stdin.write(word + "\n")
        self._process.stdin.flush()


class Application(contextlib.AbstractContextManager):
    """The running application. Leaving the context kills it, so that a failed test leaves the network to the test."""

    def __init__(self, desktop: Desktop, programs: Path, arguments, more_env: dict):
        self.desktop = desktop
        env = desktop.env | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_QPA_PLATFORM": "xcb", "LANG": "C.UTF-8"} | more_env
        # The shell's own id becomes the program's: other processes know it by the host's numbers.
        self.process = desktop.lab.host.popen(
            ["/bin/sh", "-c", 'echo "process $$" >&2; exec "$@"', "start", str(Path(programs) / "veldmark"), *arguments],
            user=desktop.user,
            env=env,
            text=True,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.PIPE,
        )
        self._errors = Lines(self.process.stderr)
        self.pid = int(self._errors.wait(lambda line: line.startswith("process ")).split()[1])

    def tree(self) -> list[dict]:
        seen = self.desktop.run([at.PYTHON, str(_SUPPORT / "accessible.py"), str(self.pid)], check=True)
        return json.loads(seen.stdout)

    def nodes(self) -> list[dict]:
        """All visible nodes, parents before children, each with its "window"."""
        found, open_nodes = [], [node | {"window": node} for node in self.tree()[::-1]]
        while open_nodes:
            node = open_nodes.pop()
            if "showing" in node["states"]:
                found.append(node)
                open_nodes += [child | {"window": node["window"]} for child in node["children"][::-1]]
        return found

    def find(self, role: str, name: str) -> dict | None:
        return next((n for n in self.nodes() if n["role"] == role and n["name"] == name), None)

    def wait_for(self, role: str, name: str, timeout: float = 60, state: str = "showing") -> dict:
        deadline = time.monotonic() + timeout
        while time.monotonic() < deadline:
            if self.process.poll() is not None:
                raise RuntimeError(f"veldmark ended with {self.process.returncode}\n{self.errors}")
            found = self.find(role, name)
            if found and state in found["states"]:
                return found
        shown = "\n".join(f"{n['role']} {n['name']!r} {' '.join(n['states'])}" for n in self.nodes())
        raise TimeoutError(f"no {role} {name!r} that is {state} within {timeout:.0f} s; there are\n{shown}\n{self.errors}")

    def wait_until(self, condition, timeout: float = 60) -> None:
        deadline = time.monotonic() + timeout
        while not condition():
            if time.monotonic() > deadline:
                raise TimeoutError(f"not within {timeout:.0f} s")

    def click(self, role: str, name: str, timeout: float = 60) -> None:
        """Clicks the middle of the node, once it is enabled and its window is in front."""
        deadline = time.monotonic() + timeout
        place = None
        while time.monotonic() < deadline:
            target = self.wait_for(role, name, max(0, deadline - time.monotonic()), "enabled")
            there = target["x"] + target["width"] // 2, target["y"] + target["height"] // 2
            if "active" not in target["window"]["states"]:
                self.desktop.run(
                    ["xdotool", "search", "--onlyvisible", "--name", f"^{target['window']['name']}$", "windowactivate"], check=True
                )
            elif there == place:  # the node is still there: the window manager has placed the window
                self.desktop.run(["xdotool", "click", "1"], check=True)
                return
            else:
                self.desktop.run(["xdotool", "mousemove", *map(str, there)], check=True)
                place = there
        raise TimeoutError(f"{role} {name!r} could not be clicked within {timeout:.0f} s")

    def press(self, key: str) -> None:
        """Sends a key, by xdotool's name, to the window in front."""
        self.desktop.run(["xdotool", "key", key], check=True)

    @property
    def errors(self) -> str:
        """The application's standard error, without this class's own line."""
        return "\n".join(line for line in self._errors.all if line != f"process {self.pid}")

    def signal(self, number: int) -> None:
        self.process.send_signal(number)

    def wait(self, timeout: float = 40) -> int:
        """Waits for its end, reads all its output, and returns the exit status."""
        status = self.process.wait(timeout)
        self._errors.join()
        return status

    def __exit__(self, *_) -> None:
        self.process.kill()
        self.process.wait()
        self._errors.join()
        self.process.stderr.close()
