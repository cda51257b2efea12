/* Resources of the storm; read by the resource compiler too. */
#pragma once

#define IDD_STORM 300  /* the dialog */
#define IDD_PAGE 301   /* in it: the library's controls */
#define IDD_NESTED 302 /* opened from it */

#define IDC_FIRST 1000 /* the page's controls have numbers from here on */
#define IDC_MADE 1100  /* those made later, from here on */
