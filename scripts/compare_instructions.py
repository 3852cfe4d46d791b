#!/usr/bin/env python3
"""Compares counts of instructions with those kept: a part of scripts/check_instructions.sh.

  compare_instructions.py FOLDER RATIOS --check|--write

FOLDER holds callgrind's dumps, one a case.
"""

import os
import re
import sys

GROWTH = 1.10
MEASURES = {"measure of geometry", "measure of maps"}
OF_MAPS = {"composition", "composition over the seam", "evaluation", "normal form", "filling", "smoothing",
           "segment list"}


def read_counts(folder):
    counts = {}
    for name in os.listdir(folder):
        with open(os.path.join(folder, name), encoding="utf-8") as file:
            text = file.read()
        trigger = re.search(r"^desc: Trigger: Client Request: (.+)$", text, re.MULTILINE)
        total = re.search(r"^(?:totals|summary): (\d+)", text, re.MULTILINE)
        if trigger and total:
            counts[trigger.group(1)] = int(total.group(1))
    return counts


def ratios_of(counts):
    return {name: count / counts["measure of maps" if name in OF_MAPS else "measure of geometry"]
            for name, count in counts.items() if name not in MEASURES}


def read_kept(path):
    kept = {}
    with open(path, encoding="utf-8") as file:
        for line in file:
            if line.strip() and not line.startswith("#"):
                name, ratio = line.rsplit("=", 1)
                kept[name.strip()] = float(ratio)
    return kept


def write(path, ratios):
    with open(path, "w", encoding="utf-8") as file:
        file.write("# Instructions of key cases as multiples of plain code: scripts/check_instructions.sh --write\n")
        for name, ratio in sorted(ratios.items()):
            file.write("%s = %.4f\n" % (name, ratio))


def check(kept, ratios):
    has_grown = False
    print("%-28s %10s %10s %8s" % ("case", "kept", "now", "now/kept"))
    for name in sorted(kept):
        if name not in ratios:
            sys.exit("no such case any more: " + name)
        grown = ratios[name] / kept[name]
        has_grown = has_grown or grown > GROWTH
        print("%-28s %10.4f %10.4f %8.3f%s" % (name, kept[name], ratios[name], grown,
                                               "  <- has grown" if grown > GROWTH else ""))
    missing = sorted(set(ratios) - set(kept))
    if missing:
        sys.exit("not kept: " + ", ".join(missing))
    if has_grown:
        sys.exit("a case needs over 10 % more instructions than before")


def main(arguments):
    if len(arguments) != 3 or arguments[2] not in ("--check", "--write"):
        sys.exit(__doc__)
    ratios = ratios_of(read_counts(arguments[0]))
    if arguments[2] == "--write":
        write(arguments[1], ratios)
    else:
        check(read_kept(arguments[1]), ratios)


if __name__ == "__main__":
    main(sys.argv[1:])
