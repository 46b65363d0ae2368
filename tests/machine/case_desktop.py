"""The application on real desktops, used like a user does."""

import time

from desktops import Desktop
from stage import HELPER, Broken, Stage, direct, expect, expect_whole, is_protected, network, state, wait

PASSWORD = "alice"


def from_the_menu_to_connected_and_back(stage: Stage, kind: str, **options) -> None:
    with stage.machine(f"desktop-{kind}") as machine, Desktop(machine, kind, **options) as desktop:
        before = network(machine)
        start(stage, desktop)
        connect(stage, desktop)
        stage.picture(desktop, f"{kind}-protected")
        use_the_tray(stage, desktop)
        disconnect(stage, desktop)
        expect_whole(machine, before)
        stage.picture(desktop, f"{kind}-disconnected")


def start(stage: Stage, desktop: Desktop) -> None:
    desktop.start_from_menu(lambda name: stage.picture(desktop, name))
    desktop.wait_for("veldmark", "heading", "Not Protected")


def give_password(stage: Stage, desktop: Desktop, what: str) -> None:
    desktop.wait_prompt()
    stage.picture(desktop, f"{desktop.kind}-prompt-{what}")
    desktop.enter(PASSWORD)
    try:
        wait(lambda: not desktop.prompts(), 15, "the password prompt does not go")
    except Broken:
        stage.picture(desktop, f"{desktop.kind}-prompt-stays")
        raise


def connect(stage: Stage, desktop: Desktop) -> None:
    desktop.look("disconnected")
    desktop.click("veldmark", "push button", "Connect to Tor")
    give_password(stage, desktop, "connect")
    wait(lambda: is_protected(state(desktop.machine, "alice")), 90, "it does not connect")
    desktop.wait_for("veldmark", "heading", "Protected")
    expect(not direct(desktop.machine), "the direct way is open")


def disconnect(stage: Stage, desktop: Desktop) -> None:
    desktop.click("veldmark", "push button", "Disconnect")
    give_password(stage, desktop, "disconnect")
    desktop.wait_for("veldmark", "heading", "Not Protected")


def use_the_tray(stage: Stage, desktop: Desktop) -> None:
    """Finds the tray icon by the change in the desktop's panel since before the connection, and clicks it: Veldmark's panel
    appears. A Wayland window cannot choose its position, so there the click shows the main window."""
    desktop.look("protected")
    x, y = desktop.tray_icon("disconnected", "protected")
    seen = desktop.contrast("protected", x, y)
    expect(seen > 100, f"the tray icon hardly differs from its ground ({seen} of 255)")
    if desktop.kind == "sway":
        desktop.run(["swaymsg", "[app_id=veldmark] kill"])
        desktop.run(["swaymsg", "[title=Veldmark] kill"])
        wait(lambda: "Veldmark" not in desktop.windows(), 10, "the window does not close")
    shown = desktop.windows().count("Veldmark")
    desktop.click_at(x, y)
    wait(lambda: desktop.windows().count("Veldmark") > shown, 10, "the click on the tray icon shows nothing")
    stage.picture(desktop, f"{desktop.kind}-tray")
    if desktop.kind != "sway":
        expect(sorted(desktop.taskbar_states("Veldmark")) == [False, True], "the taskbar shows the panel as a second Veldmark")
        desktop.click_at(x, y)
        wait(lambda: desktop.windows().count("Veldmark") == shown, 10, "a second click leaves the panel open")


def xfce(stage: Stage) -> None:
    from_the_menu_to_connected_and_back(stage, "xfce")


def sway(stage: Stage) -> None:
    from_the_menu_to_connected_and_back(stage, "sway")


def lxqt(stage: Stage) -> None:
    from_the_menu_to_connected_and_back(stage, "lxqt")


_TITLES = {"en_GB": ("Not Protected", "Protected"), "de_DE": ("Nicht geschützt", "Geschützt")}


def expect_appearance(desktop: Desktop, picture: str, title: str, dark: bool) -> None:
    """Asserts that the window shows this text on a background as dark as the desktop's."""
    found = desktop.lightness(picture, "veldmark", "heading", title)
    expect(found < 90 if dark else found > 165, f"the window's ground is {found} of 255 on a {'dark' if dark else 'light'} desktop")


def languages_and_appearances(stage: Stage) -> None:
    """Checks the window's language and lightness; takes pictures of the protected state on Xfce, with the panel under the tray
    icon."""
    with stage.machine("pictures") as machine:
        machine.run([HELPER, "install-privileged", "--user", "alice"], check=True)
        for language in ("en_GB", "de_DE"):
            for dark in (False, True):
                with Desktop(machine, "xfce", language) as desktop:
                    desktop.run(
                        [
                            "xfconf-query",
                            "-c",
                            "xsettings",
                            "-p",
                            "/Net/ThemeName",
                            "-n",
                            "-t",
                            "string",
                            "-s",
                            "Greybird-dark" if dark else "Greybird",
                        ],
                        check=True,
                    )
                    desktop.run(["setsid", "-f", "veldmark"], stdout=None, stderr=None, capture_output=False)
                    wait(lambda: "Veldmark" in desktop.windows(), 20, "no window")
                    before, after = _TITLES[language]
                    desktop.wait_for("veldmark", "heading", before)
                    desktop.look("disconnected")
                    expect_appearance(desktop, "disconnected", before, dark)
                    desktop.run(["veldmarkctl", "connect"], check=True, timeout=90)
                    wait(lambda: is_protected(state(machine, "alice")), 60, "it does not connect")
                    desktop.wait_for("veldmark", "heading", after)
                    desktop.look("protected")
                    expect_appearance(desktop, "protected", after, dark)
                    desktop.click_at(*desktop.tray_icon("disconnected", "protected"))
                    wait(lambda: desktop.windows().count("Veldmark") == 2, 10, "the click on the tray icon shows nothing")
                    stage.picture(desktop, f"xfce-{language[:2]}-{'dark' if dark else 'light'}")
                    desktop.run(["veldmarkctl", "disconnect"], check=True, timeout=60)
                    desktop.run(["pkill", "-x", "veldmark"], check=True)


def a_tray_that_starts_later(stage: Stage) -> None:
    """The desktop's panel starts after the program at login; then the panel restarts."""
    with stage.machine("tray-late") as machine, Desktop(machine, "sway") as desktop:
        for moment in ("later", "anew"):
            _without_tray(desktop)
            if moment == "later":
                desktop.run(["swaymsg", "exec", "veldmark --hidden"], check=True)
                wait(lambda: desktop.pids("veldmark"), 20, "it does not start")
            time.sleep(2)
            desktop.run(["swaymsg", "exec", "waybar"], check=True)
            wait(lambda: len(desktop.tray_items()) == 1, 20, f"a tray that starts {moment} gets no icon")
            time.sleep(5)
            expect("Veldmark" not in desktop.windows(), f"a window shows itself although a tray started {moment}")
            stage.picture(desktop, f"sway-tray-{moment}")


def no_tray(stage: Stage) -> None:
    """The program starts without a window on a desktop without a tray. It must still show something to use."""
    with stage.machine("no-tray") as machine, Desktop(machine, "sway") as desktop:
        _without_tray(desktop)
        desktop.run(["swaymsg", "exec", "veldmark --hidden"], check=True)
        started = time.monotonic()
        wait(lambda: "Veldmark" in desktop.windows(), 20, "neither an icon nor a window")
        stage.note = f"a window after {time.monotonic() - started:.0f} s"
        desktop.wait_for("veldmark", "heading", "Not Protected")
        stage.picture(desktop, "sway-no-tray")


def _without_tray(desktop: Desktop) -> None:
    desktop.run(["pkill", "-x", "waybar"], check=True)
    wait(lambda: not desktop.pids("waybar"), 10, "the panel does not end")


def an_agent_that_ends(stage: Stage) -> None:
    """polkit-gnome, an agent for X11, ends on Wayland when it has to show its dialogue."""
    with stage.machine("agent-ends") as machine, Desktop(machine, "sway") as desktop:
        desktop.run(["pkill", "-x", "polkit-mate-aut"], check=True)
        desktop.run(["swaymsg", "exec", "/usr/lib/policykit-1-gnome/polkit-gnome-authentication-agent-1"], check=True)
        wait(lambda: desktop.pids("polkit-gnome-au"), 10, "the other agent does not start")
        time.sleep(2)  # the agent gives no sign when it is ready
        start(stage, desktop)
        desktop.click("veldmark", "push button", "Connect to Tor")
        wait(
            lambda: not desktop.pids("polkit-gnome-au"), 30, "the agent shows its dialogue, so nothing can be said of one that ends"
        )
        told = wait(lambda: state(machine, "alice")["errorMessage"], 30, "it says nothing")
        stage.picture(desktop, "sway-agent-ended")
        expect("gave no answer" in told, f"it says: {told}")
        expect(direct(machine), "the network does not work")


CASES = {
    "Xfce: from the menu to connected and back, tray": xfce,
    "sway and waybar: to connected and back, tray": sway,
    "LXQt: from the menu to connected and back, tray": lxqt,
    "Xfce: English and German, light and dark": languages_and_appearances,
    "sway: a panel that starts after the program, and anew": a_tray_that_starts_later,
    "sway: no panel, and started without a window": no_tray,
    "sway: an agent that ends when it is to ask": an_agent_that_ends,
}
