// Enumerators: what a folder held when it was asked.
#include <algorithm>
#include <memory>

#include "shell/folder.h"
#include "shell/listing.h"
#include "shell/live.h"

namespace platform::shell {
namespace {

class Enumerator final : public Counted<IEnumIDList> {
  public:
    explicit Enumerator(Listing items) : items_(std::move(items)) {}

    STDMETHODIMP Next(ULONG count, LPITEMIDLIST* items, ULONG* fetched) override {
        return Method([&] { return Fetch(count, items, fetched); });
    }

  private:
    HRESULT Fetch(ULONG count, LPITEMIDLIST* items, ULONG* fetched) {
        if (!items || (!fetched && count != 1)) {
            return E_INVALIDARG;
        }
        std::vector<OwnedList> made;
        while (made.size() < count && at_ + made.size() < items_.size()) {
            const Listed& item = items_[at_ + made.size()];
            made.push_back(MakeItem(item.AsItem()));
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

    const Listing items_;
    std::size_t at_ = 0;
};

}  // namespace

IEnumIDList* MakeEnumerator(const Place& place, SHCONTFLAGS flags, HRESULT& result) {
    Listing listing;
    result = ListItems(place, flags, listing);
    return FAILED(result) ? nullptr : new Enumerator(std::move(listing));
}

}  // namespace platform::shell
