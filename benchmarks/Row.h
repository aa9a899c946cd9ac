#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

// What one side of a row does. Only run() is timed; finish() takes everything away again, so that
// the other side has the stage to itself.
struct Side
{
    std::function<void()> prepare;
    std::function<void()> run;
    std::function<void()> finish;
};

// Stops the clock while it lives, within run().
class Untimed
{
public:
    Untimed();
    ~Untimed();
    Untimed(const Untimed&) = delete;
    Untimed& operator=(const Untimed&) = delete;

private:
    double m_since;
};

// One comparison. The two sides are timed in turn, in the same process.
struct Row
{
    std::string name;
    double goal; // of the ratio of the medians, ours to the peer's
    int rounds;  // of each side
    std::function<Side()> ours;
    std::function<Side()> peer;
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
std::vector<Row> PaintRows();
std::vector<Row> DialogRows();
std::vector<Row> ToolbarRows();
std::vector<Row> PolygonRows();
std::vector<Row> MessageBoxRows();
std::vector<Row> TreeRows();
