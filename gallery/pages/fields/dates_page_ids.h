/* Numbers of the dates page; read by the resource compiler too. */
#pragma once

#define IDD_DATES_PAGE 110
#define IDS_DATES_TITLE 1000
#define IDS_NO_DATE 1001

#define IDC_DATE_VERTICAL 201
#define IDC_BAR_VERTICAL 202
#define IDC_DATE_HORIZONTAL 203
#define IDC_BAR_HORIZONTAL 204
#define IDC_CHOSEN 205
#define IDC_TODAY 206
