#include "dialogs/dialog_for_tests.h"
#include "windows/LineSplitting.h"
#include "windows/MessageBoxLayout.h"

#include <gtest/gtest.h>

namespace {

using namespace windows;

// Lines -----------------------------------------------------------------------------------------

TEST(MessageLines, BreakAfterTheLastSeparatorThatFits)
{
    constexpr UINT Western = 1252;
    constexpr UINT Japanese = 932;
    const struct
    {
        const char* text;
        size_t limit;
        const char* expected;
        UINT codePage = Western;
    } cases[] = {
        {"", 8, ""},
        {"one two three", 13, "one two three"},
        {"one two three", 12, "one two \r\nthree"},
        {"one\ttwo\fthree", 5, "one\t\r\ntwo\f\r\nthree"},
        {"one    two", 5, "one    \r\ntwo"},       // a run stays before the break
        {"12345678   90", 8, "12345678   \r\n90"}, // also one after a full line
        {"a 12345678901", 8, "a \r\n12345678\r\n901"},
        {"one  ", 3, "one  "}, // nothing is left for another line
        {"one\ntwo\rthree", 8, "one\r\ntwo\r\nthree"},
        {"\r\n\r\none\n\n", 8, "\r\n\r\none\r\n\r\n"}, // its own line ends stay
        {"one two\r\nthree four", 7, "one two\r\nthree \r\nfour"},
        {"xyz", 1, "x\r\ny\r\nz"},
        // Characters of two bytes are one, and stay whole; their second byte is no letter.
        {"\x82\xA0\x82\xA2\x82\xA4", 2, "\x82\xA0\x82\xA2\r\n\x82\xA4", Japanese},
        {"\x83\x5C\x83\x5C\x83\x5C", 1, "\x83\x5C\r\n\x83\x5C\r\n\x83\x5C", Japanese},
        {"ab\x82", 2, "ab\r\n\x82", Japanese}, // half a character at the end
        {"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x9B\xA9x", 3, "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x9B\xA9\r\nx",
         CP_UTF8},
        {"\x82\xA0\x82\xA2", 2, "\x82\xA0\r\n\x82\xA2"}, // four letters in a western text
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(SplitLines(each.text, each.limit, CodePage(each.codePage)), each.expected)
            << '"' << each.text << "\" at " << each.limit;
    }
    const std::pair<int, size_t> limits[] = {{-100'000, 1}, {0, 14},    {320, 32},  {1279, 32},
                                             {1280, 50},    {1791, 50}, {1792, 68}, {3840, 140}};
    for (const auto& [screen, limit] : limits)
    {
        EXPECT_EQ(LineLimit(screen), limit) << screen;
    }
}

TEST(MessageBoxLayout, ABoxIsMovedOntoTheScreen)
{
    const CRect screen(0, 0, 800, 600);
    EXPECT_EQ(MessageMovedInto(CRect(10, 20, 60, 70), screen), CRect(10, 20, 60, 70));
    EXPECT_EQ(MessageMovedInto(CRect(790, 590, 890, 640), screen), CRect(700, 550, 800, 600));
    EXPECT_EQ(MessageMovedInto(CRect(-100, -9, 900, 41), screen), CRect(0, 0, 1000, 50));
}

} // namespace
