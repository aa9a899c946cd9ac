#pragma once

#include "framework/View.h"
#include "framework/Wnd.h"

class CControlBar;

// A frame shows the name of its document in its title. There are no documents here.
constexpr DWORD FWS_ADDTOTITLE = 0x8000;

// A top-level window with one view and bars round it. Made on the heap; deletes itself with its
// window.
class FRAMEWORK_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd() = default;

    static const CRect rectDefault;

    using CWnd::Create;
    virtual BOOL Create(LPCSTR className, LPCSTR windowName, DWORD style = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* parent = nullptr,
                        LPCSTR menuName = nullptr, DWORD exStyle = 0,
                        CCreateContext* context = nullptr);
    // From the resources of one id: menu, accelerators, icon and a string whose first line is the
    // title.
    virtual BOOL LoadFrame(UINT id, DWORD style = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* parent = nullptr, CCreateContext* context = nullptr);
    // To be called after Create: the views show their document for the first time, the first pane
    // becomes the active view if there is none, and the frame is shown if wished.
    void InitialUpdateFrame(CDocument* document, BOOL makeVisible);
    // Shows the frame, by default as large as it was last, and brings it before the others.
    virtual void ActivateFrame(int show = -1);
    // Makes a view of the context's class as a child; null when that fails.
    CWnd* CreateView(CCreateContext* context, UINT id = AFX_IDW_PANE_FIRST);

    CView* GetActiveView() const { return m_pViewActive; }
    void SetActiveView(CView* view, BOOL notify = TRUE);
    BOOL LoadAccelTable(LPCSTR name);
    // The child of that id, null if it is no bar.
    CControlBar* GetControlBar(UINT id);
    void ShowControlBar(CControlBar* bar, BOOL show, BOOL delay);
    // The status bar, null for none.
    virtual CWnd* GetMessageBar();
    // The text of the status bar's first pane.
    void SetMessageText(LPCSTR text);
    void SetMessageText(UINT id);
    // What the status bar says of a command while its menu item is selected: the first line of the
    // string of its id.
    virtual void GetMessageString(UINT id, CString& text) const;
    virtual void RecalcLayout(BOOL notify = TRUE);
    // Has the frame's children ask how their commands stand (WM_IDLEUPDATECMDUI); the thread does
    // so when it is idle.
    void UpdateBars();

    // A menu that opens asks how its commands stand; items whose commands nobody handles are
    // disabled, unless this is FALSE.
    BOOL m_bAutoMenuEnable = TRUE;

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    virtual BOOL OnCreateClient(LPCREATESTRUCT cs, CCreateContext* context);
    void PostNcDestroy() override { delete this; }

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnSetFocus(CWnd* old);
    // The active view scrolls by the bars beside it.
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL ofSystem);
    afx_msg void OnMenuSelect(UINT item, UINT flags, HMENU menu);
    DECLARE_MESSAGE_MAP()

    HACCEL m_hAccelTable = nullptr;
    CView* m_pViewActive = nullptr;

    friend class CView;

private:
    CString m_messageBefore; // what the status bar says but for the open menu
    CString m_messageOfMenu; // what it was given for the menu last
    bool m_menuOpen = false;

    bool ScrollActiveView(UINT message, UINT code, UINT position, CScrollBar* bar);
};
