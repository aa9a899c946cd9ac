#include "FlightLegs.h"

#include <afxcmn.h>

#include <iterator>

namespace legs {

const Column Columns[ColumnCount] = {
    {"Flight", 58, LVCFMT_LEFT}, {"From", 52, LVCFMT_LEFT},     {"To", 52, LVCFMT_LEFT},
    {"Type", 50, LVCFMT_LEFT},   {"Aircraft", 70, LVCFMT_LEFT}, {"Off", 54, LVCFMT_LEFT},
    {"On", 50, LVCFMT_LEFT},     {"Block", 52, LVCFMT_LEFT},    {"Miles", 52, LVCFMT_LEFT},
    {"Level", 52, LVCFMT_LEFT},  {"Fuel", 56, LVCFMT_LEFT},     {"Status", 70, LVCFMT_LEFT},
};

namespace {

constexpr const char* Airports[] = {"EDDF", "EGLL", "EHAM", "ENGM", "ESSA", "KJFK", "LEMD",
                                    "LFPG", "LIRF", "LOWW", "LSZH", "OMDB", "RJTT"};
constexpr const char* Types[] = {"A319", "A320", "A333", "B738", "B77W", "E190"};
constexpr const char* States[] = {"Filed", "Released", "Boarding", "Off", "Landed"};

// Minutes from one midnight to another.
constexpr int MinutesOfDay = 24 * 60;

struct Leg
{
    int from;
    int to;
    int type;
    int registration;
    int off;   // minutes of the day
    int block; // minutes
    int miles;
    int level; // hundreds of feet
    int fuel;  // kilogrammes
    int status;
};

Leg Of(int leg)
{
    constexpr int airports = int(std::size(Airports));
    Leg data = {};
    data.from = (leg * 7 + leg / 13) % airports;
    data.to = (data.from + 1 + (leg * 5 + leg / 7) % (airports - 1)) % airports;
    data.type = (leg * 11 + leg / 5) % int(std::size(Types));
    data.registration = (leg * 37) % (26 * 26 * 26);
    data.off = (leg * 17 + leg / 3) % MinutesOfDay;
    data.miles = 180 + (leg * 613) % 5200;
    data.block = 25 + data.miles * 60 / 450;
    data.level = 240 + 10 * ((leg * 3 + leg / 11) % 17);
    data.fuel = 1800 + data.miles * (6 + data.type) / 2;
    data.status = (leg / 2 + leg * 3) % int(std::size(States));
    return data;
}

CString Clock(int minutes)
{
    CString text;
    text.Format("%02d%02d", minutes / 60 % 24, minutes % 60);
    return text;
}

CString Number(const char* format, int value)
{
    CString text;
    text.Format(format, value);
    return text;
}

} // namespace

CString Text(int leg, int column)
{
    const Leg data = Of(leg);
    switch (column)
    {
    case 0:
        return Number("OB%04d", leg);
    case 1:
        return Airports[data.from];
    case 2:
        return Airports[data.to];
    case 3:
        return Types[data.type];
    case 4:
    {
        CString text;
        text.Format("D-A%c%c%c", 'A' + data.registration / 676, 'A' + data.registration / 26 % 26,
                    'A' + data.registration % 26);
        return text;
    }
    case 5:
        return Clock(data.off);
    case 6:
        return Clock(data.off + data.block);
    case 7:
        return Clock(data.block);
    case 8:
        return Number("%d", data.miles);
    case 9:
        return Number("FL%03d", data.level);
    case 10:
        return Number("%d", data.fuel);
    case 11:
        return States[data.status];
    default:
        return "";
    }
}

int Compare(int first, int second, int column)
{
    const Leg a = Of(first);
    const Leg b = Of(second);
    const int difference = column == 8    ? a.miles - b.miles
                           : column == 10 ? a.fuel - b.fuel
                                          : ::lstrcmp(Text(first, column), Text(second, column));
    return difference != 0 ? difference : first - second;
}

} // namespace legs
