// How a message box comes to stand in its place: where it is created, and when that was too early.

#include "dialogs/message_box_for_tests.h"

#include <algorithm>
#include <functional>
#include <span>

namespace {

class OpeningBox : public MessageBoxForTests
{
public:
    using MessageBoxForTests::MessageBoxForTests;

    std::function<void()> atDataExchange; // the box is being initialised, its text not yet shown
    int moves = 0;                        // of the box, since its initialisation began
    std::vector<int> textWidths;          // each time that the text was broken into lines

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        MessageBoxForTests::DoDataExchange(exchange);
        if (atDataExchange)
        {
            atDataExchange();
        }
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (HIWORD(wParam) == EN_VSCROLL)
        {
            textWidths.push_back(ClientRectOf(*m_text).Width());
        }
        return MessageBoxForTests::OnCommand(wParam, lParam);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        moves = message == WM_INITDIALOG ? 0 : moves + (message == WM_MOVE || message == WM_SIZE);
        return MessageBoxForTests::WindowProc(message, wParam, lParam);
    }
};

TEST_F(MessageBoxTest, ABoxOpensWhereItStandsAndItsTextIsBrokenOnce)
{
    const ModeScope scope(ONBOARD);
    for (const int lines : {1, 9, 400})
    {
        OpeningBox box(Lines(lines).c_str(), MB_YESNO);
        ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, &Host()));
        EXPECT_EQ(box.moves, 0) << lines;
        const int width = ClientRectOf(*box.m_text).Width();
        EXPECT_EQ(std::ranges::count(box.textWidths, width), ptrdiff_t(box.textWidths.size()));
        EXPECT_EQ(width < WindowRectOf(*box.m_text).Width(), lines == 400) << "beside its bar";
    }
}

TEST_F(MessageBoxTest, WhatChangesWhileTheBoxOpensCounts)
{
    enum
    {
        Text,
        Area,
        Mode
    };
    const CSize whole(1280, 1024);
    const CSize small(640, 240);
    for (const auto change : {Text, Area, Mode})
    {
        SCOPED_TRACE(change);
        const std::string text = Lines(9);
        std::vector<CRect> expected;
        int expectedHeight = 0;
        {
            const ModeScope scope(change == Mode ? STD : ONBOARD);
            OpeningBox fresh(text.c_str(), MB_YESNO, change == Area ? small : whole);
            ASSERT_TRUE(fresh.Create(CZepMsgBoxDlg::IDD, &Host()));
            expected = ChildPlaces(fresh);
            expectedHeight = ClientRectOf(fresh).Height();
        }
        const ModeScope scope(ONBOARD);
        OpeningBox box(change == Text ? "Ready" : text.c_str(), MB_YESNO);
        box.atDataExchange = [&] {
            box.m_message = text.c_str();
            box.m_displayText = "Overwritten"; // it is made of the message
            box.m_area = change == Area ? small : whole;
            COnBoardUIGeneral::SetAppMode(change == Mode ? STD : ONBOARD);
        };
        ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, &Host()));
        EXPECT_EQ(box.Shown(), text);
        const std::vector<CRect> places = ChildPlaces(box);
        // From another window size the halves may round otherwise, below the label and the text.
        EXPECT_NEAR(ClientRectOf(box).Height(), expectedHeight, change == Mode ? 2 : 0);
        expected.resize(change == Mode ? 2 : places.size());
        EXPECT_TRUE(std::ranges::equal(expected, std::span(places).first(expected.size())));
    }
}

} // namespace
