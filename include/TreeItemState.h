#pragma once

#include <afxcmn.h>

// The state of the item that has the caret. The platform's headers have given up its name, and its
// tree never reports it.
#if !defined(TVIS_FOCUSED)
#define TVIS_FOCUSED 0x0001
#endif
