#include "CustomPushbutton.h"

#include "OnBoardUI.h"
#include "buttons/ButtonLayout.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"

IMPLEMENT_DYNAMIC(CCustomPushbutton, CCustomButton)

BEGIN_MESSAGE_MAP(CCustomPushbutton, CCustomButton)
    ON_WM_UPDATEUISTATE()
END_MESSAGE_MAP()

namespace {

// From the edge of the face inwards, pixels.
constexpr int FocusInset = 7;
constexpr int CaptionInset = FocusInset + 1;
constexpr int WrappedInset = 2; // more, for a caption of several lines

} // namespace

CCustomPushbutton::CCustomPushbutton() = default;
CCustomPushbutton::~CCustomPushbutton() = default;

void CCustomPushbutton::DrawOB(CDC& dc)
{
    CRect rect;
    GetClientRect(&rect);
    const bool enabled = IsWindowEnabled();
    if (enabled)
    {
        // Meant: a press goes on looking like one while the pointer is dragged off the button.
        const palette::Gradient& face =
            m_tracking ? palette::FacePressedGradient : palette::FaceGradient;
        if (!GradientFill(&dc, rect, face.from, face.to, GRADIENT_FILL_RECT_V))
        {
            dc.FillSolidRect(&rect, face.from);
        }
    }
    else
    {
        dc.FillSolidRect(&rect, palette::FaceDisabled);
    }

    const Selected brush(dc, ::GetStockObject(NULL_BRUSH));
    const BackgroundMode mode(dc, TRANSPARENT);
    {
        const Selected pen(dc, m_OutlinePen);
        dc.Rectangle(&rect);
    }
    if (m_focused)
    {
        CRect frame(rect);
        frame.DeflateRect(FocusInset, FocusInset);
        const Selected pen(dc, m_tracking ? m_PressedFocusPen : m_FocusPen);
        dc.Rectangle(&frame);
    }
    rect.DeflateRect(CaptionInset, CaptionInset);

    const DWORD style = GetStyle();
    if ((style & BS_MULTILINE) != 0)
    {
        rect.DeflateRect(WrappedInset, WrappedInset);
    }
    const WindowAlive alive(*this);
    CString text;
    GetWindowText(text);
    if (!alive)
    {
        return;
    }
    const Selected font(dc, m_Font);
    const TextColor color(dc, enabled ? palette::ButtonText : palette::PushTextDisabled);
    dc.DrawText(text, &rect, buttons::PushCaptionFormat(style));
}
