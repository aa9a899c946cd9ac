#pragma once

// Dialog templates of the test program's own resources.
#define IDD_TEST_FORM 201
#define IDD_TEST_PAGE_1 202
#define IDD_TEST_PAGE_2 203
#define IDC_TEST_EDIT 211
#define IDC_TEST_CHECK 212
