#include "lists/ComboScaling.h"

#include "CustomComboLBox.h"
#include "CustomDropListCombo.h"
#include "OnBoardUIGeneral.h"
#include "lists/ComboLayout.h"
#include "modes/Rounding.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/Metrics.h"

#include <vector>

namespace lists {

namespace {

constexpr char HeightsProperty[] = "OnBoardUI.DropListCombo.Heights";

CCustomDropListCombo* ComboOf(HWND window)
{
    return DYNAMIC_DOWNCAST(CCustomDropListCombo, CWnd::FromHandlePermanent(window));
}

CRect ScreenPlaceOf(HWND window)
{
    CRect place;
    ::GetWindowRect(window, &place);
    return place;
}

} // namespace

ComboScaling::ComboScaling(HWND parent)
    : m_parent(parent)
    , m_outer(m_current)
{
    m_current = this;
}

bool ComboScaling::IsAtWorkIn(HWND parent)
{
    for (const ComboScaling* scaling = m_current; scaling != nullptr; scaling = scaling->m_outer)
    {
        if (scaling->m_parent == parent)
        {
            return true;
        }
    }
    return false;
}

int ComboScaling::HeightOf(HWND window, double scale, int scaled)
{
    CCustomDropListCombo* const combo = ComboOf(window);
    if (combo == nullptr || IsAtWorkIn(::GetParent(window)))
    {
        return scaled;
    }
    if (scale > 1 && combo->m_heights[STD] == 0 && COnBoardUIGeneral::InOnBoardMode())
    {
        NoteStandard(window);
        combo->m_fitted = scaled;
        return scaled;
    }
    return combo->m_list == nullptr ? scaled : ScreenPlaceOf(window).Height();
}

ComboScaling::Heights ComboScaling::TakeHeights(HWND window)
{
    const auto kept = DWORD(reinterpret_cast<DWORD_PTR>(::RemoveProp(window, HeightsProperty)));
    return {LOWORD(kept), HIWORD(kept)};
}

void ComboScaling::NoteStandard(HWND window)
{
    const int height = ScreenPlaceOf(window).Height();
    const APPMODE mode = COnBoardUIGeneral::GetAppMode();
    if (CCustomDropListCombo* const combo = ComboOf(window))
    {
        // One that has come in an on-board mode has measured what is the standard mode's.
        if (combo->m_heights[STD] == 0 && size_t(mode) < combo->m_heights.size())
        {
            combo->m_heights[size_t(mode)] = 0;
            combo->m_heights[STD] = height;
        }
    }
    else if (CCustomDropListCombo::IsOfClass(window))
    {
        ::SetProp(window, HeightsProperty,
                  reinterpret_cast<HANDLE>(DWORD_PTR(MAKELONG(height, 0))));
    }
}

void ComboScaling::Fit(std::span<const HWND> children)
{
    // What is done to one may have ended others.
    ForEachLeft(children, [children](HWND child) { Fit(child, children); });
}

void ComboScaling::FitAgain(HWND window)
{
    Fit(window, ChildrenNow(::GetParent(window)));
}

void ComboScaling::Fit(HWND window, std::span<const HWND> siblings)
{
    if (CCustomDropListCombo* const combo = ComboOf(window))
    {
        const WindowAlive alive(*combo); // its list is made on demand
        const int natural = combo->NaturalHeight();
        if (!alive)
        {
            return;
        }
        const int standard = combo->m_heights[STD];
        combo->m_fitted = COnBoardUIGeneral::InOnBoardMode() && standard > 0
                              ? FittedHeight(window, siblings, standard, natural)
                              : 0;
        combo->SetHeight(combo->HeightFor(COnBoardUIGeneral::GetAppMode()));
        return;
    }
    if (!CCustomDropListCombo::IsOfClass(window))
    {
        return;
    }
    Heights heights = TakeHeights(window);
    if (heights.standard == 0)
    {
        return;
    }
    int height = heights.standard;
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        const int row = CCustomComboLBox().GetEntryHeight("X");
        height = FittedHeight(window, siblings, heights.standard, row + 2 * metrics::Border);
        ::SetProp(window, HeightsProperty,
                  reinterpret_cast<HANDLE>(DWORD_PTR(MAKELONG(heights.standard, height))));
    }
    ::SetWindowPos(window, nullptr, 0, 0, ScreenPlaceOf(window).Width(), height,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int ComboScaling::FittedHeight(HWND window, std::span<const HWND> siblings, int standard,
                               int wanted)
{
    std::vector<CRect> others;
    for (const HWND child : siblings)
    {
        if (child != window && ::IsWindow(child))
        {
            others.push_back(ScreenPlaceOf(child));
        }
    }
    return HeightInRoom(ScreenPlaceOf(window), Truncated(standard * metrics::OnBoardScale), wanted,
                        others);
}

} // namespace lists
