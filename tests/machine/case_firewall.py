"""Other firewalls, there before the session or started during it: it connects, nothing leaks, they are as they were."""

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


def _others(machine) -> str:
    """All rules but ours."""
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


def ufw_that_denies_what_goes_out(stage: Stage) -> None:
    """What blocks Tor is named, before the five minutes are over."""
    with stage.machine("ufw-denies") as machine:
        machine.shell("ufw default deny outgoing && ufw --force enable")
        expect(not direct(machine), "ufw denies nothing")
        before = network(machine)
        with product(machine).session() as session:
            told = session.wait(lambda s: s["bootstrapProblem"] or s["errorMessage"], 60)
            words = told["bootstrapProblem"] or told["errorMessage"]
            expect("ufw" in words or "firewall" in words.lower(), f"it says: {words}")
            session.interrupt()
        after = network(machine)
        expect(after == before, "the network is not as before")


CASES = {
    "firewalld runs before": firewalld_before,
    "firewalld started during the session": firewalld_during,
    "ufw is on before": ufw_before,
    "ufw switched on during the session": ufw_during,
    "Docker's rules before": docker_before,
    "Docker's rules during the session": docker_during,
    "ufw denies what goes out: it is named": ufw_that_denies_what_goes_out,
}
