#include <cvutil32/clist.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>

#include "classes/clist_header.h"
#include "core/globalblock.h"

namespace {

constexpr std::uint32_t kListSignature = 0x5453494C;  // "LIST" in memory
constexpr std::uint32_t kMostSlots = 65535;

bool IsWritable(const void* address, std::size_t size) {
    return !IsBadWritePtr(const_cast<void*>(address), size);
}

bool IsObject(const void* address) {
    // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): any address may be asked, null too.
    return static_cast<const CBASE*>(address)->IsValidcBase() != 0;
}

CBASE* AsObject(void* address) {
    return static_cast<CBASE*>(address);
}

// Most records are small, and two words cover them; a call costs more.
void CopyBytes(void* to, const void* from, std::size_t size) {
    std::uint64_t first;
    std::uint64_t last;
    if (size < sizeof first || size > 2 * sizeof first) {
        std::memmove(to, from, size);
        return;
    }
    std::memcpy(&first, from, sizeof first);
    std::memcpy(&last, static_cast<const char*>(from) + size - sizeof last, sizeof last);
    std::memcpy(to, &first, sizeof first);
    std::memcpy(static_cast<char*>(to) + size - sizeof last, &last, sizeof last);
}

}  // namespace

// --- the header's logic

std::uint32_t CLISTHEADER::ResolveIndex(std::uint32_t index) const {
    if (index < count) {
        return index;
    }
    return index == CLIST_LAST && count > 0 ? count - 1 : CLIST_NOINDEX;
}

void* CLISTHEADER::NewSlot(std::uint32_t index) {
    char* slot = SlotAddress(index);
    if (type != CLISTTYPE_POINTER) {
        return slot;
    }
    void* item = globalblock::Allocate(itemSize);
    std::memcpy(slot, &item, sizeof item);
    return item;
}

void CLISTHEADER::StoreItem(void* place, const void* item) {
    if (!place) {
        return;
    }
    if (!prototype) {
        if (item) {
            CopyBytes(place, item, itemSize);
        } else {
            std::memset(place, 0, itemSize);
        }
        return;
    }
    std::memset(place, 0, itemSize);
    prototype->vCallConstructor(AsObject(place));
    AsObject(place)->vCopy(IsObject(item) ? *static_cast<const CBASE*>(item) : *prototype);
}

void CLISTHEADER::FreeItem(void* item) {
    if (!item) {
        return;
    }
    if (prototype && IsObject(item)) {
        AsObject(item)->vCallDestructor();
    }
    if (type == CLISTTYPE_POINTER) {
        globalblock::Release(item);
    }
}

bool CLISTHEADER::CheckItem(const void* item) const {
    // The probe is for write access although the item is only read: callers rely on read-only items being refused.
    return IsWritable(item, itemSize) && (!prototype || IsObject(item));
}

bool CLISTHEADER::Grow() {
    const std::uint32_t slots = std::min(std::max(count + 1, capacity + capacity / 2), kMostSlots);
    if (slots <= capacity) {
        return false;  // the list is full: nothing is ever written beyond its array
    }
    const std::uint64_t bytes = std::uint64_t{slotSize} * slots;
    auto* grown =
        bytes > SIZE_MAX ? nullptr : static_cast<char*>(globalblock::Resize(array, static_cast<std::size_t>(bytes)));
    if (!grown) {
        return false;
    }
    array = grown;
    capacity = slots;
    return count < capacity;
}

void* CLISTHEADER::Insert(void* item, std::uint32_t index) {
    if (!array || (item && !CheckItem(item)) || index > count) {
        return nullptr;
    }
    const char* const oldArray = array;
    const std::size_t oldBytes = std::size_t{count} * slotSize;
    if (count >= capacity && !Grow()) {
        return nullptr;
    }
    char* const slot = SlotAddress(index);
    // An item of this very list moves with its array, and again when the slots behind the index shift.
    const auto at = reinterpret_cast<std::uintptr_t>(item) - reinterpret_cast<std::uintptr_t>(oldArray);
    if (item && type != CLISTTYPE_POINTER && at < oldBytes) {
        item = array + at + (at >= std::size_t{index} * slotSize ? slotSize : 0);
    }
    if (index < count) {
        std::memmove(slot + slotSize, slot, std::size_t{count - index} * slotSize);
    }
    void* const element = NewSlot(index);
    StoreItem(element, item);
    ++count;
    return element;
}

// Leaves the count and the sizes as they are; vCopy and its callers rely on it.
void CLISTHEADER::FreeAll() {
    if (!array) {
        return;
    }
    // Plain bytes in the array end with it.
    const std::uint32_t own = type == CLISTTYPE_POINTER || prototype ? count : 0;
    for (std::uint32_t i = 0; i < own; ++i) {
        FreeItem(ItemAddress(i));
    }
    if (prototype) {
        prototype->vCallDestructor();
        globalblock::Release(prototype);
        prototype = nullptr;
    }
    globalblock::Release(array);
    array = nullptr;
}

// --- construction and storage

void CLIST::MakeHeader() {
    header = new (std::nothrow) CLISTHEADER;
    if (header) {
        header->signature = kListSignature;
    }
}

CLIST::CLIST(unsigned int itemSize, unsigned int capacity, CLISTTYPE type) {
    if (IsWritable(this, sizeof *this)) {
        MakeHeader();
        Init(itemSize, capacity, type);
    }
}

CLIST::CLIST(const CBASE& prototype, unsigned int capacity, CLISTTYPE type) {
    if (IsWritable(this, sizeof *this)) {
        MakeHeader();
        if (IsObject(&prototype)) {
            Init(prototype, capacity, type);
        }
    }
}

// NOLINTNEXTLINE(bugprone-copy-constructor-init): a source of any state gives a sound base.
CLIST::CLIST(const CLIST& other) : CBASE() {
    if (IsWritable(this, sizeof *this)) {
        MakeHeader();
        if (other.IsValid()) {
            CLIST::vCopy(other);
        }
    }
}

CLIST::~CLIST() {
    if (IsValid()) {
        header->FreeAll();
        header->signature = 0;  // a stale pointer to this list is found out as long as the memory is not reused
        delete header;
        header = nullptr;
    }
}

int CLIST::IsValid() const {
    return IsWritable(this, sizeof *this) && IsWritable(header, sizeof *header) && header->signature == kListSignature;
}

int CLIST::Init(unsigned int itemSize, unsigned int capacity, CLISTTYPE type) {
    if (!IsValid() || itemSize == 0) {
        return 0;
    }
    capacity = capacity < 1 ? 1 : capacity > kMostSlots ? kMostSlots : capacity;
    const std::uint32_t slotSize = type == CLISTTYPE_POINTER ? sizeof(void*) : itemSize;
    const std::uint64_t bytes = std::uint64_t{slotSize} * capacity;
    // Whatever the list held before is abandoned, as vCopy has freed it already.
    header->array =
        bytes > SIZE_MAX ? nullptr : static_cast<char*>(globalblock::Allocate(static_cast<std::size_t>(bytes)));
    if (!header->array) {
        return 0;
    }
    header->itemSize = itemSize;
    header->slotSize = slotSize;
    header->capacity = capacity;
    header->type = type;
    return 1;
}

int CLIST::Init(const CBASE& prototype, unsigned int capacity, CLISTTYPE type) {
    if (!IsWritable(this, sizeof *this) || !IsObject(&prototype)) {
        return 0;
    }
    if (!Init(prototype.vGetSize(), capacity, type) || !IsValid()) {
        return 0;
    }
    header->prototype = static_cast<CBASE*>(globalblock::Allocate(prototype.vGetSize()));
    if (!header->prototype) {
        return 0;  // the array stays: the list goes on as one of plain bytes
    }
    prototype.vCallConstructor(header->prototype);
    header->prototype->vCopy(prototype);
    return 1;
}

// --- elements

unsigned int CLIST::GetCount() const {
    return IsValid() ? header->count : 0;
}

void* CLIST::GetItem(unsigned int index) const {
    if (!IsValid()) {
        return nullptr;
    }
    const std::uint32_t place = header->ResolveIndex(index);
    return place == CLIST_NOINDEX || !header->array ? nullptr : header->ItemAddress(place);
}

void* CLIST::Insert(void* item, unsigned int index) {
    return IsValid() ? header->Insert(item, index) : nullptr;
}

void* CLIST::Append(void* item) {
    if (!IsValid()) {
        return nullptr;
    }
    CLISTHEADER& list = *header;
    const bool plain = list.type != CLISTTYPE_POINTER && !list.prototype && list.array;
    if (!plain || !item || list.count >= list.capacity) {
        return list.Insert(item, list.count);
    }
    // What nearly every append is: bytes that there is room for.
    if (!list.CheckItem(item)) {
        return nullptr;
    }
    char* const slot = list.SlotAddress(list.count);
    CopyBytes(slot, item, list.itemSize);
    ++list.count;
    return slot;
}

void* CLIST::New() {
    return Append(nullptr);
}

void* CLIST::SetItem(void* item, unsigned int index) {
    if (!IsValid() || !header->CheckItem(item)) {
        return nullptr;
    }
    const std::uint32_t place = header->ResolveIndex(index);
    if (place == CLIST_NOINDEX || !header->array) {
        return nullptr;
    }
    void* const element = header->ItemAddress(place);
    if (header->prototype && IsObject(element)) {
        AsObject(element)->vCallDestructor();
    }
    header->StoreItem(element, item);
    return element;
}

unsigned int CLIST::Delete(unsigned int index) {
    if (!IsValid()) {
        return 0;
    }
    const std::uint32_t place = header->ResolveIndex(index);
    if (place == CLIST_NOINDEX || !header->array) {
        return 0;
    }
    header->FreeItem(header->ItemAddress(place));
    char* const slot = header->SlotAddress(place);
    std::memmove(slot, slot + header->slotSize, std::size_t{header->count - place - 1} * header->slotSize);
    return --header->count;
}
