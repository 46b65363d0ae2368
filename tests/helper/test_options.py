"""Every hostile or wrong argument gets one sentence and changes nothing."""

import namespace
from namespace import HASH, TOR, HelperTest

GOOD = {"--tor": TOR, "--hash": HASH, "--strict": "1", "--lan": "0"}


def words(**changes):
    """The arguments of a good connect, with options replaced (None leaves one out) by their name without dashes."""
    options = dict(GOOD)
    for name, value in changes.items():
        options["--" + name.replace("_", "-")] = value
    return ["connect"] + [word for name, value in options.items() if value is not None for word in (name, value)]


BRIDGE = "obfs4 192.0.2.1:443 0123456789012345678901234567890123456789 cert=a iat-mode=0"
LYREBIRD = ["--pt-lyrebird", "/usr/bin/obfs4proxy"]

HOSTILE = {
    "no verb": [],
    "empty verb": [""],
    "unknown verb": ["restart"],
    "function as verb": ["die"],
    "verb with a path": ["../connect"],
    "verb with a line end": ["connect\n"],
    "option before the verb": ["--tor", TOR],
    "unknown option": words() + ["--verbose", "1"],
    "option of another verb": words() + ["--user", "alice"],
    "single dash": words() + ["-t", "x"],
    "option with a value in it": words() + ["--exit=de"],
    "option with blanks": words() + ["--tor --hash", "x"],
    "empty option": words() + ["", "x"],
    "missing value": words() + ["--exit"],
    "empty value": words(exit=""),
    "stray word": words() + ["more", "words"],
    "twice --tor": words() + ["--tor", TOR],
    "twice --strict": words() + ["--strict", "0"],
    "twice --lan": words() + ["--lan", "0"],
    "twice --hash": words() + ["--hash", HASH],
    "twice --exit": words(exit="de") + ["--exit", "us"],
    "no --tor": words(tor=None),
    "no --hash": words(hash=None),
    "no --strict": words(strict=None),
    "no --lan": words(lan=None),
    "twice --bundle": words(bundle="/a") + ["--bundle", "/b"],
    "relative bundle": words(bundle="home/alice/bundle.tar.gz"),
    "line end in bundle": words(bundle="/home/alice/b\n"),
    "relative tor": words(tor="usr/bin/tor"),
    "missing tor": words(tor="/nonexistent/tor"),
    "folder as tor": words(tor="/usr/bin"),
    "device as tor": words(tor="/dev/null"),
    "file that is no program": words(tor="/etc/passwd"),
    "line end in tor": words(tor="/usr/bin/tor\n"),
    "substitution in tor": words(tor="$(touch /run/pwned)"),
    "short hash": words(hash=HASH[:-1]),
    "long hash": words(hash=HASH + "0"),
    "hash in small letters": words(hash=HASH.lower()),
    "hash with another line": words(hash=HASH + "\nSocksPort 0.0.0.0:9050"),
    "plain password": words(hash="secret"),
    "strict 2": words(strict="2"),
    "separate yes": words(separate="yes"),
    "separate arithmetic": words(separate="a[$(touch /run/pwned)]"),
    "twice --separate": words(separate="0") + ["--separate", "0"],
    "strict yes": words(strict="yes"),
    "strict 01": words(strict="01"),
    "arithmetic in strict": words(strict="a[$(touch /run/pwned)]"),
    "arithmetic in lan": words(lan="OPT_LAN[$(touch /run/pwned)]"),
    "country of three letters": words(exit="deu"),
    "country in capitals": words(exit="DE"),
    "braces in the country": words(exit="d}"),
    "country of one letter": words(exit="d"),
    "digits as the country": words(exit="d1"),
    "lan 2": words(lan="2"),
    "country with a line end": words(exit="de\n"),
    "bridge with a host name": words(bridge="bridge.example:443"),
    "bridge without a port": words(bridge="192.0.2.1"),
    "bridge in two lines": words(bridge="192.0.2.1:443\nExitNodes {xx}"),
    "bridge with a carriage return": words(bridge="192.0.2.1:443\rExitNodes {xx}"),
    "bridge with a comment": words(bridge="192.0.2.1:443 a#b"),
    "bridge with a quote": words(bridge='192.0.2.1:443 "a'),
    "bridge with a continuation": words(bridge="192.0.2.1:443 a\\"),
    "bridge with a continuation in its middle": words(bridge="192.0.2.1:443 a\\b"),
    "bridge with a continuation before another": words(bridge="192.0.2.1:443 a\\") + ["--bridge", "192.0.2.2:443"],
    "bridge with a tab": words(bridge="192.0.2.1:443\ta"),
    "bridge with two blanks": words(bridge="192.0.2.1:443  a"),
    "bridge with DEL": words(bridge="192.0.2.1:443 a\x7f"),
    "bridge with a C1 control": words(bridge="192.0.2.1:443 a\u0085"),
    "bridge with a letter beyond ASCII": words(bridge="192.0.2.1:443 \u00e9"),
    "bridge with an escape sequence": words(bridge="192.0.2.1:443 \x1b[2J"),
    "overlong bridge": words(bridge="192.0.2.1:443 " + "a" * 4096),
    "too many bridges": words() + ["--bridge", "192.0.2.1:443"] * 101,
    "reserve in two lines": words(reserve="192.0.2.1:443\nExitNodes {xx}"),
    "reserve with a quote": words(reserve='192.0.2.1:443 "a'),
    "reserve with a comment": words(reserve="192.0.2.1:443 a#b"),
    "reserve with a continuation": words(reserve="192.0.2.1:443 a\\"),
    "reserve with a host name": words(reserve="bridge.example:443"),
    "reserve of an unsupported transport": words(reserve="conjure 192.0.2.1:443"),
    "reserve without its program": words(reserve=BRIDGE),
    "reserve with a program that is none": words(reserve=BRIDGE, pt_lyrebird="/nonexistent"),
    "too many in reserve": words(bridge="192.0.2.1:443") + ["--reserve", "192.0.2.1:443"] * 100,
    "transport in capitals": words(bridge="OBFS4 192.0.2.1:443"),
    "unsupported transport": words(bridge="conjure 192.0.2.1:443"),
    "obfs4 without lyrebird": words(bridge=BRIDGE),
    "snowflake without its client": words(bridge="snowflake 192.0.2.1:443") + LYREBIRD,
    "relative transport program": words(bridge=BRIDGE, pt_lyrebird="obfs4proxy"),
    "missing transport program": words(bridge=BRIDGE, pt_lyrebird="/nonexistent"),
    "transport program with a line end": words(bridge=BRIDGE, pt_lyrebird="/usr/bin/obfs4proxy\nx"),
    "disconnect with an option": ["disconnect", "--force"],
    "fix-dns with an option": ["fix-dns", "now"],
    "uninstall with an option": ["uninstall-privileged", "x"],
    "install without a user": ["install-privileged"],
    "install with a rule in the name": ["install-privileged", "--user", "alice ALL=(ALL) NOPASSWD: ALL"],
    "install with a line end": ["install-privileged", "--user", "alice\nALL"],
    "install for nobody known": ["install-privileged", "--user", "nobody-known"],
    "install for root": ["install-privileged", "--user", "root"],
    "install with a relative launcher": ["install-privileged", "--user", "alice", "--launch", "launch"],
    "replace without options": ["replace"],
    "replace with another line in the hash": ["replace", *words(hash=HASH + "\nSocksPort 0.0.0.0:9050")[1:]],
    "approve of nothing": ["approve", "--as", "tor", "--sha256", "0" * 64],
    "approve without a role": ["approve", "--program", TOR, "--sha256", "0" * 64],
    "approve for another role": ["approve", "--program", TOR, "--as", "../tor", "--sha256", "0" * 64],
    "approve without a digest": ["approve", "--program", TOR, "--as", "tor"],
    "approve with a path as digest": ["approve", "--program", TOR, "--as", "tor", "--sha256", "../../tor"],
    "approve with a digest in capitals": ["approve", "--program", TOR, "--as", "tor", "--sha256", "A" * 64],
    "approve of another content": ["approve", "--program", TOR, "--as", "tor", "--sha256", "0" * 64],
    "approve of a relative path": ["approve", "--program", "tor", "--as", "tor", "--sha256", "0" * 64],
    "approve of a folder": ["approve", "--program", "/usr/bin", "--as", "tor", "--sha256", "0" * 64],
    "options from an empty input": ["connect", "-"],
    "options from two places": [*words(), "-"],
    "launch as root": ["launch", "--uid", "0", "--app", "/usr/bin/true"],
    "launch as another user": ["launch", "--uid", "4242", "--app", "/usr/bin/true"],
    "launch without a user": ["launch", "--app", "/usr/bin/true"],
    "launch of nothing": ["launch", "--uid", "0"],
    "arithmetic in the user of launch": ["launch", "--uid", "a[$(touch /run/pwned)]", "--app", "/usr/bin/true"],
    "relative path of launch": ["launch", "--uid", "0", "--app", "true"],
    "line end in the path of launch": ["launch", "--uid", "0", "--app", "/usr/bin/true\n"],
}

# Tor's own check would refuse some of them as well, but later, so the test looks at the text of the refusal.
BAD_BRIDGE = "A bridge line is not valid."
SAYS = {
    **{
        name: BAD_BRIDGE
        for name in (
            "bridge with a host name",
            "bridge without a port",
            "bridge with a comment",
            "bridge with a quote",
            "bridge with a continuation",
            "bridge with a continuation in its middle",
            "bridge with a continuation before another",
            "bridge with two blanks",
            "reserve with a quote",
            "reserve with a comment",
            "reserve with a continuation",
            "reserve with a host name",
            "bridge with a letter beyond ASCII",
            "transport in capitals",
        )
    },
    **{
        name: "The exit country is not a two-letter code."
        for name in (
            "country of three letters",
            "country in capitals",
            "braces in the country",
            "country of one letter",
            "digits as the country",
        )
    },
    **{name: "The value of --strict must be 0 or 1." for name in ("strict 2", "strict yes", "strict 01", "arithmetic in strict")},
    "arithmetic in lan": "The value of --lan must be 0 or 1.",
    **{name: "The value of --separate must be 0 or 1." for name in ("separate yes", "separate arithmetic")},
    "lan 2": "The value of --lan must be 0 or 1.",
    **{
        name: "The hashed control password is not valid."
        for name in ("short hash", "long hash", "hash in small letters", "plain password")
    },
    **{
        name: "contains control characters."
        for name in (
            "line end in tor",
            "hash with another line",
            "country with a line end",
            "bridge in two lines",
            "reserve in two lines",
            "bridge with a carriage return",
            "bridge with a tab",
            "bridge with DEL",
            "bridge with a C1 control",
            "bridge with an escape sequence",
        )
    },
    "too many bridges": "More than 100 bridges were given.",
    "too many in reserve": "More than 100 bridges were given.",
    "reserve of an unsupported transport": "The conjure bridge type isn't supported yet.",
    "reserve without its program": "These bridges need lyrebird, which was not given.",
    "overlong bridge": "The value of --bridge is too long.",
    "unsupported transport": "The conjure bridge type isn't supported yet.",
}

UIDS = {
    "letters": {"SUDO_UID": "x"},
    "empty": {"PKEXEC_UID": ""},
    "negative": {"SUDO_UID": "-1"},
    "leading zero": {"SUDO_UID": "007"},
    "the id that means none": {"SUDO_UID": "4294967295"},
    "too long": {"PKEXEC_UID": "99999999999"},
    "arithmetic": {"SUDO_UID": "a[$(touch /run/pwned)]"},
    "two callers": {"SUDO_UID": "4242", "PKEXEC_UID": "0"},
    "a user that is not known": {"PKEXEC_UID": "54321"},
}


class Options(HelperTest):
    def setUp(self):
        self.before = self.machine.snapshot()

    def refused(self, arguments, says="", **options):
        done = self.machine.help(*arguments, check=False, **options)
        self.assertOneLine(done, says)
        self.assertEqual(self.machine.shell("ls /run/pwned 2>/dev/null || true"), "")
        return done

    def test_the_good_arguments_are_accepted(self):
        self.machine.help(*words(exit="de", bridge=BRIDGE), *LYREBIRD)
        self.assertNotEqual(self.machine.snapshot(), self.before)
        self.machine.help("disconnect")
        self.assertEqual(self.machine.snapshot(), self.before)

    def test_every_hostile_argument_is_refused(self):
        refused = 0
        for name, arguments in HOSTILE.items():
            with self.subTest(name):
                self.refused(arguments, SAYS.get(name, ""))
                refused += 1
        self.assertLessEqual(set(SAYS), set(HOSTILE))
        self.assertEqual(self.machine.snapshot(), self.before)
        print(f"{refused} of {len(HOSTILE)} hostile arguments refused with one line, nothing changed", flush=True)
        self.assertGreaterEqual(refused, 60)

    def test_every_odd_caller_is_refused(self):
        for name, variables in UIDS.items():
            with self.subTest(name):
                self.refused(words(), env={"PATH": "/usr/bin:/bin", **variables})
        self.assertEqual(self.machine.snapshot(), self.before)

    def test_a_caller_who_is_not_root_is_refused(self):
        done = self.machine.help(*words(), uid=namespace.USER_UID, check=False)
        self.assertOneLine(done, "must run as root")

    def test_nothing_from_the_environment_counts(self):
        self.machine.shell("mkdir -p /run/bin;" "printf '#!/bin/sh\ntouch /run/pwned\n' >/run/bin/nft; chmod +x /run/bin/nft")
        variables = {
            "PATH": "/run/bin:/usr/bin:/bin",
            "IFS": "/",
            "SHELLOPTS": "xtrace",
            "PS4": "$(touch /run/pwned)",
            "BASH_FUNC_exec%%": "() { touch /run/pwned; }",
            "BASH_FUNC_die%%": "() { touch /run/pwned; }",
            "BASH_FUNC_nft%%": "() { touch /run/pwned; }",
            "OPT_TOR": "/run/bin/nft",
            "PROMPTED": "1",
            "CDPATH": "/run",
            "OSTYPE": "darwin",
            "GCONV_PATH": "/run/bin",
            "LD_LIBRARY_PATH": "/run/bin",
            "TMPDIR": "/run/bin",
        }
        self.machine.run("/bin/bash", "-c", "nft", env=variables)  # a script without -p takes all of it
        self.machine.shell("rm /run/pwned")
        for start in ["/bin/bash"], []:
            self.machine.run(*start, self.machine.helper, *words(), env=variables)
            [pid] = self.machine.tor_pids()
            self.assertEqual(
                sorted(name.split("=")[0] for name in self.machine.shell(f"tr '\\0' '\\n' </proc/{pid}/environ").split()),
                ["HOME", "LC_ALL", "PATH", "PWD", "SHLVL"],
            )
            self.machine.help("disconnect")
        self.assertEqual(self.machine.shell("ls /run | grep pwned || true"), "")
        self.machine.shell("rm -r /run/bin")

    def test_bash_env_runs_nothing_of_ours(self):
        """Bash reads BASH_ENV once, before the helper begins. The helper's own shells must not read it again."""
        self.machine.shell("printf 'echo x >>/run/bash_env_runs\n' >/run/bash_env")
        self.machine.help(*words(), env={"PATH": "/usr/bin:/bin", "BASH_ENV": "/run/bash_env"})
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell("wc -l </run/bash_env_runs").strip(), "1")
        self.machine.shell("rm /run/bash_env /run/bash_env_runs")

    def test_closed_standard_streams(self):
        for stream in "0", "1", "2":
            self.machine.shell(f'exec {stream}>&-; exec /bin/bash "$@"', self.machine.helper, *words())
            self.machine.help("disconnect")

    def test_a_relative_path_of_the_helper(self):
        self.machine.shell(
            'cd "${1%/*}" && bash veldmark-helper.sh disconnect && bash -p veldmark-helper.sh disconnect '
            "&& ./veldmark-helper.sh disconnect",
            self.machine.helper,
        )


if __name__ == "__main__":
    namespace.main()
