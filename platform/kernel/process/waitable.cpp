// Threads and events, and waiting for them.
#include "kernel/process/waitable.h"

#include <chrono>
#include <condition_variable>
#include <future>
#include <mutex>
#include <thread>

#include <sys/syscall.h>
#include <unistd.h>

#include "base/clock.h"
#include "base/immortal.h"
#include "base/fail.h"
#include "base/handle.h"
#include "kernel/guarded.h"

namespace base = platform::base;
using base::HandleKind;

namespace platform::kernel {

// What a handle leads to; a running thread and those who wait hold it too.
struct Waitable {
    std::mutex lock;
    std::condition_variable changed;
    bool signalled = false;
    bool manualReset = true;
    std::vector<const ObjectWait*> waits;  // of threads that wait for more than this

    // Lock held.
    void Signal() {
        signalled = true;
        changed.notify_all();
        for (const ObjectWait* wait : waits) {
            wait->Wake();
        }
    }
    void Take() {
        signalled = signalled && manualReset;
    }
};

}  // namespace platform::kernel

using platform::kernel::ObjectWait;
using platform::kernel::Waitable;

namespace {

// The handle table keeps plain pointers: this is the share that belongs to the handle.
using HandleShare = std::shared_ptr<Waitable>;

// A share may be taken out of the table and deleted by another thread: it is read, and taken out, only under this lock.
std::mutex& SharesLock() {
    static base::Immortal<std::mutex> lock;
    return *lock;
}

HANDLE MakeHandle(HandleKind kind, const std::shared_ptr<Waitable>& object) {
    auto share = std::make_unique<HandleShare>(object);
    const std::uint32_t handle = base::InsertHandle(kind, share.get());
    if (handle) {
        share.release();
    }
    return base::ToHandle<HANDLE>(handle);
}

std::shared_ptr<Waitable> FindWaitable(HANDLE handle, std::initializer_list<HandleKind> kinds) {
    const std::lock_guard guard(SharesLock());
    for (const HandleKind kind : kinds) {
        if (const auto* share = base::Find<HandleShare>(handle, kind)) {
            return *share;
        }
    }
    return base::Fail<std::shared_ptr<Waitable>>(ERROR_INVALID_HANDLE, nullptr);
}

}  // namespace

namespace platform::kernel {

ObjectWait::ObjectWait(const HANDLE* handles, DWORD count, void (*wake)(void* context), void* context)
    : wake_(wake), context_(context) {
    objects_.reserve(count);
    for (DWORD i = 0; i < count; ++i) {
        auto object = FindWaitable(handles[i], {HandleKind::Event, HandleKind::Thread});
        if (!object) {
            error_ = ERROR_INVALID_HANDLE;
            return;
        }
        objects_.push_back(std::move(object));
    }
    try {
        for (const auto& object : objects_) {
            const std::lock_guard guard(object->lock);
            object->waits.push_back(this);
        }
    } catch (...) {
        Forget();
        throw;
    }
}

ObjectWait::~ObjectWait() {
    Forget();
}

void ObjectWait::Forget() {
    for (const auto& object : objects_) {
        const std::lock_guard guard(object->lock);
        std::erase(object->waits, this);
    }
}

DWORD ObjectWait::Take() {
    for (std::size_t i = 0; i < objects_.size(); ++i) {
        const std::lock_guard guard(objects_[i]->lock);
        if (objects_[i]->signalled) {
            objects_[i]->Take();
            return WAIT_OBJECT_0 + static_cast<DWORD>(i);
        }
    }
    return WAIT_TIMEOUT;
}

}  // namespace platform::kernel

HANDLE WINAPI CreateThread(LPSECURITY_ATTRIBUTES, SIZE_T, LPTHREAD_START_ROUTINE start, LPVOID parameter, DWORD flags,
                           LPDWORD id) {
    if (!start || flags != 0) {
        return base::Fail<HANDLE>(ERROR_INVALID_PARAMETER, nullptr);
    }
    return platform::kernel::Guarded(HANDLE{}, [&] {
        auto object = std::make_shared<Waitable>();
        auto started = std::make_shared<std::promise<DWORD>>();
        std::future<DWORD> number = started->get_future();
        const HANDLE handle = MakeHandle(HandleKind::Thread, object);
        if (!handle) {
            return base::Fail<HANDLE>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
        }
        try {
            std::thread([=] {
                started->set_value(GetCurrentThreadId());
                start(parameter);
                const std::lock_guard guard(object->lock);
                object->Signal();
            }).detach();
        } catch (...) {
            CloseHandle(handle);
            throw;
        }
        const DWORD told = number.get();
        if (id) {
            *id = told;
        }
        return handle;
    });
}

HANDLE WINAPI CreateEventA(LPSECURITY_ATTRIBUTES, BOOL manualReset, BOOL initialState, LPCSTR name) {
    if (name) {
        return base::Fail<HANDLE>(ERROR_NOT_SUPPORTED, nullptr);  // events are not shared between processes here
    }
    return platform::kernel::Guarded(HANDLE{}, [&] {
        auto object = std::make_shared<Waitable>();
        object->manualReset = manualReset != FALSE;
        object->signalled = initialState != FALSE;
        const HANDLE handle = MakeHandle(HandleKind::Event, object);
        return handle ? handle : base::Fail<HANDLE>(ERROR_NOT_ENOUGH_MEMORY, nullptr);
    });
}

BOOL WINAPI SetEvent(HANDLE event) {
    const auto object = FindWaitable(event, {HandleKind::Event});
    if (!object) {
        return FALSE;
    }
    const std::lock_guard guard(object->lock);
    object->Signal();
    return TRUE;
}

DWORD WINAPI WaitForSingleObject(HANDLE handle, DWORD milliseconds) {
    const auto object = FindWaitable(handle, {HandleKind::Event, HandleKind::Thread});
    if (!object) {
        return WAIT_FAILED;
    }
    std::unique_lock guard(object->lock);
    const auto ready = [&] { return object->signalled; };
    if (milliseconds == INFINITE) {
        object->changed.wait(guard, ready);
    } else if (!ready() && base::SkipTo(base::TickCount64() + milliseconds)) {
        return WAIT_TIMEOUT;
    } else if (!object->changed.wait_for(guard, std::chrono::milliseconds(milliseconds), ready)) {
        return WAIT_TIMEOUT;
    }
    object->Take();
    return WAIT_OBJECT_0;
}

BOOL WINAPI CloseHandle(HANDLE handle) {
    const std::lock_guard guard(SharesLock());
    for (const HandleKind kind : {HandleKind::Event, HandleKind::Thread}) {
        if (auto* share = static_cast<HandleShare*>(base::RemoveHandle(base::ToNumber(handle), kind))) {
            delete share;
            return TRUE;
        }
    }
    return base::Fail(ERROR_INVALID_HANDLE, FALSE);
}

DWORD WINAPI GetCurrentThreadId(void) {
    static thread_local const DWORD id = static_cast<DWORD>(syscall(SYS_gettid));
    return id;
}
