#include "lists/ComboPopup.h"

#include "OnBoardUIGeneral.h"
#include "paint/Palette.h"

namespace lists {

BEGIN_MESSAGE_MAP(ComboPopup, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

BOOL ComboPopup::Create()
{
    if (m_field.GetSafeHandle() == nullptr)
    {
        m_field.CreateSolidBrush(palette::Field);
    }
    // Wide and high enough to measure the list's frame by, whatever the mode.
    return CreateEx(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_TOPMOST,
                    AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW)), "",
                    WS_POPUP | WS_CLIPCHILDREN, CRect(0, 0, 200, 200), nullptr, 0);
}

int ComboPopup::OnMouseActivate(CWnd*, UINT, UINT)
{
    return MA_NOACTIVATE;
}

BOOL ComboPopup::OnEraseBkgnd(CDC*)
{
    return TRUE; // the list covers it
}

HBRUSH ComboPopup::OnCtlColor(CDC* dc, CWnd* control, UINT kind)
{
    if (dc == nullptr || !COnBoardUIGeneral::InOnBoardMode())
    {
        return CWnd::OnCtlColor(dc, control, kind);
    }
    dc->SetTextColor(palette::FieldText);
    dc->SetBkColor(palette::Field);
    return m_field;
}

} // namespace lists
