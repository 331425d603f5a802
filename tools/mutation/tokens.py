"""Reads C++ text just far enough to change it safely: tokens, brackets, functions and statements."""

import re
from dataclasses import dataclass

_TOKEN = re.compile(
    r"""(?P<space>\s+)
      | (?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#(?:[^\n\\]|\\.|\\\n)*)
      | (?P<text>(?:u8|[uUL])?R"(?P<mark>[^\s()\\]*)\(.*?\)(?P=mark)"|(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*")
      | (?P<letter>(?:u8|[uUL])?'(?:[^'\\\n]|\\.)+')
      | (?P<number>(?:0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d+)?(?:[eE][+-]?\d+)?)[a-zA-Z]*)
      | (?P<name>[A-Za-z_]\w*)
      | (?P<sign>::|->|\+\+|--|<<=|>>=|<=>|<<|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|\.\.\.|.)""",
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)
_OPENING = {"(": ")", "[": "]", "{": "}"}


@dataclass(frozen=True)
class Token:
    """A piece of the text: what it is, how it is spelled, and its place in the text."""

    kind: str  # text, letter, number, name or sign
    spelling: str
    start: int
    end: int


class Source:
    """The tokens of one file. Comments, blanks and directives are left out: nothing in them is
    ever changed. Tokens are named by their indexes."""

    def __init__(self, text):
        self.text = text
        self.tokens = []
        at = 0
        while at < len(text):
            found = _TOKEN.match(text, at)
            kind = found.lastgroup if found.lastgroup != "mark" else "text"
            if kind not in ("space", "comment", "directive"):
                self.tokens.append(Token(kind, found.group(), at, found.end()))
            at = found.end()
        self.inside = []  # the bracket around each token, "" outside of all
        self.partner = self._match_brackets()

    def _match_brackets(self):
        partner, open_ones = {}, []
        for index, token in enumerate(self.tokens):
            self.inside.append(self.spelling(open_ones[-1]) if open_ones else "")
            if token.kind != "sign":
                continue
            if token.spelling in _OPENING:
                open_ones.append(index)
            elif token.spelling in _OPENING.values():
                start = open_ones.pop()
                partner[start], partner[index] = index, start
        return partner

    def spelling(self, index):
        """Of a token; "" beyond either end."""
        return self.tokens[index].spelling if 0 <= index < len(self.tokens) else ""

    def between(self, first, last):
        """The text from token `first` to token `last`, both included."""
        return self.text[self.tokens[first].start : self.tokens[last].end]

    def line(self, place):
        """The number of the line that holds a place of the text."""
        return self.text.count("\n", 0, place) + 1

    def spaced(self, index):
        """Stands a sign between blanks, as a binary operator does and a template's bracket not?"""
        token = self.tokens[index]
        return self.text[token.start - 1].isspace() and self.text[token.end].isspace()

    def end_of(self, index, signs):
        """The first token from `index` on that is one of `signs` and in no bracket opened since;
        also a bracket that closes what was open before. None at the end of the file."""
        while index < len(self.tokens):
            spelling = self.spelling(index)
            if spelling in signs or spelling in _OPENING.values():
                return index
            index = self.partner.get(index, index) + 1 if spelling in _OPENING else index + 1
        return None

    def statement_around(self, index):
        """The tokens from the last ";" or brace before `index` to the next one: enough to see what
        the expression is about."""
        first = last = index
        while first > 0 and self.spelling(first - 1) not in (";", "{", "}"):
            first -= 1
        while last + 1 < len(self.tokens) and self.spelling(last) not in (";", "{", "}"):
            last += 1
        return self.tokens[first : last + 1]
