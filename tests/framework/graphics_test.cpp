// Who owns graphics objects and device contexts.

#include <afxcmn.h>

#include "support/LiveObjects.h"
#include "support/WindowTest.h"

#include <cmath>

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
    }
    EXPECT_FALSE(Lives(owned));
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

TEST(GraphicsObjects, TemporarySpeaksOfItsHandleAgainAfterADetach)
{
    const HPEN handle = ::CreatePen(PS_SOLID, 1, Red);
    CPen::FromHandle(handle)->Detach();
    EXPECT_EQ(HPEN(*CPen::FromHandle(handle)), handle);
    BecomeIdle();
    ::DeleteObject(handle);
}

TEST(GraphicsObjects, StockObjectsSurviveTheirObjects)
{
    {
        CBrush brush;
        EXPECT_TRUE(brush.CreateStockObject(WHITE_BRUSH));
    }
    EXPECT_TRUE(Lives(::GetStockObject(WHITE_BRUSH)));
}

TEST(GraphicsObjects, FailedCreationLeavesTheObjectEmpty)
{
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.LoadBitmap("there is no such bitmap"));
    EXPECT_EQ(bitmap.m_hObject, nullptr);
    EXPECT_FALSE(bitmap.DeleteObject());
}

TEST(GraphicsObjects, FontHeightIsInTenthsOfAPoint)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, "Arial"));
    LOGFONT data = {};
    font.GetLogFont(&data);
    CClientDC screen(nullptr);
    EXPECT_EQ(data.lfHeight, -std::lround(screen.GetDeviceCaps(LOGPIXELSY) * 12 / 72.0));
    EXPECT_STREQ(data.lfFaceName, "Arial");
}

TEST(DeviceContexts, SelectingGivesBackTheSameObjects)
{
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    CPen red(PS_SOLID, 1, Red);
    CPen blue(PS_SOLID, 1, Blue);
    CBrush brush(Red);
    CPen* const stock = dc.SelectObject(&red);
    EXPECT_EQ(HPEN(*stock), ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(dc.SelectObject(&blue), &red);
    EXPECT_EQ(dc.GetCurrentPen(), &blue);
    EXPECT_EQ(dc.SelectObject(static_cast<CGdiObject*>(&red)), &blue);
    CBrush* const stockBrush = dc.SelectObject(&brush);
    EXPECT_EQ(dc.SelectStockObject(WHITE_BRUSH), &brush);
    dc.SelectObject(stock);
    EXPECT_EQ(dc.GetCurrentBrush(), stockBrush);
}

TEST(DeviceContexts, ObjectsDeleteTheirContextsAndTemporariesDoNot)
{
    HDC handle = nullptr;
    {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        handle = dc;
        EXPECT_EQ(CDC::FromHandle(handle), &dc);
    }
    EXPECT_FALSE(Lives(handle));

    handle = ::CreateCompatibleDC(nullptr);
    CDC::FromHandle(handle)->SetTextColor(Red);
    BecomeIdle();
    EXPECT_TRUE(Lives(handle));
    EXPECT_EQ(CDC::FromHandle(handle)->GetTextColor(), Red);
    BecomeIdle();
    ::DeleteDC(handle);
}

TEST(DeviceContexts, StateIsSavedAndOriginsComeBack)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.SetTextColor(Red);
    const int saved = dc.SaveDC();
    EXPECT_EQ(dc.SetTextColor(Blue), Red);
    EXPECT_EQ(dc.SetViewportOrg(3, 4), CPoint(0, 0));
    EXPECT_EQ(dc.OffsetViewportOrg(1, 1), CPoint(3, 4));
    CRect rect(0, 0, 5, 5);
    dc.LPtoDP(&rect);
    EXPECT_EQ(rect, CRect(4, 5, 9, 10));
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_EQ(dc.GetTextColor(), Red);
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(0, 0));
}

TEST(DeviceContexts, FillingLeavesTheBackgroundColourAlone)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap bitmap;
    bitmap.CreateBitmap(10, 10, 1, 32, nullptr);
    CBitmap* const before = dc.SelectObject(&bitmap);
    dc.SetBkColor(Blue);
    dc.FillSolidRect(0, 0, 10, 10, RGB(0, 0, 0));
    dc.Draw3dRect(CRect(2, 2, 8, 8), Red, RGB(0, 255, 0));
    EXPECT_EQ(dc.GetBkColor(), Blue);
    EXPECT_EQ(dc.GetPixel(2, 2), Red);
    EXPECT_EQ(dc.GetPixel(2, 7), RGB(0, 255, 0));
    EXPECT_EQ(dc.GetPixel(7, 2), RGB(0, 255, 0));
    EXPECT_EQ(dc.GetPixel(3, 3), RGB(0, 0, 0));
    EXPECT_EQ(dc.GetPixel(8, 8), RGB(0, 0, 0));
    dc.SelectObject(before);
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
