"""The package for its user: installed by apt on a running machine, upgraded while connected, removed, purged."""

from boot import Machine
from case_readme import at_a_terminal, commands
from case_tor import given_back, service_listens, with_service
from stage import Stage, connected, expect, expect_whole, network
from veldlab import topology as at


def install(stage: Stage) -> None:
    """apt install ./veldmark_*.deb; Debian's own tor comes with it and starts."""
    stage.leases.give(at.HOST_ADDRESS)
    with Machine(stage.lab, [stage.base], "install") as machine:
        machine.boot()
        before = network(machine)
        # The README's command. The line before it, ./build.sh package, needs a compiler; ./build.sh fresh-test tries it.
        machine.write(f"/home/alice/build/{stage.package.name}", stage.package.read_bytes(), uid=machine.uid)
        [line] = [line for line in commands("Install") if "apt install" in line]
        done = at_a_terminal(machine, line, {"DEBIAN_FRONTEND": "noninteractive"}, timeout=400)
        expect(done.returncode == 0, f"apt: {(done.stdout + done.stderr).strip().splitlines()[-1]}")
        expect_whole(machine, before)
        expect(machine.shell("systemctl is-active tor@default; true").strip() == "active", "Debian's tor service did not start")
        machine.shell("veldmarkctl --version && veldmark --version && man -w veldmark 2>/dev/null; test -x /usr/bin/veldmark")
        # From the next boot on, Debian's tor is a client of the lab as well.
        machine.shell("cat /etc/tor/torrc-defaults >>/etc/tor/torrc; apt-get clean")
        machine.power_off()
        stage.installed = machine.disk
        machine.keep()


def remove_while_connected(stage: Stage) -> None:
    with stage.machine("remove", tor_service=True) as machine:
        before, service = with_service(machine)
        with connected(machine) as session:
            expect(not service_listens(machine), "Debian's tor service still has the port")
            machine.run(["apt-get", "remove", "--yes", "veldmark"], check=True, timeout=120)
            expect_whole(machine, before)
            given_back(machine, service)
            session.interrupt()
        machine.reboot()
        expect_whole(machine, before)


def purge_while_connected(stage: Stage) -> None:
    with stage.machine("purge", tor_service=True) as machine:
        before, service = with_service(machine)
        with connected(machine) as session:
            expect(not service_listens(machine), "Debian's tor service still has the port")
            machine.run(["apt-get", "purge", "--yes", "veldmark"], check=True, timeout=120)
            expect_whole(machine, before)
            given_back(machine, service)
            session.interrupt()
        left = machine.shell(
            "find / -xdev -iname '*veldmark*' ! -path '/var/lib/apt/*' ! -path '/var/cache/*' ! -path '/home/*' ! -path '/root/*'"
            " ! -path '/tmp/*' ! -path '/var/log/*' ! -path '/var/lib/dpkg/*' ! -name '*-lab-*'; getent passwd _veldmark; true"
        ).strip()
        expect(not left, f"purging leaves {left.split()}")
        machine.reboot()
        expect_whole(machine, before)


CASES = {
    "apt remove, while connected and Debian's tor service taken over": remove_while_connected,
    "apt purge, while connected and Debian's tor service taken over": purge_while_connected,
}
