#pragma once

// The common controls.

#include "afxwin.h"

#include "framework/HeaderCtrl.h"
#include "framework/ImageList.h"
#include "framework/ListCtrl.h"
#include "framework/RichEditCtrl.h"
#include "framework/StatusBarCtrl.h"
#include "framework/TabCtrl.h"
#include "framework/ToolBarCtrl.h"
#include "framework/ToolTipCtrl.h"
#include "framework/TreeCtrl.h"
