#pragma once

// The platform's headers and the small words that every class of the framework uses.

#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#include <windows.h>
#include <windowsx.h>

#include <commctrl.h>

// windowsx.h gives these names to macros; here they are members.
#undef SubclassWindow
#undef GetNextSibling
#undef GetPrevSibling
#undef GetFirstChild
#undef CopyRgn
#undef SelectPen
#undef SelectBrush
#undef SelectFont
// So does winuser.h with this one.
#undef GetNextWindow

#include "framework/Export.h"

#include <cassert>

#define afx_msg
#define AFX_MSG_CALL
#define AFX_CDECL
#define AFXAPI
#define AFX_DATA
#define AFX_DATADEF
#define AFX_EXT_CLASS
#if !defined(PASCAL)
#define PASCAL
#endif

#if defined(NDEBUG)
#define ASSERT(condition) ((void)0)
#define VERIFY(condition) ((void)(condition))
#else
#define ASSERT(condition) assert(condition)
#define VERIFY(condition) assert(condition)
#endif
// For the debugger's window; nothing in a release build.
#if defined(NDEBUG)
#define TRACE(...) ((void)0)
#else
#define TRACE(...) framework::Trace(__VA_ARGS__)
#endif
#define TRACE0(text) TRACE("%s", text)
#define TRACE1(format, a) TRACE(format, a)
#define TRACE2(format, a, b) TRACE(format, a, b)
#define TRACE3(format, a, b, c) TRACE(format, a, b, c)
#define DEBUG_NEW new
#define ASSERT_VALID(object) ASSERT((object) != nullptr)

namespace framework {

FRAMEWORK_API void Trace(LPCSTR format, ...);

// The handle of an object, null for a null object: the functions with Safe in their name may be
// called on a null pointer. That takes a compiler which does not conclude from the call that there
// is an object; whoever links the framework tells it so (-fno-delete-null-pointer-checks).
template <class Object, class Handle>
Handle SafeHandle(const Object* object, Handle Object::*handle)
{
    return object == nullptr ? nullptr : object->*handle;
}

} // namespace framework

#if !defined(WM_REFLECT_BASE)
// Private to a thread's own windows: a notification on its way back to the control that sent it.
#define WM_REFLECT_BASE 0xBC00
#endif
