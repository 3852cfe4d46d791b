"""The picture of outline_tour."""

import os
import re
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

import tour

SVG = "{http://www.w3.org/2000/svg}"


class Picture:
    def __init__(self, text):
        self.root = ElementTree.fromstring(text)

    def marks(self, tag, *classes):
        """Elements of these classes that don't belong to the legend."""
        found = []
        for element in self.root.iter(SVG + tag):
            names = element.get("class", "").split()
            if set(classes) <= set(names) and "sample" not in names:
                found.append(element)
        return found


def picture_of(run, name="outline_tour.svg"):
    return Picture(run.kept[name])


class PictureTest(unittest.TestCase):
    def check_marks(self, run):
        picture = picture_of(run)
        positions = run.table("Positions of the piece")
        images = [row for row in positions if row["image"] != "-"]
        lost = {row["no"] for row in positions} - {row["no"] for row in images}
        foreign = [row for row in images if "seam of the piece" in row["remark"]]
        crossings = run.table("Beeline")
        self.assertEqual(len(picture.marks("circle", "position")), 13)
        self.assertEqual(len(picture.marks("circle", "lost")), len(lost))
        self.assertEqual(len(picture.marks("rect", "image")), len(images))
        self.assertEqual(len(picture.marks("line", "join")), len(images))
        self.assertEqual(len(picture.marks("line", "seam")), len(foreign))
        self.assertEqual(len(picture.marks("circle", "zero")), 2)
        lying = [row for row in crossings if row["ratio"] == "-"]
        self.assertEqual(len(picture.marks("line", "crossing")), len(lying))
        self.assertEqual(len(picture.marks("path", "crossing")), len(crossings) - len(lying))
        return picture

    def test_the_picture_shows_what_the_tables_list(self):
        run = tour.Run(tour.drawing("part.dxf"))
        self.assertEqual(run.new_files, ["outline_tour.svg"])
        picture = self.check_marks(run)
        self.assertEqual(len(picture.marks("path", "outline")), 8 + 1)
        self.assertEqual(len(picture.marks("path", "piece")), 1)
        self.assertEqual(len(picture.marks("line", "beeline")), 1)

    def test_other_drawings_cuts_and_beelines(self):
        for arguments in (("part.dxf", "--cut", "38.5:4.25", "--beeline", "0,78,180"), ("part.dxf", "--cut=14.5:18.25"),
                          ("hook.dxf",), ("assorted.dxf",), ("hook.dxf", "--beeline=0,46,0")):
            with self.subTest(arguments=arguments):
                self.check_marks(tour.Run(tour.drawing(arguments[0]), *arguments[1:]))

    def test_arcs_are_arcs(self):
        picture = picture_of(tour.Run(tour.drawing("part.dxf")))
        plate = picture.marks("path", "outline")[0].get("d")
        bulges = [vertex[2] for vertex in tour.read_outlines(tour.drawing("part.dxf"))[0]["vertices"]]
        # Arcs of more than half a circle are drawn by halves.
        self.assertEqual(plate.count("A"), sum(1 if abs(b) <= 1 else 2 for b in bulges if b))
        self.assertEqual(plate.count("L"), bulges.count(0))

    def test_every_mark_and_label_lies_on_the_page(self):
        for name in ("part.dxf", "hook.dxf", "assorted.dxf"):
            picture = picture_of(tour.Run(tour.drawing(name)))
            width, height = float(picture.root.get("width")), float(picture.root.get("height"))
            places = [(e.get("x"), e.get("y")) for e in picture.marks("text") + picture.marks("rect")]
            places += [(e.get("cx"), e.get("cy")) for e in picture.marks("circle")]
            for x, y in places:
                self.assertTrue(0 <= float(x or 0) <= width and 0 <= float(y or 0) <= height, (name, x, y))

    def test_labels_keep_clear_of_one_another(self):
        picture = picture_of(tour.Run(tour.drawing("part.dxf")))
        boxes = []
        for label in picture.marks("text", "label"):
            half = 0.55 * 12 * len(label.text) / 2
            boxes.append((float(label.get("x")), float(label.get("y")), half, label.text))
        self.assertGreater(len(boxes), 30)
        for i, (x, y, half, text) in enumerate(boxes):
            for x2, y2, half2, text2 in boxes[:i]:
                self.assertFalse(abs(x - x2) < half + half2 and abs(y - y2) < 10, (text, text2))

    def test_the_picture_in_the_documentation_is_what_the_program_draws(self):
        with open(os.path.join(tour.TREE, "docs", "images", "outline_tour.svg")) as file:
            documented = file.read()
        drawn = tour.Run(tour.drawing("part.dxf")).kept["outline_tour.svg"].decode()
        number = re.compile(r"-?\d+(?:\.\d+)?")
        self.assertEqual(number.sub("#", drawn), number.sub("#", documented))
        for a, b in zip(number.findall(drawn), number.findall(documented)):
            self.assertAlmostEqual(float(a), float(b), delta=0.011)

    def test_an_odd_name_does_no_harm_to_the_markup(self):
        name = "a<b>&\"c'.dxf"
        run = tour.Run(name, files={name: tour.dxf([(0, 0, 0), (4, 0, 0), (4, 3, 0)])})
        self.assertEqual(run.code, 0)
        self.assertTrue(any(name in (text.text or "") for text in picture_of(run).marks("text")))

    def test_svg_takes_the_place_of_an_older_picture(self):
        run = tour.Run(tour.drawing("part.dxf"), "--svg", "p.svg", files={"p.svg": "old"})
        self.assertEqual(run.new_files, [])
        picture_of(run, "p.svg")

    def test_a_link_stays_a_link(self):
        with tempfile.TemporaryDirectory() as folder:
            target, link = os.path.join(folder, "target.svg"), os.path.join(folder, "link.svg")
            with open(target, "w") as file:
                file.write("old")
            os.symlink(target, link)
            self.assertEqual(tour.Run(tour.drawing("part.dxf"), "--svg", link).code, 0)
            self.assertTrue(os.path.islink(link))
            with open(target) as file:
                self.assertTrue(file.read().startswith("<svg"))
            self.assertEqual(sorted(os.listdir(folder)), ["link.svg", "target.svg"])

    def test_the_same_drawing_gives_the_same_picture(self):
        first, second = (tour.Run(tour.drawing("part.dxf")) for _ in range(2))
        self.assertEqual(first.kept, second.kept)
        self.assertEqual(first.output, second.output)
