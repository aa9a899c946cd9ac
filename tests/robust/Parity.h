#pragma once

#include "robust/Journal.h"
#include "support/Repaint.h"

#include <algorithm>

// In the standard mode a control of the library is the platform's: one script gives the same
// answers and tells the parent the same, in the same order, on both; also when the display has
// been through all other modes, before the script or in the middle of it.

inline const CRect Room(40, 30, 300, 230);

template <class Fill> CRect Filled(Fill fill)
{
    CRect rect;
    fill(&rect);
    return rect;
}

class Parity : public WindowTest
{
protected:
    using Lines = std::vector<std::string>;
    static constexpr UINT Id = 77;

    // Under load two presses would be a double click for one control and none for another.
    Parity() { ::SetDoubleClickTime(5000); }
    ~Parity() override { ::SetDoubleClickTime(0); } // the system's own

    // As a host does it whose window is not one of the library's: it repaints its controls.
    void ThroughAllModes()
    {
        for (const APPMODE mode : {APPMODE(1), APPMODE(2), APPMODE(3), APPMODE(4), STD})
        {
            SetMode(mode, Host());
            PumpAll();
        }
    }

    // What the script gives on one control.
    template <class Control, class Script>
    Lines Played(const char* windowClass, DWORD style, Script script, bool before, bool within)
    {
        Control control;
        control.CWnd::CreateEx(WS_EX_CLIENTEDGE, windowClass, "Text",
                               style | WS_CHILD | WS_VISIBLE | WS_TABSTOP, Room, &Host(), Id);
        PumpAll();
        if (before)
        {
            ThroughAllModes();
        }
        Journal journal(Host(), control,
                        within ? std::function<void()>([this] { ThroughAllModes(); }) : nullptr);
        script(control, journal);
        Lines lines = journal.Lines();
        control.DestroyWindow();
        return lines;
    }

    template <class Ours, class Platforms, class Script>
    void Compare(const char* windowClass, DWORD style, Script script)
    {
        const Lines wanted = Played<Platforms>(windowClass, style, script, false, false);
        EXPECT_FALSE(wanted.empty());
        for (const auto& [before, within] : {std::pair{false, false}, {true, false}, {false, true}})
        {
            const Lines given = Played<Ours>(windowClass, style, script, before, within);
            const auto [left, right] = std::ranges::mismatch(wanted, given);
            if (left == wanted.end() && right == given.end())
            {
                continue;
            }
            std::string last;
            for (auto back = left - std::min<ptrdiff_t>(4, left - wanted.begin()); back != left;
                 ++back)
            {
                last += "\n  " + *back;
            }
            ADD_FAILURE() << windowClass << " of style " << style << ", modes before " << before
                          << ", within " << within << last
                          << "\nplatform: " << (left != wanted.end() ? *left : "(end)")
                          << "\nours:     " << (right != given.end() ? *right : "(end)");
        }
    }
};
