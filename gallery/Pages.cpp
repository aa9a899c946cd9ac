#include "Pages.h"

#include "ButtonsPage.h"
#include "CheckListPage.h"
#include "CombosPage.h"
#include "DialogsPage.h"
#include "EditsPage.h"
#include "IconsPage.h"
#include "LabelsPage.h"
#include "ListBoxPage.h"
#include "MessageBoxPage.h"
#include "PolygonPage.h"
#include "ReportListPage.h"
#include "SearchBarPage.h"
#include "ToolbarPage.h"
#include "TreesPage.h"
#include "WelcomePage.h"
#include "resource.h"

#include <iterator>

namespace {

template <class Page> std::unique_ptr<GalleryPage> Make(IAppAccess& host, GalleryEvents& events)
{
    return std::make_unique<Page>(host, events);
}

constexpr const char* Lists = "Lists, combos and trees";
constexpr const char* Fields = "Buttons, labels and edits";
constexpr const char* Pictures = "Pictures";
constexpr const char* Windows = "Windows and bars";

// clang-format off
constexpr PageEntry AllPages[] = {
    {"start", "Start", "", &Make<WelcomePage>},
    {"list-boxes", "List boxes", Lists, &Make<ListBoxPage>},
    {"checklist", "Check lists", Lists, &Make<CheckListPage>},
    {"combos", "Combos", Lists, &Make<CombosPage>},
    {"reportlist", "Report list", Lists, &Make<ReportListPage>},
    {"trees", "Trees", Lists, &Make<TreesPage>},
    {"buttons", "Buttons", Fields, &Make<ButtonsPage>},
    {"labels", "Labels", Fields, &Make<LabelsPage>},
    {"edits", "Edits", Fields, &Make<EditsPage>},
    {"icons", "Icons", Pictures, &Make<IconsPage>},
    {"polygon", "Polygon", Pictures, &Make<PolygonPage>},
    {"dialogs", "Dialogs", Windows, &Make<DialogsPage>},
    {"messagebox", "Messages", Windows, &Make<MessageBoxPage>},
    {"searchbar", "Search bar", Windows, &Make<SearchBarPage>},
    {"toolbar", "Tool bar", Windows, &Make<ToolbarPage>},
};
// clang-format on
static_assert(std::size(AllPages) <= ID_PAGE_LAST - ID_PAGE_FIRST + 1);

} // namespace

std::span<const PageEntry> Pages()
{
    return AllPages;
}

std::optional<size_t> PageNamed(LPCSTR name)
{
    for (size_t index = 0; index < std::size(AllPages); ++index)
    {
        if (::lstrcmpi(AllPages[index].name, name) == 0)
        {
            return index;
        }
    }
    return std::nullopt;
}
