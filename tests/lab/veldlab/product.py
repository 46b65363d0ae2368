"""The program under test on the lab's host: the shipped files, run as a user does.

    product = Product(lab, programs)
    with product.session() as session:          # veldmarkctl run --connect
        session.wait_phase("connected")
        session.interrupt()                      # Ctrl-C; gives the exit status
"""

import contextlib
import hashlib
import json
import os
import select
import signal
import subprocess
import threading
import time
from pathlib import Path

from veldlab import snapshot

_ACCOUNTS = ("/etc/passwd", "/etc/group", "/etc/shadow", "/etc/gshadow")


def difference(before: dict[str, str], after: dict[str, str]) -> str:
    """The changes that a session left, as a diff; "" without any. Tor's account is made once and stays."""

    def without_accounts(state: dict[str, str]) -> dict[str, str]:
        lines = state["files"].splitlines()
        return state | {"files": "\n".join(line for line in lines if not line.startswith(_ACCOUNTS))}

    return snapshot.diff(without_accounts(before), without_accounts(after))


def is_probed(state: dict) -> bool:
    """Whether the session is connected and the checks of exit and direct path have their answers: no more direct requests follow.
    The DNS check goes on for some seconds. A test that needs its result, or another check, waits until `isChecking` is false."""
    return state["phase"] == "connected" and state["torVerified"] is not None


def _lines(descriptor: int, deadline: float, look):
    """The lines of a pipe until its end or the deadline, with calls of look() in between."""
    rest = b""
    while (left := deadline - time.monotonic()) > 0:
        if not select.select([descriptor], [], [], min(left, 0.2))[0]:
            look()
            continue
        some = os.read(descriptor, 1 << 20)
        if not some:
            return
        *whole, rest = (rest + some).split(b"\n")
        yield from whole


class Product:
    """`programs`: the folder with veldmarkctl and the helper. `user`: the user who runs it; root needs no prompt."""

    def __init__(self, lab, programs: Path, user: str = "root", env: dict | None = None):
        self.lab, self.user, self.env = lab, user, env or {}
        self.ctl = str(Path(programs) / "veldmarkctl")
        self.helper = str(Path(programs) / "veldmark-helper.sh")

    def install_identifier(self) -> None:
        """Puts veldmark-identify where a package has it. The helper runs none from a folder that others than root can change, such as a
        checkout below /tmp."""
        self._install("veldmark-identify")

    def install_filter(self) -> None:
        """The same for veldmark-control."""
        self._install("veldmark-control")

    def _install(self, name: str) -> None:
        program = Path(self.helper).with_name(name).read_bytes()
        self.lab.host.write(f"/usr/libexec/veldmark/{name}", program, mode=0o755)

    def run_verb(self, *verb: str, **options) -> subprocess.CompletedProcess:
        """One call of veldmarkctl, with its output as text."""
        return self.lab.host.run([self.ctl, *verb], user=self.user, env=self.env, **options)

    def status(self) -> dict:
        return json.loads(self.run_verb("status", "--json", check=True).stdout)

    def run_helper(self, *arguments: str, **options) -> subprocess.CompletedProcess:
        return self.lab.host.run(["/bin/bash", self.helper, *arguments], **options)

    def approve(self, program: str, role: str) -> None:
        """As an administrator who was asked for this program. `role`: what it may run as, such as "lyrebird"."""
        digest = hashlib.sha256(self.lab.host.path(program).read_bytes()).hexdigest()
        self.run_helper("approve", "--program", program, "--as", role, "--sha256", digest, check=True)

    def wait_state(self, condition, timeout: float = 60, look=lambda: None) -> dict:
        """Waits for the first state for which `condition` holds, beginning with the present one.
        `look` is called several times a second, and may raise."""
        deadline = time.monotonic() + timeout
        state = None
        while time.monotonic() < deadline:
            look()
            # Following the state takes far less of a busy machine than repeated requests.
            with self.lab.host.popen(
                [self.ctl, "status", "--json", "--watch"],
                user=self.user,
                env=self.env,
                stdin=subprocess.DEVNULL,
                stdout=subprocess.PIPE,
                stderr=subprocess.DEVNULL,
            ) as following:
                try:
                    for line in _lines(following.stdout.fileno(), deadline, look):
                        state = json.loads(line)
                        if condition(state):
                            return state
                finally:
                    following.terminate()
            time.sleep(0.1)  # no instance listens yet, or it has ended
        raise TimeoutError(f"not within {timeout:.0f} s; last state {json.dumps(state)[:2000]}")

    def session(self, connect: bool = True, echo=None) -> "Session":
        """`veldmarkctl run`, with --connect or without. `echo` is called with each line it prints."""
        return Session(self, ["--connect"] if connect else [], echo)


class Session(contextlib.AbstractContextManager):
    """A running `veldmarkctl run`. Leaving the context ends it (by SIGTERM) if nothing else has."""

    def __init__(self, product: Product, arguments: list[str], echo):
        self.product, self.lines = product, []
        self._echo = echo
        self.process = product.lab.host.popen(
            [product.ctl, "run", *arguments],
            user=product.user,
            env=product.env,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
        )
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()

    def _read(self) -> None:
        for line in self.process.stdout:
            self.lines.append(line.rstrip("\n"))
            if self._echo:
                self._echo(line.rstrip("\n"))

    @property
    def output(self) -> str:
        return "\n".join(self.lines)

    def wait(self, condition, timeout: float = 60) -> dict:
        """Waits for the first state that the running instance publishes and for which `condition` holds."""

        def look() -> None:
            if self.process.poll() is not None:
                raise RuntimeError(f"veldmarkctl run ended with {self.process.returncode}\n{self.output}")

        try:
            return self.product.wait_state(condition, timeout, look)
        except TimeoutError as error:
            raise TimeoutError(f"{error}\n{self.output}") from None

    def wait_phase(self, phase: str, timeout: float = 60) -> dict:
        return self.wait(lambda state: state["phase"] == phase, timeout)

    def send(self, number: int) -> None:
        self.process.send_signal(number)

    def interrupt(self, number: int = signal.SIGINT, timeout: float = 40) -> int:
        """Ends it by a signal; gives its exit status."""
        self.send(number)
        status = self.process.wait(timeout)
        self._reader.join()
        return status

    def __exit__(self, *_) -> None:
        if self.process.poll() is None:
            try:
                self.interrupt(signal.SIGTERM)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()
        self._reader.join()
        self.process.stdout.close()
