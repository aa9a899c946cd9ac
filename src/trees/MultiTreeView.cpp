// The tree view: its life, and dragging between windows.

#include "MultiTreeView.h"

#include "modes/KeyState.h"
#include "modes/WindowAlive.h"
#include "trees/DragImage.h"
#include "trees/TreeSelection.h"

using trees::TreeSelection;
using trees::WatchedItem;
using trees::WatchedItems;

namespace {

constexpr UINT_PTR DragCheckTimer = 2566;
constexpr UINT_PTR TrackScrollTimer = 1278;
constexpr UINT TimerPeriod = 250;     // milliseconds, of both
constexpr UINT ForeignTimeout = 1000; // milliseconds that another process may take to answer

void Register(UINT& message, const char* name)
{
    if (message == 0)
    {
        message = ::RegisterWindowMessage(name);
    }
}

// Sends a message of the drag protocol. What another process does with it is its own affair: it
// could do nothing with our pointers.
bool SendDragMessage(HWND to, UINT message, POINT* point, KArray* payload)
{
    DWORD process = 0;
    ::GetWindowThreadProcessId(to, &process);
    if (process == ::GetCurrentProcessId())
    {
        return ::SendMessage(to, message, reinterpret_cast<WPARAM>(point),
                             reinterpret_cast<LPARAM>(payload)) != 0;
    }
    DWORD_PTR ignored = 0;
    ::SendMessageTimeout(to, message, 0, 0, SMTO_ABORTIFHUNG, ForeignTimeout, &ignored);
    return false;
}

// Whether the message in progress comes from here, so that its pointers may be followed. One that
// was posted looks the same, whoever it is from.
bool FromThisThread()
{
    return !::InSendMessage();
}

// Whether a point lies at an address that came with a message.
bool CanBeRead(WPARAM address)
{
    constexpr DWORD Readable = PAGE_READONLY | PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READ |
                               PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    MEMORY_BASIC_INFORMATION memory = {};
    if (::VirtualQuery(reinterpret_cast<const void*>(address), &memory, sizeof(memory)) == 0)
    {
        return false;
    }
    const auto end = reinterpret_cast<WPARAM>(memory.BaseAddress) + memory.RegionSize;
    return memory.State == MEM_COMMIT && (memory.Protect & Readable) != 0 &&
           (memory.Protect & PAGE_GUARD) == 0 && end - address >= sizeof(POINT);
}

} // namespace

struct MultiTreeView::DragItem : WatchedItem
{
    using WatchedItem::WatchedItem;
};

UINT MultiTreeView::mnDragTrackMsg = 0;
UINT MultiTreeView::mnDragLeaveMsg = 0;
UINT MultiTreeView::mnDragDropMsg = 0;
UINT MultiTreeView::mnDragCopyMsg = 0;

IMPLEMENT_DYNCREATE(MultiTreeView, CTreeView)

BEGIN_MESSAGE_MAP(MultiTreeView, CTreeView)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &MultiTreeView::OnPrintClient)
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_NOTIFY_REFLECT(TVN_ITEMEXPANDING, &MultiTreeView::OnItemExpanding)
    ON_NOTIFY_REFLECT(TVN_BEGINDRAG, &MultiTreeView::OnBeginDrag)
    ON_WM_KEYDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_TIMER()
    ON_WM_MOUSEACTIVATE()
    ON_REGISTERED_MESSAGE(MultiTreeView::mnDragTrackMsg, &MultiTreeView::OnDragTrack)
    ON_REGISTERED_MESSAGE(MultiTreeView::mnDragLeaveMsg, &MultiTreeView::OnDragLeave)
    ON_REGISTERED_MESSAGE(MultiTreeView::mnDragDropMsg, &MultiTreeView::OnDragDrop)
    ON_REGISTERED_MESSAGE(MultiTreeView::mnDragCopyMsg, &MultiTreeView::OnDragCopy)
    ON_MESSAGE(TogglePeeledMessage, &MultiTreeView::OnTogglePeeled)
    ON_MESSAGE(GetCaptionTextMessage, &MultiTreeView::OnGetCaptionText)
END_MESSAGE_MAP()

// Lifetime --------------------------------------------------------------------------------------

MultiTreeView::MultiTreeView()
    : m_owner(std::make_unique<Owner>(*this))
    , m_selection(std::make_unique<TreeSelection>(*m_owner))
    , m_dragItem(std::make_unique<DragItem>(m_selection->Items()))
{
    EnableActiveAccessibility();
    Register(mnDragTrackMsg, "Kest Drag Track");
    Register(mnDragLeaveMsg, "Kest Drag Leave");
    Register(mnDragDropMsg, "Kest Drag Drop");
    Register(mnDragCopyMsg, "Kest Drag Copy");
}

MultiTreeView::~MultiTreeView()
{
    if (m_dragImage != nullptr)
    {
        trees::EndDragImage(*m_dragImage);
    }
}

BOOL MultiTreeView::PreCreateWindow(CREATESTRUCT& cs)
{
    m_creating = true;
    // First, since it puts the view's own style in the place of the usual one.
    const BOOL proceed = CTreeView::PreCreateWindow(cs);
    cs.style |= TVS_SHOWSELALWAYS;
    return proceed;
}

void MultiTreeView::PreSubclassWindow()
{
    CTreeView::PreSubclassWindow();
    m_selection->BeginWindow();
    if (!m_creating)
    {
        ModifyStyle(0, TVS_SHOWSELALWAYS); // a tree that exists already
    }
    m_creating = false;
}

LRESULT MultiTreeView::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return m_selection->Native(message, wParam, lParam);
}

void MultiTreeView::OnDestroy()
{
    const WindowAlive alive(*this);
    CancelDrag();
    if (alive)
    {
        StopAutoScroll();
        CTreeView::OnDestroy();
    }
}

int MultiTreeView::OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message)
{
    // Torn off, it is no part of a frame whose active view it could become.
    return m_peeled ? CWnd::OnMouseActivate(desktop, hitTest, message)
                    : CTreeView::OnMouseActivate(desktop, hitTest, message);
}

LRESULT MultiTreeView::OnTogglePeeled(WPARAM, LPARAM lParam)
{
    m_peeled = lParam != 0;
    return 0;
}

LRESULT MultiTreeView::OnGetCaptionText(WPARAM wParam, LPARAM lParam)
{
    const int length = GetWindowTextLength();
    if (lParam == 0 || WPARAM(length) >= wParam || !FromThisThread())
    {
        return FALSE;
    }
    GetWindowText(reinterpret_cast<LPSTR>(lParam), length + 1);
    return TRUE;
}

// The source of a drag --------------------------------------------------------------------------

bool MultiTreeView::IsDragShown() const
{
    return m_dragging && m_dragImage != nullptr && m_dragItem->Get() != nullptr;
}

void MultiTreeView::ForgetDrag()
{
    m_dragging = false;
    m_dragTarget = nullptr;
    m_dragItem->Set(nullptr);
    m_payload.RemoveAll();
    if (m_dragImage != nullptr)
    {
        trees::EndDragImage(*m_dragImage);
        m_dragImage.reset();
    }
}

void MultiTreeView::OnBeginDrag(NMHDR* header, LRESULT* result)
{
    *result = 0;
    if (m_dragging || m_dragImage != nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    m_payload.RemoveAll();
    const WatchedItem item(m_selection->Items(),
                           reinterpret_cast<const NMTREEVIEW*>(header)->itemNew.hItem);
    const WatchedItems selected(m_selection->Items(), m_selection->Items().Selected());
    for (size_t index = 0; index < selected.Size() && alive && !m_dragging; ++index)
    {
        if (selected[index] != nullptr)
        {
            GetSelectedItems(selected[index], m_payload);
        }
    }
    if (alive && GetFocus() != this)
    {
        SetFocus(); // Escape has to come here
    }
    if (!alive || m_dragging || m_dragImage != nullptr)
    {
        return;
    }
    if (item.Get() == nullptr)
    {
        m_payload.RemoveAll();
        return;
    }
    m_dragging = true;
    m_dragItem->Set(item.Get());
    m_dragTarget = nullptr;
    std::unique_ptr<CImageList> image(CreateDragImage());
    // The drag may be over by now, or another one have begun after it.
    if (!alive || !m_dragging || m_dragImage != nullptr)
    {
        return;
    }
    m_dragImage = std::move(image);
    if (m_dragImage != nullptr)
    {
        SetCapture(); // tells the window that had it
        if (!alive || !m_dragging || m_dragImage == nullptr)
        {
            return;
        }
        CPoint pointer;
        ::GetCursorPos(&pointer);
        trees::ShowDragImage(*m_dragImage, CPoint(-GetCursorSize().cx, 0), pointer);
    }
    m_dragCheckTimer = SetTimer(DragCheckTimer, TimerPeriod, nullptr);
}

CSize MultiTreeView::GetCursorSize() const
{
    return trees::CursorSize();
}

void MultiTreeView::OnMouseMove(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    CTreeView::OnMouseMove(flags, point);
    if (!alive || !IsDragShown())
    {
        return;
    }
    CheckDragState();
    if (!alive || !IsDragShown())
    {
        return;
    }
    ClientToScreen(&point);
    const HWND under = ::WindowFromPoint(point);
    if (m_dragTarget != nullptr && m_dragTarget != under && ::IsWindow(m_dragTarget))
    {
        const trees::DragImageHidden hidden; // the target may paint what it had marked
        const HWND left = m_dragTarget;
        m_dragTarget = under;
        SendDragMessage(left, mnDragLeaveMsg, nullptr, nullptr);
        if (!alive || !IsDragShown())
        {
            return;
        }
    }
    m_dragTarget = under;
    trees::MoveDragImage(point);
}

void MultiTreeView::OnLButtonUp(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    CTreeView::OnLButtonUp(flags, point);
    if (!alive || !m_dragging)
    {
        return;
    }
    if (!IsDragShown())
    {
        CancelDrag(); // without a picture there is no target, and without its item nothing to drop
        return;
    }
    // The target may do anything, and take its time: nothing of the drag goes on meanwhile. It gets
    // a payload that lives until it answers, whatever becomes of the view.
    m_dragging = false;
    trees::EndDragImage(*m_dragImage);
    KArray payload = m_payload;
    ::ClientToScreen(m_hWnd, &point);
    if (::GetCapture() == m_hWnd)
    {
        ::ReleaseCapture();
        if (!alive)
        {
            return;
        }
    }
    m_dragImage.reset();
    const HWND under = ::WindowFromPoint(point);
    const bool accepted =
        under != nullptr &&
        SendDragMessage(under, (flags & MK_CONTROL) != 0 ? mnDragCopyMsg : mnDragDropMsg, &point,
                        &payload);
    if (alive && !m_dragging)
    {
        m_payload = payload; // with what the target has taken out or put in
    }
    if (alive)
    {
        DragEnded(accepted ? under : nullptr);
    }
    if (alive && !m_dragging) // a new one may have begun where target or view waited
    {
        ForgetDrag();
    }
}

void MultiTreeView::CheckDragState()
{
    if (m_dragging && !IsKeyDown(VK_LBUTTON))
    {
        CancelDrag();
    }
}

void MultiTreeView::CancelDrag()
{
    if (!m_dragging)
    {
        return;
    }
    const WindowAlive alive(*this);
    m_dragging = false;
    const trees::DragImageHidden hidden; // whatever the view does when it hears of the end
    if (::GetCapture() == m_hWnd)
    {
        ::ReleaseCapture();
    }
    if (alive)
    {
        DragEnded(nullptr);
    }
    if (alive && !m_dragging)
    {
        ForgetDrag();
    }
}

void MultiTreeView::OnCaptureChanged(CWnd* taker)
{
    const WindowAlive alive(*this);
    CTreeView::OnCaptureChanged(taker);
    if (alive && IsDragShown() && taker != this)
    {
        CancelDrag();
    }
}

void MultiTreeView::OnTimer(UINT_PTR id)
{
    if (id != 0 && id == m_dragCheckTimer)
    {
        if (m_dragging)
        {
            CheckDragState();
        }
        else
        {
            KillTimer(m_dragCheckTimer);
            m_dragCheckTimer = 0;
        }
    }
    else if (m_selection->IsAutoScroll(id))
    {
        DoAutoScroll();
    }
    else
    {
        CTreeView::OnTimer(id);
    }
}

// The target of a drag --------------------------------------------------------------------------

LRESULT MultiTreeView::OnDragTrack(WPARAM wParam, LPARAM)
{
    if (wParam == 0 || !FromThisThread() || !CanBeRead(wParam))
    {
        return 0;
    }
    CPoint point(*reinterpret_cast<const POINT*>(wParam));
    ScreenToClient(&point);
    const int direction = GetAutoScrollDirection(point);
    if (direction == 0)
    {
        StopAutoScroll();
    }
    else
    {
        m_selection->StartAutoScroll(TrackScrollTimer, TimerPeriod, direction);
    }
    return 0;
}

LRESULT MultiTreeView::OnDragLeave(WPARAM, LPARAM)
{
    StopAutoScroll();
    return 0;
}

LRESULT MultiTreeView::OnDragDrop(WPARAM, LPARAM)
{
    StopAutoScroll();
    return 0;
}

LRESULT MultiTreeView::OnDragCopy(WPARAM, LPARAM)
{
    StopAutoScroll();
    return 0;
}
