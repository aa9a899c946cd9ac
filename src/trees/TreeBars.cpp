#include "trees/TreeBars.h"

#include "modes/LabelEdit.h"
#include "modes/Meanwhile.h"
#include "modes/PressAndHold.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"
#include "scroll/ScrollCodes.h"

#include <algorithm>
#include <climits>

namespace trees {

namespace {

CPoint PointIn(LPARAM lParam)
{
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}

// The item that a message gives a text, or nullptr.
HTREEITEM GivenText(UINT message, LPARAM lParam)
{
    const auto* const given = reinterpret_cast<const TVITEM*>(lParam);
    return (message == TVM_SETITEMA || message == TVM_SETITEMW) && given != nullptr &&
                   (given->mask & TVIF_TEXT) != 0
               ? given->hItem
               : nullptr;
}

// Whether the rows of a tree may be less wide after a message, other than by another text.
bool MayNarrow(UINT message)
{
    switch (message)
    {
    case TVM_DELETEITEM:
    case TVM_EXPAND:
    case TVM_SETIMAGELIST:
    case TVM_SETINDENT:
    case WM_SETFONT:
        return true;
    default:
        return false;
    }
}

// Whether the edit of a label ends, or is gone, of which alone some platforms tell.
bool EndsLabelEdit(UINT message, WPARAM wParam)
{
    return (message == WM_COMMAND && HIWORD(wParam) == EN_KILLFOCUS) ||
           (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_DESTROY);
}

// As if nothing could be scrolled.
void TakeRange(const CWnd& window, int axis)
{
    SCROLLINFO none = {};
    none.cbSize = sizeof(none);
    none.fMask = SIF_RANGE | SIF_PAGE;
    ::SetScrollInfo(window, axis, &none, FALSE);
}

} // namespace

TreeBars::TreeBars(TreeOwner& owner)
    : m_owner(owner)
{}

void TreeBars::EnterOnBoard()
{
    const WindowAlive alive(Window());
    Strip();
    if (!alive)
    {
        return;
    }
    m_bordered.SetRectEmpty();
    m_size = AreaOf(Window()).Size();
    m_shrunk = true;
    // The frame at once with what is scrolled now: each new size makes the platform count anew.
    MirrorOne(m_vertical);
    MirrorOne(m_horizontal);
    scroll::RecalculateFrame(Window(), false);
    if (alive)
    {
        Mirror();
    }
}

void TreeBars::LeaveOnBoard()
{
    const WindowAlive alive(Window());
    EndPress();
    if (alive)
    {
        CountAnew();
    }
    if (!alive)
    {
        return;
    }
    for (Bar* each : {&m_vertical, &m_horizontal})
    {
        each->shown = false;
        each->bar.ShowScrollBar(FALSE);
        if (scroll::PlatformScroll(Window(), each->axis).IsNeeded()) // as the platform would now
        {
            scroll::RestoreScrollStyles(Window(), scroll::StyleOf(each->axis));
        }
        if (!alive)
        {
            return; // heirs and hooks hear of a style that comes back
        }
    }
    scroll::RecalculateFrame(Window(), false);
}

// The platform's tree is not told: it would show its bars again at once, and so on, dozens deep.
DWORD TreeBars::Strip()
{
    const Meanwhile stripping(Window(), m_stripping);
    return scroll::StripScrollStyles(Window());
}

void TreeBars::Reset()
{
    m_stripping = false;
    m_shrunk = true;
    m_countDue = false;
    m_widest = nullptr;
    m_held = nullptr;
    m_part = CFauxScrollBar::PRESSED_NONE;
    for (Bar* each : {&m_vertical, &m_horizontal})
    {
        each->shown = false;
        each->bar.ShowScrollBar(FALSE);
        each->painter.Invalidate();
    }
}

// Mirroring -------------------------------------------------------------------------------------

int TreeBars::Extent() const
{
    const auto row = [this](WPARAM relation) {
        CRect rect;
        ItemRect(m_owner, HTREEITEM(m_owner.Platform(TVM_GETNEXTITEM, relation, 0)), false, rect);
        return rect;
    };
    return int(row(TVGN_LASTVISIBLE).bottom) - int(row(TVGN_ROOT).top);
}

// How far an item's text lies from the right end of what is scrolled sideways: none or less of the
// widest one's, and some of one that has no place.
int TreeBars::RoomBeside(HTREEITEM item) const
{
    const WindowAlive alive(Window()); // its text may be asked for
    CRect text;
    if (!ItemRect(m_owner, item, true, text) || !alive)
    {
        return INT_MAX;
    }
    const scroll::PlatformScroll across(Window(), SB_HORZ);
    return across.last + across.page - across.position - int(text.right);
}

// Some platforms leave the range of a bar as it was once all is in sight. It is taken away, and set
// again by the platform where there still is something to scroll.
void TreeBars::CountAnew()
{
    const WindowAlive alive(Window());
    m_shrunk = false;
    m_countDue = false;
    CRect client;
    Window().GetClientRect(&client);
    const auto count = [&](int width) {
        if (alive)
        {
            m_owner.Platform(WM_SIZE, SIZE_RESTORED, MAKELPARAM(width, client.Height()));
        }
    };
    TakeRange(Window(), SB_VERT);
    TakeRange(Window(), SB_HORZ);
    count(client.Width());
    if (alive && m_horizontal.bar.GetScrollPos() > 0 &&
        !scroll::PlatformScroll(Window(), SB_HORZ).IsNeeded())
    {
        // Nor do they go back sideways then, before they have something to scroll again.
        count(1);
        if (alive)
        {
            m_owner.Platform(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 0), 0);
            TakeRange(Window(), SB_HORZ);
        }
        count(client.Width());
    }
    if (!alive || !m_vertical.shown || !m_horizontal.shown)
    {
        return;
    }
    // Each bar is judged by the room that the other one leaves, so they would never go.
    const scroll::PlatformScroll across(Window(), SB_HORZ);
    if (across.last + across.page - 1 < client.Width() + metrics::ScrollBand &&
        Extent() <= client.Height() + metrics::ScrollBand)
    {
        TakeRange(Window(), SB_VERT);
        TakeRange(Window(), SB_HORZ);
    }
}

// Whether the bar has come or gone.
bool TreeBars::MirrorOne(Bar& each)
{
    const scroll::PlatformScroll content(Window(), each.axis);
    const bool needed = content.IsNeeded();
    if (needed && m_held != &each)
    {
        each.bar.SetPageSize(content.page);
        // The vertical bar has a position to spare, past the last one.
        each.bar.SetScrollRange(content.first, content.last + (each.axis == SB_VERT ? 1 : 0));
        each.bar.SetScrollPos(content.position);
    }
    const bool changed = needed != each.shown;
    each.shown = needed;
    each.bar.ShowScrollBar(needed);
    return changed;
}

void TreeBars::Mirror()
{
    const WindowAlive alive(Window());
    const int extent = Extent();
    m_shrunk = m_shrunk || extent < m_extent;
    m_extent = extent;
    if (m_countDue || (m_shrunk && (m_vertical.shown || m_horizontal.shown)))
    {
        CountAnew();
    }
    // The room that one bar takes may call for the other.
    for (int round = 0; round < 2 && alive; ++round)
    {
        const bool vertical = MirrorOne(m_vertical);
        const bool horizontal = MirrorOne(m_horizontal);
        if (!vertical && !horizontal)
        {
            break;
        }
        // Or give up the other, which the new size tells of.
        m_shrunk =
            m_shrunk || (vertical && !m_vertical.shown) || (horizontal && !m_horizontal.shown);
        scroll::RecalculateFrame(Window(), false);
    }
    if (alive)
    {
        Place();
        Draw();
    }
}

void TreeBars::Place()
{
    const CRect client = scroll::ClientRectInWindow(Window());
    for (Bar* each : {&m_vertical, &m_horizontal})
    {
        const CRect area = scroll::BandArea(each->axis, client);
        // Setting it puts the thumb back onto its step, so not in the middle of a drag.
        if (each->shown && area != each->bar.GetArea())
        {
            each->bar.SetArea(area);
        }
    }
}

// Painting --------------------------------------------------------------------------------------

void TreeBars::Draw()
{
    for (Bar* each : {&m_vertical, &m_horizontal})
    {
        if (each->shown)
        {
            each->painter.Draw(Window(), each->bar,
                               m_held == each ? m_part : CFauxScrollBar::PRESSED_NONE);
        }
    }
}

// The border, and the corner between two bars.
void TreeBars::DrawBorder()
{
    m_bordered.SetRectEmpty();
    OwnContext dc(Window(), OwnContext::Whole);
    if (!dc || !scroll::IsFrameSeen(Window()))
    {
        return;
    }
    const CRect window = AreaOf(Window());
    const CRect client = scroll::ClientRectInWindow(Window());
    m_bordered = client;
    if (m_vertical.shown && m_horizontal.shown)
    {
        dc.FillSolidRect(CRect(client.right, client.bottom, window.right, window.bottom),
                         Window().IsWindowEnabled() ? palette::Trough : palette::TroughDisabled);
    }
    const int bands[] = {client.left, client.top,
                         window.right - client.right - (m_vertical.shown ? metrics::ScrollBand : 0),
                         window.bottom - client.bottom -
                             (m_horizontal.shown ? metrics::ScrollBand : 0)};
    const CRect sides[] = {CRect(0, 0, bands[0], window.bottom),
                           CRect(0, 0, window.right, bands[1]),
                           CRect(window.right - bands[2], 0, window.right, window.bottom),
                           CRect(0, window.bottom - bands[3], window.right, window.bottom)};
    for (const CRect& side : sides)
    {
        if (!side.IsRectEmpty())
        {
            dc.FillSolidRect(side, palette::Outline);
        }
    }
}

// Messages --------------------------------------------------------------------------------------

bool TreeBars::Before(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    result = 0;
    if (const HTREEITEM item = GivenText(message, lParam);
        item != nullptr && m_horizontal.shown && RoomBeside(item) <= 0)
    {
        m_widest = item;
    }
    switch (message)
    {
    case WM_NCCALCSIZE:
        // The platform puts its styles back whenever its content changes.
        Strip();
        return false;
    case WM_STYLECHANGED:
        return m_stripping;
    case WM_NCPAINT:
        // It comes along with every item that is inserted or deleted, for the client area alone.
        return !scroll::TouchesFrame(Window(), HRGN(wParam)) &&
               m_bordered == scroll::ClientRectInWindow(Window());
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK: // fast touches on an arrow
        if (wParam == HTVSCROLL || wParam == HTHSCROLL)
        {
            Press(wParam, PointIn(lParam));
            return true;
        }
        return false;
    case WM_NCLBUTTONUP:
    case WM_NCMOUSELEAVE:
        // A held arrow goes on until its button is released, wherever the pointer is by then.
        if (m_held != nullptr && (message == WM_NCLBUTTONUP || !scroll::Repeats(m_part)))
        {
            EndPress();
        }
        return false;
    case WM_NCMOUSEMOVE:
        DragTo(PointIn(lParam));
        return false;
    case WM_TIMER:
        if (wParam != RepeatTimer)
        {
            return false;
        }
        if (m_held == nullptr || !scroll::LeftButtonDown())
        {
            Window().KillTimer(RepeatTimer);
            EndPress(); // released somewhere else, where no message told of it
        }
        else
        {
            Scroll(*m_held, scroll::CodeOf(m_part));
        }
        return true;
    case WM_CAPTURECHANGED:
    case WM_CANCELMODE:
    case WM_ENABLE:
    case WM_SHOWWINDOW:
    case WM_DESTROY:
        EndPress();
        return false;
    default:
        return false;
    }
}

void TreeBars::After(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    m_shrunk = m_shrunk || MayNarrow(message);
    m_countDue = m_countDue || EndsLabelEdit(message, wParam);
    if (const HTREEITEM item = GivenText(message, lParam); item != nullptr && item == m_widest)
    {
        m_widest = nullptr;
        const WindowAlive alive(Window());
        const bool narrower = RoomBeside(item) > 0;
        if (!alive)
        {
            return;
        }
        m_shrunk = m_shrunk || narrower;
    }
    if (message == TVM_INSERTITEMA || message == TVM_INSERTITEMW || message == TVM_DELETEITEM ||
        message == TVM_EXPAND || GivenText(message, lParam) != nullptr)
    {
        const CRect any(0, 0, 1, 1); // the item may be out of sight, and then nothing is painted
        Window().InvalidateRect(&any, FALSE);
    }
    switch (message)
    {
    case WM_NCCALCSIZE:
        m_frame.Note(Window());
        if (wParam != FALSE && lParam != 0)
        {
            auto& proposed = reinterpret_cast<NCCALCSIZE_PARAMS*>(lParam)->rgrc[0];
            scroll::TakeBands(proposed, CSize(0, 0), m_vertical.shown, m_horizontal.shown);
        }
        break;
    case WM_WINDOWPOSCHANGING:
        if (const WindowAlive alive(Window()); lParam != 0 && Strip() != 0 && alive)
        {
            m_frame.SaveRecalculation(Window(), *reinterpret_cast<WINDOWPOS*>(lParam));
        }
        break;
    case WM_NCHITTEST:
        if (result == HTNOWHERE || result == HTBORDER)
        {
            const CPoint point = scroll::ScreenToWindow(Window(), PointIn(lParam));
            for (Bar* each : {&m_vertical, &m_horizontal})
            {
                const UINT hit = each->shown ? each->bar.GetHitTest(point) : 0;
                if (hit != 0)
                {
                    result = LRESULT(hit);
                    break;
                }
            }
        }
        break;
    case WM_TABLET_QUERYSYSTEMGESTURESTATUS:
        result = AnswerGestures(Window(), Refused::OnBars, lParam, [&] { return result; });
        break;
    case WM_NCPAINT:
        Place();
        DrawBorder();
        m_vertical.painter.Invalidate();
        m_horizontal.painter.Invalidate();
        Draw();
        break;
    case WM_ENABLE:
        m_bordered.SetRectEmpty(); // the corner has another colour
        break;
    case WM_SIZE:
    {
        const CSize before = m_size;
        m_size = AreaOf(Window()).Size();
        m_shrunk = m_shrunk || m_size.cx > before.cx || m_size.cy > before.cy;
        Mirror();
        break;
    }
    case WM_VSCROLL:
    case WM_HSCROLL:
    case WM_MOUSEWHEEL:
    case WM_KEYDOWN:
    case TVM_ENSUREVISIBLE: // which paints before it has told its bar of a step sideways
    case TVM_EDITLABELA:
    case TVM_EDITLABELW:
        Mirror();
        break;
    default:
        break;
    }
}

// Presses ---------------------------------------------------------------------------------------

void TreeBars::Press(WPARAM hitTest, CPoint screen)
{
    const WindowAlive alive(Window());
    EndPress();
    if (alive)
    {
        EndLabelEdit(Window(), m_owner.Platform(TVM_GETEDITCONTROL, 0, 0));
    }
    if (!alive)
    {
        return;
    }
    Bar& pressed = hitTest == HTVSCROLL ? m_vertical : m_horizontal;
    m_last = screen; // a drag starts here, also when a touch came without a move before it
    const CPoint point = scroll::ScreenToWindow(Window(), screen);
    if (!pressed.shown || pressed.bar.GetHitTest(point) == 0)
    {
        return;
    }
    m_part = pressed.bar.GetLastHit();
    m_held = &pressed;
    scroll::RequestNcLeave(Window());
    if (scroll::Repeats(m_part))
    {
        Window().SetTimer(RepeatTimer, RepeatPeriod, nullptr);
    }
    if (m_part != CFauxScrollBar::PRESSED_THUMB)
    {
        Scroll(pressed, scroll::CodeOf(m_part));
    }
    if (alive)
    {
        Draw();
    }
}

// By the window's own handlers, as if a bar of the platform had been used.
void TreeBars::Scroll(Bar& bar, int code)
{
    if (code == scroll::NoCode)
    {
        return;
    }
    const WindowAlive alive(Window());
    Bar* const held = m_held;
    m_held = nullptr; // the bar takes the new position over
    Window().SendMessage(scroll::MessageOf(bar.axis), WPARAM(code));
    if (alive)
    {
        m_held = m_held == nullptr && m_part != CFauxScrollBar::PRESSED_NONE ? held : m_held;
        Draw();
    }
}

// Relative: the thumb follows the pointer's movement, not its place.
void TreeBars::DragTo(CPoint screen)
{
    const CPoint last = m_last;
    m_last = screen;
    if (m_held == nullptr || m_part != CFauxScrollBar::PRESSED_THUMB)
    {
        return;
    }
    Bar& dragged = *m_held;
    const int before = dragged.bar.GetScrollPos();
    const int after = scroll::DragThumb(dragged.bar, scroll::Along(dragged.axis, screen) -
                                                         scroll::Along(dragged.axis, last));
    const WindowAlive alive(Window());
    if (after != before)
    {
        // The message has sixteen bits for a position.
        constexpr int Highest = 0xFFFF;
        const int position = std::clamp(after, 0, Highest);
        const auto tell = [&](int code) {
            Window().SendMessage(scroll::MessageOf(dragged.axis), MAKEWPARAM(code, position));
        };
        tell(SB_THUMBTRACK);
        // Some platforms' trees go sideways only to where a thumb is let go, and know of no other
        // place down either.
        if (alive && ::GetScrollPos(Window(), dragged.axis) != position)
        {
            tell(SB_THUMBPOSITION);
        }
    }
    if (alive)
    {
        Draw();
    }
}

// The one way out of a press, however it ends, also while its bar is let go for a step.
void TreeBars::EndPress()
{
    const bool pressed = m_held != nullptr || m_part != CFauxScrollBar::PRESSED_NONE;
    m_held = nullptr;
    m_part = CFauxScrollBar::PRESSED_NONE;
    if (!pressed)
    {
        return;
    }
    Window().KillTimer(RepeatTimer);
    scroll::CancelNcLeave(Window());
    Mirror();
}

} // namespace trees
