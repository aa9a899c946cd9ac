#include "framework/PropertySheet.h"

#include "DisabledOwner.h"
#include "StillThere.h"
#include "ThreadState.h"
#include "TypedWindows.h"
#include "framework/App.h"
#include "framework/TabCtrl.h"

#include <algorithm>
#include <utility>

namespace {

// The sheets whose pages are being told something, the innermost first.
class Telling
{
public:
    explicit Telling(HWND sheet)
        : m_sheet(sheet)
        , m_outer(std::exchange(s_innermost, this))
    {}

    ~Telling() { s_innermost = m_outer; }

    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

    static bool ComesFrom(HWND sheet)
    {
        const Telling* told = s_innermost;
        while (told != nullptr && told->m_sheet != sheet)
        {
            told = told->m_outer;
        }
        return told != nullptr;
    }

private:
    HWND m_sheet;
    Telling* m_outer;
    static thread_local Telling* s_innermost;
};

thread_local Telling* Telling::s_innermost = nullptr;

} // namespace

// Pages -----------------------------------------------------------------------------------------

IMPLEMENT_DYNCREATE(CPropertyPage, CDialog)

CPropertyPage::CPropertyPage()
{
    Construct(nullptr, 0);
}

CPropertyPage::CPropertyPage(UINT templateId, UINT captionId)
{
    Construct(MAKEINTRESOURCE(templateId), captionId);
}

CPropertyPage::CPropertyPage(LPCSTR templateName, UINT captionId)
{
    Construct(templateName, captionId);
}

void CPropertyPage::Construct(LPCSTR templateName, UINT captionId)
{
    m_lpszTemplateName = templateName;
    m_psp.dwSize = sizeof(m_psp);
    m_psp.dwFlags = PSP_USECALLBACK;
    m_psp.pszTemplate = templateName;
    m_psp.pfnDlgProc = &CDialog::DialogProc;
    m_psp.lParam = reinterpret_cast<LPARAM>(this);
    m_psp.pfnCallback = &CPropertyPage::Created;
    if (captionId != 0 && m_strCaption.LoadString(captionId))
    {
        m_psp.dwFlags |= PSP_USETITLE;
        m_psp.pszTitle = m_strCaption;
    }
}

UINT CALLBACK CPropertyPage::Created(HWND, UINT message, PROPSHEETPAGE* page)
{
    if (message == PSPCB_CREATE)
    {
        // The sheet makes the page's window next, as its child, or fails to.
        auto* const made = reinterpret_cast<CPropertyPage*>(page->lParam);
        AfxHookWindowCreate(made, made->m_sheet == nullptr ? nullptr : made->m_sheet->m_hWnd);
    }
    return TRUE;
}

void CPropertyPage::SetModified(BOOL changed)
{
    if (m_hWnd != nullptr)
    {
        ::SendMessage(::GetParent(m_hWnd), changed ? PSM_CHANGED : PSM_UNCHANGED,
                      reinterpret_cast<WPARAM>(m_hWnd), 0);
    }
}

void CPropertyPage::CancelToClose()
{
    if (m_hWnd != nullptr)
    {
        ::SendMessage(::GetParent(m_hWnd), PSM_CANCELTOCLOSE, 0, 0);
    }
}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (header->hwndFrom != ::GetParent(m_hWnd))
    {
        return CDialog::OnNotify(wParam, lParam, result);
    }
    LRESULT answer = 0;
    const Telling telling(header->hwndFrom);
    switch (header->code)
    {
    case UINT(PSN_SETACTIVE):
        answer = !m_leaving && OnSetActive() ? 0 : -1;
        break;
    case UINT(PSN_KILLACTIVE):
        answer = m_leaving || OnKillActive() ? FALSE : TRUE;
        break;
    case UINT(PSN_APPLY):
        answer = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        break;
    case UINT(PSN_RESET):
        OnReset();
        break;
    case UINT(PSN_QUERYCANCEL):
        answer = OnQueryCancel() ? FALSE : TRUE;
        break;
    default:
        return CDialog::OnNotify(wParam, lParam, result);
    }
    *result = answer; // to the sheet itself: no dialog procedure stands between
    return TRUE;
}

BOOL CPropertyPage::PreTranslateMessage(MSG* message)
{
    // The sheet moves the focus across its own buttons and the page's controls alike, so not as a
    // dialog. NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return CWnd::PreTranslateMessage(message);
}

// Sheets ----------------------------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    ON_MESSAGE(PSM_PRESSBUTTON, &CPropertySheet::OnPressButton)
    ON_MESSAGE(PSM_SETCURSEL, &CPropertySheet::OnSetCurSel)
    ON_REGISTERED_MESSAGE(TabRefused, &CPropertySheet::OnTabRefused)
    ON_WM_CLOSE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CPropertySheet::CPropertySheet()
{
    m_psh.dwSize = sizeof(m_psh);
    m_psh.dwFlags = PSH_PROPSHEETPAGE | PSH_MODELESS;
}

CPropertySheet::CPropertySheet(UINT captionId, CWnd* parent, UINT selectPage)
    : CPropertySheet(static_cast<LPCSTR>(nullptr), parent, selectPage)
{
    m_strCaption.LoadString(captionId);
}

CPropertySheet::CPropertySheet(LPCSTR caption, CWnd* parent, UINT selectPage)
    : CPropertySheet()
{
    m_strCaption = caption;
    m_pParentWnd = parent;
    m_psh.nStartPage = selectPage;
}

CPropertySheet::~CPropertySheet()
{
    if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this)
    {
        CWnd::DestroyWindow();
    }
}

void CPropertySheet::OnDestroy()
{
    // A page that ends its sheet in what it is told goes back into the platform's sheet, which
    // reads on in the record that it frees here. The record is left to it, and lost.
    if (!Telling::ComesFrom(m_hWnd))
    {
        CWnd::OnDestroy();
    }
}

void CPropertySheet::AddPage(CPropertyPage* page)
{
    if (page == nullptr)
    {
        return;
    }
    m_pages.push_back(page);
    page->m_sheet = this;
    page->m_leaving = false;
    if (m_hWnd != nullptr)
    {
        PROPSHEETPAGE description = page->m_psp;
        description.hInstance = AfxFindResourceHandle(description.pszTemplate, RT_DIALOG);
        SendMessage(PSM_ADDPAGE, 0,
                    reinterpret_cast<LPARAM>(::CreatePropertySheetPage(&description)));
    }
}

void CPropertySheet::RemovePage(int page)
{
    CPropertyPage* const removed = GetPage(page);
    if (removed == nullptr)
    {
        return;
    }
    const auto left = [&] { return std::find(m_pages.begin(), m_pages.end(), removed); };
    if (m_hWnd != nullptr)
    {
        // The page beside the one that is shown comes first: in that it may end the sheet or remove
        // pages itself, which the platform does not bear in the middle of a removal.
        const framework::StillThere here(*this);
        const bool shown = GetActiveIndex() == page;
        if (here && shown && GetPageCount() > 1)
        {
            removed->m_leaving = true;
            SendMessage(PSM_SETCURSEL, WPARAM(page > 0 ? page - 1 : 1));
        }
        if (!here || left() == m_pages.end())
        {
            return;
        }
        removed->m_leaving = false;
        SendMessage(PSM_REMOVEPAGE, WPARAM(left() - m_pages.begin()));
        if (!here)
        {
            return;
        }
    }
    if (left() != m_pages.end())
    {
        m_pages.erase(left());
    }
}

CPropertyPage* CPropertySheet::GetPage(int page) const
{
    return page >= 0 && page < GetPageCount() ? m_pages[size_t(page)] : nullptr;
}

int CPropertySheet::GetPageIndex(const CPropertyPage* page) const
{
    const auto found = std::find(m_pages.begin(), m_pages.end(), page);
    return found == m_pages.end() ? -1 : int(found - m_pages.begin());
}

int CPropertySheet::GetActiveIndex() const
{
    if (m_hWnd == nullptr)
    {
        return int(m_psh.nStartPage);
    }
    const framework::StillThere here(*this); // it may end in the question
    const CTabCtrl* const tabs = GetTabControl();
    return !here ? -1 : tabs == nullptr ? int(m_psh.nStartPage) : tabs->GetCurSel();
}

CPropertyPage* CPropertySheet::GetActivePage() const
{
    const bool asks = m_hWnd != nullptr;
    const framework::StillThere here(*this);
    const int active = GetActiveIndex();
    return !asks || here ? GetPage(active) : nullptr;
}

CTabCtrl* CPropertySheet::GetTabControl() const
{
    return framework::WindowAs<CTabCtrl>(reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL)));
}

BOOL CPropertySheet::SetActivePage(int page)
{
    if (GetPage(page) == nullptr)
    {
        return FALSE;
    }
    m_psh.nStartPage = UINT(page);
    return m_hWnd == nullptr || BOOL(SendMessage(PSM_SETCURSEL, WPARAM(page)));
}

LRESULT CPropertySheet::OnSetCurSel(WPARAM, LPARAM)
{
    const framework::StillThere here(*this);
    const LRESULT turned = Default();
    if (here)
    {
        FocusShownPage();
    }
    return turned;
}

// Not every platform takes the focus along to another page. On the one that is hidden then, keys
// would go where nobody sees them; and nowhere once Apply has it, which its press disables.
void CPropertySheet::FocusShownPage()
{
    const HWND focus = ::GetFocus();
    const bool lost = focus == nullptr ? ::GetActiveWindow() == m_hWnd
                                       : ::IsChild(m_hWnd, focus) && !::IsWindowVisible(focus);
    if (!lost || !IsWindowVisible())
    {
        return;
    }
    const framework::StillThere here(*this);
    const auto page = reinterpret_cast<HWND>(SendMessage(PSM_GETCURRENTPAGEHWND));
    HWND next = page == nullptr ? nullptr : ::GetNextDlgTabItem(page, nullptr, FALSE);
    if (here && (next == nullptr || !::IsWindowVisible(next)))
    {
        next = reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL));
    }
    if (here)
    {
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
    }
}

void CPropertySheet::SetTitle(LPCSTR text, UINT style)
{
    m_strCaption = text;
    m_psh.dwFlags = (m_psh.dwFlags & ~UINT(PSH_PROPTITLE)) | style;
    if (m_hWnd != nullptr)
    {
        SendMessage(PSM_SETTITLE, style, reinterpret_cast<LPARAM>(LPCSTR(m_strCaption)));
    }
}

BOOL CPropertySheet::CreateSheet(CWnd* parent, DWORD style, DWORD exStyle)
{
    m_style = style;
    m_exStyle = exStyle;
    std::vector<PROPSHEETPAGE> descriptions;
    for (CPropertyPage* page : m_pages)
    {
        descriptions.push_back(page->m_psp);
        descriptions.back().hInstance = AfxFindResourceHandle(page->m_psp.pszTemplate, RT_DIALOG);
    }
    m_psh.hwndParent = parent == nullptr ? nullptr : parent->m_hWnd;
    m_psh.hInstance = AfxGetInstanceHandle();
    m_psh.pszCaption = m_strCaption;
    m_psh.nPages = UINT(descriptions.size());
    m_psh.ppsp = descriptions.data();
    PROPSHEETHEADER header = m_psh;
    if (m_style != DWORD(-1) || m_exStyle != 0)
    {
        header.dwFlags |= PSH_USECALLBACK;
        header.pfnCallback = &CPropertySheet::Called;
    }
    AfxHookWindowCreate(this);
    const INT_PTR made = descriptions.empty() ? -1 : ::PropertySheet(&header);
    AfxUnhookWindowCreate();
    m_psh.ppsp = nullptr;
    return made != -1 && made != 0 && m_hWnd != nullptr;
}

// The platform's callback for a sheet that is given styles; the host's own has its turn, too.
int CALLBACK CPropertySheet::Called(HWND window, UINT message, LPARAM lParam)
{
    // Before its window there is only the object that waits for it.
    CWnd* const object = message == PSCB_PRECREATE ? framework::CurrentThreadState().creating
                                                   : FromHandlePermanent(window);
    auto* const sheet = DYNAMIC_DOWNCAST(CPropertySheet, object);
    if (sheet == nullptr)
    {
        return 0;
    }
    if (message == PSCB_PRECREATE)
    {
        sheet->StyleTemplate(reinterpret_cast<void*>(lParam));
    }
    const bool hosts = (sheet->m_psh.dwFlags & PSH_USECALLBACK) != 0;
    return hosts && sheet->m_psh.pfnCallback != nullptr
               ? sheet->m_psh.pfnCallback(window, message, lParam)
               : 0;
}

// Puts the styles into the platform's template, of either form.
void CPropertySheet::StyleTemplate(void* dialogTemplate) const
{
    auto* const plain = static_cast<DLGTEMPLATE*>(dialogTemplate);
    const auto* const words = static_cast<const WORD*>(dialogTemplate);
    // The extended form begins with its version, a mark and a help id, and has the styles in the
    // other order.
    const bool extended = words[0] == 1 && words[1] == 0xFFFF;
    auto* const fields = static_cast<DWORD*>(dialogTemplate);
    DWORD& style = extended ? fields[3] : plain->style;
    DWORD& exStyle = extended ? fields[2] : plain->dwExtendedStyle;
    if (m_style != DWORD(-1))
    {
        // Whether a font follows is no matter of style.
        style = (m_style & ~DWORD(DS_SHELLFONT)) | (style & DS_SHELLFONT);
    }
    if (m_exStyle != 0)
    {
        exStyle = m_exStyle;
    }
}

BOOL CPropertySheet::Create(CWnd* parent, DWORD style, DWORD exStyle)
{
    if (m_hWnd != nullptr)
    {
        return FALSE;
    }
    m_modal = false;
    if (!CreateSheet(parent, style, exStyle))
    {
        return FALSE;
    }
    const framework::StillThere here(*this); // it may end in these
    HideButtons();
    return bool(here);
}

// A modeless sheet has no buttons; whoever shows it decides what becomes of the pages.
void CPropertySheet::HideButtons()
{
    const CTabCtrl* const tabControl = GetTabControl(); // the sheet is asked, and may end
    if (tabControl == nullptr)
    {
        return;
    }
    CRect sheet;
    GetWindowRect(&sheet);
    CRect tabs;
    tabControl->GetWindowRect(&tabs);
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
    {
        if (const HWND button = ::GetDlgItem(m_hWnd, id))
        {
            ::ShowWindow(button, SW_HIDE);
            ::EnableWindow(button, FALSE);
        }
    }
    // Below the tabs the same margin as above them.
    const int spare = client.bottom - tabs.bottom - (tabs.top - client.top);
    if (spare > 0)
    {
        SetWindowPos(nullptr, 0, 0, sheet.Width(), sheet.Height() - spare,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

INT_PTR CPropertySheet::DoModal()
{
    if (m_hWnd != nullptr)
    {
        return -1;
    }
    framework::DisabledOwner owner(m_pParentWnd);
    m_modal = true;
    m_ended = false;
    m_result = IDCANCEL;
    if (!CreateSheet(CWnd::FromHandle(owner.Window())))
    {
        m_modal = false;
        return -1;
    }
    owner.Disable();
    if (!m_ended)
    {
        RunModalLoop(MLF_SHOWONIDLE);
    }
    if (!m_ended && m_hWnd != nullptr && SendMessage(PSM_GETCURRENTPAGEHWND) == 0)
    {
        m_result = SendMessage(PSM_GETRESULT) > 0 ? IDOK : IDCANCEL;
    }
    owner.EnableAgain(*this);
    DestroyWindow();
    m_modal = false;
    return m_result;
}

void CPropertySheet::EndDialog(int result)
{
    m_result = result;
    m_ended = true;
    if (m_modal)
    {
        EndModalLoop(result);
    }
    else
    {
        DestroyWindow();
    }
}

BOOL CPropertySheet::ContinueModal()
{
    // A modeless sheet of the platform, which is what runs underneath, has no current page once
    // the user has closed it.
    return CWnd::ContinueModal() && SendMessage(PSM_GETCURRENTPAGEHWND) != 0;
}
