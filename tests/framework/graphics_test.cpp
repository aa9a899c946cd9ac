// Who owns graphics objects and device contexts.

#include "support/Canvas.h"
#include "support/WindowTest.h"

#include <afxext.h>

namespace {

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);

} // namespace

TEST(GraphicsObjects, OwnersDeleteWhatIsTheirsAndTemporariesNothing)
{
    HPEN ownedPen = nullptr;
    HPEN pen = nullptr;
    {
        CPen owner(PS_SOLID, 1, Red);
        ownedPen = owner;
        EXPECT_EQ(CPen::FromHandle(ownedPen), &owner);
        CPen other(PS_SOLID, 1, Blue);
        pen = HPEN(other.Detach());
        EXPECT_NE(CPen::FromHandle(pen), &other);
        CBrush stock;
        EXPECT_TRUE(stock.CreateStockObject(WHITE_BRUSH));
    }
    CGdiObject::DeleteTempMap(); // as when idle
    const auto lives = [](HGDIOBJ handle) { return ::GetObjectType(handle) != 0; };
    EXPECT_FALSE(lives(ownedPen));
    EXPECT_TRUE(lives(pen));
    EXPECT_TRUE(lives(::GetStockObject(WHITE_BRUSH)));
    ::DeleteObject(pen);
}

TEST(DeviceContexts, SelectingGivesBackTheSameObjectsAndFillingTheBackgroundColour)
{
    Canvas canvas(10, 10);
    CDC& dc = canvas.DC();
    CPen red(PS_SOLID, 1, Red);
    CPen blue(PS_SOLID, 1, Blue);
    CPen* const stock = dc.SelectObject(&red);
    EXPECT_EQ(HPEN(*stock), ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(dc.SelectObject(&blue), &red);
    EXPECT_EQ(dc.SelectObject(static_cast<CGdiObject*>(&red)), &blue);
    EXPECT_EQ(dc.SelectStockObject(BLACK_PEN), &red);
    EXPECT_TRUE(
        CGdiObject::FromHandle(::GetStockObject(SYSTEM_FONT))->IsKindOf(RUNTIME_CLASS(CFont)))
        << "of the class that its handle needs";

    dc.SetBkColor(Blue);
    dc.FillSolidRect(0, 0, 10, 10, Red);
    EXPECT_EQ(dc.GetBkColor(), Blue);
}

TEST_F(WindowTest, PicturesThatAToolBarRefusesAreDeleted)
{
    CToolBar bar;
    bar.LoadBitmap(10017);
    const int before = GraphicsObjects();
    EXPECT_FALSE(bar.LoadBitmap(10018)) << "no window that could replace them";
    EXPECT_EQ(GraphicsObjects(), before);
}

TEST_F(WindowTest, ContextsOfAWindowAreReleased)
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
