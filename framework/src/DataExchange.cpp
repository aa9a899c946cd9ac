#include "framework/DataExchange.h"

#include "framework/App.h"

#include <cstdlib>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CUserException, CException)

HWND CDataExchange::PrepareCtrl(int id)
{
    m_lastControl = ::GetDlgItem(m_pDlgWnd->m_hWnd, id);
    m_lastIsEdit = false;
    if (m_lastControl == nullptr)
    {
        Fail();
    }
    return m_lastControl;
}

HWND CDataExchange::PrepareEditCtrl(int id)
{
    PrepareCtrl(id);
    m_lastIsEdit = true;
    return m_lastControl;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_lastControl != nullptr)
    {
        ::SetFocus(m_lastControl);
        if (m_lastIsEdit)
        {
            ::SendMessage(m_lastControl, EM_SETSEL, 0, -1);
        }
    }
    throw new CUserException;
}

void AFXAPI DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd == nullptr)
    {
        const HWND window = exchange->PrepareCtrl(id);
        if (!control.SubclassWindow(window))
        {
            exchange->Fail();
        }
    }
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, CString& value)
{
    const HWND edit = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        CWnd::FromHandle(edit)->GetWindowText(value);
    }
    else
    {
        ::SetWindowText(edit, value);
    }
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, int& value)
{
    CString text;
    if (!exchange->m_bSaveAndValidate)
    {
        text.Format("%d", value);
        DDX_Text(exchange, id, text);
        return;
    }
    DDX_Text(exchange, id, text);
    const char* const begin = text;
    char* end = nullptr;
    const long long number = std::strtoll(begin, &end, 10);
    if (end == begin || *end != '\0' || number != int(number))
    {
        AfxMessageBox("Please enter an integer.", MB_OK | MB_ICONEXCLAMATION);
        exchange->Fail();
    }
    value = int(number);
}

void AFXAPI DDX_Check(CDataExchange* exchange, int id, int& value)
{
    const HWND button = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        value = int(::SendMessage(button, BM_GETCHECK, 0, 0));
    }
    else
    {
        ::SendMessage(button, BM_SETCHECK, WPARAM(value), 0);
    }
}

// The id names the first button of a group; the value is the place of the checked one, or -1.
void AFXAPI DDX_Radio(CDataExchange* exchange, int id, int& value)
{
    HWND button = exchange->PrepareCtrl(id);
    const int wanted = value;
    if (exchange->m_bSaveAndValidate)
    {
        value = -1;
    }
    int place = 0;
    bool first = true;
    for (; button != nullptr; button = ::GetWindow(button, GW_HWNDNEXT))
    {
        if (!first && (::GetWindowLongPtr(button, GWL_STYLE) & WS_GROUP) != 0)
        {
            break;
        }
        first = false;
        if ((::SendMessage(button, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) == 0)
        {
            continue;
        }
        if (!exchange->m_bSaveAndValidate)
        {
            ::SendMessage(button, BM_SETCHECK, place == wanted, 0);
        }
        else if (::SendMessage(button, BM_GETCHECK, 0, 0) != 0)
        {
            value = place;
        }
        ++place;
    }
}

void AFXAPI DDX_LBIndex(CDataExchange* exchange, int id, int& index)
{
    const HWND list = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        index = int(::SendMessage(list, LB_GETCURSEL, 0, 0));
    }
    else
    {
        ::SendMessage(list, LB_SETCURSEL, WPARAM(index), 0);
    }
}
