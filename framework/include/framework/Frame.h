#pragma once

#include "framework/View.h"
#include "framework/Wnd.h"

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
    // Makes a view of the context's class as a child; null when that fails.
    CWnd* CreateView(CCreateContext* context, UINT id = AFX_IDW_PANE_FIRST);

    CView* GetActiveView() const { return m_pViewActive; }
    void SetActiveView(CView* view, BOOL notify = TRUE);
    BOOL LoadAccelTable(LPCSTR name);
    virtual void RecalcLayout(BOOL notify = TRUE);
    // Has the bars ask how their commands stand; the thread does so when it is idle.
    void UpdateBars();

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
    DECLARE_MESSAGE_MAP()

    HACCEL m_hAccelTable = nullptr;
    CView* m_pViewActive = nullptr;

    friend class CView;
};
