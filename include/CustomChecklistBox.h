#pragma once

#include "CustomListBox.h"

namespace lists {
class CheckRecords;
}

// What a check list keeps with an item: it lies in the item's data slot of the platform's list box.
struct _KES_CHECKLIST_STATE
{
    int check = 0;       // 0 unchecked, 1 checked, 2 indeterminate
    BOOL enabled = TRUE; // whether the user can change the check
    ULONG_PTR data = 0;  // the caller's item data
};

// A list box with a check box before each row, drawn by itself in every mode. The user changes a
// check by a click on it or by the space key (in the two styles that change by themselves), and the
// parent is told by WM_COMMAND with CLBN_CHKCHANGE, whether or not the list has LBS_NOTIFY. It may
// end the list there. No row is named: it is that with the caret (GetCaretIndex), in a list with
// LBS_EXTENDEDSEL all selected ones with it, and any that an assistive program has changed. A list
// with LBS_NODATA keeps no checks.
//
// It needs a list box that is drawn by its owner; created by itself it sees to that. A caller's
// item data, read and set by the messages and members of any list box, is the caller's own; the
// owner of a list without strings finds it in its structures when it overrides DrawItem,
// MeasureItem, CompareItem or DeleteItem. Only a parent that answers WM_DRAWITEM, WM_MEASUREITEM or
// WM_COMPAREITEM itself sees the record instead. A list with items must not be detached from its
// object.
class ONBOARDUI_API CCustomChecklistBox : public CCustomListBox
{
    DECLARE_DYNAMIC(CCustomChecklistBox)

public:
    CCustomChecklistBox();
    ~CCustomChecklistBox() override;

    // @{
    // Fonts of all check lists, made on first use and kept for the life of the process.
    static CFont& GetOnBoardFont();
    static CFont& GetStdFont();
    // @}

    // @{
    // BS_CHECKBOX, BS_AUTOCHECKBOX (at first), BS_3STATE or BS_AUTO3STATE; others are ignored.
    void SetCheckStyle(UINT style);
    UINT GetCheckStyle() const { return m_checkStyle; }
    // @}

    // The parent is not told. Nothing for an item that does not exist and for 2 in a style of two
    // states. Any other number is kept: below 0 it looks unchecked, above 2 indeterminate.
    void SetCheck(int index, int check);
    // 0 for an item that does not exist.
    int GetCheck(int index);
    // Whether the user can change the check; the item itself can be selected all the same, and gets
    // the check of another with which it is selected.
    void Enable(int index, int enable = TRUE);
    // FALSE for an item that does not exist.
    BOOL IsEnabled(int index);

    // Where a row's check box is drawn, in client coordinates; check is its usual place.
    virtual CRect OnGetCheckPosition(CRect item, CRect check);
    // For heirs: draws over what the list has drawn beside the check; hDC and rcItem say where.
    void DrawItem(LPDRAWITEMSTRUCT draw) override;
    // For heirs: may make a row higher than it comes.
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override;

    // The check and what lies between it and the text included.
    int GetEntryWidth(int index) override;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: as of any list box, but each row is a check button with its
    // check.
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override;
    // @}

    // Changes the row's check as a click on it would, of this one row, and tells the parent by a
    // posted message; the selection and the focus stay.
    HRESULT accDoDefaultAction(VARIANT child) override;

protected:
    // @{
    // The owner's messages as they come back from the parent: the record is taken out of them
    // before the operations that heirs override are called.
    virtual void PreDrawItem(LPDRAWITEMSTRUCT draw);
    virtual void PreMeasureItem(LPMEASUREITEMSTRUCT measure);
    virtual int PreCompareItem(LPCOMPAREITEMSTRUCT compare);
    virtual void PreDeleteItem(LPDELETEITEMSTRUCT deleted);
    // @}

    // Draws the check of a row.
    virtual void PreDrawItemNonThemed(CDC& dc, const DRAWITEMSTRUCT& draw);

    // The least height of a row, in pixels: that of the text in a list of strings with rows of one
    // height, and room for the check.
    int CalcMinimumItemHeight();
    // The row under a point in client coordinates, or -1; onCheck: whether it is on the check.
    int CheckFromPoint(CPoint point, int& onCheck);
    // The same check for every selected row, also where the user cannot change it by itself.
    void SetSelectionCheck(int check);

    // @{
    // Have a row's check, or the whole row, painted again; nothing for a row out of sight.
    void InvalidateCheck(int index);
    void InvalidateItem(int index);
    // @}

    int LeastRowHeight() override { return RowHeight(); }
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* taker);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAddString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnResetContent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnFindString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSelectString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetItemData(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetItemData(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetItemHeight(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    static CFont m_OBFont;
    static CFont m_StdFont;

    UINT m_checkStyle = BS_AUTOCHECKBOX;
    int m_textHeight = 0; // pixels, as last measured for a row
    std::unique_ptr<lists::CheckRecords> m_records;

private:
    int m_ownHeight[2] = {}; // what rows were last given in the standard and the on-board modes
    bool m_emptied = false;  // all items go, and their owner is being told

    ULONG_PTR SlotOf(int index);
    _KES_CHECKLIST_STATE* RecordOf(int index);
    _KES_CHECKLIST_STATE* MakeRecord(int index);
    void ReleaseRecord(int index);
    void ReleaseRecords();
    LRESULT SetDataOfAll(LPARAM data);
    template <class Search> LRESULT SearchData(WPARAM start, LPARAM data, Search search);
    void AnnounceState(int index);

    int RowHeight();
    void FitRows();
    CRect RowsArea();
    CRect CheckRect(const CRect& row);

    bool CanChange(int index);
    int RowChangedAt(CPoint point);
    void ChangeCheck(int index, bool forSelection);
    void ChangeSelection(int index);
};
