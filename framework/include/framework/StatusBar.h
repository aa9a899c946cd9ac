#pragma once

#include "framework/ControlBar.h"

#include <vector>

// Pane styles
constexpr UINT SBPS_NORMAL = 0;
constexpr UINT SBPS_NOBORDERS = SBT_NOBORDERS;
constexpr UINT SBPS_POPOUT = SBT_POPOUT;
constexpr UINT SBPS_OWNERDRAW = SBT_OWNERDRAW;
constexpr UINT SBPS_DISABLED = 0x04000000;
constexpr UINT SBPS_STRETCH = 0x08000000;

// A row of text panes, known by index and by command id.
class FRAMEWORK_API CStatusBar : public CControlBar
{
    DECLARE_DYNAMIC(CStatusBar)

public:
    CStatusBar() = default;

    virtual BOOL Create(CWnd* parent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT id = AFX_IDW_STATUS_BAR)
    {
        return CreateEx(parent, 0, style, id);
    }
    virtual BOOL CreateEx(CWnd* parent, DWORD controlStyle = 0,
                          DWORD style = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                          UINT id = AFX_IDW_STATUS_BAR);

    // One pane for each id, as wide as the string resource of that id; the first one stretches.
    // FALSE when a string is missing.
    BOOL SetIndicators(const UINT* ids, int count);

    int CommandToIndex(UINT id) const;
    UINT GetItemID(int index) const { return At(index).id; }
    void GetItemRect(int index, LPRECT rect) const
    {
        SendMessage(SB_GETRECT, WPARAM(index), LPARAM(rect));
    }
    void GetPaneInfo(int index, UINT& id, UINT& style, int& width) const;
    void SetPaneInfo(int index, UINT id, UINT style, int width);
    UINT GetPaneStyle(int index) const { return At(index).style; }
    void SetPaneStyle(int index, UINT style);
    CString GetPaneText(int index) const { return At(index).text; }
    void GetPaneText(int index, CString& text) const { text = At(index).text; }
    BOOL SetPaneText(int index, LPCTSTR text, BOOL update = TRUE);
    // Stands for the same window until the thread is idle.
    CStatusBarCtrl& GetStatusBarCtrl() const;

    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    int GetCount() const override { return int(m_panes.size()); }
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct Pane
    {
        UINT id = 0;
        UINT style = SBPS_NORMAL;
        int width = 0; // of the text, in pixels; the least when stretched
        CString text;
    };

    bool HasPane(int index) const { return index >= 0 && index < GetCount(); }
    const Pane& At(int index) const;
    void PlacePanes();
    BOOL ShowText(int index);

    std::vector<Pane> m_panes;
};
