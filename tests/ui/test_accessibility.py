"""The content of every window for a screen reader: each control has a role, a name, and its value or state.

    test_accessibility.py SHOW_WINDOWS [unittest arguments]

Runs on an X server and a session bus of its own; skipped, with status 77, where they are not installed.
"""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import time
import unittest

SHOW_WINDOWS = sys.argv.pop(1)
SKIPPED = 77
READER = pathlib.Path(__file__).resolve().parents[1] / "support" / "accessible.py"
PYTHON = "/usr/bin/python3"

CONTROLS = {
    "push button",
    "toggle button",
    "check box",
    "radio button",
    "combo box",
    "entry",
    "text",
    "password text",
    "page tab",
    "list item",
    "link",
    "slider",
    "spin button",
    "menu item",
    "chart",
}
NAMELESS = {"label", "filler", "panel", "layered pane", "scroll bar", "scroll pane", "viewport", "separator", "image"}
STRANGE = {"unknown", "invalid", "redundant object", "extended"}

WINDOWS = [
    "main/MainWindow.qml",
    "main/MainWindow.qml disconnected",
    "main/PanelPopup.qml",
    "main/QuitDialog.qml",
    "circuits/CircuitsWindow.qml",
    "log/LogWindow.qml",
    "chooser/ChooserWindow.qml",
    "report/ReportWindow.qml",
    *(f"settings/SettingsWindow.qml pane={pane}" for pane in range(6)),
]


def every(nodes):
    """The visible nodes of the windows."""
    for node in nodes:
        if "visible" in node["states"] or node["role"] == "frame":
            yield node
            yield from every(node["children"])


def faults(nodes):
    """One line for each control that a blind user could not use."""
    found = []
    for node in every(nodes):
        what = f"{node['role']} {node['name']!r} at {node['x']},{node['y']}"
        if node["role"] in STRANGE:
            found.append(f"{what} has no role")
        named = node["role"] in CONTROLS or node["actions"] or "focusable" in node["states"]
        if named and node["role"] not in NAMELESS and not node["name"].strip():
            found.append(f"{what} has no name")
        if node["role"] == "combo box" and not (node["text"] or node["description"]):
            found.append(f"{what} has no value")
        if node["role"] in ("push button", "check box", "page tab", "link") and not node["actions"]:
            found.append(f"{what} cannot be pressed")
    return found


class Accessibility(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.program = subprocess.Popen(
            [SHOW_WINDOWS],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
            env=os.environ
            | {
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                "QT_QPA_PLATFORM": "xcb",
                "QT_QUICK_BACKEND": "software",
                "LANG": "C.UTF-8",
            },
        )
        cls.addClassCleanup(cls.end)

    @classmethod
    def end(cls):
        cls.program.kill()
        cls.program.wait()
        cls.program.stdin.close()
        cls.program.stdout.close()

    def show(self, window):
        """The tree of the window, once the bus has it."""
        self.program.stdin.write(window + "\n")
        self.program.stdin.flush()
        self.assertEqual(self.program.stdout.readline(), "shown\n", window)
        deadline = time.monotonic() + 60
        while time.monotonic() < deadline:
            seen = subprocess.run([PYTHON, str(READER), str(self.program.pid)], capture_output=True, text=True, check=True)
            tree = json.loads(seen.stdout)
            if any(node["children"] for node in every(tree)):
                return tree
        self.fail(f"the accessibility bus never had the window {window}")

    def find(self, tree, role, name):
        for node in every(tree):
            if node["role"] == role and node["name"] == name:
                return node
        shown = "\n".join(f"{n['role']} {n['name']!r}" for n in every(tree))
        self.fail(f"no {role} {name!r} among\n{shown}")

    def test_the_walk_finds_a_button_without_a_name(self):
        found = faults(self.show("faulty"))
        self.assertEqual(len(found), 1, found)
        self.assertIn("has no name", found[0])

    def test_every_control_of_every_window(self):
        controls = 0
        for window in WINDOWS:
            with self.subTest(window=window):
                tree = self.show(window)
                self.assertEqual([], faults(tree))
                frames = [node for node in tree if node["role"] in ("frame", "dialog", "window")]
                self.assertTrue(frames and all(node["name"] for node in frames), frames)
                controls += sum(node["role"] in CONTROLS for node in every(tree))
        self.assertGreater(controls, 60)  # the walk reaches them

    def test_switches_tell_their_state(self):
        tree = self.show("main/MainWindow.qml disconnected")
        self.assertIn("checked", self.find(tree, "check box", "Strict mode")["states"])
        self.assertNotIn("checked", self.find(tree, "check box", "Allow local network")["states"])

    def test_choices_tell_what_is_chosen(self):
        chosen = self.find(self.show("main/MainWindow.qml disconnected"), "combo box", "Exit country")
        self.assertIn("Germany", chosen["text"] + chosen["description"])

    def test_the_state_of_the_connection_is_a_heading(self):
        self.find(self.show("main/MainWindow.qml disconnected"), "heading", "Not Protected")
        self.find(self.show("main/MainWindow.qml"), "heading", "DNS Leak")

    def test_the_open_page_of_the_settings_is_told(self):
        tree = self.show("settings/SettingsWindow.qml pane=4")
        self.assertIn("selected", self.find(tree, "page tab", "Recovery")["states"])
        self.assertNotIn("selected", self.find(tree, "page tab", "General")["states"])

    def test_a_chosen_application_is_checked(self):
        tree = self.show("chooser/ChooserWindow.qml")
        self.assertIn("checked", self.find(tree, "check box", "Games")["states"])
        self.assertNotIn("checked", self.find(tree, "check box", "Letters")["states"])


if __name__ == "__main__":
    if "VELDMARK_DISPLAY_OF_ITS_OWN" not in os.environ:
        missing = [name for name in ("Xvfb", "xvfb-run", "dbus-run-session") if not shutil.which(name)]
        trial = "import gi; gi.require_version('Atspi', '2.0'); from gi.repository import Atspi"
        if missing or subprocess.run([PYTHON, "-c", trial], capture_output=True).returncode != 0:
            print("skipped: run sudo apt install xvfb dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi")
            sys.exit(SKIPPED)
        os.environ["VELDMARK_DISPLAY_OF_ITS_OWN"] = "1"
        sys.exit(
            subprocess.run(
                [
                    "dbus-run-session",
                    "--",
                    "xvfb-run",
                    "--auto-servernum",
                    "--server-args",
                    "-screen 0 1600x1200x24 -nolisten tcp",
                    PYTHON,
                    __file__,
                    SHOW_WINDOWS,
                    *sys.argv[1:],
                ]
            ).returncode
        )
    unittest.main(verbosity=2)
