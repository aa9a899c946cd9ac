#pragma once

#include "CustomEdit.h"
#include "EFB.h"
#include "support/Bars.h"
#include "support/OnBoard.h"
#include "support/WindowTest.h"

constexpr DWORD ManyLines = ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL;

// An edit that lets a test see its bar.
class EditForTests : public CCustomEdit
{
public:
    using CCustomEdit::m_bar;
    using CCustomEdit::m_barShown;
    using CCustomEdit::m_overflowing;
    using CCustomEdit::m_scrolling;

    static std::string Lines(int count)
    {
        std::string text;
        for (int line = 0; line < count; ++line)
        {
            text += (line > 0 ? "\r\nLine " : "Line ") + std::to_string(line);
        }
        return text;
    }
    void Fill(int lines) { SetWindowText(Lines(lines).c_str()); }

    std::string Text() const { return TextOf(*this); }

    // How many lines the text area holds, from the platform's own measures.
    int VisibleLines() const
    {
        CRect area;
        GetRect(&area);
        const int lineHeight = PosFromChar(UINT(LineIndex(1))).y - PosFromChar(0).y;
        return lineHeight > 0 ? area.Height() / lineHeight : 0;
    }

    CPoint PartPoint(CFauxScrollBar::ePRESSED part) { return ::PartPoint(*this, m_bar, part); }

    // What the tests of all controls with bars of their own ask for.
    static constexpr DWORD BothBarsStyle = ManyLines;
    static constexpr int SureWait = 60; // milliseconds without a repeat of a held arrow
    static constexpr bool HoldsElsewhere = true;
    CFauxScrollBar& Bar(int) { return m_bar; }
    bool IsBarPressed() const { return m_scrolling; }
    int TopRow() const { return GetFirstVisibleLine(); }
    int LastTopRow() const { return GetLineCount() - VisibleLines(); }
    void FillBothWays(int lines) { Fill(lines); }
};

// An edit with the border of dialog templates, made as hosts make it.
class EdgedEdit : public EditForTests
{
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) override
    {
        return CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", style, rect, parent, id);
    }
};

class EditTest : public WindowTest
{
protected:
    EdgedEdit& AddEdit(int lines, DWORD style = ManyLines)
    {
        auto& edit = Add<EdgedEdit>(CRect(20, 20, 320, 260), style);
        edit.Fill(lines);
        PumpAll();
        return edit;
    }
};

using EditOnBoard = OnBoard<EditTest>;

// Text, caret and bar tell the same story.
inline void ExpectAgreement(EditForTests& edit, const std::string& after)
{
    SCOPED_TRACE(after);
    const int first = edit.GetFirstVisibleLine();
    const int lines = edit.GetLineCount();
    const int page = edit.VisibleLines();
    const bool fits = first == 0 && lines <= page;
    EXPECT_EQ(edit.m_barShown, !fits && lines > 1);
    EXPECT_EQ(edit.m_bar.ShowScrollBar() != 0, edit.m_barShown);
    const CSize size = WindowRectOf(edit).Size();
    const int border = (size.cx - ClientRectOf(edit).Width() - (edit.m_barShown ? 52 : 0)) / 2;
    EXPECT_EQ(border, (edit.GetExStyle() & WS_EX_CLIENTEDGE) != 0 ? 3 : std::min(border, 1));
    EXPECT_EQ(edit.GetStyle() & WS_VSCROLL, 0U);
    EXPECT_EQ(edit.m_bar.GetScrollPos(), first);
    EXPECT_EQ(edit.SendMessage(EM_GETTHUMB), first);
    if (edit.m_barShown)
    {
        SCROLLINFO info = {};
        edit.m_bar.GetScrollInfo(&info, SIF_RANGE | SIF_PAGE);
        EXPECT_EQ(int(info.nPage), page);
        EXPECT_EQ(info.nMax, lines - page + 2);
        // Beside the client area, whatever the border is.
        EXPECT_EQ(edit.m_bar.GetArea(),
                  CRect(size.cx - border - 52, border, size.cx - border, size.cy - border));
    }
    int start = 0;
    int end = 0;
    edit.GetSel(start, end);
    const CPoint character = edit.PosFromChar(UINT(end));
    if (::GetFocus() == edit.m_hWnd && end < edit.GetWindowTextLength() &&
        ClientRectOf(edit).PtInRect(character))
    {
        CPoint caret;
        ::GetCaretPos(&caret);
        EXPECT_EQ(caret.y, character.y);
    }
}
