#pragma once

// What an extension module needs in the one file that initialises it.

#include <afxwin.h>
