#include "ScreenKeyboard.h"

#include "DisplayModes.h"
#include "Look.h"

#include <OnBoardUI.h>
#include <OnBoardUIGeneral.h>

#include <cctype>
#include <iterator>

namespace {

// What the special keys stand for. The others stand for themselves.
constexpr char Shift = 1;
constexpr char Hide = 2;
constexpr char Back = VK_BACK;
constexpr char Enter = VK_RETURN;

constexpr int Units = 22; // a row's width; a key of one letter has two
constexpr int Rows = 5;
constexpr int Gap = 6; // pixels between keys
constexpr int Margin = 10;
constexpr int StandardHeight = 290; // at 96 dots per inch

struct KeyFace
{
    char character;
    int left;            // units
    int width;           // units
    const char* caption; // null for the character itself
};

struct KeyRow
{
    const KeyFace* keys;
    int count;
};

constexpr KeyFace Digits[] = {
    {'1', 0, 2, nullptr},  {'2', 2, 2, nullptr},  {'3', 4, 2, nullptr},  {'4', 6, 2, nullptr},
    {'5', 8, 2, nullptr},  {'6', 10, 2, nullptr}, {'7', 12, 2, nullptr}, {'8', 14, 2, nullptr},
    {'9', 16, 2, nullptr}, {'0', 18, 2, nullptr}, {'-', 20, 2, nullptr},
};
constexpr KeyFace Upper[] = {
    {'q', 0, 2, nullptr},  {'w', 2, 2, nullptr},  {'e', 4, 2, nullptr},  {'r', 6, 2, nullptr},
    {'t', 8, 2, nullptr},  {'y', 10, 2, nullptr}, {'u', 12, 2, nullptr}, {'i', 14, 2, nullptr},
    {'o', 16, 2, nullptr}, {'p', 18, 2, nullptr}, {'/', 20, 2, nullptr},
};
constexpr KeyFace Middle[] = {
    {'a', 0, 2, nullptr},  {'s', 2, 2, nullptr},  {'d', 4, 2, nullptr},  {'f', 6, 2, nullptr},
    {'g', 8, 2, nullptr},  {'h', 10, 2, nullptr}, {'j', 12, 2, nullptr}, {'k', 14, 2, nullptr},
    {'l', 16, 2, nullptr}, {Back, 18, 4, "Back"},
};
constexpr KeyFace Lower[] = {
    {Shift, 0, 3, "Shift"}, {'z', 3, 2, nullptr},  {'x', 5, 2, nullptr},
    {'c', 7, 2, nullptr},   {'v', 9, 2, nullptr},  {'b', 11, 2, nullptr},
    {'n', 13, 2, nullptr},  {'m', 15, 2, nullptr}, {Enter, 17, 5, "Enter"},
};
constexpr KeyFace Bottom[] = {
    {',', 0, 2, nullptr},
    {'.', 2, 2, nullptr},
    {' ', 4, 13, ""},
    {Hide, 17, 5, "Hide"},
};
constexpr KeyRow AllRows[Rows] = {
    {Digits, int(std::size(Digits))}, {Upper, int(std::size(Upper))},
    {Middle, int(std::size(Middle))}, {Lower, int(std::size(Lower))},
    {Bottom, int(std::size(Bottom))},
};

constexpr UINT_PTR WatchTimer = 1;
constexpr UINT WatchPeriod = 250; // ms

} // namespace

BEGIN_MESSAGE_MAP(ScreenKeyboard, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_MOUSEACTIVATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_TIMER()
END_MESSAGE_MAP()

void ScreenKeyboard::ShowFor(HWND target, CWnd& owner, const CRect& area)
{
    if (GetSafeHwnd() == nullptr &&
        !CreateEx(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST,
                  AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW)), "Keyboard", WS_POPUP,
                  CRect(0, 0, 0, 0), &owner, 0))
    {
        return;
    }
    m_target = target;
    m_shift = false;
    const int height = look::Scaled(StandardHeight);
    CRect place(area.left, area.bottom - height, area.right, area.bottom);
    CRect covered;
    CRect typed;
    ::GetWindowRect(target, &typed);
    if (covered.IntersectRect(place, typed) && typed.top - area.top > height)
    {
        place.OffsetRect(0, area.top - place.top);
    }
    SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOACTIVATE | SWP_NOZORDER | SWP_SHOWWINDOW);
    Invalidate(FALSE);
    SetTimer(WatchTimer, WatchPeriod, nullptr);
}

void ScreenKeyboard::Hide()
{
    m_target = nullptr;
    if (GetSafeHwnd() != nullptr)
    {
        if (m_pressing)
        {
            ::ReleaseCapture();
        }
        KillTimer(WatchTimer);
        ShowWindow(SW_HIDE);
    }
}

CRect ScreenKeyboard::KeyRect(Key key) const
{
    CRect area;
    GetClientRect(&area);
    area.DeflateRect(Margin, Margin);
    const KeyFace& face = AllRows[key.row].keys[key.index];
    const auto across = [&](int unit) { return area.left + unit * (area.Width() + Gap) / Units; };
    const auto down = [&](int row) { return area.top + row * (area.Height() + Gap) / Rows; };
    return CRect(across(face.left), down(key.row), across(face.left + face.width) - Gap,
                 down(key.row + 1) - Gap);
}

bool ScreenKeyboard::KeyAt(CPoint point, Key& key) const
{
    for (int row = 0; row < Rows; ++row)
    {
        for (int index = 0; index < AllRows[row].count; ++index)
        {
            if (KeyRect({row, index}).PtInRect(point))
            {
                key = {row, index};
                return true;
            }
        }
    }
    return false;
}

bool ScreenKeyboard::IsDown(Key key) const
{
    const bool held = m_pressing && key.row == m_pressed.row && key.index == m_pressed.index;
    return held || (m_shift && AllRows[key.row].keys[key.index].character == Shift);
}

void ScreenKeyboard::OnPaint()
{
    BufferedPaint paint(*this);
    for (int row = 0; row < Rows; ++row)
    {
        for (int index = 0; index < AllRows[row].count; ++index)
        {
            DrawKey(paint.Context(), {row, index});
        }
    }
}

void ScreenKeyboard::DrawKey(CDC& dc, Key key) const
{
    const KeyFace& face = AllRows[key.row].keys[key.index];
    CRect rect = KeyRect(key);
    if (IsDown(key))
    {
        dc.FillSolidRect(&rect, look::DarkPressed);
    }
    else
    {
        GradientFill(&dc, rect, look::DarkFaceTop, look::DarkFaceBottom, GRADIENT_FILL_RECT_V);
    }
    dc.Draw3dRect(&rect, look::DarkOutline, look::DarkOutline);
    const char letter[] = {m_shift ? char(std::toupper(static_cast<unsigned char>(face.character)))
                                   : face.character,
                           '\0'};
    const InUse font(dc, look::LabelFont());
    dc.DrawText(face.caption != nullptr ? face.caption : letter, &rect,
                DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX);
}

void ScreenKeyboard::Type(Key key)
{
    const char character = AllRows[key.row].keys[key.index].character;
    if (character == ::Hide)
    {
        Hide();
        return;
    }
    if (character == Shift)
    {
        m_shift = !m_shift;
        return;
    }
    if (!::IsWindow(m_target))
    {
        Hide();
        return;
    }
    const auto typed = static_cast<unsigned char>(character);
    ::PostMessage(m_target, WM_CHAR, WPARAM(m_shift ? std::toupper(typed) : typed), 1);
    m_shift = false;
}

void ScreenKeyboard::OnLButtonDown(UINT, CPoint point)
{
    m_pressing = KeyAt(point, m_pressed);
    if (m_pressing)
    {
        SetCapture();
        Invalidate(FALSE);
    }
}

void ScreenKeyboard::OnLButtonUp(UINT, CPoint point)
{
    const Key pressed = m_pressed;
    if (!m_pressing)
    {
        return;
    }
    ::ReleaseCapture();
    if (KeyRect(pressed).PtInRect(point))
    {
        Type(pressed);
        Invalidate(FALSE);
    }
}

void ScreenKeyboard::OnCaptureChanged(CWnd*)
{
    m_pressing = false;
    Invalidate(FALSE);
}

void ScreenKeyboard::OnTimer(UINT_PTR)
{
    // Its window may have gone, or the mode with it, without anybody having asked.
    if (!::IsWindowVisible(m_target) || !IsFlightBag(COnBoardUIGeneral::GetAppMode()))
    {
        Hide();
    }
}
