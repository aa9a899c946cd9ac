#pragma once

#include "OnBoardUIExport.h"

#include <afxcmn.h>

#include <vector>

class CCustomListCtrl;

// The header of the library's report list, put over the platform's header. In the standard mode it
// is the platform's, with the theme's menu font and with sort arrows from the application's bitmaps
// 10017 (ascending) and 10018 (descending), 16 x 16 pixels; the colour of a bitmap's top left pixel
// is transparent, and without the bitmaps there are no arrows.
//
// In an on-board mode it paints itself, shifted by the offset by which the list is scrolled
// sideways, and resizes columns itself: a press less than ten pixels from a divider holds it, the
// width is applied on release. While a heading is dragged to another place the divider is marked
// where it would be put. It also lives without a list, then without resizing anybody's columns.
class ONBOARDUI_API CCustomListCtrlHdr : public CHeaderCtrl
{
    DECLARE_DYNCREATE(CCustomListCtrlHdr)

public:
    CCustomListCtrlHdr();
    ~CCustomListCtrlHdr() override;

    // Shifts what is drawn by dx pixels more (negative: to the left). Paints at once with redraw.
    void OBScrollHeader(int dx, int redraw);
    // Back to no shift; with relayout laid out and painted at once.
    void OBResetScroll(int relayout);
    // Brings the strip over the list's columns and lets the last column fill the list.
    void RepositionHeaderStrip();

    // Whether a divider is being dragged.
    bool IsHotTracking() const { return m_tracking; }

    // Nothing: all drawing happens in answer to a paint message.
    void DrawItem(LPDRAWITEMSTRUCT draw) override;

    void PreSubclassWindow() override;

    // @{
    // Assistive programs are told of a list, named as the report list is, and of its headings where
    // they are drawn. The default action of a heading clicks it.
    HRESULT get_accChildCount(long* count) override;
    HRESULT get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    HRESULT accNavigate(long direction, VARIANT start, VARIANT* end) override;
    HRESULT accHitTest(long left, long top, VARIANT* child) override;
    HRESULT accDoDefaultAction(VARIANT child) override;
    // @}

protected:
    // Once, before the first paint: the arrows and the font.
    void DoCreate();

    // @{
    // An item's sort arrow, for the HDF_SORTUP or HDF_SORTDOWN of its format; else nothing.
    void DrawOBSortArrow(CDC* dc, CRect item, int format);
    void DrawStdSortArrow(CDC* dc, CRect item, int format);
    // @}

    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM, LPARAM) { return OnPaint(), 0; }
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg LRESULT OnQueryGestures(WPARAM wParam, LPARAM screen);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    afx_msg void OnCaptureChanged(CWnd* taker);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg LRESULT OnAct(WPARAM heading, LPARAM lParam);
    afx_msg LRESULT OnSetHotDivider(WPARAM wParam, LPARAM lParam);
    // The list follows at once.
    afx_msg LRESULT OnSetOrderArray(WPARAM wParam, LPARAM lParam);
    // The list hears of it as well.
    afx_msg BOOL OnHdnItemclick(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

    static CSize m_arrowSize; // pixels

    CPoint m_offset;               // of what is drawn and hit, pixels
    bool m_tracking = false;       // a divider is held
    HCURSOR m_oldCursor = nullptr; // before the resize cursor was set in a drag
    int m_pressedItem = -1;
    bool m_created = false;       // DoCreate has run
    CImageList m_arrows;          // ascending, descending; empty without the bitmaps
    std::vector<int> m_itemLefts; // as last laid out and drawn, in the order of display
    std::vector<int> m_itemWidths;

private:
    static constexpr int LongestText = 256; // with the null

    bool m_repositioning = false;
    // The pointer has moved since a divider was pressed; in the standard mode, one was pressed.
    bool m_dragged = false;
    bool m_farPress = false; // an item is pressed of which the platform is not told
    int m_hotDivider = -1;   // where a dragged column would be put; -1: nowhere
    bool m_moving = false;   // the platform drags a heading to another place
    CPoint m_pressPoint;     // in client coordinates
    CPoint m_pressTold;      // where the platform knows of it
    CFont m_themeFont;

    friend class CCustomListCtrl;

    HWND ListWindow() const;
    int StripWidth() const;
    CCustomListCtrl* List() const;
    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    int Count() const;
    bool ItemRect(int item, CRect& rect) const;
    int ItemAt(CPoint point) const;
    bool HeadingPlace(const VARIANT& child, CRect& place) const;
    bool Clicks(const CRect& heading) const;
    bool IsFixed(int item) const;
    int DividerAt(int x) const;
    LRESULT DefaultAt(UINT message, UINT flags, CPoint point);
    bool IsUnmoved(CPoint point) const;
    void ShowMove(CPoint point);
    void LeaveMove();
    void EndFarPress(int pressed, CPoint point);
    void LoadArrows();
    void TakeThemeFont();
    void ReturnThemeFont();
    void DrawOB(CDC& dc);
    void DrawOBItem(CDC& dc, int item, bool last, const CRect& client);
    void DrawStdArrows(CDC& dc);
    int WidthTo(int x, const CRect& item) const;
    LRESULT TellTracking(int code, int wideCode, int column, int width);
    void ApplyDrag(int column, int x);
    void ApplyMinimum(int item);
    void EndTracking();
    void EndPlatformDrag();
    void LeaveWindow();
};
