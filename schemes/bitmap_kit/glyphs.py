"""One-colour glyphs: the 16 x 16 tool-button icons and the 12 x 12 quote marks.

Each glyph is a layer whose covered pixels are the ink; the strips store a mask (ink black) and
a glyph (ink white) side by side, and the drawing code colours them through the device context.
"""
from .canvas import Canvas, arc, box, disc, polygon, ring, stroke, union

INK = (255, 255, 255)


def _picture(size, rows):
    layer = Canvas(size, size)
    layer.art(0, 0, rows, {"#": INK})
    return layer


def _shape(size, shape):
    layer = Canvas(size, size)
    layer.paint(shape, INK)
    return layer


def _close():
    return _shape(16, union(stroke(4, 4, 12, 12, 2.4), stroke(12, 4, 4, 12, 2.4)))


def _minimise():
    return _shape(16, box(3, 10, 13, 12))


def _maximise():
    return _picture(16, [""] * 3 + ["...##########..."] * 2 + ["...#........#..."] * 7 +
                    ["...##########..."])


def _restore():
    return _picture(16, [
        "", "", "",
        "......#######...",
        "......#######...",
        "......#.....#...",
        "...#######..#...",
        "...#######..#...",
        "...#.....#..#...",
        "...#.....####...",
        "...#.....#......",
        "...#.....#......",
        "...#######......"])


def _settings():
    return _picture(16, [
        "", "",
        ".......##.......",
        "...##..##..##...",
        "...##########...",
        "....###..###....",
        "....##....##....",
        "..####....####..",
        "..####....####..",
        "....##....##....",
        "....###..###....",
        "...##########...",
        "...##..##..##...",
        ".......##......."])


def _refresh():
    head = polygon([(9.0, 0.5), (13.5, 4.0), (9.0, 7.5)])
    return _shape(16, union(arc(8, 8, 6, 4, 15, 275), head))


def _menu():
    return _shape(16, union(box(3, 4, 13, 6), box(3, 7, 13, 9), box(3, 10, 13, 12)))


def _pin():
    return _picture(16, [
        "", "",
        ".....######.....",
        "......####......",
        "......####......",
        "......####......",
        ".....######.....",
        "....########....",
        "....########....",
        ".......##.......",
        ".......##.......",
        ".......##.......",
        ".......##......."])


def _search():
    return _shape(16, union(ring(6.5, 6.5, 4.8, 2.8), stroke(10, 10, 13.5, 13.5, 2.6)))


def _add():
    return _shape(16, union(box(3, 7, 13, 9), box(7, 3, 9, 13)))


def _help():
    return _picture(16, [
        "", "",
        ".....######.....",
        "....########....",
        "....##....##....",
        "..........##....",
        "........###.....",
        ".......###......",
        ".......##.......",
        ".......##.......",
        "",
        ".......##.......",
        ".......##......."])


def _lock():
    body = box(3, 7, 13, 14)
    keyhole = union(disc(8, 9.5, 1.1), box(7, 10, 9, 12))
    layer = _shape(16, union(arc(8, 7, 4.5, 2.6, 180, 360), box(3, 6, 5, 8), box(11, 6, 13, 8),
                             lambda x, y: body(x, y) and not keyhole(x, y)))
    return layer


TOOL_GLYPHS = (("close", _close), ("minimise", _minimise), ("maximise", _maximise),
               ("restore", _restore), ("settings", _settings), ("refresh", _refresh),
               ("menu", _menu), ("pin", _pin), ("search", _search), ("add", _add),
               ("help", _help), ("lock", _lock))


def _flip(rows):
    """Mirrors a 12-row mark about row 6, the row its frame is centred on."""
    return rows[:1] + rows[1:][::-1]


_UP_ARROW = ["", ".....#", "....###", "...#####", "..#######", ".#########"] + \
            ["....###"] * 5 + [""]
_UP_TRIANGLE = ["", "", "", "", ".....#", "....###", "...#####", "..#######", ".#########",
                "", "", ""]
_LEFT_TRIANGLE = ["", "", ".......#", "......##", ".....###", "....####", "...#####",
                  "....####", ".....###", "......##", ".......#", ""]
_RIGHT_TRIANGLE = ["", "", "...#", "...##", "...###", "...####", "...#####", "...####",
                   "...###", "...##", "...#", ""]
_PLUS = ["", "", "", "....###", "....###", "..#######", "..#######", "..#######", "....###",
         "....###", "", ""]
_MINUS = ["", "", "", "", "", "..#######", "..#######", "..#######", "", "", "", ""]
_FLAT = ["", "", "", "", "..#######", "..#######", "", "..#######", "..#######", "", "", ""]
_SMALL = ["", ".....#", "....###", "...#####", "....###", ".....#"]

# Marks by number; 2 and 3 stand for the sign of a falling and a rising price, 9 is the small
# mark whose frame is 7 units wide.
MARKS = (("up arrow", _UP_ARROW), ("down arrow", _flip(_UP_ARROW)),
         ("fall", _flip(_UP_TRIANGLE)), ("rise", _UP_TRIANGLE),
         ("left", _LEFT_TRIANGLE), ("right", _RIGHT_TRIANGLE),
         ("plus", _PLUS), ("minus", _MINUS), ("flat", _FLAT), ("small", _SMALL))


def mark_layer(rows):
    return _picture(12, rows)
