#include "shell/listing.h"

#include <cerrno>

#include "shell/directory.h"

namespace platform::shell {
namespace {

HRESULT ResultOf(int error) {
    switch (error) {
        case 0:
            return S_OK;
        case EACCES:
        case EPERM:
            return HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED);
        case ENOMEM:
            return E_OUTOFMEMORY;
        default:
            return HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND);
    }
}

HRESULT AddDirectory(const Place& place, SHCONTFLAGS flags, Listing& listing) {
    const Wanted wanted{(flags & SHCONTF_FOLDERS) != 0, (flags & SHCONTF_NONFOLDERS) != 0};
    std::vector<Entry> entries;
    if (const int error = ReadDirectory(HostDirectory(place), wanted, entries)) {
        return ResultOf(error);
    }
    listing.reserve(listing.size() + entries.size());
    for (Entry& entry : entries) {
        listing.push_back({entry.folder ? ItemKind::Folder : ItemKind::File, std::move(entry.name)});
    }
    return S_OK;
}

}  // namespace

HRESULT ListItems(const Place& place, SHCONTFLAGS flags, Listing& listing) {
    switch (place.kind) {
        case PlaceKind::Desktop:
            if (flags & SHCONTF_FOLDERS) {
                listing.push_back({ItemKind::Computer, {}});
            }
            // The desktop is there with or without files of its own.
            AddDirectory(place, flags, listing);
            return S_OK;
        case PlaceKind::Computer:
            for (const char letter : flags& SHCONTF_FOLDERS ? Drives() : std::vector<char>()) {
                listing.push_back({ItemKind::Drive, std::string(1, letter)});
            }
            return S_OK;
        case PlaceKind::Drive:
        case PlaceKind::Folder:
            return AddDirectory(place, flags, listing);
        case PlaceKind::File:
            break;
    }
    return E_FAIL;
}

}  // namespace platform::shell
