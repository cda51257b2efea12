/// @file handle.h
/// Handles are never pointers: a handle is a 31-bit number made of a slot and a generation, and names an object of one
/// kind. A stale, foreign or invented value is found out on every use. Look-ups take no lock.
#pragma once

#include <cstddef>
#include <cstdint>

namespace platform::base {

enum class HandleKind : std::uint8_t {
    None,
    GlobalBlock,
    Module,
    FindFile,
    RegistryKey,
    Thread,
    Event,
    Window,
    Icon,
    Cursor,
    DeviceContext,
    Pen,
    Brush,
    Font,
    Bitmap,
    ImageList,
    Count
};

/// Files an object. @returns its handle, at least 0x10000, or 0 when the table is full or memory has run out.
std::uint32_t InsertHandle(HandleKind kind, void* object);

/// @returns the object, or null when the handle is stale, foreign or of another kind. Sets no error code.
void* FindHandle(std::uint32_t handle, HandleKind kind);

/// @returns the kind of a live handle, else HandleKind::None.
HandleKind KindOfHandle(std::uint32_t handle);

/// Takes the object out of the table; its handle is stale from now on. @returns the object, or null as FindHandle does.
void* RemoveHandle(std::uint32_t handle, HandleKind kind);

/// Puts another object behind a live handle, as when a block of memory has moved: `to` in place of what was at the address
/// `from`. @returns whether that was there.
bool ReplaceHandle(std::uint32_t handle, HandleKind kind, std::uintptr_t from, void* to);

/// @returns how many live handles of this kind there are.
std::size_t CountHandles(HandleKind kind);

template <class Handle>
std::uint32_t ToNumber(Handle handle) {
    const auto value = reinterpret_cast<std::uintptr_t>(handle);
    return value > UINT32_MAX ? 0 : static_cast<std::uint32_t>(value);
}

template <class Handle>
Handle ToHandle(std::uint32_t number) {
    return reinterpret_cast<Handle>(static_cast<std::uintptr_t>(number));
}

template <class Object, class Handle>
Object* Find(Handle handle, HandleKind kind) {
    return static_cast<Object*>(FindHandle(ToNumber(handle), kind));
}

}  // namespace platform::base
