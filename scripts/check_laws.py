#!/usr/bin/env python3
"""Holds the numbered laws of docs/*.md against the tests that hold them.

  scripts/check_laws.py [SOURCE_TREE]

A law stands in a page as `**A1.** text`, at the start of a paragraph or of a list item; a number is given once. A test
holds it as TEST(Suite, A1_Name), in tests/properties. Every law has a test and every numbered test a law.
"""

import glob
import os
import re
import sys

PAGES = "docs/*.md"
TESTS = "tests/properties/**/*.cpp"
LAW = re.compile(r"^(?:[-*] +)?\*\*([A-Z]+[0-9]+)\.\*\* +\S", re.MULTILINE)
TEST = re.compile(r"\bTEST(?:_F|_P)?\(\s*\w+\s*,\s*([A-Z]+[0-9]+)_\w+\s*\)")
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)


def numbers_in(tree, pattern, number, clean):
    """Each number that the files give, with the names of those files, one for each time."""
    found = {}
    for path in sorted(glob.glob(os.path.join(tree, pattern), recursive=True)):
        with open(path, encoding="utf-8") as file:
            for match in number.finditer(clean(file.read())):
                found.setdefault(match.group(1), []).append(os.path.relpath(path, tree))
    return found


def by_letter(number):
    letters = number.rstrip("0123456789")
    return letters, int(number[len(letters):])


def main(arguments):
    if len(arguments) > 1:
        sys.exit("usage: check_laws.py [SOURCE_TREE]")
    tree = arguments[0] if arguments else os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
    laws = numbers_in(tree, PAGES, LAW, lambda text: text)
    tests = numbers_in(tree, TESTS, TEST, lambda text: COMMENT.sub("", text))
    problems = ["%s is told more than once: %s" % (law, ", ".join(laws[law])) for law in laws if len(laws[law]) > 1]
    problems += ["%s (%s) has no test" % (law, laws[law][0]) for law in sorted(set(laws) - set(tests), key=by_letter)]
    problems += ["%s (%s) is a test of no law" % (law, tests[law][0])
                 for law in sorted(set(tests) - set(laws), key=by_letter)]
    if problems:
        sys.exit("laws and their tests:\n  %s" % "\n  ".join(problems))
    if not laws:
        sys.exit("no laws in " + PAGES)
    print("%d laws, all tested by number" % len(laws))


if __name__ == "__main__":
    main(sys.argv[1:])
