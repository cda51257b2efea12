/* Numbers of the date and time page; read by the resource compiler too. */
#pragma once

#include <cvutil32/datectrl.h>
#include <cvutil32/numfld.h>
#include <cvutil32/scroll.h>
#include <cvutil32/timectrl.h>

#define IDD_DATETIME_PAGE 160
#define IDS_DATETIME_TITLE 1600
#define IDS_DATETIME_NONE 1601
#define IDS_DATETIME_VISIT 1602

#define IDC_TIME_VERTICAL 201
#define IDC_TIME_VERTICAL_BAR 202
#define IDC_TIME_HORIZONTAL 203
#define IDC_TIME_HORIZONTAL_BAR 204
#define IDC_TIME_NOW 205
#define IDC_CLOCK_12 206
#define IDC_CLOCK_24 207
#define IDC_CLOCK_ZERO 208
#define IDC_VISIT_DATE 209
#define IDC_VISIT_DATE_BAR 210
#define IDC_VISIT_TIME 211
#define IDC_VISIT_TIME_BAR 212
#define IDC_VISIT_MINUTES 213
#define IDC_VISIT_MINUTES_BAR 214
#define IDC_VISIT 215
