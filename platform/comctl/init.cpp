#include <commctrl.h>

#include "comctl/treeview.h"

void WINAPI InitCommonControls(void) {
    platform::comctl::RegisterTreeView();
}
