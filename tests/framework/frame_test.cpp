#include "catalog/DialogTemplate.h"
#include "support/WindowTest.h"

#include <afxcmn.h>
#include <afxext.h>

#include <string>

namespace {

using Journal = std::vector<std::string>;

Journal journal;
int liveObjects = 0;

constexpr UINT CommandOfView = 300;
constexpr UINT CommandOfFrame = 301;

class ColourView : public CView
{
    DECLARE_DYNCREATE(ColourView)

public:
    ColourView() { ++liveObjects; }
    ~ColourView() override { --liveObjects; }
    void OnInitialUpdate() override { journal.push_back("initial update"); }

protected:
    void OnDraw(CDC*) override {}
    void OnActivateView(BOOL activate, CView* to, CView* from) override
    {
        journal.push_back(activate ? "activate" : "deactivate");
        CView::OnActivateView(activate, to, from);
    }
    void OnCommandOfView() { journal.push_back("view command"); }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(ColourView, CView)

BEGIN_MESSAGE_MAP(ColourView, CView)
    ON_COMMAND(CommandOfView, &ColourView::OnCommandOfView)
END_MESSAGE_MAP()

class Frame : public CFrameWnd
{
public:
    Frame() { ++liveObjects; }
    ~Frame() override { --liveObjects; }

protected:
    void OnCommandOfFrame() { journal.push_back("frame command"); }
    void OnShadowed() { journal.push_back("frame instead of view"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Frame, CFrameWnd)
    ON_COMMAND(CommandOfFrame, &Frame::OnCommandOfFrame)
    ON_COMMAND(CommandOfView, &Frame::OnShadowed)
END_MESSAGE_MAP()

// The frame belongs to its window.
Frame* MakeFrame(CRuntimeClass* viewClass)
{
    CCreateContext context;
    context.m_pNewViewClass = viewClass;
    auto* frame = new Frame;
    if (!frame->Create(nullptr, "Frame", WS_OVERLAPPEDWINDOW, CRect(200, 150, 500, 350), nullptr,
                       nullptr, 0, &context))
    {
        return nullptr;
    }
    frame->ShowWindow(SW_SHOW);
    frame->SetForegroundWindow();
    PumpAll();
    return frame;
}

TEST_F(WindowTest, AFrameMakesItsViewWhichIsAskedFirstAndEndsWithItOrForWantOfIt)
{
    EXPECT_EQ(CRuntimeClass::FromName("no such class"), nullptr);
    Frame* const frame = MakeFrame(CRuntimeClass::FromName("ColourView"));
    ASSERT_NE(frame, nullptr);
    auto* const view = DYNAMIC_DOWNCAST(ColourView, frame->GetActiveView());
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "initial update"), 1);
    EXPECT_EQ(::GetFocus(), view->m_hWnd) << "an active frame gives its view the focus";
    frame->SetWindowPos(nullptr, 0, 0, 420, 333, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(WindowRectOf(*view).Size(), ClientRectOf(*frame).Size()) << "the view fills it";

    journal.clear();
    frame->SendMessage(WM_COMMAND, CommandOfView);
    frame->SendMessage(WM_COMMAND, CommandOfFrame);
    frame->SetActiveView(nullptr);
    frame->SendMessage(WM_COMMAND, CommandOfView);
    frame->SetFocus();
    Click(ClientPoint(*view, CPoint(50, 50)));
    EXPECT_EQ(frame->GetActiveView(), view);
    EXPECT_EQ(::GetFocus(), view->m_hWnd);
    EXPECT_EQ(journal, (Journal{"view command", "frame command", "deactivate",
                                "frame instead of view", "activate"}));

    EXPECT_EQ(liveObjects, 2);
    EXPECT_FALSE(frame->Create(nullptr, "Second")) << "it has its window";
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(MakeFrame(RUNTIME_CLASS(CView)), nullptr) << "no view, no frame";
    EXPECT_EQ(liveObjects, 0);
}

// Bars ------------------------------------------------------------------------------------------

// Strings of the test program: with a tip, and without one.
constexpr UINT TippedCommand = 60004;
constexpr UINT UntippedCommand = 60005;

class PressBar : public CToolBar
{
public:
    BOOL Make(CWnd& parent, DWORD style, UINT id = AFX_IDW_TOOLBAR)
    {
        const UINT commands[] = {TippedCommand, UntippedCommand};
        return CreateEx(&parent, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 0, 0),
                        id) &&
               SetButtons(commands, 2);
    }
    BOOL IsPressable(UINT command) const { return BOOL(SendMessage(TB_ISBUTTONENABLED, command)); }
    CString Tip(UINT command)
    {
        CString text;
        if (CToolTipCtrl* tips = GetToolBarCtrl().GetToolTips())
        {
            tips->GetText(text, this, command);
        }
        return text;
    }
};

TEST_F(WindowTest, BarsOfAWindowThatIsNotShownYetHaveTheirPlaces)
{
    CDialog dialog;
    const DialogTemplate form(CRect(0, 0, 200, 100), WS_POPUP);
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    const CRect client = ClientRectOf(dialog);
    const auto place = [&](const CWnd& child) {
        CRect rect = WindowRectOf(child);
        dialog.ScreenToClient(&rect);
        return rect;
    };
    PressBar top;
    PressBar unaligned;
    PressBar hidden;
    CStatusBar bottom;
    CStatic pane;
    ASSERT_TRUE(top.Make(dialog, CBRS_TOP));
    ASSERT_TRUE(unaligned.Make(dialog, CBRS_NOALIGN, AFX_IDW_TOOLBAR + 2));
    ASSERT_TRUE(hidden.Make(dialog, CBRS_TOP, AFX_IDW_TOOLBAR + 3));
    hidden.ShowWindow(SW_HIDE);
    ASSERT_TRUE(bottom.Create(&dialog));
    ASSERT_TRUE(pane.Create("", WS_CHILD, CRect(1, 2, 3, 4), &dialog, AFX_IDW_PANE_FIRST));
    unaligned.MoveWindow(5, 50, 60, 20);

    CRect left(0, 0, 0, 0);
    const auto reposition = [&](UINT flag) {
        dialog.RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, AFX_IDW_PANE_FIRST,
                              flag, &left);
    };
    reposition(CWnd::reposQuery);
    EXPECT_EQ(place(pane), CRect(1, 2, 3, 4)) << "it was only a question";
    reposition(CWnd::reposDefault);
    EXPECT_EQ(place(top), CRect(0, 0, client.right, top.CalcFixedLayout(TRUE, TRUE).cy));
    EXPECT_EQ(place(bottom), CRect(0, client.bottom - bottom.CalcFixedLayout(TRUE, TRUE).cy,
                                   client.right, client.bottom));
    EXPECT_EQ(place(pane), CRect(0, place(top).bottom, client.right, place(bottom).top));
    EXPECT_EQ(left, place(pane)) << "which was answered";
    EXPECT_EQ(place(unaligned), CRect(5, 50, 65, 70));
}

TEST_F(WindowTest, ABarTellsTheTipsOfItsCommandsUnlessItsParentDoes)
{
    PressBar bar;
    PressBar silent;
    PressBar later;
    ASSERT_TRUE(bar.Make(Host(), CBRS_TOP | CBRS_TOOLTIPS));
    ASSERT_TRUE(silent.Make(Host(), CBRS_TOP, 2));
    ASSERT_TRUE(later.Make(Host(), CBRS_TOP, 3));
    later.SetBarStyle(later.GetBarStyle() | CBRS_TOOLTIPS);
    EXPECT_STREQ(bar.Tip(TippedCommand), "Direct to");
    EXPECT_STREQ(bar.Tip(UntippedCommand), "");
    EXPECT_STREQ(silent.Tip(TippedCommand), "");
    EXPECT_STREQ(later.Tip(TippedCommand), "Direct to");

    Host().hook = [](ToldMessage& told) {
        if (told.message == WM_NOTIFY && told.code == UINT(TTN_GETDISPINFOW))
        {
            reinterpret_cast<NMTTDISPINFOW*>(told.lParam)->lpszText = const_cast<LPWSTR>(L"Mine");
        }
        if (told.message == WM_NOTIFY && told.code == UINT(TTN_GETDISPINFOA))
        {
            reinterpret_cast<NMTTDISPINFOA*>(told.lParam)->lpszText = const_cast<LPSTR>("Mine");
        }
    };
    EXPECT_STREQ(bar.Tip(TippedCommand), "Mine");
}

TEST_F(WindowTest, TheBarsOfEveryFrameAreKeptUpToDate)
{
    Frame* const main = MakeFrame(RUNTIME_CLASS(ColourView));
    ASSERT_NE(main, nullptr);
    AfxGetApp()->m_pMainWnd = &Host(); // none of the frames
    PressBar bar;
    ASSERT_TRUE(bar.Make(*main, CBRS_TOP));
    EXPECT_TRUE(bar.IsPressable(TippedCommand));
    PumpAll();
    EXPECT_FALSE(bar.IsPressable(TippedCommand)) << "nobody handles it";
    AfxGetApp()->m_pMainWnd = nullptr;
    main->DestroyWindow();
}

} // namespace
