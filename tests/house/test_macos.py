"""The Mac's own sources and its bundle, as far as another system can check them: the Objective-C++ against GNUstep's headers and
the declarations in apple/, the property list, and the icon.

VELDMARK_GNUSTEP: unpacked packages, else the installed headers. VELDMARK_QT_HEADERS: folders, joined by ":".
VELDMARK_MACOS: the folder of the built property list and icon; without it those two are not checked.
"""

import json
import os
import pathlib
import plistlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(sys.argv.pop(1) if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parents[2])
APPLE = ROOT / "tests" / "house" / "apple"
MADE = os.environ.get("VELDMARK_MACOS")
QT = os.environ.get("VELDMARK_QT_HEADERS", "/usr/include/x86_64-linux-gnu/qt6:/usr/include/x86_64-linux-gnu/qt6/QtCore").split(":")


def gnustep():
    for place in os.environ.get("VELDMARK_GNUSTEP", "") + "/usr/include/GNUstep", "/usr/include/GNUstep":
        if os.path.exists(place + "/AppKit/AppKit.h"):
            return place
    return None


def check(path):
    """The compiler's messages about the file's syntax and types; empty without any."""
    words = [
        "clang++",
        "-x",
        "objective-c++",
        "-std=c++20",
        "-fsyntax-only",
        "-fobjc-runtime=gcc",
        "-fblocks",
        "-fPIC",
        "-Wall",
        "-Wextra",
        "-Wshadow",
        "-Werror",
        "-DQT_NO_CAST_FROM_ASCII",
        "-DQT_NO_CAST_TO_ASCII",
        "-DQT_NO_KEYWORDS",
        "-I",
        str(ROOT / "src"),
        "-include",
        str(APPLE / "missing.h"),
    ]
    for folder in [gnustep(), str(APPLE), *sorted(map(str, pathlib.Path("/usr/lib/gcc").glob("*/*/include"))), *QT]:
        words += ["-isystem", folder]
    return subprocess.run([*words, str(path)], capture_output=True, text=True, check=False).stderr


class ObjectiveC(unittest.TestCase):
    def test_a_message_that_nobody_understands_is_found(self):
        with tempfile.NamedTemporaryFile("w", suffix=".mm") as file:
            file.write("#import <AppKit/AppKit.h>\nvoid f() { [[NSWorkspace sharedWorkspace] runningAplications]; }\n")
            file.flush()
            self.assertIn("runningAplications", check(file.name))

    def test_every_source(self):
        sources = sorted((ROOT / "src").rglob("*.mm"))
        self.assertGreaterEqual(len(sources), 3)
        for source in sources:
            with self.subTest(source.name):
                self.assertEqual(check(source), "")


class Build(unittest.TestCase):
    def test_the_oldest_macos_is_set_before_the_compiler_is_chosen(self):
        text = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
        self.assertLess(text.index("set(CMAKE_OSX_DEPLOYMENT_TARGET"), text.index("\nproject("))

    def test_a_release_is_for_both_machines(self):
        presets = json.loads((ROOT / "CMakePresets.json").read_text(encoding="utf-8"))["configurePresets"]
        mac = next(preset for preset in presets if preset["name"] == "mac")
        self.assertEqual(mac["cacheVariables"]["CMAKE_OSX_ARCHITECTURES"], "arm64;x86_64")

    def test_a_mac_makes_no_program_that_only_linux_can_run(self):
        """The tests' folder ends on a Mac before the folders and targets of these programs."""
        tests = ROOT / "tests"
        text = (tests / "CMakeLists.txt").read_text(encoding="utf-8")
        on_a_mac, end, elsewhere = text.partition("if(APPLE)\n    return()\nendif()\n")
        self.assertTrue(end)
        for program in "FastForward", "FatalStep":
            made = [
                path.parent
                for path in tests.rglob("CMakeLists.txt")
                if re.search(rf"\badd_\w+\({program}\b", path.read_text("utf-8"))
            ]
            self.assertEqual(made, [tests / "lab"])
            self.assertNotIn(program, on_a_mac)
        folders = re.search(r"foreach\(suite ([^)]*)\)\n    add_subdirectory", elsewhere)[1].split()
        self.assertIn("lab", folders)
        self.assertNotRegex(on_a_mac, r"\blab\b")


class Workflow(unittest.TestCase):
    """What macdeployqt does, by its documentation: it copies the platform plugin of windows alone, and changes the library paths of
    the bundle's main program, and of others that it is told."""

    def setUp(self):
        text = (ROOT / ".github" / "workflows" / "mac.yml").read_text(encoding="utf-8")
        self.steps = text.split("      - name: ")

    def step(self, name):
        return next(step for step in self.steps if step.startswith(name))

    def test_the_bundles_programs_run_with_the_bundles_own_plugin(self):
        step = self.step("The bundle")
        self.assertIn("MacOS/Veldmark --version", step)
        started = step.split("MacOS/Veldmark --hidden &\n", 1)[1]  # --version loads no plugin
        self.assertEqual(
            [line.strip() for line in started.splitlines()[:4]],
            ["running=$!", "sleep 10", 'kill -TERM "$running"', 'wait "$running"'],
        )
        self.assertNotIn("QT_QPA_PLATFORM", step + self.steps[0])
        self.assertIn("QT_QPA_PLATFORM: offscreen", self.step("Unit tests"))

    def test_every_program_of_the_bundle_that_uses_qt_gets_the_bundles_libraries(self):
        deployed = self.step("The bundle").split("macdeployqt")[1].split("\n          for ")[0]
        self.assertIn("-executable=build/bin/Veldmark.app/Contents/MacOS/veldmarkctl", deployed)
        self.assertIn("grep -E '/(opt/homebrew|usr/local)/'", self.step("The bundle"))


class Questions(unittest.TestCase):
    def test_what_the_known_issues_leave_open_is_asked_on_a_real_mac(self):
        text = (ROOT / "docs" / "known-issues.md").read_text(encoding="utf-8").split("\n## macOS\n")[1]
        asked = (ROOT / "tests" / "helper_mac" / "real_mac.sh").read_text(encoding="utf-8").replace("\\", "")
        questions = re.findall(r'Question(?: with a person: |\s)"([^"]*)"', re.sub(r"\s+", " ", text))
        self.assertGreater(len(questions), 10)
        self.assertEqual([question for question in questions if question not in asked], [])


@unittest.skipUnless(MADE, "nothing has been built")
class Bundle(unittest.TestCase):
    def test_property_list(self):
        with open(os.path.join(MADE, "Info.plist"), "rb") as file:
            values = plistlib.load(file)
        self.assertIs(values["LSUIElement"], True)
        self.assertEqual(values["CFBundleIconFile"] + ".icns", "Veldmark.icns")
        self.assertRegex(values["CFBundleShortVersionString"], r"^\d+\.\d+\.\d+$")
        self.assertEqual(values["CFBundlePackageType"], "APPL")

    def test_it_says_what_an_application_without_tor_wants(self):
        """The system asks for a permission in the name of the starting program, and ends a program that uses a camera without a
        stated reason."""
        with open(os.path.join(MADE, "Info.plist"), "rb") as file:
            values = plistlib.load(file)
        for device in "Camera", "Microphone":
            self.assertIn(f"opened without Tor wants to use the {device.lower()}", values[f"NS{device}UsageDescription"])

    def test_the_settings_are_the_bundles_user_defaults(self):
        """QSettings puts "com." before the name of an organisation without a domain."""
        source = (ROOT / "src" / "system" / "SettingsStore.cpp").read_text(encoding="utf-8")
        words = re.search(r"NativeFormat.*?;", source, re.DOTALL)[0]
        names = re.findall(r'QStringLiteral\("(\w+)"\)', words)
        with open(os.path.join(MADE, "Info.plist"), "rb") as file:
            self.assertEqual(plistlib.load(file)["CFBundleIdentifier"], ".".join(["com", *names]))

    def test_a_second_user_may_open_it(self):
        """Another user may start it after fast user switching. The program itself hands over one user's second start."""
        with open(os.path.join(MADE, "Info.plist"), "rb") as file:
            self.assertNotIn("LSMultipleInstancesProhibited", plistlib.load(file))

    def test_icon_holds_a_picture_for_every_size(self):
        data = pathlib.Path(MADE, "Veldmark.icns").read_bytes()
        self.assertEqual(data[:4], b"icns")
        self.assertEqual(struct.unpack(">I", data[4:8])[0], len(data))
        sizes, at = {}, 8
        while at < len(data):
            kind, length = data[at : at + 4].decode(), struct.unpack(">I", data[at + 4 : at + 8])[0]
            png = data[at + 8 : at + length]
            self.assertEqual(png[:8], b"\x89PNG\r\n\x1a\n")
            sizes[kind] = struct.unpack(">II", png[16:24])
            at += length
        self.assertEqual(
            sizes,
            {
                "icp4": (16, 16),
                "icp5": (32, 32),
                "ic07": (128, 128),
                "ic08": (256, 256),
                "ic09": (512, 512),
                "ic10": (1024, 1024),
                "ic11": (32, 32),
                "ic12": (64, 64),
                "ic13": (256, 256),
                "ic14": (512, 512),
            },
        )


if __name__ == "__main__":
    if not shutil.which("clang++") or not gnustep():
        print("The Objective-C++ check needs clang and the headers of GNUstep.")
        sys.exit(77)
    unittest.main()
