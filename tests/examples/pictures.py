"""What the tests of the programs that write one picture share: reading it, and how the programs treat bad options."""

import os
import re
import tempfile
import xml.etree.ElementTree as ElementTree

import tour

SVG = "{http://www.w3.org/2000/svg}"


def of_class(element, tag, *classes):
    """Elements below this one that have all these classes and aren't part of a legend."""
    found = []
    for child in element.iter(SVG + tag):
        names = child.get("class", "").split()
        if set(classes) <= set(names) and "sample" not in names:
            found.append(child)
    return found


def picture_of(run, name):
    return ElementTree.fromstring(run.kept[name])


def path_points(path):
    """Where the strokes of a path end."""
    numbers = r"-?\d+(?:\.\d+)?"
    strokes = re.findall("[MLA][^MLAZ]*", path.get("d"))
    return [tuple(map(float, re.findall(numbers, stroke)[-2:])) for stroke in strokes]


def without_numbers(text):
    """Last digits of numbers may differ from machine to machine."""
    return re.sub(r"-?\d+(?:\.\d+)?", "#", text)


def documented(name):
    with open(os.path.join(tour.TREE, "docs", "images", name)) as file:
        return file.read()


class OptionTests:
    """Mixed into a test case that tells the program's name."""

    name = None

    def refused(self, run, *words):
        self.assertEqual(run.code, 1, run.errors)
        self.assertEqual(run.errors.count("\n"), 1, run.errors)
        self.assertTrue(run.errors.startswith(self.name + ": ") and run.errors.endswith("\n"), run.errors)
        for word in words:
            self.assertIn(word, run.errors)
        self.assertEqual(run.new_files, [])
        self.assertEqual(run.output, "")

    def test_without_options_the_picture_goes_to_the_working_directory(self):
        run = tour.Run()
        self.assertEqual((run.code, run.errors), (0, ""))
        self.assertEqual(run.new_files, [self.name + ".svg"])
        self.assertTrue(run.output.endswith("\nPicture: " + self.name + ".svg\n"))

    def test_the_picture_goes_where_it_is_told_to(self):
        standard = tour.Run().kept[self.name + ".svg"]
        for arguments in (["--svg", "my picture.svg"], ["--svg=my picture.svg"]):
            run = tour.Run(*arguments)
            self.assertEqual((run.code, run.new_files), (0, ["my picture.svg"]))
            self.assertEqual(run.kept["my picture.svg"], standard)

    def test_an_earlier_picture_is_replaced(self):
        run = tour.Run("--svg", "old.svg", files={"old.svg": "old"})
        self.assertEqual((run.code, run.new_files), (0, []))
        self.assertTrue(run.kept["old.svg"].startswith(b"<svg "))

    def test_help_writes_no_picture(self):
        for option in ("--help", "-h"):
            run = tour.Run(option)
            self.assertEqual((run.code, run.errors, run.new_files), (0, "", []))
            self.assertTrue(run.output.startswith("usage: " + self.name))

    def test_options_that_are_not_understood(self):
        for argument in ("--png", "picture.svg", "-x", "", "--svgs=a", "--svg-file"):
            with self.subTest(argument=argument):
                self.refused(tour.Run(argument), "unknown argument '" + argument + "'")
        self.refused(tour.Run("--svg", "a.svg", "b.svg"), "unknown argument 'b.svg'")

    def test_svg_without_a_name(self):
        self.refused(tour.Run("--svg"), "--svg wants a value")
        self.refused(tour.Run("--svg="), "--svg wants the name of a file")
        self.refused(tour.Run("--svg", ""), "--svg wants the name of a file")

    def test_places_that_cannot_be_written(self):
        self.refused(tour.Run("--svg", "no/such/folder.svg"), "can't write 'no/such/folder.svg'")
        self.refused(tour.Run("--svg", "."), "directory")
        self.refused(tour.Run("--svg", "/dev/null"), "no regular file")
        with tempfile.TemporaryDirectory() as folder:
            self.refused(tour.Run("--svg", folder), "directory")
            self.assertEqual(os.listdir(folder), [])

    def test_a_full_standard_output_is_told(self):
        with open("/dev/full", "w") as full:
            run = tour.Run(stdout=full)
        self.assertEqual(run.code, 1)
        self.assertEqual(run.errors, self.name + ": the report can't be written to standard output\n")
