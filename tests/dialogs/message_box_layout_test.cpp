#include "dialogs/LineSplitting.h"
#include "dialogs/MessageBoxLayout.h"
#include "dialogs/MessageIcon.h"
#include "dialogs/dialog_for_tests.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using namespace dialogs;

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

// Pictures --------------------------------------------------------------------------------------

TEST(MessagePicture, OnlyAnAlphaChannelLetsTheGroundThrough)
{
    const auto over = [](std::vector<RGBQUAD> pixels) {
        LayOver(pixels, RGB(50, 60, 70));
        std::vector<COLORREF> colors;
        for (const RGBQUAD& pixel : pixels)
        {
            EXPECT_EQ(pixel.rgbReserved, 0) << "the platform would keep a copy";
            colors.push_back(RGB(pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue));
        }
        return colors;
    };
    EXPECT_EQ(over({{1, 2, 3, 0}}), std::vector{RGB(3, 2, 1)});
    EXPECT_EQ(over({{1, 2, 3, 0}, {1, 2, 3, 255}, {255, 255, 255, 51}}),
              (std::vector{RGB(50, 60, 70), RGB(3, 2, 1), RGB(91, 99, 107)}));
}

// Sizes and places ------------------------------------------------------------------------------

// 8 point of the dialog's font; a screen with the usual metrics.
const CSize Unit(6, 13);
constexpr int Caption = 19;
constexpr int Bar = 17;
const CSize Wide(1280, 1024);

MessageUnits Units(bool onBoard)
{
    return MessageUnits::Of(Unit, onBoard);
}

MessageContent Content(CSize text, int buttons, CSize area, bool onBoard, int title)
{
    // In an on-board mode a frame of three pixels, with the higher band.
    const CSize frame(6, onBoard ? 6 + 32 : 6 + Caption);
    return {text, title, buttons, area, frame, Caption, Bar};
}

TEST(MessageBoxLayout, TheBoxHasTheSizeOfItsContent)
{
    const struct
    {
        const char* what;
        bool onBoard;
        CSize content;
        int buttons;
        int title; // its width
        CSize area;
        CSize client;
        CSize text;
        bool scrolls;
    } cases[] = {
        {"a word", false, {224, 16}, 1, 100, Wide, {324, 114}, {241, 17}, false},
        {"lines", true, {502, 80}, 1, 100, Wide, {624, 182}, {519, 81}, false},
        {"just below the limit", false, {300, 613}, 1, 100, Wide, {400, 680}, {317, 614}, false},
        {"at the limit", false, {300, 614}, 1, 100, Wide, {461, 680}, {378, 614}, true},
        {"a long title", false, {224, 16}, 1, 700, Wide, {728, 114}, {241, 17}, false},
        {"wide buttons", true, {100, 27}, 3, 100, Wide, {460, 149}, {117, 28}, false},
        {"a low area", true, {200, 300}, 1, 100, {640, 240}, {383, 199}, {278, 98}, true},
        {"a narrow area", false, {100, 16}, 1, 900, {320, 240}, {295, 114}, {117, 17}, false},
        {"a frame too wide", false, {217, 16}, 1, 100, {320, 240}, {311, 114}, {228, 17}, false},
    };
    for (const auto& each : cases)
    {
        SCOPED_TRACE(each.what);
        const MessageSize size =
            SizeMessageBox(Units(each.onBoard), Content(each.content, each.buttons, each.area,
                                                        each.onBoard, each.title));
        EXPECT_EQ(size.client, each.client) << size.client.cx << ' ' << size.client.cy;
        EXPECT_EQ(size.text, each.text) << size.text.cx << ' ' << size.text.cy;
        EXPECT_EQ(size.scrolls, each.scrolls);
    }
    // Areas smaller than the smallest box.
    for (const CSize area : {CSize(0, 0), CSize(-5, -5), CSize(100, 100), CSize(INT_MIN, INT_MIN)})
    {
        const MessageSize size =
            SizeMessageBox(Units(true), Content(CSize(5'000, 5'000), 3, area, true, 900));
        EXPECT_EQ(size.client, CSize(460, 149)) << area.cx;
        EXPECT_GE(size.text.cx, Units(true).text.cx);
        EXPECT_GE(size.text.cy, Units(true).text.cy);
        EXPECT_TRUE(size.scrolls);
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
