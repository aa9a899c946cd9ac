#include "States.h"

#include "CustomChecklistBox.h"
#include "CustomDropListCombo.h"
#include "EditWithPrompt.h"

#include <afxcmn.h>

#include <string_view>

namespace {

using Enter = std::function<void(CWnd&, const std::string&)>;

Enter Sending(UINT message, WPARAM wParam, LPARAM lParam = 0)
{
    return [=](CWnd& window, const std::string&) { window.SendMessage(message, wParam, lParam); };
}

void SelectFirstCell(CWnd& list, const std::string&)
{
    LVITEM item = {};
    item.stateMask = item.state = LVIS_SELECTED;
    list.SendMessage(LVM_SETITEMSTATE, 0, LPARAM(&item));
}

void SelectReportRow(CWnd& list, const std::string& text)
{
    list.SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    SelectFirstCell(list, text);
}

void SelectBranch(CWnd& tree, const std::string&)
{
    const LRESULT root = tree.SendMessage(TVM_GETNEXTITEM, TVGN_ROOT, 0);
    tree.SendMessage(TVM_SELECTITEM, TVGN_CARET, root);
}

Enter Row(bool enabled, int check)
{
    return [=](CWnd& window, const std::string&) {
        auto& list = static_cast<CCustomChecklistBox&>(window);
        list.Enable(0, enabled);
        list.SetCheck(0, check);
    };
}

void ShowPrompt(CWnd& window, const std::string& text)
{
    auto& edit = static_cast<EditWithPrompt&>(window);
    edit.SetPromptText(text.c_str());
    edit.Reset();
}

void Drop(CWnd& window, const std::string&)
{
    static_cast<CCustomDropListCombo&>(window).DoDropButton(); // without the capture
}

} // namespace

std::vector<State> StatesOf(const char* control)
{
    const std::string_view name = control;
    const auto has = [name](std::string_view part) { return name.find(part) != name.npos; };
    std::vector<State> states = {
        {"plain", true, [](CWnd&, const std::string&) {}},
        {"focused", true, [](CWnd& window, const std::string&) { window.SetFocus(); }},
        {"disabled", false, [](CWnd& window, const std::string&) { window.EnableWindow(FALSE); }},
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
    if (has("prompt"))
    {
        states.push_back({"prompt", true, &ShowPrompt});
    }
    if (has("check list"))
    {
        // As disabled, in a list of nothing else.
        states.push_back({"row off", false, Row(false, BST_UNCHECKED), 1});
        states.push_back({"row on", true, Row(true, BST_UNCHECKED), 1});
        states.push_back({"checked", true, Row(true, BST_CHECKED), 1});
        states.push_back({"checked off", false, Row(false, BST_CHECKED), 1});
    }
    if (name == "combo")
    {
        states.push_back({"open", true, &Drop});
    }
    // What is selected is looked at in a list of nothing else.
    if (has("report"))
    {
        states.push_back({"selected", true, &SelectReportRow, 1});
        states.push_back({"first cell", true, &SelectFirstCell, 1});
    }
    else if (has("tree"))
    {
        states.push_back({"selected", true, &SelectBranch, 1});
    }
    else if (has("many selections"))
    {
        states.push_back({"selected", true, Sending(LB_SETSEL, TRUE, -1), 1});
    }
    else if (has("check list"))
    {
        states.push_back({"selected", true,
                          [](CWnd& list, const std::string& text) {
                              Row(true, BST_UNCHECKED)(list, text);
                              list.SendMessage(LB_SETCURSEL, 0);
                          },
                          1});
    }
    else if (has("list"))
    {
        states.push_back({"selected", true, Sending(LB_SETCURSEL, 0), 1});
    }
    return states;
}
