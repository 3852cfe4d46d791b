"""The story of a position map, against joints and places worked out by hand.

The first outline has 6 segments; the other one, of 3, takes the positions 6 to 9. Every map leads from these to the
outline after the step.

1  Cut to 1.5 .. 5. The rest of segment 1 becomes the whole segment 0: 1.5 goes to 0, 2 to 1, from there on everything
   moves by -1 up to 5, which goes to 4. 0.5 and 5.5 are gone.
2  Join. The outline of now has 4 + 3 segments, and 6 .. 9 goes to 4 .. 7. Between 5 and 6, both at 4, the map is flat.
3  Extend by 2 at the front. All that was moves by +2, and 1.5, where the map begins, has all of 0 .. 2 for image.
4  Shorten by the last of 9. 8, until now at 8, is the end; 8 .. 9 falls on it.
5  Renumber. 3.5 lies inside segment 3, so 8 segments become 9: y from 4 on goes to y - 3, 0 .. 3 follows as 5 .. 8
   (y + 5), and 3 .. 3.5 is stretched over 8 .. 9. With 2.5, at 3.5, the walk begins at 0, passes 3 (1), 5 (3), 6 (3),
   8 (5), stands still over the seam of the source up to 9 + 1.5 (5), jumps to 7 there and comes to 9 at 9 + 2.5.
6  Turn: y goes to 9 - y.
"""

import unittest

import pictures
import tour

STEPS = [
    ("Start", 6, 6, [(0, 0), (6, 6)]),
    ("Cut", 6, 4, [(1.5, 0), (2, 1), (5, 4)]),
    ("Join", 9, 7, [(1.5, 0), (2, 1), (5, 4), (6, 4), (9, 7)]),
    ("Extend", 9, 9, [(1.5, 0), (1.5, 2), (2, 3), (5, 6), (6, 6), (9, 9)]),
    ("Shorten", 9, 8, [(1.5, 0), (1.5, 2), (2, 3), (5, 6), (6, 6), (8, 8), (9, 8)]),
    ("Renumber", 9, 9, [(2.5, 0), (3, 1), (5, 3), (6, 3), (8, 5), (10.5, 5), (10.5, 7), (11.5, 9)]),
    ("Turn", 9, 9, [(2.5, 9), (3, 8), (5, 6), (6, 6), (8, 4), (10.5, 4), (10.5, 2), (11.5, 0)]),
]

# None: the other outline has not come in yet.
#           place  Start   Cut     Join    Extend  Shorten  Renumber  Turn
PLACES = {
    "a": (0.5, [0.5], [], [], [], [], [5], [4]),  # beyond 9 it is 9.5, on the flat stretch from 8 to 10.5
    "b": (1.5, [1.5], [0], [0], [0, 2], [0, 2], [5, 7], [4, 2]),
    "c": (2.5, [2.5], [1.5], [1.5], [3.5], [3.5], [0], [9]),
    "d": (3.25, [3.25], [2.25], [2.25], [4.25], [4.25], [1.25], [7.75]),
    "e": (5.5, [5.5], [], [4], [6], [6], [3], [6]),
    "f": (7.5, None, None, [5.5], [7.5], [7.5], [4.5], [4.5]),
    "g": (8.5, None, None, [6.5], [8.5], [8], [5], [4]),
}

# Straight pieces, flat ones and jumps of each map, counted from the joints above. In the last two the flat piece from 8
# to 10.5 is cut at the seam, 9, and the straight one from 10.5 on lies on the second lap as a whole.
PIECES = [(1, 0, 0), (2, 0, 0), (3, 1, 0), (3, 1, 1), (3, 2, 1), (4, 3, 1), (4, 3, 1)]


def shown(images):
    if images is None:
        return ""
    return ", ".join("%g" % image for image in images) or "-"


class Report(unittest.TestCase):
    def setUp(self):
        self.output = tour.Run().output

    def test_the_joints_of_every_step(self):
        for number, (name, sources, destinations, joints) in enumerate(STEPS):
            lines = self.output.split("\n")
            first = next(i for i, line in enumerate(lines) if line.startswith("%d  %s: " % (number, name)))
            self.assertEqual(lines[first + 2].strip(), "segments: %d -> %d" % (sources, destinations))
            pairs = " ".join("(%g, %g)" % joint for joint in joints)
            self.assertEqual(lines[first + 3].strip(), "joints: " + pairs)

    def test_the_table_of_seven_places(self):
        lines = self.output.split("\n")
        header = lines[lines.index("Seven places") + 1]
        rows = lines[lines.index("Seven places") + 2:][:7]
        # Columns are set right: each ends where its heading ends.
        ends = [header.index(name) + len(name) for name in ["place"] + [step[0] for step in STEPS]]
        for row, (letter, (place, *images)) in zip(rows, PLACES.items()):
            cells = [row[start:end].strip() for start, end in zip([3] + ends, ends)]
            self.assertEqual(row[:3].strip(), letter)
            self.assertEqual(cells, ["%g" % place] + [shown(image) for image in images])


class Picture(unittest.TestCase):
    def setUp(self):
        self.root = pictures.picture_of(tour.Run(), "map_story.svg")
        self.panels = pictures.of_class(self.root, "g", "panel")

    def test_one_panel_a_step(self):
        captions = [pictures.of_class(panel, "text", "caption")[0].text for panel in self.panels]
        self.assertEqual([caption.split(":")[0].split() for caption in captions],
                         [[str(i), step[0]] for i, step in enumerate(STEPS)])

    def test_bars_have_the_segments_of_each_side(self):
        for panel, (name, sources, destinations, _) in zip(self.panels, STEPS):
            with self.subTest(step=name):
                bars = pictures.of_class(panel, "rect", "segment")
                now = pictures.of_class(panel, "rect", "segment", "now")
                self.assertEqual((len(bars) - len(now), len(now)), (sources, destinations))

    def test_every_linear_piece_is_a_ribbon(self):
        for panel, (straight, flat, jump) in zip(self.panels, PIECES):
            self.assertEqual(len(pictures.of_class(panel, "path", "ribbon")), straight + flat + jump)
            self.assertEqual(len(pictures.of_class(panel, "path", "ribbon", "flat")), flat)
            self.assertEqual(len(pictures.of_class(panel, "path", "ribbon", "jump")), jump)

    def scale(self, panel):
        """Where position 0 of a panel is, and how wide a segment."""
        first, second = pictures.of_class(panel, "rect", "segment")[:2]
        return float(first.get("x")), float(second.get("x")) - float(first.get("x"))

    def test_places_and_images_lie_where_the_table_tells(self):
        for number, panel in enumerate(self.panels):
            known = [row for row in PLACES.values() if row[1 + number] is not None]
            left, width = self.scale(panel)
            with self.subTest(step=STEPS[number][0]):
                def positions(tag, x, *classes, middle=0.0):
                    return sorted(round((float(mark.get(x)) + middle - left) / width, 2)
                                  for mark in pictures.of_class(panel, tag, *classes))
                self.assertEqual(positions("circle", "cx", "place"), [row[0] for row in known if row[1 + number]])
                self.assertEqual(positions("circle", "cx", "lost"), [row[0] for row in known if not row[1 + number]])
                images = {image for row in known for image in row[1 + number]}
                self.assertEqual(positions("rect", "x", "image", middle=4.5), sorted(images))
                threads = sorted((row[0], image) for row in known for image in row[1 + number])
                drawn = sorted((round((float(line.get("x1")) - left) / width, 2),
                                round((float(line.get("x2")) - left) / width, 2))
                               for line in pictures.of_class(panel, "line", "thread"))
                self.assertEqual(drawn, threads)

    def test_the_table_in_the_picture_is_that_of_the_report(self):
        table = pictures.of_class(self.root, "g", "table")[0]
        rows = {}
        for text in pictures.of_class(table, "text", "cell"):
            if "head" not in text.get("class"):
                rows.setdefault(float(text.get("y")), []).append(text.text or "")
        expected = [[letter, "%g" % place] + [shown(image) for image in images]
                    for letter, (place, *images) in PLACES.items()]
        self.assertEqual([rows[y] for y in sorted(rows)], expected)

    def test_the_picture_in_the_documentation_is_this_one(self):
        drawn = tour.Run().kept["map_story.svg"].decode()
        self.assertEqual(pictures.documented("map_story.svg"), drawn)


class Options(pictures.OptionTests, unittest.TestCase):
    name = "map_story"
