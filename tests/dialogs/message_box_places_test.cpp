#include "dialogs/message_box_for_tests.h"

#include <algorithm>
#include <climits>
#include <random>
#include <utility>

namespace {

using Box = MessageBoxForTests;

const CSize Wide(1280, 1024);

TEST_F(MessageBoxTest, ABoxIsExactInBothLooks)
{
    const struct
    {
        APPMODE mode;
        std::string message;
        UINT style;
        int titleLength;
        CSize area;
        CSize client;
        std::vector<CRect> places; // icon, text, buttons
    } cases[] = {
        {STD,
         "Ready",
         MB_YESNO,
         1,
         Wide,
         CSize(325, 117),
         {CRect(11, -2, 59, 46), CRect(70, 13, 311, 30), CRect(79, 51, 154, 74),
          CRect(161, 51, 236, 74)}},
        {ONBOARD,
         "Ready",
         MB_YESNO,
         1,
         Wide,
         CSize(627, 151),
         {CRect(18, 5, 66, 53), CRect(84, 15, 603, 43), CRect(173, 62, 300, 101),
          CRect(311, 62, 438, 101)}},
        {ONBOARD,
         Lines(400),
         MB_YESNO,
         1,
         Wide,
         CSize(687, 717),
         {CRect(18, 5, 66, 53), CRect(84, 5, 664, 619), CRect(203, 628, 330, 667),
          CRect(341, 628, 468, 667)}},
        {STD,
         Lines(37),
         MB_OK,
         1,
         Wide,
         CSize(325, 677),
         {CRect(11, -2, 59, 46), CRect(70, -2, 311, 607),
          CRect(123, 611, 198, 634)}}, // the last without a bar
        {STD,
         Lines(38),
         MB_OK,
         1,
         Wide,
         CSize(387, 681),
         {CRect(11, -2, 59, 46), CRect(70, -2, 372, 612), CRect(154, 615, 229, 638)}},
        {STD,
         "Ready",
         MB_OK,
         60,
         Wide,
         CSize(869, 117),
         {CRect(11, -2, 59, 46), CRect(70, 13, 311, 30), CRect(395, 51, 470, 74)}},
        {STD,
         "Ready",
         MB_OK,
         60,
         CSize(320, 240),
         CSize(297, 117),
         {CRect(11, -2, 59, 46), CRect(70, 13, 282, 30), CRect(109, 51, 184, 74)}},
        {ONBOARD,
         Lines(9),
         MB_OK,
         1,
         CSize(640, 240),
         CSize(617, 201),
         {CRect(18, 5, 66, 53), CRect(84, 5, 594, 103), CRect(243, 112, 370, 151)}},
        {ONBOARD,
         Lines(9),
         MB_ABORTRETRYIGNORE,
         1,
         CSize(-5, INT_MIN),
         CSize(463, 151),
         {CRect(18, 5, 66, 53), CRect(84, 5, 439, 53), CRect(22, 62, 149, 101),
          CRect(160, 62, 287, 101), CRect(298, 62, 425, 101)}},
    };
    for (const auto& each : cases)
    {
        SCOPED_TRACE(&each - cases);
        const ModeScope scope(each.mode);
        SetOnBoardAppTitle(std::string(each.titleLength, 'W').c_str());
        Box box(each.message.c_str(), each.style, each.area);
        ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, nullptr));
        const CSize client = ClientRectOf(box).Size();
        EXPECT_NEAR(client.cx, each.client.cx, 1) << "by the rounding of the halves";
        EXPECT_NEAR(client.cy, each.client.cy, 1);
        std::vector<CRect> expected = each.places;
        for (size_t button = 2; button < expected.size(); ++button)
        {
            expected[button] += CPoint(0, client.cy - each.client.cy);
        }
        EXPECT_EQ(ChildPlaces(box), expected);
        EXPECT_NE(box.GetExStyle() & WS_EX_TOPMOST, 0U);
        const CPoint middle = WindowRectOf(box).CenterPoint();
        EXPECT_NEAR(middle.x, 1280 / 2, 1);
        EXPECT_NEAR(middle.y, 1024 / 2, 1);
    }
}

// Whether the area has room for the box is known by the caller.
void ExpectOrdered(Box& box, const CSize& area, bool fits)
{
    const CRect client = ClientRectOf(box);
    std::vector<CRect> places = {PlaceIn(box, box.m_icon), PlaceIn(box, *box.m_text)};
    for (size_t index = 0; index < box.m_buttons.size(); ++index)
    {
        places.push_back(box.PlaceOfButton(index));
        CRect inside;
        inside.IntersectRect(client, places.back());
        EXPECT_EQ(inside, places.back()) << "a button lies inside";
    }
    for (auto one = places.begin(); one != places.end(); ++one)
    {
        for (auto other = one + 1; other != places.end(); ++other)
        {
            CRect both;
            EXPECT_FALSE(both.IntersectRect(*one, *other));
        }
    }
    const CSize window = WindowRectOf(box).Size();
    EXPECT_TRUE(!fits || (window.cx <= area.cx && window.cy <= area.cy));
    EXPECT_LE(places[1].right, client.right);
}

void ExpectABarWhereLinesAreHidden(Box& box, bool onBoard)
{
    const CRect shown = ClientRectOf(*box.m_text);
    const int lines = int(box.m_text->SendMessage(EM_GETLINECOUNT));
    if (lines * (onBoard ? 27 : 13) > shown.Height())
    {
        EXPECT_TRUE(onBoard ? shown.Width() <= WindowRectOf(*box.m_text).Width() - 52
                            : (box.m_text->GetStyle() & WS_VSCROLL) != 0)
            << lines << " lines in " << shown.Height();
        box.m_text->SendMessage(WM_VSCROLL, SB_BOTTOM);
        EXPECT_GT(box.FirstLine(), 0);
    }
}

TEST_F(MessageBoxTest, NothingOverlapsForAnyTextButtonsAndArea)
{
    std::string words;
    while (words.size() < 5'000)
    {
        words += "several words ";
    }
    const std::string texts[] = {"Word", Lines(3), Lines(400), std::string(5'000, 'x'), words};
    const CSize areas[] = {CSize(320, 240),   CSize(640, 480), CSize(800, 300),
                           CSize(1280, 1024), CSize(0, 0),     CSize(-1, 5)};
    const std::vector<UINT> allStyles = {MB_OK,          MB_OKCANCEL, MB_ABORTRETRYIGNORE,
                                         MB_YESNOCANCEL, MB_YESNO,    MB_RETRYCANCEL};
    const std::vector<UINT> oneStyle = {MB_ABORTRETRYIGNORE}; // long texts take their time
    for (const bool onBoard : {false, true})
    {
        const ModeScope scope(onBoard ? ONBOARD : STD);
        for (const std::string& text : texts)
        {
            for (const CSize& area : areas)
            {
                for (const UINT style : &text > &texts[1] ? oneStyle : allStyles)
                {
                    SCOPED_TRACE(testing::Message() << area.cx << ' ' << text.size() << ' ' << style
                                                    << (onBoard ? " on-board" : ""));
                    Box box(text.c_str(), style, area);
                    ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, &Host()));
                    // Large buttons need more.
                    const int widths[] = {320, 340, 480};
                    const int width = onBoard ? widths[box.m_buttons.size() - 1] : 320;
                    ExpectOrdered(box, area, area.cy >= 240 && area.cx >= width);
                    ExpectABarWhereLinesAreHidden(box, onBoard);
                }
            }
        }
    }
}

TEST_F(MessageBoxTest, ATextMeasuresAsItsWidestLineAndALineMoreThanItHas)
{
    std::mt19937 random(1);
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        Box box("Ready", MB_OK);
        ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, &Host()));
        CClientDC dc(&box);
        CFont* const before =
            mode == STD ? dc.GetCurrentFont() : dc.SelectObject(&CCustomDialog::m_OBStaticTextFont);
        for (int lines = 1; lines < 50; ++lines)
        {
            std::string text;
            LONG widest = 0;
            for (int line = 0; line < lines; ++line)
            {
                std::string piece(random() % 30, ' ');
                std::ranges::generate(piece, [&] { return char(' ' + random() % 224); });
                piece += random() % 2 != 0 ? "\r" : "";
                CSize extent;
                ::GetTextExtentPoint32(dc, piece.data(), int(piece.size()), &extent);
                widest = std::max(widest, extent.cx);
                text += piece + '\n';
            }
            int width = 0;
            int height = 0;
            box.GetStaticTextSize(text.c_str(), width, height);
            EXPECT_EQ(width, widest) << text;
            EXPECT_EQ(height, (lines + 1) * (mode == STD ? 16 : 27)) << lines;
            width = 900;
            box.GetStaticTextSize(text.c_str(), width, height);
            EXPECT_EQ(width, 900);
        }
        dc.SelectObject(before);
    }
}

// Modes -----------------------------------------------------------------------------------------

std::vector<CRect> Arrangement(Box& box)
{
    std::vector<CRect> places = ChildPlaces(box);
    const CRect client = ClientRectOf(box);
    // The client area is by up to two pixels larger than it has to be, as its halves round: what
    // hangs on its lower edge is told from there.
    for (size_t index = 2; index < places.size(); ++index)
    {
        places[index] -= CPoint(0, client.Height());
    }
    places.push_back(ClientRectOf(*box.m_text)); // less wide with a bar
    return places;
}

TEST_F(MessageBoxTest, AnOpenBoxFollowsTheModeAndIsThenAnsweredByPointer)
{
    const std::pair<APPMODE, APPMODE> trips[] = {
        {STD, EFB}, {EFB, STD}, {ONBOARD, EFBFS}, {FULLSCREEN, ONBOARD}};
    for (const int lines : {3, 400})
    {
        const std::string text = Lines(lines);
        for (const auto& [from, to] : trips)
        {
            SCOPED_TRACE(std::string(APPMODE_NAMES[from]) + " " + APPMODE_NAMES[to]);
            const ModeScope scope(to);
            Box fresh(text.c_str(), MB_YESNOCANCEL);
            ASSERT_TRUE(fresh.Create(CZepMsgBoxDlg::IDD, &Host()));
            const std::vector<CRect> expected = Arrangement(fresh);
            fresh.DestroyWindow();

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

TEST_F(MessageBoxTest, AModeChangeShowsTheTextThatTheBoxIsLaidOutFor)
{
    Box box("Ready", MB_OK);
    ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, &Host()));
    box.m_message = Lines(9).c_str(); // so is a text that breaks otherwise on another screen
    const ModeScope scope(ONBOARD);
    EXPECT_EQ(box.Shown(), Lines(9));
    EXPECT_GE(PlaceIn(box, *box.m_text).Height(), 10 * 27);
}

} // namespace
