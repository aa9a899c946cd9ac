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
        char name[MAX_PATH] = "";
        ::GetTempPath(MAX_PATH, folder);
        ::GetTempFileName(folder, "gal", 0, name);
        m_name = name;
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { ::DeleteFile(m_name.c_str()); }

    const std::string& Name() const { return m_name; }
    std::string Content() const
    {
        std::ifstream file(m_name);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    HANDLE OpenForAProgram() const
    {
        SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
        return ::CreateFile(m_name.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                            OPEN_EXISTING, 0, nullptr);
    }

private:
    std::string m_name;
};

// The first visible child of that class whose text begins so, once there is one.
HWND Child(HWND frame, const char* className, const char* text)
{
    HWND found = nullptr;
    const auto search = [&](HWND each) {
        char its[64] = "";
        ::GetClassName(each, its, int(sizeof(its)));
        if (::IsWindowVisible(each) && ::lstrcmpi(its, className) == 0)
        {
            ::SendMessage(each, WM_GETTEXT, sizeof(its), reinterpret_cast<LPARAM>(its));
            found = std::string(its).starts_with(text) ? each : nullptr;
        }
        return found == nullptr;
    };
    PumpUntil(
        [&] {
            ::EnumChildWindows(
                frame,
                [](HWND each, LPARAM by) -> BOOL {
                    return (*reinterpret_cast<decltype(search)*>(by))(each);
                },
                reinterpret_cast<LPARAM>(&search));
            return found != nullptr;
        },
        10000);
    return found;
}

void Tap(HWND frame, const char* className, const char* text)
{
    const HWND child = Child(frame, className, text);
    ASSERT_NE(child, nullptr) << text;
    Click(PlaceOf(child).CenterPoint());
}

constexpr const char* Title = "OnBoardUI Gallery";

using GalleryTest = WindowTest;

TEST_F(GalleryTest, OpensPagesAndSwitchesModesFromItsStartPageAndKeepsTheMode)
{
    const TemporaryFile settings;
    const std::string kept = "--settings \"" + settings.Name() + '"';
    {
        const RunningGallery gallery(kept);
        const HWND frame = gallery.Window(Title);
        ASSERT_NE(Child(frame, "Static", "Display mode: STD"), nullptr);
        Tap(frame, "Button", "Edits");
        EXPECT_NE(Child(frame, "Edit", "EDDF"), nullptr) << "the page of the tile";
        TypeKey(VK_HOME); // in the list of pages
        Tap(frame, "Button", "Flight bag\nfull");
        EXPECT_NE(Child(frame, "Static", "Display mode: EFBFS"), nullptr);
        TypeKey(VK_TAB); // from the button that was tapped to the first tile
        TypeKey(VK_SPACE);
        EXPECT_NE(Child(frame, "Static", "Five hundred"), nullptr);
    }
    EXPECT_NE(Child(RunningGallery(kept).Window(Title), "Static", "Display mode: EFBFS"), nullptr);
    const RunningGallery named(kept + " --mode onboard");
    EXPECT_NE(Child(named.Window(Title), "Static", "Display mode: ONBOARD"), nullptr);
    EXPECT_NE(settings.Content().find("EFBFS"), std::string::npos) << "only the user changes it";
}

TEST_F(GalleryTest, IsDarkFromEdgeToEdgeOnBoardAtEverySize)
{
    const TemporaryFile settings;
    const RunningGallery gallery("--mode onboard --settings \"" + settings.Name() + '"');
    const HWND frame = gallery.Window(Title);
    const HWND list = Child(frame, "ListBox", "");
    ASSERT_NE(list, nullptr);
    const auto dark = [&] {
        const CRect place = PlaceOf(frame);
        CRect page = PlaceOf(Child(frame, "#32770", ""));
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
    const int pages = int(::SendMessage(list, LB_GETCOUNT, 0, 0));
    for (int round = 0; round < 3; ++round)
    {
        for (int page = 0; page < pages; page += round == 0 ? 1 : 4)
        {
            ::SendMessage(list, LB_SETCURSEL, WPARAM(page), 0);
            ::SendMessage(frame, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(list), LBN_SELCHANGE),
                          LPARAM(list));
            PumpFor(50); // until it is painted
            EXPECT_TRUE(PumpUntil(dark)) << "page " << page << " in round " << round;
        }
        // Larger by its own edge, then as large as the screen.
        const CPoint corner = PlaceOf(frame).BottomRight() - CSize(4, 4);
        const auto sized = [&] { return PlaceOf(frame).BottomRight() != corner + CSize(4, 4); };
        if (round == 0)
        {
            MoveTo(corner);
            Press();
            PumpFor(200); // until the window's loop has it
            DragTo(corner + CSize(50, 40));
            EXPECT_TRUE(PumpUntil(sized));
            Release();
        }
        else if (round == 1)
        {
            TypeKey(VK_F6);
            EXPECT_TRUE(PumpUntil(sized));
        }
    }
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
