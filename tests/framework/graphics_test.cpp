// Who owns graphics objects and device contexts.

#include <afxcmn.h>

#include "support/Canvas.h"
#include "support/WindowTest.h"

namespace {

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);

bool Lives(HGDIOBJ handle)
{
    return ::GetObjectType(handle) != 0;
}

void BecomeIdle()
{
    CGdiObject::DeleteTempMap();
    CDC::DeleteTempMap();
    CImageList::DeleteTempMap();
}

} // namespace

TEST(GraphicsObjects, OwnersDeleteAndDetachedOnesDoNot)
{
    HPEN owned = nullptr;
    HPEN detached = nullptr;
    {
        CPen pen(PS_SOLID, 1, Red);
        CPen other(PS_SOLID, 1, Blue);
        owned = pen;
        detached = HPEN(other.Detach());
        EXPECT_EQ(CPen::FromHandle(owned), &pen);
        EXPECT_NE(CPen::FromHandle(detached), &other);
        CBrush stock;
        EXPECT_TRUE(stock.CreateStockObject(WHITE_BRUSH));
    }
    EXPECT_FALSE(Lives(owned));
    EXPECT_TRUE(Lives(::GetStockObject(WHITE_BRUSH)));
    EXPECT_TRUE(Lives(detached));
    BecomeIdle();
    ::DeleteObject(detached);
}

TEST(GraphicsObjects, TemporariesOwnNothingAndAreOfTheRealClass)
{
    const std::pair<HGDIOBJ, CRuntimeClass*> handles[] = {
        {::CreatePen(PS_SOLID, 1, Red), RUNTIME_CLASS(CPen)},
        {::CreateSolidBrush(Red), RUNTIME_CLASS(CBrush)},
        {::CreateBitmap(1, 1, 1, 1, nullptr), RUNTIME_CLASS(CBitmap)},
        {::CreateRectRgn(0, 0, 1, 1), RUNTIME_CLASS(CRgn)},
        {::GetStockObject(SYSTEM_FONT), RUNTIME_CLASS(CFont)},
    };
    for (const auto& [handle, wanted] : handles)
    {
        CGdiObject* temporary = CGdiObject::FromHandle(handle);
        EXPECT_TRUE(temporary->IsKindOf(wanted)) << wanted->m_lpszClassName;
        EXPECT_EQ(temporary, CGdiObject::FromHandle(handle));
        BecomeIdle();
        EXPECT_TRUE(Lives(handle)) << wanted->m_lpszClassName;
        ::DeleteObject(handle);
    }
    EXPECT_EQ(CPen::FromHandle(nullptr), nullptr);
}

TEST(DeviceContexts, SelectingGivesBackTheSameObjects)
{
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    CPen red(PS_SOLID, 1, Red);
    CPen blue(PS_SOLID, 1, Blue);
    CPen* const stock = dc.SelectObject(&red);
    EXPECT_EQ(HPEN(*stock), ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(dc.SelectObject(&blue), &red);
    EXPECT_EQ(dc.SelectObject(static_cast<CGdiObject*>(&red)), &blue);
    EXPECT_EQ(dc.GetCurrentPen(), &red);
    EXPECT_EQ(dc.SelectStockObject(BLACK_PEN), &red);
}

TEST(DeviceContexts, ObjectsDeleteTheirContextsAndTemporariesDoNot)
{
    HDC owned = nullptr;
    const HDC free = ::CreateCompatibleDC(nullptr);
    {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        owned = dc;
        EXPECT_EQ(CDC::FromHandle(owned), &dc);
        EXPECT_EQ(HDC(*CDC::FromHandle(free)), free);
    }
    BecomeIdle();
    EXPECT_FALSE(Lives(owned));
    EXPECT_TRUE(Lives(free));
    ::DeleteDC(free);
}

TEST(DeviceContexts, FillingLeavesTheBackgroundColourAlone)
{
    Canvas canvas(10, 10);
    CDC& dc = canvas.DC();
    dc.SetBkColor(Blue);
    dc.FillSolidRect(0, 0, 10, 10, RGB(0, 0, 0));
    dc.Draw3dRect(CRect(2, 2, 8, 8), Red, RGB(0, 255, 0));
    EXPECT_EQ(dc.GetBkColor(), Blue);
    EXPECT_EQ(dc.GetPixel(2, 2), Red);
    EXPECT_EQ(dc.GetPixel(2, 7), RGB(0, 255, 0));
    EXPECT_EQ(dc.GetPixel(7, 2), RGB(0, 255, 0));
    EXPECT_EQ(canvas.Picture().Count(RGB(0, 0, 0)), 100 - 20);
}

class WindowContexts : public WindowTest
{};

TEST_F(WindowContexts, AreReleasedAndLeaveTheWindowValid)
{
    const auto useAll = [this]() {
        CClientDC client(&Host());
        EXPECT_EQ(client.GetWindow(), &Host());
        CWindowDC window(&Host());
        CClientDC screen(nullptr);
        Host().Invalidate();
        CPaintDC paint(&Host());
        EXPECT_EQ(CRect(paint.m_ps.rcPaint), CRect(0, 0, 800, 600));
    };
    useAll(); // the platform keeps its first contexts
    const int before = GraphicsObjects();
    for (int round = 0; round < 50; ++round)
    {
        useAll();
    }
    EXPECT_EQ(GraphicsObjects(), before);
    EXPECT_FALSE(Host().GetUpdateRect(nullptr));
}

TEST(ImageLists, OwnersDestroyAndTemporariesDoNot)
{
    CImageList owner;
    ASSERT_TRUE(owner.Create(16, 16, ILC_COLOR32, 1, 1));
    EXPECT_EQ(owner.Add(::LoadIcon(nullptr, IDI_APPLICATION)), 0);
    EXPECT_EQ(CImageList::FromHandle(owner), &owner);
    const HIMAGELIST handle = owner.Detach();
    EXPECT_EQ(CImageList::FromHandle(handle)->GetImageCount(), 1);
    BecomeIdle();
    EXPECT_EQ(::ImageList_GetImageCount(handle), 1);
    owner.Attach(handle);
}
