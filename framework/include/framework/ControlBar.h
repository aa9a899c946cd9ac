#pragma once

// Bars along the edges of a frame. The frame lays them out; a bar only says what size it wants.

#include "framework/Wnd.h"

#include <string>

class CFrameWnd;
class CStatusBarCtrl;
class CToolBarCtrl;

// The ids of bars; those of panes follow.
constexpr UINT AFX_IDW_CONTROLBAR_FIRST = 0xE800;
constexpr UINT AFX_IDW_CONTROLBAR_LAST = 0xE8FF;
constexpr UINT AFX_IDW_TOOLBAR = AFX_IDW_CONTROLBAR_FIRST;
constexpr UINT AFX_IDW_STATUS_BAR = 0xE801;
constexpr UINT ID_SEPARATOR = 0;

// Bar styles travel in the low word of the window style, which is the class's own.
constexpr DWORD CBRS_ALIGN_LEFT = 0x1000;
constexpr DWORD CBRS_ALIGN_TOP = 0x2000;
constexpr DWORD CBRS_ALIGN_RIGHT = 0x4000;
constexpr DWORD CBRS_ALIGN_BOTTOM = 0x8000;
constexpr DWORD CBRS_ALIGN_ANY = 0xF000;
constexpr DWORD CBRS_NOALIGN = 0; // where its owner puts it: the frame leaves it there
constexpr DWORD CBRS_TOP = CBRS_ALIGN_TOP;
constexpr DWORD CBRS_BOTTOM = CBRS_ALIGN_BOTTOM;
constexpr DWORD CBRS_LEFT = CBRS_ALIGN_LEFT; // a tool bar stands there in a column
constexpr DWORD CBRS_RIGHT = CBRS_ALIGN_RIGHT;
// Of bars that dock and float, which these do not: taken, and without effect.
constexpr DWORD CBRS_GRIPPER = 0x0001;
constexpr DWORD CBRS_SIZE_FIXED = 0x0002;
constexpr DWORD CBRS_SIZE_DYNAMIC = 0x0004;
// The tip of a command is the second line of the string resource of its id, unless the bar's parent
// answers TTN_NEEDTEXT itself.
constexpr DWORD CBRS_TOOLTIPS = 0x0010;
constexpr DWORD CBRS_FLYBY = 0x0020;
constexpr DWORD CBRS_ALL = 0xFFFF;

class FRAMEWORK_API CControlBar : public CWnd
{
    DECLARE_DYNAMIC(CControlBar)

public:
    // Set for a bar on the heap that is to go with its window.
    BOOL m_bAutoDelete = FALSE;

    // The size the bar wants. Stretched, the length along the orientation is the most there is.
    virtual CSize CalcFixedLayout(BOOL stretch, BOOL horizontal);
    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD style);
    // Whether the bar stands at a side, and not across its frame.
    bool IsUpright() const
    {
        return (m_dwStyle & (CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT)) != 0 &&
               (m_dwStyle & (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM)) == 0;
    }
    // The widths of the borders as the sides of a rectangle.
    CRect GetBorders() const { return m_borders; }
    void SetBorders(int left = 0, int top = 0, int right = 0, int bottom = 0)
    {
        m_borders = CRect(left, top, right, bottom);
    }
    void SetBorders(LPCRECT borders) { m_borders = *borders; }
    // How many panes or buttons.
    virtual int GetCount() const { return 0; }
    // Asks target how each command of the bar stands, those of its children too; called when the
    // thread is idle.
    virtual void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) = 0;

protected:
    CControlBar() = default;
    BOOL CreateBar(LPCSTR className, CWnd* parent, DWORD controlStyle, DWORD style, UINT id);
    void PostNcDestroy() override;
    // The bar has a window, and other styles than before.
    virtual void ApplyBarStyle() {}

    afx_msg void OnNcCalcSize(BOOL calcValid, NCCALCSIZE_PARAMS* params);
    afx_msg BOOL OnToolTipText(UINT id, NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    DWORD m_dwStyle = 0;

private:
    CRect m_borders;
    // The tip that was told last: who asked reads it later.
    CString m_tip;
    std::wstring m_wideTip;
};
