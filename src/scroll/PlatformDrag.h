#pragma once

#include <afxwin.h>

namespace scroll {

// Before a change of mode comes to a window: ends the drag or the press of a bar of the platform's
// that it or a child of it has. What they show would jump else with the next move of the pointer,
// beside which the bar lies elsewhere by then. They may end in it.
void EndPlatformScrolling(const CWnd& window);

} // namespace scroll
