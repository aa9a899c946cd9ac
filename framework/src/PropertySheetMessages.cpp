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

namespace {

// A tab that keys have left stays pressed to some platforms, whose tabs pass over all clicks then.
void ReleaseOthers(HWND tabs)
{
    const LRESULT current = ::SendMessage(tabs, TCM_GETCURSEL, 0, 0);
    for (LRESULT tab = ::SendMessage(tabs, TCM_GETITEMCOUNT, 0, 0) - 1; tab >= 0; --tab)
    {
        TCITEM item = {};
        item.mask = TCIF_STATE;
        item.dwStateMask = TCIS_BUTTONPRESSED;
        const auto record = reinterpret_cast<LPARAM>(&item);
        if (tab != current && ::SendMessage(tabs, TCM_GETITEM, WPARAM(tab), record) != 0 &&
            (item.dwState & TCIS_BUTTONPRESSED) != 0)
        {
            item.dwState = 0;
            ::SendMessage(tabs, TCM_SETITEM, WPARAM(tab), record);
        }
    }
}

} // namespace

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
    const bool changed = header.code == UINT(TCN_SELCHANGE);
    if (!changed && header.code != UINT(TCN_SELCHANGING))
    {
        return FALSE;
    }
    *result = Default();
    if (changed && here && SendMessage(PSM_GETTABCONTROL) == LRESULT(header.hwndFrom))
    {
        ReleaseOthers(header.hwndFrom);
    }
    else if (!changed && *result != FALSE && here)
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
    if (here && tabs != nullptr)
    {
        tabs->SendMessage(TCM_SETCURSEL, WPARAM(index));
    }
    if (here && tabs != nullptr)
    {
        ReleaseOthers(*tabs);
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
