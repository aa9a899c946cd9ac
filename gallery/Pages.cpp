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

namespace {

template <class Page> std::unique_ptr<GalleryPage> Make(IAppAccess& host, GalleryEvents& events)
{
    return std::make_unique<Page>(host, events);
}

// clang-format off
constexpr PageEntry AllPages[] = {
    {"list-boxes", "List boxes", &Make<ListBoxPage>},
    {"checklist", "Check lists", &Make<CheckListPage>},
    {"combos", "Combos", &Make<CombosPage>},
    {"reportlist", "Report list", &Make<ReportListPage>},
    {"trees", "Trees", &Make<TreesPage>},
    {"buttons", "Buttons", &Make<ButtonsPage>},
    {"labels", "Labels", &Make<LabelsPage>},
    {"edits", "Edits", &Make<EditsPage>},
    {"dialogs", "Dialogs", &Make<DialogsPage>},
    {"messagebox", "Message boxes", &Make<MessageBoxPage>},
    {"searchbar", "Search bar", &Make<SearchBarPage>},
    {"toolbar", "Tool bar", &Make<ToolbarPage>},
    {"icons", "Icons", &Make<IconsPage>},
    {"polygon", "View polygon", &Make<PolygonPage>},
};
// clang-format on

} // namespace

std::span<const PageEntry> Pages()
{
    return AllPages;
}
