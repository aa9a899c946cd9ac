#pragma once

#include "AppMode.h"
#include "CustomListBox.h"
#include "OnBoardUIExport.h"

#include <memory>

class CCustomDropListCombo;

namespace lists {
class ComboPopup;
}

// The list of a drop-list combo: a list box of the library in a popup window of its own. It takes
// neither the focus nor the activation: the combo keeps both, holds the mouse capture while the
// list is open and hands the pointer on to it. The row under the pointer is highlighted; the
// selection changes when a row is picked, or by the keys of its combo.
class ONBOARDUI_API CCustomComboLBox : public CCustomListBox
{
    DECLARE_DYNAMIC(CCustomComboLBox)

public:
    // How many rows are shown at most unless a host says otherwise.
    static constexpr int DefaultMaxRows = 10;

    CCustomComboLBox();
    ~CCustomComboLBox() override;

    // Makes the popup, hidden, with the empty list in it. FALSE when it cannot be made or is there.
    BOOL CreatePopup();
    // Ends the popup and the list in it, with its items. The object can make another.
    void DestroyPopup();

    // @{
    // The combo that is told what happens in the list; null for none. Neither owns the other.
    void SetComboParent(CCustomDropListCombo* combo) { m_combo = combo; }
    CCustomDropListCombo* GetComboParent() const { return m_combo; }
    // @}

    // @{
    // How many rows are shown at most; the default for 0 and less.
    void SetMaxRows(int rows) { m_maxRows = rows > 0 ? rows : DefaultMaxRows; }
    int GetMaxRows() const { return m_maxRows; }
    // @}

    // @{
    // The platform's own answers: an heir does not hear of the question, in which it might end the
    // list that the combo goes on with. Without a window there are no rows.
    int GetCount() const;
    int GetCurSel() const;
    int GetTopIndex() const;
    // @}

    // Height of a row in pixels, at least 1.
    int GetItemHeight() const;
    using CCustomListBox::GetItemHeight;
    // On-board at least what a finger hits, in every font.
    int GetEntryHeight(const char* text) override;
    // What the popup is higher than its rows, in pixels.
    int GetFrameHeight() const;
    // How many rows drop down when there is room for them: at least 1.
    int GetDropRows() const;
    // Height in pixels of the popup as it is open, or as it would open in enough room.
    int GetActualListHeight() const;

    // Takes the font for the rows; they are measured anew.
    void SetListFont(CFont& font);
    // Brings rows, frame and bars into the shape of the mode; nothing when the modes are equal.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    // place: of the popup, on the screen.
    void PlacePopup(const CRect& place);
    // Shows the popup above all other windows, or hides it, without activating anything. Nothing
    // without a popup.
    void ShowPopup(bool show);
    // Whether the list is open; false without a popup.
    bool IsPopupVisible() const;

    // @{
    // The pointer while the list is open, in screen coordinates. HoldsPoint: whether it is over the
    // popup; BarAt: the hit code of the scroll bar under it, or 0; RowAt: the index of the row, or
    // -1; IsBarHeld: whether a press on a bar goes on.
    bool HoldsPoint(const CPoint& screen) const;
    UINT BarAt(const CPoint& screen) const;
    int RowAt(const CPoint& screen) const;
    bool IsBarHeld() const { return m_tracking; }
    // @}

    // Highlights the row under the pointer; elsewhere the last one stays highlighted.
    void Track(const CPoint& screen);
    // Takes the pointer's highlight away: the selection is highlighted again.
    void EndTrack() { SetHotRow(-1); }
    // The highlighted row: under the pointer or else the selected one; -1 for none.
    int GetHighlightedRow() const;
    // Selects the row, unless it is -1, and tells the combo that the list is done with.
    void Pick(int row);

    // As in any list box, with the highlighted row in place of the selected one.
    void DrawItem(LPDRAWITEMSTRUCT draw) override;

    // @{
    // What assistive programs are told: as of any list box, but the name is the combo's and the
    // highlighted row is the selected one. Selecting highlights as the pointer does and leaves the
    // focus to the combo.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    HRESULT get_accSelection(VARIANT* children) override;
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT accSelect(long flags, VARIANT child) override;
    // @}

    // Picks the row, as a click on it does, by a posted message; fails while the list is closed,
    // and where the user can reach the combo no more.
    HRESULT accDoDefaultAction(VARIANT child) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnMouseActivate(CWnd* top, UINT hitTest, UINT message);
    afx_msg LRESULT OnQueryGestures(WPARAM wParam, LPARAM screen);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg LRESULT OnAct(WPARAM row, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<lists::ComboPopup> m_popup;
    CCustomDropListCombo* m_combo = nullptr;
    int m_maxRows = DefaultMaxRows;
    int m_hotRow = -1; // under the pointer
    CPoint m_seenPoint{-1, -1};

    int Answer(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    bool IsReached() const;
    void SetHotRow(int row);
    void InvalidateRow(int row);
    void TellBarReleased(bool wasHeld);
    void MeasureStandardRow();
    void KeepSelectionInSight();
};
