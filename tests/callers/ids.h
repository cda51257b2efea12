/* Numbers of the callers' dialog, and of pictures of the library's that they show. */
#define IDD_CONTROLS 100
#define IDC_DATE 101
#define IDC_BAR 102
#define IDC_TIME 103
#define IDC_NUMBER 104
#define IDC_PICTURE 105
#define IDC_PATH 106
#define IDC_BROWSE 107
#define IDC_FRAME 108
#define IDC_ANIMATION 109
#define IDC_CHECKS 110
#define IDC_FOLDERS 111

#define IDB_LIBRARY_IMAGE 10211
#define IDB_LIBRARY_MASK 10212
