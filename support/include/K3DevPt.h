#pragma once

// A point of a device: x to the right, y down.
class K3DevPt
{
public:
    int x = 0;
    int y = 0;

    friend constexpr bool operator==(const K3DevPt&, const K3DevPt&) = default;
};
