#include "CustomStatic.h"

#include "CustomDialog.h"
#include "CustomFormView.h"
#include "CustomPropPage.h"
#include "OnBoardUI.h"
#include "OnBoardUIGeneral.h"
#include "buttons/GroupBoxLayout.h"
#include "buttons/OwnGround.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/GdiGuards.h"
#include "paint/PaintContext.h"
#include "paint/Palette.h"
#include "paint/Rings.h"
#include "paint/SharedObjects.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CCustomStatic, CStatic)

BEGIN_MESSAGE_MAP(CCustomStatic, CStatic)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CCustomStatic::OnPrintClient)
    ON_WM_UPDATEUISTATE()
    ON_WM_ENABLE()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_ERASEBKGND()
    ON_WM_NCPAINT()
    ON_WM_NCCALCSIZE()
END_MESSAGE_MAP()

CFont CCustomStatic::m_OBFont;
CFont CCustomStatic::m_StdFont;
CPen CCustomStatic::m_OutlinePen;

namespace {

constexpr double LabelFont = 1.53; // height factor over the stock system font
constexpr DWORD StaticTypeBits = 7;

template <class Container> bool TakeControls(CWnd& parent, std::vector<CWnd*>& controls)
{
    if (!parent.IsKindOf(RUNTIME_CLASS(Container)))
    {
        return false;
    }
    controls = static_cast<Container&>(parent).GetControls();
    return true;
}

// Whether the parent is of a kind that lists its controls.
bool TakeControls(CWnd* parent, std::vector<CWnd*>& controls)
{
    return parent != nullptr && (TakeControls<CCustomDialog>(*parent, controls) ||
                                 TakeControls<CCustomPropPage>(*parent, controls) ||
                                 TakeControls<CCustomFormView>(*parent, controls));
}

// What stands on a form: what it has listed, and what was made on it since.
std::vector<HWND> WindowsOn(CWnd* form)
{
    std::vector<CWnd*> controls;
    if (!TakeControls(form, controls))
    {
        return {};
    }
    std::vector<HWND> windows = ChildrenNow(*form);
    for (const CWnd* control : controls)
    {
        windows.push_back(control->GetSafeHwnd());
    }
    std::ranges::sort(windows);
    windows.erase(std::unique(windows.begin(), windows.end()), windows.end());
    return windows;
}

} // namespace

CCustomStatic::CCustomStatic()
    : m_background(palette::Panel)
{
    EnableActiveAccessibility();
    MakeControlPen(m_OutlinePen, palette::GroupOutline);
    GetOnBoardFont();
}

CCustomStatic::~CCustomStatic() = default;

CFont& CCustomStatic::GetOnBoardFont()
{
    return OnBoardControlFont(m_OBFont, LabelFont);
}

CFont& CCustomStatic::GetStdFont()
{
    return StandardControlFont(m_StdFont);
}

COLORREF CCustomStatic::SetBackgroundColor(int useDefault, COLORREF color)
{
    const COLORREF before = m_background;
    m_background = useDefault != 0 ? palette::Panel : color;
    return before;
}

void CCustomStatic::PreSubclassWindow()
{
    CStatic::PreSubclassWindow();
    m_groupBox = (GetStyle() & StaticTypeBits) == BS_GROUPBOX;
    const WindowAlive alive(*this);
    SuitTransparencyToMode(); // a change of the style is told
    if (alive)
    {
        ShowTakenOverWithGround(*this);
    }
}

// A window in the making may lose what was changed before its first message.
int CCustomStatic::OnCreate(LPCREATESTRUCT cs)
{
    const WindowAlive alive(*this);
    SuitTransparencyToMode(); // a change of the style is told
    return alive ? CStatic::OnCreate(cs) : -1;
}

// The extended style suits the mode in which the object takes its window, and stays.
void CCustomStatic::SuitTransparencyToMode()
{
    if (!m_groupBox)
    {
        return;
    }
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        ModifyStyleEx(WS_EX_TRANSPARENT, 0);
    }
    else
    {
        ModifyStyleEx(0, WS_EX_TRANSPARENT);
    }
}

void CCustomStatic::GetParentControls(std::vector<CWnd*>& controls)
{
    TakeControls(GetParent(), controls);
}

// Painting --------------------------------------------------------------------------------------

void CCustomStatic::Draw()
{
    if (!COnBoardUIGeneral::InOnBoardMode() || !m_groupBox)
    {
        Default();
        return;
    }
    DrawGroupBox();
}

void CCustomStatic::DrawGroupBox()
{
    const WindowAlive alive(*this);
    PaintContext context(*this);
    CDC& dc = context.DC();
    CString caption;
    if (alive)
    {
        GetWindowText(caption);
    }
    if (!alive)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    if (!caption.IsEmpty())
    {
        caption = " " + caption + " ";
    }
    // Meant: measured in the context's own font, which is smaller than the caption's.
    const int lineHeight = dc.GetTextExtent("A").cy;
    const int width = dc.GetTextExtent(caption).cx;
    {
        const Selected pen(dc, m_OutlinePen);
        const Selected brush(dc, ::GetStockObject(NULL_BRUSH));
        dc.Rectangle(buttons::GroupFrame(client, lineHeight));
    }
    if (!buttons::GroupCaptionFits(client, width))
    {
        return;
    }
    // Opaque, so that the blanks at its ends cut the frame.
    const BackgroundMode mode(dc, OPAQUE);
    const TextColor text(dc, palette::PanelText);
    const Selected font(dc, m_OBFont);
    const BackgroundColor ground(dc, palette::Panel);
    dc.TextOut(client.left + buttons::GroupCaptionInset, client.top, caption);
}

void CCustomStatic::DrawOBNC()
{
    if (GetSafeHwnd() == nullptr)
    {
        return;
    }
    if ((GetExStyle() & WS_EX_CLIENTEDGE) != 0)
    {
        if (OwnContext dc(m_hWnd, OwnContext::Whole); dc)
        {
            DrawRings(dc, AreaOf(*this), palette::StaticBorder, palette::StaticBorder);
        }
    }
    Invalidate();
}

void CCustomStatic::OnPaint()
{
    Draw();
}

// The looks of this class, for an heir has only its window to draw on.
LRESULT CCustomStatic::OnPrintClient(WPARAM, LPARAM)
{
    if (!COnBoardUIGeneral::InOnBoardMode() || !m_groupBox)
    {
        return Default();
    }
    CCustomStatic::DrawGroupBox();
    return 0;
}

// The platform would draw the group box in its own look as soon as focus cues change.
void CCustomStatic::OnUpdateUIState(UINT, UINT)
{
    Draw();
}

// The platform would draw the group box in its own look here too. On-board it looks the same either
// way.
void CCustomStatic::OnEnable(BOOL enable)
{
    if (COnBoardUIGeneral::InOnBoardMode() && m_groupBox)
    {
        TellEnabled(m_hWnd, enable);
    }
    else
    {
        Default();
    }
}

// And here.
void CCustomStatic::OnSysColorChange()
{
    if (!COnBoardUIGeneral::InOnBoardMode() || !m_groupBox)
    {
        Default();
    }
}

BOOL CCustomStatic::OnEraseBkgnd(CDC* dc)
{
    if (!COnBoardUIGeneral::InOnBoardMode() || !m_groupBox)
    {
        return BOOL(Default());
    }
    if (dc == nullptr)
    {
        return TRUE;
    }
    CRect own;
    GetWindowRect(&own);
    for (const HWND window : WindowsOn(GetParent()))
    {
        if (window == m_hWnd || !::IsWindow(window) || !::IsWindowVisible(window) ||
            (::GetWindowLongPtr(window, GWL_STYLE) & WS_VISIBLE) == 0)
        {
            continue;
        }
        CRect place;
        ::GetWindowRect(window, &place);
        if (CRect common; common.IntersectRect(&own, &place))
        {
            ScreenToClient(&place);
            dc->ExcludeClipRect(&place);
        }
    }
    CRect client;
    GetClientRect(&client);
    CRect clip;
    dc->GetClipBox(&clip);
    if (CRect common; common.IntersectRect(&client, &clip))
    {
        dc->FillSolidRect(&client, m_background);
    }
    return TRUE;
}

// Border ----------------------------------------------------------------------------------------

void CCustomStatic::OnNcPaint()
{
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        Default();
        return;
    }
    const WindowAlive alive(*this);
    // A thin frame, which is all that there is of a separator, stays the platform's.
    if (HasPlatformFrame(m_hWnd))
    {
        Default();
    }
    if (alive)
    {
        DrawOBNC();
    }
}

void CCustomStatic::OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params)
{
    const WindowAlive alive(*this);
    Default();
    // Not while a window is made: it gets the border when its parent places it.
    if (alive && COnBoardUIGeneral::InOnBoardMode() && calcValidRects && params != nullptr &&
        (GetExStyle() & WS_EX_CLIENTEDGE) != 0)
    {
        const CSize edge(::GetSystemMetrics(SM_CXEDGE), ::GetSystemMetrics(SM_CYEDGE));
        params->rgrc[0] = buttons::InsideBorder(params->rgrc[0], edge);
    }
}
