#pragma once

// Dialog templates of the test program's own resources.
#define IDD_TEST_FORM 201
#define IDD_TEST_PAGE_1 202
#define IDD_TEST_PAGE_2 203
#define IDD_TEST_COMBOS 204
#define IDC_TEST_EDIT 211
#define IDC_TEST_CHECK 212
#define IDC_TEST_TIGHT 213
#define IDC_TEST_ROOMY 214
#define IDC_TEST_BOXED 215
#define IDC_TEST_BOX 216
