"""What the tests of outline_tour share: running the program, reading what it prints, and geometry of its own."""

import math
import os
import subprocess
import tempfile

PROGRAM = None
DRAWINGS = None
TREE = None


def set_up(program, tree):
    global PROGRAM, DRAWINGS, TREE
    PROGRAM = os.path.abspath(program)
    TREE = tree
    DRAWINGS = os.path.join(tree, "examples", "outline_tour", "drawings")


def drawing(name):
    return os.path.join(DRAWINGS, name)


class Run:
    """One run of the program in a fresh folder."""

    def __init__(self, *arguments, files=None, stdout=subprocess.PIPE):
        with tempfile.TemporaryDirectory() as folder:
            for name, content in (files or {}).items():
                mode = "wb" if isinstance(content, bytes) else "w"
                with open(os.path.join(folder, name), mode) as file:
                    file.write(content)
            before = set(os.listdir(folder))
            done = subprocess.run([PROGRAM, *arguments], cwd=folder, stdout=stdout, stderr=subprocess.PIPE, timeout=60)
            self.code = done.returncode
            self.output = (done.stdout or b"").decode(errors="replace")
            self.errors = done.stderr.decode(errors="replace")
            self.new_files = sorted(set(os.listdir(folder)) - before)
            self.kept = {}
            for name in os.listdir(folder):
                path = os.path.join(folder, name)
                if os.path.isfile(path):
                    with open(path, "rb") as file:
                        self.kept[name] = file.read()

    def table(self, title):
        """The rows of the table under the line that begins with the title, as dictionaries."""
        lines = self.output.split("\n")
        at = next(i for i, line in enumerate(lines) if line.startswith(title)) + 1
        while lines[at].startswith("  Joints"):
            at += 1
        # The names of columns have single blanks inside; at least two part them.
        names = [name.strip() for name in lines[at].split("  ") if name.strip()]
        rows = []
        for line in lines[at + 1:]:
            if not line.strip() or line.startswith(("  The area", "  A piece")):
                break
            cells = line.split(maxsplit=len(names) - 1)
            rows.append(dict(zip(names, cells + [""] * (len(names) - len(cells)))))
        return rows


# ---- Drawings ----

def read_outlines(path):
    """The LWPOLYLINE entities of a drawing: lists of (x, y, bulge), and whether they are closed."""
    with open(path) as file:
        lines = file.read().split("\n")
    outlines = []
    current = None
    for code, value in zip(lines[0::2], lines[1::2]):
        code, value = code.strip(), value.strip()
        if code == "0":
            current = None
            if value == "LWPOLYLINE":
                current = {"closed": False, "vertices": []}
                outlines.append(current)
        elif current is not None:
            if code == "70":
                current["closed"] = int(value) % 2 == 1
            elif code == "10":
                current["vertices"].append([float(value), None, 0.0])
            elif code == "20":
                current["vertices"][-1][1] = float(value)
            elif code == "42":
                current["vertices"][-1][2] = float(value)
    return outlines


def dxf(*polylines, closed=True):
    """The text of a small drawing."""
    lines = ["0", "SECTION", "2", "ENTITIES"]
    for vertices in polylines:
        lines += ["0", "LWPOLYLINE", "8", "0", "90", str(len(vertices)), "70", "1" if closed else "0"]
        for x, y, bulge in vertices:
            lines += ["10", str(x), "20", str(y), "42", str(bulge)]
    return "\n".join(lines + ["0", "ENDSEC", "0", "EOF"]) + "\n"


# ---- Geometry ----

class Segment:
    """A line or an arc. The arc turns by 4 atan(bulge) from its first to its second end."""

    def __init__(self, start, end, bulge):
        self.start, self.end, self.bulge = start, end, bulge
        self.chord = math.dist(start, end)
        if bulge:
            # The centre lies on the perpendicular bisector, (1 - b^2) / (4 b) chords to the left of the middle.
            side = (1 - bulge * bulge) / (4 * bulge)
            dx, dy = end[0] - start[0], end[1] - start[1]
            self.centre = ((start[0] + end[0]) / 2 - side * dy, (start[1] + end[1]) / 2 + side * dx)
            self.radius = math.dist(self.centre, start)
            self.sweep = 4 * math.atan(bulge)
            self.first = math.atan2(start[1] - self.centre[1], start[0] - self.centre[0])

    def point(self, t):
        if not self.bulge:
            return tuple(a + t * (b - a) for a, b in zip(self.start, self.end))
        angle = self.first + t * self.sweep
        return (self.centre[0] + self.radius * math.cos(angle), self.centre[1] + self.radius * math.sin(angle))

    def length(self):
        return self.radius * abs(self.sweep) if self.bulge else self.chord

    def area(self):
        """Between the segment and the x axis, plus the part between arc and chord; counter-clockwise positive."""
        below = (self.start[0] * self.end[1] - self.end[0] * self.start[1]) / 2
        if not self.bulge:
            return below
        return below + self.radius * self.radius * (self.sweep - math.sin(self.sweep)) / 2

    def extremes(self):
        """Points among which the outermost ones are."""
        points = [self.start, self.end]
        if self.bulge:
            for quarter in range(4):
                t = ((quarter * math.pi / 2 - self.first) / self.sweep) % (2 * math.pi / abs(self.sweep))
                if t <= 1:
                    points.append(self.point(t))
        return points

    def crossings(self, base, direction):
        """Parameters at which the segment meets a line, the direction being a unit vector."""
        def side(point):
            return (point[0] - base[0]) * direction[1] - (point[1] - base[1]) * direction[0]
        if not self.bulge:
            a, b = side(self.start), side(self.end)
            return [a / (a - b)] if a * b < 0 else []
        distance = side(self.centre)
        if abs(distance) >= self.radius:
            return []
        # On the circle the side is distance + radius * cos(angle - towards).
        towards = math.atan2(-direction[0], direction[1])
        half = math.acos(-distance / self.radius)
        turn = 2 * math.pi / abs(self.sweep)
        parameters = [((towards + sign * half - self.first) / self.sweep) % turn for sign in (1, -1)]
        return [t for t in parameters if t <= 1]


def segments_of(outline):
    vertices = outline["vertices"]
    pairs = list(zip(vertices, vertices[1:]))
    if outline["closed"]:
        pairs.append((vertices[-1], vertices[0]))
    return [Segment(a[:2], b[:2], a[2]) for a, b in pairs]


def point_at(segments, position):
    index = min(int(position), len(segments) - 1)
    return segments[index].point(position - index)
