#!/usr/bin/env python3
"""Whether the tests notice small wrong changes: makes one at a time in a clone of the last commit, builds, and looks for
a test that fails.

Usage: scripts/mutate.py [--files GLOB...] [--count N] [--seed S] [--jobs N] [--list]

Every place of the code (comments, texts and preprocessor lines left out) where one of the rules below fits is a
candidate; N of them (150), drawn with the seed, are tried. The test programs run in turn, that of the changed folder
first, until one fails; one that takes ten times as long as it should has noticed too. What none of them notices is
built as a Release and its instructions are counted (see check_instructions.sh): there are changes that alter no answer and
make it slow. What remains is printed as SURVIVED. docs/coverage.md explains the survivors of the last run.

Needs what scripts/test.sh and scripts/check_instructions.sh install.
"""
import argparse
import contextlib
import dataclasses
import os
import pathlib
import random
import re
import signal
import subprocess
import sys
import tempfile
import time

RULES = [(re.compile(pattern), replacement) for pattern, replacement in [
    (r'(?<![<>=!\-+*/&|])<(?![<=>a-zA-Z_:])', '<='),
    (r'(?<![<>=!\-])>(?![>=])(?=\s)', '>='),
    (r'<=', '<'),
    (r'(?<!-)>=', '>'),
    (r'==', '!='),
    (r'!=', '=='),
    (r'&&', '||'),
    (r'(?<=\s)\|\|(?=\s)', '&&'),
    (r'(?<=[\w)\]] )\+(?= [\w(\-])', '-'),
    (r'(?<=[\w)\]] )-(?= [\w(])', '+'),
    (r'(?<=[\w)\]] )\*(?= [\w(\-])', '/'),
    (r'(?<=[\w)\]] )/(?= [\w(\-])', '*'),
    (r'\+=', '-='),
    (r'-=', '+='),
    (r'\btrue\b', 'false'),
    (r'\bfalse\b', 'true'),
    (r'\b0\.5\b', '0.25'),
    (r'\b1\.0\b', '2.0'),
    (r'\b2\.0\b', '3.0'),
    (r'\breturn -1\b', 'return 0'),
    (r'\breturn 0\b', 'return 1'),
    (r'\breturn 1\b', 'return 2'),
    (r'\breturn 2\b', 'return 1'),
    (r'\bstd::min\b', 'std::max'),
    (r'\bstd::max\b', 'std::min'),
    (r'\bsin\(', 'cos('),
    (r'\bcos\(', 'sin('),
    (r'\.first\b', '.second'),
    (r'\.second\b', '.first'),
    (r'\.x\b', '.y'),
    (r'\.y\b', '.x'),
]]
CONDITION = re.compile(r'\bif \((?!constexpr)')
NO_CODE = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])\'|^[ \t]*#[^\n]*'
                     r'|\btemplate\s*<[^;{]*?>|\bstatic_assert\b[^;]*;', re.DOTALL | re.MULTILINE)

# The programs that run for a change in a folder, the likeliest to notice first.
PROGRAMS = {
    'primitives': ['primitives', 'polyline', 'properties', 'intersect', 'position', 'allocation'],
    'intersect': ['intersect', 'properties', 'allocation', 'primitives'],
    'polyline': ['polyline', 'properties', 'allocation'],
    'position': ['position', 'properties', 'allocation'],
}
BUILD_LIMIT = 900


@dataclasses.dataclass(frozen=True)
class Mutant:
    """A change of one place in a file."""
    file: pathlib.Path
    begin: int
    end: int
    replacement: str

    def describe(self, text):
        line = text.count('\n', 0, self.begin)
        return (f'{self.file}:{line + 1}: {text[self.begin:self.end]!r} -> {self.replacement!r}'
                f'   | {text.splitlines()[line].strip()}')


def closing_parenthesis(text, begin):
    """Where the parenthesis closes that was opened just before `begin`."""
    depth = 1
    for place in range(begin, len(text)):
        depth += {'(': 1, ')': -1}.get(text[place], 0)
        if depth == 0:
            return place
    raise ValueError('an if without an end')


def candidates(file):
    text = file.read_text(encoding='utf-8')
    is_code = bytearray(b'\1' * len(text))
    for match in NO_CODE.finditer(text):
        is_code[match.start():match.end()] = bytes(match.end() - match.start())

    for pattern, replacement in RULES:
        for match in pattern.finditer(text):
            if all(is_code[match.start():match.end()]):
                yield Mutant(file, match.start(), match.end(), replacement)
    for match in CONDITION.finditer(text):
        end = closing_parenthesis(text, match.end())
        condition = text[match.end():end]
        if all(is_code[match.start():match.end()]) and ';' not in condition:
            yield Mutant(file, match.start(), end + 1, f'if (!({condition}))')


def run(command, limit, **options):
    """Whether a command succeeds within a time."""
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
                          **options) as process:
        try:
            return process.wait(timeout=limit) == 0
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            return False


class Workshop:
    """A clone of the last commit with its builds."""

    def __init__(self, directory, jobs):
        self.tree = pathlib.Path(directory) / 'tree'
        self.build = pathlib.Path(directory) / 'build'
        self.jobs = str(jobs)
        self.limits = {}
        subprocess.check_call(['git', '-c', 'advice.detachedHead=false', 'clone', '--quiet', '.', self.tree])

    def prepare(self):
        """Builds everything unchanged; every test has to pass."""
        launcher = ['-DCMAKE_CXX_COMPILER_LAUNCHER=ccache'] if run(['ccache', '--version'], 10) else []
        configured = run(['cmake', '-S', self.tree, '-B', self.build, '-G', 'Ninja', '-DCMAKE_BUILD_TYPE=Debug',
                          '-DCMAKE_CXX_FLAGS=-O1 -g0', '-DCMAKE_LINK_DEPENDS_NO_SHARED=ON',
                          '-DQORMATH_BUILD_EXAMPLES=OFF', *launcher], BUILD_LIMIT)
        if not configured or not self.builds():
            sys.exit('the unchanged tree does not build')
        for program in [*PROGRAMS['primitives'], 'hashes']:
            begin = time.monotonic()
            if not run(self.command(program), BUILD_LIMIT):
                sys.exit(f'the unchanged tree does not pass {program}')
            self.limits[program] = 10 + 10 * (time.monotonic() - begin)
        if not self.needs_no_more_instructions():
            sys.exit('the unchanged tree needs more instructions than it should')

    def builds(self):
        programs = [f'qormath_tests_{name}' for name in PROGRAMS['primitives']]
        return run(['cmake', '--build', self.build, '--parallel', self.jobs, '--target', 'QorMath', *programs,
                    'qormath_result_hashes'], BUILD_LIMIT)

    def command(self, program):
        if program == 'hashes':
            return [self.build / 'tests/hashes/qormath_result_hashes', '--check',
                    self.tree / 'tests/hashes/kept_hashes.txt']
        return [next(self.build.glob(f'tests/**/qormath_tests_{program}')), '--gtest_fail_fast', '--gtest_brief=1']

    def needs_no_more_instructions(self):
        return run([self.tree / 'scripts/check_instructions.sh'], BUILD_LIMIT, cwd=self.tree)

    @contextlib.contextmanager
    def changed(self, mutant, text):
        file = self.tree / mutant.file
        file.write_text(text[:mutant.begin] + mutant.replacement + text[mutant.end:], encoding='utf-8')
        try:
            yield
        finally:
            file.write_text(text, encoding='utf-8')

    def judge(self, mutant):
        """What has noticed a change, or None."""
        if not self.builds():
            return 'compiler'
        for program in [*PROGRAMS[mutant.file.parts[1]], 'hashes']:
            if not run(self.command(program), self.limits[program]):
                return 'tests'
        return None if self.needs_no_more_instructions() else 'instructions'


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.split('\n\n', maxsplit=1)[0])
    parser.add_argument('--files', nargs='+', default=['src/**/*.cpp', 'src/**/*.h'], metavar='GLOB')
    parser.add_argument('--count', type=int, default=150)
    parser.add_argument('--seed', type=int, default=1)
    parser.add_argument('--jobs', type=int, default=2)
    parser.add_argument('--list', action='store_true', help='print the changes and stop')
    return parser.parse_args()


def main():
    given = arguments()
    os.chdir(pathlib.Path(__file__).resolve().parent.parent)
    files = sorted({file for pattern in given.files for file in pathlib.Path().glob(pattern)})
    mutants = [mutant for file in files for mutant in candidates(file)]
    random.Random(given.seed).shuffle(mutants)
    mutants = mutants[:given.count]
    if given.list:
        print(*(mutant.describe(mutant.file.read_text(encoding='utf-8')) for mutant in mutants), sep='\n')
        return

    verdicts = {'compiler': 0, 'tests': 0, 'instructions': 0, None: 0}
    with tempfile.TemporaryDirectory(prefix='mutate-') as directory:
        workshop = Workshop(directory, given.jobs)
        workshop.prepare()
        for number, mutant in enumerate(mutants, 1):
            text = (workshop.tree / mutant.file).read_text(encoding='utf-8')
            with workshop.changed(mutant, text):
                verdict = workshop.judge(mutant)
            verdicts[verdict] += 1
            if verdict is None:
                print('SURVIVED', mutant.describe(text), flush=True)
            elif verdict == 'instructions':
                print('slower', mutant.describe(text), flush=True)
            if number % 10 == 0:
                print(f'... {number} of {len(mutants)}', flush=True)
    tried = len(mutants) - verdicts['compiler']
    noticed = verdicts['tests'] + verdicts['instructions']
    print(f"{len(mutants)} mutants, {verdicts['compiler']} do not build; of {tried} tests noticed {verdicts['tests']}, "
          f"counts of instructions {verdicts['instructions']}, {verdicts[None]} survived: {100 * noticed / tried:.1f} %")


if __name__ == '__main__':
    main()
