#include "registry/handles.h"

#include "base/handle.h"

namespace platform::registry {
namespace {

using base::HandleKind;

constexpr REGSAM kRights = 0x3F;
constexpr unsigned kRightBits = 8;

// The object behind a handle is no memory but the key's number and its rights, so that a handle that another thread
// closes at the same moment leads to nothing bad.
void* Pack(KeyId key, REGSAM rights) {
    return reinterpret_cast<void*>(static_cast<std::uintptr_t>(key) << kRightBits | rights);
}

// A root is written as a negative 32-bit number, which a pointer holds with its sign or without it.
KeyId RootKey(HKEY handle) {
    constexpr std::array kRoots{kClassesRoot, kUserRoot, kMachineRoot};
    const auto value = reinterpret_cast<std::intptr_t>(handle);
    const auto number = static_cast<std::uint32_t>(value);
    const bool whole = value == static_cast<std::int32_t>(number) || value == static_cast<std::intptr_t>(number);
    const std::uint32_t root = number - 0x80000000;
    return whole && root < kRoots.size() ? kRoots[root] : 0;
}

}  // namespace

LONG OpenHandle(KeyId key, REGSAM access, HKEY* handle) {
    const REGSAM rights = access & MAXIMUM_ALLOWED ? kRights : access & kRights;
    *handle = base::ToHandle<HKEY>(base::InsertHandle(HandleKind::RegistryKey, Pack(key, rights)));
    return *handle ? ERROR_SUCCESS : ERROR_OUTOFMEMORY;
}

LONG FindHandleKey(HKEY handle, REGSAM needed, KeyId* key) {
    if (const KeyId root = RootKey(handle)) {
        *key = root;
        return ERROR_SUCCESS;
    }
    const auto packed =
        reinterpret_cast<std::uintptr_t>(base::FindHandle(base::ToNumber(handle), HandleKind::RegistryKey));
    if (!packed) {
        return ERROR_INVALID_HANDLE;
    }
    *key = static_cast<KeyId>(packed >> kRightBits);
    return (packed & needed) == needed ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

LONG CloseHandleKey(HKEY handle) {
    if (RootKey(handle) || base::RemoveHandle(base::ToNumber(handle), HandleKind::RegistryKey)) {
        return ERROR_SUCCESS;
    }
    return ERROR_INVALID_HANDLE;
}

}  // namespace platform::registry
