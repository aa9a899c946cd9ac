#pragma once

#define IDD_AUDIT_FORM 100
#define IDC_AUDIT_LABEL 101
#define IDC_AUDIT_EDIT 102
