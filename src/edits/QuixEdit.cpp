#include "QuixEdit.h"

#include "modes/KeyState.h"
#include "modes/WindowAlive.h"

IMPLEMENT_DYNAMIC(QuixEdit, CEdit)

BEGIN_MESSAGE_MAP(QuixEdit, CEdit)
    ON_WM_WINDOWPOSCHANGING()
END_MESSAGE_MAP()

QuixEdit::QuixEdit()
{
    EnableActiveAccessibility();
}

namespace {

// What a key does while Ctrl is held; 0 for nothing of its own.
UINT ClipboardMessageOf(WPARAM key, bool password)
{
    // With Alt as well it is a character of the keyboard's third level.
    if (!IsKeyDown(VK_CONTROL) || IsKeyDown(VK_MENU))
    {
        return 0;
    }
    switch (key)
    {
    case 'C':
        return password ? 0 : WM_COPY; // the message copies what the key does not
    case 'V':
        return WM_PASTE;
    case 'X':
        return password ? 0 : WM_CUT;
    case 'Z':
        return EM_UNDO;
    default:
        return 0;
    }
}

// Of a letter's code; what is left is the character of that key with Ctrl.
constexpr WPARAM ControlBits = 0x1F;

} // namespace

void QuixEdit::PreSubclassWindow()
{
    CEdit::PreSubclassWindow();
    m_escapePressed = 0; // that was the window before
    m_doneCharacter = 0;
}

void QuixEdit::SetFixedPlace(int x, int y, int width)
{
    m_fixedX = x;
    m_fixedY = y;
    m_fixedWidth = width;
    if (GetSafeHwnd() != nullptr)
    {
        CRect rect;
        GetWindowRect(&rect);
        SetWindowPos(nullptr, x, y, width, rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void QuixEdit::OnWindowPosChanging(WINDOWPOS* position)
{
    const WindowAlive alive(*this);
    CEdit::OnWindowPosChanging(position);
    if (!alive || position == nullptr)
    {
        return;
    }
    position->x = m_fixedX;
    position->y = m_fixedY;
    position->cx = m_fixedWidth;
}

BOOL QuixEdit::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN)
    {
        m_escapePressed = message->wParam == VK_ESCAPE;
        const UINT clipboard = ClipboardMessageOf(message->wParam, (GetStyle() & ES_PASSWORD) != 0);
        m_doneCharacter = clipboard != 0 ? message->wParam & ControlBits : 0;
        if (clipboard != 0)
        {
            const WindowAlive alive(*this);
            SendMessage(clipboard);
            if (!alive)
            {
                return TRUE;
            }
        }
    }
    else if (message->message == WM_CHAR && m_doneCharacter != 0 &&
             message->wParam == m_doneCharacter)
    {
        // The character of the same key would paste, or undo, a second time.
        m_doneCharacter = 0;
        return TRUE;
    }
    return CEdit::PreTranslateMessage(message);
}
