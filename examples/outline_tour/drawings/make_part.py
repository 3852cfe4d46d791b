#!/usr/bin/python3
"""Makes the drawings of this folder with ezdxf (Debian: python3-ezdxf):

    ./make_part.py

part.dxf      a lever plate with a cam lobe, a lug, notches and holes; what the tour shows by default
hook.dxf      one open polyline
assorted.dxf  polylines of the older kind (POLYLINE with VERTEX), a mirrored one, one in paper space, one of a single
              point, and entities that are no polylines

Lengths are millimetres. A vertex is (x, y, bulge), the bulge being that of the segment that leaves it.
"""

import math
import os

import ezdxf
from ezdxf import options

QUARTER = math.tan(math.pi / 8)  # bulge of a quarter of a circle
HALF = 1.0                       # of half a circle


def plate():
    """The outline of the plate, counter-clockwise: 44 segments."""
    lug = math.tan(abs(math.atan2(-10, -6)) / 2)  # about (124, 34), from (118, 24) round to (118, 44)
    return [
        (10, 0, 0), (26, 0, 0),
        (26, 6, -HALF), (36, 6, 0), (36, 0, 0),                     # a slot with a round end
        (52, 0, 0), (52, 8, -2), (58, 8, 0), (58, 0, 0),            # a keyhole
        (70, 0, 0.5),                                               # a foot
        (84, 0, 0), (95, 0, 0), (100, 5, 0),                        # a chamfer
        (100, 18, -QUARTER), (106, 24, 0), (118, 24, lug),          # the lug
        (118, 44, 0), (106, 44, -QUARTER),
        (100, 50, 0), (100, 68, QUARTER), (90, 78, 0),
        (80, 78, -QUARTER), (74, 84, 0), (74, 90, 1.2),             # the cam lobe
        (42, 90, 0), (42, 84, -QUARTER),
        (36, 78, 0), (33, 78, 0), (30.5, 73, 0), (28, 78, 0),       # three notches
        (25.5, 73, 0), (23, 78, 0), (20.5, 73, 0), (18, 78, 0),
        (10, 78, QUARTER), (0, 68, 0),
        (0, 56, 0), (7, 59, 0), (7, 47, 0), (0, 50, 0),             # a dovetail
        (0, 34, -0.7), (0, 24, 0.5), (0, 14, 0), (0, 10, QUARTER),  # a wave, and the last corner
    ]


def circle(x, y, radius):
    """A clockwise circle of two halves."""
    return [(x - radius, y, -HALF), (x + radius, y, -HALF)]


def bore_with_keyway(x, y, radius, width, depth):
    """A bore whose keyway reaches `depth` above the centre, clockwise: an arc of far more than half a circle."""
    half = width / 2
    shoulder = y + math.sqrt(radius * radius - half * half)
    sweep = 2 * math.pi - 2 * math.asin(half / radius)
    return [(x + half, shoulder, -math.tan(sweep / 4)), (x - half, shoulder, 0),
            (x - half, y + depth, 0), (x + half, y + depth, 0)]


def long_hole(x, y, length, radius):
    """A clockwise hole with round ends, `length` between their centres."""
    return [(x, y - radius, -HALF), (x, y + radius, 0),
            (x + length, y + radius, -HALF), (x + length, y - radius, 0)]


def kidney(x, y, inner, outer, start, sweep):
    """A counter-clockwise slot between two arcs about (x, y), with round ends; angles in degrees."""
    def at(radius, degrees):
        return (x + radius * math.cos(math.radians(degrees)), y + radius * math.sin(math.radians(degrees)))
    bulge = math.tan(math.radians(sweep) / 4)
    return [(*at(outer, start), bulge), (*at(outer, start + sweep), HALF),
            (*at(inner, start + sweep), -bulge), (*at(inner, start), HALF)]


def new_drawing(version):
    drawing = ezdxf.new(version, setup=False)
    drawing.units = ezdxf.units.MM
    return drawing, drawing.modelspace()


def make_part():
    drawing, space = new_drawing("R2000")
    outlines = [
        plate(),
        bore_with_keyway(50, 44, 13, 6, 17.5),
        kidney(50, 44, 20, 26, -62, 86),
        long_hole(66, 64, 18, 4),
        circle(124, 34, 5),
        circle(12, 66, 4),
        circle(14, 12, 4),
        circle(88, 12, 4),
    ]
    for outline in outlines:
        space.add_lwpolyline(outline, format="xyb", close=True)
    return drawing


def make_hook():
    drawing, space = new_drawing("R2000")
    hook = [(0, 0, 0), (0, 40, -QUARTER), (6, 46, 0), (20, 46, -1.5), (20, 22, 0), (14, 22, HALF), (14, 30, 0),
            (20, 34, 0)]
    space.add_lwpolyline(hook, format="xyb", close=False)
    return drawing


def make_assorted():
    drawing, space = new_drawing("R2000")
    space.add_line((0, 0), (5, 5))
    space.add_circle((20, 20), 3)
    space.add_text("not an outline")
    space.add_polyline2d([(0, 0, 0), (10, 0, HALF), (10, 6, 0), (0, 6, 0)], format="xyb", close=True)
    space.add_polyline2d([(0, 10, 0), (10, 10, 0.25), (14, 18, 0)], format="xyb")
    space.add_polyline3d([(0, 0, 0), (1, 1, 1), (2, 0, 2)])
    # Seen from below, the x axis of the polyline points to the left: the corners are (-20, 0), (-30, 0), (-30, 5).
    space.add_lwpolyline([(20, 0, 0), (30, 0, 0.5), (30, 5, 0)], format="xyb", close=True,
                         dxfattribs={"extrusion": (0, 0, -1)})
    space.add_lwpolyline([(7, 7, 0)], format="xyb")
    drawing.layout("Layout1").add_lwpolyline([(0, 0, 0), (200, 0, 0), (200, 100, 0)], format="xyb")
    return drawing


def main():
    options.write_fixed_meta_data_for_testing = True  # no time stamps: the same drawing gives the same bytes
    folder = os.path.dirname(os.path.abspath(__file__))
    for name, make in (("part", make_part), ("hook", make_hook), ("assorted", make_assorted)):
        make().saveas(os.path.join(folder, name + ".dxf"))


if __name__ == "__main__":
    main()
