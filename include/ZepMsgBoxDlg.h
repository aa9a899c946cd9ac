#pragma once

#include "CustomDialog.h"
#include "CustomEdit.h"
#include "CustomPushbutton.h"

#include <memory>
#include <optional>
#include <vector>

namespace windows {
struct MessageLayout;
struct MessagePremises;
class MessageText;
} // namespace windows

// The library's message box: a modal, topmost dialog with an icon, a text and a row of buttons. It
// sizes itself to the text within an area, shows a longer text with a scroll bar, and follows the
// display mode also while it is open.
//
// Enter presses the button that has the focus, or the default one; the arrows move between the
// buttons; the initial letter of a button presses it. Escape and the close box stand for Cancel,
// for OK when that is the only button, and do nothing when there is neither.
class ONBOARDUI_API CZepMsgBoxDlg : public CCustomDialog
{
    DECLARE_DYNAMIC(CZepMsgBoxDlg)

public:
    static constexpr UINT IDD = 5000; // the dialog's template

    // The text may have several lines; null counts as empty. style takes the flags of the
    // platform's message box: buttons, icon and default button; other bits are ignored. Buttons
    // beyond MB_RETRYCANCEL are none: Escape alone, or the close box, ends such a box, with
    // IDCANCEL. A box without an icon flag has an exclamation mark with OK and with OK and Cancel,
    // and a question mark with all other buttons. area is the most, in pixels, that the box may
    // take: a box that needs more for its buttons takes more. The host is kept, not owned, and may
    // be null. The title is the application's.
    CZepMsgBoxDlg(const char* text, unsigned int style, const CSize& area, IAppAccess* host);
    ~CZepMsgBoxDlg() override;

    // The id of the button that closed the box (IDOK, IDCANCEL, IDABORT, IDRETRY, IDIGNORE, IDYES
    // or IDNO), 0 before, and when the box could not be made.
    int GetButtonPressed() const { return m_buttonPressed; }

    // Returns IDCANCEL for Cancel and IDOK for all others, -1 when the dialog could not be made.
    INT_PTR DoModal() override;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    // Chooses the icon by the style: by its icon, or by its buttons when it names none.
    void DetermineIcon();

    // @{
    // Make the buttons of the style, or one more.
    void CreateButtons();
    void CreateButton(const CRect& rect, const char* caption, unsigned int id);
    // @}

    // Gives the box and all on it the sizes and places for the text, and centres the box.
    void SizeToText();
    // Measures a text in pixels; width is the least on the way in.
    void GetStaticTextSize(const CString& text, int& width, int& height);
    // Size in pixels of the row of buttons, with the gaps between them.
    void GetButtonsSize(int& width, int& height);
    // Width in pixels that the title needs in the caption of the mode.
    int GetTitleWidth();
    // Takes the lengths that are given in dialog units for the mode.
    void CalcStdSizes();
    // Breaks the message into the lines that are shown.
    void SplitText();

    // Makes the buttons, gives the box its size and place, and the focus to the default button.
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void DoDataExchange(CDataExchange* exchange) override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnClose();
    afx_msg void OnSysColorChange();
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    DECLARE_MESSAGE_MAP()

    unsigned int m_style;
    CSize m_area;
    CString m_message;
    CString m_displayText; // the message, broken into lines
    CStatic m_icon;
    std::unique_ptr<CCustomEdit> m_text; // of a class of the library; not to be replaced
    std::vector<std::unique_ptr<CCustomPushbutton>> m_buttons; // from left to right
    int m_iconId = 0;
    // In pixels of the mode.
    CSize m_buttonSize;
    CSize m_margin;
    CSize m_spacing;
    CSize m_textUnit;
    int m_buttonPressed = 0;

private:
    CBitmap m_iconPicture; // on the ground of the mode
    // What the display text was made of, and as it was made.
    CString m_splitMessage;
    CString m_splitText;
    size_t m_splitLimit = 0;
    bool m_splitThemed = false;
    int m_standardTextWidth = 0; // of the text's control in the template
    std::optional<APPMODE> m_laidOutFor;
    bool m_layingOut = false;
    bool m_layoutDue = false; // also anew, for a mode that has changed on the way
    CString m_shownText;      // as the edit was last given it
    bool m_sizing = false;    // to the lines that the text has, or not yet initialised
    bool m_beingCreated = false;
    std::unique_ptr<windows::MessageLayout> m_opensWith; // what the box was created for

    windows::MessageText& Text();
    void OpenInPlace(WINDOWPOS& position);
    windows::MessagePremises PremisesFor(const CString& title, int buttons, const CSize& window,
                                         const CSize& client) const;
    windows::MessageLayout LayOut(const windows::MessagePremises& premises);
    int TemplateTextWidth() const;
    int ButtonCount() const;
    void FollowMode();
    void LayOutUntilSettled();
    void LayOutForMode();
    void TakeLook();
    void ShowIcon();
    void ShowText();
    CRect CentredPlace(const CSize& size) const;
    int ButtonWith(HWND window) const;
    int FocusedButton() const;
    int DefaultButton() const;
    int ShownDefaultButton() const;
    void Focus(int button);
    int EscapeId() const;
    void Answer(int id);
    bool IsOwnPart(HWND window) const;
    bool IsEscape(const MSG& message) const;
    bool PressKey(UINT key);
    bool PressInitial(UINT character);
};
