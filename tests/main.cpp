// The test program: a console program with an application object, as a host of the library has one.

#include "OnBoardUIGeneral.h"
#include "support/LiveObjects.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

CWinApp theApp;

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
    COnBoardUIGeneral::SetStdModeGoals(); // as every host does at its start
    const int result = RUN_ALL_TESTS();
    if (!HeapsAreWhole())
    {
        std::fputs("A heap is damaged.\n", stderr);
        return 1;
    }
    return result;
}
