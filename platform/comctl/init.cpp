#include <commctrl.h>

// Image lists have no window class: there is nothing to make known.
void WINAPI InitCommonControls(void) {}
