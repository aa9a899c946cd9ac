#pragma once

#include <afxwin.h>

// The gallery's icon, drawn at this many pixels a side: a dark panel with a list. Null when it
// cannot be made; the caller owns it.
HICON MakeAppIcon(int size);
