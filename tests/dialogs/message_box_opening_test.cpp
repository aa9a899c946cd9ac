// How a message box comes to stand in its place: where it is created, and when that was too early.

#include "dialogs/message_box_for_tests.h"

#include <functional>

namespace {

class OpeningBox : public MessageBoxForTests
{
public:
    using MessageBoxForTests::MessageBoxForTests;

    std::function<void()> atDataExchange = [] {}; // initialising, its text not yet shown

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        MessageBoxForTests::DoDataExchange(exchange);
        atDataExchange();
    }
};

TEST_F(MessageBoxTest, WhatChangesWhileTheBoxOpensCounts)
{
    enum
    {
        Text,
        Area,
        Mode
    };
    const std::string text = Lines(9);
    for (const auto change : {Text, Area, Mode})
    {
        SCOPED_TRACE(change);
        const APPMODE last = change == Mode ? STD : ONBOARD;
        const CSize area = change == Area ? CSize(640, 240) : CSize(1280, 1024);
        const ModeScope scope(last);
        Box fresh(text, MB_YESNO, &Host(), area);
        std::vector<CRect> expected = ChildPlaces(fresh);
        const int expectedHeight = ClientRectOf(fresh).Height();
        fresh.DestroyWindow();

        COnBoardUIGeneral::SetAppMode(ONBOARD);
        OpeningBox box(change == Text ? "Ready" : text.c_str(), MB_YESNO);
        box.atDataExchange = [&] {
            box.m_message = text.c_str();
            box.m_displayText = "Overwritten"; // it is made of the message
            box.m_area = area;
            COnBoardUIGeneral::SetAppMode(last);
        };
        ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, &Host()));
        EXPECT_EQ(box.Shown(), text);
        std::vector<CRect> places = ChildPlaces(box);
        // From another window size the halves may round otherwise, below the label and the text.
        EXPECT_NEAR(ClientRectOf(box).Height(), expectedHeight, change == Mode ? 2 : 0);
        places.resize(change == Mode ? 2 : places.size());
        expected.resize(places.size());
        EXPECT_EQ(places, expected);
    }
}

} // namespace
