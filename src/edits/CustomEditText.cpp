// The edit: keeping text and bar in step.

#include "CustomEdit.h"
#include "edits/EditBars.h"
#include "modes/Meanwhile.h"
#include "modes/WindowAlive.h"

#include <algorithm>

namespace {

// A line is asked for this far inside the upper and lower edges, so that one of which only a few
// pixels show does not count.
constexpr int LineProbe = 5;

enum class Effect
{
    None,
    MayScroll, // text or view may have changed
    LaysOut,   // the view has changed
};

Effect EffectOf(UINT message)
{
    switch (message)
    {
    case WM_SIZE:
    case WM_SETFONT:
    case EM_SETRECT:
    case EM_SETRECTNP:
    case EM_SETMARGINS:
    case EM_SETTABSTOPS:
    case EM_SETHANDLE:
        return Effect::LaysOut;
    case WM_CHAR:
    case WM_IME_CHAR:
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_SYSCHAR: // with Alt the backspace key undoes
    case WM_VSCROLL:
    case WM_MOUSEWHEEL:
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_TIMER: // a selection dragged past the edge
    case WM_CUT:
    case WM_PASTE:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
    case EM_REPLACESEL:
    case EM_SETSEL:
    case EM_SCROLL:
    case EM_LINESCROLL:
    case EM_SCROLLCARET:
        return Effect::MayScroll;
    default:
        return Effect::None;
    }
}

// Whether a message asks for lines, or says which of them are seen.
bool ConcernsLines(UINT message, Effect effect)
{
    return effect == Effect::MayScroll || message == WM_SETTEXT ||
           (message >= EM_GETSEL && message <= EM_CHARFROMPOS);
}

bool ChoosesLines(UINT message, Effect effect)
{
    return effect == Effect::MayScroll || message == WM_SETTEXT || message == EM_SETHANDLE;
}

// Whether a user changes the text by it without a key or a character: undoing with Alt, pasting
// with the middle button, an input method.
bool ChangesText(UINT message, WPARAM wParam)
{
    switch (message)
    {
    case WM_SYSKEYDOWN:
    case WM_SYSCHAR:
        return wParam == VK_BACK;
    case WM_MBUTTONDOWN:
    case WM_IME_STARTCOMPOSITION:
    case WM_IME_COMPOSITION:
    case WM_IME_CHAR:
        return true;
    default:
        return false;
    }
}

// The place of the platform's thumb; as a code of its bar it is worked out in vain.
bool AsksThumb(UINT message, WPARAM wParam)
{
    return message == EM_GETTHUMB || (message == WM_VSCROLL && LOWORD(wParam) == EM_GETTHUMB);
}

} // namespace

// Not every change is notified, and a parent need not pass its notifications on.
LRESULT CCustomEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_fauxReadOnly && ChangesText(message, wParam))
    {
        return 0;
    }
    const WindowAlive alive(*this);
    const Effect effect = EffectOf(message);
    m_bars->SettlePlace(ConcernsLines(message, effect));
    if (alive && ChoosesLines(message, effect))
    {
        m_bars->ForgetFirstLine();
    }
    if (alive && effect == Effect::MayScroll && !m_firstUpdateDone && !m_bars->IsUnbroken())
    {
        FollowMode(); // now: text and bar of an edit that was there are aligned only once
    }
    if (alive && message == WM_PAINT)
    {
        m_bars->BeginPaint();
    }
    else if (alive && message == WM_ERASEBKGND)
    {
        m_bars->Erased();
    }
    if (alive && AsksThumb(message, wParam) &&
        (GetStyle() & (ES_MULTILINE | WS_VSCROLL)) == ES_MULTILINE &&
        (m_wantsBar || ShowsAllLines()))
    {
        // The platform takes an edit whose bar was taken away for one that has none and answers in
        // hundredths, as it does for those. It divides by zero where the lines just fill the edit.
        const int across = (GetStyle() & WS_HSCROLL) != 0 ? ::GetScrollPos(m_hWnd, SB_HORZ)
                                                          : int(Ask(WM_HSCROLL, EM_GETTHUMB));
        return message == EM_GETTHUMB ? MAKELRESULT(FirstLine(), across) : 0;
    }
    if (!alive || effect == Effect::None)
    {
        const LRESULT result = alive ? CEdit::WindowProc(message, wParam, lParam) : 0;
        if (alive && message == WM_PAINT)
        {
            m_bars->EndPaint();
        }
        return result;
    }
    const LRESULT result = CEdit::WindowProc(message, wParam, lParam);
    if (alive && message == WM_SIZE)
    {
        m_bars->RestoreFirstLine();
    }
    if (alive && !m_bars->IsUnbroken() && FollowMode() &&
        (effect == Effect::LaysOut || TextMoved()))
    {
        FollowText();
    }
    return result;
}

// The platform's answer, past our own handlers.
LRESULT CCustomEdit::Ask(UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProc(message, wParam, lParam);
}

// Whether the platform's edit is there to be asked: it has a line from its creation on.
bool CCustomEdit::IsReady()
{
    return Ask(EM_GETLINECOUNT) > 0;
}

int CCustomEdit::FirstLine()
{
    // An edit of a single line tells its first character instead.
    return (GetStyle() & ES_MULTILINE) != 0 ? int(Ask(EM_GETFIRSTVISIBLELINE)) : 0;
}

CCustomEdit::View CCustomEdit::CurrentView()
{
    View view = {};
    view.lines = int(Ask(EM_GETLINECOUNT));
    view.first = view.last = FirstLine();
    CRect text;
    Ask(EM_GETRECT, 0, LPARAM(&text));
    CRect client;
    GetClientRect(&client);
    const int probe = std::min(int(text.bottom), int(client.bottom)) - LineProbe;
    const auto found = DWORD(Ask(EM_CHARFROMPOS, 0, MAKELPARAM(text.left, probe)));
    // All bits tell a point outside, which is all there is in a window too small for a line.
    if (probe > text.top && found != DWORD(-1))
    {
        // The line comes in 16 bits: it is so far below the first one.
        view.last = view.first + WORD(HIWORD(found) - LOWORD(view.first));
    }
    view.last = std::min(view.last, std::max(view.first, view.lines - 1));
    return view;
}

bool CCustomEdit::ShowsAllLines()
{
    const View view = CurrentView();
    return view.first == 0 && view.last + 1 == view.lines;
}

void CCustomEdit::UpdateScrollPosFromText()
{
    if (m_updating || m_bars->IsUnbroken() || GetSafeHwnd() == nullptr || !IsReady())
    {
        return;
    }
    const WindowAlive alive(*this);
    const Meanwhile updating(*this, m_updating);
    View view = CurrentView();
    const bool allVisible = view.first == 0 && (view.lines == 1 || view.lines == view.last + 1);
    if (allVisible ? m_barShown : m_wantsBar && !m_barShown)
    {
        if (allVisible)
        {
            RemoveVScrollBar();
        }
        else
        {
            IncludeVScrollBar();
        }
        if (!alive)
        {
            return;
        }
        view = CurrentView(); // the lines are broken anew
    }
    const int visible = std::max(0, view.last - view.first + 1);
    // Two past the last line at the top: it is meant, and as with lists the last step of a thumb is
    // never reached.
    m_bar.SetScrollRange(0, std::max(0, view.lines + view.first - view.last + 1));
    if (!m_firstUpdateDone)
    {
        m_firstUpdateDone = true;
        Ask(EM_SETSEL, 0, 0);
        if (alive)
        {
            Ask(EM_LINESCROLL, 0, m_bar.GetScrollPos() - view.first);
        }
        if (!alive)
        {
            return;
        }
    }
    if (view.lines <= m_bar.GetScrollPos())
    {
        m_bar.SetScrollPos(view.lines - 1);
    }
    m_bar.SetPageSize(visible);
    m_overflowing = view.first < view.last && visible > 0 && visible < view.lines;
    m_lines = view.lines;
    m_lastTop = std::max(0, view.lines - visible);
}

// The bar takes its place from the text, unless a thumb is being dragged: then the text is on its
// way to the bar.
void CCustomEdit::FollowText()
{
    if (m_updating || m_bars->IsUnbroken())
    {
        return; // whoever changed the frame looks again
    }
    const WindowAlive alive(*this);
    PlaceBar();
    UpdateScrollPosFromText();
    if (!alive)
    {
        return;
    }
    if (!m_bars->IsDragging())
    {
        m_bar.SetScrollPos(FirstLine());
    }
    DrawOBScrollBars();
}

bool CCustomEdit::TextMoved()
{
    return !m_bars->IsDragging() &&
           (FirstLine() != m_bar.GetScrollPos() || Ask(EM_GETLINECOUNT) != m_lines);
}

void CCustomEdit::ToFirstLine()
{
    if (const int first = FirstLine())
    {
        Ask(EM_LINESCROLL, 0, -first);
    }
}

// Whoever restyles an edit between two on-board modes gives it the font that it has, and the
// platform would break every line anew, three times. Only of the shared font is it known that the
// handle is still the same font.
LRESULT CCustomEdit::OnSetFont(WPARAM wParam, LPARAM lParam)
{
    const HFONT onBoard = GetOnBoardFont();
    if (reinterpret_cast<HFONT>(wParam) != onBoard || !m_bars->InOnBoard() ||
        reinterpret_cast<HFONT>(Ask(WM_GETFONT)) != onBoard)
    {
        return m_bars->SetFont();
    }
    if (LOWORD(lParam) != 0)
    {
        Invalidate();
    }
    return 0;
}

LRESULT CCustomEdit::OnSetText(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT result = Default();
    if (!alive || !FollowMode())
    {
        return result;
    }
    ToFirstLine();
    if (alive)
    {
        FollowText();
    }
    if (alive)
    {
        Invalidate();
    }
    return result;
}

BOOL CCustomEdit::OnENUpdate()
{
    const WindowAlive alive(*this);
    if (FollowMode())
    {
        FollowText();
        if (alive)
        {
            Invalidate();
        }
    }
    return FALSE;
}

BOOL CCustomEdit::OnENVScroll()
{
    if (FollowMode())
    {
        FollowText();
    }
    return FALSE;
}
