// The test program: a console program with an application object, as a host of the library has one.

#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

class TestApp : public CWinApp
{};

TestApp theApp;

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // A fault ends the program with its exit code; a box would wait for somebody to close it.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL))
    {
        return 1;
    }
    return RUN_ALL_TESTS();
}
