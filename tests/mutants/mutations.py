# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every small change of one line of C++ or QML that a test should detect."""

import re
from collections import defaultdict
from dataclasses import dataclass

LITERAL = (r'R"(?P<mark>\w*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"'
           # After a digit, an apostrophe groups digits.
           r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])*'")
COMMENT = r"//[^\n]*|/\*.*?\*/"
# Lines without an effect when the program runs.
SKIPPED_LINE = re.compile(
    r"\s*(#|import\b|pragma\b|using\b|namespace\b|friend\b|static_assert|assert\(|Q_PROPERTY|QML_)"
    r"|.*\) (const )?= (0|default|delete);$")

SWAPPED = {
    "===": "!==", "!==": "===", "==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">",
    "&&": "||", "||": "&&", "+": "-", "-": "+", "*": "/", "+=": "-=", "-=": "+=",
}
OPERATOR = re.compile(r"(?<= )(" + "|".join(sorted(map(re.escape, SWAPPED), key=len, reverse=True))
                      + r")(?=[ \n])")
NUMBER = re.compile(r"(?<![\w.'#])(0x[0-9A-F]+|[1-9][\d']*|0)(\.\d+)?"
                    r"(?=(ms|min|[smhuU]|UL)?(?![\w.']))")
TRUTH = re.compile(r"\b(true|false)\b")
CONDITION = re.compile(r"(?<=\bif \()(?![^\n]*(?: = |;))[^\n]+(?=\) \{\n)")
RETURNED = re.compile(r"(?<=\breturn )(?!\{\}|\*this|false|0|nullptr|std::nullopt)[^\n;]+(?=;\n)")
# A call, an assignment or a jump, on one line.
STATEMENT = re.compile(
    r"(Q_EMIT |delete |co_await )?[A-Za-z_*(]([\w:.*()\[\]]|->)*(<[\w:, ]+>)?"
    r"( [-+|&*/]?= |\(|\+\+|--).*;$|(break|continue|return);$")
# A property's value, unless it continues on the next line.
BINDING = re.compile(r"(?!id:)[\w.]+: .*[^,{(\[?:&|+]$")
CONTINUATION = re.compile(r"\s*([?:.+]|&&|\|\|)")


@dataclass(frozen=True)
class Mutant:
    file: str
    line: int  # the first is 1
    before: str
    after: str


def blanked(text):
    """The text without the contents of comments and literals; every line and
    column stays in its place."""
    return re.sub(f"{COMMENT}|{LITERAL}", lambda found: re.sub(r"[^\n]", " ", found[0]), text,
                  flags=re.DOTALL)


def is_balanced(code):
    return all(code.count(a) == code.count(b) for a, b in ("()", "{}", "[]"))


def numbers(found):
    whole, part = found[1], found[2]
    if part:
        return [f"{whole}{part[:-1]}{(int(part[-1]) + 1) % 10}"]
    value = int(whole.replace("'", ""), 0)
    form = "0x{:X}" if whole.startswith("0x") else "{}"
    return [form.format(other) for other in (value + 1, value - 1) if other >= 0]


def literal_changes(text):
    """One letter of each literal, in its middle."""
    for found in re.finditer(f"{COMMENT}|(?P<literal>{LITERAL})", text, re.DOTALL):
        if not found["literal"]:
            continue
        letters = [m.start() for m in re.finditer(r"(?<!\\)[A-Za-z0-9]", found[0][1:])]
        if letters:
            at = found.start() + 1 + letters[len(letters) // 2]
            yield at, at + 1, "y" if text[at] == "x" else "x"


def dropped_lines(code, is_qml):
    lines = code.split("\n")
    start, previous = 0, ";"
    for number, line in enumerate(lines):
        stripped = line.strip()
        if stripped and is_balanced(line):
            following = next((other for other in lines[number + 1:] if other.strip()), "")
            is_statement = previous.endswith((";", "{", "}", ":")) and STATEMENT.match(stripped)
            is_binding = (is_qml and BINDING.match(stripped)
                          and not CONTINUATION.match(following))
            if is_statement or is_binding:
                yield start + line.index(stripped), start + len(line), ""
        previous = stripped or previous
        start += len(line) + 1


def changes(text, is_qml):
    """(begin, end, replacement) for each."""
    code = blanked(text)
    yield from literal_changes(text)
    yield from dropped_lines(code, is_qml)
    for found in OPERATOR.finditer(code):
        # Texts can be joined, but not subtracted.
        if not (found[0] == "+" and '"' in text.split("\n")[code.count("\n", 0, found.start())]):
            yield found.start(), found.end(), SWAPPED[found[0]]
    for found in NUMBER.finditer(code):
        for number in numbers(found):
            yield found.start(), found.end(2) if found[2] else found.end(1), number
    for found in TRUTH.finditer(code):
        yield found.start(), found.end(), "false" if found[0] == "true" else "true"
    for found in CONDITION.finditer(code):
        yield found.start(), found.end(), f"!({text[found.start():found.end()]})"
    if not is_qml:
        for found in RETURNED.finditer(code):
            yield found.start(), found.end(), "{}"


def mutants_of(file, text):
    """All mutants of a file, by line."""
    lines = text.split("\n")
    found = defaultdict(list)
    for begin, end, replacement in changes(text, file.endswith(".qml")):
        line = text.count("\n", 0, begin)
        if SKIPPED_LINE.match(lines[line]):
            continue
        column = begin - (text.rfind("\n", 0, begin) + 1)
        after = lines[line][:column] + replacement + lines[line][column + end - begin:]
        found[line].append(Mutant(file, line + 1, lines[line], after.rstrip()))
    return found
