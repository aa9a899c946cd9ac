#pragma once

#include "framework/Exceptions.h"
#include "framework/Wnd.h"

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
// A text that is no number of the type ends the exchange: the user is told.
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, BYTE& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, short& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, int& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, UINT& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, long& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, DWORD& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, float& value);
FRAMEWORK_API void AFXAPI DDX_Text(CDataExchange* exchange, int id, double& value);
FRAMEWORK_API void AFXAPI DDX_Check(CDataExchange* exchange, int id, int& value);
FRAMEWORK_API void AFXAPI DDX_Radio(CDataExchange* exchange, int id, int& value);
FRAMEWORK_API void AFXAPI DDX_LBIndex(CDataExchange* exchange, int id, int& index);
// A string selects the first item that begins with it, or none; the Exact ones the item that is it.
// The case does not matter. Without a selection a string is read as empty.
FRAMEWORK_API void AFXAPI DDX_LBString(CDataExchange* exchange, int id, CString& value);
FRAMEWORK_API void AFXAPI DDX_LBStringExact(CDataExchange* exchange, int id, CString& value);
// Without a selection 0 is read.
FRAMEWORK_API void AFXAPI DDX_CBIndex(CDataExchange* exchange, int id, int& index);
// A combo that can be typed into shows the string also where no item matches it.
FRAMEWORK_API void AFXAPI DDX_CBString(CDataExchange* exchange, int id, CString& value);
FRAMEWORK_API void AFXAPI DDX_CBStringExact(CDataExchange* exchange, int id, CString& value);

// Called behind the exchange of their value: one that the user has given and that is not allowed
// ends the exchange at its control, and the user is told.
FRAMEWORK_API void AFXAPI DDV_MaxChars(CDataExchange* exchange, const CString& value, int most);
FRAMEWORK_API void AFXAPI DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE least,
                                         BYTE most);
FRAMEWORK_API void AFXAPI DDV_MinMaxShort(CDataExchange* exchange, short value, short least,
                                          short most);
FRAMEWORK_API void AFXAPI DDV_MinMaxInt(CDataExchange* exchange, int value, int least, int most);
FRAMEWORK_API void AFXAPI DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT least,
                                         UINT most);
FRAMEWORK_API void AFXAPI DDV_MinMaxLong(CDataExchange* exchange, long value, long least,
                                         long most);
FRAMEWORK_API void AFXAPI DDV_MinMaxDWord(CDataExchange* exchange, const DWORD& value, DWORD least,
                                          DWORD most);
FRAMEWORK_API void AFXAPI DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float least,
                                          float most);
FRAMEWORK_API void AFXAPI DDV_MinMaxDouble(CDataExchange* exchange, const double& value,
                                           double least, double most);
