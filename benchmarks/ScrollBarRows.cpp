// The faux bar alone: what a million positions cost against a thousand.

#include "FauxScrollBar.h"
#include "Row.h"
#include "Stage.h"

namespace {

constexpr int Turns = 2'000; // one by one they are too short to be timed

template <int steps> Side RangePositionDrag()
{
    auto bar = std::make_shared<CFauxScrollBar>(SB_VERT);
    return {[bar] {
                EnterMode(ONBOARD);
                bar->SetArea(CRect(0, 0, 55, 500));
            },
            [bar] {
                for (int turn = 0; turn < Turns; ++turn)
                {
                    bar->SetScrollRange(0, steps + turn % 2); // a range that stays is free
                    bar->SetScrollPos(steps / 3);
                    bar->IncrementScrollByPixels(1);
                }
            },
            [] {}};
}

} // namespace

std::vector<Row> ScrollBarRows()
{
    return {
        {"scrollbar.million", 1.5, 15, &RangePositionDrag<1'000'000>, &RangePositionDrag<1'000>}};
}
