#include "framework/Dialog.h"

#include "DisabledOwner.h"
#include "Guarded.h"
#include "StillThere.h"
#include "framework/App.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_WM_WINDOWPOSCHANGING()
END_MESSAGE_MAP()

CDialog::CDialog(LPCSTR templateName, CWnd* parent)
    : m_lpszTemplateName(templateName)
    , m_pParentWnd(parent)
{}

CDialog::CDialog(UINT templateId, CWnd* parent)
    : CDialog(MAKEINTRESOURCE(templateId), parent)
{}

CDialog::~CDialog()
{
    if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this)
    {
        CWnd::DestroyWindow();
    }
}

// Creation --------------------------------------------------------------------------------------

namespace {

// A dialog template of the application's resources, or null.
HGLOBAL LoadTemplate(LPCSTR name, HINSTANCE& module)
{
    module = AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC found = name == nullptr ? nullptr : ::FindResource(module, name, RT_DIALOG);
    return found == nullptr ? nullptr : ::LoadResource(module, found);
}

// A template in global memory, which may move, or in a loaded resource.
class TemplateMemory
{
public:
    explicit TemplateMemory(HGLOBAL handle)
        : m_handle(handle != nullptr && ::GlobalSize(handle) != 0 ? handle : nullptr)
        , m_template(static_cast<LPCDLGTEMPLATE>(m_handle != nullptr ? ::GlobalLock(m_handle)
                                                                     : ::LockResource(handle)))
    {}
    TemplateMemory(const TemplateMemory&) = delete;
    TemplateMemory& operator=(const TemplateMemory&) = delete;
    ~TemplateMemory()
    {
        if (m_handle != nullptr)
        {
            ::GlobalUnlock(m_handle);
        }
    }

    LPCDLGTEMPLATE Get() const { return m_template; }

private:
    HGLOBAL m_handle; // null for a resource
    LPCDLGTEMPLATE m_template;
};

} // namespace

BOOL CDialog::Initialise(HWND dialog, CDialog* object)
{
    const auto gone = [&] { return FromHandlePermanent(dialog) != object; };
    CFont* const font = object->GetFont();
    if (font != nullptr && !gone())
    {
        object->OnSetFont(font);
    }
    if (!gone())
    {
        object->PreInitDialog();
    }
    return !gone() && object->OnInitDialog();
}

INT_PTR CALLBACK CDialog::DialogProc(HWND dialog, UINT message, WPARAM, LPARAM)
{
    auto* object = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(dialog));
    if (message != WM_INITDIALOG || object == nullptr)
    {
        return FALSE;
    }
    // The platform stands between this and the window's own procedure.
    const MSG current = *GetCurrentMessage();
    bool threw = true;
    const LRESULT focus = framework::CallGuarded(current, [&] {
        const LRESULT wanted = Initialise(dialog, object);
        threw = false;
        return wanted;
    });
    if (FromHandlePermanent(dialog) == object)
    {
        object->m_initThrew = threw;
    }
    return focus;
}

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE instance)
{
    if (m_hWnd != nullptr)
    {
        return FALSE;
    }
    if (dialogTemplate == nullptr)
    {
        PostNcDestroy();
        return FALSE;
    }
    if (parent == nullptr)
    {
        CWnd* const main = AfxGetMainWnd();
        parent = main == this ? nullptr : main;
    }
    m_initThrew = false;
    AfxHookWindowCreate(this);
    const HWND window = ::CreateDialogIndirectParam(
        instance == nullptr ? AfxGetResourceHandle() : instance, dialogTemplate,
        parent == nullptr ? nullptr : parent->m_hWnd, &CDialog::DialogProc, 0);
    if (!AfxUnhookWindowCreate())
    {
        PostNcDestroy();
    }
    if (window != nullptr && FromHandlePermanent(window) == this && m_initThrew)
    {
        DestroyWindow();
        return FALSE;
    }
    return window != nullptr;
}

BOOL CDialog::Create(LPCSTR templateName, CWnd* parent)
{
    if (m_hWnd != nullptr)
    {
        return FALSE; // what it shows next stays what it was
    }
    m_lpszTemplateName = templateName;
    HINSTANCE module = nullptr;
    const HGLOBAL loaded = LoadTemplate(templateName, module);
    return CreateDlgIndirect(static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)), parent, module);
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return Create(MAKEINTRESOURCE(templateId), parent);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* initData)
{
    if (m_hWnd != nullptr)
    {
        return FALSE;
    }
    m_lpDialogInit = initData;
    return CreateDlgIndirect(dialogTemplate, parent, nullptr);
}

BOOL CDialog::CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    const TemplateMemory memory(dialogTemplate);
    return CreateIndirect(memory.Get(), parent, nullptr);
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* initData)
{
    if (parent != nullptr || m_pParentWnd == nullptr)
    {
        m_pParentWnd = parent;
    }
    m_lpDialogTemplate = dialogTemplate;
    m_lpDialogInit = initData;
    return dialogTemplate != nullptr;
}

BOOL CDialog::InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    m_hDialogTemplate = dialogTemplate; // locked while the dialog runs
    InitModalIndirect(LPCDLGTEMPLATE(nullptr), parent, nullptr);
    return dialogTemplate != nullptr;
}

INT_PTR CDialog::DoModal()
{
    if (m_hWnd != nullptr)
    {
        return -1;
    }
    HINSTANCE module = nullptr;
    const TemplateMemory memory(m_hDialogTemplate);
    LPCDLGTEMPLATE dialogTemplate =
        m_lpDialogTemplate != nullptr ? m_lpDialogTemplate : memory.Get();
    if (m_lpszTemplateName != nullptr)
    {
        dialogTemplate =
            static_cast<LPCDLGTEMPLATE>(::LockResource(LoadTemplate(m_lpszTemplateName, module)));
    }
    if (dialogTemplate == nullptr)
    {
        return -1;
    }

    framework::DisabledOwner owner(m_pParentWnd);
    owner.Disable();
    int result = -1;
    m_modalEnded = false;
    m_endValue = -1;
    m_modalDialog = true;
    if (CreateDlgIndirect(dialogTemplate, CWnd::FromHandle(owner.Window()), module))
    {
        const DWORD quiet = (GetStyle() & DS_NOIDLEMSG) != 0 ? MLF_NOIDLEMSG : 0;
        result = m_modalEnded ? m_endValue : RunModalLoop(MLF_SHOWONIDLE | quiet);
    }

    owner.EnableAgain(*this);
    DestroyWindow();
    m_modalDialog = false;
    return result;
}

void CDialog::EndDialog(int result)
{
    m_modalEnded = true;
    m_endValue = result;
    if (m_modalDialog)
    {
        EndModalLoop(result);
    }
    else if (m_hWnd != nullptr)
    {
        ::EndDialog(m_hWnd, result);
    }
}

// One that has ended or thrown at its initialisation is not shown, whatever its template says.
void CDialog::OnWindowPosChanging(WINDOWPOS* position)
{
    const framework::StillThere here(*this);
    CWnd::OnWindowPosChanging(position);
    const bool ended = here && (m_initThrew || (m_modalDialog && m_modalEnded));
    if (ended && (position->flags & SWP_SHOWWINDOW) != 0)
    {
        position->flags &= ~UINT(SWP_SHOWWINDOW);
        position->flags |= SWP_NOACTIVATE | SWP_NOZORDER;
    }
}

void CDialog::PostNcDestroy()
{
    m_modalEnded = true;
}

// Commands go on to the owner of the dialog and to the application. Notifications stay here, and so
// do the numbers of the dialog's own controls, which another dialog gives to others.
BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const framework::StillThere here(*this);
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
    {
        return TRUE;
    }
    const bool command = nCode == CN_COMMAND || UINT(nCode) == CN_UPDATE_COMMAND_UI;
    if (!here || !command || nID < 0x8000 || nID >= 0xF000)
    {
        return FALSE;
    }
    CWnd* const owner = GetParent();
    CWinApp* const app = AfxGetApp();
    return (owner != nullptr && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) ||
           (app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo));
}

// Behaviour -------------------------------------------------------------------------------------

BOOL CDialog::OnInitDialog()
{
    return UpdateData(FALSE) ? TRUE : (EndDialog(-1), FALSE);
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message) || PreTranslateInput(message);
}
