/* Numbers of the Browse page; read by the resource compiler too. */
#pragma once

#include <cvutil32/browse.h>
#include <cvutil32/treelist.h>

#define IDS_BROWSE_TITLE 1800
#define IDS_BROWSE_NO_PATH 1801
#define IDS_BROWSE_NOTIFIED 1802
#define IDS_BROWSE_WIDE 1803

#define IDD_BROWSE 1800

#define IDC_BROWSE_FILE 1810
#define IDC_BROWSE_FILE_BUTTON 1811
#define IDC_BROWSE_FILES 1812
#define IDC_BROWSE_FILES_BUTTON 1813
#define IDC_BROWSE_FOLDER 1814
#define IDC_BROWSE_FOLDER_BUTTON 1815
#define IDC_BROWSE_COMBO 1816
#define IDC_BROWSE_COMBO_BUTTON 1817
#define IDC_BROWSE_APPEND 1818
#define IDC_BROWSE_NOTIFIED 1819
#define IDC_BROWSE_TREE 1820
#define IDC_BROWSE_PATH 1821
#define IDC_BROWSE_TREE_GROUP 1822
