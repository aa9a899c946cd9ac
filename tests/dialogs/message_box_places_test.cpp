#include "dialogs/message_box_for_tests.h"

namespace {

using Box = MessageBoxForTests;

TEST_F(MessageBoxTest, ABoxIsExactInBothLooks)
{
    const struct
    {
        APPMODE mode;
        std::string message;
        CSize client;
        CRect icon;
        CRect text;
        CRect yes;
        CRect no;
    } cases[] = {
        {STD, "Ready", CSize(326, 116), CRect(11, -2, 59, 46), CRect(70, 13, 311, 30),
         CRect(79, 50, 154, 73), CRect(161, 50, 236, 73)},
        {ONBOARD, "Ready", CSize(626, 151), CRect(18, 5, 66, 53), CRect(84, 15, 603, 43),
         CRect(173, 62, 300, 101), CRect(311, 62, 438, 101)},
        {ONBOARD, Lines(400), CSize(687, 717), CRect(18, 5, 66, 53), CRect(84, 5, 664, 619),
         CRect(203, 628, 330, 667), CRect(341, 628, 468, 667)},
    };
    for (const auto& each : cases)
    {
        SCOPED_TRACE(&each - cases);
        const ModeScope scope(each.mode);
        Answer(each.message, MB_YESNO, [&](Box& box) {
            const CSize client = ClientRectOf(box).Size();
            EXPECT_NEAR(client.cx, each.client.cx, 1) << "by the rounding of the halves";
            EXPECT_NEAR(client.cy, each.client.cy, 1);
            const CPoint up(0, client.cy - each.client.cy);
            EXPECT_EQ(PlaceIn(box, box.m_icon), each.icon);
            EXPECT_EQ(PlaceIn(box, *box.m_text), each.text);
            EXPECT_EQ(box.PlaceOfButton(0), each.yes + up);
            EXPECT_EQ(box.PlaceOfButton(1), each.no + up);
            EXPECT_NE(box.GetExStyle() & WS_EX_TOPMOST, 0U);
            const CPoint middle = WindowRectOf(box).CenterPoint();
            EXPECT_NEAR(middle.x, 1280 / 2, 1);
            EXPECT_NEAR(middle.y, 1024 / 2, 1);
            CString title;
            box.GetWindowText(title);
            EXPECT_EQ(title, "Flight");
        });
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

// What the platform measures in the font of the box's sizes.
CSize Extent(CWnd& box, const std::string& text)
{
    CClientDC dc(&box);
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        dc.SelectObject(&CCustomDialog::m_OBStaticTextFont);
    }
    CSize extent;
    ::GetTextExtentPoint32(dc, text.data(), int(text.size()), &extent);
    return extent;
}

TEST_F(MessageBoxTest, ATextMeasuresAsItsWidestLineAndALineMoreThanItHas)
{
    const struct
    {
        const char* text;
        int lines;
        const char* widest;
    } cases[] = {{"one", 1, "one"},
                 {"WWWW\r\niiiiiii\r\n", 3, "WWWW\r"},
                 {"one\n\ntwo", 4, "one"},
                 {"Z\xFCrich\nBern", 3, "Z\xFCrich"},
                 {"Bern\n\xE4\xE4\xE4\xE4\xE4\xE4", 3, "\xE4\xE4\xE4\xE4\xE4\xE4"}};
    const std::string title(100, 'W');
    SetOnBoardAppTitle(title.c_str());
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        Box box("Ready", MB_OK, CSize(9'000, 1'000));
        ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, &Host()));
        EXPECT_GT(ClientRectOf(box).Width(), Extent(box, title).cx);
        for (const auto& each : cases)
        {
            int width = 10;
            int height = 0;
            box.GetStaticTextSize(each.text, width, height);
            EXPECT_EQ(height, each.lines * (mode == STD ? 16 : 27)) << each.text;
            EXPECT_EQ(width, Extent(box, each.widest).cx) << each.text;
            width = 900;
            box.GetStaticTextSize(each.text, width, height);
            EXPECT_EQ(width, 900);
        }
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

TEST_F(MessageBoxTest, AnOpenBoxFollowsTheModeAndIsThenAnsweredByPointerAndKey)
{
    for (const int lines : {3, 400})
    {
        const std::string text = Lines(lines);
        for (const APPMODE from : AllModes)
        {
            for (const APPMODE to : AllModes)
            {
                if (lines == 400 && (from == to || from % 2 != 0 || to % 2 != 0))
                {
                    continue; // long texts take their time
                }
                SCOPED_TRACE(std::string(APPMODE_NAMES[from]) + " " + APPMODE_NAMES[to]);
                const ModeScope scope(to);
                Box fresh(text.c_str(), MB_YESNOCANCEL);
                ASSERT_TRUE(fresh.Create(CZepMsgBoxDlg::IDD, &Host()));
                const std::vector<CRect> expected = Arrangement(fresh);
                fresh.DestroyWindow();

                COnBoardUIGeneral::SetAppMode(from);
                const auto followAndAnswer = [&](Box& box) {
                    COnBoardUIGeneral::SetAppMode(to);
                    PumpAll();
                    EXPECT_EQ(Arrangement(box), expected);
                    EXPECT_EQ((box.Button(0).GetStyle() & BS_TYPEMASK) == BS_OWNERDRAW, to != STD);
                    if (from < to)
                    {
                        box.ClickOn(1);
                    }
                    else
                    {
                        TypeKey(VK_RIGHT);
                        TypeKey(VK_RETURN);
                    }
                };
                EXPECT_EQ(Answer(text, MB_YESNOCANCEL, followAndAnswer), IDNO);
            }
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

TEST_F(MessageBoxTest, APressThatTheModeCutsOffAnswersNothing)
{
    for (const APPMODE to : {STD, ONBOARD})
    {
        const ModeScope scope(to == STD ? EFB : STD);
        const auto cutOff = [&](Box& box) {
            MoveTo(WindowRectOf(box.Button(0)).CenterPoint());
            Press();
            COnBoardUIGeneral::SetAppMode(to);
            RestPointer();
            Release();
            EXPECT_EQ(::GetCapture(), nullptr);
            EXPECT_EQ(box.GetButtonPressed(), 0);
            box.ClickOn(1);
        };
        EXPECT_EQ(Answer("Ready", MB_YESNO, cutOff), IDNO);
    }
}

} // namespace
