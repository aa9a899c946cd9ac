#pragma once

// The two formats of dialog templates, read and written byte by byte. A template is a header with
// menu, class, title and perhaps a font, then the controls, each from a boundary of four bytes on.

#include <windows.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace dialogs {

using Bytes = std::span<const std::byte>;

struct TemplateFont
{
    WORD points = 0;
    WORD weight = FW_NORMAL;
    BYTE italic = FALSE;
    BYTE charSet = DEFAULT_CHARSET;
    std::u16string face;

    // The size that stands for the system's font of messages; no face follows it.
    static constexpr WORD MessageFont = 0x7FFF;
};

// A place in dialog units.
struct TemplatePlace
{
    short x = 0;
    short y = 0;
    short cx = 0;
    short cy = 0;
};

struct TemplateControl
{
    size_t begin = 0; // bytes from the template's start
    size_t end = 0;
    DWORD id = 0;
    TemplatePlace place;
};

struct TemplateLayout
{
    bool extended = false;
    DWORD style = 0;
    DWORD exStyle = 0;
    TemplatePlace place;
    size_t fontBegin = 0; // where the font stands or would stand
    std::optional<TemplateFont> font;
    std::vector<TemplateControl> controls;
};

// Empty for bytes that are no whole template.
std::optional<TemplateLayout> ReadTemplate(Bytes bytes);

// The template again with the place, the font and the controls' places of another layout of it.
// What else it holds is copied.
std::vector<std::byte> WriteTemplate(Bytes bytes, const TemplateLayout& layout);

// An extended template of an empty popup with this font, or with none.
std::vector<std::byte> EmptyTemplate(const std::optional<TemplateFont>& font);

} // namespace dialogs
