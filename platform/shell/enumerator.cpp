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

    std::shared_ptr<const Listing> items_;
    std::size_t at_;
};

}  // namespace

IEnumIDList* MakeEnumerator(const Place& place, SHCONTFLAGS flags, HRESULT& result) {
    auto listing = std::make_shared<Listing>();
    result = ListItems(place, flags, *listing);
    return FAILED(result) ? nullptr : new Enumerator(std::move(listing), 0);
}

}  // namespace platform::shell

const IID IID_IEnumIDList = {0x000214F2, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
