#pragma once

#include "framework/CommonControls.h"

class FRAMEWORK_API CStatusBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CStatusBarCtrl)

public:
    FRAMEWORK_COMMON_CONTROL_CREATE(STATUSCLASSNAME)

    // type is a combination of SBT_ styles.
    BOOL SetText(LPCTSTR text, int pane, int type)
    {
        return BOOL(SendMessage(SB_SETTEXT, WPARAM(pane | type), LPARAM(text)));
    }
    CString GetText(int pane, int* type = nullptr) const;
    int GetTextLength(int pane, int* type = nullptr) const;
    // Right edges in client pixels; -1 stands for the right end of the window.
    BOOL SetParts(int count, int* rightEdges)
    {
        return BOOL(SendMessage(SB_SETPARTS, WPARAM(count), LPARAM(rightEdges)));
    }
    int GetParts(int count, int* rightEdges) const
    {
        return int(SendMessage(SB_GETPARTS, WPARAM(count), LPARAM(rightEdges)));
    }
    // horizontal border, vertical border, space between panes
    BOOL GetBorders(int* borders) const
    {
        return BOOL(SendMessage(SB_GETBORDERS, 0, LPARAM(borders)));
    }
    BOOL GetRect(int pane, LPRECT rect) const
    {
        return BOOL(SendMessage(SB_GETRECT, WPARAM(pane), LPARAM(rect)));
    }
    void SetMinHeight(int height) { SendMessage(SB_SETMINHEIGHT, WPARAM(height)); }
    BOOL SetSimple(BOOL simple = TRUE) { return BOOL(SendMessage(SB_SIMPLE, WPARAM(simple))); }
    BOOL IsSimple() const { return BOOL(SendMessage(SB_ISSIMPLE)); }
    COLORREF SetBkColor(COLORREF color)
    {
        return COLORREF(SendMessage(SB_SETBKCOLOR, 0, LPARAM(color)));
    }
    HICON GetIcon(int pane) const { return HICON(SendMessage(SB_GETICON, WPARAM(pane))); }
    BOOL SetIcon(int pane, HICON icon)
    {
        return BOOL(SendMessage(SB_SETICON, WPARAM(pane), LPARAM(icon)));
    }
    void SetTipText(int pane, LPCTSTR text)
    {
        SendMessage(SB_SETTIPTEXT, WPARAM(pane), LPARAM(text));
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
