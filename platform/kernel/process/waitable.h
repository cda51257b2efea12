/// @file waitable.h
/// Waiting for kernel objects together with something else: who waits is told when one of them is signalled.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

namespace platform::kernel {

struct Waitable;

/// The objects that a thread waits for while it waits for its messages too.
class ObjectWait {
  public:
    /// `wake` is called with `context` on the thread that signals one of the objects, which it must not use. Throws
    /// bad_alloc.
    ObjectWait(const HANDLE* handles, DWORD count, void (*wake)(void* context), void* context);
    ~ObjectWait();
    ObjectWait(const ObjectWait&) = delete;
    ObjectWait& operator=(const ObjectWait&) = delete;

    /// @returns ERROR_INVALID_HANDLE when one of the handles leads to nothing, else ERROR_SUCCESS.
    DWORD Error() const {
        return error_;
    }

    /// Takes the first object that is signalled. Must not be called with a lock held that `wake` takes.
    /// @returns WAIT_OBJECT_0 and more, or WAIT_TIMEOUT.
    DWORD Take();

    void Wake() const {
        wake_(context_);
    }

  private:
    void Forget();

    std::vector<std::shared_ptr<Waitable>> objects_;
    void (*wake_)(void* context);
    void* context_;
    DWORD error_ = ERROR_SUCCESS;
};

}  // namespace platform::kernel
