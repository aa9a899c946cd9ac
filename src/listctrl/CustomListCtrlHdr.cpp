// The header: life, layout and painting.

#include "CustomListCtrlHdr.h"

#include "CustomListCtrl.h"
#include "OnBoardUI.h"
#include "OnBoardUIGeneral.h"
#include "listctrl/ListLayout.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"

#include <algorithm>

namespace {

constexpr UINT AscendingArrow = 10017; // bitmaps of the application
constexpr UINT DescendingArrow = 10018;

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

IMPLEMENT_DYNCREATE(CCustomListCtrlHdr, CHeaderCtrl)

BEGIN_MESSAGE_MAP(CCustomListCtrlHdr, CHeaderCtrl)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_NCHITTEST()
    ON_WM_SETCURSOR()
    ON_WM_CAPTURECHANGED()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(HDM_SETHOTDIVIDER, &CCustomListCtrlHdr::OnSetHotDivider)
    ON_NOTIFY_REFLECT_EX(HDN_ITEMCLICKA, &CCustomListCtrlHdr::OnHdnItemclick)
    ON_NOTIFY_REFLECT_EX(HDN_ITEMCLICKW, &CCustomListCtrlHdr::OnHdnItemclick)
END_MESSAGE_MAP()

CSize CCustomListCtrlHdr::m_arrowSize(16, 16);

CCustomListCtrlHdr::CCustomListCtrlHdr()
{
    EnableActiveAccessibility();
    OBResetScroll(FALSE);
}

CCustomListCtrlHdr::~CCustomListCtrlHdr() = default;

// One object may serve several windows, one after the other.
void CCustomListCtrlHdr::PreSubclassWindow()
{
    OBResetScroll(FALSE);
    m_tracking = false;
    m_dragged = false;
    m_farPress = false;
    m_oldCursor = nullptr;
    m_pressedItem = -1;
    m_hotDivider = -1;
    m_created = false; // the theme's font is the window's
    m_repositioning = false;
    m_itemLefts.clear();
    m_itemWidths.clear();
    CHeaderCtrl::PreSubclassWindow();
}

// The window stays, as part of a list that the object has left.
void CCustomListCtrlHdr::LeaveWindow()
{
    if (GetSafeHwnd() != nullptr)
    {
        EndTracking();
        UnsubclassWindow();
    }
}

// The list that the header belongs to; null when it stands alone.
HWND CCustomListCtrlHdr::ListWindow() const
{
    const HWND parent = GetSafeHwnd() == nullptr ? nullptr : ::GetParent(GetSafeHwnd());
    return IsOfClass(parent, WC_LISTVIEW) ? parent : nullptr;
}

CCustomListCtrl* CCustomListCtrlHdr::List() const
{
    return DYNAMIC_DOWNCAST(CCustomListCtrl, CWnd::FromHandlePermanent(ListWindow()));
}

// Layout ----------------------------------------------------------------------------------------

void CCustomListCtrlHdr::OBScrollHeader(int dx, int redraw)
{
    const WindowAlive alive(*this);
    constexpr LONGLONG farthest = -LONGLONG{listctrl::FarthestAcross};
    m_offset.x = LONG(std::clamp(LONGLONG{m_offset.x} + dx, -farthest, farthest));
    RepositionHeaderStrip();
    if (redraw && alive)
    {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
}

void CCustomListCtrlHdr::OBResetScroll(int relayout)
{
    const WindowAlive alive(*this);
    m_offset = CPoint(0, 0);
    if (relayout)
    {
        RepositionHeaderStrip();
        if (alive)
        {
            RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        }
    }
}

void CCustomListCtrlHdr::RepositionHeaderStrip()
{
    if (GetSafeHwnd() == nullptr || m_repositioning)
    {
        return;
    }
    const WindowAlive alive(*this);
    m_repositioning = true;
    m_itemLefts.clear();
    m_itemWidths.clear();
    const HWND list = ListWindow();
    const int count = std::max(0, GetItemCount());
    int left = int(m_offset.x);
    for (int order = 0; order < count && alive; ++order)
    {
        const int item = OrderToIndex(order);
        CRect rect;
        ItemRect(item, rect);
        if (list != nullptr && item != count - 1 &&
            ::SendMessage(list, LVM_GETCOLUMNWIDTH, WPARAM(item), 0) != rect.Width())
        {
            ::SendMessage(list, LVM_SETCOLUMNWIDTH, WPARAM(item),
                          MAKELPARAM(std::min(rect.Width(), listctrl::WidestColumn), 0));
            if (!alive)
            {
                return;
            }
        }
        m_itemLefts.push_back(left);
        m_itemWidths.push_back(rect.Width());
        left += rect.Width();
    }
    if (alive && list != nullptr && count > 0)
    {
        ::SendMessage(list, LVM_SETCOLUMNWIDTH, WPARAM(count - 1),
                      MAKELPARAM(LVSCW_AUTOSIZE_USEHEADER, 0));
    }
    if (alive && list != nullptr && (::GetWindowLongPtr(list, GWL_STYLE) & LVS_NOCOLUMNHEADER) == 0)
    {
        // As far to the right as the shift brings columns into sight: the platform hits nothing
        // beyond the window's own edge.
        CRect client;
        ::GetClientRect(list, &client);
        const CRect now = PlaceIn(list, GetSafeHwnd());
        const CRect strip(0, now.top, client.right - std::min<LONG>(0, m_offset.x), now.bottom);
        if (strip != now)
        {
            SetWindowPos(nullptr, strip.left, strip.top, strip.Width(), strip.Height(),
                         SWP_NOZORDER | SWP_NOACTIVATE);
        }
        if (alive)
        {
            ShowWindow(SW_SHOWNA);
        }
    }
    if (alive)
    {
        m_repositioning = false;
    }
}

bool CCustomListCtrlHdr::ItemRect(int item, CRect& rect) const
{
    return item >= 0 && GetItemRect(item, &rect) != FALSE;
}

// The item under a point of the unshifted header, or -1.
int CCustomListCtrlHdr::ItemAt(CPoint point) const
{
    const int count = GetItemCount();
    for (int item = 0; item < count; ++item)
    {
        CRect rect;
        if (ItemRect(item, rect) && rect.PtInRect(point))
        {
            return item;
        }
    }
    return -1;
}

// Creation --------------------------------------------------------------------------------------

void CCustomListCtrlHdr::DoCreate()
{
    m_created = true;
    LoadArrows();
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        TakeThemeFont();
    }
}

void CCustomListCtrlHdr::LoadArrows()
{
    m_arrows.DeleteImageList();
    m_arrows.Create(m_arrowSize.cx, m_arrowSize.cy, ILC_MASK, 4, 1);
    for (const UINT id : {AscendingArrow, DescendingArrow})
    {
        CBitmap arrow;
        if (!arrow.LoadBitmap(id))
        {
            m_arrows.DeleteImageList(); // one without the other would stand for the wrong order
            return;
        }
        COLORREF transparent = RGB(255, 255, 255);
        {
            CDC memory;
            memory.CreateCompatibleDC(nullptr);
            const Selected bitmap(memory, arrow);
            transparent = memory.GetPixel(0, 0);
        }
        m_arrows.Add(&arrow, transparent);
    }
}

namespace {

// The platform's visual styles, which not every system has.
class Themes
{
public:
    Themes()
        : m_library(::LoadLibrary("uxtheme.dll"))
    {}
    Themes(const Themes&) = delete;
    Themes& operator=(const Themes&) = delete;
    ~Themes()
    {
        if (m_library != nullptr)
        {
            ::FreeLibrary(m_library);
        }
    }

    bool MenuFont(HWND window, LOGFONTW& font) const
    {
        constexpr int ThemeMenuFont = 803;
        const auto open = Find<HANDLE(WINAPI*)(HWND, LPCWSTR)>("OpenThemeData");
        const auto read = Find<HRESULT(WINAPI*)(HANDLE, int, LOGFONTW*)>("GetThemeSysFont");
        const auto close = Find<HRESULT(WINAPI*)(HANDLE)>("CloseThemeData");
        if (open == nullptr || read == nullptr || close == nullptr)
        {
            return false;
        }
        const HANDLE theme = open(window, L"Header");
        if (theme == nullptr)
        {
            return false;
        }
        const bool known = SUCCEEDED(read(theme, ThemeMenuFont, &font));
        close(theme);
        return known;
    }

private:
    template <class Function> Function Find(const char* name) const
    {
        return m_library == nullptr ? nullptr
                                    : reinterpret_cast<Function>(reinterpret_cast<void*>(
                                          ::GetProcAddress(m_library, name)));
    }

    HMODULE m_library;
};

} // namespace

void CCustomListCtrlHdr::TakeThemeFont()
{
    LOGFONTW description = {};
    if (Themes().MenuFont(GetSafeHwnd(), description))
    {
        m_themeFont.DeleteObject();
        if (m_themeFont.Attach(::CreateFontIndirectW(&description)))
        {
            SetFont(&m_themeFont, FALSE);
        }
    }
}

// Painting --------------------------------------------------------------------------------------

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
        if (alive)
        {
            DrawStdArrows();
        }
        return;
    }
    CPaintDC dc(this);
    if (!alive)
    {
        return;
    }
    BackBuffer buffer(dc, CRect(dc.m_ps.rcPaint));
    DrawOB(buffer);
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
    for (int item = 0; item < count && alive; ++item)
    {
        DrawOBItem(dc, item, item == count - 1, client);
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
void CCustomListCtrlHdr::DrawStdArrows()
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
            CClientDC dc(this);
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
