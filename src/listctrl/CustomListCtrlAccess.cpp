// The report list: what assistive programs are told of its rows. The platform would tell of the
// unscrolled list, as it stands behind what is drawn on-board.

#include "CustomListCtrl.h"

#include "access/Rows.h"
#include "listctrl/ListLayout.h"
#include "modes/WindowAlive.h"

#include <string>

using access::Give;
using access::GiveNothing;
using access::IsSelf;

namespace {

constexpr UINT CheckedImage = 2; // of a list with check boxes

bool IsShown(HWND header)
{
    return header != nullptr && (::GetWindowLongPtr(header, GWL_STYLE) & WS_VISIBLE) != 0;
}

} // namespace

// Rows ------------------------------------------------------------------------------------------

// Whether a child id is that of a row; gives its index. The list may end in the question, and has
// no rows then.
bool CCustomListCtrl::IsRow(const VARIANT& child, int& row) const
{
    const WindowAlive alive(*this);
    row = access::RowOf(child, GetItemCount());
    return row >= 0 && alive;
}

// Where a row that exists is drawn, in client coordinates. In a report all rows are alike, so that
// one is as soon found as another.
bool CCustomListCtrl::RowPlace(int row, CRect& place) const
{
    if (!IsReport())
    {
        return GetItemRect(row, &place, LVIR_BOUNDS) != FALSE;
    }
    if (!FirstRowRect(place))
    {
        return false;
    }
    place.OffsetRect(m_drawOffset.x, 0);
    const LONGLONG top =
        LONGLONG{place.top} + LONGLONG{row} * place.Height() + LONGLONG{m_drawOffset.y};
    place.MoveToY(scroll::Saturated(std::min<LONGLONG>(top, INT_MAX - place.Height())));
    return true;
}

// The row that is drawn under a point in client coordinates, or -1.
int CCustomListCtrl::RowAt(const CPoint& point) const
{
    CRect first;
    if (!IsReport())
    {
        LVHITTESTINFO hit = {};
        hit.pt = point;
        return int(SendMessage(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    }
    if (!RowPlace(0, first) || first.Height() <= 0 || point.x < first.left ||
        point.x >= first.right)
    {
        return -1;
    }
    const LONGLONG row = (LONGLONG{point.y} - first.top) / first.Height();
    return point.y >= first.top && row < GetItemCount() ? int(row) : -1;
}

// The texts of a row's columns. An owner that is asked for them may end the list.
HRESULT CCustomListCtrl::GiveRowTexts(int row, int from, int to, BSTR* texts)
{
    const WindowAlive alive(*this);
    std::wstring joined;
    WCHAR buffer[LongestText];
    for (int column = from; column < to; ++column)
    {
        const WCHAR* const text = ReadCell(row, column, buffer);
        if (!alive)
        {
            return CO_E_OBJNOTCONNECTED;
        }
        joined += joined.empty() || *text == L'\0' ? L"" : L"; ";
        joined += text;
    }
    *texts = ::SysAllocStringLen(joined.data(), UINT(joined.size()));
    return *texts == nullptr ? E_OUTOFMEMORY : S_OK;
}

// Answers ---------------------------------------------------------------------------------------

HRESULT CCustomListCtrl::get_accChildCount(long* count)
{
    const WindowAlive alive(*this);
    *count = GetItemCount();
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    *count += IsShown(HeaderWindow()) ? 1 : 0;
    return S_OK;
}

HRESULT CCustomListCtrl::get_accChild(VARIANT child, IDispatch** object)
{
    const WindowAlive alive(*this);
    *object = nullptr;
    const int count = GetItemCount();
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    if (access::RowOf(child, count) >= 0)
    {
        return S_FALSE;
    }
    const HWND header = HeaderWindow();
    const bool isHeader =
        IsShown(header) && child.vt == VT_I4 && child.lVal == access::ChildOf(count);
    return isHeader ? ::AccessibleObjectFromWindow(header, DWORD(OBJID_WINDOW), IID_IDispatch,
                                                   reinterpret_cast<void**>(object))
                    : E_INVALIDARG;
}

HRESULT CCustomListCtrl::get_accName(VARIANT child, BSTR* name)
{
    int row = 0;
    *name = nullptr;
    if (IsSelf(child))
    {
        return access::GiveLabelsName<CListCtrl>(*this, child, name);
    }
    return IsRow(child, row) ? GiveRowTexts(row, 0, 1, name) : E_INVALIDARG;
}

HRESULT CCustomListCtrl::get_accDescription(VARIANT child, BSTR* description)
{
    int row = 0;
    if (IsSelf(child))
    {
        return CListCtrl::get_accDescription(child, description);
    }
    *description = nullptr;
    return IsRow(child, row) ? GiveRowTexts(row, 1, ColumnCount(), description) : E_INVALIDARG;
}

HRESULT CCustomListCtrl::get_accRole(VARIANT child, VARIANT* role)
{
    int row = 0;
    if (IsSelf(child))
    {
        return Give(*role, ROLE_SYSTEM_LIST);
    }
    return IsRow(child, row) ? Give(*role, ROLE_SYSTEM_LISTITEM) : E_INVALIDARG;
}

HRESULT CCustomListCtrl::get_accState(VARIANT child, VARIANT* state)
{
    int row = 0;
    if (IsSelf(child))
    {
        return access::GiveWindowState<CListCtrl>(*this, child, state);
    }
    if (!IsRow(child, row))
    {
        return E_INVALIDARG;
    }
    const WindowAlive alive(*this);
    const UINT item = GetItemState(row, LVIS_SELECTED | LVIS_FOCUSED | LVIS_STATEIMAGEMASK);
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    CRect place;
    CRect client;
    GetClientRect(&client);
    client.top = HeaderBottom();
    const bool inSight = RowPlace(row, place) && CRect().IntersectRect(place, client);
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    const bool checked = (GetExtendedStyle() & LVS_EX_CHECKBOXES) != 0 &&
                         (item & LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(CheckedImage);
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    long more = STATE_SYSTEM_SELECTABLE | (checked ? STATE_SYSTEM_CHECKED : 0);
    if ((GetStyle() & LVS_SINGLESEL) == 0)
    {
        more |= STATE_SYSTEM_MULTISELECTABLE | STATE_SYSTEM_EXTSELECTABLE;
    }
    return access::GiveState(*state, *this,
                             {.selected = (item & LVIS_SELECTED) != 0,
                              .caret = (item & LVIS_FOCUSED) != 0,
                              .inSight = inSight,
                              .more = more});
}

HRESULT CCustomListCtrl::get_accFocus(VARIANT* child)
{
    if (::GetFocus() != GetSafeHwnd())
    {
        return CListCtrl::get_accFocus(child); // a label that is edited may have it
    }
    const int row = GetNextItem(-1, LVNI_FOCUSED);
    return Give(*child, row >= 0 ? access::ChildOf(row) : CHILDID_SELF);
}

HRESULT CCustomListCtrl::get_accSelection(VARIANT* children)
{
    std::set<int> rows;
    GetSelectedRows(rows);
    return access::GiveRows(*children, rows);
}

HRESULT CCustomListCtrl::accLocation(long* left, long* top, long* width, long* height,
                                     VARIANT child)
{
    int row = 0;
    if (IsSelf(child))
    {
        return CListCtrl::accLocation(left, top, width, height, child);
    }
    const WindowAlive alive(*this);
    CRect place;
    return IsRow(child, row) && RowPlace(row, place) && alive
               ? access::GivePlace(*this, place, left, top, width, height)
               : E_INVALIDARG;
}

HRESULT CCustomListCtrl::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    return access::LeavesList(direction, start)
               ? CListCtrl::accNavigate(direction, start, end)
               : access::Navigate(direction, start, GetItemCount(), *end);
}

HRESULT CCustomListCtrl::accHitTest(long left, long top, VARIANT* child)
{
    CPoint point(left, top);
    if (!access::IsInClient(*this, point))
    {
        return GiveNothing(*child);
    }
    if (point.y < HeaderBottom())
    {
        return CListCtrl::accHitTest(left, top, child);
    }
    const int row = RowAt(point);
    return Give(*child, row < 0 ? CHILDID_SELF : access::ChildOf(row));
}

// Working rows ----------------------------------------------------------------------------------

HRESULT CCustomListCtrl::accSelect(long flags, VARIANT child)
{
    int row = 0;
    if (IsSelf(child))
    {
        return CListCtrl::accSelect(flags, child);
    }
    if (!IsRow(child, row))
    {
        return E_INVALIDARG;
    }
    const bool many = (GetStyle() & LVS_SINGLESEL) == 0;
    if (const HRESULT kept = access::KeptFromSelecting(*this, flags, many); FAILED(kept))
    {
        return kept;
    }
    const WindowAlive alive(*this);
    const bool takesFocus = (flags & SELFLAG_TAKEFOCUS) != 0;
    if (takesFocus)
    {
        SetFocus();
    }
    if (alive && (flags & SELFLAG_TAKESELECTION) != 0)
    {
        ClearSelection();
    }
    if (alive && (flags & ~long(SELFLAG_TAKEFOCUS)) != 0)
    {
        const bool removes = (flags & SELFLAG_REMOVESELECTION) != 0;
        SetItemState(row, removes ? 0U : UINT(LVIS_SELECTED), LVIS_SELECTED);
    }
    if (alive && takesFocus)
    {
        SetItemState(row, LVIS_FOCUSED, LVIS_FOCUSED);
    }
    if (alive && takesFocus)
    {
        SetSelectionMark(row);
    }
    if (alive && takesFocus)
    {
        EnsureVisible(row, FALSE);
    }
    return alive ? S_OK : CO_E_OBJNOTCONNECTED;
}

HRESULT CCustomListCtrl::get_accDefaultAction(VARIANT child, BSTR* action)
{
    int row = 0;
    if (IsSelf(child))
    {
        return CListCtrl::get_accDefaultAction(child, action);
    }
    *action = nullptr;
    return IsRow(child, row) ? Give(*action, "Open") : E_INVALIDARG;
}

HRESULT CCustomListCtrl::accDoDefaultAction(VARIANT child)
{
    int row = 0;
    if (IsSelf(child))
    {
        return CListCtrl::accDoDefaultAction(child);
    }
    if (!IsRow(child, row))
    {
        return E_INVALIDARG;
    }
    const WindowAlive alive(*this);
    const HRESULT selected = accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, child);
    return alive && SUCCEEDED(selected) ? access::PostAct(*this) : selected;
}

// Activates the row with the focus.
LRESULT CCustomListCtrl::OnAct(WPARAM, LPARAM)
{
    return access::DoAct(*this, [this] { SendMessage(WM_KEYDOWN, VK_RETURN); });
}
