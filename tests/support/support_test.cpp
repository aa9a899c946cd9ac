// What tests count and compare by: where it saw nothing, they would pass.
#include "support/WindowTest.h"

namespace {

using SupportTest = WindowTest;

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

    const size_t windows = AllWindows().size();
    CWnd child;
    CWnd hidden;
    child.CreateEx(0, "STATIC", "", WS_CHILD, CRect(0, 0, 9, 9), &Host(), 1);
    hidden.CreateEx(0, "STATIC", "", 0, 0, 0, 9, 9, HWND_MESSAGE, nullptr);
    EXPECT_EQ(AllWindows().size(), windows + 2);

    const size_t bytes = AllocatedBytes();
    // Not by new, which has a heap of its own when memory is guarded; volatile, or it is left out.
    void* volatile kept = std::malloc(50'000);
    EXPECT_GE(AllocatedBytes(), bytes + 50'000);
    std::free(kept);
    EXPECT_LT(AllocatedBytes(), bytes + 50'000);
}

} // namespace
