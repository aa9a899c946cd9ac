// What a sheet does with the messages that come to it.

#include "framework/PropertySheet.h"

#include "StillThere.h"

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM)
{
    Default();
    return OnInitDialog();
}

BOOL CPropertySheet::OnInitDialog()
{
    return TRUE;
}

BOOL CPropertySheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const framework::StillThere here(*this);
    if (CWnd::OnCommand(wParam, lParam))
    {
        return TRUE;
    }
    const int id = LOWORD(wParam);
    if (!here || HIWORD(wParam) != BN_CLICKED ||
        (id != IDOK && id != IDCANCEL && id != ID_APPLY_NOW))
    {
        return FALSE;
    }
    Default();
    if (here && id == ID_APPLY_NOW)
    {
        FocusShownPage();
    }
    else if (here)
    {
        EndIfClosed(id);
    }
    return TRUE;
}

// Not every platform's tabs stay where they are when the page refuses to be left, and those that go
// on do so once they have been told.
BOOL CPropertySheet::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const framework::StillThere here(*this);
    const NMHDR header = *reinterpret_cast<NMHDR*>(lParam);
    if (CWnd::OnNotify(wParam, lParam, result) || !here)
    {
        return TRUE;
    }
    if (header.code != UINT(TCN_SELCHANGING))
    {
        return FALSE;
    }
    const LRESULT selected = ::SendMessage(header.hwndFrom, TCM_GETCURSEL, 0, 0);
    *result = here ? Default() : TRUE;
    if (*result != FALSE && here)
    {
        ::PostMessage(header.hwndFrom, TCM_SETCURSEL, WPARAM(selected), 0);
    }
    return TRUE;
}

void CPropertySheet::EndIfClosed(int result)
{
    const framework::StillThere here(*this);
    if (SendMessage(PSM_GETCURRENTPAGEHWND) == 0 && here)
    {
        EndDialog(result);
    }
}

LRESULT CPropertySheet::OnPressButton(WPARAM wParam, LPARAM)
{
    const framework::StillThere here(*this);
    const LRESULT result = Default();
    if (here)
    {
        EndIfClosed(wParam == PSBTN_OK ? IDOK : IDCANCEL);
    }
    return result;
}

void CPropertySheet::OnClose()
{
    SendMessage(PSM_PRESSBUTTON, PSBTN_CANCEL);
}

BOOL CPropertySheet::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
    {
        return TRUE;
    }
    const framework::StillThere here(*this);
    if (message->message < WM_KEYFIRST || message->message > WM_KEYLAST ||
        SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(message)) == 0)
    {
        return FALSE;
    }
    if (here)
    {
        FocusShownPage();
    }
    return TRUE;
}
