// The test program: a console program with an application object, as a host of the library has one.

#include "OnBoardUIGeneral.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

CWinApp theApp;

// Whether the heaps of the platform and of the run-time library are undamaged where nothing has run
// into it. They find most when they check their blocks, as in the preset "heap".
bool HeapsAreWhole()
{
    HANDLE heaps[64];
    const DWORD count =
        std::min(::GetProcessHeaps(DWORD(std::size(heaps)), heaps), DWORD(std::size(heaps)));
    return std::all_of(heaps, heaps + count,
                       [](HANDLE heap) { return ::HeapValidate(heap, 0, nullptr); });
}

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
