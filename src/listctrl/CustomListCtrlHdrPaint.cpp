// The header: painting.

#include "CustomListCtrlHdr.h"
#include "OnBoardUI.h"
#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "paint/PaintContext.h"
#include "paint/Palette.h"

#include <algorithm>

namespace {

constexpr int StdArrowMargin = 3;     // from the arrow to an item's right edge
constexpr int PlatformArrowReach = 6; // of the platform's arrow to the left of ours

// The on-board arrow's corners, from an item's top right.
constexpr int ArrowLeft = 27;
constexpr int ArrowMiddle = 18;
constexpr int ArrowRight = 8;
constexpr int ArrowTop = 5;
constexpr int ArrowBottom = 24;

constexpr int SortFormats = HDF_SORTUP | HDF_SORTDOWN;

} // namespace

// Nothing: all drawing happens in answer to a paint message.
void CCustomListCtrlHdr::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CCustomListCtrlHdr::OnEraseBkgnd(CDC* dc)
{
    return COnBoardUIGeneral::InOnBoardMode() ? TRUE : CHeaderCtrl::OnEraseBkgnd(dc);
}

void CCustomListCtrlHdr::OnPaint()
{
    const WindowAlive alive(*this);
    if (!m_created)
    {
        DoCreate(); // takes a font over, which is a message
    }
    if (!alive)
    {
        return;
    }
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        Default();
        const MSG message = *GetCurrentMessage();
        // With no context the platform paints its window for that message, too.
        CDC* const given =
            message.message == WM_PRINTCLIENT ? CDC::FromHandle(HDC(message.wParam)) : nullptr;
        if (alive && given != nullptr)
        {
            DrawStdArrows(*given);
        }
        else if (OwnContext dc(alive ? m_hWnd : nullptr, OwnContext::Client); alive && dc)
        {
            DrawStdArrows(dc);
        }
        return;
    }
    if (m_moving)
    {
        CImageList::DragShowNolock(FALSE); // the dragged heading, which lies over what is painted
    }
    {
        PaintContext context(*this);
        if (!alive)
        {
            return;
        }
        BackBuffer buffer(context, context.Area());
        DrawOB(buffer);
    }
    if (alive && m_moving)
    {
        ::GdiFlush(); // what was painted has to lie on the screen before
        CImageList::DragShowNolock(TRUE);
    }
}

void CCustomListCtrlHdr::DrawOB(CDC& dc)
{
    // Its own questions may end it, wherever a host has put itself in between.
    const WindowAlive alive(*this);
    const auto ownFont = reinterpret_cast<HGDIOBJ>(SendMessage(WM_GETFONT));
    const int count = alive ? GetItemCount() : 0;
    if (!alive)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    GradientFill(&dc, client, palette::FaceGradient.from, palette::FaceGradient.to,
                 GRADIENT_FILL_RECT_V);
    const BackgroundMode transparent(dc, TRANSPARENT);
    const TextColor color(dc, palette::HeaderText);
    const Selected font(dc, ownFont);
    const Selected pen(dc, ::GetStockObject(BLACK_PEN));
    const int last = alive ? int(Ask(HDM_ORDERTOINDEX, WPARAM(count - 1))) : -1;
    for (int item = 0; item < count && alive; ++item)
    {
        DrawOBItem(dc, item, item == last, client);
    }
    if (alive && m_hotDivider >= 0 && count > 0)
    {
        CRect rect;
        const bool end = m_hotDivider >= count;
        const int hot = OrderToIndex(end ? count - 1 : m_hotDivider);
        if (!alive || !ItemRect(hot, rect))
        {
            return;
        }
        const int x = int((end ? rect.right : rect.left) + m_offset.x);
        dc.FillSolidRect(x - 1, client.top, metrics::Border, client.Height(), palette::Highlight);
    }
    if (alive && m_tracking)
    {
        CPoint pointer;
        ::GetCursorPos(&pointer);
        ScreenToClient(&pointer);
        dc.MoveTo(pointer.x, client.top);
        dc.LineTo(pointer.x, client.bottom);
    }
}

void CCustomListCtrlHdr::DrawOBItem(CDC& dc, int item, bool last, const CRect& client)
{
    char text[LongestText] = "";
    HDITEM data = {};
    data.mask = HDI_TEXT | HDI_FORMAT | HDI_ORDER;
    data.pszText = text;
    data.cchTextMax = LongestText;
    CRect rect;
    const WindowAlive alive(*this);
    if (!GetItem(item, &data) || !alive || !ItemRect(item, rect) || !alive)
    {
        return;
    }
    rect.OffsetRect(m_offset);
    if (item == m_pressedItem && !m_tracking)
    {
        CRect face = rect;
        face.left = std::max(face.left, client.left);
        face.right = std::min(face.right, client.right);
        if (face.Width() > 0)
        {
            GradientFill(&dc, face, palette::FaceGradient.to, palette::FaceGradient.from,
                         GRADIENT_FILL_RECT_V);
            dc.MoveTo(face.left, face.top);
            dc.LineTo(face.left, face.bottom);
        }
    }
    UINT flags = DT_END_ELLIPSIS | DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER;
    flags |= (data.fmt & HDF_JUSTIFYMASK) == HDF_CENTER  ? DT_CENTER
             : (data.fmt & HDF_JUSTIFYMASK) == HDF_RIGHT ? DT_RIGHT
                                                         : 0;
    CRect textRect = rect;
    textRect.left += metrics::ListRowMargin;
    if ((data.fmt & SortFormats) != 0)
    {
        textRect.right -= metrics::HeaderArrowRoom;
    }
    if (textRect.Width() > 0 && data.pszText != nullptr)
    {
        dc.DrawText(data.pszText, -1, &textRect, flags);
    }
    DrawOBSortArrow(&dc, rect, data.fmt);
    if (!last)
    {
        dc.MoveTo(rect.right, rect.top);
        dc.LineTo(rect.right, rect.bottom);
    }
}

void CCustomListCtrlHdr::DrawOBSortArrow(CDC* dc, CRect item, int format)
{
    if (dc == nullptr || (format & SortFormats) == 0)
    {
        return;
    }
    const bool up = (format & HDF_SORTUP) != 0;
    const LONG base = item.top + (up ? ArrowBottom : ArrowTop);
    const LONG apex = item.top + (up ? ArrowTop : ArrowBottom);
    const POINT corners[] = {{item.right - ArrowLeft, base},
                             {item.right - ArrowRight, base},
                             {item.right - ArrowMiddle, apex}};
    const BYTE kinds[] = {PT_MOVETO, PT_LINETO, PT_LINETO | PT_CLOSEFIGURE};
    static const CPen pen(PS_SOLID, 1, palette::SortArrow);
    const Selected selected(*dc, pen);
    dc->PolyDraw(corners, kinds, 3);
}

void CCustomListCtrlHdr::DrawStdSortArrow(CDC* dc, CRect item, int format)
{
    if (dc == nullptr || (format & SortFormats) == 0 || m_arrows.GetSafeHandle() == nullptr)
    {
        return;
    }
    const int image = (format & HDF_SORTUP) != 0 ? 0 : 1;
    m_arrows.Draw(dc, image,
                  CPoint(item.right - m_arrowSize.cx - StdArrowMargin,
                         item.top + (item.Height() - m_arrowSize.cy) / 2),
                  ILD_TRANSPARENT);
}

// Over the platform's own picture of the items.
void CCustomListCtrlHdr::DrawStdArrows(CDC& dc)
{
    const WindowAlive alive(*this);
    const int count = m_arrows.GetSafeHandle() == nullptr ? 0 : GetItemCount();
    for (int item = 0; item < count && alive; ++item)
    {
        HDITEM data = {};
        data.mask = HDI_FORMAT;
        CRect rect;
        if (GetItem(item, &data) && alive && (data.fmt & SortFormats) != 0 &&
            ItemRect(item, rect) && alive)
        {
            // Some platforms draw an arrow of their own there, which must not look out beside ours.
            CRect room = rect;
            room.DeflateRect(0, StdArrowMargin);
            room.right -= StdArrowMargin;
            room.left = room.right - m_arrowSize.cx - PlatformArrowReach;
            const COLORREF background = dc.GetPixel(room.right - 1, room.top);
            if (background != CLR_INVALID) // out of sight
            {
                dc.FillSolidRect(room, background);
            }
            DrawStdSortArrow(&dc, rect, data.fmt);
        }
    }
}
