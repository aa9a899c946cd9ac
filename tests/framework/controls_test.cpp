// The classes for the platform's controls: the messages behind less obvious members, and owner
// drawing that reaches the control's own virtuals.

#include <afxcmn.h>
#include <afxext.h>

#include "support/WindowTest.h"

#include <string>

namespace {

const CRect Place(10, 10, 210, 160);
constexpr UINT ShortString = 60000; // in framework_strings.rc

class Controls : public WindowTest
{};

// Counts what it is asked and sorts backwards.
class OwnerDrawnList : public CListBox
{
public:
    int drawn = 0, measured = 0, deleted = 0;

    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override
    {
        ++measured;
        measure->itemHeight = 33;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT compare) override
    {
        return compare->itemData1 < compare->itemData2 ? 1 : -1;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++deleted; }
    int VKeyToItem(UINT key, UINT caret) override { return key == VK_F2 && caret == 0 ? 2 : -1; }
};

class OwnerDrawnCombo : public CComboBox
{
public:
    int drawn = 0;

    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override { measure->itemHeight = 21; }
};

class OwnerDrawnButton : public CButton
{
public:
    UINT state = 0;

    void DrawItem(LPDRAWITEMSTRUCT draw) override { state = draw->itemState; }
};

class OwnerDrawnReport : public CListCtrl
{
public:
    std::vector<UINT> drawn;

    void DrawItem(LPDRAWITEMSTRUCT draw) override { drawn.push_back(draw->itemID); }
};

} // namespace

TEST_F(Controls, OwnerDrawnListAsksItsOwnVirtuals)
{
    auto& list = Add<OwnerDrawnList>(Place, LBS_OWNERDRAWVARIABLE | LBS_SORT |
                                                LBS_WANTKEYBOARDINPUT | LBS_NOINTEGRALHEIGHT);
    for (const DWORD_PTR data : {1, 3, 2})
    {
        list.SendMessage(LB_ADDSTRING, 0, LPARAM(data));
    }
    EXPECT_EQ(list.GetItemData(0), 3U);
    EXPECT_EQ(list.GetItemData(2), 1U);
    EXPECT_EQ(list.measured, 3);
    EXPECT_EQ(list.GetItemHeight(1), 33);
    PumpAll();
    EXPECT_GE(list.drawn, 3);

    list.SetCurSel(0);
    list.SendMessage(WM_KEYDOWN, VK_F2, 0);
    EXPECT_EQ(list.GetCurSel(), 2);
    list.DeleteString(0);
    EXPECT_EQ(list.deleted, 1);
}

TEST_F(Controls, OwnerDrawnComboButtonAndReportAskTheirOwnVirtuals)
{
    auto& combo = Add<OwnerDrawnCombo>(Place, CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED);
    EXPECT_EQ(combo.GetItemHeight(0), 21);
    combo.AddString("x");
    combo.SetCurSel(0);
    PumpAll();
    EXPECT_GE(combo.drawn, 1);

    auto& button = Add<OwnerDrawnButton>(Place, BS_OWNERDRAW);
    button.SetState(TRUE);
    PumpAll();
    EXPECT_NE(button.state & ODS_SELECTED, 0U);

    auto& report = Add<OwnerDrawnReport>(Place, LVS_REPORT | LVS_OWNERDRAWFIXED);
    report.InsertColumn(0, "a", LVCFMT_LEFT, 50);
    report.InsertItem(0, "first");
    report.InsertItem(1, "second");
    report.UpdateWindow();
    EXPECT_EQ(report.drawn, (std::vector<UINT>{0, 1}));
}

TEST_F(Controls, ListBoxTextsAndPoints)
{
    auto& list = Add<CListBox>(Place, LBS_NOINTEGRALHEIGHT | LBS_EXTENDEDSEL);
    const std::string longText(1000, 'x');
    list.AddString(longText.c_str());
    list.AddString("b");
    list.AddString("c");
    CString text;
    list.GetText(0, text);
    EXPECT_EQ(text.GetLength(), 1000);
    list.GetText(99, text);
    EXPECT_TRUE(text.IsEmpty());

    BOOL outside = TRUE;
    EXPECT_EQ(list.ItemFromPoint(CPoint(5, list.GetItemHeight(0) + 1), outside), 1U);
    EXPECT_FALSE(outside);
    list.ItemFromPoint(CPoint(5, 2000), outside);
    EXPECT_TRUE(outside);

    list.SelItemRange(TRUE, 1, 2);
    int selected[3] = {};
    ASSERT_EQ(list.GetSelItems(3, selected), 2);
    EXPECT_EQ(selected[1], 2);
}

TEST_F(Controls, EditLinesAndSelection)
{
    auto& edit = Add<CEdit>(Place, ES_MULTILINE);
    edit.SetWindowText("first\r\nsecond");
    char line[16] = {};
    EXPECT_EQ(edit.GetLine(1, line, sizeof(line)), 6);
    EXPECT_STREQ(line, "second");
    EXPECT_EQ(edit.LineIndex(1), 7);
    edit.SetSel(0, -1);
    int start = -1;
    int end = -1;
    edit.GetSel(start, end);
    EXPECT_EQ(end - start, 13);
    edit.SetSel(MAKELONG(2, 4));
    edit.ReplaceSel("");
    EXPECT_EQ(edit.LineLength(0), 3);
}

TEST_F(Controls, ScrollBarLimitLeavesRoomForThePage)
{
    auto& bar = Add<CScrollBar>(CRect(0, 0, 20, 100), SBS_VERT);
    SCROLLINFO info = {sizeof(info), SIF_RANGE | SIF_PAGE, 0, 99, 10, 0, 0};
    bar.SetScrollInfo(&info);
    EXPECT_EQ(bar.GetScrollLimit(), 90);
    bar.SetScrollPos(500);
    EXPECT_EQ(bar.GetScrollPos(), 90);
}

TEST_F(Controls, ReportSelectionTextsAndHeader)
{
    auto& list = Add<CListCtrl>(Place, LVS_REPORT);
    EXPECT_EQ(list.InsertColumn(0, "name", LVCFMT_LEFT, 80), 0);
    EXPECT_EQ(list.InsertColumn(1, "value", LVCFMT_RIGHT, 60, 1), 1);
    for (int row = 0; row < 5; ++row)
    {
        list.InsertItem(row, "row");
        list.SetItemData(row, DWORD_PTR(100 + row));
    }
    const std::string longText(600, 'x'); // more than a first buffer holds
    list.SetItemText(2, 1, longText.c_str());
    EXPECT_STREQ(list.GetItemText(2, 1), longText.c_str());
    EXPECT_EQ(list.GetItemData(4), 104U);

    list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    list.SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
    std::vector<int> selected;
    for (POSITION position = list.GetFirstSelectedItemPosition(); position != nullptr;)
    {
        selected.push_back(list.GetNextSelectedItem(position));
    }
    EXPECT_EQ(selected, (std::vector<int>{1, 3}));

    CHeaderCtrl* const header = list.GetHeaderCtrl();
    ASSERT_NE(header, nullptr);
    EXPECT_TRUE(header->IsKindOf(RUNTIME_CLASS(CHeaderCtrl)));
    EXPECT_EQ(header->GetItemCount(), 2);
    CRect cell;
    EXPECT_TRUE(list.GetSubItemRect(0, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(cell.left, 80);
    CHeaderCtrl subclassed;
    subclassed.SubclassWindow(header->m_hWnd);
    EXPECT_EQ(list.GetHeaderCtrl(), &subclassed);
    subclassed.UnsubclassWindow();
}

TEST_F(Controls, TreeItemsTextsAndRectangles)
{
    auto& tree = Add<CTreeCtrl>(Place, TVS_HASBUTTONS);
    const HTREEITEM root = tree.InsertItem("root");
    const std::string longText(600, 'x'); // more than a first buffer holds
    const HTREEITEM child = tree.InsertItem(longText.c_str(), root);
    tree.SetItemData(child, 42);
    EXPECT_TRUE(tree.ItemHasChildren(root));
    EXPECT_STREQ(tree.GetItemText(child), longText.c_str());
    EXPECT_EQ(tree.GetItemData(child), 42U);
    CRect rect;
    EXPECT_FALSE(tree.GetItemRect(child, &rect, FALSE));
    tree.Expand(root, TVE_EXPAND);
    EXPECT_TRUE(tree.GetItemRect(child, &rect, TRUE));
    EXPECT_EQ(tree.HitTest(rect.TopLeft() + CSize(3, 3)), child);
}

TEST_F(Controls, RichEditFormatsAndRanges)
{
    auto& edit = Add<CRichEditCtrl>(Place, ES_MULTILINE);
    CHARFORMAT format = {};
    format.dwMask = CFM_COLOR | CFM_SIZE;
    format.crTextColor = RGB(10, 20, 30);
    format.yHeight = 400;
    EXPECT_TRUE(edit.SetDefaultCharFormat(format));
    CHARFORMAT read = {};
    EXPECT_NE(edit.GetDefaultCharFormat(read) & CFM_COLOR, 0U);
    EXPECT_EQ(read.crTextColor, RGB(10, 20, 30));
    EXPECT_EQ(read.yHeight, 400);

    edit.SetWindowText("some text");
    edit.SetSel(5, 9);
    EXPECT_STREQ(edit.GetSelText(), "text");
    edit.ReplaceSel("words");
    CString text;
    EXPECT_EQ(edit.GetTextRange(0, -1, text), 10);
    EXPECT_STREQ(text, "some words");
}

TEST_F(Controls, TipsKeepTextsForWindowsAndRectangles)
{
    auto& button = Add<CButton>(Place);
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&Host()));
    EXPECT_TRUE(tips.AddTool(&button, ShortString));
    EXPECT_TRUE(tips.AddTool(&Host(), "area", CRect(0, 0, 5, 5), 7));
    EXPECT_EQ(tips.GetToolCount(), 2);
    CString text;
    tips.GetText(text, &button);
    EXPECT_STREQ(text, "short");
    tips.UpdateTipText("other", &Host(), 7);
    tips.GetText(text, &Host(), 7);
    EXPECT_STREQ(text, "other");
    tips.DelTool(&button);
    EXPECT_EQ(tips.GetToolCount(), 1);
    tips.DestroyWindow();
}

TEST_F(Controls, StatusBarStretchesOnePane)
{
    CStatusBar bar;
    ASSERT_TRUE(bar.Create(&Host()));
    const UINT ids[] = {ID_SEPARATOR, ShortString, 500};
    EXPECT_FALSE(bar.SetIndicators(ids, 3)) << "the last string does not exist";
    EXPECT_TRUE(bar.SetIndicators(ids, 2));
    bar.SetPaneInfo(1, ShortString, SBPS_NORMAL, 100);
    EXPECT_EQ(bar.CommandToIndex(ShortString), 1);
    EXPECT_EQ(bar.CommandToIndex(1), -1);
    EXPECT_STREQ(bar.GetStatusBarCtrl().GetText(1), "short");

    for (const int width : {400, 600})
    {
        bar.MoveWindow(0, 0, width, bar.CalcFixedLayout(TRUE, TRUE).cy);
        CRect last;
        bar.GetItemRect(1, &last);
        EXPECT_NEAR(last.right, width, 4);
        EXPECT_NEAR(last.Width(), 100, 10);
    }

    bar.SetWindowText("ready");
    EXPECT_STREQ(bar.GetPaneText(0), "ready");
    bar.SetPaneStyle(1, SBPS_DISABLED);
    EXPECT_STREQ(bar.GetStatusBarCtrl().GetText(1), "");
    bar.SetPaneText(1, "kept");
    bar.SetPaneStyle(1, SBPS_NORMAL);
    EXPECT_STREQ(bar.GetStatusBarCtrl().GetText(1), "kept");
    bar.DestroyWindow();
}

TEST_F(Controls, ToolBarButtonsAndSeparators)
{
    CToolBar bar;
    ASSERT_TRUE(bar.Create(&Host()));
    const UINT ids[] = {101, ID_SEPARATOR, 102};
    ASSERT_TRUE(bar.SetButtons(ids, 3));
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_EQ(bar.CommandToIndex(102), 2);
    EXPECT_EQ(bar.GetItemID(1), ID_SEPARATOR);
    UINT id = 0;
    UINT style = 0;
    int image = -1;
    bar.GetButtonInfo(2, id, style, image);
    EXPECT_EQ(image, 1) << "separators take no picture";
    EXPECT_EQ(style, TBBS_BUTTON);

    EXPECT_TRUE(bar.SetButtonText(2, "text"));
    bar.SetButtonStyle(2, TBBS_CHECKBOX | TBBS_CHECKED | TBBS_DISABLED);
    EXPECT_STREQ(bar.GetButtonText(2), "text");
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonChecked(102));
    EXPECT_FALSE(bar.GetToolBarCtrl().IsButtonEnabled(102));

    // A text of the button's own, which no list of strings keeps.
    TBBUTTONINFO info = {};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_TEXT;
    char ownText[] = "own";
    info.pszText = ownText;
    bar.GetToolBarCtrl().SetButtonInfo(101, &info);
    bar.SetButtonStyle(0, TBBS_CHECKBOX);
    EXPECT_STREQ(bar.GetButtonText(0), "own");

    bar.SetButtonInfo(1, ID_SEPARATOR, TBBS_SEPARATOR, 40);
    CRect gap;
    bar.GetItemRect(1, &gap);
    EXPECT_EQ(gap.Width(), 40);
    EXPECT_GE(bar.CalcFixedLayout(TRUE, TRUE).cy, 22);
    bar.DestroyWindow();
}
