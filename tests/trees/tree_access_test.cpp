// Trees as assistive programs see them.

#include "MultiTree.h"
#include "support/Accessible.h"

class TreeAccessInModes : public AccessInModes
{};

INSTANTIATE_TEST_SUITE_P(Modes, TreeAccessInModes, testing::Values(STD, ONBOARD));

TEST_P(TreeAccessInModes, ItemsOfATreeTellNamePlaceAndState)
{
    auto& tree = Add<MultiTree>(CRect(10, 40, 310, 340), TVS_HASBUTTONS | TVS_LINESATROOT);
    const HTREEITEM branch = tree.InsertItem("EDDF");
    const HTREEITEM leaf = tree.InsertItem("KJFK", branch);
    const HTREEITEM last = tree.InsertItem("LFPG");
    const Held<IAccessible> object = Reached(tree);
    const Read closed(*object, 1);
    EXPECT_EQ(closed.role, ROLE_SYSTEM_OUTLINEITEM);
    EXPECT_EQ(closed.name, "EDDF");
    EXPECT_EQ(closed.value, "0");
    EXPECT_EQ(closed.action, "Expand");
    EXPECT_EQ(closed.state, STATE_SYSTEM_COLLAPSED);
    EXPECT_EQ(Read(*object, 2).state, STATE_SYSTEM_OFFSCREEN);
    EXPECT_EQ(object->accDoDefaultAction(Child(1)), S_OK);
    EXPECT_EQ(Read(*object, 1).state, STATE_SYSTEM_EXPANDED);
    EXPECT_EQ(Read(*object, 2).name, "KJFK");
    EXPECT_EQ(Read(*object, 2).value, "1");
    EXPECT_EQ(object->accDoDefaultAction(Child(2)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(Read(*object, 4).role, -1);

    EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(3)), S_OK);
    EXPECT_EQ(Read(*object, 3).state, STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED);
    EXPECT_EQ(object->accSelect(SELFLAG_ADDSELECTION, Child(2)), S_OK);
    EXPECT_TRUE(tree.IsSelected(leaf) && tree.IsSelected(last) && !tree.IsSelected(branch));
    const CRect place = PlaceOf(*object, 2);
    EXPECT_EQ(ChildAt(*object, place.CenterPoint()), 2);
    QueueClick(place.CenterPoint());
    PumpAll();
    EXPECT_EQ(tree.GetSelectedCount(), 1U);
    EXPECT_EQ(SelectionIn(*object), 2);
    EXPECT_EQ(FocusIn(*object), 2);
    VARIANT child = {};
    EXPECT_EQ(object->accNavigate(NAVDIR_FIRSTCHILD, Child(1), &child), S_OK);
    EXPECT_EQ(child.lVal, 2);
    EXPECT_EQ(object->accNavigate(NAVDIR_NEXT, Child(3), &child), S_FALSE);
}

TEST_P(TreeAccessInModes, ChecksOfATreeAreTold)
{
    auto& tree = Add<MultiTree>(CRect(10, 40, 310, 340), TVS_CHECKBOXES);
    tree.InsertItem("EDDF");
    const HTREEITEM checked = tree.InsertItem("KJFK");
    Repaint(tree);
    tree.SetCheck(checked);
    const Held<IAccessible> object = Reached(tree);
    EXPECT_EQ(Read(*object, 1).state, 0);
    EXPECT_EQ(Read(*object, 2).state, STATE_SYSTEM_CHECKED);
    tree.ModifyStyle(TVS_CHECKBOXES, 0);
    EXPECT_EQ(Read(*object, 2).state, 0) << "a host's own picture";
}
