#include "ModeSwitches.h"

#include "Look.h"
#include "resource.h"

#include <OnBoardUI.h>
#include <OnBoardUIGeneral.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr int SwitchCount = int(std::size(APPMODE_NAMES));
static_assert(ID_MODE_LAST - ID_MODE_FIRST + 1 == SwitchCount);

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
    const HGDIOBJ pen =
        ::SelectObject(dc.GetSafeHdc(), active ? HPEN(activeOutline) : HPEN(outline));
    const HGDIOBJ brush = ::SelectObject(dc.GetSafeHdc(), ::GetStockObject(NULL_BRUSH));
    dc.Rectangle(&face);
    ::SelectObject(dc.GetSafeHdc(), brush);
    ::SelectObject(dc.GetSafeHdc(), pen);
}

} // namespace

BEGIN_MESSAGE_MAP(ModeSwitches, CWnd)
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

BOOL ModeSwitches::Create(CWnd& parent, UINT id)
{
    // Without the double-click style, so that fast taps are all taps.
    return Create(AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW)), "Display mode",
                  WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 0, 0), &parent, id);
}

void ModeSwitches::Tap(APPMODE mode)
{
    const CPoint point = SwitchRect(mode).CenterPoint();
    SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}

CRect ModeSwitches::SwitchRect(int mode) const
{
    CRect area;
    GetClientRect(&area);
    const int gap = look::Dark() ? 8 : 4;
    const auto left = [&](int index) { return index * (area.Width() + gap) / SwitchCount; };
    return CRect(left(mode), area.top, left(mode + 1) - gap, area.bottom);
}

int ModeSwitches::SwitchAt(CPoint point) const
{
    for (int mode = 0; mode < SwitchCount; ++mode)
    {
        if (SwitchRect(mode).PtInRect(point))
        {
            return mode;
        }
    }
    return None;
}

void ModeSwitches::OnPaint()
{
    BufferedPaint paint(*this);
    for (int mode = 0; mode < SwitchCount; ++mode)
    {
        DrawSwitch(paint.Context(), mode);
    }
}

void ModeSwitches::DrawSwitch(CDC& dc, int mode) const
{
    const bool active = mode == COnBoardUIGeneral::GetAppMode();
    const bool down = mode == m_pressed && m_inside;
    CRect face = SwitchRect(mode);
    if (look::Dark())
    {
        DrawDarkFace(dc, face, active, down);
    }
    else
    {
        DrawStandardFace(dc, face, active, down);
    }

    const FontInUse font(dc, active ? look::BoldFont() : look::LabelFont());
    CRect text = face;
    if (down)
    {
        text.OffsetRect(1, 1);
    }
    dc.DrawText(APPMODE_NAMES[mode], &text, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    if (mode == m_focused && ::GetFocus() == m_hWnd)
    {
        face.DeflateRect(5, 5);
        dc.DrawFocusRect(&face);
    }
}

void ModeSwitches::Choose(int mode)
{
    m_focused = mode;
    ::SendMessage(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(ID_MODE_FIRST + mode, 0), 0);
}

void ModeSwitches::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    Invalidate(FALSE);
}

void ModeSwitches::OnLButtonDown(UINT, CPoint point)
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

void ModeSwitches::OnLButtonUp(UINT, CPoint point)
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

void ModeSwitches::OnMouseMove(UINT, CPoint point)
{
    if (m_pressed != None && m_inside != (SwitchAt(point) == m_pressed))
    {
        m_inside = !m_inside;
        Invalidate(FALSE);
    }
}

void ModeSwitches::OnCaptureChanged(CWnd*)
{
    m_pressed = None;
    m_inside = false;
    Invalidate(FALSE);
}

void ModeSwitches::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    switch (key)
    {
    case VK_LEFT:
    case VK_UP:
        m_focused = std::max(m_focused - 1, 0);
        break;
    case VK_RIGHT:
    case VK_DOWN:
        m_focused = std::min(m_focused + 1, SwitchCount - 1);
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

void ModeSwitches::OnSetFocus(CWnd*)
{
    m_focused = COnBoardUIGeneral::GetAppMode();
    Invalidate(FALSE);
}

void ModeSwitches::OnKillFocus(CWnd*)
{
    Invalidate(FALSE);
}
