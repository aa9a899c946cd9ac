#include "States.h"

#include <afxcmn.h>

#include <string_view>

namespace {

std::function<void(CWnd&)> Sending(UINT message, WPARAM wParam, LPARAM lParam = 0)
{
    return [=](CWnd& window) { window.SendMessage(message, wParam, lParam); };
}

void SelectReportRow(CWnd& list)
{
    LVITEM item = {};
    item.stateMask = item.state = LVIS_SELECTED;
    list.SendMessage(LVM_SETITEMSTATE, 0, LPARAM(&item));
}

void SelectBranch(CWnd& tree)
{
    const LRESULT root = tree.SendMessage(TVM_GETNEXTITEM, TVGN_ROOT, 0);
    tree.SendMessage(TVM_SELECTITEM, TVGN_CARET, root);
}

} // namespace

std::vector<State> StatesOf(const char* control)
{
    const std::string_view name = control;
    const auto has = [name](std::string_view part) { return name.find(part) != name.npos; };
    // What is selected is looked at in a list of nothing else.
    std::vector<State> states = {
        {"plain", true, [](CWnd&) {}},
        {"focused", true, [](CWnd& window) { window.SetFocus(); }},
        {"disabled", false, [](CWnd& window) { window.EnableWindow(FALSE); }},
    };
    if (has("button") || has("check box"))
    {
        states.push_back({"pressed", true, Sending(BM_SETSTATE, TRUE)});
    }
    if (has("check box") || has("radio"))
    {
        states.push_back({"checked", true, Sending(BM_SETCHECK, BST_CHECKED)});
    }
    if (has("edit"))
    {
        states.push_back({"read-only", true, Sending(EM_SETREADONLY, TRUE)});
    }
    if (has("report"))
    {
        states.push_back({"selected", true, &SelectReportRow, 1});
    }
    else if (has("tree"))
    {
        states.push_back({"selected", true, &SelectBranch, 1});
    }
    else if (has("many selections"))
    {
        states.push_back({"selected", true, Sending(LB_SETSEL, TRUE, -1), 1});
    }
    else if (has("list"))
    {
        states.push_back({"selected", true, Sending(LB_SETCURSEL, 0), 1});
    }
    return states;
}
