#include "OnBoardUIGeneral.h"

#include "CustomDialog.h"
#include "CustomDropListCombo.h"
#include "CustomFormView.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "modes/ModeChanges.h"
#include "modes/StandardFontHeight.h"

#include <algorithm>
#include <tuple>

APPMODE COnBoardUIGeneral::m_appmode = STD;
int COnBoardUIGeneral::m_std_ctrl_lf_height = -11;
// Read while the user's own colours are still set.
COLORREF COnBoardUIGeneral::m_org_highlight = ::GetSysColor(COLOR_HIGHLIGHT);
COLORREF COnBoardUIGeneral::m_org_highlighttext = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
CString COnBoardUIGeneral::m_apptitle;
std::vector<CCustomFormView*> COnBoardUIGeneral::m_createdformviews;
std::vector<CCustomDialog*> COnBoardUIGeneral::m_createddialogs;
std::vector<CCustomDropListCombo*> COnBoardUIGeneral::m_createddlcs;
std::vector<CCustomPropPage*> COnBoardUIGeneral::m_createdPropPages;
std::vector<CCustomPropSheet*> COnBoardUIGeneral::m_createdPropSheets;

namespace {

// The part of one registry that a mode change has still to tell: the objects that were there when
// it began. One that comes later makes its window in the new mode and has nothing to follow.
template <class Window> class RegistryWalk
{
public:
    explicit RegistryWalk(const std::vector<Window*>& registry)
        : m_registry(registry)
        , m_end(registry.size())
    {}

    // Tells the next window; false at the end.
    bool TellNext(APPMODE newMode, APPMODE oldMode)
    {
        if (m_next >= std::min(m_end, m_registry.size()))
        {
            return false;
        }
        // The receiver may remove itself or others, so the place moves on first.
        if (Window* const window = m_registry[m_next++])
        {
            window->AppModeChanged(newMode, oldMode);
        }
        return true;
    }

    void Removed(const void* registry, size_t index)
    {
        if (registry == &m_registry && index < m_end)
        {
            --m_end;
            m_next -= index < m_next ? 1 : 0;
        }
    }

private:
    const std::vector<Window*>& m_registry;
    size_t m_next = 0;
    size_t m_end;
};

// One mode change on its way through the registries, in their fixed order.
class ModeChange
{
public:
    ModeChange(APPMODE newMode, APPMODE oldMode)
        : m_newMode(newMode)
        , m_oldMode(oldMode)
        , m_number(++s_last)
        , m_outer(s_innermost)
    {
        s_innermost = this;
    }
    ModeChange(const ModeChange&) = delete;
    ModeChange& operator=(const ModeChange&) = delete;
    ~ModeChange() { s_innermost = m_outer; }

    void TellAll()
    {
        const auto tellNext = [this](auto&... walks) {
            return (walks.TellNext(m_newMode, m_oldMode) || ...);
        };
        while (std::apply(tellNext, m_walks))
        {}
    }

    // A receiver changes the mode again: whoever has not heard of the change in progress hears of
    // it first, so that every window sees the changes in their order.
    static void FinishInProgress()
    {
        if (s_innermost != nullptr)
        {
            s_innermost->TellAll();
        }
    }

    static unsigned Last() { return s_last; }

    // Whether the change that is being told, which is the innermost, began after this one.
    static bool IsTellingNoneAfter(unsigned number)
    {
        return s_innermost != nullptr && s_innermost->m_number <= number;
    }

    static void Removed(const void* registry, size_t index)
    {
        for (ModeChange* change = s_innermost; change != nullptr; change = change->m_outer)
        {
            std::apply([&](auto&... walks) { (walks.Removed(registry, index), ...); },
                       change->m_walks);
        }
    }

private:
    APPMODE m_newMode;
    APPMODE m_oldMode;
    std::tuple<RegistryWalk<CCustomFormView>, RegistryWalk<CCustomDialog>,
               RegistryWalk<CCustomDropListCombo>, RegistryWalk<CCustomPropPage>,
               RegistryWalk<CCustomPropSheet>>
        m_walks{COnBoardUIGeneral::m_createdformviews, COnBoardUIGeneral::m_createddialogs,
                COnBoardUIGeneral::m_createddlcs, COnBoardUIGeneral::m_createdPropPages,
                COnBoardUIGeneral::m_createdPropSheets};
    unsigned m_number;
    ModeChange* m_outer;

    static ModeChange* s_innermost;
    static unsigned s_last;
};

ModeChange* ModeChange::s_innermost = nullptr;
unsigned ModeChange::s_last = 0;

template <class Window> void Add(std::vector<Window*>& registry, Window* window)
{
    if (window != nullptr)
    {
        registry.push_back(window);
    }
}

template <class Window> void Remove(std::vector<Window*>& registry, Window* window)
{
    const auto found = std::find(registry.begin(), registry.end(), window);
    if (found != registry.end())
    {
        const auto index = size_t(found - registry.begin());
        registry.erase(found);
        ModeChange::Removed(&registry, index);
    }
}

} // namespace

unsigned LastModeChange()
{
    return ModeChange::Last();
}

bool HasModeAlready(unsigned openedAt)
{
    return ModeChange::IsTellingNoneAfter(openedAt);
}

void COnBoardUIGeneral::SetAppMode(APPMODE newMode)
{
    ModeChange::FinishInProgress();
    const APPMODE oldMode = m_appmode;
    m_appmode = newMode;
    ModeChange(newMode, oldMode).TellAll();
}

void COnBoardUIGeneral::SetAppTitle(const CString& title)
{
    m_apptitle = title;
}

void COnBoardUIGeneral::SetStdModeGoals()
{
    int dpi = 0;
    if (const HDC screen = ::GetDC(nullptr); screen != nullptr)
    {
        dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
        ::ReleaseDC(nullptr, screen);
    }
    m_std_ctrl_lf_height = StandardFontHeight(dpi, m_std_ctrl_lf_height);
}

void COnBoardUIGeneral::AddCustomView(CCustomFormView* view)
{
    Add(m_createdformviews, view);
}

void COnBoardUIGeneral::RemoveCustomView(CCustomFormView* view)
{
    Remove(m_createdformviews, view);
}

void COnBoardUIGeneral::AddCustomDialog(CCustomDialog* dialog)
{
    Add(m_createddialogs, dialog);
}

void COnBoardUIGeneral::RemoveCustomDialog(CCustomDialog* dialog)
{
    Remove(m_createddialogs, dialog);
}

void COnBoardUIGeneral::AddCustomDropListCombo(CCustomDropListCombo* combo)
{
    Add(m_createddlcs, combo);
}

void COnBoardUIGeneral::RemoveCustomDropListCombo(CCustomDropListCombo* combo)
{
    Remove(m_createddlcs, combo);
}

void COnBoardUIGeneral::AddCustomPropPage(CCustomPropPage* page)
{
    Add(m_createdPropPages, page);
}

void COnBoardUIGeneral::RemoveCustomPropPage(CCustomPropPage* page)
{
    Remove(m_createdPropPages, page);
}

void COnBoardUIGeneral::AddCustomPropSheet(CCustomPropSheet* sheet)
{
    Add(m_createdPropSheets, sheet);
}

void COnBoardUIGeneral::RemoveCustomPropSheet(CCustomPropSheet* sheet)
{
    Remove(m_createdPropSheets, sheet);
}
