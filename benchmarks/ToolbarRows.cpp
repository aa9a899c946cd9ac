// Ordering the buttons of a tool bar against making them anew in that order. Either leaves the
// whole bar to be painted, which is the same for both and not timed.

#include "CustomToolbar.h"
#include "Row.h"
#include "Stage.h"

#include <afxcmn.h>

namespace {

constexpr int Buttons = 60;
constexpr int FirstId = 100;

TBBUTTON ButtonWith(int number)
{
    TBBUTTON button = {};
    button.iBitmap = number;
    button.idCommand = FirstId + number;
    button.fsState = TBSTATE_ENABLED;
    button.fsStyle = TBSTYLE_BUTTON;
    return button;
}

// One for each button, all the same to look at.
CImageList& Pictures()
{
    static CImageList pictures;
    if (pictures.GetSafeHandle() == nullptr)
    {
        pictures.Create(16, 16, ILC_COLOR32, 0, Buttons);
        pictures.SetImageCount(Buttons);
    }
    return pictures;
}

using Bar = std::shared_ptr<std::unique_ptr<CustomToolbar>>;

void MakeBar(const Bar& bar)
{
    EnterMode(STD);
    *bar = std::make_unique<CustomToolbar>();
    (*bar)->CreateEx(&Stage(), TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE);
    (*bar)->SetWindowPos(nullptr, 10, 10, 960, 120, SWP_NOZORDER);
    (*bar)->GetToolBarCtrl().SetImageList(&Pictures());
    for (int number = 0; number < Buttons; ++number)
    {
        TBBUTTON button = ButtonWith(number);
        (*bar)->SendMessage(TB_ADDBUTTONS, 1, LPARAM(&button));
    }
    PaintNow(**bar);
}

Side Reverse()
{
    const Bar bar = std::make_shared<std::unique_ptr<CustomToolbar>>();
    return {[bar] { MakeBar(bar); },
            [bar] {
                std::vector<unsigned int> order;
                for (int number = Buttons; number-- > 0;)
                {
                    order.push_back(unsigned(FirstId + number));
                }
                std::vector<std::string> messages;
                (*bar)->OrderBtns(order, messages);
            },
            [bar] { bar->reset(); }};
}

Side DeleteAndAdd()
{
    const Bar bar = std::make_shared<std::unique_ptr<CustomToolbar>>();
    return {[bar] { MakeBar(bar); },
            [bar] {
                for (int index = Buttons; index-- > 0;)
                {
                    (*bar)->SendMessage(TB_DELETEBUTTON, WPARAM(index));
                }
                std::vector<TBBUTTON> buttons;
                for (int number = Buttons; number-- > 0;)
                {
                    buttons.push_back(ButtonWith(number));
                }
                (*bar)->SendMessage(TB_ADDBUTTONS, Buttons, LPARAM(buttons.data()));
            },
            [bar] { bar->reset(); }};
}

} // namespace

std::vector<Row> ToolbarRows()
{
    return {{"toolbar.order", 1.0, 41, &Reverse, &DeleteAndAdd}};
}
