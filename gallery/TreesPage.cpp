#include "TreesPage.h"

#include "Look.h"
#include "SmallWorld.h"
#include "resource.h"

namespace {

// In the order of the page.
constexpr UINT TreeId = IDC_PAGE_FIRST;
constexpr UINT ViewId = TreeId + 1;
constexpr UINT AreaId = TreeId + 2;
constexpr UINT SeveralId = TreeId + 3;
constexpr UINT ToldId = TreeId + 4;

// Of the page to itself: write down what was told; the pose for a picture is there.
constexpr UINT WriteToldMessage = WM_APP + 1;
constexpr UINT PoseMessage = WM_APP + 2;

constexpr int Columns = 2;
constexpr int TreesHeight = 219;
constexpr int SwitchTop = 246;
constexpr int AreaTop = 270;
constexpr int ToldTop = 244;

constexpr int ToldRows = 200; // older ones go
constexpr DWORD TreeStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | TVS_HASBUTTONS |
                            TVS_HASLINES | TVS_LINESATROOT;

// What a drop or copy message brings; null for nothing. From another thread or process the pointer
// means nothing.
const KArray* PayloadIn(LPARAM lParam)
{
    const auto* const payload = reinterpret_cast<const KArray*>(lParam);
    return ::InSendMessage() || payload == nullptr || payload->GetCount() == 0 ? nullptr : payload;
}

CString NamesIn(const KArray& payload)
{
    constexpr int Named = 3;
    CString names;
    for (int index = 0; index < payload.GetCount() && index < Named; ++index)
    {
        const auto* place = static_cast<const world::Place*>(payload.GetAt(index));
        names += (index == 0 ? "" : ", ") + place->name;
    }
    if (payload.GetCount() > Named)
    {
        names += " ...";
    }
    return names;
}

CPoint MiddleOf(const CTreeCtrl& tree, HTREEITEM item)
{
    CRect text;
    tree.GetItemRect(item, &text, TRUE);
    return text.CenterPoint();
}

} // namespace

// The windows that take and give ----------------------------------------------------------------

BEGIN_MESSAGE_MAP(WorldView, MultiTreeView)
    ON_REGISTERED_MESSAGE(MultiTreeView::mnDragDropMsg, &WorldView::OnDropped)
    ON_REGISTERED_MESSAGE(MultiTreeView::mnDragCopyMsg, &WorldView::OnCopied)
END_MESSAGE_MAP()

void WorldView::GetSelectedItems(HTREEITEM item, KArray& payload)
{
    const world::Place* const place = world::PlaceOf(GetTreeCtrl(), item);
    if (place != nullptr)
    {
        payload.Add(const_cast<world::Place*>(place));
    }
}

void WorldView::DragEnded(HWND accepted)
{
    if (accepted == nullptr)
    {
        m_events.Dropped("nothing", "Drag ended on", KArray());
    }
}

LRESULT WorldView::OnDropped(WPARAM wParam, LPARAM lParam)
{
    return MultiTreeView::OnDragDrop(wParam, lParam); // it takes nothing from itself
}

LRESULT WorldView::OnCopied(WPARAM wParam, LPARAM lParam)
{
    return MultiTreeView::OnDragCopy(wParam, lParam);
}

BEGIN_MESSAGE_MAP(WorldTree, MultiTree)
    ON_REGISTERED_MESSAGE(MultiTreeView::mnDragDropMsg, &WorldTree::OnDropped)
    ON_REGISTERED_MESSAGE(MultiTreeView::mnDragCopyMsg, &WorldTree::OnCopied)
END_MESSAGE_MAP()

LRESULT WorldTree::Receive(const char* how, LPARAM lParam)
{
    const KArray* const payload = PayloadIn(lParam);
    if (payload == nullptr)
    {
        return FALSE;
    }
    static const world::Place received = {"Received", 0};
    if (m_received == nullptr)
    {
        m_received = world::Add(*this, TVI_ROOT, received);
    }
    HTREEITEM added = nullptr;
    for (int index = 0; index < payload->GetCount(); ++index)
    {
        added =
            world::Add(*this, m_received, *static_cast<const world::Place*>(payload->GetAt(index)));
    }
    Expand(m_received, TVE_EXPAND);
    EnsureVisible(added);
    m_events.Dropped("the tree", how, *payload);
    return TRUE;
}

LRESULT WorldTree::OnDropped(WPARAM, LPARAM lParam)
{
    return Receive("Drop on", lParam);
}

LRESULT WorldTree::OnCopied(WPARAM, LPARAM lParam)
{
    return Receive("Copy to", lParam);
}

BEGIN_MESSAGE_MAP(DropArea, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_REGISTERED_MESSAGE(MultiTreeView::mnDragDropMsg, &DropArea::OnDropped)
    ON_REGISTERED_MESSAGE(MultiTreeView::mnDragCopyMsg, &DropArea::OnCopied)
END_MESSAGE_MAP()

void DropArea::OnPaint()
{
    BufferedPaint paint(*this);
    CDC& dc = paint.Context();
    CRect area;
    GetClientRect(&area);
    CPen pen(PS_DOT, 1, look::Dark() ? look::DarkActiveEdge : ::GetSysColor(COLOR_BTNSHADOW));
    {
        const InUse line(dc, pen);
        const InUse ground(dc, ::GetStockObject(NULL_BRUSH));
        dc.Rectangle(&area);
    }

    const InUse font(dc, look::LabelFont());
    area.DeflateRect(8, 8);
    CRect text = area;
    dc.DrawText(m_last, &text, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX | DT_CALCRECT);
    area.top += (area.Height() - text.Height()) / 2;
    dc.DrawText(m_last, &area, DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
}

LRESULT DropArea::Receive(const char* how, LPARAM lParam)
{
    const KArray* const payload = PayloadIn(lParam);
    if (payload == nullptr)
    {
        return FALSE;
    }
    m_last.Format("%s the area: %d\n%s", how, payload->GetCount(),
                  static_cast<LPCTSTR>(NamesIn(*payload)));
    Invalidate();
    m_events.Dropped("the area", how, *payload);
    return TRUE;
}

LRESULT DropArea::OnDropped(WPARAM, LPARAM lParam)
{
    return Receive("Drop on", lParam);
}

LRESULT DropArea::OnCopied(WPARAM, LPARAM lParam)
{
    return Receive("Copy to", lParam);
}

// The page --------------------------------------------------------------------------------------

BEGIN_MESSAGE_MAP(TreesPage, GalleryPage)
    ON_BN_CLICKED(SeveralId, &TreesPage::OnSwitch)
    ON_NOTIFY_RANGE(TVN_SELCHANGING, TreeId, ViewId, &TreesPage::OnTold)
    ON_NOTIFY_RANGE(TVN_SELCHANGED, TreeId, ViewId, &TreesPage::OnTold)
    ON_NOTIFY_RANGE(TVN_BEGINDRAG, TreeId, ViewId, &TreesPage::OnTold)
    ON_NOTIFY_RANGE(TVN_BEGINRDRAG, TreeId, ViewId, &TreesPage::OnTold)
    ON_NOTIFY_RANGE(NM_CLICK, TreeId, ViewId, &TreesPage::OnTold)
    ON_NOTIFY_RANGE(NM_RCLICK, TreeId, ViewId, &TreesPage::OnTold)
    ON_MESSAGE(WriteToldMessage, &TreesPage::OnWriteTold)
    ON_MESSAGE(PoseMessage, &TreesPage::OnPose)
END_MESSAGE_MAP()

TreesPage::TreesPage(IAppAccess& host, GalleryEvents& events)
    : GalleryPage(host, events)
    , m_tree(*this)
    , m_view(new WorldView(*this))
    , m_area(*this)
{}

void TreesPage::CreateContent()
{
    const CRect tree = grid::Cell(Columns, 0, grid::CaptionStep, TreesHeight);
    const CRect view = grid::Cell(Columns, 1, grid::CaptionStep, TreesHeight);
    AddLabel("Tree", grid::Cell(Columns, 0, 0, grid::Caption));
    m_tree.Create(TreeStyle, tree, this, TreeId);
    Place(m_tree, tree);
    AddLabel("View: drag from here", grid::Cell(Columns, 1, 0, grid::Caption));
    m_view->Create(nullptr, "Routes", TreeStyle, view, this, ViewId);
    Place(*m_view, view);

    AddButton(m_several, "Several items at once", BS_AUTOCHECKBOX | WS_TABSTOP,
              grid::Cell(Columns, 0, SwitchTop, grid::Check), SeveralId);
    m_several.SetCheck(BST_CHECKED);

    const CRect area = grid::Cell(Columns, 0, AreaTop, grid::Height - AreaTop);
    m_area.Create(nullptr, "", WS_CHILD | WS_VISIBLE, area, this, AreaId);
    Place(m_area, area);
    AddList(m_told, "Told to the page", 0, grid::Cell(Columns, 1, ToldTop, grid::Height - ToldTop),
            ToldId);

    m_treeRoute = world::Fill(m_tree);
    m_viewRoute = world::Fill(m_view->GetTreeCtrl());
}

void TreesPage::OnLaidOut()
{
    m_tree.SetImageList(&world::Pictures(), TVSIL_NORMAL);
    m_view->GetTreeCtrl().SetImageList(&world::Pictures(), TVSIL_NORMAL);
    m_several.SetCheck(m_tree.IsMultiSelect() ? BST_CHECKED : BST_UNCHECKED);
}

void TreesPage::OnSwitch()
{
    const bool several = m_several.GetCheck() == BST_CHECKED;
    m_tree.SetMultiSelect(several);
    m_view->SetMultiSelect(several);
    Events().ParentWasTold(several ? "Several items can be selected" : "One item can be selected");
}

// What is told ----------------------------------------------------------------------------------

void TreesPage::OnTold(UINT id, NMHDR* header, LRESULT* result)
{
    *result = 0;
    const UINT code = header->code;
    const char* const name = code == UINT(TVN_SELCHANGING)  ? "TVN_SELCHANGING"
                             : code == UINT(TVN_SELCHANGED) ? "TVN_SELCHANGED"
                             : code == UINT(TVN_BEGINDRAG)  ? "TVN_BEGINDRAG"
                             : code == UINT(TVN_BEGINRDRAG) ? "TVN_BEGINRDRAG"
                             : code == UINT(NM_CLICK)       ? "NM_CLICK"
                                                            : "NM_RCLICK";
    Tell(CString(id == TreeId ? "Tree: " : "View: ") + name);
}

void TreesPage::Dropped(const char* where, const char* how, const KArray& payload)
{
    CString text;
    text.Format("%s %s: %s", how, where, static_cast<LPCTSTR>(NamesIn(payload)));
    Tell(payload.GetCount() == 0 ? CString(how) + " " + where : text);
}

// Rows are written when nothing more follows at once: ten thousand items tell ten thousand times.
void TreesPage::Tell(const CString& what)
{
    if (m_told.GetSafeHwnd() == nullptr)
    {
        return;
    }
    if (what != m_line)
    {
        WriteTold();
        m_line = what;
        m_times = 0;
    }
    ++m_times;
    if (!m_writePosted)
    {
        m_writePosted = true;
        PostMessage(WriteToldMessage);
    }
}

void TreesPage::WriteTold()
{
    if (m_times == 0)
    {
        return;
    }
    CString row = m_line;
    if (m_times > 1)
    {
        row.Format("%s (%d)", static_cast<LPCTSTR>(m_line), m_times);
    }
    m_times = 0;
    m_told.AddString(row);
    if (m_told.GetCount() > ToldRows)
    {
        m_told.DeleteString(0);
    }
    m_told.SetTopIndex(m_told.GetCount() - 1);
    m_told.Invalidate();
    if (IsWindowVisible())
    {
        Events().ParentWasTold(row);
    }
}

LRESULT TreesPage::OnWriteTold(WPARAM, LPARAM)
{
    m_writePosted = false;
    WriteTold();
    m_line.Empty();
    return 0;
}

// Pictures --------------------------------------------------------------------------------------

void TreesPage::PoseForPicture()
{
    CTreeCtrl& view = m_view->GetTreeCtrl();
    m_tree.SendMessage(WM_VSCROLL, SB_TOP);
    view.SendMessage(WM_VSCROLL, SB_TOP);
    m_tree.SelectItem(m_tree.GetChildItem(m_treeRoute));
    const HTREEITEM second = m_tree.GetNextSiblingItem(m_tree.GetChildItem(m_treeRoute));
    m_tree.SetItemState(m_tree.GetNextSiblingItem(second), TVIS_SELECTED, TVIS_SELECTED);
    const HTREEITEM first = view.GetChildItem(m_viewRoute);
    m_view->SelectItem(first);
    m_view->SelectRange(first, view.GetNextSiblingItem(view.GetNextSiblingItem(first)), true);
    m_tree.SetFocus();
}

// Besides the page at rest: a rubber band, and a drag over the area, in the act.
void TreesPage::TakePictures(const TakePicture& take)
{
    GalleryPage::TakePictures(take);
    m_take = &take;

    // A press, moves and this page's turn, all waiting for the loop of the press.
    const HTREEITEM first = m_tree.GetChildItem(m_treeRoute);
    CRect text;
    m_tree.GetItemRect(first, &text, TRUE);
    const CPoint end =
        MiddleOf(m_tree, m_tree.GetNextSiblingItem(m_tree.GetNextSiblingItem(first)));
    const CPoint start(text.right + text.Height() * 2, text.top + text.Height() / 3);
    m_tree.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(start.x - 2, start.y + 2));
    m_tree.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(end.x, end.y));
    PostMessage(PoseMessage);
    m_tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(start.x, start.y));

    // A drag looks whether the button is down.
    BYTE keys[256] = {};
    ::GetKeyboardState(keys);
    const BYTE before = keys[VK_LBUTTON];
    keys[VK_LBUTTON] = 0x80;
    ::SetKeyboardState(keys);
    CTreeCtrl& view = m_view->GetTreeCtrl();
    const CPoint item = MiddleOf(view, view.GetChildItem(m_viewRoute));
    m_view->PostMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(item.x, item.y));
    m_view->PostMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(item.x + 20, item.y));
    m_view->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(item.x, item.y));
    CRect area;
    m_area.GetClientRect(&area);
    CPoint over(area.left + area.Width() / 16, area.top + area.Height() / 16);
    m_area.MapWindowPoints(m_view, &over, 1);
    m_view->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(over.x, over.y));
    take("-drag");
    ::ReleaseCapture(); // cancels the drag
    keys[VK_LBUTTON] = before;
    ::SetKeyboardState(keys);
    m_take = nullptr;
}

LRESULT TreesPage::OnPose(WPARAM, LPARAM)
{
    if (m_take != nullptr)
    {
        (*m_take)("-band");
        m_tree.PostMessage(WM_LBUTTONUP); // to the loop that is waiting for it
    }
    return 0;
}
