"""Debian's own tor service runs, as after apt install tor, and holds the port."""

from boot import Machine
from stage import Stage, connected, end, expect, expect_whole, network, product, state, wait

_WHO = "systemctl is-active tor@default; systemctl is-enabled tor"


def service_listens(machine) -> bool:
    return "debian-tor" in machine.shell(
        "pid=$(ss -Hltnp 'sport = 9050' | grep -o 'pid=[0-9]*' | head -n 1 | cut -d= -f2); "
        '[ -z "$pid" ] || ps -o user= -p "$pid"'
    )


def service_state(machine) -> str:
    return machine.run(["sh", "-c", _WHO]).stdout


def with_service(machine: Machine) -> tuple[dict[str, str], str]:
    """The machine with Debian's own tor service running; a session takes the port from it."""
    wait(lambda: service_listens(machine), 20, "Debian's tor service does not listen")
    return network(machine), service_state(machine)


def given_back(machine: Machine, service: str) -> None:
    wait(lambda: service_listens(machine), 20, "Debian's tor service was not given back")
    wait(lambda: service_state(machine) == service, 20, "the service is not as before")


def debians_tor(stage: Stage) -> None:
    with stage.machine("tor", tor_service=True) as machine:
        wait(lambda: service_listens(machine), 20, "Debian's tor service does not listen")
        before, service = network(machine), service_state(machine)
        with connected(machine) as session:
            expect(not service_listens(machine), "Debian's tor service still has the port")
            end(session, machine, before)
        wait(lambda: service_listens(machine), 20, "Debian's tor service was not given back")
        # systemd shows it as active only after tor's notice, a moment after tor listens.
        wait(lambda: service_state(machine) == service, 20, "the service is not as before")


def debians_tor_after_a_power_cut(stage: Stage) -> None:
    with stage.machine("tor-cut", tor_service=True) as machine:
        wait(lambda: service_listens(machine), 20, "Debian's tor service does not listen")
        before = network(machine)
        with connected(machine) as session:
            machine.power_cut()
            session.process.wait()
        machine.boot()
        if state(machine)["phase"] != "disconnected":
            product(machine).run_verb("restore", timeout=60)
        expect_whole(machine, before)
        wait(lambda: service_listens(machine), 20, "Debian's tor service was not given back")


CASES = {
    "Debian's tor service runs: the first connect, and given back": debians_tor,
    "Debian's tor service runs: given back after a power cut": debians_tor_after_a_power_cut,
}
