/// @file cvapi.h
/// How the names of CVUTIL32 are exported and called. Every other header of the library includes this one.
///
/// A flat function is declared as `CVAPI(result) NAME(arguments)`: C linkage, the system's calling convention and, in
/// the library's binary, a name without any decoration. An exported class carries `CVCLASS` before its name and is
/// exported as a whole, virtual table included.
///
/// `CVEXPORT` is what a module must write to use a name of another one. The build of the library defines it as what
/// exports a name instead; nobody else needs to define it.
///
/// The headers of the controls can also be included in resource scripts, which see the class names and styles alone.
#pragma once

#include <windows.h>

#ifndef CVEXPORT
/// Before a name of the library's: where it comes from, or in the library's own build that it goes out.
#define CVEXPORT DECLSPEC_IMPORT
#endif

/// C linkage, from C and from C++.
#ifdef __cplusplus
#define CVEXTERN extern "C"
#else
#define CVEXTERN extern
#endif

/// Linkage, visibility, result type and calling convention of a flat function.
#define CVAPI(result) CVEXTERN CVEXPORT result WINAPI

#ifndef CVCLASS
/// Visibility of a class that is exported as a whole.
#define CVCLASS CVEXPORT
#endif

/// Behind a declaration: the compiler warns where the result is thrown away, if it can.
#ifdef __GNUC__
#define CVRESULT __attribute__((warn_unused_result))
#else
#define CVRESULT
#endif
