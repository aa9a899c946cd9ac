#include "AppIcons.h"

namespace {

struct IdRange
{
    UINT first;
    UINT last;
};

// 3574 and 3576 to 3578 are no icons of the tables: the host has other uses for them.
constexpr IdRange Icons[] = {{3527, 3573}, {3575, 3575}, {3579, 3600}};

} // namespace

std::map<UINT, HICON> AppIcons::iconmap_;
CritSect AppIcons::iconmap_cs_;

void AppIcons::LoadIcons()
{
    const CritSectLock lock(iconmap_cs_);
    CWinApp* const app = AfxGetApp();
    if (!iconmap_.empty() || app == nullptr)
    {
        return;
    }
    for (const IdRange& range : Icons)
    {
        for (UINT id = range.first; id <= range.last; ++id)
        {
            LoadIconA(app, id);
        }
    }
}

void AppIcons::LoadIconA(CWinApp* app, UINT id)
{
    if (const HICON icon = app->LoadIcon(LOWORD(id)))
    {
        iconmap_.emplace(id, icon);
    }
}

HICON AppIcons::GetIcon(int id)
{
    const CritSectLock lock(iconmap_cs_);
    const auto found = iconmap_.find(UINT(id));
    return found == iconmap_.end() ? nullptr : found->second;
}

void AppIcons::GetIcons(std::vector<ICON_INFO>& icons)
{
    const CritSectLock lock(iconmap_cs_);
    for (const auto& [id, icon] : iconmap_)
    {
        icons.push_back({id, icon});
    }
}
