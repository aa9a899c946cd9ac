#include "SwitchStrip.h"

#include "Look.h"
#include "Tap.h"
#include "resource.h"

#include <OnBoardUI.h>
#include <OnBoardUIGeneral.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr SwitchStrip::Switch Modes[] = {
    {APPMODE_NAMES[STD], ID_MODE_FIRST + STD},
    {APPMODE_NAMES[FULLSCREEN], ID_MODE_FIRST + FULLSCREEN},
    {APPMODE_NAMES[ONBOARD], ID_MODE_FIRST + ONBOARD},
    {APPMODE_NAMES[EFB], ID_MODE_FIRST + EFB},
    {APPMODE_NAMES[EFBFS], ID_MODE_FIRST + EFBFS},
};
static_assert(std::size(Modes) == std::size(APPMODE_NAMES));

constexpr SwitchStrip::Switch WindowCommands[] = {{"Minimise", ID_WINDOW_MINIMIZE},
                                                  {"Close", ID_WINDOW_CLOSE}};

constexpr int CaptionMargin = 6; // to either edge of a switch

void DrawStandardFace(CDC& dc, CRect face, bool active, bool down)
{
    // The system's own pushed look, with the hatch of a checked one when it is only active.
    const UINT state = DFCS_BUTTONPUSH | (down     ? DFCS_PUSHED
                                          : active ? DFCS_CHECKED | DFCS_PUSHED
                                                   : 0);
    dc.DrawFrameControl(&face, DFC_BUTTON, state);
}

void DrawDarkFace(CDC& dc, CRect face, bool active, bool down)
{
    static CPen outline;
    static CPen activeOutline;
    if (outline.GetSafeHandle() == nullptr)
    {
        CreateOnBoardOutlinePen(outline, look::DarkOutline);
        CreateOnBoardOutlinePen(activeOutline, look::DarkActiveEdge);
    }
    if (down)
    {
        dc.FillSolidRect(&face, look::DarkPressed);
    }
    else
    {
        GradientFill(&dc, face, active ? look::DarkActiveTop : look::DarkFaceTop,
                     active ? look::DarkActiveBottom : look::DarkFaceBottom, GRADIENT_FILL_RECT_V);
    }
    const InUse pen(dc, active ? activeOutline : outline);
    const InUse brush(dc, ::GetStockObject(NULL_BRUSH));
    dc.Rectangle(&face);
}

} // namespace

BEGIN_MESSAGE_MAP(SwitchStrip, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

BOOL SwitchStrip::Create(CWnd& parent, UINT id, const char* name, std::span<const Switch> switches,
                         DWORD style)
{
    m_switches = switches;
    // Without the double-click style, so that fast taps are all taps.
    return Create(AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW)), name,
                  WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 0, 0), &parent, id);
}

void SwitchStrip::Tap(int index)
{
    ::Tap(*this, SwitchRect(index).CenterPoint());
}

CRect SwitchStrip::SwitchRect(int index) const
{
    CRect area;
    GetClientRect(&area);
    const int gap = look::Dark() ? 8 : 4;
    const auto left = [&](int each) { return each * (area.Width() + gap) / Count(); };
    return CRect(left(index), area.top, left(index + 1) - gap, area.bottom);
}

int SwitchStrip::SwitchAt(CPoint point) const
{
    for (int index = 0; index < Count(); ++index)
    {
        if (SwitchRect(index).PtInRect(point))
        {
            return index;
        }
    }
    return None;
}

void SwitchStrip::OnPaint()
{
    BufferedPaint paint(*this);
    for (int index = 0; index < Count(); ++index)
    {
        DrawSwitch(paint.Context(), index);
    }
}

void SwitchStrip::DrawSwitch(CDC& dc, int index) const
{
    const bool active = index == Active();
    const bool down = index == m_pressed && m_inside;
    CRect face = SwitchRect(index);
    if (look::Dark())
    {
        DrawDarkFace(dc, face, active, down);
    }
    else
    {
        DrawStandardFace(dc, face, active, down);
    }

    CFont smaller; // where the captions are wider than the switches
    CFont& usual = active ? look::BoldFont() : look::LabelFont();
    const int room = face.Width() - 2 * CaptionMargin;
    const int widest = WidestCaption(dc);
    if (widest > room)
    {
        LOGFONT description = {};
        usual.GetLogFont(&description);
        description.lfHeight = ::MulDiv(description.lfHeight, std::max(room, 1), widest);
        smaller.CreateFontIndirect(&description);
    }
    const InUse font(dc, widest > room ? smaller : usual);
    CRect text = face;
    if (down)
    {
        text.OffsetRect(1, 1);
    }
    dc.DrawText(m_switches[size_t(index)].caption, &text, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    if (index == m_focused && ::GetFocus() == m_hWnd)
    {
        face.DeflateRect(5, 5);
        dc.DrawFocusRect(&face);
    }
}

// In bold, as the active one is.
int SwitchStrip::WidestCaption(CDC& dc) const
{
    const InUse font(dc, look::BoldFont());
    int widest = 0;
    for (const Switch& each : m_switches)
    {
        widest = std::max<int>(widest, dc.GetTextExtent(each.caption, ::lstrlen(each.caption)).cx);
    }
    return widest;
}

void SwitchStrip::Choose(int index)
{
    m_focused = index;
    const UINT command = m_switches[size_t(index)].command;
    ::SendMessage(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(command, 0), 0);
}

void SwitchStrip::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    Invalidate(FALSE);
}

void SwitchStrip::OnLButtonDown(UINT, CPoint point)
{
    // The focus stays where it is, so that switching the mode takes nothing from the page.
    m_pressed = SwitchAt(point);
    if (m_pressed != None)
    {
        m_inside = true;
        SetCapture();
        Invalidate(FALSE);
    }
}

void SwitchStrip::OnLButtonUp(UINT, CPoint point)
{
    const int pressed = m_pressed;
    if (pressed == None)
    {
        return;
    }
    ::ReleaseCapture();
    if (SwitchAt(point) == pressed)
    {
        Choose(pressed);
    }
}

void SwitchStrip::OnMouseMove(UINT, CPoint point)
{
    if (m_pressed != None && m_inside != (SwitchAt(point) == m_pressed))
    {
        m_inside = !m_inside;
        Invalidate(FALSE);
    }
}

void SwitchStrip::OnCaptureChanged(CWnd*)
{
    m_pressed = None;
    m_inside = false;
    Invalidate(FALSE);
}

void SwitchStrip::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    switch (key)
    {
    case VK_LEFT:
    case VK_UP:
        m_focused = std::max(m_focused - 1, 0);
        break;
    case VK_RIGHT:
    case VK_DOWN:
        m_focused = std::min(m_focused + 1, Count() - 1);
        break;
    case VK_SPACE:
        Choose(m_focused);
        return;
    default:
        CWnd::OnKeyDown(key, repeat, flags);
        return;
    }
    Invalidate(FALSE);
}

void SwitchStrip::OnSetFocus(CWnd*)
{
    m_focused = std::max(Active(), 0);
    Invalidate(FALSE);
}

void SwitchStrip::OnKillFocus(CWnd*)
{
    Invalidate(FALSE);
}

BOOL ModeSwitches::Create(CWnd& parent, UINT id)
{
    return Create(parent, id, "Display mode", Modes, WS_TABSTOP);
}

int ModeSwitches::Active() const
{
    return COnBoardUIGeneral::GetAppMode();
}

BOOL WindowSwitches::Create(CWnd& parent, UINT id)
{
    return Create(parent, id, "Window", WindowCommands, 0);
}
