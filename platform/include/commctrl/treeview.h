/// @file commctrl/treeview.h
/// The tree view: class name, styles, messages, notifications and their structures.
#pragma once

#include "../windef.h"
#include "../winuser/notify.h"

#define WC_TREEVIEWA "SysTreeView32"

// --- notifications of all common controls

#define NM_FIRST 0U
#define NM_OUTOFMEMORY (NM_FIRST - 1U)
#define NM_CLICK (NM_FIRST - 2U)
#define NM_DBLCLK (NM_FIRST - 3U)
#define NM_RETURN (NM_FIRST - 4U)
#define NM_RCLICK (NM_FIRST - 5U)
#define NM_RDBLCLK (NM_FIRST - 6U)
#define NM_SETFOCUS (NM_FIRST - 7U)
#define NM_KILLFOCUS (NM_FIRST - 8U)

// --- styles

#define TVS_HASBUTTONS 0x0001
#define TVS_HASLINES 0x0002
#define TVS_LINESATROOT 0x0004
#define TVS_DISABLEDRAGDROP 0x0010  ///< there is no dragging in any case
#define TVS_SHOWSELALWAYS 0x0020

// --- items

struct _TREEITEM;
typedef struct _TREEITEM* HTREEITEM;

#define TVI_ROOT ((HTREEITEM)(ULONG_PTR)-0x10000)
#define TVI_FIRST ((HTREEITEM)(ULONG_PTR)-0x0FFFF)
#define TVI_LAST ((HTREEITEM)(ULONG_PTR)-0x0FFFE)
#define TVI_SORT ((HTREEITEM)(ULONG_PTR)-0x0FFFD)

#define TVIF_TEXT 0x0001
#define TVIF_IMAGE 0x0002
#define TVIF_PARAM 0x0004
#define TVIF_STATE 0x0008
#define TVIF_HANDLE 0x0010
#define TVIF_SELECTEDIMAGE 0x0020
#define TVIF_CHILDREN 0x0040

#define TVIS_SELECTED 0x0002
#define TVIS_CUT 0x0004
#define TVIS_DROPHILITED 0x0008
#define TVIS_BOLD 0x0010
#define TVIS_EXPANDED 0x0020
#define TVIS_EXPANDEDONCE 0x0040
#define TVIS_OVERLAYMASK 0x0F00
#define TVIS_STATEIMAGEMASK 0xF000

#define I_CHILDRENCALLBACK (-1)
#ifndef LPSTR_TEXTCALLBACKA
#define LPSTR_TEXTCALLBACKA ((LPSTR)(INT_PTR)-1)
#endif
#ifndef I_IMAGECALLBACK
#define I_IMAGECALLBACK (-1)
#endif

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

#define TVHT_NOWHERE 0x0001
#define TVHT_ONITEMICON 0x0002
#define TVHT_ONITEMLABEL 0x0004
#define TVHT_ONITEMINDENT 0x0008
#define TVHT_ONITEMBUTTON 0x0010
#define TVHT_ONITEMRIGHT 0x0020
#define TVHT_ONITEMSTATEICON 0x0040
#define TVHT_ONITEM (TVHT_ONITEMICON | TVHT_ONITEMLABEL | TVHT_ONITEMSTATEICON)
#define TVHT_ABOVE 0x0100
#define TVHT_BELOW 0x0200
#define TVHT_TORIGHT 0x0400
#define TVHT_TOLEFT 0x0800

typedef struct tagTVHITTESTINFO {
    POINT pt;
    UINT flags;
    HTREEITEM hItem;
} TVHITTESTINFO, *LPTVHITTESTINFO;

/// @returns negative, 0 or positive as the item with the first lParam comes before, with or after the other one.
typedef int(CALLBACK* PFNTVCOMPARE)(LPARAM first, LPARAM second, LPARAM parameter);

typedef struct tagTVSORTCB {
    HTREEITEM hParent;
    PFNTVCOMPARE lpfnCompare;
    LPARAM lParam;
} TVSORTCB, *LPTVSORTCB;

// --- messages

#define TV_FIRST 0x1100
#define TVM_INSERTITEMA (TV_FIRST + 0)
#define TVM_DELETEITEM (TV_FIRST + 1)
#define TVM_EXPAND (TV_FIRST + 2)
#define TVM_GETITEMRECT (TV_FIRST + 4)
#define TVM_GETCOUNT (TV_FIRST + 5)
#define TVM_GETINDENT (TV_FIRST + 6)
#define TVM_SETINDENT (TV_FIRST + 7)
#define TVM_GETIMAGELIST (TV_FIRST + 8)
#define TVM_SETIMAGELIST (TV_FIRST + 9)
#define TVM_GETNEXTITEM (TV_FIRST + 10)
#define TVM_SELECTITEM (TV_FIRST + 11)
#define TVM_GETITEMA (TV_FIRST + 12)
#define TVM_SETITEMA (TV_FIRST + 13)
#define TVM_GETVISIBLECOUNT (TV_FIRST + 16)
#define TVM_HITTEST (TV_FIRST + 17)
#define TVM_SORTCHILDREN (TV_FIRST + 19)
#define TVM_ENSUREVISIBLE (TV_FIRST + 20)
#define TVM_SORTCHILDRENCB (TV_FIRST + 21)

#define TVE_COLLAPSE 0x0001
#define TVE_EXPAND 0x0002
#define TVE_TOGGLE 0x0003
#define TVE_COLLAPSERESET 0x8000  ///< with TVE_COLLAPSE: the children are deleted

#define TVSIL_NORMAL 0
#define TVSIL_STATE 2

#define TVGN_ROOT 0x0000
#define TVGN_NEXT 0x0001
#define TVGN_PREVIOUS 0x0002
#define TVGN_PARENT 0x0003
#define TVGN_CHILD 0x0004
#define TVGN_FIRSTVISIBLE 0x0005
#define TVGN_NEXTVISIBLE 0x0006
#define TVGN_PREVIOUSVISIBLE 0x0007
#define TVGN_DROPHILITE 0x0008
#define TVGN_CARET 0x0009

#define TreeView_InsertItem(window, insert) \
    ((HTREEITEM)SendMessageA((window), TVM_INSERTITEMA, 0, (LPARAM)(LPTVINSERTSTRUCTA)(insert)))
#define TreeView_DeleteItem(window, item) ((BOOL)SendMessageA((window), TVM_DELETEITEM, 0, (LPARAM)(HTREEITEM)(item)))
#define TreeView_DeleteAllItems(window) ((BOOL)SendMessageA((window), TVM_DELETEITEM, 0, (LPARAM)TVI_ROOT))
#define TreeView_Expand(window, item, code) \
    ((BOOL)SendMessageA((window), TVM_EXPAND, (WPARAM)(code), (LPARAM)(HTREEITEM)(item)))
#define TreeView_GetItemRect(window, item, rect, textOnly) \
    (*(HTREEITEM*)(rect) = (item),                         \
     (BOOL)SendMessageA((window), TVM_GETITEMRECT, (WPARAM)(textOnly), (LPARAM)(RECT*)(rect)))
#define TreeView_GetCount(window) ((UINT)SendMessageA((window), TVM_GETCOUNT, 0, 0))
#define TreeView_SetImageList(window, list, which) \
    ((HIMAGELIST)SendMessageA((window), TVM_SETIMAGELIST, (WPARAM)(which), (LPARAM)(HIMAGELIST)(list)))
#define TreeView_GetNextItem(window, item, code) \
    ((HTREEITEM)SendMessageA((window), TVM_GETNEXTITEM, (WPARAM)(code), (LPARAM)(HTREEITEM)(item)))
#define TreeView_GetRoot(window) TreeView_GetNextItem(window, NULL, TVGN_ROOT)
#define TreeView_GetChild(window, item) TreeView_GetNextItem(window, item, TVGN_CHILD)
#define TreeView_GetNextSibling(window, item) TreeView_GetNextItem(window, item, TVGN_NEXT)
#define TreeView_GetParent(window, item) TreeView_GetNextItem(window, item, TVGN_PARENT)
#define TreeView_GetSelection(window) TreeView_GetNextItem(window, NULL, TVGN_CARET)
#define TreeView_Select(window, item, code) \
    ((BOOL)SendMessageA((window), TVM_SELECTITEM, (WPARAM)(code), (LPARAM)(HTREEITEM)(item)))
#define TreeView_SelectItem(window, item) TreeView_Select(window, item, TVGN_CARET)
#define TreeView_GetItem(window, item) ((BOOL)SendMessageA((window), TVM_GETITEMA, 0, (LPARAM)(TVITEMA*)(item)))
#define TreeView_SetItem(window, item) ((BOOL)SendMessageA((window), TVM_SETITEMA, 0, (LPARAM)(const TVITEMA*)(item)))
#define TreeView_HitTest(window, hit) \
    ((HTREEITEM)SendMessageA((window), TVM_HITTEST, 0, (LPARAM)(LPTVHITTESTINFO)(hit)))
#define TreeView_SortChildren(window, item, recurse) \
    ((BOOL)SendMessageA((window), TVM_SORTCHILDREN, (WPARAM)(recurse), (LPARAM)(HTREEITEM)(item)))
#define TreeView_EnsureVisible(window, item) \
    ((BOOL)SendMessageA((window), TVM_ENSUREVISIBLE, 0, (LPARAM)(HTREEITEM)(item)))

// --- notifications

#define TVN_FIRST (0U - 400U)
#define TVN_SELCHANGINGA (TVN_FIRST - 1)
#define TVN_SELCHANGEDA (TVN_FIRST - 2)
#define TVN_GETDISPINFOA (TVN_FIRST - 3)
#define TVN_ITEMEXPANDINGA (TVN_FIRST - 5)
#define TVN_ITEMEXPANDEDA (TVN_FIRST - 6)
#define TVN_DELETEITEMA (TVN_FIRST - 9)
#define TVN_KEYDOWN (TVN_FIRST - 12)

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

typedef struct tagTVDISPINFOA {
    NMHDR hdr;
    TVITEMA item;
} NMTVDISPINFOA, *LPNMTVDISPINFOA;

#pragma pack(push, 1)
typedef struct tagTVKEYDOWN {
    NMHDR hdr;
    WORD wVKey;
    UINT flags;
} NMTVKEYDOWN, *LPNMTVKEYDOWN;
#pragma pack(pop)

#ifndef CVPLATFORM_NO_GENERIC_NAMES
#define WC_TREEVIEW WC_TREEVIEWA
#define TVITEM TVITEMA
#define TVINSERTSTRUCT TVINSERTSTRUCTA
#define NMTREEVIEW NMTREEVIEWA
#define NMTVDISPINFO NMTVDISPINFOA
#define LPNMTREEVIEW LPNMTREEVIEWA
#define LPSTR_TEXTCALLBACK LPSTR_TEXTCALLBACKA
#define TVM_INSERTITEM TVM_INSERTITEMA
#define TVM_GETITEM TVM_GETITEMA
#define TVM_SETITEM TVM_SETITEMA
#define TVN_SELCHANGING TVN_SELCHANGINGA
#define TVN_SELCHANGED TVN_SELCHANGEDA
#define TVN_GETDISPINFO TVN_GETDISPINFOA
#define TVN_ITEMEXPANDING TVN_ITEMEXPANDINGA
#define TVN_ITEMEXPANDED TVN_ITEMEXPANDEDA
#define TVN_DELETEITEM TVN_DELETEITEMA
#endif
