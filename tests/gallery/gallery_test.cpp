// The gallery's window as a user has it: its start page, the modes, what it keeps, its dark look,
// its on-screen keyboard and its command line.

#include "gallery/RunningGallery.h"
#include "support/TextFile.h"

#include <iterator>

namespace {

// A file of the test's own for as long as the object lives.
struct TemporaryFile : TextFile
{
    TemporaryFile()
        : TextFile("")
    {}
    std::string Option() const { return " --settings \"" + std::string(Path()) + '"'; }
    std::string Content() const
    {
        std::ifstream file(Path());
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

using GalleryTest = WindowTest;

TEST_F(GalleryTest, OpensPagesAndSwitchesModesFromItsStartPageAndKeepsTheMode)
{
    const TemporaryFile settings;
    {
        const RunningGallery gallery(settings.Option());
        const HWND frame = gallery.Window(Title);
        ASSERT_NE(Shown(frame, "Display mode: STD"), nullptr);
        Click(WindowRectOf(Shown(frame, "Edits")).CenterPoint());
        EXPECT_NE(Shown(frame, "With a prompt"), nullptr) << "the page of the tile";
        TypeKey(VK_HOME); // in the list of pages
        Click(WindowRectOf(Shown(frame, "Flight bag\nfull screen")).CenterPoint());
        EXPECT_NE(Shown(frame, "Display mode: EFBFS"), nullptr);
        TypeKey(VK_TAB); // from the button that was tapped to the first tile
        TypeKey(VK_RIGHT);
        TypeKey(VK_SPACE);
        EXPECT_NE(Shown(frame, "Two states"), nullptr) << "the page of the second tile";
    }
    EXPECT_NE(Shown(RunningGallery(settings.Option()).Window(Title), "Display mode: EFBFS"),
              nullptr);
    const RunningGallery named(settings.Option() + " --mode onboard");
    EXPECT_NE(Shown(named.Window(Title), "Display mode: ONBOARD"), nullptr);
    EXPECT_NE(settings.Content().find("EFBFS"), std::string::npos) << "only the user changes it";
}

TEST_F(GalleryTest, OpensADialogInItsMiddleThatStaysActiveWhileItsKeysSwitchTheMode)
{
    const TemporaryFile settings;
    Host().ShowWindow(SW_HIDE); // on a busy display it may come to the top again by itself
    const RunningGallery gallery("--mode std --page dialogs" + settings.Option());
    const HWND frame = gallery.Window(Title);
    ::PostMessage(Shown(frame, "Modal dialog"), BM_CLICK, 0, 0);
    const HWND dialog = gallery.Window("Flight");
    ASSERT_NE(dialog, nullptr);
    const CRect small = WindowRectOf(dialog);
    EXPECT_EQ(small.CenterPoint(), WindowRectOf(frame).CenterPoint());
    ASSERT_TRUE(PumpUntil([&] { return ::GetForegroundWindow() == dialog; }));
    TypeKey(VK_F7);
    EXPECT_TRUE(PumpUntil([&] { return WindowRectOf(dialog).Width() > 2 * small.Width(); }, 10000));
    PumpFor(100); // until the frame has followed too
    EXPECT_EQ(::GetForegroundWindow(), dialog);
}

TEST_F(GalleryTest, AMinimisedWindowComesBackWhenTheModeIsSwitched)
{
    const TemporaryFile settings;
    const RunningGallery gallery("--mode std" + settings.Option());
    const HWND frame = gallery.Window(Title);
    const CRect place = WindowRectOf(frame);
    const int standard = ::GetDlgCtrlID(Shown(frame, "Standard\nwindow")); // the command
    const int onBoard = ::GetDlgCtrlID(Shown(frame, "On-board\nwindow"));
    ::SendMessage(frame, WM_SYSCOMMAND, SC_MINIMIZE, 0);
    ASSERT_TRUE(::IsIconic(frame));
    ::SendMessage(frame, WM_COMMAND, WPARAM(onBoard), 0);
    EXPECT_FALSE(::IsIconic(frame));
    EXPECT_GT(WindowRectOf(frame).Width(), place.Width());
    ::SendMessage(frame, WM_COMMAND, WPARAM(standard), 0);
    EXPECT_EQ(WindowRectOf(frame), place);
}

TEST_F(GalleryTest, IsDarkFromEdgeToEdgeOnBoard)
{
    const TemporaryFile settings;
    const RunningGallery gallery("--mode onboard" + settings.Option());
    const HWND frame = gallery.Window(Title);
    const HWND list = ::FindWindowEx(frame, nullptr, "LISTBOX", nullptr);
    const auto light = [](const CRect& place) {
        const Pixels picture = ScreenPixels(place);
        return picture.Count(::GetSysColor(COLOR_BTNFACE)) +
               picture.Count(::GetSysColor(COLOR_WINDOW)) +
               picture.Count(::GetSysColor(COLOR_ACTIVECAPTION));
    };
    const auto dark = [&] {
        const CRect page = WindowRectOf(Shown(frame));
        const int inPage = light(page);
        // An edit with a prompt is as light as the platform's, and takes less than that.
        return light(WindowRectOf(frame)) == inPage && inPage < page.Width() * page.Height() / 25;
    };
    const int pages = int(::SendMessage(list, LB_GETCOUNT, 0, 0));
    EXPECT_GT(pages, 0);
    for (int page = 0; page < pages; ++page)
    {
        ::SendMessage(list, LB_SETCURSEL, WPARAM(page), 0);
        ::SendMessage(frame, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(list), LBN_SELCHANGE),
                      LPARAM(list));
        PumpFor(50); // until it is painted
        EXPECT_TRUE(PumpUntil(dark)) << "page " << page;
    }
}

// The middle of a key of the keyboard: five rows of 22 units, from a margin on.
CPoint KeyAt(const CRect& keyboard, int row, int unit)
{
    return CPoint(keyboard.left + 10 + (unit + 1) * (keyboard.Width() - 14) / 22,
                  keyboard.top + 10 + (2 * row + 1) * (keyboard.Height() - 14) / 10);
}

TEST_F(GalleryTest, ItsKeyboardTypesAWordIntoTheEditThatWasTappedAndHides)
{
    const RunningGallery gallery("--mode efbfs --page edits");
    const HWND edit = ::FindWindowEx(Shown(gallery.Window(Title)), nullptr, "EDIT", nullptr);
    ASSERT_NE(edit, nullptr);
    ::SendMessage(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(""));
    Click(WindowRectOf(edit).CenterPoint());
    const HWND keyboard = gallery.Window("Keyboard");
    ASSERT_NE(keyboard, nullptr);
    const CRect keys = WindowRectOf(keyboard);
    EXPECT_FALSE(CRect().IntersectRect(keys, WindowRectOf(edit))) << "it covers what is typed";
    // Row, unit and what is typed then.
    const std::tuple<int, int, std::string> word[] = {
        {2, 2, "s"}, {1, 16, "so"}, {3, 13, "son"}, {2, 18, "so"}, {1, 16, "soo"}};
    for (const auto& [row, unit, typed] : word)
    {
        // Not faster than a finger that sees what it has typed.
        Click(KeyAt(keys, row, unit));
        const auto isTyped = [edit, &word = typed] {
            char text[20] = "";
            ::SendMessage(edit, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
            return text == word;
        };
        EXPECT_TRUE(PumpUntil(isTyped, 10000)) << typed;
    }
    Click(KeyAt(keys, 4, 18));
    EXPECT_TRUE(PumpUntil([&] { return !::IsWindowVisible(keyboard); }, 10000));
}

} // namespace
