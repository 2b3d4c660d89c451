"""Serialises canvases as Windows BMP files (the scheme's bitmaps) and PNG files (previews)."""
import struct
import zlib

BLACK_WHITE = ((0, 0, 0), (255, 255, 255))

# The 16 colours an image list made without a colour-depth flag keeps; strips cut through such a
# list are stored in exactly these colours so that they come out unchanged.
VGA = ((0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0),
       (0, 0, 128), (128, 0, 128), (0, 128, 128), (192, 192, 192),
       (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0),
       (0, 0, 255), (255, 0, 255), (0, 255, 255), (255, 255, 255))

PALETTES = {1: BLACK_WHITE, 4: VGA, 24: None}


def _row_bytes(row, bits, palette):
    if bits == 24:
        data = b"".join(struct.pack("BBB", b, g, r) for r, g, b in row)
    else:
        index = {colour: i for i, colour in enumerate(palette)}
        try:
            values = [index[colour] for colour in row]
        except KeyError as missing:
            raise ValueError("colour %s is not in the %d-bit palette" % (missing, bits))
        per_byte = 8 // bits
        values += [0] * (-len(values) % per_byte)
        data = bytes(
            sum(v << (8 - bits * (k + 1)) for k, v in enumerate(values[i:i + per_byte]))
            for i in range(0, len(values), per_byte))
    return data + b"\0" * (-len(data) % 4)


def bmp_bytes(canvas, bits):
    """A bottom-up, uncompressed BMP of the canvas with 1, 4 or 24 bits per pixel."""
    palette = PALETTES[bits]
    table = b"".join(struct.pack("BBBB", b, g, r, 0) for r, g, b in palette or ())
    pixels = b"".join(_row_bytes(row, bits, palette) for row in reversed(canvas.rows))
    offset = 14 + 40 + len(table)
    info = struct.pack("<IiiHHIIiiII", 40, canvas.width, canvas.height, 1, bits, 0,
                       len(pixels), 2835, 2835, len(palette or ()), 0)
    header = struct.pack("<2sIHHI", b"BM", offset + len(pixels), 0, 0, offset)
    return header + info + table + pixels


def png_bytes(canvas, scale):
    """An RGB PNG of the canvas, each pixel drawn as a scale x scale block."""
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    raw = bytearray()
    for row in canvas.rows:
        line = b"".join(bytes(colour) * scale for colour in row)
        raw += (b"\0" + line) * scale
    head = struct.pack(">IIBBBBB", canvas.width * scale, canvas.height * scale, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) +
            chunk(b"IDAT", zlib.compress(bytes(raw), 9)) + chunk(b"IEND", b""))
