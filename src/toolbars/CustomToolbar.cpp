#include "CustomToolbar.h"

#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "modes/PressAndHold.h"
#include "modes/TakenOver.h"
#include "modes/WindowAlive.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

IMPLEMENT_DYNAMIC(CustomToolbar, CToolBar)

BEGIN_MESSAGE_MAP(CustomToolbar, CToolBar)
    ON_WM_ERASEBKGND()
    ON_NOTIFY_REFLECT_EX(NM_CUSTOMDRAW, &CustomToolbar::OnCustomDraw)
    ON_WM_PAINT()
    ON_MESSAGE(WM_TABLET_QUERYSYSTEMGESTURESTATUS, &CustomToolbar::OnQueryGestures)
    ON_MESSAGE(access::ActMessage, &CustomToolbar::OnAct)
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

namespace {

// Whether the places of the buttons matter to a message. The platform finds new sizes whenever a
// button or a font comes, which nobody tells.
bool NeedsPlaces(UINT message)
{
    constexpr UINT messages[] = {WM_PAINT,         WM_NCHITTEST,  WM_SETCURSOR,
                                 TB_GETITEMRECT,   TB_GETRECT,    TB_HITTEST,
                                 TB_GETBUTTONSIZE, TB_GETMAXSIZE, WM_WINDOWPOSCHANGED};
    return std::ranges::find(messages, message) != std::end(messages);
}

} // namespace

CustomToolbar::CustomToolbar()
{
    EnableActiveAccessibility();
}

// One object may serve several windows, one after the other.
void CustomToolbar::PreSubclassWindow()
{
    if (std::exchange(m_fitted, m_hWnd) != m_hWnd)
    {
        m_enlarged = CSize(); // one that was let go and comes back has its buttons as they were
    }
    m_focused = -1;
    CToolBar::PreSubclassWindow();
    ShowTakenOver(*this);
}

// On-board the buttons are made as large as a finger wherever that matters, and the platform gets
// its own size back before it hears anything else in the standard mode, unless it or its host has
// found another since.
void CustomToolbar::FitButtons()
{
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    const CSize size(DWORD(DefWindowProc(TB_GETBUTTONSIZE, 0, 0)));
    const CSize before = std::exchange(m_enlarged, CSize());
    CSize wanted = size == before ? m_platformButton : size;
    if (onBoard)
    {
        if (std::min(size.cx, size.cy) >= metrics::FingerRow)
        {
            m_enlarged = size == before ? before : CSize();
            return;
        }
        m_platformButton = size;
        wanted = CSize(std::max<int>(size.cx, metrics::FingerRow),
                       std::max<int>(size.cy, metrics::FingerRow));
    }
    if (wanted != size)
    {
        const WindowAlive alive(*this); // the platform may lay the bar out, and tell of it
        DefWindowProc(TB_SETBUTTONSIZE, 0, MAKELPARAM(wanted.cx, wanted.cy));
        if (alive && onBoard)
        {
            m_enlarged = CSize(DWORD(DefWindowProc(TB_GETBUTTONSIZE, 0, 0)));
        }
    }
}

LRESULT CustomToolbar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY || message == WM_NCDESTROY)
    {
        m_enlarged = CSize();
        m_focused = -1;
        m_press = Nowhere;
    }
    else if (COnBoardUIGeneral::InOnBoardMode() ? NeedsPlaces(message) : m_enlarged != CSize())
    {
        const WindowAlive alive(*this);
        FitButtons();
        if (!alive)
        {
            return 0;
        }
    }
    if (message != WM_LBUTTONDOWN && message != WM_LBUTTONDBLCLK)
    {
        return CToolBar::WindowProc(message, wParam, lParam);
    }
    const WindowAlive alive(*this);
    const CPoint before = std::exchange(m_press, CPoint(lParam));
    const LRESULT result = CToolBar::WindowProc(message, wParam, lParam);
    if (alive)
    {
        m_press = before;
    }
    return result;
}

LRESULT CustomToolbar::OnQueryGestures(WPARAM, LPARAM screen)
{
    return AnswerGestures(*this, Refused::Everywhere, screen, [this] { return Default(); });
}

// A flat bar shows its parent's ground otherwise, which may be light.
BOOL CustomToolbar::OnEraseBkgnd(CDC* dc)
{
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        return CToolBar::OnEraseBkgnd(dc);
    }
    if (dc != nullptr)
    {
        CRect client;
        GetClientRect(&client);
        dc->FillSolidRect(&client, palette::Panel);
    }
    return TRUE;
}

namespace {

void DrawRaised(CDC& dc, const CRect& button, const CRect& ground, COLORREF color)
{
    dc.FillSolidRect(&ground, color);
    dc.Draw3dRect(&button, palette::PressedOutline, palette::PressedOutline);
}

CRect ArrowPart(const CRect& button)
{
    return {button.right - 13, button.top, button.right, button.bottom};
}

// The platform draws the arrow of a button that drops something in the colour of dark texts, and on
// a raised one with a light face of its own. Ours goes over it, at the right.
void DrawDropArrow(CDC& dc, const CRect& button, bool raised, COLORREF ground, COLORREF color)
{
    constexpr int Height = 4;
    CRect box = ArrowPart(button);
    if (raised)
    {
        DrawRaised(dc, button, box, ground);
    }
    else
    {
        box.DeflateRect(3, button.Height() / 2 - Height, 1, button.Height() / 2 - Height);
        dc.FillSolidRect(&box, ground);
    }
    const CPoint top(button.right - Height - 6, button.CenterPoint().y - Height / 2);
    for (int line = 0; line < Height; ++line)
    {
        dc.FillSolidRect(top.x + line, top.y + line, 2 * (Height - line) - 1, 1, color);
    }
}

} // namespace

// Whether a button shows that it drops something.
bool CustomToolbar::HasDropArrow(UINT id) const
{
    const WindowAlive alive(*this);
    TBBUTTONINFO info = {};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_STYLE;
    const bool known = SendMessage(TB_GETBUTTONINFO, id, reinterpret_cast<LPARAM>(&info)) >= 0;
    const bool whole = known && (info.fsStyle & BTNS_WHOLEDROPDOWN) != 0;
    return alive && (whole || (known && (info.fsStyle & BTNS_DROPDOWN) != 0 &&
                               (SendMessage(TB_GETEXTENDEDSTYLE) & TBSTYLE_EX_DRAWDDARROWS) != 0));
}

BOOL CustomToolbar::OnCustomDraw(NMHDR* header, LRESULT* result)
{
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        return FALSE;
    }
    auto& draw = *reinterpret_cast<NMTBCUSTOMDRAW*>(header);
    const CRect button = draw.nmcd.rc;
    const UINT state = draw.nmcd.uItemState;
    const bool raised = (GetStyle() & TBSTYLE_FLAT) == 0;
    const bool in = raised && (state & (CDIS_SELECTED | CDIS_CHECKED)) != 0;
    const COLORREF ground = in ? palette::Highlight : palette::Panel;
    *result = CDRF_DODEFAULT;
    switch (draw.nmcd.dwDrawStage)
    {
    case CDDS_PREPAINT:
        *result = CDRF_NOTIFYITEMDRAW;
        break;
    case CDDS_ITEMPREPAINT:
        draw.clrText = palette::PanelText;
        draw.clrTextHighlight = palette::HighlightText;
        draw.clrBtnFace = ground;
        draw.clrBtnHighlight = raised ? ground : palette::Outline;
        if (raised)
        {
            // The platform's own edges come with a light face, and its pattern of the two colours
            // for what is checked only while the pointer is elsewhere.
            DrawRaised(*CDC::FromHandle(draw.nmcd.hdc), button, button, ground);
            *result = TBCDRF_NOEDGES | TBCDRF_NOBACKGROUND;
        }
        if (HasDropArrow(UINT(draw.nmcd.dwItemSpec)))
        {
            *result |= CDRF_NOTIFYPOSTPAINT;
        }
        break;
    case CDDS_ITEMPOSTPAINT:
    {
        // That it is open is no state that the platform tells.
        const bool disabled = (state & CDIS_DISABLED) != 0;
        const bool open = raised && !disabled && ArrowPart(button).PtInRect(m_press);
        DrawDropArrow(*CDC::FromHandle(draw.nmcd.hdc), button, raised,
                      open ? palette::Highlight : ground,
                      disabled ? palette::ChoiceTextDisabled : palette::PanelText);
        break;
    }
    default:
        break;
    }
    return TRUE;
}

namespace {

std::string Problem(const std::string& what)
{
    return "Ordering Toolbar Btns: " + what;
}

// What stands where on a bar: asked once and kept up, for the bar answers slowly.
class Places
{
public:
    explicit Places(const CToolBar& bar)
        : m_bar(bar)
        , m_ids(size_t(bar.SendMessage(TB_BUTTONCOUNT)))
        , m_pictures(m_ids.size())
    {
        for (size_t place = 0; place < m_ids.size(); ++place)
        {
            TBBUTTON button = {};
            bar.SendMessage(TB_GETBUTTON, place, LPARAM(&button));
            m_ids[place] = unsigned(button.idCommand);
            m_pictures[place] = button.iBitmap;
        }
    }

    size_t Count() const { return m_ids.size(); }
    const std::vector<unsigned int>& Ids() const { return m_ids; }
    // Of several the first; beyond all places for none.
    size_t Find(unsigned int id) const
    {
        return size_t(std::ranges::find(m_ids, id) - m_ids.begin());
    }

    // False when the bar refused a part of it; the other part is done nevertheless.
    bool Swap(size_t a, size_t b)
    {
        const unsigned int id = m_ids[a];
        const int picture = m_pictures[a];
        const bool first = Set(a, m_ids[b], m_pictures[b]);
        const bool second = Set(b, id, picture);
        return first && second;
    }

private:
    bool Set(size_t place, unsigned int id, int picture)
    {
        TBBUTTONINFO info = {};
        info.cbSize = sizeof(info);
        info.dwMask = TBIF_BYINDEX | TBIF_COMMAND | TBIF_IMAGE;
        info.idCommand = int(id);
        info.iImage = picture;
        if (!m_bar.SendMessage(TB_SETBUTTONINFO, place, LPARAM(&info)))
        {
            return false;
        }
        m_ids[place] = id;
        m_pictures[place] = picture;
        return true;
    }

    const CToolBar& m_bar;
    std::vector<unsigned int> m_ids;
    std::vector<int> m_pictures;
};

} // namespace

bool CustomToolbar::OrderBtns(const std::vector<unsigned int>& order,
                              std::vector<std::string>& messages)
{
    bool allRight = true;
    const auto report = [&](const std::string& what) {
        messages.push_back(Problem(what));
        allRight = false;
    };

    Places places(*this);
    const size_t current = places.Count();
    if (order.size() != current)
    {
        report("Btn miscount.  Current = " + std::to_string(current) +
               ".  New = " + std::to_string(order.size()) + ".");
    }

    std::vector<unsigned int> targets;
    targets.reserve(order.size());
    const std::unordered_set<unsigned int> present(places.Ids().begin(), places.Ids().end());
    for (const unsigned int id : order)
    {
        if (present.contains(id))
        {
            targets.push_back(id);
        }
        else
        {
            report("Target Btn " + std::to_string(id) + " not found.");
        }
    }

    std::unordered_set<unsigned int> known(targets.begin(), targets.end());
    for (const unsigned int id : places.Ids())
    {
        if (known.insert(id).second)
        {
            targets.push_back(id);
            report("Existing Btn " + std::to_string(id) + " not in order list.");
        }
    }

    // Swapped, never shifted: what is displaced waits where the target was for its own turn.
    for (size_t place = 0; place < std::min(current, targets.size()); ++place)
    {
        const unsigned int target = targets[place];
        const unsigned int displaced = places.Ids()[place];
        const size_t index = places.Find(target);
        // Of two buttons with one id neither takes the other's place.
        if (index < current && displaced != target && !places.Swap(place, index))
        {
            report("SetButtonInfo failed for pair (" + std::to_string(displaced) + ", " +
                   std::to_string(target) + ")");
        }
    }
    return allRight;
}
