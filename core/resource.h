/* Identifiers of the library's resources. Read by the resource compiler too: plain numbers and C comments only. */
#pragma once

#define CVRES_VERSION 1

/* Bitmaps. */
#define CVRES_CHECKS 20099 /* two cells side by side: an empty box, a ticked box */
