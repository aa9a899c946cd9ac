// A click on the library's push button against one on the platform's, with all painting.

#include "CustomPushbutton.h"
#include "Row.h"
#include "Stage.h"

namespace {

constexpr int Clicks = 500;

template <class Button, APPMODE mode> Side Click()
{
    auto button = std::make_shared<std::unique_ptr<Button>>();
    return {[button] {
                EnterMode(mode);
                *button = std::make_unique<Button>();
                (*button)->Create("Direct to", WS_CHILD | WS_VISIBLE, CRect(20, 20, 260, 90),
                                  &Stage(), 1);
                PaintNow(**button);
            },
            [button] {
                constexpr LPARAM inside = MAKELPARAM(40, 30);
                for (int click = 0; click < Clicks; ++click)
                {
                    (*button)->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, inside);
                    (*button)->UpdateWindow();
                    (*button)->SendMessage(WM_LBUTTONUP, 0, inside);
                    (*button)->UpdateWindow();
                }
            },
            [button] { button->reset(); }};
}

} // namespace

std::vector<Row> ButtonRows()
{
    return {{"button.click", 1.5, 7, &Click<CCustomPushbutton, ONBOARD>, &Click<CButton, STD>}};
}
