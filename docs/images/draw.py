#!/usr/bin/env python3
"""Draws the pictures of the documentation.

  docs/images/draw.py          writes them beside this script
  docs/images/draw.py --check  tells whether the files there are what would be written

outline_tour.svg, map_story.svg and curve_gallery.svg are drawn by the example programs of these names. map_growth.svg
shows what scripts/bench.sh --write measured last.
"""

import os
import re
import sys

sys.dont_write_bytecode = True

import curves
import maps
import performance
import positions

FOLDER = os.path.dirname(os.path.abspath(__file__))
PICTURES = [positions.positions, positions.range_algebra, maps.map_graph, maps.map_composition, maps.map_combiners,
            curves.primitives, curves.bulge, curves.quarter_arcs, performance.map_growth]


def read(path):
    if not os.path.exists(path):
        return ""
    with open(path, encoding="utf-8") as file:
        return file.read()


def without_decimals(text):
    """Last digits may differ from machine to machine."""
    return re.sub(r"(\d)\.\d+", r"\1", text)


def main(arguments):
    if arguments not in ([], ["--check"]):
        sys.exit("usage: draw.py [--check]")
    stale = []
    for picture in PICTURES:
        name = picture.__name__ + ".svg"
        path = os.path.join(FOLDER, name)
        drawn = picture()
        if not arguments:
            with open(path, "w", encoding="utf-8") as file:
                file.write(drawn)
        elif without_decimals(read(path)) != without_decimals(drawn):
            stale.append(name)
    if stale:
        sys.exit("not as drawn by docs/images/draw.py: " + ", ".join(stale))


if __name__ == "__main__":
    main(sys.argv[1:])
