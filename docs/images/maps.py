"""Pictures for maps.md."""

from page import BLUE, DARK, GREEN, GREY, ORANGE, PALE, SKY, VERMILLION, Page, Scale, ribbon


def map_graph():
    page = Page(640, 470, "A position map as a graph")
    unit, left, bottom = 84, 84, 400
    joints = [(1, 0), (2, 1), (2, 2), (3, 3), (4, 3), (5, 4)]

    def at(source, destination):
        return left + source * unit, bottom - destination * unit
    for i in range(6):
        page.line(*at(i, 0), *at(i, 4), PALE, 1)
        if i < 5:
            page.line(*at(0, i), *at(5, i), PALE, 1)
            page.text(left - 10, bottom - i * unit + 5, str(i), "end")
        page.text(left + i * unit, bottom + 20, str(i), "middle")
    page.line(*at(4, -0.1), *at(4, 4.18), GREY, 1.5, "5 4")
    page.text(left + 4 * unit, bottom - 4.18 * unit - 6, "seam: 4 is also 0", "small middle")
    page.text(left + 5 * unit, bottom + 36, "(is 1)", "small middle")
    page.text(left + 2.5 * unit, bottom + 52, "source position", "bold middle")
    page.add("text", "destination position", x=-(bottom - 2 * unit), y=34, class_="bold middle",
             transform="rotate(-90)")
    colours = [BLUE, VERMILLION, BLUE, GREEN, BLUE]
    for first, second, colour in zip(joints, joints[1:], colours):
        page.line(*at(*first), *at(*second), colour, 3.5, cap="round")
    for joint in joints:
        page.dot(*at(*joint), fill=DARK)
    page.text(left + 1.58 * unit, bottom - 0.42 * unit, "straight", "halo", BLUE)
    page.text(left + 2 * unit - 10, bottom - 1.5 * unit + 5, "jump", "halo end", VERMILLION)
    page.text(left + 3.5 * unit, bottom - 3 * unit + 24, "flat", "halo middle", "#00664b")
    page.text(left + 4.62 * unit, bottom - 3.4 * unit, "over the seam", "halo", BLUE)
    return page.finish()


def map_composition():
    page = Page(860, 360, "Composition of two maps")
    a = [(0, 0), (1, 1), (2, 3)]
    b = [(0, 0), (1.5, 3), (3, 4)]
    both = [(0, 0), (1, 2), (1.25, 3), (2, 4)]
    source, middle, destination = (Scale(140, 66, top) for top in (74, 180, 286))
    page.text(24, 32, "a, then b", "bold")
    for name, bar, count, labels in (("source of a", source, 2, "above"), ("between", middle, 3, None),
                                     ("destination of b", destination, 4, "below")):
        page.text(24, bar.top + 10, name, "small")
        bar.bar(page, count, labels=labels)
    for i in range(4):
        page.text(middle.x(i) + 6, middle.top - 6, str(i), "small halo")

    def draw(upper, lower, joints, colour):
        for first, second in zip(joints, joints[1:]):
            ribbon(page, upper, lower, (first[0], second[0]), (first[1], second[1]), colour)
    draw(source, middle, a, SKY)
    draw(middle, destination, b, ORANGE)
    # A joint of b, and the place of a's source that lands on it: 1 + (1.5 - 1) / 2.
    page.line(source.x(1.25), source.top + 12, middle.x(1.5), middle.top, VERMILLION, 2, "5 3")
    page.line(middle.x(1.5), middle.top + 12, destination.x(3), destination.top, VERMILLION, 2)
    # A joint of a, and where b carries it: 3 / 1.5.
    page.line(source.x(1), source.top + 12, middle.x(1), middle.top, BLUE, 2)
    page.line(middle.x(1), middle.top + 12, destination.x(2), destination.top, BLUE, 2, "5 3")
    for bar, of_a, of_b in ((source, 1, 1.25), (middle, 1, 1.5), (destination, 2, 3)):
        page.dot(bar.x(of_a), bar.top + 6, fill=BLUE)
        page.dot(bar.x(of_b), bar.top + 6, fill=VERMILLION)
    page.text(source.x(0.45), 138, "a", "bold middle", BLUE)
    page.text(source.x(0.45), 244, "b", "bold middle", "#8a5c00")

    source, destination = Scale(500, 80, 74), Scale(500, 80, 286)
    page.text(490, 32, "a * b: joints of either", "bold")
    source.bar(page, 2, labels="above")
    destination.bar(page, 4, labels="below")
    draw(source, destination, both, GREEN)
    for place, image, colour in ((1, 2, BLUE), (1.25, 3, VERMILLION)):
        page.line(source.x(place), source.top + 12, destination.x(image), destination.top, colour, 2)
        page.dot(source.x(place), source.top + 6, fill=colour)
        page.dot(destination.x(image), destination.top + 6, fill=colour)
    page.text(source.x(1.25) + 4, source.top - 6, "1.25", "small middle")
    page.text(destination.x(2), 336, "(0, 0)  (1, 2)  (1.25, 3)  (2, 4)", "small middle")
    return page.finish()


def draw_map(page, upper, lower, counts, pieces, first=(0, 0)):
    """A map between two bars. Pieces: source stretch, destination stretch, colour."""
    upper.bar(page, counts[0], labels="above", first=first[0])
    lower.bar(page, counts[1], labels="below", first=first[1])
    for source, destination, colour in pieces:
        ribbon(page, upper, lower, source, destination, colour)


def map_combiners():
    page = Page(950, 610, "The combiners of position maps")
    unit = 38
    rows = [
        ("CombineTwoCad", "two outlines;", "gives the maps into the whole", None, None,
         [((0, 2), (0, 2), SKY), ((2, 5), (2, 5), ORANGE)], (5, 5)),
        ("CombineTwonMapWithSameDst", "the sources;", "the destination stays", ((2, 4), (0, 2), (0, 2)),
         ((2, 4), (0, 2), (2, 4)), [((0, 2), (0, 2), SKY), ((2, 4), (2, 4), ORANGE)], (4, 4)),
        ("CombineTwonMapWithSameSrc", "the destinations;", "the source stays", ((4, 2), (0, 2), (0, 2)),
         ((4, 2), (2, 4), (0, 2)), [((0, 2), (0, 2), SKY), ((2, 4), (2, 4), ORANGE)], (4, 4)),
        ("CombineTwoMapStandalone", "both;", "nothing stays", ((2, 2), (0, 2), (0, 2)), ((2, 3), (0, 2), (0, 3)),
         [((0, 2), (0, 2), SKY), ((2, 4), (2, 5), ORANGE)], (4, 5)),
    ]
    page.text(290, 30, "first", "bold", BLUE)
    page.text(490, 30, "second", "bold", "#a66f00")
    page.text(715, 30, "joined", "bold")
    for i, (name, joined, stays, first, second, pieces, counts) in enumerate(rows):
        top = 72 + 142 * i
        if i:
            page.line(24, top - 38, 926, top - 38, PALE, 1)
        page.text(24, top + 18, name, "bold")
        page.text(24, top + 38, "joins " + joined, "small")
        page.text(24, top + 55, stays, "small")
        for left, part, colour in ((290, first, SKY), (490, second, ORANGE)):
            if part:
                sizes, source, destination = part
                draw_map(page, Scale(left, unit, top), Scale(left, unit, top + 60), sizes,
                         [(source, destination, colour)])
        if not first:
            Scale(290, unit, top + 30).bar(page, 2, fill=SKY, labels="above")
            Scale(490, unit, top + 30).bar(page, 3, fill=ORANGE, labels="above")
            parts = Scale(715, unit, top), Scale(715 + 2 * unit, unit, top)
            lower = Scale(715, unit, top + 60)
            lower.bar(page, 5, labels="below")
            for part, count, colour in zip(parts, (2, 3), (SKY, ORANGE)):
                part.bar(page, count, fill=colour)
                for k in range(count + 1):
                    inset = 7 if k == 0 and part is parts[1] else -7 if k == 2 and part is parts[0] else 0
                    page.text(part.x(k) + inset, top - 6, str(k), "small middle")
            for source, destination, colour in pieces:
                ribbon(page, parts[0], lower, source, destination, colour)
        else:
            draw_map(page, Scale(715, unit, top), Scale(715, unit, top + 60), counts, pieces)
        page.arrow(666, top + 36, 692, top + 36, GREY, 2, 10)
    return page.finish()
