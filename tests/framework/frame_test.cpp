#include "catalog/DialogTemplate.h"
#include "support/WindowTest.h"

#include <afxext.h>

namespace {

using Journal = std::vector<std::string>;

Journal journal;
int liveObjects = 0;

constexpr UINT CommandOfView = 300;
constexpr UINT CommandOfFrame = 301;
constexpr UINT FirstUpdated = 400; // which the frame asks about
constexpr UINT LastUpdated = 409;

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
    void OnUpdate(CCmdUI* ui)
    {
        journal.push_back("view asked");
        ui->ContinueRouting();
    }
    using CView::OnUpdate;
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(ColourView, CView)

BEGIN_MESSAGE_MAP(ColourView, CView)
    ON_COMMAND(CommandOfView, &ColourView::OnCommandOfView)
    ON_UPDATE_COMMAND_UI(FirstUpdated, &ColourView::OnUpdate)
END_MESSAGE_MAP()

class Frame : public CFrameWnd
{
public:
    Frame() { ++liveObjects; }
    ~Frame() override { --liveObjects; }

    std::function<void(CCmdUI&)> update;

protected:
    void OnUpdate(CCmdUI* ui) { update(*ui); }
    void OnCommandOfFrame() { journal.push_back("frame command"); }
    void OnShadowed() { journal.push_back("frame instead of view"); }
    BOOL OnMouseWheel(UINT, short, CPoint)
    {
        OnVScroll(SB_LINEUP, 0, nullptr);
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Frame, CFrameWnd)
    ON_WM_MOUSEWHEEL()
    ON_COMMAND(CommandOfFrame, &Frame::OnCommandOfFrame)
    ON_COMMAND(CommandOfView, &Frame::OnShadowed)
    ON_UPDATE_COMMAND_UI_RANGE(FirstUpdated, LastUpdated, &Frame::OnUpdate)
END_MESSAGE_MAP()

// The frame belongs to its window.
Frame* MakeFrame(CRuntimeClass* viewClass)
{
    journal.clear();
    CCreateContext context;
    context.m_pNewViewClass = viewClass;
    auto* frame = new Frame;
    if (!frame->Create(nullptr, "Frame", WS_OVERLAPPEDWINDOW, CRect(200, 150, 500, 350), nullptr,
                       nullptr, 0, &context))
    {
        return nullptr;
    }
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "initial update"), 0);
    EXPECT_EQ(frame->GetActiveView(), nullptr);
    frame->InitialUpdateFrame(nullptr, FALSE);
    EXPECT_FALSE(frame->IsWindowVisible());
    frame->SetActiveView(nullptr);
    frame->InitialUpdateFrame(nullptr, TRUE);
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
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "initial update"), 2);
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

    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD, CRect(0, 0, 9, 9), frame, 7));
    {
        const MessageLog log(*view, {WM_HSCROLL, WM_VSCROLL});
        frame->SendMessage(WM_VSCROLL, SB_LINEDOWN, LPARAM(bar.m_hWnd));
        frame->SetActiveView(nullptr);
        frame->SendMessage(WM_HSCROLL, SB_LINEDOWN, LPARAM(bar.m_hWnd));
        EXPECT_EQ(log.Count(WM_VSCROLL), 1) << "a bar beside the active view is for it";
        EXPECT_EQ(log.Count(WM_HSCROLL), 0);
        frame->SetActiveView(view);
        frame->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
        EXPECT_EQ(log.Count(WM_VSCROLL), 2) << "and so is the frame's wheel";
    }

    EXPECT_EQ(liveObjects, 2);
    EXPECT_FALSE(frame->Create(nullptr, "Second")) << "it has its window";
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(MakeFrame(RUNTIME_CLASS(CView)), nullptr) << "no view, no frame";
    EXPECT_EQ(liveObjects, 0);
}

class LargeView : public CScrollView
{
    DECLARE_DYNCREATE(LargeView)
};
IMPLEMENT_DYNCREATE(LargeView, CScrollView)

TEST_F(WindowTest, AFrameIsMadeFromItsResourcesAndFitsItsView)
{
    auto* const frame = new Frame;
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(LargeView);
    ASSERT_TRUE(frame->LoadFrame(60010, WS_OVERLAPPEDWINDOW, nullptr, &context));
    frame->InitialUpdateFrame(nullptr, TRUE);
    EXPECT_EQ(TextOf(*frame), "Flight desk");
    EXPECT_EQ(frame->GetMenu()->GetSubMenu(0)->GetMenuItemID(0), CommandOfFrame);
    journal.clear();
    MSG key = {frame->m_hWnd, WM_KEYDOWN, VK_F5, 0, 0, {}};
    EXPECT_TRUE(frame->PreTranslateMessage(&key));
    EXPECT_EQ(journal, Journal{"frame command"});

    auto* const view = static_cast<LargeView*>(frame->GetActiveView());
    for (const auto& [size, shrinkOnly] :
         {std::pair(CSize(400, 300), FALSE), {CSize(300, 500), TRUE}})
    {
        view->SetScrollSizes(MM_TEXT, size);
        view->ResizeParentToFit(shrinkOnly);
        EXPECT_EQ(ClientRectOf(*view), CRect(0, 0, size.cx, 300));
    }
    frame->DestroyWindow();
}

// Menus -----------------------------------------------------------------------------------------

TEST_F(WindowTest, AMenuThatOpensAsksHowItsCommandsStand)
{
    Frame* const frame = MakeFrame(RUNTIME_CLASS(ColourView));
    ASSERT_NE(frame, nullptr);
    CMenu inner;
    ASSERT_TRUE(inner.CreatePopupMenu() && inner.AppendMenu(MF_STRING, 402, "inner"));
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    for (const UINT id : {400U, 0U, 401U, CommandOfFrame, 408U, 403U, 404U, 409U, UINT(SC_CLOSE)})
    {
        EXPECT_TRUE(menu.AppendMenu(id == 0 ? MF_SEPARATOR : MF_STRING, id, "item"));
    }
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 77, "nobody's"));
    EXPECT_TRUE(menu.AppendMenu(MF_POPUP, UINT_PTR(inner.m_hMenu), "opens"));
    std::vector<UINT> asked;
    frame->update = [&](CCmdUI& ui) {
        EXPECT_EQ(ui.m_pMenu->m_hMenu, menu.m_hMenu);
        EXPECT_EQ(ui.m_pOther, nullptr);
        EXPECT_EQ(ui.m_pSubMenu, ui.m_nID == 402 ? &inner : nullptr);
        EXPECT_EQ(ui.m_nIndexMax, menu.GetMenuItemCount());
        asked.push_back(ui.m_nID);
        ui.SetCheck(ui.m_nID == 400);
        ui.SetRadio(ui.m_nID == 401);
        ui.Enable(ui.m_nID != 404 && ui.m_nID != 402);
        ui.SetText(ui.m_nID == 404 ? "new" : "text");
        if (ui.m_nID == 400)
        {
            ui.SetCheck(1);
        }
        if (ui.m_nID == 403)
        {
            menu.DeleteMenu(403, MF_BYCOMMAND);
        }
    };
    const auto open = [&](BOOL ofSystem = FALSE) {
        asked.clear();
        frame->SendMessage(WM_INITMENUPOPUP, WPARAM(menu.m_hMenu), MAKELPARAM(0, ofSystem));
    };
    const auto state = [&](UINT id) { return menu.GetMenuState(id, MF_BYCOMMAND) & 0xFFU; };
    const auto isDot = [&](UINT id) {
        MENUITEMINFO item = {.cbSize = sizeof(item), .fMask = MIIM_FTYPE};
        return menu.GetMenuItemInfo(id, &item) && (item.fType & MFT_RADIOCHECK) != 0;
    };
    open(TRUE);
    EXPECT_EQ(asked, std::vector<UINT>());
    frame->m_bAutoMenuEnable = FALSE;
    journal.clear();
    open();
    EXPECT_EQ(journal, Journal{"view asked"}) << "and then whoever comes after it";
    EXPECT_EQ(asked, (std::vector<UINT>{400, 401, 408, 403, 404, 409, 402}));
    EXPECT_EQ(state(400), UINT(MF_CHECKED));
    EXPECT_FALSE(isDot(400));
    EXPECT_EQ(state(401), UINT(MF_CHECKED));
    EXPECT_TRUE(isDot(401));
    EXPECT_EQ(state(404), UINT(MF_GRAYED));
    CString text;
    menu.GetMenuString(404, text, MF_BYCOMMAND);
    EXPECT_STREQ(text, "new");
    EXPECT_EQ(state(77), 0U);
    EXPECT_EQ(menu.GetMenuState(menu.GetMenuItemCount() - 1, MF_BYPOSITION) & 0xFFU, UINT(MF_POPUP))
        << "its first command does not speak for it";
    frame->m_bAutoMenuEnable = TRUE;
    open();
    EXPECT_EQ(state(77), UINT(MF_GRAYED));
    EXPECT_EQ(state(CommandOfFrame) | state(SC_CLOSE), 0U);
    inner.Detach(); // its menu has it
    frame->update = [&](CCmdUI&) { frame->DestroyWindow(); };
    open();
    EXPECT_EQ(asked, std::vector<UINT>());
    EXPECT_EQ(liveObjects, 0);
}

TEST_F(WindowTest, TheStatusBarSaysWhatASelectedItemDoes)
{
    Frame* const frame = MakeFrame(RUNTIME_CLASS(ColourView));
    ASSERT_NE(frame, nullptr);
    CStatusBar bar;
    const UINT panes[] = {ID_SEPARATOR};
    ASSERT_TRUE(bar.Create(frame) && bar.SetIndicators(panes, 1));
    frame->SetMessageText("Ready");
    const auto said = [&](UINT item, UINT flags, HMENU menu) {
        frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(item, flags), LPARAM(menu));
        return bar.GetPaneText(0);
    };
    const HMENU menu = ::GetSystemMenu(*frame, FALSE);
    EXPECT_STREQ(said(60004, 0, menu), "Flies direct to a point");
    EXPECT_STREQ(said(1, MF_POPUP, menu), "");
    EXPECT_STREQ(said(0, 0xFFFF, nullptr), "Ready");
    for (const bool another : {false, true})
    {
        said(60004, 0, menu);
        frame->SetMessageText("12:31 UTC"); // menus let timers through
        if (another)
        {
            EXPECT_STREQ(said(60004, 0, menu), "Flies direct to a point");
        }
        EXPECT_STREQ(said(0, 0xFFFF, nullptr), "12:31 UTC") << another;
    }
    frame->RecalcLayout();
    const int before = WindowRectOf(*frame->GetActiveView()).Height();
    const int height = WindowRectOf(bar).Height();
    frame->ShowControlBar(frame->GetControlBar(AFX_IDW_STATUS_BAR), FALSE, FALSE);
    EXPECT_EQ(WindowRectOf(*frame->GetActiveView()).Height(), before + height);
    frame->DestroyWindow();
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
    PressBar upright;
    ASSERT_TRUE(upright.Make(dialog, CBRS_LEFT | CBRS_GRIPPER, AFX_IDW_TOOLBAR + 4));
    upright.SetBarStyle(CBRS_RIGHT); // before the pane, though it stands behind it
    EXPECT_FALSE(upright.Make(dialog, CBRS_TOP)) << "it has its window";
    reposition(CWnd::reposQuery);
    EXPECT_EQ(place(pane), CRect(1, 2, 3, 4)) << "it was only a question";
    reposition(CWnd::reposDefault);
    EXPECT_EQ(place(top), CRect(0, 0, client.right, top.CalcFixedLayout(TRUE, TRUE).cy));
    EXPECT_EQ(place(bottom), CRect(0, client.bottom - bottom.CalcFixedLayout(TRUE, TRUE).cy,
                                   client.right, client.bottom));
    const int width = upright.CalcFixedLayout(TRUE, FALSE).cx;
    EXPECT_EQ(place(upright),
              CRect(client.right - width, place(top).bottom, client.right, place(bottom).top));
    CRect buttons[2];
    upright.GetItemRect(0, &buttons[0]);
    upright.GetItemRect(1, &buttons[1]);
    EXPECT_GE(buttons[1].top, buttons[0].bottom) << "in a column";
    EXPECT_LE(std::max(buttons[0].right, buttons[1].right), width);
    EXPECT_LT(width, 2 * buttons[0].Width());
    EXPECT_EQ(place(pane), CRect(0, place(top).bottom, place(upright).left, place(bottom).top));
    EXPECT_EQ(left, place(pane)) << "which was answered";
    left = CRect(1, 2, 3, 4);
    reposition(CWnd::reposExtra);
    EXPECT_EQ(place(pane),
              CRect(1, place(top).bottom + 2, place(upright).left - 3, place(bottom).top - 4));
    upright.SetBarStyle(CBRS_TOP);
    upright.GetItemRect(1, &buttons[1]);
    EXPECT_EQ(buttons[1].top, buttons[0].top) << "in a line again";
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
            About<NMTTDISPINFOW>(told).lpszText = const_cast<LPWSTR>(L"Mine");
        }
        if (told.message == WM_NOTIFY && told.code == UINT(TTN_GETDISPINFOA))
        {
            About<NMTTDISPINFOA>(told).lpszText = const_cast<LPSTR>("Mine");
        }
    };
    EXPECT_STREQ(bar.Tip(TippedCommand), "Mine");
}

TEST_F(WindowTest, FramesKeepTheirBarsUpToDateUnlessAModalWindowDisablesThem)
{
    CDialog dialog;
    const DialogTemplate form(CRect(0, 0, 80, 40), WS_POPUP);
    Frame* const frames[] = {MakeFrame(RUNTIME_CLASS(ColourView)),
                             MakeFrame(RUNTIME_CLASS(ColourView))};
    PressBar bars[2];
    int idle = 0;
    Host().OnMessage(WM_ENTERIDLE, [&](ToldMessage&) {
        if (idle++ == 0)
        {
            frames[1]->EnableWindow(FALSE);
            EXPECT_TRUE(bars[0].Make(*frames[0], CBRS_TOP) && bars[1].Make(*frames[1], CBRS_TOP));
            dialog.PostMessage(WM_NULL); // and once more
            return;
        }
        EXPECT_FALSE(bars[0].IsPressable(TippedCommand)) << "nobody handles it";
        EXPECT_TRUE(bars[1].IsPressable(TippedCommand));
        dialog.EndDialog(1);
    });
    dialog.InitModalIndirect(form, &Host());
    EXPECT_EQ(dialog.DoModal(), 1);
    Host().hook = nullptr;
    frames[1]->EnableWindow();
    AfxGetApp()->m_pMainWnd = &Host(); // none of the frames
    PumpAll();
    EXPECT_FALSE(bars[1].IsPressable(TippedCommand));
    AfxGetApp()->m_pMainWnd = nullptr;
    frames[0]->RecalcLayout();
    const Pixels shown = Settled(bars[0]);
    EXPECT_EQ(shown.At(shown.Width() - 5, shown.Height() - 5), ::GetSysColor(COLOR_BTNFACE))
        << "a flat bar shows its parent's ground";
    for (Frame* const frame : frames)
    {
        frame->DestroyWindow();
    }
}

} // namespace
