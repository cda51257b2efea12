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

#define IDC_NUMBER_VERTICAL 201
#define IDC_NUMBER_VERTICAL_BAR 202
#define IDC_NUMBER_HORIZONTAL 203
#define IDC_NUMBER_HORIZONTAL_BAR 204
#define IDC_MINIMUM 205
#define IDC_MINIMUM_BAR 206
#define IDC_MAXIMUM 207
#define IDC_MAXIMUM_BAR 208
#define IDC_NUMBERS_FIRST 209
#define IDC_NUMBERS_SECOND 210
