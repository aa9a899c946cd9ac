#pragma once

// Identifiers of the gallery's resources, windows and commands.

#define IDR_GALLERY 100
#define IDD_GALLERY_PAGE 101

// The frame's own windows.
#define IDC_MODE_SWITCHES 200
#define IDC_PAGE_LIST 201
#define IDC_PAGE 202

// Controls of a page; each page counts its own from here.
#define IDC_PAGE_FIRST 1000

// One command for each display mode, in the order of their values.
#define ID_MODE_FIRST 40000
#define ID_MODE_LAST 40004
