"""Pictures for primitives.md, segments.md and intersections.md."""

import math

from page import BLUE, DARK, GREEN, GREY, ORANGE, PALE, PURPLE, SKY, VERMILLION, Page, number


class Ellipse:
    """Page coordinates, but y and angles run upward."""

    def __init__(self, x, y, a, b, rotation):
        self.x, self.y, self.a, self.b, self.rotation = x, y, a, b, rotation

    def point(self, t):
        """By the eccentric parameter."""
        u, v = self.a * math.cos(t), self.b * math.sin(t)
        c, s = math.cos(self.rotation), math.sin(self.rotation)
        return self.x + u * c - v * s, self.y - u * s - v * c

    def extremes(self):
        """Eccentric parameters of the highest, leftmost, lowest and rightmost point, counter-clockwise."""
        c, s = math.cos(self.rotation), math.sin(self.rotation)
        top = math.atan2(self.b * c, self.a * s)  # where the height a sin(rot) cos t + b cos(rot) sin t is greatest
        left = math.atan2(self.b * s, -self.a * c)
        while left < top:
            left += 2 * math.pi
        return [top, left, top + math.pi, left + math.pi, top + 2 * math.pi]

    def points(self, start, end, count=60):
        return [self.point(start + (end - start) * i / count) for i in range(count + 1)]


def circle_arc(x, y, radius, start, sweep):
    """The data of a path along at most half a circle; angles in radians, counter-clockwise."""
    ends = [(x + radius * math.cos(t), y - radius * math.sin(t)) for t in (start, start + sweep)]
    return "M%s %sA%s %s 0 0 %d %s %s" % (number(ends[0][0]), number(ends[0][1]), number(radius), number(radius),
                                          0 if sweep > 0 else 1, number(ends[1][0]), number(ends[1][1]))


def primitives():
    page = Page(860, 300, "Angles, beelines, stretches and arcs")
    titles = ["Angle", "Beeline: no ends", "Line: a stretch", "Arc: start and sweep"]
    for i, title in enumerate(titles):
        page.box(16 + 210 * i, 44, 198, 232, "#f6f6f4")
        page.text(16 + 210 * i, 32, title, "bold")
    angle = math.radians(40)
    c, s = math.cos(angle), math.sin(angle)

    x, y = 50, 216
    page.line(x, y, x + 140, y, GREY, 1.2)
    page.arrow(x, y, x + 150 * c, y - 150 * s, BLUE, 2.5, 11)
    page.path(circle_arc(x, y, 52, 0, angle), VERMILLION, 2.5)
    page.dot(x, y, fill=DARK)
    page.text(x + 62, y - 18, "θ", "bold", VERMILLION)
    page.text(x + 60, 84, "(cos θ, sin θ)", "middle", BLUE)
    page.text(x, 248, "radians, from the x axis,", "small")
    page.text(x, 264, "counter-clockwise", "small")

    x, y = 318, 172
    page.line(x - 84, y + 84 * s / c, x + 92, y - 92 * s / c, BLUE, 2.5)
    page.line(x, y, x + 66, y, GREY, 1.2)
    page.path(circle_arc(x, y, 40, 0, angle), VERMILLION, 2.5)
    page.dot(x, y, fill=DARK)
    page.text(x + 46, y - 13, "θ", "bold", VERMILLION)
    page.text(x + 2, y + 22, "point", "middle")
    page.text(x - 74, 264, "θ and θ + π are the same", "small")

    page.line(470, 216, 610, 98, BLUE, 2.5)
    page.dot(470, 216, fill=BLUE)
    page.dot(610, 98, fill=BLUE)
    page.text(470, 238, "first end", "middle")
    page.text(624, 84, "second end", "end")

    x, y, radius = 738, 176, 74
    start, sweep = math.radians(20), math.radians(130)
    page.add("circle", cx=x, cy=y, r=radius, fill="none", stroke=PALE, stroke_width=1.5)
    page.line(x, y, x + radius, y, GREY, 1.2)
    for t in (start, start + sweep):
        page.line(x, y, x + radius * math.cos(t), y - radius * math.sin(t), GREY, 1.2, "4 3")
    page.path(circle_arc(x, y, radius, start, sweep), BLUE, 3.5)
    page.path(circle_arc(x, y, 44, 0, start), VERMILLION, 2.5)
    page.path(circle_arc(x, y, 30, start, sweep), GREEN, 2.5)
    tip = start + sweep
    page.dot(x + radius * math.cos(start), y - radius * math.sin(start), fill=BLUE)
    page.dot(x + radius * math.cos(tip), y - radius * math.sin(tip), fill=BLUE)
    page.dot(x, y, fill=DARK)
    page.text(x + 34, y + 17, "start", None, VERMILLION)
    page.text(x + 4, y - 38, "sweep", "middle halo", "#00664b")
    page.text(x - 14, y + 20, "centre", "middle")
    page.text(x - 82, 264, "positive: counter-clockwise", "small")
    return page.finish()


def bulge_path(start, end, bulge):
    """The data of a path along an arc from one point to another, counter-clockwise for a positive bulge."""
    chord = math.dist(start, end)
    if bulge == 0:
        return "M%s %sL%s %s" % tuple(number(value) for value in (*start, *end))
    radius = chord * (1 + bulge * bulge) / (4 * abs(bulge))
    flags = (1 if abs(bulge) > 1 else 0, 0 if bulge > 0 else 1)
    return "M%s %sA%s %s 0 %d %d %s %s" % (number(start[0]), number(start[1]), number(radius), number(radius), *flags,
                                           number(end[0]), number(end[1]))


def bulge():
    page = Page(860, 360, "The bulge of an arc")
    page.text(24, 32, "bulge = sagitta / half chord = tan(sweep / 4)", "bold")
    start, end, height = (70, 190), (390, 190), 80  # half a chord is 160: the bulge is 80 / 160
    value = height / 160
    # Counter-clockwise on paper from left to right means below the chord.
    radius = 320 * (1 + value * value) / (4 * value)
    centre = (230, 190 + height - radius)
    page.line(*start, *end, GREY, 1.5, "5 4")
    page.line(230, 190, 230, 190 + height, GREEN, 2.5)
    page.path(bulge_path(start, end, value), BLUE, 3.5)
    for point, name, shift in ((start, "start", -8), (end, "end", 8)):
        page.line(*centre, *point, GREY, 1.2)
        page.dot(*point, fill=BLUE)
        page.text(point[0] + shift, point[1] - 12, name, "middle")
    page.dot(*centre, fill=DARK)
    page.text(centre[0] + 12, centre[1] + 2, "centre", None)
    half = math.atan2(end[0] - centre[0], end[1] - centre[1])
    page.path(circle_arc(*centre, 34, -math.pi / 2 - half, 2 * half), VERMILLION, 2.5)
    page.text(centre[0], centre[1] + 52, "sweep", "middle halo", "#b34e00")
    page.text(238, 232, "sagitta", "halo", "#00664b")
    page.text(310, 206, "half chord", "middle halo")
    page.text(230, 304, "bulge 0.5", "bold middle", BLUE)
    page.text(230, 324, "sweep 4 atan 0.5 = 106.26°", "small middle")

    page.text(480, 32, "One chord, several bulges", "bold")
    start, end = (580, 190), (740, 190)
    colours = [(-1, ORANGE), (-0.5, ORANGE), (0, DARK), (0.5, SKY), (1, BLUE), (1.5, PURPLE)]
    for value, colour in colours:
        page.path(bulge_path(start, end, value), colour, 2.5)
        below = 190 + value * 80
        page.text(660, below - 6 if value <= 0 else below + 15, number(value), "bold middle halo",
                  "#a66f00" if value < 0 else colour if value != 0.5 else BLUE)
    page.dot(*start, fill=DARK)
    page.dot(*end, fill=DARK)
    page.text(start[0] - 12, 195, "start", "end")
    page.text(end[0] + 12, 195, "end")
    return page.finish()


def height_at(ellipse, start, end, x):
    """Where the vertical through x meets a quarter arc, by halving."""
    rising = ellipse.point(start)[0] < ellipse.point(end)[0]
    for _ in range(60):
        middle = (start + end) / 2
        if (ellipse.point(middle)[0] < x) == rising:
            start = middle
        else:
            end = middle
    return ellipse.point(start)[1]


def quarter_arcs():
    page = Page(860, 400, "The quarter arcs of two ellipses")
    first = Ellipse(360, 212, 210, 105, 0.4)
    second = Ellipse(530, 232, 190, 95, -0.5)
    page.text(24, 32, "Quarter arcs, and the range of x that two of them share", "bold")

    # The pair: the upper right arc of the first, that of the second.
    ends = first.extremes(), second.extremes()
    right_of_first = (ends[0][3] - 2 * math.pi, ends[0][0])
    right_of_second = (ends[1][3] - 2 * math.pi, ends[1][0])
    shared = []
    for ellipse, pair in ((first, right_of_first), (second, right_of_second)):
        shared.append(sorted(ellipse.point(t)[0] for t in pair))
    low, high = max(s[0] for s in shared), min(s[1] for s in shared)
    page.box(low, 56, high - low, 308, "#eef3e8")

    for ellipse, colours, extremes in ((first, (SKY, BLUE), ends[0]), (second, (ORANGE, VERMILLION), ends[1])):
        for i in range(4):
            page.polyline(ellipse.points(extremes[i], extremes[i + 1]), stroke=colours[i % 2], width=2)
    page.polyline(first.points(*right_of_first), stroke=BLUE, width=5)
    page.polyline(second.points(*right_of_second), stroke=VERMILLION, width=5)
    for ellipse, extremes in ((first, ends[0]), (second, ends[1])):
        for t in extremes[:4]:
            page.dot(*ellipse.point(t), fill=DARK)
    for x in (low, high):
        heights = [height_at(first, *right_of_first, x), height_at(second, *right_of_second, x)]
        page.line(x, 56, x, 364, GREY, 1.2, "5 4")
        for y in heights:
            page.add("rect", x=x - 4, y=y - 4, width=8, height=8, fill="#ffffff", stroke=GREEN, stroke_width=2)
    page.text((low + high) / 2, 382, "shared range of x", "middle", "#00664b")
    page.dot(30, 340, fill=DARK)
    page.text(44, 345, "extreme points", "small")
    page.add("rect", x=26, y=358, width=8, height=8, fill="#ffffff", stroke=GREEN, stroke_width=2)
    page.text(44, 367, "heights compared", "small")
    return page.finish()
