"""The helper's connect and disconnect."""

from figures import Figures, Rounds, fixed_time, hashed_password, middle, spread

# One process of the host runs them all, so that no other process's start is measured.
SCRIPT = """
rounds=$1
shift
for round in $(seq "$rounds"); do
    for verb in connect disconnect; do
        start=${EPOCHREALTIME/./}
        if [ $verb = connect ]; then /bin/bash "$@" || exit 1; else /bin/bash "$1" disconnect || exit 1; fi
        echo "$verb $((${EPOCHREALTIME/./} - start))"
    done
done
"""


def run_in_lab(figures: Figures, rounds: Rounds, lab, product) -> None:
    arguments = ["connect", "--tor", "/usr/bin/tor", "--hash", hashed_password(lab), "--strict", "1", "--lan", "1"]
    output = lab.host.run(
        ["bash", "-c", SCRIPT, "bench", str(rounds.of(10)), product.helper, *arguments], check=True, timeout=120
    ).stdout
    times: dict[str, list[float]] = {"connect": [], "disconnect": []}
    for line in output.splitlines():
        verb, microseconds = line.split()
        times[verb].append(int(microseconds) / 1e6)
    fixed = fixed_time(rounds)
    figures.add("a fixed computation in Python", fixed, "ms")
    for verb, values in times.items():
        figures.add(f"helper {verb}, strict mode", middle(values), "s", spread(values))
        figures.add("  in fixed computations", middle(values) * 1000 / fixed, most=125)
