// Parity of what holds rows, columns or items.

#include "CustomChecklistBox.h"
#include "CustomListBox.h"
#include "CustomListCtrl.h"
#include "CustomListCtrlHdr.h"
#include "MultiTree.h"
#include "MultiTreeView.h"
#include "robust/Parity.h"

namespace {

CString RowText(const CListBox& list, int row)
{
    char text[80] = ""; // of a list without strings, its data
    ::SendMessage(list, LB_GETTEXT, WPARAM(row), reinterpret_cast<LPARAM>(text));
    return text;
}

// A list that has no more than a number of rows.
void Count(CListBox& list, Journal& journal)
{
    journal.answer = [](ToldMessage& told) {
        told.message == WM_DRAWITEM ? void(told.answer = TRUE) : void();
    };
    const auto count = [&](int rows) { return list.SendMessage(LB_SETCOUNT, WPARAM(rows)); };
    ASK(count(50), list.GetCount(), list.SetItemData(3, 42), list.GetItemData(3),
        list.AddString("none"), list.SetCurSel(7), list.SetSel(8), journal.Middle(),
        list.GetCurSel(), list.SetTopIndex(20), list.GetTopIndex(), journal.Key(VK_END),
        journal.Key(VK_UP, VK_SHIFT), list.GetSelCount(), journal.Middle(), list.GetTopIndex(),
        list.DeleteString(2), list.GetCount(), list.GetItemHeight(0), journal.Press(30, 40),
        list.GetCurSel(), count(5), list.GetTopIndex(), list.GetCurSel(),
        list.GetStyle() & WS_VSCROLL, (list.ResetContent(), 0), list.GetCount());
}

void Pick(CListBox& list, Journal& journal)
{
    for (const char* const text : {"Gamma", "Alpha", "Delta", "Beta", "Alphabet"})
    {
        ASK(list.AddString(text));
    }
    ASK(list.SelectString(1, "Delta"), list.InsertString(1, "Inserted"),
        list.InsertString(99, "Nowhere"), list.InsertString(-1, "Last"), list.FindString(-1, "alp"),
        list.FindString(3, "alp"), list.FindStringExact(-1, "ALPHA"), list.SetCurSel(2),
        list.SetCurSel(99), list.GetCurSel(), list.SetCurSel(3), list.SetSel(4),
        list.SelItemRange(TRUE, 1, 2), list.GetSelCount(), journal.Middle());
    for (int row = -1; row < 9; ++row)
    {
        ASK(RowText(list, row), list.GetSel(row), list.SetItemData(row, DWORD_PTR(row) * 3),
            list.GetItemData(row));
    }
    const auto layout = [&] {
        return Written(ClientRectOf(list)) + Joined(list.GetStyle() & (WS_HSCROLL | WS_VSCROLL));
    };
    ASK(layout(), list.GetCaretIndex(), list.GetAnchorIndex(), journal.Key(VK_DOWN),
        journal.Key(VK_END, VK_SHIFT), list.GetCurSel(), list.GetSelCount(), journal.Press(30, 20),
        list.GetCurSel(), journal.Press(30, 20), journal.Key('D'), list.GetCurSel(),
        journal.Key(VK_SPACE));
    for (int row = 0; row < 40; ++row)
    {
        list.AddString("Row");
    }
    ASK(layout(), list.SetTopIndex(20), list.GetTopIndex(),
        (list.SendMessage(WM_VSCROLL, SB_PAGEUP), 0), list.GetTopIndex(),
        journal.Press(Room.Width() - 8, Room.Height() - 8), list.GetTopIndex(),
        (Wheel(-WHEEL_DELTA), 0), list.GetTopIndex(), (list.SendMessage(WM_VSCROLL, SB_BOTTOM), 0),
        list.GetTopIndex(), journal.Key(VK_PRIOR), list.GetTopIndex(), list.GetScrollPos(SB_VERT),
        Filled([&](CRect* rect) { list.GetItemRect(30, rect); }),
        list.SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(20, 40)));
    int rows[9] = {};
    ASK(list.SelItemRange(TRUE, 4, 6), list.GetSelItems(9, rows), rows[0], rows[2],
        (list.SetAnchorIndex(7), 0), list.SetCaretIndex(9), list.GetCaretIndex(),
        journal.Key(VK_UP, VK_SHIFT), list.GetSelCount(), (list.SetHorizontalExtent(700), 0),
        list.GetHorizontalExtent(), (list.SendMessage(WM_HSCROLL, SB_RIGHT), 0),
        list.GetScrollPos(SB_HORZ), (list.SetColumnWidth(70), 0), journal.Key(VK_RIGHT),
        journal.Middle(), list.GetScrollPos(SB_HORZ), list.GetTopIndex(), list.SetItemHeight(2, 21),
        list.SetItemHeight(99, 21), list.GetItemHeight(2), list.GetItemHeight(3),
        Filled([&](CRect* rect) { list.GetItemRect(4, rect); }), list.Dir(0, "Z:\\none\\*.none"),
        list.DeleteString(3), list.DeleteString(99), list.GetCount(), list.GetCurSel(),
        (list.ResetContent(), 0), list.GetCount(), list.GetTopIndex(), list.GetCurSel(),
        list.SendMessage(WM_GETDLGCODE));
}

CString Heading(const CHeaderCtrl& header, int column)
{
    char text[40] = "";
    HDITEM item = {.mask = HDI_TEXT | HDI_WIDTH | HDI_ORDER | HDI_FORMAT,
                   .pszText = text,
                   .cchTextMax = sizeof(text)};
    const BOOL there = header.GetItem(column, &item);
    CRect place;
    header.GetItemRect(column, &place);
    CString line;
    line.Format("%d %s %d order %d format %d at %d to %d", there, text, item.cxy, item.iOrder,
                item.fmt, int(place.left), int(place.right));
    return line;
}

// Drags in a header. Not the pointer's: it may be moved by nothing more often on one than the
// other.
int Pull(CHeaderCtrl& header, int from, int to)
{
    header.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from, 8));
    header.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM((from + to) / 2, 8));
    header.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to, 8));
    header.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(to, 8));
    return to;
}

// The divider to be hot is not given as a point, for which the library's header has a rule of its
// own in every mode.
void Columns(CHeaderCtrl& header, Journal& journal)
{
    for (const char* const title : {"Name", "Kind", "Course"})
    {
        HDITEM item = {.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT,
                       .cxy = 80,
                       .pszText = const_cast<char*>(title),
                       .fmt = HDF_STRING | HDF_RIGHT};
        ASK(header.InsertItem(9, &item));
    }
    HDITEM narrow = {.mask = HDI_WIDTH, .cxy = 60};
    int order[] = {2, 0, 1};
    HDHITTESTINFO hit = {CPoint(82, 8), 0, 0};
    ASK(header.SetItem(1, &narrow), header.SetItem(7, &narrow), header.SetOrderArray(3, order),
        header.OrderToIndex(1), journal.Middle(), header.SetHotDivider(1), header.SetHotDivider(-1),
        header.HitTest(&hit), hit.flags, hit.iItem, journal.Press(30, 8), journal.Press(100, 8),
        Pull(header, 80, 110), Heading(header, 0), Heading(header, 1), Heading(header, 2),
        Heading(header, 3), Pull(header, 28, 168), header.GetOrderArray(order, 3), order[0],
        order[1], header.SendMessage(WM_LBUTTONDBLCLK, 0, MAKELPARAM(80, 8)), header.DeleteItem(0),
        header.DeleteItem(9), header.GetItemCount(), Heading(header, 0), Heading(header, 1),
        header.SendMessage(WM_GETDLGCODE));
}

int CALLBACK ByData(LPARAM first, LPARAM second, LPARAM sign)
{
    return int(first - second) * int(sign);
}

// No heading is struck twice: in every mode that fits the library's column to its text.
void Report(CListCtrl& list, Journal& journal)
{
    for (const char* const column : {"Name", "Kind", "Course"})
    {
        LVCOLUMN inserted = {
            .mask = LVCF_TEXT | LVCF_WIDTH, .cx = 70, .pszText = const_cast<char*>(column)};
        ASK(list.InsertColumn(9, &inserted));
    }
    for (const char* const text : {"EDDF", "LSZH", "KJFK", "EGLL"})
    {
        ASK(list.InsertItem(0, text));
    }
    ASK(list.InsertItem(-5, "none"), list.SetItemText(1, 1, "Airport"),
        list.SetItemText(77, 1, "none"), list.SetItemData(2, 42), list.GetItemCount());
    LVFINDINFO find = {.flags = LVFI_STRING, .psz = "LSZH"};
    ASK(list.FindItem(&find), list.FindItem(&find, 3),
        list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED),
        list.GetSelectedCount(), journal.Middle(), list.GetNextItem(-1, LVNI_SELECTED),
        list.GetNextItem(-1, LVNI_FOCUSED), list.GetItemText(1, 1), journal.Key(VK_DOWN),
        journal.Key(VK_DOWN, VK_SHIFT), list.GetSelectedCount(), journal.Press(30, 50),
        list.GetNextItem(-1, LVNI_SELECTED), list.GetSelectionMark(), journal.Key('K'),
        list.GetNextItem(-1, LVNI_FOCUSED), journal.Press(30, 8));
    ASK(list.SetColumnWidth(1, 90), list.GetColumnWidth(1));
    for (int row = 0; row < 4; ++row)
    {
        ASK(Heading(*list.GetHeaderCtrl(), row), list.SetItemData(row, DWORD_PTR(row * 7 % 4)),
            list.GetItemText(row, 0));
    }
    int order[] = {1, 2, 0};
    CRect part;
    ASK(list.SortItems(&ByData, DWORD_PTR(-1)), list.GetItemText(0, 0), list.GetItemText(3, 0),
        list.GetNextItem(-1, LVNI_SELECTED), list.SortItemsEx(&ByData, 1), list.GetItemData(0),
        list.SetColumnOrderArray(3, order), journal.Middle(), Heading(*list.GetHeaderCtrl(), 0),
        Heading(*list.GetHeaderCtrl(), 1), list.GetSubItemRect(1, 1, LVIR_BOUNDS, part), part,
        (list.SetItemCount(60), 0), list.GetItemCount());
    for (int row = 0; row < 40; ++row)
    {
        list.InsertItem(4 + row, "Row");
    }
    ASK(Pull(*list.GetHeaderCtrl(), 70, 100), list.GetCountPerPage(), list.EnsureVisible(30, FALSE),
        journal.Middle(), list.GetTopIndex(), list.GetColumnWidth(0), (Wheel(WHEEL_DELTA), 0),
        list.GetTopIndex(), list.Scroll(CSize(0, -100)), list.GetTopIndex(),
        Filled([&](CRect* rect) { list.GetItemRect(5, rect, LVIR_BOUNDS); }),
        (list.SendMessage(WM_VSCROLL, SB_PAGEDOWN), 0), list.GetTopIndex(),
        list.HitTest(CPoint(20, 60)), list.DeleteItem(1), list.DeleteItem(99), list.DeleteColumn(2),
        list.DeleteAllItems(), list.GetItemCount(), list.SendMessage(WM_GETDLGCODE));
}

// Rows that the host keeps. Their texts are asked for when they are painted, too.
void Elsewhere(CListCtrl& list, Journal& journal)
{
    list.InsertColumn(0, "Name", LVCFMT_LEFT, 90);
    journal.answer = [](ToldMessage& told) {
        if (told.code == UINT(LVN_GETDISPINFO))
        {
            LVITEM& row = reinterpret_cast<NMLVDISPINFO*>(told.lParam)->item;
            if ((row.mask & LVIF_TEXT) != 0)
            {
                std::snprintf(row.pszText, size_t(row.cchTextMax), "Row %d", row.iItem);
            }
        }
        else if (told.code == UINT(LVN_ODFINDITEM) || told.code == UINT(LVN_ODFINDITEMW))
        {
            told.answer = 7;
        }
    };
    ASK((list.SetItemCount(60), 0), list.GetItemCount(), list.GetItemText(8, 0),
        list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED),
        journal.Middle(), list.GetNextItem(-1, LVNI_SELECTED), journal.Key(VK_DOWN),
        journal.Key(VK_DOWN, VK_SHIFT), journal.Key(VK_END, VK_SHIFT), list.GetSelectedCount(),
        list.GetTopIndex(), journal.Key('R'), list.GetNextItem(-1, LVNI_FOCUSED),
        list.EnsureVisible(30, FALSE), list.GetTopIndex(), journal.Middle(), list.GetTopIndex(),
        journal.Press(30, 50), list.GetNextItem(-1, LVNI_SELECTED), (list.SetItemCount(5), 0),
        list.GetTopIndex(), list.GetSelectedCount(), list.DeleteAllItems(), list.GetItemCount());
}

// The label of an item that is selected, written over; text gives it.
template <class Control, class Item, class Text>
void Rename(Control& control, Item item, Journal& journal, Text text)
{
    journal.answer = [](ToldMessage& told) {
        if (told.code == UINT(LVN_ENDLABELEDIT) || told.code == UINT(TVN_ENDLABELEDIT))
        {
            told.answer = TRUE;
        }
    };
    control.SetFocus();
    ASK(control.EditLabel(item) != nullptr, journal.Enter("new", VK_RETURN), text(),
        control.EditLabel(item) != nullptr, journal.Enter("x", VK_ESCAPE), text(),
        control.EditLabel(item) != nullptr, journal.Middle(), journal.Enter("after", VK_END),
        (journal.Host().SetFocus(), 0), text());
    journal.answer = nullptr; // refused
    ASK((control.SetFocus(), 0), control.EditLabel(item) != nullptr, journal.Enter("no", VK_RETURN),
        text());
}

void RenameRow(CListCtrl& list, Journal& journal)
{
    list.InsertColumn(0, "Name", LVCFMT_LEFT, 70);
    ASK(list.InsertItem(0, "EDDF"), list.InsertItem(1, "LSZH"), list.InsertItem(2, "KJFK"));
    Rename(list, 1, journal, [&] { return list.GetItemText(1, 0); });
}

void RenameItem(CTreeCtrl& tree, Journal& journal)
{
    tree.InsertItem("First");
    const HTREEITEM second = tree.InsertItem("Second");
    ASK(tree.SetItemData(second, 42));
    Rename(tree, second, journal, [&] { return tree.GetItemText(second); });
}

void Check(CTreeCtrl& tree, Journal& journal)
{
    HTREEITEM items[3] = {};
    for (HTREEITEM& item : items)
    {
        item = tree.InsertItem("Item");
    }
    const HTREEITEM leaf = tree.InsertItem("Leaf", items[0]);
    const auto checks = [&] {
        return tree.GetCheck(items[0]) * 1000 + tree.GetCheck(items[1]) * 100 +
               tree.GetCheck(items[2]) * 10 + tree.GetCheck(leaf);
    };
    ASK(tree.SetCheck(items[1]), tree.SetCheck(leaf), checks(), tree.SetItemHeight(30),
        (tree.SetIndent(35), 0), tree.GetItemHeight(), tree.GetIndent(), journal.Middle(), checks(),
        tree.GetItemHeight(), tree.GetIndent(), tree.SelectItem(items[2]), journal.Key(VK_SPACE),
        checks(), journal.Key(VK_SPACE), checks(), tree.SetCheck(items[0]), journal.Middle(),
        tree.SetCheck(items[1], FALSE), checks());
}

void Branch(CTreeCtrl& tree, Journal& journal)
{
    const HTREEITEM first = tree.InsertItem("First");
    const HTREEITEM second = tree.InsertItem("Second");
    const HTREEITEM leaf = tree.InsertItem("Leaf", first);
    tree.InsertItem("Blade", first, TVI_SORT);
    for (int row = 0; row < 30; ++row)
    {
        tree.SetItemData(tree.InsertItem("Row"), DWORD_PTR(row));
    }
    const auto place = [&](HTREEITEM item, BOOL text) {
        return Filled([&](CRect* rect) { tree.GetItemRect(item, rect, text); });
    };
    TVSORTCB sort = {TVI_ROOT, &ByData, -1};
    const auto selected = [&] { return Named(tree, tree.GetSelectedItem()); };
    const auto open = [&] { return tree.GetItemState(first, TVIS_EXPANDED); };
    ASK(tree.GetCount(), Named(tree, tree.GetChildItem(first)),
        Named(tree, tree.GetNextSiblingItem(first)), tree.SetItemData(second, 42),
        tree.SetItemData(first, 41), tree.SetItemData(leaf, 43), tree.SetItemText(leaf, "Renamed"),
        tree.Expand(first, TVE_EXPAND), tree.SelectItem(leaf), place(first, TRUE),
        place(leaf, FALSE), place(leaf, TRUE), journal.Middle(), selected(),
        tree.GetItemData(second), open(), journal.Key(VK_DOWN), selected(), journal.Key(VK_HOME),
        journal.Key(VK_LEFT), open(), journal.Key('S'), tree.Expand(first, TVE_EXPAND),
        tree.SelectItem(leaf), journal.Press(12, 10), open(), selected(), journal.Press(60, 10),
        selected(), tree.GetVisibleCount(), tree.SelectSetFirstVisible(second), journal.Middle(),
        Named(tree, tree.GetFirstVisibleItem()), tree.EnsureVisible(leaf),
        Named(tree, tree.GetFirstVisibleItem()), tree.GetItemHeight(), tree.GetIndent(),
        Named(tree, tree.HitTest(CPoint(60, 30))), tree.SortChildren(TVI_ROOT),
        tree.SortChildrenCB(&sort), Named(tree, tree.GetRootItem()), tree.SelectDropTarget(second),
        Named(tree, tree.GetDropHilightItem()), tree.DeleteItem(second), tree.GetCount(),
        tree.DeleteAllItems(), tree.GetCount(), tree.SendMessage(WM_GETDLGCODE));
}

// The tests -------------------------------------------------------------------------------------

int InOrder(const COMPAREITEMSTRUCT& compare)
{
    return compare.itemData1 < compare.itemData2 ? -1 : int(compare.itemData1 > compare.itemData2);
}

// A host that draws the rows, of heights and in an order of its own.
void DrawForThem(ToldMessage& told)
{
    if (told.message == WM_MEASUREITEM)
    {
        auto& row = About<MEASUREITEMSTRUCT>(told);
        row.itemHeight = 14 + row.itemID % 3;
        told.answer = TRUE;
    }
    else if (told.message == WM_COMPAREITEM)
    {
        told.answer = InOrder(About<COMPAREITEMSTRUCT>(told));
    }
    else if (told.message == WM_DRAWITEM)
    {
        told.answer = TRUE;
    }
}

TEST_F(Parity, ListBoxes)
{
    constexpr DWORD Plain = LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL;
    Compare<CCustomListBox, CListBox>(
        "LISTBOX",
        {Plain, Plain | LBS_SORT, Plain | LBS_MULTIPLESEL, Plain | LBS_EXTENDEDSEL,
         Plain | WS_HSCROLL, Plain | LBS_MULTICOLUMN | WS_HSCROLL, Plain | LBS_WANTKEYBOARDINPUT},
        &Pick);
    constexpr DWORD Counted = Plain | LBS_NODATA | LBS_OWNERDRAWFIXED;
    Compare<CCustomListBox, CListBox>("LISTBOX", {Counted, Counted | LBS_EXTENDEDSEL}, &Count);
    Compare<CCustomListBox, CListBox>(
        "LISTBOX",
        {Plain | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, Plain | LBS_OWNERDRAWFIXED | LBS_SORT,
         Plain | LBS_OWNERDRAWVARIABLE,
         Plain | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS | LBS_EXTENDEDSEL},
        [](CListBox& list, Journal& journal) {
            journal.answer = &DrawForThem;
            Pick(list, journal);
        });
}

// Rows as high as those of the check list.
class DrawnRows : public CListBox
{
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override
    {
        measure->itemHeight = (GetStyle() & LBS_HASSTRINGS) != 0 ? 16 : 15;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT compare) override { return InOrder(*compare); }
};

// Each row has a check, beside which the list keeps the caller's data. In the automatic styles the
// space key checks, instead of being looked up.
class Checked : public CCustomChecklistBox
{
public:
    Checked() { SetCheckStyle(BS_CHECKBOX); }

private:
    int CompareItem(LPCOMPAREITEMSTRUCT compare) override { return InOrder(*compare); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CCustomChecklistBox::WindowProc(message, wParam, lParam);
        if (message == LB_ADDSTRING || message == LB_INSERTSTRING)
        {
            SetCheck(int(result), 1);
        }
        return result;
    }
};

TEST_F(Parity, CheckLists)
{
    constexpr DWORD Values = LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | LBS_OWNERDRAWFIXED;
    constexpr DWORD Texts = Values | LBS_HASSTRINGS;
    Compare<Checked, DrawnRows>(
        "LISTBOX", {Texts, Texts | LBS_SORT, Texts | LBS_EXTENDEDSEL, Values, Values | LBS_SORT},
        &Pick);
}

TEST_F(Parity, Reports)
{
    Compare<CCustomListCtrl, CListCtrl>(
        WC_LISTVIEW,
        {LVS_REPORT | LVS_SHOWSELALWAYS, LVS_REPORT | LVS_SINGLESEL | LVS_SORTASCENDING}, &Report);
    Compare<CCustomListCtrl, CListCtrl>(WC_LISTVIEW, {LVS_REPORT | LVS_EDITLABELS}, &RenameRow);
    Compare<CCustomListCtrl, CListCtrl>(WC_LISTVIEW, {LVS_REPORT | LVS_OWNERDATA}, &Elsewhere);
    Compare<CCustomListCtrlHdr, CHeaderCtrl>(
        WC_HEADER, {HDS_HORZ | HDS_BUTTONS | HDS_FULLDRAG | HDS_DRAGDROP, HDS_HORZ}, &Columns);
}

// A tree of many selections has keys and presses of its own.
struct SingleTree : MultiTree
{
    SingleTree() { SetMultiSelect(false); }
};

struct SingleView : Standing<MultiTreeView>
{
    SingleView() { SetMultiSelect(false); }
};

TEST_F(Parity, Trees)
{
    constexpr DWORD Plain = TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES;
    constexpr DWORD Labels = Plain | TVS_EDITLABELS;
    Compare<SingleTree, CTreeCtrl>(WC_TREEVIEW, {Plain}, &Branch);
    Compare<SingleTree, CTreeCtrl>(WC_TREEVIEW, {Plain | TVS_CHECKBOXES}, &Check);
    Compare<SingleTree, CTreeCtrl>(WC_TREEVIEW, {Labels}, &RenameItem);
    Compare<MultiTree, CTreeCtrl>(WC_TREEVIEW, {Labels}, &RenameItem);
    for (const auto script : {&Branch, &RenameItem})
    {
        Compare<SingleView, Standing<CTreeView>>(
            WC_TREEVIEW, {Labels},
            [=](CTreeView& view, Journal& journal) { script(view.GetTreeCtrl(), journal); });
    }
}

} // namespace
