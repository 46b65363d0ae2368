"""Suspend and resume, as far as a container can: logind's own signals around a sleep in which the cable is out."""

import time

from desktops import put
from stage import CannotRun, Stage, connected, direct, end, expect, network, state, through_tor, wait, watched

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


def clock_jump(stage: Stage) -> None:
    raise CannotRun("a container has no clock of its own")


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
                stage.lab.router.run(["ip", "link", "set", "machine0", "up"], check=True)
                machine.run(["rm", "/run/asleep"], check=True)
                resumed = time.monotonic()
                works = told = None
                while time.monotonic() < resumed + 10 and not works:
                    works = through_tor(machine, 2)
                    told = state(machine)
                seconds = time.monotonic() - resumed
                expect(works or not told["torVerified"] or told["errorMessage"] or told["bootstrapProblem"],
                       "ten seconds after the resume nothing flows, and it still says that all is well")
                stage.note = f"through Tor {seconds:.0f} s after the resume" if works else f"after 10 s it says {told['title']}"
                # The network itself may be slower than that.
                wait(machine.is_online, 60, f"{stage.note}; NetworkManager does not bring the network back within a minute of the sleep")
                wait(lambda: through_tor(machine, 5), 30, "no traffic through Tor although the network is back")
                stage.note += "" if works else f"; through Tor {time.monotonic() - resumed:.0f} s after it"
                expect(not direct(machine), "the direct way is open")
            end(session, machine, before)


CASES = {"suspend and resume, the cable out meanwhile": suspend_and_resume,
         "the clock jumps": clock_jump}
