// A message box with a long text: its layout against the platform measuring that text once, and a
// whole opening against that of a plain dialog with the same controls.
//
// The layout is what a box that opens spends on a text it has not seen before: breaking it into
// lines, measuring them and the title, deciding on all sizes and places, and moving the three
// buttons from where they are made. The other windows stand where an opening has put them without
// moves of their own, as it puts this box before it is timed: the box gets its place in the change
// of its frame that the mode asks for anyway, the label and the edit get theirs when the dialog
// places its controls. These steps, and the breaking of 400 lines in the edit, are not in the
// figure but in that of the opening. A change of the mode moves the open box and all its parts,
// which is in neither.

#include "OnBoardUIGeneral.h"
#include "Row.h"
#include "Stage.h"
#include "ZepMsgBoxDlg.h"
#include "paint/GdiGuards.h"

#include <algorithm>
#include <string>

namespace {

constexpr int Lines = 400;
const CSize Area(1000, 800);

// Numbered upwards or, as another text of the same size, downwards.
std::string Message(bool upwards = true)
{
    std::string text;
    for (int line = 1; line <= Lines; ++line)
    {
        const int number = upwards ? line : Lines + 1 - line;
        text += (line > 1 ? "\r\n" : "") + ("Waypoint " + std::to_string(number)) + " is passed";
    }
    return text;
}

// Layout ----------------------------------------------------------------------------------------

class Box : public CZepMsgBoxDlg
{
public:
    Box()
        : CZepMsgBoxDlg(Message(false).c_str(), MB_YESNOCANCEL, Area, nullptr)
    {
        Create(IDD, &Stage());
        SizeToText(); // sized once more, it may round the halves otherwise
        m_text->SetWindowText("");
        m_message = Message().c_str(); // not split yet
        // As they are made.
        CRect client;
        GetClientRect(&client);
        for (const auto& button : m_buttons)
        {
            button->MoveWindow((client.Width() - m_buttonSize.cx) / 2,
                               client.bottom - 2 * m_buttonSize.cy, m_buttonSize.cx,
                               m_buttonSize.cy);
        }
    }

    void LayOut()
    {
        CalcStdSizes();
        SplitText();
        SizeToText();
    }
};

Side LayOutBox()
{
    auto box = std::make_shared<std::unique_ptr<Box>>();
    return {[box] {
                EnterMode(ONBOARD);
                *box = std::make_unique<Box>();
            },
            [box] { (*box)->LayOut(); }, [box] { box->reset(); }};
}

Side MeasureText()
{
    auto text = std::make_shared<std::string>();
    return {[text] {
                EnterMode(ONBOARD);
                *text = Message();
            },
            [text] {
                CClientDC dc(&Stage());
                const Selected font(dc, CCustomDialog::m_OBStaticTextFont);
                CRect measured(0, 0, Area.cx, 0);
                dc.DrawText(text->c_str(), int(text->size()), &measured,
                            DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
            },
            [] {}};
}

// Opening ---------------------------------------------------------------------------------------

template <class Dialog> void OpenAndClose(Dialog& dialog)
{
    dialog.Create(CZepMsgBoxDlg::IDD, &Stage());
    dialog.ShowWindow(SW_SHOW);
    PaintNow(dialog);
    dialog.DestroyWindow();
}

Side OpenBox()
{
    return {[] { EnterMode(ONBOARD); },
            [] {
                CZepMsgBoxDlg box(Message().c_str(), MB_YESNOCANCEL, Area, nullptr);
                OpenAndClose(box);
            },
            [] { PaintNow(Stage()); }};
}

// The same template, text, font and buttons by the platform's means: the text is measured, and
// everything is moved to its place once.
class PlainBox : public CDialog
{
public:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        const std::string text = Message();
        CRect lines;
        {
            CClientDC dc(this);
            const Selected font(dc, CCustomDialog::m_OBStaticTextFont);
            dc.DrawText(text.c_str(), int(text.size()), &lines, DT_CALCRECT | DT_NOPREFIX);
        }
        lines.bottom = std::min(int(lines.bottom), int(Area.cy) * 3 / 5);
        ::SetWindowPos(m_hWnd, nullptr, 100, 100, lines.right + 150, lines.bottom + 100,
                       SWP_NOZORDER | SWP_NOACTIVATE);
        const HWND icon = ::GetWindow(m_hWnd, GW_CHILD);
        const HWND edit = ::GetWindow(icon, GW_HWNDNEXT);
        ::SetWindowPos(icon, nullptr, 11, 11, 48, 48, SWP_NOZORDER);
        ::SetWindowPos(edit, nullptr, 70, 11, lines.right + 20, lines.bottom, SWP_NOZORDER);
        int left = 20;
        for (CButton& button : m_buttons)
        {
            button.Create("Button", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                          CRect(CPoint(left, lines.bottom + 20), CSize(75, 23)), this,
                          UINT(IDYES + (&button - m_buttons)));
            left += 85;
        }
        SetWindowText("Plain");
        ::SendMessage(edit, WM_SETFONT, WPARAM(CCustomDialog::m_OBStaticTextFont.GetSafeHandle()),
                      FALSE);
        ::SetWindowText(edit, text.c_str());
        ::SetWindowPos(m_hWnd, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        return TRUE;
    }

private:
    CButton m_buttons[3];
};

Side OpenPlain()
{
    return {[] { EnterMode(STD); },
            [] {
                PlainBox box;
                OpenAndClose(box);
            },
            [] { PaintNow(Stage()); }};
}

} // namespace

std::vector<Row> MessageBoxRows()
{
    return {{"msgbox.layout", 2.0, 25, &LayOutBox, &MeasureText},
            {"msgbox.opening", 2.0, 9, &OpenBox, &OpenPlain}};
}
