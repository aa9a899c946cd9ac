#pragma once

#include <afxcmn.h>

#include <optional>

namespace dialogs {

// The tabs of a property sheet, put over the platform's: in an on-board mode it paints them in the
// colours of dialogs, with the active one like an active caption.
//
// Assistive programs are told of the tabs, in every mode; the default action of one shows its page.
class SheetTabs : public CTabCtrl
{
public:
    SheetTabs() { EnableActiveAccessibility(); }

    HRESULT get_accChildCount(long* count) override;
    HRESULT get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    HRESULT get_accFocus(VARIANT* child) override;
    HRESULT get_accSelection(VARIANT* children) override;
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    HRESULT accNavigate(long direction, VARIANT start, VARIANT* end) override;
    HRESULT accHitTest(long left, long top, VARIANT* child) override;
    HRESULT accDoDefaultAction(VARIANT child) override;

protected:
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM, LPARAM) { return OnPaint(), 0; }
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* taker);
    afx_msg LRESULT OnQueryGestures(WPARAM wParam, LPARAM screen);
    afx_msg LRESULT OnSetItemSize(WPARAM wParam, LPARAM size);
    afx_msg LRESULT OnAct(WPARAM tab, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    std::optional<int> m_standardHeight; // of a tab, while it has one for an on-board mode

    void Draw(CDC& dc);
    CString TextOf(int tab) const;
};

} // namespace dialogs
