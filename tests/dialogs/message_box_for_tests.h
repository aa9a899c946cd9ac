#pragma once

#include "CustomEdit.h"
#include "OnBoardUI.h"
#include "ZepMsgBoxDlg.h"
#include "dialogs/MessageBoxLayout.h"
#include "dialogs/MessageText.h"
#include "dialogs/dialog_for_tests.h"

#include <string>

constexpr APPMODE AllModes[] = {STD, FULLSCREEN, ONBOARD, EFB, EFBFS};

// A message box with its protected side open to tests, on a screen of 1280 x 1024 unless it is
// given less.
class MessageBoxForTests : public Scripted<CZepMsgBoxDlg>
{
public:
    MessageBoxForTests(const char* text, unsigned int style, CSize area = CSize(1280, 1024))
        : Scripted<CZepMsgBoxDlg>(text, style, area, nullptr)
    {}

    CWnd& Button(size_t index) { return *m_buttons[index]; }
    CRect PlaceOf(const CWnd& part) const
    {
        CRect place = WindowRectOf(part);
        ScreenToClient(&place);
        return place;
    }
    void ClickOn(size_t index) { Click(WindowRectOf(Button(index)).CenterPoint()); }
    int FirstLine() { return int(m_text->SendMessage(EM_GETFIRSTVISIBLELINE)); }
    std::string Shown()
    {
        CString text;
        m_text->GetWindowText(text);
        return std::string(text);
    }

    // The box's measures, and what it measures, as the rules of its layout take them.
    dialogs::MessageUnits Units() const { return {m_buttonSize, m_margin, m_spacing, m_textUnit}; }
    dialogs::MessageContent Content(int leastWidth)
    {
        dialogs::MessageContent content;
        int width = leastWidth;
        int height = 0;
        GetStaticTextSize(m_displayText, width, height);
        content.text = CSize(width, height);
        content.titleWidth = GetTitleWidth();
        content.buttons = int(m_buttons.size());
        content.area = m_area;
        content.frame = WindowRectOf(*this).Size() - ClientRectOf(*this).Size();
        content.captionHeight = m_captionHeight;
        content.barWidth = ::GetSystemMetrics(SM_CXVSCROLL);
        return content;
    }

    using CZepMsgBoxDlg::GetStaticTextSize;
    using CZepMsgBoxDlg::m_buttons;
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
    void SetUp() override
    {
        CustomDialogTest::SetUp();
        SetOnBoardAppTitle("Flight");
    }
    void TearDown() override
    {
        SetOnBoardAppTitle("");
        CustomDialogTest::TearDown();
    }
};
