#pragma once

#include <limits>

// Truncates toward zero as a cast does, with a defined result for what no int holds: the nearest
// int, and 0 for what is not a number.
constexpr int Truncated(double value)
{
    return value != value                                     ? 0
           : value >= double(std::numeric_limits<int>::max()) ? std::numeric_limits<int>::max()
           : value <= double(std::numeric_limits<int>::min()) ? std::numeric_limits<int>::min()
                                                              : int(value);
}
