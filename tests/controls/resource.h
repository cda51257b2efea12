/* Resources of the controls' tests; read by the resource compiler too. */
#pragma once

#define IDB_STRIP 200   /* 4 frames of 8 by 8 and 3 columns too many: red, green, blue, yellow; corner magenta */
#define IDB_PICTURE 201 /* 6 by 4, blue with black corners */
#define IDB_MASK 202    /* of the picture: its corners are white */
