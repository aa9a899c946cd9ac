#pragma once

#include "GalleryPage.h"

#include <optional>
#include <span>

// A page that the gallery can open.
struct PageEntry
{
    const char* name;  // on the command line and in the names of pictures
    const char* title; // in the list of pages and on its tile
    const char* group; // over its tile; the pages of a group stand together
    std::unique_ptr<GalleryPage> (*make)(IAppAccess& host, GalleryEvents& events);
};

// All pages in the order of the list, the start page first. A new page is one more line of the
// table: list, start page, command line and pictures take it from there.
std::span<const PageEntry> Pages();

// The index of a page, whatever the case of its name's letters.
std::optional<size_t> PageNamed(LPCSTR name);
