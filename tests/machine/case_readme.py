"""The README's first pages, word for word: the test reads every command from the file, and alice types it in her session."""

import re
import subprocess
import time

from base import PROJECT
from boot import USER
from case_tor import given_back, service_listens, with_service
from desktops import TOOLS, Desktop, install, put
from stage import MARKER, Broken, Stage, direct, expect, expect_whole, is_protected, state, wait

_PASSWORD = "alice"
# What the README's commands read, in alice's home.
FILES = {
    "mail.txt": "Hello!\n\nHere is your bridge:\n\n192.0.2.7:9001 0123456789ABCDEF0123456789ABCDEF01234567\n\nHave a nice day.\n"
}
# What is refused on this machine, with the words of the answer: nothing blocks Tor here, and the application is not installed.
REFUSED = {"climb": "No bridges are offered now.", "launch": "firefox"}


def commands(section: str) -> list[str]:
    """The lines of a section's sh blocks, without comments."""
    text = (PROJECT / "README.md").read_text()
    part = re.search(rf"(?ms)^## {re.escape(section)}\n(.*?)(?=^## |\Z)", text).group(1)
    lines = "\n".join(re.findall(r"(?ms)^```sh\n(.*?)^```", part)).splitlines()
    return [re.sub(r"\s+#.*", "", line) for line in lines if line.strip()]


def inline(start: str) -> str:
    """The only command in the sentence that begins so."""
    [command] = set(re.findall(rf"`({re.escape(start)}[^`]*)`", (PROJECT / "README.md").read_text()))
    return command


def at_a_terminal(machine, line: str, env: dict[str, str] | None = None, timeout: float = 60):
    """The terminal's output of a line that alice types; she answers sudo's and apt's questions."""
    install(machine)
    return machine.run(
        ["/usr/bin/python3", f"{TOOLS}/terminal.py", _PASSWORD, line], user=USER, env=env or {}, cwd="/home/alice", timeout=timeout
    )


def typed(desktop: Desktop, line: str, timeout: float = 60):
    return at_a_terminal(desktop.machine, line, desktop.env, timeout)


def readme(stage: Stage) -> None:
    with stage.machine("readme", tor_service=True) as machine:
        before, service = with_service(machine)
        for name, text in FILES.items():
            put(machine, f"/home/{USER}/{name}", text)
        with Desktop(machine, "sway") as desktop:
            first, *others = commands("First connect")
            run_in_the_foreground(desktop, first)
            for line in others:
                first_pages_command(desktop, line)
            expect_whole(machine, before)
            given_back(machine, service)
            way_back, *by_hand = commands("Getting the network back without the program")
            left_over(desktop)
            done = typed(desktop, way_back)
            expect(done.returncode == 0, f"{way_back}: {done.stdout.strip()}")
            expect_whole(machine, before)
            given_back(machine, service)
            left_over(desktop)
            for line in by_hand:
                typed(desktop, line)  # "may say that there is nothing to do"
            expect(machine.run(["test", "-e", MARKER]).returncode != 0, "the marker is still there")
            expect(direct(machine), "the commands do not open the network")
            expect(
                machine.run(["timeout", "5", "getent", "hosts", "www.example.test"], user=USER).returncode == 0,
                "names are not looked up",
            )
            for line in (inline("sudo systemctl start tor"), inline("sudo apt remove")):
                if "remove" in line:
                    left_over(desktop)  # "also while connected"
                    expect(not service_listens(machine), "Debian's tor service still has the port")
                done = typed(desktop, line, timeout=120)
                expect(done.returncode == 0, f"{line}: {done.stdout.strip()}")
                given_back(machine, service)
            expect_whole(machine, before)
            expect(machine.run(["test", "-e", "/usr/bin/veldmarkctl"]).returncode != 0, "the package is still there")
            stage.note = f"{1 + len(others) + 1 + len(by_hand) + 2} commands"


def run_in_the_foreground(desktop: Desktop, line: str) -> None:
    """Runs a command that keeps running in a desktop's terminal; the password is typed into the agent's window."""
    desktop.run(["swaymsg", "exec", f"sh -c '{line} >/tmp/foreground 2>&1'"], check=True)
    desktop.wait_prompt()
    desktop.enter(_PASSWORD)
    wait(lambda: is_protected(state(desktop.machine, USER)), 90, f"{line} does not connect")


def first_pages_command(desktop: Desktop, line: str) -> None:
    words = line.split()
    if words == ["veldmarkctl", "restore"]:
        with desktop.machine.popen(
            ["/bin/bash", "-c", line], user=USER, env=desktop.env, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True
        ) as asked:
            desktop.wait_prompt()
            desktop.enter(_PASSWORD)
            expect(asked.wait(60) == 0, f"{line}: {asked.stderr.read().strip()}")
        return
    if "--follow" in words:
        line = f"timeout 3 {line}"
    done = typed(desktop, line)
    said = (done.stdout + done.stderr).strip()
    if words[0] == "veldmarkctl" and words[1] in REFUSED:
        expect(done.returncode != 0 and REFUSED[words[1]] in said, f"{line}: {said}")
    elif "--follow" in words:
        expect(done.returncode == 124 and said, f"{line}: {said}")
    elif words[0] == "veldmarkctl":
        expect(done.returncode == 0, f"{line}: {said}")
    else:
        raise Broken(f"no case tries this command of the README: {line}")


def left_over(desktop: Desktop) -> None:
    """Leaves a session whose program was killed."""
    machine = desktop.machine
    [line] = [line for line in re.findall(r"`(sudo veldmarkctl [^`]*)`", (PROJECT / "README.md").read_text()) if "run" in line][:1]
    with machine.popen(
        ["/usr/bin/python3", f"{TOOLS}/terminal.py", _PASSWORD, line],
        user=USER,
        env=desktop.env,
        cwd="/home/alice",
        stdin=subprocess.DEVNULL,
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
    ) as session:
        wait(lambda: is_protected(state(machine)), 90, f"{line} does not connect")
        machine.run(["pkill", "-KILL", "-x", "veldmarkctl"], check=True)
        session.wait()
    time.sleep(1)
    expect(not direct(machine), "a program that was killed has opened the network")


CASES = {"README's first pages, word for word": readme}
