// The first example, run by itself and seen from outside: package_tests HOST.

#include "support/RunningProgram.h"

#include <gtest/gtest.h>

namespace {

std::string hostProgram;

constexpr int ListId = 101;
constexpr int ModeButtonId = IDOK;
constexpr int CloseButtonId = IDCANCEL;
constexpr int Rounding = 2; // pixels that scaling up and down again may cost

// Its window once that is shown; null when it does not come or the host ends before.
HWND WindowOf(const RunningProgram& host)
{
    constexpr int Looks = 1000;
    HWND window = nullptr;
    for (int look = 0; look < Looks && window == nullptr && !host.EndsWithin(20); ++look)
    {
        window = host.Window("First host");
    }
    return window;
}

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
    const RunningProgram host('"' + hostProgram + '"');
    ASSERT_TRUE(host.Started()) << hostProgram << ": error " << ::GetLastError();
    const HWND window = WindowOf(host);
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
