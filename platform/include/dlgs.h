/// @file dlgs.h
/// Identifiers of the controls of the open-file dialog.
#pragma once

#define stc2 0x0441  ///< Files of type:
#define stc3 0x0442  ///< File name:
#define stc4 0x0443  ///< Look in:
#define lst1 0x0460  ///< the items of the folder
#define cmb1 0x0470  ///< the filters
#define cmb2 0x0471  ///< the folders above, and the drives
#define edt1 0x0480  ///< the name
