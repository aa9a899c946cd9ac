#!/usr/bin/env python3
"""Writes the bitmaps of the report list's sort arrows beside this script.

16 x 16 pixels, 24 bits each: a triangle on the colour that the list's header takes for transparent,
which is that of the top left pixel. Run it again after a change here.
"""

import pathlib
import struct

SIZE = 16
TRANSPARENT = (255, 0, 255)
FILL = (96, 96, 96)
EDGE = (48, 48, 48)
TOP, BOTTOM = 5, 10  # rows of the apex and the base; even about the middle
MIDDLE = 7


def pixel(x, y):
    if not TOP <= y <= BOTTOM:
        return TRANSPARENT
    reach = y - TOP
    distance = abs(x - MIDDLE)
    if distance > reach:
        return TRANSPARENT
    return EDGE if distance == reach or y == BOTTOM else FILL


def write(name, ascending):
    rows = [[pixel(x, y) for x in range(SIZE)] for y in range(SIZE)]
    if not ascending:
        rows.reverse()
    # Bitmaps begin with their last row, and a pixel with its blue.
    data = b"".join(bytes(reversed(rgb)) for row in reversed(rows) for rgb in row)
    header = struct.pack("<IiiHHIIiiII", 40, SIZE, SIZE, 1, 24, 0, len(data), 0, 0, 0, 0)
    offset = 14 + len(header)
    start = struct.pack("<2sIHHI", b"BM", offset + len(data), 0, 0, offset)
    pathlib.Path(__file__).with_name(name).write_bytes(start + header + data)


write("sort_ascending.bmp", True)
write("sort_descending.bmp", False)
