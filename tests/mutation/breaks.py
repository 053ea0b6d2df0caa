"""One-line breaks of C++ sources: what may be broken, and how.

A break is a small change that a test should notice: a comparison turned, a boundary moved, a sign, a constant, a
cast, a statement left out or two swapped. They are found in the text, which the project's one format makes regular:
operators of two operands have blanks around them, template arguments have none, and a statement of one line ends its
line. A break that does not compile counts for nothing.
"""

import dataclasses
import hashlib
import itertools
import pathlib
import re


@dataclasses.dataclass(frozen=True)
class Break:
    """A change of one line, or of two that follow each other."""

    file: str  # path within the project
    line: int  # counted from 1
    column: int  # counted from 0
    rule: str
    before: str  # text of the line or lines, without line ends
    after: str

    @property
    def room(self):
        """The folder of `src` that holds the file."""
        return pathlib.PurePath(self.file).parts[1]

    @property
    def identity(self):
        """What names the break as long as its line stays, wherever the line moves within its file; one line."""
        return "\t".join((self.file, self.rule, " ".join(self.before.split()), " ".join(self.after.split())))


TURNED = {" < ": " >= ", " <= ": " > ", " > ": " <= ", " >= ": " < ", " == ": " != ", " != ": " == "}
MOVED = {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > "}
SIGNS = {" + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " += ": " -= ", " -= ": " += ", "++": "--", "--": "++"}
LOGIC = {" && ": " || ", " || ": " && ", "true": "false", "false": "true", " | ": " & ", " & ": " | "}

WHOLE = re.compile(r"(?<![\w.'])(?:0x[0-9a-fA-F]+|\d+)(?![\w.'])")
FRACTION = re.compile(r"(?<![\w.'])\d+\.\d*(?:[eE][-+]?\d+)?(?!\w)")
NEGATION = re.compile(r"(?<=[(\s])!(?=[\w(])")
MINUS = re.compile(r"(?<=[(\s,])-(?=[\w(.])(?<!- -)")
CONDITION = re.compile(r"\b(?:if|while) \((?!constexpr)(.*)\)(?= \{$| [^()]*;$|$)")
CAST = re.compile(r"\b(?:static_cast|std::bit_cast)<[^<>]*(?:<[^<>]*>)?[^<>]*>(?=(\((?:[^()]|\((?:[^()]|\([^()]*\))*\))*\)))")
OPERATOR_BEFORE, OPERATOR_BEHIND = re.compile(r"(?:[-+*/%<>=!|&^]|\bauto \w+ =) $"), re.compile(r" [-+*/%<>=!|&^]")
SIZE = re.compile(r"\bstd::array<[^<>]*, $|\breserve\([^()]*$")
# A call, an assignment or a jump that stands by itself.
STATEMENT = re.compile(r"^\s+(?!return\b|using\b|else\b|case\b|default\b|delete\b|static_assert|friend\b|typedef\b"
                       r"|throw\b|goto\b|public|private|protected|[\w:<>,*& ]+ (?!=)\w+( =|\(|;|\{|\[))"
                       r"(?:\([^;]*\)|[\w*])[^;{}]*;$")
# What runs nowhere: checks of the compiler, functions without a body.
DECLARATION = re.compile(r"\bstatic_assert\b|\bvirtual\b|\boperator\b|= (?:0|default|delete);|\boverride;")
JUMP = re.compile(r"^\s+(?:if \(.*\) )?(break|continue|return);$")


def blank_out(text):
    """The text with comments, character and string literals and preprocessor lines as blanks, of the same length."""
    token = re.compile(r"//[^\n]*|/\*.*?\*/|R\"([^(\s]*)\(.*?\)\1\"|\"(?:\\.|[^\"\\\n])*\"|(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+'"
                       r"|^[ \t]*#(?:[^\n\\]|\\\n|\\.)*", re.DOTALL | re.MULTILINE)
    return token.sub(lambda found: re.sub(r"[^\n]", " ", found[0]), text)


def replaced(table):
    """A rule that puts one text in place of another."""
    pattern = re.compile("|".join(rf"\b{re.escape(key)}\b" if key.isalpha() else re.escape(key) for key in table))
    return lambda code: ((found.start(), found.end(), table[found[0]]) for found in pattern.finditer(code))


def boundaries(code):
    """Comparisons with their boundary moved, and whole numbers one off."""
    yield from replaced(MOVED)(code)
    for found in WHOLE.finditer(code):
        number = int(re.sub("^0(?=[0-9])", "0o", found[0]), 0)
        if not SIZE.search(code[:found.start()]):  # what has room for one more is as good
            yield found.start(), found.end(), str(number + 1)
        if number > 0:
            yield found.start(), found.end(), str(number - 1)


def signs(code):
    """Signs turned, operators of arithmetic taken for their opposite."""
    yield from replaced(SIGNS)(code)
    yield from ((found.start(), found.end(), "") for found in MINUS.finditer(code))


def constants(code):
    """Fractions changed."""
    for found in FRACTION.finditer(code):
        yield found.start(), found.end(), repr(float(found[0]) * 2 + 1)


def logic(code):
    """Truth turned: operators, literals, negations and whole conditions."""
    yield from replaced(LOGIC)(code)
    yield from ((found.start(), found.end(), "") for found in NEGATION.finditer(code))
    for found in CONDITION.finditer(code):
        declares = re.search(r"[^=!<>]=[^=]", found[1])
        if found[1].count("(") == found[1].count(")") and ";" not in found[1] and not declares:
            yield found.start(1), found.end(1), None  # stands for the negated text


def casts(code):
    """Casts dropped from operands; elsewhere the compiler makes the same conversion without them."""
    for found in CAST.finditer(code):
        before = re.sub(r"(?<![=!<>]) = $", "", code[:found.start()]) if " auto " not in code else code[:found.start()]
        if OPERATOR_BEFORE.search(before) or OPERATOR_BEHIND.match(code[found.end(1):]):
            yield found.start(), found.end(), ""


RULES = {
    "comparison turned": replaced(TURNED),
    "boundary moved": boundaries,
    "sign turned": signs,
    "constant changed": constants,
    "logic turned": logic,
    "cast dropped": casts,
}


def is_statement(code):
    """Whether a line is a whole statement that could be left out."""
    return bool(STATEMENT.match(code)) and code.count("(") == code.count(")") and not DECLARATION.search(code)


def breaks_of_line(file, number, line, code):
    """All breaks of a line, whose text without literals and comments is `code`."""
    for rule, changes in RULES.items():
        for start, end, text in changes(code):
            new = f"!({line[start:end]})" if text is None else text
            yield Break(file, number, start, rule, line, line[:start] + new + line[end:])
    indent = line[:len(line) - len(line.lstrip())]
    if found := JUMP.match(code):
        yield Break(file, number, found.start(1), "jump left out", line, line[:found.start(1)] + ";")
    elif is_statement(code):
        rule = "assignment left out" if "=" in code.split("(")[0] else "statement left out"
        yield Break(file, number, 0, rule, line, f"{indent};")


def names(code):
    """The names of a statement that are no names of functions; `this` stands for the object of a call without one."""
    found = {name[0] for name in re.finditer(r"(?<![\w:])(?!std\b)[A-Za-z_]\w*(?!\w|::|\()", code)}
    return found | {"this"} if re.match(r"\s*\w+\(", code) else found


def depend(first, second):
    """Whether the order of two statements can matter: of two assignments one must have what the other one changes."""
    if any("=" not in code.split("(")[0] for code in (first, second)):
        return bool(names(first) & names(second))
    targets = [re.match(r"\s*([^=]*?) [-+*/|&^%<>]*= ", code)[1] for code in (first, second)]
    return targets[0] in second or targets[1] in first


def swaps(file, lines, codes):
    """Statements of one line each that follow each other at one depth, swapped where their order can matter."""
    for number, (first, second) in enumerate(zip(codes, codes[1:]), 1):
        depth = [len(code) - len(code.lstrip()) for code in (first, second)]
        if depth[0] == depth[1] and first.strip() != second.strip() and is_statement(first) and is_statement(second):
            if not depend(first, second):
                continue
            if number > 1 and codes[number - 2].rstrip().endswith((")", "else")):
                continue  # the first belongs to a condition
            pair = lines[number - 1:number + 1]
            yield Break(file, number, 0, "order swapped", "\n".join(pair), "\n".join(reversed(pair)))


def breaks_of(file, text):
    """All breaks of a source."""
    lines, codes = text.split("\n"), blank_out(text).split("\n")
    for number, (line, code) in enumerate(zip(lines, codes), 1):
        if not DECLARATION.search(code):
            yield from breaks_of_line(file, number, line, code)
    yield from swaps(file, lines, codes)


def all_breaks(project):
    """The breaks of all sources of a checkout that this system builds, a list for each line that has any."""
    by_line = {}
    for path in sorted(pathlib.Path(project, "src").rglob("*")):
        if path.suffix in (".cpp", ".h", ".def") and "windows" not in path.parts:
            file = str(path.relative_to(project))
            for found in breaks_of(file, path.read_text(encoding="utf-8")):
                by_line.setdefault((file, found.line), []).append(found)
    return by_line


def sample(by_line, seed):
    """All breaks in an order of chance that depends on the seed: one of every line before the second of any.

    So the first N are a sample of N, in which a room has the weight of its lines. The order of two breaks does not change when
    other lines do."""
    def rank(*texts):
        return hashlib.sha256("\t".join((str(seed), *texts)).encode()).digest()

    lines = sorted(by_line.values(), key=lambda line: rank(line[0].file, line[0].before))
    queues = [sorted(line, key=lambda found: rank(found.identity)) for line in lines]
    for turn in itertools.zip_longest(*queues):
        yield from filter(None, turn)


def broken(text, change):
    """The source's text with a break."""
    lines = text.split("\n")
    count = change.before.count("\n") + 1
    first = change.line - 1
    if "\n".join(lines[first:first + count]) != change.before:
        raise ValueError(f"{change.file}:{change.line} has another text")
    return "\n".join(lines[:first] + change.after.split("\n") + lines[first + count:])
