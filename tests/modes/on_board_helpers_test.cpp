#include "OnBoardUI.h"
#include "support/Acting.h"
#include "support/AreaHost.h"
#include "support/WindowTest.h"

#include <cmath>

namespace {

using OnBoardHelpersTest = WindowTest;

TEST_F(OnBoardHelpersTest, OnBoardFontsComeFromTheSystemFont)
{
    LOGFONT stock = {};
    ::GetObject(::GetStockObject(SYSTEM_FONT), sizeof(stock), &stock);
    CFont font;
    ASSERT_NE(CreateOnBoardFont(font, 1.0, 0, 400), 0);
    const int objects = GraphicsObjects();
    for (const double factor : {1.0, 1.3, 1.7, 0.49, -1.3})
    {
        ASSERT_NE(CreateOnBoardFont(font, factor, 5, 700), 0) << "the same object again";
        LOGFONT made = {};
        font.GetLogFont(&made);
        EXPECT_STREQ(made.lfFaceName, "Arial");
        EXPECT_EQ(made.lfHeight, LONG(std::trunc(stock.lfHeight * factor)));
        EXPECT_EQ(std::pair(made.lfWidth, made.lfWeight), std::pair(5L, 700L));
    }
    EXPECT_EQ(GraphicsObjects(), objects) << "the one before is not left behind";
}

TEST_F(OnBoardHelpersTest, SystemColoursComeAndGoWithTheOnBoardModes)
{
    const COLORREF own = ::GetSysColor(COLOR_HIGHLIGHT);
    const COLORREF ownText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    EXPECT_EQ(COnBoardUIGeneral::GetOrgHighlight(), own);
    EXPECT_EQ(COnBoardUIGeneral::GetOrgHighlightText(), ownText);
    for (const APPMODE mode : {FULLSCREEN, EFBFS})
    {
        OnBoardSetSysColors(mode);
        EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), RGB(50, 80, 110));
        EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHTTEXT), RGB(230, 230, 230));
        EXPECT_EQ(COnBoardUIGeneral::GetOrgHighlight(), own) << "kept for the way back";
        mode == FULLSCREEN ? OnBoardRestoreSysColors() : OnBoardSetSysColors(STD);
        EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), own);
        EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHTTEXT), ownText);
    }
    const ModeScope scope(ONBOARD);
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), own) << "the mode alone leaves them alone";
}

TEST_F(OnBoardHelpersTest, ADialogsFontReachesItsDirectChildrenThoughOneEnds)
{
    auto& panel = Add<CWnd>(CRect(0, 0, 200, 200));
    Acting<CStatic> leaving;
    CStatic taken;
    CStatic last;
    CStatic inner;
    const CRect place(0, 0, 50, 20);
    leaving.Create("", WS_CHILD, place, &panel);
    taken.Create("", WS_CHILD, place, &panel);
    last.Create("", WS_CHILD, place, &panel);
    inner.Create("", WS_CHILD, place, &last);
    leaving.ActIn(WM_SETFONT, [&] {
        taken.DestroyWindow();
        leaving.DestroyWindow();
    });
    MessageLog log(last, {WM_SETFONT});
    MessageLog innerLog(inner, {WM_SETFONT});
    CFont font;
    CreateOnBoardFont(font, 1.7, 0, 400);
    CWnd noWindow;
    ChangeDialogFont(nullptr, &font);
    ChangeDialogFont(&noWindow, &font);
    ChangeDialogFont(&panel, &font);
    ChangeDialogFont(&panel, nullptr);
    EXPECT_EQ(log.All(), (std::vector<Received>{{WM_SETFONT, WPARAM(font.GetSafeHandle()), TRUE},
                                                {WM_SETFONT, 0, TRUE}}));
    EXPECT_EQ(innerLog.All(), std::vector<Received>());
}

TEST_F(OnBoardHelpersTest, WindowsAreKeptInsideTheHostsArea)
{
    CWnd window;
    ASSERT_TRUE(
        window.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    AreaHost host;
    host.answers = false; // the values count all the same
    const CRect area(100, 50, 500, 350);
    const std::tuple<CRect, CRect, CPoint> cases[] = {
        {area, CRect(CPoint(300, 250), CSize(200, 100)), CPoint(300, 250)}, // in the corner
        {area, CRect(CPoint(301, 251), CSize(200, 100)), CPoint(300, 250)},
        {area, CRect(CPoint(99, 49), CSize(200, 100)), CPoint(100, 50)},
        {area, CRect(CPoint(-500, 900), CSize(200, 100)), CPoint(100, 250)},
        {area, CRect(CPoint(450, 60), CSize(600, 100)), CPoint(100, 60)},   // too wide: left
        {area, CRect(CPoint(150, 60), CSize(200, 500)), CPoint(150, -150)}, // too tall: bottom
        {CRect(0, 0, 0, 0), CRect(300, 300, 500, 400), CPoint(0, -100)}, // an empty area counts too
    };
    for (const auto& [offered, before, after] : cases)
    {
        host.area = offered;
        window.MoveWindow(&before);
        EnsureWndVisible(nullptr, window);
        EXPECT_EQ(WindowRectOf(window), before);
        EnsureWndVisible(&host, window);
        EXPECT_EQ(WindowRectOf(window), CRect(after, before.Size()))
            << before.left << ", " << before.top;
    }
    EXPECT_EQ(host.askedFor, 1);
}

} // namespace
