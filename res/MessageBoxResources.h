#pragma once

// Identifiers of the message box's dialog, its controls and its pictures. The dialog's and the
// pictures' are those that applications know: an application with resources of its own under these
// numbers replaces the library's.

#define IDD_MESSAGE_BOX 5000

#define IDC_MESSAGE_ICON 1002
#define IDC_MESSAGE_TEXT 1004

#define IDB_MESSAGE_EXCLAMATION 10002
#define IDB_MESSAGE_ASTERISK 10004
#define IDB_MESSAGE_QUESTION 10006
#define IDB_MESSAGE_HAND 10007
