#pragma once

namespace framework {

// What a loop of messages does when there are none.

// The bars of the thread's frames, or of those alone that the user can reach.
void UpdateBarsOfFrames(bool onlyEnabled);

// Drops the objects that were made for handles which nobody wraps.
void DeleteTemporaryObjects();

} // namespace framework
