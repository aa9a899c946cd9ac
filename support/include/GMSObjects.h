#pragma once

// Icons of the maker's object library; of its geometry only the names.

#include "SupportExport.h"

#include <string>
#include <utility>
#include <vector>

class K3Grfx;
class Vector3D;
class XPoint;

// A symbol: a name and a picture of dots that are set or not.
class SUPPORT_API IconInfo
{
public:
    explicit IconInfo(std::string name)
        : m_name(std::move(name))
    {}

    const std::string& GetName() const { return m_name; }
    int GetWidth() const { return m_rows.empty() ? 0 : int(m_rows.front().size()); }
    int GetHeight() const { return int(m_rows.size()); }
    // False outside the picture.
    bool IsSet(int x, int y) const;

    // The longest side of a picture.
    static constexpr int MaxSide = 64;
    // Adds a row at the bottom: '#' for a dot that is set, '.' for one that is not. False, and
    // nothing is added, for any other text, another width than the row above, or too many.
    bool AddRow(const std::string& row);

private:
    std::string m_name;
    std::vector<std::string> m_rows;
};

// Symbols that are loaded from a file. A file is a text with any number of lists:
//
//     ; a comment; empty lines count for nothing either
//     [Vehicle Icons]
//     Vehicle Helicopter
//     #...#
//     .#.#.
//     ..#..
//     Vehicle Next one
//     ...
//
// A list begins with its title in brackets and ends where the next one begins. Each of its symbols
// begins with the list's own word, a blank and the name; its picture follows row by row. Blanks at
// the end of a line do not count.
class SUPPORT_API IconList
{
public:
    IconList() = default;
    IconList(const IconList&) = delete;
    IconList& operator=(const IconList&) = delete;
    virtual ~IconList();

    // Replaces what the list holds by the symbols of a file, for drawing with a graphics context.
    // False, and the list stays as it was, when the file cannot be read or is not as it has to be.
    virtual bool Load(const char* path, K3Grfx* graphics) = 0;

    int GetCount() const { return int(m_icons.size()); }
    // Null when there is none; valid until the next Load. Of two of one name, the first.
    const IconInfo* GetAt(int index) const;
    const IconInfo* Find(const char* name) const;

protected:
    // Loads the list with this title, whose symbols begin with this word. These symbols suit every
    // graphics context, so it may be null.
    bool Load(const char* path, K3Grfx* graphics, const char* title, const char* word);

private:
    std::vector<IconInfo> m_icons;
};
