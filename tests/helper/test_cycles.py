"""Many sessions one after the other leave nothing behind: no process, mount, group, rule, file or descriptor."""

import os

import namespace
from namespace import HelperTest

CYCLES = int(os.environ.get("VELDMARK_CYCLES", "20"))  # 200 sessions take some minutes


class Cycles(HelperTest):
    @classmethod
    def setUpClass(cls):
        """The machine gets its own /tmp, since other tests leave files in the computer's /tmp."""
        super().setUpClass()
        cls.machine.shell('cp "$1" /run/veldmark-helper.sh; mount -t tmpfs -o mode=1777 private /tmp', cls.machine.helper)
        cls.machine.helper = "/run/veldmark-helper.sh"

    def everything(self):
        """The snapshot together with all of Veldmark's files and the number of the first process's descriptors."""
        return self.machine.snapshot() + self.machine.shell(
            "find /var/lib/veldmark /run /tmp/veldmark* -not -path '*/run/tor/data/*' -printf '%p %y %m %U\\n' 2>/dev/null | sort; ls /proc/1/fd | wc -l"
        )

    def test_nothing_is_left(self):
        self.machine.connect()
        self.machine.help("disconnect")  # the last session's logs and configuration stay
        before = self.everything()
        for cycle in range(CYCLES):
            self.machine.connect(strict=int(cycle % 4 != 3), lan=cycle % 2)
            if cycle % 10 == 0:
                self.assertNotEqual(self.everything(), before)
            self.machine.help("disconnect")
            if cycle % 10 == 9 or cycle == CYCLES - 1:
                self.assertEqual(self.everything(), before, f"after {cycle + 1} sessions")


if __name__ == "__main__":
    namespace.main()
