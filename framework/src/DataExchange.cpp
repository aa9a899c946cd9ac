#include "framework/DataExchange.h"

#include "framework/App.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>

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

namespace {

// A text that is there already is left with its caret and its scrolling, and nobody is told.
void ShowText(HWND control, const CString& text)
{
    CString shown;
    CWnd::FromHandle(control)->GetWindowText(shown);
    if (shown != text)
    {
        ::SetWindowText(control, text);
    }
}

} // namespace

void AFXAPI DDX_Text(CDataExchange* exchange, int id, CString& value)
{
    const HWND edit = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        CWnd::FromHandle(edit)->GetWindowText(value);
    }
    else
    {
        ShowText(edit, value);
    }
}

namespace {

[[noreturn]] void Refuse(CDataExchange& exchange, const CString& why)
{
    AfxMessageBox(why, MB_OK | MB_ICONEXCLAMATION);
    exchange.Fail();
}

template <class Number> CString TextOf(Number number)
{
    CString text;
    if constexpr (std::is_floating_point_v<Number>)
    {
        // As many digits as the type holds.
        text.Format("%.*g", std::numeric_limits<Number>::digits10, double(number));
    }
    else
    {
        text = std::to_string(number).c_str();
    }
    return text;
}

// The number that a text is, or none.
template <class Number> std::optional<Number> NumberOf(const CString& text)
{
    const char* const begin = text;
    char* end = nullptr;
    bool fits = true;
    Number number = 0;
    if constexpr (std::is_floating_point_v<Number>)
    {
        const double read = std::strtod(begin, &end);
        number = Number(read);
        fits = std::isfinite(number);
    }
    else
    {
        const long long read = std::strtoll(begin, &end, 10);
        number = Number(read);
        fits = read == static_cast<long long>(number);
    }
    return fits && end != begin && *end == '\0' ? std::optional(number) : std::nullopt;
}

template <class Number> void ExchangeNumber(CDataExchange& exchange, int id, Number& value)
{
    CString text;
    if (!exchange.m_bSaveAndValidate)
    {
        text = TextOf(value);
        DDX_Text(&exchange, id, text);
        return;
    }
    DDX_Text(&exchange, id, text);
    const std::optional<Number> number = NumberOf<Number>(text);
    if (!number)
    {
        Refuse(exchange, std::is_floating_point_v<Number> ? "Please enter a number."
                                                          : "Please enter an integer.");
    }
    value = *number;
}

} // namespace

void AFXAPI DDX_Text(CDataExchange* exchange, int id, BYTE& value)
{
    ExchangeNumber(*exchange, id, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, short& value)
{
    ExchangeNumber(*exchange, id, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, int& value)
{
    ExchangeNumber(*exchange, id, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, UINT& value)
{
    ExchangeNumber(*exchange, id, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, long& value)
{
    ExchangeNumber(*exchange, id, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, DWORD& value)
{
    ExchangeNumber(*exchange, id, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, float& value)
{
    ExchangeNumber(*exchange, id, value);
}

void AFXAPI DDX_Text(CDataExchange* exchange, int id, double& value)
{
    ExchangeNumber(*exchange, id, value);
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

namespace {

// What a list box and a combo call the same things.
struct ItemMessages
{
    UINT getSelection, setSelection, textLength, text, findBeginning, findExact;
};

constexpr ItemMessages OfListBox = {LB_GETCURSEL, LB_SETCURSEL,  LB_GETTEXTLEN,
                                    LB_GETTEXT,   LB_FINDSTRING, LB_FINDSTRINGEXACT};
constexpr ItemMessages OfCombo = {CB_GETCURSEL, CB_SETCURSEL,  CB_GETLBTEXTLEN,
                                  CB_GETLBTEXT, CB_FINDSTRING, CB_FINDSTRINGEXACT};

CString SelectedText(HWND list, const ItemMessages& messages)
{
    CString text;
    const LRESULT row = ::SendMessage(list, messages.getSelection, 0, 0);
    const LRESULT length = row < 0 ? -1 : ::SendMessage(list, messages.textLength, WPARAM(row), 0);
    if (length > 0)
    {
        ::SendMessage(list, messages.text, WPARAM(row), LPARAM(text.GetBuffer(int(length))));
        text.ReleaseBuffer();
    }
    return text;
}

bool SelectText(HWND list, const ItemMessages& messages, UINT find, const CString& text)
{
    const LRESULT row = text.IsEmpty()
                            ? LB_ERR // every item begins with it
                            : ::SendMessage(list, find, WPARAM(-1), LPARAM(text.GetString()));
    ::SendMessage(list, messages.setSelection, WPARAM(row), 0);
    return row >= 0;
}

void ExchangeItem(CDataExchange& exchange, int id, CString& value, UINT find)
{
    const HWND list = exchange.PrepareCtrl(id);
    if (exchange.m_bSaveAndValidate)
    {
        value = SelectedText(list, OfListBox);
    }
    else
    {
        SelectText(list, OfListBox, find, value);
    }
}

void ExchangeComboText(CDataExchange& exchange, int id, CString& value, UINT find)
{
    const HWND combo = exchange.PrepareCtrl(id);
    const auto style = ::GetWindowLongPtr(combo, GWL_STYLE);
    const bool canBeTypedInto = (style & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST;
    if (!exchange.m_bSaveAndValidate)
    {
        if (!SelectText(combo, OfCombo, find, value) && canBeTypedInto)
        {
            ShowText(combo, value);
        }
    }
    else if (canBeTypedInto)
    {
        CWnd::FromHandle(combo)->GetWindowText(value);
    }
    else
    {
        value = SelectedText(combo, OfCombo);
    }
}

} // namespace

void AFXAPI DDX_LBString(CDataExchange* exchange, int id, CString& value)
{
    ExchangeItem(*exchange, id, value, OfListBox.findBeginning);
}

void AFXAPI DDX_LBStringExact(CDataExchange* exchange, int id, CString& value)
{
    ExchangeItem(*exchange, id, value, OfListBox.findExact);
}

void AFXAPI DDX_CBIndex(CDataExchange* exchange, int id, int& index)
{
    const HWND combo = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
    {
        index = std::max(int(::SendMessage(combo, CB_GETCURSEL, 0, 0)), 0);
    }
    else
    {
        ::SendMessage(combo, CB_SETCURSEL, WPARAM(index), 0);
    }
}

void AFXAPI DDX_CBString(CDataExchange* exchange, int id, CString& value)
{
    ExchangeComboText(*exchange, id, value, OfCombo.findBeginning);
}

void AFXAPI DDX_CBStringExact(CDataExchange* exchange, int id, CString& value)
{
    ExchangeComboText(*exchange, id, value, OfCombo.findExact);
}

// Values that are not allowed -------------------------------------------------------------------

void AFXAPI DDV_MaxChars(CDataExchange* exchange, const CString& value, int most)
{
    if (exchange->m_bSaveAndValidate && value.GetLength() > most)
    {
        CString why;
        why.Format("Please enter no more than %d characters.", most);
        Refuse(*exchange, why);
    }
}

namespace {

template <class Number>
void CheckRange(CDataExchange& exchange, Number value, Number least, Number most)
{
    if (exchange.m_bSaveAndValidate && !(value >= least && value <= most))
    {
        const CString kind = std::is_floating_point_v<Number> ? "a number" : "an integer";
        Refuse(exchange,
               "Please enter " + kind + " from " + TextOf(least) + " to " + TextOf(most) + ".");
    }
}

} // namespace

void AFXAPI DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE least, BYTE most)
{
    CheckRange(*exchange, value, least, most);
}

void AFXAPI DDV_MinMaxShort(CDataExchange* exchange, short value, short least, short most)
{
    CheckRange(*exchange, value, least, most);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* exchange, int value, int least, int most)
{
    CheckRange(*exchange, value, least, most);
}

void AFXAPI DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT least, UINT most)
{
    CheckRange(*exchange, value, least, most);
}

void AFXAPI DDV_MinMaxLong(CDataExchange* exchange, long value, long least, long most)
{
    CheckRange(*exchange, value, least, most);
}

void AFXAPI DDV_MinMaxDWord(CDataExchange* exchange, const DWORD& value, DWORD least, DWORD most)
{
    CheckRange(*exchange, value, least, most);
}

void AFXAPI DDV_MinMaxFloat(CDataExchange* exchange, const float& value, float least, float most)
{
    CheckRange(*exchange, value, least, most);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* exchange, const double& value, double least,
                             double most)
{
    CheckRange(*exchange, value, least, most);
}
