// The gallery as a user has it: its own program, worked by the pointer.

#include "gallery/RunningGallery.h"
#include "support/WindowTest.h"

namespace {

// The edit of the first line of the page.
HWND FirstEdit(HWND frame)
{
    HWND first = nullptr;
    ::EnumChildWindows(
        frame,
        [](HWND child, LPARAM found) -> BOOL {
            char name[8] = "";
            ::GetClassName(child, name, int(std::size(name)));
            if (::lstrcmpi(name, "Edit") != 0 || !::IsWindowVisible(child))
            {
                return TRUE;
            }
            *reinterpret_cast<HWND*>(found) = child;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&first));
    return first;
}

std::string TextOf(HWND window)
{
    char text[256] = "";
    ::SendMessage(window, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
    return text;
}

// The middle of a key of the keyboard: five rows of 22 units, from a margin on.
CPoint KeyAt(const CRect& keyboard, int row, int unit)
{
    return CPoint(keyboard.left + 10 + (unit + 1) * (keyboard.Width() - 14) / 22,
                  keyboard.top + 10 + (2 * row + 1) * (keyboard.Height() - 14) / 10);
}

using ScreenKeyboardTest = WindowTest;

TEST_F(ScreenKeyboardTest, TypesAWordIntoTheEditThatWasTappedAndHides)
{
    const RunningGallery gallery("--mode efbfs --page edits");
    const HWND frame = gallery.Window("OnBoardUI Gallery");
    ASSERT_NE(frame, nullptr);
    const HWND edit = FirstEdit(frame);
    ASSERT_NE(edit, nullptr);
    ::SendMessage(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(""));
    Click(PlaceOf(edit).CenterPoint());
    const HWND keyboard = gallery.Window("Keyboard");
    ASSERT_NE(keyboard, nullptr);
    const CRect keys = PlaceOf(keyboard);
    EXPECT_FALSE(CRect().IntersectRect(keys, PlaceOf(edit))) << "it covers what is typed";
    const struct
    {
        int row;
        int unit;
        const char* text; // afterwards
    } word[] = {{2, 2, "s"}, {1, 16, "so"}, {3, 13, "son"}, {2, 18, "so"}, {1, 16, "soo"}};
    for (const auto& key : word)
    {
        // Not faster than a finger that sees what it has typed.
        Click(KeyAt(keys, key.row, key.unit));
        EXPECT_TRUE(PumpUntil([&] { return TextOf(edit) == key.text; }, 10000)) << TextOf(edit);
    }
    Click(KeyAt(keys, 4, 18));
    EXPECT_TRUE(PumpUntil([&] { return !::IsWindowVisible(keyboard); }, 10000));
}

} // namespace
