#pragma once

#include <afxwin.h>

// A context for measuring texts as on the screen, the thread's own and kept for its life: to get
// and give back a window's costs more than to measure a text. Whoever selects a font into it puts
// the former one back.
CDC& MeasuringDC();
