#!/usr/bin/env python3
"""Holds docs/function_index.md against the exported names, the headers and the tests.

  scripts/check_function_index.py [SOURCE_TREE]

Every exported function has a row in the table, every row is an exported function, its header names it, and the test
files of the row exist and use it. Constructors, destructor and assignment of a class share the row of the class's own
name.
"""

import os
import re
import sys

TABLE = "docs/function_index.md"
NAMES = "tests/exports/exported_names.txt"
NO_FUNCTIONS = ("typeinfo ", "vtable ", "std::")
ROW = re.compile(r"\| `([^`]+)` \| \[([^\]]+)\]\(\.\./([^)]+)\) \| (.+) \|$")
LINK = re.compile(r"\[([^\]]+)\]\(\.\./([^)]+)\)")


def row_of(exported):
    """The row that a demangled name belongs to: its scopes inside math and its name, without parameters."""
    name = re.sub(r"^math::", "", exported)
    name = re.match(r"(?:\w+::)*(?:operator[^\w( ]+|operator [\w:]+|~?\w+)", name).group()
    scopes, _, last = name.rpartition("::")
    of_class = last.startswith("~") or last == "operator=" or last == scopes.rpartition("::")[2]
    return scopes if of_class else name


def exported_rows(tree):
    with open(os.path.join(tree, NAMES), encoding="utf-8") as file:
        return {row_of(line.strip()) for line in file if line.strip() and not line.startswith(NO_FUNCTIONS)}


def table_rows(tree):
    """Function: its header, and its test files. Links are told by their names and their targets."""
    rows = {}
    problems = []
    with open(os.path.join(tree, TABLE), encoding="utf-8") as file:
        for line in file:
            if not line.startswith("| `"):
                continue
            match = ROW.match(line.rstrip())
            if not match:
                problems.append("not a row of the table: " + line.strip())
                continue
            function, header_name, header, tests = match.groups()
            links = [(header_name, header)] + LINK.findall(tests)
            if function in rows:
                problems.append(function + " is listed twice")
            if len(links) < 2:
                problems.append(function + " has no test")
            for text, target in links:
                if os.path.basename(target) != text:
                    problems.append("%s: the link %s leads to %s" % (function, text, target))
            rows[function] = [target for _, target in links]
    return rows, problems


def without_comments(text):
    return re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.DOTALL)


def declares(text, function):
    last = function.rpartition("::")[2]
    return re.search(r"(?<!\w)%s(?!\w)" % re.escape(last), text) is not None


def uses(text, function):
    """Whether code names a function, calls it if it is a member, or writes it between operands if it is an operator."""
    scope, _, last = function.rpartition("::")
    if re.fullmatch(r"operator\W+", last):
        symbol = re.escape(last[len("operator"):])
        used = r"!\w" if last == "operator!" else r"[\w)\]] %s [\w(!{]" % symbol
        return re.search(used + "|operator" + symbol, text) is not None
    member = scope and not last.startswith(("operator ", "CExtendParam"))
    before = r"(?:\.|->|::)" if member else r"(?<!\w)"
    return re.search(r"%s%s(?!\w)" % (before, re.escape(last.replace("operator ", ""))), text) is not None


def unheld(tree, function, paths):
    """What is wrong with the header, the first of the paths, and with the tests."""
    for path, holds, verb in zip(paths, [declares] + [uses] * len(paths), ["declared"] + ["used"] * len(paths)):
        full = os.path.join(tree, path)
        if not os.path.isfile(full):
            yield "%s: there is no %s" % (function, path)
            continue
        with open(full, encoding="utf-8") as file:
            if not holds(without_comments(file.read()), function):
                yield "%s is not %s in %s" % (function, verb, path)


def main(arguments):
    if len(arguments) > 1:
        sys.exit("usage: check_function_index.py [SOURCE_TREE]")
    tree = arguments[0] if arguments else os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
    exported = exported_rows(tree)
    rows, problems = table_rows(tree)
    problems += [name + " is exported and not listed" for name in sorted(exported - set(rows))]
    problems += [name + " is listed and not exported" for name in sorted(set(rows) - exported)]
    for function, paths in rows.items():
        problems += unheld(tree, function, paths)
    if problems:
        sys.exit("%s:\n  %s" % (TABLE, "\n  ".join(problems)))
    print("%s: %d functions, all listed and tested" % (TABLE, len(rows)))


if __name__ == "__main__":
    main(sys.argv[1:])
