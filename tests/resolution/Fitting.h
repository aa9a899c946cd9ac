#pragma once

// Whether what a window shows has room in it.

#include "CustomButton.h"
#include "CustomPushbutton.h"
#include "CustomStatic.h"
#include "OnBoardUIGeneral.h"
#include "support/Input.h"

#include <afxcmn.h>

#include <algorithm>

namespace fitting {

inline std::string ClassOf(HWND window)
{
    char name[40] = "";
    ::GetClassName(window, name, int(sizeof(name)));
    return name;
}

// What it is drawn in: the painted controls have fonts of their own on-board.
inline HFONT FontOf(HWND window)
{
    struct Painted : CCustomButton
    {
        static HFONT Font() { return m_Font; }
    };
    CWnd* const object = CWnd::FromHandlePermanent(window);
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        if (dynamic_cast<CCustomButton*>(object) != nullptr)
        {
            return Painted::Font();
        }
        const bool group = (::GetWindowLong(window, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
        if (dynamic_cast<CCustomStatic*>(object) != nullptr && group)
        {
            return CCustomStatic::GetOnBoardFont();
        }
    }
    return HFONT(::SendMessage(window, WM_GETFONT, 0, 0));
}

// The least box of a text that is no wider than this, where that is possible.
inline CSize Extent(HWND window, const std::string& text, int width, UINT format)
{
    CClientDC dc(CWnd::FromHandle(window));
    const HGDIOBJ before = ::SelectObject(dc.GetSafeHdc(), FontOf(window));
    CRect box(0, 0, width, 0);
    dc.DrawText(text.c_str(), &box, format | DT_CALCRECT);
    ::SelectObject(dc.GetSafeHdc(), before);
    return box.Size();
}

inline int LineHeight(HWND window)
{
    return Extent(window, "Mg", 0, DT_SINGLELINE).cy;
}

inline int CapitalHeight(HWND window)
{
    CClientDC dc(CWnd::FromHandle(window));
    const HGDIOBJ before = ::SelectObject(dc.GetSafeHdc(), FontOf(window));
    TEXTMETRIC metrics = {};
    ::GetTextMetrics(dc.GetSafeHdc(), &metrics);
    ::SelectObject(dc.GetSafeHdc(), before);
    return int(metrics.tmAscent - metrics.tmInternalLeading);
}

// Of rows, headings, tabs and fields: how high they are; 0 for what has none.
inline int RowHeight(HWND window)
{
    constexpr std::pair<const char*, UINT> withRows[] = {{WC_LISTVIEW, LVM_GETITEMRECT},
                                                         {WC_TABCONTROL, TCM_GETITEMRECT},
                                                         {TOOLBARCLASSNAME, TB_GETITEMRECT}};
    for (const auto& [name, ask] : withRows)
    {
        CRect row(LVIR_BOUNDS, 0, 0, 0);
        if (IsOfClass(window, name) && ::SendMessage(window, ask, 0, LPARAM(&row)))
        {
            return row.Height();
        }
    }
    const bool hasItems =
        IsOfClass(window, "ListBox") && ::SendMessage(window, LB_GETCOUNT, 0, 0) > 0;
    if (hasItems || IsOfClass(window, WC_TREEVIEW))
    {
        return int(::SendMessage(window, hasItems ? LB_GETITEMHEIGHT : TVM_GETITEMHEIGHT, 0, 0));
    }
    const bool hasLine = IsOfClass(window, WC_HEADER) ||
                         IsOfClass(window, "CCUSTOMDROPLISTCOMBO") ||
                         IsOfClass(window, STATUSCLASSNAME) || IsOfClass(window, "Edit");
    return hasLine ? ClientRectOf(window).Height() : 0;
}

// Empty, or what does not fit.
inline std::string Fault(HWND window)
{
    const DWORD style = DWORD(::GetWindowLong(window, GWL_STYLE));
    const CSize room = ClientRectOf(window).Size();
    const std::string text = TextOf(*CWnd::FromHandle(window));
    const auto tell = [&](const std::string& what, CSize needed) {
        return ClassOf(window) + " '" + text + "' of " + std::to_string(room.cx) + " x " +
               std::to_string(room.cy) + ": " + what + " takes " + std::to_string(needed.cx) +
               " x " + std::to_string(needed.cy) + "; ";
    };
    if (const int row = RowHeight(window); row != 0)
    {
        const int line = LineHeight(window);
        return row < line ? tell("a line in a row of " + std::to_string(row), CSize(0, line)) : "";
    }
    const bool isButton = IsOfClass(window, "Button");
    if (text.empty() || (!isButton && !IsOfClass(window, "Static")))
    {
        return "";
    }
    CWnd* const object = CWnd::FromHandlePermanent(window);
    const UINT kind = style & BS_TYPEMASK;
    const bool isLabel = !isButton && kind != BS_GROUPBOX;
    const UINT look = style & SS_TYPEMASK;
    if (isLabel && (look == SS_ICON || look == SS_BITMAP || look == SS_OWNERDRAW))
    {
        return "";
    }
    int width = room.cx;
    int height = room.cy;
    const bool pushes = isButton && (kind == BS_PUSHBUTTON || kind == BS_DEFPUSHBUTTON ||
                                     dynamic_cast<CCustomPushbutton*>(object) != nullptr);
    if (isButton && !pushes && kind != BS_GROUPBOX)
    {
        // Behind the mark.
        width -= COnBoardUIGeneral::InOnBoardMode() ? 11 + std::min(height, 33) : 16;
    }
    const bool wraps = (isLabel && look != SS_LEFTNOWORDWRAP && look != SS_SIMPLE) ||
                       (isButton && (style & BS_MULTILINE) != 0);
    CSize needed = Extent(window, text, width, wraps ? DT_WORDBREAK : DT_SINGLELINE);
    if (isButton && kind == BS_GROUPBOX)
    {
        needed.cx = 0; // one that is too wide is left out, on purpose
    }
    else if (COnBoardUIGeneral::InOnBoardMode() &&
             (kind == BS_AUTOCHECKBOX || kind == BS_AUTO3STATE))
    {
        // The square is whole only where it is lower than a line: what shows is the capitals.
        needed.cy = CapitalHeight(window);
    }
    return needed.cx > width || needed.cy > height ? tell("its text", needed) : "";
}

// By how much the square of an on-board check box reaches below the box, which cuts it: it is as
// high as the box and stands lower the higher that is than a line.
inline int CutOfSquare(HWND check)
{
    const UINT kind = UINT(::GetWindowLong(check, GWL_STYLE)) & BS_TYPEMASK;
    const bool isCheck =
        IsOfClass(check, "Button") && (kind == BS_AUTOCHECKBOX || kind == BS_AUTO3STATE);
    return isCheck && COnBoardUIGeneral::InOnBoardMode()
               ? 3 + (ClientRectOf(check).Height() - 1 - LineHeight(check)) / 2
               : 0;
}

// Of a window and all that is visible in it.
inline std::string FaultsWithin(HWND window)
{
    std::string faults = Fault(window);
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if ((::GetWindowLong(child, GWL_STYLE) & WS_VISIBLE) != 0)
        {
            faults += FaultsWithin(child);
        }
    }
    return faults;
}

} // namespace fitting
