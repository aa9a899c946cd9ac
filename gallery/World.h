#pragma once

#include <span>
#include <vector>

// The coasts of the world, drawn by hand for the gallery: good to tell where one is, no more.

struct Coast
{
    std::vector<double> latitudes;  // degrees, north positive
    std::vector<double> longitudes; // degrees, east positive
};

// Closed lines: the first position comes again as the last.
const std::vector<Coast>& Coasts();

// Every thirty degrees, and the equator.
const std::vector<Coast>& Graticule();
