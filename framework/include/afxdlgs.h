#pragma once

// Property sheets and their pages.

#include <afxwin.h>

#include "framework/PropertySheet.h"
