/* Numbers of the numbers page; read by the resource compiler too. */
#pragma once

#include <cvutil32/numfld.h>
#include <cvutil32/scroll.h>

#define IDD_NUMBERS_PAGE 165
#define IDS_NUMBERS_TITLE 1650
#define IDS_NUMBERS_VERTICAL 1651
#define IDS_NUMBERS_HORIZONTAL 1652
#define IDS_NUMBERS_INSIDE 1653
#define IDS_NUMBERS_OUTSIDE 1654

#define IDC_NUMBER_VERTICAL 1661
#define IDC_NUMBER_VERTICAL_BAR 1662
#define IDC_NUMBER_HORIZONTAL 1663
#define IDC_NUMBER_HORIZONTAL_BAR 1664
#define IDC_MINIMUM 1665
#define IDC_MINIMUM_BAR 1666
#define IDC_MAXIMUM 1667
#define IDC_MAXIMUM_BAR 1668
#define IDC_NUMBERS_FIRST 1669
#define IDC_NUMBERS_SECOND 1670
