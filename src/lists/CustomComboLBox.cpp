// The list of a drop-list combo: its popup, its size, the row under the pointer.

#include "CustomComboLBox.h"

#include "CustomDropListCombo.h"
#include "OnBoardUIGeneral.h"
#include "access/Rows.h"
#include "lists/ComboPopup.h"
#include "modes/PressAndHold.h"
#include "modes/WindowAlive.h"
#include "paint/Metrics.h"

#include <algorithm>

namespace {

constexpr UINT ListId = 1;
constexpr DWORD ListStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_BORDER | LBS_NOINTEGRALHEIGHT |
                            LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;

CPoint PointerNow()
{
    CPoint point;
    ::GetCursorPos(&point);
    return point;
}

} // namespace

IMPLEMENT_DYNAMIC(CCustomComboLBox, CCustomListBox)

BEGIN_MESSAGE_MAP(CCustomComboLBox, CCustomListBox)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEACTIVATE()
    ON_MESSAGE(WM_TABLET_QUERYSYSTEMGESTURESTATUS, &CCustomComboLBox::OnQueryGestures)
    ON_MESSAGE(access::ActMessage, &CCustomComboLBox::OnAct)
END_MESSAGE_MAP()

CCustomComboLBox::CCustomComboLBox() = default;

CCustomComboLBox::~CCustomComboLBox()
{
    if (m_combo != nullptr)
    {
        m_combo->DetachCustomComboLBox();
    }
    DestroyPopup();
}

// The popup -------------------------------------------------------------------------------------

BOOL CCustomComboLBox::CreatePopup()
{
    if (GetSafeHwnd() != nullptr)
    {
        return FALSE;
    }
    if (m_popup == nullptr)
    {
        m_popup = std::make_unique<lists::ComboPopup>();
    }
    if (m_popup->GetSafeHwnd() == nullptr && !m_popup->Create())
    {
        return FALSE;
    }
    CRect inside;
    m_popup->GetClientRect(&inside);
    return Create(ListStyle, inside, m_popup.get(), ListId);
}

void CCustomComboLBox::DestroyPopup()
{
    // The list goes with its popup.
    m_hotRow = -1;
    m_popup.reset();
}

void CCustomComboLBox::PlacePopup(const CRect& place)
{
    if (GetSafeHwnd() == nullptr || m_popup == nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    CRect before;
    m_popup->GetWindowRect(&before);
    if (before != place)
    {
        m_popup->SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                              SWP_NOACTIVATE | SWP_NOZORDER);
    }
    if (!alive)
    {
        return;
    }
    GetWindowRect(&before);
    if (before != place)
    {
        SetWindowPos(nullptr, 0, 0, place.Width(), place.Height(), SWP_NOACTIVATE | SWP_NOZORDER);
    }
}

void CCustomComboLBox::ShowPopup(bool show)
{
    if (GetSafeHwnd() == nullptr || m_popup == nullptr || show == IsPopupVisible())
    {
        return;
    }
    const WindowAlive alive(*this);
    SetHotRow(-1);
    const HWND popup = m_popup->GetSafeHwnd();
    if (!show)
    {
        ::ShowWindow(popup, SW_HIDE);
        return;
    }
    // A pointer that rests where the list opens means nothing yet.
    m_seenPoint = PointerNow();
    KeepSelectionInSight();
    if (alive)
    {
        // The list covers its popup, which has nothing to paint.
        ::SetWindowPos(popup, HWND_TOPMOST, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOREDRAW | SWP_SHOWWINDOW);
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ERASE);
    }
}

bool CCustomComboLBox::IsPopupVisible() const
{
    return m_popup != nullptr && m_popup->GetSafeHwnd() != nullptr && m_popup->IsWindowVisible();
}

// What the platform answers ----------------------------------------------------------------------

int CCustomComboLBox::Answer(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return GetSafeHwnd() == nullptr
               ? LB_ERR
               : const_cast<CCustomComboLBox*>(this)->Ask(message, wParam, lParam);
}

int CCustomComboLBox::GetCount() const
{
    return std::max(0, Answer(LB_GETCOUNT));
}

int CCustomComboLBox::GetCurSel() const
{
    return Answer(LB_GETCURSEL);
}

int CCustomComboLBox::GetTopIndex() const
{
    return std::max(0, Answer(LB_GETTOPINDEX));
}

// Size ------------------------------------------------------------------------------------------

int CCustomComboLBox::GetItemHeight() const
{
    return std::max(1, Answer(LB_GETITEMHEIGHT));
}

int CCustomComboLBox::GetEntryHeight(const char* text)
{
    const int height = CCustomListBox::GetEntryHeight(text);
    return COnBoardUIGeneral::InOnBoardMode() ? std::max(height, metrics::FingerRow) : height;
}

int CCustomComboLBox::GetFrameHeight() const
{
    if (GetSafeHwnd() == nullptr)
    {
        return 0;
    }
    CRect window;
    CRect client;
    GetWindowRect(&window);
    GetClientRect(&client);
    return window.Height() - client.Height();
}

int CCustomComboLBox::GetDropRows() const
{
    return std::clamp(GetCount(), 1, m_maxRows);
}

int CCustomComboLBox::GetActualListHeight() const
{
    if (IsPopupVisible())
    {
        CRect window;
        m_popup->GetWindowRect(&window);
        return window.Height();
    }
    return GetDropRows() * GetItemHeight() + GetFrameHeight();
}

void CCustomComboLBox::KeepSelectionInSight()
{
    const int selected = GetCurSel();
    if (selected < 0)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    const int rows = std::max(1, int(client.Height()) / GetItemHeight());
    const int top = GetTopIndex();
    const int wanted = std::clamp(top, std::max(0, selected - rows + 1), selected);
    if (wanted != top)
    {
        SetTopIndex(wanted);
    }
}

// Following the mode ----------------------------------------------------------------------------

void CCustomComboLBox::MeasureStandardRow()
{
    // The platform measures an owner-drawn row only once; on-board the list box sees to it itself.
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        MEASUREITEMSTRUCT measure = {};
        measure.CtlType = ODT_LISTBOX;
        MeasureItem(&measure);
        SetItemHeight(0, measure.itemHeight);
    }
}

void CCustomComboLBox::SetListFont(CFont& font)
{
    if (GetSafeHwnd() != nullptr)
    {
        const WindowAlive alive(*this);
        SetFont(&font, FALSE);
        if (alive)
        {
            MeasureStandardRow();
        }
    }
}

void CCustomComboLBox::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    if (newMode == oldMode || GetSafeHwnd() == nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    const bool held = m_tracking;
    ReCheckScrollBars();
    if (alive)
    {
        MeasureStandardRow();
    }
    if (alive)
    {
        Invalidate(FALSE);
        TellBarReleased(held);
    }
}

// The pointer -----------------------------------------------------------------------------------

bool CCustomComboLBox::HoldsPoint(const CPoint& screen) const
{
    CRect window;
    if (!IsPopupVisible())
    {
        return false;
    }
    m_popup->GetWindowRect(&window);
    return window.PtInRect(screen) != FALSE;
}

UINT CCustomComboLBox::BarAt(const CPoint& screen) const
{
    if (GetSafeHwnd() == nullptr || !HoldsPoint(screen))
    {
        return 0;
    }
    const auto hit = UINT(SendMessage(WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y)));
    return hit == HTVSCROLL || hit == HTHSCROLL ? hit : 0;
}

int CCustomComboLBox::RowAt(const CPoint& screen) const
{
    if (GetSafeHwnd() == nullptr || !HoldsPoint(screen))
    {
        return -1;
    }
    CPoint point = screen;
    ScreenToClient(&point);
    CRect client;
    GetClientRect(&client);
    if (!client.PtInRect(point))
    {
        return -1;
    }
    // Not by LB_ITEMFROMPOINT, whose answer has 16 bits only.
    const int row = GetTopIndex() + int(point.y) / GetItemHeight();
    return row < GetCount() ? row : -1;
}

void CCustomComboLBox::Track(const CPoint& screen)
{
    if (screen == m_seenPoint)
    {
        return; // the system repeats a move when windows change under the pointer
    }
    m_seenPoint = screen;
    if (const int row = RowAt(screen); row >= 0)
    {
        SetHotRow(row);
    }
}

int CCustomComboLBox::GetHighlightedRow() const
{
    return m_hotRow >= 0 && m_hotRow < GetCount() ? m_hotRow : GetCurSel();
}

void CCustomComboLBox::InvalidateRow(int row)
{
    CRect rect;
    if (row >= 0 && Answer(LB_GETITEMRECT, WPARAM(row), reinterpret_cast<LPARAM>(&rect)) != LB_ERR)
    {
        InvalidateRect(&rect, FALSE);
    }
}

void CCustomComboLBox::SetHotRow(int row)
{
    if (row == m_hotRow || GetSafeHwnd() == nullptr)
    {
        return;
    }
    InvalidateRow(GetHighlightedRow());
    m_hotRow = row;
    InvalidateRow(GetHighlightedRow());
    if (row >= 0)
    {
        // The platform's list box knows nothing of it. A listener in this process may end the list.
        access::TellChild(GetSafeHwnd(), EVENT_OBJECT_SELECTION, access::ChildOf(row));
    }
}

void CCustomComboLBox::Pick(int row)
{
    const WindowAlive alive(*this);
    if (m_combo != nullptr)
    {
        m_combo->m_listClosing = true;
    }
    if (row >= 0 && GetSafeHwnd() != nullptr)
    {
        SetCurSel(row);
    }
    if (alive && m_combo != nullptr)
    {
        m_combo->ListClosed(GetCurSel());
    }
}

void CCustomComboLBox::DrawItem(LPDRAWITEMSTRUCT draw)
{
    if (draw == nullptr)
    {
        return;
    }
    DRAWITEMSTRUCT shown = *draw;
    shown.itemState &= ~UINT(ODS_FOCUS);
    // Without a row under the pointer the selected one is marked already.
    if (m_hotRow >= 0 && m_hotRow < GetCount())
    {
        const bool hot = int(draw->itemID) == m_hotRow;
        shown.itemState =
            hot ? shown.itemState | ODS_SELECTED : shown.itemState & ~UINT(ODS_SELECTED);
    }
    CCustomListBox::DrawItem(&shown);
}

// Handlers --------------------------------------------------------------------------------------

LRESULT CCustomComboLBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowAlive alive(*this);
    const bool held = m_tracking;
    const LRESULT result = CCustomListBox::WindowProc(message, wParam, lParam);
    if (message == WM_MOUSEWHEEL && alive)
    {
        // Another row is under the pointer now, which has not moved.
        SetHotRow(RowAt(CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam))));
    }
    if (alive)
    {
        TellBarReleased(held);
    }
    return result;
}

// The combo takes its capture back when a press on a bar has ended, however it did.
void CCustomComboLBox::TellBarReleased(bool wasHeld)
{
    if (wasHeld && !m_tracking && m_combo != nullptr)
    {
        m_combo->BarReleased();
    }
}

int CCustomComboLBox::OnMouseActivate(CWnd*, UINT, UINT)
{
    return MA_NOACTIVATE;
}

LRESULT CCustomComboLBox::OnQueryGestures(WPARAM, LPARAM screen)
{
    return AnswerGestures(*this, Refused::Everywhere, screen, [this] { return Default(); });
}

// The combo works the list, whether or not it has the capture. The platform's list box would take
// the focus.

void CCustomComboLBox::OnLButtonDown(UINT, CPoint point)
{
    if (m_combo != nullptr && m_combo->IsExpanded())
    {
        ClientToScreen(&point);
        m_combo->PressAt(point);
    }
}

void CCustomComboLBox::OnLButtonDblClk(UINT flags, CPoint point)
{
    OnLButtonDown(flags, point);
}

void CCustomComboLBox::OnLButtonUp(UINT, CPoint point)
{
    if (IsBarHeld())
    {
        EndPress(); // of a bar, dragged into the rows
    }
    else if (m_combo != nullptr)
    {
        ClientToScreen(&point);
        m_combo->ReleaseAt(point);
    }
}

void CCustomComboLBox::OnMouseMove(UINT, CPoint point)
{
    if (IsBarHeld())
    {
        HandleMouseMoveScroll(point);
        return;
    }
    ClientToScreen(&point);
    Track(point);
}
