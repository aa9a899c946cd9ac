#pragma once

// What the windows that speak for themselves to assistive programs answer with.

#include <afxwin.h>

#include <oleacc.h>

#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"

#include <optional>
#include <type_traits>

namespace access {

inline HRESULT Give(VARIANT& place, long value)
{
    place.vt = VT_I4;
    place.lVal = value;
    return S_OK;
}

inline HRESULT GiveNothing(VARIANT& place)
{
    place.vt = VT_EMPTY;
    return S_FALSE;
}

// A text of the system's code page; the caller of the interface frees it.
inline HRESULT Give(BSTR& place, const CString& text)
{
    const int length = ::MultiByteToWideChar(CP_ACP, 0, text, text.GetLength(), nullptr, 0);
    place = ::SysAllocStringLen(nullptr, UINT(length));
    if (place == nullptr)
    {
        return E_OUTOFMEMORY;
    }
    ::MultiByteToWideChar(CP_ACP, 0, text, text.GetLength(), place, length);
    return S_OK;
}

// What the platform says of a window's state, for one that shows something and takes no input.
inline HRESULT ReadOnly(HRESULT result, VARIANT& state)
{
    if (SUCCEEDED(result) && state.vt == VT_I4)
    {
        state.lVal = (state.lVal & ~STATE_SYSTEM_FOCUSABLE) | STATE_SYSTEM_READONLY;
    }
    return result;
}

// The text of a label without the mark of its mnemonic. A picture of a template has none: the
// number of its resource stands there, behind a byte of ones.
inline CString LabelText(HWND label)
{
    CString text;
    CWnd::FromHandle(label)->GetWindowText(text);
    const auto style = ::GetWindowLongPtr(label, GWL_STYLE);
    const auto kind = style & SS_TYPEMASK;
    if ((kind == SS_BITMAP || kind == SS_ICON) && !text.IsEmpty() && BYTE(text[0]) == 0xFF)
    {
        return CString();
    }
    if ((style & SS_NOPREFIX) != 0)
    {
        return text;
    }
    CString plain;
    for (int index = 0; index < text.GetLength(); ++index)
    {
        if (text[index] == '&' && index + 1 < text.GetLength())
        {
            ++index; // "&&" stands for one
        }
        plain += text[index];
    }
    return plain;
}

// The label before a control, whose text is the control's name, as the platform has it; or null.
inline HWND LabelBefore(HWND control)
{
    const HWND before = ::GetWindow(control, GW_HWNDPREV);
    const bool isLabel =
        before != nullptr && (::SendMessage(before, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0;
    return isLabel ? before : nullptr;
}

// Does what assistive programs ask of a window or of the row that is its WPARAM, or keys of a tool
// bar. Windows post it to themselves: what comes of it may open a dialog, and the program that asks
// would wait for its end.
constexpr UINT ActMessage = 0x069C;

// The user could not do it where the window is out of reach.
inline HRESULT PostAct(CWnd& window, int row = -1)
{
    if (IsOutOfReach(window.GetSafeHwnd()))
    {
        return DISP_E_MEMBERNOTFOUND;
    }
    return window.PostMessage(ActMessage, WPARAM(row)) ? S_OK : E_FAIL;
}

// Does it when it comes, and the user still could: not behind a dialog that has opened meanwhile.
template <class Act> LRESULT DoAct(const CWnd& window, Act act)
{
    if (!IsOutOfReach(window.GetSafeHwnd()))
    {
        act();
    }
    return 0;
}

// The default action of what is checked: by the check that follows.
inline const char* VerbOfCheck(int next)
{
    switch (next)
    {
    case BST_UNCHECKED:
        return "Uncheck";
    case BST_CHECKED:
        return "Check";
    default:
        return "Toggle";
    }
}

inline bool IsSelf(const VARIANT& child)
{
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

// Tells assistive programs of a change of the window itself: an EVENT_OBJECT_ code. Their hooks may
// run in this process, so the call leaves our code.
inline void Tell(HWND window, DWORD event)
{
    ::NotifyWinEvent(event, window, OBJID_CLIENT, CHILDID_SELF);
}

// The same of a child that is no window.
inline void TellChild(HWND window, DWORD event, long child)
{
    ::NotifyWinEvent(event, window, OBJID_CLIENT, child);
}

// The name of a control that has a label before it. Nothing where the platform names the child:
// it is another or has no label, as a picture without a text is none.
inline std::optional<HRESULT> NameFromLabel(HWND control, const VARIANT& child, BSTR* name)
{
    const HWND label = IsSelf(child) ? LabelBefore(control) : nullptr;
    const CString text = label == nullptr ? CString() : LabelText(label);
    return text.IsEmpty() ? std::nullopt : std::optional(Give(*name, text));
}

// Questions that a window answers of itself alone; its base class answers those about its children.
// The base is named: GiveRole<CButton>(*this, child, role, ROLE_SYSTEM_PUSHBUTTON).
template <class Base>
HRESULT GiveRole(std::type_identity_t<Base>& window, const VARIANT& child, VARIANT* role, long own)
{
    return IsSelf(child) ? Give(*role, own) : window.Base::get_accRole(child, role);
}

// What the platform says of a control's state. It knows only whether the window itself is disabled.
template <class Base>
HRESULT GiveWindowState(std::type_identity_t<Base>& window, const VARIANT& child, VARIANT* state)
{
    const WindowAlive alive(window);
    const HRESULT result = window.Base::get_accState(child, state);
    if (alive && SUCCEEDED(result) && IsSelf(child) && state->vt == VT_I4 &&
        IsShutOff(window.GetSafeHwnd()))
    {
        state->lVal = (state->lVal & ~STATE_SYSTEM_FOCUSABLE) | STATE_SYSTEM_UNAVAILABLE;
    }
    return result;
}

// A label's own text.
template <class Base>
HRESULT GiveOwnText(std::type_identity_t<Base>& label, const VARIANT& child, BSTR* name)
{
    return IsSelf(child) ? Give(*name, LabelText(label.GetSafeHwnd()))
                         : label.Base::get_accName(child, name);
}

// The text of the label before it; without one the base answers.
template <class Base>
HRESULT GiveLabelsName(std::type_identity_t<Base>& window, const VARIANT& child, BSTR* name)
{
    const WindowAlive alive(window); // the label may end it
    const auto named = NameFromLabel(window.GetSafeHwnd(), child, name);
    return named ? *named : alive ? window.Base::get_accName(child, name) : CO_E_OBJNOTCONNECTED;
}

// The same of an edit. The platform names one by the static before it, whatever that shows: it is
// not asked where a picture or a swatch stands there.
inline HRESULT GiveEditsName(CEdit& edit, const VARIANT& child, BSTR* name)
{
    const WindowAlive alive(edit); // the label may end it
    const HWND label = IsSelf(child) ? LabelBefore(edit) : nullptr;
    if (label == nullptr)
    {
        return alive ? edit.CEdit::get_accName(child, name) : CO_E_OBJNOTCONNECTED;
    }
    const CString text = LabelText(label);
    if (text.IsEmpty())
    {
        *name = nullptr;
        return S_FALSE;
    }
    return Give(*name, text);
}

// Whether a point of the screen is in a window's client area; gives it in client coordinates.
inline bool IsInClient(const CWnd& window, CPoint& point)
{
    window.ScreenToClient(&point);
    CRect client;
    window.GetClientRect(&client);
    return client.PtInRect(point) != FALSE;
}

} // namespace access
