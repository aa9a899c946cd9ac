#include "World.h"

#include <initializer_list>

namespace {

struct Place
{
    signed char latitude;
    short longitude;
};

// In whole degrees.
constexpr Place Africa[] = {
    {36, -6},  {35, -1},  {37, 4},   {37, 10},  {34, 10},  {33, 12},  {30, 19},  {33, 22},
    {31, 29},  {31, 32},  {28, 34},  {24, 36},  {18, 38},  {15, 40},  {12, 43},  {12, 51},
    {5, 48},   {-2, 41},  {-7, 39},  {-15, 41}, {-20, 35}, {-25, 33}, {-29, 32}, {-34, 26},
    {-34, 19}, {-29, 17}, {-22, 14}, {-17, 12}, {-9, 13},  {-1, 9},   {4, 9},    {6, 4},
    {5, -4},   {4, -8},   {8, -13},  {12, -17}, {15, -17}, {21, -17}, {28, -13}, {33, -9},
};
constexpr Place Eurasia[] = {
    {36, -6},  {37, -9},  {43, -9},  {44, -2},  {48, -5},  {50, 0},   {53, 6},   {57, 8},
    {54, 11},  {54, 19},  {59, 23},  {60, 29},  {60, 22},  {65, 25},  {63, 19},  {56, 16},
    {56, 13},  {59, 11},  {58, 7},   {62, 5},   {68, 14},  {71, 26},  {67, 41},  {66, 34},
    {64, 38},  {68, 45},  {69, 60},  {73, 70},  {72, 80},  {76, 95},  {78, 104}, {74, 112},
    {72, 130}, {71, 150}, {69, 170}, {66, 190}, {62, 178}, {60, 164}, {51, 157}, {57, 156},
    {61, 160}, {59, 150}, {55, 136}, {53, 141}, {46, 138}, {43, 132}, {39, 128}, {35, 129},
    {35, 126}, {39, 125}, {41, 122}, {38, 118}, {37, 122}, {31, 122}, {25, 119}, {22, 114},
    {21, 108}, {16, 108}, {11, 109}, {9, 105},  {13, 100}, {8, 100},  {1, 104},  {6, 100},
    {16, 97},  {22, 91},  {20, 86},  {16, 81},  {8, 78},   {15, 74},  {21, 72},  {22, 69},
    {25, 66},  {26, 57},  {30, 50},  {29, 48},  {24, 51},  {24, 54},  {22, 60},  {17, 55},
    {13, 45},  {21, 39},  {28, 35},  {31, 34},  {36, 36},  {37, 30},  {39, 26},  {41, 29},
    {41, 38},  {44, 38},  {47, 38},  {45, 35},  {46, 31},  {42, 28},  {41, 26},  {38, 24},
    {37, 22},  {40, 19},  {45, 14},  {44, 12},  {41, 16},  {40, 18},  {38, 16},  {41, 13},
    {44, 9},   {43, 4},   {40, 0},   {37, -2},
};
constexpr Place NorthAmerica[] = {
    {66, -168}, {71, -157}, {69, -135}, {68, -115}, {68, -95},  {64, -93},  {59, -94},  {55, -82},
    {52, -80},  {59, -78},  {62, -74},  {58, -66},  {60, -64},  {52, -56},  {50, -64},  {46, -61},
    {43, -66},  {42, -71},  {40, -74},  {35, -76},  {31, -81},  {25, -80},  {30, -84},  {29, -95},
    {22, -98},  {18, -94},  {21, -90},  {21, -87},  {16, -88},  {15, -83},  {9, -82},   {9, -77},
    {8, -80},   {13, -88},  {16, -95},  {20, -105}, {31, -113}, {23, -110}, {33, -117}, {40, -124},
    {48, -124}, {54, -131}, {60, -141}, {59, -152}, {55, -163}, {60, -165},
};
constexpr Place SouthAmerica[] = {
    {9, -77},   {11, -74},  {12, -71},  {10, -62},  {6, -55},   {4, -51},   {0, -50},
    {-3, -41},  {-5, -35},  {-9, -35},  {-13, -39}, {-23, -42}, {-26, -48}, {-33, -53},
    {-35, -57}, {-39, -58}, {-41, -65}, {-47, -66}, {-52, -69}, {-55, -66}, {-53, -74},
    {-46, -75}, {-37, -73}, {-18, -70}, {-14, -76}, {-6, -81},  {-2, -81},  {4, -77},
};
constexpr Place Australia[] = {
    {-11, 142}, {-17, 146}, {-25, 153}, {-33, 152}, {-38, 149}, {-39, 144},
    {-35, 138}, {-32, 133}, {-32, 126}, {-35, 118}, {-34, 115}, {-26, 113},
    {-21, 115}, {-18, 122}, {-14, 127}, {-12, 132}, {-12, 136}, {-17, 140},
};
constexpr Place Greenland[] = {
    {60, -44}, {65, -40}, {70, -23}, {76, -20}, {82, -22}, {83, -35},
    {82, -58}, {78, -72}, {76, -68}, {70, -54}, {65, -53},
};
constexpr Place Antarctica[] = {
    {-63, -58}, {-70, -62}, {-76, -60}, {-78, -36}, {-72, -12}, {-70, 0},   {-69, 30},
    {-67, 50},  {-69, 75},  {-66, 100}, {-66, 130}, {-69, 155}, {-72, 170}, {-78, 166},
    {-78, 190}, {-76, 210}, {-74, 240}, {-73, 260}, {-73, 285},
};
constexpr Place Britain[] = {
    {50, -5}, {51, 1}, {53, 0}, {55, -2}, {58, -2}, {58, -5}, {55, -5}, {53, -3}, {52, -5},
};
constexpr Place Ireland[] = {{52, -10}, {52, -6}, {55, -6}, {55, -8}};
constexpr Place Iceland[] = {{63, -19}, {64, -14}, {66, -16}, {66, -23}, {64, -22}};
constexpr Place Madagascar[] = {{-12, 49}, {-16, 50}, {-25, 47}, {-25, 44}, {-20, 44}, {-16, 45}};
constexpr Place Japan[] = {
    {31, 130}, {34, 131}, {36, 136}, {41, 140}, {45, 142},
    {43, 145}, {39, 142}, {35, 140}, {33, 136},
};
constexpr Place Borneo[] = {{7, 117}, {1, 119}, {-4, 116}, {-3, 110}, {2, 110}};
constexpr Place Sumatra[] = {{5, 95}, {-1, 104}, {-6, 106}, {-3, 101}};
constexpr Place NewGuinea[] = {{-1, 132}, {-3, 141}, {-6, 147}, {-10, 150}, {-9, 143}, {-4, 133}};
constexpr Place NewZealand[] = {
    {-35, 173}, {-38, 178}, {-41, 175}, {-46, 170}, {-46, 167}, {-41, 172}, {-39, 174},
};
constexpr Place Cuba[] = {{22, -85}, {23, -82}, {20, -74}, {20, -77}};
constexpr Place BaffinIsland[] = {{62, -66}, {67, -62}, {73, -80}, {72, -88}, {65, -74}};

Coast Closed(std::span<const Place> places)
{
    Coast coast;
    const auto add = [&coast](const Place& place) {
        coast.latitudes.push_back(place.latitude);
        coast.longitudes.push_back(place.longitude);
    };
    for (const Place& place : places)
    {
        add(place);
    }
    add(places.front());
    return coast;
}

constexpr int Spacing = 30; // degrees between two lines
constexpr int Step = 3;     // degrees between two positions of one

std::vector<Coast> MakeGraticule()
{
    std::vector<Coast> lines;
    for (int latitude = -60; latitude <= 60; latitude += Spacing)
    {
        Coast& line = lines.emplace_back();
        for (int longitude = -180; longitude <= 180; longitude += Step)
        {
            line.latitudes.push_back(latitude);
            line.longitudes.push_back(longitude);
        }
    }
    for (int longitude = -180; longitude < 180; longitude += Spacing)
    {
        Coast& line = lines.emplace_back();
        for (int latitude = -84; latitude <= 84; latitude += Step)
        {
            line.latitudes.push_back(latitude);
            line.longitudes.push_back(longitude);
        }
    }
    return lines;
}

} // namespace

const std::vector<Coast>& Coasts()
{
    static const std::vector<Coast> coasts = [] {
        std::vector<Coast> all;
        for (const std::span<const Place> places : std::initializer_list<std::span<const Place>>{
                 Africa, Eurasia, NorthAmerica, SouthAmerica, Australia, Greenland, Antarctica,
                 Britain, Ireland, Iceland, Madagascar, Japan, Borneo, Sumatra, NewGuinea,
                 NewZealand, Cuba, BaffinIsland})
        {
            all.push_back(Closed(places));
        }
        return all;
    }();
    return coasts;
}

const std::vector<Coast>& Graticule()
{
    static const std::vector<Coast> lines = MakeGraticule();
    return lines;
}
