"""The small changes that a mutation run makes, each a way in which a program is often wrong."""

import hashlib
import re
from collections import Counter
from dataclasses import dataclass
from pathlib import PurePath

from tokens import Source

_COMPARISONS = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"}
_JOINS = {"&&": "||", "||": "&&"}
_SUMS = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "+=": "-=", "-=": "+="}
# What begins no statement that could be dropped, or is no statement at all.
_KEPT = set(
    "return if else for while do switch case default try catch using namespace struct class enum"
    " template typedef public private protected friend extern static constexpr const auto"
    " static_assert inline explicit virtual operator typename".split()
)
_DECLARATION = re.compile(
    r"[A-Za-z_][\w:]*(<[^;=]*>)?(::\w+)?(\s*[&*]+\s*(const\s)?|\s+)[A-Za-z_]\w*\s*([=({\[;,:]|$)"
)
_NOTHING = ("{}", "false", "true", '""', "nullptr", "std::nullopt", "0", "1")


@dataclass(frozen=True)
class Mutant:
    """One change: in `file` the text from `start` to `end` becomes `after`."""

    id: str
    file: str
    line: int
    operator: str
    start: int
    end: int
    before: str
    after: str

    def change(self):
        """The change in one line, for people."""
        before, after = (" ".join(text.split()) for text in (self.before, self.after))
        if len(before) > 70:
            before = before[:45] + " … " + before[-20:]
        if self.operator == "drop":
            return f"drop `{before}`"
        if len(after) > 80:
            after = after[:50] + " … " + after[-20:]
        return f"{self.operator}: `{before}` -> `{after}`"

    def apply(self, text):
        """The whole text of the file with the change made."""
        return text[: self.start] + self.after + text[self.end :]


class _Finder:
    def __init__(self, text):
        self.source = Source(text)
        self.found = []  # (operator, start, end, after)
        self.whole = set()  # places (start, end) of signs that turn a whole condition round

    def add(self, operator, first, last, after):
        tokens = self.source.tokens
        self.found.append((operator, tokens[first].start, tokens[last].end, after))

    def find(self):
        for index, token in enumerate(self.source.tokens):
            if token.kind == "number":
                self.number(index)
            elif token.kind == "text":
                self.constant_text(index)
            elif token.kind == "letter":
                self.add("constant", index, index, "'~'")
            elif token.kind == "name":
                self.word(index)
            elif token.kind == "sign":
                self.sign(index)
            self.statement(index)
        return [found for found in self.found if found[1:3] not in self.whole]

    # Constants

    def number(self, index):
        spelling = self.source.spelling(index)
        after = {"0": "1", "1": "0"}.get(spelling, f"({spelling} + 1)")
        self.add("constant", index, index, after)

    def constant_text(self, index):
        source = self.source
        if source.spelling(index - 1) == "extern":
            return
        spelling = source.spelling(index)
        self.add("constant", index, index, '"~"' if spelling == '""' else '""')
        neighbours = source.spelling(index + 1) == "," and source.tokens[index + 2].kind == "text"
        if neighbours and source.spelling(index - 1) in ("{", ",") and spelling != source.spelling(index + 2):
            self.add("swap", index, index + 2, f"{source.spelling(index + 2)}, {spelling}")

    # Words: conditions, loops, returns, truth values

    def word(self, index):
        source = self.source
        word = source.spelling(index)
        if word in ("true", "false"):
            self.add("constant", index, index, "false" if word == "true" else "true")
        elif word == "if" and source.spelling(index + 1) == "(":
            self.condition(index + 1)
        elif word == "while" and source.spelling(index + 1) == "(":
            self.add("never", index + 2, source.partner[index + 1] - 1, "false")
        elif word == "for" and source.spelling(index + 1) == "(":
            self.loop(index + 1)
        elif word == "return":
            self.returned(index)

    def condition(self, opening):
        """An `if` is made never and always true: what a negation would show, each half alone."""
        source = self.source
        first, last = opening + 1, source.partner[opening] - 1
        semicolon = source.end_of(first, ";")
        if semicolon < last:
            first = semicolon + 1
        text = source.between(first, last)
        if source.spelling(source.end_of(first, ("=",))) == "=":
            self.add("never", first, last, f"{text}; false")
            self.add("always", first, last, f"{text}; true")
        else:
            self.never_and_always(first, last)

    def never_and_always(self, first, last):
        """The condition stays in sight of the compiler: whatever it uses is still used."""
        text = self.source.between(first, last)
        self.add("never", first, last, f"({text}) && false")
        self.add("always", first, last, f"({text}) || true")
        self.leave_signs_out(first, last)

    def leave_signs_out(self, first, last):
        """Turned round by its only sign, a condition shows no more than when it is as a whole."""
        spellings = [self.source.spelling(index) for index in range(first, last + 1)]
        if any(spelling in _JOINS or spelling == "?" for spelling in spellings):
            return
        for index, spelling in enumerate(spellings, first):
            if spelling in ("==", "!=") or (spelling == "!" and index == first):
                token = self.source.tokens[index]
                self.whole.add((token.start, token.end))

    def loop(self, opening):
        source = self.source
        first = source.end_of(opening + 1, ";")
        if source.spelling(first) != ";":
            return
        last = source.end_of(first + 1, ";")
        if last > first + 1:
            self.add("never", first + 1, last - 1, "false")

    def returned(self, index):
        source = self.source
        end = source.end_of(index + 1, ";")
        if end == index + 1:
            return
        text = source.between(index + 1, end - 1)
        if text in _NOTHING or text.isdigit():
            return
        if self.returns_bool(index):
            self.never_and_always(index + 1, end - 1)
        elif end > index + 2 or source.tokens[index + 1].kind != "text":
            self.add("return nothing", index + 1, end - 1, "{}")

    def returns_bool(self, index):
        source = self.source
        depth = 0
        while index >= 0:
            if source.spelling(index) == "}":
                index = source.partner[index]
            elif source.spelling(index) == "{" and source.spelling(index - 1) in (")", "const"):
                closing = index - 1 if source.spelling(index - 1) == ")" else index - 2
                opening = source.partner.get(closing, 0)
                if source.spelling(opening - 1) == "]":
                    return False
                if source.spelling(opening - 1) not in ("if", "for", "while", "switch", "catch"):
                    name = opening - 1
                    while source.spelling(name - 1) == "::":
                        name -= 2
                    return source.spelling(name - 1) == "bool"
            index -= 1
        return False

    # Signs: comparisons, joins, sums, choices

    def sign(self, index):
        source = self.source
        sign = source.spelling(index)
        if sign == "!":
            self.add("negate", index, index, "")
        elif sign == "?":
            self.choice(index)
        elif not (0 < index < len(source.tokens) - 1) or not source.spaced(index):
            return
        elif sign in _COMPARISONS:
            self.add("compare", index, index, _COMPARISONS[sign])
        elif sign in _JOINS and source.spelling(index - 1) != "auto":
            self.add("join", index, index, _JOINS[sign])
        elif sign in _SUMS and not self.about_texts(index):
            self.add("sum", index, index, _SUMS[sign])

    def about_texts(self, index):
        """Texts are joined by "+" too, and by nothing else."""
        words = ("string", "Text", "Caption", "LoadText", "text")
        return self.source.spelling(index) in ("+", "+=") and any(
            token.kind == "text" or token.spelling in words
            for token in self.source.statement_around(index)
        )

    def choice(self, index):
        source = self.source
        first = index - 1
        while first >= 0:
            spelling = source.spelling(first)
            if spelling in (")", "]", "}"):
                first = source.partner[first]
            elif spelling in ("=", "+=", "return", "(", "[", "{", ",", ";", "?", ":", "<<"):
                break
            first -= 1
        text = source.between(first + 1, index - 1)
        self.leave_signs_out(first + 1, index - 1)
        self.add("negate", first + 1, index - 1, f"!({text})")

    # Statements

    def statement(self, index):
        """Drops an expression statement, and an early `return;`, `break;`, `continue;`, `throw`."""
        source = self.source
        before = source.spelling(index - 1)
        if source.inside[index] != "{":
            return
        if before not in (";", "{", "}", "else") and not self.behind_label(index):
            return
        end = source.end_of(index, ";")
        if end is None or source.spelling(end) != ";" or end == index:
            return
        text = source.between(index, end)
        word = source.spelling(index)
        if (word in _KEPT and text != "return;") or _DECLARATION.match(text):
            if word != "throw":
                return
        sole_of_handler = before == "{" and source.spelling(end + 1) == "}" and source.spelling(end + 2) == ";"
        if not sole_of_handler:  # to drop the handler shows the same
            self.add("drop", index, end, ";")

    def behind_label(self, index):
        """Stands the token behind `case …:` or `default:`?"""
        if self.source.spelling(index - 1) != ":":
            return False
        words = [token.spelling for token in self.source.statement_around(index - 1)]
        return words[0] in ("case", "default")


def mutants_of(file, text):
    """All changes to one file, in the order of their places. The name of a change stays the same
    while its line and the lines like it do, wherever they move to."""
    found = sorted(set(_Finder(text).find()), key=lambda change: (change[1], change[0], change[3]))
    source = Source(text)
    seen = Counter()
    mutants = []
    for operator, start, end, after in found:
        line_start = text.rfind("\n", 0, start) + 1
        line_end = text.find("\n", end)
        words = " ".join(text[line_start : line_end if line_end >= 0 else len(text)].split())
        key = f"{file}|{operator}|{words}|{text[start:end]}|{after}"
        seen[key] += 1
        digest = hashlib.sha1(f"{key}|{seen[key]}".encode()).hexdigest()[:8]
        mutants.append(
            Mutant(f"{PurePath(file).stem}-{digest}", file, source.line(start), operator, start, end,
                   text[start:end], after)
        )
    return mutants
