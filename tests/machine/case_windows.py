"""Every window of the application on a real desktop, in the states that a person sees most: each shows what it is for, and has its picture."""

import re

from base import PROJECT
from boot import USER
from case_desktop import start
from desktops import Desktop
from stage import HELPER, Stage, direct, expect, expect_whole, is_protected, network, state, through_tor, wait
from veldlab import topology as at


def windows(stage: Stage) -> None:
    with stage.machine("windows") as machine:
        machine.run([HELPER, "install-privileged", "--user", USER], check=True)
        with Desktop(machine, "lxqt") as desktop:
            before = network(machine)
            start(stage, desktop)
            stage.picture(desktop, "lxqt-not-protected")
            _connect(stage, desktop, "Protected")
            _circuits(stage, desktop)
            _log(stage, desktop)
            _settings(stage, desktop)
            _quit_is_asked(stage, desktop)
            _tor_dies(stage, desktop)
            expect_whole(machine, before)
            desktop.run(["veldmarkctl", "set", "strictMode", "false"], check=True)
            _connect(stage, desktop, "Proxy Active")
            wait(lambda: not state(machine, USER)["isChecking"], 40, "the checks do not end")
            _without_pointer(desktop)
            stage.picture(desktop, "lxqt-proxy")
            expect(direct(machine), "the direct way is closed in proxy mode")
            desktop.click("veldmark", "push button", "Disconnect")
            desktop.wait_for("veldmark", "heading", "Not Protected")
            expect_whole(machine, before)


def _connect(stage: Stage, desktop: Desktop, title: str) -> None:
    desktop.click("veldmark", "push button", "Connect to Tor")
    if title == "Protected":
        wait(lambda: state(desktop.machine, USER)["bootstrapProgress"] > 0, 30, "it does not begin")
        stage.picture(desktop, "lxqt-connecting")
        wait(lambda: is_protected(state(desktop.machine, USER)), 90, "it does not connect")
    desktop.wait_for("veldmark", "heading", title)


def _without_pointer(desktop: Desktop) -> None:
    """It and what it makes a program show would cover what the picture is of."""
    desktop.run(["xdotool", "mousemove", "1200", "300", "sleep", "0.5"], check=True)


def _close(desktop: Desktop, title: str) -> None:
    desktop.run(["xdotool", "key", "ctrl+w"], check=True)
    wait(lambda: title not in desktop.windows(), 10, f"{title} does not close")


def _listed(desktop: Desktop) -> list[str]:
    return [node["name"] for pid in desktop.pids("veldmark") for node in desktop.nodes(pid) if node["role"] == "list item"]


def _circuits(stage: Stage, desktop: Desktop) -> None:
    desktop.click("veldmark", "push button", "Circuits")
    desktop.wait_for("veldmark", "frame", "Circuits")
    expect(through_tor(desktop.machine), "no traffic through Tor")
    for host in at.WEB_HOSTS:
        desktop.run(["curl", "--silent", "--output", "/dev/null", "--socks5-hostname", "127.0.0.1:9050", f"https://{host}/"])
    wait(lambda: any(name.startswith("Circuit ") for name in _listed(desktop)), 20, "the window shows no circuit")
    _without_pointer(desktop)
    stage.picture(desktop, "lxqt-circuits")
    _close(desktop, "Circuits")


def _log(stage: Stage, desktop: Desktop) -> None:
    desktop.click("veldmark", "push button", "Tor Log")
    desktop.wait_for("veldmark", "frame", "Tor Log")
    # The last lines, whatever they are: each begins with its time.
    wait(lambda: any(re.search(r"\d\d:\d\d:\d\d", name) for name in _listed(desktop)), 20, "the window shows nothing of Tor's log")
    _without_pointer(desktop)
    stage.picture(desktop, "lxqt-log")
    _close(desktop, "Tor Log")


def _settings(stage: Stage, desktop: Desktop) -> None:
    desktop.click("veldmark", "push button", "Settings")
    desktop.wait_for("veldmark", "frame", "Settings")
    for page in ("General", "Bridges"):
        desktop.click("veldmark", "page tab", page)
        desktop.wait_for("veldmark", "heading", page)
        _without_pointer(desktop)
        stage.picture(desktop, f"lxqt-settings-{page.lower()}")
    _close(desktop, "Settings")


def _quit_is_asked(stage: Stage, desktop: Desktop) -> None:
    desktop.click("veldmark", "push button", "Quit")
    desktop.wait_for("veldmark", "push button", "Quit Anyway")
    stage.picture(desktop, "lxqt-quit")
    desktop.click("veldmark", "push button", "Cancel")
    wait(lambda: "Quit Veldmark" not in desktop.windows(), 10, "the question does not go")


def _tor_dies(stage: Stage, desktop: Desktop) -> None:
    desktop.machine.run(["pkill", "-KILL", "-x", "-u", "_veldmark", "tor"], check=True)
    desktop.wait_for("veldmark", "heading", "Needs Attention")
    expect(not direct(desktop.machine), "the direct way is open although Tor has died")
    stage.picture(desktop, "lxqt-tor-died")
    desktop.click("veldmark", "push button", "Restore Network")
    desktop.wait_for("veldmark", "heading", "Not Protected")


def from_the_right(stage: Stage) -> None:
    """Languages that are read from the right: the buttons of the panel's foot stand the other way round than in English."""
    with stage.machine("from-the-right") as machine:
        machine.run([HELPER, "install-privileged", "--user", USER], check=True)
        with Desktop(machine, "lxqt") as desktop:
            for language in ("en", "fa", "ar"):
                desktop.run(
                    ["setsid", "-f", "env", f"LANGUAGE={language}", "veldmark"], stdout=None, stderr=None, capture_output=False
                )
                desktop.wait_for("veldmark", "heading", translated(language, "Not Protected"))
                places = [
                    desktop.wait_for("veldmark", "push button", translated(language, name))["x"] for name in ("Settings", "Quit")
                ]
                expect((places[0] < places[1]) == (language == "en"), f"{language}: Settings and Quit stand at {places}")
                desktop.run(["veldmarkctl", "connect"], check=True, timeout=90)
                wait(lambda: is_protected(state(machine, USER)), 60, "it does not connect")
                desktop.wait_for("veldmark", "heading", translated(language, "Protected"))
                if language == "ar":
                    desktop.click("veldmark", "push button", translated(language, "Circuits"))
                    wait(lambda: _listed(desktop), 20, "the window shows no circuit")
                _without_pointer(desktop)
                if language != "en":
                    stage.picture(desktop, f"lxqt-{language}")
                desktop.run(["veldmarkctl", "disconnect"], check=True, timeout=60)
                desktop.run(["pkill", "-x", "veldmark"], check=True)
                wait(lambda: not desktop.pids("veldmark"), 20, "it does not end")


def translated(language: str, text: str) -> str:
    if language == "en":
        return text
    source = (PROJECT / f"resources/translations/veldmark_{language}.ts").read_text()
    found = re.search(rf"<source>{re.escape(text)}</source>\s*(?:<[^t].*\s*)*<translation>([^<]+)</translation>", source)
    return found.group(1)


CASES = {"LXQt: every window, and what it says in each state": windows, "LXQt: Persian and Arabic, from the right": from_the_right}
