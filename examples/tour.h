/* Numbers of the tour's dialog and its items; read by the resource compiler too. */
#pragma once

#define IDD_TRIP 200
#define IDC_DATE 201
#define IDC_PERSONS 202
#define IDC_FOLDER 203
#define IDC_EXTRAS 204
#define IDC_ABOUT 205
