// The selection: the rubber band and scrolling by timer.

#include "trees/TreeBand.h"

#include "modes/WindowAlive.h"
#include "scroll/NcBands.h"
#include "trees/DragImage.h"
#include "trees/TreeLook.h"

#include <algorithm>
#include <cstdlib>

namespace trees {

namespace {

CRect Between(CPoint a, CPoint b)
{
    return CRect(std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1,
                 std::max(a.y, b.y) + 1);
}

// Beyond an edge counts as at it: the pointer is captured.
CPoint WithinClient(const CRect& client, const CPoint& point)
{
    return CPoint(std::clamp(point.x, client.left, std::max(client.left, client.right - 1)),
                  std::clamp(point.y, client.top, std::max(client.top, client.bottom - 1)));
}

bool Meet(const CRect& a, const CRect& b)
{
    CRect both;
    return both.IntersectRect(&a, &b) != FALSE;
}

} // namespace

// Where the first item's text begins: the content moves with it. The place of a text that the
// parent keeps is known only after it was asked for, and that may end anything: so here, and
// wherever else a band looks where items are.
CPoint TreeSelection::ContentOrigin() const
{
    return m_items.Rect(m_items.Root(), true).TopLeft();
}

// What of an item the band has to meet.
CRect TreeSelection::BandBox(HTREEITEM item) const
{
    if (m_bandMeets == BandMeets::Row)
    {
        return m_items.Rect(item, false);
    }
    return m_look->IconAndText(item);
}

// In order from the top; null for one that has gone meanwhile. Looks at the rows in sight and at
// those that the rectangle reaches.
std::vector<HTREEITEM> TreeSelection::ItemsMeeting(const CRect& rect)
{
    const WindowAlive alive(Window());
    WatchedItems items(m_items, {});
    WatchedItem item(m_items);
    const WatchedItem top(m_items, m_items.Next(nullptr, TVGN_FIRSTVISIBLE));
    const auto take = [&](HTREEITEM next) {
        item.Set(next);
        const bool meets = next != nullptr && Meet(BandBox(next), rect);
        if (alive && meets && item.Get() != nullptr)
        {
            items.Add(next);
        }
        return alive && item.Get() != nullptr;
    };
    HTREEITEM above = top.Get();
    while (above != nullptr && m_items.Rect(above, false).bottom > rect.top)
    {
        above = m_items.Next(above, TVGN_PREVIOUSVISIBLE);
        if (!take(above))
        {
            break;
        }
    }
    if (!alive)
    {
        return {};
    }
    std::vector<HTREEITEM> order = items.All();
    std::reverse(order.begin(), order.end());
    items.Set(std::move(order));
    HTREEITEM below = top.Get();
    while (below != nullptr && m_items.Rect(below, false).top < rect.bottom && take(below))
    {
        below = m_items.Next(below, TVGN_NEXTVISIBLE);
    }
    return items.All();
}

// Selects what meets rect and deselects what does not; with MK_CONTROL only what a band had
// selected itself is deselected again.
void TreeSelection::UpdateSelectionForRect(const CRect& rect, UINT flags)
{
    const WindowAlive alive(Window());
    const bool multi = m_multi;
    const bool add = (flags & MK_CONTROL) != 0;
    std::unordered_set<HTREEITEM> kept;
    std::vector<HTREEITEM> candidates;
    std::unordered_set<HTREEITEM> refused; // asked for already
    if (m_band == nullptr)
    {
        candidates = add ? std::vector<HTREEITEM>() : m_items.Selected();
    }
    else
    {
        candidates = m_band->stretched ? m_band->met.All() : m_items.Selected();
        refused.insert(m_band->met.All().begin(), m_band->met.All().end());
        if (add)
        {
            kept.insert(m_band->before.All().begin(), m_band->before.All().end());
        }
        m_band->stretched = true;
    }
    const WatchedItems asked(m_items, candidates);
    std::vector<HTREEITEM> meeting = ItemsMeeting(rect);
    if (!alive)
    {
        return;
    }
    candidates = asked.All();
    const std::unordered_set<HTREEITEM> inside(meeting.begin(), meeting.end());
    std::erase_if(candidates, [&](HTREEITEM item) {
        return item == nullptr || inside.count(item) != 0 || kept.count(item) != 0 ||
               !m_items.IsSelected(item);
    });
    const WatchedItems held(m_items, meeting);
    if (m_band != nullptr)
    {
        m_band->met.Set(meeting);
    }
    ChangeEach(candidates, false, true);
    if (!alive || m_multi != multi)
    {
        return;
    }
    meeting = held.All();
    std::erase_if(meeting, [&](HTREEITEM item) {
        return item == nullptr || refused.count(item) != 0 || m_items.IsSelected(item);
    });
    ChangeEach(meeting, true, true);
}

void TreeSelection::RestoreBeforeBand(Band& band)
{
    const WindowAlive alive(Window());
    const std::unordered_set<HTREEITEM> before(band.before.All().begin(), band.before.All().end());
    std::vector<HTREEITEM> away = band.met.All();
    std::erase_if(away, [&](HTREEITEM item) {
        return item == nullptr || before.count(item) != 0 || !m_items.IsSelected(item);
    });
    ChangeEach(away, false, true);
    if (!alive)
    {
        return;
    }
    std::vector<HTREEITEM> back = band.before.All();
    std::erase_if(back,
                  [&](HTREEITEM item) { return item == nullptr || m_items.IsSelected(item); });
    ChangeEach(back, true, true);
}

// Where the band is, for the next paint.
void TreeSelection::PlaceBand()
{
    const WindowAlive alive(Window());
    const CPoint origin = ContentOrigin();
    if (!alive || m_band == nullptr)
    {
        return;
    }
    CRect client;
    Window().GetClientRect(&client);
    const CPoint end = WithinClient(client, m_band->pointer);
    const CRect old = m_band->rect;
    m_band->rect = Between(m_band->pressed + origin, end);
    if (old != m_band->rect)
    {
        TreeLook::InvalidateBand(Handle(), old);
        TreeLook::InvalidateBand(Handle(), m_band->rect);
    }
}

void TreeSelection::MoveBand()
{
    const WindowAlive alive(Window());
    PlaceBand();
    if (!alive || m_band == nullptr)
    {
        return;
    }
    UpdateSelectionForRect(m_band->rect, m_band->flags);
    if (alive && m_band != nullptr && m_scrollTimer == 0)
    {
        StartAutoScroll(BandTimer, BandTimerPeriod, 0);
    }
}

TreeSelection::LoopEnd TreeSelection::RunBand(Band& band, MSG& last)
{
    const WindowAlive alive(Window());
    const CSize threshold = m_owner.GetDragThreshold();
    const CPoint first = band.pointer;
    while (alive && m_band == &band)
    {
        const LoopEnd end = NextOfPress(last);
        if (end != LoopEnd::Moved)
        {
            return end;
        }
        if (last.message == WM_KEYDOWN && last.wParam == VK_ESCAPE)
        {
            return LoopEnd::Lost; // of all that a key may close, the band comes first
        }
        ::TranslateMessage(&last);
        ::DispatchMessage(&last);
        if (!alive || m_band != &band || last.message != WM_MOUSEMOVE || last.hwnd != Handle() ||
            ::GetCapture() != Handle())
        {
            continue;
        }
        band.pointer = CPoint(GET_X_LPARAM(last.lParam), GET_Y_LPARAM(last.lParam));
        if (band.stretched || std::abs(band.pointer.x - first.x) > threshold.cx ||
            std::abs(band.pointer.y - first.y) > threshold.cy)
        {
            MoveBand();
        }
    }
    return LoopEnd::Lost;
}

void TreeSelection::DoBanding(bool left, UINT flags, CPoint point)
{
    if (m_inLoop || Handle() == nullptr)
    {
        return;
    }
    const WindowAlive alive(Window());
    // Escape has to come here.
    if (!TakeKeyboard() || m_inLoop)
    {
        return;
    }
    const CPoint origin = ContentOrigin();
    if (!alive)
    {
        return;
    }
    const bool multi = m_multi;
    Band band(*this, flags, point, origin);
    m_band = &band;
    if (!BeginLoop())
    {
        return;
    }
    MSG last = {};
    const LoopEnd end = RunBand(band, last);
    if (!alive)
    {
        return;
    }
    m_band = nullptr;
    TreeLook::InvalidateBand(Handle(), band.rect);
    StopAutoScroll();
    EndLoop();
    if (!alive || m_multi != multi)
    {
        return;
    }
    if (end == LoopEnd::Lost)
    {
        if (band.stretched)
        {
            RestoreBeforeBand(band);
        }
        return;
    }
    if (band.stretched)
    {
        return;
    }
    if ((flags & MK_CONTROL) == 0)
    {
        m_owner.SelectAll(false, true);
    }
    if (alive)
    {
        TellClick(WatchedItem(m_items), left, point, last);
    }
}

// Scrolling by timer ----------------------------------------------------------------------------

int TreeSelection::GetAutoScrollDirection(CPoint point)
{
    const scroll::PlatformScroll content(Window(), SB_VERT);
    if (content.last <= content.first)
    {
        return 0;
    }
    CRect client;
    Window().GetClientRect(&client);
    const int row = m_items.RowHeight();
    if (point.y >= client.top && point.y < client.top + row && content.position > content.first)
    {
        return -1;
    }
    if (point.y < client.bottom && point.y >= client.bottom - row &&
        content.position < content.last)
    {
        return 1;
    }
    return 0;
}

void TreeSelection::StartAutoScroll(UINT_PTR id, UINT period, int direction)
{
    if (m_band != nullptr && id != BandTimer)
    {
        return; // the pointer is the band's
    }
    m_scrollDirection = direction;
    if (m_scrollTimer != id)
    {
        StopAutoScroll();
        m_scrollDirection = direction;
        m_scrollTimer = ::SetTimer(Handle(), id, period, nullptr) != 0 ? id : 0;
    }
}

void TreeSelection::StopAutoScroll()
{
    if (m_scrollTimer != 0)
    {
        ::KillTimer(Handle(), m_scrollTimer);
        m_scrollTimer = 0;
    }
    m_scrollDirection = 0;
}

void TreeSelection::DoAutoScroll()
{
    if (m_band != nullptr)
    {
        ScrollForBand();
    }
    else if (m_scrollDirection != 0)
    {
        const DragImageHidden hidden; // it would scroll along
        const WindowAlive alive(Window());
        ::SendMessage(Handle(), WM_VSCROLL, m_scrollDirection < 0 ? SB_LINEUP : SB_LINEDOWN, 0);
        if (alive)
        {
            Window().UpdateWindow();
        }
    }
}

void TreeSelection::ScrollForBand()
{
    const WindowAlive alive(Window());
    const HWND window = Handle();
    CRect client;
    Window().GetClientRect(&client);
    const CPoint pointer = WithinClient(client, m_band->pointer);
    const int edge = m_items.RowHeight();
    const int down = GetAutoScrollDirection(pointer);
    const int across = pointer.x < client.left + edge     ? -1
                       : pointer.x >= client.right - edge ? 1
                                                          : 0;
    const CPoint before = ContentOrigin();
    if (!alive || m_band == nullptr)
    {
        return;
    }
    if (down != 0)
    {
        ::SendMessage(window, WM_VSCROLL, down < 0 ? SB_LINEUP : SB_LINEDOWN, 0);
    }
    if (alive && across != 0 && scroll::PlatformScroll(Window(), SB_HORZ).IsNeeded())
    {
        ::SendMessage(window, WM_HSCROLL, across < 0 ? SB_LINELEFT : SB_LINERIGHT, 0);
    }
    if (!alive || m_band == nullptr)
    {
        return;
    }
    const CPoint now = ContentOrigin();
    if (alive && m_band != nullptr && now != before)
    {
        MoveBand();
    }
}

} // namespace trees
