/* Numbers of the window's resources and dialog items; read by the resource compiler too. Each page has its own. */
#pragma once

#include <cvutil32/datectrl.h>
#include <cvutil32/scroll.h>

/* Glued to the right end of the field before it, which also steps with the Up and Down keys. */
#define SCROLL_BAR_HORIZONTAL (SCROLL_PREVSIBLING | SCROLL_ATTACH | SCROLL_ARROWKEYS)
#define SCROLL_BAR_VERTICAL SCROLL_STANDARD

#define IDD_FRAME 100

#define IDC_PAGES 101
#define IDC_PAGE_AREA 102

#define IDS_USAGE 300
#define IDS_UNKNOWN_OPTION 301
#define IDS_NO_VALUE 302
#define IDS_CANNOT_WRITE 303
#define IDS_NO_DESKTOP 304
#define IDS_NO_WINDOW 305
#define IDS_NO_PAGE 306
