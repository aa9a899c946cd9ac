#pragma once

#include "framework/CommonControls.h"

// Tips for windows, or for rectangles in them. A tool is named by its window and, for a rectangle,
// by an id that is not 0; a tool without an id is the whole window.
class FRAMEWORK_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    virtual BOOL Create(CWnd* parent, DWORD style = 0) { return CreateEx(parent, style); }
    virtual BOOL CreateEx(CWnd* parent, DWORD style = 0, DWORD exStyle = 0);

    void Activate(BOOL activate) { SendMessage(TTM_ACTIVATE, WPARAM(activate)); }
    BOOL AddTool(CWnd* window, LPCTSTR text = LPSTR_TEXTCALLBACK, LPCRECT rect = nullptr,
                 UINT_PTR id = 0);
    BOOL AddTool(CWnd* window, UINT textId, LPCRECT rect = nullptr, UINT_PTR id = 0)
    {
        return AddTool(window, MAKEINTRESOURCE(textId), rect, id);
    }
    void DelTool(CWnd* window, UINT_PTR id = 0);
    int GetToolCount() const { return int(SendMessage(TTM_GETTOOLCOUNT)); }
    void GetText(CString& text, CWnd* window, UINT_PTR id = 0) const;
    void UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR id = 0);
    void UpdateTipText(UINT textId, CWnd* window, UINT_PTR id = 0)
    {
        UpdateTipText(MAKEINTRESOURCE(textId), window, id);
    }
    void SetToolRect(CWnd* window, UINT_PTR id, LPCRECT rect);
    BOOL HitTest(CWnd* window, CPoint point, LPTOOLINFO info) const;
    void RelayEvent(LPMSG message) { SendMessage(TTM_RELAYEVENT, 0, LPARAM(message)); }
    void Pop() { SendMessage(TTM_POP); }
    void Update() { SendMessage(TTM_UPDATE); }

    // Milliseconds
    int GetDelayTime(DWORD which) const { return int(SendMessage(TTM_GETDELAYTIME, which)); }
    void SetDelayTime(UINT delay) { SetDelayTime(TTDT_AUTOMATIC, int(delay)); }
    void SetDelayTime(DWORD which, int delay)
    {
        SendMessage(TTM_SETDELAYTIME, which, MAKELPARAM(delay, 0));
    }
    int GetMaxTipWidth() const { return int(SendMessage(TTM_GETMAXTIPWIDTH)); }
    int SetMaxTipWidth(int width) { return int(SendMessage(TTM_SETMAXTIPWIDTH, 0, width)); }
    void GetMargin(LPRECT margin) const { SendMessage(TTM_GETMARGIN, 0, LPARAM(margin)); }
    void SetMargin(LPRECT margin) { SendMessage(TTM_SETMARGIN, 0, LPARAM(margin)); }
    COLORREF GetTipBkColor() const { return COLORREF(SendMessage(TTM_GETTIPBKCOLOR)); }
    void SetTipBkColor(COLORREF color) { SendMessage(TTM_SETTIPBKCOLOR, color); }
    COLORREF GetTipTextColor() const { return COLORREF(SendMessage(TTM_GETTIPTEXTCOLOR)); }
    void SetTipTextColor(COLORREF color) { SendMessage(TTM_SETTIPTEXTCOLOR, color); }
};
