#pragma once

#include "framework/ControlBar.h"

// Button styles; states are in the high word.
constexpr UINT TBBS_BUTTON = TBSTYLE_BUTTON;
constexpr UINT TBBS_SEPARATOR = TBSTYLE_SEP;
constexpr UINT TBBS_CHECKBOX = TBSTYLE_CHECK;
constexpr UINT TBBS_GROUP = TBSTYLE_GROUP;
constexpr UINT TBBS_CHECKGROUP = TBSTYLE_CHECKGROUP;
constexpr UINT TBBS_DROPDOWN = TBSTYLE_DROPDOWN;
constexpr UINT TBBS_AUTOSIZE = TBSTYLE_AUTOSIZE;
constexpr UINT TBBS_NOPREFIX = TBSTYLE_NOPREFIX;
constexpr UINT TBBS_CHECKED = UINT(TBSTATE_CHECKED) << 16;
constexpr UINT TBBS_PRESSED = UINT(TBSTATE_PRESSED) << 16;
constexpr UINT TBBS_DISABLED = UINT(TBSTATE_ENABLED) << 16;
constexpr UINT TBBS_INDETERMINATE = UINT(TBSTATE_INDETERMINATE) << 16;
constexpr UINT TBBS_HIDDEN = UINT(TBSTATE_HIDDEN) << 16;
constexpr UINT TBBS_WRAPPED = UINT(TBSTATE_WRAP) << 16;

// A row of picture buttons, known by index and by command id; separators have ID_SEPARATOR.
class FRAMEWORK_API CToolBar : public CControlBar
{
    DECLARE_DYNAMIC(CToolBar)

public:
    CToolBar() = default;

    virtual BOOL Create(CWnd* parent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                        UINT id = AFX_IDW_TOOLBAR)
    {
        return CreateEx(parent, 0, style, CRect(0, 0, 0, 0), id);
    }
    virtual BOOL CreateEx(CWnd* parent, DWORD controlStyle = TBSTYLE_FLAT,
                          DWORD style = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP,
                          CRect borders = CRect(0, 0, 0, 0), UINT id = AFX_IDW_TOOLBAR);

    // The pictures stand side by side in one bitmap, in the order of the buttons.
    BOOL LoadBitmap(LPCTSTR name);
    BOOL LoadBitmap(UINT id) { return LoadBitmap(MAKEINTRESOURCE(id)); }
    // A tool-bar resource and the bitmap of the same name.
    BOOL LoadToolBar(LPCTSTR name);
    BOOL LoadToolBar(UINT id) { return LoadToolBar(MAKEINTRESOURCE(id)); }
    // The bar takes over the bitmap.
    BOOL SetBitmap(HBITMAP images);
    // Null ids make room for count separators, to be described by SetButtonInfo.
    BOOL SetButtons(const UINT* ids, int count);
    void SetSizes(SIZE button, SIZE image);
    // Instead of the height that fits the buttons.
    void SetHeight(int height) { m_height = height; }

    int CommandToIndex(UINT id) const { return int(SendMessage(TB_COMMANDTOINDEX, id)); }
    UINT GetItemID(int index) const { return UINT(ButtonAt(index).idCommand); }
    virtual void GetItemRect(int index, LPRECT rect) const
    {
        SendMessage(TB_GETITEMRECT, WPARAM(index), LPARAM(rect));
    }
    // image is the width in pixels for a separator.
    void GetButtonInfo(int index, UINT& id, UINT& style, int& image) const;
    void SetButtonInfo(int index, UINT id, UINT style, int image);
    UINT GetButtonStyle(int index) const;
    void SetButtonStyle(int index, UINT style);
    CString GetButtonText(int index) const;
    void GetButtonText(int index, CString& text) const { text = GetButtonText(index); }
    BOOL SetButtonText(int index, LPCTSTR text);
    // Stands for the same window until the thread is idle.
    CToolBarCtrl& GetToolBarCtrl() const;

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    int GetCount() const override { return int(SendMessage(TB_BUTTONCOUNT)); }
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

protected:
    void PreSubclassWindow() override;
    void ApplyBarStyle() override;

private:
    TBBUTTON ButtonAt(int index) const;
    void ReplaceButton(int index, TBBUTTON button);
    BYTE WrapState() const { return BYTE(m_inColumn ? TBSTATE_WRAP : 0); }

    CBitmap m_images;
    CSize m_imageSize = CSize(16, 15);
    int m_height = 0; // 0: what the buttons need
    bool m_inColumn = false;
};
