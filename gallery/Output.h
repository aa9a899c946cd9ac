#pragma once

#include <afxwin.h>

// Writes one line to the standard output. False when nothing is connected to it: a windowed program
// has one only if whoever started it gave it one.
bool PrintLine(const CString& line);
