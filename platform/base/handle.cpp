#include "base/handle.h"

#include <array>
#include <atomic>
#include <mutex>
#include <new>
#include <type_traits>

namespace platform::base {
namespace {

// A handle is generation << 20 | slot. Slots come in chunks that are never freed, so that a look-up needs no lock.
constexpr std::uint32_t kSlotBits = 20;
constexpr std::uint32_t kSlotMask = (1u << kSlotBits) - 1;
constexpr std::uint32_t kMostGeneration = (1u << 11) - 1;
constexpr std::uint32_t kChunkSlots = 1024;
constexpr std::uint32_t kChunks = (kSlotMask + 1) / kChunkSlots;
constexpr std::uint32_t kNoSlot = 0xFFFFFFFF;

struct Slot {
    std::atomic<std::uint32_t> tag{0};  ///< generation << 8 | kind; kind None while the slot is free
    std::atomic<void*> object{nullptr};
    std::uint32_t nextFree = kNoSlot;
};

struct Table {
    std::array<std::atomic<Slot*>, kChunks> chunks{};
    std::array<std::atomic<std::size_t>, static_cast<std::size_t>(HandleKind::Count)> counts{};
    std::mutex lock;
    std::uint32_t firstFree = kNoSlot;
    std::uint32_t lastFree = kNoSlot;  ///< counts while there is a first one
    std::uint32_t used = 0;
};

// Made before any code runs and never destroyed: look-ups pay for neither, and threads may still make them while the
// process ends.
constinit Table theTable;
static_assert(std::is_trivially_destructible_v<Table>);

Slot* SlotAt(Table& table, std::uint32_t index) {
    Slot* chunk = table.chunks[index / kChunkSlots].load(std::memory_order_acquire);
    return chunk ? chunk + index % kChunkSlots : nullptr;
}

std::uint32_t Tag(std::uint32_t generation, HandleKind kind) {
    return generation << 8 | static_cast<std::uint32_t>(kind);
}

Slot* LiveSlot(std::uint32_t handle, HandleKind kind) {
    Slot* slot = SlotAt(theTable, handle & kSlotMask);
    const bool live =
        slot && kind != HandleKind::None && slot->tag.load(std::memory_order_acquire) == Tag(handle >> kSlotBits, kind);
    return live ? slot : nullptr;
}

// Takes the slot that was freed longest ago, so that a stale handle stays stale as long as possible. Lock held.
std::uint32_t TakeSlot(Table& table) {
    if (table.firstFree != kNoSlot) {
        const std::uint32_t index = table.firstFree;
        table.firstFree = SlotAt(table, index)->nextFree;
        return index;
    }
    if (table.used > kSlotMask) {
        return kNoSlot;
    }
    auto& chunk = table.chunks[table.used / kChunkSlots];
    if (!chunk.load(std::memory_order_relaxed)) {
        Slot* fresh = new (std::nothrow) Slot[kChunkSlots];
        if (!fresh) {
            return kNoSlot;
        }
        chunk.store(fresh, std::memory_order_release);
    }
    return table.used++;
}

// Only who holds the lock writes a count, so that it needs no locked instruction.
void Count(Table& table, HandleKind kind, int change) {
    auto& count = table.counts[static_cast<std::size_t>(kind)];
    count.store(count.load(std::memory_order_relaxed) + static_cast<std::size_t>(change), std::memory_order_relaxed);
}

}  // namespace

std::uint32_t InsertHandle(HandleKind kind, void* object) {
    Table& table = theTable;
    const std::lock_guard guard(table.lock);
    const std::uint32_t index = TakeSlot(table);
    if (index == kNoSlot) {
        return 0;
    }
    Slot* slot = SlotAt(table, index);
    const std::uint32_t generation = (slot->tag.load(std::memory_order_relaxed) >> 8) % kMostGeneration + 1;
    slot->object.store(object, std::memory_order_release);
    slot->tag.store(Tag(generation, kind), std::memory_order_release);
    Count(table, kind, 1);
    return generation << kSlotBits | index;
}

void* FindHandle(std::uint32_t handle, HandleKind kind) {
    Slot* slot = LiveSlot(handle, kind);
    if (!slot) {
        return nullptr;
    }
    // Between the two looks at the tag the slot may have passed to another object, which may be of another kind.
    void* object = slot->object.load(std::memory_order_acquire);
    return slot->tag.load(std::memory_order_relaxed) == Tag(handle >> kSlotBits, kind) ? object : nullptr;
}

HandleKind KindOfHandle(std::uint32_t handle) {
    Slot* slot = SlotAt(theTable, handle & kSlotMask);
    const std::uint32_t tag = slot ? slot->tag.load(std::memory_order_acquire) : 0;
    return tag >> 8 == handle >> kSlotBits ? static_cast<HandleKind>(tag & 0xFF) : HandleKind::None;
}

void* RemoveHandle(std::uint32_t handle, HandleKind kind) {
    Table& table = theTable;
    const std::lock_guard guard(table.lock);
    Slot* slot = LiveSlot(handle, kind);
    if (!slot) {
        return nullptr;
    }
    slot->tag.store(Tag(handle >> kSlotBits, HandleKind::None), std::memory_order_release);
    void* object = slot->object.exchange(nullptr, std::memory_order_release);
    Count(table, kind, -1);
    const std::uint32_t index = handle & kSlotMask;
    slot->nextFree = kNoSlot;
    if (table.firstFree == kNoSlot) {
        table.firstFree = index;
    } else {
        SlotAt(table, table.lastFree)->nextFree = index;
    }
    table.lastFree = index;
    return object;
}

bool ReplaceHandle(std::uint32_t handle, HandleKind kind, std::uintptr_t from, void* to) {
    auto* expected = reinterpret_cast<void*>(from);
    Slot* slot = LiveSlot(handle, kind);
    return slot && slot->object.compare_exchange_strong(expected, to, std::memory_order_acq_rel);
}

std::size_t CountHandles(HandleKind kind) {
    return theTable.counts[static_cast<std::size_t>(kind)].load(std::memory_order_relaxed);
}

}  // namespace platform::base
