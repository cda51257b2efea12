/// @file list.h
/// `LIST_`: a growable array of fixed-size items for callers that do not use the object classes.
///
/// A list is one block of memory. Its handle is the address of item 0, so the items can be used directly as a C array:
///
///     LPVOID list = LIST_Malloc(16, sizeof(RECT));
///     RECT area = {0, 0, 10, 10};
///     LIST_Append(&list, &area);
///     RECT* all = (RECT*)list;
///     all[0].right = 20;
///     LIST_Free(list);
///
/// The handle moves. LIST_Insert(), LIST_Append() and LIST_New() take the address of the caller's handle and store the
/// new one there; LIST_Realloc() returns it. Item addresses and other copies of the handle are stale after any of
/// these.
///
/// Growth. A full list grows by as many items as it was created with room for. A list created with room for 0 items
/// cannot grow by itself; LIST_Realloc() makes room in it.
///
/// Validity. A handle is valid if it is not null and the list's signature ("STLH") stands 24 bytes before it. Nothing
/// else is tested: an ended list's handle and the failure value of LIST_Malloc() must not be used.
///
/// Searching. A list that is kept in order is searched by halving, which also tells where a new item belongs:
///
///     LPVOID sorted = LIST_Malloc(16, sizeof(POINT));
///     POINT const point = {3, 4};
///     DWORD place;
///     if (!LIST_BFind(sorted, LIST_TYPE_LONG, 0, &point.x, &place)) {
///         LIST_Insert(&sorted, &point, place);
///     }
///     LIST_Free(sorted);
///
/// Walking. Each list has a cursor: LIST_GetFirstItem(), then LIST_GetNextItem() until it returns null.
///
/// The functions keep no state of their own. A list is used by one thread at a time.
#pragma once

#include "cvapi.h"

/// @name Key types of LIST_LFind() and LIST_BFind()
/// What stands at the key's offset inside an item, and how the key argument is read.
/// @{
#define LIST_TYPE_SHORT 0   ///< a signed 16-bit number; the key points to one
#define LIST_TYPE_LONG 1    ///< a signed 32-bit number; the key points to one
#define LIST_TYPE_DWORD 2   ///< an unsigned 32-bit number (6 and 7 mean the same); the key points to one
#define LIST_TYPE_LPSTR 4   ///< a pointer to a zero-terminated text; the key is the text, compared by lstrcmpA()
#define LIST_TYPE_WORD 5    ///< an unsigned 16-bit number; the key points to one
#define LIST_TYPE_STRING 8  ///< a zero-terminated text inside the item; the key is the text, compared by lstrcmpA()
/// @}

/// Makes an empty list.
/// @param capacity  items that the list has room for, and by which it grows; at least 1 for a list that is to grow.
/// @param itemSize  bytes of one item.
/// @return the list's handle. When memory runs out the result is the number 24, not null.
CVAPI(LPVOID) LIST_Malloc(DWORD capacity, DWORD itemSize);

/// Ends a list.
/// @return TRUE, or FALSE for an invalid handle.
CVAPI(BOOL) LIST_Free(LPVOID list);

/// @return TRUE if the handle is that of a list, FALSE for null and for anything without the signature.
CVAPI(BOOL) LIST_IsValid(LPVOID list);

/// @return the number of items in use; 0 for an invalid handle.
CVAPI(DWORD) LIST_GetCount(LPVOID list);

/// Sets how many items a list has room for.
/// @param list  the list; its handle may change.
/// @param capacity  items. Below the count, the items beyond it are lost with their memory.
/// @return the new handle; null for an invalid handle or when memory runs out, in which case the old one stays good.
CVAPI(LPVOID) LIST_Realloc(LPVOID list, DWORD capacity) CVRESULT;

/// Inserts an item, which is copied.
/// @param list  address of the handle, which may change.
/// @param item  the item's bytes; null for an item of zeros.
/// @param index  the place, from 0; anything beyond the count appends.
/// @return the item's index, or 0xFFFFFFFF for a null or invalid handle or when the list cannot grow; nothing has
/// changed then.
CVAPI(DWORD) LIST_Insert(LPVOID* list, LPCVOID item, DWORD index);

/// Inserts an item at the end. Arguments and result as for LIST_Insert().
CVAPI(DWORD) LIST_Append(LPVOID* list, LPCVOID item);

/// Appends an item of zeros.
/// @return its address, or null as LIST_Insert() fails.
CVAPI(LPVOID) LIST_New(LPVOID* list);

/// Takes an item out. The items behind it move down; neither the room nor the cursor changes.
/// @return TRUE, or FALSE for an invalid handle or an index at or beyond the count.
CVAPI(BOOL) LIST_Delete(LPVOID list, DWORD index);

/// Puts the cursor on item 0.
/// @return the item's address; null for an invalid handle or an empty list.
CVAPI(LPVOID) LIST_GetFirstItem(LPVOID list);

/// Moves the cursor on by one.
/// @return the item's address; null, and the cursor stays, on the last item and for an invalid handle.
CVAPI(LPVOID) LIST_GetNextItem(LPVOID list);

/// @return the address of the item under the cursor; null for an invalid handle or an empty list. After deletions the
/// cursor may stand behind the last item; that address is returned all the same.
CVAPI(LPVOID) LIST_GetCurrentItem(LPVOID list);

/// Puts the cursor on an item.
/// @return the item's address; null, and the cursor stays, for an invalid handle or an index at or beyond the count.
CVAPI(LPVOID) LIST_SetCurrentItem(LPVOID list, DWORD index);

/// Finds the first item with a key, in any order of items.
/// @param list  the list; only null is refused, the signature is not tested.
/// @param type  the key's type, a LIST_TYPE_ value.
/// @param offset  bytes from an item's start to its key field.
/// @param key  the key, read as the type says.
/// @param index  takes the item's index, or the count if there is none (0 for a null list); may be null.
/// @return the item's address, or null. Any other type, and a null key for a number, returns null and leaves @p index
/// alone (unless the list is empty).
CVAPI(LPVOID) LIST_LFind(LPVOID list, DWORD type, LONG offset, LPCVOID key, DWORD* index);

/// Finds an item with a key in a list that is in ascending order of that key; among equal ones, whichever the halving
/// meets. Arguments and result as for LIST_LFind(), but where there is none, @p index takes the place at which it would
/// be inserted.
CVAPI(LPVOID) LIST_BFind(LPVOID list, DWORD type, LONG offset, LPCVOID key, DWORD* index);
