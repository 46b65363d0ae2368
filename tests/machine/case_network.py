"""Networks that change during a session: cables, leases, other networks, and DNS resolvers."""

import contextlib
import time

from boot import USER, Machine
from desktops import put
from stage import (
    Broken,
    CannotRun,
    Stage,
    connected,
    direct,
    end,
    expect,
    expect_whole,
    is_protected,
    network,
    product,
    through_tor,
    wait,
    watched,
)
from veldlab import topology as at

_OTHER_ADDRESS = "192.168.77.23"
# The servers of systemd-resolved, for all names or for a link's.
_GLOBAL = f"[Resolve]\nDNS={at.DNS_ADDRESS}\n"


def _cable(stage: Stage, state: str) -> None:
    stage.lab.router.run(["ip", "link", "set", "machine0", state], check=True)


def link_down_and_up(stage: Stage) -> None:
    with stage.machine("link") as machine:
        before = network(machine)
        with connected(machine) as session:
            with watched(stage):
                _cable(stage, "down")
                wait(
                    lambda: "NO-CARRIER" in machine.shell("ip link show eth0"), 5, "the machine does not see that the cable is out"
                )
                expect(not through_tor(machine, 3), "Tor works without a cable")
                time.sleep(8)  # longer than NetworkManager's limit for a lost network
                _cable(stage, "up")
                started = time.monotonic()
                wait(lambda: through_tor(machine), 60, "no traffic through Tor after the cable is back")
                stage.note = f"through Tor again {time.monotonic() - started:.0f} s after the cable"
                expect(not direct(machine), "the direct way is open")
            end(session, machine, before)


def another_network(stage: Stage) -> None:
    """The cable is plugged into another network: another address, another lease."""
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
    """NetworkManager reconnects during the session and writes resolv.conf again."""
    with stage.machine("lease") as machine:
        with connected(machine) as session:
            with watched(stage):
                stage.leases.give(_OTHER_ADDRESS, at.WEB_ADDRESS)
                machine.run(["nmcli", "connection", "up", "Home"], check=True)
                wait(lambda: _OTHER_ADDRESS in machine.shell("ip -4 addr show eth0"), 60, "no new address")
                wait(lambda: through_tor(machine), 60, "no traffic through Tor with the new lease")
                fix_dns(machine, session)
            expect(session.interrupt() == 0, "it did not end well")
        # The network's present servers, not those from before the session.
        given = machine.shell("cat /etc/resolv.conf")
        expect(at.WEB_ADDRESS in given, f"resolv.conf has not the new lease's server but {given.split()}")
        expect(direct(machine), "the network does not work")


def _leaks(state: dict) -> bool:
    return isinstance(state["dnsStatus"], dict)


def fix_dns(machine: Machine, session, spoil: str = "") -> None:
    """After "Fix DNS" no DNS leak is left. `spoil` first makes a leak, which the checks have to find."""
    ctl = product(machine)
    if spoil:
        machine.shell(spoil)
    ctl.run_verb("check", timeout=90)
    state = session.wait(lambda s: not s["isChecking"], 60)
    expect(not spoil or _leaks(state), f"the checks do not see the servers that were set: {state['dnsStatus']}")
    if _leaks(state):
        ctl.run_verb("fix-dns", timeout=60)
        ctl.run_verb("check", timeout=90)
        try:
            session.wait(lambda s: not s["isChecking"] and not _leaks(s), 60)
        except TimeoutError:
            raise Broken('the leak card stays after "Fix DNS"') from None


# An administrator, or another program, gives systemd-resolved its own servers again.
_SPOIL_GLOBAL = "rm -f /run/systemd/resolved.conf.d/zz-veldmark.conf && systemctl restart systemd-resolved"
_SPOIL_LINK = "resolvectl dns eth0 "


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
        expect(
            at.DNS_ADDRESS in asked.splitlines()[0] if config else at.DNS_ADDRESS in asked,
            f"the set-up is not what it is to be: {asked}",
        )
        own = next(line.partition("eth0):")[2] for line in asked.splitlines() if "eth0" in line)
        before = network(machine) | {"resolvectl": asked}
        with connected(machine) as session:
            fix_dns(machine, session)
            expect(at.DNS_ADDRESS not in machine.shell("resolvectl dns"), "a connect leaves systemd-resolved its servers")
            with watched(stage):
                fix_dns(machine, session, _SPOIL_GLOBAL if config else _SPOIL_LINK + own)
                told = machine.shell("resolvectl dns")
                expect(at.DNS_ADDRESS not in told and "127.0.0.1" in told, f'after "Fix DNS" systemd-resolved asks {told.split()}')
                machine.run(["timeout", "10", "getent", "hosts", "www.example.test"], user=USER)
            expect(session.interrupt() == 0, "it did not end well")
        wait(lambda: machine.shell("resolvectl dns") == asked, 10, "systemd-resolved's servers are not as before")
        before.pop("resolvectl")
        expect_whole(machine, before)


def resolved_with_servers_of_links(stage: Stage) -> None:
    _resolved(stage, "resolved-link", "")


def resolved_with_global_servers(stage: Stage) -> None:
    _resolved(stage, "resolved-global", _GLOBAL)


# The other end of the tunnel at the router, which forwards the tunnel's traffic as its own. Both ends are the program in user
# space, since not every kernel has WireGuard; the packets are the same. The routes are two halves of the addresses, since for all
# addresses wg-quick sets a kernel switch, which a container may not.
_VPN_END = r"""
set -eu
mkdir -p /run/wireguard
LOG_LEVEL=error "$1/usr/bin/wireguard-go" wgr </dev/null >/dev/null 2>&1
printf %s "$2" | "$1/usr/bin/wg" set wgr listen-port 51820 private-key /dev/stdin peer "$3" allowed-ips 10.9.0.2/32
ip address add 10.9.0.1/24 dev wgr
ip link set wgr up
nft add table ip vpn
nft add chain ip vpn out '{ type nat hook postrouting priority 100; }'
nft add rule ip vpn out ip saddr 10.9.0.2 masquerade
"""
_VPN = f"""[Interface]
PrivateKey = %s
Address = 10.9.0.2/32
PostUp = ip route add {at.ROUTER_WORLD_ADDRESS} via {at.ROUTER_LAN_ADDRESS}
PostDown = ip route del {at.ROUTER_WORLD_ADDRESS}

[Peer]
PublicKey = %s
Endpoint = {at.ROUTER_WORLD_ADDRESS}:51820
AllowedIPs = 0.0.0.0/1, 128.0.0.0/1
PersistentKeepalive = 5
"""
_IN_THE_WAY = "A VPN takes Tor's traffic, and strict mode does not let the VPN out."


@contextlib.contextmanager
def _vpn(stage: Stage, machine: Machine):
    """Sets up a VPN of the machine, not started, with wg-quick and a provider's configuration. The VPN has no IPv6, so IPv6 is
    off."""
    tree = stage.base

    def keys() -> tuple[str, str]:
        private = machine.shell("wg genkey").strip()
        return private, machine.shell('printf %s "$1" | wg pubkey', private).strip()

    own, other = keys(), keys()
    machine.shell(
        "nmcli connection modify Home ipv6.dns '' ipv6.gateway '' ipv6.addresses '' ipv6.method disabled && nmcli connection up Home"
    )
    made = stage.lab.router.run(["/bin/bash", "-c", _VPN_END, "vpn", tree, other[0], own[1]])
    if made.returncode:
        raise CannotRun(f"no tunnel device here: {(made.stderr.splitlines() or ['?'])[-1]}")
    try:
        put(machine, "/etc/wireguard/wg0.conf", _VPN % (own[0], other[1]))
        yield
    finally:
        stage.lab.router.run(["/bin/bash", "-c", "ip link del wgr; nft delete table ip vpn"])


def _switch(machine: Machine, state: str) -> None:
    # The program stays, with its output still open.
    done = machine.run(
        ["/bin/bash", "-c", 'wg-quick "$1" wg0 </dev/null >/run/wg-quick.log 2>&1', "vpn", state],
        env={"WG_QUICK_USERSPACE_IMPLEMENTATION": "wireguard-go", "LOG_LEVEL": "error"},
    )
    expect(done.returncode == 0, f"wg-quick {state} failed: {machine.shell('tail -n 1 /run/wg-quick.log').strip()}")


def vpn_before(stage: Stage) -> None:
    with stage.machine("vpn-before") as machine, _vpn(stage, machine):
        _switch(machine, "up")
        expect("wg0" in machine.shell(f"ip route get {at.WEB_ADDRESS}"), "the VPN does not take the traffic")
        wait(lambda: direct(machine), 20, "the VPN does not work to begin with")
        before = network(machine)
        ctl = product(machine)
        ctl.run_verb("set", "strictMode", "false", check=True)
        with ctl.session() as session:
            session.wait(is_protected, 90)
            end(session, machine, before)
        ctl.run_verb("set", "strictMode", "true", check=True)
        with watched(stage), ctl.session() as session:
            started = time.monotonic()
            told = session.wait(lambda s: s["bootstrapProblem"] or s["phase"] == "connected", 60)
            expect(
                (told["bootstrapProblem"] or "").startswith(_IN_THE_WAY), f"it says {told['bootstrapProblem']!r}, {told['title']}"
            )
            stage.note = f"proxy mode goes through it; strict mode names it after {time.monotonic() - started:.0f} s"
            expect(not direct(machine), "the direct way is open")
            expect(session.interrupt() == 0, "it did not end well")
        expect_whole(machine, before)


def vpn_during(stage: Stage) -> None:
    with stage.machine("vpn-during") as machine, _vpn(stage, machine):
        before = network(machine)
        with connected(machine) as session:
            with watched(stage):
                _switch(machine, "up")
                started = time.monotonic()
                told = session.wait(lambda s: s["title"] != "Protected", 40)
                expect(told["stall"] == "vpn", f"it says {told['title']}, {told['stall']}")
                stage.note = f"said after {time.monotonic() - started:.0f} s"
                expect(not direct(machine), "the direct way is open")
                _switch(machine, "down")
                started = time.monotonic()
                wait(lambda: through_tor(machine), 60, "no traffic through Tor after the VPN was switched off")
                stage.note += f"; through Tor again {time.monotonic() - started:.0f} s after it was switched off"
                session.wait(is_protected, 60)
                expect(not direct(machine), "the direct way is open")
            end(session, machine, before)


CASES = {
    "NetworkManager: cable out and in again": link_down_and_up,
    "NetworkManager: another network in a session": another_network,
    "NetworkManager: a new lease with another name server": new_lease,
    "systemd-resolved with servers of its links": resolved_with_servers_of_links,
    "systemd-resolved with global servers": resolved_with_global_servers,
    "a VPN (WireGuard) before the session": vpn_before,
    "a VPN (WireGuard) during the session": vpn_during,
}
