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

#define IDC_TIME_VERTICAL 1601
#define IDC_TIME_VERTICAL_BAR 1602
#define IDC_TIME_HORIZONTAL 1603
#define IDC_TIME_HORIZONTAL_BAR 1604
#define IDC_TIME_NOW 1605
#define IDC_CLOCK_12 1606
#define IDC_CLOCK_24 1607
#define IDC_CLOCK_ZERO 1608
#define IDC_VISIT_DATE 1609
#define IDC_VISIT_DATE_BAR 1610
#define IDC_VISIT_TIME 1611
#define IDC_VISIT_TIME_BAR 1612
#define IDC_VISIT_MINUTES 1613
#define IDC_VISIT_MINUTES_BAR 1614
#define IDC_VISIT 1615
