#pragma once

#include "framework/CommonControls.h"
#include "framework/ImageList.h"

class CToolTipCtrl;

// The platform's tool bar. Buttons are named by command id, or by index where it says so.
class FRAMEWORK_API CToolBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolBarCtrl)

public:
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CreateEx(0, style, rect, parent, id);
    }
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return framework::UseCommonControls() &&
               CWnd::CreateEx(exStyle, TOOLBARCLASSNAME, nullptr, style, rect, parent, id) &&
               (SetButtonStructSize(sizeof(TBBUTTON)), TRUE);
    }

    // State
    BOOL EnableButton(int id, BOOL on = TRUE) { return SetFlag(TB_ENABLEBUTTON, id, on); }
    BOOL CheckButton(int id, BOOL on = TRUE) { return SetFlag(TB_CHECKBUTTON, id, on); }
    BOOL PressButton(int id, BOOL on = TRUE) { return SetFlag(TB_PRESSBUTTON, id, on); }
    BOOL HideButton(int id, BOOL on = TRUE) { return SetFlag(TB_HIDEBUTTON, id, on); }
    BOOL Indeterminate(int id, BOOL on = TRUE) { return SetFlag(TB_INDETERMINATE, id, on); }
    BOOL IsButtonEnabled(int id) const { return BOOL(SendMessage(TB_ISBUTTONENABLED, WPARAM(id))); }
    BOOL IsButtonChecked(int id) const { return BOOL(SendMessage(TB_ISBUTTONCHECKED, WPARAM(id))); }
    BOOL IsButtonPressed(int id) const { return BOOL(SendMessage(TB_ISBUTTONPRESSED, WPARAM(id))); }
    BOOL IsButtonHidden(int id) const { return BOOL(SendMessage(TB_ISBUTTONHIDDEN, WPARAM(id))); }
    BOOL IsButtonIndeterminate(int id) const
    {
        return BOOL(SendMessage(TB_ISBUTTONINDETERMINATE, WPARAM(id)));
    }
    // TBSTATE_ flags, or -1.
    int GetState(int id) const { return int(SendMessage(TB_GETSTATE, WPARAM(id))); }
    BOOL SetState(int id, UINT state) { return SetFlag(TB_SETSTATE, id, int(state)); }

    // Buttons
    int GetButtonCount() const { return int(SendMessage(TB_BUTTONCOUNT)); }
    BOOL GetButton(int index, LPTBBUTTON button) const
    {
        return BOOL(SendMessage(TB_GETBUTTON, WPARAM(index), LPARAM(button)));
    }
    BOOL AddButtons(int count, LPTBBUTTON buttons)
    {
        return BOOL(SendMessage(TB_ADDBUTTONS, WPARAM(count), LPARAM(buttons)));
    }
    BOOL InsertButton(int index, LPTBBUTTON button)
    {
        return BOOL(SendMessage(TB_INSERTBUTTON, WPARAM(index), LPARAM(button)));
    }
    BOOL DeleteButton(int index) { return BOOL(SendMessage(TB_DELETEBUTTON, WPARAM(index))); }
    int CommandToIndex(UINT id) const { return int(SendMessage(TB_COMMANDTOINDEX, id)); }
    BOOL SetCmdID(int index, UINT id)
    {
        return BOOL(SendMessage(TB_SETCMDID, WPARAM(index), LPARAM(id)));
    }
    int GetButtonInfo(int id, TBBUTTONINFO* info) const
    {
        return int(SendMessage(TB_GETBUTTONINFO, WPARAM(id), LPARAM(info)));
    }
    BOOL SetButtonInfo(int id, TBBUTTONINFO* info)
    {
        return BOOL(SendMessage(TB_SETBUTTONINFO, WPARAM(id), LPARAM(info)));
    }

    // Pictures
    int AddBitmap(int images, CBitmap* bitmap)
    {
        TBADDBITMAP added = {nullptr, UINT_PTR(bitmap->m_hObject)};
        return int(SendMessage(TB_ADDBITMAP, WPARAM(images), LPARAM(&added)));
    }
    BOOL ChangeBitmap(int id, int image) { return SetFlag(TB_CHANGEBITMAP, id, image); }
    CImageList* GetImageList() const
    {
        return CImageList::FromHandle(HIMAGELIST(SendMessage(TB_GETIMAGELIST)));
    }
    CImageList* SetImageList(CImageList* images)
    {
        return CImageList::FromHandle(HIMAGELIST(SendMessage(
            TB_SETIMAGELIST, 0, LPARAM(images == nullptr ? nullptr : images->m_hImageList))));
    }

    // Layout, in client pixels
    BOOL GetItemRect(int index, LPRECT rect) const
    {
        return BOOL(SendMessage(TB_GETITEMRECT, WPARAM(index), LPARAM(rect)));
    }
    BOOL GetRect(int id, LPRECT rect) const
    {
        return BOOL(SendMessage(TB_GETRECT, WPARAM(id), LPARAM(rect)));
    }
    CSize GetButtonSize() const { return CSize(DWORD(SendMessage(TB_GETBUTTONSIZE))); }
    BOOL SetButtonSize(CSize size)
    {
        return BOOL(SendMessage(TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy)));
    }
    BOOL SetBitmapSize(CSize size)
    {
        return BOOL(SendMessage(TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy)));
    }
    void SetButtonStructSize(int size) { SendMessage(TB_BUTTONSTRUCTSIZE, WPARAM(size)); }
    BOOL GetMaxSize(LPSIZE size) const { return BOOL(SendMessage(TB_GETMAXSIZE, 0, LPARAM(size))); }
    int HitTest(LPPOINT point) const { return int(SendMessage(TB_HITTEST, 0, LPARAM(point))); }
    void AutoSize() { SendMessage(TB_AUTOSIZE); }
    DWORD GetExtendedStyle() const { return DWORD(SendMessage(TB_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD style)
    {
        return DWORD(SendMessage(TB_SETEXTENDEDSTYLE, 0, LPARAM(style)));
    }
    CToolTipCtrl* GetToolTips() const;

private:
    BOOL SetFlag(UINT message, int id, int value)
    {
        return BOOL(SendMessage(message, WPARAM(id), MAKELPARAM(value, 0)));
    }
};
