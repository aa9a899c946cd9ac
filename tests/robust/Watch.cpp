#include "robust/Watch.h"

#include <windows.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>

namespace {

// What is not done by then never will be.
constexpr int Patience = 15; // seconds

constexpr DWORD FastFail = 0xC0000409;
constexpr DWORD HeapCorruption = 0xC0000374;
constexpr DWORD CompilersException = 0x20474343;
constexpr DWORD Faulty[] = {EXCEPTION_ACCESS_VIOLATION,
                            EXCEPTION_ILLEGAL_INSTRUCTION,
                            EXCEPTION_STACK_OVERFLOW,
                            EXCEPTION_INT_DIVIDE_BY_ZERO,
                            EXCEPTION_BREAKPOINT,
                            FastFail,
                            HeapCorruption,
                            CompilersException};

std::function<std::string()> s_doing;
std::atomic<bool> s_watching = false;
std::atomic<unsigned> s_progress = 0;
std::atomic<int> s_faults = 0;

std::atomic<bool> s_hung = false;

void Say(const char* what, DWORD code, const void* at)
{
    if (s_watching)
    {
        std::fprintf(stderr, "%s %lX at %p in %s\n", what, code, at, s_doing().c_str());
        std::fflush(stderr);
    }
}

// Ends a program that hangs, which the tests' own thread cannot.
DWORD WINAPI SeeThatItGoesOn(void*)
{
    unsigned seen = 0;
    for (int still = 0; still < Patience; ::Sleep(1000))
    {
        const unsigned now = s_progress;
        still = !s_watching || now != seen ? 0 : still + 1;
        seen = now;
    }
    s_hung = true;
    Say("Hung", 0, nullptr);
    ::TerminateProcess(::GetCurrentProcess(), 3);
    return 0;
}

// What hangs in the allocation of memory keeps whoever says so waiting, too.
DWORD WINAPI EndWhatCannotBeSaid(void*)
{
    while (!s_hung)
    {
        ::Sleep(1000);
    }
    ::Sleep(3000);
    ::TerminateProcess(::GetCurrentProcess(), 3);
    return 0;
}

LONG CALLBACK NoteFault(EXCEPTION_POINTERS* fault)
{
    const DWORD code = fault->ExceptionRecord->ExceptionCode;
    if (std::find(std::begin(Faulty), std::end(Faulty), code) != std::end(Faulty))
    {
        // The platform may catch it and go on: then nothing but this tells.
        ++s_faults;
        Say("Fault", code, fault->ExceptionRecord->ExceptionAddress);
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

// A failed assertion, an exception that nobody takes: the program ends after this.
void NoteAbort(int)
{
    Say("Aborted", 0, nullptr);
}

} // namespace

Watch::Watch(std::function<std::string()> doing)
{
    static const bool watched = [] {
        ::AddVectoredExceptionHandler(1, &NoteFault);
        std::signal(SIGABRT, &NoteAbort);
        for (const LPTHREAD_START_ROUTINE each : {&SeeThatItGoesOn, &EndWhatCannotBeSaid})
        {
            ::CloseHandle(::CreateThread(nullptr, 0, each, nullptr, 0, nullptr));
        }
        return true;
    }();
    (void)watched;
    s_doing = std::move(doing);
    s_watching = true;
}

Watch::~Watch()
{
    s_watching = false;
}

void Watch::GoesOn()
{
    ++s_progress;
}

int Watch::Faults()
{
    return s_faults;
}
