#pragma once

#include "OnBoardUIExport.h"

#include <GMSObjects.h>

// The symbols of vehicles on a chart.
class ONBOARDUI_API VehicleIconList : public IconList
{
public:
    ~VehicleIconList() override;

    // Loads the file's list of vehicle icons, for drawing with the graphics context. False when the
    // file has no sound list of that kind; then the list stays as it was.
    bool Load(const char* path, K3Grfx* graphics) override;
};
