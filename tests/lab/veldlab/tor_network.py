"""The tor processes of the world: made, started, watched, stopped.

State is in files (keys, torrc, pid and log of each node in its folder), so a second process that found the lab in the registry can
control it like the one that started it.
"""

import os
import time
from datetime import datetime, timezone

from veldlab import node_keys, tor_config
from veldlab import topology as at
from veldlab.topology import Node

# Arguments: a folder, then names of nodes. Makes each one's keys and prints "NAME V3-IDENTITY FINGERPRINT" for the authorities.
_MAKE_KEYS = r"""
set -eu; cd "$1"; shift
make_keys() (
    cd "$1"; mkdir -m 700 keys
    openssl genrsa -traditional -out keys/link-2048-1 2048 2>/dev/null
    tor -f fingerprint.torrc --defaults-torrc ../empty --list-fingerprint --quiet > fingerprint.out &
    case $1 in auth*) ;; *) wait $!; exit ;; esac
    head -c 16 /dev/urandom | od -An -tx1 | tr -d ' \n' > passphrase; echo >> passphrase
    (cd keys; tor-gencert --create-identity-key -m 2 --passphrase-fd 3 3< ../passphrase > ../gencert.log 2>&1)
    rm passphrase
    wait $!
    echo "$1 $(sed -n 's/^fingerprint //p' keys/authority_certificate) $(sed 's/^[^ ]* //; s/ //g' fingerprint.out)"
)
pids=
for node; do make_keys "$node" & pids="$pids $!"; done
for pid in $pids; do wait "$pid"; done
"""

# Arguments: a folder, a library or nothing, then names of nodes. Each tor goes to the background once it has its keys and its ports.
# The library, KeptLinkKeys.cpp, gives tor the connection key that make_keys has made. It may be in a folder with blanks, where the
# dynamic loader would split its path.
_START = r"""
set -u; cd "$1"; library=$2; shift 2
[ -z "$library" ] || { ln -sf "$library" kept-link-keys.so; library=$PWD/kept-link-keys.so; }
for node; do
    LD_PRELOAD=$library VELDLAB_LINK_KEYS=$PWD/$node/keys tor -f "$node/torrc" --defaults-torrc empty --quiet </dev/null >"$node/start" 2>&1 &
    eval "pid_$node=$!"
done
failed=
for node; do eval "wait \$pid_$node" || failed="$failed $node"; done
[ -z "$failed" ] || { for node in $failed; do echo "$node:"; cat "$node/start"; tail -n 20 "$node/log"; done; exit 1; }
"""

# Argument: a pid file. Returns when that process is gone, and its children (transports), which end when it does.
_STOP = """
import glob, os, select, signal, sys
try:
    pid = int(open(sys.argv[1]).read())
    ended = [os.pidfd_open(pid)]
except (FileNotFoundError, ProcessLookupError):
    sys.exit(0)
for path in glob.glob("/proc/[0-9]*/stat"):
    try:
        if int(open(path).read().rpartition(")")[2].split()[1]) == pid:
            ended.append(os.pidfd_open(int(path.split("/")[2])))
    except (FileNotFoundError, ProcessLookupError):
        continue
signal.pidfd_send_signal(ended[0], signal.SIGKILL)
for fd in ended:
    if not select.select([fd], [], [], 20)[0]:
        sys.exit("it did not end")
os.unlink(sys.argv[1])
"""


class TorNetwork:
    """`space` is the lab's world. Methods raise CommandFailed when tor refuses, TimeoutError when it takes too long."""

    def __init__(self, space):
        self.space = space
        self.folder = space.path(at.TOR_FOLDER)

    @property
    def exits(self) -> dict[str, str]:
        """The country of each exit, in lower case, by its address."""
        return {node.address: node.country for node in at.EXITS}

    def make_keys(self) -> dict[str, tuple[str, str]]:
        """Gives each node its keys, an earlier lab's if there are any; returns {authority: (v3 identity, fingerprint)}."""
        (self.folder / "empty").touch()
        (self.folder / "geoip").write_text(tor_config.geoip_text())
        (self.folder / "resolv.conf").write_text(f"nameserver {at.DNS_ADDRESS}\n")
        for node in at.NODES:
            (self.folder / node.name).mkdir(mode=0o700)
        names = [node.name for node in at.NODES]
        lines = node_keys.take(names, self.folder) or self._make_new_keys(names)
        identities = {}
        for line in lines.splitlines():
            name, v3_identity, fingerprint = line.split()
            identities[name] = (v3_identity, fingerprint)
        return identities

    def _make_new_keys(self, names: list[str]) -> str:
        with node_keys.one_at_a_time():
            lines = node_keys.take(names, self.folder)  # another lab has just made them
            if lines is None:
                for node in at.NODES:
                    (self.folder / node.name / "fingerprint.torrc").write_text(tor_config.fingerprint_torrc(node))
                # The time for keys depends on chance, and other programs may use the processors as well.
                lines = self.space.run(["/bin/sh", "-c", _MAKE_KEYS, "sh", at.TOR_FOLDER, *names], check=True, timeout=180).stdout
                node_keys.keep(names, self.folder, lines)
        return lines

    def start_all(self, identities: dict[str, tuple[str, str]]) -> None:
        """Starts every node; `identities` as `make_keys` gives them.

        Authorities that vote before the relays have published agree on a network without relays, and vote again only
        20 s later. So they begin to vote when each of them knows every relay.
        """
        for node in at.NODES:
            torrc = tor_config.node_torrc(node, identities, voting=False)
            (self.folder / node.name / "torrc").write_text(torrc)
        self.start()
        self._wait(
            lambda: all(
                self._published(authority) >= {node.name for node in at.AUTHORITIES + at.EXITS + at.MIDDLES}
                for authority in at.AUTHORITIES
            ),
            60,
            "the relays have not published",
        )
        relays = [self._fingerprint(node) for node in at.AUTHORITIES + at.EXITS + at.MIDDLES]
        (self.folder / "bandwidths").write_text(tor_config.bandwidth_text(int(time.time()), relays))
        for node in at.AUTHORITIES:
            (self.folder / node.name / "torrc").write_text(tor_config.node_torrc(node, identities))
        pids = [(self.folder / node.name / "pid").read_text().strip() for node in at.AUTHORITIES]
        self.space.run(["kill", "-HUP", *pids], check=True)

    def _fingerprint(self, node: Node) -> str:
        return (self.folder / node.name / "fingerprint").read_text().split()[1]

    def _published(self, authority: Node) -> set[str]:
        """Names of the relays whose descriptors the authority holds."""
        try:
            text = (self.folder / authority.name / "cached-descriptors.new").read_text()
        except FileNotFoundError:
            return set()
        return {line.split()[1] for line in text.splitlines() if line.startswith("router ")}

    def start(self, *names: str) -> None:
        """Starts the named nodes, or all; returns when each has read its configuration and opened its ports."""
        wanted = [at.node_named(name).name for name in names] or [node.name for node in at.NODES]
        library = os.environ.get("VELDMARK_KEPT_LINK_KEYS", "")
        self.space.run(["/bin/sh", "-c", _START, "sh", at.TOR_FOLDER, library, *wanted], check=True)

    def stop(self, *names: str) -> None:
        """Kills the named nodes; returns when they are gone. A node that is stopped already is fine.

        It does not use SIGTERM: tor 0.4.9.11 sometimes prints "exiting cleanly" and then waits for its own threads for ever.
        """
        for node in map(at.node_named, names):
            self.space.run([at.PYTHON, "-I", "-S", "-c", _STOP, f"{tor_config.folder(node)}/pid"], check=True)

    def log(self, name: str) -> str:
        path = self.folder / at.node_named(name).name / "log"
        return path.read_text(errors="replace") if path.exists() else ""

    def wait_consensus(self, timeout: float = 60) -> None:
        """Returns when every authority holds a consensus that is valid now and lists every exit and middle as usable.

        The nodes must all be running.
        """
        wanted = {node.name for node in at.EXITS + at.MIDDLES}
        self._wait(
            lambda: all(wanted <= self._usable(self._consensus(node)) for node in at.AUTHORITIES), timeout, "no usable consensus"
        )

    def wait_bridges(self, timeout: float = 60) -> None:
        """Returns when the bridges listen and hold a consensus, so that a client can get everything through them."""
        self._wait(
            lambda: all(self._usable(self._consensus(node)) and self._has_transport(node) for node in at.BRIDGES),
            timeout,
            "the bridges have no consensus",
        )

    def _has_transport(self, node: Node) -> bool:
        """Whether the node's transport, if it has one, has listened since tor's last start."""
        latest = self.log(node.name).rpartition("opening new log file")[2]
        return not node.transport or f"Registered server transport '{node.transport}'" in latest

    def bridge_line(self, transport: str = "obfs4", ipv6: bool = False) -> str:
        """The bridge line that a user would enter, without "Bridge": "obfs4", or "" for the plain bridge."""
        node = next(n for n in at.BRIDGES if n.transport == transport)
        fingerprint = self._fingerprint(node)
        address = f"[{node.address6}]" if ipv6 else node.address
        if not transport:
            return f"{address}:{at.OR_PORT} {fingerprint}"
        text = (self.folder / node.name / "pt_state/obfs4_bridgeline.txt").read_text()
        arguments = text[text.index("cert=") :].splitlines()[0]
        return f"obfs4 {address}:{at.OBFS4_PORT} {fingerprint} {arguments}"

    def _consensus(self, node: Node) -> str:
        try:
            return (self.folder / node.name / "cached-microdesc-consensus").read_text()
        except FileNotFoundError:
            return ""

    @staticmethod
    def _usable(consensus: str) -> set[str]:
        """Names of the nodes that a client would use; none when the consensus is not valid now."""
        names, current = set(), ""
        now = datetime.now(timezone.utc).replace(tzinfo=None)
        for line in consensus.splitlines():
            if line.startswith("valid-until ") and datetime.fromisoformat(line[12:]) < now:
                return set()
            if line.startswith("r "):
                current = line.split()[1]
            elif line.startswith("s "):
                flags = line.split()[1:]
                role_flag = "Exit" if current.startswith("exit") else "Guard"
                if {"Running", "Valid", role_flag} <= set(flags):
                    names.add(current)
        return names

    def _wait(self, condition, timeout: float, failure: str) -> None:
        deadline = time.monotonic() + timeout
        while not condition():
            if time.monotonic() > deadline:
                logs = "\n".join(f"{n.name}: {self.log(n.name)[-400:]}" for n in at.NODES)
                raise TimeoutError(f"{failure} after {timeout:.0f} s\n{logs}")
            time.sleep(0.05)
