#pragma once

// Views that are one of the platform's controls.

#include "framework/TreeCtrl.h"
#include "framework/View.h"

// A view whose window is of a control's class; the control draws itself.
class FRAMEWORK_API CCtrlView : public CView
{
    DECLARE_DYNCREATE(CCtrlView)

public:
    // The class of the window, and its style when it is made with a view's default style.
    CCtrlView(LPCTSTR className, DWORD style);

protected:
    CCtrlView() = default;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void OnDraw(CDC*) override { ASSERT(FALSE); } // the control paints

    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    CString m_strClass;
    DWORD m_dwDefaultStyle = 0;
};

// A tree as a view.
class FRAMEWORK_API CTreeView : public CCtrlView
{
    DECLARE_DYNCREATE(CTreeView)

public:
    CTreeView();

    // The tree of this view, for as long as the view lives; its handle is null without a window.
    CTreeCtrl& GetTreeCtrl() const;

private:
    mutable CTreeCtrl m_tree; // stands for the view's window and does not own it
};
