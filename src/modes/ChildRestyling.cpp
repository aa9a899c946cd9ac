#include "modes/ChildRestyling.h"

#include "CustomDropListCombo.h"
#include "CustomEdit.h"
#include "CustomListBox.h"
#include "CustomListCtrl.h"
#include "OnBoardUI.h"
#include "OnBoardUIGeneral.h"
#include "lists/ComboScaling.h"
#include "modes/Rounding.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"

#include <afxcmn.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr double JustAboveOne = 1.0000000000000002;
constexpr double RichEditHeightFactor = 1.25;
constexpr int TabHeightExtra = 3; // pixels between a tab's text and its edge

// Between two on-board modes (factor 1) everything narrows by the widening: it is meant.
double Across(double length, double scale)
{
    return scale > JustAboveOne ? length * scale * metrics::OnBoardWidening
                                : length * scale / metrics::OnBoardWidening;
}

int Sum(int a, int b)
{
    return Truncated(double(a) + b);
}

// Size of a rectangle whose edges may be as far apart as numbers go.
CSize SizeOf(const CRect& rect)
{
    return CSize(Truncated(double(rect.right) - rect.left),
                 Truncated(double(rect.bottom) - rect.top));
}

void SendFont(HWND child, const CFont& font)
{
    if (font.GetSafeHandle() != nullptr)
    {
        ::SendMessage(child, WM_SETFONT, WPARAM(font.GetSafeHandle()), TRUE);
    }
}

void RestyleListBox(HWND child, APPMODE mode)
{
    if (mode != STD)
    {
        SendFont(child, CCustomListBox::GetOnBoardFont());
        return;
    }
    // The on-board list box took the platform's bar away; its own bar needs none.
    const LONG_PTR style = ::GetWindowLongPtr(child, GWL_STYLE);
    if ((style & WS_VSCROLL) == 0)
    {
        ::SetWindowLongPtr(child, GWL_STYLE, style | WS_VSCROLL);
    }
    SendFont(child, CCustomListBox::GetStdFont());
}

void RestyleRichEdit(HWND child, APPMODE mode)
{
    auto* edit = DYNAMIC_DOWNCAST(CRichEditCtrl, CWnd::FromHandlePermanent(child));
    if (edit == nullptr)
    {
        return;
    }
    const WindowAlive alive(*edit);
    CHARFORMAT format = {};
    format.cbSize = sizeof(format);
    format.dwMask = CFM_BOLD | CFM_FACE | CFM_SIZE;
    edit->GetDefaultCharFormat(format);
    format.dwMask = CFM_BOLD | CFM_FACE | CFM_SIZE;
    if (mode == STD)
    {
        ::lstrcpyn(format.szFaceName, "MS Sans Serif", LF_FACESIZE);
        format.yHeight = Truncated(format.yHeight / RichEditHeightFactor);
        format.dwEffects &= ~DWORD(CFE_BOLD);
    }
    else
    {
        ::lstrcpyn(format.szFaceName, "Arial", LF_FACESIZE);
        format.yHeight = Truncated(format.yHeight * RichEditHeightFactor);
        format.dwEffects |= CFE_BOLD;
    }
    if (alive)
    {
        edit->SetBackgroundColor(FALSE, palette::Field);
    }
    if (alive)
    {
        edit->SetDefaultCharFormat(format);
    }
}

void ResizeTabs(HWND child, double scale)
{
    auto* tabs = DYNAMIC_DOWNCAST(CTabCtrl, CWnd::FromHandlePermanent(child));
    if (tabs == nullptr)
    {
        return;
    }
    const WindowAlive alive(*tabs);
    CRect item;
    if (tabs->GetItemRect(0, &item) && alive) // the question may end it
    {
        tabs->SetItemSize(CSize(Truncated(Across(item.Width(), scale)),
                                Sum(Truncated(item.Height() * scale), TabHeightExtra)));
    }
}

} // namespace

CRect RescaledRect(const CRect& rect, double scale)
{
    const int left = Truncated(Across(rect.left, scale));
    const int top = Truncated(rect.top * scale);
    const CSize size = SizeOf(rect);
    return CRect(left, top, Sum(left, Truncated(Across(size.cx, scale))),
                 Sum(top, Truncated(size.cy * scale)));
}

namespace {

struct Placed
{
    HWND window = nullptr;
    bool onBoard = false;
    bool moves = false; // else it is prepared for that
};
Placed s_placed;

// Marks the window that is being placed; what it does may place others.
class Placing
{
public:
    Placing(HWND window, bool onBoard)
        : m_outer(std::exchange(s_placed, {window, onBoard}))
    {}
    Placing(const Placing&) = delete;
    Placing& operator=(const Placing&) = delete;
    ~Placing() { s_placed = m_outer; }

    void Move() { s_placed.moves = true; }

private:
    Placed m_outer;
};

} // namespace

bool IsBeingPlaced(HWND window)
{
    return window != nullptr && window == s_placed.window;
}

bool IsPlaceToCome(HWND window)
{
    return IsBeingPlaced(window) &&
           (!s_placed.moves || s_placed.onBoard != COnBoardUIGeneral::InOnBoardMode());
}

bool IsBeingPlacedOnBoard(HWND window)
{
    return IsBeingPlaced(window) && s_placed.onBoard;
}

BOOL CALLBACK ModifyChildsForAppMode(HWND child, LPARAM data)
{
    const auto* change = reinterpret_cast<const ModifyChildWndsData*>(data);
    // The system's enumeration visits grandchildren too.
    // Without a parent the record would take in every top-level window.
    if (change == nullptr || child == nullptr || change->parent == nullptr ||
        ::GetParent(child) != change->parent)
    {
        return TRUE;
    }
    const auto is = [child](const char* wanted) { return IsOfClass(child, wanted); };
    const bool standard = change->mode == STD;
    Placing placing(child, !standard);

    const bool combo = is("ComboBox");
    if (combo && ::SendMessage(child, CB_GETDROPPEDSTATE, 0, 0) != 0)
    {
        // Its new place would hide its list, which would keep the pointer for itself.
        ::SendMessage(child, CB_SHOWDROPDOWN, FALSE, 0);
    }
    if (is("Edit") && ::GetCapture() == child)
    {
        // A press in the text, which would go on selecting to whatever letter comes to lie under
        // the pointer.
        ::SendMessage(child, WM_CANCELMODE, 0, 0);
    }
    CRect target = RescaledRect(PlaceIn(change->parent, child), change->scale);
    UINT flags = SWP_NOZORDER;

    if (combo)
    {
        // A combo's window height takes in its list.
        CRect dropped;
        ::SendMessage(child, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
        const int height = SizeOf(dropped).cy;
        target.bottom = Sum(target.bottom, standard ? height : Truncated(height * change->scale));
    }
    else if (is("CCUSTOMDROPLISTCOMBO"))
    {
        SendFont(child, standard ? CCustomDropListCombo::GetStdFont()
                                 : CCustomDropListCombo::GetOnBoardFont());
    }
    else if (is("SysListView32"))
    {
        flags |= SWP_FRAMECHANGED;
        SendFont(child,
                 standard ? CCustomListCtrl::GetStdFont() : CCustomListCtrl::GetOnBoardFont());
    }
    else if (is("ListBox"))
    {
        RestyleListBox(child, change->mode);
    }
    else if (is("Edit"))
    {
        SendFont(child, standard ? CCustomEdit::GetStdFont() : CCustomEdit::GetOnBoardFont());
    }
    else if (is("RichEdit20A"))
    {
        RestyleRichEdit(child, change->mode);
    }
    else if (is("SysTabControl32"))
    {
        ResizeTabs(child, change->scale);
    }
    CSize size = SizeOf(target);
    size.cy = lists::ComboScaling::HeightOf(child, change->scale, size.cy);
    placing.Move();
    ::SetWindowPos(child, nullptr, target.left, target.top, size.cx, size.cy, flags);
    return TRUE;
}

GivingPlace::GivingPlace(HWND child)
    : m_child(child)
    , m_outer(std::exchange(s_innermost, this))
{}

GivingPlace::~GivingPlace()
{
    for (size_t next = 0; next < m_changes.size(); ++next)
    {
        ModifyChildWndsData change = m_changes[next];
        ModifyChildsForAppMode(m_child, reinterpret_cast<LPARAM>(&change));
    }
    s_innermost = m_outer;
}

bool GivingPlace::PutOff(HWND child, const ModifyChildWndsData& change)
{
    GivingPlace* outermost = nullptr;
    for (GivingPlace* each = s_innermost; each != nullptr; each = each->m_outer)
    {
        outermost = each->m_child == child ? each : outermost;
    }
    if (outermost != nullptr)
    {
        outermost->m_changes.push_back(change);
    }
    return outermost != nullptr;
}

namespace {

// The children of one window on their way through a change of the mode. What one of them hears may
// change the mode again: those that have not had their turn have it then, before that change comes
// to them, and the one that hears goes through it once it has its place, which would else overwrite
// the next one.
class Restyling
{
public:
    Restyling(HWND window, double scale, std::span<const HWND> placed, BeforeChild before)
        : m_placed(placed)
        , m_before(before)
        , m_children(ChildrenNow(window))
        , m_outer(s_innermost)
    {
        m_change.parent = window;
        m_change.scale = scale;
        m_change.mode = COnBoardUIGeneral::GetAppMode();
        // What those change once more comes after this change.
        s_innermost = this;
        FinishThoseOf(window, m_outer);
    }
    Restyling(const Restyling&) = delete;
    Restyling& operator=(const Restyling&) = delete;
    ~Restyling() { s_innermost = m_outer; }

    // Returns the children, of which some may have ended.
    const std::vector<HWND>& Finish()
    {
        while (m_next < m_children.size())
        {
            const HWND child = m_children[m_next++];
            if (::IsWindow(child))
            {
                Restyle(child);
            }
        }
        return m_children;
    }

private:
    std::span<const HWND> m_placed;
    BeforeChild m_before;
    ModifyChildWndsData m_change;
    std::vector<HWND> m_children;
    size_t m_next = 0;
    Restyling* m_outer;

    static inline Restyling* s_innermost = nullptr;

    // From the outermost, which began first.
    static void FinishThoseOf(HWND window, Restyling* innermost)
    {
        if (innermost == nullptr)
        {
            return;
        }
        FinishThoseOf(window, innermost->m_outer);
        if (innermost->m_change.parent == window)
        {
            innermost->Finish();
        }
    }

    void Restyle(HWND child) const
    {
        if (GivingPlace::PutOff(child, m_change))
        {
            return;
        }
        if (m_before != nullptr)
        {
            m_before(child);
        }
        if (std::ranges::find(m_placed, child) == m_placed.end())
        {
            const GivingPlace giving(child);
            GivingPlace::PutOff(child, m_change);
        }
    }
};

} // namespace

std::vector<HWND> RestyleChildren(HWND window, APPMODE newMode, APPMODE oldMode, BeforeChild before)
{
    if (newMode == oldMode || window == nullptr)
    {
        return {};
    }
    return Restyling(window, ModeScale(newMode, oldMode), {}, before).Finish();
}

double ModeScale(APPMODE newMode, APPMODE oldMode)
{
    if (newMode == oldMode || (newMode != STD && oldMode != STD))
    {
        return 1.0;
    }
    return oldMode == STD ? metrics::OnBoardScale : 1.0 / metrics::OnBoardScale;
}

std::vector<HWND> RestyleNewWindow(HWND window, std::span<const HWND> placed, BeforeChild before)
{
    if (window == nullptr || !COnBoardUIGeneral::InOnBoardMode())
    {
        return {};
    }
    return Restyling(window, metrics::OnBoardScale, placed, before).Finish();
}
