// The list boxes with their own bar against the platform's list box with the platform's.

#include "CustomChecklistBox.h"
#include "CustomListBox.h"
#include "Row.h"
#include "Stage.h"

#include <string>
#include <type_traits>

namespace {

constexpr int FilledRows = 10'000;
constexpr int Lines = 1'000;
constexpr DWORD Style =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_BORDER | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

const std::vector<std::string>& Texts()
{
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> made;
        made.reserve(FilledRows);
        for (int row = 0; row < FilledRows; ++row)
        {
            made.push_back("Waypoint " + std::to_string(row));
        }
        return made;
    }();
    return texts;
}

template <class List> std::shared_ptr<List> Made(APPMODE mode)
{
    EnterMode(mode);
    auto list = std::make_shared<List>();
    list->Create(Style, CRect(20, 20, 420, 520), &Stage(), 1);
    list->SetFont(&CCustomListBox::GetOnBoardFont());
    PaintNow(*list);
    Settle();
    return list;
}

template <class List, APPMODE mode> Side Fill()
{
    auto list = std::make_shared<std::shared_ptr<List>>();
    return {[list] { *list = Made<List>(mode); },
            [list] {
                for (const std::string& text : Texts())
                {
                    const int row = (*list)->AddString(text.c_str());
                    if constexpr (std::is_base_of_v<CCustomChecklistBox, List>)
                    {
                        (*list)->SetCheck(row, BST_CHECKED);
                    }
                }
                PaintNow(**list);
            },
            [list] { list->reset(); }};
}

template <class List, APPMODE mode> Side Scroll()
{
    auto list = std::make_shared<std::shared_ptr<List>>();
    return {[list] {
                *list = Made<List>(mode);
                (*list)->SetRedraw(FALSE);
                for (const std::string& text : Texts())
                {
                    (*list)->AddString(text.c_str());
                }
                (*list)->SetRedraw(TRUE);
                (*list)->RedrawWindow();
                Settle();
            },
            [list] {
                for (int line = 0; line < Lines; ++line)
                {
                    (*list)->SendMessage(WM_VSCROLL, SB_LINEDOWN);
                    (*list)->UpdateWindow();
                }
            },
            [list] { list->reset(); }};
}

} // namespace

std::vector<Row> ListBoxRows()
{
    return {{"listbox.fill", 1.3, 7, &Fill<CCustomListBox, ONBOARD>, &Fill<CListBox, STD>},
            {"checklist.fill", 1.5, 7, &Fill<CCustomChecklistBox, ONBOARD>, &Fill<CListBox, STD>},
            {"listbox.scroll", 1.5, 7, &Scroll<CCustomListBox, ONBOARD>, &Scroll<CListBox, STD>}};
}
