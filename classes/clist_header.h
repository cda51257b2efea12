/// @file clist_header.h
/// The record behind a CLIST. Its fields stand in the order that old callers know; all list state lives here.
#pragma once

#include <cvutil32/clist.h>

#include <cstdint>

struct CLISTHEADER {
    std::uint32_t signature = 0;
    std::uint32_t itemSize = 0;
    std::uint32_t slotSize = 0;
    std::uint32_t count = 0;
    std::uint32_t capacity = 0;
    CLISTTYPE type = CLISTTYPE_INLINE;
    CBASE* prototype = nullptr;
    char* array = nullptr;

    /// @returns the index itself, the last one for CLIST_LAST, or CLIST_NOINDEX when there is no such element.
    std::uint32_t ResolveIndex(std::uint32_t index) const;
    char* SlotAddress(std::uint32_t index) const {
        return array + std::size_t{slotSize} * index;
    }
    /// @returns the address that callers know an element by: its own block, or its place in the array.
    void* ItemAddress(std::uint32_t index) const {
        char* slot = SlotAddress(index);
        return type != CLISTTYPE_POINTER ? slot : *reinterpret_cast<void**>(slot);
    }
    /// @returns the storage of a new element in a free slot, or null when its own block could not be had.
    void* NewSlot(std::uint32_t index);
    void StoreItem(void* place, const void* item);
    void FreeItem(void* item);
    bool CheckItem(const void* item) const;
    /// @returns the new element's address, or null.
    void* Insert(void* item, std::uint32_t index);
    /// Makes room for one more element in a list that has none left.
    bool Grow();
    void FreeAll();
};
