#pragma once

#include "CustomDialog.h"
#include "CustomEdit.h"

namespace windows {

// The text of a message box: an edit that looks like a label, is only read and, in the on-board
// modes, asks for no keyboard. Keys scroll it and copy from it.
class MessageText : public CCustomEdit
{
public:
    MessageText() { SetFauxReadOnly(); }

    // Whether there is a scroll bar.
    void SetScrolls(bool scrolls);

    // Shows a text. Before a text too long for the edit its bar is to be set.
    void Show(const CString& text);

    // Scrolls by a key; whether the key is one that does.
    bool ScrollByKey(UINT key);
    void ScrollByWheel(int delta);

    void CopyAll();

    void UpdateScrollPosFromText() override;

    // Assistive programs are told the title of the box as its name.
    HRESULT get_accName(VARIANT child, BSTR* name) override;

protected:
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    bool m_keepingBar = false; // for the text to come
    int m_turned = 0;          // of the wheel, in lines times a notch, that is no line yet
};

} // namespace windows
