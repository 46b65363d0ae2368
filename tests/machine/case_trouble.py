"""Sudden ends of a session: a restart, a power cut, an upgrade. Afterwards the network works, and the display is true."""

import os
import random
import subprocess
import tempfile
import time
from pathlib import Path

from boot import USER, Machine
from later_package import newer
from stage import HELPER, MARKER, Stage, connected, direct, end, expect, expect_whole, network, product, state, through_tor, watched

CUTS = 20


def _trouble(machine: Machine) -> str:
    """The broken parts of the network with details; empty without any."""
    broken = [] if direct(machine) else ["no connection"]
    if machine.run(["timeout", "5", "getent", "hosts", "www.example.test"], user=USER).returncode:
        broken.append("no name")
    if not broken:
        return ""
    looks = machine.shell(
        "ip -br address; ip route; ls -l /etc/resolv.conf; grep -v '^#' /etc/resolv.conf; nft list tables; ls /var/lib/veldmark/state /run/veldmark 2>&1 || true"
    )
    return ", ".join(broken) + ": " + "; ".join(looks.splitlines())


def _expect_truth_and_a_way_back(machine: Machine, before: dict[str, str], what: str) -> str:
    """Checks the display after a boot; returns the shown phase."""
    told = state(machine)
    marked = machine.run(["test", "-e", MARKER]).returncode == 0
    expect(told["phase"] == ("stale" if marked else "disconnected"), f"{what}: marker {marked}, but it says {told['phase']}")
    expect(not told["torVerified"] and not told["exitIP"], f"{what}: it claims protection")
    trouble = _trouble(machine)
    expect(not trouble or told["phase"] == "stale", f"{what}: nothing is said of {trouble}")
    if told["phase"] == "stale":
        done = product(machine).run_verb("restore", timeout=60)
        expect(done.returncode == 0, f"{what}: restore says {done.stderr.strip()}")
    expect_whole(machine, before)
    trouble = _trouble(machine)
    expect(not trouble, f"{what}: {trouble}")
    return told["phase"]


def reboot_with_a_session(stage: Stage) -> None:
    with stage.machine("reboot") as machine:
        before = network(machine)
        with connected(machine) as session:
            machine.reboot()
            session.process.wait()
        phase = _expect_truth_and_a_way_back(machine, before, "after the restart")
        stage.note = f"shown after it: {phase}"


def power_cuts(stage: Stage) -> None:
    """Cuts the power at random moments, half of them during a connect, half during a disconnect. The disk is in memory and keeps
    all writes, so the test does not show what a real disk loses of its last seconds."""
    seed = int(os.environ.get("VELDMARK_SEED") or random.randrange(1 << 32))
    chance = random.Random(seed)
    stage.note = f"seed {seed}"
    phases: list[str] = []
    with stage.machine("cuts") as machine:
        before = network(machine)
        product(machine).run_verb("set", "strictMode", "true", check=True)
        for number in range(CUTS):
            session = product(machine).session()
            with session:
                if number % 2:
                    session.wait(lambda s: s["phase"] == "connected", 90)
                    disconnect = machine.popen(
                        ["/usr/bin/veldmarkctl", "disconnect"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
                    )
                    moment = chance.uniform(0, 1.5)
                else:
                    disconnect, moment = None, chance.uniform(0, 6)
                time.sleep(moment)
                machine.power_cut()
                session.process.wait()
                if disconnect:
                    disconnect.wait()
            machine.boot()
            what = f"cut {number + 1}, {moment:.2f} s into the {'dis' if number % 2 else ''}connect (seed {seed})"
            phases.append(_expect_truth_and_a_way_back(machine, before, what))
    left = phases.count("stale")
    stage.note = f"{CUTS} cuts: {left} times shown as left over and restored, {CUTS - left} times whole at once; seed {seed}"


def upgrade_while_connected(stage: Stage) -> None:
    with stage.machine("upgrade") as machine, tempfile.TemporaryDirectory() as folder:
        machine.path("/var/local/newer.deb").write_bytes(newer(stage.package, Path(folder)).read_bytes())
        before = network(machine)
        with connected(machine) as session:
            with watched(stage):
                rules = machine.shell("nft -s list ruleset")
                done = machine.run(["apt-get", "install", "--yes", "/var/local/newer.deb"], timeout=120)
                expect(done.returncode == 0, f"apt: {(done.stdout + done.stderr).strip().splitlines()[-1]}")
                expect("later" in machine.shell(f"tail -n 1 {HELPER}"), "the later helper is not there")
                expect(machine.shell("nft -s list ruleset") == rules, "the rules have changed")
                expect(not direct(machine), "the direct way is open")
                expect(through_tor(machine), "no traffic through Tor")
            end(session, machine, before)
        machine.reboot()
        expect_whole(machine, before)


CASES = {
    "restart with a session open": reboot_with_a_session,
    f"power cut at {CUTS} random moments of connect and disconnect": power_cuts,
    "upgrade while connected": upgrade_while_connected,
}
