#pragma once

#include <functional>
#include <memory>
#include <vector>

// What one side of a row does. Only run() is timed; finish() takes everything away again, so that
// the other side has the stage to itself.
struct Side
{
    std::function<void()> prepare;
    std::function<void()> run;
    std::function<void()> finish;
};

// One comparison. The two sides are timed in turn, in the same process.
struct Row
{
    const char* name;
    double goal; // of the ratio of the medians, ours to the peer's
    int rounds;  // of each side
    Side (*ours)();
    Side (*peer)();
};

// All rows, in the order in which they are printed.
std::vector<Row> AllRows();

std::vector<Row> ListBoxRows();
std::vector<Row> ComboRows();
std::vector<Row> ListCtrlRows();
std::vector<Row> EditRows();
std::vector<Row> ButtonRows();
std::vector<Row> ScrollBarRows();
std::vector<Row> ModeRows();
std::vector<Row> DialogRows();
std::vector<Row> ToolbarRows();
std::vector<Row> PolygonRows();
std::vector<Row> MessageBoxRows();
std::vector<Row> TreeRows();
