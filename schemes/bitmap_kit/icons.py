"""The 28 scheme icons: full-colour 19 x 19 pictures on transparent layers."""
import math

from .canvas import Canvas, arc, box, darken, disc, polygon, ring, stroke, union

SIZE = 19
C = 9.5  # centre of a cell, in pixel-edge coordinates

GOLD = (245, 190, 40)
BLUE = (52, 120, 220)
SKY = (170, 210, 250)
GREY = (150, 156, 168)
INK = (60, 64, 76)
PAPER = (252, 252, 248)
PAPER_EDGE = (128, 136, 152)
WHITE = (255, 255, 255)
BROWN = (150, 96, 50)
ORANGE = (240, 130, 40)
TEAL = (30, 170, 170)


def _solid(layer, shape, colour):
    layer.paint(shape, colour, darken(colour, 0.4))


def _star(cx, cy, outer, inner):
    points = []
    for k in range(10):
        r = outer if k % 2 == 0 else inner
        a = math.radians(-90 + 36 * k)
        points.append((cx + r * math.cos(a), cy + r * math.sin(a)))
    return polygon(points)


def _rise(l, p):
    _solid(l, polygon([(C, 2), (17.5, 15.5), (1.5, 15.5)]), p["rise"])


def _fall(l, p):
    _solid(l, polygon([(1.5, 3.5), (17.5, 3.5), (C, 17)]), p["fall"])


def _flat(l, p):
    _solid(l, box(2, 7, 17, 12), GREY)


def _favourite(l, p):
    _solid(l, _star(C, 10.3, 8.8, 3.7), GOLD)


def _bell(l, p):
    body = union(disc(C, 8, 5.5), box(4, 8, 15, 14), polygon([(4, 12), (15, 12), (17.5, 15),
                                                               (1.5, 15)]))
    _solid(l, disc(C, 16, 2), BROWN)
    _solid(l, body, GOLD)


def _info(l, p):
    _solid(l, disc(C, C, 8.7), BLUE)
    l.paint(union(box(8, 4, 11, 7), box(8, 8, 11, 15)), WHITE)


def _warning(l, p):
    _solid(l, polygon([(C, 0.8), (18.3, 17.5), (0.7, 17.5)]), GOLD)
    l.paint(union(box(8, 6, 11, 12), box(8, 13, 11, 16)), INK)


def _news(l, p):
    l.paint(box(3, 1, 16, 18), PAPER, PAPER_EDGE)
    l.paint(box(5, 4, 14, 6), BLUE)
    l.paint(union(box(5, 8, 14, 9), box(5, 11, 14, 12), box(5, 14, 11, 15)), GREY)


def _lock(l, p):
    l.paint(union(arc(C, 8, 5, 3, 180, 360), box(4, 8, 6, 10), box(13, 8, 15, 10)),
            darken(GREY, 0.2))
    _solid(l, box(3, 9, 16, 18), GOLD)
    l.paint(union(disc(C, 12.5, 1.6), box(9, 13, 10, 16)), INK)


def _home(l, p):
    _solid(l, box(4, 9, 15, 18), PAPER)
    _solid(l, box(8, 12, 11, 18), BROWN)
    _solid(l, polygon([(C, 1.5), (18.5, 10.5), (0.5, 10.5)]), ORANGE)


def _clock(l, p):
    l.paint(disc(C, C, 8.7), PAPER, BLUE)
    l.paint(ring(C, C, 8.7, 7.4), BLUE)
    l.paint(union(stroke(C, C, C, 4, 1.8), stroke(C, C, 13.5, 11.5, 1.8)), INK)


def _calendar(l, p):
    l.paint(box(2, 3, 17, 18), PAPER, PAPER_EDGE)
    _solid(l, box(2, 3, 17, 8), p["rise"])
    l.paint(union(box(5, 1, 7, 5), box(12, 1, 14, 5)), INK)
    l.paint(union(*(box(x, y, x + 2, y + 2) for x in (5, 9, 13) for y in (10, 14))), GREY)


def _line_chart(l, p):
    l.paint(union(box(2, 2, 4, 17), box(2, 15, 17, 17)), INK)
    l.paint(union(stroke(5, 12, 8.5, 7.5, 2), stroke(8.5, 7.5, 11.5, 10.5, 2),
                  stroke(11.5, 10.5, 16.5, 3.5, 2)), BLUE)


def _candles(l, p):
    l.paint(box(5, 2, 6, 17), darken(p["rise"], 0.3))
    _solid(l, box(3, 5, 8, 13), p["rise"])
    l.paint(box(13, 4, 14, 18), darken(p["fall"], 0.3))
    _solid(l, box(11, 7, 16, 15), p["fall"])


def _volume(l, p):
    _solid(l, box(2, 10, 6, 18), p["fall"])
    _solid(l, box(7, 3, 11, 18), p["rise"])
    _solid(l, box(12, 7, 16, 18), p["rise"])


def _pie(l, p):
    _solid(l, disc(C, C, 8.7), BLUE)
    _solid(l, arc(C, C, 8.7, 0, 270, 360), GOLD)


def _search(l, p):
    _solid(l, stroke(12, 12, 16.5, 16.5, 3.4), BROWN)
    l.paint(disc(8, 8, 6), SKY, darken(BLUE, 0.2))
    l.paint(ring(8, 8, 6, 4.6), BLUE)


def _gear(l, p):
    teeth = [stroke(C + 5 * math.cos(math.radians(a)), C + 5 * math.sin(math.radians(a)),
                    C + 8 * math.cos(math.radians(a)), C + 8 * math.sin(math.radians(a)), 3.2)
             for a in range(0, 360, 45)]
    _solid(l, union(ring(C, C, 6.3, 2.6), *teeth), GREY)


def _refresh(l, p):
    head = polygon([(10.5, -1.4), (15.5, 3.6), (9.7, 7.6)])
    _solid(l, union(arc(C, C, 8, 4.8, 20, 275), head), p["fall"])


def _folder(l, p):
    _solid(l, union(box(2, 3, 8, 7), box(2, 5, 17, 16)), GOLD)


def _user(l, p):
    bust = lambda x, y: disc(C, 19, 8)(x, y) and y < 18
    _solid(l, bust, BLUE)
    _solid(l, disc(C, 6.5, 4), BLUE)


def _mail(l, p):
    l.paint(box(1, 4, 18, 16), PAPER, PAPER_EDGE)
    l.paint(union(stroke(1.5, 4.5, C, 11, 1.4), stroke(C, 11, 17.5, 4.5, 1.4)), PAPER_EDGE)


def _flag(l, p):
    l.paint(box(3, 1, 5, 19), INK)
    _solid(l, polygon([(5, 2), (17, 2), (13.5, 6.5), (17, 11), (5, 11)]), p["rise"])


def _add(l, p):
    _solid(l, disc(C, C, 8.7), darken(p["fall"], 0.1))
    l.paint(union(box(5, 8, 14, 11), box(8, 5, 11, 14)), WHITE)


def _remove(l, p):
    _solid(l, disc(C, C, 8.7), darken(p["rise"], 0.1))
    l.paint(box(5, 8, 14, 11), WHITE)


def _check(l, p):
    _solid(l, union(stroke(2.5, 10, 7.5, 15, 3.4), stroke(7.5, 15, 16.5, 4, 3.4)), p["fall"])


def _cross(l, p):
    _solid(l, union(stroke(3.5, 3.5, 15.5, 15.5, 3.4), stroke(15.5, 3.5, 3.5, 15.5, 3.4)),
           p["rise"])


def _trend(l, p):
    _solid(l, union(stroke(2.5, 16, 13, 5.5, 3), polygon([(9, 2), (17, 2), (17, 10)])), TEAL)


ICONS = (_rise, _fall, _flat, _favourite, _bell, _info, _warning, _news, _lock, _home, _clock,
         _calendar, _line_chart, _candles, _volume, _pie, _search, _gear, _refresh, _folder,
         _user, _mail, _flag, _add, _remove, _check, _cross, _trend)


def icon_layers(palette):
    """One transparent layer per icon, in strip order."""
    layers = []
    for draw in ICONS:
        layer = Canvas(SIZE, SIZE)
        draw(layer, palette)
        layers.append(layer)
    return layers
