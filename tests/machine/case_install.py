"""The package, as its user meets it: installed by apt on a machine that is on, upgraded while connected, removed, purged."""

from boot import Machine
from stage import Stage, connected, expect, expect_whole, network
from veldlab import topology as at


def install(stage: Stage) -> None:
    """apt install ./veldmark_*.deb; Debian's own tor comes with it and starts."""
    stage.leases.give(at.HOST_ADDRESS)
    with Machine(stage.lab, [stage.base], "install") as machine:
        machine.boot()
        before = network(machine)
        machine.path("/home/alice").joinpath(stage.package.name).write_bytes(stage.package.read_bytes())
        done = machine.run(["apt-get", "install", "--yes", f"./{stage.package.name}"], cwd="/home/alice", timeout=400,
                           env={"DEBIAN_FRONTEND": "noninteractive"})
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
    with stage.machine("remove") as machine:
        before = network(machine)
        with connected(machine) as session:
            machine.run(["apt-get", "remove", "--yes", "veldmark"], check=True, timeout=120)
            expect_whole(machine, before)
            session.interrupt()
        machine.reboot()
        expect_whole(machine, before)


def purge_while_connected(stage: Stage) -> None:
    with stage.machine("purge") as machine:
        before = network(machine)
        with connected(machine) as session:
            machine.run(["apt-get", "purge", "--yes", "veldmark"], check=True, timeout=120)
            expect_whole(machine, before)
            session.interrupt()
        left = machine.shell("find / -xdev -iname '*veldmark*' ! -path '/var/lib/apt/*' ! -path '/var/cache/*' ! -path '/home/*' ! -path '/root/*'"
                             " ! -path '/tmp/*' ! -path '/var/log/*' ! -path '/var/lib/dpkg/*' ! -name '*-lab-*'; getent passwd _veldmark; true").strip()
        expect(not left, f"purging leaves {left.split()}")


CASES = {
    "apt remove, while connected": remove_while_connected,
    "apt purge, while connected": purge_while_connected,
}
