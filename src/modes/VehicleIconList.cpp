#include "VehicleIconList.h"

VehicleIconList::~VehicleIconList() = default;

bool VehicleIconList::Load(const char* path, K3Grfx* graphics)
{
    return IconList::Load(path, graphics, "Vehicle Icons", "Vehicle");
}
