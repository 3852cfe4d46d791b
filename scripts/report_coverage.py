#!/usr/bin/env python3
"""Prints the coverage that gcovr has measured and judges it. Called by scripts/coverage.sh.

Usage: scripts/report_coverage.py JSON PAGE

JSON is a report by `gcovr --json`. PAGE explains what is not reached, in entries that begin

    - `FILE`: `LINE OF CODE` (N branches)

with the line as it stands in the file, so that an entry outlives the moving of lines. An entry without branches speaks
of a line that is not reached at all. An entry that nothing corresponds to any more is an error too.
"""
import collections
import json
import pathlib
import re
import sys

LEAST_LINES = 100.0
LEAST_BRANCHES = 95.0

ENTRY = re.compile(r'^- `(?P<file>[^`]+)`: `(?P<code>.+)`(?: \((?P<branches>\d+) branch(?:es)?\))?', re.MULTILINE)


class Reached:
    """How many of a number of things are reached."""

    def __init__(self):
        self.count = 0
        self.of = 0

    def add(self, is_reached):
        self.of += 1
        self.count += bool(is_reached)

    def join(self, other):
        self.count += other.count
        self.of += other.of

    @property
    def percent(self):
        return 100.0 * self.count / self.of if self.of else 100.0

    def __str__(self):
        return f'{self.count:5} of {self.of:5} {self.percent:6.2f} %'


def read_explained(page):
    """The branches (0: the line itself) explained for each file and line of code."""
    explained = collections.Counter()
    for entry in ENTRY.finditer(page):
        explained[entry['file'], entry['code']] += int(entry['branches'] or 0)
    return explained


def main():
    report = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding='utf-8'))
    explained = read_explained(pathlib.Path(sys.argv[2]).read_text(encoding='utf-8'))
    all_lines, all_branches = Reached(), Reached()
    missed = collections.Counter()
    places = []

    print(f'{"file":40} {"lines":>23} {"branches":>23}')
    for source in sorted(report['files'], key=lambda source: source['file']):
        name = source['file']
        code = pathlib.Path(name).read_text(encoding='utf-8').splitlines()
        lines, branches = Reached(), Reached()
        for line in source['lines']:
            if line.get('gcovr/noncode') or line.get('gcovr/excluded'):
                continue
            text = code[line['line_number'] - 1].strip()
            lines.add(line['count'])
            if line['count'] == 0:
                missed[name, text] += 0
                places.append(f'{name}:{line["line_number"]}: line not reached: {text}')
            # Those by which an exception leaves a call are left out here. gcovr could do it by itself, but would take
            # them for others in a source file that never calls an inline function which another file does call.
            conditional = [branch for branch in line['branches'] if not branch['throw']]
            missing = [branch for branch in conditional if branch['count'] == 0]
            for branch in conditional:
                branches.add(branch['count'])
            if missing and line['count'] > 0:
                missed[name, text] += len(missing)
                places.append(f'{name}:{line["line_number"]}: {len(missing)} of {len(conditional)} branches not '
                              f'reached: {text}')
        print(f'{name:40} {lines} {branches}')
        all_lines.join(lines)
        all_branches.join(branches)
    print(f'{"src/ in all":40} {all_lines} {all_branches}')
    print(*places, sep='\n')

    failures = []
    if all_lines.percent < LEAST_LINES:
        failures.append(f'{all_lines.percent:.2f} % of the lines are reached, less than {LEAST_LINES:g} %')
    if all_branches.percent < LEAST_BRANCHES:
        failures.append(f'{all_branches.percent:.2f} % of the branches are reached, less than {LEAST_BRANCHES:g} %')
    for key in sorted(set(missed) | set(explained)):
        if key not in explained:
            failures.append(f'not reached and not explained: {key[0]}: {key[1]}')
        elif key not in missed:
            failures.append(f'explained, but reached: {key[0]}: {key[1]}')
        elif missed[key] != explained[key]:
            failures.append(f'{missed[key]} branches not reached, {explained[key]} explained: {key[0]}: {key[1]}')
    for failure in failures:
        print(f'{sys.argv[0]}: {failure}', file=sys.stderr)
    return 1 if failures else 0


if __name__ == '__main__':
    sys.exit(main())
