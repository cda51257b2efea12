/// @file live.h
/// What every entry of the shell passes through: objects and blocks are counted while they live, and a test can have
/// one call fail.
#pragma once

#include <windows.h>

#include <objbase.h>

#include <atomic>
#include <cstddef>
#include <new>

#include "base/failure_order.h"
#include "base/live.h"

namespace platform::shell {

inline base::FailureOrder g_failure;

/// @returns true when the test's order makes this very call fail.
inline bool FailsNow() {
    return g_failure.MeansThis();
}

/// Reference counting of one interface. Made with one reference; the last Release deletes the object.
template <class Interface>
class Counted : public Interface {
  public:
    Counted() {
        ++base::g_componentObjects;
    }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    virtual ~Counted() {
        --base::g_componentObjects;
    }

    STDMETHODIMP_(ULONG) AddRef() override {
        return ++references_;
    }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

  private:
    std::atomic<ULONG> references_{1};
};

/// Runs the body of a method: no exception leaves it, and a test may have it fail.
template <class Body>
HRESULT Method(Body body) noexcept {
    if (FailsNow()) {
        return E_FAIL;
    }
    try {
        return body();
    } catch (const std::exception&) {
        return E_OUTOFMEMORY;
    }
}

/// The same for a method that hands something out: null where it fails.
template <class Result, class Body>
HRESULT HandOut(Result** place, Body body) noexcept {
    if (!place) {
        return E_INVALIDARG;
    }
    *place = nullptr;
    return Method(body);
}

}  // namespace platform::shell
