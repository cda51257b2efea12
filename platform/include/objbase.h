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
    STDMETHOD(QueryInterface)(REFIID interfaceId, void** object) PURE;
    STDMETHOD_(ULONG, AddRef)() PURE;
    STDMETHOD_(ULONG, Release)() PURE;
};

struct IMalloc : IUnknown {
    STDMETHOD_(void*, Alloc)(SIZE_T size) PURE;
    STDMETHOD_(void*, Realloc)(void* block, SIZE_T size) PURE;
    STDMETHOD_(void, Free)(void* block) PURE;
    STDMETHOD_(SIZE_T, GetSize)(void* block) PURE;
    /// @returns 1 if the block is one of this allocator's, 0 if it is not, -1 if that cannot be told.
    STDMETHOD_(int, DidAlloc)(void* block) PURE;
    STDMETHOD_(void, HeapMinimize)() PURE;
};

struct IBindCtx;

WINBASEAPI const IID IID_IUnknown;
WINBASEAPI const IID IID_IMalloc;

#else
typedef struct IUnknown IUnknown;
typedef struct IMalloc IMalloc;
typedef struct IBindCtx IBindCtx;
#endif

typedef IUnknown* LPUNKNOWN;
typedef IMalloc* LPMALLOC;
typedef IBindCtx* LPBC;

/// Starts the component library for the calling thread. @returns S_OK the first time, S_FALSE when it runs already; each
/// success is undone by one CoUninitialize.
WINBASEAPI HRESULT WINAPI CoInitialize(LPVOID reserved);
WINBASEAPI void WINAPI CoUninitialize(void);
