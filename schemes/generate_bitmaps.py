#!/usr/bin/env python3
"""Generates the bitmaps and image configuration of every sample colour scheme.

For each scheme folder cfg/kiv_skin/<scheme>/ holding a colorfont.xml, the colours of that file
drive the art, and the script writes skin/<scheme>/*.bmp plus cfg/kiv_skin/<scheme>/images.xml.

    generate_bitmaps.py                 rewrite the committed files
    generate_bitmaps.py --check         regenerate into a temporary folder and compare bytes
    generate_bitmaps.py --preview DIR   also write 4x PNG previews (and composites) into DIR
"""
import argparse
import filecmp
import os
import re
import sys
import tempfile
import xml.etree.ElementTree as ET

sys.dont_write_bytecode = True

from bitmap_kit import contract, glyphs, icons, images  # noqa: E402
from bitmap_kit.canvas import Canvas, darken, lighten, mix  # noqa: E402
from bitmap_kit.imagefile import bmp_bytes, png_bytes  # noqa: E402

HERE = os.path.dirname(os.path.abspath(__file__))
WHITE, BLACK = (255, 255, 255), (0, 0, 0)
CELL = 21                     # button face cell
ICON_PITCH, ICON_INSET = 23, 2
ICON_HALO = (88, 88, 96)      # ring around icons drawn on dark backgrounds

# Button faces of the set a scheme does not use itself (dark faces for a light scheme and the
# reverse), so that every strip can draw on either kind of background.
DARK_FACES = {"normal": (40, 40, 48), "hover": (64, 64, 80), "pressed": (32, 64, 112),
              "border": (72, 72, 80), "back": BLACK}
LIGHT_FACES = {"normal": (240, 242, 245), "hover": (221, 232, 246), "pressed": (184, 208, 238),
               "border": (200, 204, 212), "back": WHITE}


def scheme_names():
    base = os.path.join(HERE, "cfg", "kiv_skin")
    return sorted(n for n in os.listdir(base)
                  if os.path.isfile(os.path.join(base, n, "colorfont.xml")))


def read_colours(scheme):
    """The scheme's colour table as {key: (r, g, b)}; values are 0x00BBGGRR texts."""
    path = os.path.join(HERE, "cfg", "kiv_skin", scheme, "colorfont.xml")
    with open(path, "rb") as f:
        text = f.read().decode("gb2312")
    root = ET.fromstring(re.sub(r"^<\?xml[^>]*\?>", "", text))
    colours = {}
    for node in root.find("colors").findall("color"):
        value = int(node.get("value"), 16)
        colours[node.get("name")] = (value & 0xFF, value >> 8 & 0xFF, value >> 16 & 0xFF)
    return colours


def is_dark(colour):
    return sum(colour) // 3 < 65


# --- KIV_BTN: faces 0-3 for dark, 4-7 for light backgrounds, then gradient columns ---------

def _face(base, border, highlight, sunken):
    cell = Canvas(CELL, CELL)
    top, bottom = lighten(base, 0.12), darken(base, 0.10)
    if sunken:
        top, bottom = bottom, top
    for y in range(CELL):
        t = min(max(y - 2, 0), 10) / 10.0
        cell.fill(0, y, CELL, 1, mix(top, bottom, t))
    cell.fill(1, 1, CELL - 1, 1, highlight)
    cell.fill(1, 1, 1, CELL - 1, highlight)
    cell.fill(0, 0, CELL, 1, border)
    cell.fill(0, 0, 1, CELL, border)
    return cell


def _face_set(faces, light):
    """Cells in strip order: hover (type 1), normal (type 0), pressed (type -1), disabled."""
    raise_by = (lambda c: WHITE) if light else (lambda c: lighten(c, 0.25))
    disabled = mix(faces["normal"], faces["back"], 0.5)
    return [_face(faces["hover"], faces["border"], raise_by(faces["hover"]), False),
            _face(faces["normal"], faces["border"], raise_by(faces["normal"]), False),
            _face(faces["pressed"], faces["border"], darken(faces["pressed"], 0.3), True),
            _face(disabled, mix(faces["border"], faces["back"], 0.5), disabled, False)]


def _lit_column(colour):
    """A 21-pixel column lit from above its middle, dark at both ends."""
    peak = CELL * 3 // 8
    column = []
    for i in range(CELL):
        w = i / peak if i <= peak else (CELL - 1 - i) / float(CELL - 1 - peak)
        column.append(mix(darken(colour, 0.25), lighten(colour, 0.45), w))
    return column


def button_strip(colours):
    own = {"normal": colours["PLUG_BTN_BGCOLOR"], "hover": colours["PLUG_BTN_BGCOLOR_HOVER"],
           "pressed": colours["PLUG_BTN_BGCOLOR_PRESSED"], "border": colours["SCROLLBARLINE"],
           "back": colours["PLUG_BGCOLOR"]}
    dark = is_dark(own["back"])
    cells = _face_set(own if dark else DARK_FACES, False) + \
        _face_set(LIGHT_FACES if dark else own, True)
    ramps = (colours["PLUG_BTN_BGCOLOR_PRESSED"], colours["UPTEXT"], colours["DOWNTEXT"])
    strip = Canvas(8 * CELL + 33, CELL)
    for i, cell in enumerate(cells):
        strip.paste(CELL * i, 0, cell)
    for r, colour in enumerate(ramps):
        for n in range(11):
            shade = mix(darken(colour, 0.6), lighten(colour, 0.2), n / 10.0)
            for y, c in enumerate(_lit_column(shade)):
                strip.put(8 * CELL + 11 * r + n, y, c)
    return strip


# --- KIV_TOOL and KIV_MARK: one-colour strips of mask (ink black) then glyph (ink white) -----

def _mask_and_glyph(layers, size):
    strip = Canvas(2 * size * len(layers), size, BLACK)
    for i, layer in enumerate(layers):
        strip.fill(2 * size * i, 0, size, size, WHITE)
        for y, row in enumerate(layer.rows):
            for x, ink in enumerate(row):
                if ink is not None:
                    strip.put(2 * size * i + x, y, BLACK)
                    strip.put(2 * size * i + size + x, y, WHITE)
    return strip


def tool_strip():
    return _mask_and_glyph([make() for _, make in glyphs.TOOL_GLYPHS], 16)


def mark_strip():
    return _mask_and_glyph([glyphs.mark_layer(rows) for _, rows in glyphs.MARKS], 12)


# --- KIV_DOT and KIV_FRAME: 8 x 8 brush patterns -------------------------------------------

def dot_pattern(colours):
    """A checkerboard, so that every row and every column is a dotted line."""
    dot, back = lighten(colours["PLUG_FRAME"], 0.15), colours["PLUG_BGCOLOR"]
    pattern = Canvas(8, 8)
    for y in range(8):
        for x in range(8):
            pattern.put(x, y, dot if (x + y) % 2 == 0 else back)
    return pattern


def frame_pattern(colours):
    """Three pixels of frame colour and one softer pixel, along rows and columns alike."""
    frame = colours["PLUG_FRAME"]
    soft = mix(frame, colours["PLUG_BGCOLOR"], 0.5)
    pattern = Canvas(8, 8)
    for y in range(8):
        for x in range(8):
            pattern.put(x, y, soft if (x + y) % 4 == 3 else frame)
    return pattern


# --- IDB_ICONS, IDB_ICONREV, IDB_ICONREVBLACK ----------------------------------------------
# Drawn as (background OR glyph) AND mask: the mask holds the icon on white, the glyphs hold it
# on black; the dark-background glyphs add a light ring that shows through the mask's white.

def _halo(layer, x, y):
    return layer.get(x, y) is None and any(
        layer.get(x + dx, y + dy) is not None for dx in (-1, 0, 1) for dy in (-1, 0, 1))


def icon_strips(colours):
    palette = {"rise": colours["UPTEXT"], "fall": colours["DOWNTEXT"]}
    layers = icons.icon_layers(palette)
    width = ICON_PITCH * len(layers)
    mask, light, dark = Canvas(width, ICON_PITCH, WHITE), Canvas(width, ICON_PITCH, BLACK), \
        Canvas(width, ICON_PITCH, BLACK)
    for i, layer in enumerate(layers):
        x0 = ICON_PITCH * i + ICON_INSET
        for strip in (mask, light, dark):
            strip.paste(x0, ICON_INSET, layer)
        for y in range(icons.SIZE):
            for x in range(icons.SIZE):
                if _halo(layer, x, y):
                    dark.put(x0 + x, ICON_INSET + y, ICON_HALO)
    return mask, light, dark


# --- Writing ----------------------------------------------------------------------------------

def scheme_bitmaps(colours):
    """(key, file name, canvas, bits per pixel) of every bitmap of one scheme."""
    mask, light, dark = icon_strips(colours)
    return [("KIV_BTN", "kiv_btn.bmp", button_strip(colours), 24),
            ("KIV_TOOL", "kiv_tool.bmp", tool_strip(), 1),
            ("KIV_MARK", "kiv_mark.bmp", mark_strip(), 1),
            ("KIV_DOT", "kiv_dot.bmp", dot_pattern(colours), 24),
            ("KIV_FRAME", "kiv_frame.bmp", frame_pattern(colours), 24),
            ("IDB_ICONS", "idb_icons.bmp", mask, 24),
            ("IDB_ICONREV", "idb_iconrev.bmp", light, 24),
            ("IDB_ICONREVBLACK", "idb_iconrevblack.bmp", dark, 24),
            ("IDB_IMAGES", "idb_images.bmp", images.picture_strip(), 4)]


def image_config(scheme, bitmaps):
    lines = ['<?xml version="1.0" encoding="GB2312" ?>',
             "<!-- Written by schemes/generate_bitmaps.py from the scheme's colours. -->",
             "<images>"]
    for key, name, _, _ in bitmaps:
        path = "skin\\%s\\%s" % (scheme, name)
        if key != "IDB_IMAGES":
            lines.append('    <image name="%s" file="%s" />' % (key, path))
            continue
        lines.append('    <imagelist name="%s" file="%s" width="%d" height="%d" '
                     'mask="255,0,255">' % (key, path, images.WIDTH, images.HEIGHT))
        lines += ['        <image name="%s" />' % n for n, _ in images.PICTURES]
        lines.append("    </imagelist>")
    return "\n".join(lines + ["</images>", ""]).encode("ascii")


def _write(path, data):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as f:
        f.write(data)


def generate(root, preview=None):
    """Writes every scheme's files below root; returns their paths relative to root."""
    written = []
    for scheme in scheme_names():
        colours = read_colours(scheme)
        bitmaps = scheme_bitmaps(colours)
        for _, name, canvas, bits in bitmaps:
            written.append(os.path.join("skin", scheme, name))
            _write(os.path.join(root, written[-1]), bmp_bytes(canvas, bits))
        written.append(os.path.join("cfg", "kiv_skin", scheme, "images.xml"))
        _write(os.path.join(root, written[-1]), image_config(scheme, bitmaps))
        if preview:
            write_previews(os.path.join(preview, scheme), colours, bitmaps)
    return written


def write_previews(folder, colours, bitmaps):
    """4x PNGs of every bitmap, plus the icons as the drawing code composes them."""
    for _, name, canvas, _ in bitmaps:
        _write(os.path.join(folder, name[:-4] + ".png"), png_bytes(canvas, 4))
    strips = {key: canvas for key, _, canvas, _ in bitmaps}
    back = colours["BACKGROUND"]
    glyph = strips["IDB_ICONREVBLACK" if is_dark(back) else "IDB_ICONREV"]
    shown = Canvas(glyph.width, glyph.height)
    shown.rows = [[tuple((b | g) & m for b, g, m in zip(back, gp, mp))
                   for gp, mp in zip(grow, mrow)]
                  for grow, mrow in zip(glyph.rows, strips["IDB_ICONS"].rows)]
    _write(os.path.join(folder, "icons_on_background.png"), png_bytes(shown, 4))


def check():
    """True when a fresh generation equals the committed files and every scheme is complete."""
    with tempfile.TemporaryDirectory() as fresh:
        written = generate(fresh)
        committed = set()
        for scheme in scheme_names():
            folder = os.path.join(HERE, "skin", scheme)
            if os.path.isdir(folder):
                committed |= {os.path.join("skin", scheme, n) for n in os.listdir(folder)}
        stale = sorted(committed - set(written))
        differing = [p for p in written
                     if not os.path.isfile(os.path.join(HERE, p)) or
                     not filecmp.cmp(os.path.join(fresh, p), os.path.join(HERE, p), False)]
    for path in stale:
        print("not produced by the generator: %s" % path)
    for path in differing:
        print("differs from the generator's output: %s" % path)
    if stale or differing:
        print("run schemes/generate_bitmaps.py and commit the result")
    problems = [p for s in scheme_names() for p in contract.scheme_problems(HERE, s)]
    for problem in problems:
        print(problem)
    if stale or differing or problems:
        return False
    print("%d generated files match; every scheme has its keys and geometry" % len(written))
    return True


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true",
                        help="compare a fresh generation with the committed files")
    parser.add_argument("--preview", metavar="DIR", help="also write PNG previews into DIR")
    args = parser.parse_args()
    if args.check:
        return 0 if check() else 1
    generate(HERE, args.preview)
    return 0


if __name__ == "__main__":
    sys.exit(main())
