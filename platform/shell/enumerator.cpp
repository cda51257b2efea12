// Enumerators: what a folder held when it was asked.
#include <algorithm>
#include <cerrno>
#include <memory>

#include "kernel/hostpath.h"
#include "shell/directory.h"
#include "shell/folder.h"
#include "shell/live.h"

namespace platform::shell {
namespace {

struct Listed {
    ItemKind kind;
    bool hidden;
    std::string name;
};
using Listing = std::vector<Listed>;

class Enumerator final : public Counted<IEnumIDList> {
  public:
    Enumerator(std::shared_ptr<const Listing> items, std::size_t at) : items_(std::move(items)), at_(at) {}

    STDMETHODIMP QueryInterface(REFIID asked, void** object) override {
        return Answer(asked, IID_IEnumIDList, object);
    }
    STDMETHODIMP Next(ULONG count, LPITEMIDLIST* items, ULONG* fetched) override {
        return Method([&] { return Fetch(count, items, fetched); });
    }
    STDMETHODIMP Skip(ULONG count) override {
        const std::size_t left = items_->size() - at_;
        at_ += std::min<std::size_t>(count, left);
        return count <= left ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override {
        at_ = 0;
        return S_OK;
    }
    STDMETHODIMP Clone(IEnumIDList** other) override {
        return Method([&] {
            if (!other) {
                return E_POINTER;
            }
            *other = new Enumerator(items_, at_);
            return S_OK;
        });
    }

  private:
    HRESULT Fetch(ULONG count, LPITEMIDLIST* items, ULONG* fetched) {
        if (!items || (!fetched && count != 1)) {
            return E_INVALIDARG;
        }
        std::vector<OwnedList> made;
        while (made.size() < count && at_ + made.size() < items_->size()) {
            const Listed& item = (*items_)[at_ + made.size()];
            made.push_back(MakeItem({item.kind, item.hidden, item.name}));
        }
        for (std::size_t i = 0; i < made.size(); ++i) {
            items[i] = made[i].release();
        }
        at_ += made.size();
        if (fetched) {
            *fetched = static_cast<ULONG>(made.size());
        }
        return made.size() == count ? S_OK : S_FALSE;
    }

    std::shared_ptr<const Listing> items_;
    std::size_t at_;
};

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
    const Wanted wanted{(flags & SHCONTF_FOLDERS) != 0, (flags & SHCONTF_NONFOLDERS) != 0,
                        (flags & SHCONTF_INCLUDEHIDDEN) != 0};
    std::vector<Entry> entries;
    if (const int error = ReadDirectory(HostDirectory(place), wanted, entries)) {
        return ResultOf(error);
    }
    listing.reserve(listing.size() + entries.size());
    for (Entry& entry : entries) {
        listing.push_back({entry.folder ? ItemKind::Folder : ItemKind::File, entry.hidden, std::move(entry.name)});
    }
    return S_OK;
}

HRESULT List(const Place& place, SHCONTFLAGS flags, Listing& listing) {
    switch (place.kind) {
        case PlaceKind::Desktop:
            if (flags & SHCONTF_FOLDERS) {
                listing.push_back({ItemKind::Computer, false, {}});
            }
            // The desktop is there with or without files of its own.
            AddDirectory(place, flags, listing);
            return S_OK;
        case PlaceKind::Computer:
            for (const char letter : flags & SHCONTF_FOLDERS ? Drives() : std::vector<char>()) {
                listing.push_back({ItemKind::Drive, false, std::string(1, letter)});
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

}  // namespace

IEnumIDList* MakeEnumerator(const Place& place, SHCONTFLAGS flags, HRESULT& result) {
    auto listing = std::make_shared<Listing>();
    result = List(place, flags, *listing);
    return FAILED(result) ? nullptr : new Enumerator(std::move(listing), 0);
}

}  // namespace platform::shell

const IID IID_IEnumIDList = {0x000214F2, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
