"""Other firewalls, from before the session or started during it. Veldmark connects, nothing leaks, and their rules stay
unchanged."""

import time

from boot import USER
from stage import Stage, connected, direct, end, expect, network, product, state, through_tor, watched

_FIREWALLD = "systemctl start firewalld && firewall-cmd --state >/dev/null"
_UFW = "ufw --force enable >/dev/null"
_DOCKER = """
iptables -t nat -N DOCKER
iptables -t nat -A PREROUTING -m addrtype --dst-type LOCAL -j DOCKER
iptables -t nat -A OUTPUT ! -d 127.0.0.0/8 -m addrtype --dst-type LOCAL -j DOCKER
iptables -t nat -A POSTROUTING -s 172.17.0.0/16 ! -o docker0 -j MASQUERADE
iptables -N DOCKER
iptables -N DOCKER-USER
iptables -A DOCKER-USER -j RETURN
iptables -A FORWARD -j DOCKER-USER
iptables -A FORWARD -o docker0 -m conntrack --ctstate RELATED,ESTABLISHED -j ACCEPT
iptables -A FORWARD -o docker0 -j DOCKER
iptables -A FORWARD -i docker0 ! -o docker0 -j ACCEPT
iptables -P FORWARD DROP
"""
# Rules for this machine's own packets, as administrators write them.
_FIREWALLD_DENIES = """
firewall-cmd --permanent --new-policy nothing-out
firewall-cmd --permanent --policy nothing-out --add-ingress-zone HOST
firewall-cmd --permanent --policy nothing-out --add-egress-zone ANY
firewall-cmd --permanent --policy nothing-out --set-target DROP
firewall-cmd --reload
"""
_CHAIN_DENIES = """
iptables -N NOTHING-OUT
iptables -A NOTHING-OUT -m conntrack --ctstate RELATED,ESTABLISHED -j ACCEPT
iptables -A NOTHING-OUT -j DROP
iptables -A OUTPUT ! -o lo -j NOTHING-OUT
"""


def _others(machine) -> str:
    """All rules except Veldmark's."""
    tables = [line for line in machine.shell("nft list tables").splitlines() if "veldmark" not in line]
    return "".join(machine.shell(f"nft -s list {table}") for table in tables)


def _before(stage: Stage, name: str, script: str) -> None:
    with stage.machine(name) as machine:
        machine.shell(f"set -e; {script}", timeout=60)
        before = network(machine)
        expect(before["rules"].strip(), "it made no rules")
        with connected(machine) as session:
            with watched(stage):
                expect(through_tor(machine), "no traffic through Tor")
                expect(not direct(machine), "the direct way is open")
            expect(_others(machine) == before["rules"], "its rules were changed")
            end(session, machine, before)


def _during(stage: Stage, name: str, script: str) -> None:
    with stage.machine(name) as machine:
        with connected(machine) as session:
            with watched(stage):
                machine.shell(f"set -e; {script}", timeout=60)
                expect(not direct(machine), "the direct way is open")
                expect(through_tor(machine), "no traffic through Tor")
            expect(state(machine)["phase"] == "connected", "it is no longer connected")
            others = _others(machine)
            expect(others.strip(), "it made no rules")
            expect(session.interrupt() == 0, "it did not end well")
        expect(network(machine)["rules"] == others, "its rules are not as it made them")
        expect(direct(machine), "the network does not work")


def firewalld_before(stage: Stage) -> None:
    _before(stage, "firewalld-before", _FIREWALLD)


def firewalld_during(stage: Stage) -> None:
    _during(stage, "firewalld-during", _FIREWALLD)


def ufw_before(stage: Stage) -> None:
    _before(stage, "ufw-before", _UFW)


def ufw_during(stage: Stage) -> None:
    _during(stage, "ufw-during", _UFW)


def docker_before(stage: Stage) -> None:
    _before(stage, "docker-before", _DOCKER)


def docker_during(stage: Stage) -> None:
    _during(stage, "docker-during", _DOCKER)


def _denies(stage: Stage, name: str, script: str, called: str) -> None:
    """The firewall that blocks Tor is named before the five minutes are over, and by the doctor as well."""
    with stage.machine(f"{name}-denies") as machine:
        expect(direct(machine), "there is no network to begin with")
        machine.shell(f"set -e; {script}", timeout=60)
        expect(not direct(machine), "it denies nothing")
        before = network(machine)
        with product(machine).session() as session:
            told = session.wait(lambda s: s["bootstrapProblem"] or s["errorMessage"], 30)
            words = told["bootstrapProblem"] or told["errorMessage"]
            expect("firewall" in words and called in words, f"it says: {words}")
            for user in (USER, "root"):
                asked = machine.run(["veldmarkctl", "doctor"], user=user)
                found = [line for line in asked.stdout.splitlines() if "blocks outgoing traffic" in line]
                expect(found and called in found[0], f"the doctor does not name {called}")
                expect(asked.returncode == 1, f"the doctor ends with {asked.returncode} although nothing gets out")
            session.interrupt()
        after = network(machine)
        expect(after == before, "the network is not as before")


_CUT = """
nft add table inet cut
nft add chain inet cut forward '{ type filter hook forward priority -10; }'
nft add rule inet cut forward iifname br0 meta l4proto tcp reject with tcp reset
sleep 15
nft delete table inet cut
"""


def _cut_connections(stage: Stage) -> None:
    """Ends the machine's connections to the world from outside; new ones are possible at once."""
    stage.lab.router.run(["/bin/sh", "-ec", _CUT], check=True)


def _begins_to_deny(stage: Stage, name: str, script: str, called: str) -> None:
    """A firewall that starts during a session is named as well. Tor's connections are cut, since they would end by themselves some
    time."""
    with stage.machine(f"{name}-begins-to-deny") as machine:
        with connected(machine) as session:
            with watched(stage):
                machine.shell(f"set -e; {script}", timeout=60)
                _cut_connections(stage)
                started = time.monotonic()
                told = session.wait(lambda s: s["stall"] == "firewall", 90)
                stage.note = f"named after {time.monotonic() - started:.0f} s"
                expect(called in told["statusDetail"], f"it says: {told['title']}, {told['statusDetail']}")
                expect(not direct(machine), "the direct way is open")
            expect(session.interrupt() == 0, "it did not end well")


def ufw_that_begins_to_deny(stage: Stage) -> None:
    _begins_to_deny(stage, "ufw", "ufw default deny outgoing && ufw --force enable", "ufw")


def chain_that_begins_to_deny(stage: Stage) -> None:
    _begins_to_deny(stage, "docker", _DOCKER + _CHAIN_DENIES, "table ip filter")


def ufw_that_denies_what_goes_out(stage: Stage) -> None:
    _denies(stage, "ufw", "ufw default deny outgoing && ufw --force enable", "ufw")


def firewalld_that_denies_what_goes_out(stage: Stage) -> None:
    _denies(stage, "firewalld", _FIREWALLD + _FIREWALLD_DENIES, "firewalld")


def docker_beside_a_chain_that_denies(stage: Stage) -> None:
    _denies(stage, "docker", _DOCKER + _CHAIN_DENIES, "table ip filter")


CASES = {
    "firewalld runs before": firewalld_before,
    "firewalld started during the session": firewalld_during,
    "ufw is on before": ufw_before,
    "ufw switched on during the session": ufw_during,
    "Docker's rules before": docker_before,
    "Docker's rules during the session": docker_during,
    "ufw begins to deny during the session: it is named": ufw_that_begins_to_deny,
    "a chain begins to deny during the session: it is named": chain_that_begins_to_deny,
    "ufw blocks outgoing traffic: it is named": ufw_that_denies_what_goes_out,
    "firewalld blocks outgoing traffic: it is named": firewalld_that_denies_what_goes_out,
    "Docker's rules, and a chain that denies: it is named": docker_beside_a_chain_that_denies,
}
