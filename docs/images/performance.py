"""The picture for performance.md: what scripts/bench.sh --write measured, kept in map_growth.json."""

import json
import math
import os

from page import BLUE, DARK, GREEN, GREY, ORANGE, PALE, PURPLE, SKY, VERMILLION, Page

FILE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "map_growth.json")
LEFT, RIGHT, TOP, BOTTOM = 84, 560, 56, 396
COLOURS = {"composition": VERMILLION, "smoothing": ORANGE, "filling": BLUE, "segment list": GREEN,
           "normal form": PURPLE, "evaluation": SKY}


def decades(values):
    """The powers of ten, as exponents, between which all values lie."""
    return math.floor(math.log10(min(values))), math.ceil(math.log10(max(values)))


def text_of(exponent):
    value = 10 ** exponent
    return "%g" % value if value < 1000 else "{:,}".format(value)


def spread(heights, gap):
    """Heights of labels, moved apart downwards where they would lie on one another."""
    placed = []
    for height in sorted(heights):
        placed.append(height if not placed else max(height, placed[-1] + gap))
    return dict(zip(sorted(heights), placed))


def map_growth():
    with open(FILE, encoding="utf-8") as file:
        growth = json.load(file)
    page = Page(700, 460, "Time per joint of operations on maps, as maps grow")
    first, last = decades([size for points in growth.values() for size, _ in points])
    low, high = decades([time for points in growth.values() for _, time in points])

    def at(size, time):
        return (LEFT + (math.log10(size) - first) / (last - first) * (RIGHT - LEFT),
                BOTTOM - (math.log10(time) - low) / (high - low) * (BOTTOM - TOP))
    for exponent in range(first, last + 1):
        x, _ = at(10 ** exponent, 10 ** low)
        page.line(x, TOP, x, BOTTOM, PALE, 1)
        page.text(x, BOTTOM + 20, text_of(exponent), "middle")
    for exponent in range(low, high + 1):
        _, y = at(10 ** first, 10 ** exponent)
        page.line(LEFT, y, RIGHT, y, GREY if exponent == low else PALE, 1)
        page.text(LEFT - 10, y + 5, text_of(exponent), "end")
    page.text((LEFT + RIGHT) / 2, BOTTOM + 44, "joints of a map", "bold middle")
    page.text(24, 30, "nanoseconds per joint", "bold")

    ends = {name: at(*points[-1])[1] for name, points in growth.items()}
    heights = spread(list(ends.values()), 18)
    for name, points in growth.items():
        page.polyline([at(*point) for point in points], stroke=COLOURS.get(name, DARK), width=2.5)
        for point in points:
            page.dot(*at(*point), fill=COLOURS.get(name, DARK))
        page.text(RIGHT + 14, heights[ends[name]] + 5, name, fill=COLOURS.get(name, DARK))
    return page.finish()
