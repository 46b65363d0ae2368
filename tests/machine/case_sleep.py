"""Suspend and resume, as far as a container can: logind's own signals around a sleep without the cable, and a clock that jumps."""

import struct
import subprocess
import time
from pathlib import Path

from desktops import put
from stage import CannotRun, Stage, connected, direct, end, expect, is_protected, network, state, through_tor, wait, watched

_SLEEP = "[Service]\nExecStart=\nExecStart=/bin/sh -c 'touch /run/asleep; while [ -e /run/asleep ]; do sleep 0.1; done'\n"
# logind asks the kernel whether it can sleep; here a file answers.
_POWER = r"""
set -e
mkdir -p /run/power
echo 'freeze mem' >/run/power/state
echo '[s2idle]' >/run/power/mem_sleep
mount --bind /run/power /sys/power
systemctl daemon-reload
[ "$(busctl call org.freedesktop.login1 /org/freedesktop/login1 org.freedesktop.login1.Manager CanSuspend)" = 's "yes"' ]
"""


_SHIFT = "/etc/shifted-clock"


def _shifted_clock(machine, folder: Path) -> None:
    """Gives a machine that is off its own clock, see ShiftedClock.c."""
    library = folder / "shifted-clock.so"
    source = Path(__file__).with_name("ShiftedClock.c")
    built = subprocess.run(["gcc", "-shared", "-fPIC", "-O2", "-o", library, source], capture_output=True, text=True, check=False)
    if built.returncode:
        raise CannotRun(f"no compiler for the clock: {built.stderr.splitlines()[0] if built.stderr else built.returncode}")
    machine.write("/usr/lib/shifted-clock.so", library.read_bytes(), 0o755)
    machine.write(_SHIFT, struct.pack("=q", 0))
    machine.write("/etc/ld.so.preload", "/usr/lib/shifted-clock.so\n")


def _shift(machine, seconds: int) -> None:
    machine.run(
        [
            "/usr/bin/python3",
            "-c",
            "import struct,sys; open(sys.argv[1], 'r+b').write(struct.pack('=q', int(sys.argv[2])))",
            _SHIFT,
            str(seconds),
        ],
        check=True,
    )
    told = int(machine.shell("date +%s")) - time.time()
    expect(abs(told - seconds) < 5, f"the machine's clock is {told:.0f} s ahead instead of {seconds}")


def clock_jump(stage: Stage) -> None:
    """The time of day jumps forward by an hour, as after a sleep, and back again, as after a time server's answer."""
    notes = []
    with stage.machine("clock", prepare=lambda machine: _shifted_clock(machine, stage.folder)) as machine:
        before = network(machine)
        with connected(machine) as session:
            with watched(stage):
                for seconds, words in (3600, "an hour on"), (0, "back"):
                    _shift(machine, seconds)
                    started = time.monotonic()
                    wait(lambda: through_tor(machine, 5), 60, f"no traffic through Tor after the clock went {words}")
                    wait(lambda: "jumped" in machine.shell("veldmarkctl log"), 30, "Tor has not seen the clock jump")
                    notes.append(f"{words}: through Tor after {time.monotonic() - started:.0f} s")
                    # The title may not know the kill switch: the kernel's own clock, and so the time of the watcher's note, has not
                    # jumped.
                    session.wait(is_protected, 60)
                    expect(not direct(machine), "the direct way is open")
            end(session, machine, before)
    stage.note = "; ".join(notes)


def suspend_and_resume(stage: Stage) -> None:
    with stage.machine("sleep") as machine:
        put(machine, "/etc/systemd/system/systemd-suspend.service.d/test.conf", _SLEEP)
        if machine.run(["/bin/sh", "-c", _POWER]).returncode:
            raise CannotRun("logind sees no way to suspend this machine")
        before = network(machine)
        with connected(machine) as session:
            with watched(stage):
                machine.run(["systemctl", "suspend"], check=True)
                wait(lambda: machine.run(["test", "-e", "/run/asleep"]).returncode == 0, 10, "it does not go to sleep")
                stage.lab.router.run(["ip", "link", "set", "machine0", "down"], check=True)
                time.sleep(20)
                told = state(machine)
                expect(told["stall"] == "noNetwork", f"without a cable it says {told['title']}, {told['stall']}")
                resumed = time.monotonic()
                machine.run(["rm", "/run/asleep"], check=True)
                # A network card is ready a moment after the resume. NetworkManager ignores links without a card that come up before
                # it knows that the sleep is over.
                wait(lambda: machine.shell("nmcli -t -f STATE general").strip() != "asleep", 10, "NetworkManager does not wake")
                stage.lab.router.run(["ip", "link", "set", "machine0", "up"], check=True)
                works = told = None
                while time.monotonic() < resumed + 10 and not works:
                    works = through_tor(machine, 2)
                    told = state(machine)
                seconds = time.monotonic() - resumed
                expect(works or told["stall"], f"ten seconds after the resume nothing flows, and it says {told['title']}")
                stage.note = f"through Tor {seconds:.0f} s after the resume" if works else f"after 10 s it says {told['title']}"
                # The network itself may be slower than that.
                wait(
                    machine.is_online,
                    60,
                    f"{stage.note}; NetworkManager does not bring the network back within a minute of the sleep",
                )
                wait(lambda: through_tor(machine, 5), 30, "no traffic through Tor although the network is back")
                stage.note += "" if works else f"; through Tor {time.monotonic() - resumed:.0f} s after it"
                expect(not direct(machine), "the direct way is open")
            end(session, machine, before)


CASES = {"suspend and resume, the cable out meanwhile": suspend_and_resume, "the clock jumps": clock_jump}
