#include "Pages.h"

#include "ButtonsPage.h"
#include "CombosPage.h"
#include "CheckListPage.h"
#include "DialogsPage.h"
#include "EditsPage.h"
#include "IconsPage.h"
#include "LabelsPage.h"
#include "ListBoxPage.h"
#include "PolygonPage.h"
#include "ToolbarPage.h"

namespace {

template <class Page> std::unique_ptr<GalleryPage> Make(IAppAccess& host, GalleryEvents& events)
{
    return std::make_unique<Page>(host, events);
}

constexpr PageEntry AllPages[] = {
    {"list-boxes", "List boxes", &Make<ListBoxPage>},   {"buttons", "Buttons", &Make<ButtonsPage>},
    {"labels", "Labels and groups", &Make<LabelsPage>}, {"edits", "Edits", &Make<EditsPage>},
    {"dialogs", "Dialogs", &Make<DialogsPage>},         {"combos", "Combos", &Make<CombosPage>},
    {"list-boxes", "List boxes", &Make<ListBoxPage>},
    {"buttons", "Buttons", &Make<ButtonsPage>},
    {"labels", "Labels and groups", &Make<LabelsPage>},
    {"edits", "Edits", &Make<EditsPage>},
    {"dialogs", "Dialogs", &Make<DialogsPage>},
    {"toolbar", "Tool bar", &Make<ToolbarPage>},
    {"icons", "Icons", &Make<IconsPage>},
    {"polygon", "View polygon", &Make<PolygonPage>},
    {"checklist", "Check lists", &Make<CheckListPage>},
};

} // namespace

std::span<const PageEntry> Pages()
{
    return AllPages;
}
