#pragma once

// Control bars.

#include "afxwin.h"

#include "framework/ControlBar.h"
#include "framework/StatusBar.h"
#include "framework/ToolBar.h"
