#!/usr/bin/env python3
"""Writes the pictures the GDI tests check pixel by pixel.

alpha4x2.png  4x2 RGBA: opaque, half, fully transparent and quarter/three-quarter alpha.
strip3.bmp    24-bit 12x4 strip of three 4x4 cells: red with a magenta corner, green, blue.

Run from this folder: python3 make_test_images.py
"""
import struct
import zlib

# Rows top to bottom, RGBA.
PNG_PIXELS = [
    [(255, 0, 0, 255), (0, 255, 0, 128), (0, 0, 255, 0), (255, 255, 255, 64)],
    [(10, 20, 30, 255), (200, 100, 50, 128), (0, 0, 0, 0), (128, 128, 128, 192)],
]

MAGENTA = (255, 0, 255)
CELL_COLOURS = [(255, 0, 0), (0, 255, 0), (0, 0, 255)]


def chunk(kind, data):
    body = kind + data
    return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)


def png_bytes(rows):
    height, width = len(rows), len(rows[0])
    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)  # 8-bit RGBA
    raw = b"".join(b"\x00" + bytes(c for px in row for c in px) for row in rows)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
            + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def strip_pixel(x, y):
    # The top-left pixel of the first cell is the mask colour.
    if x == 0 and y == 0:
        return MAGENTA
    return CELL_COLOURS[x // 4]


def bmp_bytes(width, height, pixel):
    row_size = (width * 3 + 3) & ~3
    rows = []
    for y in reversed(range(height)):  # bottom-up
        row = b"".join(bytes((b, g, r)) for r, g, b in (pixel(x, y) for x in range(width)))
        rows.append(row + b"\x00" * (row_size - len(row)))
    data = b"".join(rows)
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(data), 2835, 2835, 0, 0)
    header = struct.pack("<2sIHHI", b"BM", 14 + len(info) + len(data), 0, 0, 14 + len(info))
    return header + info + data


if __name__ == "__main__":
    with open("alpha4x2.png", "wb") as f:
        f.write(png_bytes(PNG_PIXELS))
    with open("strip3.bmp", "wb") as f:
        f.write(bmp_bytes(12, 4, strip_pixel))
