#include "support/WindowTest.h"

namespace {

template <class Window> void ExpectEmpty(std::vector<Window*>& registry, const char* name)
{
    EXPECT_TRUE(registry.empty()) << "left behind: " << registry.size() << " registered " << name;
    registry.clear();
}

} // namespace

void WindowTest::SetUp()
{
    m_host = std::make_unique<HostWindow>();
    RestPointer();
    ForgetClipboard();
}

void WindowTest::TearDown()
{
    // While the windows still live: their end would free these by itself.
    EXPECT_FALSE(IsPressed()) << "left behind: the mouse button is down";
    EXPECT_EQ(::GetCapture(), nullptr) << "left behind: the mouse capture";
    if (IsPressed())
    {
        Release();
    }
    ::ReleaseCapture();

    if (m_host != nullptr)
    {
        m_host->hook = nullptr;
    }
    COnBoardUIGeneral::SetAppMode(STD); // whatever mode the test was in
    m_owned.clear();
    m_host.reset();
    PumpAll();

    const std::vector<HWND> windows = TopLevelWindows();
    EXPECT_EQ(windows.size(), 0U) << "left behind: windows";
    for (const HWND window : windows)
    {
        ::DestroyWindow(window);
    }
    ExpectEmpty(COnBoardUIGeneral::m_createdformviews, "form views");
    ExpectEmpty(COnBoardUIGeneral::m_createddialogs, "dialogs");
    ExpectEmpty(COnBoardUIGeneral::m_createddlcs, "drop-list combos");
    ExpectEmpty(COnBoardUIGeneral::m_createdPropPages, "property pages");
    ExpectEmpty(COnBoardUIGeneral::m_createdPropSheets, "property sheets");
    EXPECT_FALSE(TakeQuit()) << "left behind: WM_QUIT";
}

void WindowTest::Remove(const CWnd& control)
{
    std::erase_if(m_owned, [&](const auto& owned) { return owned.get() == &control; });
}
