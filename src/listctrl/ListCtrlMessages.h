#pragma once

#include <afxwin.h>

// Messages to a report list: what it posts to itself, and which concern its view.
namespace listctrl {

constexpr UINT SubclassHeaderMessage = 0x069A; // take the header that was made with the list
constexpr UINT TakeBackMessage = 0x069B;       // what the platform did for a press that is held

// A message that asks for the rows in sight, or chooses them.
bool ConcernsView(UINT message);

} // namespace listctrl
