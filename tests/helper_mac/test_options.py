"""Hostile or wrong arguments and environments of the Mac's helper: one sentence, and nothing changes."""

import importlib.util
import os
import re
import subprocess
import time

import mac
from mac import HASH, TOR, USER_UID, MacTest

# The same table as on Linux, since the patterns are shared. It is loaded by its path, since that file has this file's name.
_spec = importlib.util.spec_from_file_location("linux_options", os.path.join(mac.HERE, "..", "helper", "test_options.py"))
linux_options = importlib.util.module_from_spec(_spec)
_spec.loader.exec_module(linux_options)

LAUNCH = ["launch", "--uid", str(USER_UID), "--app", "/Applications/Some.app"]
MORE = {
    "launch for another user": ["launch", "--uid", "0", "--app", "/Applications/Some.app"],
    "launch of no application": ["launch", "--uid", str(USER_UID), "--app", "/usr/bin/true"],
    "launch of a relative path": ["launch", "--uid", str(USER_UID), "--app", "Some.app"],
    "launch with arithmetic": ["launch", "--uid", "a[$(touch /run/pwned)]", "--app", "/Applications/Some.app"],
    "launch without a session": LAUNCH,
}


class Options(MacTest):
    def test_every_hostile_argument_is_refused(self):
        for name, arguments in {**linux_options.HOSTILE, **MORE}.items():
            with self.subTest(name):
                self.assertOneLine(self.machine.help(*arguments, check=False), linux_options.SAYS.get(name, ""))
                self.assertFalse(os.path.exists(self.machine.root + "/run/pwned"))
        self.assertRestored()
        self.assertEqual(self.machine.calls("networksetup -set"), [])

    def test_odd_callers_are_refused(self):
        for name, variables in linux_options.UIDS.items():
            with self.subTest(name):
                self.assertOneLine(
                    self.machine.help(*linux_options.words(), env={"PATH": "/usr/bin:/bin", **variables}, check=False)
                )
        self.assertRestored()

    def test_a_caller_who_is_not_root_is_refused(self):
        self.assertOneLine(self.machine.help("disconnect", uid=USER_UID, check=False), "must run as root")

    def test_a_prompt_that_makes_only_the_effective_ids_roots(self):
        """The program's prompt gives bash no -p. A bash that gives root up changes nothing and says so; in one that keeps root the
        helper becomes root altogether, and without perl it still disconnects."""
        self.machine.write("/mac/calls", "")
        self.assertOneLine(self.machine.help_apart(*linux_options.words(), keeps=False), "must run as root")
        self.assertRestored()
        self.assertEqual(self.machine.calls("networksetup"), [])
        done = self.machine.help_apart(*linux_options.words(), keeps=True)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        self.assertIsNotNone(self.machine.tor())
        self.machine.shell("/mac/gnu/mv /usr/bin/perl /mac/perl.away")
        done = self.machine.help_apart("disconnect", keeps=True)
        self.machine.shell("/mac/gnu/mv /mac/perl.away /usr/bin/perl")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        self.assertRestored()

    def test_nothing_from_the_environment_counts(self):
        self.machine.shell(
            "mkdir -p /run/bin; for name in pfctl perl stat; do printf '#!/bin/sh\ntouch /run/pwned\n' >/run/bin/$name;"
            "chmod +x /run/bin/$name; done"
        )
        variables = {
            "PATH": "/run/bin:/usr/bin:/bin",
            "PERL5OPT": "-Mpwned",
            "PERL5LIB": "/run/bin",
            "BASH_FUNC_pfctl%%": "() { touch /run/pwned; }",
            "SYSTEM": "linux",
            "CALLER_UID": "0",
            "DYLD_INSERT_LIBRARIES": "/run/bin/x",
            "IFS": "/",
        }
        self.machine.help(*linux_options.words(), env=variables)
        self.assertFalse(os.path.exists(self.machine.root + "/run/pwned"))
        self.machine.help("disconnect", env=variables)
        self.assertRestored()

    def test_another_systems_helper_is_refused(self):
        self.machine.place(mac.namespace.helper_path("linux"), "/mac/linux-helper.sh")
        self.assertOneLine(self.machine.run("/bin/bash", "/mac/linux-helper.sh", "disconnect", check=False), "another system")

    def place_check(self):
        """The check for a real Mac, and a tor like Homebrew's: it belongs to the user, and nobody has approved it yet."""
        self.machine.place(os.path.join(mac.HERE, "real_mac.sh"), "/mac/real_mac.sh")
        self.machine.shell(
            "cp /usr/bin/tor /usr/local/bin/tor; chown alice:alice /usr/local/bin/tor; ln -sf /private/etc/hosts /etc/hosts;"
            "rm -rf /private/var/db/veldmark/programs"
        )

    def test_the_check_for_a_real_mac_passes_here(self):
        """All of its checks pass except its own looks at the network, which does not exist here, and what a pf would redirect."""
        self.place_check()
        done = self.machine.run("/bin/bash", "/mac/real_mac.sh", "--change-this-mac", self.machine.helper, check=False, timeout=300)
        run, table = done.stdout.split("---- the table, ")
        lines = [line for line in run.splitlines() if not line.startswith("... ")]
        failed = [line for line in lines if line.startswith("FAILED")]
        lookup = "FAILED  a lookup that is sent to this computer comes to Tor's port"
        self.assertEqual(
            failed,
            [
                "FAILED  the network is there",
                "FAILED  the user reaches the network",
                lookup,
                lookup,
                "FAILED  Tor's account gets past the kill switch",
                "FAILED  the group of applications without Tor gets past it",
                "FAILED  the network is there again",
            ],
            done.stdout + done.stderr,
        )
        self.assertGreater(len([line for line in lines if line.startswith("ok ")]), 20)
        self.assertGreater(len([line for line in lines if line.startswith("answer ")]), 12)
        self.assertEqual([line for line in lines if line.strip()], table.splitlines()[1 : len(lines)])
        self.assertEqual(done.returncode, 1)
        self.assertIn("ok      everything is as before the first question", lines)
        # What pfctl says besides its answer is left out, and the rest is not cut off.
        self.assertNotIn("ALTQ", table)
        answer = next(line for line in table.splitlines() if "networksetup's words" in line)
        self.assertIn("|Authenticated Proxy Enabled: 0|", answer)
        job = next(line for line in table.splitlines() if "a job of its own" in line)
        self.assertRegex(
            job, r"list of no job: status 113\|bootstrap: 1 times, statuses 0\|a process number: [2-9] times, statuses 1 [1 ]*0\|"
        )
        self.assertRegex(
            job, r'\t"PID" = \d+;\|.*\|bootout: status 36\|bootstrap right after it: \d+ times, statuses 5 [5 ]*37 5 0\|'
        )
        self.assertRegex(job, r"it is gone: \d+ times, statuses [1 ]*0\|$")
        rules = next(line for line in table.splitlines() if "rules for leases" in line)
        self.assertIn("to ff02::/16 port = dhcpv6-server", rules)
        calls = self.machine.calls("networksetup -setv6")
        self.assertEqual(calls, ["networksetup -setv6off Wi-Fi", "networksetup -setv6automatic Wi-Fi"])
        for question in "pf's tables", "the network is there":  # on the screen before its answer
            place = next(place for place, line in enumerate(run.splitlines()) if line == f"...     {question}")
            self.assertRegex(run.splitlines()[place + 1], rf"^(?:answer|FAILED)  {question}")
        self.machine.shell("rm /usr/local/bin/tor")

    def test_the_check_for_a_real_mac_finds_what_its_own_questions_change(self):
        """A networksetup that empties no host, and a device that pf leaves out, with which nothing connects."""
        self.place_check()
        self.machine.write(
            "/usr/local/bin/networksetup",
            "#!/bin/sh\n"
            '[ "$1" != -setsocksfirewallproxy ] || exec /usr/bin/networksetup "$1" "$2" left.example 1080 off\n'
            'exec /usr/bin/networksetup "$@"\n',
        )
        self.machine.change(pf_skip="utun0")
        self.machine.shell("chmod 755 /usr/local/bin/networksetup")
        done = self.machine.run("/bin/bash", "/mac/real_mac.sh", "--change-this-mac", self.machine.helper, check=False, timeout=300)
        self.machine.shell("rm /usr/local/bin/tor /usr/local/bin/networksetup")
        table = done.stdout.split("---- the table, ")[1].splitlines()
        for failed, said in {
            "the questions have changed nothing": "> Server: left.example",
            "everything is as before the first question": "> Server: left.example",
            "connect --strict 1": "ERROR: The firewall leaves out the network device utun0",
        }.items():
            with self.subTest(failed):
                self.assertIn(said, table[table.index(f"FAILED  {failed}") + 1], done.stdout + done.stderr)
        self.assertIn("ok      everything is as before", table)  # the sessions have put everything back

    def test_the_check_for_a_real_mac_asks_a_person(self):
        """With programs that stand in for a Mac's network tools, a redirection of lookups for pf's, and a person who presses Return
        and answers y."""
        self.place_check()
        for name, text in {
            "networkQuality": 'case "$*" in *-c*) echo slow; exit 3 ;; esac; exec sleep 1000',
            "nscurl": "exec sleep 2",
            "curl": 'echo "$(id -u) $(id -g)" >>/run/curl; ! pfctl -a veldmark -s rules | grep -q "block return out quick all" ||'
            ' [ "$(id -u) $(id -g)" != "0 0" -a "$(id -g)" != 20 ]',
            "osascript": 'printf "%s,%s\\r\\n%s\\r\\n" "$(id -u)" "$SUDO_UID" "$2"',
            "netstat": "echo 'en0 1500 <Link#4> 0:0:0:0:0:0 1 0 9 1 0 '$(date +%s)' 0'; echo 'lo0 16384 <Link#1> 1 0 9 1 0 7 0'",
        }.items():
            self.machine.write(f"/usr/local/bin/{name}", f"#!/bin/sh\n{text}\n")
            self.machine.shell(f"chmod 755 /usr/local/bin/{name}")
        words = ["--change-this-mac", self.machine.helper, "--person", "/Applications/Some.app"]
        self.machine.shell(
            "touch /run/curl; chmod 666 /run/curl; /mac/gnu/nft 'add table ip pf; add chain ip pf out { type nat hook output priority -100; };"
            " add rule ip pf out ip daddr 127.0.0.1 udp dport 53 redirect to :9053'"
        )
        env = {"PATH": os.environ["PATH"], "SUDO_UID": str(USER_UID)}
        done = self.machine.run("/bin/bash", "/mac/real_mac.sh", *words, stdin="\n" + "y\n" * 40, check=False, timeout=300, env=env)
        table = done.stdout.split("---- the table, ")[1].splitlines()
        prompt = next(line for line in table if "ids and domain under the prompt" in line)
        self.assertRegex(
            prompt, rf"-> status 0: (?:sudo: [^|]*\|)?{USER_UID},\|do shell script"
        )  # as the user, without sudo's words
        self.assertRegex(prompt, r" with administrator privileges without altering line endings\|$")
        self.assertRegex(
            next(line for line in table if "from before the rules" in line),
            r"-> status 0: [4-7] bytes left in 5 s before the connect\|[4-7] bytes left in 5 s\|networkQuality still runs\|nscurl still runs\|$",
        )
        for line in (line for line in table if line.startswith("answer  nscurl and networkQuality")):
            self.assertRegex(
                line,
                r"-> status 0: nothing of ours: [4-7] bytes left in 5 s\|"
                r"nscurl: status 0, [1-4] bytes left, \|networkQuality: status 3, [01] bytes left, slow \|$",
            )
        self.assertEqual(len([line for line in table if line.startswith("answer ") and line.endswith("-> y")]), 15, done.stdout)
        failed = [line for line in table if line.startswith("FAILED")]
        self.assertEqual(failed, ["FAILED  an application without Tor"], done.stdout + done.stderr)
        state = self.machine.state
        tor, bypass = state["record /Users/_veldmark UniqueID"], state["record /Groups/_veldmark_bypass PrimaryGroupID"]
        ids = self.machine.read("/run/curl").splitlines()
        group = state["record /Users/_veldmark PrimaryGroupID"]
        self.assertEqual(
            ids, ["0 0", f"{USER_UID} 20", f"{tor} {group}", f"{USER_UID} {bypass}", "0 0", f"{USER_UID} 20", "0 0", "0 0", "0 0"]
        )
        self.assertEqual(self.machine.run("pgrep", "-f", "sleep 1000", check=False).stdout, "")
        self.machine.shell(
            "/mac/gnu/nft delete table ip pf; rm /usr/local/bin/curl;"
            "rm /usr/local/bin/tor /usr/local/bin/networkQuality /usr/local/bin/nscurl /usr/local/bin/netstat /usr/local/bin/osascript"
        )
        self.assertRestored()

    def test_the_check_for_a_real_mac_puts_back_what_it_was_stopped_in(self):
        self.place_check()
        running = self.machine.start(
            "/bin/bash",
            "/mac/real_mac.sh",
            "--change-this-mac",
            self.machine.helper,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
        )
        for line in running.stdout:
            if line.startswith("ok      the service that traffic goes through is switched"):
                break
        self.machine.shell("kill $(pgrep -f '^/bin/bash /mac/real_mac.sh')")
        while not self.machine.calls("networksetup -setdnsservers Wi-Fi 192.0.2.53"):  # it is restoring now
            self.assertIsNone(running.poll())
            time.sleep(0.01)
        self.machine.shell("kill $(pgrep -f '^/bin/bash /mac/real_mac.sh')")
        rest = running.stdout.read()
        running.stdout.close()
        self.assertEqual(running.wait(), 130, rest)
        self.assertIn("---- the table, ", rest)
        self.assertFalse(os.path.exists(self.machine.root + "/usr/local/etc/tor/torrc-defaults"))
        self.machine.shell("rm /usr/local/bin/tor")
        self.assertRestored()

    def test_the_check_for_a_real_mac_puts_back_what_it_was_stopped_in_the_midst_of(self):
        """A program that has done its work holds the check until it has been told to stop."""
        as_before = None, "No\t\t0"
        for program, words, changed in (
            ("networksetup", "'-setsocksfirewallproxy '*", "service Automatic/Wi-Fi socksfirewall"),
            ("launchctl", "'bootstrap system '*/probe.plist", "job veldmark.probe"),
            ("networksetup", "'-setv6off '*", "service Automatic/Wi-Fi ipv6"),
        ):
            with self.subTest(words):
                self.place_check()
                self.machine.shell("rm -f /run/held /run/goes-on")
                self.machine.write(
                    f"/usr/local/bin/{program}",
                    f'#!/bin/sh\n/usr/bin/{program} "$@" || exit\n'
                    f'case "$*" in {words}) echo >/run/held; until [ -e /run/goes-on ]; do sleep 0.02; done ;; esac\n',
                )
                self.machine.shell(f"chmod 755 /usr/local/bin/{program}")
                check = ["/bin/bash", "/mac/real_mac.sh", "--change-this-mac", self.machine.helper]
                running = self.machine.start(*check, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
                while not os.path.exists(self.machine.root + "/run/held"):
                    self.assertIsNone(running.poll())
                    time.sleep(0.02)
                self.assertNotIn(self.machine.state.get(changed), as_before)
                self.machine.shell("kill $(pgrep -f '^/bin/bash /mac/real_mac.sh'); touch /run/goes-on")
                rest = running.communicate()[0]
                self.assertEqual(running.returncode, 130, rest)
                self.assertIn("ok      everything is as before the first question", rest)
                # The job ends in its own time.
                self.machine.shell("for n in {1..50}; do launchctl list veldmark.probe || break; sleep 0.1; done")
                self.machine.shell(
                    f"rm /usr/local/bin/tor /usr/local/bin/{program}; launchctl bootout system/veldmark.probe || true"
                )
                self.assertIn(self.machine.state.get(changed), as_before)
                self.assertEqual(self.machine.settings()[1], self.before[1])

    def test_stand_ins_refuse_what_a_macs_programs_refuse(self):
        self.machine.shell("cd /run && echo x >f && mkdir -p d")
        for good, wrong in {
            "chmod -- 0600 f": "chmod 0600 -- f",
            "cat -- f": "cat -A f",
            "chown -- 0:0 f": "chown --from=0 0:0 f",
            "cp -p f g": "cp --preserve f g",
            "date -u +%s": "date -d @0",
            "date +%s": "date +%N",
            "dirname -- /run/f": "dirname -z /run/f",
            "env -i PATH=/usr/bin cat f": "env -C / cat f",
            "grep -qxF -- x f": "grep -P x f",
            "head -c 1 -- f": "head -c -1 f",
            "head -n 1 f": "head f -n 1",
            "id -G -- alice": "id -z alice",
            "ln -sfn f l": "ln -sT f k",
            "mkdir -m 0755 -- e": "mkdir -Z e2",
            "mktemp -d /run/x.XXXXXX": "mktemp --suffix=.x",
            "readlink -f -- l": "readlink -e l",
            "rm -f -- g": "rm --one-file-system g",
            "rmdir -- e": "rmdir --ignore-fail-on-non-empty e",
            "sed -n p f": "sed -i s/x/y/ f",
            "shasum -a 256 f": "sha256sum f",
            "sleep 0.1": "sleep 1s",
            "sort -u f": "sort --parallel=1 f",
            "stat -f '%Lp %u %HT' -- /run/f": "stat -c %a /run/f",
            "tail -n 1 f": "tail --pid=1 f",
            "touch f": "touch --date=now f",
            "tr -d x <f": "tr -t x y <f",
            "wc -l f": "wc --bytes f",
            "xargs -n 1 echo <f": "xargs -d, echo <f",
        }.items():
            with self.subTest(good=good, wrong=wrong):
                self.machine.shell(f"cd /run && {good}")
                self.assertNotEqual(self.machine.run("/bin/bash", "-c", f"cd /run && {wrong}", check=False).returncode, 0)

    def test_the_helper_is_joined_with_a_macs_programs(self):
        for name in os.listdir(mac.namespace.PARTS):
            self.machine.place(os.path.join(mac.namespace.PARTS, name), f"/mac/parts/{name}")
        self.machine.shell("/mac/parts/join.sh darwin /mac/joined.sh")
        self.assertEqual(self.machine.read("/mac/joined.sh"), self.machine.read(self.machine.helper))
        self.assertTrue(os.access(self.machine.root + "/mac/joined.sh", os.X_OK))

    def test_every_program_of_the_helper_has_a_stand_in(self):
        """Else this system's own would answer. visudo and the shells are the same program on both."""
        text = open(mac.namespace.helper_path("darwin"), encoding="utf-8").read()
        functions = set(re.findall(r"^([\w-]+)\(\)", text, re.MULTILINE))
        builtins = set(subprocess.run(["bash", "-c", "compgen -bk"], capture_output=True, text=True, check=True).stdout.split())
        text = re.sub(r"<<END\n.*?\nEND\n", "\n", text, flags=re.DOTALL)  # the rules of the firewall and of sudo
        text = re.sub(r"='\n.*?'\n", "\n", text, flags=re.DOTALL)  # perl's
        text = re.sub(r"^ *[^#\n]*\) *;;$|(?:^|\s)#.*$|'[^']*'", "", text, flags=re.MULTILINE)
        begins = r"(?:^\s*|[;|&(!{]\s*|\$\(|\) |\b(?:then|do|else|if|elif|while|until|exec|asuser \S+|command -v|as_\w+ \S+|take_output [^|]*) )"
        found = set(re.findall(begins + r"([a-z][a-z0-9_.-]*)(?=[\s)]|$)", text, re.MULTILINE)) - functions - builtins
        programs = {name for name in found if any(os.access(f"{place}/{name}", os.X_OK) for place in ("/usr/bin", "/usr/sbin"))}
        self.assertGreater(len(programs & set(mac.BSD)), 15)
        self.assertEqual(programs - {"visudo", "bash", "sh"} - set(mac.BSD + mac.STAND_INS), set())

    def test_a_missing_program_is_named(self):
        self.machine.shell("mv /usr/bin/networksetup /mac/gnu/")
        try:
            self.assertOneLine(
                self.machine.help("connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0", check=False),
                "networksetup is missing",
            )
            self.assertEqual(self.machine.verdict("out"), "pass")
        finally:
            self.machine.shell("/mac/gnu/mv /mac/gnu/networksetup /usr/bin/")


if __name__ == "__main__":
    mac.main()
