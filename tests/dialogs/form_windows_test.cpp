#include "CustomFormView.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "dialogs/dialog_for_tests.h"
#include "support/forms.h"

#include <afxcmn.h>

#include <type_traits>

namespace {

class View : public CCustomFormView
{
public:
    View()
        : CCustomFormView(UINT(IDD_TEST_FORM))
    {}
    BOOL Open(CWnd& parent)
    {
        return Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 500, 400), &parent, 5,
                      nullptr);
    }

protected:
    void PostNcDestroy() override {} // the test owns it
};

class FormWindowsTest : public WindowTest
{
protected:
    void TearDown() override
    {
        COnBoardUIGeneral::SetAppMode(STD);
        CCustomPropSheet::SetEfb(nullptr);
        WindowTest::TearDown();
    }
};

TEST_F(FormWindowsTest, AFormIsRescaledOnceHoweverItReachesTheMode)
{
    View standard;
    ASSERT_TRUE(standard.Open(Host()));
    const CRect before = ChildPlaces(standard).front();
    enum When
    {
        Always,
        BeforeInitialUpdate,
        AfterInitialUpdate
    };
    for (const When when : {Always, BeforeInitialUpdate, AfterInitialUpdate})
    {
        COnBoardUIGeneral::SetAppMode(when == Always ? ONBOARD : STD);
        View view;
        ASSERT_TRUE(view.Open(Host()));
        if (when == BeforeInitialUpdate)
        {
            COnBoardUIGeneral::SetAppMode(ONBOARD);
        }
        view.OnInitialUpdate();
        view.OnInitialUpdate(); // for another document
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        EXPECT_EQ(ChildPlaces(view).front(), Enlarged(before)) << when;
        EXPECT_EQ(view.GetControls().size(), 2U);
        EXPECT_EQ(view.GetControls()[1]->GetDlgCtrlID(), IDC_TEST_CHECK);
    }
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    View early;
    ASSERT_TRUE(early.Open(Host()));
    COnBoardUIGeneral::SetAppMode(STD);
    early.OnInitialUpdate();
    EXPECT_EQ(ChildPlaces(early).front(), before) << "never scaled, never scaled back";
}

TEST_F(FormWindowsTest, AFormScrollsAsFarAsItsControlsReach)
{
    View view;
    ASSERT_TRUE(view.Open(Host()));
    view.MoveWindow(0, 0, 120, 60);
    const CRect before = ChildPlaces(view).front();
    const CSize total = view.GetTotalSize();
    view.ScrollToPosition(CPoint(30, 20));
    ASSERT_EQ(view.GetScrollPosition(), CPoint(30, 20));
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    EXPECT_EQ(view.GetScrollPosition(), CPoint(0, 0));
    EXPECT_EQ(ChildPlaces(view).front(), Enlarged(before)) << "from the form's own corner";
    EXPECT_EQ(view.GetTotalSize(), Enlarged(CRect(CPoint(0, 0), total)).Size());
}

TEST_F(FormWindowsTest, PagesAndSheetsAreScaledOnceWhenAPageChangesTheModeOnItsWay)
{
    struct Page : CCustomPropPage
    {
        APPMODE change = STD;
        Page()
            : CCustomPropPage(IDD_TEST_PAGE_1)
        {}
        BOOL OnInitDialog() override
        {
            COnBoardUIGeneral::SetAppMode(change);
            return CCustomPropPage::OnInitDialog();
        }
    };
    CSize sheetSize;
    CRect place;
    for (const auto& [from, to] : {std::pair{ONBOARD, ONBOARD}, {STD, ONBOARD}})
    {
        const ModeScope mode(from);
        Page page;
        page.change = to;
        Scripted<CCustomPropSheet> sheet("Sheet", static_cast<IAppAccess*>(nullptr), &Host());
        sheet.AddPage(&page);
        sheet.inLoop = [&, from = from] {
            if (from == ONBOARD)
            {
                sheetSize = ClientRectOf(sheet).Size();
                place = ChildPlaces(page).front();
            }
            EXPECT_EQ(ClientRectOf(sheet).Size(), sheetSize);
            EXPECT_EQ(ChildPlaces(page).front(), place);
            sheet.EndDialog(IDOK);
        };
        EXPECT_EQ(sheet.DoModal(), IDOK);
    }
}

TEST_F(FormWindowsTest, FormsHaveTheColoursOfDialogs)
{
    const ModeScope mode(EFB);
    View view;
    ASSERT_TRUE(view.Open(Host()));
    view.OnInitialUpdate();
    PumpAll();
    EXPECT_EQ(WindowPixels(view).At(490, 300), RGB(50, 50, 50));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const auto brush = [&](UINT message, int id) {
        return reinterpret_cast<HGDIOBJ>(view.SendMessage(
            message, WPARAM(dc.GetSafeHdc()), reinterpret_cast<LPARAM>(::GetDlgItem(view, id))));
    };
    EXPECT_EQ(brush(WM_CTLCOLOREDIT, IDC_TEST_EDIT), CCustomDialog::m_BkEditBrush.GetSafeHandle());
    EXPECT_EQ(brush(WM_CTLCOLORSTATIC, IDC_TEST_CHECK), CCustomDialog::m_BkBrush.GetSafeHandle());
}

TEST_F(FormWindowsTest, ASheetOpensInTheSizeOfTheModeWithItsPages)
{
    static_assert(std::is_constructible_v<CCustomPropSheet, UINT, IAppAccess*, CWnd*, UINT> &&
                  std::is_constructible_v<CCustomPropSheet, LPCSTR, IAppAccess*, CWnd*, UINT>);
    CRect before;
    CSize sizeBefore;
    CSize pageBefore;
    for (const APPMODE mode : {STD, EFB})
    {
        const ModeScope scope(mode);
        CCustomPropPage first(IDD_TEST_PAGE_1);
        CCustomPropPage second(IDD_TEST_PAGE_2);
        Scripted<CCustomPropSheet> sheet("Sheet", static_cast<IAppAccess*>(nullptr), &Host());
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        EXPECT_EQ(COnBoardUIGeneral::m_createdPropPages.size(), 2U);
        EXPECT_EQ(COnBoardUIGeneral::m_createdPropSheets.size(), 1U);
        int notices = 0;
        struct Bag : IEFB
        {
            int& count;
            explicit Bag(int& notices)
                : count(notices)
            {}
            const char* GetProviderName() override { return "bag"; }
            bool BeginModalDialog() override { return ++count == 1; }
            bool EndModalDialog() override { return (count += 10) == 11; }
        } bag(notices);
        CCustomPropSheet::SetEfb(&bag);
        sheet.inLoop = [&] {
            EXPECT_TRUE(sheet.IsModal());
            EXPECT_EQ(notices, mode == EFB ? 1 : 0);
            const CRect place = ChildPlaces(first).front();
            EXPECT_EQ(first.GetControls().size(), 1U);
            if (mode == STD)
            {
                before = place;
                sizeBefore = ClientRectOf(sheet).Size();
                pageBefore = WindowRectOf(first).Size();
            }
            else
            {
                EXPECT_EQ(place, Enlarged(before));
                const CRect client = ClientRectOf(sheet);
                EXPECT_GE(client.Width(), int(sizeBefore.cx * 1.7 * 1.32) - 1);
                for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW})
                {
                    CRect button = WindowRectOf(*sheet.GetDlgItem(id));
                    sheet.ScreenToClient(&button);
                    EXPECT_LE(button.right, client.right);
                    EXPECT_LE(button.bottom, client.bottom);
                    EXPECT_GE(button.top, ChildPlaces(sheet).front().bottom) << "below the page";
                }
                EXPECT_GE(WindowRectOf(first).Height(), int(pageBefore.cy * 1.7));
                const CRect firstRect = WindowRectOf(first);
                EXPECT_TRUE(sheet.SetActivePage(1));
                EXPECT_EQ(WindowRectOf(second), firstRect);
                PumpAll();
                EXPECT_EQ(WindowPixels(sheet).At(sizeBefore.cx, 5), RGB(70, 90, 110));
                EXPECT_EQ(sheet.GetStyle() & WS_SYSMENU, 0U);
                const CPoint strip(sizeBefore.cx, 10); // of the tabs, right of the last one
                EXPECT_EQ(
                    ScreenPixels(CRect(ClientPoint(*sheet.GetTabControl(), strip), CSize(1, 1)))
                        .At(0, 0),
                    RGB(50, 50, 50));
            }
            Click(ClientPoint(*sheet.GetDlgItem(IDOK), CPoint(8, 8)));
        };
        EXPECT_EQ(sheet.DoModal(), IDOK);
        EXPECT_FALSE(sheet.IsModal());
        EXPECT_EQ(notices, mode == EFB ? 11 : 0);
    }
}

} // namespace
