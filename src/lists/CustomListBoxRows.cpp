// The list box: rows that it draws itself, in lists made owner-drawn with strings.

#include "CustomListBox.h"
#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/MeasuringDC.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"

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
        GetText(int(draw->itemID), text);
        DrawRowText(*dc, row, text, draw->itemState);
    }
    if ((draw->itemState & ODS_FOCUS) != 0 && (draw->itemState & ODS_NOFOCUSRECT) == 0)
    {
        dc->DrawFocusRect(row);
    }
}

void CCustomListBox::DrawRowText(CDC& dc, const CRect& row, const CString& text, UINT state,
                                 int indent)
{
    const RowColors colors = ColorsOf(state, {dc.GetTextColor(), dc.GetBkColor()});
    const TextColor textColor(dc, colors.text);
    const BackgroundColor ground(dc, colors.ground);
    // Ground and text in one call, so that no row is ever seen empty.
    const int top = row.top + (row.Height() - dc.GetTextExtent("X", 1).cy) / 2;
    dc.ExtTextOut(row.left + indent + metrics::ListRowMargin, top, ETO_OPAQUE | ETO_CLIPPED, row,
                  text, nullptr);
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
            GetText(index, text);
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
        if (alive && measure.itemHeight > 0 &&
            int(measure.itemHeight) != Ask(LB_GETITEMHEIGHT, WPARAM(row)))
        {
            Ask(LB_SETITEMHEIGHT, WPARAM(row), LPARAM(measure.itemHeight));
        }
    }
}
