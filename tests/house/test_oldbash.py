"""The helper's parts for a Mac use only features of its bash 3.2 and its BSD tools."""

import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(sys.argv.pop(1) if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parents[2])
PARTS = ROOT / "resources" / "helper"

# Features newer than bash 3.2, then options that only Linux's tools have.
NEWER = {
    "associative arrays": r"(declare|local|readonly|typeset) +-[a-z]*A",
    "declare -g and -n": r"(declare|local|readonly|typeset) +-[a-z]*[gn]",
    "mapfile": r"\b(mapfile|readarray)\b",
    "coproc": r"\bcoproc\b",
    "change of case": r"\$\{[A-Za-z_][A-Za-z_0-9]*(\[[^]]*\])?(\^|,)",
    "${x@Q}": r"\$\{[A-Za-z_][A-Za-z_0-9]*@",
    "&>> and |&": r"&>>|\|&",
    "a descriptor's number chosen by bash": r"\{[a-z_]+\}[<>]",
    "BASHPID, EPOCHSECONDS, SRANDOM": r"\b(BASHPID|EPOCHSECONDS|EPOCHREALTIME|SRANDOM)\b",
    "[[ -v": r"\[\[ +(! +)?-[vR] ",
    "negative places": r"\$\{[A-Za-z_]+(\[-[0-9]+\]|:[^}]*: *-[0-9])",
    "blanks and quotes in a pattern": r"=~ \S*\\[ \"';]",
    "wait -n": r"\bwait +-[np]",
    "fall through": r";;?&",
    "read with fractions, -N or -i": r"\bread\b[^;|&]*(-t *0?\.[0-9]|-[a-zA-Z]*[Ni]\b)",
    "printf of times": r"printf[^;]*%\(",
    "\\u in texts": r"\$'[^']*\\[uU]",
    "ranges with steps": r"\{[0-9]+\.\.[0-9]+\.\.",
    "stat -c": r"\bstat +-[a-zA-Z]*[cL]",
    "mv -T, cp -T, ln -T": r"\b(mv|cp|ln) +-[a-zA-Z]*T",
    "readlink -e or -m": r"\breadlink +-[em]",
    "programs of Linux": r"(?<![-\w/.])(flock|timeout|setpriv|unshare|setsid|getent|sha256sum|nft|mount(?= +-)|umount|pgrep|useradd|pidof)(?![-\w:=(])",
    "proc": r"/proc/",
    "long options of GNU": r"\b(rm|mkdir|chmod|chown|head|tail|sort|env) +--[a-z]",
}


def own_parts():
    """The parts that join.sh puts into the Mac's helper."""
    text = (PARTS / "join.sh").read_text(encoding="utf-8")
    own = re.search(r"darwin\)\s+own=\(([^)]*)\)", text).group(1).split()
    shared = re.search(r"for part in ([^\n]*); do", text).group(1).replace('"${own[@]}"', "").split()
    return ["core", *shared, *own]


def code(path):
    """The lines of a part without comments and sentences, each with its number."""
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if not line.lstrip().startswith("#"):
            yield number, re.sub(r'(die|say|UNDONE=|STAYS_CLOSED=)( *"[^"]*")', r"\1", re.sub(r" #.*", "", line))


class OldBash(unittest.TestCase):
    def test_the_patterns_find_what_they_look_for(self):
        for wrong in (
            "declare -A x",
            "local -n y=z",
            "mapfile -t a",
            "echo ${x,,}",
            "echo ${x^}",
            "a |& b",
            "exec {fd}>&-",
            "echo $BASHPID",
            "[[ -v x ]]",
            "read -r -t 0.1 x",
            "stat -c %u f",
            "mv -fT a b",
            "x=$(readlink -e f)",
            "flock -w 1 9",
            "cat /proc/self/stat",
            "${a[-1]}",
            "wait -n",
            r"[[ $x =~ a\ b ]]",
            r"[[ $x =~ \"a ]]",
        ):
            self.assertTrue(any(re.search(pattern, wrong) for pattern in NEWER.values()), wrong)

    def test_every_part_of_the_macs_helper(self):
        parts = own_parts()
        self.assertIn("darwin-session", parts)
        self.assertIn("files", parts)
        for part in parts:
            for number, line in code(PARTS / f"{part}.sh"):
                for name, pattern in NEWER.items():
                    self.assertNotRegex(line, pattern, f"{part}.sh:{number}: {name}")


if __name__ == "__main__":
    unittest.main()
