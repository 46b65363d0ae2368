#!/usr/bin/python3
"""Gives mutated arguments to the root helper's own parser and compares each verdict with a second, independent one.

usage: helper_arguments.py HELPER [--cases N] [--seed N]

A shell of its own, as nobody and in an empty folder, reads the helper. The verbs run up to the lock, before they touch anything,
and print the parsed values. Each case is either refused with one line, or accepted with exactly the given values, each of them fit
for Tor's configuration, a firewall rule or a file name. No text in a value may ever run: the folder stays empty.
"""

import argparse
import os
import random
import re
import subprocess
import sys
import tempfile

DRIVER = r"""
source "$1"
clean_environment() { :; }
identify_caller() { CALLER_UID=4242; PROMPTED=1; }
need_programs() { :; }
find_launcher() { :; }
take_lock() {
  printf 'OK\0%s\0' "$OPT_TOR" "$OPT_HASH" "$OPT_STRICT" "$OPT_LAN" "$OPT_SEPARATE" "$OPT_EXIT" "$OPT_LYREBIRD" "$OPT_SNOWFLAKE" \
    "$OPT_WEBTUNNEL" "$OPT_BUNDLE" "$OPT_USER" "$OPT_LAUNCH" "$OPT_UID" "$OPT_APP" "$OPT_PROGRAM" "$OPT_AS" "$OPT_SHA256" ${OPT_BRIDGES[@]+"${OPT_BRIDGES[@]}"} \
    ${OPT_RESERVES[@]+"${OPT_RESERVES[@]/#/reserve }"}
  if [[ -n $OPT_TOR ]]; then printf 'TORRC\0%s\0' "$(print_torrc 1)"; fi
  exit 42
}
set +e
[[ -z ${CANARY-} ]] || eval "$CANARY"
while IFS= read -r -d '' count; do
  words=()
  for ((i = 0; i < count; ++i)); do
    IFS= read -r -d '' word || exit 3
    words[i]=$word
  done
  ( set -euo pipefail; main ${words[@]+"${words[@]}"} ) 2>refusal </dev/null
  status=$?
  printf 'STATUS\0%s\0REFUSAL\0%s\0END\0' "$status" "$(<refusal)"
done
"""

SINGLE = [
    "--tor",
    "--hash",
    "--strict",
    "--lan",
    "--separate",
    "--exit",
    "--pt-lyrebird",
    "--pt-snowflake",
    "--pt-webtunnel",
    "--bundle",
    "--user",
    "--launch",
    "--uid",
    "--app",
    "--program",
    "--as",
    "--sha256",
]
ALLOWED = {
    "connect": SINGLE[:10] + ["--bridge", "--reserve"],
    "replace": SINGLE[:10] + ["--bridge", "--reserve"],
    "approve": ["--program", "--as", "--sha256"],
    "launch": ["--uid", "--app"],
    "install-privileged": ["--user", "--launch"],
    "disconnect": [],
    "fix-dns": [],
    "uninstall-privileged": [],
}
BRIDGE = re.compile(rb"([a-z][a-z0-9_]* )?\[?[0-9A-Fa-f.:]+\]?:[0-9]+( [!-~]+)*")
TORRC_KEYWORDS = {
    b"DataDirectory",
    b"Log",
    b"SocksPort",
    b"ControlPort",
    b"HashedControlPassword",
    b"CookieAuthentication",
    b"DNSPort",
    b"ClientOnly",
    b"AvoidDiskWrites",
    b"ExitNodes",
    b"StrictNodes",
    b"UseBridges",
    b"Bridge",
    b"ClientTransportPlugin",
    b"NoExec",
}
HASH = b"16:" + b"0123456789ABCDEF" * 3 + b"0123456789"
OBFS4 = b"obfs4 192.0.2.1:443 " + b"0" * 40 + b" cert=a/b+c iat-mode=0"

GOOD = [
    [b"connect", b"--tor", b"/usr/bin/env", b"--hash", HASH, b"--strict", b"1", b"--lan", b"0"],
    [
        b"connect",
        b"--tor",
        b"/usr/bin/env",
        b"--hash",
        HASH,
        b"--strict",
        b"0",
        b"--lan",
        b"1",
        b"--exit",
        b"de",
        b"--separate",
        b"1",
    ],
    [
        b"connect",
        b"--tor",
        b"/usr/bin/env",
        b"--hash",
        HASH,
        b"--strict",
        b"1",
        b"--lan",
        b"1",
        b"--bridge",
        OBFS4,
        b"--bridge",
        b"[2001:db8::1]:443",
        b"--pt-lyrebird",
        b"/usr/bin/env",
    ],
    [
        b"connect",
        b"--tor",
        b"/usr/bin/env",
        b"--hash",
        HASH,
        b"--strict",
        b"1",
        b"--lan",
        b"0",
        b"--reserve",
        b"192.0.2.4:443",
        b"--bridge",
        b"snowflake 192.0.2.3:1 url=https://a/",
        b"--pt-snowflake",
        b"/usr/bin/env",
    ],
    [
        b"connect",
        b"--tor",
        b"/usr/bin/env",
        b"--hash",
        HASH,
        b"--strict",
        b"1",
        b"--lan",
        b"0",
        b"--bridge",
        b"webtunnel [2001:db8::2]:443 url=https://b/",
        b"--pt-webtunnel",
        b"/usr/bin/env",
        b"--bundle",
        b"/nonexistent/bundle.tar.gz",
    ],
    [b"launch", b"--uid", b"4242", b"--app", b"/usr/share/applications/a.desktop"],
    [b"install-privileged", b"--user", b"alice", b"--launch", b"/usr/bin/env"],
    [b"replace", b"--tor", b"/usr/bin/env", b"--hash", HASH, b"--strict", b"0", b"--lan", b"1"],
    [b"approve", b"--program", b"/usr/bin/env", b"--as", b"lyrebird", b"--sha256", b"0123456789abcdef" * 4],
    [b"disconnect"],
    [b"fix-dns"],
    [b"uninstall-privileged"],
]
HOSTILE = [
    b"",
    b" ",
    b"-",
    b"--",
    b"--help",
    b"-c",
    b"$(touch pwned)",
    b"`touch pwned`",
    b"a[$(touch pwned)]",
    b"x;touch pwned",
    b"'",
    b'"',
    b"\\",
    b"#",
    b"{de}",
    b"de}",
    b"DE",
    b"d",
    b"\n",
    b"\r",
    b"\t",
    b"\x1b[2J",
    b"\x7f",
    b"\xc2\x85",
    b"\xc2",
    b"\xff\xfe",
    b"\xe2\x80\xa8",
    b"\xd9\xa1",
    b"0x1",
    b"01",
    b"2",
    b"1 ",
    b" 1",
    b"1\n",
    b"4294967295",
    b"-1",
    b"root",
    b"/",
    b"//",
    b"/usr/bin",
    b"/dev/null",
    b"/etc/passwd",
    b"/nonexistent",
    b"usr/bin/env",
    b"/usr/bin/../bin/env",
    b"/usr/bin/env\n",
    b"*",
    b"?",
    b"[a-z]",
    b"[",
    b"~",
    b"~root",
    b"!",
    b"a" * 5000,
    b"\xe2\x82\xac" * 1400,
    b"%s%n",
    b"192.0.2.1:443",
    b"192.0.2.1:443 a#b",
    b"192.0.2.1:443  a",
    b"[::1]:1",
    b"]:1",
    b":1",
    b"obfs4 :1",
    b"conjure 192.0.2.1:1",
    b"meek_lite 192.0.2.1:1 url=x",
    b"192.0.2.1:443\nExitNodes {xx}",
    b"BASH_ENV=x",
    b"OPT_TOR",
    b"PATH",
    b"alice ALL=(ALL) NOPASSWD: ALL",
    b"alice$",
    b"a.b@c-d",
    b"CALLER_UID",
    b"IFS",
    b"--tor=/usr/bin/env",
    b"--tor\n",
    b"--bridge --tor",
    b"\xc2\x80",
    b"\xc2\x9f",
    b"\xc2\xa0",
    b"\xc3\xa9",
]


def has_controls(value):
    return re.search(rb"[\x00-\x1f\x7f]|\xc2[\x80-\x9f]", value) is not None


def is_program(path):
    return path.startswith(b"/") and os.path.isfile(path) and os.access(path, os.X_OK)


def understood(words):
    """The expected reading of `words`: options by name, the bridges and those in reserve, or None where the helper must refuse."""
    if not words or words[0].decode("latin-1") not in ALLOWED:
        return None
    verb, rest = words[0].decode("latin-1"), words[1:]
    if len(rest) % 2:
        return None
    options, bridges, reserves = {}, [], []
    for name, value in zip(rest[::2], rest[1::2]):
        name = name.decode("latin-1")
        if name not in ALLOWED[verb] or not value or len(value) > 4096 or has_controls(value):
            return None
        if name == "--bridge":
            bridges.append(value)
        elif name == "--reserve":
            reserves.append(value)
        elif name in options:
            return None
        else:
            options[name] = value
    fits = {
        "connect": fits_connect,
        "replace": fits_connect,
        "approve": fits_approve,
        "launch": fits_launch,
        "install-privileged": fits_install,
    }.get(verb, lambda *_: True)
    return (options, bridges, reserves) if fits(options, bridges + reserves) else None


def fits_connect(options, bridges):
    if not {"--tor", "--hash", "--strict", "--lan"} <= options.keys() or len(bridges) > 100:
        return False
    programs = [options[name] for name in ("--tor", "--pt-lyrebird", "--pt-snowflake", "--pt-webtunnel") if name in options]
    if not (
        re.fullmatch(rb"16:[0-9A-F]{58}", options["--hash"])
        and options["--strict"] in (b"0", b"1")
        and options["--lan"] in (b"0", b"1")
        and options.get("--separate", b"0") in (b"0", b"1")
        and re.fullmatch(rb"[a-z]{2}", options.get("--exit", b"xx"))
        and all(map(is_program, programs))
        and options.get("--bundle", b"/").startswith(b"/")
    ):
        return False
    for bridge in bridges:
        if not BRIDGE.fullmatch(bridge) or re.search(rb'[#"\\]', bridge):
            return False
        transport = bridge.split(b" ")[0]
        if re.fullmatch(rb"[a-z][a-z0-9_]*", transport) is None:
            continue
        if transport == b"webtunnel" and "--pt-webtunnel" in options:
            continue
        needed = {
            b"obfs4": "--pt-lyrebird",
            b"meek_lite": "--pt-lyrebird",
            b"obfs3": "--pt-lyrebird",
            b"scramblesuit": "--pt-lyrebird",
            b"webtunnel": "--pt-lyrebird",
            b"snowflake": "--pt-snowflake",
        }
        if needed.get(transport) not in options:
            return False
    return True


def fits_approve(options, _):
    return (
        options.get("--as") in (b"tor", b"lyrebird", b"snowflake-client", b"webtunnel-client")
        and re.fullmatch(rb"[0-9a-f]{64}", options.get("--sha256", b"")) is not None
        and is_program(options.get("--program", b""))
    )


def fits_launch(options, _):
    return options.get("--uid") == b"4242" and options.get("--app", b"").startswith(b"/")


def fits_install(options, _):
    return re.fullmatch(rb"[A-Za-z0-9_][A-Za-z0-9_.@-]{0,63}\$?", options.get("--user", b"")) is not None and (
        "--launch" not in options or is_program(options["--launch"])
    )


def mutated(words, chance):
    """`words` with one to three changes; sometimes none, so that acceptance is tested as well."""
    words = list(words)
    for _ in range(chance.choice([0, 1, 1, 1, 2, 3])):
        kind = chance.randrange(8)
        at = chance.randrange(len(words)) if words else 0
        if kind == 0 or not words:
            words.insert(at, chance.choice(HOSTILE))
        elif kind == 1:
            words[at] = chance.choice(HOSTILE)
        elif kind == 2:
            del words[at]
        elif kind == 3:
            words.insert(chance.randrange(len(words) + 1), words[at])
        elif kind == 4:
            other = chance.randrange(len(words))
            words[at], words[other] = words[other], words[at]
        elif kind == 5:
            value = bytearray(words[at])
            if value:
                value[chance.randrange(len(value))] = chance.randrange(1, 256)
            words[at] = bytes(value)
        elif kind == 6:
            cut = chance.randrange(len(words[at]) + 1)
            words[at] = words[at][:cut] + chance.choice(HOSTILE) + words[at][cut:]
        else:
            words[at:at] = [chance.choice(SINGLE + ["--bridge", "--reserve"]).encode(), chance.choice(HOSTILE)]
    return words


class Parser:
    """The helper's own parser in a shell in `folder`."""

    def __init__(self, helper, folder, canary=""):
        as_nobody = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "--no-new-privs"]
        self.shell = subprocess.Popen(
            [*(as_nobody if os.geteuid() == 0 else []), "/bin/bash", "-p", "-c", DRIVER, "driver", helper],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            cwd=folder,
            env={"PATH": "/usr/bin:/bin", "CANARY": canary},
        )
        self.read = b""

    def ask(self, words):
        self.shell.stdin.write(b"".join(word + b"\0" for word in [str(len(words)).encode(), *words]))
        self.shell.stdin.flush()
        while not self.read.endswith(b"END\0"):
            more = os.read(self.shell.stdout.fileno(), 65536)
            if not more:
                raise RuntimeError("the helper's shell has ended")
            self.read += more
        fields, self.read = self.read.split(b"\0"), b""
        return fields

    def close(self):
        self.shell.stdin.close()
        self.shell.wait()


def problem(words, fields):
    """The error in the helper's verdict on `words`; empty without one."""
    wanted = understood(words)
    status = fields[fields.index(b"STATUS") + 1]
    refusal = fields[fields.index(b"REFUSAL") + 1]
    if status == b"42":
        if wanted is None:
            return "accepted what must be refused"
        options, bridges, reserves = wanted
        values = [field for field, mark in zip(fields[1::2], fields[::2]) if mark == b"OK"]
        if values != [options.get(name, b"") for name in SINGLE] + bridges + [b"reserve " + line for line in reserves]:
            return f"understood something else: {values}"
        if fields[len(values) * 2] == b"TORRC":
            for line in fields[len(values) * 2 + 1].split(b"\n"):
                if not line.startswith(b"#") and line.split(b" ")[0] not in TORRC_KEYWORDS:
                    return f"wrote a line of its own into Tor's configuration: {line}"
        return ""
    if wanted is not None:
        return f"refused what is right: {refusal}"
    if status != b"1" or not refusal.startswith(b"ERROR: ") or b"\n" in refusal or has_controls(refusal):
        return f"was refused with status {status} and not one sentence: {refusal}"
    return ""


def shows_what_runs(helper):
    """Whether a value that runs leaves a file in the folder, so that an empty folder proves something."""
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o777)
        parser = Parser(helper, folder, canary="touch pwned")
        parser.ask([b"disconnect"])
        parser.close()
        return "pwned" in os.listdir(folder)


def main():
    options = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    options.add_argument("helper")
    options.add_argument("--cases", type=int, default=4000)
    options.add_argument("--seed", type=int, default=1)
    given = options.parse_args()
    helper = os.path.abspath(given.helper)
    if not shows_what_runs(helper):
        sys.exit("the harness would not notice a value that runs")
    chance = random.Random(given.seed)
    accepted = 0
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o777)
        parser = Parser(helper, folder)
        for number in range(given.cases):
            words = mutated(chance.choice(GOOD), chance) if number >= len(GOOD) else GOOD[number]
            words = [word.replace(b"\0", b"") for word in words]
            fields = parser.ask(words)
            accepted += fields[0] == b"OK"
            wrong = problem(words, fields)
            if wrong:
                sys.exit(f"case {number}: {wrong}\n  {words}")
            if set(os.listdir(folder)) != {"refusal"}:
                sys.exit(f"case {number} left {os.listdir(folder)} behind\n  {words}")
        parser.close()
    if not 0 < accepted < given.cases:
        sys.exit(f"of {given.cases} cases {accepted} were accepted: that tests nothing")
    print(f"{given.cases} cases: {accepted} accepted, {given.cases - accepted} refused")


if __name__ == "__main__":
    main()
