// Nothing grows with the windows that come and go: graphics objects and windows from the process's
// own tables, memory from its heap, timers by ending them. ONBOARDUI_LEAK_CYCLES asks for so many
// lives of each; ./soak does.

#include "MappedImageList.h"
#include "VehicleIconList.h"
#include "ViewPolygon.h"
#include "robust/Subjects.h"
#include "support/Canvas.h"
#include "support/TextFile.h"
#include "support/WindowTest.h"

#include <K3Chart.h>
#include <K3Grfx.h>

#include <cstdlib>

namespace {

class Leaks : public WindowTest, public testing::WithParamInterface<Subject>
{
protected:
    // One life, through the modes.
    void Live()
    {
        std::unique_ptr<CWnd> window = GetParam().make(Host());
        ASSERT_NE(window, nullptr);
        for (const APPMODE mode : {ONBOARD, EFB, STD})
        {
            COnBoardUIGeneral::SetAppMode(mode);
            window->ShowWindow(SW_HIDE);
            window->ShowWindow(SW_SHOWNA);
            Repaint(*window);
            window->SendMessage(WM_KEYDOWN, VK_DOWN, 1);
            window->SendMessage(WM_KEYUP, VK_DOWN, LPARAM(0xC0000001));
            window->SendMessage(WM_SYSKEYDOWN, VK_DOWN, 0x20000001); // opens a combo, and closes it
        }
        Arguments arguments(1);
        for (int act = 0; act < 8; ++act)
        {
            ActOn(*window, arguments);
        }
        Rest(*window);
        m_timers += EndTimers();
        window.reset();
        PumpAll();
        Host().Forget();
    }

    int m_timers = 0; // left at the ends of lives
};

TEST_P(Leaks, ManyLivesLeaveNothing)
{
    const char* const asked = std::getenv("ONBOARDUI_LEAK_CYCLES");
    const int cycles = asked != nullptr ? std::atoi(asked) : 12;
    for (int warm = 0; warm < 4; ++warm)
    {
        Live();
    }
    const int objects = GraphicsObjects();
    const size_t windows = AllWindows().size();
    const size_t kept = AllocatedBytes();
    for (int cycle = 0; cycle < cycles; ++cycle)
    {
        Live();
    }
    EXPECT_EQ(GraphicsObjects(), objects) << GetParam().name;
    EXPECT_EQ(AllWindows().size(), windows) << GetParam().name;
    EXPECT_EQ(m_timers + TicksWithin(100), 0) << GetParam().name;
    // The platform keeps a little for itself that comes and goes; a leak grows with the cycles.
    const auto growth = std::int64_t(AllocatedBytes()) - std::int64_t(kept);
    EXPECT_LT(growth, cycles * 64) << GetParam().name;
}

TEST_F(WindowTest, ManyLivesWithoutAWindowLeaveNothing)
{
    Canvas canvas(200, 150);
    K3Grfx graphics(canvas.DC());
    K3Chart chart(K3Chart::Mercator, 48, 11, 10, {50, 20});
    const TextFile file("[Vehicle Icons]\nVehicle Glider\n#.#\n.#.\nVehicle Car\n##\n");
    const auto live = [&] {
        MappedImageList images;
        EXPECT_TRUE(images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 4));
        images.AddIcon(3527);
        images.AddIcon(3573);
        VehicleIconList vehicles;
        EXPECT_TRUE(static_cast<IconList&>(vehicles).Load(file.Path(), nullptr));
        CViewPolygon(401, 3, K3Color(1, 2, 3)).Draw(&graphics, &chart, {0, 0, 90, 40}, &chart);
    };
    live();
    const int objects = GraphicsObjects();
    const size_t kept = AllocatedBytes();
    constexpr int lives = 20;
    for (int life = 0; life < lives; ++life)
    {
        live();
    }
    EXPECT_EQ(GraphicsObjects(), objects);
    EXPECT_LT(std::int64_t(AllocatedBytes()) - std::int64_t(kept), lives * 64);
}

INSTANTIATE_TEST_SUITE_P(Of, Leaks, testing::ValuesIn(Subjects()),
                         [](const auto& info) { return TestName(info.param.name); });

} // namespace
