#pragma once

// The platform's own controls. Each member is one message; indices count from 0 and LB_ERR, CB_ERR
// or -1 comes back when there is no such item. An owner-drawn control is asked to draw through its
// own virtuals, whichever window is its parent.

#include "framework/Wnd.h"

class FRAMEWORK_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    virtual BOOL Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF)
    {
        return CWnd::Create("STATIC", text, style, rect, parent, id);
    }

    // The pictures stay the caller's; setting one gives the one before.
    HICON GetIcon() const { return HICON(SendMessage(STM_GETICON)); }
    HICON SetIcon(HICON icon) { return HICON(SendMessage(STM_SETICON, WPARAM(icon))); }
    HBITMAP GetBitmap() const { return HBITMAP(SendMessage(STM_GETIMAGE, IMAGE_BITMAP)); }
    HBITMAP SetBitmap(HBITMAP bitmap)
    {
        return HBITMAP(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, LPARAM(bitmap)));
    }
    HCURSOR GetCursor() const { return HCURSOR(SendMessage(STM_GETIMAGE, IMAGE_CURSOR)); }
    HCURSOR SetCursor(HCURSOR cursor)
    {
        return HCURSOR(SendMessage(STM_SETIMAGE, IMAGE_CURSOR, LPARAM(cursor)));
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

class FRAMEWORK_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    virtual BOOL Create(LPCTSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("BUTTON", caption, style, rect, parent, id);
    }

    UINT GetState() const { return UINT(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL highlight) { SendMessage(BM_SETSTATE, WPARAM(highlight)); }
    int GetCheck() const { return int(SendMessage(BM_GETCHECK)); }
    void SetCheck(int check) { SendMessage(BM_SETCHECK, WPARAM(check)); }
    UINT GetButtonStyle() const { return LOWORD(GetStyle()); }
    void SetButtonStyle(UINT style, BOOL redraw = TRUE)
    {
        SendMessage(BM_SETSTYLE, style, LPARAM(redraw));
    }
    // The pictures stay the caller's; setting one gives the one before.
    HICON GetIcon() const { return HICON(SendMessage(BM_GETIMAGE, IMAGE_ICON)); }
    HICON SetIcon(HICON icon) { return HICON(SendMessage(BM_SETIMAGE, IMAGE_ICON, LPARAM(icon))); }
    HBITMAP GetBitmap() const { return HBITMAP(SendMessage(BM_GETIMAGE, IMAGE_BITMAP)); }
    HBITMAP SetBitmap(HBITMAP bitmap)
    {
        return HBITMAP(SendMessage(BM_SETIMAGE, IMAGE_BITMAP, LPARAM(bitmap)));
    }
    BOOL GetIdealSize(LPSIZE size) const
    {
        return BOOL(SendMessage(BCM_GETIDEALSIZE, 0, LPARAM(size)));
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

class FRAMEWORK_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("LISTBOX", nullptr, style, rect, parent, id);
    }

    // Contents
    int GetCount() const { return Send(LB_GETCOUNT); }
    int AddString(LPCTSTR text) { return Send(LB_ADDSTRING, 0, LPARAM(text)); }
    int InsertString(int index, LPCTSTR text) { return Send(LB_INSERTSTRING, index, LPARAM(text)); }
    int DeleteString(UINT index) { return Send(LB_DELETESTRING, int(index)); }
    void ResetContent() { Send(LB_RESETCONTENT); }
    int InitStorage(int items, UINT bytes) { return Send(LB_INITSTORAGE, items, LPARAM(bytes)); }
    int Dir(UINT attributes, LPCTSTR files) { return Send(LB_DIR, int(attributes), LPARAM(files)); }
    int GetText(int index, LPTSTR buffer) const { return Send(LB_GETTEXT, index, LPARAM(buffer)); }
    void GetText(int index, CString& text) const;
    int GetTextLen(int index) const { return Send(LB_GETTEXTLEN, index); }
    DWORD_PTR GetItemData(int index) const
    {
        return DWORD_PTR(SendMessage(LB_GETITEMDATA, WPARAM(index)));
    }
    int SetItemData(int index, DWORD_PTR data) { return Send(LB_SETITEMDATA, index, LPARAM(data)); }
    void* GetItemDataPtr(int index) const { return reinterpret_cast<void*>(GetItemData(index)); }
    int SetItemDataPtr(int index, void* data) { return SetItemData(index, DWORD_PTR(data)); }
    int FindString(int after, LPCTSTR text) const
    {
        return Send(LB_FINDSTRING, after, LPARAM(text));
    }
    int FindStringExact(int after, LPCTSTR text) const
    {
        return Send(LB_FINDSTRINGEXACT, after, LPARAM(text));
    }

    // Selection
    int GetCurSel() const { return Send(LB_GETCURSEL); }
    int SetCurSel(int index) { return Send(LB_SETCURSEL, index); }
    int SelectString(int after, LPCTSTR text) { return Send(LB_SELECTSTRING, after, LPARAM(text)); }
    int GetSel(int index) const { return Send(LB_GETSEL, index); }
    int SetSel(int index, BOOL select = TRUE) { return Send(LB_SETSEL, select, LPARAM(index)); }
    int GetSelCount() const { return Send(LB_GETSELCOUNT); }
    int GetSelItems(int maximum, LPINT indices) const
    {
        return Send(LB_GETSELITEMS, maximum, LPARAM(indices));
    }
    int SelItemRange(BOOL select, int first, int last)
    {
        return Send(LB_SELITEMRANGE, select, MAKELPARAM(first, last));
    }
    int GetAnchorIndex() const { return Send(LB_GETANCHORINDEX); }
    void SetAnchorIndex(int index) { Send(LB_SETANCHORINDEX, index); }
    int GetCaretIndex() const { return Send(LB_GETCARETINDEX); }
    int SetCaretIndex(int index, BOOL scrollFully = TRUE)
    {
        return Send(LB_SETCARETINDEX, index, MAKELPARAM(!scrollFully, 0));
    }

    // Layout, in client pixels
    int GetTopIndex() const { return Send(LB_GETTOPINDEX); }
    int SetTopIndex(int index) { return Send(LB_SETTOPINDEX, index); }
    int GetItemRect(int index, LPRECT rect) const
    {
        return Send(LB_GETITEMRECT, index, LPARAM(rect));
    }
    // The nearest item; outside tells whether the point misses the client area.
    UINT ItemFromPoint(CPoint point, BOOL& outside) const;
    int GetItemHeight(int index) const { return Send(LB_GETITEMHEIGHT, index); }
    int SetItemHeight(int index, UINT height)
    {
        return Send(LB_SETITEMHEIGHT, index, MAKELPARAM(height, 0));
    }
    int GetHorizontalExtent() const { return Send(LB_GETHORIZONTALEXTENT); }
    void SetHorizontalExtent(int width) { Send(LB_SETHORIZONTALEXTENT, width); }
    void SetColumnWidth(int width) { Send(LB_SETCOLUMNWIDTH, width); }
    DWORD GetListBoxInfo() const { return DWORD(SendMessage(LB_GETLISTBOXINFO)); }
    void SetTabStops() { Send(LB_SETTABSTOPS); }
    BOOL SetTabStops(const int& everyUnits) { return Send(LB_SETTABSTOPS, 1, LPARAM(&everyUnits)); }
    BOOL SetTabStops(int count, LPINT stops) { return Send(LB_SETTABSTOPS, count, LPARAM(stops)); }
    LCID GetLocale() const { return LCID(SendMessage(LB_GETLOCALE)); }
    LCID SetLocale(LCID locale) { return LCID(SendMessage(LB_SETLOCALE, locale)); }

    // Owner drawing
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) {}
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) {}
    // -1 asks for the default action, -2 says that it is done, else the item to select.
    virtual int VKeyToItem(UINT /*key*/, UINT /*caret*/) { return -1; }
    virtual int CharToItem(UINT /*character*/, UINT /*caret*/) { return -1; }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    int Send(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return int(SendMessage(message, WPARAM(wParam), lParam));
    }
};

class FRAMEWORK_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("COMBOBOX", nullptr, style, rect, parent, id);
    }

    // Contents
    int GetCount() const { return Send(CB_GETCOUNT); }
    int AddString(LPCTSTR text) { return Send(CB_ADDSTRING, 0, LPARAM(text)); }
    int InsertString(int index, LPCTSTR text) { return Send(CB_INSERTSTRING, index, LPARAM(text)); }
    int DeleteString(UINT index) { return Send(CB_DELETESTRING, int(index)); }
    void ResetContent() { Send(CB_RESETCONTENT); }
    int InitStorage(int items, UINT bytes) { return Send(CB_INITSTORAGE, items, LPARAM(bytes)); }
    int Dir(UINT attributes, LPCTSTR files) { return Send(CB_DIR, int(attributes), LPARAM(files)); }
    int GetLBText(int index, LPTSTR buffer) const
    {
        return Send(CB_GETLBTEXT, index, LPARAM(buffer));
    }
    void GetLBText(int index, CString& text) const;
    int GetLBTextLen(int index) const { return Send(CB_GETLBTEXTLEN, index); }
    DWORD_PTR GetItemData(int index) const
    {
        return DWORD_PTR(SendMessage(CB_GETITEMDATA, WPARAM(index)));
    }
    int SetItemData(int index, DWORD_PTR data) { return Send(CB_SETITEMDATA, index, LPARAM(data)); }
    void* GetItemDataPtr(int index) const { return reinterpret_cast<void*>(GetItemData(index)); }
    int SetItemDataPtr(int index, void* data) { return SetItemData(index, DWORD_PTR(data)); }
    int FindString(int after, LPCTSTR text) const
    {
        return Send(CB_FINDSTRING, after, LPARAM(text));
    }
    int FindStringExact(int after, LPCTSTR text) const
    {
        return Send(CB_FINDSTRINGEXACT, after, LPARAM(text));
    }

    // Selection
    int GetCurSel() const { return Send(CB_GETCURSEL); }
    int SetCurSel(int index) { return Send(CB_SETCURSEL, index); }
    int SelectString(int after, LPCTSTR text) { return Send(CB_SELECTSTRING, after, LPARAM(text)); }

    // The edit field
    DWORD GetEditSel() const { return DWORD(SendMessage(CB_GETEDITSEL)); }
    BOOL SetEditSel(int start, int end) { return Send(CB_SETEDITSEL, 0, MAKELPARAM(start, end)); }
    BOOL LimitText(int maximum) { return Send(CB_LIMITTEXT, maximum); }
    void Clear() { Send(WM_CLEAR); }
    void Copy() { Send(WM_COPY); }
    void Cut() { Send(WM_CUT); }
    void Paste() { Send(WM_PASTE); }

    // The list and the layout
    void ShowDropDown(BOOL show = TRUE) { Send(CB_SHOWDROPDOWN, show); }
    BOOL GetDroppedState() const { return Send(CB_GETDROPPEDSTATE); }
    // In screen coordinates.
    void GetDroppedControlRect(LPRECT rect) const
    {
        Send(CB_GETDROPPEDCONTROLRECT, 0, LPARAM(rect));
    }
    int GetDroppedWidth() const { return Send(CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT width) { return Send(CB_SETDROPPEDWIDTH, int(width)); }
    int GetTopIndex() const { return Send(CB_GETTOPINDEX); }
    int SetTopIndex(int index) { return Send(CB_SETTOPINDEX, index); }
    // -1 is the selection field.
    int GetItemHeight(int index) const { return Send(CB_GETITEMHEIGHT, index); }
    int SetItemHeight(int index, UINT height)
    {
        return Send(CB_SETITEMHEIGHT, index, LPARAM(height));
    }
    UINT GetHorizontalExtent() const { return UINT(Send(CB_GETHORIZONTALEXTENT)); }
    void SetHorizontalExtent(UINT width) { Send(CB_SETHORIZONTALEXTENT, int(width)); }
    BOOL GetExtendedUI() const { return Send(CB_GETEXTENDEDUI); }
    int SetExtendedUI(BOOL extended = TRUE) { return Send(CB_SETEXTENDEDUI, extended); }
    int GetMinVisible() const { return Send(CB_GETMINVISIBLE); }
    BOOL SetMinVisibleItems(int count) { return Send(CB_SETMINVISIBLE, count); }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO info) const { return ::GetComboBoxInfo(m_hWnd, info); }
    LCID GetLocale() const { return LCID(SendMessage(CB_GETLOCALE)); }
    LCID SetLocale(LCID locale) { return LCID(SendMessage(CB_SETLOCALE, locale)); }

    // Owner drawing
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) {}
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    int Send(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return int(SendMessage(message, WPARAM(wParam), lParam));
    }
};

class FRAMEWORK_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("EDIT", nullptr, style, rect, parent, id);
    }

    // Selection
    DWORD GetSel() const { return DWORD(SendMessage(EM_GETSEL)); }
    void GetSel(int& start, int& end) const
    {
        SendMessage(EM_GETSEL, WPARAM(&start), LPARAM(&end));
    }
    // Scrolls the caret into view unless told not to.
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    // Start and end as two words, as GetSel gives them; 0xFFFF is -1.
    void SetSel(DWORD startAndEnd, BOOL noScroll = FALSE)
    {
        const auto place = [](WORD word) { return word == 0xFFFF ? -1 : int(word); };
        SetSel(place(LOWORD(startAndEnd)), place(HIWORD(startAndEnd)), noScroll);
    }
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE)
    {
        SendMessage(EM_REPLACESEL, WPARAM(canUndo), LPARAM(text));
    }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
    BOOL CanUndo() const { return BOOL(SendMessage(EM_CANUNDO)); }
    BOOL Undo() { return BOOL(SendMessage(EM_UNDO)); }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }

    // Lines; -1 stands for the line with the caret.
    int GetLineCount() const { return int(SendMessage(EM_GETLINECOUNT)); }
    int GetFirstVisibleLine() const { return int(SendMessage(EM_GETFIRSTVISIBLELINE)); }
    int LineFromChar(int index = -1) const
    {
        return int(SendMessage(EM_LINEFROMCHAR, WPARAM(index)));
    }
    int LineIndex(int line = -1) const { return int(SendMessage(EM_LINEINDEX, WPARAM(line))); }
    int LineLength(int line = -1) const { return int(SendMessage(EM_LINELENGTH, WPARAM(line))); }
    void LineScroll(int lines, int characters = 0)
    {
        SendMessage(EM_LINESCROLL, WPARAM(characters), LPARAM(lines));
    }
    // Copies a line without a final null and returns its length. Without a size the first word of
    // the buffer tells it.
    int GetLine(int line, LPTSTR buffer) const
    {
        return int(SendMessage(EM_GETLINE, WPARAM(line), LPARAM(buffer)));
    }
    int GetLine(int line, LPTSTR buffer, int size) const;
    BOOL FmtLines(BOOL softBreaks) { return BOOL(SendMessage(EM_FMTLINES, WPARAM(softBreaks))); }
    CPoint PosFromChar(UINT index) const { return CPoint(SendMessage(EM_POSFROMCHAR, index)); }
    // The character in the low word, its line in the high word.
    int CharFromPos(CPoint point) const
    {
        return int(SendMessage(EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y)));
    }

    // Layout and limits
    void GetRect(LPRECT rect) const { SendMessage(EM_GETRECT, 0, LPARAM(rect)); }
    void SetRect(LPCRECT rect) { SendMessage(EM_SETRECT, 0, LPARAM(rect)); }
    void SetRectNP(LPCRECT rect) { SendMessage(EM_SETRECTNP, 0, LPARAM(rect)); }
    DWORD GetMargins() const { return DWORD(SendMessage(EM_GETMARGINS)); }
    void SetMargins(UINT left, UINT right)
    {
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(left, right));
    }
    void SetTabStops() { SendMessage(EM_SETTABSTOPS); }
    BOOL SetTabStops(const int& everyUnits)
    {
        return BOOL(SendMessage(EM_SETTABSTOPS, 1, LPARAM(&everyUnits)));
    }
    BOOL SetTabStops(int count, LPINT stops)
    {
        return BOOL(SendMessage(EM_SETTABSTOPS, WPARAM(count), LPARAM(stops)));
    }
    UINT GetLimitText() const { return UINT(SendMessage(EM_GETLIMITTEXT)); }
    void SetLimitText(UINT maximum) { SendMessage(EM_SETLIMITTEXT, maximum); }
    void LimitText(int maximum = 0) { SendMessage(EM_LIMITTEXT, WPARAM(maximum)); }
    BOOL GetModify() const { return BOOL(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL modified = TRUE) { SendMessage(EM_SETMODIFY, WPARAM(modified)); }
    BOOL SetReadOnly(BOOL readOnly = TRUE)
    {
        return BOOL(SendMessage(EM_SETREADONLY, WPARAM(readOnly)));
    }
    TCHAR GetPasswordChar() const { return TCHAR(SendMessage(EM_GETPASSWORDCHAR)); }
    void SetPasswordChar(TCHAR shown) { SendMessage(EM_SETPASSWORDCHAR, WPARAM(shown)); }
    HLOCAL GetHandle() const { return HLOCAL(SendMessage(EM_GETHANDLE)); }
    void SetHandle(HLOCAL buffer) { SendMessage(EM_SETHANDLE, WPARAM(buffer)); }
};

class FRAMEWORK_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("SCROLLBAR", nullptr, style, rect, parent, id);
    }

    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int position, BOOL redraw = TRUE)
    {
        return ::SetScrollPos(m_hWnd, SB_CTL, position, redraw);
    }
    void GetScrollRange(LPINT minimum, LPINT maximum) const
    {
        ::GetScrollRange(m_hWnd, SB_CTL, minimum, maximum);
    }
    void SetScrollRange(int minimum, int maximum, BOOL redraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, SB_CTL, minimum, maximum, redraw);
    }
    BOOL GetScrollInfo(LPSCROLLINFO info, UINT mask = SIF_ALL)
    {
        return CWnd::GetScrollInfo(SB_CTL, info, mask);
    }
    BOOL SetScrollInfo(LPSCROLLINFO info, BOOL redraw = TRUE)
    {
        return CWnd::SetScrollInfo(SB_CTL, info, redraw);
    }
    // The highest position that a user can scroll to.
    int GetScrollLimit();
    void ShowScrollBar(BOOL show = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, show); }
    BOOL EnableScrollBar(UINT arrows = ESB_ENABLE_BOTH)
    {
        return ::EnableScrollBar(m_hWnd, SB_CTL, arrows);
    }
    BOOL GetScrollBarInfo(PSCROLLBARINFO info) const
    {
        return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, info);
    }
};
