/* Numbers of the gallery's resources and dialog items; read by the resource compiler too. */
#pragma once

#include <cvutil32/datectrl.h>
#include <cvutil32/scroll.h>

/* Glued to the right end of the field before it, which also steps with the Up and Down keys. */
#define SCROLL_BAR_HORIZONTAL (SCROLL_PREVSIBLING | SCROLL_ATTACH | SCROLL_ARROWKEYS)
#define SCROLL_BAR_VERTICAL SCROLL_STANDARD

#define IDD_FIRST_PAGE 100

#define IDC_DATE_VERTICAL 201
#define IDC_BAR_VERTICAL 202
#define IDC_DATE_HORIZONTAL 203
#define IDC_BAR_HORIZONTAL 204
#define IDC_CHOSEN 205
#define IDC_TODAY 206

#define IDS_USAGE 300
#define IDS_UNKNOWN_OPTION 301
#define IDS_NO_FILE 302
#define IDS_CANNOT_WRITE 303
#define IDS_NO_DESKTOP 304
#define IDS_NO_WINDOW 305
#define IDS_NO_DATE 306
