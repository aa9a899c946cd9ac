#include "dialogs/dialog_for_tests.h"
#include "support/forms.h"

#include <functional>
#include <string>

namespace {

TEST_F(CustomDialogTest, TheHostKeepsTheOrderOfItsWindows)
{
    struct Manager : CZOrderManager
    {
        int updates = 0;
        std::function<void()> restack;
        void UpdateZOrder() override
        {
            ++updates;
            if (restack)
            {
                restack();
            }
        }
    } manager;
    DialogForTests dialog(nullptr, &host);
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
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
        EXPECT_EQ(manager.updates, 1);
        dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE);
        EXPECT_EQ(manager.updates, 2);
    }
    manager.restack = [&] { dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE); };
    dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE);
    EXPECT_EQ(manager.updates, 3) << "not again for the windows that it restacks itself";
    manager.restack = [&] { dialog.DestroyWindow(); };
    dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE);
    EXPECT_EQ(dialog.gone, 1);
}

// Modal -----------------------------------------------------------------------------------------

class FlightBag : public IEFB
{
public:
    explicit FlightBag(std::vector<std::string>& journal)
        : m_journal(journal)
    {}
    const char* GetProviderName() override { return "bag"; }
    bool BeginModalDialog() override
    {
        m_journal.push_back("begin");
        return true;
    }
    bool EndModalDialog() override
    {
        m_journal.push_back("end");
        return true;
    }

private:
    std::vector<std::string>& m_journal;
};

TEST_F(CustomDialogTest, TheFlightBagIsToldOfModalDialogsInItsModes)
{
    using Journal = std::vector<std::string>;
    Journal journal;
    FlightBag bag(journal);
    CCustomDialog::SetEfb(&bag);
    EXPECT_EQ(CCustomDialog::GetEfb(), &bag);
    const struct
    {
        APPMODE mode;
        APPMODE meanwhile;
        Journal expected;
    } cases[] = {
        {STD, STD, {"init", "shown"}},
        {FULLSCREEN, FULLSCREEN, {"init", "shown"}},
        {ONBOARD, EFB, {"init", "shown"}},
        {EFB, EFB, {"begin", "init", "shown", "end"}},
        {EFBFS, EFBFS, {"begin", "init", "shown", "end"}},
        {EFB, STD, {"begin", "init", "shown", "end"}},
    };
    for (const auto& each : cases)
    {
        const ModeScope mode(each.mode);
        DialogForTests dialog(&Host());
        dialog.InitModalIndirect(form, &Host());
        dialog.inInit = [&] { journal.push_back("init"); };
        dialog.inLoop = [&] {
            journal.push_back("shown");
            EXPECT_TRUE(dialog.IsModal());
            COnBoardUIGeneral::SetAppMode(each.meanwhile);
            dialog.EndDialog(7);
        };
        for (int round = 0; round < 2; ++round) // an object can run more than once
        {
            COnBoardUIGeneral::SetAppMode(each.mode);
            journal.clear();
            EXPECT_EQ(dialog.DoModal(), 7);
            EXPECT_EQ(journal, each.expected) << APPMODE_NAMES[each.mode];
            EXPECT_FALSE(dialog.IsModal());
        }
    }
    const ModeScope mode(EFBFS);
    journal.clear();
    CCustomDialog missing(31999U, &Host());
    EXPECT_EQ(missing.DoModal(), -1);
    EXPECT_FALSE(missing.IsModal());
    EXPECT_EQ(journal, (Journal{"begin", "end"})) << "whoever heard the beginning hears the end";
    CCustomDialog::SetEfb(nullptr);
    EXPECT_EQ(missing.DoModal(), -1);
}

TEST_F(CustomDialogTest, EveryWayOfCreatingGoesThroughTheTemplate)
{
    const std::vector<BYTE> copy(static_cast<const BYTE*>(form.Data()),
                                 static_cast<const BYTE*>(form.Data()) + form.Size());
    const HGLOBAL global = ::GlobalAlloc(GMEM_MOVEABLE, copy.size());
    std::memcpy(::GlobalLock(global), copy.data(), copy.size());
    ::GlobalUnlock(global);
    const struct
    {
        const char* name;
        std::function<BOOL(DialogForTests&)> create;
        bool exists;
    } cases[] = {
        {"id", [&](auto& d) { return d.Create(IDD_TEST_FORM, &Host()); }, true},
        {"name", [&](auto& d) { return d.Create(MAKEINTRESOURCE(IDD_TEST_FORM), &Host()); }, true},
        {"on-board", [&](auto& d) { return d.CreateOB(IDD_TEST_FORM, &Host()); }, true},
        {"memory", [&](auto& d) { return d.CreateIndirect(form, &Host()); }, true},
        {"handle", [&](auto& d) { return d.CreateIndirect(global, &Host()); }, true},
        {"no id", [&](auto& d) { return d.Create(31999U, &Host()); }, false},
        {"no name", [&](auto& d) { return d.Create("none", &Host()); }, false},
        {"no memory", [&](auto& d) { return d.CreateIndirect(LPCDLGTEMPLATE(nullptr), &Host()); },
         false},
    };
    for (const auto& each : cases)
    {
        std::vector<CRect> before;
        for (const APPMODE mode : {STD, ONBOARD})
        {
            const ModeScope scope(mode);
            DialogForTests dialog;
            EXPECT_EQ(each.create(dialog) != FALSE, each.exists) << each.name << ' ' << mode;
            if (dialog.GetSafeHwnd() == nullptr)
            {
                continue;
            }
            const std::vector<CRect> places = ChildPlaces(dialog);
            if (mode == STD)
            {
                before = places;
                continue;
            }
            ASSERT_EQ(places.size(), before.size());
            for (size_t child = 0; child < places.size(); ++child)
            {
                EXPECT_EQ(places[child], Enlarged(before[child])) << each.name << ' ' << child;
            }
        }
    }
    ::GlobalFree(global);
}

TEST_F(CustomDialogTest, AnOpenDialogFollowsTheMode)
{
    const TemplateBytes form =
        Form(WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_VISIBLE | DS_MODALFRAME);
    DialogForTests dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    const CRect window = WindowRectOf(dialog);
    const std::vector<CRect> standard = ChildPlaces(dialog);
    const auto bandHeight = [&] {
        return ClientPoint(dialog, CPoint(0, 0)).y - WindowRectOf(dialog).top - 3;
    };
    const int caption = bandHeight();
    const auto font = [&](int id) {
        LOGFONT description = {};
        ::GetObject(reinterpret_cast<HFONT>(dialog.GetDlgItem(id)->SendMessage(WM_GETFONT)),
                    sizeof(description), &description);
        return description.lfHeight;
    };
    const LONG small = font(IdLabel);
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    const LONG large = font(IdLabel);
    EXPECT_GT(std::abs(large), std::abs(small));
    EXPECT_EQ(font(IdButton), large);
    EXPECT_EQ(WindowRectOf(dialog), window) << "its rectangle is its owner's";
    EXPECT_EQ(bandHeight(), BandOf(dialog)) << "also with the platform's caption style";
    EXPECT_EQ(ChildPlaces(dialog).front(), Enlarged(standard.front()));
    const int height = ChildPlaces(dialog).front().Height();
    COnBoardUIGeneral::SetAppMode(EFB);
    EXPECT_EQ(ChildPlaces(dialog).front().Height(), height);
    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_EQ(bandHeight(), caption);
    EXPECT_EQ(font(IdLabel), small);
    dialog.DestroyWindow();

    COnBoardUIGeneral::SetAppMode(EFB);
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    EXPECT_EQ(dialog.GetStyle() & WS_CAPTION, 0U);
    EXPECT_EQ(font(IdButton), large);
    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_EQ(font(IdButton), small) << "however it was opened";
    const DWORD styles = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
    EXPECT_EQ(dialog.GetStyle() & styles, styles) << "something to move and close it by";
    EXPECT_EQ(bandHeight(), caption);
}

TEST_F(CustomDialogTest, ControlsAreScaledOnceWhenTheModeChangesOnTheirWay)
{
    DialogForTests plain;
    ASSERT_TRUE(plain.CreateIndirect(form, &Host()));
    const std::vector<CRect> standard = ChildPlaces(plain);
    plain.DestroyWindow();
    std::function<void()> DialogForTests::*const moments[] = {
        &DialogForTests::inCreate, &DialogForTests::beforeInit, &DialogForTests::inInit};
    for (const auto moment : moments)
    {
        for (const auto& [from, to] : {std::pair{STD, ONBOARD}, {ONBOARD, STD}})
        {
            const ModeScope mode(from);
            DialogForTests dialog;
            dialog.*moment = [to = to] { COnBoardUIGeneral::SetAppMode(to); };
            ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
            const std::vector<CRect> places = ChildPlaces(dialog);
            ASSERT_EQ(places.size(), standard.size());
            for (size_t child = 0; child < places.size(); ++child)
            {
                const CRect expected = to == STD ? standard[child] : Enlarged(standard[child]);
                // Scaled there and back, each side may have lost a fraction.
                const int lost = moment == &DialogForTests::inInit && to == STD ? 1 : 0;
                EXPECT_NEAR(places[child].left, expected.left, lost) << from << ' ' << child;
                EXPECT_NEAR(places[child].bottom, expected.bottom, 2 * lost) << from << child;
                EXPECT_NEAR(places[child].Width(), expected.Width(), lost) << from << child;
            }
        }
    }
}

TEST_F(CustomDialogTest, ChildrenThatTheDialogMakesItselfDoNotDisturbTheTemplates)
{
    DialogForTests plain;
    ASSERT_TRUE(plain.CreateIndirect(form, &Host()));
    const std::vector<CRect> standard = ChildPlaces(plain);
    const ModeScope mode(ONBOARD);
    DialogForTests dialog;
    CStatic own;
    dialog.inCreate = [&] { own.Create("own", WS_CHILD, CRect(0, 0, 10, 10), &dialog, 900); };
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    const std::vector<CRect> places = ChildPlaces(dialog);
    ASSERT_EQ(places.size(), standard.size() + 1);
    for (size_t child = 0; child < standard.size(); ++child)
    {
        EXPECT_EQ(places[child + 1], Enlarged(standard[child])) << child;
    }
}

TEST_F(CustomDialogTest, AHandlerMayEndTheDialogOrChangeTheMode)
{
    const ModeScope mode(ONBOARD);
    struct Heap : DialogForTests
    {
        bool& deleted;
        explicit Heap(bool& flag)
            : deleted(flag)
        {}
        void PostNcDestroy() override
        {
            deleted = true;
            delete this;
        }
    };
    for (const bool inInit : {true, false})
    {
        bool deleted = false;
        auto* const dialog = new Heap(deleted);
        if (inInit)
        {
            dialog->inInit = [=] { dialog->DestroyWindow(); };
        }
        dialog->CreateIndirect(form, &Host());
        if (!inInit)
        {
            dialog->SendMessage(WM_CLOSE);
            dialog->DestroyWindow();
        }
        EXPECT_TRUE(deleted);
        EXPECT_TRUE(COnBoardUIGeneral::m_createddialogs.empty());
    }
    // A control that cannot be made takes the dialog with it.
    TemplateBytes broken = form;
    broken.Add(u"no such class", u"", 0, CRect(0, 0, 9, 9), 9);
    bool deleted = false;
    EXPECT_FALSE((new Heap(deleted))->CreateIndirect(broken, &Host()));
    EXPECT_TRUE(deleted);

    DialogForTests dialog;
    EXPECT_FALSE(dialog.CreateIndirect(broken, &Host()));
    dialog.inInit = [&] { COnBoardUIGeneral::SetAppMode(STD); };
    EXPECT_TRUE(dialog.CreateIndirect(form, &Host())) << "the object can be used again";
    EXPECT_EQ(dialog.GetStyle() & WS_CAPTION, DWORD(WS_CAPTION));
}

// Controls and children -------------------------------------------------------------------------

TEST_F(CustomDialogTest, TheListOfControlsOutlivesTheIdleMoment)
{
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        DialogForTests dialog;
        ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
        PumpAll();
        CWnd::DeleteTempMap();
        ASSERT_EQ(dialog.GetControls().size(), 6U);
        EXPECT_EQ(dialog.GetControls()[1]->GetDlgCtrlID(), IdEdit);
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
}

TEST_F(CustomDialogTest, TheTabKeyFollowsTheOrderThatIsSet)
{
    const ModeScope mode(ONBOARD);
    DialogForTests dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    dialog.SetCtrlTabOrder(nullptr);
    const UINT none[] = {0};
    dialog.SetCtrlTabOrder(none);
    const UINT ids[] = {IdButton, 4711, IdList, IdList, IdEdit, 0, IdLabel};
    dialog.SetCtrlTabOrder(ids);
    EXPECT_NE(::GetWindowLongPtr(::GetDlgItem(dialog, IdList), GWL_STYLE) & WS_TABSTOP, 0);
    ::SetFocus(::GetDlgItem(dialog, IdButton));
    for (const int id : {IdList, IdEdit, IdButton})
    {
        TypeKey(VK_TAB);
        EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), id);
    }
}

TEST_F(CustomDialogTest, AModalChildIsFound)
{
    const ModeScope mode(ONBOARD);
    DialogForTests parent;
    ASSERT_TRUE(parent.CreateIndirect(form, &Host()));
    parent.CheckForChildDialog(static_cast<CWnd*>(nullptr));
    parent.CheckForChildDialog(&Host());
    DialogForTests modeless;
    ASSERT_TRUE(modeless.CreateIndirect(form, &parent));
    parent.CheckForChildDialog(&modeless);
    EXPECT_FALSE(parent.m_hasModalChild);

    DialogForTests child;
    child.InitModalIndirect(form, &parent);
    child.inLoop = [&] {
        modeless.CheckForChildDialog(&child);
        EXPECT_FALSE(modeless.m_hasModalChild) << "another's";
        ::EnumThreadWindows(::GetCurrentThreadId(), &DialogForTests::CheckForChildDialog,
                            reinterpret_cast<LPARAM>(static_cast<CCustomDialog*>(&parent)));
        EXPECT_TRUE(parent.m_hasModalChild);
        child.EndDialog(1);
    };
    EXPECT_EQ(child.DoModal(), 1);
}

} // namespace
