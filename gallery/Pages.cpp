#include "Pages.h"

#include "ListBoxPage.h"

namespace {

template <class Page> std::unique_ptr<GalleryPage> Make(IAppAccess& host, GalleryEvents& events)
{
    return std::make_unique<Page>(host, events);
}

constexpr PageEntry AllPages[] = {
    {"list-boxes", "List boxes", &Make<ListBoxPage>},
};

} // namespace

std::span<const PageEntry> Pages()
{
    return AllPages;
}
