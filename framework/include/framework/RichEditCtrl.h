#pragma once

#include "framework/Wnd.h"

#include <richedit.h>

// Loads the rich edit control, version 2, for the rest of the process. FALSE if there is none.
FRAMEWORK_API BOOL AfxInitRichEdit2();

class FRAMEWORK_API CRichEditCtrl : public CWnd
{
    DECLARE_DYNAMIC(CRichEditCtrl)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CreateEx(0, style, rect, parent, id);
    }
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return AfxInitRichEdit2() &&
               CWnd::CreateEx(exStyle, RICHEDIT_CLASS, nullptr, style, rect, parent, id);
    }

    // Formats. Getting returns the mask of what is the same throughout.
    DWORD GetDefaultCharFormat(CHARFORMAT& format) const { return GetFormat(SCF_DEFAULT, format); }
    DWORD GetDefaultCharFormat(CHARFORMAT2& format) const { return GetFormat(SCF_DEFAULT, format); }
    BOOL SetDefaultCharFormat(CHARFORMAT& format) { return SetFormat(SCF_DEFAULT, format); }
    BOOL SetDefaultCharFormat(CHARFORMAT2& format) { return SetFormat(SCF_DEFAULT, format); }
    DWORD GetSelectionCharFormat(CHARFORMAT& format) const
    {
        return GetFormat(SCF_SELECTION, format);
    }
    DWORD GetSelectionCharFormat(CHARFORMAT2& format) const
    {
        return GetFormat(SCF_SELECTION, format);
    }
    BOOL SetSelectionCharFormat(CHARFORMAT& format) { return SetFormat(SCF_SELECTION, format); }
    BOOL SetSelectionCharFormat(CHARFORMAT2& format) { return SetFormat(SCF_SELECTION, format); }
    BOOL SetWordCharFormat(CHARFORMAT& format)
    {
        return SetFormat(SCF_SELECTION | SCF_WORD, format);
    }
    DWORD GetParaFormat(PARAFORMAT& format) const
    {
        format.cbSize = sizeof(format);
        return DWORD(SendMessage(EM_GETPARAFORMAT, 0, LPARAM(&format)));
    }
    BOOL SetParaFormat(PARAFORMAT& format)
    {
        format.cbSize = sizeof(format);
        return BOOL(SendMessage(EM_SETPARAFORMAT, 0, LPARAM(&format)));
    }
    COLORREF SetBackgroundColor(BOOL systemColor, COLORREF color)
    {
        return COLORREF(SendMessage(EM_SETBKGNDCOLOR, WPARAM(systemColor), LPARAM(color)));
    }

    // Selection
    void GetSel(CHARRANGE& range) const { SendMessage(EM_EXGETSEL, 0, LPARAM(&range)); }
    void GetSel(long& start, long& end) const;
    void SetSel(CHARRANGE& range) { SendMessage(EM_EXSETSEL, 0, LPARAM(&range)); }
    void SetSel(long start, long end)
    {
        CHARRANGE range = {start, end};
        SetSel(range);
    }
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE)
    {
        SendMessage(EM_REPLACESEL, WPARAM(canUndo), LPARAM(text));
    }
    CString GetSelText() const;
    long GetSelText(LPSTR buffer) const
    {
        return long(SendMessage(EM_GETSELTEXT, 0, LPARAM(buffer)));
    }
    WORD GetSelectionType() const { return WORD(SendMessage(EM_SELECTIONTYPE)); }
    void HideSelection(BOOL hide, BOOL permanently)
    {
        SendMessage(EM_HIDESELECTION, WPARAM(hide), LPARAM(permanently));
    }

    // Text and lines
    long GetTextLength() const { return long(SendMessage(WM_GETTEXTLENGTH)); }
    int GetTextRange(int first, int last, CString& text) const;
    long FindText(DWORD flags, FINDTEXTEX* find) const
    {
        return long(SendMessage(EM_FINDTEXTEX, flags, LPARAM(find)));
    }
    int GetLineCount() const { return int(SendMessage(EM_GETLINECOUNT)); }
    int GetFirstVisibleLine() const { return int(SendMessage(EM_GETFIRSTVISIBLELINE)); }
    long LineFromChar(long index) const { return long(SendMessage(EM_EXLINEFROMCHAR, 0, index)); }
    int LineIndex(int line = -1) const { return int(SendMessage(EM_LINEINDEX, WPARAM(line))); }
    int LineLength(int line = -1) const { return int(SendMessage(EM_LINELENGTH, WPARAM(line))); }
    void LineScroll(int lines, int characters = 0)
    {
        SendMessage(EM_LINESCROLL, WPARAM(characters), LPARAM(lines));
    }
    CPoint GetCharPos(long index) const
    {
        CPoint point;
        SendMessage(EM_POSFROMCHAR, WPARAM(&point), index);
        return point;
    }
    CPoint PosFromChar(UINT index) const { return GetCharPos(long(index)); }
    int CharFromPos(CPoint point) const
    {
        return int(SendMessage(EM_CHARFROMPOS, 0, LPARAM(&point)));
    }
    long StreamIn(int format, EDITSTREAM& stream)
    {
        return long(SendMessage(EM_STREAMIN, WPARAM(format), LPARAM(&stream)));
    }
    long StreamOut(int format, EDITSTREAM& stream)
    {
        return long(SendMessage(EM_STREAMOUT, WPARAM(format), LPARAM(&stream)));
    }

    // Layout, limits, events
    void GetRect(LPRECT rect) const { SendMessage(EM_GETRECT, 0, LPARAM(rect)); }
    void SetRect(LPCRECT rect) { SendMessage(EM_SETRECT, 0, LPARAM(rect)); }
    void RequestResize() { SendMessage(EM_REQUESTRESIZE); }
    long GetLimitText() const { return long(SendMessage(EM_GETLIMITTEXT)); }
    void LimitText(long maximum = 0) { SendMessage(EM_EXLIMITTEXT, 0, maximum); }
    BOOL GetModify() const { return BOOL(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL modified = TRUE) { SendMessage(EM_SETMODIFY, WPARAM(modified)); }
    BOOL SetReadOnly(BOOL readOnly = TRUE)
    {
        return BOOL(SendMessage(EM_SETREADONLY, WPARAM(readOnly)));
    }
    long GetEventMask() const { return long(SendMessage(EM_GETEVENTMASK)); }
    DWORD SetEventMask(DWORD mask) { return DWORD(SendMessage(EM_SETEVENTMASK, 0, LPARAM(mask))); }
    void SetOptions(WORD operation, DWORD options)
    {
        SendMessage(EM_SETOPTIONS, operation, LPARAM(options));
    }

    // Editing
    BOOL CanUndo() const { return BOOL(SendMessage(EM_CANUNDO)); }
    BOOL Undo() { return BOOL(SendMessage(EM_UNDO)); }
    BOOL CanRedo() const { return BOOL(SendMessage(EM_CANREDO)); }
    BOOL Redo() { return BOOL(SendMessage(EM_REDO)); }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
    BOOL CanPaste(UINT format = 0) const { return BOOL(SendMessage(EM_CANPASTE, format)); }

private:
    template <class Format> DWORD GetFormat(UINT which, Format& format) const
    {
        format.cbSize = sizeof(format);
        return DWORD(SendMessage(EM_GETCHARFORMAT, which, LPARAM(&format)));
    }
    template <class Format> BOOL SetFormat(UINT which, Format& format)
    {
        format.cbSize = sizeof(format);
        return BOOL(SendMessage(EM_SETCHARFORMAT, which, LPARAM(&format)));
    }
};
