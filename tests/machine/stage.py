"""Shared by the cases: the lab, the installed disk, the programs as a user runs them, and the state that must be restored."""

import contextlib
import time
import types
from pathlib import Path

from base import FOLDER
from boot import USER, Machine
from dhcp import Leases
from veldlab import topology as at
from veldlab.product import Product

HELPER = "/usr/share/veldmark/veldmark-helper.sh"
MARKER = "/var/lib/veldmark/state/active"
PICTURES = FOLDER / "pictures"


class CannotRun(Exception):
    """The reason why a case cannot be tried on this machine, in one line. It is no pass."""


class Broken(AssertionError):
    """A failed expectation, as one line for the table."""


def expect(condition, what: str) -> None:
    if not condition:
        raise Broken(what)


def wait(condition, timeout: float, what: str):
    deadline = time.monotonic() + timeout
    while not (found := condition()):
        if time.monotonic() > deadline:
            raise Broken(f"{what} (not within {timeout:.0f} s)")
        time.sleep(0.1)
    return found


class Stage:
    def __init__(self, lab, base: Path, package: Path):
        self.lab, self.base, self.package = lab, base, package
        self.leases = Leases(lab, base)
        self.installed: list[str] = []  # layers with the package and Debian's tor, as installed by apt
        self.folder = FOLDER
        self.note = ""  # a word for the table, from the running case

    @contextlib.contextmanager
    def machine(self, name: str, tor_service: bool = False, prepare=None):
        """Boots the installed machine. `tor_service`: Debian's own tor runs, as after its installation. `prepare` is called with
        the machine before the boot."""
        if not self.installed:
            raise CannotRun("the package could not be installed")
        self.leases.give(at.HOST_ADDRESS)
        with Machine(self.lab, self.installed, name) as machine:
            if not tor_service:
                machine.path("/etc/systemd/system/multi-user.target.wants/tor.service").unlink(missing_ok=True)
            if prepare:
                prepare(machine)
            machine.boot()
            yield machine

    def picture(self, desktop, name: str) -> Path:
        return desktop.picture(PICTURES / f"{name}.png")


def product(machine: Machine, user: str = "root") -> Product:
    return Product(types.SimpleNamespace(host=machine), Path("/usr/bin"), user=user)


def direct(machine: Machine, address: str = at.WEB_ADDRESS) -> bool:
    """Whether a connection to the world is possible without Tor."""
    return machine.run(["timeout", "3", "bash", "-c", f"exec 3<>/dev/tcp/{address}/443"], user=USER).returncode == 0


def network(machine: Machine) -> dict[str, str]:
    """The settings that a session changes and must restore."""
    return {
        what: machine.shell(command)
        for what, command in {
            "rules": "nft -s list ruleset",
            "resolver": "readlink -f /etc/resolv.conf; grep -v '^#' /etc/resolv.conf",
            "mounts": "cut -d' ' -f5 /proc/self/mountinfo | grep resolv || true",
            "routes": "ip rule; ip -6 rule",
        }.items()
    }


def expect_whole(machine: Machine, before: dict[str, str]) -> None:
    after = network(machine)
    for what, was in before.items():
        expect(after[what] == was, f"the {what} are not as before: {after[what].strip()!r} instead of {was.strip()!r}")
    expect(machine.run(["test", "-e", MARKER]).returncode != 0, "the session marker is still there")
    expect(direct(machine), "the network does not work")


def state(machine: Machine, user: str = "root") -> dict:
    return product(machine, user).status()


def is_protected(s: dict) -> bool:
    return s["phase"] == "connected" and not s["isChecking"] and bool(s["exitIP"]) and s["torVerified"] is True


def through_tor(machine: Machine, seconds: float = 15) -> bool:
    """Whether the exit check sees an exit when alice's program asks through Tor."""
    asked = machine.run(
        ["curl", "--silent", "--max-time", str(seconds), "--socks5-hostname", "127.0.0.1:9050", at.CHECK_URL],
        user=USER,
        timeout=seconds + 20,
    )
    return asked.returncode == 0 and '"IsTor":true' in asked.stdout.replace(" ", "")


_OURS = (at.HOST_ADDRESS.rpartition(".")[0] + ".", at.HOST_ADDRESS6.rpartition("::")[0] + ":")


def _strangers(packets) -> list:
    """The machine's connections to addresses that are no relays."""
    return [p for p in packets if p.out and p.is_opening and p.src.startswith(_OURS) and p.dst not in at.RELAY_ADDRESSES]


@contextlib.contextmanager
def watched(stage: "Stage"):
    """Asserts that only Tor's own traffic leaves the machine during the context. `connected` shows beforehand that the watch sees
    other traffic."""
    with stage.lab.capture() as capture:
        yield
    strangers = _strangers(capture.packets)
    expect(not strangers, f"{len(strangers)} packets leaked, the first: {strangers[0] if strangers else ''}")


@contextlib.contextmanager
def connected(machine: Machine, strict: bool = True):
    """A session of veldmarkctl, run by root as on a server. Ctrl-C ends it unless the test has ended it."""
    ctl = product(machine)
    ctl.run_verb("set", "strictMode", "true" if strict else "false", check=True)
    with machine.lab.capture() as capture:
        expect(direct(machine), "there is no network to begin with")
    expect(_strangers(capture.packets), "the watch sees nothing of what leaves the machine")
    with ctl.session() as session:
        try:
            told = session.wait(lambda s: is_protected(s) or s["errorMessage"], 90)
            expect(is_protected(told), f"it does not connect: {told['errorMessage']}")
        except (RuntimeError, TimeoutError) as error:
            raise Broken(f"it does not connect: {last_line(session, error)}") from None
        expect(direct(machine) != strict, "the direct way is open in strict mode" if strict else "the direct way is closed")
        yield session


def last_line(session, error) -> str:
    try:
        told = state(session.product.lab.host)
        if told.get("errorMessage") or told.get("bootstrapProblem"):
            return told.get("errorMessage") or told["bootstrapProblem"]
    except Exception:  # noqa: BLE001 it has ended
        pass
    return " / ".join(session.lines[-3:]) or str(error).splitlines()[0]


def end(session, machine: Machine, before: dict[str, str]) -> None:
    expect(session.interrupt() == 0, f"it did not end well: {' / '.join(session.lines[-3:])}")
    expect_whole(machine, before)
