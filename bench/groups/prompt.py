"""What terminal mode's hook adds to a shell's prompt."""

from figures import Figures, Rounds, fixed_time, middle, spread

PROMPTS = 1000
PLAIN_HOME = "/root/plain"
# An interactive shell reads this line by line, with a prompt and its hooks before each line. It prints its start and end, the
# number of prompts, and whether the hook exists.
PROMPT_SCRIPT = (
    '[ -z "${ZSH_VERSION:-}" ] || zmodload zsh/datetime\n'
    "count=0; start=$EPOCHREALTIME\n" + ":\n" * PROMPTS + "end=$EPOCHREALTIME; counted=$count\n"
    'type _veldmark_sync >/dev/null 2>&1 && hook=hook || hook=none\necho "=$start $end $counted $hook"\n'
)
PROMPT_FILES = {
    "bash": (".bashrc", "PROMPT_COMMAND='count=$((count + 1))'\n"),
    "zsh": (".zshrc", "precmd() { count=$((count + 1)) }\n"),
}


def time_prompts(lab, shell: str, home: str) -> float:
    """Milliseconds for one prompt of a shell with this home's start-up files."""
    words = {"bash": ["bash", "-i"], "zsh": ["zsh", "-d", "-i"]}[shell]
    output = lab.host.run(words, env={"HOME": home, "TERM": "dumb"}, input=PROMPT_SCRIPT, check=True).stdout
    (line,) = [line for line in output.splitlines() if line.startswith("=")]
    start, end, counted, hook = line[1:].split()
    if int(counted) < PROMPTS or hook != ("none" if home == PLAIN_HOME else "hook"):
        raise RuntimeError(f"{shell} showed {counted} prompts of {PROMPTS}, hook: {hook}")
    return (float(end) - float(start)) * 1000 / PROMPTS


def run_in_lab(figures: Figures, rounds: Rounds, lab, product) -> None:
    for name, text in PROMPT_FILES.values():
        for home in ("/root", PLAIN_HOME):
            lab.host.write(f"{home}/{name}", text)
    with product.session(connect=False) as session:
        session.wait_phase("disconnected")
        product.run_verb("set", "terminalMode", "true", check=True)
        for state in ("disconnected", "connected"):
            if state == "connected":
                product.run_verb("connect", check=True)
            for shell in PROMPT_FILES:
                with_hook, without = [], []
                for _ in range(rounds.of(8)):
                    without.append(time_prompts(lab, shell, PLAIN_HOME))
                    with_hook.append(time_prompts(lab, shell, "/root"))
                figures.add(f"{shell} prompt without the hook, {state}", middle(without), "ms", spread(without))
                figures.add(f"{shell} prompt with the hook, {state}", middle(with_hook), "ms", spread(with_hook))
                added, fixed = middle(with_hook) - middle(without), fixed_time(rounds)
                figures.add("  the hook adds", added, "ms")
                figures.add("  in fixed computations", added / fixed, "", f"of {fixed:.2f} ms", most=0.25)
        session.interrupt()
