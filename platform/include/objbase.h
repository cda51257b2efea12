/// @file objbase.h
/// Component objects: what every interface begins with, the allocator, and the start and end of the component library.
#pragma once

#include "guiddef.h"
#include "winerror.h"

#define interface struct

#ifdef __cplusplus

#define STDMETHOD(method) virtual HRESULT STDMETHODCALLTYPE method
#define STDMETHOD_(type, method) virtual type STDMETHODCALLTYPE method
#define STDMETHODIMP HRESULT STDMETHODCALLTYPE
#define STDMETHODIMP_(type) type STDMETHODCALLTYPE
#define PURE = 0

struct IUnknown {
    STDMETHOD_(ULONG, AddRef)() PURE;
    STDMETHOD_(ULONG, Release)() PURE;
};

struct IMalloc : IUnknown {
    STDMETHOD_(void*, Alloc)(SIZE_T size) PURE;
    STDMETHOD_(void, Free)(void* block) PURE;
};

struct IBindCtx;

#else
typedef struct IUnknown IUnknown;
typedef struct IMalloc IMalloc;
typedef struct IBindCtx IBindCtx;
#endif

typedef IMalloc* LPMALLOC;

/// Starts the component library for the calling thread. @returns S_OK the first time, S_FALSE when it runs already; each
/// success is undone by one CoUninitialize.
WINBASEAPI HRESULT WINAPI CoInitialize(LPVOID reserved);
WINBASEAPI void WINAPI CoUninitialize(void);
