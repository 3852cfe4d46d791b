"""What outline_tour says to input that it can't serve: one line on standard error, a failing exit, and no picture."""

import os
import random
import tempfile
import unittest

import tour

SQUARE = [(0, 0, 0), (6, 0, 0), (6, 6, 0), (0, 6, 0)]


class BadInput(unittest.TestCase):
    def refused(self, run, *words):
        """Checks how a run was refused, and that the line says these words."""
        self.assertEqual(run.code, 1, run.errors)
        self.assertEqual(run.errors.count("\n"), 1, run.errors)
        self.assertTrue(run.errors.startswith("outline_tour: ") and run.errors.endswith("\n"), run.errors)
        for word in words:
            self.assertIn(word, run.errors)
        self.assertEqual(run.new_files, [])
        self.assertEqual(run.output, "")

    def refused_drawing(self, content, *words):
        self.refused(tour.Run("bad.dxf", files={"bad.dxf": content}), "'bad.dxf': ", *words)

    def changed_square(self, old, new):
        text = tour.dxf(SQUARE)
        self.assertIn(old, text)
        return text.replace(old, new, 1)

    # ---- Files ----

    def test_no_such_file(self):
        self.refused(tour.Run("nowhere.dxf"), "nowhere.dxf")
        self.refused(tour.Run("no/where.dxf"), "no/where.dxf")

    def test_a_directory(self):
        self.refused(tour.Run(tour.DRAWINGS), "directory")

    def test_a_device(self):
        self.refused(tour.Run("/dev/zero"), "no regular file")

    def test_a_name_with_a_line_break_stays_one_line(self):
        self.refused(tour.Run("no\nwhere.dxf"))

    def test_an_empty_file(self):
        self.refused_drawing("", "empty")
        self.refused_drawing("\n \r\n", "empty")

    def test_files_that_are_no_drawings(self):
        for content in ("hello\nworld\n", b"\x89PNG\r\n\x1a\n" + bytes(range(256)), bytes(1000), "0\n", "0\nLINE\n8\n0\n",
                        "<svg/>", "999\nonly a comment\n", "7\nSECTION\n0\nEOF\n"):
            with self.subTest(content=content[:20]):
                self.refused_drawing(content, "no DXF")

    def test_a_binary_drawing(self):
        self.refused_drawing(b"AutoCAD Binary DXF\r\n\x1a\x00" + bytes(100), "binary DXF", "ASCII")

    def test_a_truncated_drawing_wherever_it_ends(self):
        with open(tour.drawing("part.dxf"), "rb") as file:
            whole = file.read()
        for end in range(1, len(whole) - 8, 331):
            with self.subTest(end=end):
                self.refused_drawing(whole[:end])

    def test_a_drawing_without_its_end_mark(self):
        self.refused_drawing(tour.dxf(SQUARE).replace("0\nEOF\n", ""), "ends too early")

    def test_a_drawing_without_polylines(self):
        for content in ("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n", "0\nSECTION\n2\nHEADER\n0\nENDSEC\n0\nEOF\n",
                        tour.dxf(SQUARE).replace("ENTITIES", "BLOCKS"), tour.dxf([(1, 1, 0)]), tour.dxf([]),
                        tour.dxf([(1, 1, 0), (1, 1, 0.5)])):
            self.refused_drawing(content, "no polylines")

    # ---- Polylines ----

    def test_a_wrong_number_of_vertices(self):
        for count in ("3", "5", "-4", "-2147483648", "2147483647", "1073741825", "0", "99999999999", "4.5", "four", ""):
            with self.subTest(count=count):
                self.refused_drawing(self.changed_square("90\n4\n", "90\n%s\n" % count))
        self.refused_drawing(self.changed_square("90\n4\n", ""), "vertices")
        self.refused_drawing(self.changed_square("90\n4\n", "90\n4\n90\n4\n"), "twice")

    def test_numbers_that_are_none_or_too_large(self):
        for number in ("nan", "inf", "-inf", "1e400", "1e300", "-1e7", "6,5", "six", "", "6 5", "0x10", "--6", "+-6"):
            with self.subTest(number=number):
                self.refused_drawing(self.changed_square("10\n6\n", "10\n%s\n" % number), "line ")
                self.refused_drawing(self.changed_square("42\n0\n", "42\n%s\n" % number), "line ")

    def test_arcs_wider_than_any_part(self):
        self.refused_drawing(tour.dxf([(0, 0, 1e-7), (6, 0, 0), (6, 6, 0)]), "radius")

    def test_half_vertices(self):
        self.refused_drawing(self.changed_square("20\n0\n", ""), "LWPOLYLINE in line 5")
        self.refused_drawing(self.changed_square("10\n0\n", ""), "LWPOLYLINE in line 5")

    def test_an_old_polyline_without_its_end(self):
        polyline = "0\nSECTION\n2\nENTITIES\n0\nPOLYLINE\n66\n1\n0\nVERTEX\n10\n1\n20\n2\n%s0\nENDSEC\n0\nEOF\n"
        self.refused_drawing(polyline % "", "SEQEND")
        self.refused_drawing(polyline % "0\nLINE\n", "SEQEND")
        self.refused_drawing(polyline % "0\nVERTEX\n10\n1\n0\nSEQEND\n", "VERTEX")

    def test_more_vertices_than_are_served(self):
        self.refused_drawing(tour.dxf([(i % 100, i // 100, 0) for i in range(20001)]), "20000")

    # ---- Options ----

    def test_a_cut_outside_the_outline(self):
        for cut in ("3:45", "-1:5", "44.001:2", "1e300:2", "1:1e300"):
            self.refused(tour.Run(tour.drawing("part.dxf"), "--cut=" + cut), "cut", "0 to 44")

    def test_a_cut_without_length(self):
        self.refused(tour.Run(tour.drawing("part.dxf"), "--cut", "5:5"), "no stretch")

    def test_a_cut_over_the_seam_of_an_open_outline(self):
        self.refused(tour.Run(tour.drawing("hook.dxf"), "--cut", "5:2"), "open")

    def test_malformed_cuts(self):
        for cut in ("", ":", "3", "3:", ":3", "1:2:3", "a:b", "nan:3", "3:inf", "1e400:2", "1,5:2", "1 : 2x", "0x1:2"):
            with self.subTest(cut=cut):
                self.refused(tour.Run(tour.drawing("part.dxf"), "--cut", cut), "--cut wants two positions FROM:TO")

    def test_malformed_beelines(self):
        for beeline in ("", ",,", "1,2", "1,2,3,4", "a,b,c", "nan,0,0", "0,0,nan", "0,inf,0", "0,0,-inf", "1e400,0,0"):
            with self.subTest(beeline=beeline):
                self.refused(tour.Run(tour.drawing("part.dxf"), "--beeline", beeline), "--beeline wants")

    def test_beelines_beyond_all_bounds(self):
        for beeline in ("1e300,0,0", "0,-1e7,0", "0,0,1e300", "0,0,-1e17"):
            self.refused(tour.Run(tour.drawing("part.dxf"), "--beeline", beeline), "--beeline wants")

    def test_options_that_are_none(self):
        for option in ("--frobnicate", "-x", "--cutt=1:2", "--", "-", "--svg2"):
            self.refused(tour.Run(tour.drawing("part.dxf"), option), "unknown option")
        self.refused(tour.Run(tour.drawing("part.dxf"), ""))

    def test_options_without_their_value(self):
        for option in ("--cut", "--beeline", "--svg"):
            self.refused(tour.Run(tour.drawing("part.dxf"), option), option + " wants")
        self.refused(tour.Run(tour.drawing("part.dxf"), "--svg="), "--svg wants")

    def test_no_drawing_or_two(self):
        self.refused(tour.Run(), "no drawing")
        self.refused(tour.Run("--cut", "1:2"), "no drawing")
        self.refused(tour.Run("a.dxf", "b.dxf"), "one drawing")

    # ---- Results ----

    def test_a_picture_that_can_not_be_written(self):
        for place in ("no/such/folder/p.svg", ".", "/dev/full", tour.DRAWINGS, "/dev/null/p.svg", "x" * 300):
            with self.subTest(place=place):
                self.refused(tour.Run(tour.drawing("part.dxf"), "--svg", place), "can't write")

    @unittest.skipIf(os.geteuid() == 0, "root may write everywhere")
    def test_a_folder_that_may_not_be_written(self):
        with tempfile.TemporaryDirectory() as folder:
            os.chmod(folder, 0o500)
            self.refused(tour.Run(tour.drawing("part.dxf"), "--svg", os.path.join(folder, "p.svg")), "can't write")

    def test_an_older_picture_survives_a_failure(self):
        for arguments in ((tour.drawing("part.dxf"), "--cut", "1:99"), ("nowhere.dxf",)):
            run = tour.Run(*arguments, files={"outline_tour.svg": "older"})
            self.refused(run)
            self.assertEqual(run.kept["outline_tour.svg"], b"older")

    def test_a_report_that_can_not_be_written(self):
        with open("/dev/full", "w") as full:
            for arguments in ((tour.drawing("part.dxf"),), ("--help",)):
                run = tour.Run(*arguments, stdout=full)
                self.assertEqual((run.code, run.errors.count("\n")), (1, 1), run.errors)

    def test_help_is_no_failure(self):
        run = tour.Run("--help")
        self.assertEqual((run.code, run.errors, run.new_files), (0, "", []))
        for option in ("--cut", "--beeline", "--svg", "--help"):
            self.assertIn(option, run.output)

    def test_damaged_drawings_are_read_or_refused_but_never_crash(self):
        generator = random.Random(20240229)
        with open(tour.drawing("assorted.dxf"), "rb") as file:
            whole = file.read()
        whole = whole[whole.index(b"ENTITIES") - 20:]
        whole = b"  0\nSECTION\n" + whole[whole.index(b"  2\nENTITIES"):]
        for _ in range(150):
            damaged = bytearray(whole)
            for _ in range(generator.randint(1, 6)):
                at = generator.randrange(len(damaged))
                choice = generator.randrange(3)
                if choice == 0:
                    damaged[at] = generator.randrange(256)
                elif choice == 1:
                    del damaged[at:at + generator.randint(1, 30)]
                else:
                    damaged[at:at] = generator.choice((b"-", b"9", b"\n", b"e9", b"  0\n", b"nan"))
            run = tour.Run("a.dxf", files={"a.dxf": bytes(damaged)})
            if run.code == 0:
                self.assertEqual((run.errors, run.new_files), ("", ["outline_tour.svg"]))
            else:
                self.refused(run)
