// The verbs themselves: what every other test relies on.
#include "support/Canvas.h"
#include "support/WindowTest.h"

namespace {

class SupportTest : public WindowTest
{};

TEST_F(SupportTest, InputReachesTheWindowExactly)
{
    HostWindow& host = Host();
    EXPECT_EQ(::GetForegroundWindow(), host.GetSafeHwnd());
    for (const CPoint point : {CPoint(0, 0), CPoint(799, 599), CPoint(137, 251)})
    {
        MessageLog log(host, {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK});
        Click(ClientPoint(host, point));
        const LPARAM place = MAKELPARAM(point.x, point.y);
        const std::vector<Received> expected = {{WM_LBUTTONDOWN, MK_LBUTTON, place},
                                                {WM_LBUTTONUP, 0, place}};
        EXPECT_EQ(log.All(), expected);
    }
    MoveTo(ClientPoint(host, CPoint(300, 300)));
    host.SetFocus();
    MessageLog log(host, {WM_MOUSEWHEEL, WM_CHAR});
    Wheel(-240);
    TypeText("aB 7");
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(log.WParams(WM_MOUSEWHEEL).at(0)), -240);
    EXPECT_EQ(log.WParams(WM_CHAR), (std::vector<WPARAM>{'a', 'B', ' ', '7'}));

    Press();
    EXPECT_TRUE(IsPressed());
    Release();
    EXPECT_FALSE(IsPressed());
}

TEST_F(SupportTest, TheHostRecordsAndItsHookActs)
{
    auto& button = Add<CButton>(CRect(10, 10, 110, 40), BS_PUSHBUTTON, "Push");
    const UINT id = UINT(button.GetDlgCtrlID());
    Host().hook = [&](ToldMessage& told) {
        if (told.message == WM_COMMAND && told.code == BN_CLICKED)
        {
            button.DestroyWindow();
        }
    };
    Click(ClientPoint(button, CPoint(50, 15)));
    EXPECT_EQ(Host().CodesFrom(id), std::vector<UINT>{BN_CLICKED});
    EXPECT_EQ(button.GetSafeHwnd(), nullptr);

    Host().Forget();
    Host().AlsoRecord({WM_APP});
    Host().hook = [](ToldMessage& told) { told.answer = LRESULT(told.wParam) + 1; };
    EXPECT_EQ(Host().SendMessage(WM_APP, 41), 42);
    EXPECT_EQ(Host().Count(WM_APP), 1);
}

TEST_F(SupportTest, PixelsAreThoseOfTheScreen)
{
    auto& label = Add<CStatic>(CRect(20, 30, 80, 60), WS_BORDER);
    constexpr COLORREF Ink = RGB(10, 200, 30);
    CClientDC(&label).FillSolidRect(ClientRectOf(label), Ink);
    const Pixels whole = WindowPixels(label);
    EXPECT_EQ(whole.Width(), 60);
    EXPECT_EQ(whole.Count(Ink), 58 * 28);
    EXPECT_EQ(whole.At(0, 15), ::GetSysColor(COLOR_WINDOWFRAME)) << "the border belongs to it";
    const Pixels screen = ScreenPixels(WindowRectOf(label));
    EXPECT_EQ(whole, screen) << whole.Difference(screen).Width();
    EXPECT_EQ(ScreenPixels(WindowRectOf(Host())).At(20 + 30, 30 + 15), whole.At(30, 15));

    Canvas canvas(20, 10);
    canvas.DC().FillSolidRect(3, 4, 5, 2, RGB(1, 2, 3));
    const Pixels painted(canvas.DC(), CRect(0, 0, 20, 10));
    EXPECT_EQ(painted.Count(RGB(1, 2, 3)), 10);
    EXPECT_EQ(painted.Count(RGB(1, 2, 3), CRect(0, 0, 4, 10)), 2);
    canvas.DC().SetPixelV(19, 9, RGB(0, 0, 0));
    const Pixels changed(canvas.DC(), CRect(0, 0, 20, 10));
    EXPECT_EQ(painted.Difference(changed), CRect(19, 9, 20, 10));
    EXPECT_NE(painted, changed);
}

TEST_F(SupportTest, LiveObjectsAreCountedByKind)
{
    const HPEN warm = ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    ::DeleteObject(warm);
    const int before = GraphicsObjects();
    auto kinds = GraphicsObjectsByKind();
    const HGDIOBJ made[] = {::CreatePen(PS_SOLID, 1, RGB(1, 2, 3)),
                            ::CreateSolidBrush(RGB(1, 2, 3)), ::CreateRectRgn(0, 0, 1, 1),
                            ::CreateBitmap(4, 4, 1, 1, nullptr),
                            ::CreateFont(12, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial")};
    const HDC memory = ::CreateCompatibleDC(nullptr);
    EXPECT_EQ(GraphicsObjects(), before + 6);
    for (const UINT kind : {OBJ_PEN, OBJ_BRUSH, OBJ_REGION, OBJ_BITMAP, OBJ_FONT, OBJ_DC})
    {
        EXPECT_EQ(GraphicsObjectsByKind()[kind], kinds[kind] + 1) << kind;
    }
    for (const HGDIOBJ object : made)
    {
        ::DeleteObject(object);
    }
    ::DeleteDC(memory);
    EXPECT_EQ(GraphicsObjectsByKind(), kinds);

    const int windows = WindowsOfThread();
    Add<CStatic>(CRect(0, 0, 10, 10));
    EXPECT_EQ(WindowsOfThread(), windows + 1);
}

TEST_F(SupportTest, PumpingEndsWhenItShould)
{
    HostWindow& host = Host();
    host.AlsoRecord({WM_TIMER});
    host.SetTimer(7, 20, nullptr);
    EXPECT_TRUE(PumpUntil([&] { return host.Count(WM_TIMER) >= 2; }));
    host.KillTimer(7);
    EXPECT_FALSE(PumpUntil([] { return false; }, 30));

    ::PostQuitMessage(3);
    PumpAll();
    EXPECT_TRUE(TakeQuit());
    EXPECT_FALSE(TakeQuit());
}

} // namespace
