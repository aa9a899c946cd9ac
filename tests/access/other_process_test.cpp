// An assistive program is another process: it reaches the gallery's windows as this one.

#include "gallery/RunningGallery.h"
#include "support/Accessible.h"

namespace {

using FromAnotherProcess = WindowTest;

TEST_F(FromAnotherProcess, ButtonsAreReadPressedAndHeard)
{
    const RunningGallery gallery("--mode onboard --page buttons");
    const HWND frame = gallery.Window(Title);
    const HWND check = Shown(frame, "Terrain", "Button");
    ASSERT_NE(check, nullptr);
    {
        const Events events(check);
        const Held<IAccessible> object = Reached(check);
        const Read before(*object, CHILDID_SELF);
        EXPECT_EQ(before.role, ROLE_SYSTEM_CHECKBUTTON);
        EXPECT_EQ(before.name, "Terrain");
        EXPECT_EQ(before.action, "Check");
        EXPECT_EQ(before.state & STATE_SYSTEM_CHECKED, 0);
        EXPECT_EQ(object->accDoDefaultAction(Child(CHILDID_SELF)), S_OK);
        EXPECT_TRUE(events.Come(CHILDID_SELF));
        EXPECT_EQ(Read(*object, CHILDID_SELF).state & STATE_SYSTEM_CHECKED, STATE_SYSTEM_CHECKED);
    }

    // Pressed, dragged off, dragged back and released: each is told.
    const HWND button = Shown(frame, "Plain", "Button");
    ASSERT_NE(button, nullptr);
    const Events presses(button);
    const Held<IAccessible> push = Reached(button);
    // Another program's late word of where the pointer was may move it once more.
    const auto tells = [&](const CPoint& place, long pressed) {
        const bool told = PumpUntil(
            [&] {
                CPoint pointer;
                ::GetCursorPos(&pointer);
                if (pointer != place)
                {
                    QueueMove(place);
                }
                return std::ranges::count(presses.States(), CHILDID_SELF) > 0 &&
                       (Read(*push, CHILDID_SELF).state & STATE_SYSTEM_PRESSED) == pressed;
            },
            20000);
        return told && presses.Come(CHILDID_SELF); // and is forgotten
    };
    const CPoint middle = WindowRectOf(button).CenterPoint();
    const CPoint off = middle + CPoint(0, 200);
    Press(middle);
    EXPECT_TRUE(tells(middle, STATE_SYSTEM_PRESSED));
    MoveTo(off);
    EXPECT_TRUE(tells(off, 0));
    MoveTo(middle);
    EXPECT_TRUE(tells(middle, STATE_SYSTEM_PRESSED));
    Release(middle);
    EXPECT_TRUE(tells(middle, 0));
}

} // namespace
