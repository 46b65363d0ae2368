"""The German translation: every text of the sources is in it, finished, with the same place holders."""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as tree

LUPDATE = sys.argv.pop(1)
ROOT = pathlib.Path(__file__).resolve().parents[2]
FILE = ROOT / "resources" / "translations" / "veldmark_de.ts"


def messages(path):
    return list(tree.parse(path).iter("message"))


# The rooms without translations whose sentences the windows show.
SPEAKERS = ["controller/" + name for name in (
    "Bootstrap", "BypassApps", "Circuits", "Connect", "Disconnect", "DNS", "KillSwitchWatch", "Monitoring", "Passwordless",
    "SessionTypes", "Terminal", "Transports")]
SPEAKERS += ["checks/Verdict", "checks/DNSCheck", "bridges/BridgePlan", "bridges/DownloadError", "bridges/PluggableTransports",
             "bridges/SpeedTest", "control/ControlPortError", "system/HelperError", "platform/LinuxProfile", "platform/MacProfile",
             "app/ControllerSession", "app/LoginItem"]
# Said to Tor, or by the prompt, which has its own words (packaging/org.veldmark.helper.policy).
NO_SENTENCES = "SETCONF ", "CLOSECIRCUIT ", "Veldmark needs administrator access"


def sentences(path):
    """The texts of a source that read like a sentence or a part of one."""
    text = re.sub(r'"\s*\n\s*"', "", path.read_text())
    for word in re.findall(r'QStringLiteral\(\s*"((?:[^"\\]|\\.)*)"', text):
        if re.match(r"[ A-Z%]", word) and re.search(r"[a-z]{2,} [a-z%]", word) and not word.startswith(NO_SENTENCES):
            yield word.replace('\\"', '"')


class Translation(unittest.TestCase):
    def test_no_text_is_missing(self):
        with tempfile.TemporaryDirectory() as folder:
            copy = pathlib.Path(folder) / FILE.name
            shutil.copy(FILE, copy)
            subprocess.run(
                [LUPDATE, "-silent", "-locations", "none", "-no-obsolete", "-I", "src", "-disable-heuristic",
                 "sametext", "-disable-heuristic", "similartext", "src/ui", "src/app", "src/doctor", "-ts", copy],
                cwd=ROOT, check=True)
            found = messages(copy)
            self.assertGreater(len(found), 200)
            for message in found:
                self.assertNotEqual(message.find("translation").get("type"), "unfinished",
                                    message.find("source").text)

    def test_what_the_session_says_is_translated(self):
        """Each sentence stands in the list for the translators, whole or with the place holder that is put before or behind it."""
        known = {message.find("source").text for context in tree.parse(FILE).iter("context")
                 if context.find("name").text == "Session" for message in context.iter("message")}
        found = 0
        for name in SPEAKERS:
            for word in sentences(ROOT / "src" / (name + ".cpp")):
                found += 1
                self.assertTrue(known & {word, word + "%1", "%1" + word} or any(text.startswith(word + "%1") for text in known),
                                f"{name}: {word}")
        self.assertGreater(found, 60)

    def test_place_holders_are_kept(self):
        for message in messages(FILE):
            source, translation = message.find("source").text, message.find("translation").text
            self.assertEqual(sorted(re.findall(r"%\d", source)), sorted(re.findall(r"%\d", translation)), source)


if __name__ == "__main__":
    unittest.main()
