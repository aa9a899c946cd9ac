#include "EditWithPrompt.h"

#include "modes/Meanwhile.h"
#include "modes/TakenOver.h"
#include "modes/WindowAlive.h"
#include "paint/Palette.h"

#include <algorithm>
#include <climits>
#include <utility>

IMPLEMENT_DYNAMIC(EditWithPrompt, CEdit)

BEGIN_MESSAGE_MAP(EditWithPrompt, CEdit)
    ON_WM_CREATE()
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_KEYDOWN()
    ON_WM_SETFOCUS()
    ON_WM_LBUTTONDOWN()
    ON_WM_MBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

EditWithPrompt::EditWithPrompt()
    : m_promptColor(palette::EditPrompt)
{
    EnableActiveAccessibility();
}

void EditWithPrompt::PreSubclassWindow()
{
    CEdit::PreSubclassWindow();
    m_showingPrompt = m_prompt.IsEmpty() ? 0 : 1; // each window of the object begins with it
    m_passwordChar = 0;
    m_promptPutIn.Empty();
    m_shownPrompt.Empty();
    m_showingText = false;
    m_promptDue = false;
    // An edit has a line from its making on; one that is being made gets the prompt when it is
    // ready for a text. In one that was there the prompt waits until the edit's messages are ours:
    // the parent is told of it and would read it as a text.
    const WindowAlive alive(*this);
    const bool wasThere = ::SendMessage(m_hWnd, EM_GETLINECOUNT, 0, 0) > 0;
    if (alive)
    {
        m_promptDue = m_showingPrompt != 0 && wasThere;
        ShowTakenOver(*this); // the message at the latest
    }
}

int EditWithPrompt::OnCreate(LPCREATESTRUCT cs)
{
    const WindowAlive alive(*this);
    const int result = CEdit::OnCreate(cs);
    if (alive && result != -1 && m_showingPrompt)
    {
        m_showingPrompt = 0;
        if (cs->lpszName == nullptr || *cs->lpszName == '\0') // else it was made with a text
        {
            Reset(); // now that there is an edit to be asked
        }
    }
    return result;
}

// The prompt itself -----------------------------------------------------------------------------

// Past the rules of what counts as a text.
void EditWithPrompt::ShowText(const char* text)
{
    if (GetSafeHwnd() == nullptr)
    {
        return;
    }
    const Meanwhile showing(*this, m_showingText);
    CEdit::DefWindowProc(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)); // the parent is told
}

// What the platform's edit has, be it the prompt.
CString EditWithPrompt::ShownText()
{
    const auto length = int(CEdit::DefWindowProc(WM_GETTEXTLENGTH, 0, 0));
    CString text;
    char* const buffer = text.GetBuffer(length);
    CEdit::DefWindowProc(WM_GETTEXT, WPARAM(length) + 1, reinterpret_cast<LPARAM>(buffer));
    text.ReleaseBuffer();
    return text;
}

// Whether there is nothing to be put in, of which the parent would be told as of a change.
bool EditWithPrompt::IsPromptThere()
{
    return m_showingPrompt && !m_promptDue && GetSafeHwnd() != nullptr &&
           m_promptPutIn == m_prompt && ShownText() == m_shownPrompt;
}

void EditWithPrompt::ShowPrompt(bool there)
{
    const WindowAlive alive(*this);
    CString putIn = m_prompt;
    if (!there)
    {
        ShowText(putIn);
    }
    // The parent may answer that with another prompt. The next one waits: it may do so for ever.
    if (alive && m_showingPrompt && m_prompt != putIn && (!m_prompt.IsEmpty() || LeavePrompt()))
    {
        putIn = m_prompt;
        ShowText(putIn);
    }
    if (alive && m_showingPrompt && !there)
    {
        m_promptPutIn = putIn;
        m_shownPrompt = ShownText();
    }
    if (alive)
    {
        // Nothing selected and the caret in front: what is typed comes in its place.
        CEdit::DefWindowProc(EM_SETSEL, 0, 0);
        Invalidate();
    }
}

// A prompt is to be read, also where the text is not. False when the edit did not survive it.
bool EditWithPrompt::BeginPrompt()
{
    const WindowAlive alive(*this);
    if (std::exchange(m_promptDue, false))
    {
        m_showingPrompt = 0; // it counts as shown since the edit was taken over
    }
    if (!m_showingPrompt)
    {
        m_passwordChar = GetSafeHwnd() != nullptr ? UINT(GetPasswordChar()) : 0;
        if (m_passwordChar != 0)
        {
            SetPasswordChar(0);
        }
    }
    if (alive)
    {
        m_showingPrompt = 1;
    }
    return bool(alive);
}

// Its text stays. False when the edit did not survive it.
bool EditWithPrompt::LeavePrompt()
{
    const WindowAlive alive(*this);
    m_showingPrompt = 0;
    if (const UINT hidden = std::exchange(m_passwordChar, 0))
    {
        SetPasswordChar(TCHAR(hidden));
    }
    return bool(alive);
}

// The user begins. False when the edit did not survive it.
bool EditWithPrompt::EndPrompt()
{
    const WindowAlive alive(*this);
    if (m_showingPrompt && LeavePrompt())
    {
        ShowText("");
    }
    return bool(alive);
}

void EditWithPrompt::Reset()
{
    // A parent asks for it whenever it is told of an edit without a text. The prompt is on its way
    // then, or the user has just begun.
    if (m_showingText)
    {
        return;
    }
    const bool there = IsPromptThere();
    if (BeginPrompt())
    {
        ShowPrompt(there);
    }
}

// False when the edit did not survive it.
bool EditWithPrompt::PutDuePromptIn()
{
    const WindowAlive alive(*this);
    const bool due = m_promptDue;
    if (due)
    {
        Reset();
    }
    return !due || alive;
}

void EditWithPrompt::SetPromptText(const char* prompt)
{
    m_prompt = CString(prompt != nullptr ? prompt : "");
    if (!PutDuePromptIn() || !m_showingPrompt || m_showingText)
    {
        return; // one that is on its way is followed by this one
    }
    if (!m_prompt.IsEmpty() || LeavePrompt())
    {
        ShowPrompt(IsPromptThere());
    }
}

void EditWithPrompt::SetPromptColor(COLORREF color)
{
    m_promptColor = color;
    if (m_showingPrompt && GetSafeHwnd() != nullptr)
    {
        Invalidate();
    }
}

// Its text --------------------------------------------------------------------------------------

void EditWithPrompt::SetWindowText(const char* text)
{
    CEdit::SetWindowText(text);
}

int EditWithPrompt::GetWindowText(char* buffer, int size) const
{
    if (!m_showingPrompt)
    {
        return CEdit::GetWindowText(buffer, size);
    }
    if (buffer != nullptr && size > 0)
    {
        *buffer = '\0';
    }
    return 0;
}

void EditWithPrompt::GetWindowText(CString& text) const
{
    if (m_showingPrompt)
    {
        text.Empty();
        return;
    }
    CEdit::GetWindowText(text);
}

LRESULT EditWithPrompt::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // What is told while the prompt comes or goes may end the very text that is given: a parent
    // reads the edit into it.
    CString given;
    if (m_showingPrompt && lParam != 0 && (message == WM_SETTEXT || message == EM_REPLACESEL))
    {
        given = reinterpret_cast<const char*>(lParam);
        lParam = reinterpret_cast<LPARAM>(given.GetString());
        if (message == WM_SETTEXT && !given.IsEmpty() && given != m_prompt && m_promptDue)
        {
            m_promptDue = false; // the text comes before it
            m_showingPrompt = 0;
        }
    }
    if (message != WM_DESTROY && message != WM_NCDESTROY && !PutDuePromptIn())
    {
        return 0;
    }
    if (m_showingPrompt)
    {
        switch (message)
        {
        case WM_GETTEXT:
            return GetWindowText(reinterpret_cast<char*>(lParam),
                                 int(std::min<WPARAM>(wParam, INT_MAX)));
        case WM_GETTEXTLENGTH:
        case EM_GETLINE:
        case EM_LINELENGTH:
            return 0;
        case EM_GETPASSWORDCHAR:
            return LRESULT(m_passwordChar);
        case EM_SETPASSWORDCHAR:
            m_passwordChar = UINT(wParam);
            return TRUE;
        case WM_SETTEXT:
        {
            const auto* text = reinterpret_cast<const char*>(lParam);
            if (text == nullptr || *text == '\0')
            {
                return TRUE;
            }
            if (m_prompt != text && !LeavePrompt())
            {
                return FALSE;
            }
            break;
        }
        case EM_SETSEL:
            // Dialogs select all of an edit that gets the focus; a prompt is nothing to select.
            wParam = 0;
            lParam = 0;
            break;
        case WM_CHAR: // of an on-screen keyboard, which sends no key before it
        case WM_PASTE:
        case EM_REPLACESEL:
            if (!EndPrompt())
            {
                return 0;
            }
            break;
        default:
            break;
        }
    }
    return CEdit::WindowProc(message, wParam, lParam);
}

HBRUSH EditWithPrompt::CtlColor(CDC* dc, UINT kind)
{
    if (!m_showingPrompt && kind == CTLCOLOR_STATIC)
    {
        return nullptr; // a disabled edit looks as its parent has it
    }
    const COLORREF ground = ::GetSysColor(COLOR_WINDOW);
    LOGBRUSH made = {};
    if (!m_brush.GetLogBrush(&made) || made.lbColor != ground) // the user may change the colour
    {
        m_brush.DeleteObject();
        m_brush.CreateSolidBrush(ground);
    }
    if (dc == nullptr)
    {
        return m_brush;
    }
    dc->SetBkColor(ground);
    dc->SetTextColor(m_showingPrompt ? m_promptColor : ::GetSysColor(COLOR_WINDOWTEXT));
    return m_brush;
}

// What ends the prompt --------------------------------------------------------------------------

void EditWithPrompt::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (EndPrompt())
    {
        CEdit::OnKeyDown(key, repeat, flags);
    }
}

void EditWithPrompt::OnSetFocus(CWnd* old)
{
    const WindowAlive alive(*this);
    CEdit::OnSetFocus(old);
    if (alive && m_showingPrompt)
    {
        SetSel(0, 0);
    }
}

void EditWithPrompt::OnLButtonDown(UINT flags, CPoint point)
{
    if (EndPrompt())
    {
        CEdit::OnLButtonDown(flags, point);
    }
}

void EditWithPrompt::OnMButtonDown(UINT flags, CPoint point)
{
    if (EndPrompt())
    {
        CEdit::OnMButtonDown(flags, point);
    }
}

void EditWithPrompt::OnRButtonDown(UINT flags, CPoint point)
{
    if (EndPrompt())
    {
        CEdit::OnRButtonDown(flags, point);
    }
}
