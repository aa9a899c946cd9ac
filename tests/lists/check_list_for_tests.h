#pragma once

#include "CustomChecklistBox.h"
#include "lists/CheckRecords.h"
#include "lists/list_box_for_tests.h"

// A check list that lets a test see its records and its measures.
class CheckListForTests : public BarsSeen<CCustomChecklistBox>
{
public:
    using CCustomChecklistBox::CalcMinimumItemHeight;
    using CCustomChecklistBox::CheckFromPoint;

    size_t Records() const { return m_records->Count(); }

    CRect RowRect(int row) const { return ItemRectOf(*this, row); }

    // Screen points on a row's check and on its text.
    CPoint CheckPoint(int row) const
    {
        return ClientPoint(*this, CPoint(6, RowRect(row).CenterPoint().y));
    }
    CPoint TextPoint(int row) const { return CheckPoint(row) + CPoint(84, 0); }

    std::vector<int> Checks()
    {
        const int count = std::max(GetCount(), 0);
        std::vector<int> checks;
        checks.reserve(size_t(count));
        for (int row = 0; row < count; ++row)
        {
            checks.push_back(GetCheck(row));
        }
        return checks;
    }
};

constexpr DWORD CheckListStyle = ListStyle | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;

// Rows of a height of their own each.
constexpr DWORD VariableCheckListStyle = ListStyle | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS;

class CheckListTest : public WindowTest
{
protected:
    template <class List = CheckListForTests>
    List& AddList(int rows, UINT checkStyle = BS_AUTOCHECKBOX, DWORD style = CheckListStyle)
    {
        auto& list = Add<List>(CRect(20, 20, 320, 320), style);
        list.SetFont(&CCustomChecklistBox::GetStdFont());
        list.SetCheckStyle(checkStyle);
        list.Fill(rows);
        PumpAll();
        return list;
    }

    std::vector<UINT> Codes(const CWnd& list)
    {
        return Host().CodesFrom(UINT(list.GetDlgCtrlID()));
    }

    // How many changes of a check a list has told since the last Forget, by the number that hosts
    // are compiled with.
    int Told(const CWnd& list)
    {
        const std::vector<UINT> codes = Codes(list);
        return int(std::count(codes.begin(), codes.end(), 40U));
    }
};

// The same on either side of the mode switch.
class CheckListInMode : public InMode<CheckListTest>
{};
