#pragma once

// The display mode and the helpers that every on-board control and host shares.

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxwin.h>

class IAppAccess;

// Sets the display mode and tells every registered window; system colours are not touched.
ONBOARDUI_API void SetOnBoardAppMode(APPMODE mode);

// Title of the library's message boxes; null counts as empty.
ONBOARDUI_API void SetOnBoardAppTitle(const char* title);

// Sets the system highlight colours for a mode: the on-board pair, or the user's own for STD. The
// change is system-wide and lasts until it is restored.
ONBOARDUI_API void OnBoardSetSysColors(APPMODE mode);

// Puts the highlight colours back that were read when the library was loaded.
ONBOARDUI_API void OnBoardRestoreSysColors();

// Does nothing: a host calls it to bind itself to the library.
ONBOARDUI_API void OnBoardUIEntry();

// Makes an Arial font from the stock system font: heightFactor times its height (truncated), width
// and weight as given (logical units). Non-zero on success; font is left alone when the stock font
// is not to be had.
ONBOARDUI_API int CreateOnBoardFont(CFont& font, double heightFactor, int width, int fontWeight);

// Makes the 3-pixel inside-frame pen of on-board outlines. Non-zero on success.
ONBOARDUI_API int CreateOnBoardOutlinePen(CPen& pen, unsigned long colour);

// Makes the 1-pixel dotted pen of on-board focus frames. Non-zero on success.
ONBOARDUI_API int CreateOnBoardFocusPen(CPen& pen, unsigned long colour);

// What ModifyChildsForAppMode is told about a mode change, once the mode is set.
struct ONBOARDUI_API ModifyChildWndsData
{
    ModifyChildWndsData();
    virtual ~ModifyChildWndsData();

    HWND parent;  // whose direct children are restyled
    double scale; // 1.7 out of STD, 1 / 1.7 into it, else 1; the widening by 1.32 comes on top
    APPMODE mode; // the mode being entered
};

// Callback for EnumChildWindows: rescales and restyles one direct child of data->parent, where data
// is a ModifyChildWndsData*. The list of a platform combo is closed before, if it is open, of which
// the combo's parent is told. Always 1, so that the enumeration goes on.
ONBOARDUI_API BOOL CALLBACK ModifyChildsForAppMode(HWND child, LPARAM data);

// Sets font on wnd and on each of its direct children in z-order, with redraw. Nothing for null.
ONBOARDUI_API void ChangeDialogFont(CWnd* wnd, CFont* font);

// Moves a top-level window into the host's available area (screen pixels), keeping its size. One
// that is higher than the area ends at its lower edge, with the caption above it; one that is wider
// begins at its left edge. Nothing without a host or for a window that does not exist.
ONBOARDUI_API void EnsureWndVisible(IAppAccess* host, HWND window);

// Two-colour gradient over rect; mode 0 runs left to right, 1 top to bottom. True only when the
// platform reports success.
ONBOARDUI_API bool GradientFill(CDC* dc, CRect& rect, unsigned long fromColour,
                                unsigned long toColour, unsigned long mode);
