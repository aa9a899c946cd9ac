// The check list: heights, places and painting of its rows.

#include "CustomChecklistBox.h"

#include "OnBoardUIGeneral.h"
#include "lists/CheckListLayout.h"
#include "lists/CheckMarks.h"
#include "lists/CheckRecords.h"
#include "modes/WindowAlive.h"
#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "paint/MeasuringDC.h"
#include "paint/Palette.h"

#include <algorithm>

namespace {

CSize CheckSize()
{
    return lists::CheckMarks::Of(COnBoardUIGeneral::InOnBoardMode(), true).Size();
}

CSize TextSize(HFONT font, const CString& text = "X")
{
    CDC& dc = MeasuringDC();
    const Selected selected(dc, font);
    return dc.GetTextExtent(text);
}

} // namespace

// Heights ---------------------------------------------------------------------------------------

int CCustomChecklistBox::CalcMinimumItemHeight()
{
    constexpr DWORD measured = LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
    const int check = CheckSize().cy + metrics::RowCheckInset;
    if ((GetStyle() & measured) != measured)
    {
        return check;
    }
    CFont& font = COnBoardUIGeneral::InOnBoardMode() ? GetOnBoardFont() : GetStdFont();
    m_textHeight = TextSize(font).cy;
    return std::max(m_textHeight, check);
}

// What a row gets unless somebody wants it higher: in the standard mode it also holds a text in the
// font that the host gave the control.
int CCustomChecklistBox::RowHeight()
{
    const int least = CalcMinimumItemHeight();
    return COnBoardUIGeneral::InOnBoardMode() || !HasText()
               ? least
               : std::max(least, int(TextSize(Font()).cy));
}

// Gives the rows their height without waiting to be asked for it by way of the parent. Rows that
// the host has made higher stay so.
void CCustomChecklistBox::FitRows()
{
    const DWORD style = GetStyle();
    const bool variable = (style & LBS_OWNERDRAWVARIABLE) != 0;
    if (!variable && (style & LBS_OWNERDRAWFIXED) == 0)
    {
        return;
    }
    const WindowAlive alive(*this);
    const int height = RowHeight();
    int& own = m_ownHeight[COnBoardUIGeneral::InOnBoardMode()];
    const int before = own;
    own = height;
    const int rows = variable ? Ask(LB_GETCOUNT) : 1;
    bool fitted = false;
    for (int row = 0; row < rows && alive; ++row)
    {
        const int now = Ask(LB_GETITEMHEIGHT, WPARAM(row));
        if (now != height && (now < height || now == before))
        {
            Ask(LB_SETITEMHEIGHT, WPARAM(row), LPARAM(height));
            fitted = true;
        }
    }
    if (alive && fitted)
    {
        RowsFitted();
    }
}

int CCustomChecklistBox::GetEntryWidth(int index)
{
    if (!HasText() || !Exists(index))
    {
        return 0;
    }
    CString text;
    const WindowAlive alive(*this);
    GetText(index, text);
    if (!alive)
    {
        return 0;
    }
    const HFONT font = COnBoardUIGeneral::InOnBoardMode() ? HFONT(GetOnBoardFont()) : Font();
    return lists::TextIndent(CheckSize().cx) + TextSize(font, text).cx;
}

LRESULT CCustomChecklistBox::OnSetFont(WPARAM wParam, LPARAM lParam)
{
    const WindowAlive alive(*this);
    const LRESULT result = CCustomListBox::OnSetFont(wParam, lParam);
    if (alive)
    {
        FitRows();
    }
    return result;
}

// Places ----------------------------------------------------------------------------------------

CRect CCustomChecklistBox::OnGetCheckPosition(CRect, CRect check)
{
    return check;
}

CRect CCustomChecklistBox::CheckRect(const CRect& row)
{
    return OnGetCheckPosition(row, lists::CheckPlace(row, CheckSize()));
}

int CCustomChecklistBox::CheckFromPoint(CPoint point, int& onCheck)
{
    const int index = RowFromPoint(point);
    onCheck = index >= 0 && lists::IsOnCheck(point.x - RowRect(index).left, CheckSize().cx);
    return index;
}

void CCustomChecklistBox::InvalidateCheck(int index)
{
    CRect row;
    if (IsInSight(index, row))
    {
        InvalidateRect(CheckRect(row), FALSE);
    }
}

void CCustomChecklistBox::InvalidateItem(int index)
{
    CRect row;
    if (Exists(index) && IsInSight(index, row))
    {
        InvalidateRect(row, FALSE);
    }
}

// The part of the client area that rows paint themselves; not known in columns.
CRect CCustomChecklistBox::RowsArea()
{
    const int count = InColumns() ? 0 : Ask(LB_GETCOUNT);
    CRect area;
    CRect row;
    for (int index = Ask(LB_GETTOPINDEX); index < count && IsInSight(index, row); ++index)
    {
        area.UnionRect(area, row);
    }
    return area;
}

// The owner's messages --------------------------------------------------------------------------

BOOL CCustomChecklistBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    LRESULT answer = TRUE;
    switch (message)
    {
    case WM_DRAWITEM:
        if (AskForColors(*reinterpret_cast<LPDRAWITEMSTRUCT>(lParam)))
        {
            PreDrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        }
        break;
    case WM_MEASUREITEM:
        PreMeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        answer = PreCompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        PreDeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    default:
        return CCustomListBox::OnChildNotify(message, wParam, lParam, result);
    }
    if (result != nullptr)
    {
        *result = answer;
    }
    return TRUE;
}

void CCustomChecklistBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CCustomChecklistBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

void CCustomChecklistBox::PreMeasureItem(LPMEASUREITEMSTRUCT measure)
{
    MEASUREITEMSTRUCT given = *measure;
    given.itemData = m_records->DataIn(given.itemData);
    const int height = RowHeight();
    m_ownHeight[COnBoardUIGeneral::InOnBoardMode()] = height;
    given.itemHeight = UINT(height);
    MeasureItem(&given);
    measure->itemWidth = given.itemWidth;
    measure->itemHeight = std::max(given.itemHeight, UINT(height));
}

int CCustomChecklistBox::PreCompareItem(LPCOMPAREITEMSTRUCT compare)
{
    COMPAREITEMSTRUCT given = *compare;
    given.itemData1 = m_records->DataIn(given.itemData1);
    given.itemData2 = m_records->DataIn(given.itemData2);
    return CompareItem(&given);
}

void CCustomChecklistBox::PreDeleteItem(LPDELETEITEMSTRUCT deleted)
{
    DELETEITEMSTRUCT given = *deleted;
    given.itemData = m_records->DataIn(given.itemData);
    m_records->Free(m_records->Find(deleted->itemData));
    DeleteItem(&given);
}

void CCustomChecklistBox::PreDrawItem(LPDRAWITEMSTRUCT draw)
{
    CDC* const dc = CDC::FromHandle(draw->hDC);
    const CRect row(draw->rcItem);
    // Some platforms ask for every row in the window when one of them is due.
    if (dc == nullptr || !dc->RectVisible(row))
    {
        return;
    }
    const int indent = lists::TextIndent(CheckSize().cx);
    const bool isRow = draw->itemID != UINT(-1); // an empty list shows its focus
    DRAWITEMSTRUCT given = *draw;
    given.itemData = m_records->DataIn(given.itemData);
    given.rcItem.left += isRow ? indent : 0;

    BackBuffer buffer(*dc, row);
    CDC& to = buffer;
    given.hDC = to;
    const Selected font(to, COnBoardUIGeneral::InOnBoardMode()
                                ? HGDIOBJ(GetOnBoardFont())
                                : ::GetCurrentObject(draw->hDC, OBJ_FONT));
    to.SetTextColor(dc->GetTextColor());
    to.SetBkColor(dc->GetBkColor());
    // A row whose check is fixed looks it, unless it is selected: that has to be seen.
    const bool fixed = isRow && !IsEnabled(int(draw->itemID));
    const bool looksDisabled = fixed && (draw->itemState & ODS_SELECTED) == 0;
    CString text;
    if (isRow && HasText())
    {
        const WindowAlive alive(*this);
        GetText(int(draw->itemID), text);
        if (!alive)
        {
            return;
        }
    }
    DrawRowText(to, row, text, isRow ? draw->itemState | (looksDisabled ? ODS_DISABLED : 0) : 0,
                indent);
    if (isRow)
    {
        PreDrawItemNonThemed(to, *draw);
    }
    if ((draw->itemState & ODS_FOCUS) != 0 && (draw->itemState & ODS_NOFOCUSRECT) == 0)
    {
        to.DrawFocusRect(&given.rcItem);
    }
    DrawItem(&given);
}

void CCustomChecklistBox::PreDrawItemNonThemed(CDC& dc, const DRAWITEMSTRUCT& draw)
{
    const int index = int(draw.itemID);
    const bool enabled = (draw.itemState & ODS_DISABLED) == 0 && IsEnabled(index);
    const bool selected = (draw.itemState & ODS_SELECTED) != 0;
    const CRect check = CheckRect(draw.rcItem);
    const BackgroundColor filled(dc, dc.GetBkColor()); // filling leaves its colour behind
    dc.FillSolidRect(check,
                     selected && enabled ? ::GetSysColor(COLOR_HIGHLIGHT) : palette::CheckArea);
    lists::CheckMarks::Of(COnBoardUIGeneral::InOnBoardMode(), enabled)
        .Draw(dc, check.TopLeft(), GetCheck(index));
}

// Painting --------------------------------------------------------------------------------------

void CCustomChecklistBox::OnPaint()
{
    const WindowAlive alive(*this);
    const bool onBoard = FollowMode();
    // A list box that existed before its object was measured by somebody else.
    if (alive && m_ownHeight[onBoard] == 0)
    {
        FitRows();
    }
    if (alive)
    {
        Default();
    }
}

BOOL CCustomChecklistBox::OnEraseBkgnd(CDC* dc)
{
    if (dc == nullptr)
    {
        return BOOL(Default());
    }
    // A row is never seen without its ground: it is painted in one copy.
    const SavedState saved(*dc);
    dc->ExcludeClipRect(RowsArea());
    return BOOL(Default());
}

void CCustomChecklistBox::OnKillFocus(CWnd* taker)
{
    const WindowAlive alive(*this);
    CCustomListBox::OnKillFocus(taker);
    if (alive)
    {
        InvalidateItem(Ask(LB_GETCARETINDEX)); // it shows no focus any more
    }
}
