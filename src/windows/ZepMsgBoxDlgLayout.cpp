// The message box: measuring its text, sizes and places, and following the display mode.

#include "ZepMsgBoxDlg.h"

#include "MessageBoxResources.h"
#include "OnBoardUIGeneral.h"
#include "dialogs/Opening.h"
#include "modes/ChildRestyling.h"
#include "modes/Meanwhile.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/Palette.h"
#include "windows/LineSplitting.h"
#include "windows/MessageBoxLayout.h"
#include "windows/MessageIcon.h"
#include "windows/MessageMeasure.h"
#include "windows/MessageText.h"

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
    const auto units = windows::MessageUnits::Of(unit, COnBoardUIGeneral::InOnBoardMode());
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
    const size_t limit = windows::LineLimit(::GetSystemMetrics(SM_CXSCREEN));
    const bool themed = windows::VisualStyles();
    // Every change of the size comes here.
    if (m_splitMessage == m_message && m_splitText == m_displayText && m_splitLimit == limit &&
        m_splitThemed == themed)
    {
        return;
    }
    const std::string_view message(m_message, size_t(m_message.GetLength()));
    m_displayText = windows::SplitLines(message, limit, windows::CodePage(::GetACP())).c_str();
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
    windows::TextMeasure measure;
    const CSize size = measure.Lines({text, size_t(text.GetLength())}, width);
    width = size.cx;
    height = size.cy;
}

int CZepMsgBoxDlg::GetTitleWidth()
{
    const WindowAlive alive(*this);
    CString title;
    GetWindowText(title);
    return !alive ? 0 : windows::TextMeasure().Title(title);
}

void CZepMsgBoxDlg::GetButtonsSize(int& width, int& height)
{
    const CSize size = windows::MessageButtonsSize({m_buttonSize, m_margin, m_spacing, m_textUnit},
                                                   int(m_buttons.size()));
    width = size.cx;
    height = size.cy;
}

// Places ----------------------------------------------------------------------------------------

// The box may be gone afterwards.
windows::MessagePremises CZepMsgBoxDlg::PremisesFor(const CString& title, int buttons,
                                                    const CSize& window, const CSize& client) const
{
    windows::MessagePremises premises = {COnBoardUIGeneral::GetAppMode(),
                                         m_displayText,
                                         title,
                                         buttons,
                                         {m_buttonSize, m_margin, m_spacing, m_textUnit},
                                         m_area,
                                         m_captionHeight,
                                         0,
                                         window,
                                         client};
    premises.lineHead = windows::LineHead(COnBoardUIGeneral::InOnBoardMode()
                                              ? HFONT(CCustomEdit::GetOnBoardFont().GetSafeHandle())
                                              : StandardFont());
    return premises;
}

windows::MessageLayout CZepMsgBoxDlg::LayOut(const windows::MessagePremises& premises)
{
    // The width of the text's control as it opens in the mode.
    const int width =
        COnBoardUIGeneral::InOnBoardMode()
            ? RescaledRect(CRect(0, 0, m_standardTextWidth, 0), metrics::OnBoardScale).Width()
            : m_standardTextWidth;
    windows::MessageContent content;
    {
        windows::TextMeasure measure;
        content.text = measure.Lines({premises.text, size_t(premises.text.GetLength())}, width);
        content.titleWidth = measure.Title(premises.title);
    }
    content.buttons = premises.buttons;
    content.area = premises.area;
    content.frame = premises.window - premises.client;
    content.captionHeight = premises.captionHeight;
    content.lineHead = premises.lineHead;
    content.barWidth = ::GetSystemMetrics(SM_CXVSCROLL);
    const windows::MessageSize size = windows::SizeMessageBox(premises.units, content);

    const CSize growth = windows::MessageGrowth(size.client, premises.client);
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
    const windows::MessageLayout layout = LayOut(
        PremisesFor(COnBoardUIGeneral::GetAppTitle(), ButtonCount(), window.Size(), client.Size()));
    position.x = layout.window.left;
    position.y = layout.window.top;
    position.cx = layout.window.Width();
    position.cy = layout.window.Height();
    position.flags &= ~UINT(SWP_NOMOVE | SWP_NOSIZE);

    const windows::MessagePlaces places = windows::PlaceMessageParts(
        layout.premises.units, layout.size, client.Size() + layout.window.Size() - window.Size(),
        layout.premises.captionHeight, layout.premises.buttons);
    m_opening->Fix(IDC_MESSAGE_ICON, places.icon);
    m_opening->Fix(IDC_MESSAGE_TEXT, places.text);
    m_opensWith = std::make_unique<windows::MessageLayout>(layout);
}

void CZepMsgBoxDlg::SizeToText()
{
    const WindowAlive alive(*this);
    const auto goesOn = [&] { return alive && !m_layoutDue; };
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
    windows::MessagePremises premises =
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
    const windows::MessageLayout laidOut =
        opened != nullptr && opened->premises == premises ? *opened : LayOut(premises);

    const UINT flags = MoveFlags(m_hWnd);
    {
        const Meanwhile sizing(*this, m_sizing);
        Place(*this, laidOut.window, flags);
    }
    if (!goesOn())
    {
        return;
    }
    GetClientRect(&client);
    const windows::MessagePlaces places =
        windows::PlaceMessageParts(laidOut.premises.units, laidOut.size, client.Size(),
                                   laidOut.premises.captionHeight, laidOut.premises.buttons);
    // The library's text changes its place as it is told of it; labels and buttons do not.
    constexpr UINT Unasked = SWP_NOSENDCHANGING;
    Place(m_icon, places.icon, flags | Unasked);
    if (goesOn())
    {
        Place(*m_text, places.text, flags);
    }
    for (size_t index = 0; goesOn() && index < m_buttons.size(); ++index)
    {
        Place(*m_buttons[index], places.Button(int(index)), flags | Unasked);
    }
    if (goesOn() && m_text->GetSafeHwnd() != nullptr)
    {
        Text().SetScrolls(laidOut.size.scrolls);
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
    const CRect place = windows::MessageCentred(size, middle);
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
    return windows::MessageMovedInto(place, work);
}

// Following the display mode --------------------------------------------------------------------

void CZepMsgBoxDlg::FollowMode()
{
    m_layoutDue = m_laidOutFor.has_value();
    if (m_layoutDue && !m_layingOut)
    {
        LayOutUntilSettled();
    }
}

// Anew as long as one of the controls changes the mode on the way, which leaves the rest to that.
void CZepMsgBoxDlg::LayOutUntilSettled()
{
    constexpr int MostTurns = 4; // for a mode that changes each time
    const WindowAlive alive(*this);
    m_layingOut = true;
    for (int turn = 0; alive && turn < MostTurns && std::exchange(m_layoutDue, false); ++turn)
    {
        LayOutForMode();
    }
    if (alive)
    {
        m_layingOut = m_layoutDue = false;
    }
}

void CZepMsgBoxDlg::LayOutForMode()
{
    const WindowAlive alive(*this);
    const auto goesOn = [&] { return alive && !m_layoutDue; };
    const APPMODE mode = COnBoardUIGeneral::GetAppMode();
    // All on-board modes have one ground with the same picture on it, one font, and one kind of
    // button. A box that is laid out for the mode heard of it in the middle of the change to
    // another, which has gone on with its controls since.
    const bool looksOtherwise = *m_laidOutFor == STD || mode == STD || *m_laidOutFor == mode;
    m_laidOutFor = mode;
    const int focused = looksOtherwise ? FocusedButton() : -1;
    if (focused >= 0)
    {
        SetDefID(UINT(m_buttons[size_t(focused)]->GetDlgCtrlID()));
    }
    if (!goesOn())
    {
        return;
    }
    CalcStdSizes();
    SplitText(); // for the screen as it is now
    if (looksOtherwise || m_iconPicture.GetSafeHandle() == nullptr)
    {
        ShowIcon();
    }
    if (goesOn() && looksOtherwise)
    {
        TakeLook();
    }
    if (goesOn())
    {
        SizeToText();
    }
    if (goesOn())
    {
        ShowText();
    }
}

// The fonts and the kinds of the controls in the mode.
void CZepMsgBoxDlg::TakeLook()
{
    const WindowAlive alive(*this);
    const auto goesOn = [&] { return alive && !m_layoutDue; };
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    const auto font = WPARAM(StandardFont());
    if (goesOn() && m_text->GetSafeHwnd() != nullptr)
    {
        m_text->SendMessage(WM_SETFONT,
                            onBoard ? WPARAM(CCustomEdit::GetOnBoardFont().GetSafeHandle()) : font);
    }
    // Only the platform's buttons have a look for it, and the system looks through all controls.
    const DWORD defaultId = goesOn() && !onBoard ? GetDefID() : 0;
    for (size_t index = 0; goesOn() && index < m_buttons.size(); ++index)
    {
        // In the on-board modes a button paints itself.
        CCustomPushbutton& button = *m_buttons[index];
        const bool isDefault = DWORD(button.GetDlgCtrlID()) == LOWORD(defaultId);
        button.SetButtonStyle(onBoard     ? BS_OWNERDRAW
                              : isDefault ? BS_DEFPUSHBUTTON
                                          : BS_PUSHBUTTON,
                              FALSE);
        if (goesOn())
        {
            button.SendMessage(WM_SETFONT, font);
        }
    }
    if (!goesOn())
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
        Text().Show(m_displayText);
    }
}

void CZepMsgBoxDlg::ShowIcon()
{
    if (m_icon.GetSafeHwnd() == nullptr)
    {
        return;
    }
    CBitmap picture;
    windows::LoadPictureOver(picture, UINT(m_iconId),
                             COnBoardUIGeneral::InOnBoardMode() ? palette::Panel
                                                                : ::GetSysColor(COLOR_3DFACE));
    const WindowAlive alive(*this);
    const CRect place = PlaceIn(m_hWnd, m_icon);
    m_icon.SetBitmap(picture); // which makes the control as large as it
    if (alive)
    {
        Place(m_icon, place, MoveFlags(m_hWnd));
    }
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
