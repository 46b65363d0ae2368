"""A bootstrap that cannot succeed: the five-minute deadline with the real controller, helper and tor, on a fast clock."""

import json
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import FAST_FORWARD, PROGRAMS, RESTORE, SKIPPED, TIMEOUT, LabCase  # noqa: E402


class Deadline(LabCase):
    def attempt(self, mode):
        result = self.lab.host.run([FAST_FORWARD, mode], env={"VELDMARK_PROGRAMS": PROGRAMS}, check=True)
        state = json.loads(result.stdout)
        self.assertEqual((state["phase"], state["statusDetail"]), ("stale", "Tor didn't finish connecting"))
        self.assertIs(state["canCancel"], False)
        self.assert_restored()
        return state["errorMessage"]

    def test_a_network_that_answers_nothing(self):
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/tor/data"], check=True)
        with self.lab.netem(loss=1.0):
            self.assertEqual(self.attempt("connect"), TIMEOUT + RESTORE)

    def test_a_control_password_that_is_wrong(self):
        message = self.attempt("wrong-password")
        self.assertTrue(message.startswith(TIMEOUT + " (Tor replied: 515 Authentication failed"), message)
        self.assertTrue(message.endswith(")" + RESTORE), message)


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)
