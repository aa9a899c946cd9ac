// The classes for the platform's controls: the messages behind less obvious members.

#include <afxext.h>

#include "support/WindowTest.h"

namespace {

const CRect Place(10, 10, 210, 160);

using Controls = WindowTest;

} // namespace

TEST_F(Controls, TextsOfAnyLengthAndSelectedRowsAreTold)
{
    const std::string longText(1000, 'x'); // more than a first buffer holds
    auto& list = Add<CListBox>(Place, LBS_NOINTEGRALHEIGHT);
    list.AddString(longText.c_str());
    CString text;
    list.GetText(0, text);
    EXPECT_STREQ(text, longText.c_str());

    auto& tree = Add<CTreeCtrl>(Place);
    EXPECT_STREQ(tree.GetItemText(tree.InsertItem(longText.c_str())), longText.c_str());

    auto& report = Add<CListCtrl>(Place, LVS_REPORT);
    report.InsertColumn(0, "name", LVCFMT_LEFT, 80);
    for (int row = 0; row < 4; ++row)
    {
        report.InsertItem(row, longText.c_str());
        report.SetItemState(row, row % 2 != 0 ? LVIS_SELECTED : 0, LVIS_SELECTED);
    }
    EXPECT_STREQ(report.GetItemText(0, 0), longText.c_str());
    POSITION position = report.GetFirstSelectedItemPosition();
    EXPECT_EQ(report.GetNextSelectedItem(position), 1);
    EXPECT_EQ(report.GetNextSelectedItem(position), 3);
    EXPECT_EQ(position, nullptr);
}

TEST_F(Controls, PlacesThatAreNotThereAreEmpty)
{
    CStatusBar bar;
    ASSERT_TRUE(bar.Create(&Host()));
    const UINT panes[] = {ID_SEPARATOR};
    EXPECT_FALSE(bar.SetIndicators(panes, 0));
    for (const int place : {-1, 0, INT_MAX})
    {
        bar.SetPaneInfo(place, 1, SBPS_STRETCH, 10);
        EXPECT_EQ(bar.GetItemID(place), 0U);
        EXPECT_STREQ(bar.GetPaneText(place), "");
    }

    AfxInitRichEdit2();
    auto& edit = Add<CRichEditCtrl>(Place);
    edit.SetWindowText("abc");
    CString text;
    edit.GetTextRange(INT_MIN, INT_MAX, text);
    EXPECT_STREQ(text, "abc");
    edit.GetTextRange(INT_MAX, 2, text);
    EXPECT_STREQ(text, "");
}
