"""The torrc files of the private network, as pure text. Facts about tor 0.4.9; nothing here starts a process.

Every line that a client needs to take part is in `client_lines`, which the host gets as /etc/tor/torrc-defaults: tor
reads that file beneath any other configuration, so an unmodified program's tor becomes a client of this network.
"""

from veldlab import topology as at
from veldlab.topology import Node

GEOIP_FILE = "/etc/tor/veldlab-geoip"
BANDWIDTH_FILE = f"{at.TOR_FOLDER}/bandwidths"
NODE_GEOIP_FILE = f"{at.TOR_FOLDER}/geoip"
DNS_FILE = f"{at.TOR_FOLDER}/resolv.conf"


def geoip_text() -> str:
    """One line FIRST,LAST,CC per node, addresses as numbers, in ascending order."""
    nodes = sorted(at.NODES, key=lambda node: node.address_number)
    return "".join(f"{n.address_number},{n.address_number},{n.country.upper()}\n" for n in nodes)


def bandwidth_text(now: int, fingerprints: list[str]) -> str:
    """The measured bandwidths for the authorities, equal for all relays. Otherwise the first relay that carries traffic would get
    all of it."""
    return f"{now}\n" + "".join(f"node_id=${fingerprint} bw=1000\n" for fingerprint in fingerprints)


def authority_lines(identities: dict[str, tuple[str, str]]) -> list[str]:
    """`identities`: authority name to (v3 identity, relay fingerprint), both in hex."""
    return [
        f"DirAuthority {node.name} orport={at.OR_PORT} no-v2 v3ident={identities[node.name][0]} "
        f"{node.address}:{at.DIR_PORT} {identities[node.name][1]}"
        for node in at.AUTHORITIES
    ]


def _common_lines(identities: dict[str, tuple[str, str]]) -> list[str]:
    return [
        "TestingTorNetwork 1",
        "PathsNeededToBuildCircuits 0.67",
        "TestingDirAuthVoteExit " + ",".join(node.address for node in at.EXITS),
        "TestingDirAuthVoteHSDir *",
        "TestingDirAuthVoteGuard *",
        "V3AuthNIntervalsValid 2",
        *authority_lines(identities),
    ]


def client_lines(identities: dict[str, tuple[str, str]]) -> str:
    # Reading the system's 16 MB of IPv6 data, which do not contain the lab, would be most of tor's start.
    return "\n".join([*_common_lines(identities), f"GeoIPFile {GEOIP_FILE}", "GeoIPv6File /dev/null", ""])


def fingerprint_torrc(node: Node) -> str:
    """Enough for `tor --list-fingerprint` to make the node's keys."""
    return "\n".join(
        [f"DataDirectory {folder(node)}", f"ORPort {at.OR_PORT}", f"Nickname {node.name}", "DisableNetwork 1", "Log err stderr", ""]
    )


def folder(node: Node) -> str:
    return f"{at.TOR_FOLDER}/{node.name}"


def node_torrc(node: Node, identities: dict[str, tuple[str, str]], voting: bool = True) -> str:
    """With `voting` off an authority takes descriptors but does not vote within the next minutes."""
    home = folder(node)
    lines = [
        *_common_lines(identities),
        f"Nickname {node.name}",
        f"DataDirectory {home}",
        f"PidFile {home}/pid",
        f"Log notice file {home}/log",
        "GeoIPFile " + NODE_GEOIP_FILE,
        f"GeoIPv6File {at.TOR_FOLDER}/empty",
        "RunAsDaemon 1",
        "NumCPUs 1",
        "AvoidDiskWrites 1",
        # Each node compresses, in four formats, the difference from each kept consensus; there is a new consensus every twenty
        # seconds.
        "MaxConsensusAgeForDiffs 1 minutes",
        "SocksPort 0",
        f"Address {node.address}",
        f"OutboundBindAddress {node.address}",
        f"ORPort {node.address}:{at.OR_PORT} IPv4Only",
        f"ORPort [{node.address6}]:{at.OR_PORT} IPv6Only" if node.address6 else "AddressDisableIPv6 1",
        "AssumeReachable 1",
        "ContactInfo nobody@example.test",
    ]
    lines += {"authority": _authority, "exit": _exit, "middle": _middle, "bridge": _bridge}[node.role](node)
    if node.role == "authority":
        # The least that tor allows with the delays above, or the most.
        lines.append(f"TestingV3AuthInitialVotingInterval {5 if voting else 1800}")
    return "\n".join(lines) + "\n"


def _authority(node: Node) -> list[str]:
    return [
        "AuthoritativeDirectory 1",
        "V3AuthoritativeDirectory 1",
        "TestingV3AuthInitialVoteDelay 2",
        "TestingV3AuthInitialDistDelay 2",
        # tor's minimum is 10. Each consensus takes work in every node; a longer interval would slow a start whose first consensus
        # fails.
        "V3AuthVotingInterval 20",
        "V3AuthVoteDelay 2",
        "V3AuthDistDelay 2",
        "TestingMinExitFlagThreshold 0",
        f"V3BandwidthsFile {BANDWIDTH_FILE}",
        f"DirPort {node.address}:{at.DIR_PORT}",
        "ExitPolicy reject *:*",
    ]


def _exit(_: Node) -> list[str]:
    return [
        "ExitRelay 1",
        "ExitPolicy accept *:*",
        "ExitPolicyRejectPrivate 0",
        "ServerDNSDetectHijacking 0",
        "ServerDNSAllowBrokenConfig 1",
        "ServerDNSTestAddresses",
        f"ServerDNSResolvConfFile {DNS_FILE}",
    ]


def _middle(_: Node) -> list[str]:
    return ["ExitRelay 0", "ExitPolicy reject *:*"]


def _bridge(node: Node) -> list[str]:
    lines = ["BridgeRelay 1", "PublishServerDescriptor 0", "ExitRelay 0", "ExitPolicy reject *:*"]
    if node.transport == "obfs4":
        lines += [
            "ServerTransportPlugin obfs4 exec /usr/bin/obfs4proxy",
            f"ServerTransportListenAddr obfs4 [::]:{at.OBFS4_PORT}",  # both families; there is one line only
            "ExtORPort auto",
        ]
    return lines
