"""What the library asks of a scheme: the keys it looks up and the geometry it cuts bitmaps by.

Checked against the files on disk, independently of how the generator drew them.
"""
import os
import re
import struct
import xml.etree.ElementTree as ET

COLOUR_KEYS = ("DEFCOLOR", "BACKGROUND", "PLUG_BGCOLOR", "PLUG_FRAME", "PLUG_SELCOLOR",
               "PLUG_TITLE_BGCOLOR", "PLUG_TITLE_TEXT", "PLUG_TIME_COLOR1", "PLUG_BTN_BGCOLOR",
               "PLUG_BTN_BGCOLOR_HOVER", "PLUG_BTN_BGCOLOR_PRESSED", "PLUG_BTN_TEXTCOLOR",
               "AXIS", "SCROLLBARTEXT", "SCROLLBARLINE", "SCROLLBARBACK", "UPTEXT", "EQUTEXT",
               "DOWNTEXT")
FONT_KEYS = ("DEFAULT", "PLUG_TITLE", "PLUG_STDFONT", "SMALL")
BRIGHT_RED = 9  # index in the 16-colour palette; an image list masks it out

# key: (bits per pixel, test of width and height, what the test means)
GEOMETRY = {
    "KIV_BTN": (24, lambda w, h: w >= 201 and h == 21,
                "eight 21 x 21 faces and gradient columns up to x 200"),
    "KIV_TOOL": (1, lambda w, h: w % 32 == 0 and w > 0 and h == 16,
                 "16-row icons of 32 columns (mask, glyph)"),
    "KIV_MARK": (1, lambda w, h: w >= 24 * 10 and w % 24 == 0 and h == 12,
                 "ten 12-row marks of 24 columns (mask, glyph)"),
    "KIV_DOT": (24, lambda w, h: (w, h) == (8, 8), "an 8 x 8 brush"),
    "KIV_FRAME": (24, lambda w, h: (w, h) == (8, 8), "an 8 x 8 brush"),
    "IDB_ICONS": (24, lambda w, h: (w, h) == (28 * 23, 23), "28 icons at a pitch of 23"),
    "IDB_ICONREV": (24, lambda w, h: (w, h) == (28 * 23, 23), "28 icons at a pitch of 23"),
    "IDB_ICONREVBLACK": (24, lambda w, h: (w, h) == (28 * 23, 23), "28 icons at a pitch of 23"),
    "IDB_IMAGES": (4, lambda w, h: w % 16 == 0 and w > 0 and h == 17, "16 x 17 cells"),
}


def _parse_xml(path):
    with open(path, "rb") as f:
        text = f.read().decode("gb2312")
    return ET.fromstring(re.sub(r"^<\?xml[^>]*\?>", "", text))


def _bmp(path):
    with open(path, "rb") as f:
        data = f.read()
    if data[:2] != b"BM":
        raise ValueError("not a BMP file")
    offset, = struct.unpack_from("<I", data, 10)
    width, height, _, bits, compression = struct.unpack_from("<iiHHI", data, 18)
    return width, height, bits, compression, data[offset:]


def _uses_bright_red(width, height, pixels):
    stride = (width * 4 + 31) // 32 * 4
    for y in range(height):
        row = pixels[y * stride:y * stride + (width + 1) // 2]
        if any(b >> 4 == BRIGHT_RED or b & 15 == BRIGHT_RED for b in row):
            return True
    return False


def scheme_problems(root, scheme):
    """Problems of one installed scheme below root (the folder holding cfg and skin)."""
    problems = []
    folder = os.path.join(root, "cfg", "kiv_skin", scheme)
    colorfont = _parse_xml(os.path.join(folder, "colorfont.xml"))
    colours = {c.get("name"): c.get("value") for c in colorfont.find("colors")}
    fonts = {f.get("kivfontname") for f in colorfont.find("fonts")}
    problems += ["colour %s missing" % k for k in COLOUR_KEYS
                 if not re.match(r"0x00[0-9A-F]{6}$", colours.get(k) or "")]
    problems += ["font %s missing" % k for k in FONT_KEYS if k not in fonts]
    named = {}
    for node in _parse_xml(os.path.join(folder, "images.xml")):
        named[node.get("name")] = node.get("file")
    for key, (bits, fits, meaning) in sorted(GEOMETRY.items()):
        if key not in named:
            problems.append("image %s missing" % key)
            continue
        path = os.path.join(root, *named[key].split("\\"))
        width, height, got_bits, compression, pixels = _bmp(path)
        if got_bits != bits or compression != 0 or not fits(width, height):
            problems.append("%s is %d x %d at %d bits; expected %s at %d bits"
                            % (key, width, height, got_bits, meaning, bits))
        elif bits == 4 and _uses_bright_red(width, height, pixels):
            problems.append("%s uses bright red, which its image list turns black" % key)
    return ["%s: %s" % (scheme, p) for p in problems]
