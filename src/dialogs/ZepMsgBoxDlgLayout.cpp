// The message box: measuring its text, sizes and places, and following the display mode.

#include "ZepMsgBoxDlg.h"

#include "MessageBoxResources.h"
#include "OnBoardUIGeneral.h"
#include "dialogs/LineSplitting.h"
#include "dialogs/MessageBoxLayout.h"
#include "dialogs/MessageIcon.h"
#include "dialogs/MessageText.h"
#include "dialogs/Opening.h"
#include "modes/ChildRestyling.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"

#include <uxtheme.h>

#include <array>
#include <numeric>

namespace {

constexpr UINT PlaceOnly = SWP_NOZORDER | SWP_NOACTIVATE;
constexpr int ThemedExtra = 5; // pixels of width, with visual styles

bool VisualStyles()
{
    return ::IsAppThemed() && ::IsThemeActive();
}

// Measures text in the font that the box's sizes are based on: the on-board one, or in the standard
// mode that of a window's fresh device context.
class TextMeasure
{
public:
    explicit TextMeasure(CWnd& window)
        : m_dc(&window)
        , m_font(m_dc, COnBoardUIGeneral::InOnBoardMode()
                           ? CCustomDialog::m_OBStaticTextFont.GetSafeHandle()
                           : nullptr)
    {}

    CSize Extent(std::string_view text)
    {
        CSize extent(0, 0);
        ::GetTextExtentPoint32(m_dc, text.data(), int(text.size()), &extent);
        return extent;
    }

    // The widths of the characters of all code pages, which add up to a text's; one by one.
    std::array<int, 128> CharacterWidths()
    {
        std::array<char, 127> characters;
        std::iota(characters.begin(), characters.end(), char(1));
        std::array<int, 128> widths = {};
        CSize extent(0, 0);
        ::GetTextExtentExPoint(m_dc, characters.data(), int(characters.size()), 0, nullptr,
                               widths.data() + 1, &extent);
        std::adjacent_difference(widths.begin(), widths.end(), widths.begin());
        return widths;
    }

private:
    CClientDC m_dc;
    Selected m_font;
};

// The widest and the highest of pieces of text. Of those whose width is the sum of their
// characters' only the widest is measured: the platform takes its time for each.
class LargestPiece
{
public:
    explicit LargestPiece(TextMeasure& measure)
        : m_measure(measure)
        , m_widths(measure.CharacterWidths())
    {}

    void Add(std::string_view piece)
    {
        int width = 0;
        for (const char character : piece)
        {
            if (static_cast<unsigned char>(character) >= m_widths.size())
            {
                Measure(piece);
                return;
            }
            width += m_widths[size_t(character)];
        }
        if (width > m_widestSum || m_widest.empty())
        {
            m_widestSum = width;
            m_widest = piece;
        }
    }

    CSize Size()
    {
        Measure(m_widest);
        return m_size;
    }

private:
    void Measure(std::string_view piece)
    {
        const CSize extent = m_measure.Extent(piece);
        m_size.cx = std::max(m_size.cx, extent.cx);
        m_size.cy = std::max(m_size.cy, extent.cy);
    }

    TextMeasure& m_measure;
    std::array<int, 128> m_widths;
    std::string_view m_widest;
    int m_widestSum = 0;
    CSize m_size = CSize(0, 0);
};

void Place(const CWnd& part, const CRect& place)
{
    if (part.GetSafeHwnd() != nullptr)
    {
        ::SetWindowPos(part, nullptr, place.left, place.top, place.Width(), place.Height(),
                       PlaceOnly);
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
        CRect mapped(0, 0, 4, 8);
        MapDialogRect(&mapped);
        unit = mapped.Size();
    }
    const auto units = dialogs::MessageUnits::Of(unit, COnBoardUIGeneral::InOnBoardMode());
    m_buttonSize = units.button;
    m_margin = units.margin;
    m_spacing = units.spacing;
    m_textUnit = units.text;
}

void CZepMsgBoxDlg::SplitText()
{
    const std::string_view message(m_message, size_t(m_message.GetLength()));
    const size_t limit = dialogs::LineLimit(::GetSystemMetrics(SM_CXSCREEN));
    m_displayText = dialogs::SplitLines(message, limit, dialogs::CodePage(::GetACP())).c_str();
    if (VisualStyles())
    {
        m_displayText += "\r\n";
    }
}

void CZepMsgBoxDlg::GetStaticTextSize(const CString& text, int& width, int& height)
{
    TextMeasure measure(*this);
    LargestPiece largest(measure);
    std::string_view rest(text, size_t(text.GetLength()));
    // It is meant that a text of several lines counts one more: room below it. And that what ends
    // its lines is measured along with them.
    int lines = 1;
    size_t end = rest.find('\n');
    if (end == std::string_view::npos)
    {
        largest.Add(rest);
    }
    else
    {
        for (; end != std::string_view::npos; end = rest.find('\n'))
        {
            largest.Add(rest.substr(0, end));
            ++lines;
            rest.remove_prefix(end + 1);
        }
        if (!rest.empty())
        {
            largest.Add(rest);
            ++lines;
        }
    }
    const CSize size = largest.Size();
    width = std::max(width, int(size.cx)) + (VisualStyles() ? ThemedExtra : 0);
    height = size.cy * lines;
}

int CZepMsgBoxDlg::GetTitleWidth()
{
    CString title;
    GetWindowText(title);
    return TextMeasure(*this).Extent({title, size_t(title.GetLength())}).cx;
}

void CZepMsgBoxDlg::GetButtonsSize(int& width, int& height)
{
    const CSize size = dialogs::MessageButtonsSize({m_buttonSize, m_margin, m_spacing, m_textUnit},
                                                   int(m_buttons.size()));
    width = size.cx;
    height = size.cy;
}

// Places ----------------------------------------------------------------------------------------

void CZepMsgBoxDlg::SizeToText()
{
    const WindowAlive alive(*this);
    // The width of the text's control as it opens in the mode.
    int width =
        COnBoardUIGeneral::InOnBoardMode()
            ? RescaledRect(CRect(0, 0, m_standardTextWidth, 0), metrics::OnBoardScale).Width()
            : m_standardTextWidth;
    int height = 0;
    GetStaticTextSize(m_displayText, width, height);

    CRect window;
    GetWindowRect(&window);
    CRect client;
    GetClientRect(&client);
    dialogs::MessageContent content;
    content.text = CSize(width, height);
    content.titleWidth = GetTitleWidth();
    content.buttons = int(m_buttons.size());
    content.area = m_area;
    content.frame = window.Size() - client.Size();
    content.captionHeight = m_captionHeight;
    content.barWidth = ::GetSystemMetrics(SM_CXVSCROLL);
    const dialogs::MessageUnits units = {m_buttonSize, m_margin, m_spacing, m_textUnit};
    const dialogs::MessageSize size = dialogs::SizeMessageBox(units, content);

    const CSize growth = dialogs::MessageGrowth(size.client, client.Size());
    const CRect place = CentredPlace(window.Size() + growth + growth);
    ::SetWindowPos(m_hWnd, nullptr, place.left, place.top, place.Width(), place.Height(),
                   PlaceOnly);
    if (!alive)
    {
        return;
    }
    GetClientRect(&client);
    const dialogs::MessagePlaces places = dialogs::PlaceMessageParts(
        units, size, client.Size(), m_captionHeight, int(m_buttons.size()));
    Place(m_icon, places.icon);
    Place(*m_text, places.text);
    for (size_t index = 0; alive && index < m_buttons.size(); ++index)
    {
        Place(*m_buttons[index], places.Button(int(index)));
    }
    if (alive && m_text->GetSafeHwnd() != nullptr)
    {
        m_text->SetScrolls(size.scrolls);
    }
}

// Over the window that the box belongs to, or in the middle of the screen.
CRect CZepMsgBoxDlg::CentredPlace(const CSize& size) const
{
    const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
    const bool over = owner != nullptr && ::IsWindowVisible(owner) && !::IsIconic(owner);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfo(::MonitorFromWindow(over ? owner : m_hWnd, MONITOR_DEFAULTTOPRIMARY),
                     &monitor);
    CRect middle = monitor.rcWork;
    if (over)
    {
        ::GetWindowRect(owner, &middle);
    }
    return dialogs::MessageCentred(size, middle, monitor.rcWork);
}

// Following the display mode --------------------------------------------------------------------

void CZepMsgBoxDlg::FollowMode()
{
    const WindowAlive alive(*this);
    m_laidOutFor = COnBoardUIGeneral::GetAppMode();
    CalcStdSizes();
    ShowIcon();
    TakeLook();
    if (alive)
    {
        SizeToText();
    }
    const int focused = alive ? FocusedButton() : -1;
    if (focused >= 0)
    {
        // The platform's button and the library's each remember a focus of their own.
        m_buttons[size_t(focused)]->SendMessage(WM_SETFOCUS);
    }
}

HFONT CZepMsgBoxDlg::StandardFont() const
{
    return m_opening != nullptr ? m_opening->Template().StandardFont()
                                : reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
}

// The fonts and the kinds of the controls in the mode.
void CZepMsgBoxDlg::TakeLook()
{
    const WindowAlive alive(*this);
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    const auto font = WPARAM(StandardFont());
    if (m_text->GetSafeHwnd() != nullptr)
    {
        m_text->SendMessage(WM_SETFONT,
                            onBoard ? WPARAM(CCustomEdit::GetOnBoardFont().GetSafeHandle()) : font);
    }
    const DWORD defaultId = GetDefID();
    for (const auto& button : m_buttons)
    {
        // In the on-board modes a button paints itself.
        const bool isDefault = DWORD(button->GetDlgCtrlID()) == LOWORD(defaultId);
        button->SetButtonStyle(onBoard     ? BS_OWNERDRAW
                               : isDefault ? BS_DEFPUSHBUTTON
                                           : BS_PUSHBUTTON,
                               FALSE);
        button->SendMessage(WM_SETFONT, font);
    }
    const HMENU menu = onBoard ? nullptr : ::GetSystemMenu(m_hWnd, FALSE);
    if (menu != nullptr)
    {
        ::EnableMenuItem(menu, SC_CLOSE, MF_BYCOMMAND | (EscapeId() != 0 ? MF_ENABLED : MF_GRAYED));
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
    // What the control loaded itself is nobody's once it is replaced.
    const HBITMAP before = m_icon.SetBitmap(picture);
    if (before != nullptr && before != HBITMAP(m_iconPicture))
    {
        ::DeleteObject(before);
    }
    m_iconPicture.DeleteObject();
    if (picture.GetSafeHandle() != nullptr)
    {
        m_iconPicture.Attach(picture.Detach());
    }
}
