// The gallery's window as a user has it: its start page, the modes, what it keeps, its dark look
// and its command line.

#include "gallery/RunningGallery.h"
#include "support/WindowTest.h"

#include <fstream>
#include <iterator>

namespace {

// A file of the test's own for as long as the object lives.
class TemporaryFile
{
public:
    TemporaryFile()
    {
        char folder[MAX_PATH] = "";
        ::GetTempPath(MAX_PATH, folder);
        ::GetTempFileName(folder, "gal", 0, m_name);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { ::DeleteFile(m_name); }

    std::string Option() const { return std::string(" --settings \"") + m_name + '"'; }
    std::string Content() const
    {
        std::ifstream file(m_name);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    HANDLE OpenForAProgram() const
    {
        SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
        return ::CreateFile(m_name, GENERIC_WRITE, FILE_SHARE_READ, &inherited, OPEN_EXISTING, 0,
                            nullptr);
    }

private:
    char m_name[MAX_PATH] = "";
};

// The page that is shown, or its control with that text, once there is one.
HWND Shown(HWND frame, const char* text = nullptr)
{
    HWND found = nullptr;
    PumpUntil(
        [&] {
            HWND page = nullptr;
            while (found == nullptr && (page = ::FindWindowEx(frame, page, "#32770", nullptr)))
            {
                found = text == nullptr ? page : ::FindWindowEx(page, nullptr, nullptr, text);
                found = ::IsWindowVisible(found) ? found : nullptr;
            }
            return found != nullptr;
        },
        10000);
    return found;
}

constexpr const char* Title = "OnBoardUI Gallery";

using GalleryTest = WindowTest;

TEST_F(GalleryTest, OpensPagesAndSwitchesModesFromItsStartPageAndKeepsTheMode)
{
    const TemporaryFile settings;
    {
        const RunningGallery gallery(settings.Option());
        const HWND frame = gallery.Window(Title);
        ASSERT_NE(Shown(frame, "Display mode: STD"), nullptr);
        Click(PlaceOf(Shown(frame, "Edits")).CenterPoint());
        EXPECT_NE(Shown(frame, "With a prompt"), nullptr) << "the page of the tile";
        TypeKey(VK_HOME); // in the list of pages
        Click(PlaceOf(Shown(frame, "Flight bag\nfull screen")).CenterPoint());
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

TEST_F(GalleryTest, IsDarkFromEdgeToEdgeOnBoardAtEverySize)
{
    const TemporaryFile settings;
    const RunningGallery gallery("--mode onboard" + settings.Option());
    const HWND frame = gallery.Window(Title);
    const HWND list = ::FindWindowEx(frame, nullptr, "LISTBOX", nullptr);
    const auto dark = [&] {
        const CRect place = PlaceOf(frame);
        CRect page = PlaceOf(Shown(frame));
        page.OffsetRect(-place.left, -place.top);
        const Pixels picture = ScreenPixels(place);
        int inPage = 0;
        int around = 0;
        for (const int color : {COLOR_BTNFACE, COLOR_WINDOW, COLOR_ACTIVECAPTION})
        {
            const int count = picture.Count(::GetSysColor(color), page);
            inPage += count;
            around += picture.Count(::GetSysColor(color)) - count;
        }
        // An edit with a prompt is as light as the platform's, and takes less than that.
        return around == 0 && inPage < page.Width() * page.Height() / 30;
    };
    const auto expectDark = [&](int step) {
        const int pages = int(::SendMessage(list, LB_GETCOUNT, 0, 0));
        EXPECT_GT(pages, 0);
        for (int page = 0; page < pages; page += step)
        {
            ::SendMessage(list, LB_SETCURSEL, WPARAM(page), 0);
            ::SendMessage(frame, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(list), LBN_SELCHANGE),
                          LPARAM(list));
            PumpFor(50); // until it is painted
            EXPECT_TRUE(PumpUntil(dark)) << "page " << page;
        }
    };
    expectDark(1);
    // Larger, by the edge of its own frame, then as large as the screen.
    const CRect before = PlaceOf(frame);
    const CPoint corner = before.BottomRight() - CSize(4, 4);
    MoveTo(corner);
    Press();
    PumpFor(200); // until the window's loop has it
    DragTo(corner + CSize(50, 40));
    EXPECT_TRUE(PumpUntil([&] { return PlaceOf(frame).Width() == before.Width() + 50; }));
    Release();
    expectDark(4);
    TypeKey(VK_F6);
    EXPECT_TRUE(PumpUntil([&] { return PlaceOf(frame).left == 0; }));
    expectDark(4);
}

TEST_F(GalleryTest, SaysWhatItUnderstandsOnItsCommandLine)
{
    const struct
    {
        const char* arguments;
        DWORD code;
        const char* said;
    } lines[] = {
        {"--help", 0, "--settings FILE"},    {"--page start --loud", 2, "--loud"},
        {"--page nowhere", 2, "list-boxes"}, {"--mode night", 2, "EFBFS"},
        {"--page", 2, "needs a value"},
    };
    for (const auto& line : lines)
    {
        const TemporaryFile streams[2]; // output, errors
        const HANDLE handles[2] = {streams[0].OpenForAProgram(), streams[1].OpenForAProgram()};
        EXPECT_EQ(RunningGallery(line.arguments, handles[0], handles[1]).Ended(), line.code);
        ::CloseHandle(handles[0]);
        ::CloseHandle(handles[1]);
        const int stream = line.code == 0 ? 0 : 1;
        EXPECT_NE(streams[stream].Content().find(line.said), std::string::npos) << line.arguments;
        EXPECT_EQ(streams[1 - stream].Content(), "") << line.arguments;
    }
}

} // namespace
