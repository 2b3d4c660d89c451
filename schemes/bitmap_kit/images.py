"""Small 16 x 17 pictures for rich text, stored in the 16-colour palette of an image list.

Bright red is never used: it is the colour that the image list masks out (it turns black).
The background is magenta, the strip's transparent colour.
"""
from .canvas import Canvas, box, disc, polygon, stroke, union

MAGENTA = (255, 0, 255)
BLACK, MAROON, GREEN, OLIVE = (0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0)
NAVY, GREY, SILVER, LIME = (0, 0, 128), (128, 128, 128), (192, 192, 192), (0, 255, 0)
YELLOW, BLUE, WHITE = (255, 255, 0), (0, 0, 255), (255, 255, 255)
WIDTH, HEIGHT = 16, 17
CX, CY = 8, 8.5


def _rise(c):
    c.paint(polygon([(CX, 2), (15, 14), (1, 14)]), MAROON, WHITE)


def _fall(c):
    c.paint(polygon([(1, 3), (15, 3), (CX, 15)]), GREEN, LIME)


def _flat(c):
    c.paint(box(2, 7, 14, 11), GREY, SILVER)


def _star(c):
    c.paint(polygon([(8, 1), (10, 6), (15.5, 6.5), (11.3, 10), (12.8, 15.5), (8, 12.5),
                     (3.2, 15.5), (4.7, 10), (0.5, 6.5), (6, 6)]), YELLOW, OLIVE)


def _alert(c):
    c.paint(polygon([(CX, 1), (15.5, 15.5), (0.5, 15.5)]), YELLOW, OLIVE)
    c.paint(union(box(7, 5, 9, 11), box(7, 12, 9, 14)), BLACK)


def _info(c):
    c.paint(disc(CX, CY, 7.5), BLUE, NAVY)
    c.paint(union(box(7, 4, 9, 6), box(7, 7, 9, 14)), WHITE)


def _news(c):
    c.paint(box(2, 1, 14, 16), WHITE, GREY)
    c.paint(box(4, 3, 12, 5), NAVY)
    c.paint(union(box(4, 7, 12, 8), box(4, 10, 12, 11), box(4, 13, 10, 14)), GREY)


def _lock(c):
    c.paint(union(box(4, 3, 12, 5), box(4, 3, 6, 8), box(10, 3, 12, 8)), GREY)
    c.paint(box(2, 8, 14, 16), YELLOW, OLIVE)
    c.paint(box(7, 10, 9, 14), BLACK)


def _clock(c):
    c.paint(disc(CX, CY, 7.5), WHITE, NAVY)
    c.paint(union(stroke(CX, CY, CX, 3.5, 1.5), stroke(CX, CY, 11.5, 10.5, 1.5)), BLACK)


def _flag(c):
    c.paint(box(2, 1, 4, 17), GREY)
    c.paint(polygon([(4, 2), (15, 2), (12, 6), (15, 10), (4, 10)]), BLUE, NAVY)


def _ok(c):
    c.paint(disc(CX, CY, 7.5), GREEN, LIME)
    c.paint(union(stroke(4.5, 8.5, 7, 11.5, 2), stroke(7, 11.5, 11.5, 5.5, 2)), WHITE)


def _stop(c):
    c.paint(disc(CX, CY, 7.5), MAROON, WHITE)
    c.paint(union(stroke(5, 5.5, 11, 11.5, 2), stroke(11, 5.5, 5, 11.5, 2)), WHITE)


PICTURES = (("IMG_RISE", _rise), ("IMG_FALL", _fall), ("IMG_FLAT", _flat), ("IMG_STAR", _star),
            ("IMG_ALERT", _alert), ("IMG_INFO", _info), ("IMG_NEWS", _news),
            ("IMG_LOCK", _lock), ("IMG_CLOCK", _clock), ("IMG_FLAG", _flag), ("IMG_OK", _ok),
            ("IMG_STOP", _stop))


def picture_strip():
    """The strip of all pictures side by side, one 16 x 17 cell each."""
    strip = Canvas(WIDTH * len(PICTURES), HEIGHT, MAGENTA)
    for i, (_, draw) in enumerate(PICTURES):
        cell = Canvas(WIDTH, HEIGHT)
        draw(cell)
        strip.paste(WIDTH * i, 0, cell)
    return strip
