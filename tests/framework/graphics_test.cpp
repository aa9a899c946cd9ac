// Who owns graphics objects and device contexts.

#include <afxcmn.h>

#include "support/Canvas.h"
#include "support/WindowTest.h"

namespace {

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);

} // namespace

TEST(GraphicsObjects, OwnersDeleteWhatIsTheirsAndTemporariesNothing)
{
    HPEN ownedPen = nullptr;
    HDC ownedContext = nullptr;
    HPEN pen = nullptr;
    HIMAGELIST images = nullptr;
    {
        CPen owner(PS_SOLID, 1, Red);
        ownedPen = owner;
        EXPECT_EQ(CPen::FromHandle(ownedPen), &owner);
        CDC contextOwner;
        contextOwner.CreateCompatibleDC(nullptr);
        ownedContext = contextOwner;
        EXPECT_EQ(CDC::FromHandle(ownedContext), &contextOwner);

        CPen other(PS_SOLID, 1, Blue);
        pen = HPEN(other.Detach());
        EXPECT_NE(CPen::FromHandle(pen), &other);
        CBrush stock;
        EXPECT_TRUE(stock.CreateStockObject(WHITE_BRUSH));
        CImageList list;
        ASSERT_TRUE(list.Create(16, 16, ILC_COLOR32, 1, 1));
        EXPECT_EQ(list.Add(::LoadIcon(nullptr, IDI_APPLICATION)), 0);
        images = list.Detach();
        EXPECT_EQ(CImageList::FromHandle(images)->GetImageCount(), 1);
    }
    CGdiObject::DeleteTempMap(); // as when idle
    CDC::DeleteTempMap();
    CImageList::DeleteTempMap();
    const auto lives = [](HGDIOBJ handle) { return ::GetObjectType(handle) != 0; };
    EXPECT_FALSE(lives(ownedPen));
    EXPECT_FALSE(lives(ownedContext));
    EXPECT_TRUE(lives(pen));
    EXPECT_TRUE(lives(::GetStockObject(WHITE_BRUSH)));
    EXPECT_EQ(::ImageList_GetImageCount(images), 1);
    ::DeleteObject(pen);
    ::ImageList_Destroy(images);
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
