#include "CustomRadiobutton.h"

#include "buttons/ButtonLayout.h"
#include "buttons/RadioCircle.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"
#include "paint/SharedObjects.h"

#include <algorithm>
#include <span>

IMPLEMENT_DYNAMIC(CCustomRadiobutton, CCustomButton)

BEGIN_MESSAGE_MAP(CCustomRadiobutton, CCustomButton)
    ON_WM_UPDATEUISTATE()
END_MESSAGE_MAP()

CBrush CCustomRadiobutton::m_DotBrush;

namespace {

constexpr DWORD GroupBoxBits = BS_GROUPBOX;

// Made at the first circle and kept for the life of the process.
struct MarkPens
{
    explicit MarkPens(const palette::Mark& colors)
        : rim(PS_INSIDEFRAME, 1, colors.rim)
        , light(PS_INSIDEFRAME, 1, colors.light)
        , face(PS_INSIDEFRAME, 1, colors.face)
        , sign(PS_INSIDEFRAME, 1, colors.sign)
    {}

    CPen rim, light, face, sign;
};

const MarkPens& PensOf(bool enabled)
{
    static const MarkPens on(palette::MarkEnabled);
    static const MarkPens off(palette::MarkDisabled);
    return enabled ? on : off;
}

void DrawSpans(CDC& dc, CPoint origin, std::span<const buttons::CircleSpan> spans, const CPen& pen)
{
    const Selected selected(dc, pen);
    for (const buttons::CircleSpan& span : spans)
    {
        dc.MoveTo(origin.x + span.from, origin.y + span.row);
        dc.LineTo(origin.x + span.to, origin.y + span.row);
    }
}

bool IsGroupHead(HWND window)
{
    return CCustomRadiobutton::IsAutoRadioGroupCtrl(CWnd::FromHandle(window));
}

// The radio button with WS_GROUP that the group of this one begins with, or null.
HWND GroupHead(HWND parent, HWND button)
{
    // The dialog's order leaves out what is hidden or disabled, so that a walk may never come back
    // to where it began; it ends at the first window seen twice.
    std::vector<HWND> seen;
    for (HWND window = button;
         window != nullptr && std::find(seen.begin(), seen.end(), window) == seen.end();
         window = ::GetNextDlgGroupItem(parent, window, TRUE))
    {
        if (IsGroupHead(window))
        {
            return window;
        }
        seen.push_back(window);
    }
    return nullptr;
}

// The group from its head on, in the dialog's order.
std::vector<HWND> GroupFrom(HWND parent, HWND head)
{
    std::vector<HWND> group;
    for (HWND window = head;
         window != nullptr && std::find(group.begin(), group.end(), window) == group.end();
         window = ::GetNextDlgGroupItem(parent, window, FALSE))
    {
        group.push_back(window);
    }
    return group;
}

} // namespace

CCustomRadiobutton::CCustomRadiobutton()
{
    MakeControlBrush(m_DotBrush, palette::RadioDot);
}

CCustomRadiobutton::~CCustomRadiobutton() = default;

// Meant: the bits are tested and not the type compared, so owner-drawn and some other buttons count
// as well.
bool CCustomRadiobutton::IsAutoRadio(CWnd* window)
{
    return window != nullptr && (window->GetStyle() & BS_AUTORADIOBUTTON) == BS_AUTORADIOBUTTON;
}

bool CCustomRadiobutton::IsAutoRadioGroupCtrl(CWnd* window)
{
    return IsAutoRadio(window) && (window->GetStyle() & WS_GROUP) != 0;
}

void CCustomRadiobutton::HandleBMClick()
{
    const WindowAlive alive(*this);
    if (m_check == BST_UNCHECKED || m_check == BST_INDETERMINATE)
    {
        ChangeCheck(BST_CHECKED);
    }
    if (alive && m_check == BST_CHECKED)
    {
        HandleRadioGroup();
    }
}

void CCustomRadiobutton::HandleRadioGroup()
{
    const HWND self = m_hWnd;
    const HWND parent = ::GetParent(self);
    const HWND head = parent == nullptr ? nullptr : GroupHead(parent, self);
    if (head == nullptr)
    {
        return;
    }
    // All taken first: a member may destroy others when it is told, this button among them.
    for (const HWND window : GroupFrom(parent, head))
    {
        if (!::IsWindow(window) || !IsAutoRadio(CWnd::FromHandle(window)))
        {
            continue;
        }
        ::SendMessage(window, BM_SETCHECK, window == self ? BST_CHECKED : BST_UNCHECKED, 0);
        ::InvalidateRect(window, nullptr, TRUE);
        ::UpdateWindow(window);
    }
}

void CCustomRadiobutton::HandleGroupClick()
{
    std::vector<CWnd*> siblings;
    GetSiblingControls(siblings, GroupBoxBits);
    CRect own;
    GetWindowRect(&own);
    // By handle: objects that stand for another's window go while a told window pumps messages.
    std::vector<HWND> boxes;
    for (const CWnd* sibling : siblings)
    {
        CRect box;
        sibling->GetWindowRect(&box);
        if (CRect common; common.IntersectRect(&own, &box))
        {
            boxes.push_back(sibling->GetSafeHwnd());
        }
    }
    const WindowAlive alive(*this);
    for (const HWND box : boxes)
    {
        if (::IsWindow(box))
        {
            NotifyWindowClicked(CWnd::FromHandle(box));
        }
        if (!alive)
        {
            return;
        }
    }
}

void CCustomRadiobutton::HandleKeyDown(UINT key, UINT, UINT)
{
    if (key == VK_SPACE && m_check != BST_CHECKED)
    {
        ClickByKey();
    }
}

void CCustomRadiobutton::DrawOB(CDC& dc)
{
    DrawChoice(dc, [&](const CRect& item, CRect& mark) { DrawRadioCircle(dc, item, mark); });
}

void CCustomRadiobutton::DrawRadioCircle(CDC& dc, const CRect& item, CRect& mark)
{
    mark = buttons::RadioSquare(item);
    const MarkPens& pens = PensOf(IsWindowEnabled() != FALSE);
    const CPoint origin = mark.TopLeft();
    DrawSpans(dc, origin, buttons::CircleRim, pens.rim);
    DrawSpans(dc, origin, buttons::CircleLight, pens.light);
    DrawSpans(dc, origin, buttons::CircleFace, pens.face);
    if (m_check != BST_UNCHECKED)
    {
        DrawSpans(dc, origin, buttons::CircleDot, pens.sign);
    }
}

void CCustomRadiobutton::OnUpdateUIState(UINT, UINT)
{
    // Meant: in the standard mode the message goes no further. The focus cues of a group stay as
    // they were when the dialog opened.
    if (FollowMode().value_or(false))
    {
        DrawOB();
    }
}
