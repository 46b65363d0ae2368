"""The firewall's rules, word for word. test_firewall.py tests them with packets, which cannot try every port and range.

After an intended change run VELDMARK_WRITE_RULES=1 test_rules.py, and read the difference."""

import os
import subprocess
import unittest

import namespace

HELPER = namespace.helper_path()
FOLDER = os.path.join(namespace.HERE, "rules")

CASES = {
    "strict": "print_strict_rules 991 1000 0 0 '' '' ''",
    "strict-everything": "print_strict_rules 991 1000 1 1 192.0.2.53 2001:db8::53 veldmark-bypass",
    "strict-root": "print_strict_rules 991 0 0 0 '' '' ''",
    "identities": "print_identities 0 1000 65534",
    "strict-groups": "TOR_PATH=veldmark/tor; print_strict_rules 991 1000 0 1 '' '' veldmark-bypass 1",
    "strict-bridges": "print_strict_rules 991 1000 0 0 '' '' '' '' '192.0.2.1 . 443' '2001:db8::1 . 9030'",
    "proxy": "print_proxy_rules 991 1000",
}


class Rules(unittest.TestCase):
    maxDiff = None

    def test_each_text_is_as_it_was_meant(self):
        for name, call in CASES.items():
            with self.subTest(name):
                text = subprocess.run(
                    ["/bin/bash", "-p", "-c", f". {HELPER}; {call}"], capture_output=True, text=True, check=True
                ).stdout
                path = os.path.join(FOLDER, name + ".nft")
                if os.environ.get("VELDMARK_WRITE_RULES"):
                    with open(path, "w", encoding="ascii") as file:
                        file.write(text)
                with open(path, encoding="ascii") as file:
                    self.assertEqual(text, file.read())


if __name__ == "__main__":
    unittest.main()
