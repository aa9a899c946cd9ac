#pragma once

// The common controls for views; a view made of one of them comes with the first that needs it.

#include <afxcmn.h>
#include <afxwin.h>
