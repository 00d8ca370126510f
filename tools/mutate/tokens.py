"""The tokens of a C++ source: words, numbers, texts and signs, each with its place. Comments and directives are left
out, and so is what only the compiler runs: assertions and checks of tables."""
import re
from dataclasses import dataclass

PATTERN = re.compile(r"""
    (?P<skipped> //[^\n]* | /\*.*?\*/ | ^[ \t]*\#(?:\\\n|[^\n])* | \s+)
  | (?P<text> \b(?:u8|[uUL])?R"(?P<mark>[^()\\\s]*)\(.*?\)(?P=mark)" | "(?:\\.|[^"\\])*" | '(?:\\.|[^'\\])*')
  | (?P<number> \.?\d(?:(?<=[eEpP])[-+]|'?[\w.])*)
  | (?P<word> [A-Za-z_]\w*)
  | (?P<sign> <=>|<<=|>>=|->\*|\.\.\.|<<|>>|<=|>=|==|!=|&&|\|\||\+\+|--|->|::|[-+*/%&|^]=|.)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)
CLOSING = {"(": ")", "[": "]", "{": "}"}


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int


def closing(tokens, opening):
    """The index of the bracket that closes the one at this index; the end where none does."""
    depth = 0
    for index in range(opening, len(tokens)):
        if tokens[index].text in CLOSING:
            depth += 1
        elif tokens[index].text in CLOSING.values():
            depth -= 1
            if depth == 0:
                return index
    return len(tokens)


def next_index(tokens, text, start):
    return next((index for index in range(start, len(tokens)) if tokens[index].text == text), len(tokens))


def after_check(tokens, index):
    """The index after an assertion or a check of a table that begins here; None where neither does. Only the compiler
    throws texts."""
    if tokens[index].text in ("static_assert", "assert"):
        return closing(tokens, index + 1) + 1
    if tokens[index].text == "if":
        body = closing(tokens, index + 1) + 1
        braces = int([token.text for token in tokens[body:body + 1]] == ["{"])
        thrown = tokens[body + braces:body + braces + 2]
        if len(thrown) == 2 and thrown[0].text == "throw" and thrown[1].kind == "text":
            return next_index(tokens, ";", body) + 1 + braces
    if [token.text for token in tokens[index:index + 2]] == ["consteval", "bool"]:
        return closing(tokens, next_index(tokens, "{", index)) + 1
    return None


def tokens_of(source):
    found = [Token(match.lastgroup, match[0], match.start(), match.end()) for match in PATTERN.finditer(source)
             if match.lastgroup != "skipped"]
    kept, index = [], 0
    while index < len(found):
        after = after_check(found, index)
        if after is None:
            kept.append(found[index])
        index = after or index + 1
    return kept
