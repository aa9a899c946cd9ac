// The drop-list combo: its window class, the objects that the class makes, creation and end.

#include "CustomComboLBox.h"
#include "CustomDropListCombo.h"
#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "lists/ComboScaling.h"
#include "modes/PressAndHold.h"
#include "modes/WindowAlive.h"

#include <utility>

namespace {

constexpr char ClassName[] = "CCUSTOMDROPLISTCOMBO";
// Where a window without an object keeps the font that its dialog gave it.
constexpr char FontProperty[] = "OnBoardUI.DropListCombo.Font";

// Messages by which a window is put to use, or shown. By then its dialog has been initialised, and
// a host's own object would be there.
bool NeedsObject(UINT message)
{
    return message == WM_PAINT || message == WM_PRINTCLIENT || message == WM_SETFOCUS ||
           (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

} // namespace

IMPLEMENT_DYNAMIC(CCustomDropListCombo, CWnd)

BEGIN_MESSAGE_MAP(CCustomDropListCombo, CWnd)
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CCustomDropListCombo::OnPrintClient)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_RBUTTONDOWN()
    ON_WM_MBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_ERASEBKGND()
    ON_WM_NCHITTEST()
    ON_MESSAGE(WM_TABLET_QUERYSYSTEMGESTURESTATUS, &CCustomDropListCombo::OnQueryGestures)
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONUP()
    ON_MESSAGE(WM_SETFONT, &CCustomDropListCombo::OnSetFont)
    ON_MESSAGE(WM_GETFONT, &CCustomDropListCombo::OnGetFont)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_SYSKEYDOWN()
    ON_WM_SYSKEYUP()
    ON_WM_GETDLGCODE()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_MESSAGE(access::ActMessage, &CCustomDropListCombo::OnAct)
END_MESSAGE_MAP()

std::vector<CCustomDropListCombo*> CCustomDropListCombo::m_instances;

BOOL CCustomDropListCombo::RegisterWndClass(HINSTANCE instance)
{
    WNDCLASS registered = {};
    registered.style = CS_GLOBALCLASS;
    registered.lpfnWndProc = &CCustomDropListCombo::ClassProcedure;
    registered.hInstance = instance != nullptr ? instance : AfxGetInstanceHandle();
    registered.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    registered.lpszClassName = ClassName;
    return ::RegisterClass(&registered) != 0 || ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

// Objects for windows without one ---------------------------------------------------------------

LRESULT CALLBACK CCustomDropListCombo::ClassProcedure(HWND window, UINT message, WPARAM wParam,
                                                      LPARAM lParam)
{
    switch (message)
    {
    case WM_SETFONT:
        ::SetProp(window, FontProperty, reinterpret_cast<HANDLE>(wParam));
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(::GetProp(window, FontProperty));
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS; // asked before the dialog is initialised
    case WM_NCDESTROY:
        ::RemoveProp(window, FontProperty);
        lists::ComboScaling::TakeHeights(window);
        break;
    default:
        // The object's procedure stands before this one from here on and gets the message first.
        if (NeedsObject(message) && FromHandlePermanent(window) == nullptr && MakeObject(window))
        {
            return ::SendMessage(window, message, wParam, lParam);
        }
        break;
    }
    return ::DefWindowProc(window, message, wParam, lParam);
}

bool CCustomDropListCombo::IsOfClass(HWND window)
{
    return window != nullptr &&
           reinterpret_cast<WNDPROC>(::GetClassLongPtr(window, GCLP_WNDPROC)) ==
               &CCustomDropListCombo::ClassProcedure;
}

bool CCustomDropListCombo::MakeObject(HWND window)
{
    auto* const made = new CCustomDropListCombo;
    if (!made->CWnd::SubclassWindow(window))
    {
        delete made;
        return false;
    }
    made->m_madeByClass = true; // ends with its window from here on
    return true;
}

CCustomDropListCombo* CCustomDropListCombo::FromWindow(HWND window)
{
    if (FromHandlePermanent(window) == nullptr && IsOfClass(window))
    {
        MakeObject(window);
    }
    return DYNAMIC_DOWNCAST(CCustomDropListCombo, FromHandlePermanent(window));
}

void CCustomDropListCombo::FreeInstances()
{
    // Each end may take others along, so the search starts anew.
    for (size_t index = 0; index < m_instances.size();)
    {
        CCustomDropListCombo* const instance = m_instances[index];
        if (instance->m_madeByClass)
        {
            delete instance;
            index = 0;
        }
        else
        {
            ++index;
        }
    }
}

// Creation and end ------------------------------------------------------------------------------

BOOL CCustomDropListCombo::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return RegisterWndClass(nullptr) && CWnd::Create(ClassName, nullptr, style, rect, parent, id);
}

BOOL CCustomDropListCombo::SubclassWindow(HWND window)
{
    auto* const made = DYNAMIC_DOWNCAST(CCustomDropListCombo, FromHandlePermanent(window));
    if (GetSafeHwnd() != nullptr || made == nullptr || made == this || !made->m_madeByClass)
    {
        return CWnd::SubclassWindow(window);
    }
    const WindowAlive madeAlive(*made); // its list may be open, whose closing is told
    // A list that the caller has given is not thrown away for that of the class's object.
    if (m_ownsList || m_list == nullptr)
    {
        const bool owned = made->m_ownsList;
        if (CCustomComboLBox* const list = made->DetachCustomComboLBox())
        {
            SetCustomComboLBox(list);
            m_ownsList = owned;
        }
    }
    else
    {
        made->SetCustomComboLBox(nullptr);
    }
    if (!madeAlive)
    {
        return ::IsWindow(window) && CWnd::SubclassWindow(window);
    }
    const std::vector<int> heights = made->m_heights;
    const int fitted = made->m_fitted;
    made->m_madeByClass = false;
    made->UnsubclassWindow();
    delete made;
    if (!CWnd::SubclassWindow(window))
    {
        return FALSE;
    }
    m_heights = heights;
    m_fitted = fitted;
    return TRUE;
}

BOOL CCustomDropListCombo::SubclassWindow(CWnd* parent, int id, int rows)
{
    const HWND window = parent == nullptr ? nullptr : ::GetDlgItem(parent->GetSafeHwnd(), id);
    if (window == nullptr || !SubclassWindow(window))
    {
        return FALSE;
    }
    if (m_list != nullptr)
    {
        m_list->SetMaxRows(rows);
    }
    return TRUE;
}

void CCustomDropListCombo::PreSubclassWindow()
{
    CWnd::PreSubclassWindow();
    m_ending = false;
    m_sizing = false;
    m_hasFocus = ::GetFocus() == GetSafeHwnd();
    // The window's own procedure still answers.
    m_font = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
    m_shapedFor = COnBoardUIGeneral::GetAppMode();
    std::fill(m_heights.begin(), m_heights.end(), 0);
    const lists::ComboScaling::Heights scaled = lists::ComboScaling::TakeHeights(GetSafeHwnd());
    m_heights[STD] = scaled.standard;
    m_fitted = scaled.fitted;
    CRect window;
    GetWindowRect(&window);
    if (size_t(m_shapedFor) < m_heights.size() && (m_fitted == 0 || window.Height() != m_fitted))
    {
        m_heights[size_t(m_shapedFor)] = window.Height();
    }
    Repaint();
    CloseLeftOpen();
}

// The window loses the focus on the way out, which is no closing by the user.
BOOL CCustomDropListCombo::DestroyWindow()
{
    const WindowAlive alive(*this);
    m_ending = true;
    const BOOL destroyed = CWnd::DestroyWindow();
    if (alive)
    {
        m_ending = false;
    }
    return destroyed;
}

int CCustomDropListCombo::OnCreate(LPCREATESTRUCT cs)
{
    const WindowAlive alive(*this);
    const int result = CWnd::OnCreate(cs);
    if (alive && result != -1)
    {
        List();
        if (alive)
        {
            CalculateSpacing();
        }
    }
    return result;
}

void CCustomDropListCombo::OnDestroy()
{
    m_ending = true;
    const WindowAlive alive(*this);
    if (m_expanded)
    {
        ToggleDropList();
    }
    if (alive && m_list != nullptr)
    {
        m_list->DestroyPopup();
    }
    if (alive)
    {
        CWnd::OnDestroy();
    }
}

void CCustomDropListCombo::PostNcDestroy()
{
    CWnd::PostNcDestroy();
    m_hasFocus = false;
    m_barHeld = false;
    m_pickArmed = false;
    m_closingKey = 0;
    if (m_madeByClass)
    {
        delete this;
    }
}
