// Before everything else that clang-msvc.cmake compiles: what mingw-w64's headers leave undefined for this compiler.
#include <_mingw.h>
#undef __MINGW_IMPORT
#define __MINGW_IMPORT extern
