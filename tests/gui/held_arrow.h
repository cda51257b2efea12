#pragma once

#define IDD_HELD 100
#define IDC_FIELD 101
