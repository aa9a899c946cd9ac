// What the resolution of the screen may spoil: texts in controls that do not grow with their font,
// and pages that do not hold their controls. Run once at each resolution, each with a display and a
// prefix of its own.

#include "resolution/Fitting.h"
#include "support/Pumping.h"

#include "GalleryFrame.h"
#include "GalleryHost.h"
#include "Look.h"
#include "Pages.h"
#include "catalog/Controls.h"
#include "catalog/DialogTemplate.h"

#include <CustomDialog.h>
#include <OnBoardUI.h>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

// Before the first window.
const BOOL Aware = ::SetProcessDPIAware();

constexpr APPMODE Modes[] = {STD, FULLSCREEN, ONBOARD};

class Resolution : public testing::Test
{
protected:
    void SetUp() override
    {
        const char* const asked = std::getenv("ONBOARDUI_DPI");
        ASSERT_TRUE(Aware);
        ASSERT_EQ(CClientDC(nullptr).GetDeviceCaps(LOGPIXELSY), asked ? std::atoi(asked) : 96);
        COnBoardUIGeneral::SetStdModeGoals();
        COnBoardUIGeneral::SetAppTitle("Title");
    }
    void TearDown() override { COnBoardUIGeneral::SetAppMode(STD); }
};

// A host's window that gives the controls the mode's fonts.
class Stage : public CCustomDialog
{
public:
    Stage()
        : CCustomDialog(0U, nullptr)
    {
        CreateIndirect(DialogTemplate(CRect(0, 0, 300, 200), WS_POPUP | WS_VISIBLE), nullptr);
    }
    ~Stage() override { DestroyWindow(); }
};

TEST_F(Resolution, LeavesTheTextsOfEveryControlRoom)
{
    for (const APPMODE mode : Modes)
    {
        for (const Control& control : Controls())
        {
            COnBoardUIGeneral::SetAppMode(STD);
            Stage stage;
            const auto make = [&] {
                return control.make(stage,
                                    {look::Scaled(CRect(20, 20, 220, 160)), "Airspace g", 20});
            };
            std::unique_ptr<CWnd> window = make();
            ASSERT_TRUE(window) << control.name;
            const bool isChild = ::GetAncestor(*window, GA_ROOT) == stage.GetSafeHwnd();
            const std::string name = control.name;
            if (name == "combo" || name == "header") // of a fixed height
            {
                const CRect place = WindowRectOf(*window);
                window->SetWindowPos(nullptr, 0, 0, place.Width(), look::Scaled(place.Height()),
                                     SWP_NOMOVE | SWP_NOZORDER);
            }
            if (!isChild) // whose size is its host's when the mode changes
            {
                window.reset();
            }
            COnBoardUIGeneral::SetAppMode(mode);
            if (!isChild)
            {
                window = make();
            }
            PumpAll();
            EXPECT_EQ(fitting::FaultsWithin(*window), "") << control.name << " in mode " << mode;
            window->DestroyWindow();
        }
    }
}

struct Placed
{
    HWND window;
    CRect place;
    bool holds; // others, as a group box does
};

std::vector<Placed> ChildrenOf(const GalleryPage& page)
{
    std::vector<Placed> children;
    for (HWND child = ::GetWindow(page, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (::IsWindowVisible(child))
        {
            const bool isBox = IsOfClass(child, "Button") &&
                               (::GetWindowLong(child, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
            children.push_back({child, PlaceIn(page, child) + page.Origin(), isBox});
        }
    }
    return children;
}

std::string Named(const Placed& placed)
{
    const CRect& at = placed.place;
    return fitting::ClassOf(placed.window) + " '" + TextOf(*CWnd::FromHandle(placed.window)) +
           "' at " + std::to_string(at.left) + ", " + std::to_string(at.top) + " to " +
           std::to_string(at.right) + ", " + std::to_string(at.bottom);
}

TEST_F(Resolution, LeavesThePagesOfTheGalleryWhole)
{
    GalleryHost host;
    auto* const frame = new GalleryFrame(host); // deletes itself
    ASSERT_TRUE(frame->Open(0));
    frame->ShowWindow(SW_SHOW);
    for (const APPMODE mode : Modes)
    {
        frame->SwitchMode(mode);
        for (size_t index = 0; index < Pages().size(); ++index)
        {
            SCOPED_TRACE(std::string(Pages()[index].name) + " in mode " + std::to_string(mode));
            ASSERT_TRUE(frame->ShowPage(index));
            PumpAll();
            GalleryPage& page = frame->Page();
            EXPECT_EQ(fitting::FaultsWithin(page), "");
            const CRect shown = ClientRectOf(page);
            const CRect content(CPoint(0, 0), page.ContentSize());
            const std::vector<Placed> children = ChildrenOf(page);
            for (const Placed& one : children)
            {
                EXPECT_EQ(one.place | content, content)
                    << Named(one) << " of " << content.right << " x " << content.bottom;
                EXPECT_LE(fitting::CutOfSquare(one.window), 1) << Named(one);
                for (const Placed& other : children)
                {
                    CRect common;
                    EXPECT_FALSE(&one < &other && !one.holds && !other.holds &&
                                 common.IntersectRect(&one.place, &other.place))
                        << Named(one) << " and " << Named(other);
                }
                // All that has room is brought in sight when the focus goes there.
                page.Reveal(one.window);
                const CRect now = PlaceIn(page, one.window);
                EXPECT_TRUE(now.Width() > shown.Width() || now.Height() > shown.Height() ||
                            (now | shown) == shown)
                    << Named(one) << " is not seen";
            }
            page.ScrollTo(CPoint(0, 0));
        }
    }
    frame->SwitchMode(STD);
    frame->DestroyWindow();
}

} // namespace
