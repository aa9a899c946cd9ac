#pragma once

#include "CustomEdit.h"
#include "OnBoardUI.h"
#include "ZepMsgBoxDlg.h"
#include "dialogs/dialog_for_tests.h"

// A message box with its protected side open to tests, on a screen of 1280 x 1024 unless it is
// given less.
class MessageBoxForTests : public Scripted<CZepMsgBoxDlg>
{
public:
    MessageBoxForTests(const char* text, unsigned int style, CSize area = CSize(1280, 1024))
        : Scripted<CZepMsgBoxDlg>(text, style, area, nullptr)
    {}
    // Open at once.
    MessageBoxForTests(const std::string& text, unsigned int style, CWnd* parent,
                       CSize area = CSize(1280, 1024))
        : MessageBoxForTests(text.c_str(), style, area)
    {
        EXPECT_TRUE(Create(IDD, parent));
    }

    CWnd& Button(size_t index) { return *m_buttons[index]; }
    CRect PlaceOfButton(size_t index) { return PlaceIn(*this, Button(index)); }
    void ClickOn(size_t index) { Click(WindowRectOf(Button(index)).CenterPoint()); }
    int FirstLine() { return int(m_text->SendMessage(EM_GETFIRSTVISIBLELINE)); }
    std::string Shown() { return TextOf(*m_text); }

    using CZepMsgBoxDlg::m_area;
    using CZepMsgBoxDlg::m_buttons;
    using CZepMsgBoxDlg::m_captionHeight;
    using CZepMsgBoxDlg::m_icon;
    using CZepMsgBoxDlg::m_iconId;
    using CZepMsgBoxDlg::m_lpszTemplateName;
    using CZepMsgBoxDlg::m_message;
    using CZepMsgBoxDlg::m_text;
};

inline std::string Lines(int count)
{
    std::string text;
    for (int line = 1; line <= count; ++line)
    {
        text += (line > 1 ? "\r\n" : "") + ("Waypoint " + std::to_string(line)) + " is passed";
    }
    return text;
}

class MessageBoxTest : public CustomDialogTest
{
protected:
    using Box = MessageBoxForTests;

    // The answer of a box that act works in its modal loop. One that is left unanswered ends: 0.
    static int Answer(const std::string& text, unsigned int style,
                      const std::function<void(Box&)>& act)
    {
        Box box(text.c_str(), style);
        box.inLoop = [&] {
            act(box);
            if (box.GetButtonPressed() == 0)
            {
                box.EndDialog(-2);
            }
        };
        box.DoModal();
        return box.GetButtonPressed();
    }

    MessageBoxTest() { SetOnBoardAppTitle("Flight"); }
    ~MessageBoxTest() override { SetOnBoardAppTitle(""); }
};
