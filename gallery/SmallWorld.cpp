#include "SmallWorld.h"

#include "Look.h"

#include <deque>
#include <iterator>

namespace world {

namespace {

enum Kind
{
    Folder,
    Route,
    Waypoint,
    Airport,
    KindCount
};

constexpr int Routes = 6;
constexpr int WaypointsOfRoute = 7;
constexpr int Many = 10'000;
constexpr int Levels = 100; // of the deep branch

constexpr const char* Airports[] = {"EDDF Frankfurt", "EGLL London", "EHAM Amsterdam",
                                    "KJFK New York",  "LFPG Paris",  "LSZH Zurich",
                                    "OMDB Dubai"};

constexpr int StandardPicture = 16; // pixels, both sides
constexpr int DarkPicture = 26;
constexpr COLORREF Clear = RGB(255, 0, 255);

// Never moved nor freed, so that addresses last.
const Place& Keep(const CString& name, Kind kind)
{
    static std::deque<Place> places;
    places.push_back({name, kind});
    return places.back();
}

// Five letters that look like a waypoint's name; the same for the same number.
CString WaypointName(int number)
{
    constexpr const char* Consonants = "BDFGKLMNPRSTV";
    constexpr const char* Vowels = "AEIOU";
    constexpr unsigned Prime = 7919;
    unsigned mixed = unsigned(number) * Prime + 104729U;
    CString name;
    for (int letter = 0; letter < 5; ++letter)
    {
        const unsigned kinds = letter % 2 == 0 ? 13 : 5;
        name += letter % 2 == 0 ? Consonants[mixed % kinds] : Vowels[mixed % kinds];
        mixed /= kinds;
    }
    return name;
}

HTREEITEM AddKept(CTreeCtrl& tree, HTREEITEM parent, const CString& name, Kind kind)
{
    return Add(tree, parent, Keep(name, kind));
}

// One picture of a kind, drawn on a grid of sixteen.
void Draw(CDC& dc, int kind, int size)
{
    const auto at = [size](int units) { return units * size / 16; };
    const auto ellipse = [&](int left, int top, int right, int bottom) {
        dc.Ellipse(at(left), at(top), at(right), at(bottom));
    };
    CPen pen(PS_SOLID, 1, RGB(40, 40, 40));
    CBrush brush(kind == Folder     ? RGB(200, 170, 90)
                 : kind == Route    ? RGB(70, 110, 160)
                 : kind == Waypoint ? RGB(90, 150, 90)
                                    : RGB(120, 120, 190));
    const InUse line(dc, pen);
    const InUse ground(dc, brush);
    const POINT triangle[] = {{at(8), at(2)}, {at(14), at(13)}, {at(2), at(13)}};
    switch (kind)
    {
    case Folder:
        dc.Rectangle(at(1), at(4), at(15), at(14));
        dc.Rectangle(at(1), at(2), at(8), at(5));
        break;
    case Route:
        dc.MoveTo(at(3), at(12));
        dc.LineTo(at(13), at(4));
        ellipse(1, 9, 7, 15);
        ellipse(9, 1, 15, 7);
        break;
    case Waypoint:
        dc.Polygon(triangle, int(std::size(triangle)));
        break;
    default:
        ellipse(2, 2, 14, 14);
        dc.Rectangle(at(7), at(4), at(9), at(12));
        break;
    }
}

CImageList& MakePictures(CImageList& list, int size)
{
    if (list.GetSafeHandle() != nullptr)
    {
        return list;
    }
    list.Create(size, size, ILC_COLOR24 | ILC_MASK, KindCount, 0);
    CClientDC screen(nullptr);
    for (int kind = 0; kind < KindCount; ++kind)
    {
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, size, size);
        {
            CDC dc;
            dc.CreateCompatibleDC(&screen);
            const InUse drawn(dc, bitmap);
            dc.FillSolidRect(0, 0, size, size, Clear);
            Draw(dc, kind, size);
        }
        list.Add(&bitmap, Clear);
    }
    return list;
}

} // namespace

HTREEITEM Add(CTreeCtrl& tree, HTREEITEM parent, const Place& place)
{
    return tree.InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM, place.name,
                           place.kind, place.kind, 0, 0, reinterpret_cast<LPARAM>(&place), parent,
                           TVI_LAST);
}

const Place* PlaceOf(const CTreeCtrl& tree, HTREEITEM item)
{
    return reinterpret_cast<const Place*>(tree.GetItemData(item));
}

HTREEITEM Fill(CTreeCtrl& tree)
{
    tree.SetRedraw(FALSE);
    const HTREEITEM routes = AddKept(tree, TVI_ROOT, "Routes", Folder);
    HTREEITEM first = nullptr;
    for (int route = 0; route < Routes; ++route)
    {
        CString name;
        name.Format("Route %s - %s", static_cast<LPCTSTR>(CString(Airports[route]).Left(4)),
                    static_cast<LPCTSTR>(CString(Airports[route + 1]).Left(4)));
        const HTREEITEM added = AddKept(tree, routes, name, Route);
        first = first == nullptr ? added : first;
        for (int leg = 0; leg < WaypointsOfRoute; ++leg)
        {
            AddKept(tree, added, WaypointName(route * WaypointsOfRoute + leg), Waypoint);
        }
    }
    const HTREEITEM airports = AddKept(tree, TVI_ROOT, "Airports", Folder);
    for (const char* airport : Airports)
    {
        AddKept(tree, airports, airport, Airport);
    }
    const HTREEITEM wide = AddKept(tree, TVI_ROOT, "Ten thousand, side by side", Folder);
    for (int number = 0; number < Many; ++number)
    {
        AddKept(tree, wide, WaypointName(number), Waypoint);
    }
    HTREEITEM level = AddKept(tree, TVI_ROOT, "Ten thousand, in a hundred levels", Folder);
    for (int number = 0; number < Many; ++number)
    {
        const HTREEITEM added = AddKept(tree, level, WaypointName(Many - number), Waypoint);
        level = (number + 1) % (Many / Levels) == 0 ? added : level;
    }
    tree.Expand(routes, TVE_EXPAND);
    tree.Expand(first, TVE_EXPAND);
    tree.SetRedraw(TRUE);
    return first;
}

CImageList& Pictures()
{
    static CImageList standard;
    static CImageList dark;
    return look::Dark() ? MakePictures(dark, DarkPicture) : MakePictures(standard, StandardPicture);
}

} // namespace world
