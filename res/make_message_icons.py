#!/usr/bin/env python3
"""Draws the pictures of the message box, one bitmap for each meaning, into this file's folder.

48 x 48 pixels of 32 bits with an alpha channel, not multiplied: the box lays them over its own
ground, which is light in the standard mode and dark in the others. So every shape is filled with a
colour of its own and has a rim that stands out on either ground. A margin of some pixels stays
free on every side.

    python3 res/make_message_icons.py
"""

import math
import pathlib
import struct

SIZE = 48
SAMPLES = 8  # each way in a pixel


# Shapes: whether a point lies inside, with the shape grown by some pixels.

def circle(cx, cy, radius):
    return lambda x, y, grown: math.hypot(x - cx, y - cy) <= radius + grown


def polygon(corners):
    """Convex, corners clockwise on the screen; rounded where it is grown."""
    sides = list(zip(corners, corners[1:] + corners[:1]))

    def inside(x, y, grown):
        if all((bx - ax) * (y - ay) - (by - ay) * (x - ax) >= 0 for (ax, ay), (bx, by) in sides):
            return True
        return any(segment_distance(x, y, a, b) <= grown for a, b in sides)

    return inside


def segment_distance(x, y, a, b):
    (ax, ay), (bx, by) = a, b
    length = (bx - ax) ** 2 + (by - ay) ** 2
    along = 0 if length == 0 else ((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / length
    along = min(1, max(0, along))
    return math.hypot(x - ax - along * (bx - ax), y - ay - along * (by - ay))


def stroke(a, b, width):
    return lambda x, y, grown: segment_distance(x, y, a, b) <= width / 2 + grown


def arc(cx, cy, radius, width, begin, end):
    """Degrees, clockwise on the screen from the right; round ends."""
    tips = [(cx + radius * math.cos(math.radians(t)), cy + radius * math.sin(math.radians(t)))
            for t in (begin, end)]

    def inside(x, y, grown):
        angle = (math.degrees(math.atan2(y - cy, x - cx)) - begin) % 360
        if angle <= end - begin:
            return abs(math.hypot(x - cx, y - cy) - radius) <= width / 2 + grown
        return any(math.hypot(x - tx, y - ty) <= width / 2 + grown for tx, ty in tips)

    return inside


def union(*shapes):
    return lambda x, y, grown: any(shape(x, y, grown) for shape in shapes)


# The pictures: body with its colour and rim, sign with its colour.

def octagon(cx, cy, radius):
    return polygon([(cx + radius * math.cos(math.radians(t)), cy + radius * math.sin(math.radians(t)))
                    for t in [22.5 + 45 * k for k in range(8)]])


PICTURES = {
    "message_exclamation": {
        "body": polygon([(24, 9.5), (40, 38.5), (8, 38.5)]),
        "rim": (140, 90, 0), "face": (248, 184, 24), "ink": (48, 32, 0),
        "sign": union(stroke((24, 17.5), (24, 28), 4.6), circle(24, 34.6, 2.7)),
    },
    "message_asterisk": {
        "body": circle(24, 24, 16.5),
        "rim": (150, 196, 240), "face": (30, 100, 190), "ink": (255, 255, 255),
        "sign": union(circle(24, 15.2, 2.9), stroke((24, 22.2), (24, 33.2), 4.8)),
    },
    "message_question": {
        "body": union(polygon([(8.5, 8.5), (39.5, 8.5), (39.5, 34.5), (8.5, 34.5)]),
                      polygon([(13, 34.5), (23, 34.5), (13, 41)])),
        "rim": (150, 222, 206), "face": (16, 120, 108), "ink": (255, 255, 255),
        "sign": union(arc(24, 17.6, 5.4, 4.2, 190, 415), stroke((27.1, 22.0), (24, 25.6), 4.2),
                      circle(24, 31.3, 2.6)),
    },
    "message_hand": {
        "body": octagon(24, 24, 16.8),
        "rim": (244, 168, 160), "face": (200, 30, 30), "ink": (255, 255, 255),
        "sign": union(stroke((17.5, 17.5), (30.5, 30.5), 5), stroke((30.5, 17.5), (17.5, 30.5), 5)),
    },
}
CORNER = 2.0  # how far the body is grown, which rounds its corners
RIM = 2.0     # and the rim beyond it


def colour_at(picture, x, y):
    if picture["sign"](x, y, 0):
        return picture["ink"]
    if picture["body"](x, y, CORNER):
        return picture["face"]
    if picture["body"](x, y, CORNER + RIM):
        return picture["rim"]
    return None


def pixel(picture, column, row):
    total = [0, 0, 0]
    covered = 0
    for sample in range(SAMPLES * SAMPLES):
        x = column + (sample % SAMPLES + 0.5) / SAMPLES
        y = row + (sample // SAMPLES + 0.5) / SAMPLES
        colour = colour_at(picture, x, y)
        if colour is not None:
            covered += 1
            total = [t + c for t, c in zip(total, colour)]
    if covered == 0:
        return bytes(4)
    red, green, blue = (round(t / covered) for t in total)
    return bytes([blue, green, red, round(255 * covered / SAMPLES ** 2)])


def bitmap(picture):
    rows = b"".join(pixel(picture, column, row)
                    for row in reversed(range(SIZE)) for column in range(SIZE))
    info = struct.pack("<IiiHHIIiiII", 40, SIZE, SIZE, 1, 32, 0, len(rows), 0, 0, 0, 0)
    header = struct.pack("<2sIHHI", b"BM", 14 + len(info) + len(rows), 0, 0, 14 + len(info))
    return header + info + rows


if __name__ == "__main__":
    folder = pathlib.Path(__file__).parent
    for name, picture in PICTURES.items():
        (folder / (name + ".bmp")).write_bytes(bitmap(picture))
