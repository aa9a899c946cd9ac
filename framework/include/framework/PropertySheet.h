#pragma once

#include "framework/Dialog.h"

#include <prsht.h>
#include <vector>

class CPropertySheet;
class CTabCtrl;

constexpr int ID_APPLY_NOW = 0x3021;

// One page of a property sheet, from a dialog template.
class FRAMEWORK_API CPropertyPage : public CDialog
{
    DECLARE_DYNCREATE(CPropertyPage)

public:
    CPropertyPage();
    explicit CPropertyPage(UINT templateId, UINT captionId = 0);
    explicit CPropertyPage(LPCSTR templateName, UINT captionId = 0);

    PROPSHEETPAGE m_psp = {};

    void SetModified(BOOL changed = TRUE);
    // The page is to be shown: its controls get its data. FALSE keeps it from being.
    virtual BOOL OnSetActive() { return UpdateData(FALSE); }
    virtual BOOL OnKillActive() { return UpdateData(TRUE); }
    void OnOK() override {}
    void OnCancel() override {}
    // What the user has done cannot be taken back: OK closes the sheet, Cancel is disabled.
    void CancelToClose();
    virtual BOOL OnApply();
    virtual void OnReset() { OnCancel(); }
    virtual BOOL OnQueryCancel() { return TRUE; }

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    BOOL PreTranslateMessage(MSG* message) override;

    CString m_strCaption;

private:
    CPropertySheet* m_sheet = nullptr;
    bool m_leaving = false; // it is being removed: neither asked about it nor shown again

    void Construct(LPCSTR templateName, UINT captionId);
    static UINT CALLBACK Created(HWND window, UINT message, PROPSHEETPAGE* page);
    friend class CPropertySheet;
};

// A sheet of pages with tabs, modal or modeless. The pages stay their makers'.
class FRAMEWORK_API CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet();
    explicit CPropertySheet(UINT captionId, CWnd* parent = nullptr, UINT selectPage = 0);
    explicit CPropertySheet(LPCSTR caption, CWnd* parent = nullptr, UINT selectPage = 0);
    ~CPropertySheet() override;

    PROPSHEETHEADER m_psh = {};

    void AddPage(CPropertyPage* page);
    void RemovePage(int page);
    void RemovePage(CPropertyPage* page) { RemovePage(GetPageIndex(page)); }
    int GetPageCount() const { return int(m_pages.size()); }
    CPropertyPage* GetPage(int page) const;
    CPropertyPage* GetActivePage() const;
    int GetActiveIndex() const;
    BOOL SetActivePage(int page);
    BOOL SetActivePage(CPropertyPage* page) { return SetActivePage(GetPageIndex(page)); }
    // -1 for a page that the sheet has not.
    int GetPageIndex(const CPropertyPage* page) const;
    // As if the user pressed it: one of the platform's PSBTN_ values.
    BOOL PressButton(int button) { return PostMessage(PSM_PRESSBUTTON, WPARAM(button)); }
    CTabCtrl* GetTabControl() const;
    void SetTitle(LPCSTR text, UINT style = 0);

    using CWnd::Create;
    // Modeless, without the buttons. The styles are those that the window gets, a child's too; left
    // out, they are the platform's for a sheet.
    virtual BOOL Create(CWnd* parent = nullptr, DWORD style = DWORD(-1), DWORD exStyle = 0);
    // IDOK or IDCANCEL, or -1 when the sheet could not be made.
    virtual INT_PTR DoModal();
    void EndDialog(int result);
    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL ContinueModal() override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPressButton(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetCurSel(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTabRefused(WPARAM wParam, LPARAM lParam);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

    CString m_strCaption;
    CWnd* m_pParentWnd = nullptr;

private:
    static const UINT TabRefused; // the sheet's to itself

    std::vector<CPropertyPage*> m_pages;
    bool m_modal = false;
    bool m_ended = false; // EndDialog was called, perhaps before the loop began
    int m_result = IDCANCEL;
    DWORD m_style = DWORD(-1); // those that the window is to have, as in Create
    DWORD m_exStyle = 0;

    BOOL CreateSheet(CWnd* parent, DWORD style = DWORD(-1), DWORD exStyle = 0);
    void StyleTemplate(void* dialogTemplate) const;
    static int CALLBACK Called(HWND window, UINT message, LPARAM lParam);
    void HideButtons();
    void EndIfClosed(int result);
    void FocusShownPage();
};
