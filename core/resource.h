/* Identifiers of the library's resources. Read by the resource compiler too: plain numbers and C comments only. */
#pragma once

#define CVRES_VERSION 1

/* Dialogs. */
#define CVRES_BROWSE_DIALOG 10310

/* Strings. */
#define CVRES_BROWSE_TITLE 10300
#define CVRES_BROWSE_FILTER 10301
#define CVRES_BROWSE_ACCEPT 10302

/* Bitmaps. */
#define CVRES_BROWSE 10211      /* a sheet with a folder, on the browse button */
#define CVRES_BROWSE_MASK 10212 /* white in the corners that let the button show */
#define CVRES_CHECKS 20099      /* two cells side by side: an empty box, a ticked box */
