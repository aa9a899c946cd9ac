#include "support/WindowTest.h"

#include <functional>
#include <string>

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
    BOOL allowClass = TRUE;
    BOOL allowNcCreate = TRUE;
    int createResult = 0;
    bool ownsItself = false;
    std::function<void()> inCreate;
    std::function<void()> inPress;

    void Note(const char* what) { journal.push_back(name + what); }
    BOOL Make(CWnd* parent, DWORD style = WS_CHILD | WS_VISIBLE, LPCSTR windowClass = nullptr)
    {
        return Create(windowClass, "", style, CRect(0, 0, 50, 40), parent, 1);
    }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        return allowClass && CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override
    {
        Note(FromHandlePermanent(m_hWnd) == this ? "bound" : "not bound");
    }
    BOOL OnNcCreate(LPCREATESTRUCT cs)
    {
        Note("nccreate");
        return CWnd::OnNcCreate(cs) && allowNcCreate;
    }
    int OnCreate(LPCREATESTRUCT cs)
    {
        Note("create");
        if (inCreate)
        {
            inCreate();
        }
        return CWnd::OnCreate(cs) == -1 ? -1 : createResult;
    }
    void OnLButtonDown(UINT flags, CPoint point)
    {
        if (inPress)
        {
            inPress();
        }
        if (!ownsItself)
        {
            CWnd::OnLButtonDown(flags, point);
        }
    }
    void OnDestroy()
    {
        Note("destroy");
        CWnd::OnDestroy();
    }
    void OnNcDestroy()
    {
        Note("ncdestroy");
        CWnd::OnNcDestroy();
    }
    void PostNcDestroy() override
    {
        Note(m_hWnd == nullptr ? "gone" : "gone too early");
        if (ownsItself)
        {
            delete this;
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(LifeWindow, CWnd)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

class WndTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        journal.clear();
    }

    static Journal TakeJournal()
    {
        Journal taken;
        taken.swap(journal);
        return taken;
    }
};

// Creation --------------------------------------------------------------------------------------

TEST_F(WndTest, TheObjectIsThereBeforeTheFirstMessage)
{
    LifeWindow window;
    ASSERT_TRUE(window.Make(&Host()));
    EXPECT_EQ(TakeJournal(), (Journal{"bound", "nccreate", "create"}));
    window.DestroyWindow();
    EXPECT_EQ(TakeJournal(), (Journal{"destroy", "ncdestroy", "gone"}));
    EXPECT_FALSE(window.DestroyWindow());
    EXPECT_TRUE(window.Make(&Host())) << "an object can have one window after another";
}

TEST_F(WndTest, ACreationThatFailsEndsOnceAndLeavesNothing)
{
    LifeWindow refusesClass;
    refusesClass.allowClass = FALSE;
    EXPECT_FALSE(refusesClass.Make(&Host()));
    EXPECT_EQ(TakeJournal(), Journal{"gone"});

    LifeWindow unknownClass;
    EXPECT_FALSE(unknownClass.Make(&Host(), WS_CHILD, "no such class"));
    EXPECT_EQ(TakeJournal(), Journal{"gone"});

    LifeWindow refusesNcCreate;
    refusesNcCreate.allowNcCreate = FALSE;
    EXPECT_FALSE(refusesNcCreate.Make(&Host()));
    EXPECT_EQ(TakeJournal(), (Journal{"bound", "nccreate", "ncdestroy", "gone"}));

    LifeWindow refusesCreate;
    refusesCreate.createResult = -1;
    EXPECT_FALSE(refusesCreate.Make(&Host()));
    std::erase(journal, "destroy"); // platforms differ on whether it comes
    EXPECT_EQ(TakeJournal(), (Journal{"bound", "nccreate", "create", "ncdestroy", "gone"}));

    for (LifeWindow* each : {&refusesClass, &unknownClass, &refusesNcCreate, &refusesCreate})
    {
        EXPECT_EQ(each->GetSafeHwnd(), nullptr);
    }
    // Nothing still waits for the next window of the thread.
    const HWND plain =
        ::CreateWindow("STATIC", "", WS_CHILD, 0, 0, 9, 9, Host(), nullptr, nullptr, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
}

TEST_F(WndTest, ControlsMayBeCreatedInsideACreation)
{
    LifeWindow outer("outer ");
    LifeWindow inner("inner ");
    LifeWindow broken("broken ");
    HWND plain = nullptr;
    outer.inCreate = [&] {
        EXPECT_FALSE(broken.Make(&outer, WS_CHILD, "no such class"));
        plain =
            ::CreateWindow("STATIC", "", WS_CHILD, 0, 0, 9, 9, outer, nullptr, nullptr, nullptr);
        EXPECT_TRUE(inner.Make(&outer));
    };
    ASSERT_TRUE(outer.Make(&Host()));
    EXPECT_EQ(TakeJournal(),
              (Journal{"outer bound", "outer nccreate", "outer create", "broken gone",
                       "inner bound", "inner nccreate", "inner create"}));
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_EQ(inner.GetParent(), &outer);

    outer.DestroyWindow();
    EXPECT_EQ(TakeJournal(), (Journal{"outer destroy", "inner destroy", "inner ncdestroy",
                                      "inner gone", "outer ncdestroy", "outer gone"}));
}

// Destruction in the middle ---------------------------------------------------------------------

TEST_F(WndTest, AWindowMayEndInsideItsOwnHandler)
{
    LifeWindow window;
    ASSERT_TRUE(window.Make(&Host()));
    window.inPress = [&] { window.DestroyWindow(); }; // Default() follows
    Click(ClientPoint(window, CPoint(5, 5)));
    EXPECT_EQ(window.GetSafeHwnd(), nullptr);

    auto* heap = new LifeWindow;
    ASSERT_TRUE(heap->Make(&Host()));
    heap->ownsItself = true;
    heap->inPress = [heap] { heap->DestroyWindow(); };
    TakeJournal();
    Click(ClientPoint(*heap, CPoint(5, 5)));
    EXPECT_EQ(TakeJournal(), (Journal{"destroy", "ncdestroy", "gone"}));
}

TEST_F(WndTest, AParentMayDeleteTheControlThatNotifiesIt)
{
    auto& button = Add<CButton>(CRect(10, 10, 90, 40), BS_PUSHBUTTON, "Push");
    bool told = false;
    Host().hook = [&](ToldMessage& message) {
        if (message.code == BN_CLICKED && !told)
        {
            told = true;
            Remove(button); // deletes the object, and its window with it
        }
    };
    Click(ClientPoint(button, CPoint(20, 10)));
    EXPECT_TRUE(told);
    EXPECT_EQ(::GetWindow(Host(), GW_CHILD), nullptr);
}

TEST_F(WndTest, TheMainWindowsEndQuitsTheProgram)
{
    LifeWindow window;
    ASSERT_TRUE(window.Make(&Host()));
    AfxGetApp()->m_pMainWnd = &window;
    window.DestroyWindow();
    EXPECT_TRUE(TakeQuit());
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
}

// Handles and objects ---------------------------------------------------------------------------

TEST_F(WndTest, TemporaryObjectsOwnNothingAndEndWhenIdle)
{
    const HWND plain =
        ::CreateWindow("STATIC", "text", WS_CHILD, 0, 0, 9, 9, Host(), nullptr, nullptr, nullptr);
    CWnd* const temporary = CWnd::FromHandle(plain);
    EXPECT_EQ(temporary->GetSafeHwnd(), plain);
    EXPECT_EQ(CWnd::FromHandle(plain), temporary);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    PumpAll();
    EXPECT_TRUE(::IsWindow(plain)) << "the window was not theirs";

    {
        CWnd* const another = CWnd::FromHandle(plain);
        CWnd owner;
        EXPECT_TRUE(owner.Attach(plain));
        EXPECT_EQ(CWnd::FromHandle(plain), &owner) << "the permanent one has precedence";
        EXPECT_EQ(another->GetSafeHwnd(), plain);
        CWnd second;
        EXPECT_FALSE(second.Attach(plain));
        EXPECT_FALSE(second.SubclassWindow(plain));
        EXPECT_FALSE(owner.Attach(Host()));
        EXPECT_EQ(owner.Detach(), plain);
        EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
        EXPECT_TRUE(owner.Attach(plain));
    }
    EXPECT_FALSE(::IsWindow(plain)) << "an attached window ends with its object";
}

// Subclassing -----------------------------------------------------------------------------------

// Answers one message itself and leaves the rest to the list box that it stands before.
class DoublingList : public CListBox
{
public:
    int presubclassed = 0;

protected:
    void PreSubclassWindow() override { ++presubclassed; }
    LRESULT OnGetCount(WPARAM, LPARAM) { return 2 * Default(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DoublingList, CListBox)
    ON_MESSAGE(LB_GETCOUNT, &DoublingList::OnGetCount)
END_MESSAGE_MAP()

TEST_F(WndTest, ASubclassedControlWorksBeforeDuringAndAfter)
{
    for (const bool ourProcedureOnTop : {true, false})
    {
        CWnd list;
        ASSERT_TRUE(list.Create("LISTBOX", "", WS_CHILD, CRect(0, 0, 90, 90), &Host(), 500));
        const HWND window = list.UnsubclassWindow();
        const auto addAndCount = [window] {
            ::SendMessage(window, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("row"));
            return ::SendMessage(window, LB_GETCOUNT, 0, 0);
        };
        EXPECT_EQ(addAndCount(), 1);

        DoublingList ours;
        ASSERT_TRUE(ours.SubclassDlgItem(500, &Host()));
        EXPECT_EQ(ours.presubclassed, 1);
        EXPECT_FALSE(ours.SubclassWindow(Host()));
        EXPECT_EQ(addAndCount(), 4);
        {
            const MessageLog above(ourProcedureOnTop ? Host() : static_cast<CWnd&>(ours));
            EXPECT_EQ(ours.UnsubclassWindow(), window);
            EXPECT_EQ(ours.GetSafeHwnd(), nullptr);
            EXPECT_EQ(addAndCount(), 3) << ourProcedureOnTop;
        }
        EXPECT_EQ(addAndCount(), 4);
        ASSERT_TRUE(ours.SubclassWindow(window));
        EXPECT_EQ(addAndCount(), 10);
        CListBox moved;
        EXPECT_TRUE(moved.Attach(ours.Detach()));
        EXPECT_EQ(addAndCount(), 6);
    }
}

// The message in progress -----------------------------------------------------------------------

class Nesting : public CWnd
{
public:
    UINT seenAfter = 0;

protected:
    LRESULT OnSetText(WPARAM, LPARAM)
    {
        CString before;
        GetWindowText(before); // sends nest
        SendMessage(WM_APP, 1, 2);
        seenAfter = GetCurrentMessage()->message;
        return Default();
    }
    LRESULT OnApp(WPARAM, LPARAM) { return Default(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Nesting, CWnd)
    ON_MESSAGE(WM_SETTEXT, &Nesting::OnSetText)
    ON_MESSAGE(WM_APP, &Nesting::OnApp)
END_MESSAGE_MAP()

TEST_F(WndTest, NestedSendsLeaveTheMessageInProgressAlone)
{
    auto& window = Add<Nesting>(CRect(0, 0, 10, 10));
    window.SetWindowText("outer");
    CString text;
    window.GetWindowText(text);
    EXPECT_STREQ(text, "outer");
    EXPECT_EQ(window.seenAfter, UINT(WM_SETTEXT));
}

class Translating : public CWnd
{
public:
    std::string name;
    BOOL takes = FALSE;
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_APP + 1)
        {
            journal.push_back(name);
        }
        return takes;
    }
};

TEST_F(WndTest, MessagesAreOfferedToTheWindowAndThenToItsParents)
{
    auto& outer = Add<Translating>(CRect(0, 0, 90, 90));
    outer.name = "outer";
    Translating inner;
    inner.name = "inner";
    ASSERT_TRUE(inner.Create(nullptr, "", WS_CHILD, CRect(0, 0, 9, 9), &outer, 1));
    MessageLog arrived(inner, {WM_APP + 1});

    const struct
    {
        BOOL innerTakes;
        BOOL outerTakes;
        Journal asked;
        int arrived;
    } cases[] = {{FALSE, FALSE, {"inner", "outer"}, 1},
                 {FALSE, TRUE, {"inner", "outer"}, 0},
                 {TRUE, FALSE, {"inner"}, 0}};
    for (const auto& each : cases)
    {
        arrived.Clear();
        inner.takes = each.innerTakes;
        outer.takes = each.outerTakes;
        inner.PostMessage(WM_APP + 1);
        PumpAll();
        EXPECT_EQ(TakeJournal(), each.asked);
        EXPECT_EQ(arrived.Count(WM_APP + 1), each.arrived);
    }
}

} // namespace
