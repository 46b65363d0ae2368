"""The table of the leak matrix: the packets of each identity that reached the router, and the promises.

A cell has two counts: the packets of the control run, when nothing blocks them, and of the session. Promises: CLOSED, no packet;
OPEN, at least one (Tor's own account, or an application that is opened without Tor); ABSENT, this identity cannot send it at all.
"""

from dataclasses import dataclass

from leaks import probes
from veldlab import topology as at

IDENTITIES = ("nobody", "root", "Tor's account", "without Tor")
CLOSED, OPEN, ABSENT = "closed", "open", "absent"
SENTINEL = "203.0.113.90"  # sent as Tor's account; packets that were sent earlier arrive earlier

_TCP = {"tcp", "tcp-bound", "tcp-lan", "mapped", "fastopen", "userns-tcp"}
_KERNELS_OWN = {"igmp", "mld"}  # the kernel sends these, for no application
_HEADER = "scenario"


def promise(name: str, identity: int) -> str:
    """What a strict session promises for a kind of probe."""
    how = probes.PROBES[name][0]
    if name in probes.RAW and identity != 1:
        return ABSENT
    if identity == 3 and how not in _KERNELS_OWN:
        return OPEN
    if identity == 2 and how in _TCP:  # but not to private addresses; the neighbour's IPv6 address is a public one
        return CLOSED if how == "tcp-lan" and "IPv6" not in name else OPEN
    return CLOSED


def is_allowed(packet) -> bool:
    """The whole list of packets that the host may send in strict mode besides the allowed probes."""
    if packet.family == "arp":
        return True
    if packet.proto == "icmp6":  # neighbour discovery
        return packet.dst.startswith(("ff02::1:ff", "fe80::")) or packet.dst in ("ff02::2", at.ROUTER_LAN_ADDRESS6, at.LAN_ADDRESS6)
    if packet.proto == "tcp":
        return packet.dst in at.RELAY_ADDRESSES or packet.dst == SENTINEL
    return False


@dataclass
class Cell:
    promise: str
    control: int = 0
    session: int = 0

    @property
    def kept(self) -> bool:
        if self.promise == ABSENT:
            return self.control == 0 and self.session == 0
        return self.control > 0 and (self.session > 0) == (self.promise == OPEN)

    def __str__(self) -> str:
        if self.promise == ABSENT:
            return "-"
        mark = "" if self.kept else "  BROKEN"
        return f"{self.control} / {self.session}{' open' if self.promise == OPEN else ''}{mark}"


class Matrix:
    def __init__(self, identities=IDENTITIES):
        self.identities = identities
        self.rows: dict[str, list[Cell]] = {}
        self.strangers: dict[str, list] = {}  # packets of no identity that are not on the list

    def row(self, name: str, promises) -> list[Cell]:
        return self.rows.setdefault(name, [Cell(p) for p in promises])

    def add_kinds(self, counts: dict, phase: str) -> None:
        """`counts`: {(probe, identity): packets}; `phase`: control or session."""
        for name in probes.PROBES:
            cells = self.row(name, [promise(name, i) for i in range(len(IDENTITIES))])
            for identity, cell in enumerate(cells):
                setattr(cell, phase, counts.get((name, identity), 0))

    def broken(self, names) -> list[str]:
        return [
            f"{name}, {identity}: {cell}"
            for name, cells in self.rows.items()
            if name in names
            for identity, cell in zip(self.identities, cells)
            if not cell.kept
        ]

    def __str__(self) -> str:
        lines = [[_HEADER, *self.identities]] + [[name, *map(str, cells)] for name, cells in self.rows.items()]
        widths = [max(len(line[i]) for line in lines) for i in range(len(lines[0]))]
        return "\n".join("  ".join(text.ljust(width) for text, width in zip(line, widths)).rstrip() for line in lines)
