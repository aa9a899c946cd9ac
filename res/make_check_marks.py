#!/usr/bin/env python3
"""Makes the check marks of the check list: one bitmap for each size and state of the item.

    python3 res/make_check_marks.py        writes res/check_marks_*.bmp

A bitmap has a column for each check state, unchecked, checked and indeterminate. The list copies
all rows but the last, so a column shows as many rows as it is wide. The colours are those of the
library's check box, read from its palette. Run it after a change of colours here or there.
"""

import re
import struct
from pathlib import Path

HERE = Path(__file__).resolve().parent
PALETTE = (HERE.parent / "src/paint/Palette.h").read_text()

# Side of the square, width of its rim, from there to the sign, and how far the cross reaches to
# either side of its diagonals, all in pixels. The on-board one with the row that is not copied and
# one more makes a row that a finger hits, and is as wide as one: the sign is no larger than needed.
SIZES = {"std": (13, 1, 1, 1), "onboard": (50, 3, 9, 2)}


def mark(name):
    """The four colours of a mark of the palette: face, rim, light, sign."""
    body = re.search(rf"constexpr Mark {name} = \{{(.*?)\}};", PALETTE, re.S).group(1)
    colors = [tuple(map(int, c)) for c in re.findall(r"RGB\((\d+), (\d+), (\d+)\)", body)]
    assert len(colors) == 4, name
    return colors


def square(side, rim, colors):
    """The empty box: a face, sunken by a rim above and left, lit below and right."""
    face, dark, light, _ = colors
    pixels = [[face] * side for _ in range(side)]
    for ring in range(rim):
        last = side - 1 - ring
        for at in range(ring, last + 1):
            pixels[last][at] = light
            pixels[at][last] = light
        for at in range(ring, last):
            pixels[ring][at] = dark
            pixels[at][ring] = dark
    return pixels


def crossed(pixels, inset, reach, color):
    side = len(pixels)
    first, last = inset, side - 1 - inset
    for row in range(first, last + 1):
        for col in range(first, last + 1):
            down = abs((col - first) - (row - first))
            up = abs((last - col) - (row - first))
            if min(down, up) <= reach:
                pixels[row][col] = color
    return pixels


def filled(pixels, inset, color):
    side = len(pixels)
    inset += (side - 2 * inset) // 5
    for row in range(inset, side - inset):
        for col in range(inset, side - inset):
            pixels[row][col] = color
    return pixels


def write_bitmap(path, rows):
    width, height = len(rows[0]), len(rows)
    pad = b"\0" * (-3 * width % 4)
    data = b"".join(
        b"".join(bytes((b, g, r)) for r, g, b in row) + pad for row in reversed(rows))
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(data), 0, 0, 0, 0)
    head = struct.pack("<2sIHHI", b"BM", 54 + len(data), 0, 0, 54)
    path.write_bytes(head + info + data)


for size, (side, rim, room, reach) in SIZES.items():
    for state, name in (("enabled", "MarkEnabled"), ("disabled", "MarkDisabled")):
        colors = mark(name)
        columns = [
            square(side, rim, colors),
            crossed(square(side, rim, colors), rim + room, reach, colors[3]),
            filled(square(side, rim, colors), rim + room, colors[3]),
        ]
        rows = [sum((column[row] for column in columns), []) for row in range(side)]
        rows.append([colors[3]] * (3 * side))
        write_bitmap(HERE / f"check_marks_{size}_{state}.bmp", rows)
