#pragma once

// The common controls as views.

#include <afxcmn.h>
#include <afxwin.h>

#include "framework/CtrlView.h"
