#include "support/Acting.h"
#include "windows/LineSplitting.h"
#include "windows/MessageBoxLayout.h"
#include "windows/message_box_for_tests.h"

namespace {

using Box = MessageBoxForTests;
using namespace windows;

const CSize Wide(1280, 1024);

TEST_F(MessageBoxTest, ABoxIsExactInBothLooks)
{
    // The mode, the text, the style, how long the title is, the area; whether there is a bar, the
    // client area's size, and the places of the text and of the first and the last button.
    const std::tuple<APPMODE, std::string, UINT, int, CSize, bool, CSize, CRect, CRect, CRect>
        cases[] = {
            {STD, "Ready", MB_YESNO, 1, Wide, false, CSize(325, 117), CRect(70, 13, 311, 30),
             CRect(79, 51, 154, 74), CRect(161, 51, 236, 74)},
            {ONBOARD, "Ready", MB_YESNO, 1, Wide, false, CSize(627, 151), CRect(84, 15, 603, 43),
             CRect(173, 62, 300, 101), CRect(311, 62, 438, 101)},
            {ONBOARD, Lines(400), MB_YESNO, 1, Wide, true, CSize(687, 717), CRect(84, 5, 664, 619),
             CRect(203, 628, 330, 667), CRect(341, 628, 468, 667)},
            // The most lines that need no bar, and one more.
            {STD, Lines(37), MB_OK, 1, Wide, false, CSize(325, 677), CRect(70, -2, 311, 607),
             CRect(123, 611, 198, 634), CRect(123, 611, 198, 634)},
            {STD, Lines(38), MB_OK, 1, Wide, true, CSize(387, 681), CRect(70, -2, 372, 612),
             CRect(154, 615, 229, 638), CRect(154, 615, 229, 638)},
            {STD, "Ready", MB_OK, 60, Wide, false, CSize(869, 117), CRect(70, 13, 311, 30),
             CRect(395, 51, 470, 74), CRect(395, 51, 470, 74)},
            {STD, "Ready", MB_OK, 60, CSize(320, 240), true, CSize(297, 117),
             CRect(70, 13, 282, 30), CRect(109, 51, 184, 74), CRect(109, 51, 184, 74)},
            {ONBOARD, Lines(9), MB_OK, 1, CSize(640, 240), true, CSize(617, 201),
             CRect(84, 5, 594, 103), CRect(243, 112, 370, 151), CRect(243, 112, 370, 151)},
            {ONBOARD, Lines(9), MB_ABORTRETRYIGNORE, 1, CSize(-5, INT_MIN), true, CSize(463, 151),
             CRect(84, 5, 439, 53), CRect(22, 62, 149, 101), CRect(298, 62, 425, 101)},
        };
    for (const auto& [mode, message, style, title, area, bar, size, text, first, last] : cases)
    {
        SCOPED_TRACE(testing::Message() << mode << ' ' << size.cx);
        const ModeScope scope(mode);
        SetOnBoardAppTitle(std::string(title, 'W').c_str());
        Box box(message, style, nullptr, area);
        const CSize client = ClientRectOf(box).Size();
        EXPECT_NEAR(client.cx, size.cx, 1) << "by the rounding of the halves";
        EXPECT_NEAR(client.cy, size.cy, 1);
        const CPoint down(0, client.cy - size.cy);
        EXPECT_EQ(PlaceIn(box, box.m_icon).TopLeft(), mode == STD ? CPoint(11, -2) : CPoint(18, 5));
        EXPECT_EQ(PlaceIn(box, *box.m_text), text);
        EXPECT_EQ(ClientRectOf(*box.m_text).Width() < text.Width(), bar);
        EXPECT_EQ(box.PlaceOfButton(0), first + down);
        EXPECT_EQ(box.PlaceOfButton(box.m_buttons.size() - 1), last + down);
        EXPECT_NE(box.GetExStyle() & WS_EX_TOPMOST, 0U);
        const CPoint middle = WindowRectOf(box).CenterPoint();
        EXPECT_NEAR(middle.x, ::GetSystemMetrics(SM_CXSCREEN) / 2, 1);
        EXPECT_NEAR(middle.y, ::GetSystemMetrics(SM_CYSCREEN) / 2, 1);
    }
}

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

// Modes -----------------------------------------------------------------------------------------

std::vector<CRect> Arrangement(const Box& box)
{
    std::vector<CRect> places = ChildPlaces(box);
    // The client area is by up to two pixels larger than it has to be, as its halves round: what
    // hangs on its lower edge is told from there.
    for (size_t index = 2; index < places.size(); ++index)
    {
        places[index] -= CPoint(0, ClientRectOf(box).Height());
    }
    places.push_back(ClientRectOf(*box.m_text)); // less wide with a bar
    return places;
}

TEST_F(MessageBoxTest, AnOpenBoxFollowsTheModeAndIsThenAnsweredByPointer)
{
    for (const std::string& text : {Lines(3), Lines(400)})
    {
        for (const auto& [from, to] :
             {std::pair{STD, EFB}, {EFB, STD}, {ONBOARD, EFBFS}, {FULLSCREEN, ONBOARD}})
        {
            SCOPED_TRACE(std::string(APPMODE_NAMES[from]) + " " + APPMODE_NAMES[to]);
            const ModeScope scope(to);
            const std::vector<CRect> expected = Arrangement(Box(text, MB_YESNOCANCEL, &Host()));
            COnBoardUIGeneral::SetAppMode(from);
            const auto followAndAnswer = [&, to = to](Box& box) {
                COnBoardUIGeneral::SetAppMode(to);
                PumpAll();
                EXPECT_EQ(Arrangement(box), expected);
                EXPECT_EQ((box.Button(0).GetStyle() & BS_TYPEMASK) == BS_OWNERDRAW, to != STD);
                box.ClickOn(1);
            };
            EXPECT_EQ(Answer(text, MB_YESNOCANCEL, followAndAnswer), IDNO);
        }
    }
}

TEST_F(MessageBoxTest, AModeThatAPartChangesOnTheWayIsTheOneThatTheBoxIsLaidOutFor)
{
    const std::tuple<APPMODE, APPMODE, APPMODE> ways[] = {
        {ONBOARD, EFB, ONBOARD}, {STD, EFB, STD}, {EFB, STD, EFB}, {ONBOARD, EFB, STD}};
    for (const auto& [from, to, last] : ways)
    {
        const ModeScope scope(last);
        const std::vector<CRect> expected = Arrangement(Box(Lines(3), MB_YESNOCANCEL, &Host()));
        for (const UINT message : {UINT(WM_WINDOWPOSCHANGED), UINT(WM_SETFONT), UINT(BM_SETSTYLE)})
        {
            for (const int before : {0, 1, 2})
            {
                SCOPED_TRACE(testing::Message() << APPMODE_NAMES[from] << ' ' << APPMODE_NAMES[to]
                                                << ' ' << message << ' ' << before);
                COnBoardUIGeneral::SetAppMode(from);
                Box box(Lines(3), MB_YESNOCANCEL, &Host());
                auto button = std::make_unique<Acting<CCustomPushbutton>>();
                button->Attach(box.Button(0).Detach());
                button->ActIn(
                    message, [last = last] { COnBoardUIGeneral::SetAppMode(last); }, before);
                box.m_buttons[0] = std::move(button);
                COnBoardUIGeneral::SetAppMode(to);
                COnBoardUIGeneral::SetAppMode(last);
                EXPECT_EQ(Arrangement(box), expected);
                for (const auto& each : box.m_buttons)
                {
                    EXPECT_EQ((each->GetStyle() & BS_TYPEMASK) == BS_OWNERDRAW, last != STD);
                }
            }
        }
    }
}

TEST_F(MessageBoxTest, AModeChangeShowsTheTextThatTheBoxIsLaidOutFor)
{
    Box box("Ready", MB_OK, &Host());
    box.m_message = Lines(9).c_str(); // so is a text that breaks otherwise on another screen
    const ModeScope scope(ONBOARD);
    EXPECT_EQ(box.Shown(), Lines(9));
    EXPECT_GE(PlaceIn(box, *box.m_text).Height(), 10 * 27);
}

} // namespace
