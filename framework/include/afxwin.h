#pragma once

// The core of the framework: windows, dialogs, views, frames, standard controls, drawing.

#include "framework/Object.h"

#include "framework/Geometry.h"
#include "framework/String.h"

#include "framework/Gdi.h"

#include "framework/DeviceContext.h"

#include "framework/Menu.h"

#include "framework/Wnd.h"

#include "framework/App.h"
#include "framework/Controls.h"
#include "framework/DataExchange.h"
#include "framework/Dialog.h"
#include "framework/Exceptions.h"
#include "framework/Frame.h"
#include "framework/View.h"
