#!/usr/bin/env python3
"""Makes the table of scripts/bench.sh from what qormath_compare measured.

  bench_table.py RESULTS.json            prints the table for the eye
  bench_table.py RESULTS.json --markdown prints it for docs/performance.md
  bench_table.py RESULTS.json --growth   prints, as JSON, nanoseconds per joint for the picture of the growth
"""

import json
import sys

PEERS = ["lib2geom", "CGAL", "Boost", "GEOS", "GSL"]
# The aims for a composition are times, in nanoseconds for the whole: those of a row with so many joints.
COMPOSITION_AIMS = {10: 1e3, 100: 15e3, 1000: 200e3, 10000: 2e6, 100000: 20e6}
# What differs by less is not told apart.
NOISE = 1.02
SIZES = [10, 100, 1000, 10000, 100000]
GROWING = ["composition", "filling", "smoothing", "normal form", "segment list", "evaluation"]


class Row:
    def __init__(self, name, operation, ordinary, aim):
        self.name, self.operation, self.ordinary, self.aim = name, operation, ordinary, aim
        self.times = {}


def read(path):
    """Rows in the order of the program, each with the least time of its columns, in nanoseconds for one operation."""
    with open(path, encoding="utf-8") as file:
        results = json.load(file)
    rows = {}
    # The runs come in random order; a family is one column of one row.
    for run in sorted(results["benchmarks"], key=lambda one: one["family_index"]):
        if run.get("run_type") == "aggregate":
            continue
        name, who = run["run_name"].split("|")
        operation, ordinary = run["label"].split("|")
        scale = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}[run["time_unit"]]
        time = run["cpu_time"] * scale / run["inputs"]
        row = rows.setdefault(name, Row(name, operation, ordinary, run["aim"]))
        row.times[who] = min(time, row.times.get(who, time))
    return rows, results["context"]


def length(time):
    if time is None:
        return "-"
    for unit, size in (("ms", 1e6), ("µs", 1e3)):
        if time >= size:
            return "%.3g %s" % (time / size, unit) if time < 1e3 * size else "%.0f %s" % (time / size, unit)
    return "%.1f ns" % time if time < 10 else "%.0f ns" % time


def ratio(time, other):
    return "-" if time is None or not other else "%.2f" % (time / other)


def aim_of(row, rows):
    """The aim as a text, and what stands against it, above 1 where it is missed; None where there is no aim."""
    ours = row.times.get("ours")
    if ours is None:
        return "", None
    if row.ordinary and row.ordinary not in rows:
        return "", None
    if row.ordinary:
        return "%g × ordinary" % row.aim, ours / rows[row.ordinary].times["ours"] / row.aim
    if row.name.startswith("composition, "):
        limit = COMPOSITION_AIMS[int(row.name.split(", ")[1])]
        return length(limit), ours / limit
    if row.name.startswith("evaluation, "):
        scan = rows.get(row.name.replace("evaluation", "validity"))
        return ("validity + 25 ns", ours / (scan.times["ours"] + 25.0)) if scan else ("", None)
    if row.aim and "floor" in row.times:
        return "%g × floor" % row.aim, ours / row.times["floor"] / row.aim
    peers = [row.times[peer] for peer in PEERS if peer in row.times]
    if peers and ", straight, " in row.name:
        return "best peer", ours / min(peers)
    return "", None


def cells(row, rows):
    ours = row.times.get("ours")
    peers = [row.times[peer] for peer in PEERS if peer in row.times]
    ordinary = rows.get(row.ordinary)
    floor = ordinary.times["ours"] if ordinary else row.times.get("floor")
    aim, share = aim_of(row, rows)
    verdict = "" if share is None else ("yes" if share <= NOISE else "no")
    return ([row.name, length(ours), length(row.times.get("vector"))] +
            [length(row.times.get(peer)) for peer in PEERS] +
            [length(floor), ratio(ours, min(peers) if peers else None), ratio(ours, floor), aim, verdict])


HEAD = ["case", "ours", "vector form"] + PEERS + ["floor", "/ best peer", "/ floor", "aim", "met"]


def growth_of(rows):
    """For each growing operation the nanoseconds per joint at each size."""
    return {name: [[size, rows["%s, %d" % (name, size)].times["ours"] / size] for size in SIZES
                   if "%s, %d" % (name, size) in rows] for name in GROWING}


def growth_aims(growth):
    """The aims that compare two sizes: name, from, to, at most, measured."""
    aims = []
    for name, low, high, limit in (("composition", 1000, 100000, 3.0), ("filling", 100, 10000, 2.0),
                                   ("smoothing", 100, 10000, 2.0), ("normal form", 100, 10000, 2.0),
                                   ("segment list", 100, 10000, 2.0)):
        per_joint = dict(growth[name])
        if low in per_joint and high in per_joint:
            aims.append((name, low, high, limit, per_joint[high] / per_joint[low]))
    return aims


def print_plain(table):
    widths = [max(len(line[i]) for line in table) for i in range(len(HEAD))]
    for line in table:
        print("  ".join(text.ljust(width) if i == 0 else text.rjust(width)
                        for i, (text, width) in enumerate(zip(line, widths))).rstrip())


def print_markdown(table):
    print("| " + " | ".join(table[0]) + " |")
    print("|---|" + "--:|" * (len(HEAD) - 1))
    for line in table[1:]:
        print("| " + " | ".join(line) + " |")


def print_growth(rows, is_markdown):
    for name, low, high, limit, measured in growth_aims(growth_of(rows)):
        print("%s%s: the time per joint at %d is %.2f times that at %d (aim: at most %g, %s)" %
              ("- " if is_markdown else "", name, high, measured, low, limit, "met" if measured <= limit else "missed"))


def main(arguments):
    if len(arguments) not in (1, 2) or arguments[1:] not in ([], ["--markdown"], ["--growth"]):
        sys.exit(__doc__)
    rows, _ = read(arguments[0])
    if arguments[1:] == ["--growth"]:
        print(json.dumps(growth_of(rows), indent=1))
        return
    is_markdown = arguments[1:] == ["--markdown"]
    table = [HEAD] + [cells(row, rows) for row in rows.values()]
    (print_markdown if is_markdown else print_plain)(table)
    print()
    print_growth(rows, is_markdown)
    if is_markdown:
        print("\nWhat each case does once:\n")
        for row in rows.values():
            print("- %s: %s" % (row.name, row.operation))


if __name__ == "__main__":
    main(sys.argv[1:])
