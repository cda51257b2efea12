/* Numbers of the Buttons page; read by the resource compiler too. */
#pragma once

#include <cvutil32/animate.h>
#include <cvutil32/grbutton.h>

#define IDS_BUTTONS_TITLE 1100
#define IDS_BUTTONS_CLICKED 1101
#define IDS_BUTTONS_PLAYING 1102
#define IDS_BUTTONS_STOPPED 1103

#define IDD_BUTTONS 1100

#define IDC_BUTTONS_PLAIN 1110
#define IDC_BUTTONS_MASKED 1111
#define IDC_BUTTONS_PRESSED 1112
#define IDC_BUTTONS_DISABLED 1113
#define IDC_BUTTONS_LARGE 1114
#define IDC_BUTTONS_CLICKS 1115

/* One for each sample that the page draws, in the order of its table. */
#define IDC_BUTTONS_SAMPLE 1120

#define IDC_BUTTONS_CLOCK 1130
#define IDC_BUTTONS_START 1131
#define IDC_BUTTONS_STOP 1132
#define IDC_BUTTONS_STATE 1133

#define IDB_FOLDER 1150
#define IDB_FOLDER_MASK 1151
#define IDB_DISK 1152
#define IDB_DISK_MASK 1153
#define IDB_PLUS 1154
#define IDB_PLUS_MASK 1155
#define IDB_CROSS 1156
#define IDB_CROSS_MASK 1157
#define IDB_CLOCK 1158 /* pictures of 32 by 32 on magenta */
#define IDB_DIAL 1159
#define IDB_DIAL_MASK 1160
