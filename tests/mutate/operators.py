"""Small mistakes of the usual kinds: in the text of one source file, every place where one can be made.

mutants(path, text) yields a Mutant for each. Patterns find them line by line, without a compiler; run.py drops those that the
compiler or the shell refuses. Texts and comments are left alone.
"""

import re
from dataclasses import dataclass


@dataclass(frozen=True)
class Mutant:
    line: int  # from 1
    before: str  # the whole line, without its end
    after: str  # the replacement; None removes the line
    kind: str

    def apply(self, text: str) -> str:
        lines = text.split("\n")
        assert lines[self.line - 1] == self.before
        lines[self.line - 1 : self.line] = [] if self.after is None else [self.after]
        return "\n".join(lines)


TOKEN = re.compile(r"""R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|(?<![0-9A-Za-z])u?'(?:\\.|[^'\\\n])*'|//[^\n]*|/\*(?:.|\n)*?\*/""")


def masked(text: str) -> str:
    """The text with blanks in place of literals and comments; quotes stay, and every column keeps its number."""

    def blank(match):
        found = match.group()
        if found.startswith(("//", "/*")):
            return re.sub(r"[^\n]", " ", found)
        return found[0] + re.sub(r"[^\n]", " ", found[1:-1]) + found[-1]

    return TOKEN.sub(blank, text)


def closing(text: str, start: int) -> int:
    """The column of the bracket that closes the one at `start`; -1 when it is not in this line."""
    depth = 0
    for column in range(start, len(text)):
        depth += (text[column] in "([{") - (text[column] in ")]}")
        if depth == 0:
            return column
    return -1


def balanced(text: str) -> bool:
    return all(text.count(a) == text.count(b) for a, b in ("()", "[]", "{}"))


COMPARISONS = {
    "<": "<=",
    "<=": "<",
    ">": ">=",
    ">=": ">",
    "==": "!=",
    "!=": "==",
    "===": "!==",
    "!==": "===",
    "&&": "||",
    "||": "&&",
}
WORDS = {
    "true": "false",
    "false": "true",
    "min": "max",
    "max": "min",
    "startsWith": "endsWith",
    "endsWith": "startsWith",
    "any_of": "all_of",
    "all_of": "any_of",
    "ms": "s",
    "s": "ms",
}


def replaced(line: str, start: int, end: int, new: str) -> str:
    return line[:start] + new + line[end:]


def in_expressions(line: str, mask: str):
    """The mistakes for both C++ and QML: (kind, the line with the mistake)."""
    for match in re.finditer(r"(?<= )(<=|>=|===|!==|==|!=|&&|\|\||<|>)(?= )", mask):
        yield "operator", replaced(line, *match.span(), COMPARISONS[match.group()])
    for match in re.finditer(r"(?<=[( ])!(?=[\w(])", mask):
        yield "negation dropped", replaced(line, *match.span(), "")
    for match in re.finditer(r"\b(true|false|min|max|startsWith|endsWith|any_of|all_of)\b", mask):
        yield "opposite", replaced(line, *match.span(), WORDS[match.group()])
    for match in re.finditer(r" [+-] 1\b(?![.'\w])", mask):
        yield "off by one", replaced(line, *match.span(), "")
    for match in re.finditer(r"(?<![\w.#'])(\d+)(ms|s)?(?![\w.'])", mask):
        number, unit = match.groups()
        new = number + WORDS[unit] if unit else str(int(number) + 1)
        yield "unit" if unit else "off by one", replaced(line, *match.span(), new)
    for match in re.finditer(r"\bif \(", mask):
        start, end = match.end() - 1, closing(mask, match.end() - 1)
        if end > 0:
            start = mask.rfind("; ", start, end) + 1 or start
            condition = line[start + 1 : end].strip()
            yield "condition negated", replaced(line, start + 1, end, (" " if mask[start] == ";" else "") + f"!({condition})")


CALL = re.compile(r"(co_await |Q_EMIT )?[A-Za-z_*(][\w:.>()\[\]*-]*(\(.*\)| [+|-]?= .*| << .*|\+\+);$|\+\+[\w.>-]+;$|--[\w.>-]+;$")
LEAVE = re.compile(r"(return|co_return|break|continue)\b.*;$")
CONSTANT = re.compile(r"\b((?:[A-Z]\w*::)+)([a-zA-Z]\w*)\b(?![(:<{])")


def cpp_mutants(text: str):
    lines, masks = text.split("\n"), masked(text).split("\n")
    constants: dict[str, list[str]] = {}
    for prefix, name in CONSTANT.findall("\n".join(masks)):
        if prefix != "Qt::" and name not in constants.setdefault(prefix, []):
            constants[prefix].append(name)
    for index, (line, mask) in enumerate(zip(lines, masks)):
        statement = mask.strip()
        if not statement or statement.startswith(("#", "Q_ASSERT", "static_assert", "using ", "namespace ")):
            continue
        for kind, after in in_expressions(line, mask):
            yield Mutant(index + 1, line, after, kind)
        if not line.startswith(" "):
            continue
        for match in CONSTANT.finditer(mask):
            prefix, name = match.groups()
            names = constants.get(prefix, [])
            if len(names) > 1:
                other = names[(names.index(name) + 1) % len(names)]
                yield Mutant(index + 1, line, replaced(line, *match.span(2), other), "constant swapped")
        former = next((m.strip() for m in reversed(masks[:index]) if m.strip()), "")
        following = next((m for m in masks[index + 1 :] if m.strip()), "")
        # A line that is a whole statement. The last "return" of a function does not count: without it the function does not
        # compile.
        if re.search(r"([;{}):]|\belse)$", former) and balanced(mask):
            indent = line[: len(line) - len(line.lstrip())]
            if LEAVE.match(statement) and not following.startswith("}"):
                yield Mutant(index + 1, line, indent + "{}", "early return dropped")
            elif CALL.match(statement):
                yield Mutant(index + 1, line, indent + "{}", "statement dropped")


def qml_mutants(text: str):
    lines, masks = text.split("\n"), masked(text).split("\n")
    properties = list(dict.fromkeys(re.findall(r"\bmodel\.([a-z]\w*)\b(?!\()", "\n".join(masks))))
    for index, (line, mask) in enumerate(zip(lines, masks)):
        if re.match(r"\s*(import |id:|required property|pragma )", mask):
            continue
        for kind, after in in_expressions(line, mask):
            yield Mutant(index + 1, line, after, kind)
        for match in re.finditer(r"\bmodel\.([a-z]\w*)\b(?!\()", mask):
            if len(properties) > 1:
                other = properties[(properties.index(match.group(1)) + 1) % len(properties)]
                yield Mutant(index + 1, line, replaced(line, *match.span(1), other), "wrong property")
        if re.match(r"\s*on[A-Z]\w*: .+", mask) and balanced(mask):
            yield Mutant(index + 1, line, None, "handler dropped")
        elif re.match(r"\s+[\w.]+: .*[^?:|&{(,]$", mask) and balanced(mask):
            yield Mutant(index + 1, line, None, "binding dropped")
            match = re.match(r"(\s*(?:visible|enabled|checked|opened|active|running|busy): )(.+)$", line)
            if match:
                yield Mutant(index + 1, line, f"{match[1]}!({match[2]})", "binding negated")


SHELL_TESTS = {
    "==": "!=",
    "!=": "==",
    "-z": "-n",
    "-n": "-z",
    "-eq": "-ne",
    "-ne": "-eq",
    "-lt": "-le",
    "-le": "-lt",
    "-gt": "-ge",
    "-ge": "-gt",
    "<": "<=",
    "<=": "<",
    ">": ">=",
    ">=": ">",
    "=~": "==",
}
# A line that cannot be removed by itself, or has no effect of its own.
FRAME = re.compile(
    r"(if|then|elif|else|fi|for|while|until|do|done|case|esac|local|readonly|trap)\b|[{})(]|\S*\)( |$)|;;|[\w ]+\(\) \{"
)


def shell_mutants(text: str):
    ends = None  # the word that ends the present here-document
    former = ""
    for index, line in enumerate(text.split("\n")):
        statement = line.strip()

        def made(after, kind, line=line, index=index):
            return Mutant(index + 1, line, after, kind)

        if ends:
            if statement == ends:
                ends = None
            elif statement and balanced(statement):
                yield made(None, "line dropped")
                for match in re.finditer(r"(?<![\w.:$-])(\d+)(?![\w.:/])", line):
                    yield made(replaced(line, *match.span(), str(int(match[1]) + 1)), "number changed")
            continue
        code = re.sub(r"(^|\s)#.*", lambda found: " " * len(found.group()), line)
        # Sentences for the user are left alone, too.
        code = re.sub(r"'[^']*'|\"[A-Z][^\"]*\.\"", lambda found: "'" + " " * (len(found.group()) - 2) + "'", code)
        if not code.strip():
            continue
        for match in re.finditer(r" (\|\||&&) (?:return|die|exit|continue|break)\b[^;}]*", code):
            yield made(replaced(line, *match.span(), ""), f"'{match[1]} {match.group().split()[1]}' dropped")
        for match in re.finditer(r" (\|\||&&) ", code):
            yield made(replaced(line, *match.span(1), COMPARISONS[match[1]]), "operator")
        for match in re.finditer(r"(?<!! )\[\[ ", code):
            yield made(replaced(line, *match.span(), "! [[ "), "test negated")
        for match in re.finditer(r"(?<=[ (])! (?=\S)", code):
            yield made(replaced(line, *match.span(), ""), "negation dropped")
        for match in re.finditer(r"\b(el)?if (?!\[\[|! )", code):
            yield made(replaced(line, match.end(), match.end(), "! "), "test negated")
        for match in re.finditer(r"\[\[ [^]]*\]\]|\(\([^)]*\)\)", code):
            for inner in re.finditer(r"(?<= )(==|!=|=~|-[zn]|-eq|-ne|-l[te]|-g[te]|[<>]=?)(?= )", match.group()):
                start = match.start() + inner.start()
                yield made(replaced(line, start, start + len(inner[1]), SHELL_TESTS[inner[1]]), "test changed")
        bare = re.sub(r"\[ .*? \]\]?", lambda found: " " * len(found.group()), code)
        for match in re.finditer(r"(?<= )-(-[a-z][a-z-]+(=\S+)?|[A-Za-z]+)(?= |$)", bare):
            short = len(match[1]) > 1 and not match[1].startswith("-")
            yield made(replaced(line, *match.span(), match.group()[:-1] if short else ""), "option changed")
        for match in re.finditer(r"(return |exit )?(?<![\w.:$&>{/#-])(\d+)(?![\w.:>/-])", code):
            number = str(int(match[2]) + 1).zfill(len(match[2])) if not match[1] else "1" if match[2] == "0" else "0"
            yield made(replaced(line, *match.span(2), number), "number changed")
        whole = not re.search(r"(\\|\||&&|\{|\(|then|do)$", statement) and not re.search(r"(\\|\||&&)$", former)
        if line.startswith(" ") and whole and not FRAME.match(statement) and "<<" not in code:
            yield made(line[: len(line) - len(line.lstrip())] + ":", "line dropped")
        heredoc = re.search(r"<<-?['\"]?([A-Z]\w*)", code)
        ends, former = heredoc[1] if heredoc else None, statement


def mutants(path: str, text: str) -> list[Mutant]:
    made = {".cpp": cpp_mutants, ".qml": qml_mutants, ".sh": shell_mutants}[path[path.rindex(".") :]](text)
    found = {}
    for mutant in made:
        if mutant.after is None or mutant.after.strip() != mutant.before.strip():
            found.setdefault((mutant.line, mutant.after), mutant)
    return sorted(found.values(), key=lambda mutant: (mutant.line, mutant.kind, mutant.after or ""))
