#include "framework/ToolBar.h"

#include "StillThere.h"
#include "TypedWindows.h"
#include "framework/Frame.h"
#include "framework/ToolBarCtrl.h"
#include "framework/ToolTipCtrl.h"

#include <algorithm>
#include <utility>
#include <vector>

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

CToolTipCtrl* CToolBarCtrl::GetToolTips() const
{
    return framework::WindowAs<CToolTipCtrl>(HWND(SendMessage(TB_GETTOOLTIPS)));
}

BOOL CToolBar::CreateEx(CWnd* parent, DWORD controlStyle, DWORD style, CRect borders, UINT id)
{
    if (m_hWnd != nullptr)
    {
        return FALSE;
    }
    SetBorders(borders);
    const DWORD tips = (style & CBRS_TOOLTIPS) != 0 ? TBSTYLE_TOOLTIPS : 0;
    if (!CreateBar(TOOLBARCLASSNAME, parent, controlStyle | tips, style, id))
    {
        return FALSE;
    }
    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    m_inColumn = IsUpright();
    SetSizes(CSize(24, 22), m_imageSize);
    return TRUE;
}

void CToolBar::PreSubclassWindow()
{
    m_images.DeleteObject(); // of a window that has ended: this one has none to be replaced
    CControlBar::PreSubclassWindow();
}

void CToolBar::ApplyBarStyle()
{
    const DWORD tips = (GetBarStyle() & CBRS_TOOLTIPS) != 0 ? TBSTYLE_TOOLTIPS : 0;
    const DWORD rest = DWORD(SendMessage(TB_GETSTYLE)) & ~DWORD(TBSTYLE_TOOLTIPS);
    SendMessage(TB_SETSTYLE, 0, LPARAM(rest | tips));
    if (std::exchange(m_inColumn, IsUpright()) == IsUpright())
    {
        return;
    }
    // At a side there is one button a line.
    for (int index = GetCount(); index-- > 0;)
    {
        TBBUTTONINFO info = {};
        info.cbSize = sizeof(info);
        info.dwMask = TBIF_STATE | TBIF_BYINDEX;
        info.fsState = BYTE(ButtonAt(index).fsState & ~TBSTATE_WRAP) | WrapState();
        SendMessage(TB_SETBUTTONINFO, WPARAM(index), LPARAM(&info));
    }
}

BOOL CToolBar::LoadBitmap(LPCTSTR name)
{
    const auto images = static_cast<HBITMAP>(::LoadImage(
        AfxFindResourceHandle(name, RT_BITMAP), name, IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS));
    const BOOL taken = SetBitmap(images);
    if (!taken)
    {
        ::DeleteObject(images);
    }
    return taken;
}

BOOL CToolBar::LoadToolBar(LPCTSTR name)
{
    // What a tool-bar resource holds before the command ids.
    struct Header
    {
        WORD version, width, height, count;
    };
    const LPCTSTR type = MAKEINTRESOURCE(241);
    const HMODULE module = AfxFindResourceHandle(name, type);
    const HRSRC found = ::FindResource(module, name, type);
    const HGLOBAL loaded = found == nullptr ? nullptr : ::LoadResource(module, found);
    const auto* header = static_cast<const Header*>(::LockResource(loaded));
    if (header == nullptr || header->version != 1 ||
        ::SizeofResource(module, found) < sizeof(Header) + header->count * sizeof(WORD))
    {
        return FALSE;
    }
    const auto* ids = reinterpret_cast<const WORD*>(header + 1);
    SetSizes(CSize(header->width + 7, header->height + 7), CSize(header->width, header->height));
    return SetButtons(std::vector<UINT>(ids, ids + header->count).data(), header->count) &&
           LoadBitmap(name);
}

BOOL CToolBar::SetBitmap(HBITMAP images)
{
    BITMAP data = {};
    if (images == nullptr || ::GetObject(images, sizeof(data), &data) == 0)
    {
        return FALSE;
    }
    const int count = data.bmWidth / m_imageSize.cx;
    if (m_images.m_hObject == nullptr)
    {
        TBADDBITMAP added = {nullptr, UINT_PTR(images)};
        if (SendMessage(TB_ADDBITMAP, WPARAM(count), LPARAM(&added)) == -1)
        {
            return FALSE;
        }
    }
    else
    {
        TBREPLACEBITMAP replaced = {nullptr, UINT_PTR(m_images.m_hObject), nullptr,
                                    UINT_PTR(images), count};
        if (!SendMessage(TB_REPLACEBITMAP, 0, LPARAM(&replaced)))
        {
            return FALSE;
        }
    }
    m_images.DeleteObject();
    return m_images.Attach(images);
}

BOOL CToolBar::SetButtons(const UINT* ids, int count)
{
    for (int index = GetCount(); index-- > 0;)
    {
        SendMessage(TB_DELETEBUTTON, WPARAM(index));
    }
    std::vector<TBBUTTON> buttons(size_t(std::max(count, 0)));
    int image = 0;
    for (int index = 0; index < count; ++index)
    {
        TBBUTTON& button = buttons[size_t(index)];
        button.fsState = TBSTATE_ENABLED | WrapState();
        button.iString = -1;
        if (ids == nullptr || ids[index] == ID_SEPARATOR)
        {
            button.fsStyle = TBSTYLE_SEP;
            continue;
        }
        button.fsStyle = TBSTYLE_BUTTON;
        button.idCommand = int(ids[index]);
        button.iBitmap = image++;
    }
    return BOOL(SendMessage(TB_ADDBUTTONS, buttons.size(), LPARAM(buttons.data())));
}

void CToolBar::SetSizes(SIZE button, SIZE image)
{
    if (image.cx <= 0 || image.cy <= 0)
    {
        return; // the pictures are told apart by their size
    }
    m_imageSize = image;
    SendMessage(TB_SETBITMAPSIZE, 0, MAKELPARAM(image.cx, image.cy));
    SendMessage(TB_SETBUTTONSIZE, 0, MAKELPARAM(button.cx, button.cy));
    Invalidate();
}

TBBUTTON CToolBar::ButtonAt(int index) const
{
    TBBUTTON button = {};
    const HWND window = m_hWnd; // may end in the question
    VERIFY(::SendMessage(window, TB_GETBUTTON, WPARAM(index), LPARAM(&button)) ||
           !::IsWindow(window));
    return button;
}

void CToolBar::ReplaceButton(int index, TBBUTTON button)
{
    // A text that is no entry of the control's string list goes with the button.
    CString text;
    const auto string = reinterpret_cast<LPCTSTR>(button.iString);
    if (button.iString != -1 && !IS_INTRESOURCE(string))
    {
        text = GetButtonText(index);
        button.iString = reinterpret_cast<INT_PTR>(text.GetString());
    }
    SendMessage(TB_DELETEBUTTON, WPARAM(index));
    SendMessage(TB_INSERTBUTTON, WPARAM(index), LPARAM(&button));
}

void CToolBar::GetButtonInfo(int index, UINT& id, UINT& style, int& image) const
{
    const TBBUTTON button = ButtonAt(index);
    id = UINT(button.idCommand);
    style = GetButtonStyle(index);
    image = button.iBitmap;
}

void CToolBar::SetButtonInfo(int index, UINT id, UINT style, int image)
{
    TBBUTTON button = ButtonAt(index);
    button.idCommand = int(id);
    button.iBitmap = image;
    button.fsStyle = BYTE(style);
    button.fsState = BYTE(BYTE(style >> 16) ^ TBSTATE_ENABLED) | WrapState();
    ReplaceButton(index, button);
}

// Disabled is a style here, while the control has enabled as a state.
UINT CToolBar::GetButtonStyle(int index) const
{
    const TBBUTTON button = ButtonAt(index);
    return button.fsStyle | UINT(button.fsState ^ TBSTATE_ENABLED) << 16;
}

void CToolBar::SetButtonStyle(int index, UINT style)
{
    if (GetButtonStyle(index) != style)
    {
        const TBBUTTON button = ButtonAt(index);
        SetButtonInfo(index, UINT(button.idCommand), style, button.iBitmap);
    }
}

CString CToolBar::GetButtonText(int index) const
{
    const HWND window = m_hWnd; // is asked, and may end
    const WPARAM id = GetItemID(index);
    const auto length = int(::SendMessage(window, TB_GETBUTTONTEXT, id, 0));
    CString text;
    if (length > 0)
    {
        LPTSTR buffer = text.GetBufferSetLength(length);
        buffer[0] = '\0';
        ::SendMessage(window, TB_GETBUTTONTEXT, id, LPARAM(buffer));
        text.ReleaseBuffer();
    }
    return text;
}

BOOL CToolBar::SetButtonText(int index, LPCTSTR text)
{
    // The control takes a list of strings that ends with an empty one.
    CString list(text);
    list.AppendChar('\0');
    TBBUTTON button = ButtonAt(index);
    button.iString = INT_PTR(SendMessage(TB_ADDSTRING, 0, LPARAM(list.GetString())));
    if (button.iString == -1)
    {
        return FALSE;
    }
    ReplaceButton(index, button);
    return TRUE;
}

CToolBarCtrl& CToolBar::GetToolBarCtrl() const
{
    return *framework::WindowAs<CToolBarCtrl>(m_hWnd);
}

CSize CToolBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    const CRect borders = GetBorders();
    CSize size;
    for (int index = GetCount(); index-- > 0;)
    {
        CRect button;
        GetItemRect(index, &button);
        size.cx = std::max(size.cx, button.right);
        size.cy = std::max(size.cy, button.bottom);
    }
    const auto one = DWORD(SendMessage(TB_GETBUTTONSIZE));
    size.cx = std::max(size.cx, LONG(IsUpright() ? LOWORD(one) : 0));
    size.cy = std::max(size.cy, LONG(HIWORD(one)));
    size.cx += borders.left + borders.right;
    size.cy = m_height != 0 && !IsUpright() ? m_height : size.cy + borders.top + borders.bottom;
    const CSize stretched = CControlBar::CalcFixedLayout(stretch, horizontal);
    return CSize(std::max(size.cx, stretched.cx), std::max(size.cy, stretched.cy));
}

namespace {

class ButtonUI : public CCmdUI
{
public:
    ButtonUI(CToolBar& bar, int index, int count, UINT id)
        : m_bar(bar)
        , m_here(bar)
    {
        m_nID = id;
        m_nIndex = UINT(index);
        m_nIndexMax = UINT(count);
        m_pOther = &bar;
    }

    void Enable(BOOL on) override
    {
        m_enableChanged = TRUE;
        Set(TB_ENABLEBUTTON, on);
    }
    void SetCheck(int check) override
    {
        const UINT style = m_here ? m_bar.GetButtonStyle(int(m_nIndex)) : 0;
        if (m_here && (style & TBBS_CHECKBOX) == 0)
        {
            m_bar.SetButtonStyle(int(m_nIndex), style | TBBS_CHECKBOX);
        }
        Set(TB_CHECKBUTTON, check == 1);
        Set(TB_INDETERMINATE, check == 2);
    }
    void SetText(LPCSTR) override {} // a button's picture speaks for it

private:
    CToolBar& m_bar;
    framework::StillThere m_here;

    void Set(UINT message, BOOL on)
    {
        if (m_here)
        {
            m_bar.SendMessage(message, m_nID, MAKELPARAM(on, 0));
        }
    }
};

} // namespace

void CToolBar::OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler)
{
    const framework::StillThere here(*this); // handlers may end the bar, and so may its messages
    for (int index = 0, count = GetCount(); here && index < count; ++index)
    {
        const TBBUTTON button = ButtonAt(index);
        if (here && (button.fsStyle & TBBS_SEPARATOR) == 0)
        {
            ButtonUI(*this, index, count, UINT(button.idCommand))
                .DoUpdate(target, disableIfNoHandler);
        }
        count = here ? GetCount() : 0;
    }
    if (here)
    {
        UpdateDialogControls(target, disableIfNoHandler);
    }
}
