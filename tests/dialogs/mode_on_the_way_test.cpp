#include "CustomDropListCombo.h"
#include "CustomListBox.h"
#include "CustomPropPage.h"
#include "dialogs/dialog_for_tests.h"
#include "support/Acting.h"

namespace {

using ModeOnTheWayTest = CustomDialogTest;

// A control that ends the on-board mode on the way.
class Changing : public Acting<CWnd>
{
public:
    void In(const CWnd& window, int id)
    {
        SubclassWindow(::GetDlgItem(window, id));
        ActIn(WM_SIZE, [] { COnBoardUIGeneral::SetAppMode(STD); });
    }
};

// Opened in the on-board mode, which a control ends while it is scaled for it.
TEST_F(ModeOnTheWayTest, AWindowThatOpensFollowsTheModeBack)
{
    DialogForTests dialog;
    Changing changing;
    dialog.beforeInit = [&] { changing.In(dialog, IdEdit); };
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    ASSERT_FALSE(COnBoardUIGeneral::InOnBoardMode());
    EXPECT_NE(HFONT(*dialog.GetDlgItem(IdLabel)->GetFont()),
              HFONT(CCustomDialog::m_OBStaticTextFont));

    COnBoardUIGeneral::SetAppMode(ONBOARD);
    ViewForTests view(Host());
    view.MoveWindow(0, 0, 120, 60);
    const CSize total = view.GetTotalSize();
    Changing inView;
    inView.In(view, IDC_TEST_EDIT);
    view.OnInitialUpdate();
    ASSERT_FALSE(COnBoardUIGeneral::InOnBoardMode());
    EXPECT_NEAR(view.GetTotalSize().cx, total.cx, 2) << "all of it can be reached";
    EXPECT_NEAR(view.GetTotalSize().cy, total.cy, 2);

    struct Sheet : Scripted<CCustomPropSheet>
    {
        using Scripted<CCustomPropSheet>::Scripted;
        Changing changing;
        BOOL OnInitDialog() override
        {
            if (COnBoardUIGeneral::InOnBoardMode())
            {
                changing.In(*this, IDOK);
            }
            return Scripted<CCustomPropSheet>::OnInitDialog();
        }
    };
    CSize standard;
    for (const APPMODE opened : {STD, ONBOARD})
    {
        COnBoardUIGeneral::SetAppMode(opened);
        CCustomPropPage page(IDD_TEST_PAGE_1);
        Sheet sheet("Sheet", nullptr, &Host());
        sheet.AddPage(&page);
        sheet.inLoop = [&] {
            const CSize size = WindowRectOf(sheet).Size();
            EXPECT_TRUE(opened == STD || size == standard) << size.cx << ' ' << size.cy;
            standard = size;
            sheet.EndDialog(IDOK);
        };
        EXPECT_EQ(sheet.DoModal(), IDOK);
        ASSERT_FALSE(COnBoardUIGeneral::InOnBoardMode());
    }
}

TEST_F(ModeOnTheWayTest, APageAndItsSheetScaleOnceWhateverComesBeforeTheyAreInitialised)
{
    std::vector<CRect> opened;
    for (const bool onBoard : {true, false})
    {
        for (const bool ofPage : {true, false})
        {
            COnBoardUIGeneral::SetAppMode(onBoard ? ONBOARD : STD);
            Acting<CCustomPropPage> page(IDD_TEST_PAGE_1);
            Acting<Scripted<CCustomPropSheet>> sheet("Sheet", nullptr, &Host());
            const auto change = [] { COnBoardUIGeneral::SetAppMode(ONBOARD); };
            ofPage ? page.ActIn(WM_INITDIALOG, change) : sheet.ActIn(WM_INITDIALOG, change);
            sheet.AddPage(&page);
            sheet.inLoop = [&] {
                std::vector<CRect> places = ChildPlaces(sheet);
                places.push_back(ChildPlaces(page).front());
                opened = onBoard ? places : opened;
                EXPECT_EQ(places, opened) << ofPage;
                sheet.EndDialog(IDOK);
            };
            EXPECT_EQ(sheet.DoModal(), IDOK);
        }
    }
}

TEST_F(ModeOnTheWayTest, APageThatIsLeftMeanwhileIsHidden)
{
    CCustomPropPage pages[] = {CCustomPropPage(IDD_TEST_PAGE_1), CCustomPropPage(IDD_TEST_PAGE_1)};
    Scripted<CCustomPropSheet> sheet("Sheet", nullptr, &Host());
    sheet.AddPage(&pages[0]);
    sheet.AddPage(&pages[1]);
    Acting<CWnd> control;
    sheet.inLoop = [&] {
        control.SubclassWindow(::GetWindow(pages[0], GW_CHILD));
        control.ActIn(WM_SIZE, [&] { sheet.SetActivePage(1); });
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        EXPECT_FALSE(pages[0].IsWindowVisible());
        EXPECT_TRUE(pages[1].IsWindowVisible());
        EXPECT_EQ(ChildPlaces(pages[1]), ChildPlaces(pages[0])) << "scaled once";
        sheet.EndDialog(IDOK);
    };
    EXPECT_EQ(sheet.DoModal(), IDOK);
}

// Opened, or opened anew, while another follows the mode, whose turn is before theirs.
TEST_F(ModeOnTheWayTest, WhatOpensMeanwhileIsScaledOnce)
{
    ViewForTests first(Host()), view(Host());
    DialogForTests dialog;
    CCustomPropPage page(IDD_TEST_PAGE_1);
    Scripted<CCustomPropSheet> sheet("Sheet", nullptr, &Host());
    sheet.AddPage(&page);
    std::vector<CRect> places;
    const auto listed = [&] {
        std::vector<CRect> all;
        for (const CWnd* const form : std::initializer_list<CWnd*>{&view, &dialog, &page, &sheet})
        {
            const std::vector<CRect> its = ChildPlaces(*form);
            all.insert(all.end(), its.begin(), its.end());
        }
        return all;
    };
    // The sheet stays until the change on its way has come to all, which is before the next one.
    sheet.inLoop = [&] {
        COnBoardUIGeneral::SetAppMode(COnBoardUIGeneral::GetAppMode());
        places = listed();
        sheet.EndDialog(IDOK);
    };
    const auto open = [&] {
        view.DestroyWindow();
        view.Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 500, 400), &Host(), 5, nullptr);
        view.OnInitialUpdate();
        dialog.DestroyWindow();
        dialog.CreateIndirect(form, &Host());
        sheet.DoModal();
    };
    Acting<CWnd> control;
    control.SubclassWindow(::GetDlgItem(first, IDC_TEST_EDIT));
    for (const APPMODE mode : {ONBOARD, EFB, STD})
    {
        control.ActIn(WM_SIZE, open);
        COnBoardUIGeneral::SetAppMode(mode);
        const std::vector<CRect> meanwhile = std::exchange(places, {});
        open();
        EXPECT_EQ(meanwhile, places) << APPMODE_NAMES[mode];
        EXPECT_FALSE(places.empty());
    }
    // The changes after that are its own.
    const std::vector<CRect> standard = ChildPlaces(dialog);
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    EXPECT_EQ(ChildPlaces(dialog), Enlarged(standard));
}

TEST_F(ModeOnTheWayTest, AListOfWholeRowsAndAComboHaveTheirHeightsInEachMode)
{
    CCustomDropListCombo::RegisterWndClass(AfxGetInstanceHandle());
    DialogForTests dialog;
    Acting<CStatic> label;
    Acting<CCustomListBox> list;
    Acting<CCustomDropListCombo> combo;
    DialogTemplate controls({.style = WS_POPUP | WS_VISIBLE});
    controls.Add("Static", "Label", 0, CRect(5, 5, 60, 17), 1)
        .Add("ListBox", "", WS_VSCROLL | WS_HSCROLL, CRect(80, 5, 140, 61), 2)
        .Add("CCUSTOMDROPLISTCOMBO", "", 0, CRect(5, 65, 70, 78), 3)
        .Add("Edit", "", 0, CRect(5, 20, 70, 60), 4);
    dialog.beforeInit = [&] {
        label.SubclassWindow(*dialog.GetDlgItem(1));
        list.SubclassWindow(*dialog.GetDlgItem(2));
        combo.SubclassWindow(*dialog.GetDlgItem(3));
    };
    ASSERT_TRUE(dialog.CreateIndirect(controls, &Host()));
    const auto heights = [&] {
        return std::pair(WindowRectOf(list).Height(), WindowRectOf(combo).Height());
    };
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    const auto onBoard = heights();
    COnBoardUIGeneral::SetAppMode(STD); // in which the list has the library's font now
    const auto standard = heights();
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    list.AddString("so wide that the list is lower, with a bar below it");
    list.ResetContent();
    AddRows(list, 20);
    const std::function<void(std::function<void()>)> meanwhile[] = {
        [](auto) {},
        [&](auto act) { label.ActIn(WM_SIZE, act); },
        [&](auto act) { list.ActIn(WM_SETFONT, act); },
        [&](auto act) { list.ActIn(WM_SIZE, act); },
        [&](auto act) { list.ActIn(WM_WINDOWPOSCHANGING, act, 4); }, // as it gets its height back
        [&](auto act) { combo.ActIn(WM_SIZE, act, 1); },
    };
    for (const auto& go : meanwhile)
    {
        go([] { COnBoardUIGeneral::SetAppMode(ONBOARD); });
        COnBoardUIGeneral::SetAppMode(STD);
        EXPECT_EQ(heights(), COnBoardUIGeneral::InOnBoardMode() ? onBoard : standard);
        COnBoardUIGeneral::SetAppMode(STD);
        EXPECT_EQ(heights(), standard);
        go([] { COnBoardUIGeneral::SetAppMode(STD); });
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        EXPECT_EQ(heights(), COnBoardUIGeneral::InOnBoardMode() ? onBoard : standard);
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        EXPECT_EQ(heights(), onBoard);
    }
}

} // namespace
