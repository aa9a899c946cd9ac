#include "robust/Storm.h"

#include "OnBoardUIGeneral.h"

#include <cstdio>

namespace {

constexpr UINT Keys[] = {VK_UP,    VK_DOWN,   VK_LEFT, VK_RIGHT, VK_HOME,   VK_END,
                         VK_PRIOR, VK_NEXT,   VK_TAB,  VK_SPACE, VK_RETURN, VK_ESCAPE,
                         VK_BACK,  VK_DELETE, 'A',     'Z',      VK_F16};

} // namespace

Storm::Storm(const Subject& subject, std::uint32_t seed)
    : m_subject(subject)
    , m_seed(seed)
    , m_arguments(seed)
    , m_watch([this] { return Log(); })
{}

std::string Storm::Log() const
{
    std::string log = std::string("storm on ") + m_subject.name + ", seed " +
                      std::to_string(m_seed) + ", mode " +
                      std::to_string(int(COnBoardUIGeneral::GetAppMode())) + ", last messages:\n";
    for (const Sent& sent : m_last)
    {
        char line[80];
        std::snprintf(line, sizeof(line), "  0x%04X 0x%llX 0x%llX\n", sent.message,
                      static_cast<unsigned long long>(sent.wParam),
                      static_cast<unsigned long long>(sent.lParam));
        log += line;
    }
    return log;
}

void Storm::Note(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_last.size() == size_t(Remembered))
    {
        m_last.erase(m_last.begin());
    }
    m_last.push_back({message, wParam, lParam});
    Watch::GoesOn();
}

void Storm::Send(CWnd& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Note(message, wParam, lParam);
    ::SendMessage(window.GetSafeHwnd(), message, wParam, lParam);
}

void Storm::Press(CWnd& window, UINT down, UINT up, WPARAM wParam, LPARAM point)
{
    if (m_subject.pressesLoop)
    {
        // For the loop that this may begin.
        ::PostMessage(window.GetSafeHwnd(), WM_LBUTTONUP, 0, 0);
    }
    Send(window, down, wParam, point);
    if (m_subject.pressesLoop || Between(0, 2) != 0)
    {
        Send(window, up, wParam, point);
    }
}

void Storm::Input(CWnd& window)
{
    const LPARAM inside = m_arguments.Value(Argument::Point, window);
    CPoint screen(short(LOWORD(inside)), short(HIWORD(inside)));
    window.ClientToScreen(&screen);
    const LPARAM onScreen = MAKELPARAM(screen.x, screen.y);
    switch (Between(0, 9))
    {
    case 0:
        Press(window, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON, inside);
        break;
    case 1:
        Press(window, WM_LBUTTONDBLCLK, WM_LBUTTONUP, MK_LBUTTON, inside);
        break;
    case 2:
    case 3:
        Send(window, WM_MOUSEMOVE, Between(0, 1) ? MK_LBUTTON : 0, inside);
        break;
    case 4:
    {
        const LRESULT hit = ::SendMessage(window, WM_NCHITTEST, 0, onScreen);
        // A press that the platform answers with a loop of its own is no message of the library.
        if (hit == HTVSCROLL || hit == HTHSCROLL)
        {
            if (COnBoardUIGeneral::InOnBoardMode())
            {
                Press(window, Between(0, 3) ? WM_NCLBUTTONDOWN : WM_NCLBUTTONDBLCLK, WM_NCLBUTTONUP,
                      WPARAM(hit), onScreen);
            }
        }
        break;
    }
    case 5:
        Send(window, WM_NCMOUSEMOVE, HTVSCROLL, onScreen);
        break;
    case 6:
        Send(window, WM_NCMOUSELEAVE, 0, 0);
        break;
    case 7:
        Send(window, WM_MOUSEWHEEL, MAKEWPARAM(0, Between(-3, 3) * 60), onScreen);
        break;
    default:
    {
        const UINT key = Keys[Between(0, int(std::size(Keys)) - 1)];
        Send(window, WM_KEYDOWN, key, 1);
        Send(window, WM_KEYUP, key, LPARAM(0xC0000001));
        break;
    }
    }
}

void Storm::Scroll(CWnd& window)
{
    const UINT message = Between(0, 2) ? WM_VSCROLL : WM_HSCROLL;
    Send(window, message, MAKEWPARAM(Between(0, 8), Between(0, 50)), 0);
}

void Storm::SendOne(CWnd& window, const std::vector<Word>& words)
{
    const Word& word = words[size_t(Between(0, int(words.size()) - 1))];
    const WPARAM wParam = m_arguments.First(word, window);
    Send(window, word.message, wParam, m_arguments.Value(word.lParam, window));
}

void Storm::Life(CWnd& parent, CWnd& window)
{
    const int what = Between(0, 2);
    switch (Between(0, 13))
    {
    case 0:
        Note(WM_SIZE);
        window.SetWindowPos(nullptr, Between(-5, 60), Between(-5, 60), Between(0, 400),
                            Between(0, 300), SWP_NOZORDER | SWP_NOACTIVATE);
        break;
    case 1:
    case 2:
        Note(what != 0 ? WM_SETFOCUS : WM_KILLFOCUS);
        (what != 0 ? window : parent).SetFocus();
        break;
    case 3:
        Note(WM_CAPTURECHANGED);
        ::ReleaseCapture();
        break;
    case 4:
        Note(WM_ENABLE, WPARAM(what));
        window.EnableWindow(what != 0);
        break;
    case 5:
        Note(WM_SHOWWINDOW, WPARAM(what));
        window.ShowWindow(what != 0 ? SW_SHOWNA : SW_HIDE);
        break;
    case 6:
    {
        const auto mode = APPMODE(Between(0, 4));
        Note(WM_USER, WPARAM(mode)); // the log's word for a change of mode
        COnBoardUIGeneral::SetAppMode(mode);
        break;
    }
    case 7:
        if (!m_subject.fault)
        {
            break; // a bar of the platform's would run a loop of its own when it is pressed
        }
        Note(WM_STYLECHANGED);
        window.ModifyStyle(Between(0, 1) ? WS_VSCROLL : 0, Between(0, 1) ? WS_VSCROLL : 0,
                           SWP_FRAMECHANGED);
        break;
    case 8:
        Note(WM_PAINT);
        window.RedrawWindow(nullptr, nullptr,
                            RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
        break;
    default:
        SendOne(window, CommonWords);
        break;
    }
}

void Storm::Blow(CWnd& parent, CWnd& window, int messages)
{
    const HWND handle = window.GetSafeHwnd();
    for (int index = 0; index < messages && ::IsWindow(handle); ++index)
    {
        switch (Between(0, 9))
        {
        case 0:
        case 1:
        case 2:
        case 3:
            Input(window);
            break;
        case 4:
            Scroll(window);
            break;
        case 5:
            Life(parent, window);
            break;
        case 6:
        {
            MSG message; // what was posted: repeats, scrolls, paints
            for (int waiting = Between(0, 8); waiting > 0; --waiting)
            {
                if (!::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
                {
                    break;
                }
                Note(message.message, message.wParam, message.lParam);
                ::DispatchMessage(&message);
            }
            break;
        }
        default:
            m_subject.words.empty() ? Scroll(window) : SendOne(window, m_subject.words);
            break;
        }
    }
}
