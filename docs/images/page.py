"""What the pictures of the documentation share: a page of SVG, its style, bars of positions."""

from xml.sax.saxutils import escape

# The colours of Okabe and Ito, which colour-blind people tell apart.
BLUE, SKY, ORANGE, VERMILLION, GREEN, PURPLE = "#0072b2", "#56b4e9", "#e69f00", "#d55e00", "#009e73", "#cc79a7"
DARK, GREY, PALE = "#222222", "#8c8c8c", "#dcdcd8"

STYLE = """text { font-family: Helvetica, Arial, 'DejaVu Sans', sans-serif; font-size: 14px; fill: #222222; }
.small { font-size: 12px; fill: #555555; }
.bold { font-weight: bold; }
.middle { text-anchor: middle; }
.end { text-anchor: end; }
.halo { paint-order: stroke; stroke: #ffffff; stroke-width: 3px; stroke-linejoin: round; }
"""


def number(value):
    text = "%.2f" % value
    text = text.rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


class Page:
    def __init__(self, width, height, title):
        size = (number(width), number(height))
        self.lines = [
            '<svg xmlns="http://www.w3.org/2000/svg" width="%s" height="%s" viewBox="0 0 %s %s" role="img">'
            % (size + size),
            "<title>%s</title>" % escape(title), "<style>\n%s</style>" % STYLE,
            '<rect width="%s" height="%s" fill="#ffffff"/>' % size]

    def add(self, tag, text=None, **attributes):
        written = "".join(' %s="%s"' % (name.rstrip("_").replace("_", "-"),
                                        escape(value) if isinstance(value, str) else number(value))
                          for name, value in attributes.items() if value is not None)
        self.lines.append("<%s%s/>" % (tag, written) if text is None else
                          "<%s%s>%s</%s>" % (tag, written, escape(text), tag))

    def text(self, x, y, text, classes=None, fill=None):
        self.add("text", text, x=x, y=y, class_=classes, style=fill and "fill: " + fill)

    def line(self, x1, y1, x2, y2, stroke=DARK, width=1.5, dashes=None, cap=None):
        self.add("line", x1=x1, y1=y1, x2=x2, y2=y2, stroke=stroke, stroke_width=width, stroke_dasharray=dashes,
                 stroke_linecap=cap)

    def path(self, data, stroke=DARK, width=1.5, fill="none", opacity=None, dashes=None):
        self.add("path", d=data, stroke=stroke, stroke_width=width, fill=fill, fill_opacity=opacity,
                 stroke_dasharray=dashes, stroke_linejoin="round", stroke_linecap="round")

    def polyline(self, points, closed=False, **style):
        data = "M" + "L".join("%s %s" % (number(x), number(y)) for x, y in points)
        self.path(data + ("Z" if closed else ""), **style)

    def dot(self, x, y, fill=DARK, radius=4.5, stroke="#ffffff"):
        self.add("circle", cx=x, cy=y, r=radius, fill=fill, stroke=stroke, stroke_width=1.5)

    def box(self, x, y, width, height, fill, stroke=None):
        self.add("rect", x=x, y=y, width=width, height=height, fill=fill, stroke=stroke)

    def arrow(self, x1, y1, x2, y2, stroke=DARK, width=1.5, head=8):
        """A line with a filled head at its end."""
        length = ((x2 - x1) ** 2 + (y2 - y1) ** 2) ** 0.5
        ux, uy = (x2 - x1) / length, (y2 - y1) / length
        self.line(x1, y1, x2 - ux * head, y2 - uy * head, stroke, width)
        base = [(x2 - ux * head - side * uy * head / 2.5, y2 - uy * head + side * ux * head / 2.5) for side in (1, -1)]
        self.polyline([(x2, y2)] + base, True, stroke=stroke, width=0.5, fill=stroke)

    def finish(self):
        return "\n".join(self.lines + ["</svg>"]) + "\n"


class Scale:
    """Positions on a horizontal bar."""

    def __init__(self, left, unit, top, height=12):
        self.left, self.unit, self.top, self.height = left, unit, top, height

    def x(self, position):
        return self.left + position * self.unit

    def bar(self, page, count, fill=PALE, labels=None, first=0):
        """A bar of `count` segments, numbered from `first` above or below."""
        for i in range(count):
            page.box(self.x(i) + 0.75, self.top, self.unit - 1.5, self.height, fill)
        if labels:
            y = self.top - 6 if labels == "above" else self.top + self.height + 14
            for i in range(count + 1):
                page.text(self.x(i), y, str(first + i), "small middle")

    def stretch(self, page, start, end, fill):
        page.box(self.x(start), self.top, (end - start) * self.unit, self.height, fill)


def ribbon(page, upper, lower, source, destination, fill):
    """A linear piece of a map, from the lower edge of one bar to the upper edge of another."""
    top, bottom = upper.top + upper.height, lower.top
    page.polyline([(upper.x(source[0]), top), (upper.x(source[1]), top), (lower.x(destination[1]), bottom),
                   (lower.x(destination[0]), bottom)], True, stroke=fill, width=0.8, fill=fill, opacity=0.4)
