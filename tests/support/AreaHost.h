#pragma once

#include "AppAccess.h"

#include <afxwin.h>

// A host that offers an area for windows, and its order of them.
class AreaHost : public IAppAccess
{
public:
    const char* GetProviderName() override { return "area"; }
    bool GetAvailableArea(GAA_TYPE type, int& x, int& y, int& width, int& height) override
    {
        askedFor = int(type);
        x = area.left;
        y = area.top;
        width = area.Width();
        height = area.Height();
        return answers;
    }
    CZOrderManager* GetZOrderManager() override { return manager; }

    CRect area;
    bool answers = true;
    int askedFor = -1;
    CZOrderManager* manager = nullptr;
};
