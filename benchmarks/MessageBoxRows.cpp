// Laying out a message box with a long text against the platform measuring that text once.
//
// Most of the box's time goes into the platform moving six windows: the hidden box, its label, its
// edit and three buttons. The edit is empty meanwhile; to break 400 lines in it, as each opening
// and each change of the mode does, takes longer and is not in the figure.

#include "OnBoardUIGeneral.h"
#include "Row.h"
#include "Stage.h"
#include "ZepMsgBoxDlg.h"
#include "dialogs/MessageText.h"

#include <string>

namespace {

constexpr int Lines = 400;
const CSize Area(1000, 800);

std::string Message(int lines)
{
    std::string text;
    for (int line = 1; line <= lines; ++line)
    {
        text += (line > 1 ? "\r\n" : "") + ("Waypoint " + std::to_string(line)) + " is passed";
    }
    return text;
}

class Box : public CZepMsgBoxDlg
{
public:
    Box()
        : CZepMsgBoxDlg(Message(Lines - 1).c_str(), MB_YESNOCANCEL, Area, nullptr)
    {
        Create(IDD, &Stage());
        m_message = Message(Lines).c_str(); // not split yet
        // Back to before its layout: when a box opens, its edit is given the text last.
        m_text->SetWindowText("");
        m_text->MoveWindow(0, 0, 200, 100);
        m_icon.MoveWindow(0, 0, 20, 20);
        MoveWindow(0, 0, 300, 200);
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
                *text = Message(Lines);
            },
            [text] {
                CClientDC dc(&Stage());
                CFont* const before = dc.SelectObject(&CCustomDialog::m_OBStaticTextFont);
                CRect measured(0, 0, Area.cx, 0);
                dc.DrawText(text->c_str(), int(text->size()), &measured,
                            DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
                dc.SelectObject(before);
            },
            [] {}};
}

} // namespace

std::vector<Row> MessageBoxRows()
{
    return {{"msgbox.layout", 2.0, 25, &LayOutBox, &MeasureText}};
}
