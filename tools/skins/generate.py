#!/usr/bin/env python3
"""Draws ZoCtrl's skin bitmaps, message-box icons and the check-box/radio PNG.

    python3 tools/skins/generate.py [--out DIR]

writes DIR/bitmaps/*.bmp and DIR/png/*.png (DIR defaults to the repository's resources
folder).  Every picture is drawn from geometry, never scaled, so the large-monitor variants
are redrawn at their own size.  The output depends only on this code: no time stamps, no
randomness, so a fresh run reproduces the committed files byte for byte.
"""

import argparse
import os
import sys

sys.dont_write_bytecode = True  # keep the source tree free of caches
sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from skinlib import (Canvas, AlphaCanvas, hex_rgb, mix, rect, rounded_rect, circle, polygon,  # noqa: E402
                     stroke, arc_points, union, minus, eroded, vertical_gradient,
                     horizontal_gradient, bmp_bytes, png_bytes)

# The theme's base colours (RGB).
P0, P1, P2, P3, P4, P5, P6, P7, P8, P9, P10 = (hex_rgb(v) for v in (
    0x000000, 0x1E1E1E, 0x2B2B2B, 0x2F2F2F, 0x393939, 0x404040, 0x474747, 0x585858, 0x656565,
    0x7E7E7E, 0xC8C8C8))
P11, P12, P13, P14, P15, P16 = (hex_rgb(v) for v in (
    0x29455F, 0x466183, 0x4A7AA7, 0x5F93CD, 0x7ED9FF, 0x2656A0))
P17, P18, P20, P27 = (hex_rgb(v) for v in (0xFFFFFF, 0xE7E7E7, 0xACACAC, 0xFF0000))

# What the controls paint under their strips (colour slots 0, 1, 28 and 66).
DIALOG_BACK = P6
CAPTION_BACK = P9
FIELD_BACK = P3
LIST_BACK = P2

STATES = range(4)  # normal, hot/focused, pressed, disabled


def framed(canvas, shape, border, fill, width=1.0):
    """A shape with a border of the given width and a fill inside it."""
    canvas.paint(shape, border)
    canvas.paint(eroded(shape, width), fill)


def banded(top, middle, bottom, height):
    """Top third fades into the middle colour, middle third is flat, bottom third fades out,
    so the stretched middle band of a three-row cut stays even."""
    third = height / 3.0

    def colour(x, y):
        if y < third:
            return mix(top, middle, y / third)
        if y < 2 * third:
            return middle
        return mix(middle, bottom, (y - 2 * third) / third)
    return colour


def assemble(width, height, cells, backdrop=DIALOG_BACK):
    """cells: (canvas, x, y) triples placed on one transparent strip."""
    strip = Canvas(width, height, backdrop)
    for cell, x, y in cells:
        strip.blit(cell, x, y)
    return strip


# ---------------------------------------------------------------- buttons

def push_button_skin():
    faces = [(P8, P6), (P9, P7), (P12, P11), (P5, P5)]
    borders = [P2, P13, P16, P4]
    cells = []
    for s in STATES:
        cell = Canvas(15, 15, DIALOG_BACK)
        framed(cell, rounded_rect(0, 0, 15, 15, 3), borders[s], vertical_gradient(faces[s][0], faces[s][1], 1, 14))
        cells.append((cell, 15 * s, 0))
    return assemble(60, 15, cells)


def check_radio_png():
    """4 state columns x 5 rows of 15 x 15: unchecked, checked, indeterminate box; unchecked,
    checked radio.  Soft edges come from real alpha."""
    box_border = [P9, P14, P13, P7]
    box_fill = [P3, P4, P11, P5]
    on_fill = [P13, P14, P12, P7]
    mark = [P17, P17, P18, P20]
    sheet = AlphaCanvas(60, 75)
    box = rounded_rect(1.5, 1.5, 13.5, 13.5, 2.5)
    ring = circle(7.5, 7.5, 6.0)
    tick = stroke([(4.3, 7.6), (6.5, 9.9), (10.8, 5.0)], 1.8)
    for s in STATES:
        cells = [AlphaCanvas(15, 15) for _ in range(5)]
        cells[0].paint(box, box_border[s])
        cells[0].paint(eroded(box, 1.2), box_fill[s])
        cells[1].paint(box, on_fill[s])
        cells[1].paint(tick, mark[s])
        cells[2].paint(box, box_border[s])
        cells[2].paint(eroded(box, 1.2), box_fill[s])
        cells[2].paint(rounded_rect(4.5, 4.5, 10.5, 10.5, 1.2), on_fill[s] if s != 3 else P8)
        cells[3].paint(ring, box_border[s])
        cells[3].paint(eroded(ring, 1.2), box_fill[s])
        cells[4].paint(ring, on_fill[s])
        cells[4].paint(circle(7.5, 7.5, 2.6), mark[s])
        for row, cell in enumerate(cells):
            sheet.blit(cell, 15 * s, 15 * row)
    return sheet


# ---------------------------------------------------------------- dialog caption and frame

def _sys_glyph(kind, size):
    g0 = int(size * 0.3 + 0.5)
    g1 = size - g0
    t = max(1, int(size / 16.0 + 0.5))
    if kind == "minimize":
        return rect(g0, g1 - t, g1, g1)
    if kind == "maximize":
        return minus(rect(g0, g0, g1, g1), rect(g0 + t, g0 + 2 * t, g1 - t, g1 - t))
    if kind == "close":
        return union(stroke([(g0 + 0.5, g0 + 0.5), (g1 - 0.5, g1 - 0.5)], t * 1.4),
                     stroke([(g1 - 0.5, g0 + 0.5), (g0 + 0.5, g1 - 0.5)], t * 1.4))
    o = max(2, int(size * 0.15 + 0.5))
    back = minus(rect(g0 + o, g0, g1, g1 - o), rect(g0 + o + t, g0 + t, g1 - t, g1 - o - t))
    front = rect(g0, g0 + o, g1 - o, g1)
    return union(minus(back, front), minus(front, rect(g0 + t, g0 + o + t, g1 - o - t, g1 - t)))


def dialog_system_buttons(size):
    """4 x 4 cells: columns normal, hot, pressed, disabled; rows minimize, maximize, close,
    restore; drawn over the caption bar."""
    glyph_colour = [P17, P17, P17, P20]
    boxes = {"close": [None, mix(P27, P0, 0.2), mix(P27, P0, 0.45), None]}
    plain_boxes = [None, P8, P13, None]
    cells = []
    for row, kind in enumerate(("minimize", "maximize", "close", "restore")):
        for s in STATES:
            cell = Canvas(size, size, CAPTION_BACK)
            box = boxes.get(kind, plain_boxes)[s]
            if box is not None:
                cell.paint(rounded_rect(1, 1, size - 1, size - 1, size / 5.0), box)
            cell.paint(_sys_glyph(kind, size), glyph_colour[s])
            cells.append((cell, size * s, size * row))
    return assemble(4 * size, 4 * size, cells, CAPTION_BACK)


def frame_border():
    """3 x 4 cells of 9 x 9: layered bands counted from the window's outer edge; only the
    outer border width of each cell shows."""
    layers = [P1, P8, P7, P7, P4, P6, P6, P6, P6]
    strip = Canvas(27, 36, DIALOG_BACK)
    for y in range(36):
        for x in range(27):
            strip.pixels[y][x] = layers[min(x, y, 26 - x, 35 - y, 8)]
    return strip


def message_icon(kind):
    """32 x 32 icons laid on the dialog background (a bitmap static draws them opaque)."""
    icon = Canvas(32, 32, DIALOG_BACK, fill=DIALOG_BACK)
    disc = circle(16, 16, 14.5)
    if kind == "warning":
        amber = (242, 176, 53)
        triangle = polygon([(16, 2.0), (30.5, 28.5), (1.5, 28.5)])
        framed(icon, triangle, mix(amber, P0, 0.35), vertical_gradient(mix(amber, P17, 0.25), amber, 4, 28))
        icon.paint(stroke([(16, 11), (16, 19)], 3.0), P1)
        icon.paint(circle(16, 24, 1.8), P1)
        return icon
    tops = {"information": P14, "question": P14, "error": mix(P27, P17, 0.15)}
    bottoms = {"information": P16, "question": P12, "error": mix(P27, P0, 0.3)}
    framed(icon, disc, mix(bottoms[kind], P0, 0.3), vertical_gradient(tops[kind], bottoms[kind], 3, 29))
    if kind == "information":
        icon.paint(circle(16, 9.5, 2.2), P17)
        icon.paint(rounded_rect(14.2, 13, 17.8, 24.5, 1.0), P17)
    elif kind == "question":
        hook = arc_points(16, 12, 4.6, 190, 400) + [(16, 17.5), (16, 19)]
        icon.paint(stroke(hook, 3.0), P17)
        icon.paint(circle(16, 23.8, 1.9), P17)
    else:
        icon.paint(union(stroke([(11, 11), (21, 21)], 3.2), stroke([(21, 11), (11, 21)], 3.2)), P17)
    return icon


# ---------------------------------------------------------------- edit, combo, header

def edit_frame():
    """12 x 9 cells of 3 x 3 for the edit box; the combo box cuts the same picture into
    3 x 9 cells (top, middle and bottom bands of nine rows).  Each state is one rounded
    field of 9 x 27, so both cuts give closed frames; the edit's bottom row (row 8) carries
    only a faint line so that it does not strike through the combo's text band."""
    borders = [P1, P13, P14, P5]
    fields = [FIELD_BACK, FIELD_BACK, FIELD_BACK, P4]
    cells = []
    for s in STATES:
        cell = Canvas(9, 27, DIALOG_BACK)
        framed(cell, rounded_rect(0, 0, 9, 27, 1.5), borders[s], fields[s])
        cell.paint(rect(1, 8, 8, 9), mix(fields[s], borders[s], 0.15))
        cells.append((cell, 9 * s, 0))
    return assemble(36, 27, cells)


def raised_frame(faces, borders, radius):
    """A 9 x 27 nine-piece button face per state, for three-row cuts."""
    cells = []
    for s in STATES:
        top, middle, bottom = faces[s]
        cell = Canvas(9, 27, DIALOG_BACK)
        framed(cell, rounded_rect(0, 0, 9, 27, radius), borders[s], banded(top, middle, bottom, 27))
        cells.append((cell, 9 * s, 0))
    return assemble(36, 27, cells)


def combo_drop_list_frame():
    return raised_frame([(P8, P7, P6), (P9, P8, P7), (P11, P12, P12), (P5, P5, P5)],
                        [P2, P13, P14, P4], 3)


def combo_button_back():
    return raised_frame([(P4, P4, P4), (P7, P7, P7), (P12, P12, P12), (P5, P5, P5)],
                        [P2, P13, P14, P4], 2)


def combo_arrows():
    """4 x 2 cells of 17 x 12: row 0 over the edit field, row 1 over the drop-list face."""
    colours = [[P10, P17, P15, P8], [P18, P17, P17, P9]]
    backdrops = [[FIELD_BACK, FIELD_BACK, FIELD_BACK, P4], [P7, P8, P12, P5]]
    arrow = polygon([(4.5, 4.0), (12.5, 4.0), (8.5, 8.5)])
    cells = []
    for row in range(2):
        for s in STATES:
            cell = Canvas(17, 12, backdrops[row][s])
            cell.paint(arrow, colours[row][s])
            cells.append((cell, 17 * s, 12 * row))
    return assemble(68, 24, cells)


HEADER_FACES = [(P7, P5), (P8, P6), (P7, P5), (P12, P11)]


def header_frame():
    """12 x 3 cells of 3 x 6: per state a 9 x 18 item with a two-line separator at its edges;
    state 2 (the empty area after the last item) has no separator."""
    cells = []
    for s in STATES:
        top, bottom = HEADER_FACES[s]
        cell = Canvas(9, 18, DIALOG_BACK)
        cell.paint(rect(0, 0, 9, 18), vertical_gradient(top, bottom, 0, 17))
        cell.paint(rect(0, 0, 9, 1), mix(top, P17, 0.12))
        cell.paint(rect(0, 17, 9, 18), P1)
        if s != 2:
            cell.paint(rect(0, 3, 1, 15), mix(top, P17, 0.15))
            cell.paint(rect(8, 3, 9, 15), P3)
        cells.append((cell, 9 * s, 0))
    return assemble(36, 18, cells)


def header_sort_arrows():
    """4 x 2 cells of 7 x 6: row 0 descending (down), row 1 ascending (up)."""
    colours = [P10, P17, P20, P18]
    down = polygon([(0.5, 1.0), (6.5, 1.0), (3.5, 4.5)])
    up = polygon([(0.5, 5.0), (6.5, 5.0), (3.5, 1.5)])
    cells = []
    for row, shape in enumerate((down, up)):
        for s in STATES:
            cell = Canvas(7, 6, mix(HEADER_FACES[s][0], HEADER_FACES[s][1], 0.5))
            cell.paint(shape, colours[s])
            cells.append((cell, 7 * s, 6 * row))
    return assemble(28, 12, cells)


# ---------------------------------------------------------------- progress bars

PROGRESS_FACES = [(P14, P13, P16), (mix(P14, P17, 0.2), P14, P13), (P13, P12, P11), (P8, P7, P6)]


def progress_cell(state):
    """A 12 x 18 horizontal tile: shaded across its height (it is stretched to the bar's
    height) with a dark last column that segments the tiled bar."""
    top, middle, bottom = PROGRESS_FACES[state]
    cell = Canvas(12, 18, LIST_BACK)
    cell.paint(rect(0, 0, 12, 18), banded(top, middle, bottom, 18))
    cell.paint(rect(0, 0, 12, 1), mix(top, P17, 0.3))
    cell.paint(rect(11, 0, 12, 18), mix(bottom, P0, 0.4))
    return cell


def progress_horizontal():
    return assemble(48, 18, [(progress_cell(s), 12 * s, 0) for s in STATES], LIST_BACK)


def progress_vertical():
    """Tiles are stacked upwards from the bottom, so the segment line sits on each tile's top."""
    return assemble(72, 12, [(progress_cell(s).transposed().flipped_vertically(), 18 * s, 0)
                             for s in STATES], LIST_BACK)


# ---------------------------------------------------------------- scroll bars

# Unit sizes per size class: (across, back along, button along, thumb along).
SCROLL_UNITS = {0: (19, 10, 26, 8), 1: (23, 12, 31, 10), 2: (29, 16, 42, 13)}
TRACK_FILLS = [[P3, P4, P11, P5], [P4, P7, P12, mix(P5, P6, 0.5)]]
THUMB_FILLS = [[P8, P9, P13, P5], [P9, P20, P14, P5]]
BUTTON_BOXES = [[P5, P8, P13, None], [None, P7, P13, None]]
ARROW_COLOURS = [P20, P17, P17, P7]


def _track_inset(across, variant):
    return across // 4 if variant == 0 else across // 3


def _thumb_inset(across, variant):
    return across // 5 if variant == 0 else across // 4


def scroll_back_cell(across, along, variant, state):
    """Channel of a vertical bar, even along its length (it is stretched along the axis)."""
    cell = Canvas(across, along, DIALOG_BACK)
    inset = _track_inset(across, variant)
    fill = TRACK_FILLS[variant][state]
    cell.paint(rect(inset, 0, across - inset, along), fill)
    if variant == 0:
        edge = mix(fill, P1, 0.5)
        cell.paint(rect(inset, 0, inset + 1, along), edge)
        cell.paint(rect(across - inset - 1, 0, across - inset, along), edge)
    return cell


def scroll_button_cell(across, along, variant, state):
    """The 'previous' (up) button of a vertical bar; the 'next' one is its mirror."""
    cell = Canvas(across, along, DIALOG_BACK)
    inset = _thumb_inset(across, variant)
    box = BUTTON_BOXES[variant][state]
    if box is not None:
        cell.paint(rounded_rect(inset, 1, across - inset, along - 1, across / 6.0), box)
    width = (across - 2 * inset) * 0.6
    cx, cy = across / 2.0, along / 2.0
    cell.paint(polygon([(cx - width / 2, cy + width / 4), (cx + width / 2, cy + width / 4),
                        (cx, cy - width / 4)]), ARROW_COLOURS[state])
    return cell


def scroll_thumb_pill(across, unit, variant, state):
    """The whole thumb of a vertical bar: three units, round caps and an even middle."""
    pill = Canvas(across, 3 * unit, DIALOG_BACK)
    inset = _thumb_inset(across, variant)
    fill = THUMB_FILLS[variant][state]
    shape = rounded_rect(inset, 0, across - inset, 3 * unit, (across - 2 * inset) / 2.0)
    framed(pill, shape, mix(fill, P1, 0.35),
           horizontal_gradient(mix(fill, P17, 0.12), mix(fill, P1, 0.12), inset, across - inset))
    return pill


def scroll_strips(size_class):
    """The six scroll-bar strips of one size class, keyed by resource name."""
    across, back, button, thumb = SCROLL_UNITS[size_class]
    suffix = {0: "", 1: "_3M", 2: "_5M"}[size_class]
    vb, hb, vbtn, hbtn, vt, ht = [], [], [], [], [], []
    for variant in range(2):
        for s in STATES:
            cell = scroll_back_cell(across, back, variant, s)
            vb.append((cell, across * s, back * variant))
            hb.append((cell.transposed(), back * s, across * variant))
            prev = scroll_button_cell(across, button, variant, s)
            for k, b in enumerate((prev, prev.flipped_vertically())):
                row = variant * 2 + k
                vbtn.append((b, across * s, button * row))
                hbtn.append((b.transposed(), button * s, across * row))
            pill = scroll_thumb_pill(across, thumb, variant, s)
            flat = pill.transposed()
            for piece in range(3):
                vt.append((pill.crop(0, thumb * piece, across, thumb), across * s, thumb * (variant * 3 + piece)))
                ht.append((flat.crop(thumb * piece, 0, thumb, across), thumb * (s * 3 + piece), across * variant))
    return {
        "BMP_ZO_SCROLLVER_BACK" + suffix: assemble(4 * across, 2 * back, vb),
        "BMP_ZO_SCROLLHOR_BACK" + suffix: assemble(4 * back, 2 * across, hb),
        "BMP_ZO_SCROLLVER_BTNS" + suffix: assemble(4 * across, 4 * button, vbtn),
        "BMP_ZO_SCROLLHOR_BTNS" + suffix: assemble(4 * button, 4 * across, hbtn),
        "BMP_ZO_SCROLLVER_THUMB" + suffix: assemble(4 * across, 6 * thumb, vt),
        "BMP_ZO_SCROLLHOR_THUMB" + suffix: assemble(12 * thumb, 2 * across, ht),
    }


# ---------------------------------------------------------------- sliders

SLIDER_FACES = [(P9, P8), (P10, P9), (P14, P13), (P6, P5)]
SLIDER_BORDERS = [P2, P2, P11, P4]


def slider_thumbs(shape):
    """4 cells of 11 x 21 (thumb of a horizontal slider) in the four states."""
    cells = []
    for s in STATES:
        cell = Canvas(11, 21, DIALOG_BACK)
        framed(cell, shape, SLIDER_BORDERS[s], vertical_gradient(SLIDER_FACES[s][0], SLIDER_FACES[s][1], 1, 20))
        cells.append(cell)
    return cells


def slider_strips():
    both = slider_thumbs(rounded_rect(0.5, 0.5, 10.5, 20.5, 3))
    pointer = polygon([(5.5, 0.3), (10.5, 5.3), (10.5, 20.5), (0.5, 20.5), (0.5, 5.3)])
    flat_end = rounded_rect(0.5, -10, 10.5, 20.5, 3)
    up = slider_thumbs(lambda x, y: pointer(x, y) and flat_end(x, y))
    # Mirrored geometry rather than a mirrored picture, so the light still falls from above.
    down = slider_thumbs(lambda x, y: pointer(x, 21 - y) and flat_end(x, 21 - y))

    def horizontal(cells):
        return assemble(44, 21, [(c, 11 * s, 0) for s, c in enumerate(cells)])

    def vertical(cells):
        return assemble(84, 11, [(c.transposed(), 21 * s, 0) for s, c in enumerate(cells)])
    return {
        "BMP_ZO_SLIDERNORMAL_HOR_BOTH": horizontal(both),
        "BMP_ZO_SLIDERNORMAL_HOR_LEFT": horizontal(up),
        "BMP_ZO_SLIDERNORMAL_HOR_RIGHT": horizontal(down),
        "BMP_ZO_SLIDERNORMAL_VER_BOTH": vertical(both),
        "BMP_ZO_SLIDERNORMAL_VER_LEFT": vertical(up),
        "BMP_ZO_SLIDERNORMAL_VER_RIGHT": vertical(down),
    }


# ---------------------------------------------------------------- tabs

def tab_block(selected, state):
    """One 21 x 25 tab on top of its page: three 7-pixel pieces, open towards the page."""
    block = Canvas(21, 25, DIALOG_BACK)
    if selected:
        shape = rounded_rect(0.5, 0, 20.5, 30, 4)
        framed(block, shape, P7, P6)
        accent = [P13, P14, P12, P7][state]
        block.paint(lambda x, y: y < 3 and eroded(shape, 1)(x, y), accent)
    else:
        framed(block, rounded_rect(0.5, 3, 20.5, 30, 4), [P4, P8, P12, P5][state], [P5, P7, P11, P5][state])
    return block


def tab_strips():
    top, bottom, left, right = [], [], [], []
    # Only theme 0 has colours; the rows of themes 1 and 2 repeat its tabs.
    blocks = {(selected, s): tab_block(selected, s) for selected in (True, False) for s in STATES}
    for theme in range(3):
        for sel_row, selected in enumerate((True, False)):
            for s in STATES:
                block = blocks[(selected, s)]
                y = 25 * (theme * 2 + sel_row)
                top.append((block, 21 * s, y))
                bottom.append((block.flipped_vertically(), 21 * s, y))
                side = block.transposed()
                vy = 7 * (theme * 6 + 3 * sel_row)
                left.append((side, 25 * s, vy))
                right.append((side.flipped_horizontally(), 25 * s, vy))
    frame = Canvas(9, 9, DIALOG_BACK)
    framed(frame, rounded_rect(0, 0, 9, 9, 2), P7, P6)
    return {
        "BMP_ZO_TABBTN_TOP": assemble(84, 150, top),
        "BMP_ZO_TABBTN_BOTTOM": assemble(84, 150, bottom),
        "BMP_ZO_TABBTN_LEFT": assemble(100, 126, left),
        "BMP_ZO_TABBTN_RIGHT": assemble(100, 126, right),
        "BMP_ZO_TABFRAME": assemble(9, 27, [(frame, 0, 9 * theme) for theme in range(3)]),
    }


# ---------------------------------------------------------------- tree-list expanders

def _expander(cx, expanded, colour):
    image = Canvas(36, 18, LIST_BACK)
    if expanded:
        image.paint(polygon([(cx - 4.5, 7.0), (cx + 4.5, 7.0), (cx, 11.5)]), colour)
    else:
        image.paint(polygon([(cx - 2.0, 4.5), (cx - 2.0, 13.5), (cx + 2.5, 9.0)]), colour)
    return image


def tree_list_icons():
    """Images 36 x 18: top level collapsed, expanded; deeper (indented) collapsed, expanded."""
    images = [_expander(9, False, P18), _expander(9, True, P18),
              _expander(27, False, P10), _expander(27, True, P10)]
    return assemble(144, 18, [(img, 36 * k, 0) for k, img in enumerate(images)], LIST_BACK)


def tree_list_icons_boxed():
    """Boxed plus, boxed minus and a leaf dot."""
    images = []
    for kind in ("plus", "minus", "leaf"):
        image = Canvas(36, 18, LIST_BACK)
        if kind == "leaf":
            image.paint(circle(9, 9, 2.0), P9)
        else:
            framed(image, rounded_rect(4, 4, 14, 14, 1.5), P9, P3)
            image.paint(rect(6, 8.5, 12, 9.5), P10)
            if kind == "plus":
                image.paint(rect(8.5, 6, 9.5, 12), P10)
        images.append(image)
    return assemble(108, 18, [(img, 36 * k, 0) for k, img in enumerate(images)], LIST_BACK)


# ---------------------------------------------------------------- the table of outputs

def bitmaps():
    """(file name, bits per pixel, canvas) for every bitmap the library carries."""
    out = [
        ("BMP_ZO_BTNDEFPUSH_NORMAL", 24, push_button_skin()),
        ("BMP_ZO_CMBDROPDOWNLIST", 24, combo_drop_list_frame()),
        ("BMP_ZO_CMBDROPDOWNLISTBTN", 24, combo_arrows()),
        ("BMP_ZO_CMBDROPDOWNLISTBTNBACK", 24, combo_button_back()),
        ("BMP_ZO_DLGSYSBTNS", 24, dialog_system_buttons(16)),
        ("BMP_ZO_DLGSYSBTNS_3M", 8, dialog_system_buttons(18)),
        ("BMP_ZO_DLGSYSBTNS_5M", 8, dialog_system_buttons(24)),
        ("BMP_ZO_EDIT", 24, edit_frame()),
        ("BMP_ZO_HEADER", 24, header_frame()),
        ("BMP_ZO_HEADERSORT", 24, header_sort_arrows()),
        ("BMP_ZO_PROGRHOR", 8, progress_horizontal()),
        ("BMP_ZO_PROGRVER", 8, progress_vertical()),
        ("BMP_ZO_SKIN_FRAMEWNDBORDER", 8, frame_border()),
        ("BMP_ZO_TREELISTICON", 8, tree_list_icons()),
        ("BMP_ZO_TREELISTICON_SRS", 8, tree_list_icons_boxed()),
    ]
    for size_class in range(3):
        bits = 8 if size_class == 0 else 24
        out += [(name, bits, canvas) for name, canvas in scroll_strips(size_class).items()]
    out += [(name, 24, canvas) for name, canvas in slider_strips().items()]
    tab_bits = {"BMP_ZO_TABFRAME": 24}
    out += [(name, tab_bits.get(name, 8), canvas) for name, canvas in tab_strips().items()]
    for kind in ("information", "question", "error", "warning"):
        out.append(("msgbox_" + kind, 24, message_icon(kind)))
    return out


def write_all(out_dir):
    written = []
    bitmap_dir = os.path.join(out_dir, "bitmaps")
    png_dir = os.path.join(out_dir, "png")
    os.makedirs(bitmap_dir, exist_ok=True)
    os.makedirs(png_dir, exist_ok=True)
    for name, bits, canvas in bitmaps():
        path = os.path.join(bitmap_dir, name + ".bmp")
        with open(path, "wb") as f:
            f.write(bmp_bytes(canvas, bits))
        written.append(path)
    path = os.path.join(png_dir, "checkradio.png")
    with open(path, "wb") as f:
        f.write(png_bytes(check_radio_png()))
    written.append(path)
    return written


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--out", default=os.path.normpath(os.path.join(here, "..", "..", "resources")))
    args = parser.parse_args()
    for path in write_all(args.out):
        print(os.path.relpath(path, args.out))


if __name__ == "__main__":
    main()
