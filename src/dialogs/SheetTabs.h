#pragma once

#include <afxcmn.h>

namespace dialogs {

// The tabs of a property sheet, put over the platform's: in an on-board mode it paints them in the
// colours of dialogs, with the active one like an active caption.
class SheetTabs : public CTabCtrl
{
protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    void Draw(CDC& dc);
};

} // namespace dialogs
