"""Networks that change under a session: cables, leases, other networks, and who answers for names."""

import time

from boot import USER, Machine
from desktops import put
from stage import Broken, CannotRun, Stage, connected, direct, end, expect, expect_whole, network, product, through_tor, wait, watched
from veldlab import topology as at

_OTHER_ADDRESS = "192.168.77.23"
# The servers that systemd-resolved asks, for all names or for a link's.
_GLOBAL = f"[Resolve]\nDNS={at.DNS_ADDRESS}\n"


def _cable(stage: Stage, state: str) -> None:
    stage.lab.router.run(["ip", "link", "set", "machine0", state], check=True)


def link_down_and_up(stage: Stage) -> None:
    with stage.machine("link") as machine:
        before = network(machine)
        with connected(machine) as session:
            with watched(stage):
                _cable(stage, "down")
                wait(lambda: "NO-CARRIER" in machine.shell("ip link show eth0"), 5, "the machine does not see that the cable is out")
                expect(not through_tor(machine, 3), "Tor works without a cable")
                time.sleep(8)   # longer than NetworkManager waits before it gives the network up
                _cable(stage, "up")
                started = time.monotonic()
                wait(lambda: through_tor(machine), 60, "no traffic through Tor after the cable is back")
                stage.note = f"through Tor again {time.monotonic() - started:.0f} s after the cable"
                expect(not direct(machine), "the direct way is open")
            end(session, machine, before)


def another_network(stage: Stage) -> None:
    """The cable goes into another wall: another address, another lease."""
    with stage.machine("another") as machine:
        before = network(machine)
        with connected(machine) as session:
            with watched(stage):
                _cable(stage, "down")
                stage.leases.give(_OTHER_ADDRESS)
                time.sleep(8)
                _cable(stage, "up")
                wait(lambda: _OTHER_ADDRESS in machine.shell("ip -4 addr show eth0"), 60, "no address in the other network")
                wait(lambda: through_tor(machine), 60, "no traffic through Tor in the other network")
                expect(not direct(machine), "the direct way is open")
            end(session, machine, before)


def new_lease(stage: Stage) -> None:
    """The connection is made anew while the session lasts, and NetworkManager writes resolv.conf again."""
    with stage.machine("lease") as machine:
        with connected(machine) as session:
            with watched(stage):
                stage.leases.give(_OTHER_ADDRESS, at.WEB_ADDRESS)
                machine.run(["nmcli", "connection", "up", "Home"], check=True)
                wait(lambda: _OTHER_ADDRESS in machine.shell("ip -4 addr show eth0"), 60, "no new address")
                wait(lambda: through_tor(machine), 60, "no traffic through Tor with the new lease")
                fix_dns(machine, session)
            expect(session.interrupt() == 0, "it did not end well")
        # Not what was there before the session but what the network now says.
        given = machine.shell("cat /etc/resolv.conf")
        expect(at.WEB_ADDRESS in given, f"resolv.conf has not the new lease's server but {given.split()}")
        expect(direct(machine), "the network does not work")


def _leaks(state: dict) -> bool:
    return isinstance(state["dnsStatus"], dict)


def fix_dns(machine: Machine, session) -> None:
    """Whatever the checks have found of look-ups: after "Fix DNS" nothing of it is left."""
    ctl = product(machine)
    ctl.run_verb("check", timeout=90)
    state = session.wait(lambda s: not s["isChecking"], 60)
    if _leaks(state):
        ctl.run_verb("fix-dns", timeout=60)
        ctl.run_verb("check", timeout=90)
        try:
            session.wait(lambda s: not s["isChecking"] and not _leaks(s), 60)
        except TimeoutError:
            raise Broken('the leak card stays after "Fix DNS"') from None


def _resolved(stage: Stage, name: str, config: str) -> None:
    with stage.machine(name) as machine:
        machine.shell("rm /etc/NetworkManager/conf.d/dns.conf; ln -sf ../run/systemd/resolve/stub-resolv.conf /etc/resolv.conf")
        if config:
            put(machine, "/etc/systemd/resolved.conf.d/test.conf", config)
            machine.shell("nmcli connection modify Home ipv4.ignore-auto-dns yes ipv6.ignore-auto-dns yes ipv6.dns ''")
        machine.shell("systemctl enable --quiet systemd-resolved")
        machine.reboot()
        wait(lambda: machine.run(["getent", "hosts", "www.example.test"]).returncode == 0, 20, "systemd-resolved answers nothing")
        asked = machine.shell("resolvectl dns")
        expect(at.DNS_ADDRESS in asked.splitlines()[0] if config else at.DNS_ADDRESS in asked, f"the set-up is not what it is to be: {asked}")
        before = network(machine) | {"resolvectl": asked}
        with connected(machine) as session:
            fix_dns(machine, session)
            with watched(stage):
                machine.run(["timeout", "10", "getent", "hosts", "www.example.test"], user=USER)
            expect(session.interrupt() == 0, "it did not end well")
        wait(lambda: machine.shell("resolvectl dns") == asked, 10, "systemd-resolved's servers are not as before")
        before.pop("resolvectl")
        expect_whole(machine, before)


def resolved_with_servers_of_links(stage: Stage) -> None:
    _resolved(stage, "resolved-link", "")


def resolved_with_global_servers(stage: Stage) -> None:
    _resolved(stage, "resolved-global", _GLOBAL)


def wireguard(stage: Stage) -> None:
    with stage.machine("wireguard") as machine:
        if machine.run(["ip", "link", "add", "trial", "type", "wireguard"]).returncode:
            raise CannotRun("this kernel has no WireGuard")
        raise Broken("the case is not written yet")


CASES = {
    "NetworkManager: cable out and in again": link_down_and_up,
    "NetworkManager: another network in a session": another_network,
    "NetworkManager: a new lease with another name server": new_lease,
    "systemd-resolved with servers of its links": resolved_with_servers_of_links,
    "systemd-resolved with global servers": resolved_with_global_servers,
    "WireGuard before and during the session": wireguard,
}
