#include "Targets.h"

#include "Shown.h"

#include <afxcmn.h>
#include <afxdlgs.h>

#include <string_view>

namespace {

// How many of a line of points answer with this hit code: the thickness of what lies across it.
int Thickness(CWnd& window, UINT hit, bool across)
{
    CRect place;
    window.GetWindowRect(&place);
    // A quarter from the near end, so that the corner of two bars is not met.
    const CPoint start = across ? CPoint(place.left, place.top + place.Height() / 4)
                                : CPoint(place.left + place.Width() / 4, place.top);
    int points = 0;
    for (int step = 0; step < (across ? place.Width() : place.Height()); ++step)
    {
        const CPoint point = start + (across ? CSize(step, 0) : CSize(0, step));
        points += window.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y)) == LRESULT(hit);
    }
    return points;
}

void AddBars(std::vector<Target>& targets, CWnd& window)
{
    if (const int width = Thickness(window, HTVSCROLL, true))
    {
        targets.push_back({"vertical bar", {width, 0}});
    }
    if (const int height = Thickness(window, HTHSCROLL, false))
    {
        targets.push_back({"horizontal bar", {0, height}});
    }
}

CSize SizeOf(const CWnd& window)
{
    CRect place;
    window.GetWindowRect(&place);
    return place.Size();
}

// What a template has placed, as large as the mode makes it.
void AddChildren(std::vector<Target>& targets, CWnd& window)
{
    for (CWnd* child = window.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
    {
        const std::string kind = KindOf(*child);
        const bool onlyShows = Is(kind, "Edit") && (child->GetStyle() & ES_READONLY) != 0;
        const bool isForm = Is(kind, "#32770") || Is(kind, WC_TABCONTROL);
        if (!isForm && (child->GetStyle() & WS_TABSTOP) != 0 && child->IsWindowVisible() &&
            !onlyShows)
        {
            targets.push_back({kind, SizeOf(*child)});
        }
    }
}

} // namespace

std::vector<Target> TargetsOf(const char* control, CWnd& window)
{
    const std::string_view name = control;
    const auto has = [name](std::string_view part) { return name.find(part) != name.npos; };
    std::vector<Target> targets;
    if (has("report"))
    {
        CRect row(LVIR_BOUNDS, 0, 0, 0);
        window.SendMessage(LVM_GETITEMRECT, 0, LPARAM(&row));
        targets.push_back({"row", {0, row.Height()}});
        if (const CWnd* const header = CWnd::FromHandle(HWND(window.SendMessage(LVM_GETHEADER))))
        {
            targets.push_back({"heading", {0, SizeOf(*header).cy}});
        }
    }
    else if (has("tree"))
    {
        const int height = int(window.SendMessage(TVM_GETITEMHEIGHT));
        targets.push_back({"row", {0, height}});
        const int indent = int(window.SendMessage(TVM_GETINDENT));
        targets.push_back({"mark of a branch", {indent, height}});
    }
    else if (has("list"))
    {
        targets.push_back({"row", {0, int(window.SendMessage(LB_GETITEMHEIGHT))}});
    }
    else if (name == "header")
    {
        targets.push_back({"heading", {0, SizeOf(window).cy}});
    }
    else if (name == "combo")
    {
        targets.push_back({"field", {0, SizeOf(window).cy}});
    }
    else if (name == "property sheet")
    {
        const auto& sheet = static_cast<CPropertySheet&>(window);
        CRect tab;
        sheet.GetTabControl()->GetItemRect(0, &tab);
        targets.push_back({"tab", tab.Size()});
    }
    else if (name == "tool bar")
    {
        CRect button;
        window.SendMessage(TB_GETITEMRECT, 0, LPARAM(&button));
        targets.push_back({"button", button.Size()});
    }
    AddBars(targets, window);
    AddChildren(targets, window);
    return targets;
}
