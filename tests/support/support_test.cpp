// The verbs themselves: what every other test relies on.
#include "support/WindowTest.h"

namespace {

using SupportTest = WindowTest;

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
}

TEST_F(SupportTest, PixelsAreThoseOfTheScreen)
{
    auto& label = Add<CStatic>(CRect(20, 30, 80, 60), WS_BORDER);
    constexpr COLORREF Ink = RGB(10, 200, 30);
    CClientDC(&label).FillSolidRect(ClientRectOf(label), Ink);
    const Pixels whole = WindowPixels(label);
    EXPECT_EQ(whole.Count(Ink), 58 * 28) << "the border belongs to it";
    EXPECT_EQ(whole, ScreenPixels(WindowRectOf(label)));
    CClientDC(&label).SetPixelV(57, 27, RGB(10, 200, 31));
    EXPECT_NE(whole, WindowPixels(label));
}

TEST_F(SupportTest, LiveObjectsAreCounted)
{
    ::DeleteObject(::CreatePen(PS_SOLID, 1, RGB(1, 2, 3)));
    const int before = GraphicsObjects();
    const HGDIOBJ made[] = {::CreatePen(PS_SOLID, 1, RGB(1, 2, 3)), ::CreateCompatibleDC(nullptr),
                            ::CreateBitmap(4, 4, 1, 1, nullptr)};
    EXPECT_EQ(GraphicsObjects(), before + 3);
    for (const HGDIOBJ object : made)
    {
        ::DeleteObject(object);
    }
    EXPECT_EQ(GraphicsObjects(), before);

    const size_t bytes = AllocatedBytes();
    auto kept = std::make_unique<char[]>(50'000);
    EXPECT_GE(AllocatedBytes(), bytes + 50'000);
    kept.reset();
    EXPECT_LT(AllocatedBytes(), bytes + 50'000);
}

} // namespace
