/// @file commctrl/treeview.h
/// The tree view: class name, styles, messages, notifications and their structures.
#pragma once

#include "../windef.h"
#include "../winuser/notify.h"

#define WC_TREEVIEWA "SysTreeView32"

// --- styles

#define TVS_HASBUTTONS 0x0001
#define TVS_HASLINES 0x0002
#define TVS_LINESATROOT 0x0004
#define TVS_SHOWSELALWAYS 0x0020

// --- items

struct _TREEITEM;
typedef struct _TREEITEM* HTREEITEM;

#define TVI_ROOT ((HTREEITEM)(ULONG_PTR)-0x10000)
#define TVI_LAST ((HTREEITEM)(ULONG_PTR)-0x0FFFE)

#define TVIF_TEXT 0x0001
#define TVIF_IMAGE 0x0002
#define TVIF_PARAM 0x0004
#define TVIF_STATE 0x0008
#define TVIF_HANDLE 0x0010
#define TVIF_SELECTEDIMAGE 0x0020
#define TVIF_CHILDREN 0x0040

#define TVIS_SELECTED 0x0002
#define TVIS_EXPANDED 0x0020
#define TVIS_EXPANDEDONCE 0x0040

typedef struct tagTVITEMA {
    UINT mask;
    HTREEITEM hItem;
    UINT state;
    UINT stateMask;
    LPSTR pszText;
    int cchTextMax;
    int iImage;
    int iSelectedImage;
    int cChildren;
    LPARAM lParam;
} TVITEMA, *LPTVITEMA;

typedef struct tagTVINSERTSTRUCTA {
    HTREEITEM hParent;
    HTREEITEM hInsertAfter;
    TVITEMA item;
} TVINSERTSTRUCTA, *LPTVINSERTSTRUCTA;

// --- messages

#define TV_FIRST 0x1100
#define TVM_INSERTITEMA (TV_FIRST + 0)
#define TVM_DELETEITEM (TV_FIRST + 1)  ///< of TVI_ROOT or null: all items
#define TVM_EXPAND (TV_FIRST + 2)
#define TVM_GETITEMRECT (TV_FIRST + 4)
#define TVM_GETCOUNT (TV_FIRST + 5)
#define TVM_SETIMAGELIST (TV_FIRST + 9)
#define TVM_GETNEXTITEM (TV_FIRST + 10)
#define TVM_SELECTITEM (TV_FIRST + 11)
#define TVM_GETITEMA (TV_FIRST + 12)
#define TVM_SORTCHILDREN (TV_FIRST + 19)

#define TVE_COLLAPSE 0x0001
#define TVE_EXPAND 0x0002

#define TVSIL_NORMAL 0

#define TVGN_ROOT 0x0000
#define TVGN_NEXT 0x0001
#define TVGN_PARENT 0x0003
#define TVGN_CHILD 0x0004
#define TVGN_FIRSTVISIBLE 0x0005
#define TVGN_NEXTVISIBLE 0x0006
#define TVGN_PREVIOUSVISIBLE 0x0007
#define TVGN_CARET 0x0009

// --- notifications

#define TVN_FIRST (0U - 400U)
#define TVN_SELCHANGEDA (TVN_FIRST - 2)
#define TVN_ITEMEXPANDINGA (TVN_FIRST - 5)
#define TVN_DELETEITEMA (TVN_FIRST - 9)

#define TVC_UNKNOWN 0x0000
#define TVC_BYMOUSE 0x0001
#define TVC_BYKEYBOARD 0x0002

typedef struct tagNMTREEVIEWA {
    NMHDR hdr;
    UINT action;
    TVITEMA itemOld;
    TVITEMA itemNew;
    POINT ptDrag;
} NMTREEVIEWA, *LPNMTREEVIEWA;
