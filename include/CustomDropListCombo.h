#pragma once

#include "AppMode.h"
#include "FauxDropButton.h"
#include "OnBoardUIExport.h"

#include <afxwin.h>

#include <vector>

class CCustomComboLBox;

namespace lists {
class ComboScaling;
}

// A drop-list combo made of parts of the library: a window that shows the selected item and a drop
// button, and a list box in a popup window that drops under it, or opens above it where there is no
// room below. Registered from construction to destruction, it follows every change of the display
// mode.
//
// It is made by Create, put over a window by SubclassWindow, SubclassDlgItem or DDX_Control, or
// named in a dialog template by its window class "CCUSTOMDROPLISTCOMBO" (RegisterWndClass). A
// window from a template waits for the host's object while its dialog is initialised; if none has
// come by its first paint, focus or input, or when FromWindow asks for one, the class makes an
// object of its own, which ends with the window.
//
// The parent is told CBN_SELCHANGE, and nothing else. It is meant that the list's closing tells it
// whether or not the selection has changed, and that losing the focus counts as closing: hosts read
// the selection whenever the user is done.
class ONBOARDUI_API CCustomDropListCombo : public CWnd
{
    DECLARE_DYNAMIC(CCustomDropListCombo)

public:
    CCustomDropListCombo();
    // With a list of the caller's, which stays the caller's and has to outlive the combo or its
    // detaching. Null: no list, and no items until one is given or taken over.
    explicit CCustomDropListCombo(CCustomComboLBox* list);
    ~CCustomDropListCombo() override;

    // Registers the window class for the life of the process; instance null means the program's.
    // Non-zero when the class is there afterwards.
    static BOOL RegisterWndClass(HINSTANCE instance);
    // The combo of a window, made by the class if the window is of the registered class and nobody
    // has put an object over it. Null for every other window.
    static CCustomDropListCombo* FromWindow(HWND window);
    // Ends the objects that the class has made, with their windows. Objects of hosts stay.
    static void FreeInstances();

    // Makes the window, a child of parent; registers the class if need be.
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // As CWnd's; a window for which the class has made an object is handed over with its items and
    // the heights it has kept. A list that the caller has given stays, and the items go instead.
    BOOL SubclassWindow(HWND window);

    // Called on every mode change; nothing when the modes are equal.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    // Gives the combo another list of the caller's; a list of its own ends with its items.
    void SetCustomComboLBox(CCustomComboLBox* list);
    // Takes the list away from the combo and gives it to the caller, who deletes it if he did not
    // bring it. Null when there is none.
    CCustomComboLBox* DetachCustomComboLBox();

    // The number of items; 0 without a list.
    int GetCount() const;
    // -1 without a selection.
    int GetCurSel() const;
    // Selects an item, none for -1, and closes an open list. CB_ERR for -1, and for what is not
    // there, when the selection stays and the list is closed all the same.
    int SetCurSel(int index);
    // Whether the list is open.
    bool IsExpanded() const { return m_expanded; }
    // Opens or closes the list and takes or gives back the mouse capture. Says nothing to the
    // parent.
    void ToggleDropList();
    // The same without the capture: rows can be picked, but only a press that takes the focus or
    // falls on the combo dismisses the list.
    void DoDropButton();

    // @{
    // Shared fonts, made on first use and kept for the life of the process.
    static CFont& GetOnBoardFont();
    static CFont& GetStdFont();
    // @}

    // Adds an item at the end, whatever the order of the others. Its index, or CB_ERR without a
    // window or a list. Null counts as an empty text.
    virtual int AddString(LPCSTR text);
    // Takes an item out. The number of items left, or CB_ERR for an index that there is none of.
    virtual int RemoveString(int index);
    // The text of the selected item; empty without one.
    virtual CString GetSelString() const;
    // Adds an item before the one with this index, for -1 or the number of items at the end. Its
    // index, or CB_ERR for any other index that is not there.
    virtual int InsertString(int index, LPCSTR text);
    // Takes all items out; nothing is selected then, and the parent is not told.
    virtual void ResetContent();
    // The number of items.
    virtual int GetSize() const;

    // @{
    // The index of the first item that begins with the text, or is the text, without regard to
    // case; CB_ERR when there is none. The search begins behind the item 'after', for -1 and every
    // index that is not there at the first one, and goes round.
    virtual int FindString(int after, LPCSTR text) const;
    virtual int FindStringExact(int after, LPCSTR text) const;
    // @}

    // Selects the item that FindString finds, and closes an open list. Its index, or CB_ERR, when
    // the selection stays as it was.
    virtual int SelectString(int after, LPCSTR text);
    // Sorts the items by their texts, without regard to case; data and selection go with them.
    virtual void Sort(bool ascending);
    // The caller's pointer of an item; null for what is not there.
    virtual void* GetItemDataPtr(int index) const;
    // Takes it out of the item and gives it back.
    virtual void* RemoveItemDataPtr(int index);
    // Gives an item a pointer, which stays the caller's. CB_ERR for what is not there.
    virtual int SetItemDataPtr(int index, void* data);

    // As CWnd's; an open list is closed when its combo is disabled, and the parent told.
    virtual BOOL EnableWindow(int enable);
    // The list is done with: closes it and tells the parent. The list calls it when an item is
    // picked (it is selected by then) or the list is dismissed.
    virtual void ListClosed(int selection);

protected:
    // Gives the list the font of the mode.
    virtual void SetLBFont();
    // Lays text and drop button out in the client area for the mode.
    virtual void CalculateSpacing();
    // Paints the client area.
    virtual void OnPaint(CDC& dc);
    // Paints the text of an item, or an empty one, on its ground.
    virtual void DrawEditText(CDC& dc, int index);
    // The whole window takes the pointer. point is on the screen, as is the window's rectangle.
    virtual LRESULT OnNcHitTest(const CRect& window, const CPoint& point);
    // Puts an open list where it belongs.
    virtual void UpdateComboLBoxPos();
    // The list's place on the screen for a combo of this height in pixels.
    virtual void CalcComboLBoxSize(int height, CRect& list);

public:
    // Takes over the control id of parent. rows: how many the list shows at most, 0 for the
    // default. FALSE when there is no such window or an object of the host's stands for it.
    virtual BOOL SubclassWindow(CWnd* parent, int id, int rows);

    void PreSubclassWindow() override;
    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* message) override;

    // @{
    // Assistive programs are told of a combo box, named by the label before it, whose value is the
    // selected text. The default action opens or closes the list, by a posted message.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accValue(VARIANT child, BSTR* value) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT accDoDefaultAction(VARIANT child) override;
    // @}

protected:
    void PostNcDestroy() override;

    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM, LPARAM) { return OnPaint(), 0; }
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnMove(int x, int y);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg LRESULT OnQueryGestures(WPARAM wParam, LPARAM screen);
    afx_msg void OnNcLButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT hitTest, CPoint point);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSetFocus(CWnd* before);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnCaptureChanged(CWnd* taker);
    afx_msg void OnCancelMode();
    afx_msg LRESULT OnAct(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    static std::vector<CCustomDropListCombo*> m_instances; // all that live
    static CFont m_OBFont;
    static CFont m_StdFont;
    static CBrush m_BkBrush;
    static CBrush m_BkDisabledBrush;
    static CPen m_OBOutlinePen;

    CFauxDropButton m_dropButton;
    CRect m_textArea;           // client pixels
    std::vector<int> m_heights; // of the window in pixels, by mode; 0: not given by the host
    CCustomComboLBox* m_list;
    bool m_barHeld = false; // a press on the list's bar goes on; the capture is the list's business
    bool m_expanded = false;
    bool m_listClosing = false; // the list has a row picked and is about to say so
    bool m_pickArmed = false;   // the press in progress picks the row on which it is released
    bool m_hasFocus = false;
    bool m_ownsList = true;

private:
    friend class CCustomComboLBox;
    friend class lists::ComboScaling;

    bool m_madeByClass = false;
    bool m_ending = false; // the window is on its way out
    bool m_sizing = false; // this very class is changing the window's size
    APPMODE m_shapedFor = STD;
    int m_fitted = 0;       // height on-board in the room that there is; 0: not known
    HFONT m_font = nullptr; // the host's
    UINT m_closingKey = 0;  // closed the list and is still down

    void Register();
    static bool MakeObject(HWND window);
    static bool IsOfClass(HWND window);
    static LRESULT CALLBACK ClassProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    CCustomComboLBox* List();
    CCustomComboLBox* ListIfMade() const;
    HFONT Font() const;
    int NaturalHeight();
    int HeightFor(APPMODE mode);
    void SetHeight(int height);

    void Repaint() { Invalidate(FALSE); }
    int Insert(int index, LPCSTR text);
    void ItemsChanged();
    void CloseLeftOpen();
    bool TellSelChange();
    void PressAt(const CPoint& screen);
    void ReleaseAt(const CPoint& screen);
    void PressElsewhere(const CPoint& screen);
    void PressListBar(UINT hitTest, const CPoint& screen);
    void BarReleased();
    bool TakesKey(const MSG& key) const;
    void MoveSelection(UINT key);
};
