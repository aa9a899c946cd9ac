// The classes for the platform's controls: the messages behind less obvious members, and owner
// drawing that reaches the control's own virtuals.

#include <afxcmn.h>
#include <afxext.h>

#include "support/WindowTest.h"

#include <string>

namespace {

const CRect Place(10, 10, 210, 160);
constexpr UINT ShortString = 60000; // in framework_strings.rc

using Controls = WindowTest;

// Sorts backwards and counts what it loses.
class OwnerDrawnList : public CListBox
{
public:
    int drawn = 0, deleted = 0;

    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override { measure->itemHeight = 33; }
    int CompareItem(LPCOMPAREITEMSTRUCT compare) override
    {
        return compare->itemData1 < compare->itemData2 ? 1 : -1;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++deleted; }
    int VKeyToItem(UINT key, UINT caret) override { return key == VK_F2 && caret == 0 ? 2 : -1; }
};

} // namespace

TEST_F(Controls, AnOwnerDrawnListAsksItsOwnVirtuals)
{
    auto& list = Add<OwnerDrawnList>(Place, LBS_OWNERDRAWVARIABLE | LBS_SORT |
                                                LBS_WANTKEYBOARDINPUT | LBS_NOINTEGRALHEIGHT);
    for (const DWORD_PTR data : {1, 3, 2})
    {
        list.SendMessage(LB_ADDSTRING, 0, LPARAM(data));
    }
    EXPECT_EQ(list.GetItemData(0), 3U);
    EXPECT_EQ(list.GetItemHeight(1), 33);
    PumpAll();
    EXPECT_GE(list.drawn, 3);
    list.SetCurSel(0);
    list.SendMessage(WM_KEYDOWN, VK_F2, 0);
    EXPECT_EQ(list.GetCurSel(), 2);
    list.DeleteString(0);
    EXPECT_EQ(list.deleted, 1);
}

TEST_F(Controls, TextsOfAnyLengthAreRead)
{
    const std::string longText(1000, 'x'); // more than a first buffer holds
    auto& list = Add<CListBox>(Place, LBS_NOINTEGRALHEIGHT);
    list.AddString(longText.c_str());
    CString text;
    list.GetText(0, text);
    EXPECT_STREQ(text, longText.c_str());
    list.GetText(99, text);
    EXPECT_TRUE(text.IsEmpty());

    auto& report = Add<CListCtrl>(Place, LVS_REPORT);
    report.InsertColumn(0, "name", LVCFMT_LEFT, 80);
    report.InsertItem(0, longText.c_str());
    EXPECT_STREQ(report.GetItemText(0, 0), longText.c_str());

    auto& tree = Add<CTreeCtrl>(Place);
    EXPECT_STREQ(tree.GetItemText(tree.InsertItem(longText.c_str())), longText.c_str());

    auto& edit = Add<CRichEditCtrl>(Place, ES_MULTILINE);
    edit.SetWindowText("some text");
    edit.SetSel(5, 9);
    EXPECT_STREQ(edit.GetSelText(), "text");
    edit.ReplaceSel("words");
    EXPECT_EQ(edit.GetTextRange(0, -1, text), 10);
    EXPECT_STREQ(text, "some words");
}

TEST_F(Controls, ScrollLimitsAndSelectedRowsAreTold)
{
    auto& bar = Add<CScrollBar>(CRect(0, 0, 20, 100), SBS_VERT);
    SCROLLINFO info = {sizeof(info), SIF_RANGE | SIF_PAGE, 0, 99, 10, 0, 0};
    bar.SetScrollInfo(&info);
    EXPECT_EQ(bar.GetScrollLimit(), 90) << "room for the page";
    auto& list = Add<CListCtrl>(Place, LVS_REPORT);
    for (int row = 0; row < 4; ++row)
    {
        list.InsertItem(row, "row");
        list.SetItemState(row, row % 2 != 0 ? LVIS_SELECTED : 0, LVIS_SELECTED);
    }
    POSITION position = list.GetFirstSelectedItemPosition();
    EXPECT_EQ(list.GetNextSelectedItem(position), 1);
    EXPECT_EQ(list.GetNextSelectedItem(position), 3);
    EXPECT_EQ(position, nullptr);
}

TEST_F(Controls, StatusBarStretchesOnePane)
{
    CStatusBar bar;
    ASSERT_TRUE(bar.Create(&Host()));
    const UINT ids[] = {ID_SEPARATOR, ShortString, 500};
    EXPECT_FALSE(bar.SetIndicators(ids, 3)) << "the last string does not exist";
    EXPECT_TRUE(bar.SetIndicators(ids, 2));
    bar.SetPaneInfo(1, ShortString, SBPS_NORMAL, 100);
    EXPECT_STREQ(bar.GetStatusBarCtrl().GetText(1), "short");

    bar.MoveWindow(0, 0, 600, bar.CalcFixedLayout(TRUE, TRUE).cy);
    CRect last;
    bar.GetItemRect(1, &last);
    EXPECT_NEAR(last.right, 600, 4);
    EXPECT_NEAR(last.Width(), 100, 10);

    bar.SetPaneStyle(1, SBPS_DISABLED);
    EXPECT_STREQ(bar.GetStatusBarCtrl().GetText(1), "");
    bar.SetPaneText(1, "kept");
    bar.SetPaneStyle(1, SBPS_NORMAL);
    EXPECT_STREQ(bar.GetStatusBarCtrl().GetText(1), "kept");
    bar.DestroyWindow();
}

TEST_F(Controls, ToolBarSeparatorsTakeNoPictureAndAStyleKeepsTheText)
{
    CToolBar bar;
    ASSERT_TRUE(bar.Create(&Host()));
    const UINT ids[] = {101, ID_SEPARATOR, 102};
    ASSERT_TRUE(bar.SetButtons(ids, 3));
    UINT id = 0;
    UINT style = 0;
    int image = -1;
    bar.GetButtonInfo(2, id, style, image);
    EXPECT_EQ(image, 1);
    EXPECT_TRUE(bar.SetButtonText(2, "text"));
    bar.SetButtonStyle(2, TBBS_CHECKBOX | TBBS_CHECKED | TBBS_DISABLED);
    EXPECT_STREQ(bar.GetButtonText(2), "text");
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonChecked(102));
    EXPECT_FALSE(bar.GetToolBarCtrl().IsButtonEnabled(102));
    bar.DestroyWindow();
}
