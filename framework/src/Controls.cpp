#include "framework/Controls.h"

#include "Reflection.h"

#include <algorithm>

using framework::Answered;
using framework::DrawReflected;

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

namespace {

// The four owner-drawing messages, for the controls that have items.
template <class Control>
BOOL CallItemVirtual(Control& control, UINT message, LPARAM lParam, LRESULT* result)
{
    switch (message)
    {
    case WM_DRAWITEM:
        return DrawReflected(control, lParam, result);
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return Answered(result, TRUE);
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return Answered(result, TRUE);
    case WM_COMPAREITEM:
        return Answered(result, control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam)));
    default:
        return FALSE;
    }
}

} // namespace

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return message == WM_DRAWITEM ? DrawReflected(*this, lParam, result)
                                  : CWnd::OnChildNotify(message, wParam, lParam, result);
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return message == WM_DRAWITEM ? DrawReflected(*this, lParam, result)
                                  : CWnd::OnChildNotify(message, wParam, lParam, result);
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    switch (message)
    {
    case WM_VKEYTOITEM:
        return Answered(result, VKeyToItem(LOWORD(wParam), HIWORD(wParam)));
    case WM_CHARTOITEM:
        return Answered(result, CharToItem(LOWORD(wParam), HIWORD(wParam)));
    default:
        return CallItemVirtual(*this, message, lParam, result) ||
               CWnd::OnChildNotify(message, wParam, lParam, result);
    }
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return CallItemVirtual(*this, message, lParam, result) ||
           CWnd::OnChildNotify(message, wParam, lParam, result);
}

void CListBox::GetText(int index, CString& text) const
{
    const HWND window = m_hWnd; // is asked, and may end
    const int length = GetTextLen(index);
    if (length == LB_ERR)
    {
        text.Empty();
        return;
    }
    ::SendMessage(window, LB_GETTEXT, WPARAM(index), LPARAM(text.GetBuffer(length)));
    text.ReleaseBuffer();
}

UINT CListBox::ItemFromPoint(CPoint point, BOOL& outside) const
{
    const LRESULT found = SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    outside = HIWORD(found);
    return LOWORD(found);
}

void CComboBox::GetLBText(int index, CString& text) const
{
    const HWND window = m_hWnd; // is asked, and may end
    const int length = GetLBTextLen(index);
    if (length == CB_ERR)
    {
        text.Empty();
        return;
    }
    ::SendMessage(window, CB_GETLBTEXT, WPARAM(index), LPARAM(text.GetBuffer(length)));
    text.ReleaseBuffer();
}

void CEdit::SetSel(int start, int end, BOOL noScroll)
{
    const HWND window = m_hWnd; // may end in it
    ::SendMessage(window, EM_SETSEL, WPARAM(start), LPARAM(end));
    if (!noScroll)
    {
        ::SendMessage(window, EM_SCROLLCARET, 0, 0);
    }
}

int CEdit::GetLine(int line, LPTSTR buffer, int size) const
{
    // The message takes the capacity in the first bytes of the buffer that it fills.
    const WORD capacity = WORD(std::clamp(size, 0, 0xFFFF));
    if (capacity == 0)
    {
        return 0;
    }
    char few[sizeof(capacity)] = {};
    char* const filled = capacity < sizeof(few) ? few : buffer;
    ::CopyMemory(filled, &capacity, sizeof(capacity));
    const int copied = GetLine(line, filled);
    if (filled == few && copied > 0)
    {
        ::CopyMemory(buffer, few, size_t(std::min(copied, int(capacity))));
    }
    return copied;
}

int CScrollBar::GetScrollLimit()
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    GetScrollInfo(&info, SIF_RANGE | SIF_PAGE);
    return info.nMax - std::max(int(info.nPage) - 1, 0);
}
