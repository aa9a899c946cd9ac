#include "Look.h"

#include <OnBoardUI.h>
#include <OnBoardUIGeneral.h>

namespace look {

namespace {

constexpr COLORREF DarkGround = RGB(50, 50, 50);
constexpr COLORREF DarkText = RGB(230, 230, 230);
constexpr double LabelHeightFactor = 1.53; // of the system font

// Each font once for the standard look and once for the dark one.
struct FontPair
{
    CFont standard;
    CFont dark;

    explicit FontPair(int weight)
    {
        CreateOnBoardFont(dark, LabelHeightFactor, 0, weight);
        LOGFONT description = {};
        description.lfHeight = COnBoardUIGeneral::GetStdCtrllfHeight(); // tenths of a point
        description.lfWeight = weight;
        description.lfCharSet = DEFAULT_CHARSET;
        ::lstrcpyn(description.lfFaceName, "MS Sans Serif", LF_FACESIZE);
        standard.CreatePointFontIndirect(&description);
    }

    CFont& Current() { return Dark() ? dark : standard; }
};

} // namespace

bool Dark()
{
    return COnBoardUIGeneral::InOnBoardMode();
}

int Scaled(int pixels)
{
    // The same for the life of the process.
    static const int dotsPerInch = CClientDC(nullptr).GetDeviceCaps(LOGPIXELSY);
    return ::MulDiv(pixels, dotsPerInch, 96);
}

CRect Scaled(const CRect& rect)
{
    return CRect(Scaled(rect.left), Scaled(rect.top), Scaled(rect.right), Scaled(rect.bottom));
}

COLORREF Ground()
{
    return Dark() ? DarkGround : ::GetSysColor(COLOR_BTNFACE);
}

COLORREF Text()
{
    return Dark() ? DarkText : ::GetSysColor(COLOR_BTNTEXT);
}

HBRUSH GroundBrush()
{
    static CBrush dark(DarkGround);
    return Dark() ? HBRUSH(dark) : ::GetSysColorBrush(COLOR_BTNFACE);
}

CFont& LabelFont()
{
    static FontPair fonts(FW_NORMAL);
    return fonts.Current();
}

CFont& BoldFont()
{
    static FontPair fonts(FW_BOLD);
    return fonts.Current();
}

} // namespace look

BufferedPaint::BufferedPaint(CWnd& window)
    : m_window(&window)
    , m_painted(m_window.m_ps.rcPaint)
{
    m_memory.CreateCompatibleDC(&m_window);
    m_bitmap.CreateCompatibleBitmap(&m_window, m_painted.Width(), m_painted.Height());
    m_before = ::SelectObject(m_memory.GetSafeHdc(), m_bitmap.GetSafeHandle());
    m_memory.SetViewportOrg(-m_painted.left, -m_painted.top);
    m_memory.FillSolidRect(&m_painted, look::Ground());
    m_memory.SetTextColor(look::Text());
    m_memory.SetBkMode(TRANSPARENT);
}

BufferedPaint::~BufferedPaint()
{
    m_window.BitBlt(m_painted.left, m_painted.top, m_painted.Width(), m_painted.Height(), &m_memory,
                    m_painted.left, m_painted.top, SRCCOPY);
    ::SelectObject(m_memory.GetSafeHdc(), m_before);
}
