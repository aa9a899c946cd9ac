#pragma once

// The changes of the mode are numbered from 1. A window whose object is older than a change that is
// on its way through the registries may open in the middle of it: in the new mode, of which its
// object is told all the same.

// The number of the last change that has begun; noted by a window when it gets its first layout.
unsigned LastModeChange();

// Whether a window with this number opened in the mode that is being told. Outside of a change none
// did: whoever tells a window then means it.
bool HasModeAlready(unsigned openedAt);
