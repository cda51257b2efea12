/// @file commdlg.h
/// Common dialogs: the open-file dialog.
///
/// The dialog is the Explorer-style one, whether or not OFN_EXPLORER is given; a hook procedure is called only with it. The
/// hook is the dialog procedure of a child of the dialog: it gets WM_INITDIALOG with the OPENFILENAME record as lParam,
/// WM_NOTIFY with an OFNOTIFY record, and when a name was chosen the registered message FILEOKSTRING with the record as lParam.
/// It refuses a name, for CDN_FILEOK and for FILEOKSTRING, by a result other than 0 with DWL_MSGRESULT set to one other than 0.
/// The dialog has no box for opening files to be read only (OFN_HIDEREADONLY or not), adds no extension to a name (lpstrDefExt)
/// and fills in neither the title nor the offsets (lpstrFileTitle, nFileOffset, nFileExtension).
#pragma once

#include "cderr.h"
#include "windows.h"

#define OFN_HIDEREADONLY 0x00000004
#define OFN_NOCHANGEDIR 0x00000008  ///< there is no current folder to change
#define OFN_ENABLEHOOK 0x00000020
#define OFN_ALLOWMULTISELECT 0x00000200
#define OFN_FILEMUSTEXIST 0x00001000
#define OFN_EXPLORER 0x00080000
#define OFN_LONGNAMES 0x00200000

typedef UINT_PTR(CALLBACK* LPOFNHOOKPROC)(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

typedef struct tagOFNA {
    DWORD lStructSize;
    HWND hwndOwner;
    HINSTANCE hInstance;
    LPCSTR lpstrFilter;
    LPSTR lpstrCustomFilter;
    DWORD nMaxCustFilter;
    DWORD nFilterIndex;
    LPSTR lpstrFile;
    DWORD nMaxFile;
    LPSTR lpstrFileTitle;
    DWORD nMaxFileTitle;
    LPCSTR lpstrInitialDir;
    LPCSTR lpstrTitle;
    DWORD Flags;
    WORD nFileOffset;
    WORD nFileExtension;
    LPCSTR lpstrDefExt;
    LPARAM lCustData;
    LPOFNHOOKPROC lpfnHook;
    LPCSTR lpTemplateName;
    void* pvReserved;
    DWORD dwReserved;
    DWORD FlagsEx;
} OPENFILENAMEA, *LPOPENFILENAMEA;

/// The size of the record without its last three members, which is taken too (76 bytes on a 32-bit host).
#define OPENFILENAME_SIZE_VERSION_400A (offsetof(OPENFILENAMEA, lpTemplateName) + sizeof(LPCSTR))

#define FILEOKSTRINGA "commdlg_FileNameOK"

#define CDN_FIRST (0U - 601U)
#define CDN_INITDONE (CDN_FIRST - 0)
#define CDN_SELCHANGE (CDN_FIRST - 1)
#define CDN_FOLDERCHANGE (CDN_FIRST - 2)
#define CDN_FILEOK (CDN_FIRST - 5)
#define CDN_TYPECHANGE (CDN_FIRST - 6)

typedef struct _OFNOTIFYA {
    NMHDR hdr;
    LPOPENFILENAMEA lpOFN;
    LPSTR pszFile;
} OFNOTIFYA, *LPOFNOTIFYA;

#define CDM_FIRST (WM_USER + 100)
#define CDM_SETCONTROLTEXT (CDM_FIRST + 4)

WINUSERAPI BOOL WINAPI GetOpenFileNameA(LPOPENFILENAMEA record);
/// @returns what made the last dialog of the thread fail; 0 when the user cancelled it.
WINUSERAPI DWORD WINAPI CommDlgExtendedError(void);
