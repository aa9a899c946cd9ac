#include <afxdlgs.h>

#include "support/Acting.h"
#include "support/Scripted.h"
#include "support/WindowTest.h"
#include "support/forms.h"

namespace {

using Journal = std::vector<std::string>;

class Page : public CPropertyPage
{
public:
    Page(UINT templateId, const char* itsName, Journal& itsJournal)
        : CPropertyPage(templateId)
        , name(itsName)
        , journal(itsJournal)
    {}

    std::string name;
    Journal& journal;
    BOOL lets = TRUE; // the user leave the page, and apply it
    std::function<void()> whenShown;
    std::function<void()> whenLeft; // once, and it is not
    CString text = "start";
    CString fetched; // whenever the page is shown, if it is not empty

    BOOL OnSetActive() override
    {
        journal.push_back(name + " active");
        if (whenShown)
        {
            std::exchange(whenShown, nullptr)();
        }
        text = fetched.IsEmpty() ? text : fetched;
        return CPropertyPage::OnSetActive();
    }
    BOOL OnKillActive() override
    {
        journal.push_back(name + " left");
        if (whenLeft)
        {
            std::exchange(whenLeft, nullptr)();
            return FALSE;
        }
        return CPropertyPage::OnKillActive() && lets;
    }
    void OnOK() override { journal.push_back(name + " ok"); }
    void OnCancel() override { journal.push_back(name + " cancel"); }

protected:
    BOOL OnInitDialog() override
    {
        journal.push_back(name + " init");
        return CPropertyPage::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* exchange) override
    {
        CPropertyPage::DoDataExchange(exchange);
        if (GetDlgItem(IDC_TEST_EDIT) != nullptr)
        {
            DDX_Text(exchange, IDC_TEST_EDIT, text);
        }
    }
};

class Sheet : public Scripted<CPropertySheet>
{
public:
    explicit Sheet(CWnd* parent, std::initializer_list<CPropertyPage*> pages)
        : Scripted("Sheet", parent)
    {
        for (CPropertyPage* const page : pages)
        {
            AddPage(page);
        }
    }
    bool endAtOnce = false; // before its loop begins

    BOOL OnInitDialog() override
    {
        EXPECT_NE(GetTabControl(), nullptr) << "the platform has set it up";
        if (endAtOnce)
        {
            EndDialog(77);
        }
        return CPropertySheet::OnInitDialog();
    }
    void Press(int button) { SendMessage(PSM_PRESSBUTTON, WPARAM(button)); }
};

class PropertySheetTest : public WindowTest
{
protected:
    Journal journal;
    Page first{IDD_TEST_PAGE_1, "first", journal};
    Page second{IDD_TEST_PAGE_2, "second", journal};

    Journal TakeJournal() { return std::exchange(journal, {}); }
};

TEST_F(PropertySheetTest, OkAppliesThePagesThatWereShown)
{
    for (const bool bothShown : {false, true})
    {
        Sheet sheet(&Host(), {&first, &second});
        sheet.inLoop = [&] {
            EXPECT_FALSE(Host().IsWindowEnabled());
            EXPECT_EQ(second.GetSafeHwnd(), nullptr) << "made when it is first shown";
            EXPECT_EQ(sheet.DoModal(), -1) << "it has its window";
            EXPECT_FALSE(sheet.Create(&Host()));
            EXPECT_EQ(sheet.GetPageIndex(&second), 1);
            EXPECT_EQ(TakeJournal(), (Journal{"first init", "first active"}));
            first.SetDlgItemText(IDC_TEST_EDIT, "typed");
            if (bothShown)
            {
                first.lets = FALSE; // a page may keep the user
                sheet.SetActivePage(1);
                sheet.Press(PSBTN_OK);
                sheet.GetTabControl()->SetFocus();
                TypeKey(VK_RIGHT);
                EXPECT_EQ(sheet.GetActivePage(), &first);
                first.lets = TRUE;
                first.whenLeft = [&] { sheet.PostMessage(PSM_SETCURSEL, 1); };
                TypeKey(VK_RIGHT);
                EXPECT_EQ(sheet.GetActivePage(), &second) << "it goes there by itself";
                const CTabCtrl& tabs = *sheet.GetTabControl();
                const CPoint tab = ClientPoint(tabs, ItemRectOf(tabs, 0).CenterPoint());
                Click(tab);
                EXPECT_EQ(sheet.GetActivePage(), &first);
                sheet.GetTabControl()->SetFocus();
                TypeKey(VK_RIGHT);
                Click(tab + CSize(8, 0)); // no double click
                EXPECT_EQ(sheet.GetActivePage(), &first) << "keys and clicks in turn";
                TakeJournal();
                TypeKey(VK_TAB, VK_CONTROL);
                EXPECT_EQ(TakeJournal(), (Journal{"first left", "second active"}));
                EXPECT_EQ(sheet.GetActivePage(), &second);
            }
            sheet.Press(PSBTN_OK);
        };
        EXPECT_EQ(sheet.DoModal(), IDOK);
        EXPECT_EQ(TakeJournal(), bothShown ? (Journal{"second left", "first ok", "second ok"})
                                           : (Journal{"first left", "first ok"}));
        EXPECT_STREQ(first.text, "typed");
        EXPECT_TRUE(Host().IsWindowEnabled());
        EXPECT_EQ(::GetActiveWindow(), Host().m_hWnd);
    }
}

TEST_F(PropertySheetTest, EveryWayOfCancellingResetsThePages)
{
    const Journal reset = {"first init", "first active", "first cancel"};
    const Journal gone = {"first init", "first active"}; // without asking the pages
    const std::pair<std::function<void(Sheet&)>, const Journal&> cases[] = {
        {[](Sheet& sheet) { sheet.Press(PSBTN_CANCEL); }, reset},
        {[](Sheet&) { TypeKey(VK_ESCAPE); }, reset},
        {[](Sheet& sheet) { sheet.SendMessage(WM_CLOSE); }, reset},
        {[](Sheet& sheet) { sheet.DestroyWindow(); }, gone},
        {[](Sheet&) { ::PostQuitMessage(0); }, gone},
    };
    for (const auto& each : cases)
    {
        SCOPED_TRACE(&each - cases);
        Sheet sheet(&Host(), {&first, &second});
        sheet.inLoop = [&] { each.first(sheet); };
        EXPECT_EQ(sheet.DoModal(), IDCANCEL);
        EXPECT_EQ(TakeJournal(), each.second);
        EXPECT_EQ(sheet.gone, 1);
        EXPECT_EQ(first.GetSafeHwnd(), nullptr);
        EXPECT_TRUE(Host().IsWindowEnabled());
    }
    EXPECT_TRUE(TakeQuit());
    EXPECT_EQ(Sheet(&Host(), {}).DoModal(), -1) << "it has no pages";
    Sheet over(&Host(), {&first});
    over.endAtOnce = true;
    EXPECT_EQ(over.DoModal(), 77);
    EXPECT_TRUE(Host().IsWindowEnabled());
}

TEST_F(PropertySheetTest, TheFocusGoesToThePageThatIsTurnedTo)
{
    Sheet sheet(&Host(), {&first, &second});
    sheet.inLoop = [&] {
        for (const bool byKey : {true, false})
        {
            first.GotoDlgCtrl(first.GetDlgItem(IDC_TEST_EDIT));
            byKey ? TypeKey(VK_TAB, VK_CONTROL) : void(sheet.SetActivePage(1));
            EXPECT_TRUE(second.IsWindowVisible());
            EXPECT_TRUE(::IsWindowVisible(::GetFocus())) << "else keys go where nobody sees them";
            sheet.SetActivePage(0);
            EXPECT_EQ(::GetFocus(), first.GetDlgItem(IDC_TEST_EDIT)->m_hWnd);
        }
        first.SetModified();
        TypeKey('A', VK_MENU);
        EXPECT_TRUE(::IsWindowVisible(::GetFocus())) << "Apply is disabled by its press";
        sheet.RemovePage(0);
        EXPECT_TRUE(::IsWindowVisible(::GetFocus())) << "else no key does anything";
        sheet.Press(PSBTN_CANCEL);
    };
    sheet.DoModal();
}

TEST_F(PropertySheetTest, AModelessSheetLivesBesideItsOwnerUntilItIsClosed)
{
    for (const bool byFrame : {true, false})
    {
        Sheet sheet(&Host(), {&first});
        ASSERT_TRUE(sheet.Create(&Host()));
        PumpAll();
        EXPECT_TRUE(Host().IsWindowEnabled());
        EXPECT_FALSE(sheet.GetDlgItem(IDOK)->IsWindowVisible());
        sheet.AddPage(&second);
        EXPECT_TRUE(sheet.SetActivePage(1));
        sheet.RemovePage(0);
        EXPECT_EQ(sheet.GetPageCount(), 1);
        EXPECT_EQ(sheet.GetActivePage(), &second);
        ::SendMessage(sheet, byFrame ? WM_CLOSE : UINT(PSM_PRESSBUTTON), byFrame ? 0 : PSBTN_OK, 0);
        EXPECT_EQ(sheet.gone, 1) << byFrame;
    }
    // The page beside the one that is removed is shown, and may end the sheet or remove more.
    for (const bool ends : {false, true})
    {
        Page third(IDD_TEST_PAGE_1, "third", journal);
        auto sheet = std::make_unique<Sheet>(
            &Host(), std::initializer_list<CPropertyPage*>{&first, &second, &third});
        ASSERT_TRUE(sheet->Create(&Host()));
        first.lets = FALSE; // it is not asked
        second.whenShown = [&] { ends ? sheet.reset() : sheet->RemovePage(2); };
        sheet->RemovePage(0);
        ASSERT_EQ(sheet == nullptr, ends);
        EXPECT_TRUE(ends || (sheet->GetPageCount() == 1 && sheet->GetPage(0) == &second));
    }
    // One that does not want to be shown leaves it to the next that stays.
    struct Shy : Page
    {
        using Page::Page;
        BOOL OnSetActive() override { return FALSE; }
    } shy(IDD_TEST_PAGE_1, "shy", journal);
    Sheet three(&Host(), {&shy, &first, &second});
    ASSERT_TRUE(three.Create(&Host()));
    ASSERT_EQ(three.GetActivePage(), &first);
    TakeJournal();
    three.RemovePage(1);
    EXPECT_EQ(three.GetActivePage(), &second);
    EXPECT_EQ(TakeJournal(), (Journal{"second init", "second active"}));
    three.DestroyWindow();
    for (const bool byIndex : {true, false})
    {
        auto* const sheet =
            new Acting<Sheet>(&Host(), std::initializer_list<CPropertyPage*>{&first});
        ASSERT_TRUE(sheet->Create(&Host()));
        sheet->ActIn(PSM_GETTABCONTROL, [sheet] { delete sheet; }); // it may end as it is asked
        EXPECT_TRUE(byIndex ? sheet->GetActiveIndex() == -1 : sheet->GetActivePage() == nullptr);
    }
}

int hostCallbacks = 0;

TEST_F(PropertySheetTest, AModelessSheetHasTheStylesItIsGivenAndShowsWhatItsPageFetches)
{
    constexpr DWORD All = WS_CHILD | WS_POPUP | WS_CAPTION | WS_VISIBLE;
    // The style and the extended style that are given, and those that the sheet has.
    const std::tuple<DWORD, DWORD, DWORD, DWORD> cases[] = {
        {DWORD(-1), 0, WS_POPUP | WS_CAPTION | WS_VISIBLE, 0},
        {WS_CHILD | WS_VISIBLE, WS_EX_CONTROLPARENT, WS_CHILD | WS_VISIBLE, 0},
        {WS_POPUP | WS_CAPTION, WS_EX_TOOLWINDOW, WS_POPUP | WS_CAPTION, WS_EX_TOOLWINDOW},
        {DWORD(-1), WS_EX_TOOLWINDOW, WS_POPUP | WS_CAPTION | WS_VISIBLE, WS_EX_TOOLWINDOW},
    };
    for (const auto& [style, exStyle, has, hasEx] : cases)
    {
        SCOPED_TRACE(testing::Message() << std::hex << style << ", " << exStyle);
        Sheet sheet(&Host(), {&first});
        sheet.m_psh.dwFlags |= PSH_USECALLBACK;
        sheet.m_psh.pfnCallback = [](HWND, UINT, LPARAM) { return ++hostCallbacks; };
        hostCallbacks = 0;
        first.fetched = "from elsewhere";
        ASSERT_TRUE(sheet.Create(&Host(), style, exStyle));
        EXPECT_EQ(TextOf(*first.GetDlgItem(IDC_TEST_EDIT)), "from elsewhere");
        EXPECT_EQ(sheet.GetStyle() & All, has);
        EXPECT_EQ(sheet.GetExStyle() & WS_EX_TOOLWINDOW, hasEx);
        EXPECT_EQ(sheet.GetParent(), &Host());
        EXPECT_EQ(sheet.shown, (has & WS_VISIBLE) != 0);
        EXPECT_EQ(hostCallbacks, 2) << "before the sheet is made, and when it is initialised";
    }
}

} // namespace
