#pragma once

#include "framework/Wnd.h"

// The style of a view that nobody gives another.
constexpr DWORD AFX_WS_DEFAULT_VIEW = WS_CHILD | WS_VISIBLE | WS_BORDER;

// The part of a frame that shows something. Made on the heap; deletes itself with its window.
class FRAMEWORK_API CView : public CWnd
{
    DECLARE_DYNAMIC(CView)

public:
    CView() = default;
    ~CView() override;

    CDocument* GetDocument() const { return m_pDocument; }
    // The frame has been made; called once by InitialUpdateFrame. Updates the view.
    virtual void OnInitialUpdate() { OnUpdate(nullptr, 0, nullptr); }
    virtual void OnPrepareDC(CDC*, void* = nullptr) {}
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    virtual void OnDraw(CDC* dc) = 0;
    // What the view shows has changed: all of it is painted anew. There are no hints here.
    virtual void OnUpdate(CView*, LPARAM, CObject*) { Invalidate(); }
    virtual void OnActivateView(BOOL activate, CView* activateView, CView* deactiveView);
    // The frame is left (WA_INACTIVE, while the view has the focus still), or has come back.
    virtual void OnActivateFrame(UINT, CFrameWnd*) {}
    void PostNcDestroy() override { delete this; }

    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message);
    afx_msg LRESULT HandleInitialUpdate(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CDocument* m_pDocument = nullptr;

    friend class CFrameWnd;

private:
    void LeaveFrame(BOOL notify);
};

// A view that scrolls when what it shows is larger than itself, by its bars and by the wheel;
// pixels only.
class FRAMEWORK_API CScrollView : public CView
{
    DECLARE_DYNAMIC(CScrollView)

public:
    CScrollView() = default;

    // mapMode is MM_TEXT. Page and line default to a tenth and a hundredth of the size.
    void SetScrollSizes(int mapMode, SIZE total, const SIZE& page = {0, 0},
                        const SIZE& line = {0, 0});
    CSize GetTotalSize() const { return m_total; }
    CPoint GetScrollPosition() const { return m_position; }
    void ScrollToPosition(POINT position);
    // Gives the frame the size in which all of the view is to be seen, or only a smaller one.
    void ResizeParentToFit(BOOL shrinkOnly = TRUE);
    void OnPrepareDC(CDC* dc, void* info = nullptr) override;

protected:
    void OnDraw(CDC*) override {}

    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    CSize m_total;
    CSize m_page;
    CSize m_line;
    CPoint m_position;
    int m_wheelRest = 0; // of a pixel, in the parts of one that the wheel counts
    bool m_updatingBars = false;

    void UpdateBars();
    void Scroll(int bar, UINT code);
};

// A view whose controls come from a dialog template. The control that has the focus when the frame
// is left gets it back with the frame.
class FRAMEWORK_API CFormView : public CScrollView
{
    DECLARE_DYNAMIC(CFormView)

public:
    BOOL Create(LPCSTR className, LPCSTR windowName, DWORD requestedStyle, const RECT& rect,
                CWnd* parent, UINT id, CCreateContext* context) override;
    void OnInitialUpdate() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    explicit CFormView(LPCSTR templateName);
    explicit CFormView(UINT templateId);

    void OnActivateFrame(UINT state, CFrameWnd* frame) override;

    afx_msg void OnSetFocus(CWnd* old);
    DECLARE_MESSAGE_MAP()

    LPCSTR m_lpszTemplateName;

private:
    HWND m_focusOfFrame = nullptr; // had the focus when the frame was left
};
