#pragma once

// The collection templates.

#include "framework/Collections.h"
#include "framework/PtrList.h"
