#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxwin.h>

#include <memory>
#include <optional>
#include <vector>

class IAppAccess;
class IEFB;

namespace dialogs {
class ControlList;
class Opening;
} // namespace dialogs

// A dialog that follows the display mode: registered from construction to destruction, it rescales
// and restyles its children when the mode changes or when it opens in an on-board mode. There it
// draws its own frame and caption, colours its controls, and opens in the size of that mode. With a
// host it stays inside the host's area while it is dragged.
class ONBOARDUI_API CCustomDialog : public CDialog
{
    DECLARE_DYNAMIC(CCustomDialog)

public:
    // @{
    // From the template of this id, which is read when the window is made; 0 for one that Create or
    // CreateIndirect is given. The host is kept, not owned, and may be null.
    CCustomDialog(UINT templateId, CWnd* parent);
    CCustomDialog(UINT templateId, CWnd* parent, IAppAccess* host);
    // @}
    ~CCustomDialog() override;

    // The dialog's child windows and theirs, as they were when it initialised. A window without an
    // object has a stand-in here that lasts as long as the dialog; windows that have gone since are
    // left out.
    std::vector<CWnd*>& GetControls();

    // @{
    // The flight bag that is told of modal dialogs; the host's, not owned, null for none.
    static IEFB* GetEfb() { return m_efb; }
    static void SetEfb(IEFB* efb) { m_efb = efb; }
    // @}

    // Called on every mode change; nothing when the modes are equal. The dialog's own rectangle is
    // left to its owner.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    // Attaches the controls that DoDataExchange names, scales and restyles the children if the mode
    // is an on-board one, and lists them. A derived class calls it: children that it makes before
    // are scaled with the rest, those made after stay as they are made.
    BOOL OnInitDialog() override;

    // @{
    // In an on-board mode a dialog is created from its template rewritten for that mode, whichever
    // of these is called. FALSE, or -1, for a template that is not there or damaged.
    BOOL Create(LPCSTR templateName, CWnd* parent = nullptr) override;
    BOOL Create(UINT templateId, CWnd* parent = nullptr) override;
    BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr,
                        void* initData = nullptr) override;
    BOOL CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr) override;
    INT_PTR DoModal() override;
    // @}

    // Whether the dialog runs in its own modal loop.
    virtual bool IsModal();
    // Creates the dialog, modeless, from the template of this id.
    virtual BOOL CreateOB(UINT id, CWnd* parent);

    // What assistive programs are told: a dialog, named by its title.
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;

protected:
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent,
                           HINSTANCE instance) override;

    // Sets the modal-child flag if a custom dialog or sheet is modal and belongs to this dialog.
    virtual void CheckForChildDialog(CWnd* window);
    // Adds a window to the controls.
    virtual void BuildListOfControls(CWnd* control);
    // Draws caption and frame on the window now; on-board only.
    virtual void DrawOBNC(bool active);

    // @{
    // Callbacks for the system's enumerations; data is the CCustomDialog. They hand the window's
    // object to the operation of the same name and go on.
    static BOOL CALLBACK CheckForChildDialog(HWND window, LPARAM data);
    static BOOL CALLBACK BuildListOfControls(HWND window, LPARAM data);
    // @}

    // The font that the controls have in the standard mode, unless they were given another. The
    // dialog may be asked for its own, and end in that.
    HFONT StandardFont() const;

    // Has the Tab key go through the controls in the order of the ids, ended by 0, and makes each a
    // tab stop. Ids that no control has are left out. The controls come before all others in the
    // z-order, and so away from their labels: what follows a label then has its mnemonic, and its
    // text for a name.
    void SetCtrlTabOrder(const UINT* ids);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnWindowPosChanged(WINDOWPOS* position);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnActivateApp(BOOL active, DWORD thread);
    afx_msg void OnMoving(UINT side, LPRECT proposed);
    afx_msg void OnNcPaint();
    afx_msg BOOL OnNcActivate(BOOL active);
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetCaption(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSysCommand(UINT command, LPARAM lParam);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hitTest, CPoint point);
    DECLARE_MESSAGE_MAP()

public:
    // Shared by all dialogs and by the controls on them; made with the first dialog, sheet, page or
    // form and kept for the life of the process.
    static IEFB* m_efb;
    static CBrush m_BkBrush;             // dialogs and statics
    static CBrush m_BkCaptionBrush;      // active caption
    static CBrush m_BkDisabledBrush;     // inactive caption
    static CBrush m_BkEditBrush;         // enabled edits and lists
    static CBrush m_BkEditDisabledBrush; // disabled ones
    static CPen m_BkBorderPen;           // active frame
    static CPen m_BkDisabledPen;         // inactive frame
    static CFont m_OBStaticTextFont;     // of dialogs and statics

    // @{
    // For derived classes that mark areas while a layout is tuned.
    static CBrush m_BkRedTestBrush;
    static CBrush m_BkGrnTestBrush;
    static CBrush m_BkBluTestBrush;
    static CPen m_BkBorderRedPen;
    static CPen m_BkBorderGrnPen;
    static CPen m_BkBorderBluPen;
    // @}

protected:
    std::shared_ptr<dialogs::Opening> m_opening; // the template, where it opened on-board
    IAppAccess* m_host;
    int m_frameWidth;
    int m_frameHeight;
    int m_captionHeight;          // pixels, of the system's caption
    bool m_centredTitle = false;  // else the caption's text is at the left
    bool m_inModalLoop = false;   // in DoModal
    bool m_hasModalChild = false; // set by CheckForChildDialog, for derived classes
    std::vector<CWnd*> m_controls;
    bool m_showEntire = false; // while it is dragged, all of the dialog stays in the host's area
    // Null, or places the controls by rules of the dialog's own once a change of the mode has
    // scaled them; the dialog is repainted after that.
    void (*m_layOutForMode)(CCustomDialog& dialog) = nullptr;

private:
    bool m_initialising = false;       // and scales the children at the end of that
    unsigned m_openedAt = 0;           // the last change of the mode before that
    DWORD m_takenStyles = 0;           // of the platform's caption, to be given back
    std::optional<bool> m_frameActive; // as the system said last
    std::unique_ptr<dialogs::ControlList> m_controlList;

    void MiscConstruction();
    BOOL CreateFrom(LPCSTR templateName, CWnd* parent);
    INT_PTR DoModalOB();
    void AnswerSystemRequest();
};
