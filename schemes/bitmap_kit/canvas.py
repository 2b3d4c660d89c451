"""A pixel canvas, colour arithmetic and shapes described as pixel predicates."""
import math


def mix(a, b, t):
    """Colour a moved by the fraction t toward colour b."""
    return tuple(int(round(x + (y - x) * t)) for x, y in zip(a, b))


def lighten(colour, t):
    return mix(colour, (255, 255, 255), t)


def darken(colour, t):
    return mix(colour, (0, 0, 0), t)


class Canvas:
    """Rows of (r, g, b) tuples; None marks a pixel that no art covers (used by layers)."""

    def __init__(self, width, height, fill=None):
        self.width, self.height = width, height
        self.rows = [[fill] * width for _ in range(height)]

    def inside(self, x, y):
        return 0 <= x < self.width and 0 <= y < self.height

    def get(self, x, y):
        return self.rows[y][x] if self.inside(x, y) else None

    def put(self, x, y, colour):
        if self.inside(x, y):
            self.rows[y][x] = colour

    def fill(self, x, y, w, h, colour):
        for j in range(y, y + h):
            for i in range(x, x + w):
                self.put(i, j, colour)

    def paint(self, shape, colour, edge=None):
        """Fills the pixels of shape; with edge, the pixels on its border take that colour."""
        for y in range(self.height):
            for x in range(self.width):
                if not shape(x, y):
                    continue
                border = edge is not None and not all(
                    shape(x + dx, y + dy) for dx, dy in ((1, 0), (-1, 0), (0, 1), (0, -1)))
                self.rows[y][x] = edge if border else colour

    def art(self, x, y, picture, colours):
        """Draws rows of characters; each character maps to a colour, others are left alone."""
        for j, line in enumerate(picture):
            for i, ch in enumerate(line):
                if ch in colours:
                    self.put(x + i, y + j, colours[ch])

    def paste(self, x, y, other):
        for j, row in enumerate(other.rows):
            for i, colour in enumerate(row):
                if colour is not None:
                    self.put(x + i, y + j, colour)

    def scaled(self, factor):
        out = Canvas(self.width * factor, self.height * factor)
        out.rows = [[c for c in row for _ in range(factor)] for row in self.rows
                    for _ in range(factor)]
        return out


# Shapes: functions of a pixel (x, y) answering whether the pixel's centre lies in the shape.

def box(x0, y0, x1, y1):
    return lambda x, y: x0 <= x < x1 and y0 <= y < y1


def disc(cx, cy, r):
    return lambda x, y: (x + 0.5 - cx) ** 2 + (y + 0.5 - cy) ** 2 <= r * r


def ring(cx, cy, outer, inner):
    return minus(disc(cx, cy, outer), disc(cx, cy, inner))


def polygon(points):
    def test(x, y):
        px, py, hit = x + 0.5, y + 0.5, False
        for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
            if (ay > py) != (by > py) and px < ax + (py - ay) * (bx - ax) / (by - ay):
                hit = not hit
        return hit
    return test


def stroke(ax, ay, bx, by, width):
    """A straight band of the given width between two points (in pixel-centre units)."""
    def test(x, y):
        px, py = x + 0.5, y + 0.5
        dx, dy = bx - ax, by - ay
        t = max(0.0, min(1.0, ((px - ax) * dx + (py - ay) * dy) / float(dx * dx + dy * dy)))
        return math.hypot(px - ax - t * dx, py - ay - t * dy) <= width / 2.0
    return test


def arc(cx, cy, outer, inner, start, end):
    """Part of a ring between two angles in degrees (0 = right, counted clockwise on screen)."""
    def test(x, y):
        angle = math.degrees(math.atan2(y + 0.5 - cy, x + 0.5 - cx)) % 360
        return ring(cx, cy, outer, inner)(x, y) and (start <= angle <= end if start <= end
                                                     else angle >= start or angle <= end)
    return test


def union(*shapes):
    return lambda x, y: any(s(x, y) for s in shapes)


def minus(shape, cut):
    return lambda x, y: shape(x, y) and not cut(x, y)
