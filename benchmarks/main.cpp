// bench [ROW] [--tsv]: times the library against its peers. ROW picks the rows whose names begin
// with it. Exit code 1 when no row is meant, 2 for a wrong call; a goal that is missed is printed,
// not an error: these machines are noisy.

#include "OnBoardUIGeneral.h"
#include "Row.h"
#include "Stage.h"

#include <afxwin.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

class BenchApp : public CWinApp
{};

BenchApp theApp;

double Microseconds()
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER now;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&now);
    return double(now.QuadPart) * 1e6 / double(frequency.QuadPart);
}

double untimed = 0; // microseconds of the run that is being timed

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double TimeOnce(const Side& side)
{
    side.prepare();
    Settle();
    untimed = 0;
    const double before = Microseconds();
    side.run();
    const double time = Microseconds() - before - untimed;
    side.finish();
    Settle();
    return time;
}

void Measure(const Row& row, bool tsv)
{
    const Side ours = row.ours();
    const Side peer = row.peer();
    std::vector<double> oursTimes;
    std::vector<double> peerTimes;
    // One round more, which warms up and does not count.
    for (int round = 0; round <= row.rounds; ++round)
    {
        const double oursTime = TimeOnce(ours);
        const double peerTime = TimeOnce(peer);
        if (round > 0)
        {
            oursTimes.push_back(oursTime);
            peerTimes.push_back(peerTime);
        }
    }
    const double oursMedian = Median(oursTimes);
    const double peerMedian = Median(peerTimes);
    std::printf(tsv ? "%s\t%.1f\t%.1f\t%.3f\t%.1f\n" : "%-34s %12.1f %12.1f %8.2f %6.1f\n",
                row.name.c_str(), oursMedian, peerMedian, oursMedian / peerMedian, row.goal);
    std::fflush(stdout);
}

} // namespace

Untimed::Untimed()
    : m_since(Microseconds())
{}

Untimed::~Untimed()
{
    untimed += Microseconds() - m_since;
}

std::vector<Row> AllRows()
{
    std::vector<Row> rows;
    // clang-format off
    constexpr std::vector<Row> (*parts[])() = {
        &ListBoxRows,
        &ComboRows,
        &ListCtrlRows,
        &TreeRows,
        &EditRows,
        &ButtonRows,
        &ScrollBarRows,
        &ModeRows,
        &PaintRows,
        &DialogRows,
        &ToolbarRows,
        &PolygonRows,
        &MessageBoxRows,
    };
    // clang-format on
    for (const auto part : parts)
    {
        const std::vector<Row> more = part();
        rows.insert(rows.end(), more.begin(), more.end());
    }
    return rows;
}

int main(int argc, char** argv)
{
    bool tsv = false;
    std::string wanted;
    for (int index = 1; index < argc; ++index)
    {
        if (std::strcmp(argv[index], "--tsv") == 0)
        {
            tsv = true;
        }
        else if (argv[index][0] == '-' || !wanted.empty())
        {
            std::fprintf(stderr, "usage: bench [ROW] [--tsv]\n");
            return 2;
        }
        else
        {
            wanted = argv[index];
        }
    }
    AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW);
    COnBoardUIGeneral::SetStdModeGoals();
    Stage();

    std::vector<Row> rows = AllRows();
    std::erase_if(rows, [&](const Row& row) { return !row.name.starts_with(wanted); });
    if (rows.empty())
    {
        std::fprintf(stderr, "no row of that name\n");
        return 1;
    }
    std::printf(tsv ? "%s\t%s\t%s\t%s\t%s\n" : "%-34s %12s %12s %8s %6s\n", "row", "ours_us",
                "peer_us", "ratio", "goal");
    for (const Row& row : rows)
    {
        Measure(row, tsv);
    }
    COnBoardUIGeneral::SetAppMode(STD);
    return 0;
}
