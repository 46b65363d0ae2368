"""Desktops of the booted machine, each a real login of alice's: pam_systemd makes the session, and the session starts its own
panel, polkit agent and autostart programs. Tests look (accessibility bus, pictures) and click.

    with Desktop(machine, "xfce") as desktop:
        desktop.launch("veldmark")
        desktop.click("push button", "Connect to Tor")
"""

import contextlib
import json
import time
from pathlib import Path

from base import PROJECT
from boot import USER, Machine

_INSIDE = Path(__file__).resolve().parent / "inside"
TOOLS = "/usr/local/lib/machine-test"
_UNIT = """[Unit]
Description=A person's desktop
After=systemd-user-sessions.service dbus.service
[Service]
User={user}
PAMName=machine-test
WorkingDirectory=/home/{user}
UtmpIdentifier=desktop
UtmpMode=user
Environment={environment}
ExecStart={tools}/{kind}-session
StandardOutput=append:/tmp/desktop.log
StandardError=append:/tmp/desktop.log
KillMode=mixed
TimeoutStopSec=20
"""
_PAM = "auth required pam_permit.so\naccount required pam_unix.so\nsession required pam_unix.so\nsession required pam_systemd.so\n"
_X11 = {"DISPLAY": ":7", "XDG_SESSION_TYPE": "x11", "QT_QPA_PLATFORM": "xcb"}
_WAYLAND = {
    "XDG_SESSION_TYPE": "wayland",
    "WLR_BACKENDS": "headless",
    "WLR_LIBINPUT_NO_DEVICES": "1",
    "WLR_RENDERER": "pixman",
    "WAYLAND_DISPLAY": "wayland-1",
}
_KINDS = {
    "xfce": _X11 | {"XDG_CURRENT_DESKTOP": "XFCE", "XDG_SESSION_DESKTOP": "xfce", "XFCE_PANEL_MIGRATE_DEFAULT": "1"},
    "lxqt": _X11 | {"XDG_CURRENT_DESKTOP": "LXQt", "XDG_SESSION_DESKTOP": "LXQt"},
    "sway": _WAYLAND | {"XDG_CURRENT_DESKTOP": "sway", "XDG_SESSION_DESKTOP": "sway"},
}
_FILES = {
    "lxqt": {".config/lxqt/session.conf": "[General]\nwindow_manager=openbox\n"},
    "sway": {
        ".config/sway/config": """output HEADLESS-1 resolution 1280x800 background #2c4a5e solid_color
default_border normal
for_window [app_id=".*"] floating enable
bindsym Mod4+d exec true
exec /usr/libexec/polkit-mate-authentication-agent-1
bar {
    swaybar_command waybar
}
""",
        ".config/waybar/config": """{"modules-left": ["sway/workspaces"], "modules-right": ["network", "tray", "clock"],
"tray": {"icon-size": 18, "spacing": 10}}""",
    },
}
_BAR = {"xfce": (0, 26), "sway": (0, 30), "lxqt": (769, 800)}  # rows of the panel with the tray
_AGENT = {"sway": "polkit-mate-aut"}
_PROMPT = {"xfce": "Authenticat", "sway": "Authenticat", "lxqt": "Authentication Required"}
_READY = {
    "xfce": ("xfce4-panel", "xfdesktop", "polkit-gnome-au"),
    "lxqt": ("lxqt-panel", "lxqt-policykit-"),
    "sway": ("waybar", "polkit-mate-aut"),
}


class Desktop(contextlib.AbstractContextManager):
    def __init__(self, machine: Machine, kind: str, language: str = "en_GB"):
        self.machine, self.kind = machine, kind
        self.env = _KINDS[kind] | {
            "LANG": f"{language}.UTF-8",
            "XDG_SEAT": "seat0",
            "XDG_SESSION_CLASS": "user",
            "DBUS_SESSION_BUS_ADDRESS": "unix:path=/run/user/1000/bus",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "XDG_RUNTIME_DIR": "/run/user/1000",
        }

    def __enter__(self) -> "Desktop":
        given = {k: v for k, v in self.env.items() if k not in ("DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR", "WAYLAND_DISPLAY")}
        environment = " ".join(f'"{key}={value}"' for key, value in given.items())
        machine = self.machine
        install(machine)
        for name, text in _FILES.get(self.kind, {}).items():
            put(machine, f"/home/{USER}/{name}", text)
        machine.run(["chown", "-R", f"{USER}:", f"/home/{USER}"], check=True)
        put(
            machine,
            "/run/systemd/system/desktop.service",
            _UNIT.format(user=USER, environment=environment, tools=TOOLS, kind=self.kind),
        )
        machine.run(["systemctl", "daemon-reload"], check=True)
        machine.run(["systemctl", "start", "desktop"], check=True)
        try:
            self.wait(lambda: all(self.pids(name) for name in _READY[self.kind]), 40, "the desktop did not come up")
            if self.kind == "sway":
                self.env["SWAYSOCK"] = self.machine.shell("echo /run/user/1000/sway-ipc.*.sock").strip()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_) -> None:
        self.machine.run(["systemctl", "stop", "desktop"], timeout=60)

    def pids(self, name: str) -> list[int]:
        """alice's processes whose name begins so; the kernel keeps 15 letters of a name."""
        return [int(word) for word in self.machine.run(["pgrep", "-u", USER, f"^{name[:15]}"]).stdout.split()]

    def run(self, argv, **options):
        return self.machine.run(argv, user=USER, env=self.env, **options)

    def wait(self, condition, timeout: float = 30, what: str = "it did not come true"):
        deadline = time.monotonic() + timeout
        while not (found := condition()):
            if time.monotonic() > deadline:
                raise TimeoutError(f"{what} within {timeout:.0f} s")
            time.sleep(0.1)
        return found

    def picture(self, target: Path) -> Path:
        """Saves the screen as a PNG file of the caller."""
        inside = "/tmp/picture.png"
        shot = ["grim", inside] if self.kind == "sway" else ["scrot", "--overwrite", "--pointer", inside]
        self.run(shot, check=True)
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(self.run(["cat", inside], check=True, text=False).stdout)
        return target

    def start_from_menu(self, picture=lambda name: None) -> None:
        """Presses Veldmark's entry in the desktop's own menu."""
        if self.kind == "xfce":
            self.click_at(55, 13)
            self.click("xfce4-panel", "menu", "Internet")
            self.wait_for("xfce4-panel", "menu item", "Veldmark")
            picture("xfce-menu")
            self.click("xfce4-panel", "menu item", "Veldmark")
        elif self.kind == "lxqt":
            # Its menu is not visible to a screen reader. It has a search field, which leaves only the matches.
            self.wait(self._lxqt_panel_stands, 30, "the panel does not come up")
            # The panel makes its menu by a timer of one second, and a click before that goes to nobody. Nothing shows that it is made.
            time.sleep(2)
            self.look("closed")
            self.click_at(14, 784)
            self.wait(lambda: self._differs("closed", "menu", 600, 760), 20, "the menu does not open")
            self.run(["xdotool", "type", "--delay", "50", "veldmark"], check=True)
            self.wait(lambda: self._differs("menu", "found", 600, 700), 20, "the menu finds nothing")
            picture("lxqt-menu")
            self.run(["xdotool", "key", "Return"], check=True)
        elif self.kind == "sway":  # it has no menu, so the test does what a launcher does
            self.run(["swaymsg", "exec", "veldmark"], check=True)
        self.wait(lambda: self.pids("veldmark"), 20, "the menu's entry starts nothing")

    def _lxqt_panel_stands(self) -> bool:
        """Its process is there before its window, and a click before that goes to nobody."""
        found = self.run(["xdotool", "search", "--onlyvisible", "--class", "^lxqt-panel$", "getwindowgeometry", "--shell", "%@"])
        return "WIDTH=1280\n" in found.stdout

    # Looking ----------------------------------------------------------------------------------------------------------

    def nodes(self, pid: int) -> list[dict]:
        """All visible nodes of the program, from the accessibility bus."""
        seen = self.run(["/usr/bin/python3", f"{TOOLS}/accessible.py", str(pid)], timeout=60)
        if seen.returncode:
            return []
        found, waiting = [], json.loads(seen.stdout)[::-1]
        while waiting:
            node = waiting.pop()
            found.append(node)
            waiting += node["children"][::-1]
        return [node for node in found if "showing" in node["states"]]

    def find(self, program: str, role: str, name: str = "") -> dict | None:
        for pid in self.pids(program):
            for node in self.nodes(pid):
                if node["role"] == role and (not name or node["name"] == name):
                    return node
        return None

    def wait_for(self, program: str, role: str, name: str = "", timeout: float = 40) -> dict:
        try:
            return self.wait(lambda: self.find(program, role, name), timeout)
        except TimeoutError:
            shown = [f"{n['role']} {n['name']!r}" for pid in self.pids(program) for n in self.nodes(pid)]
            raise TimeoutError(f"{program} shows no {role} {name!r} within {timeout:.0f} s but " + "; ".join(shown)) from None

    def windows(self) -> list[str]:
        """The titles of the visible windows."""
        if self.kind == "sway":
            return [node["name"] or "" for node in self._sway_windows()]
        ids = self.run(["xdotool", "search", "--onlyvisible", "--name", ".+"]).stdout.split()
        return [self.run(["xdotool", "getwindowname", window]).stdout.strip() for window in ids]

    def _sway_windows(self) -> list[dict]:
        tree, found = [json.loads(self.run(["swaymsg", "-t", "get_tree"], check=True).stdout)], []
        while tree:
            node = tree.pop()
            tree += node["nodes"] + node["floating_nodes"]
            found += [node] if node.get("pid") else []
        return found

    def prompts(self) -> bool:
        return any(title.startswith(_PROMPT[self.kind]) for title in self.windows())

    def wait_prompt(self) -> None:
        """Waits for the polkit agent's dialogue and its keyboard focus."""
        self.wait(self.prompts, 30, "nobody asks for the password")
        time.sleep(1)  # the dialogue gives no sign when it has the keyboard

    def look(self, name: str) -> None:
        """Saves a picture of the screen, without the pointer."""
        shot = ["grim"] if self.kind == "sway" else ["scrot", "--overwrite"]
        self.run([*shot, f"/tmp/bar-{name}.png"], check=True)

    def _changes(self, one: str, other: str, top: int, bottom: int) -> list[list[int]]:
        seen = self.run(
            ["/usr/bin/python3", f"{TOOLS}/changed.py", f"/tmp/bar-{one}.png", f"/tmp/bar-{other}.png", str(top), str(bottom)],
            check=True,
        )
        return json.loads(seen.stdout)

    def _differs(self, before: str, now: str, top: int, bottom: int) -> bool:
        """Whether these rows of the screen differ from an earlier picture; saves the picture `now`."""
        self.look(now)
        return bool(self._changes(before, now, top, bottom))

    def tray_icon(self, one: str, other: str) -> tuple[int, int]:
        """The middle of the only icon-sized difference between two pictures of the panel."""
        changes = self._changes(one, other, *_BAR[self.kind])
        icons = [
            (left, above, right, below)
            for left, above, right, below in changes
            if 10 <= right - left <= 30 and 10 <= below - above <= 30 and left > 400
        ]
        if len(icons) != 1:
            raise RuntimeError(f"the panel shows no icon that changes but {changes}")
        left, above, right, below = icons[0]
        return (left + right) // 2, (above + below) // 2

    def contrast(self, picture: str, x: int, y: int, size: int = 24) -> int:
        """The contrast between the place and its background in a picture of look(), 0 to 255."""
        return int(
            self.run(
                ["/usr/bin/python3", f"{TOOLS}/contrast.py", f"/tmp/bar-{picture}.png", str(x), str(y), str(size)], check=True
            ).stdout
        )

    def lightness(self, picture: str, program: str, role: str, name: str) -> int:
        """The lightness of the background on which the program shows this, in a picture of look(); 0 is black, 255 white."""
        node = self.wait_for(program, role, name)
        left, top = self._origin(program)
        place = (left + node["x"], top + node["y"], node["width"], node["height"])
        told = self.run(["/usr/bin/python3", f"{TOOLS}/lightness.py", f"/tmp/bar-{picture}.png", *map(str, place)], check=True)
        return int(told.stdout)

    def taskbar_states(self, title: str) -> list[bool]:
        """On X11, for each visible window with this title: whether it asks to be left out of the taskbar."""
        ids = self.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"]).stdout.split()
        return [
            "_NET_WM_STATE_SKIP_TASKBAR" in self.run(["xprop", "-id", window, "_NET_WM_STATE"], check=True).stdout for window in ids
        ]

    def tray_items(self) -> list[str]:
        """The programs with an icon in the tray, from the tray's watcher on the bus."""
        told = self.run(
            [
                "busctl",
                "--user",
                "--json=short",
                "get-property",
                "org.kde.StatusNotifierWatcher",
                "/StatusNotifierWatcher",
                "org.kde.StatusNotifierWatcher",
                "RegisteredStatusNotifierItems",
            ]
        )
        return json.loads(told.stdout)["data"] if told.returncode == 0 else []

    # Doing ------------------------------------------------------------------------------------------------------------

    def click_at(self, x: int, y: int, button: int = 1) -> None:
        if self.kind == "sway":
            self.run(["/usr/bin/python3", f"{TOOLS}/pointer.py", str(x), str(y), str(button), "1280", "800"], check=True)
        else:
            self.run(["xdotool", "mousemove", str(x), str(y), "sleep", "0.2", "click", str(button)], check=True)

    def click(self, program: str, role: str, name: str, timeout: float = 40) -> None:
        self.wait(
            lambda: "enabled" in (self.find(program, role, name) or {"states": []})["states"],
            timeout,
            f"no {role} {name!r} to press",
        )
        before = None
        while (node := self.wait_for(program, role, name)) and (before is None or (node["x"], node["y"]) != before):
            before = node["x"], node["y"]  # until it stops moving
        left, top = self._origin(program)
        self.click_at(left + node["x"] + node["width"] // 2, top + node["y"] + node["height"] // 2)

    def _origin(self, program: str) -> tuple[int, int]:
        """The offset of a program's coordinates: on Wayland it does not know the position of its window."""
        if self.kind != "sway":
            return 0, 0
        for node in self._sway_windows():
            if node["pid"] in self.pids(program):
                inner = node["window_rect"]
                return node["rect"]["x"] + inner["x"], node["rect"]["y"] + inner["y"]
        raise RuntimeError(f"{program} has no window")

    def enter(self, text: str) -> None:
        """Types the password into the prompt and confirms it."""
        if self.kind == "sway":
            self.run(["wtype", "-s", "500", text], check=True)
            self.click(_AGENT[self.kind], "push button", "Authenticate")
        else:
            self.run(["xdotool", "type", "--delay", "30", text], check=True)
            self.run(["xdotool", "key", "Return"], check=True)


def put(machine: Machine, path: str, text: str | bytes, mode: int = 0o644) -> None:
    """Writes a file of the running machine, also below its mounts."""
    machine.run(
        ["/bin/sh", "-c", 'mkdir -p "${1%/*}"; cat >"$1"; chmod "$2" "$1"', "sh", path, f"{mode:o}"],
        input=text,
        text=isinstance(text, str),
        check=True,
    )


def install(machine: Machine) -> None:
    """Installs the sessions' scripts and the programs that read the screen."""
    put(machine, "/etc/pam.d/machine-test", _PAM)
    for source in (*_INSIDE.iterdir(), PROJECT / "tests/support/accessible.py"):
        put(machine, f"{TOOLS}/{source.name}", source.read_text(), 0o755)
