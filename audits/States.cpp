#include "States.h"

#include "CustomChecklistBox.h"
#include "CustomDropListCombo.h"
#include "EditWithPrompt.h"

#include <afxcmn.h>

#include <algorithm>

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

Enter ChooseBranch(UINT how)
{
    return [=](CWnd& tree, const std::string&) {
        const LRESULT root = tree.SendMessage(TVM_GETNEXTITEM, TVGN_ROOT, 0);
        tree.SendMessage(TVM_SELECTITEM, how, root);
    };
}

Enter Row(bool enabled, int check)
{
    return [=](CWnd& window, const std::string&) {
        auto& list = static_cast<CCustomChecklistBox&>(window);
        list.Enable(0, enabled);
        list.SetCheck(0, check);
    };
}

// Of all buttons of a tool bar, which are as wide with any text.
Enter Tools(UINT message, bool on)
{
    return [=](CWnd& bar, const std::string&) {
        TBBUTTONINFO info = {};
        info.cbSize = sizeof(info);
        info.dwMask = TBIF_SIZE;
        info.cx = 100;
        const LRESULT buttons = bar.SendMessage(TB_BUTTONCOUNT);
        for (LRESULT id = 1; id <= buttons; ++id)
        {
            bar.SendMessage(TB_SETBUTTONINFO, WPARAM(id), LPARAM(&info));
            bar.SendMessage(message, WPARAM(id), MAKELPARAM(on, 0));
        }
    };
}

void MixCheck(CWnd& box, const std::string&)
{
    box.SendMessage(BM_SETSTYLE, BS_AUTO3STATE, TRUE);
    box.SendMessage(BM_SETCHECK, BST_INDETERMINATE);
}

// As the user presses it; the release does not come.
void PressHeading(CWnd& header, const std::string&)
{
    header.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 10));
}

Enter Focused(const Enter& enter)
{
    return [=](CWnd& window, const std::string& text) {
        window.SetFocus();
        enter(window, text);
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
    if (has("check box"))
    {
        states.push_back({"mixed", true, &MixCheck});
    }
    if (name == "tool bar")
    {
        states.push_back({"buttons off", false, Tools(TB_ENABLEBUTTON, false)});
        states.push_back({"checked", true, Tools(TB_CHECKBUTTON, true)});
        states.push_back({"pressed", true, Tools(TB_PRESSBUTTON, true)});
    }
    if (name == "header")
    {
        states.push_back({"pressed", true, &PressHeading});
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
        states.push_back({"mixed", true, Row(true, BST_INDETERMINATE), 1});
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
        states.push_back({"drop target", true, ChooseBranch(TVGN_DROPHILITE), 1});
        states.push_back({"selected", true, ChooseBranch(TVGN_CARET), 1});
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
    const auto selected = std::find_if(states.begin(), states.end(), [](const State& state) {
        return std::string_view(state.name) == "selected";
    });
    // The platform rings the text of a tree's item alone, more closely than it rings blanks.
    if (selected != states.end() && !has("tree"))
    {
        states.push_back({"in focus", true, Focused(selected->enter), 1});
    }
    return states;
}

State StateOf(const char* control, std::string_view name)
{
    const std::vector<State> states = StatesOf(control);
    const auto found = std::ranges::find(states, name, &State::name);
    return states.at(size_t(found - states.begin()));
}
