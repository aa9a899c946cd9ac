#include "framework/CommonControls.h"

#include "DragPicture.h"
#include "Reflection.h"
#include "TypedWindows.h"
#include "framework/HeaderCtrl.h"
#include "framework/TabCtrl.h"
#include "framework/ToolTipCtrl.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace framework {

BOOL UseCommonControls()
{
    static const BOOL ready = []() {
        const INITCOMMONCONTROLSEX classes = {sizeof(INITCOMMONCONTROLSEX),
                                              ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
        return ::InitCommonControlsEx(&classes);
    }();
    return ready;
}

} // namespace framework

CImageList* CHeaderCtrl::CreateDragImage(int index)
{
    return framework::DragPicture(SendMessage(HDM_CREATEDRAGIMAGE, WPARAM(index)));
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return message == WM_DRAWITEM ? framework::DrawReflected(*this, lParam, result)
                                  : CWnd::OnChildNotify(message, wParam, lParam, result);
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    return framework::WindowAs<CToolTipCtrl>(HWND(SendMessage(TCM_GETTOOLTIPS)));
}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return message == WM_DRAWITEM ? framework::DrawReflected(*this, lParam, result)
                                  : CWnd::OnChildNotify(message, wParam, lParam, result);
}

namespace {

// The size without the field that older versions of the control do not know and refuse.
const UINT toolInfoSize = TTTOOLINFOA_V2_SIZE;

TOOLINFO ToolOf(const CWnd* window, UINT_PTR id)
{
    TOOLINFO tool = {};
    tool.cbSize = toolInfoSize;
    if (id == 0)
    {
        tool.uFlags = TTF_IDISHWND;
        tool.hwnd = ::GetParent(window->m_hWnd);
        tool.uId = UINT_PTR(window->m_hWnd);
    }
    else
    {
        tool.hwnd = window->m_hWnd;
        tool.uId = id;
    }
    return tool;
}

// The control would look for a string resource in one module only, so it gets the text instead.
// The text that stands for a callback is no resource.
CString LoadedText(LPCTSTR text)
{
    return IS_INTRESOURCE(text) ? CString(text) : CString();
}

LPTSTR TextOrLoaded(LPCTSTR text, const CString& loaded)
{
    return const_cast<LPTSTR>(IS_INTRESOURCE(text) ? loaded.GetString() : text);
}

} // namespace

BOOL CToolTipCtrl::CreateEx(CWnd* parent, DWORD style, DWORD exStyle)
{
    return framework::UseCommonControls() &&
           CWnd::CreateEx(exStyle | WS_EX_TOOLWINDOW, TOOLTIPS_CLASS, nullptr, style | WS_POPUP,
                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                          parent->m_hWnd, nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* window, LPCTSTR text, LPCRECT rect, UINT_PTR id)
{
    ASSERT((rect == nullptr) == (id == 0));
    TOOLINFO tool = ToolOf(window, id);
    const CString loaded = LoadedText(text);
    tool.lpszText = TextOrLoaded(text, loaded);
    if (rect != nullptr)
    {
        tool.rect = *rect;
    }
    return BOOL(SendMessage(TTM_ADDTOOL, 0, LPARAM(&tool)));
}

void CToolTipCtrl::DelTool(CWnd* window, UINT_PTR id)
{
    TOOLINFO tool = ToolOf(window, id);
    SendMessage(TTM_DELTOOL, 0, LPARAM(&tool));
}

void CToolTipCtrl::GetText(CString& text, CWnd* window, UINT_PTR id) const
{
    // The control does not take the size of the buffer from an older structure.
    constexpr int longestTip = 1024;
    TOOLINFO tool = ToolOf(window, id);
    tool.lpszText = text.GetBufferSetLength(longestTip);
    *tool.lpszText = '\0';
    SendMessage(TTM_GETTEXT, longestTip, LPARAM(&tool));
    text.ReleaseBuffer();
}

void CToolTipCtrl::UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR id)
{
    TOOLINFO tool = ToolOf(window, id);
    const CString loaded = LoadedText(text);
    tool.lpszText = TextOrLoaded(text, loaded);
    SendMessage(TTM_UPDATETIPTEXT, 0, LPARAM(&tool));
}

void CToolTipCtrl::SetToolRect(CWnd* window, UINT_PTR id, LPCRECT rect)
{
    TOOLINFO tool = ToolOf(window, id);
    tool.rect = *rect;
    SendMessage(TTM_NEWTOOLRECT, 0, LPARAM(&tool));
}

BOOL CToolTipCtrl::HitTest(CWnd* window, CPoint point, LPTOOLINFO info) const
{
    TTHITTESTINFO hit = {};
    hit.hwnd = window->m_hWnd;
    hit.pt = point;
    hit.ti.cbSize = toolInfoSize;
    if (SendMessage(TTM_HITTEST, 0, LPARAM(&hit)) == 0)
    {
        return FALSE;
    }
    *info = hit.ti;
    return TRUE;
}
