// The drop-list combo: fonts, lists, following the display mode and layout.

#include "CustomDropListCombo.h"

#include "CustomComboLBox.h"
#include "OnBoardUI.h"
#include "OnBoardUIGeneral.h"
#include "lists/ComboLayout.h"
#include "lists/ComboScaling.h"
#include "modes/ChildRestyling.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/MeasuringDC.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"
#include "paint/SharedObjects.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int StandardEdge = 2; // a sunken edge of the platform
constexpr int StandardPad = 2;  // above and below the text of the standard mode

} // namespace

CFont CCustomDropListCombo::m_OBFont;
CFont CCustomDropListCombo::m_StdFont;
CBrush CCustomDropListCombo::m_BkBrush;
CBrush CCustomDropListCombo::m_BkDisabledBrush;
CPen CCustomDropListCombo::m_OBOutlinePen;

CCustomDropListCombo::CCustomDropListCombo()
    : m_heights(std::size(APPMODE_NAMES))
    , m_list(new CCustomComboLBox)
{
    Register();
}

CCustomDropListCombo::CCustomDropListCombo(CCustomComboLBox* list)
    : m_heights(std::size(APPMODE_NAMES))
    , m_list(nullptr)
{
    SetCustomComboLBox(list);
    Register();
}

void CCustomDropListCombo::Register()
{
    EnableActiveAccessibility();
    if (m_BkBrush.GetSafeHandle() == nullptr)
    {
        m_BkBrush.CreateSolidBrush(palette::Field);
        m_BkDisabledBrush.CreateSolidBrush(palette::FieldDisabled);
        CreateOnBoardOutlinePen(m_OBOutlinePen, palette::Outline);
    }
    if (m_list != nullptr)
    {
        m_list->SetComboParent(this);
    }
    m_instances.push_back(this);
    COnBoardUIGeneral::AddCustomDropListCombo(this);
    AppModeChanged(COnBoardUIGeneral::GetAppMode(), STD);
}

CCustomDropListCombo::~CCustomDropListCombo()
{
    COnBoardUIGeneral::RemoveCustomDropListCombo(this);
    std::erase(m_instances, this);
    // While the message map is still ours: the window's last messages need it.
    m_madeByClass = false;
    m_ending = true;
    if (GetSafeHwnd() != nullptr && FromHandlePermanent(GetSafeHwnd()) == this)
    {
        CWnd::DestroyWindow();
    }
    SetCustomComboLBox(nullptr);
}

CFont& CCustomDropListCombo::GetOnBoardFont()
{
    return OnBoardControlFont(m_OBFont, SmallOnBoardFont);
}

CFont& CCustomDropListCombo::GetStdFont()
{
    return StandardControlFont(m_StdFont);
}

// The list --------------------------------------------------------------------------------------

void CCustomDropListCombo::SetCustomComboLBox(CCustomComboLBox* list)
{
    const WindowAlive alive(*this);
    // A combo that its host ends in the middle of this, with its window, keeps what it has by then.
    const auto ended = [&alive, had = GetSafeHwnd() != nullptr] { return had && !alive; };
    const bool owned = m_ownsList;
    CCustomComboLBox* const before = DetachCustomComboLBox();
    if (ended())
    {
        return;
    }
    if (owned && before != list)
    {
        delete before;
    }
    m_list = list;
    m_ownsList = list != nullptr && list == before && owned;
    if (m_list == nullptr)
    {
        return;
    }
    // A list drops down from one combo only.
    if (CCustomDropListCombo* const other = m_list->GetComboParent())
    {
        other->DetachCustomComboLBox();
        if (ended())
        {
            return;
        }
    }
    m_list->SetComboParent(this);
    SetLBFont();
    if (alive)
    {
        Repaint();
    }
}

CCustomComboLBox* CCustomDropListCombo::DetachCustomComboLBox()
{
    const WindowAlive alive(*this);
    if (m_expanded)
    {
        ToggleDropList(); // assistive programs hear of it
        if (!alive)
        {
            return nullptr;
        }
    }
    CCustomComboLBox* const list = m_list;
    m_list = nullptr;
    m_ownsList = false;
    if (list != nullptr)
    {
        list->SetComboParent(nullptr);
    }
    if (alive)
    {
        Repaint();
    }
    return list;
}

CCustomComboLBox* CCustomDropListCombo::ListIfMade() const
{
    return m_list != nullptr && m_list->GetSafeHwnd() != nullptr ? m_list : nullptr;
}

// The list with its window, which is made when it is first needed; null when there is none to be
// had.
CCustomComboLBox* CCustomDropListCombo::List()
{
    if (m_list != nullptr && m_list->GetSafeHwnd() == nullptr && GetSafeHwnd() != nullptr &&
        !m_ending)
    {
        const WindowAlive alive(*this); // a window that is made is announced
        const bool made = m_list->CreatePopup() != FALSE;
        if (alive && made)
        {
            SetLBFont();
        }
        if (!alive)
        {
            return nullptr;
        }
    }
    return ListIfMade();
}

HFONT CCustomDropListCombo::Font() const
{
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        return GetOnBoardFont();
    }
    return m_font != nullptr ? m_font : HFONT(GetStdFont());
}

void CCustomDropListCombo::SetLBFont()
{
    if (CCustomComboLBox* const list = ListIfMade())
    {
        list->SetListFont(*CFont::FromHandle(Font()));
    }
}

// Following the display mode --------------------------------------------------------------------

// The height that a row of the list asks for, in the mode and the font of the moment.
int CCustomDropListCombo::NaturalHeight()
{
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        CCustomComboLBox* const list = List();
        return (list == nullptr ? 0 : list->GetEntryHeight("X")) + 2 * metrics::Border;
    }
    CDC& dc = MeasuringDC();
    const Selected font(dc, Font());
    return int(dc.GetTextExtent("X", 1).cy) + 2 * (StandardEdge + StandardPad);
}

int CCustomDropListCombo::HeightFor(APPMODE mode)
{
    const int kept = size_t(mode) < m_heights.size() ? m_heights[size_t(mode)] : 0;
    if (kept > 0)
    {
        return kept;
    }
    return mode != STD && m_fitted > 0 ? m_fitted : NaturalHeight();
}

// Other than a height that the host gives, it does not count for later.
void CCustomDropListCombo::SetHeight(int height)
{
    const WindowAlive alive(*this);
    CRect window;
    GetWindowRect(&window);
    const APPMODE mode = COnBoardUIGeneral::GetAppMode();
    const bool sizing = std::exchange(m_sizing, true);
    // A height that it has already is no reason to have a parent erased that waits for its paint.
    const UINT same = height == window.Height() ? SWP_NOREDRAW | SWP_DEFERERASE : 0;
    bool changed = false; // maybe there and back
    {
        const GivingPlace giving(GetSafeHwnd());
        SetWindowPos(nullptr, 0, 0, window.Width(), height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | same);
        changed = giving.HasPutOff();
    }
    if (!alive)
    {
        return;
    }
    m_sizing = sizing;
    if (const APPMODE now = COnBoardUIGeneral::GetAppMode(); changed || now != mode)
    {
        // What the next one made of the height is overwritten by now.
        if (m_fitted > 0)
        {
            lists::ComboScaling::FitAgain(GetSafeHwnd());
            return;
        }
        const int last = HeightFor(now);
        if (alive)
        {
            SetHeight(last);
        }
    }
}

void CCustomDropListCombo::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    if (newMode == oldMode)
    {
        return;
    }
    m_shapedFor = newMode;
    m_pickArmed = false; // another row may come to lie under the press
    const WindowAlive alive(*this);
    CCustomComboLBox* const list = GetSafeHwnd() == nullptr ? nullptr : List();
    if (list == nullptr)
    {
        return;
    }
    list->AppModeChanged(newMode, oldMode);
    // Each step may leave the combo without this list, or in yet another mode.
    const auto both = [&] { return alive && ListIfMade() == list && m_shapedFor == newMode; };
    if (both())
    {
        SetLBFont();
    }
    const int height = both() ? HeightFor(newMode) : 0;
    CRect place;
    if (both())
    {
        CalcComboLBoxSize(height, place);
    }
    if (both() && m_expanded)
    {
        list->PlacePopup(place);
    }
    if (!both())
    {
        return;
    }
    SetHeight(height);
    if (alive)
    {
        CalculateSpacing();
    }
    if (alive)
    {
        Repaint();
    }
}

void CCustomDropListCombo::OnSize(UINT type, int width, int height)
{
    const WindowAlive alive(*this);
    CWnd::OnSize(type, width, height);
    if (!alive)
    {
        return;
    }
    // The height that the host gives counts for the mode of the moment. When the parent scales its
    // children, or the host does, that says nothing about the mode's height.
    const APPMODE mode = COnBoardUIGeneral::GetAppMode();
    if (!m_sizing && m_shapedFor == mode && size_t(mode) < m_heights.size() &&
        !IsBeingPlaced(GetSafeHwnd()) &&
        !lists::ComboScaling::IsAtWorkIn(::GetParent(GetSafeHwnd())))
    {
        CRect window;
        GetWindowRect(&window);
        m_heights[size_t(mode)] = window.Height();
    }
    CalculateSpacing();
    if (!alive)
    {
        return;
    }
    Repaint();
    if (m_expanded)
    {
        UpdateComboLBoxPos();
    }
}

void CCustomDropListCombo::OnMove(int x, int y)
{
    const WindowAlive alive(*this);
    CWnd::OnMove(x, y);
    if (alive && m_expanded)
    {
        UpdateComboLBoxPos();
    }
}

LRESULT CCustomDropListCombo::OnSetFont(WPARAM wParam, LPARAM lParam)
{
    const WindowAlive alive(*this);
    Default();
    if (!alive)
    {
        return 0;
    }
    m_font = reinterpret_cast<HFONT>(wParam);
    SetLBFont();
    if (alive && m_expanded)
    {
        UpdateComboLBoxPos();
    }
    if (alive && LOWORD(lParam) != 0)
    {
        Repaint();
    }
    return 0;
}

LRESULT CCustomDropListCombo::OnGetFont(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(m_font);
}

// Layout ----------------------------------------------------------------------------------------

void CCustomDropListCombo::CalculateSpacing()
{
    if (GetSafeHwnd() == nullptr)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    const lists::ComboParts parts =
        onBoard ? lists::LayOutCombo(client, metrics::Border, metrics::ScrollBand, true)
                : lists::LayOutCombo(client, StandardEdge, ::GetSystemMetrics(SM_CXVSCROLL), false);
    m_textArea = parts.text;
    m_dropButton.SetArea(parts.button);
}

void CCustomDropListCombo::CalcComboLBoxSize(int height, CRect& list)
{
    list.SetRectEmpty();
    const CCustomComboLBox* const made = ListIfMade();
    if (GetSafeHwnd() == nullptr || made == nullptr)
    {
        return;
    }
    CRect combo;
    GetWindowRect(&combo);
    combo.bottom = combo.top + height;
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfo(::MonitorFromRect(&combo, MONITOR_DEFAULTTONEAREST), &monitor);
    list = lists::PlaceList(combo, monitor.rcWork,
                            {made->GetDropRows(), made->GetItemHeight(), made->GetFrameHeight()});
}

void CCustomDropListCombo::UpdateComboLBoxPos()
{
    CCustomComboLBox* const list = GetSafeHwnd() == nullptr ? nullptr : List();
    if (list == nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    CPoint pointer;
    CRect window;
    CRect place;
    ::GetCursorPos(&pointer);
    const int row = list->RowAt(pointer);
    GetWindowRect(&window);
    CalcComboLBoxSize(window.Height(), place);
    list->PlacePopup(place);
    // A press is not for a row that comes to lie under it.
    if (alive && ListIfMade() == list && list->RowAt(pointer) != row)
    {
        m_pickArmed = false;
    }
}
