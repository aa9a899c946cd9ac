#pragma once

// Identifiers of the gallery's resources, windows and commands.

#define IDR_GALLERY 100
#define IDD_GALLERY_PAGE 101
#define IDD_GALLERY_FLIGHT 102
#define IDD_GALLERY_SHEET_GENERAL 103
#define IDD_GALLERY_SHEET_AIRPORTS 104
#define IDD_GALLERY_SHEET_REMARKS 105
#define IDD_GALLERY_COMBOS 120

// The frame's own windows.
#define IDC_MODE_SWITCHES 200
#define IDC_PAGE_LIST 201
#define IDC_WINDOW_SWITCHES 202
#define IDC_PAGE_DOWN 204
#define IDC_PAGE_ACROSS 205
#define IDC_PAGE 210

// Controls of the dialogs.
#define IDC_FLIGHT_CALLSIGN 301
#define IDC_FLIGHT_ALTERNATE 302
#define IDC_FLIGHT_VISUAL 303
#define IDC_FLIGHT_INSTRUMENT 304
#define IDC_FLIGHT_AIRPORTS 305
#define IDC_FLIGHT_ANOTHER 306
#define IDC_FLIGHT_RULES 307
#define IDC_FLIGHT_REMARKS 308
#define IDC_FLIGHT_CAPTION 309
#define IDC_FLIGHT_COLOUR 310
#define IDC_FLIGHT_ROUTE 311
#define IDC_FLIGHT_SQUAWK 312
#define IDC_FLIGHT_GATE 313
#define IDC_FLIGHT_FRAME 314
#define IDC_COMBOS_RUNWAY 320
#define IDC_COMBOS_PROCEDURE 321

// Controls of a page; each page counts its own from here.
#define IDC_PAGE_FIRST 1000

// The numbers under which the library looks for them.
#define IDB_SORT_ASCENDING 10017
#define IDB_SORT_DESCENDING 10018

// One command for each display mode, in the order of their values, one for each page, in the order
// of the list, and those of the window itself.
#define ID_MODE_FIRST 40000
#define ID_MODE_LAST 40004
#define ID_PAGE_FIRST 40010
#define ID_PAGE_LAST 40059
#define ID_WINDOW_MINIMIZE 40060
#define ID_WINDOW_CLOSE 40061
