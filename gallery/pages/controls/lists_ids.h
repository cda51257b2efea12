/* Numbers of the Lists page; read by the resource compiler too. */
#pragma once

#include <cvutil32/buddyfr.h>
#include <cvutil32/cklist.h>
#include <cvutil32/grbutton.h>

#include "gallery/pages/controls/buttons_ids.h" /* the pictures */

#define IDS_LISTS_TITLE 1200
#define IDS_LISTS_TICKED 1201
#define IDS_LISTS_EXAMPLE 1202
#define IDS_LISTS_ITEM 1210 /* and the seven after it */

#define IDD_LISTS 1200

#define IDC_LISTS_CHECKS 1210
#define IDC_LISTS_OWN 1211
#define IDC_LISTS_TICKED 1212
#define IDC_LISTS_EDIT 1213
#define IDC_LISTS_EDIT_ADD 1214
#define IDC_LISTS_EDIT_CLEAR 1215
#define IDC_LISTS_EDIT_FRAME 1216
#define IDC_LISTS_COMBO 1217
#define IDC_LISTS_COMBO_ADD 1218
#define IDC_LISTS_COMBO_CLEAR 1219
#define IDC_LISTS_COMBO_FRAME 1220
