#include "framework/CtrlView.h"

IMPLEMENT_DYNCREATE(CCtrlView, CView)

BEGIN_MESSAGE_MAP(CCtrlView, CView)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CCtrlView::CCtrlView(LPCTSTR className, DWORD style)
    : m_strClass(className)
    , m_dwDefaultStyle(style)
{}

BOOL CCtrlView::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!framework::UseCommonControls())
    {
        return FALSE;
    }
    if (cs.lpszClass == nullptr)
    {
        cs.lpszClass = m_strClass;
    }
    if (DWORD(cs.style) == AFX_WS_DEFAULT_VIEW)
    {
        cs.style = LONG(m_dwDefaultStyle);
    }
    return CView::PreCreateWindow(cs);
}

void CCtrlView::OnPaint()
{
    Default();
}

IMPLEMENT_DYNCREATE(CTreeView, CCtrlView)

CTreeView::CTreeView()
    : CCtrlView(WC_TREEVIEW, AFX_WS_DEFAULT_VIEW)
{}

CTreeCtrl& CTreeView::GetTreeCtrl() const
{
    // The handle comes and goes without a word to the stand-in.
    m_tree.m_hWnd = m_hWnd;
    return m_tree;
}
