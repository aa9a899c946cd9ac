// The first example, run by itself and seen from outside: package_tests HOST.

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace {

std::string hostProgram;

constexpr int ListId = 101;
constexpr int ModeButtonId = IDOK;
constexpr int CloseButtonId = IDCANCEL;
constexpr int Rounding = 2; // pixels that scaling up and down again may cost

// The host's process; ended with the object if it has not ended by then.
class Host
{
public:
    Host()
    {
        STARTUPINFO startup = {};
        startup.cb = sizeof startup;
        std::string commandLine = '"' + hostProgram + '"';
        ::CreateProcess(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &m_process);
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host()
    {
        if (Started())
        {
            ::TerminateProcess(m_process.hProcess, 1);
            ::CloseHandle(m_process.hThread);
            ::CloseHandle(m_process.hProcess);
        }
    }

    bool Started() const { return m_process.hProcess != nullptr; }

    bool EndsWithin(DWORD milliseconds) const
    {
        return ::WaitForSingleObject(m_process.hProcess, milliseconds) == WAIT_OBJECT_0;
    }

    DWORD ExitCode() const
    {
        DWORD code = STILL_ACTIVE;
        ::GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }

    // Its window once that is shown; null when it does not come or the host ends before.
    HWND Window() const
    {
        constexpr int Looks = 1000;
        for (int look = 0; look < Looks && !EndsWithin(20); ++look)
        {
            const HWND window = ::FindWindow(nullptr, "First host");
            DWORD process = 0;
            ::GetWindowThreadProcessId(window, &process);
            if (process == m_process.dwProcessId && ::IsWindowVisible(window))
            {
                return window;
            }
        }
        return nullptr;
    }

private:
    PROCESS_INFORMATION m_process = {};
};

LONG_PTR RowHeight(HWND list)
{
    return ::SendMessage(list, LB_GETITEMHEIGHT, 0, 0);
}

SIZE SizeOf(HWND window)
{
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

TEST(FirstHost, ShowsItsListAndChangesTheMode)
{
    const Host host;
    ASSERT_TRUE(host.Started()) << hostProgram << ": error " << ::GetLastError();
    const HWND window = host.Window();
    ASSERT_NE(window, nullptr) << "exit code " << host.ExitCode();
    const HWND list = ::GetDlgItem(window, ListId);
    const HWND button = ::GetDlgItem(window, ModeButtonId);
    EXPECT_GE(::SendMessage(list, LB_GETCOUNT, 0, 0), 5);

    const LONG_PTR standardRow = RowHeight(list);
    const SIZE standardSize = SizeOf(window);
    ::SendMessage(button, BM_CLICK, 0, 0);
    EXPECT_GE(RowHeight(list), standardRow * 3 / 2);
    EXPECT_GE(SizeOf(window).cy, standardSize.cy * 3 / 2);
    ::SendMessage(button, BM_CLICK, 0, 0);
    EXPECT_EQ(RowHeight(list), standardRow);
    EXPECT_NEAR(SizeOf(window).cx, standardSize.cx, Rounding);
    EXPECT_NEAR(SizeOf(window).cy, standardSize.cy, Rounding);

    ::PostMessage(::GetDlgItem(window, CloseButtonId), BM_CLICK, 0, 0);
    ASSERT_TRUE(host.EndsWithin(10'000));
    EXPECT_EQ(host.ExitCode(), 0u);
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (argc != 2)
    {
        return 2;
    }
    hostProgram = argv[1];
    return RUN_ALL_TESTS();
}
