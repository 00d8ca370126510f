"""The faults that can be made in a C++ source: one operator, constant, condition, return value or row at a time."""
import re
from dataclasses import dataclass

from tokens import closing, next_index, tokens_of

# Operators between two operands, and what each becomes.
SWAPPED = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==",
    "+": "-", "-": "+", "*": "/", "/": "*", "+=": "-=", "-=": "+=",
    "&&": "||", "||": "&&",
}
FORCED = {"if": ("true", "false"), "while": ("false",)}  # a loop without end would only be ended
NOTHING = {"", "{}", "false", "0", "0.0", "nullptr", "std::nullopt"}


@dataclass(frozen=True)
class Change:
    start: int
    end: int
    text: str

    def applied(self, source):
        return source[:self.start] + self.text + source[self.end:]


@dataclass(frozen=True)
class Fault:
    path: str
    line: int
    before: str
    after: str
    change: Change

    def __str__(self):
        return f"{self.path}:{self.line}\n    {self.before}\n    {self.after}"

    @property
    def key(self):
        """What a row of the list of equivalent faults begins with."""
        return self.path, self.before, self.after


def is_between_operands(source, token):
    """The formatter writes spaces around an operator with two operands, and around no other sign and no bracket of a
    template."""
    return source[token.start - 1].isspace() and source[token.end:token.end + 1].isspace()


def operators(source, tokens):
    for token in tokens:
        if token.text in SWAPPED and is_between_operands(source, token):
            yield Change(token.start, token.end, SWAPPED[token.text])
        elif token.text == "!":
            yield Change(token.start, token.end, "")


def constants(source, tokens):
    for token in tokens:
        if token.text in ("true", "false"):
            yield Change(token.start, token.end, "false" if token.text == "true" else "true")
        elif token.kind == "number":
            yield Change(token.start, token.end, f"({token.text} + 1)")
            if not re.fullmatch(r"[0.]+", token.text):
                yield Change(token.start, token.end, "0.0" if re.search(r"^0x.*p|^[\d']*\.|^\d+e", token.text) else "0")


def conditions(source, tokens):
    for index, token in enumerate(tokens):
        if token.text not in FORCED:
            continue
        opening = next_index(tokens, "(", index)
        inside = tokens[opening + 1:closing(tokens, opening)]
        ends = [position for position, each in enumerate(inside) if each.text == ";"]
        condition = inside[ends[-1] + 1:] if ends else inside
        declares = any(each.text == "=" for each in condition)
        if condition and not declares and [each.text for each in condition] != ["true"]:
            for value in FORCED[token.text]:
                yield Change(condition[0].start, condition[-1].end, value)


def returned_values(source, tokens):
    for index, token in enumerate(tokens):
        if token.text != "return":
            continue
        end, depth = index + 1, 0
        while depth > 0 or tokens[end].text != ";":
            depth += (tokens[end].text in "([{") - (tokens[end].text in ")]}")
            end += 1
        value = tokens[index + 1:end]
        if "".join(each.text for each in value) not in NOTHING:
            yield Change(value[0].start, value[-1].end, "{}")


def elements(tokens, opening):
    """The elements of the list in braces that opens at this index, each as its tokens."""
    found, depth = [[]], 0
    for token in tokens[opening + 1:closing(tokens, opening)]:
        depth += (token.text in "([{") - (token.text in ")]}")
        if depth == 0 and token.text == ",":
            found.append([])
        else:
            found[-1].append(token)
    return [each for each in found if each]


def are_rows(listed):
    """Rows are lists themselves, or all made by the same function."""
    if len(listed) < 2:
        return False
    starts = {each[0].text for each in listed}
    return starts == {"{"} or (len(starts) == 1 and all(len(each) > 1 and each[1].text in "(<{" for each in listed))


def exchanged(source, first, second):
    """The source from the first of two lists of tokens to the second, with each in the place of the other."""
    start, end, other, last = first[0].start, first[-1].end, second[0].start, second[-1].end
    if source[start:end] == source[other:last]:
        return None
    return Change(start, last, source[other:last] + source[end:other] + source[start:end])


def exchanged_rows(source, row, following):
    """The first cells that differ change places: in a table that is searched, the order of rows does not count."""
    if row[0].text != "{":
        return exchanged(source, row, following)
    changes = (exchanged(source, *cells) for cells in zip(elements(row, 0), elements(following, 0)))
    return next((change for change in changes if change), None)


def rows(source, tokens):
    for opening, token in enumerate(tokens):
        if token.text != "{":
            continue
        listed = elements(tokens, opening)
        if not are_rows(listed):
            continue
        for row, following in zip(listed, listed[1:]):
            yield Change(row[0].start, following[0].start, "")
            change = exchanged_rows(source, row, following)
            if change:
                yield change
        yield Change(listed[-2][-1].end, listed[-1][-1].end, "")


def lines_around(source, start, end):
    """The whole lines from start to end, as one."""
    first = source.rfind("\n", 0, start) + 1
    last = source.find("\n", end)
    return " ".join(source[first:last if last >= 0 else None].split())


def faults_of(path, source):
    tokens = tokens_of(source)
    for kind in (operators, constants, conditions, returned_values, rows):
        for change in kind(source, tokens):
            changed = change.applied(source)
            before = lines_around(source, change.start, change.end)
            after = lines_around(changed, change.start, change.start + len(change.text))
            yield Fault(path, source.count("\n", 0, change.start) + 1, before, after, change)
