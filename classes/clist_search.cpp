#include <cvutil32/clist.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "classes/clist_header.h"
#include "core/globalblock.h"
#include "core/halving.h"

void* CLIST::FindLinear(void* key, CLISTCOMPARE compare, unsigned int* index) const {
    void* found = nullptr;
    std::uint32_t place = CLIST_NOINDEX;
    if (IsValid() && compare && header->array) {
        for (std::uint32_t i = index ? *index : 0; i < header->count; ++i) {
            void* const item = header->ItemAddress(i);
            if (compare(key, item) == 0) {
                found = item;
                place = i;
                break;
            }
        }
    }
    if (index) {
        *index = place;
    }
    return found;
}

// What the search needs is read once, as nobody else can change it meanwhile.
void* CLIST::FindBinary(void* key, CLISTCOMPARE compare, unsigned int* index) const {
    void* found = nullptr;
    std::uint32_t place = CLIST_NOINDEX;
    if (IsValid() && compare) {
        const bool direct = header->type != CLISTTYPE_POINTER;
        void* item = nullptr;  // the last one compared
        const auto order = [&](const char* slot) {
            item = direct ? const_cast<char*>(slot) : *reinterpret_cast<void* const*>(slot);
            return compare(key, item);
        };
        const halving::Place at =
            halving::Search(header->array, header->slotSize, header->array ? header->count : 0, order);
        found = at.isMatch ? item : nullptr;
        place = at.index;
    }
    if (index) {
        *index = place;
    }
    return found;
}

// Exchanges raw slots, so that no element is copied or constructed; only a strictly positive result exchanges, which
// keeps equal elements in their order.
void CLIST::Sort(CLISTCOMPARE compare) {
    if (!IsValid() || !compare || header->count < 2 || !header->array) {
        return;
    }
    void* const scratch = globalblock::Allocate(header->slotSize);
    if (!scratch) {
        return;
    }
    const std::size_t size = header->slotSize;
    for (std::uint32_t last = header->count - 1; last > 0; --last) {
        for (std::uint32_t j = 0; j < last; ++j) {
            if (compare(header->ItemAddress(j), header->ItemAddress(j + 1)) > 0) {
                char* const lower = header->SlotAddress(j);
                char* const upper = header->SlotAddress(j + 1);
                std::memcpy(scratch, upper, size);
                std::memcpy(upper, lower, size);
                std::memcpy(lower, scratch, size);
            }
        }
    }
    globalblock::Release(scratch);
}

// --- whole lists

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): a list copied onto itself keeps no element but its count.
CLIST& CLIST::operator=(const CLIST& other) {
    if (IsValid() && other.IsValid()) {
        vCopy(other);
    }
    return *this;
}

CLIST& CLIST::operator+=(const CLIST& other) {
    if (!IsValid() || !other.IsValid() || header->itemSize != other.header->itemSize) {
        return *this;
    }
    // The source's count is read afresh, as it may be this very list; it then ends when an append fails.
    for (std::uint32_t i = 0; i < other.header->count; ++i) {
        if (!Append(other.GetItem(i)) && &other == this) {
            break;
        }
    }
    return *this;
}

CLIST& CLIST::operator+=(void* item) {
    Append(item);
    return *this;
}

void CLIST::vCallConstructor(CBASE* place) const {
    if (!IsBadWritePtr(place, sizeof(CLIST))) {
        new (place) CLIST;
    }
}

void CLIST::vCallDestructor() {
    if (IsValid()) {
        this->~CLIST();
    }
}

void CLIST::vCopy(const CBASE& source) {
    const auto& other = static_cast<const CLIST&>(source);
    if (!IsValid() || !other.IsValid()) {
        return;
    }
    const std::uint32_t count = other.header->count;
    const CLISTTYPE type = other.header->type;
    const std::uint32_t itemSize = other.header->itemSize;
    header->FreeAll();
    int const made =
        other.header->prototype ? Init(*other.header->prototype, count, type) : Init(itemSize, count, type);
    // The old count stays: a list that held elements before gets the copies behind as many empty slots. The new array
    // must hold these too; without memory for them there are fewer.
    if (made && header->count > header->capacity) {
        header->Grow();
        header->count = std::min(header->count, header->capacity);
    }
    for (std::uint32_t i = 0; made && i < count; ++i) {
        Append(other.GetItem(i));
    }
}

unsigned int CLIST::vGetSize() const {
    return sizeof(CLIST);
}
