/* Numbers of the dialogs and their items, shared by all examples; read by the resource compiler too. */
#pragma once

#define IDD_EXAMPLE 1
#define IDB_PICTURE 2
#define IDB_MASK 3

#define IDC_FIELD 100
#define IDC_BAR 101
#define IDC_SHOW 102
#define IDC_RESULT 103
#define IDC_BROWSE 104
#define IDC_START 105
#define IDC_STOP 106
