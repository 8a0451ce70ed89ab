"""Drawing primitives and file writers for the skin generator.

Everything here is plain deterministic arithmetic: the same inputs give the same bytes on
every machine, which is what lets the committed resources be checked against a fresh run.
"""

import math
import struct
import zlib

MAGENTA = (255, 0, 255)

# Samples per pixel edge when shapes are rasterised; edges get 1/SS^2 coverage steps.
SUPERSAMPLE = 4


def hex_rgb(value):
    return ((value >> 16) & 0xFF, (value >> 8) & 0xFF, value & 0xFF)


def mix(a, b, t):
    """Colour a moved towards b by t (0 keeps a, 1 gives b)."""
    return tuple(a[i] + (b[i] - a[i]) * t for i in range(3))


# ---------------------------------------------------------------- shapes
# A shape is a function (x, y) -> bool over continuous pixel coordinates, where pixel
# (i, j) covers [i, i + 1) x [j, j + 1).

def rect(x0, y0, x1, y1):
    return lambda x, y: x0 <= x < x1 and y0 <= y < y1


def rounded_rect(x0, y0, x1, y1, r):
    r = max(0.0, min(r, (x1 - x0) / 2.0, (y1 - y0) / 2.0))

    def inside(x, y):
        if not (x0 <= x < x1 and y0 <= y < y1):
            return False
        cx = min(max(x, x0 + r), x1 - r)
        cy = min(max(y, y0 + r), y1 - r)
        return (x - cx) ** 2 + (y - cy) ** 2 <= r * r
    return inside


def circle(cx, cy, r):
    return lambda x, y: (x - cx) ** 2 + (y - cy) ** 2 <= r * r


def polygon(points):
    pts = list(points)

    def inside(x, y):
        result = False
        j = len(pts) - 1
        for i in range(len(pts)):
            xi, yi = pts[i]
            xj, yj = pts[j]
            if (yi > y) != (yj > y):
                if x < (xj - xi) * (y - yi) / (yj - yi) + xi:
                    result = not result
            j = i
        return result
    return inside


def _segment_distance(px, py, ax, ay, bx, by):
    dx, dy = bx - ax, by - ay
    length2 = dx * dx + dy * dy
    t = 0.0 if length2 == 0 else max(0.0, min(1.0, ((px - ax) * dx + (py - ay) * dy) / length2))
    qx, qy = ax + t * dx, ay + t * dy
    return math.hypot(px - qx, py - qy)


def stroke(points, width):
    """A polyline with round joins and caps."""
    pts = list(points)
    half = width / 2.0

    def inside(x, y):
        for i in range(len(pts) - 1):
            if _segment_distance(x, y, pts[i][0], pts[i][1], pts[i + 1][0], pts[i + 1][1]) <= half:
                return True
        return len(pts) == 1 and math.hypot(x - pts[0][0], y - pts[0][1]) <= half
    return inside


def arc_points(cx, cy, r, start_deg, end_deg, steps=24):
    return [(cx + r * math.cos(math.radians(start_deg + (end_deg - start_deg) * k / steps)),
             cy + r * math.sin(math.radians(start_deg + (end_deg - start_deg) * k / steps)))
            for k in range(steps + 1)]


def union(*shapes):
    return lambda x, y: any(s(x, y) for s in shapes)


def minus(shape, hole):
    return lambda x, y: shape(x, y) and not hole(x, y)


_DIRECTIONS = [(1, 0), (-1, 0), (0, 1), (0, -1),
               (0.7071, 0.7071), (0.7071, -0.7071), (-0.7071, 0.7071), (-0.7071, -0.7071)]


def eroded(shape, d):
    """The shape shrunk by about d pixels: what is left inside a border of width d."""
    return lambda x, y: shape(x, y) and all(shape(x + ux * d, y + uy * d) for ux, uy in _DIRECTIONS)


# ---------------------------------------------------------------- colour fills

def vertical_gradient(top_colour, bottom_colour, y0, y1):
    span = float(max(1e-9, y1 - y0))
    return lambda x, y: mix(top_colour, bottom_colour, min(1.0, max(0.0, (y - y0) / span)))


def horizontal_gradient(left_colour, right_colour, x0, x1):
    span = float(max(1e-9, x1 - x0))
    return lambda x, y: mix(left_colour, right_colour, min(1.0, max(0.0, (x - x0) / span)))


# ---------------------------------------------------------------- canvases

class Canvas:
    """An opaque picture with transparent (magenta) holes.

    Pixels are None (transparent) or an RGB tuple of floats.  Shapes whose edges only
    partly cover a transparent pixel are blended with the backdrop, the colour the control
    paints under the strip, so that edges stay soft without an alpha channel.
    """

    def __init__(self, width, height, backdrop=(0, 0, 0), fill=None):
        self.width = width
        self.height = height
        self.backdrop = backdrop
        self.pixels = [[fill for _ in range(width)] for _ in range(height)]

    def paint(self, shape, colour, samples=SUPERSAMPLE):
        colour_at = colour if callable(colour) else (lambda x, y: colour)
        offsets = [(k + 0.5) / samples for k in range(samples)]
        total = float(samples * samples)
        for py in range(self.height):
            row = self.pixels[py]
            for px in range(self.width):
                hits = 0
                for oy in offsets:
                    for ox in offsets:
                        if shape(px + ox, py + oy):
                            hits += 1
                if hits == 0:
                    continue
                cov = hits / total
                c = colour_at(px + 0.5, py + 0.5)
                old = row[px]
                if cov >= 1.0:
                    row[px] = tuple(c)
                else:
                    row[px] = mix(self.backdrop if old is None else old, c, cov)

    def blit(self, src, x, y):
        for sy in range(src.height):
            for sx in range(src.width):
                self.pixels[y + sy][x + sx] = src.pixels[sy][sx]

    def crop(self, x, y, w, h):
        out = Canvas(w, h, self.backdrop)
        for sy in range(h):
            for sx in range(w):
                out.pixels[sy][sx] = self.pixels[y + sy][x + sx]
        return out

    def transposed(self):
        out = Canvas(self.height, self.width, self.backdrop)
        for y in range(self.height):
            for x in range(self.width):
                out.pixels[x][y] = self.pixels[y][x]
        return out

    def flipped_vertically(self):
        out = Canvas(self.width, self.height, self.backdrop)
        out.pixels = [list(row) for row in reversed(self.pixels)]
        return out

    def flipped_horizontally(self):
        out = Canvas(self.width, self.height, self.backdrop)
        out.pixels = [list(reversed(row)) for row in self.pixels]
        return out

    def rgb_rows(self):
        """Rows of 8-bit RGB tuples, top to bottom, magenta where transparent."""
        return [[MAGENTA if p is None else tuple(int(v + 0.5) for v in p) for p in row]
                for row in self.pixels]


class AlphaCanvas:
    """A picture with real per-pixel alpha (straight, not premultiplied)."""

    def __init__(self, width, height):
        self.width = width
        self.height = height
        self.pixels = [[(0.0, 0.0, 0.0, 0.0) for _ in range(width)] for _ in range(height)]

    def paint(self, shape, colour, samples=8):
        colour_at = colour if callable(colour) else (lambda x, y: colour)
        offsets = [(k + 0.5) / samples for k in range(samples)]
        total = float(samples * samples)
        for py in range(self.height):
            for px in range(self.width):
                hits = sum(1 for oy in offsets for ox in offsets if shape(px + ox, py + oy))
                if hits == 0:
                    continue
                cov = hits / total
                c = colour_at(px + 0.5, py + 0.5)
                r, g, b, a = self.pixels[py][px]
                out_a = cov + a * (1.0 - cov)
                self.pixels[py][px] = tuple(
                    (c[i] * cov + (r, g, b)[i] * a * (1.0 - cov)) / out_a for i in range(3)) + (out_a,)

    def blit(self, src, x, y):
        for sy in range(src.height):
            for sx in range(src.width):
                self.pixels[y + sy][x + sx] = src.pixels[sy][sx]

    def rgba_rows(self):
        rows = []
        for row in self.pixels:
            out = []
            for r, g, b, a in row:
                alpha = int(a * 255 + 0.5)
                out.append((0, 0, 0, 0) if alpha == 0 else (int(r + 0.5), int(g + 0.5), int(b + 0.5), alpha))
            rows.append(out)
        return rows


# ---------------------------------------------------------------- writers

def bmp_bytes(canvas, bits):
    """An uncompressed (BI_RGB) bottom-up DIB file of 8 or 24 bits per pixel."""
    rows = canvas.rgb_rows()
    width, height = canvas.width, canvas.height
    palette = []
    if bits == 8:
        palette = sorted({p for row in rows for p in row})
        if len(palette) > 256:
            raise ValueError("%d colours do not fit an 8-bit palette" % len(palette))
        index = {c: i for i, c in enumerate(palette)}
        stride = (width + 3) & ~3
        body = bytearray()
        for row in reversed(rows):
            line = bytes(index[p] for p in row)
            body += line + b"\0" * (stride - width)
    elif bits == 24:
        stride = (width * 3 + 3) & ~3
        body = bytearray()
        for row in reversed(rows):
            line = bytearray()
            for r, g, b in row:
                line += bytes((b, g, r))
            body += line + b"\0" * (stride - width * 3)
    else:
        raise ValueError("unsupported bit depth %d" % bits)
    colour_table = b"".join(bytes((b, g, r, 0)) for r, g, b in palette)
    offset = 14 + 40 + len(colour_table)
    file_header = struct.pack("<2sIHHI", b"BM", offset + len(body), 0, 0, offset)
    info_header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, 0, len(body),
                              2835, 2835, len(palette), 0)
    return file_header + info_header + colour_table + bytes(body)


def _png_chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF)


def png_bytes(canvas):
    """An 8-bit RGBA PNG (colour type 6), no ancillary chunks."""
    raw = bytearray()
    for row in canvas.rgba_rows():
        raw.append(0)
        for px in row:
            raw += bytes(px)
    header = struct.pack(">IIBBBBB", canvas.width, canvas.height, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + _png_chunk(b"IHDR", header)
            + _png_chunk(b"IDAT", zlib.compress(bytes(raw), 9)) + _png_chunk(b"IEND", b""))
