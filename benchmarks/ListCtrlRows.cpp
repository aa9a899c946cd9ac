// The report list that paints and scrolls itself against the platform's.

#include "CustomListCtrl.h"
#include "Row.h"
#include "Stage.h"

#include <string>

namespace {

constexpr int FilledRows = 10'000;
constexpr int ManyRows = 100'000;
constexpr int FewRows = 100;
constexpr int Columns = 4;
constexpr int Lines = 500;
constexpr int Paints = 20;
constexpr SIZE View = {530, 500}; // of the rows that are painted and scrolled
constexpr DWORD Style = WS_CHILD | WS_VISIBLE | WS_BORDER | LVS_REPORT | LVS_SHOWSELALWAYS;

std::string TextOf(int row, int column)
{
    return (column == 0 ? "Waypoint " : "Value ") + std::to_string(row * (column + 1));
}

const std::vector<std::vector<std::string>>& Texts()
{
    static const std::vector<std::vector<std::string>> texts = [] {
        std::vector<std::vector<std::string>> made;
        made.reserve(FilledRows);
        for (int row = 0; row < FilledRows; ++row)
        {
            std::vector<std::string> cells;
            cells.reserve(Columns);
            for (int column = 0; column < Columns; ++column)
            {
                cells.push_back(TextOf(row, column));
            }
            made.push_back(cells);
        }
        return made;
    }();
    return texts;
}

template <class List> std::shared_ptr<List> Made(APPMODE mode)
{
    EnterMode(mode);
    auto list = std::make_shared<List>();
    list->Create(Style, CRect(20, 20, 620, 620), &Stage(), 1);
    list->SetFont(&CCustomListCtrl::GetOnBoardFont());
    for (int column = 0; column < Columns; ++column)
    {
        // As wide on both sides.
        list->InsertColumn(column, "Heading", LVCFMT_LEFT, mode == STD ? 136 : 80);
    }
    PaintNow(*list);
    Settle();
    return list;
}

void InsertRows(CListCtrl& list, int rows)
{
    for (int row = 0; row < rows; ++row)
    {
        const auto& cells = Texts()[size_t(row % FilledRows)];
        list.InsertItem(row, cells[0].c_str());
        for (int column = 1; column < Columns; ++column)
        {
            list.SetItemText(row, column, cells[size_t(column)].c_str());
        }
    }
}

// As much room for rows on both sides, whatever bars and headings take.
void GiveView(CListCtrl& list)
{
    CRect window, client, headings;
    list.GetWindowRect(&window);
    list.GetClientRect(&client);
    list.GetHeaderCtrl()->GetWindowRect(&headings);
    const CSize other = window.Size() - client.Size() + CSize(0, headings.Height());
    list.SetWindowPos(nullptr, 0, 0, View.cx + other.cx, View.cy + other.cy,
                      SWP_NOMOVE | SWP_NOZORDER);
}

template <class List, APPMODE mode> Side Fill()
{
    auto list = std::make_shared<std::shared_ptr<List>>();
    return {[list] { *list = Made<List>(mode); },
            [list] {
                InsertRows(**list, FilledRows);
                PaintNow(**list);
            },
            [list] { list->reset(); }};
}

// Filled once: that takes longer than all that is measured.
template <class List, APPMODE mode, int rows> Side OnFilled(void (*run)(List&))
{
    auto list = std::make_shared<std::shared_ptr<List>>();
    return {[list] {
                EnterMode(mode);
                if (*list == nullptr)
                {
                    *list = Made<List>(mode);
                    (*list)->SetRedraw(FALSE);
                    InsertRows(**list, rows);
                    (*list)->SetRedraw(TRUE);
                    GiveView(**list);
                }
                (*list)->ShowWindow(SW_SHOW);
                (*list)->EnsureVisible(0, FALSE);
                (*list)->RedrawWindow();
                Settle();
            },
            [list, run] { run(**list); }, [list] { (*list)->ShowWindow(SW_HIDE); }};
}

template <class List> void Paint(List& list)
{
    for (int paint = 0; paint < Paints; ++paint)
    {
        list.Invalidate();
        list.UpdateWindow();
    }
}

template <class List> void Scroll(List& list)
{
    for (int line = 0; line < Lines; ++line)
    {
        list.SendMessage(WM_VSCROLL, SB_LINEDOWN);
        list.UpdateWindow();
    }
}

template <class List, APPMODE mode, int rows> Side PaintFilled()
{
    return OnFilled<List, mode, rows>(&Paint<List>);
}

template <class List, APPMODE mode, int rows> Side ScrollFilled()
{
    return OnFilled<List, mode, rows>(&Scroll<List>);
}

} // namespace

std::vector<Row> ListCtrlRows()
{
    return {{"listctrl.fill", 1.3, 5, &Fill<CCustomListCtrl, ONBOARD>, &Fill<CListCtrl, STD>},
            {"listctrl.paint", 1.0, 9, &PaintFilled<CCustomListCtrl, ONBOARD, ManyRows>,
             &PaintFilled<CListCtrl, STD, ManyRows>},
            {"listctrl.rows", 1.1, 9, &PaintFilled<CCustomListCtrl, ONBOARD, ManyRows>,
             &PaintFilled<CCustomListCtrl, ONBOARD, FewRows>},
            {"listctrl.scroll", 1.0, 9, &ScrollFilled<CCustomListCtrl, ONBOARD, FilledRows>,
             &ScrollFilled<CListCtrl, STD, FilledRows>}};
}
