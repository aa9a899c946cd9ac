#pragma once

#include "GalleryPage.h"

#include <span>

// A page that the gallery can open.
struct PageEntry
{
    const char* name;  // on the command line and in the names of pictures
    const char* title; // in the list of pages
    std::unique_ptr<GalleryPage> (*make)(IAppAccess& host, GalleryEvents& events);
};

// All pages in the order of the list.
std::span<const PageEntry> Pages();
