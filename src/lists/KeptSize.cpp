#include "lists/KeptSize.h"

#include "OnBoardUIGeneral.h"
#include "modes/ChildRestyling.h"
#include "modes/WindowAlive.h"
#include "scroll/BarHost.h"
#include "scroll/NcBands.h"

#include <cstdlib>
#include <utility>

namespace lists {

namespace {

CSize SizeOf(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return rect.Size();
}

} // namespace

void KeptSize::Keep(bool onBoard, bool standardKnown)
{
    // On the way from one mode to the next it has no size of its own.
    if (std::exchange(m_due, true))
    {
        return;
    }
    const CSize size = SizeOf(m_list);
    m_kept = size;
    if (!onBoard)
    {
        m_standard = standardKnown ? size : CSize();
        m_onBoard = CSize();
        m_placed = false;
        return;
    }
    if (size != m_onBoard)
    {
        m_standard = CSize(); // its host has sized it
    }
    m_onBoard = size;
}

void KeptSize::Sized()
{
    m_due = m_due && SizeOf(m_list) == m_kept;
}

void KeptSize::GiveBack()
{
    if (m_giving)
    {
        return;
    }
    const bool onBoard = m_bars.IsLaidOut();
    const bool placed = IsBeingPlaced(m_list);
    CSize& kept = onBoard ? m_onBoard : m_standard;
    if (m_due && kept.cy > 0)
    {
        const CSize size = SizeOf(m_list);
        const bool wholeRows = (m_list.GetStyle() & LBS_NOINTEGRALHEIGHT) == 0;
        // Scaled there and back a list of whole rows, which has lost one of them, has lost of its
        // width as well: a pixel, which is more on-board.
        constexpr int MostLost = 3;
        const bool asWide = std::abs(size.cx - kept.cx) <= (wholeRows ? MostLost : 0);
        if (!asWide && !placed)
        {
            return; // its place comes after its mode, if it does
        }
        // Each change between two on-board modes narrows a list that is scaled with its parent.
        if (kept.cy != size.cy && (asWide || (wholeRows && m_placed)))
        {
            const WindowAlive alive(m_list);
            m_giving = true;
            m_list.SetWindowPos(nullptr, 0, 0, size.cx, kept.cy,
                                SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
            if (!alive)
            {
                return;
            }
            m_giving = false;
            if (COnBoardUIGeneral::InOnBoardMode() != onBoard || m_bars.IsLaidOut() != onBoard)
            {
                return; // it is as high when this mode comes back
            }
        }
    }
    m_due = false;
    kept = SizeOf(m_list);
    m_placed = m_placed || (onBoard && placed);
}

void KeptSize::RecalculateFrame()
{
    const WindowAlive alive(m_list);
    const bool ours = SizeOf(m_list) == m_onBoard;
    scroll::RecalculateFrame(m_list, false);
    if (alive && ours && m_bars.IsLaidOut())
    {
        m_onBoard = SizeOf(m_list);
    }
}

} // namespace lists
