#include "support/Acting.h"
#include "support/WindowTest.h"

#include <map>

namespace {

using Journal = std::vector<std::string>;

Journal journal; // of all windows of a test

// A window that writes down its life, and what a test wants done in the middle of it.
class LifeWindow : public CWnd
{
public:
    explicit LifeWindow(const std::string& itsName = "")
        : name(itsName)
    {}

    std::string name;
    UINT refuses = 0; // the message that ends its creation
    std::function<void()> inCreate = [] {};

    void Note(const char* what) { journal.push_back(name + what); }
    BOOL Make(CWnd* parent, LPCSTR windowClass = nullptr)
    {
        return Create(windowClass, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 40), parent, 1);
    }

protected:
    void PreSubclassWindow() override
    {
        Note(FromHandlePermanent(m_hWnd) == this ? "bound" : "not bound");
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        static const std::map<UINT, const char*> noted = {{WM_NCCREATE, "nccreate"},
                                                          {WM_CREATE, "create"},
                                                          {WM_DESTROY, "destroy"},
                                                          {WM_NCDESTROY, "ncdestroy"}};
        if (const auto found = noted.find(message); found != noted.end())
        {
            Note(found->second);
        }
        if (message == WM_CREATE)
        {
            inCreate();
        }
        const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
        return message == refuses ? LRESULT(message == WM_CREATE ? -1 : 0) : result;
    }
    void PostNcDestroy() override { Note(m_hWnd == nullptr ? "gone" : "gone too early"); }
};

class WndTest : public WindowTest
{
protected:
    WndTest() { journal.clear(); }

    static Journal TakeJournal() { return std::exchange(journal, {}); }

    static HWND PlainChild(HWND parent)
    {
        return ::CreateWindow("STATIC", "", WS_CHILD, 0, 0, 9, 9, parent, nullptr, nullptr,
                              nullptr);
    }
};

// Creation --------------------------------------------------------------------------------------

TEST_F(WndTest, TheObjectIsThereBeforeTheFirstMessage)
{
    LifeWindow window;
    ASSERT_TRUE(window.Make(&Host()));
    AfxGetApp()->m_pMainWnd = &window;
    EXPECT_EQ(TakeJournal(), (Journal{"bound", "nccreate", "create"}));
    EXPECT_FALSE(window.Make(&Host())) << "it has its window";
    EXPECT_EQ(TakeJournal(), Journal());
    window.DestroyWindow();
    EXPECT_EQ(TakeJournal(), (Journal{"destroy", "ncdestroy", "gone"}));
    EXPECT_FALSE(window.DestroyWindow());
    EXPECT_TRUE(TakeQuit()) << "the end of the main window is that of the program";
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    EXPECT_STREQ(AfxGetAppName(), "onboardui_tests") << "for want of another name";
    EXPECT_TRUE(window.Make(&Host())) << "an object can have one window after another";
}

TEST_F(WndTest, ACreationThatFailsEndsOnceAndLeavesNothing)
{
    // The class, the message that refuses, and what is heard.
    const std::tuple<const char*, UINT, Journal> cases[] = {
        {"no such class", 0, {"gone"}},
        {nullptr, WM_NCCREATE, {"bound", "nccreate", "ncdestroy", "gone"}},
        {nullptr, WM_CREATE, {"bound", "nccreate", "create", "ncdestroy", "gone"}},
    };
    for (const auto& [windowClass, refuses, heard] : cases)
    {
        LifeWindow window;
        window.refuses = refuses;
        EXPECT_FALSE(window.Make(&Host(), windowClass));
        std::erase(journal, "destroy"); // platforms differ on whether it comes
        EXPECT_EQ(TakeJournal(), heard);
        EXPECT_EQ(window.GetSafeHwnd(), nullptr);
        // Nothing still waits for the next window of the thread.
        EXPECT_EQ(CWnd::FromHandlePermanent(PlainChild(Host())), nullptr);
    }
}

// Handles and objects ---------------------------------------------------------------------------

// Called with what the compiler does not know; the pointers are looked at after the calls.
#if defined(__GNUC__)
__attribute__((noinline, no_sanitize("null")))
#endif
bool HaveNoHandles(const CWnd* window, const CMenu* menu, const CDC* dc, const CFont* font)
{
    return window->GetSafeHwnd() == nullptr && menu->GetSafeHmenu() == nullptr &&
           dc->GetSafeHdc() == nullptr && font->GetSafeHandle() == nullptr && window == nullptr &&
           menu == nullptr && dc == nullptr && font == nullptr;
}

TEST_F(WndTest, NothingHasNoHandle)
{
    EXPECT_TRUE(HaveNoHandles(nullptr, nullptr, nullptr, nullptr));
}

TEST_F(WndTest, TemporaryObjectsOwnNothingAndEndWhenIdle)
{
    const HWND plain = PlainChild(Host());
    CWnd* const temporary = CWnd::FromHandle(plain);
    EXPECT_EQ(temporary->GetSafeHwnd(), plain);
    EXPECT_EQ(CWnd::FromHandle(plain), temporary);
    PumpAll();
    EXPECT_TRUE(::IsWindow(plain)) << "the window was not theirs";

    {
        CWnd owner;
        EXPECT_TRUE(owner.Attach(plain));
        EXPECT_EQ(CWnd::FromHandle(plain), &owner) << "the permanent one has precedence";
        CWnd second;
        EXPECT_FALSE(second.Attach(plain) || second.SubclassWindow(plain));
        EXPECT_FALSE(owner.Attach(Host()));
        EXPECT_EQ(owner.Detach(), plain);
        EXPECT_TRUE(owner.Attach(plain));
    }
    EXPECT_FALSE(::IsWindow(plain)) << "an attached window ends with its object";

    const HWND another = PlainChild(Host());
    CWnd::FromHandle(another)->Detach();
    EXPECT_EQ(CWnd::FromHandle(another)->GetSafeHwnd(), another) << "also after somebody let go";
    CWnd attached;
    ASSERT_TRUE(attached.Attach(another));
    EXPECT_TRUE(attached.DestroyWindow());
    EXPECT_EQ(attached.GetSafeHwnd(), nullptr) << "though its last message came to nobody";
    EXPECT_EQ(CWnd::FromHandlePermanent(another), nullptr);
}

TEST_F(WndTest, AWindowIsCentredInItsParentOverItsOwnerOrOnTheScreen)
{
    LifeWindow child;
    ASSERT_TRUE(child.Make(&Host())); // 50 x 40
    child.CenterWindow();
    EXPECT_EQ(PlaceIn(Host(), child), CRect(CPoint(375, 280), CSize(50, 40)));

    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 50, 40), &Host(), 0));
    popup.CenterWindow();
    EXPECT_EQ(WindowRectOf(popup), WindowRectOf(child)) << "over its owner";
    popup.CenterWindow(&child);
    EXPECT_EQ(WindowRectOf(popup), WindowRectOf(child));
    CRect screen;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &screen, 0);
    popup.CenterWindow(CWnd::GetDesktopWindow());
    EXPECT_EQ(WindowRectOf(popup).TopLeft(), screen.CenterPoint() - CSize(25, 20));
    child.MoveWindow(-200, -200, 50, 40);
    popup.CenterWindow(&child);
    EXPECT_EQ(WindowRectOf(popup).TopLeft(), screen.TopLeft()) << "all of it is to be seen";

    popup.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_NE(popup.GetExStyle() & WS_EX_TOPMOST, 0U);
}

TEST_F(WndTest, TheLastOfWhoeverWaitsGivesThePointerItsShapeBack)
{
    const HCURSOR before = ::SetCursor(::LoadCursor(nullptr, IDC_IBEAM));
    Host().BeginWaitCursor();
    Host().BeginWaitCursor();
    Host().EndWaitCursor();
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_WAIT)) << "somebody waits still";
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW)); // a box on the way
    Host().RestoreWaitCursor();
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_WAIT));
    for (int round = 0; round < 2; ++round) // one too many does nothing
    {
        Host().EndWaitCursor();
        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_IBEAM));
    }
    {
        const CWaitCursor waits;
        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_WAIT));
    }
    EXPECT_EQ(::SetCursor(before), ::LoadCursor(nullptr, IDC_IBEAM));
}

TEST_F(WndTest, ContextsOfAWindowAreReleased)
{
    const auto useAll = [this] {
        CClientDC client(&Host());
        CWindowDC window(&Host());
        CPaintDC paint(&Host());
    };
    useAll(); // the platform keeps its first contexts
    const int before = GraphicsObjects();
    for (int round = 0; round < 50; ++round)
    {
        useAll();
    }
    EXPECT_EQ(GraphicsObjects(), before);
}

TEST_F(WindowTest, AMessageReachesTheChildrenBehindOneThatEndsInIt)
{
    constexpr UINT Message = WM_APP;
    auto& ending = Add<Acting<CStatic>>(CRect(10, 10, 50, 50));
    auto& last = Add<CStatic>(CRect(10, 60, 50, 100));
    ending.ActIn(Message, [&ending] { ending.DestroyWindow(); });
    const MessageLog log(last, {Message});
    Host().SendMessageToDescendants(Message, 7, 0, TRUE, FALSE);
    EXPECT_EQ(log.WParams(Message), std::vector<WPARAM>{7});
}

} // namespace
