#pragma once

#include <afxcmn.h>

#include <string>

// Rows "Row 0" and so on at the end of a list, or with another text before the number.
template <class List> void AddRows(List& list, int count, const std::string& text = "Row ")
{
    for (int row = 0; row < count; ++row)
    {
        const std::string numbered = text + std::to_string(row);
        if constexpr (requires { list.AddString(numbered.c_str()); })
        {
            list.AddString(numbered.c_str());
        }
        else
        {
            list.InsertItem(row, numbered.c_str());
        }
    }
}

// Of a row, a column, a tab or a button, in client coordinates.
template <class Control> CRect ItemRectOf(const Control& control, int item)
{
    CRect rect;
    if constexpr (requires { control.GetItemRect(item, &rect, UINT(LVIR_BOUNDS)); })
    {
        control.GetItemRect(item, &rect, LVIR_BOUNDS);
    }
    else
    {
        control.GetItemRect(item, &rect);
    }
    return rect;
}
