#pragma once

#include "robust/Journal.h"
#include "support/Acting.h"

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
    static constexpr UINT Id = 77;

    // Under load two presses would be a double click for one control and none for another.
    const DoubleClickTime m_long{5000};

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
    std::string Played(const char* windowClass, DWORD style, Script script, bool before,
                       bool within)
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
        control.DestroyWindow();
        return journal.Text();
    }

    // In each of the styles.
    template <class Ours, class Platforms, class Script>
    void Compare(const char* windowClass, std::initializer_list<DWORD> styles, Script script)
    {
        for (const DWORD style : styles)
        {
            const std::string platforms =
                Played<Platforms>(windowClass, style, script, false, false);
            EXPECT_NE(platforms, "");
            for (const auto& [before, within] :
                 {std::pair{false, false}, {true, false}, {false, true}})
            {
                EXPECT_EQ(Played<Ours>(windowClass, style, script, before, within), platforms)
                    << windowClass << " of style " << style << ", modes before " << before
                    << ", within " << within;
            }
        }
    }
};
