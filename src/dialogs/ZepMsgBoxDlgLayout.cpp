// The message box: measuring its text, sizes and places, and following the display mode.

#include "ZepMsgBoxDlg.h"

#include "MessageBoxResources.h"
#include "OnBoardUIGeneral.h"
#include "dialogs/LineSplitting.h"
#include "dialogs/MessageBoxLayout.h"
#include "dialogs/MessageIcon.h"
#include "dialogs/MessageMeasure.h"
#include "dialogs/MessageText.h"
#include "dialogs/Opening.h"
#include "modes/ChildRestyling.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/Palette.h"

#include <utility>

namespace {

// How windows are moved: what is not shown need not be drawn.
UINT MoveFlags(HWND box)
{
    constexpr UINT PlaceOnly = SWP_NOZORDER | SWP_NOACTIVATE;
    constexpr UINT Undrawn = SWP_NOREDRAW | SWP_DEFERERASE | SWP_NOCOPYBITS;
    return ::IsWindowVisible(box) ? PlaceOnly : PlaceOnly | Undrawn;
}

// Moves a window of the box, unless it is there. The place is one within the window's parent.
void Place(const CWnd& part, const CRect& place, UINT flags)
{
    if (part.GetSafeHwnd() == nullptr)
    {
        return;
    }
    if (PlaceIn(::GetAncestor(part, GA_PARENT), part) != place)
    {
        ::SetWindowPos(part, nullptr, place.left, place.top, place.Width(), place.Height(), flags);
    }
}

} // namespace

// Measures --------------------------------------------------------------------------------------

void CZepMsgBoxDlg::CalcStdSizes()
{
    // The font of a template that was rewritten for an on-board mode has larger units: the lengths
    // grow with the mode's factor instead.
    CSize unit;
    if (m_opening != nullptr)
    {
        unit = m_opening->Template().StandardUnit();
    }
    else
    {
        CRect mapped(0, 0, dialogs::UnitsAcross, dialogs::UnitsDown);
        MapDialogRect(&mapped);
        unit = mapped.Size();
    }
    const auto units = dialogs::MessageUnits::Of(unit, COnBoardUIGeneral::InOnBoardMode());
    m_buttonSize = units.button;
    m_margin = units.margin;
    m_spacing = units.spacing;
    m_textUnit = units.text;
}

// Of the text's control in the standard mode.
int CZepMsgBoxDlg::TemplateTextWidth() const
{
    int width = 0;
    if (m_opening != nullptr)
    {
        for (const CCustomDialogTemplate::Control& control : m_opening->Template().Controls())
        {
            width = control.id == IDC_MESSAGE_TEXT ? control.place.Width() : width;
        }
    }
    else if (m_text->GetSafeHwnd() != nullptr)
    {
        CRect client;
        m_text->GetClientRect(&client);
        width = client.Width();
    }
    return width;
}

void CZepMsgBoxDlg::SplitText()
{
    const size_t limit = dialogs::LineLimit(::GetSystemMetrics(SM_CXSCREEN));
    const bool themed = dialogs::VisualStyles();
    // Every change of the size comes here.
    if (m_splitMessage == m_message && m_splitText == m_displayText && m_splitLimit == limit &&
        m_splitThemed == themed)
    {
        return;
    }
    const std::string_view message(m_message, size_t(m_message.GetLength()));
    m_displayText = dialogs::SplitLines(message, limit, dialogs::CodePage(::GetACP())).c_str();
    if (themed)
    {
        m_displayText += "\r\n";
    }
    m_splitMessage = m_message;
    m_splitText = m_displayText;
    m_splitLimit = limit;
    m_splitThemed = themed;
}

void CZepMsgBoxDlg::GetStaticTextSize(const CString& text, int& width, int& height)
{
    dialogs::TextMeasure measure(*this);
    const CSize size = measure.Lines({text, size_t(text.GetLength())}, width);
    width = size.cx;
    height = size.cy;
}

int CZepMsgBoxDlg::GetTitleWidth()
{
    const WindowAlive alive(*this);
    CString title;
    GetWindowText(title);
    return !alive ? 0 : dialogs::TextMeasure(*this).Title(title);
}

void CZepMsgBoxDlg::GetButtonsSize(int& width, int& height)
{
    const CSize size = dialogs::MessageButtonsSize({m_buttonSize, m_margin, m_spacing, m_textUnit},
                                                   int(m_buttons.size()));
    width = size.cx;
    height = size.cy;
}

// Places ----------------------------------------------------------------------------------------

// The box may be gone afterwards.
dialogs::MessagePremises CZepMsgBoxDlg::PremisesFor(const CString& title, int buttons,
                                                    const CSize& window, const CSize& client) const
{
    dialogs::MessagePremises premises = {COnBoardUIGeneral::GetAppMode(),
                                         m_displayText,
                                         title,
                                         buttons,
                                         {m_buttonSize, m_margin, m_spacing, m_textUnit},
                                         m_area,
                                         m_captionHeight,
                                         0,
                                         window,
                                         client};
    premises.lineHead = dialogs::LineHead(COnBoardUIGeneral::InOnBoardMode()
                                              ? HFONT(CCustomEdit::GetOnBoardFont().GetSafeHandle())
                                              : StandardFont());
    return premises;
}

dialogs::MessageLayout CZepMsgBoxDlg::LayOut(const dialogs::MessagePremises& premises)
{
    // The width of the text's control as it opens in the mode.
    const int width =
        COnBoardUIGeneral::InOnBoardMode()
            ? RescaledRect(CRect(0, 0, m_standardTextWidth, 0), metrics::OnBoardScale).Width()
            : m_standardTextWidth;
    dialogs::MessageContent content;
    {
        dialogs::TextMeasure measure(*this);
        content.text = measure.Lines({premises.text, size_t(premises.text.GetLength())}, width);
        content.titleWidth = measure.Title(premises.title);
    }
    content.buttons = premises.buttons;
    content.area = premises.area;
    content.frame = premises.window - premises.client;
    content.captionHeight = premises.captionHeight;
    content.lineHead = premises.lineHead;
    content.barWidth = ::GetSystemMetrics(SM_CXVSCROLL);
    const dialogs::MessageSize size = dialogs::SizeMessageBox(premises.units, content);

    const CSize growth = dialogs::MessageGrowth(size.client, premises.client);
    return {premises, size, CentredPlace(premises.window + growth + growth)};
}

// On-board the frame of a box is calculated anew while the box is created, when its caption's
// styles are gone. With that the box gets its place, since each further move of a top-level window
// takes its time; and so do its controls when they are made.
void CZepMsgBoxDlg::OpenInPlace(WINDOWPOS& position)
{
    CRect window;
    GetWindowRect(&window);
    CRect client = window;
    const WindowAlive alive(*this);
    SendMessage(WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&client));
    if (!alive)
    {
        return;
    }
    m_standardTextWidth = TemplateTextWidth();
    CalcStdSizes();
    SplitText();
    const dialogs::MessageLayout layout = LayOut(
        PremisesFor(COnBoardUIGeneral::GetAppTitle(), ButtonCount(), window.Size(), client.Size()));
    position.x = layout.window.left;
    position.y = layout.window.top;
    position.cx = layout.window.Width();
    position.cy = layout.window.Height();
    position.flags &= ~UINT(SWP_NOMOVE | SWP_NOSIZE);

    const dialogs::MessagePlaces places = dialogs::PlaceMessageParts(
        layout.premises.units, layout.size, client.Size() + layout.window.Size() - window.Size(),
        layout.premises.captionHeight, layout.premises.buttons);
    m_opening->Fix(IDC_MESSAGE_ICON, places.icon);
    m_opening->Fix(IDC_MESSAGE_TEXT, places.text);
    m_opensWith = std::make_unique<dialogs::MessageLayout>(layout);
}

void CZepMsgBoxDlg::SizeToText()
{
    const WindowAlive alive(*this);
    CRect window;
    GetWindowRect(&window);
    CRect client;
    GetClientRect(&client);
    CString title;
    GetWindowText(title);
    if (!alive)
    {
        return;
    }
    dialogs::MessagePremises premises =
        PremisesFor(title, int(m_buttons.size()), window.Size(), client.Size());
    if (!alive)
    {
        return;
    }
    // A box that was created in its place has grown from the size of its template.
    const auto opened = std::exchange(m_opensWith, nullptr);
    if (opened != nullptr && opened->window == window && opened->premises.mode == premises.mode)
    {
        premises.window = opened->premises.window;
        premises.client = opened->premises.client;
    }
    const dialogs::MessageLayout layout =
        opened != nullptr && opened->premises == premises ? *opened : LayOut(premises);

    const UINT flags = MoveFlags(m_hWnd);
    m_sizing = true;
    Place(*this, layout.window, flags);
    if (!alive)
    {
        return;
    }
    m_sizing = false;
    GetClientRect(&client);
    const dialogs::MessagePlaces places =
        dialogs::PlaceMessageParts(layout.premises.units, layout.size, client.Size(),
                                   layout.premises.captionHeight, layout.premises.buttons);
    // The library's text changes its place as it is told of it; labels and buttons do not.
    constexpr UINT Unasked = SWP_NOSENDCHANGING;
    Place(m_icon, places.icon, flags | Unasked);
    if (alive)
    {
        Place(*m_text, places.text, flags);
    }
    for (size_t index = 0; alive && index < m_buttons.size(); ++index)
    {
        Place(*m_buttons[index], places.Button(int(index)), flags | Unasked);
    }
    if (alive && m_text->GetSafeHwnd() != nullptr)
    {
        m_text->SetScrolls(layout.size.scrolls);
    }
}

// Over the window that the box belongs to, or in the middle of the screen.
CRect CZepMsgBoxDlg::CentredPlace(const CSize& size) const
{
    const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
    const bool over = owner != nullptr && ::IsWindowVisible(owner) && !::IsIconic(owner);
    CRect work;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &work, 0);
    CRect middle = work;
    if (over)
    {
        ::GetWindowRect(owner, &middle);
    }
    const CRect place = dialogs::MessageCentred(size, middle);
    CRect shown;
    shown.IntersectRect(&place, &work);
    if (over && shown != place)
    {
        // On another screen, or not whole on this one.
        MONITORINFO monitor = {};
        monitor.cbSize = sizeof(monitor);
        ::GetMonitorInfo(::MonitorFromWindow(owner, MONITOR_DEFAULTTOPRIMARY), &monitor);
        work = monitor.rcWork;
    }
    return dialogs::MessageMovedInto(place, work);
}

// Following the display mode --------------------------------------------------------------------

void CZepMsgBoxDlg::FollowMode()
{
    const WindowAlive alive(*this);
    const bool wasOnBoard = m_laidOutFor && *m_laidOutFor != STD;
    m_laidOutFor = COnBoardUIGeneral::GetAppMode();
    const int focused = FocusedButton();
    if (focused >= 0)
    {
        SetDefID(UINT(m_buttons[size_t(focused)]->GetDlgCtrlID()));
    }
    if (!alive)
    {
        return;
    }
    CalcStdSizes();
    SplitText(); // for the screen as it is now
    // All on-board modes have one ground, and the same picture on it.
    if (!wasOnBoard || *m_laidOutFor == STD || m_iconPicture.GetSafeHandle() == nullptr)
    {
        ShowIcon();
    }
    if (alive)
    {
        TakeLook();
    }
    if (alive)
    {
        SizeToText();
    }
    if (alive)
    {
        ShowText();
    }
    if (alive && focused >= 0)
    {
        // The platform's button and the library's each remember a focus of their own.
        m_buttons[size_t(focused)]->SendMessage(WM_SETFOCUS);
    }
}

// The fonts and the kinds of the controls in the mode.
void CZepMsgBoxDlg::TakeLook()
{
    const WindowAlive alive(*this);
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    const auto font = WPARAM(StandardFont());
    if (alive && m_text->GetSafeHwnd() != nullptr)
    {
        m_text->SendMessage(WM_SETFONT,
                            onBoard ? WPARAM(CCustomEdit::GetOnBoardFont().GetSafeHandle()) : font);
    }
    // Only the platform's buttons have a look for it, and the system looks through all controls.
    const DWORD defaultId = alive && !onBoard ? GetDefID() : 0;
    for (size_t index = 0; alive && index < m_buttons.size(); ++index)
    {
        // In the on-board modes a button paints itself.
        CCustomPushbutton& button = *m_buttons[index];
        const bool isDefault = DWORD(button.GetDlgCtrlID()) == LOWORD(defaultId);
        button.SetButtonStyle(onBoard     ? BS_OWNERDRAW
                              : isDefault ? BS_DEFPUSHBUTTON
                                          : BS_PUSHBUTTON,
                              FALSE);
        if (alive)
        {
            button.SendMessage(WM_SETFONT, font);
        }
    }
    if (!alive)
    {
        return;
    }
    const HMENU menu = onBoard ? nullptr : ::GetSystemMenu(m_hWnd, FALSE);
    if (menu != nullptr)
    {
        ::EnableMenuItem(menu, SC_CLOSE, MF_BYCOMMAND | (EscapeId() != 0 ? MF_ENABLED : MF_GRAYED));
    }
}

void CZepMsgBoxDlg::ShowText()
{
    if (m_text->GetSafeHwnd() != nullptr && m_shownText != m_displayText)
    {
        m_shownText = m_displayText;
        m_text->Show(m_displayText);
    }
}

void CZepMsgBoxDlg::ShowIcon()
{
    if (m_icon.GetSafeHwnd() == nullptr)
    {
        return;
    }
    CBitmap picture;
    dialogs::LoadPictureOver(picture, UINT(m_iconId),
                             COnBoardUIGeneral::InOnBoardMode() ? palette::Panel
                                                                : ::GetSysColor(COLOR_3DFACE));
    const WindowAlive alive(*this);
    m_icon.SetBitmap(picture);
    if (!alive)
    {
        return;
    }
    m_iconPicture.DeleteObject();
    if (picture.GetSafeHandle() != nullptr)
    {
        m_iconPicture.Attach(picture.Detach());
    }
}
