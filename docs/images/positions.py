"""Pictures for positions.md."""

from page import BLUE, DARK, GREEN, GREY, ORANGE, PALE, SKY, VERMILLION, Page, Scale


def between(a, b, ratio):
    return tuple(p + ratio * (q - p) for p, q in zip(a, b))


def positions():
    page = Page(860, 330, "Positions on a closed outline, and the states of a range")
    corners = [(60, 262), (330, 286), (362, 96), (112, 62)]
    page.text(24, 30, "Positions on 4 segments", "bold")
    page.polyline(corners, True, stroke=GREY, width=2.5, fill="#f6f6f4")
    outside = [(-14, 24), (16, 18), (16, -8), (-14, -10)]
    names = ["0 and 4", "1", "2", "3"]
    for i, (corner, shift, name) in enumerate(zip(corners, outside, names)):
        page.dot(*corner, fill=DARK, radius=5)
        page.text(corner[0] + shift[0], corner[1] + shift[1], name, "bold middle")
        following = corners[(i + 1) % 4]
        middle, ahead = between(corner, following, 0.5), between(corner, following, 0.56)
        page.arrow(*middle, *ahead, stroke=GREY, width=2.5, head=12)
        inward = between(middle, (216, 176), 0.2 if i % 2 == 0 else 0.34)
        page.text(inward[0], inward[1] + 5, "segment %d" % i, "small middle")
    place = between(corners[2], corners[3], 0.25)
    page.dot(*place, fill=VERMILLION, radius=6)
    page.text(place[0] - 4, place[1] - 14, "2.25", "bold middle", VERMILLION)

    page.text(440, 30, "States of a range, told by its two numbers", "bold")
    rows = [("forward", "(1, 3)", [(1, 3)]), ("wrapping", "(3, 1)", [(3, 4), (0, 1)]),
            ("whole", "(3, 3)", [(3, 4), (0, 3)]), ("invalid", "(-1, -1)", [])]
    for i, (name, value, stretches) in enumerate(rows):
        bar = Scale(580, 62, 76 + 64 * i, 14)
        page.text(440, bar.top + 7, name, "bold")
        page.text(440, bar.top + 24, value, "small")
        bar.bar(page, 4, labels="below")
        for start, end in stretches:
            bar.stretch(page, start, end, SKY)
        if stretches:
            page.dot(bar.x(stretches[0][0]), bar.top + 7, fill=BLUE)
            tip = bar.x(stretches[-1][1])
            page.arrow(tip - 26, bar.top + 7, tip - 1, bar.top + 7, stroke=BLUE, width=2.5, head=11)
    return page.finish()


def range_algebra():
    page = Page(860, 380, "Difference, union and intersection of two ranges")
    cases = [("Two forward ranges", [
                 ("a", "(0.5, 2.5)", [(0.5, 2.5)]), ("b", "(1.5, 3.5)", [(1.5, 3.5)]),
                 ("a - b", "(0.5, 1.5)", [(0.5, 1.5)]), ("a + b", "(0.5, 3.5)", [(0.5, 3.5)]),
                 ("a * b", "(1.5, 2.5)", [(1.5, 2.5)])]),
             ("a over the seam", [
                 ("a", "(3, 1.5)", [(3, 4), (0, 1.5)]), ("b", "(1, 2)", [(1, 2)]),
                 ("a - b", "(3, 1)", [(3, 4), (0, 1)]), ("a + b", "(1, 2) (3, 1.5)", [(1, 2), (3, 4), (0, 1.5)]),
                 ("a * b", "(1, 1.5)", [(1, 1.5)])])]
    colours = [SKY, ORANGE, GREEN, GREEN, GREEN]
    for column, (title, rows) in enumerate(cases):
        left = 24 + 425 * column
        page.text(left, 30, title, "bold")
        for i, ((name, value, stretches), colour) in enumerate(zip(rows, colours)):
            bar = Scale(left + 140, 60, 66 + 60 * i + (10 if i > 1 else 0), 14)
            page.text(left, bar.top + 12, name, "bold")
            page.text(left + 48, bar.top + 12, value.split(" (")[0], "small")
            if ") (" in value:
                page.text(left + 48, bar.top + 28, "(" + value.split(" (")[1], "small")
            bar.bar(page, 4, labels="below")
            pieces = stretches if name == "a + b" and column == 1 else None
            if pieces:  # the two pieces overlap: each has half of the bar's height
                first = Scale(bar.left, bar.unit, bar.top, 6.5)
                second = Scale(bar.left, bar.unit, bar.top + 7.5, 6.5)
                first.stretch(page, *pieces[0], colour)
                for start, end in pieces[1:]:
                    second.stretch(page, start, end, colour)
            else:
                for start, end in stretches:
                    bar.stretch(page, start, end, colour)
        page.line(left, 181, left + 380, 181, PALE, 1.5)
    return page.finish()
