#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxdlgs.h>

#include <memory>
#include <optional>

class IAppAccess;
class IEFB;

namespace dialogs {
struct SheetControls;
}

// A property sheet that follows the display mode: registered from construction to destruction, it
// rescales and restyles its children when the mode changes and once when it opens in an on-board
// mode. There it has the frame, the caption and the colours of an on-board dialog; of these the
// colours alone when it is a child without a caption.
class ONBOARDUI_API CCustomPropSheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CCustomPropSheet)

public:
    // @{
    // Without pages, which are added before it opens; selectPage is the index of the first to be
    // shown. The caption is copied, or a string of the resources. The host is kept, not owned, and
    // may be null.
    CCustomPropSheet(UINT captionId, IAppAccess* host, CWnd* parent = nullptr, UINT selectPage = 0);
    CCustomPropSheet(LPCSTR caption, IAppAccess* host, CWnd* parent = nullptr, UINT selectPage = 0);
    // @}
    ~CCustomPropSheet() override;

    // @{
    // The flight bag that is told of modal sheets; the host's, not owned, null for none.
    static IEFB* GetEfb() { return m_efb; }
    static void SetEfb(IEFB* efb) { m_efb = efb; }
    // @}

    // Called on every mode change; nothing when the modes are equal. The sheet's own rectangle is
    // left to its owner.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    // Puts the on-board look over the platform's tabs and buttons. A derived class that has objects
    // of its own for them attaches those first.
    BOOL OnInitDialog() override;
    // As the framework's; in the flight-bag modes the flight bag is told before and after.
    INT_PTR DoModal() override;

    // Whether the sheet runs in its own modal loop.
    virtual bool IsModal();

    // Assistive programs are told of a dialog.
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;

protected:
    // Draws caption and frame on the window now; on-board only.
    virtual void DrawOBNC(bool active);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnWindowPosChanged(WINDOWPOS* position);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnMoving(UINT side, LPRECT proposed);
    afx_msg void OnNcPaint();
    afx_msg BOOL OnNcActivate(BOOL active);
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg LRESULT OnSetCaption(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSysCommand(UINT command, LPARAM lParam);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hitTest, CPoint point);
    DECLARE_MESSAGE_MAP()

public:
    // What SetEfb was given last.
    static IEFB* m_efb;

protected:
    IAppAccess* m_host;
    int m_captionHeight;        // pixels, of the system's caption
    bool m_inModalLoop = false; // in DoModal
    bool m_showEntire = false;  // while it is dragged, all of it stays in the host's area

private:
    bool m_initialising = false;       // and scales the children at the end of that
    unsigned m_openedAt = 0;           // the last change of the mode before that
    bool m_laidOut = false;            // by the platform, with its own frame; ours comes after
    DWORD m_takenStyles = 0;           // of the platform's caption, to be given back
    std::optional<bool> m_frameActive; // as the system said last
    std::unique_ptr<dialogs::SheetControls> m_sheetControls; // the platform's, with our look

    void Construct();
    bool HasOnBoardFrame() const;
    void LayOutOnBoard();
    void AnswerSystemRequest();
};
