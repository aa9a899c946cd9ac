#pragma once

// Views made of one common control.

#include <afxcmn.h>
#include <afxwin.h>
