#pragma once

#include <afxwin.h>

namespace lists {

// The popup window round the list of a combo: parent to the list box, which speaks to it instead of
// the host's window. It is never activated and has no frame. Nobody owns it: it would end with its
// owner, while a combo may move to another window (a bar that is torn off) and keep its items.
class ComboPopup : public CWnd
{
public:
    // Hidden, above all other windows. FALSE when it cannot be made.
    BOOL Create();

protected:
    afx_msg int OnMouseActivate(CWnd* top, UINT hitTest, UINT message);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    CBrush m_field; // the ground of the rows in the on-board modes
};

} // namespace lists
