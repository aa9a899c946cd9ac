#pragma once

#include <afxwin.h>

// Each writes a line, to the standard output and to the standard error output. False when there is
// none: a windowed program has one only if whoever started it gave it one, or has a console.
bool PrintLine(const CString& line);
bool PrintProblem(const CString& line);
