#pragma once

#include "CustomComboLBox.h"
#include "CustomDropListCombo.h"
#include "catalog/DialogTemplate.h"
#include "support/OnBoard.h"
#include "support/WindowTest.h"

// A combo that lets a test see its list.
class ComboForTests : public CCustomDropListCombo
{
public:
    using CCustomDropListCombo::CCustomDropListCombo;
    using CCustomDropListCombo::m_instances;

    CCustomComboLBox& List() { return *m_list; }
    bool HasList() const { return m_list != nullptr; }
    CRect ListRect() { return WindowRectOf(*List().GetParent()); }

    void Fill(int items) { AddRows(*this, items, "Item "); }

    // Opens the list by a click on the combo.
    void Open()
    {
        Click(Middle());
        EXPECT_TRUE(IsExpanded());
    }

    // Screen points.
    CPoint Middle() const { return WindowRectOf(*this).CenterPoint(); }
    CPoint RowPoint(int row) { return ClientPoint(List(), ItemRectOf(List(), row).CenterPoint()); }
};

constexpr WORD ComboId = 7;

// A dialog with a combo that the window class makes.
inline DialogTemplate ComboForm()
{
    CCustomDropListCombo::RegisterWndClass(nullptr);
    DialogTemplate form(CRect(40, 40, 240, 140), WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE);
    form.Add("CCUSTOMDROPLISTCOMBO", "", WS_TABSTOP, CRect(5, 5, 100, 18), ComboId);
    return form;
}

class ComboTest : public WindowTest
{
protected:
    const CPoint Elsewhere{850, 640}; // on the host's window, in screen coordinates

    ComboForTests& AddCombo(int items, int selected = 0)
    {
        auto& combo = Add<Fenced<ComboForTests>>(CRect(50, 50, 250, 80), WS_TABSTOP);
        combo.Fill(items);
        combo.SetCurSel(selected);
        PumpAll();
        return combo;
    }

    // The notifications of a combo since the last question.
    std::vector<UINT> TakeCodes(const CWnd& combo)
    {
        std::vector<UINT> codes = Host().CodesFrom(UINT(combo.GetDlgCtrlID()));
        Host().Forget();
        return codes;
    }
};

// The same on either side of the mode switch.
class ComboInMode : public InMode<ComboTest>
{};
