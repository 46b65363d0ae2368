"""The cost of separate applications."""

from figures import Figures, Rounds, middle, spread
from groups.identities_probe import measure


def run_in_lab(figures: Figures, rounds: Rounds, lab, product) -> None:
    pairs, (busy, idle) = measure(lab, product, rounds)
    more = [(one - other) * 1000 for one, other in pairs]
    figures.add("a connection to Tor's SOCKS port", middle([other * 1000 for _, other in pairs]), "ms")
    figures.add("… with 200 identities: more", middle(more), "ms", spread(more))
    figures.add("  share of the connection", middle([one / other - 1 for one, other in pairs]), "", most=1)
    figures.add("50 groups come and go each second: processor", busy * 100, "%", most=2)
    figures.add("… at rest", idle * 100, "%", most=0.1)
