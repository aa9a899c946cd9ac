// The message box: its parts, and what it does with commands and keys.

#include "ZepMsgBoxDlg.h"

#include "MessageBoxResources.h"
#include "OnBoardUIGeneral.h"
#include "dialogs/Opening.h"
#include "modes/KeyState.h"
#include "modes/Meanwhile.h"
#include "modes/WindowAlive.h"
#include "windows/MessageBoxLayout.h"
#include "windows/MessageText.h"

#include <cctype>
#include <span>
#include <utility>

IMPLEMENT_DYNAMIC(CZepMsgBoxDlg, CCustomDialog)

BEGIN_MESSAGE_MAP(CZepMsgBoxDlg, CCustomDialog)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SIZE()
    ON_WM_WINDOWPOSCHANGING()
END_MESSAGE_MAP()

namespace {

struct ButtonEntry
{
    const char* caption;
    int id;
};

// The buttons of each type, from left to right.
constexpr ButtonEntry Ok[] = {{"OK", IDOK}};
constexpr ButtonEntry OkCancel[] = {{"OK", IDOK}, {"Cancel", IDCANCEL}};
constexpr ButtonEntry AbortRetryIgnore[] = {
    {"Abort", IDABORT}, {"Retry", IDRETRY}, {"Ignore", IDIGNORE}};
constexpr ButtonEntry YesNoCancel[] = {{"Yes", IDYES}, {"No", IDNO}, {"Cancel", IDCANCEL}};
constexpr ButtonEntry YesNo[] = {{"Yes", IDYES}, {"No", IDNO}};
constexpr ButtonEntry RetryCancel[] = {{"Retry", IDRETRY}, {"Cancel", IDCANCEL}};

// In the order of the type bits; none for types beyond.
constexpr std::span<const ButtonEntry> ButtonSets[] = {Ok,          OkCancel, AbortRetryIgnore,
                                                       YesNoCancel, YesNo,    RetryCancel};

std::span<const ButtonEntry> ButtonsOf(unsigned int style)
{
    const unsigned int type = style & MB_TYPEMASK;
    return type < std::size(ButtonSets) ? ButtonSets[type] : std::span<const ButtonEntry>();
}

} // namespace

CZepMsgBoxDlg::CZepMsgBoxDlg(const char* text, unsigned int style, const CSize& area,
                             IAppAccess* host)
    : CCustomDialog(IDD, nullptr, host)
    , m_style(style)
    , m_area(area)
    , m_text(std::make_unique<windows::MessageText>())
{
    static_assert(IDD == IDD_MESSAGE_BOX);
    m_layOutForMode = [](CCustomDialog& box) { static_cast<CZepMsgBoxDlg&>(box).FollowMode(); };
    m_message.SetString(text);
    m_displayText = m_message;
    DetermineIcon();
}

CZepMsgBoxDlg::~CZepMsgBoxDlg()
{
    // While the parts are still there that the window shows.
    if (GetSafeHwnd() != nullptr && FromHandlePermanent(GetSafeHwnd()) == this)
    {
        CCustomDialog::DestroyWindow();
    }
}

void CZepMsgBoxDlg::DetermineIcon()
{
    switch (m_style & MB_ICONMASK)
    {
    case MB_ICONHAND:
        m_iconId = IDB_MESSAGE_HAND;
        return;
    case MB_ICONQUESTION:
        m_iconId = IDB_MESSAGE_QUESTION;
        return;
    case MB_ICONEXCLAMATION:
        m_iconId = IDB_MESSAGE_EXCLAMATION;
        return;
    case MB_ICONASTERISK:
        m_iconId = IDB_MESSAGE_ASTERISK;
        return;
    default:
        break;
    }
    const unsigned int type = m_style & MB_TYPEMASK;
    m_iconId =
        type == MB_OK || type == MB_OKCANCEL ? IDB_MESSAGE_EXCLAMATION : IDB_MESSAGE_QUESTION;
}

// Opening ---------------------------------------------------------------------------------------

void CZepMsgBoxDlg::DoDataExchange(CDataExchange* exchange)
{
    CCustomDialog::DoDataExchange(exchange);
    // A template of the application's own may do without them.
    if (::GetDlgItem(m_hWnd, IDC_MESSAGE_ICON) != nullptr)
    {
        DDX_Control(exchange, IDC_MESSAGE_ICON, m_icon);
    }
    if (::GetDlgItem(m_hWnd, IDC_MESSAGE_TEXT) != nullptr)
    {
        DDX_Control(exchange, IDC_MESSAGE_TEXT, *m_text);
    }
}

windows::MessageText& CZepMsgBoxDlg::Text()
{
    return static_cast<windows::MessageText&>(*m_text);
}

INT_PTR CZepMsgBoxDlg::DoModal()
{
    m_buttonPressed = 0; // also if no window is made
    return CCustomDialog::DoModal();
}

int CZepMsgBoxDlg::OnCreate(LPCREATESTRUCT cs)
{
    // A box can be shown again: its parts begin anew with each window.
    m_buttonPressed = 0;
    m_laidOutFor.reset();
    m_layingOut = m_layoutDue = m_beingCreated = false;
    m_sizing = true; // its lines are made when it initialises
    m_shownText.Empty();
    m_buttons.clear();
    m_text = std::make_unique<windows::MessageText>();
    m_opensWith.reset();
    const Meanwhile created(*this, m_beingCreated);
    return CCustomDialog::OnCreate(cs);
}

BOOL CZepMsgBoxDlg::OnInitDialog()
{
    const WindowAlive alive(*this);
    CCustomDialog::OnInitDialog();
    if (!alive)
    {
        return TRUE;
    }
    m_sizing = false;
    m_standardTextWidth = TemplateTextWidth();

    CalcStdSizes();
    SplitText();
    CreateButtons();
    if (alive && m_icon.GetSafeHwnd() != nullptr)
    {
        // What the control loaded from the template is nobody's once it is replaced.
        ::DeleteObject(m_icon.SetBitmap(nullptr));
    }
    if (alive)
    {
        ShowIcon();
    }
    if (alive)
    {
        SetWindowText(COnBoardUIGeneral::GetAppTitle());
    }
    if (alive)
    {
        m_laidOutFor = COnBoardUIGeneral::GetAppMode();
        m_layingOut = true;
        TakeLook();
    }
    if (alive)
    {
        SizeToText();
    }
    if (alive)
    {
        LayOutUntilSettled();
    }
    if (alive)
    {
        // Last: each new width of the edit would break a long text anew.
        ShowText();
    }
    if (alive)
    {
        ::SetWindowPos(m_hWnd, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    }
    if (!alive || m_buttons.empty())
    {
        return TRUE;
    }
    Focus(DefaultButton());
    return FALSE;
}

int CZepMsgBoxDlg::ButtonCount() const
{
    return int(ButtonsOf(m_style).size());
}

void CZepMsgBoxDlg::CreateButtons()
{
    CRect client;
    GetClientRect(&client);
    // Anywhere, until the box is sized.
    const CRect place(
        CPoint((client.Width() - m_buttonSize.cx) / 2, client.bottom - 2 * m_buttonSize.cy),
        m_buttonSize);
    const WindowAlive alive(*this);
    for (const ButtonEntry& button : ButtonsOf(m_style))
    {
        if (!alive)
        {
            return;
        }
        CreateButton(place, button.caption, UINT(button.id));
    }
}

void CZepMsgBoxDlg::CreateButton(const CRect& rect, const char* caption, unsigned int id)
{
    auto button = std::make_unique<CCustomPushbutton>();
    const DWORD kind = COnBoardUIGeneral::InOnBoardMode() ? BS_OWNERDRAW : BS_PUSHBUTTON;
    const WindowAlive alive(*this);
    if (button->Create(caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP | kind, rect, this, id) && alive)
    {
        m_buttons.push_back(std::move(button));
    }
}

// Messages --------------------------------------------------------------------------------------

BOOL CZepMsgBoxDlg::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const int id = LOWORD(wParam);
    constexpr WORD Accelerator = 1;
    const bool pressed = HIWORD(wParam) == BN_CLICKED || HIWORD(wParam) == Accelerator;
    if (!pressed || id < IDOK || id > IDNO)
    {
        return CCustomDialog::OnCommand(wParam, lParam);
    }
    m_buttonPressed = id;
    // Whatever is no Cancel ends the box as OK does.
    return CCustomDialog::OnCommand(MAKEWPARAM(id == IDCANCEL ? IDCANCEL : IDOK, HIWORD(wParam)),
                                    lParam);
}

void CZepMsgBoxDlg::OnClose()
{
    Answer(EscapeId());
}

// The icon lies on the dialogs' ground.
void CZepMsgBoxDlg::OnSysColorChange()
{
    const WindowAlive alive(*this);
    CCustomDialog::OnSysColorChange();
    if (alive)
    {
        ShowIcon();
    }
}

void CZepMsgBoxDlg::OnSize(UINT type, int width, int height)
{
    const WindowAlive alive(*this);
    CCustomDialog::OnSize(type, width, height);
    if (alive && !m_sizing)
    {
        SplitText();
    }
}

void CZepMsgBoxDlg::OnWindowPosChanging(WINDOWPOS* position)
{
    const WindowAlive alive(*this);
    CCustomDialog::OnWindowPosChanging(position);
    constexpr UINT FrameOnly = SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE;
    if (alive && position != nullptr && m_opening != nullptr &&
        (position->flags & FrameOnly) == FrameOnly && std::exchange(m_beingCreated, false))
    {
        OpenInPlace(*position);
    }
}

// Answers ---------------------------------------------------------------------------------------

// The button with this window, or -1.
int CZepMsgBoxDlg::ButtonWith(HWND window) const
{
    for (size_t index = 0; window != nullptr && index < m_buttons.size(); ++index)
    {
        if (m_buttons[index]->GetSafeHwnd() == window)
        {
            return int(index);
        }
    }
    return -1;
}

int CZepMsgBoxDlg::FocusedButton() const
{
    return ButtonWith(::GetFocus());
}

// The one that the style names; the first, when it names one that is not there.
int CZepMsgBoxDlg::DefaultButton() const
{
    constexpr int DefaultShift = 8; // of the bits in the style
    const int named = int((m_style & MB_DEFMASK) >> DefaultShift);
    return named < int(m_buttons.size()) ? named : 0;
}

// The one that is shown as the default one: the arrows move it. -1 for none.
int CZepMsgBoxDlg::ShownDefaultButton() const
{
    const WindowAlive alive(*this); // it is asked
    const DWORD id = GetDefID();
    if (!alive || m_buttons.empty())
    {
        return -1;
    }
    const int shown = ButtonWith(::GetDlgItem(m_hWnd, LOWORD(id)));
    return shown >= 0 ? shown : DefaultButton();
}

void CZepMsgBoxDlg::Focus(int button)
{
    const WindowAlive alive(*this);
    CWnd* const target = m_buttons[size_t(button)].get();
    SetDefID(UINT(target->GetDlgCtrlID()));
    if (alive)
    {
        GotoDlgCtrl(target);
    }
}

// What Escape and the close box answer; 0 for nothing. A box without buttons can be closed.
int CZepMsgBoxDlg::EscapeId() const
{
    const unsigned int type = m_style & MB_TYPEMASK;
    const bool choice = type == MB_YESNO || type == MB_ABORTRETRYIGNORE;
    return type == MB_OK ? IDOK : choice ? 0 : IDCANCEL;
}

void CZepMsgBoxDlg::Answer(int id)
{
    const HWND button = ::GetDlgItem(m_hWnd, id);
    if (id != 0 && (button == nullptr || ::IsWindowEnabled(button)))
    {
        SendMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), LPARAM(button));
    }
}

// Messages of the windows that the box owns come here too, and so do those of controls that a
// derived class has added: their keys are their own.
bool CZepMsgBoxDlg::IsOwnPart(HWND window) const
{
    return window == m_hWnd || (window != nullptr && window == m_text->GetSafeHwnd()) ||
           ButtonWith(window) >= 0;
}

// Whether a key stands for Escape. An added control may want it for itself, such as to close a list
// that it has dropped; passed on by any other it would be a Cancel, which the box need not have.
bool CZepMsgBoxDlg::IsEscape(const MSG& message) const
{
    // Ctrl+Break stands for Escape in every dialog.
    if (message.message != WM_KEYDOWN ||
        (message.wParam != VK_ESCAPE && message.wParam != VK_CANCEL))
    {
        return false;
    }
    return IsOwnPart(message.hwnd) || (::IsChild(m_hWnd, message.hwnd) &&
                                       (::SendMessage(message.hwnd, WM_GETDLGCODE, message.wParam,
                                                      reinterpret_cast<LPARAM>(&message)) &
                                        DLGC_WANTMESSAGE) == 0);
}

BOOL CZepMsgBoxDlg::PreTranslateMessage(MSG* message)
{
    if (message == nullptr)
    {
        return FALSE;
    }
    const WindowAlive alive(*this);
    const bool escape = IsEscape(*message);
    if (!alive)
    {
        return TRUE;
    }
    if (escape)
    {
        Answer(EscapeId());
        return TRUE;
    }
    switch (message->message)
    {
    case WM_KEYDOWN:
        if (IsOwnPart(message->hwnd) && PressKey(UINT(message->wParam)))
        {
            return TRUE;
        }
        break;
    case WM_CHAR:
    case WM_SYSCHAR:
        if (IsOwnPart(message->hwnd) && PressInitial(UINT(message->wParam)))
        {
            return TRUE;
        }
        break;
    case WM_MOUSEWHEEL:
        // It goes to the focus, which a button has.
        if (FocusedButton() >= 0 && m_text->GetSafeHwnd() != nullptr)
        {
            Text().ScrollByWheel(GET_WHEEL_DELTA_WPARAM(message->wParam));
            return TRUE;
        }
        break;
    default:
        break;
    }
    return CCustomDialog::PreTranslateMessage(message);
}

// Whether the key was one of the box's own.
bool CZepMsgBoxDlg::PressKey(UINT key)
{
    const int focused = FocusedButton();
    const int count = int(m_buttons.size());
    switch (key)
    {
    case VK_RETURN:
    {
        const WindowAlive alive(*this);
        const int pressed = focused >= 0 ? focused : ShownDefaultButton();
        if (alive)
        {
            Answer(pressed < 0 ? IDOK : m_buttons[size_t(pressed)]->GetDlgCtrlID());
        }
        return true;
    }
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
    {
        if (focused < 0)
        {
            return false;
        }
        constexpr DWORD Stop = WS_VISIBLE | WS_DISABLED;
        const int step = key == VK_LEFT || key == VK_UP ? count - 1 : 1;
        int next = focused;
        do
        {
            next = (next + step) % count;
        } while (next != focused && (m_buttons[size_t(next)]->GetStyle() & Stop) != WS_VISIBLE);
        Focus(next);
        return true;
    }
    case VK_PRIOR:
    case VK_NEXT:
    case VK_HOME:
    case VK_END:
        return m_text->GetSafeHwnd() != nullptr && Text().ScrollByKey(key);
    case 'C':
    case VK_INSERT:
        if (IsKeyDown(VK_CONTROL) && m_text->GetSafeHwnd() != nullptr)
        {
            Text().CopyAll();
            return true;
        }
        return false;
    default:
        return false;
    }
}

bool CZepMsgBoxDlg::PressInitial(UINT character)
{
    for (const ButtonEntry& button : ButtonsOf(m_style))
    {
        if (character < 0x80 && std::toupper(int(character)) == button.caption[0])
        {
            Answer(button.id);
            return true;
        }
    }
    return false;
}
