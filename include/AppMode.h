#pragma once

// The process-wide display mode. Every non-zero value is an on-board mode; controls that treat the
// electronic-flight-bag family alike test for EFB and EFBFS together.
enum APPMODE : int
{
    STD = 0,        // standard desktop display
    FULLSCREEN = 1, // full-screen display
    ONBOARD = 2,    // on-board (cockpit, touch) display
    EFB = 3,        // electronic-flight-bag display
    EFBFS = 4,      // electronic-flight-bag full-screen display
};

// Names of the modes, indexed by value; every unit that includes this has its own copy.
constexpr const char* APPMODE_NAMES[] = {"STD", "FULLSCREEN", "ONBOARD", "EFB", "EFBFS"};
