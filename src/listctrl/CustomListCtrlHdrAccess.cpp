// The header: what assistive programs are told of it. The platform would tell of the unscrolled
// header, as it stands behind what is drawn on-board.

#include "CustomListCtrlHdr.h"

#include "access/Strip.h"
#include "modes/WindowAlive.h"

#include <algorithm>

int CCustomListCtrlHdr::Count() const
{
    return std::max(0, int(Ask(HDM_GETITEMCOUNT)));
}

// Where a heading is drawn, in client coordinates.
bool CCustomListCtrlHdr::HeadingPlace(const VARIANT& child, CRect& place) const
{
    const bool is = ItemRect(access::RowOf(child, Count()), place);
    place.OffsetRect(m_offset);
    return is;
}

// Whether a click in the middle of a heading is one on it.
bool CCustomListCtrlHdr::Clicks(const CRect& heading) const
{
    return (GetStyle() & HDS_BUTTONS) != 0 && DividerAt(heading.CenterPoint().x) == -1;
}

HRESULT CCustomListCtrlHdr::get_accChildCount(long* count)
{
    *count = Count();
    return S_OK;
}

HRESULT CCustomListCtrlHdr::get_accChild(VARIANT child, IDispatch** object)
{
    return access::GivePart(object, child, Count());
}

HRESULT CCustomListCtrlHdr::get_accName(VARIANT child, BSTR* name)
{
    const WindowAlive alive(*this); // the label and the owner of a text may end it
    const int item = access::RowOf(child, Count());
    const HWND list = ListWindow();
    if (item < 0)
    {
        const auto named =
            access::NameFromLabel(list == nullptr ? GetSafeHwnd() : list, child, name);
        return named   ? *named
               : alive ? CHeaderCtrl::get_accName(child, name)
                       : CO_E_OBJNOTCONNECTED;
    }
    char text[LongestText] = "";
    HDITEM data = {};
    data.mask = HDI_TEXT;
    data.pszText = text;
    data.cchTextMax = LongestText;
    const bool has = GetItem(item, &data) && data.pszText != nullptr;
    return alive ? access::Give(*name, has ? data.pszText : "") : CO_E_OBJNOTCONNECTED;
}

HRESULT CCustomListCtrlHdr::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GivePartRole(*role, child, Count(), ROLE_SYSTEM_LIST, ROLE_SYSTEM_COLUMNHEADER);
}

HRESULT CCustomListCtrlHdr::get_accState(VARIANT child, VARIANT* state)
{
    CRect place(0, 0, 0, 0);
    return HeadingPlace(child, place) ? access::GivePartState(*state, *this, place, 0)
                                      : access::GiveWindowState<CHeaderCtrl>(*this, child, state);
}

HRESULT CCustomListCtrlHdr::get_accDefaultAction(VARIANT child, BSTR* action)
{
    const bool clicks = access::RowOf(child, Count()) >= 0 && (GetStyle() & HDS_BUTTONS) != 0;
    return clicks ? access::Give(*action, "Click")
                  : CHeaderCtrl::get_accDefaultAction(child, action);
}

HRESULT CCustomListCtrlHdr::accDoDefaultAction(VARIANT child)
{
    CRect place(0, 0, 0, 0);
    return !HeadingPlace(child, place) ? CHeaderCtrl::accDoDefaultAction(child)
           : Clicks(place)             ? access::PostAct(*this, int(child.lVal))
                                       : DISP_E_MEMBERNOTFOUND;
}

// The heading may have gone or got another place meanwhile.
LRESULT CCustomListCtrlHdr::OnAct(WPARAM heading, LPARAM)
{
    VARIANT child = {};
    access::Give(child, long(heading));
    return access::DoAct(*this, [&] {
        CRect place(0, 0, 0, 0);
        if (HeadingPlace(child, place) && Clicks(place))
        {
            access::Click(*this, place);
        }
    });
}

HRESULT CCustomListCtrlHdr::accLocation(long* left, long* top, long* width, long* height,
                                        VARIANT child)
{
    CRect place(0, 0, 0, 0);
    return HeadingPlace(child, place) ? access::GivePlace(*this, place, left, top, width, height)
                                      : CHeaderCtrl::accLocation(left, top, width, height, child);
}

// In the order of display.
HRESULT CCustomListCtrlHdr::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    if (access::LeavesList(direction, start))
    {
        return CHeaderCtrl::accNavigate(direction, start, end);
    }
    const int count = Count();
    if (const int item = access::RowOf(start, count); item >= 0)
    {
        HDITEM data = {};
        data.mask = HDI_ORDER;
        Ask(HDM_GETITEM, WPARAM(item), reinterpret_cast<LPARAM>(&data));
        start.lVal = access::ChildOf(data.iOrder);
    }
    const HRESULT result = access::NavigateStrip(direction, start, count, *end);
    if (result == S_OK)
    {
        end->lVal = access::ChildOf(int(Ask(HDM_ORDERTOINDEX, WPARAM(end->lVal - 1))));
    }
    return result;
}

HRESULT CCustomListCtrlHdr::accHitTest(long left, long top, VARIANT* child)
{
    CPoint point(left, top);
    return access::IsInClient(*this, point)
               ? access::Give(*child, access::ChildOf(ItemAt(point - m_offset)))
               : access::GiveNothing(*child);
}
