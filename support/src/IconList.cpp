#include "GMSObjects.h"

#include <algorithm>
#include <fstream>

bool IconInfo::IsSet(int x, int y) const
{
    return x >= 0 && x < GetWidth() && y >= 0 && y < GetHeight() &&
           m_rows[size_t(y)][size_t(x)] == '#';
}

bool IconInfo::AddRow(const std::string& row)
{
    const bool fits = m_rows.empty() ? !row.empty() && row.size() <= MaxSide
                                     : row.size() == m_rows.front().size();
    if (!fits || m_rows.size() == MaxSide || row.find_first_not_of("#.") != std::string::npos)
    {
        return false;
    }
    m_rows.push_back(row);
    return true;
}

IconList::~IconList() = default;

const IconInfo* IconList::GetAt(int index) const
{
    return index >= 0 && index < GetCount() ? &m_icons[size_t(index)] : nullptr;
}

const IconInfo* IconList::Find(const char* name) const
{
    if (name == nullptr)
    {
        return nullptr;
    }
    const auto found = std::ranges::find(m_icons, name, &IconInfo::GetName);
    return found == m_icons.end() ? nullptr : &*found;
}

bool IconList::Load(const char* path, K3Grfx*, const char* title, const char* word)
{
    if (path == nullptr || title == nullptr || word == nullptr)
    {
        return false;
    }
    std::ifstream file(path);
    const std::string head = '[' + std::string(title) + ']';
    const std::string start = std::string(word) + ' ';
    std::vector<IconInfo> icons;
    bool found = false;
    bool inside = false;
    for (std::string line; std::getline(file, line);)
    {
        line.erase(line.find_last_not_of(" \t\r") + 1);
        if (line.empty() || line.front() == ';')
        {
            continue;
        }
        if (line.front() == '[')
        {
            inside = line == head;
            found = found || inside;
        }
        else if (inside && line.starts_with(start))
        {
            icons.emplace_back(line.substr(start.size()));
        }
        else if (inside && (icons.empty() || !icons.back().AddRow(line)))
        {
            return false;
        }
    }
    const bool whole =
        std::ranges::all_of(icons, [](const IconInfo& icon) { return icon.GetHeight() > 0; });
    if (!found || !whole || file.bad())
    {
        return false;
    }
    m_icons = std::move(icons);
    return true;
}
