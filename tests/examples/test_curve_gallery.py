"""The gallery of curves, against codes and points worked out by hand.

A straight line y = 90 meets the circle of radius 150 round (0, 0) where x^2 = 150^2 - 90^2 = 120^2; the arch, half of a
circle of radius 150 round (0, -50), is met 90 above its centre at y = 40 and 120 above it at x = 90.

The circles of radius 100 round (-60, 0) and (60, 0) cross where y^2 = 100^2 - 60^2 = 80^2; the first point lies on the
left of the way from the first centre to the second.

The ellipse with the semi-axes 200 and 100 has the half width 200 * 0.8 at y = 100 * 0.6, and the half height 100 * 0.8
at x = 200 * 0.6. Two of them at (-100, 0) and (100, 0) cross at x = 0, half a semi-axis aside: y^2 = 100^2 (1 - 1/4).
With the same turned by a quarter it has x^2 = y^2 = 1 / (1/200^2 + 1/100^2) = 8000 in common. With the circle of radius
r, r^2 = 25000, x^2/4 + y^2 = 10000 and x^2 + y^2 = 25000 give x^2 = 20000, y^2 = 5000.

The ellipse at (-60, 0) and the circle of radius 100 round (140, 0): with u counted from the ellipse's centre,
u^2/4 = (u - 200)^2 for the same y, so u = 400/3 and y^2 = 10000 (1 - 4/9).

Touching: (160, 60) lies on the ellipse, since 0.8^2 + 0.6^2 = 1; from (-160, -60) and from its mirror image at
(160, 60) this is (0, 0), from (-100, -40) it is (60, 20).
"""

import math
import unittest

import pictures
import tour

H = 50 * math.sqrt(3)
Q = math.sqrt(8000)
X, Y = math.sqrt(20000), math.sqrt(5000)
S, T = 400 / 3 - 60, 100 * math.sqrt(5) / 3
D = 150 / math.sqrt(2)

LENS = [(0, 80), (0, -80)]
ALMOND = [(0, H), (0, -H)]
CROSS = [(Q, Q), (-Q, Q), (-Q, -Q), (Q, -Q)]  # by polar angle from the first ellipse's own x axis
BOX = [(X, Y), (-X, Y), (-X, -Y), (X, -Y)]
SIDE = [(S, T), (S, -T)]

ABSENT = None

COLUMNS = ["apart", "touching", "crossing once", "crossing twice", "four times", "overlapping", "one inside"]

# Points in order. A set: the order has no simple rule. -1 has no points unless they are told.
# first, second:           touching     once         twice                     four times  overlapping  one inside
ROWS = {
    ("Beeline", "Beeline"): (ABSENT, [(0, 100)], ABSENT, ABSENT, -1, ABSENT),
    ("Beeline", "Line"): ([(100, 0)], [(50, 0)], ABSENT, ABSENT, -1, ABSENT),
    ("Line", "Line"): ([(50, 0)], [(0, 0)], ABSENT, ABSENT, -1, -1),
    # On a circle the greater x comes first, on a vertical the greater y.
    ("Beeline", "Circle"): ([(0, 150)], ABSENT, [(120, 90), (-120, 90)], ABSENT, ABSENT, ABSENT),
    ("Beeline", "Arc"): ([(0, 100)], [(90, 70)], [(120, 40), (-120, 40)], ABSENT, ABSENT, ABSENT),
    ("Line", "Circle"): ([(0, 150)], [(120, 90)], [(120, 90), (-120, 90)], ABSENT, ABSENT, []),
    ("Line", "Arc"): ([(0, 100)], [(90, 70)], [(120, 40), (-120, 40)], ABSENT, ABSENT, ABSENT),
    ("Circle", "Circle"): ([(0, 0)], ABSENT, LENS, ABSENT, -1, []),
    # A circle that carries an arc: the arc's ends.
    ("Circle", "Arc"): ([(0, 0)], [(0, 80)], LENS, ABSENT, (-1, [(150, 0), (0, 150)]), []),
    # Overlapping arcs: the second's start and the first's end, also where the second lies inside the first.
    ("Arc", "Arc"): ([(0, 0)], [(0, 80)], LENS, ABSENT, (-1, [(0, 150), (-150, 0)]), (-1, [(D, D), (-150, 0)])),
    ("Beeline", "Ellipse"): ([(0, 100)], ABSENT, {(160, 60), (-160, 60)}, ABSENT, ABSENT, ABSENT),
    ("Beeline", "EllipseArc"): ([(0, 100)], [(120, 80)], {(160, 60), (-160, 60)}, ABSENT, ABSENT, ABSENT),
    ("Line", "Ellipse"): ([(0, 100)], [(160, 60)], {(160, 60), (-160, 60)}, ABSENT, ABSENT, []),
    ("Line", "EllipseArc"): ([(0, 100)], [(120, 80)], {(160, 60), (-160, 60)}, ABSENT, ABSENT, ABSENT),
    ("Ellipse", "Ellipse"): ([(0, 0)], ABSENT, ALMOND, CROSS, -1, []),
    # An ellipse that carries the arc is told as 0 here, and only here.
    ("Ellipse", "EllipseArc"): ([(0, 0)], [(0, H)], ALMOND, CROSS, [], []),
    # Touching: two quarters of one ellipse that share an end.
    ("EllipseArc", "EllipseArc"): ([(0, 100)], [(0, H)], ALMOND, CROSS, -1, []),
    ("Circle", "Ellipse"): ([(60, 20)], ABSENT, SIDE, BOX, -1, []),
    ("Circle", "EllipseArc"): ([(60, 20)], [(S, T)], SIDE, BOX, -1, []),
    ("Arc", "Ellipse"): ([(60, 20)], [(S, T)], SIDE, BOX, -1, []),
    ("Arc", "EllipseArc"): ([(60, 20)], [(S, T)], SIDE, BOX, -1, []),
}


def expected_tiles():
    """(first, second, configuration, code, points) in the order of the gallery."""
    for (first, second), row in ROWS.items():
        for configuration, answer in zip(COLUMNS, ([],) + row):
            if answer is ABSENT:
                continue
            if answer == -1:
                answer = (-1, [])
            code, points = answer if isinstance(answer, tuple) else (len(answer), answer)
            yield first, second, configuration, code, points


def is_near(points, expected, tolerance):
    if isinstance(expected, set):
        points, expected = sorted(points), sorted(expected)
    return len(points) == len(expected) and all(math.dist(*pair) < tolerance for pair in zip(points, expected))


class Report(unittest.TestCase):
    def test_codes_and_points(self):
        lines = tour.Run().output.split("\n")
        expected = list(expected_tiles())
        self.assertEqual(lines[0], "Curves and where they meet: %d tiles" % len(expected))
        for line, (first, second, configuration, code, points) in zip(lines[2:], expected):
            with self.subTest(first=first, second=second, configuration=configuration):
                words, _, told = line.partition("(")
                self.assertEqual(words.split(), [first, second] + configuration.split() + [str(code)])
                told = [tuple(map(float, pair.strip("() ").split(","))) for pair in told.split(") (") if pair]
                self.assertTrue(is_near(told, points, 2e-6), told)
        self.assertEqual(lines[2 + len(expected)], "")

    def test_all_pairs_of_kinds_are_there(self):
        kinds = ["Beeline", "Line", "Circle", "Arc", "Ellipse", "EllipseArc"]
        pairs = {frozenset(pair) for pair in ROWS}
        self.assertEqual(len(ROWS), 21)
        self.assertEqual(pairs, {frozenset((a, b)) for a in kinds for b in kinds})


class Picture(unittest.TestCase):
    def setUp(self):
        self.tiles = pictures.of_class(pictures.picture_of(tour.Run(), "curve_gallery.svg"), "g", "tile")

    def test_one_tile_an_answer_with_its_code(self):
        codes = [pictures.of_class(tile, "text", "code")[0].text for tile in self.tiles]
        self.assertEqual(codes, [str(row[3]) for row in expected_tiles()])

    def test_points_are_marked_where_they_are_and_numbered_in_order(self):
        for tile, (first, second, configuration, _, points) in zip(self.tiles, expected_tiles()):
            with self.subTest(first=first, second=second, configuration=configuration):
                frame = pictures.of_class(tile, "rect", "frame")[0]
                scale = float(frame.get("width")) / 800
                x = float(frame.get("x")) + float(frame.get("width")) / 2
                y = float(frame.get("y")) + float(frame.get("height")) / 2
                marks = [((float(mark.get("cx")) - x) / scale, (y - float(mark.get("cy"))) / scale)
                         for mark in pictures.of_class(tile, "circle", "point")]
                self.assertTrue(is_near(marks, points, 0.1), marks)  # pixels have two decimals
                numbers = [text.text for text in pictures.of_class(tile, "text", "number")]
                self.assertEqual(numbers, [str(i + 1) for i in range(len(points))])

    def test_tiles_stand_in_rows_of_pairs_and_columns_of_configurations(self):
        places = [pictures.of_class(tile, "rect", "frame")[0] for tile in self.tiles]
        lefts = sorted({float(place.get("x")) for place in places})
        tops = sorted({float(place.get("y")) for place in places})
        self.assertEqual((len(lefts), len(tops)), (len(COLUMNS), len(ROWS)))
        pairs = list(ROWS)
        for place, (first, second, configuration, _, _) in zip(places, expected_tiles()):
            self.assertEqual(lefts.index(float(place.get("x"))), COLUMNS.index(configuration))
            self.assertEqual(tops.index(float(place.get("y"))), pairs.index((first, second)))

    def test_both_curves_are_drawn_inside_the_tile(self):
        for tile in self.tiles:
            frame = pictures.of_class(tile, "rect", "frame")[0]
            left, top = float(frame.get("x")), float(frame.get("y"))
            for kind in ("first", "second"):
                paths = pictures.of_class(tile, "path", kind)
                self.assertEqual(len(paths), 1)
                for x, y in pictures.path_points(paths[0]):
                    self.assertTrue(left - 0.02 <= x <= left + float(frame.get("width")) + 0.02, (x, y))
                    self.assertTrue(top - 0.02 <= y <= top + float(frame.get("height")) + 0.02, (x, y))

    def test_the_picture_in_the_documentation_is_this_one(self):
        drawn = tour.Run().kept["curve_gallery.svg"].decode()
        self.assertEqual(pictures.without_numbers(pictures.documented("curve_gallery.svg")),
                         pictures.without_numbers(drawn))


class Options(pictures.OptionTests, unittest.TestCase):
    name = "curve_gallery"
