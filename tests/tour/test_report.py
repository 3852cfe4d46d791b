"""The tables of outline_tour, held against geometry worked out here and by hand."""

import math
import unittest

import tour

HALF_DIGIT = 0.51e-4  # the tables have four decimals


class OutlineTable(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.run_of_part = tour.Run(tour.drawing("part.dxf"))
        cls.rows = cls.run_of_part.table("Outlines")
        cls.outlines = tour.read_outlines(tour.drawing("part.dxf"))

    def test_every_polyline_of_the_drawing_is_listed(self):
        self.assertEqual(self.run_of_part.code, 0)
        self.assertEqual(self.run_of_part.errors, "")
        self.assertEqual(len(self.outlines), 8)
        self.assertEqual([row["outline"] for row in self.rows], [str(i + 1) for i in range(8)])

    def test_segments_are_counted_by_kind(self):
        for row, outline in zip(self.rows, self.outlines):
            arcs = sum(vertex[2] != 0 for vertex in outline["vertices"])
            count = len(outline["vertices"])
            self.assertEqual([int(row[name]) for name in ("segments", "lines", "arcs")], [count, count - arcs, arcs])
            self.assertEqual(row["shape"], "closed")
        self.assertGreaterEqual(int(self.rows[0]["segments"]), 40)

    def test_the_shipped_outline_has_bulges_of_both_signs_and_above_one(self):
        bulges = [vertex[2] for vertex in self.outlines[0]["vertices"]]
        self.assertGreater(max(bulges), 1)
        self.assertLess(min(bulges), -1)

    def test_lengths_areas_and_boxes_are_those_of_the_curves(self):
        for row, outline in zip(self.rows, self.outlines):
            segments = tour.segments_of(outline)
            self.assertAlmostEqual(float(row["length"]), sum(s.length() for s in segments), delta=HALF_DIGIT)
            # The program counts clockwise as positive.
            self.assertAlmostEqual(float(row["signed area"]), -sum(s.area() for s in segments), delta=HALF_DIGIT)
            points = [point for s in segments for point in s.extremes()]
            xs, ys = [p[0] for p in points], [p[1] for p in points]
            box = [min(xs), min(ys), max(xs) - min(xs), max(ys) - min(ys)]
            for name, expected in zip(("x", "y", "width", "height"), box):
                self.assertAlmostEqual(float(row[name]), expected, delta=2 * HALF_DIGIT)

    def test_box_of_the_plate_by_hand(self):
        # Left the wave: 0.5 * (chord 10) / 2 beyond x = 0; below the foot: 0.5 * 14 / 2 under y = 0.
        # Right the lug: its centre 124 and its radius sqrt(6^2 + 10^2). Above the lobe: 90 + 1.2 * 32 / 2.
        left, bottom, right, top = -2.5, -3.5, 124 + math.sqrt(136), 109.2
        for name, expected in zip(("x", "y", "width", "height"), (left, bottom, right - left, top - bottom)):
            self.assertAlmostEqual(float(self.rows[0][name]), expected, delta=HALF_DIGIT)

    def test_round_and_long_holes_by_hand(self):
        hole = self.rows[4]  # radius 5
        self.assertAlmostEqual(float(hole["length"]), 10 * math.pi, delta=HALF_DIGIT)
        self.assertAlmostEqual(float(hole["signed area"]), 25 * math.pi, delta=HALF_DIGIT)
        long_hole = self.rows[3]  # two straight sides of 18, two half circles of radius 4
        self.assertAlmostEqual(float(long_hole["length"]), 36 + 8 * math.pi, delta=HALF_DIGIT)
        self.assertAlmostEqual(float(long_hole["signed area"]), 18 * 8 + 16 * math.pi, delta=HALF_DIGIT)

    def test_an_open_outline_has_no_area(self):
        run = tour.Run(tour.drawing("hook.dxf"))
        row = run.table("Outlines")[0]
        self.assertEqual((row["shape"], row["segments"], row["signed area"]), ("open", "7", "0.0000"))
        length = sum(s.length() for s in tour.segments_of(tour.read_outlines(tour.drawing("hook.dxf"))[0]))
        self.assertAlmostEqual(float(row["length"]), length, delta=HALF_DIGIT)

    def test_old_polylines_are_read_mirrored_ones_are_turned_and_the_rest_is_left_aside(self):
        run = tour.Run(tour.drawing("assorted.dxf"))
        rows = run.table("Outlines")
        self.assertEqual([(row["segments"], row["shape"]) for row in rows], [("4", "closed"), ("2", "open"),
                                                                            ("3", "closed")])
        # A rectangle of 10 by 6 with a half circle at its right side, counter-clockwise.
        self.assertAlmostEqual(float(rows[0]["signed area"]), -(60 + 4.5 * math.pi), delta=HALF_DIGIT)
        # Seen from below x changes its sign. The arc bulges away from the right angle's corner by 0.5 * 5 / 2.
        self.assertEqual((rows[2]["x"], rows[2]["width"]), ("-31.2500", "11.2500"))
        self.assertIn("Left aside: 1 'CIRCLE', 1 'LINE', 1 'LWPOLYLINE in paper space', 1 'POLYLINE in space', "
                      "1 'TEXT', 1 'polyline of a single point'.", run.output)

    def test_repeated_vertices_make_no_segments(self):
        run = tour.Run("a.dxf", files={"a.dxf": tour.dxf([(0, 0, 0), (4, 0, 0.5), (4, 0, 0), (4, 4, 0), (0, 0, 0)])})
        row = run.table("Outlines")[0]
        self.assertEqual((row["segments"], row["arcs"], row["signed area"]), ("3", "0", "-8.0000"))


def rebuilt_position(on_outline):
    """Where a position of the plate comes to lie on the rebuilt outline, in steps that can be followed by hand.

    The rebuilt outline begins at 18.5, so segment 18 is parted into the segments 0 and 44 of the moved outline, and
    segment k becomes k - 18, or k + 26 if it lies before. Of the moved outline the fillets and the chamfer that the
    tables name are gone. Beyond moved position 40 nothing is known.
    """
    if on_outline >= 18.5:
        moved = (on_outline - 18.5) / 0.5 if on_outline < 19 else on_outline - 18
    else:
        moved = on_outline + 26
    if moved > 40:
        return None
    # Fillets 19, 21, 25, 34 and 43 and chamfer 11 of the outline.
    vanished = [19 - 18, 21 - 18, 25 - 18, 34 - 18, 43 - 18, 11 + 26]
    gone = [k for k in vanished if k < math.floor(moved)]
    place = moved - len(gone)
    return math.floor(place) if math.floor(moved) in vanished else place


class CarriedPositions(unittest.TestCase):
    def rows_of(self, cut):
        run = tour.Run(tour.drawing("part.dxf"), "--cut", cut)
        self.assertEqual((run.code, run.errors), (0, ""))
        return run.table("Positions of the piece")

    def check(self, cut, on_outline_of):
        """Holds every row against the position on the outline and the image that are worked out here."""
        segments = tour.segments_of(tour.read_outlines(tour.drawing("part.dxf"))[0])
        for row in self.rows_of(cut):
            on_outline = on_outline_of(float(row["on piece"]))
            on_outline -= 44 if on_outline > 44 else 0
            self.assertAlmostEqual(float(row["on outline"]), on_outline, delta=2e-4)
            if "seam of the piece" in row["remark"]:
                continue
            image = rebuilt_position(on_outline % 44)
            if image is None:
                self.assertEqual((row["image"], row["segment"], row["remark"]), ("-", "-", "no image"))
                continue
            self.assertAlmostEqual(float(row["image"]), image, delta=3e-4)
            self.assertEqual(int(row["segment"]), math.floor(float(row["image"])))
            self.assertAlmostEqual(float(row["ratio"]), float(row["image"]) % 1, delta=HALF_DIGIT * 2)
            # Only the straight neighbours of the vanished segments were drawn on.
            if int(on_outline) % 44 not in (10, 11, 12, 18, 19, 20, 21, 22, 24, 25, 26, 33, 34, 35, 42, 43, 0):
                expected = tour.point_at(segments, on_outline)
                self.assertAlmostEqual(float(row["x"]), expected[0], delta=5e-3)
                self.assertAlmostEqual(float(row["y"]), expected[1], delta=5e-3)

    def test_a_cut_inside_the_outline(self):
        def on_outline(p):  # 0.75 of segment 3, sixteen whole segments, half of segment 20
            return 3.25 + 0.75 * p if p < 1 else 3 + p if p < 17 else 20 + 0.5 * (p - 17)
        self.check("3.25:20.5", on_outline)

    def test_a_cut_over_the_seam(self):
        def on_outline(p):  # half of segment 38, nine whole segments, a quarter of segment 4
            return 38.5 + 0.5 * p if p < 1 else 38 + p if p < 10 else 48 + 0.25 * (p - 10)
        self.check("38.5:4.25", on_outline)

    def test_the_default_cut_has_positions_with_no_image_and_with_several(self):
        rows = tour.Run(tour.drawing("part.dxf")).table("Positions of the piece")
        counts = {}
        for row in rows:
            counts[row["no"]] = counts.get(row["no"], 0) + (row["image"] != "-")
        self.assertEqual(len(counts), 13)
        self.assertIn(0, counts.values())
        self.assertIn(2, counts.values())

    def test_both_faces_of_the_seam_of_the_piece_have_the_images_of_both(self):
        rows = self.rows_of("3.25:20.5")
        ends = {number: sorted(row["image"] for row in rows if row["no"] == number) for number in ("1", "13")}
        self.assertEqual(ends["1"], ends["13"])
        foreign = {row["no"]: row["image"] for row in rows if "seam of the piece" in row["remark"]}
        # 3.25 has 24.25 for its own, 20.5 has 1.5.
        self.assertEqual(foreign, {"1": "1.5000", "13": "24.2500"})

    def test_positions_on_vanished_segments_meet_in_the_sharp_corner(self):
        # The fillet below the corner (100, 78), and the chamfer at (100, 0).
        for cut, corner in (("19:20", ("100.0000", "78.0000")), ("11:12", ("100.0000", "0.0000"))):
            own = [row for row in self.rows_of(cut) if "seam of the piece" not in row["remark"]]
            self.assertEqual([row["no"] for row in own], [str(i) for i in range(1, 14)])
            self.assertEqual({(row["x"], row["y"]) for row in own}, {corner})
            self.assertEqual({row["remark"].split(",")[0] for row in own}, {"a sharp corner"})

    def test_a_piece_of_which_the_older_map_knows_nothing(self):
        # All it can know of is the seam of the piece, which stands for the rest of the outline.
        rows = [row for row in self.rows_of("14.5:18.25") if "seam of the piece" not in row["remark"]]
        self.assertEqual({row["remark"] for row in rows}, {"no image"})
        self.assertEqual([row["no"] for row in rows], [str(i) for i in range(2, 14)])

    def test_what_a_composition_misses_is_told(self):
        # Piece and older map both pass over the seam. From 10 up to 14, before the older map begins (18.5), only the
        # maps one by one have images.
        rows = self.rows_of("10:4")
        for row in rows:
            on_outline = float(row["on outline"])
            if 10 <= on_outline <= 14:
                expected = rebuilt_position(on_outline)
                self.assertTrue(row["remark"].startswith("not in the composed map; the maps one by one give "))
                self.assertAlmostEqual(float(row["remark"].split()[-1]), expected, delta=3e-4)

    def test_the_end_of_a_closed_outline_is_its_beginning(self):
        run = tour.Run(tour.drawing("part.dxf"), "--cut", "43:44")
        last = [row for row in run.table("Positions of the piece") if row["on outline"] == "44.0000"]
        self.assertEqual(float(last[0]["image"]), rebuilt_position(0))
        run = tour.Run(tour.drawing("part.dxf"), "--cut", "44:2")
        self.assertEqual(run.code, 0)
        self.assertEqual(float(run.table("Positions of the piece")[0]["image"]), rebuilt_position(0))

    def test_the_whole_outline_as_a_piece(self):
        self.check("0:44", lambda p: p)

    def test_an_open_outline_keeps_its_zero(self):
        run = tour.Run(tour.drawing("hook.dxf"), "--cut", "4:7")
        self.assertIn("It knows 0 up to 6; positions outside have no image.", run.output)
        rows = run.table("Positions of the piece")
        # Segment 1, a fillet, is gone: every position behind it lies one lower.
        known = [row for row in rows if float(row["on outline"]) <= 6]
        self.assertGreater(len(known), 5)
        for row in known:
            self.assertAlmostEqual(float(row["image"]), float(row["on outline"]) - 1, delta=2e-4)
        self.assertEqual({row["remark"] for row in rows if float(row["on outline"]) > 6}, {"no image"})

    def test_the_smallest_outlines(self):
        for vertices, closed in (([(0, 0, 1), (2, 0, 1)], True), ([(0, 0, 0), (2, 0, 0)], False),
                                 ([(0, 0, 0), (2, 0, 0)], True), ([(0, 0, 0), (2, 0, 0), (1, 1, 0)], True)):
            run = tour.Run("a.dxf", files={"a.dxf": tour.dxf(vertices, closed=closed)})
            self.assertEqual((run.code, run.errors), (0, ""), vertices)


class Crossings(unittest.TestCase):
    def rows_of(self, beeline, name="part.dxf"):
        run = tour.Run(tour.drawing(name), "--beeline", beeline)
        self.assertEqual((run.code, run.errors), (0, ""))
        return run.table("Beeline")

    def test_crossings_lie_on_the_line_and_on_the_outline_and_none_is_missing(self):
        outlines = [tour.segments_of(o) for o in tour.read_outlines(tour.drawing("part.dxf"))]
        for x, y, degrees in ((66, 50, 12), (50, 44, -75), (20, 30, 45.5), (124, 34.5, 180), (110, 90, 260), (0, 55, 1e3)):
            rows = self.rows_of("%r,%r,%r" % (x, y, degrees))
            direction = (math.cos(math.radians(degrees)), math.sin(math.radians(degrees)))
            for row in rows:
                along, px, py = float(row["along"]), float(row["x"]), float(row["y"])
                self.assertAlmostEqual(x + along * direction[0], px, delta=2e-4)
                self.assertAlmostEqual(y + along * direction[1], py, delta=2e-4)
                segment = outlines[int(row["outline"]) - 1][int(row["segment"])]
                self.assertLess(math.dist(segment.point(float(row["ratio"])), (px, py)),
                                2e-4 + 1e-4 * segment.length())
            along = [float(row["along"]) for row in rows]
            self.assertEqual(along, sorted(along))
            expected = sum(len(s.crossings((x, y), direction)) for segments in outlines for s in segments)
            self.assertEqual(len(rows), expected)
            self.assertGreater(expected, 0)

    def test_segments_on_the_beeline_are_told_as_such_and_nodes_once(self):
        # Along y = 78 to the left lie the segments 20, 26 and 33; the tips of the notches are the nodes 29 and 31.
        rows = self.rows_of("0,78,180")
        found = [(row["segment"], row["along"], row["ratio"], row["remark"]) for row in rows]
        lies = "the segment lies on the beeline, up to "
        self.assertEqual(found, [("20", "-90.0000", "-", lies + "-80.0000"), ("26", "-36.0000", "-", lies + "-33.0000"),
                                 ("29", "-28.0000", "0.0000", "a node"), ("31", "-23.0000", "0.0000", "a node"),
                                 ("33", "-18.0000", "-", lies + "-10.0000")])

    def test_a_beeline_has_no_direction_but_for_the_order(self):
        forward, backward = self.rows_of("10,20,30"), self.rows_of("10,20,-150")
        self.assertEqual([(row["x"], row["y"]) for row in forward], [(row["x"], row["y"]) for row in backward][::-1])

    def test_the_seam_is_one_node(self):
        run = tour.Run("a.dxf", "--beeline", "-5,-5,45",
                       files={"a.dxf": tour.dxf([(0, 0, 0), (6, 0, 0), (6, 6, 0), (0, 6, 0)])})
        rows = run.table("Beeline")
        self.assertEqual([(row["segment"], row["remark"]) for row in rows], [("0", "a node"), ("2", "a node")])

    def test_the_free_ends_of_an_open_outline(self):
        run = tour.Run("a.dxf", "--beeline", "0,0,0", "--cut", "0:1",
                       files={"a.dxf": tour.dxf([(1, 0, 0), (1, 2, 0), (4, 2, 0), (4, 0, 0)], closed=False)})
        rows = run.table("Beeline")
        self.assertEqual([(row["segment"], row["ratio"], row["remark"]) for row in rows],
                         [("0", "0.0000", ""), ("2", "1.0000", "")])

    def test_a_beeline_beside_everything(self):
        run = tour.Run(tour.drawing("part.dxf"), "--beeline", "0,500,0")
        self.assertIn("Beeline through (0, 500) at 0 degrees: 0 crossings", run.output)
