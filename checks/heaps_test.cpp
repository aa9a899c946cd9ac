// That the heaps see what they are there for. Part of the tests of the preset "heap" only.

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

// Out of the optimiser's sight.
char* volatile block;

LONG CALLBACK EndQuietly(EXCEPTION_POINTERS*)
{
    ::TerminateProcess(::GetCurrentProcess(), 3);
    return EXCEPTION_CONTINUE_SEARCH;
}

// For the body of a death test: without the backtrace of a fault, which takes ten seconds.
template <class Misuse> void Quietly(Misuse misuse)
{
    ::SetUnhandledExceptionFilter(EndQuietly);
    misuse();
}

void Write(int offset)
{
    block[offset] = 1;
}

char Read(int offset)
{
    const volatile char* const byte = block + offset;
    return *byte;
}

void Delete(int offset = 0)
{
    char* volatile const place = block + offset;
    delete[] place;
}

TEST(GuardedHeapDeathTest, EndsTheProgramWhereABlockIsMisused)
{
    block = new char[32]();
    EXPECT_DEATH(Quietly([] { Write(32); }), "");
    EXPECT_DEATH(Quietly([] { Read(32); }), "");
    EXPECT_DEATH(Quietly([] { Write(-1), Delete(); }), "written before its start");
    EXPECT_DEATH(Quietly([] { Delete(1); }), "not a block's start");
    EXPECT_DEATH(Quietly([] { Delete(), Read(0); }), "");
    EXPECT_DEATH(Quietly([] { Delete(), Delete(); }), "");
    Delete();

    block = new char[20]();
    EXPECT_DEATH(Quietly([] { Write(20), Delete(); }), "written past its end");
    Delete();
}

TEST(PlatformHeapDeathTest, ChecksItsBlocksInTheseTests)
{
    const auto misuse = [] {
        auto* const bytes = static_cast<char*>(::HeapAlloc(::GetProcessHeap(), 0, 24));
        block = bytes + 24;
        Write(0);
        ::ExitProcess(::HeapValidate(::GetProcessHeap(), 0, nullptr) ? 0 : 7);
    };
    // The complaint is meant; in words it would fail the test.
    char words[256] = "";
    ::GetEnvironmentVariable("WINEDEBUG", words, sizeof words);
    ::SetEnvironmentVariable("WINEDEBUG", "-all");
    EXPECT_EXIT(misuse(), testing::ExitedWithCode(7), "");
    ::SetEnvironmentVariable("WINEDEBUG", words);
}

TEST(GuardedHeapTest, KeepsBlocksOfEverySize)
{
    std::vector<std::unique_ptr<std::vector<char>>> blocks;
    for (size_t size = 1; size < 3'000'000; size = size * 5 / 4 + 1)
    {
        blocks.push_back(std::make_unique<std::vector<char>>(size, char(size)));
    }
    for (const auto& kept : blocks)
    {
        EXPECT_EQ(*kept, std::vector<char>(kept->size(), char(kept->size())));
    }
}

} // namespace
