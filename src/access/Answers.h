#pragma once

// What the windows that speak for themselves to assistive programs answer with.

#include <afxwin.h>

#include <oleacc.h>

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

inline bool IsSelf(const VARIANT& child)
{
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

// Tells assistive programs of a change of the window itself: an EVENT_OBJECT_ code.
inline void Tell(HWND window, DWORD event)
{
    ::NotifyWinEvent(event, window, OBJID_CLIENT, CHILDID_SELF);
}

} // namespace access
