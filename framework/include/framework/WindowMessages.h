#pragma once

// Map entries for the platform's window messages, by theme. Included by MessageMap.h.

#define FRAMEWORK_POINT CPoint(GET_X_LPARAM(call.lParam), GET_Y_LPARAM(call.lParam))
#define FRAMEWORK_WND(handle) CWnd::FromHandle(reinterpret_cast<HWND>(handle))
#define FRAMEWORK_MENU(handle) CMenu::FromHandle(reinterpret_cast<HMENU>(handle))

// Shapes that several messages share.
#define FRAMEWORK_WM_VOID(number, name)                                                            \
    FRAMEWORK_WM(number, FRAMEWORK_MEMBER(void, name, ())(); return true;)
#define FRAMEWORK_WM_MOUSE(number, name)                                                           \
    FRAMEWORK_WM(number,                                                                           \
                 FRAMEWORK_MEMBER(void, name, (UINT, CPoint))(UINT(call.wParam), FRAMEWORK_POINT); \
                 return true;)
#define FRAMEWORK_WM_KEY(number, name)                                                             \
    FRAMEWORK_WM(number, FRAMEWORK_MEMBER(void, name, (UINT, UINT, UINT))(                         \
                             UINT(call.wParam), LOWORD(call.lParam), HIWORD(call.lParam));         \
                 return true;)
#define FRAMEWORK_WM_POS(number, name)                                                             \
    FRAMEWORK_WM(number, FRAMEWORK_MEMBER(void, name, (WINDOWPOS*))(                               \
                             reinterpret_cast<WINDOWPOS*>(call.lParam));                           \
                 return true;)
#define FRAMEWORK_WM_SIZES(number, name)                                                           \
    FRAMEWORK_WM(number, FRAMEWORK_MEMBER(void, name, (UINT, int, int))(                           \
                             UINT(call.wParam), LOWORD(call.lParam), HIWORD(call.lParam));         \
                 return true;)
#define FRAMEWORK_WM_FOCUS(number, name)                                                           \
    FRAMEWORK_WM(number, FRAMEWORK_MEMBER(void, name, (CWnd*))(FRAMEWORK_WND(call.wParam));        \
                 return true;)
#define FRAMEWORK_WM_SCROLL(number, name)                                                          \
    FRAMEWORK_WM(number, FRAMEWORK_MEMBER(void, name, (UINT, UINT, CScrollBar*))(                  \
                             LOWORD(call.wParam), HIWORD(call.wParam),                             \
                             AfxScrollBarFromHandle(reinterpret_cast<HWND>(call.lParam)));         \
                 return true;)

// Lifetime
#define ON_WM_CREATE()                                                                             \
    FRAMEWORK_WM(WM_CREATE, call.result = FRAMEWORK_MEMBER(int, OnCreate, (LPCREATESTRUCT))(       \
                                reinterpret_cast<LPCREATESTRUCT>(call.lParam));                    \
                 return true;)
#define ON_WM_NCCREATE()                                                                           \
    FRAMEWORK_WM(WM_NCCREATE, call.result = FRAMEWORK_MEMBER(BOOL, OnNcCreate, (LPCREATESTRUCT))(  \
                                  reinterpret_cast<LPCREATESTRUCT>(call.lParam));                  \
                 return true;)
#define ON_WM_DESTROY() FRAMEWORK_WM_VOID(WM_DESTROY, OnDestroy)
#define ON_WM_NCDESTROY() FRAMEWORK_WM_VOID(WM_NCDESTROY, OnNcDestroy)
#define ON_WM_CLOSE() FRAMEWORK_WM_VOID(WM_CLOSE, OnClose)
#define ON_WM_QUERYENDSESSION()                                                                    \
    FRAMEWORK_WM(WM_QUERYENDSESSION,                                                               \
                 call.result = FRAMEWORK_MEMBER(BOOL, OnQueryEndSession, ())();                    \
                 return true;)

#define ON_WM_ENDSESSION()                                                                         \
    FRAMEWORK_WM(WM_ENDSESSION, FRAMEWORK_MEMBER(void, OnEndSession, (BOOL))(BOOL(call.wParam));   \
                 return true;)

// The system and other programs
#define ON_WM_SYSCOMMAND()                                                                         \
    FRAMEWORK_WM(WM_SYSCOMMAND, FRAMEWORK_MEMBER(void, OnSysCommand,                               \
                                                 (UINT, LPARAM))(UINT(call.wParam), call.lParam);  \
                 return true;)
#define ON_WM_SETTINGCHANGE()                                                                      \
    FRAMEWORK_WM(WM_SETTINGCHANGE, FRAMEWORK_MEMBER(void, OnSettingChange, (UINT, LPCTSTR))(       \
                                       UINT(call.wParam), reinterpret_cast<LPCTSTR>(call.lParam)); \
                 return true;)
#define ON_WM_COPYDATA()                                                                           \
    FRAMEWORK_WM(WM_COPYDATA,                                                                      \
                 call.result = FRAMEWORK_MEMBER(BOOL, OnCopyData, (CWnd*, COPYDATASTRUCT*))(       \
                     FRAMEWORK_WND(call.wParam), reinterpret_cast<COPYDATASTRUCT*>(call.lParam));  \
                 return true;)
#define ON_WM_DROPFILES()                                                                          \
    FRAMEWORK_WM(WM_DROPFILES, FRAMEWORK_MEMBER(void, OnDropFiles,                                 \
                                                (HDROP))(reinterpret_cast<HDROP>(call.wParam));    \
                 return true;)
#define ON_WM_HELPINFO()                                                                           \
    FRAMEWORK_WM(WM_HELP, call.result = FRAMEWORK_MEMBER(BOOL, OnHelpInfo, (HELPINFO*))(           \
                              reinterpret_cast<HELPINFO*>(call.lParam));                           \
                 return true;)

// Painting
#define ON_WM_PAINT() FRAMEWORK_WM_VOID(WM_PAINT, OnPaint)
#define ON_WM_NCPAINT() FRAMEWORK_WM_VOID(WM_NCPAINT, OnNcPaint)
#define ON_WM_QUERYDRAGICON()                                                                      \
    FRAMEWORK_WM(WM_QUERYDRAGICON, call.result = reinterpret_cast<LRESULT>(                        \
                                       FRAMEWORK_MEMBER(HCURSOR, OnQueryDragIcon, ())());          \
                 return true;)
#define ON_WM_ERASEBKGND()                                                                         \
    FRAMEWORK_WM(WM_ERASEBKGND, call.result = FRAMEWORK_MEMBER(BOOL, OnEraseBkgnd, (CDC*))(        \
                                    CDC::FromHandle(reinterpret_cast<HDC>(call.wParam)));          \
                 return true;)
#define ON_WM_SYSCOLORCHANGE() FRAMEWORK_WM_VOID(WM_SYSCOLORCHANGE, OnSysColorChange)
#define ON_WM_CTLCOLOR()                                                                           \
    FRAMEWORK_WM(WM_CTLCOLOR,                                                                      \
                 call.result = AfxCallCtlColor(call,                                               \
                                               [&](CDC* dc, CWnd* control, UINT kind) {            \
                                                   return FRAMEWORK_MEMBER(HBRUSH, OnCtlColor,     \
                                                                           (CDC*, CWnd*, UINT))(   \
                                                       dc, control, kind);                         \
                                               });                                                 \
                 return true;)
// A null brush leaves the colours to the parent.
#define ON_WM_CTLCOLOR_REFLECT()                                                                   \
    FRAMEWORK_WM(WM_CTLCOLOR + WM_REFLECT_BASE,                                                    \
                 call.result = AfxCallCtlColor(call,                                               \
                                               [&](CDC* dc, CWnd*, UINT kind) {                    \
                                                   return FRAMEWORK_MEMBER(                        \
                                                       HBRUSH, CtlColor, (CDC*, UINT))(dc, kind);  \
                                               });                                                 \
                 return call.result != 0;)

// Size and place
#define ON_WM_SIZE() FRAMEWORK_WM_SIZES(WM_SIZE, OnSize)
#define ON_WM_MOVE()                                                                               \
    FRAMEWORK_WM(WM_MOVE, FRAMEWORK_MEMBER(void, OnMove, (int, int))(GET_X_LPARAM(call.lParam),    \
                                                                     GET_Y_LPARAM(call.lParam));   \
                 return true;)
#define ON_WM_MOVING()                                                                             \
    FRAMEWORK_WM(WM_MOVING, FRAMEWORK_MEMBER(void, OnMoving, (UINT, LPRECT))(                      \
                                UINT(call.wParam), reinterpret_cast<LPRECT>(call.lParam));         \
                 return true;)
#define ON_WM_SIZING()                                                                             \
    FRAMEWORK_WM(WM_SIZING, FRAMEWORK_MEMBER(void, OnSizing, (UINT, LPRECT))(                      \
                                UINT(call.wParam), reinterpret_cast<LPRECT>(call.lParam));         \
                 return true;)
#define ON_WM_GETMINMAXINFO()                                                                      \
    FRAMEWORK_WM(WM_GETMINMAXINFO, FRAMEWORK_MEMBER(void, OnGetMinMaxInfo, (MINMAXINFO*))(         \
                                       reinterpret_cast<MINMAXINFO*>(call.lParam));                \
                 return true;)
#define ON_WM_WINDOWPOSCHANGING() FRAMEWORK_WM_POS(WM_WINDOWPOSCHANGING, OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED() FRAMEWORK_WM_POS(WM_WINDOWPOSCHANGED, OnWindowPosChanged)
#define ON_WM_SHOWWINDOW()                                                                         \
    FRAMEWORK_WM(WM_SHOWWINDOW, FRAMEWORK_MEMBER(void, OnShowWindow, (BOOL, UINT))(                \
                                    BOOL(call.wParam), UINT(call.lParam));                         \
                 return true;)
#define ON_WM_ENABLE()                                                                             \
    FRAMEWORK_WM(WM_ENABLE, FRAMEWORK_MEMBER(void, OnEnable, (BOOL))(BOOL(call.wParam));           \
                 return true;)
#define ON_WM_ENTERSIZEMOVE() FRAMEWORK_WM_VOID(WM_ENTERSIZEMOVE, OnEnterSizeMove)
#define ON_WM_EXITSIZEMOVE() FRAMEWORK_WM_VOID(WM_EXITSIZEMOVE, OnExitSizeMove)
#define ON_WM_STYLECHANGING()                                                                      \
    FRAMEWORK_WM(WM_STYLECHANGING,                                                                 \
                 FRAMEWORK_MEMBER(void, OnStyleChanging, (int, LPSTYLESTRUCT))(                    \
                     int(call.wParam), reinterpret_cast<LPSTYLESTRUCT>(call.lParam));              \
                 return true;)
#define ON_WM_STYLECHANGED()                                                                       \
    FRAMEWORK_WM(WM_STYLECHANGED,                                                                  \
                 FRAMEWORK_MEMBER(void, OnStyleChanged, (int, LPSTYLESTRUCT))(                     \
                     int(call.wParam), reinterpret_cast<LPSTYLESTRUCT>(call.lParam));              \
                 return true;)

// Activation and focus
#define ON_WM_ACTIVATE()                                                                           \
    FRAMEWORK_WM(WM_ACTIVATE,                                                                      \
                 FRAMEWORK_MEMBER(void, OnActivate, (UINT, CWnd*, BOOL))(                          \
                     LOWORD(call.wParam), FRAMEWORK_WND(call.lParam), BOOL(HIWORD(call.wParam)));  \
                 return true;)
#define ON_WM_ACTIVATEAPP()                                                                        \
    FRAMEWORK_WM(WM_ACTIVATEAPP, FRAMEWORK_MEMBER(void, OnActivateApp, (BOOL, DWORD))(             \
                                     BOOL(call.wParam), DWORD(call.lParam));                       \
                 return true;)
#define ON_WM_MOUSEACTIVATE()                                                                      \
    FRAMEWORK_WM(WM_MOUSEACTIVATE,                                                                 \
                 call.result = FRAMEWORK_MEMBER(int, OnMouseActivate, (CWnd*, UINT, UINT))(        \
                     FRAMEWORK_WND(call.wParam), LOWORD(call.lParam), HIWORD(call.lParam));        \
                 return true;)
#define ON_WM_SETFOCUS() FRAMEWORK_WM_FOCUS(WM_SETFOCUS, OnSetFocus)
#define ON_WM_KILLFOCUS() FRAMEWORK_WM_FOCUS(WM_KILLFOCUS, OnKillFocus)
#define ON_WM_CAPTURECHANGED()                                                                     \
    FRAMEWORK_WM(WM_CAPTURECHANGED,                                                                \
                 FRAMEWORK_MEMBER(void, OnCaptureChanged, (CWnd*))(FRAMEWORK_WND(call.lParam));    \
                 return true;)
#define ON_WM_CANCELMODE() FRAMEWORK_WM_VOID(WM_CANCELMODE, OnCancelMode)
#define ON_WM_SETCURSOR()                                                                          \
    FRAMEWORK_WM(WM_SETCURSOR,                                                                     \
                 call.result = FRAMEWORK_MEMBER(BOOL, OnSetCursor, (CWnd*, UINT, UINT))(           \
                     FRAMEWORK_WND(call.wParam), LOWORD(call.lParam), HIWORD(call.lParam));        \
                 return true;)
#define ON_WM_GETDLGCODE()                                                                         \
    FRAMEWORK_WM(WM_GETDLGCODE, call.result = FRAMEWORK_MEMBER(UINT, OnGetDlgCode, ())();          \
                 return true;)

// Non-client area
#define ON_WM_NCCALCSIZE()                                                                         \
    FRAMEWORK_WM(WM_NCCALCSIZE,                                                                    \
                 FRAMEWORK_MEMBER(void, OnNcCalcSize, (BOOL, NCCALCSIZE_PARAMS*))(                 \
                     BOOL(call.wParam), reinterpret_cast<NCCALCSIZE_PARAMS*>(call.lParam));        \
                 return true;)
#define ON_WM_NCHITTEST()                                                                          \
    FRAMEWORK_WM(WM_NCHITTEST,                                                                     \
                 call.result = FRAMEWORK_MEMBER(LRESULT, OnNcHitTest, (CPoint))(FRAMEWORK_POINT);  \
                 return true;)
#define ON_WM_NCACTIVATE()                                                                         \
    FRAMEWORK_WM(WM_NCACTIVATE,                                                                    \
                 call.result = FRAMEWORK_MEMBER(BOOL, OnNcActivate, (BOOL))(BOOL(call.wParam));    \
                 return true;)
#define ON_WM_NCLBUTTONDOWN() FRAMEWORK_WM_MOUSE(WM_NCLBUTTONDOWN, OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() FRAMEWORK_WM_MOUSE(WM_NCLBUTTONUP, OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK() FRAMEWORK_WM_MOUSE(WM_NCLBUTTONDBLCLK, OnNcLButtonDblClk)
#define ON_WM_NCRBUTTONDOWN() FRAMEWORK_WM_MOUSE(WM_NCRBUTTONDOWN, OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP() FRAMEWORK_WM_MOUSE(WM_NCRBUTTONUP, OnNcRButtonUp)
#define ON_WM_NCMOUSEMOVE() FRAMEWORK_WM_MOUSE(WM_NCMOUSEMOVE, OnNcMouseMove)

// Mouse
#define ON_WM_LBUTTONDOWN() FRAMEWORK_WM_MOUSE(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() FRAMEWORK_WM_MOUSE(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() FRAMEWORK_WM_MOUSE(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() FRAMEWORK_WM_MOUSE(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_RBUTTONUP() FRAMEWORK_WM_MOUSE(WM_RBUTTONUP, OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() FRAMEWORK_WM_MOUSE(WM_RBUTTONDBLCLK, OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() FRAMEWORK_WM_MOUSE(WM_MBUTTONDOWN, OnMButtonDown)
#define ON_WM_MBUTTONUP() FRAMEWORK_WM_MOUSE(WM_MBUTTONUP, OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() FRAMEWORK_WM_MOUSE(WM_MBUTTONDBLCLK, OnMButtonDblClk)
#define ON_WM_MOUSEMOVE() FRAMEWORK_WM_MOUSE(WM_MOUSEMOVE, OnMouseMove)
#define ON_WM_MOUSEHOVER() FRAMEWORK_WM_MOUSE(WM_MOUSEHOVER, OnMouseHover)
#define ON_WM_MOUSELEAVE() FRAMEWORK_WM_VOID(WM_MOUSELEAVE, OnMouseLeave)
#define ON_WM_MOUSEWHEEL()                                                                         \
    FRAMEWORK_WM(WM_MOUSEWHEEL,                                                                    \
                 call.result = FRAMEWORK_MEMBER(BOOL, OnMouseWheel, (UINT, short, CPoint))(        \
                     LOWORD(call.wParam), short(HIWORD(call.wParam)), FRAMEWORK_POINT);            \
                 return true;)
#define ON_WM_MOUSEHWHEEL()                                                                        \
    FRAMEWORK_WM(WM_MOUSEHWHEEL,                                                                   \
                 FRAMEWORK_MEMBER(void, OnMouseHWheel, (UINT, short, CPoint))(                     \
                     LOWORD(call.wParam), short(HIWORD(call.wParam)), FRAMEWORK_POINT);            \
                 return true;)
#define ON_WM_CONTEXTMENU()                                                                        \
    FRAMEWORK_WM(WM_CONTEXTMENU, FRAMEWORK_MEMBER(void, OnContextMenu, (CWnd*, CPoint))(           \
                                     FRAMEWORK_WND(call.wParam), FRAMEWORK_POINT);                 \
                 return true;)

// Menus, and a modal window or menu that waits
#define ON_WM_INITMENU()                                                                           \
    FRAMEWORK_WM(WM_INITMENU,                                                                      \
                 FRAMEWORK_MEMBER(void, OnInitMenu, (CMenu*))(FRAMEWORK_MENU(call.wParam));        \
                 return true;)
#define ON_WM_INITMENUPOPUP()                                                                      \
    FRAMEWORK_WM(WM_INITMENUPOPUP,                                                                 \
                 FRAMEWORK_MEMBER(void, OnInitMenuPopup, (CMenu*, UINT, BOOL))(                    \
                     FRAMEWORK_MENU(call.wParam), LOWORD(call.lParam), BOOL(HIWORD(call.lParam))); \
                 return true;)
#define ON_WM_MENUSELECT()                                                                         \
    FRAMEWORK_WM(WM_MENUSELECT, FRAMEWORK_MEMBER(void, OnMenuSelect, (UINT, UINT, HMENU))(         \
                                    LOWORD(call.wParam), HIWORD(call.wParam),                      \
                                    reinterpret_cast<HMENU>(call.lParam));                         \
                 return true;)
#define ON_WM_MENUCHAR()                                                                           \
    FRAMEWORK_WM(WM_MENUCHAR,                                                                      \
                 call.result = FRAMEWORK_MEMBER(LRESULT, OnMenuChar, (UINT, UINT, CMenu*))(        \
                     LOWORD(call.wParam), HIWORD(call.wParam), FRAMEWORK_MENU(call.lParam));       \
                 return true;)
#define ON_WM_ENTERIDLE()                                                                          \
    FRAMEWORK_WM(WM_ENTERIDLE, FRAMEWORK_MEMBER(void, OnEnterIdle, (UINT, CWnd*))(                 \
                                   UINT(call.wParam), FRAMEWORK_WND(call.lParam));                 \
                 return true;)

// Keyboard
#define ON_WM_KEYDOWN() FRAMEWORK_WM_KEY(WM_KEYDOWN, OnKeyDown)
#define ON_WM_KEYUP() FRAMEWORK_WM_KEY(WM_KEYUP, OnKeyUp)
#define ON_WM_CHAR() FRAMEWORK_WM_KEY(WM_CHAR, OnChar)
#define ON_WM_SYSKEYDOWN() FRAMEWORK_WM_KEY(WM_SYSKEYDOWN, OnSysKeyDown)
#define ON_WM_SYSKEYUP() FRAMEWORK_WM_KEY(WM_SYSKEYUP, OnSysKeyUp)
#define ON_WM_UPDATEUISTATE()                                                                      \
    FRAMEWORK_WM(WM_UPDATEUISTATE, FRAMEWORK_MEMBER(void, OnUpdateUIState, (UINT, UINT))(          \
                                       LOWORD(call.wParam), HIWORD(call.wParam));                  \
                 return true;)

// Scrolling, timers, owner drawing
#define ON_WM_HSCROLL() FRAMEWORK_WM_SCROLL(WM_HSCROLL, OnHScroll)
#define ON_WM_VSCROLL() FRAMEWORK_WM_SCROLL(WM_VSCROLL, OnVScroll)
// The scrolling of a slider or a scroll bar, told to itself.
#define ON_WM_HSCROLL_REFLECT()                                                                    \
    FRAMEWORK_WM(WM_HSCROLL + WM_REFLECT_BASE, FRAMEWORK_MEMBER(void, HScroll, (UINT, UINT))(      \
                                                   LOWORD(call.wParam), HIWORD(call.wParam));      \
                 return true;)
#define ON_WM_VSCROLL_REFLECT()                                                                    \
    FRAMEWORK_WM(WM_VSCROLL + WM_REFLECT_BASE, FRAMEWORK_MEMBER(void, VScroll, (UINT, UINT))(      \
                                                   LOWORD(call.wParam), HIWORD(call.wParam));      \
                 return true;)
#define ON_WM_TIMER()                                                                              \
    FRAMEWORK_WM(WM_TIMER, FRAMEWORK_MEMBER(void, OnTimer, (UINT_PTR))(UINT_PTR(call.wParam));     \
                 return true;)
#define ON_WM_DRAWITEM()                                                                           \
    FRAMEWORK_WM(WM_DRAWITEM,                                                                      \
                 FRAMEWORK_MEMBER(void, OnDrawItem, (int, LPDRAWITEMSTRUCT))(                      \
                     int(call.wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(call.lParam));           \
                 call.result = TRUE; return true;)
#define ON_WM_MEASUREITEM()                                                                        \
    FRAMEWORK_WM(WM_MEASUREITEM,                                                                   \
                 FRAMEWORK_MEMBER(void, OnMeasureItem, (int, LPMEASUREITEMSTRUCT))(                \
                     int(call.wParam), reinterpret_cast<LPMEASUREITEMSTRUCT>(call.lParam));        \
                 call.result = TRUE; return true;)
#define ON_WM_COMPAREITEM()                                                                        \
    FRAMEWORK_WM(WM_COMPAREITEM,                                                                   \
                 call.result = FRAMEWORK_MEMBER(int, OnCompareItem, (int, LPCOMPAREITEMSTRUCT))(   \
                     int(call.wParam), reinterpret_cast<LPCOMPAREITEMSTRUCT>(call.lParam));        \
                 return true;)
#define ON_WM_DELETEITEM()                                                                         \
    FRAMEWORK_WM(WM_DELETEITEM,                                                                    \
                 FRAMEWORK_MEMBER(void, OnDeleteItem, (int, LPDELETEITEMSTRUCT))(                  \
                     int(call.wParam), reinterpret_cast<LPDELETEITEMSTRUCT>(call.lParam));         \
                 call.result = TRUE; return true;)
#define ON_WM_PARENTNOTIFY()                                                                       \
    FRAMEWORK_WM(WM_PARENTNOTIFY, FRAMEWORK_MEMBER(void, OnParentNotify, (UINT, LPARAM))(          \
                                      UINT(call.wParam), call.lParam);                             \
                 return true;)
