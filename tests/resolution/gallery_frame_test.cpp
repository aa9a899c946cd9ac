// The gallery's window where it has less room than its pages, worked by keys and pointer.

#include "support/Fenced.h"
#include "support/Input.h"
#include "support/Pumping.h"

#include "GalleryFrame.h"
#include "GalleryHost.h"
#include "resource.h"

#include <OnBoardUIGeneral.h>

namespace {

// Smaller than it lets itself be made otherwise.
class SmallFrame : public Fenced<GalleryFrame>
{
public:
    using Fenced<GalleryFrame>::Fenced;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == WM_GETMINMAXINFO
                   ? 0
                   : Fenced<GalleryFrame>::WindowProc(message, wParam, lParam);
    }
};

class SmallGallery : public testing::Test
{
protected:
    GalleryHost m_host;
    SmallFrame* m_frame = nullptr; // deletes itself
    HWND m_window = nullptr;

    // In a mode, with its second page, of whose content so much is out of sight.
    void Open(APPMODE mode, int hidden)
    {
        COnBoardUIGeneral::SetStdModeGoals();
        COnBoardUIGeneral::SetAppMode(mode);
        m_frame = new SmallFrame(m_host);
        ASSERT_TRUE(m_frame->Open(1));
        m_window = *m_frame;
        m_frame->ShowWindow(SW_SHOW);
        m_frame->SetForegroundWindow();
        const CRect place = WindowRectOf(*m_frame);
        const int more = int(GalleryPage::SizeInMode().cy) - Shown();
        m_frame->SetWindowPos(nullptr, 0, 0, place.Width(), place.Height() + more - hidden,
                              SWP_NOZORDER);
        PumpAll();
        ASSERT_GE(Hidden(), hidden);
    }
    void TearDown() override
    {
        if (::IsWindow(m_window))
        {
            ::DestroyWindow(m_window);
        }
        COnBoardUIGeneral::SetAppMode(STD);
    }

    GalleryPage& Page() { return m_frame->Page(); }
    int Shown() { return int(ClientRectOf(Page()).Height()); }
    int Hidden() { return int(Page().ContentSize().cy) - Shown(); }
    int Top() { return int(Page().Origin().y); }
    CWnd& Part(UINT id) { return *m_frame->GetDlgItem(int(id)); }
};

TEST_F(SmallGallery, SpaceOnItsCloseSwitchEndsIt)
{
    Open(ONBOARD, 40);
    const AccessFaults faults;
    Part(IDC_WINDOW_SWITCHES).SetFocus();
    TypeKey(VK_RIGHT);
    TypeKey(VK_SPACE);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(SmallGallery, AKeyThatChoosesAnotherPageShowsItFromItsTop)
{
    Open(STD, 40);
    GalleryPage* const before = &Page();
    Part(IDC_PAGE_LIST).SetFocus();
    Page().ScrollTo(CPoint(0, Hidden()));
    TypeKey(VK_DOWN);
    ASSERT_NE(&Page(), before);
    EXPECT_EQ(Top(), 0);
    TypeKey(VK_UP);
    EXPECT_EQ(Top(), Hidden()); // where it was left
}

TEST_F(SmallGallery, ThePointerScrollsAPageAsFarAsItGoes)
{
    Open(STD, 60);
    Part(IDC_MODE_SWITCHES).SetFocus(); // takes no wheel itself
    CWnd& bar = Part(IDC_PAGE_DOWN);
    const int thick = int(ClientRectOf(bar).Width());
    const CPoint thumb = ClientPoint(bar, CPoint(thick / 2, thick * 4 / 3));
    const int way = thick * 2;
    const auto dragged = [&](int moves) {
        Page().ScrollTo(CPoint(0, 0));
        m_frame->RecalcLayout(); // the bar follows
        Drag(thumb, thumb + CPoint(0, way), moves);
        return Top();
    };
    const int atOnce = dragged(1);
    EXPECT_GT(atOnce, 0);
    EXPECT_LT(atOnce, Hidden());
    EXPECT_EQ(dragged(way), atOnce) << "slowly";

    Wheel(-2 * WHEEL_DELTA);
    EXPECT_GT(Top(), atOnce);
    Wheel(9 * WHEEL_DELTA);
    EXPECT_EQ(Top(), 0);
}

} // namespace
