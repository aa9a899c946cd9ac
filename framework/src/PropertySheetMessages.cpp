// What a sheet does with the messages that come to it.

#include "framework/PropertySheet.h"

#include "framework/TabCtrl.h"

#include "StillThere.h"

const UINT CPropertySheet::TabRefused = ::RegisterWindowMessage("CPropertySheet::TabRefused");

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
// on do so once they have been told. Which page is shown by then is asked when the message comes.
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
    *result = Default();
    if (*result != FALSE && here)
    {
        PostMessage(TabRefused);
    }
    return TRUE;
}

LRESULT CPropertySheet::OnTabRefused(WPARAM, LPARAM)
{
    const framework::StillThere here(*this);
    const LRESULT page = SendMessage(PSM_GETCURRENTPAGEHWND);
    const LRESULT index = here ? SendMessage(PSM_HWNDTOINDEX, WPARAM(page)) : -1;
    const CTabCtrl* const tabs = here && index >= 0 ? GetTabControl() : nullptr;
    if (here && tabs != nullptr && tabs->GetCurSel() != index)
    {
        tabs->SendMessage(TCM_SETCURSEL, WPARAM(index));
    }
    return 0;
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
