#include "MultiTree.h"
#include "dialogs/dialog_for_tests.h"
#include "support/Acting.h"

#include <cstring>

namespace {

TEST_F(CustomDialogTest, TheHostKeepsTheOrderOfItsWindows)
{
    struct Manager : CZOrderManager
    {
        int updates = 0;
        std::function<void()> restack = [] {};
        void UpdateZOrder() override
        {
            ++updates;
            restack();
        }
    } manager;
    DialogForTests dialog(form, Host(), &host);
    dialog.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE); // without a manager
    host.manager = &manager;
    for (const APPMODE mode : {STD, EFBFS})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        manager.updates = 0;
        dialog.SetWindowPos(nullptr, 5, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        EXPECT_EQ(manager.updates, 0);
        WINDOWPOS position = {dialog, nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOSIZE};
        dialog.SendMessage(WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
        dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE);
        EXPECT_EQ(manager.updates, 2);
    }
    manager.restack = [&] { dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE); };
    dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE);
    EXPECT_EQ(manager.updates, 3) << "not again for the windows that it restacks itself";
}

// Modal -----------------------------------------------------------------------------------------

TEST_F(CustomDialogTest, TheFlightBagIsToldOfModalDialogsInItsModes)
{
    Journal journal;
    FlightBag bag(journal);
    CCustomDialog::SetEfb(&bag);
    const Journal untold = {"init", "shown"};
    const Journal told = {"begin", "init", "shown", "end"};
    // The mode before and meanwhile.
    const std::tuple<APPMODE, APPMODE, const Journal&> cases[] = {{STD, STD, untold},
                                                                  {FULLSCREEN, ONBOARD, untold},
                                                                  {ONBOARD, EFB, untold},
                                                                  {EFB, STD, told},
                                                                  {EFBFS, EFBFS, told}};
    DialogForTests parent(form, Host());
    const DialogForTests modeless(form, parent);
    DialogForTests dialog; // an object can run more than once
    dialog.InitModalIndirect(form, &parent);
    dialog.inInit = [&] { journal.push_back("init"); };
    for (const auto& [before, meanwhile, expected] : cases)
    {
        COnBoardUIGeneral::SetAppMode(before);
        journal.clear();
        dialog.inLoop = [&, mode = meanwhile] {
            journal.push_back("shown");
            EXPECT_TRUE(dialog.IsModal() && parent.HasModalChild() && !dialog.HasModalChild());
            COnBoardUIGeneral::SetAppMode(mode);
            dialog.EndDialog(7);
        };
        EXPECT_EQ(dialog.DoModal(), 7);
        EXPECT_EQ(journal, expected) << APPMODE_NAMES[before];
        EXPECT_FALSE(dialog.IsModal() || parent.HasModalChild());
    }
    COnBoardUIGeneral::SetAppMode(EFBFS);
    journal.clear();
    CCustomDialog missing(31999U, &Host());
    EXPECT_EQ(missing.DoModal(), -1);
    EXPECT_FALSE(missing.IsModal());
    EXPECT_EQ(journal, (Journal{"begin", "end"})) << "whoever heard the beginning hears the end";
}

TEST_F(CustomDialogTest, EveryWayOfCreatingGoesThroughTheTemplate)
{
    const HGLOBAL movable = ::GlobalAlloc(GMEM_MOVEABLE, form.Size());
    std::memcpy(::GlobalLock(movable), form.Data(), form.Size());
    ::GlobalUnlock(movable);
    const std::function<BOOL(DialogForTests&)> ways[] = {
        [&](auto& d) { return d.Create(IDD_TEST_FORM, &Host()); },
        [&](auto& d) { return d.CreateOB(IDD_TEST_FORM, &Host()); },
        [&](auto& d) { return d.CreateIndirect(form, &Host()); },
        [&](auto& d) { return d.CreateIndirect(movable, &Host()); },
    };
    for (const auto& way : ways)
    {
        std::vector<CRect> places[ONBOARD + 1];
        for (const APPMODE mode : {STD, ONBOARD})
        {
            const ModeScope scope(mode);
            DialogForTests dialog;
            EXPECT_TRUE(way(dialog));
            places[mode] = ChildPlaces(dialog);
            EXPECT_FALSE(DialogForTests().Create("none", &Host()));
            EXPECT_FALSE(DialogForTests().CreateIndirect(LPCDLGTEMPLATE(nullptr), &Host()));
        }
        EXPECT_EQ(places[ONBOARD], Enlarged(places[STD])) << &way - ways;
    }
    ::GlobalFree(movable);
}

TEST_F(CustomDialogTest, AnOpenDialogFollowsTheMode)
{
    constexpr DWORD Styles = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    const DialogTemplate form = Form(WS_POPUP | Styles | WS_VISIBLE | DS_MODALFRAME);
    DialogForTests dialog(form, Host());
    const CRect window = WindowRectOf(dialog);
    const CRect standard = ChildPlaces(dialog).front();
    const auto bandHeight = [&] {
        return ClientPoint(dialog, CPoint(0, 0)).y - WindowRectOf(dialog).top - 3;
    };
    const int caption = bandHeight();
    const auto font = [](const CWnd& of, int id) {
        LOGFONT description = {};
        of.GetDlgItem(id)->GetFont()->GetLogFont(&description);
        return std::abs(description.lfHeight);
    };
    const LONG small = font(dialog, IdLabel);
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    const LONG large = font(dialog, IdLabel);
    EXPECT_GT(large, small);
    EXPECT_EQ(font(dialog, IdButton), large);
    EXPECT_EQ(WindowRectOf(dialog), window) << "its rectangle is its owner's";
    EXPECT_EQ(bandHeight(), BandOf(dialog)) << "also with the platform's caption style";
    EXPECT_EQ(ChildPlaces(dialog).front(), Enlarged(standard));
    EXPECT_TRUE(ShowsWhatAPaintWould(dialog));
    dialog.ShowWindow(SW_HIDE);
    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_FALSE(dialog.IsWindowVisible()) << "nothing is shown by it";
    COnBoardUIGeneral::SetAppMode(EFB);
    DialogForTests opened(form, Host());
    EXPECT_EQ(font(opened, IdButton), large);
    COnBoardUIGeneral::SetAppMode(STD);
    for (const DialogForTests* const each : {&dialog, &opened})
    {
        EXPECT_EQ(each->GetStyle() & Styles, Styles) << "something to move and close it by";
        EXPECT_EQ(font(*each, IdButton), small);
    }
    EXPECT_EQ(bandHeight(), caption);
}

// The bar lies elsewhere beside the pointer then, whose next move would take it as far.
TEST_F(CustomDialogTest, AThumbOfThePlatformsIsLetGoWhereItIsWhenTheModeChanges)
{
    DialogForTests dialog(
        DialogTemplate(CRect(0, 0, 200, 150), WS_POPUP | WS_VISIBLE)
            .Add("Edit", "", ES_MULTILINE | WS_VSCROLL, CRect(5, 5, 120, 60), IdEdit),
        Host());
    const HWND edit = ::GetDlgItem(dialog, IdEdit);
    for (int line = 0; line < 200; ++line)
    {
        ::SendMessage(edit, EM_REPLACESEL, FALSE, LPARAM("\r\n"));
    }
    ::SendMessage(edit, WM_VSCROLL, SB_TOP, 0);
    ViewForTests view(dialog);
    view.MoveWindow(185, 0, 110, 60);
    view.SetScrollSizes(MM_TEXT, CSize(100, 1000));
    for (const HWND window : {edit, view.m_hWnd})
    {
        COnBoardUIGeneral::SetAppMode(STD);
        const CRect control = ChildPlaces(view).front();
        const CRect rect = WindowRectOf(window);
        const CPoint thumb(rect.right - 9, rect.top + 22);
        const auto move = [&](int by) { return [=] { QueueMove(thumb + CSize(0, by)); }; };
        int before = 0;
        MoveTo(thumb);
        PlaySteps({[] { QueueButton(true); }, move(8), move(9),
                   [&] {
                       COnBoardUIGeneral::SetAppMode(ONBOARD);
                       before = ::GetScrollPos(window, SB_VERT);
                   },
                   move(12), move(13), [] { QueueButton(false); }});
        EXPECT_EQ(::GetScrollPos(window, SB_VERT), before);
        EXPECT_EQ(before == 0, window == view.m_hWnd);
        SCROLLINFO bar = {.cbSize = sizeof(bar), .fMask = SIF_POS | SIF_TRACKPOS};
        ::SendMessage(window, WM_VSCROLL, SB_BOTTOM, 0);
        EXPECT_TRUE(::GetScrollInfo(window, SB_VERT, &bar));
        EXPECT_EQ(bar.nTrackPos, bar.nPos) << "else the thumb is drawn where it was held";
        ::SendMessage(window, WM_VSCROLL, SB_TOP, 0);
        EXPECT_EQ(ChildPlaces(view).front(), Enlarged(control)) << "scaled from the corner";
    }
}

TEST_F(CustomDialogTest, ATreeThatItOpensWithHasItsFontInTheStandardMode)
{
    DialogTemplate form(
        {.style = WS_POPUP | WS_CAPTION | WS_VISIBLE, .points = 9, .face = "Arial"});
    form.Add(WC_TREEVIEW, "", 0, CRect(5, 5, 100, 60), 101);
    for (const APPMODE mode : {STD, ONBOARD})
    {
        for (const auto taken : {&DialogForTests::beforeInit, &DialogForTests::inInit})
        {
            COnBoardUIGeneral::SetAppMode(mode);
            MultiTree tree;
            DialogForTests dialog;
            dialog.*taken = [&] { EXPECT_TRUE(tree.SubclassTreeCtrlId(101, &dialog)); };
            ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
            for (const APPMODE next : {ONBOARD, STD})
            {
                COnBoardUIGeneral::SetAppMode(next);
                PumpAll();
            }
            EXPECT_EQ(tree.GetFont(), dialog.GetFont()) << mode;
        }
    }
}

TEST_F(CustomDialogTest, ControlsAreScaledOnceWhenTheModeChangesOnTheirWay)
{
    const std::vector<CRect> standard = StandardPlaces();
    for (const auto moment :
         {&DialogForTests::inCreate, &DialogForTests::beforeInit, &DialogForTests::inInit})
    {
        for (const auto& [from, to] : {std::pair{STD, ONBOARD}, {ONBOARD, STD}})
        {
            SCOPED_TRACE(from);
            const ModeScope mode(from);
            DialogForTests dialog;
            dialog.*moment = [to = to] { COnBoardUIGeneral::SetAppMode(to); };
            ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
            const std::vector<CRect> places = ChildPlaces(dialog);
            if (moment != &DialogForTests::inInit || to != STD)
            {
                EXPECT_EQ(places, to == STD ? standard : Enlarged(standard));
                continue;
            }
            // Scaled there and back, each side may have lost a fraction.
            EXPECT_NEAR(places.back().left, standard.back().left, 1);
            EXPECT_NEAR(places.back().bottom, standard.back().bottom, 2);
        }
    }
}

TEST_F(CustomDialogTest, AModeThatAControlChangesOnTheWayComesToAllInOrder)
{
    // Places and fonts after going on-board and back or on to another mode, which the control does
    // in the middle of the first change, in one of its messages; 0: the host does it.
    const auto after = [this](APPMODE last, int id, UINT message) {
        DialogForTests dialog(form, Host());
        Acting<CWnd> control;
        control.SubclassWindow(*dialog.GetDlgItem(id));
        control.ActIn(message, [last] { COnBoardUIGeneral::SetAppMode(last); });
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        control.SendMessage(0);
        std::vector<LRESULT> fonts;
        for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
        {
            fonts.push_back(::SendMessage(child, WM_GETFONT, 0, 0));
        }
        if (last == STD)
        {
            EXPECT_EQ(fonts.front(), dialog.SendMessage(WM_GETFONT)) << "of the label";
            fonts.front() = fonts.back() = 0; // of a dialog, each has its own
        }
        std::pair told(ChildPlaces(dialog), fonts);
        COnBoardUIGeneral::SetAppMode(STD);
        return told;
    };
    for (const APPMODE last : {STD, EFB})
    {
        const auto wanted = after(last, IdEdit, 0);
        for (const UINT message :
             {WM_SETFONT, WM_WINDOWPOSCHANGING, WM_NCCALCSIZE, WM_WINDOWPOSCHANGED, WM_SIZE})
        {
            for (const int id : {IdLabel, IdEdit})
            {
                EXPECT_EQ(after(last, id, message), wanted) << last << ' ' << id << ' ' << message;
            }
        }
    }
}

TEST_F(CustomDialogTest, ChildrenThatTheDialogMakesItselfDisturbNoOthersAndFollowTheModeInItsFont)
{
    const std::vector<CRect> standard = StandardPlaces();
    const ModeScope mode(ONBOARD);
    DialogForTests dialog;
    CStatic made[4];
    const auto make = [&](int index) {
        CStatic& label = made[index];
        label.Create("own", WS_CHILD, CRect(0, 0, 50, 13), &dialog, UINT(900 + index));
        label.SetFont(dialog.GetFont());
    };
    dialog.inCreate = [&] { make(0); };
    dialog.beforeInit = [&] { make(1); };
    dialog.inInit = [&] { make(2); };
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    std::vector<CRect> places = ChildPlaces(dialog);
    places.erase(places.begin());
    places.resize(standard.size());
    EXPECT_EQ(places, Enlarged(standard));
    COnBoardUIGeneral::SetAppMode(STD);
    make(3);
    for (const APPMODE next : {STD, EFB, STD})
    {
        COnBoardUIGeneral::SetAppMode(next);
        for (const CStatic& label : made)
        {
            EXPECT_TRUE(&label == &made[0] ||
                        label.GetFont() == dialog.GetDlgItem(IdLabel)->GetFont())
                << next << label.GetDlgCtrlID();
        }
    }
    // A control that cannot be made takes the dialog with it, not the object.
    DialogTemplate broken = form;
    broken.Add("no such class", "", 0, CRect(0, 0, 9, 9), 9);
    DialogForTests again;
    EXPECT_FALSE(again.CreateIndirect(broken, &Host()));
    EXPECT_TRUE(again.CreateIndirect(form, &Host()));
}

// Controls and children -------------------------------------------------------------------------

TEST_F(CustomDialogTest, TheListOfControlsOutlivesTheIdleMoment)
{
    DialogForTests dialog(form, Host());
    PumpAll();
    CWnd::DeleteTempMap();
    CEdit edit; // attached late, as hosts do
    ASSERT_TRUE(edit.SubclassDlgItem(IdEdit, &dialog));
    EXPECT_EQ(dialog.GetControls()[1], &edit);
    edit.UnsubclassWindow();
    EXPECT_NE(dialog.GetControls()[1], &edit);
    EXPECT_EQ(dialog.GetControls()[1]->GetDlgCtrlID(), IdEdit);
    ::DestroyWindow(::GetDlgItem(dialog, IdList));
    EXPECT_EQ(dialog.GetControls().size(), 5U);
    CWnd extra;
    extra.Create("STATIC", "", WS_CHILD, CRect(0, 0, 1, 1), &dialog, 900);
    dialog.BuildListOfControls(&extra);
    dialog.BuildListOfControls(static_cast<CWnd*>(nullptr));
    EXPECT_EQ(dialog.GetControls().back(), &extra);
}

TEST_F(CustomDialogTest, TheTabKeyFollowsTheOrderThatIsSet)
{
    const ModeScope mode(ONBOARD);
    DialogForTests dialog(form, Host());
    const UINT ids[] = {IdButton, 4711, IdList, IdList, IdEdit, 0, IdLabel};
    dialog.SetCtrlTabOrder(ids);
    dialog.SetCtrlTabOrder(nullptr);
    ::SetFocus(::GetDlgItem(dialog, IdButton));
    for (const int id : {IdList, IdEdit, IdButton})
    {
        TypeKey(VK_TAB);
        EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), id);
    }

    // A control may end the dialog when it is put in its place.
    auto* const ending = new Fenced<DialogForTests>;
    ASSERT_TRUE(ending->CreateIndirect(form, &Host()));
    Acting<CWnd> list;
    list.SubclassWindow(*ending->GetDlgItem(IdList));
    list.ActIn(WM_WINDOWPOSCHANGING, [ending] { delete ending; });
    ending->SetCtrlTabOrder(ids);
}

} // namespace
