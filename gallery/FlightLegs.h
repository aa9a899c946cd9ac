#pragma once

#include <afxwin.h>

// Flight legs made by a fixed formula: the same ones each time.
namespace legs {

// The columns of a leg's report.
struct Column
{
    const char* heading;
    int width; // pixels of the standard mode
    int format;
};
constexpr int ColumnCount = 12;
extern const Column Columns[ColumnCount];

// What a report shows of a leg, which is any number from 0 on.
CString Text(int leg, int column);

// Below 0, 0 or above 0, as the first leg stands before, with or after the second by a column.
int Compare(int first, int second, int column);

} // namespace legs
