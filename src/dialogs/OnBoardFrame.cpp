#include "dialogs/OnBoardFrame.h"

#include "AppAccess.h"
#include "CustomDialog.h"
#include "EFB.h"
#include "GMSUtil.h"
#include "LayoutMgmt.h"
#include "OnBoardUI.h"
#include "OnBoardUIGeneral.h"
#include "dialogs/ControlList.h"
#include "lists/ComboScaling.h"
#include "modes/ChildRestyling.h"
#include "modes/FlightBag.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"
#include "paint/SharedObjects.h"
#include "scroll/NcBands.h"
#include "scroll/PlatformDrag.h"

#include <utility>

namespace dialogs {

// Shared objects --------------------------------------------------------------------------------

void CreateSharedObjects()
{
    MakeControlBrush(CCustomDialog::m_BkBrush, palette::Panel);
    MakeControlBrush(CCustomDialog::m_BkCaptionBrush, palette::Caption);
    MakeControlBrush(CCustomDialog::m_BkDisabledBrush, palette::CaptionInactive);
    MakeControlBrush(CCustomDialog::m_BkEditBrush, palette::Field);
    MakeControlBrush(CCustomDialog::m_BkEditDisabledBrush, palette::FieldDisabled);
    MakeControlPen(CCustomDialog::m_BkBorderPen, palette::Caption);
    MakeControlPen(CCustomDialog::m_BkDisabledPen, palette::CaptionInactive);
    OnBoardControlFont(CCustomDialog::m_OBStaticTextFont, LargeOnBoardFont);
    MakeControlBrush(CCustomDialog::m_BkRedTestBrush, palette::MarkRed);
    MakeControlBrush(CCustomDialog::m_BkGrnTestBrush, palette::MarkGreen);
    MakeControlBrush(CCustomDialog::m_BkBluTestBrush, palette::MarkBlue);
    MakeControlPen(CCustomDialog::m_BkBorderRedPen, palette::MarkRed);
    MakeControlPen(CCustomDialog::m_BkBorderGrnPen, palette::MarkGreen);
    MakeControlPen(CCustomDialog::m_BkBorderBluPen, palette::MarkBlue);
}

// Frame -----------------------------------------------------------------------------------------

void TakePlatformCaption(CWnd& window, DWORD& taken)
{
    taken = 0;
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        return;
    }
    constexpr DWORD styles[] = {WS_CAPTION, WS_MINIMIZEBOX, WS_SYSMENU};
    for (const DWORD style : styles)
    {
        taken |= window.GetStyle() & style;
    }
    const WindowAlive alive(window);
    for (const DWORD style : styles)
    {
        window.ModifyStyle(style, 0);
        if (!alive)
        {
            return;
        }
    }
    scroll::RecalculateFrame(window);
}

void TellPlatformOfActivation(const CWnd& window, const std::optional<bool>& active)
{
    constexpr LPARAM Unpainted = -1;
    if (active && !COnBoardUIGeneral::InOnBoardMode())
    {
        ::DefWindowProc(window.GetSafeHwnd(), WM_NCACTIVATE, WPARAM(*active), Unpainted);
    }
}

bool IsInitialising(const CWnd& window, UINT message, bool before)
{
    constexpr char DialogClass[] = "#32770"; // the platform's
    return message == WM_INITDIALOG ||
           (message == WM_NCCREATE ? IsOfClass(window.GetSafeHwnd(), DialogClass)
                                   : before && message != WM_NCDESTROY);
}

Children ChildrenOf(const CWnd& window, bool scaledLater)
{
    Children children;
    children.scaledLater = scaledLater;
    if (window.GetSafeHwnd() != nullptr)
    {
        children.standardFont =
            reinterpret_cast<HFONT>(::SendMessage(window.GetSafeHwnd(), WM_GETFONT, 0, 0));
    }
    return children;
}

namespace {

// The children after a change of the mode that went through some, with those made in the middle of
// it. The platform puts a new one behind or before all others: two questions to the system tell
// that there is none, where to collect them is one for each.
std::vector<HWND> ChildrenAfter(HWND window, const std::vector<HWND>& before)
{
    const bool same = !before.empty() && ::IsWindow(before.back()) &&
                      ::FindWindowEx(window, nullptr, nullptr, nullptr) == before.front() &&
                      ::FindWindowEx(window, before.back(), nullptr, nullptr) == nullptr;
    return same ? before : ChildrenNow(window);
}

// Gives those children that have one font another: also those that were made in the middle of a
// change of the mode. Whoever makes a control for a form takes the form's font.
void SwapFonts(HWND window, const std::vector<HWND>& before, HFONT from, HFONT to)
{
    // What they hear may change the mode again, and that is seen to: nothing is for this one then.
    const auto holds = [onBoard = COnBoardUIGeneral::InOnBoardMode()] {
        return COnBoardUIGeneral::InOnBoardMode() == onBoard;
    };
    const auto give = [](HWND child, HFONT font) {
        ::SendMessage(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    };
    ForEachLeft(ChildrenAfter(window, before), [&](HWND child) {
        if (holds() && reinterpret_cast<HFONT>(::SendMessage(child, WM_GETFONT, 0, 0)) == from &&
            holds())
        {
            give(child, to);
            if (!holds())
            {
                give(child, from);
            }
        }
    });
}

// Keeps a window and its children from painting while they are placed one by one: moving a window
// that is seen copies its bits and uncovers its neighbours' each time, for a picture that does not
// last. Whoever holds repaints the whole afterwards. The platform counts the window as hidden
// meanwhile.
class PaintingHeld
{
public:
    explicit PaintingHeld(CWnd& window)
        : m_window(window)
        , m_alive(window)
        , m_held((window.GetStyle() & WS_VISIBLE) != 0)
    {
        if (m_held)
        {
            m_window.SetRedraw(FALSE);
        }
    }
    PaintingHeld(const PaintingHeld&) = delete;
    PaintingHeld& operator=(const PaintingHeld&) = delete;
    ~PaintingHeld()
    {
        if (m_held && m_alive)
        {
            m_window.SetRedraw(TRUE);
        }
    }

private:
    CWnd& m_window;
    WindowAlive m_alive;
    bool m_held; // a hidden window would be shown by it
};

// Whether the frame that the window would calculate now is another one than it has. Between two
// on-board modes it is not, and to have it calculated by the system takes long for a window of its
// own.
bool IsFrameDue(const CWnd& window)
{
    CRect due;
    window.GetWindowRect(&due);
    const WindowAlive alive(window);
    window.SendMessage(WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&due));
    CRect client;
    if (alive)
    {
        window.GetClientRect(&client);
        window.ClientToScreen(&client);
    }
    return alive && due != client;
}

} // namespace

void FollowMode(CWnd& window, APPMODE newMode, APPMODE oldMode, DWORD& taken,
                const Children& children)
{
    const HWND handle = window.GetSafeHwnd();
    if (newMode == oldMode || handle == nullptr)
    {
        return;
    }
    const WindowAlive alive(window);
    scroll::EndPlatformScrolling(window);
    if (!alive)
    {
        return;
    }
    if (!COnBoardUIGeneral::InOnBoardMode() && taken != 0)
    {
        // Or nothing would be left to move or close it by.
        window.ModifyStyle(0, std::exchange(taken, 0));
    }
    const auto followInFrame = [&] {
        if (alive && IsFrameDue(window))
        {
            scroll::RecalculateFrameUnpainted(window);
        }
    };
    if (alive && !children.scaledLater)
    {
        const PaintingHeld held(window);
        const lists::ComboScaling combos(handle);
        const std::vector<HWND> windows = RestyleChildren(
            handle, newMode, oldMode,
            ModeScale(newMode, oldMode) > 1 ? &lists::ComboScaling::NoteStandard : nullptr);
        if (alive)
        {
            lists::ComboScaling::Fit(windows);
        }
        const HFONT onBoard = CCustomDialog::m_OBStaticTextFont;
        // What its children hear may have changed the mode again, and that has been seen to.
        const bool stillOnBoard = COnBoardUIGeneral::InOnBoardMode();
        if (alive && oldMode == STD && stillOnBoard)
        {
            SwapFonts(handle, windows, children.standardFont, onBoard);
        }
        else if (alive && newMode == STD && !stillOnBoard)
        {
            SwapFonts(handle, windows, onBoard, children.standardFont);
        }
        followInFrame(); // of a window of its own it takes longer once it is seen again
    }
    else
    {
        followInFrame();
    }
    if (alive && children.layOut != nullptr)
    {
        children.layOut();
    }
    if (alive)
    {
        ::RedrawWindow(handle, nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    }
}

void FollowMode(CWnd& window, APPMODE newMode, APPMODE oldMode, const Children& children)
{
    DWORD none = 0;
    FollowMode(window, newMode, oldMode, none, children);
}

CSize OnBoardFrameGrowth(DWORD style, DWORD exStyle)
{
    CRect platform(0, 0, 0, 0);
    ::AdjustWindowRectEx(&platform, style, FALSE, exStyle);
    // The frame that stays once the caption's styles are taken, and what the adjustment leaves.
    CRect frame(0, 0, 0, 0);
    ::AdjustWindowRectEx(&frame, style & ~DWORD(WS_CAPTION), FALSE, exStyle);
    CRect adjusted(0, 0, 0, 0);
    AdjustProposed(adjusted, Frame::Of(style, exStyle), ::GetSystemMetrics(SM_CYCAPTION), false,
                   IsVistaOrHigher());
    return frame.Size() - adjusted.Size() - platform.Size();
}

Frame CalcOnBoardFrame(const CWnd& window, RECT& proposed, int captionHeight)
{
    const DWORD style = window.GetStyle();
    const Frame frame = Frame::Of(style, window.GetExStyle());
    const bool caption = (style & WS_CAPTION) == WS_CAPTION;
    AdjustProposed(proposed, frame, captionHeight, caption, IsVistaOrHigher());
    if (caption && (window.GetExStyle() & WS_EX_TOOLWINDOW) != 0)
    {
        // The platform takes less for the caption that it is about to take.
        proposed.top += ::GetSystemMetrics(SM_CYCAPTION) - ::GetSystemMetrics(SM_CYSMCAPTION);
    }
    return frame;
}

bool AsksForSystemCommand(const CWnd& window, const MSG& request)
{
    if (!COnBoardUIGeneral::InOnBoardMode() || window.IsIconic())
    {
        return false;
    }
    if (request.message == WM_NCLBUTTONDBLCLK)
    {
        return request.wParam == HTCAPTION && !window.IsZoomed();
    }
    if ((window.GetStyle() & WS_CHILD) != 0)
    {
        return false;
    }
    constexpr WPARAM CommandBits = 0xFFF0; // the platform uses the others itself
    const WPARAM command = request.wParam & CommandBits;
    if (request.message == WM_SYSCOMMAND)
    {
        return command == SC_KEYMENU || command == SC_MOUSEMENU;
    }
    if (request.message != WM_CONTEXTMENU ||
        reinterpret_cast<HWND>(request.wParam) != window.GetSafeHwnd())
    {
        return false;
    }
    // The platform looks for its own caption there, which is not where the band is hit.
    const CPoint at = scroll::ScreenToWindow(window, CPoint(request.lParam));
    return AreaOf(window).PtInRect(at) && !scroll::ClientRectInWindow(window).PtInRect(at);
}

LRESULT HitOnBoardFrame(const CWnd& window, const CPoint& screen, int captionHeight)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return CaptionHitArea(rect, captionHeight).PtInRect(screen) ? HTCAPTION : HTNOWHERE;
}

// Painting --------------------------------------------------------------------------------------

void PaintOnBoardFrame(CDC& dc, const FrameLook& look)
{
    CBrush& face = look.active ? CCustomDialog::m_BkCaptionBrush : CCustomDialog::m_BkDisabledBrush;
    CPen& line = look.active ? CCustomDialog::m_BkBorderPen : CCustomDialog::m_BkDisabledPen;
    const CRect caption = CaptionArea(look.window, look.captionHeight);
    dc.FillRect(&caption, &face);
    {
        const Selected brush(dc, ::GetStockObject(NULL_BRUSH));
        const Selected pen(dc, line);
        const int y = caption.bottom - metrics::CaptionLineRise;
        dc.MoveTo(caption.left, y);
        dc.LineTo(caption.right, y);
        dc.Rectangle(&look.window);
    }
    const Selected font(dc, CCustomDialog::m_OBStaticTextFont);
    const TextColor color(dc, palette::PanelText);
    const BackgroundMode mode(dc, TRANSPARENT);
    CRect text = CaptionTextArea(look.window, look.captionHeight);
    // An ampersand of a title is a letter.
    dc.DrawText(look.title, &text,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | (look.centred ? DT_CENTER : DT_LEFT));
}

void DrawOnBoardFrame(CWnd& window, int captionHeight, bool active, bool centred)
{
    if (!scroll::IsFrameSeen(window))
    {
        return;
    }
    FrameLook look;
    look.window = AreaOf(window);
    const WindowAlive alive(window);
    window.GetWindowText(look.title);
    if (!alive)
    {
        return;
    }
    look.captionHeight = captionHeight;
    look.active = active;
    look.centred = centred;

    OwnContext dc(window, OwnContext::Whole);
    if (!dc)
    {
        return;
    }
    dc.ExcludeClipRect(scroll::ClientRectInWindow(window));
    CRect band;
    band.IntersectRect(CaptionArea(look.window, captionHeight), look.window);
    {
        BackBuffer buffer(dc, band);
        PaintOnBoardFrame(buffer, look);
    }
    // The rest is the thin frame, drawn over itself, and what a menu would take.
    dc.ExcludeClipRect(&band);
    CRect inside = look.window;
    inside.DeflateRect(metrics::Border, metrics::Border);
    dc.FillRect(&inside, &CCustomDialog::m_BkBrush);
    PaintOnBoardFrame(dc, look);
}

// Colours ---------------------------------------------------------------------------------------

namespace {

HBRUSH FieldColors(CDC& dc, HWND control)
{
    const bool enabled = ::IsWindowEnabled(control) != FALSE;
    dc.SetTextColor(enabled ? palette::FieldText : palette::FieldTextDisabled);
    dc.SetBkColor(enabled ? palette::Field : palette::FieldDisabled);
    return enabled ? CCustomDialog::m_BkEditBrush : CCustomDialog::m_BkEditDisabledBrush;
}

HBRUSH LabelColors(CDC& dc)
{
    dc.SetTextColor(palette::PanelText);
    dc.SetBkMode(TRANSPARENT);
    if (CCustomDialog::m_OBStaticTextFont.GetSafeHandle() != nullptr)
    {
        dc.SelectObject(&CCustomDialog::m_OBStaticTextFont);
    }
    return CCustomDialog::m_BkBrush;
}

// A read-only or disabled edit asks with the message of labels, and so does a disabled combo.
bool IsField(HWND control)
{
    return IsOfClass(control, "Edit") || IsOfClass(control, "ComboBox");
}

} // namespace

std::optional<HBRUSH> OnBoardColors(CDC* dc, CWnd* control, UINT kind)
{
    if (!COnBoardUIGeneral::InOnBoardMode() || dc == nullptr)
    {
        return std::nullopt;
    }
    if (kind == CTLCOLOR_DLG)
    {
        return CCustomDialog::m_BkBrush;
    }
    if (control == nullptr ||
        (kind != CTLCOLOR_EDIT && kind != CTLCOLOR_LISTBOX && kind != CTLCOLOR_STATIC))
    {
        return std::nullopt;
    }
    const HWND window = control->GetSafeHwnd(); // its own answer may end the object
    LRESULT own = 0;
    if (control->SendChildNotifyLastMsg(&own) && own != 0)
    {
        return reinterpret_cast<HBRUSH>(own);
    }
    return kind == CTLCOLOR_STATIC && !IsField(window) ? LabelColors(*dc)
                                                       : FieldColors(*dc, window);
}

// The host --------------------------------------------------------------------------------------

void KeepInHostArea(const CWnd& window, IAppAccess* host, RECT* proposed, bool whole)
{
    if (host == nullptr || proposed == nullptr)
    {
        return;
    }
    const HWND handle = window.GetSafeHwnd(); // it may end in the question
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    const bool answered = host->GetAvailableArea(GAA_WINDOW_AREA, x, y, width, height);
    CRect now;
    if ((answered || (width > 0 && height > 0)) && ::GetWindowRect(handle, &now))
    {
        const CRect place(CPoint(proposed->left, proposed->top), now.Size());
        *proposed = KeptInside(place, x, y, width, height, whole);
    }
}

void UpdateHostZOrder(IAppAccess* host)
{
    // A manager restacks windows, which comes back here.
    static CZOrderManager* updating = nullptr;
    CZOrderManager* const manager = host == nullptr ? nullptr : host->GetZOrderManager();
    if (manager != nullptr && manager != updating)
    {
        CZOrderManager* const outer = std::exchange(updating, manager);
        manager->UpdateZOrder();
        updating = outer;
    }
}

ModalNotice::ModalNotice(IEFB* const& current)
    : m_current(current)
{
    if (IsFlightBag(COnBoardUIGeneral::GetAppMode()) && m_current != nullptr)
    {
        m_told = m_current;
        m_told->BeginModalDialog();
    }
}

ModalNotice::~ModalNotice()
{
    if (m_told != nullptr && m_told == m_current)
    {
        m_told->EndModalDialog();
    }
}

// Opening ---------------------------------------------------------------------------------------

void OpenOnBoard(HWND window, HFONT standard, std::span<const HWND> placed)
{
    if (!COnBoardUIGeneral::InOnBoardMode() || window == nullptr)
    {
        return;
    }
    const lists::ComboScaling combos(window);
    const std::vector<HWND> children =
        RestyleNewWindow(window, placed, &lists::ComboScaling::NoteStandard);
    lists::ComboScaling::Fit(children);
    if (COnBoardUIGeneral::InOnBoardMode()) // else its children have heard of the end of it
    {
        SwapFonts(window, children, standard, CCustomDialog::m_OBStaticTextFont);
    }
}

void OpenForm(CWnd& window, ControlList& list, std::vector<CWnd*>& controls)
{
    const WindowAlive alive(window);
    const HWND handle = window.GetSafeHwnd();
    OpenOnBoard(handle, ChildrenOf(window, false).standardFont);
    if (alive)
    {
        ListControls(handle, list, controls);
    }
}

} // namespace dialogs
