#pragma once

// The circle of a radio button, row by row, relative to the top left corner of its square. Each
// layer covers parts of those before it.

namespace buttons {

struct CircleSpan
{
    int row;
    int from;
    int to; // not drawn any more
};

constexpr CircleSpan CircleRim[] = {
    {0, 8, 14},  {1, 6, 16},  {2, 4, 18},  {3, 3, 19},  {4, 2, 20},  {5, 2, 20},
    {6, 1, 21},  {7, 1, 21},  {8, 0, 22},  {9, 0, 22},  {10, 0, 22}, {11, 0, 22},
    {12, 0, 22}, {13, 0, 22}, {14, 1, 21}, {15, 1, 21}, {16, 2, 20}, {17, 2, 20},
    {18, 3, 19}, {19, 4, 18}, {20, 6, 16}, {21, 8, 14},
};

constexpr CircleSpan CircleLight[] = {
    {4, 19, 20},  {5, 18, 20},  {6, 17, 21},  {7, 18, 21},  {8, 18, 22},
    {9, 19, 22},  {10, 19, 22}, {11, 19, 22}, {12, 19, 22}, {13, 18, 22},
    {14, 18, 21}, {15, 17, 21}, {16, 16, 20}, {17, 5, 7},   {17, 15, 20},
    {18, 4, 9},   {18, 13, 19}, {19, 4, 18},  {20, 6, 16},  {21, 8, 14},
};

constexpr CircleSpan CircleFace[] = {
    {3, 9, 13},  {4, 7, 15},  {5, 6, 16},  {6, 5, 17},  {7, 4, 18},  {8, 4, 18},
    {9, 3, 19},  {10, 3, 19}, {11, 3, 19}, {12, 3, 19}, {13, 4, 18}, {14, 4, 18},
    {15, 5, 17}, {16, 6, 16}, {17, 7, 15}, {18, 9, 13},
};

constexpr CircleSpan CircleDot[] = {
    {6, 9, 13},  {7, 7, 15},  {8, 7, 15},  {9, 6, 16},  {10, 6, 16},
    {11, 6, 16}, {12, 6, 16}, {13, 7, 15}, {14, 7, 15}, {15, 9, 13},
};

} // namespace buttons
