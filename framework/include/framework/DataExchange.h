#pragma once

#include "framework/Wnd.h"

// Thrown by pointer, as the framework's exceptions are; who catches one deletes it.
class FRAMEWORK_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    CException() = default;
    void Delete() { delete this; }
};

// An operation that the user ended.
class FRAMEWORK_API CUserException : public CException
{
    DECLARE_DYNAMIC(CUserException)

public:
    CUserException() = default;
};

// One exchange between a dialog's members and its controls.
class FRAMEWORK_API CDataExchange
{
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate)
        : m_bSaveAndValidate(saveAndValidate)
        , m_pDlgWnd(dialog)
    {}

    BOOL m_bSaveAndValidate; // TRUE: controls to members
    CWnd* m_pDlgWnd;

    // The control, remembered for Fail; an id that no control has ends the exchange like Fail.
    HWND PrepareCtrl(int id);
    HWND PrepareEditCtrl(int id);
    // Gives the focus back to the last control and ends the exchange by an exception.
    [[noreturn]] void Fail();

private:
    HWND m_lastControl = nullptr;
    bool m_lastIsEdit = false;
};

FRAMEWORK_API void AFXAPI DDX_Control(CDataExchange* exchange, int id, CWnd& control);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, CString& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, int& value);
FRAMEWORK_API void AFXAPI DDX_Check(CDataExchange* exchange, int id, int& value);
FRAMEWORK_API void AFXAPI DDX_Radio(CDataExchange* exchange, int id, int& value);
FRAMEWORK_API void AFXAPI DDX_LBIndex(CDataExchange* exchange, int id, int& index);
