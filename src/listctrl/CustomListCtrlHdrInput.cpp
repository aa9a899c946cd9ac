// The header: presses, and columns resized by dragging their dividers.

#include "CustomListCtrl.h"
#include "CustomListCtrlHdr.h"
#include "OnBoardUIGeneral.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListLayout.h"
#include "modes/PressAndHold.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <utility>

namespace {

constexpr int DividerReach = 10;   // a point less than this from a divider is on it
constexpr int Farthest = SHRT_MAX; // that the platform's pointer messages can tell of

} // namespace

// A message for the platform's header alone, past the handlers of this class and its heirs: who
// asks goes on with its own afterwards.
LRESULT CCustomListCtrlHdr::Ask(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return const_cast<CCustomListCtrlHdr*>(this)->DefWindowProc(message, wParam, lParam);
}

// Whether the host lets nobody drag an item's divider.
bool CCustomListCtrlHdr::IsFixed(int item) const
{
    HDITEM data = {};
    data.mask = HDI_FORMAT;
    return Ask(HDM_GETITEM, WPARAM(item), reinterpret_cast<LPARAM>(&data)) != 0 &&
           (data.fmt & HDF_FIXEDWIDTH) != 0;
}

// The first item that can be dragged and whose right edge is that near to x (shifted, as drawn), or
// -1. Right of an edge at which an item of no width stands it is that one, which could not be made
// wider otherwise.
int CCustomListCtrlHdr::DividerAt(int x) const
{
    const int count = (GetStyle() & HDS_NOSIZING) != 0 ? 0 : int(Ask(HDM_GETITEMCOUNT));
    int found = -1;
    LONG edge = 0;
    for (int item = 0; item < count; ++item)
    {
        CRect rect;
        if (!ItemRect(item, rect) || IsFixed(item))
        {
            continue;
        }
        const LONG drawn = rect.right + m_offset.x;
        const bool hidden = rect.Width() == 0 && drawn == edge && x >= edge;
        if (found == -1 ? std::abs(drawn - x) < DividerReach : hidden)
        {
            found = item;
            edge = drawn;
        }
    }
    return found;
}

// Whether a press and this point are one for a finger.
bool CCustomListCtrlHdr::IsUnmoved(CPoint point) const
{
    return std::abs(point.x - m_pressPoint.x) <= ::GetSystemMetrics(SM_CXDRAG) &&
           std::abs(point.y - m_pressPoint.y) <= ::GetSystemMetrics(SM_CYDRAG);
}

// The platform's processing of a pointer message, at the point of the unshifted header. What is an
// item's for us is not a divider for the platform, which would begin to resize by itself. A heading
// that can be put elsewhere is so by the way from the press as the platform knows it.
LRESULT CCustomListCtrlHdr::DefaultAt(UINT message, UINT flags, CPoint point)
{
    const bool movable = (GetStyle() & HDS_DRAGDROP) != 0 && ::GetCapture() == m_hWnd &&
                         message != WM_LBUTTONDOWN && !m_farPress;
    const bool unmoved = movable && IsUnmoved(point);
    point.x -= m_offset.x;
    point = unmoved ? m_pressTold : point;
    const int item = ItemAt(point);
    HDHITTESTINFO hit = {};
    hit.pt = point;
    Ask(HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    CRect rect;
    if (!movable && item != -1 && (hit.flags & (HHT_ONDIVIDER | HHT_ONDIVOPEN)) != 0 &&
        ItemRect(item, rect))
    {
        point.x = rect.CenterPoint().x;
        hit.pt = point;
        Ask(HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        if (hit.iItem != item || (hit.flags & HHT_ONHEADER) == 0)
        {
            if (message != WM_LBUTTONUP)
            {
                return 0; // too narrow to be anything but a divider
            }
            point.y = -1; // nowhere; but a press of the platform's ends there, too
        }
    }
    if (point.x > Farthest)
    {
        // Nowhere, for the platform, unless the item begins where it can be told of.
        const bool begins = item != -1 && item == ItemAt(CPoint(Farthest, point.y));
        point = CPoint(Farthest, begins ? int(point.y) : -1);
    }
    m_pressTold = message == WM_LBUTTONDOWN ? point : m_pressTold;
    return DefWindowProc(message, flags, MAKELPARAM(point.x, point.y));
}

// Cursor ----------------------------------------------------------------------------------------

LRESULT CCustomListCtrlHdr::OnNcHitTest(CPoint)
{
    return Default();
}

LRESULT CCustomListCtrlHdr::OnQueryGestures(WPARAM, LPARAM screen)
{
    return AnswerGestures(*this, Refused::Everywhere, screen, [this] { return Default(); });
}

BOOL CCustomListCtrlHdr::OnSetCursor(CWnd* window, UINT hitTest, UINT message)
{
    if (!COnBoardUIGeneral::InOnBoardMode() || hitTest != HTCLIENT || message != WM_MOUSEMOVE)
    {
        return CHeaderCtrl::OnSetCursor(window, hitTest, message);
    }
    CPoint pointer;
    ::GetCursorPos(&pointer);
    ScreenToClient(&pointer);
    ::SetCursor(::LoadCursor(nullptr, DividerAt(pointer.x) != -1 ? IDC_SIZEWE : IDC_ARROW));
    return TRUE;
}

// Presses ---------------------------------------------------------------------------------------

void CCustomListCtrlHdr::OnLButtonDown(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    m_pressPoint = point;
    m_pressTold = point;
    m_dragged = false;
    m_farPress = false;
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        HDHITTESTINFO hit = {};
        hit.pt = point;
        m_pressedItem = int(Ask(HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
        m_dragged = (hit.flags & (HHT_ONDIVIDER | HHT_ONDIVOPEN)) != 0;
        Default();
        if (alive && ::GetCapture() != GetSafeHwnd())
        {
            m_pressedItem = -1; // neither clicked nor dragged, and not told where the press ends
        }
        return;
    }
    CRect rect;
    const int divider = DividerAt(point.x);
    const bool refused =
        divider != -1 && ItemRect(divider, rect) &&
        TellTracking(HDN_BEGINTRACKA, HDN_BEGINTRACKW, divider, int(rect.Width())) != 0;
    if (!alive || !COnBoardUIGeneral::InOnBoardMode()) // who was told may have changed it
    {
        return;
    }
    if (divider != -1 && !refused)
    {
        m_pressedItem = divider;
        m_tracking = true;
        SetCapture();
        if (!alive)
        {
            return; // who has lost the capture is told
        }
        m_oldCursor = ::SetCursor(::LoadCursor(nullptr, IDC_SIZEWE));
        return;
    }
    if (refused && rect.Width() > 0)
    {
        m_pressedItem = -1;
        return; // nor is it a press on a heading, only where a hidden column has its divider
    }
    m_pressedItem = ItemAt(CPoint(point.x - m_offset.x, point.y));
    // The platform takes no capture for headings that cannot be clicked.
    m_farPress =
        m_pressedItem != -1 && (point.x - m_offset.x > Farthest || (GetStyle() & HDS_BUTTONS) == 0);
    if (m_farPress)
    {
        SetCapture();
    }
    else
    {
        DefaultAt(WM_LBUTTONDOWN, flags, point);
    }
    if (alive)
    {
        Invalidate(FALSE);
    }
}

void CCustomListCtrlHdr::OnMouseMove(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        Default();
        return;
    }
    EndPlatformDrag();
    if (!alive)
    {
        return;
    }
    if (!m_tracking)
    {
        if (m_moving)
        {
            CImageList::DragShowNolock(FALSE); // it would stand where the header is not shifted
        }
        DefaultAt(WM_MOUSEMOVE, flags, point);
        if (alive)
        {
            // Who was told may have changed the mode.
            COnBoardUIGeneral::InOnBoardMode() ? ShowMove(point) : LeaveMove();
        }
        return;
    }
    m_dragged = m_dragged || point.x != m_pressPoint.x;
    const HCURSOR before = ::SetCursor(::LoadCursor(nullptr, IDC_SIZEWE));
    if (m_oldCursor == nullptr)
    {
        m_oldCursor = before;
    }
    if (CRect rect; ItemRect(m_pressedItem, rect)) // not gone meanwhile
    {
        TellTracking(HDN_TRACKA, HDN_TRACKA, m_pressedItem, WidthTo(int(point.x), rect));
    }
    if (alive && COnBoardUIGeneral::InOnBoardMode()) // who was told may have changed it
    {
        RepositionHeaderStrip();
    }
    if (alive)
    {
        Invalidate(FALSE); // the line at the pointer
    }
}

// The platform, which drags a heading to another place, shows where to only as it paints itself.
void CCustomListCtrlHdr::ShowMove(CPoint point)
{
    CRect last;
    m_moving = (GetStyle() & HDS_DRAGDROP) != 0 && ::GetCapture() == m_hWnd &&
               m_pressedItem != -1 && CImageList::GetDragImage(nullptr, nullptr) != nullptr;
    if (!m_moving || !ItemRect(int(Ask(HDM_ORDERTOINDEX, WPARAM(Ask(HDM_GETITEMCOUNT) - 1))), last))
    {
        return;
    }
    // Beside all items it is put at that end, and as well above and below them.
    const auto end = int(m_offset.x + last.right - 1);
    const int x = std::clamp(int(point.x), int(m_offset.x), std::max(int(m_offset.x), end));
    OnSetHotDivider(TRUE, MAKELPARAM(x, 0));
    CPoint picture(point.x, 0);
    ClientToScreen(&picture);
    const WindowAlive alive(*this);
    CImageList::DragShowNolock(FALSE);
    CImageList::DragMove(picture);
    UpdateWindow();
    if (alive && m_moving)
    {
        CImageList::DragShowNolock(TRUE);
    }
}

// In the standard mode the platform goes on with the drag as it shows it itself.
void CCustomListCtrlHdr::LeaveMove()
{
    m_hotDivider = -1;
    if (std::exchange(m_moving, false))
    {
        CImageList::DragShowNolock(TRUE); // hidden where the step of the drag changes the mode
    }
}

// The width of an item whose right edge is at x, as drawn.
int CCustomListCtrlHdr::WidthTo(int x, const CRect& item) const
{
    return std::max(0, int(x - m_offset.x - item.left));
}

// Tells of a drag, by the code of the two that the list asks for, and gives the answer.
LRESULT CCustomListCtrlHdr::TellTracking(int code, int wideCode, int column, int width)
{
    HDITEM item = {};
    item.mask = HDI_WIDTH;
    item.cxy = width;
    NMHEADER told = {};
    told.hdr.code = UINT(Ask(HDM_GETUNICODEFORMAT) != 0 ? wideCode : code);
    told.iItem = column;
    told.pitem = &item;
    return TellNotify(GetSafeHwnd(), told.hdr);
}

void CCustomListCtrlHdr::OnLButtonUp(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    if (onBoard)
    {
        EndPlatformDrag();
        if (!alive)
        {
            return;
        }
    }
    const int pressed = m_pressedItem;
    if (std::exchange(m_moving, false))
    {
        m_hotDivider = -1;
    }
    const bool tracked = m_tracking;
    if (tracked)
    {
        EndTracking();
        if (alive && onBoard)
        {
            ApplyDrag(pressed, int(point.x));
        }
        if (!alive)
        {
            return;
        }
    }
    m_pressedItem = -1;
    if (!onBoard)
    {
        Default();
        if (alive && m_dragged)
        {
            ApplyMinimum(pressed);
        }
        return;
    }
    if (std::exchange(m_farPress, false))
    {
        EndFarPress(pressed, point);
    }
    else
    {
        if (tracked || pressed == -1)
        {
            // A drag of a heading that was cut off puts nothing elsewhere.
            Ask(HDM_SETHOTDIVIDER, FALSE, -1);
        }
        DefaultAt(WM_LBUTTONUP, flags, point);
    }
    if (alive && COnBoardUIGeneral::InOnBoardMode()) // who was told may have changed it
    {
        RepositionHeaderStrip();
    }
    if (alive)
    {
        Invalidate(FALSE);
    }
}

// A click so far to the right that no message can tell the platform of it: the list is told of it
// here.
void CCustomListCtrlHdr::EndFarPress(int pressed, CPoint point)
{
    const WindowAlive alive(*this);
    if (::GetCapture() == GetSafeHwnd())
    {
        ::ReleaseCapture();
    }
    if (!alive || pressed == -1 || (GetStyle() & HDS_BUTTONS) == 0 ||
        ItemAt(CPoint(point.x - m_offset.x, point.y)) != pressed)
    {
        return;
    }
    const bool wide = Ask(HDM_GETUNICODEFORMAT) != 0;
    NMHEADER told = {};
    told.hdr.code = wide ? HDN_ITEMCLICKW : HDN_ITEMCLICKA;
    told.iItem = pressed;
    TellNotify(GetSafeHwnd(), told.hdr);
}

// The one way out of a drag: released, or the capture lost. Also for a far press, without a click.
void CCustomListCtrlHdr::EndTracking()
{
    m_tracking = false;
    m_farPress = false;
    m_pressedItem = -1;
    if (std::exchange(m_moving, false))
    {
        m_hotDivider = -1;
        CImageList::DragShowNolock(FALSE); // not every platform ends its drag by itself
        CImageList::EndDrag();
    }
    const HCURSOR cursor = m_oldCursor;
    m_oldCursor = nullptr;
    if (::GetCapture() == GetSafeHwnd())
    {
        ::ReleaseCapture();
    }
    if (cursor != nullptr)
    {
        ::SetCursor(cursor);
    }
}

// A drag that the platform has begun ends as one of ours does when the mode changes: the width is
// that of the press. The platform would go on with the points of the header as it is drawn.
void CCustomListCtrlHdr::EndPlatformDrag()
{
    if (m_hWnd == nullptr || m_tracking || m_pressedItem == -1 || !m_dragged ||
        ::GetCapture() != m_hWnd)
    {
        return;
    }
    const WindowAlive alive(*this);
    if (CCustomListCtrl* const list = List(); list != nullptr)
    {
        list->m_bars->Follow(); // unless it has: it comes here before it scales the column
    }
    if (!alive || !std::exchange(m_dragged, false))
    {
        return;
    }
    DefWindowProc(WM_LBUTTONUP, 0, MAKELPARAM(m_pressPoint.x, m_pressPoint.y));
    if (alive && ::GetCapture() == m_hWnd)
    {
        ::ReleaseCapture();
    }
}

void CCustomListCtrlHdr::OnCaptureChanged(CWnd* taker)
{
    const WindowAlive alive(*this);
    const HWND list = ListWindow();
    CHeaderCtrl::OnCaptureChanged(taker);
    // In whatever mode: it may have changed since the press.
    if (alive && (m_tracking || m_pressedItem != -1))
    {
        const bool tracked = m_tracking;
        EndTracking();
        if (alive)
        {
            Invalidate(FALSE);
            if (tracked && list != nullptr)
            {
                ::InvalidateRect(list, nullptr, FALSE); // the line at the pointer
            }
        }
    }
}

// The column's new right edge is at x, as drawn. A press and its release alone resize nothing.
void CCustomListCtrlHdr::ApplyDrag(int column, int x)
{
    CRect rect;
    if (!ItemRect(column, rect))
    {
        return; // gone meanwhile
    }
    const WindowAlive alive(*this);
    const bool resizes = m_dragged;
    const CCustomListCtrl* const list = List();
    const HWND listWindow = ListWindow();
    int width = resizes ? WidthTo(x, rect) : int(rect.Width());
    if (resizes && list != nullptr && list->GetMinColWidth() != -1)
    {
        // As wide as the least width is on-board, like all columns.
        width = std::max(width, listctrl::OnBoardWidth(list->GetMinColWidth()));
    }
    TellTracking(HDN_ENDTRACKA, HDN_ENDTRACKW, column, width);
    // Who was told may have changed the mode, and the width with it.
    if (alive && resizes && COnBoardUIGeneral::InOnBoardMode())
    {
        HDITEM item = {};
        item.mask = HDI_WIDTH;
        item.cxy = width;
        SetItem(column, &item);
    }
    if (listWindow != nullptr)
    {
        ::InvalidateRect(listWindow, nullptr, TRUE);
    }
}

// In the standard mode the platform resizes, and need not ask for the width that it is told.
void CCustomListCtrlHdr::ApplyMinimum(int item)
{
    const CCustomListCtrl* const list = List();
    CRect rect;
    if (list != nullptr && ItemRect(item, rect) && rect.Width() < list->GetMinColWidth())
    {
        ::SendMessage(ListWindow(), LVM_SETCOLUMNWIDTH, WPARAM(item),
                      MAKELPARAM(std::min(list->GetMinColWidth(), listctrl::WidestColumn), 0));
    }
}

void CCustomListCtrlHdr::OnLButtonDblClk(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    const int divider = onBoard ? DividerAt(point.x) : -1;
    int item = divider;
    if (item == -1)
    {
        HDHITTESTINFO hit = {};
        hit.pt = CPoint(onBoard ? point.x - m_offset.x : point.x, point.y);
        item = onBoard ? ItemAt(hit.pt) : int(Ask(HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    }
    const HWND list = ListWindow();
    const bool fixed = (GetStyle() & HDS_NOSIZING) != 0 || IsFixed(item);
    const auto toHeading = [&] {
        if (item >= 0 && !fixed && list != nullptr)
        {
            ::SendMessage(list, LVM_SETCOLUMNWIDTH, WPARAM(item),
                          MAKELPARAM(LVSCW_AUTOSIZE_USEHEADER, 0));
        }
    };
    toHeading();
    if (!alive)
    {
        return;
    }
    if (onBoard && point.x - m_offset.x <= Farthest)
    {
        // What is no divider for us is none for the platform, which would make the column as wide
        // as its texts.
        divider == -1
            ? DefaultAt(WM_LBUTTONDBLCLK, flags, point)
            : DefWindowProc(WM_LBUTTONDBLCLK, flags, MAKELPARAM(point.x - m_offset.x, point.y));
    }
    else if (!onBoard)
    {
        Default();
    }
    if (alive)
    {
        toHeading(); // the platform's answer to the divider is the width of the column's texts
    }
}

// What the list is told ---------------------------------------------------------------------------

BOOL CCustomListCtrlHdr::OnHdnItemclick(NMHDR*, LRESULT*)
{
    return FALSE;
}

LRESULT CCustomListCtrlHdr::OnSetHotDivider(WPARAM wParam, LPARAM lParam)
{
    int divider = int(lParam);
    if (wParam != 0)
    {
        const CPoint point(short(LOWORD(lParam)) - m_offset.x, short(HIWORD(lParam)));
        const int item = ItemAt(point);
        HDITEM data = {};
        data.mask = HDI_ORDER;
        CRect rect;
        divider = -1;
        if (Ask(HDM_GETITEM, WPARAM(item), reinterpret_cast<LPARAM>(&data)) != 0 &&
            ItemRect(item, rect))
        {
            divider = data.iOrder + (point.x > rect.CenterPoint().x ? 1 : 0);
        }
    }
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        DefWindowProc(HDM_SETHOTDIVIDER, FALSE, divider);
    }
    else if (divider != m_hotDivider)
    {
        m_hotDivider = divider;
        Invalidate(FALSE);
    }
    return divider;
}

// The platform tells nobody that columns were put in another order.
LRESULT CCustomListCtrlHdr::OnSetOrderArray(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT result = Default();
    if (CCustomListCtrl* const list = alive ? List() : nullptr)
    {
        list->FollowColumnOrder();
    }
    return result;
}
