#include "OnBoardUI.h"

#include "AppAccess.h"
#include "OnBoardUIGeneral.h"
#include "modes/Rounding.h"
#include "modes/WindowFacts.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"

#include <iterator>
#include <vector>

ModifyChildWndsData::ModifyChildWndsData()
    : parent(nullptr)
    , scale(1.0)
    , mode(STD)
{}

ModifyChildWndsData::~ModifyChildWndsData() = default;

void SetOnBoardAppMode(APPMODE mode)
{
    COnBoardUIGeneral::SetAppMode(mode);
}

void SetOnBoardAppTitle(const char* title)
{
    COnBoardUIGeneral::SetAppTitle(CString(title));
}

// System colours --------------------------------------------------------------------------------

namespace {

void SetHighlight(COLORREF highlight, COLORREF text)
{
    const INT elements[] = {COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT};
    const COLORREF colours[] = {highlight, text};
    ::SetSysColors(int(std::size(elements)), elements, colours);
}

} // namespace

void OnBoardSetSysColors(APPMODE mode)
{
    if (mode == STD)
    {
        OnBoardRestoreSysColors();
        return;
    }
    // System-wide on purpose: menus and platform controls of the host follow the on-board look.
    SetHighlight(palette::Highlight, palette::HighlightText);
}

void OnBoardRestoreSysColors()
{
    SetHighlight(COnBoardUIGeneral::GetOrgHighlight(), COnBoardUIGeneral::GetOrgHighlightText());
}

void OnBoardUIEntry() {}

// Fonts and pens --------------------------------------------------------------------------------

int CreateOnBoardFont(CFont& font, double heightFactor, int width, int fontWeight)
{
    LOGFONT description = {};
    const HGDIOBJ stock = ::GetStockObject(SYSTEM_FONT);
    if (stock == nullptr || ::GetObject(stock, sizeof(description), &description) == 0)
    {
        return 0;
    }
    ::lstrcpyn(description.lfFaceName, "Arial", LF_FACESIZE);
    description.lfHeight = Truncated(description.lfHeight * heightFactor);
    description.lfWidth = width;
    description.lfWeight = fontWeight;
    font.DeleteObject();
    return font.CreateFontIndirect(&description);
}

int CreateOnBoardOutlinePen(CPen& pen, unsigned long colour)
{
    pen.DeleteObject();
    return pen.CreatePen(PS_INSIDEFRAME, metrics::OutlineWidth, COLORREF(colour));
}

int CreateOnBoardFocusPen(CPen& pen, unsigned long colour)
{
    pen.DeleteObject();
    return pen.CreatePen(PS_DOT, 1, COLORREF(colour));
}

void ChangeDialogFont(CWnd* wnd, CFont* font)
{
    if (wnd == nullptr || wnd->GetSafeHwnd() == nullptr)
    {
        return;
    }
    // Read first: a window that gets another font may have the old one deleted with its object.
    const HWND window = wnd->GetSafeHwnd();
    const auto handle = WPARAM(font == nullptr ? nullptr : font->GetSafeHandle());
    ::SendMessage(window, WM_SETFONT, handle, TRUE);
    ForEachChild(window, [handle](HWND child) {
        // One that has got it may have deleted it.
        if (handle == 0 || ::GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) == OBJ_FONT)
        {
            ::SendMessage(child, WM_SETFONT, handle, TRUE);
        }
    });
}

// Windows and gradients -------------------------------------------------------------------------

void EnsureWndVisible(IAppAccess* host, HWND window)
{
    CRect rect;
    if (host == nullptr || !::GetWindowRect(window, &rect))
    {
        return;
    }
    // The values count whatever the host answers: the default body means an empty area.
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    host->GetAvailableArea(GAA_WINDOW_AREA, x, y, width, height);
    const LONGLONG right = LONGLONG(x) + width;
    const LONGLONG bottom = LONGLONG(y) + height;

    LONGLONG left = rect.left;
    LONGLONG top = rect.top;
    if (left + rect.Width() > right)
    {
        left = right - rect.Width();
    }
    if (left < x)
    {
        left = x;
    }
    if (top < y)
    {
        top = y;
    }
    // Last, so that a window taller than the area ends at its bottom.
    if (top + rect.Height() > bottom)
    {
        top = bottom - rect.Height();
    }
    ::MoveWindow(window, int(left), int(top), rect.Width(), rect.Height(), TRUE);
}

bool GradientFill(CDC* dc, CRect& rect, unsigned long fromColour, unsigned long toColour,
                  unsigned long mode)
{
    if (dc == nullptr)
    {
        return false;
    }
    const auto vertex = [](LONG x, LONG y, COLORREF colour) {
        return TRIVERTEX{x,
                         y,
                         COLOR16(GetRValue(colour) << 8),
                         COLOR16(GetGValue(colour) << 8),
                         COLOR16(GetBValue(colour) << 8),
                         0};
    };
    TRIVERTEX vertices[] = {vertex(rect.left, rect.top, COLORREF(fromColour)),
                            vertex(rect.right, rect.bottom, COLORREF(toColour))};
    GRADIENT_RECT joined = {0, 1};
    return ::GradientFill(dc->GetSafeHdc(), vertices, 2, &joined, 1, mode) == 1;
}
