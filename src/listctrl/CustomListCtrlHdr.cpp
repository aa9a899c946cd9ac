// The header: life, layout, its theme's font and its arrows.

#include "CustomListCtrlHdr.h"

#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "listctrl/ListLayout.h"
#include "modes/Meanwhile.h"
#include "modes/PressAndHold.h"
#include "modes/TakenOver.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/GdiGuards.h"

#include <algorithm>

namespace {

constexpr UINT AscendingArrow = 10017; // bitmaps of the application
constexpr UINT DescendingArrow = 10018;

} // namespace

IMPLEMENT_DYNCREATE(CCustomListCtrlHdr, CHeaderCtrl)

BEGIN_MESSAGE_MAP(CCustomListCtrlHdr, CHeaderCtrl)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CCustomListCtrlHdr::OnPrintClient)
    ON_WM_ERASEBKGND()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_NCHITTEST()
    ON_MESSAGE(WM_TABLET_QUERYSYSTEMGESTURESTATUS, &CCustomListCtrlHdr::OnQueryGestures)
    ON_WM_SETCURSOR()
    ON_WM_CAPTURECHANGED()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(access::ActMessage, &CCustomListCtrlHdr::OnAct)
    ON_MESSAGE(HDM_SETHOTDIVIDER, &CCustomListCtrlHdr::OnSetHotDivider)
    ON_MESSAGE(HDM_SETORDERARRAY, &CCustomListCtrlHdr::OnSetOrderArray)
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
    m_moving = false;
    m_oldCursor = nullptr;
    m_pressedItem = -1;
    m_hotDivider = -1;
    m_created = false; // the theme's font is the window's
    m_repositioning = false;
    m_itemLefts.clear();
    m_itemWidths.clear();
    CHeaderCtrl::PreSubclassWindow();
    ShowTakenOver(*this);
}

// The window stays, as part of a list that the object has left.
void CCustomListCtrlHdr::LeaveWindow()
{
    const WindowAlive alive(*this);
    if (alive)
    {
        EndTracking();
    }
    if (alive)
    {
        ReturnThemeFont();
    }
    if (alive)
    {
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

// As far to the right as the shift brings columns into sight: the platform hits nothing beyond the
// window's own edge.
int CCustomListCtrlHdr::StripWidth() const
{
    CRect client(0, 0, 0, 0);
    ::GetClientRect(ListWindow(), &client);
    return int(client.right - std::min<LONG>(0, m_offset.x));
}

// For most that happens to its list the platform makes the header as wide as that alone.
void CCustomListCtrlHdr::OnWindowPosChanging(WINDOWPOS* position)
{
    const WindowAlive alive(*this);
    CHeaderCtrl::OnWindowPosChanging(position);
    if (alive && position != nullptr && m_offset.x < 0 && (position->flags & SWP_NOSIZE) == 0 &&
        ListWindow() != nullptr)
    {
        position->cx = StripWidth();
    }
}

void CCustomListCtrlHdr::RepositionHeaderStrip()
{
    if (GetSafeHwnd() == nullptr || m_repositioning)
    {
        return;
    }
    const WindowAlive alive(*this);
    const Meanwhile repositioning(*this, m_repositioning);
    m_itemLefts.clear();
    m_itemWidths.clear();
    const HWND list = ListWindow();
    const int count = int(Ask(HDM_GETITEMCOUNT));
    int left = int(m_offset.x);
    int last = -1;
    for (int order = 0; order < count && alive; ++order)
    {
        const int item = int(Ask(HDM_ORDERTOINDEX, WPARAM(order)));
        // Where an item is just getting another width, its rectangle has the old one.
        HDITEM data = {};
        data.mask = HDI_WIDTH;
        Ask(HDM_GETITEM, WPARAM(item), reinterpret_cast<LPARAM>(&data));
        last = item;
        if (list != nullptr && order != count - 1 &&
            ::SendMessage(list, LVM_GETCOLUMNWIDTH, WPARAM(item), 0) != data.cxy)
        {
            ::SendMessage(list, LVM_SETCOLUMNWIDTH, WPARAM(item),
                          MAKELPARAM(std::min(data.cxy, listctrl::WidestColumn), 0));
        }
        if (!alive)
        {
            return;
        }
        m_itemLefts.push_back(left);
        m_itemWidths.push_back(data.cxy);
        left += data.cxy;
    }
    if (alive && list != nullptr && count > 0)
    {
        ::SendMessage(list, LVM_SETCOLUMNWIDTH, WPARAM(last),
                      MAKELPARAM(LVSCW_AUTOSIZE_USEHEADER, 0));
    }
    if (alive && list != nullptr && (::GetWindowLongPtr(list, GWL_STYLE) & LVS_NOCOLUMNHEADER) == 0)
    {
        const CRect now = PlaceIn(list, GetSafeHwnd());
        const CRect strip(0, now.top, StripWidth(), now.bottom);
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
}

bool CCustomListCtrlHdr::ItemRect(int item, CRect& rect) const
{
    return item >= 0 && Ask(HDM_GETITEMRECT, WPARAM(item), reinterpret_cast<LPARAM>(&rect)) != 0;
}

// The item under a point of the unshifted header, or -1.
int CCustomListCtrlHdr::ItemAt(CPoint point) const
{
    const int count = int(Ask(HDM_GETITEMCOUNT));
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

// The font ends with the object: the header of a list that goes on without it gets the list's.
void CCustomListCtrlHdr::ReturnThemeFont()
{
    const auto font = LRESULT(m_themeFont.GetSafeHandle());
    const HWND list = ListWindow();
    if (font == 0 || list == nullptr || List() != nullptr || Ask(WM_GETFONT) != font)
    {
        return;
    }
    const WindowAlive alive(*this);
    const LRESULT own = ::SendMessage(list, WM_GETFONT, 0, 0);
    if (alive)
    {
        Ask(WM_SETFONT, WPARAM(own));
    }
}
