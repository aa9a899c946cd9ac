// The drop-list combo as its host sees it: places, modes, ends, templates, items, looks.

#include "CustomDialog.h"
#include "lists/ComboLayout.h"
#include "lists/combo_for_tests.h"

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ComboLayout, TheListOpensWhereThereIsRoomAndANarrowComboSharesItsWidth)
{
    const CRect screen(0, 0, 1000, 800);
    const std::tuple<int, lists::ListSize, CRect> cases[] = {
        {566, {10, 20, 4}, {50, 596, 250, 800}},  // just enough
        {567, {10, 20, 4}, {50, 363, 250, 567}},  // one pixel short
        {300, {100, 20, 4}, {50, 330, 250, 794}}, // nowhere enough: whole rows on the larger side
        {-100, {0, 0, 0}, {50, -70, 250, -69}},   // nothing to show
        {790, {1000000, 1000000, 0}, {50, -999210, 250, 790}},
    };
    for (const auto& [top, size, list] : cases)
    {
        EXPECT_EQ(lists::PlaceList(CRect(50, top, 250, top + 30), screen, size), list) << top;
    }
    const lists::ComboParts narrow = lists::LayOutCombo(CRect(0, 0, 40, 30), 2, 52, false);
    EXPECT_EQ(narrow.button, CRect(20, 2, 38, 28));
    EXPECT_EQ(narrow.text.right, narrow.button.left);
}

TEST_P(ComboInMode, AtTheScreensBottomEdgeTheListOpensUpwards)
{
    auto& combo = AddCombo(0);
    CRect work;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &work, 0);
    Host().SetWindowPos(nullptr, 100, work.bottom - 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    // The height follows the items while there are few, and while it is open.
    combo.ToggleDropList();
    for (const int rows : {1, 2, 3})
    {
        combo.AddString("item");
        EXPECT_EQ(ClientRectOf(combo.List()).Height(), rows * combo.List().GetItemHeight());
    }
    combo.ToggleDropList();
    combo.Fill(7);
    combo.Open();
    EXPECT_EQ(combo.ListRect().bottom, WindowRectOf(combo).top);
    Click(combo.RowPoint(9));
    EXPECT_EQ(combo.GetCurSel(), 9);
}

TEST_F(ComboTest, AModeChangeReshapesAComboAndItsOpenList)
{
    auto& combo = AddCombo(30, 4);
    CCustomComboLBox& list = combo.List();
    const int before = WindowRectOf(combo).Height();
    const int standard = list.GetItemHeight();
    combo.ToggleDropList();
    for (const APPMODE mode : {ONBOARD, EFB, STD, EFBFS, STD})
    {
        Press(combo.RowPoint(list.GetTopIndex() + 1));
        EXPECT_EQ(list.GetHighlightedRow(), list.GetTopIndex() + 1) << "it can be worked";
        COnBoardUIGeneral::SetAppMode(mode);
        Release(); // on another row than it was pressed
        EXPECT_TRUE(combo.IsExpanded());
        EXPECT_EQ(mode == STD, list.GetItemHeight() == standard);
        EXPECT_EQ(combo.ListRect().top, WindowRectOf(combo).bottom);
        EXPECT_EQ(ClientRectOf(list).Height(), 10 * list.GetItemHeight());
        EXPECT_EQ((list.GetStyle() & WS_VSCROLL) != 0, mode == STD);
        // On-board as high as a row of its list with its outline.
        EXPECT_EQ(WindowRectOf(combo).Height(), mode == STD ? before : list.GetItemHeight() + 6);
    }
    combo.ToggleDropList();
}

TEST_P(ComboInMode, AComboTellsHoweverItsListIsClosedAndMayEndInIt)
{
    const Act<ComboForTests&> endings[] = {
        {"pick", [](ComboForTests& combo) { Click(combo.RowPoint(2)); }},
        {"click outside", [this](ComboForTests&) { Click(Elsewhere); }},
        {"click on it", [](ComboForTests& combo) { Click(combo.Middle()); }},
        {"Enter", [](ComboForTests&) { TypeKey(VK_RETURN); }},
        {"focus", [this](ComboForTests&) { Host().SetFocus(); }},
        {"disabled", [](ComboForTests& combo) { combo.EnableWindow(FALSE); }},
        {"hidden", [](ComboForTests& combo) { combo.ShowWindow(SW_HIDE); }},
        {"capture", [](ComboForTests&) { ::ReleaseCapture(); }},
    };
    for (const auto& [name, act] : endings)
    {
        SCOPED_TRACE(name);
        ComboForTests& combo = AddCombo(5);
        combo.Open();
        const OnceTold told(Host(), CBN_SELCHANGE, [&, ending = std::string(name)] {
            EXPECT_FALSE(combo.IsExpanded());
            EXPECT_NE(::GetCapture(), combo.GetSafeHwnd());
            EXPECT_EQ(::GetFocus() == combo, ending != "focus");
            Remove(combo);
        });
        act(combo);
        EXPECT_TRUE(bool(told));
        EXPECT_EQ(::GetCapture(), nullptr);
    }
}

TEST_P(ComboInMode, AHostMayActOnTheComboInItsNotification)
{
    auto& combo = AddCombo(5);
    const OnceTold act(Host(), CBN_SELCHANGE, [&] {
        EXPECT_FALSE(combo.IsExpanded());
        COnBoardUIGeneral::SetAppMode(GetParam() == STD ? ONBOARD : STD);
        combo.SetCurSel(1);
        combo.RemoveString(0);
    });
    combo.Open();
    Click(combo.RowPoint(4));
    EXPECT_STREQ(combo.GetSelString(), "Item 1");
    EXPECT_THAT(TakeCodes(combo), ElementsAre(CBN_SELCHANGE));
    // Open, by its program: nothing is told, also when the items go away meanwhile.
    combo.ToggleDropList();
    combo.SetCurSel(0);
    EXPECT_FALSE(combo.IsExpanded());
    combo.ToggleDropList();
    MoveTo(combo.RowPoint(3));
    combo.ResetContent();
    EXPECT_EQ(combo.List().GetHighlightedRow(), -1);
    combo.DestroyWindow(); // open
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_THAT(Host().CodesFrom(FirstId), IsEmpty());
}

TEST_F(ComboTest, AComboThatHasMovedTellsItsNewParent)
{
    auto& combo = AddCombo(3);
    HostWindow bar;
    combo.SetParent(&bar);
    combo.SetFocus();
    TypeKey(VK_DOWN);
    EXPECT_EQ(bar.CodesFrom(FirstId), std::vector<UINT>{CBN_SELCHANGE});
    EXPECT_EQ(bar.Told().back().lParam, reinterpret_cast<LPARAM>(combo.m_hWnd));
    combo.SetParent(&Host());
}

TEST_F(ComboTest, AListOfTheCallersStaysTheCallers)
{
    CCustomComboLBox list;
    auto& combo = Add(std::make_unique<ComboForTests>(&list), CRect(50, 50, 250, 80));
    auto& other = AddCombo(2);
    combo.Fill(3);
    combo.ToggleDropList();
    EXPECT_EQ(combo.DetachCustomComboLBox(), &list);
    EXPECT_FALSE(combo.IsExpanded());
    EXPECT_EQ(combo.AddString("no list"), CB_ERR);
    Click(combo.Middle()); // opens nothing
    other.SetCustomComboLBox(&list);
    EXPECT_EQ(other.GetCount(), 3);
    combo.SetCustomComboLBox(&list); // taken away from the other
    EXPECT_FALSE(other.HasList());
    EXPECT_EQ(combo.GetCount(), 3);
    {
        CCustomComboLBox shortLived;
        other.SetCustomComboLBox(&shortLived);
        EXPECT_EQ(other.AddString("a"), 0);
    }
    EXPECT_FALSE(other.HasList());
    Remove(combo);
    EXPECT_EQ(list.GetSafeHwnd(), nullptr); // its window served the combo
}

TEST_F(ComboTest, AComboOfATemplateWorksWithoutAnObjectOfTheHosts)
{
    CCustomDialog dialog(0U, nullptr);
    ASSERT_TRUE(dialog.CreateIndirect(ComboForm(), &Host()));
    const HWND window = ::GetDlgItem(dialog, ComboId);
    EXPECT_NE(::SendMessage(window, WM_GETFONT, 0, 0), 0) << "the dialog's";
    PumpAll();
    auto* const combo = CCustomDropListCombo::FromWindow(window);
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window), combo) << "made by the first paint";
    EXPECT_EQ(combo->GetFont()->GetSafeHandle(), dialog.GetFont()->GetSafeHandle());
    combo->AddString("one");
    combo->AddString("two");
    combo->SetCurSel(1);
    EXPECT_EQ(CCustomDropListCombo::FromWindow(dialog), nullptr);
    constexpr int standard = 70; // as the host has it, not as the combo would
    combo->SetWindowPos(nullptr, 0, 0, 200, standard, SWP_NOMOVE | SWP_NOZORDER);
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    EXPECT_EQ(combo->GetFont()->GetSafeHandle(),
              CCustomDropListCombo::GetOnBoardFont().GetSafeHandle());

    // An object of the host's takes it over as it is, also while it is open.
    combo->ToggleDropList();
    ComboForTests own;
    EXPECT_TRUE(own.SubclassWindow(&dialog, ComboId, 4));
    EXPECT_EQ(own.List().GetMaxRows(), 4);
    EXPECT_STREQ(own.GetSelString(), "two");
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_NE(WindowRectOf(own).Height(), standard);
    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_EQ(WindowRectOf(own).Height(), standard);
    Click(own.Middle());
    Click(own.RowPoint(0));
    EXPECT_EQ(own.GetCurSel(), 0);
    ComboForTests second;
    EXPECT_FALSE(second.SubclassWindow(&dialog, ComboId, 0)) << "there is one already";
    // One with a list of its own keeps that.
    CDialog other;
    ASSERT_TRUE(other.CreateIndirect(ComboForm(), &Host()));
    CCustomDropListCombo::FromWindow(::GetDlgItem(other, ComboId))->AddString("the class's");
    CCustomComboLBox list;
    ComboForTests listed(&list);
    ASSERT_TRUE(listed.SubclassWindow(&other, ComboId, 4));
    EXPECT_EQ(&listed.List(), &list);
    EXPECT_EQ(listed.AddString("the host's"), 0);
}

TEST_F(ComboTest, AnObjectOfTheHostsIsThereBeforeTheClassMakesOne)
{
    struct ExchangingDialog : CDialog
    {
        ComboForTests combo;
        void DoDataExchange(CDataExchange* exchange) override
        {
            DDX_Control(exchange, ComboId, combo);
        }
    };
    const size_t before = ComboForTests::m_instances.size();
    ExchangingDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(ComboForm(), &Host()));
    PumpAll();
    EXPECT_EQ(ComboForTests::m_instances.size(), before + 1);
    EXPECT_EQ(dialog.combo.GetSafeHwnd(), ::GetDlgItem(dialog, ComboId));
    // What the class has made goes with its window, or by name; the host's stays.
    CDialog other;
    ASSERT_TRUE(other.CreateIndirect(ComboForm(), &Host()));
    PumpAll();
    EXPECT_EQ(ComboForTests::m_instances.size(), before + 2);
    CCustomDropListCombo::FreeInstances();
    EXPECT_EQ(ComboForTests::m_instances.size(), before + 1);
    EXPECT_EQ(::GetDlgItem(other, ComboId), nullptr);
    EXPECT_EQ(dialog.combo.AddString("one"), 0);
    dialog.DestroyWindow();
    other.DestroyWindow();
}

TEST_F(ComboTest, ItemsKeepTheirDataAndAbsentOnesAreTold)
{
    struct Counting : ComboForTests // and owns what is set, for all that is asked of it
    {
        int inserted = 0;
        int InsertString(int index, LPCSTR text) override
        {
            ++inserted;
            return ComboForTests::InsertString(index, text);
        }
        int SetItemDataPtr(int index, void* data) override
        {
            return data == nullptr ? CB_ERR : ComboForTests::SetItemDataPtr(index, data);
        }
    };
    auto& combo = Add<Counting>(CRect(50, 50, 250, 80), WS_TABSTOP);
    int data[3] = {};
    for (const char* const text : {"beta", "Gamma", "alpha"})
    {
        const int item = combo.AddString(text);
        combo.SetItemDataPtr(item, &data[item]);
    }
    combo.SetCurSel(1);
    combo.Sort(true);
    EXPECT_STREQ(combo.GetSelString(), "Gamma");
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(combo.GetItemDataPtr(0), &data[2]);
    combo.Sort(false);
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_EQ(combo.RemoveItemDataPtr(1), &data[0]);
    EXPECT_EQ(combo.GetItemDataPtr(1), nullptr);
    EXPECT_EQ(combo.inserted, 0) << "by adding";
    EXPECT_EQ(combo.InsertString(0, nullptr), 0); // an empty text
    for (const int absent : {-2, 4, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(combo.RemoveItemDataPtr(absent), nullptr);
        // Behind what is not there comes the first.
        EXPECT_EQ(combo.FindString(absent, "be"), 2);
        EXPECT_EQ(combo.FindStringExact(absent, "BETA"), 2);
        EXPECT_EQ(combo.SelectString(absent, "gamma"), 1);
    }
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_THAT(TakeCodes(combo), IsEmpty());
}

TEST_P(ComboInMode, DisabledFocusedOpenAndPlainLookDifferent)
{
    auto& combo = AddCombo(3);
    const auto look = [&] { return Settled(combo); };
    std::vector<Pixels> looks = {look()};
    const auto expectNew = [&](COLORREF ground) {
        looks.push_back(look());
        EXPECT_EQ(std::ranges::count(looks, looks.back()), 1) << looks.size();
        EXPECT_TRUE(GetParam() == STD || looks.back().Count(ground) > 1000) << looks.size();
    };
    combo.SetFocus();
    expectNew(RGB(50, 80, 110));
    combo.ToggleDropList();
    expectNew(RGB(50, 80, 110));
    combo.ToggleDropList();
    combo.SetCurSel(1);
    expectNew(RGB(50, 80, 110));
    Host().SetFocus();
    expectNew(RGB(180, 180, 180));
    EXPECT_TRUE(GetParam() == STD || look().At(1, 1) == RGB(70, 70, 70));
    combo.EnableWindow(FALSE);
    Click(combo.Middle());
    EXPECT_FALSE(combo.IsExpanded());
    expectNew(RGB(100, 100, 100));
    combo.EnableWindow(TRUE);
    combo.SetCurSel(0);
    EXPECT_EQ(look(), looks[0]);
}
