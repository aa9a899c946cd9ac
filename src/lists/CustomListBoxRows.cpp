// The list box: where its rows are, and those that it draws itself, in lists made owner-drawn with
// strings.

#include "CustomListBox.h"
#include "OnBoardUIGeneral.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/MeasuringDC.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"
#include "paint/RowText.h"

#include <algorithm>
#include <optional>

namespace {

struct RowColors
{
    COLORREF text;
    COLORREF ground;
};

// given: what the parent set for the list.
RowColors ColorsOf(UINT state, const RowColors& given)
{
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    if ((state & ODS_DISABLED) != 0)
    {
        return {onBoard ? palette::ListTextDisabled : ::GetSysColor(COLOR_GRAYTEXT), given.ground};
    }
    if ((state & ODS_SELECTED) == 0)
    {
        return given;
    }
    return onBoard ? RowColors{palette::HighlightText, palette::Highlight}
                   : RowColors{::GetSysColor(COLOR_HIGHLIGHTTEXT), ::GetSysColor(COLOR_HIGHLIGHT)};
}

} // namespace

// Where rows are ---------------------------------------------------------------------------------

bool CCustomListBox::Exists(int index)
{
    return index >= 0 && index < Ask(LB_GETCOUNT);
}

// Some platforms tell the place as it is before the list is scrolled sideways.
CRect CCustomListBox::RowRect(int index)
{
    CRect row;
    Ask(LB_GETITEMRECT, WPARAM(index), reinterpret_cast<LPARAM>(&row));
    const int left = InColumns() ? 0 : -::GetScrollPos(GetSafeHwnd(), SB_HORZ);
    if (left < 0 && row.left > left)
    {
        row.MoveToX(left);
    }
    return row;
}

bool CCustomListBox::IsInSight(int index, CRect& row)
{
    CRect client;
    GetClientRect(&client);
    const int fromTop = index - Ask(LB_GETTOPINDEX);
    // A row so far down that it is out of sight however low the rows are is not even looked up.
    if (fromTop < 0 || (!InColumns() && fromTop > client.Height()))
    {
        return false;
    }
    row = RowRect(index);
    return row.top < client.bottom && row.left < client.right;
}

int CCustomListBox::RowFromPoint(CPoint point)
{
    const int count = Ask(LB_GETCOUNT);
    int index = Ask(LB_GETTOPINDEX);
    if ((GetStyle() & LBS_OWNERDRAWVARIABLE) == 0 && !InColumns())
    {
        const int height = Ask(LB_GETITEMHEIGHT);
        const bool onRow = height > 0 && point.y >= 0 && point.y / height < count - index;
        return onRow ? index + int(point.y) / height : -1;
    }
    CRect row;
    for (; index < count && IsInSight(index, row); ++index)
    {
        if (row.PtInRect(point))
        {
            return index;
        }
    }
    return -1;
}

std::vector<int> CCustomListBox::SelectedRows()
{
    const int count = Ask(LB_GETSELCOUNT); // an error in a list that selects one row
    if (count < 0)
    {
        const int index = Ask(LB_GETCURSEL);
        return index < 0 ? std::vector<int>() : std::vector<int>{index};
    }
    std::vector<int> rows(size_t{unsigned(count)});
    Ask(LB_GETSELITEMS, WPARAM(count), reinterpret_cast<LPARAM>(rows.data()));
    return rows;
}

void CCustomListBox::NotifyParent(UINT code)
{
    TellCommand(GetSafeHwnd(), code);
}

// Drawing and measuring -------------------------------------------------------------------------

BOOL CCustomListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const auto* const draw =
        message == WM_DRAWITEM ? reinterpret_cast<const DRAWITEMSTRUCT*>(lParam) : nullptr;
    if (draw != nullptr && !AskForColors(*draw))
    {
        return TRUE;
    }
    return CListBox::OnChildNotify(message, wParam, lParam, result);
}

void CCustomListBox::DrawItem(LPDRAWITEMSTRUCT draw)
{
    CDC* const dc = draw == nullptr ? nullptr : CDC::FromHandle(draw->hDC);
    if (dc == nullptr || !HasText())
    {
        return;
    }
    std::optional<Selected> font;
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        font.emplace(*dc, GetOnBoardFont());
    }
    const CRect row(draw->rcItem);
    if (draw->itemID != UINT(-1))
    {
        CString text;
        const WindowAlive alive(*this);
        GetText(int(draw->itemID), text);
        if (!alive)
        {
            return;
        }
        DrawRowText(*dc, row, text, draw->itemState);
    }
    if ((draw->itemState & ODS_FOCUS) != 0 && (draw->itemState & ODS_NOFOCUSRECT) == 0)
    {
        dc->DrawFocusRect(row);
    }
}

bool CCustomListBox::AskForColors(const DRAWITEMSTRUCT& draw)
{
    const WindowAlive alive(*this);
    if ((draw.itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) == 0)
    {
        ::SendMessage(::GetParent(GetSafeHwnd()), WM_CTLCOLORLISTBOX,
                      reinterpret_cast<WPARAM>(draw.hDC), reinterpret_cast<LPARAM>(GetSafeHwnd()));
    }
    return bool(alive);
}

void CCustomListBox::DrawRowText(CDC& dc, const CRect& row, const CString& text, UINT state,
                                 int indent)
{
    const RowColors colors = ColorsOf(state, {dc.GetTextColor(), dc.GetBkColor()});
    DrawTextOnGround(dc, row, indent + metrics::ListRowMargin, text, colors.text, colors.ground);
}

void CCustomListBox::MeasureItem(LPMEASUREITEMSTRUCT measure)
{
    if (measure == nullptr || !HasText())
    {
        return;
    }
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        CString text;
        const int index = int(measure->itemID);
        if ((GetStyle() & LBS_OWNERDRAWVARIABLE) != 0 && index >= 0 && index < Ask(LB_GETCOUNT))
        {
            const WindowAlive alive(*this);
            GetText(index, text);
            if (!alive)
            {
                return;
            }
        }
        measure->itemHeight = UINT(std::max(1, GetEntryHeight(text)));
        return;
    }
    CDC& dc = MeasuringDC();
    const Selected font(dc, Font());
    measure->itemHeight = UINT(std::max<LONG>(1, dc.GetTextExtent("X", 1).cy));
}

// Asks whoever measures the rows of an owner-drawn list anew: the platform asks only once.
void CCustomListBox::MeasureRows()
{
    const DWORD style = GetStyle();
    const bool variable = (style & LBS_OWNERDRAWVARIABLE) != 0;
    if (!variable && (style & LBS_OWNERDRAWFIXED) == 0)
    {
        return;
    }
    const WindowAlive alive(*this);
    const HWND parent = ::GetParent(GetSafeHwnd());
    // The parent may take rows away while it is asked about one.
    for (int row = 0; alive && row < (variable ? Ask(LB_GETCOUNT) : 1); ++row)
    {
        MEASUREITEMSTRUCT measure = {};
        measure.CtlType = ODT_LISTBOX;
        measure.CtlID = UINT(GetDlgCtrlID());
        measure.itemID = UINT(row);
        measure.itemHeight = UINT(std::max(0, Ask(LB_GETITEMHEIGHT, WPARAM(row))));
        measure.itemData = variable ? ULONG_PTR(DefWindowProc(LB_GETITEMDATA, WPARAM(row), 0)) : 0;
        ::SendMessage(parent, WM_MEASUREITEM, measure.CtlID, reinterpret_cast<LPARAM>(&measure));
        if (!alive || measure.itemHeight == 0)
        {
            continue;
        }
        const int height = std::max(int(measure.itemHeight), LeastRowHeight());
        if (height != Ask(LB_GETITEMHEIGHT, WPARAM(row)))
        {
            Ask(LB_SETITEMHEIGHT, WPARAM(row), LPARAM(height));
        }
    }
}
