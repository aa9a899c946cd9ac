#include "robust/Storm.h"

#include "OnBoardUIGeneral.h"

#include <cstdio>

namespace {

constexpr UINT Keys[] = {VK_UP,    VK_DOWN,   VK_LEFT, VK_RIGHT, VK_HOME,   VK_END,
                         VK_PRIOR, VK_NEXT,   VK_TAB,  VK_SPACE, VK_RETURN, VK_ESCAPE,
                         VK_BACK,  VK_DELETE, 'A',     'Z',      VK_F16};
constexpr UINT TimerIds[] = {1, 101, 102, 103, 104, 105, 106, 1011, 1278, 2566, 0x118};
constexpr int RoomForAnswers = 0x10000;

} // namespace

Storm::Storm(const Subject& subject, std::uint32_t seed)
    : m_subject(subject)
    , m_seed(seed)
    , m_random(seed)
    , m_texts{"", "Row 7", "Waypoint", std::string(300, 'W')}
    , m_buffer(RoomForAnswers)
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

int Storm::Between(int first, int last)
{
    // The same on every platform, unlike the library's distributions.
    return first + int(m_random() % (std::uint32_t(last - first) + 1));
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

LPARAM Storm::Value(Argument argument, const CWnd& window)
{
    switch (argument)
    {
    case Argument::None:
        return 0;
    case Argument::Flag:
        return Between(0, 1);
    case Argument::Row:
        return Between(0, 20) == 0 ? Between(-2, 5000) : Between(-1, 45);
    case Argument::Small:
        return Between(-3, 20);
    case Argument::Pixels:
        return Between(-20, 400);
    case Argument::Data:
        return LPARAM(m_random());
    case Argument::Letter:
        return Between(0, 9) == 0 ? VK_RETURN : Between(8, 126);
    case Argument::Text:
        return reinterpret_cast<LPARAM>(m_texts[Between(0, 3)].c_str());
    case Argument::Buffer:
        *reinterpret_cast<WORD*>(m_buffer.data()) = RoomForAnswers - 1; // as EM_GETLINE has it
        return reinterpret_cast<LPARAM>(m_buffer.data());
    case Argument::Place:
        m_place.SetRect(Between(-5, 50), Between(-5, 50), Between(40, 300), Between(40, 300));
        return reinterpret_cast<LPARAM>(&m_place);
    case Argument::Point:
    {
        CRect client;
        window.GetClientRect(&client);
        return MAKELPARAM(Between(-20, client.right + 60), Between(-20, client.bottom + 20));
    }
    case Argument::ListItem:
        m_item.mask = LVIF_TEXT | LVIF_STATE;
        m_item.iItem = Between(-1, 60);
        m_item.iSubItem = Between(0, 3);
        m_item.pszText = const_cast<char*>(m_texts[Between(0, 3)].c_str());
        m_item.state = UINT(Between(0, 3));
        m_item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
        return reinterpret_cast<LPARAM>(&m_item);
    case Argument::TreeItem:
    {
        const HWND tree = window.GetSafeHwnd();
        LRESULT item = ::SendMessage(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0);
        for (int steps = Between(0, 30); steps > 0 && item != 0; --steps)
        {
            const LRESULT child = ::SendMessage(tree, TVM_GETNEXTITEM, TVGN_CHILD, item);
            const LRESULT next = ::SendMessage(tree, TVM_GETNEXTITEM, TVGN_NEXT, item);
            item = child != 0 && Between(0, 1) ? child : next;
        }
        return item;
    }
    case Argument::Fixed:
        break;
    case Argument::Font:
        return reinterpret_cast<LPARAM>(
            ::GetStockObject(Between(0, 1) ? DEFAULT_GUI_FONT : SYSTEM_FONT));
    }
    return 0;
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
    const LPARAM inside = Value(Argument::Point, window);
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

void Storm::Life(CWnd& parent, CWnd& window)
{
    switch (Between(0, 13))
    {
    case 0:
        Note(WM_SIZE, 0, 0);
        window.SetWindowPos(nullptr, Between(-5, 60), Between(-5, 60), Between(0, 400),
                            Between(0, 300), SWP_NOZORDER | SWP_NOACTIVATE);
        break;
    case 1:
        Send(window, WM_TIMER, TimerIds[Between(0, int(std::size(TimerIds)) - 1)], 0);
        break;
    case 2:
        Note(WM_SETFOCUS, 0, 0);
        window.SetFocus();
        break;
    case 3:
        Note(WM_KILLFOCUS, 0, 0);
        parent.SetFocus();
        break;
    case 4:
        Note(WM_CAPTURECHANGED, 0, 0);
        ::ReleaseCapture();
        break;
    case 5:
        Send(window, WM_CANCELMODE, 0, 0);
        break;
    case 6:
    {
        const int enable = Between(0, 2);
        Note(WM_ENABLE, WPARAM(enable), 0);
        window.EnableWindow(enable != 0);
        break;
    }
    case 7:
    {
        const int show = Between(0, 2);
        Note(WM_SHOWWINDOW, WPARAM(show), 0);
        window.ShowWindow(show != 0 ? SW_SHOWNA : SW_HIDE);
        break;
    }
    case 8:
    {
        const auto mode = APPMODE(Between(0, 4));
        Note(WM_USER, WPARAM(mode), 0); // the log's word for a change of mode
        COnBoardUIGeneral::SetAppMode(mode);
        break;
    }
    case 9:
        Send(window, WM_SETTEXT, 0, Value(Argument::Text, window));
        break;
    case 10:
        Send(window, WM_SETFONT, WPARAM(Value(Argument::Font, window)), Between(0, 1));
        break;
    case 11:
        Send(window, WM_SETREDRAW, WPARAM(Between(0, 2) != 0), 0);
        break;
    case 12:
        if (!m_subject.fault)
        {
            break; // a bar of the platform's would run a loop of its own when it is pressed
        }
        Note(WM_STYLECHANGED, 0, 0);
        window.ModifyStyle(Between(0, 1) ? WS_VSCROLL : 0, Between(0, 1) ? WS_VSCROLL : 0,
                           SWP_FRAMECHANGED);
        break;
    default:
        Note(WM_PAINT, 0, 0);
        window.RedrawWindow(nullptr, nullptr,
                            RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
        break;
    }
}

void Storm::Own(CWnd& window)
{
    if (m_subject.words.empty())
    {
        Scroll(window);
        return;
    }
    const Word& word = m_subject.words[size_t(Between(0, int(m_subject.words.size()) - 1))];
    const WPARAM wParam =
        word.wParam == Argument::Fixed ? word.fixed : WPARAM(Value(word.wParam, window));
    Send(window, word.message, wParam, Value(word.lParam, window));
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
            Own(window);
            break;
        }
    }
}
