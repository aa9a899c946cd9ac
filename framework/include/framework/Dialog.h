#pragma once

#include "framework/DataExchange.h"
#include "framework/Wnd.h"

// A dialog, modal (DoModal) or modeless (Create), from a resource or from memory.
class FRAMEWORK_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog() = default;
    explicit CDialog(LPCSTR templateName, CWnd* parent = nullptr);
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    ~CDialog() override;

    // Modeless; without a parent the dialog belongs to the application's main window. An exception
    // out of OnInitDialog ends it, and it was not created.
    virtual BOOL Create(LPCSTR templateName, CWnd* parent = nullptr);
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    // The template in memory stays the caller's and must last until the window exists.
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr,
                                void* initData = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);

    // For a modal dialog from memory: the template must last until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr,
                           void* initData = nullptr);
    BOOL InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);
    // Runs the dialog; EndDialog's value, or -1 when it could not be created. Its owner is disabled
    // meanwhile. Without a parent that is the modal dialog that is open over the main window, or
    // the main window; what the user was at is disabled as well, with all that it belongs to.
    virtual INT_PTR DoModal();
    void EndDialog(int result);

    virtual BOOL OnInitDialog();
    // The font that the template gives the controls, before the dialog is initialised.
    virtual void OnSetFont(CFont*) {}

    void NextDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, 0, FALSE); }
    void PrevDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, 1, FALSE); }
    void GotoDlgCtrl(CWnd* control)
    {
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control->m_hWnd), TRUE);
    }
    void SetDefID(UINT id) { SendMessage(DM_SETDEFID, id); }
    DWORD GetDefID() const { return DWORD(SendMessage(DM_GETDEFID)); }
    void MapDialogRect(LPRECT rect) const { ::MapDialogRect(m_hWnd, rect); }

    // Commands (from 0x8000) that it does not handle go to its owner and the application.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG* message) override;

    // The platform's callback for every dialog of the framework.
    static INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

protected:
    virtual void OnOK();
    virtual void OnCancel();
    virtual void PreInitDialog() {}
    // Creates the window, hidden or shown as the template says.
    virtual BOOL CreateDlgIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE instance);
    void PostNcDestroy() override;

    LPCSTR m_lpszTemplateName = nullptr; // or MAKEINTRESOURCE of an id
    HGLOBAL m_hDialogTemplate = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;

    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    DECLARE_MESSAGE_MAP()

private:
    bool m_modalDialog = false; // between the start and the end of DoModal
    bool m_modalEnded = false;  // EndDialog was called, or the window has gone
    bool m_initThrew = false;
    int m_endValue = -1;

    static BOOL Initialise(HWND dialog, CDialog* object);
};
