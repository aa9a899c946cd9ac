#include "windows/MessageText.h"

#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "modes/Meanwhile.h"
#include "modes/WindowAlive.h"
#include "paint/Palette.h"

#include <algorithm>
#include <utility>

namespace windows {

BEGIN_MESSAGE_MAP(MessageText, CCustomEdit)
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

void MessageText::SetScrolls(bool scrolls)
{
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    const bool barred = (GetStyle() & WS_VSCROLL) != 0;
    if (m_wantsBar == scrolls && (onBoard || barred == scrolls))
    {
        return;
    }
    m_wantsBar = scrolls;
    if (onBoard)
    {
        UpdateScrollPosFromText(); // our own bar comes when the text does not fit
        return;
    }
    if (!scrolls)
    {
        RemoveVScrollBar();
        return;
    }
    // The platform's edit changes its bars only while it can be written into.
    const WindowAlive alive(*this);
    SetReadOnly(FALSE);
    if (alive)
    {
        ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED);
    }
    if (alive)
    {
        SetReadOnly(TRUE);
    }
}

void MessageText::Show(const CString& text)
{
    const WindowAlive alive(*this);
    if (m_wantsBar && COnBoardUIGeneral::InOnBoardMode() && GetWindowTextLength() == 0)
    {
        // Or our bar came when the text is there, and had all its lines broken once more.
        const Meanwhile keeping(*this, m_keepingBar);
        IncludeVScrollBar();
    }
    if (alive)
    {
        SetWindowText(text);
    }
}

void MessageText::UpdateScrollPosFromText()
{
    if (!m_keepingBar)
    {
        CCustomEdit::UpdateScrollPosFromText();
    }
}

HRESULT MessageText::get_accName(VARIANT child, BSTR* name)
{
    const CWnd* const box = access::IsSelf(child) ? GetParent() : nullptr;
    if (box == nullptr)
    {
        return CCustomEdit::get_accName(child, name);
    }
    CString title;
    box->GetWindowText(title);
    return access::Give(*name, title);
}

bool MessageText::ScrollByKey(UINT key)
{
    static constexpr struct
    {
        UINT key;
        WPARAM code;
    } codes[] = {{VK_UP, SB_LINEUP},     {VK_DOWN, SB_LINEDOWN}, {VK_PRIOR, SB_PAGEUP},
                 {VK_NEXT, SB_PAGEDOWN}, {VK_HOME, SB_TOP},      {VK_END, SB_BOTTOM}};
    for (const auto& each : codes)
    {
        if (each.key == key)
        {
            SendMessage(WM_VSCROLL, each.code);
            return true;
        }
    }
    return false;
}

void MessageText::ScrollByWheel(int delta)
{
    UINT lines = 3;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    constexpr UINT Most = 20; // also for a user who has pages scrolled
    if ((m_turned < 0) != (delta < 0))
    {
        m_turned = 0;
    }
    m_turned += int(std::min(lines, Most)) * delta; // a touchpad turns it by less than a line
    const int whole = std::exchange(m_turned, m_turned % WHEEL_DELTA) / WHEEL_DELTA;
    SendMessage(EM_LINESCROLL, 0, -whole);
}

void MessageText::CopyAll()
{
    int begin = 0;
    int end = 0;
    GetSel(begin, end);
    const bool all = begin == end;
    if (all)
    {
        SendMessage(EM_SETSEL, 0, -1);
    }
    SendMessage(WM_COPY);
    if (all)
    {
        SendMessage(EM_SETSEL, WPARAM(begin), LPARAM(end));
    }
}

// Letters are the box's, and the focus selects nothing.
UINT MessageText::OnGetDlgCode()
{
    return DLGC_WANTARROWS;
}

void MessageText::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (!ScrollByKey(key))
    {
        CCustomEdit::OnKeyDown(key, repeat, flags);
    }
}

HBRUSH MessageText::CtlColor(CDC* dc, UINT)
{
    if (!COnBoardUIGeneral::InOnBoardMode() || dc == nullptr)
    {
        return nullptr; // as the dialog colours its labels
    }
    dc->SetTextColor(palette::PanelText);
    dc->SetBkColor(palette::Panel);
    return CCustomDialog::m_BkBrush;
}

} // namespace windows
