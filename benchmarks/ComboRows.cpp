// The drop-list combo against the platform's.

#include "CustomComboLBox.h"
#include "CustomDropListCombo.h"
#include "Row.h"
#include "Stage.h"
#include "paint/Metrics.h"

#include <string>

namespace {

constexpr int Items = 1'000;
constexpr int Openings = 20;
constexpr DWORD Style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP;
// Of both sides, in pixels as far as they are no counts.
constexpr int ListRows = CCustomComboLBox::DefaultMaxRows;
constexpr int Width = 300;
constexpr int ComboHeight = 40;

template <class Combo> void Fill(Combo& combo)
{
    for (int item = 0; item < Items; ++item)
    {
        combo.AddString(("Waypoint " + std::to_string(item)).c_str());
    }
    combo.SetCurSel(0);
    combo.SetFocus();
    PaintNow(combo);
    Settle();
}

// Opening shows the list with its rows; closing shows again what it covered.
void PaintOpen(HWND list)
{
    ::RedrawWindow(list, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

template <APPMODE mode> Side Ours()
{
    auto list = std::make_shared<std::unique_ptr<CCustomComboLBox>>();
    auto combo = std::make_shared<std::unique_ptr<CCustomDropListCombo>>();
    return {[=] {
                EnterMode(mode);
                *list = std::make_unique<CCustomComboLBox>();
                *combo = std::make_unique<CCustomDropListCombo>(list->get());
                (*combo)->Create(Style, CRect(20, 20, 20 + Width, 20 + ComboHeight), &Stage(), 1);
                Fill(**combo);
            },
            [=] {
                const HWND popup = ::GetParent((*list)->GetSafeHwnd());
                for (int opening = 0; opening < Openings; ++opening)
                {
                    (*combo)->ToggleDropList();
                    PaintOpen(popup);
                    PaintNow(**combo);
                    (*combo)->ToggleDropList();
                    PaintNow(Stage());
                }
            },
            [=] {
                combo->reset();
                list->reset();
            }};
}

HWND ListOf(CComboBox& combo)
{
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof(parts);
    ::GetComboBoxInfo(combo.GetSafeHwnd(), &parts);
    return parts.hwndList;
}

Side Platforms()
{
    auto combo = std::make_shared<std::unique_ptr<CComboBox>>();
    return {[=] {
                EnterMode(STD);
                *combo = std::make_unique<CComboBox>();
                (*combo)->Create(Style | CBS_DROPDOWNLIST, CRect(20, 20, 20 + Width, 400), &Stage(),
                                 1);
                // With as many rows as ours, which are as high and have the same font.
                (*combo)->SetFont(&CCustomDropListCombo::GetOnBoardFont());
                (*combo)->SetItemHeight(-1, ComboHeight - 6);
                ::SendMessage(ListOf(**combo), LB_SETITEMHEIGHT, 0, metrics::FingerRow);
                (*combo)->SetWindowPos(nullptr, 0, 0, Width,
                                       ComboHeight + ListRows * metrics::FingerRow + 2,
                                       SWP_NOMOVE | SWP_NOZORDER);
                Fill(**combo);
            },
            [=] {
                const HWND list = ListOf(**combo);
                for (int opening = 0; opening < Openings; ++opening)
                {
                    (*combo)->ShowDropDown(TRUE);
                    PaintOpen(list);
                    PaintNow(**combo);
                    (*combo)->ShowDropDown(FALSE);
                    PaintNow(Stage());
                }
            },
            [=] { combo->reset(); }};
}

} // namespace

std::vector<Row> ComboRows()
{
    return {{"combo.open", 1.3, 21, &Ours<ONBOARD>, &Platforms}};
}
