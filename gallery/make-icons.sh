#!/usr/bin/env bash
# make-icons.sh > AppIcons.rc: the icons that the gallery has as an application, one for each id that
# the library's table of icons asks for. Each is a coloured tile of 32 by 32 points with the last two
# digits of its id, whose dots are two by two, so that they are whole at half the size too.
#
# They stand in the resource script itself, as raw data, so that they need no files.
exec awk -f - << 'PROGRAM'
BEGIN {
    side = 32
    split("circle square hexagon octagon", shapes)
    split("0xE0A83C 0x5FB8E8 0x7CC576 0xE8866A 0xB49AE0 0x5CC8B8 0xE0D060 0xF0A0B8", colors)
    # Five by seven dots for each digit, in octal rows of five bits.
    split("16 21 23 25 31 21 16|04 14 04 04 04 04 16|16 21 01 06 10 20 37|16 21 01 06 01 21 16|" \
          "02 06 12 22 37 02 02|37 20 36 01 01 21 16|06 10 20 36 21 21 16|37 01 02 04 10 10 10|" \
          "16 21 21 16 21 21 16|16 21 21 17 01 02 14", fonts, "|")

    print "// Made by make-icons.sh: the icons that the gallery has as an application."
    print ""
    print "#define RAW_ICON 3"
    print "#define RAW_GROUP 14"
    print ""
    print "// An icon's header; the group of the one that is named after it."
    print "#define HEAD 40L, 32L, 64L, 0x00010001L, 0L, 256L, 0L, 0L, 2L, 0L, 0L,"
    print "#define GROUP 0, 1, 1, 0x2020, 2, 1, 1, 304L,"
    print ""
    print "// The tiles, from below: what lies under the digits, what lies over them, and which points"
    print "// are clear."
    for (shape = 1; shape <= 4; ++shape) {
        name = toupper(shapes[shape])
        printf "#define %s_UNDER%s\n", name, rows(shape, -1, 22, side - 1, 0)
        printf "#define %s_OVER%s\n", name, rows(shape, -1, 0, 7, 0)
        printf "#define %s_CLEAR%s\n", name, rows(shape, -1, 0, side - 1, 1)
    }
    icons(3527, 3573)
    icons(3575, 3575)
    icons(3579, 3600)
}

function icons(first, last,    id) {
    for (id = first; id <= last; ++id) {
        name = toupper(shapes[id % 4 + 1])
        printf "\n%d RAW_ICON\nBEGIN\n    HEAD %sL, %s_UNDER%s\n    %s_OVER %s_CLEAR 0\nEND\n", id,
               colors[int(id / 10) % 8 + 1], name, rows(id % 4 + 1, id % 100, 8, 21, 0), name, name
        printf "%d RAW_GROUP BEGIN GROUP %d END\n", id, id
    }
}

# Rows from bottom to top, eight to a line: of a tile with a number on it or none (-1), or its clear
# points.
function rows(shape, number, top, bottom, clear,    y, x, bits, text, n) {
    text = ""
    n = 0
    for (y = bottom; y >= top; --y) {
        bits = 0
        for (x = 0; x < side; ++x)
            if (clear ? !inside(shape, x, y) : inside(shape, x, y) && !inked(number, x, y))
                bits += 2 ^ (8 * int(x / 8) + 7 - x % 8)
        text = text (n++ % 8 == 0 ? (number < 0 ? " \\\n    " : "\n    ") : " ") \
               sprintf("0x%04X%04XL,", int(bits / 65536), bits % 65536)
    }
    return text
}

function inside(shape, x, y,    dx, dy) {
    dx = x - 15.5; dx = dx < 0 ? -dx : dx
    dy = y - 15.5; dy = dy < 0 ? -dy : dy
    if (shape == 1) return dx * dx + dy * dy <= 15.9 * 15.9
    if (shape == 2) return dx < 15 && dy < 15 && dx + dy < 28
    if (shape == 3) return dy < 15 && dx + dy / 2 < 19.5 && dx < 16
    return dx < 15 && dy < 15 && dx + dy < 22.5
}

# Whether a point belongs to the number, each dot of whose digits is two by two.
function inked(number, x, y,    digit, column, row, octal, value) {
    if (number < 0 || y < 8 || y > 21) return 0
    if (x >= 4 && x < 14) { digit = int(number / 10); column = int((x - 4) / 2) }
    else if (x >= 18 && x < 28) { digit = number % 10; column = int((x - 18) / 2) }
    else return 0
    split(fonts[digit + 1], octal, " ")
    row = octal[int((y - 8) / 2) + 1]
    value = int(row / 10) * 8 + row % 10
    return int(value / 2 ^ (4 - column)) % 2
}
PROGRAM
