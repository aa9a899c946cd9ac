#include "CustomButton.h"

#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "buttons/ButtonLayout.h"
#include "modes/PressAndHold.h"
#include "modes/PressFocus.h"
#include "modes/TakenOver.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/BackBuffer.h"
#include "paint/BufferedPaint.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"
#include "paint/SharedObjects.h"

#include <utility>

IMPLEMENT_DYNAMIC(CCustomButton, CButton)

BEGIN_MESSAGE_MAP(CCustomButton, CButton)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CCustomButton::OnPrintClient)
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_MESSAGE(WM_TABLET_QUERYSYSTEMGESTURESTATUS, &CCustomButton::OnQueryGestures)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_MESSAGE(BM_CLICK, &CCustomButton::OnBMClick)
    ON_MESSAGE(BM_SETCHECK, &CCustomButton::OnBMSetCheck)
    ON_MESSAGE(BM_SETSTATE, &CCustomButton::OnBMSetState)
    ON_MESSAGE(BM_GETCHECK, &CCustomButton::OnBMGetCheck)
    ON_MESSAGE(BM_GETSTATE, &CCustomButton::OnBMGetState)
    ON_MESSAGE(WM_SETTEXT, &CCustomButton::OnSetText)
    ON_MESSAGE(access::ActMessage, &CCustomButton::OnAct)
END_MESSAGE_MAP()

CPen CCustomButton::m_OutlinePen;
CPen CCustomButton::m_PressedOutlinePen;
CPen CCustomButton::m_FocusPen;
CPen CCustomButton::m_PressedFocusPen;
CFont CCustomButton::m_Font;

CCustomButton::CCustomButton()
    : m_background(palette::Panel)
{
    MakeControlPen(m_OutlinePen, palette::Outline);
    MakeControlPen(m_PressedOutlinePen, palette::PressedOutline);
    MakeControlFocusPen(m_FocusPen, palette::Outline);
    MakeControlFocusPen(m_PressedFocusPen, palette::PressedOutline);
    OnBoardControlFont(m_Font, LargeOnBoardFont);
    EnableActiveAccessibility();
}

CCustomButton::~CCustomButton() = default;

// One object may serve several windows, one after the other. What was set before the first one
// stays.
void CCustomButton::PreSubclassWindow()
{
    if (std::exchange(m_hadWindow, true))
    {
        m_tracking = false;
        m_pressed = false;
        m_focused = false;
        m_mouseDown = false;
        m_check = BST_UNCHECKED;
        m_spaceHeld = false;
    }
    m_followsFocus = false;
    CButton::PreSubclassWindow();
    ShowTakenOver(*this);
}

// The first question of every handler. A press ends here that a change of the mode has cut off,
// which sends the button no message.
std::optional<bool> CCustomButton::FollowMode()
{
    if (!NoteMode())
    {
        return std::nullopt;
    }
    if (m_tracking && COnBoardUIGeneral::GetAppMode() != m_trackedIn && !SurvivesEnd())
    {
        return std::nullopt;
    }
    return COnBoardUIGeneral::InOnBoardMode(); // may be another by now
}

// The focus is followed on-board here and else by the platform's button: what has become of it
// before is seen with the first message of the mode.
bool CCustomButton::NoteMode()
{
    const bool before = std::exchange(m_followsFocus, COnBoardUIGeneral::InOnBoardMode());
    if (m_followsFocus == before || GetSafeHwnd() == nullptr)
    {
        return true;
    }
    if (m_followsFocus)
    {
        m_focused = ::GetFocus() == m_hWnd;
        return true;
    }
    const WindowAlive alive(*this);
    GiveBackFocus();
    return bool(alive);
}

// Tells the platform's button what it has missed. Its type is a push button's meanwhile: it tells
// the parent nothing, and a radio button is not chosen.
void CCustomButton::GiveBackFocus()
{
    const bool has = ::GetFocus() == m_hWnd;
    if (has == ((DefWindowProc(BM_GETSTATE, 0, 0) & BST_FOCUS) != 0))
    {
        return;
    }
    constexpr DWORD TypeAndWords = BS_TYPEMASK | BS_NOTIFY;
    const DWORD own = GetStyle() & TypeAndWords;
    const WindowAlive alive(*this); // a change of the style is told, and the parent gives colours
    ModifyStyle(TypeAndWords, BS_PUSHBUTTON);
    if (alive)
    {
        DefWindowProc(has ? WM_SETFOCUS : WM_KILLFOCUS, 0, 0);
    }
    if (alive)
    {
        ModifyStyle(TypeAndWords, own);
    }
    if (alive)
    {
        Invalidate(); // the platform only inverts the frame
    }
}

bool CCustomButton::FollowOrPass(LRESULT* answer)
{
    const auto onBoard = FollowMode();
    if (onBoard && !*onBoard)
    {
        const LRESULT result = Default();
        if (answer != nullptr)
        {
            *answer = result;
        }
    }
    return onBoard.value_or(false);
}

// Asked first where input comes. A press ends here that a hidden or disabled parent has cut off,
// which sends the button no message either. Nowhere else: a host that holds back the painting of
// its form asks and sets its buttons then.
bool CCustomButton::EndOutOfReach()
{
    return !m_tracking || !IsOutOfReach(m_hWnd) || SurvivesEnd();
}

// Ends a press; whether the button is still there, be it without a window.
bool CCustomButton::SurvivesEnd()
{
    const bool hadWindow = GetSafeHwnd() != nullptr;
    const WindowAlive alive(*this);
    EndTracking();
    return alive || !hadWindow;
}

// State -----------------------------------------------------------------------------------------

void CCustomButton::SetState(int state)
{
    const auto onBoard = FollowMode();
    if (onBoard.value_or(false))
    {
        OnBMSetState(WPARAM(state), 0);
    }
    else if (onBoard)
    {
        CButton::SetState(state);
    }
}

int CCustomButton::GetCheck() const
{
    return COnBoardUIGeneral::InOnBoardMode() ? m_check : CButton::GetCheck();
}

void CCustomButton::SetCheck(int check)
{
    const auto onBoard = FollowMode();
    if (onBoard.value_or(false))
    {
        OnBMSetCheck(WPARAM(check), 0);
    }
    else if (onBoard)
    {
        CButton::SetCheck(check);
    }
}

void CCustomButton::ChangeCheck(int check)
{
    const WindowAlive alive(*this);
    if (m_check != check)
    {
        m_check = check;
        if (GetSafeHwnd() != nullptr)
        {
            Invalidate(FALSE);
            access::Tell(m_hWnd, EVENT_OBJECT_STATECHANGE); // the platform's button knows nothing
        }
    }
    const UINT type = alive ? GetButtonStyle() & BS_TYPEMASK : 0;
    if (type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON)
    {
        // As the platform's do: the Tab key goes to the one of a group that is chosen.
        ModifyStyle(WS_TABSTOP, check != BST_UNCHECKED ? WS_TABSTOP : 0);
    }
}

// Tracking --------------------------------------------------------------------------------------

void CCustomButton::StartTracking()
{
    if (GetSafeHwnd() == nullptr || ::GetCapture() != nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    if (!TakeFocusForPress(*this) || ::GetCapture() != nullptr)
    {
        return;
    }
    SetCapture();
    if (!alive || ::GetCapture() != m_hWnd)
    {
        return; // a listener has heard of it
    }
    m_tracking = true;
    m_trackedIn = COnBoardUIGeneral::GetAppMode();
    m_pressed = true;
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        DrawOB(); // asks for the text
    }
    if (alive)
    {
        access::Tell(m_hWnd, EVENT_OBJECT_STATECHANGE);
    }
}

// The one end of every press. Reached from the release, the loss of capture, focus or visibility, a
// disabled or destroyed window and a changed mode.
void CCustomButton::EndTracking()
{
    const bool wasPressed = m_pressed;
    m_pressed = false;
    m_tracking = false;
    m_spaceHeld = false;
    if (GetSafeHwnd() == nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    if (::GetCapture() == m_hWnd)
    {
        ::ReleaseCapture();
        if (alive && COnBoardUIGeneral::InOnBoardMode())
        {
            DrawOB();
        }
    }
    if (alive && wasPressed)
    {
        access::Tell(m_hWnd, EVENT_OBJECT_STATECHANGE);
    }
}

bool CCustomButton::InButtonRect(const CPoint& point)
{
    CRect client;
    GetClientRect(&client);
    return client.PtInRect(point);
}

// Clicks ----------------------------------------------------------------------------------------

void CCustomButton::NotifyParentClicked()
{
    if (CWnd* const parent = GetParent(); parent != nullptr)
    {
        NotifyWindowClicked(parent);
    }
}

void CCustomButton::NotifyWindowClicked(CWnd* window)
{
    if (window == nullptr)
    {
        return;
    }
    // Meant: only the low 16 bits of the handle go along. Hosts tell the button by its id.
    const auto handle = reinterpret_cast<UINT_PTR>(m_hWnd);
    window->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), BN_CLICKED), LOWORD(handle));
}

void CCustomButton::HandleKeyDown(UINT key, UINT, UINT)
{
    // The platform's button would be pushed anew by each repeat of a held space key.
    if (key != VK_SPACE || !m_spaceHeld)
    {
        Default();
    }
}

void CCustomButton::ClickByKey()
{
    const WindowAlive alive(*this);
    HandleBMClick();
    if (alive && COnBoardUIGeneral::InOnBoardMode())
    {
        DrawOB();
    }
}

void CCustomButton::GetSiblingControls(std::vector<CWnd*>& controls, DWORD style)
{
    for (HWND window = ::GetWindow(m_hWnd, GW_HWNDFIRST); window != nullptr;
         window = ::GetWindow(window, GW_HWNDNEXT))
    {
        if ((DWORD(::GetWindowLongPtr(window, GWL_STYLE)) & style) == style)
        {
            controls.push_back(CWnd::FromHandle(window));
        }
    }
}

// Painting --------------------------------------------------------------------------------------

void CCustomButton::DrawOB()
{
    if (GetSafeHwnd() == nullptr)
    {
        return;
    }
    if (!NoteMode())
    {
        return;
    }
    if (OwnContext dc(m_hWnd, OwnContext::Client); dc)
    {
        CRect client;
        GetClientRect(&client);
        BackBuffer buffer(dc, client);
        DrawOB(buffer);
    }
}

void CCustomButton::DrawChoice(CDC& dc, const std::function<void(const CRect&, CRect&)>& drawMark)
{
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, m_background);

    const Selected pen(dc, m_OutlinePen);
    const Selected brush(dc, ::GetStockObject(NULL_BRUSH));
    const Selected font(dc, m_Font);
    const BackgroundMode mode(dc, TRANSPARENT);
    const TextColor color(dc,
                          IsWindowEnabled() ? palette::ButtonText : palette::ChoiceTextDisabled);
    const CRect item = buttons::ItemArea(client);
    CRect mark;
    drawMark(item, mark);
    DrawRCText(dc, item, mark);
}

void CCustomButton::DrawRCText(CDC& dc, const CRect& item, const CRect& mark)
{
    const WindowAlive alive(*this);
    CString text;
    GetWindowText(text);
    if (!alive)
    {
        return;
    }
    const UINT format = buttons::MarkCaptionFormat(GetStyle());
    CRect measured = buttons::CaptionArea(item, mark);
    dc.DrawText(text, &measured, format | DT_CALCRECT);
    CRect caption = buttons::CentredCaption(measured, item);
    if (m_focused)
    {
        const Selected pen(dc, m_FocusPen);
        const Selected brush(dc, ::GetStockObject(NULL_BRUSH)); // a frame alone
        dc.Rectangle(buttons::FocusFrame(caption));
    }
    // A letter may reach a little beyond its measured width; only the window cuts a caption.
    dc.DrawText(text, &caption, format | DT_NOCLIP);
}

void CCustomButton::OnDestroy()
{
    if (SurvivesEnd())
    {
        CButton::OnDestroy();
    }
}

void CCustomButton::OnPaint()
{
    if (FollowOrPass())
    {
        PaintBuffered(*this, [this](CDC& dc) { DrawOB(dc); });
    }
}

void CCustomButton::OnEnable(BOOL enable)
{
    if (FollowOrPass() && (enable || SurvivesEnd()))
    {
        Invalidate(FALSE);
    }
}

void CCustomButton::OnShowWindow(BOOL show, UINT)
{
    const auto onBoard = FollowMode();
    if (onBoard && (!*onBoard || show || SurvivesEnd()))
    {
        Default();
    }
}

void CCustomButton::OnUpdateUIState(UINT, UINT)
{
    if (FollowOrPass())
    {
        DrawOB();
    }
}
