// LIST_ beside a std::vector of its items and the words of its header.
#include <cvutil32/list.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "tests/fuzz/halving.h"
#include "tests/fuzz/input.h"

namespace {

using fuzz::Input;
using std::string;

constexpr std::uint32_t kMostItems = 80;
constexpr DWORD kFailed = 0xFFFFFFFF;

class Pair {
  public:
    Pair(std::uint32_t capacity, std::uint32_t size)
        : list_(LIST_Malloc(capacity, size)), size_(size), capacity_(capacity), increment_(capacity) {}
    ~Pair() {
        FUZZ_CHECK(LIST_Free(list_));
    }
    Pair(Pair const&) = delete;
    Pair& operator=(Pair const&) = delete;

    void Step(Input& input);
    void Check();

  private:
    char* Address(std::size_t index) const {
        return static_cast<char*>(list_) + index * size_;
    }
    void Insert(Input& input);
    void Walk(Input& input);
    void Find(Input& input);
    template <class Number>
    void FindNumber(DWORD type, Number key);

    LPVOID list_;
    std::uint32_t size_, capacity_, increment_;
    std::uint32_t cursor_ = 0;
    std::vector<string> model_;
};

void Pair::Check() {
    std::uint32_t words[6];
    std::memcpy(words, static_cast<char*>(list_) - sizeof words, sizeof words);
    FUZZ_CHECK(LIST_IsValid(list_));
    FUZZ_CHECK(words[1] == size_);
    FUZZ_CHECK(words[2] == model_.size() && LIST_GetCount(list_) == model_.size());
    FUZZ_CHECK(words[3] == capacity_ && words[4] == increment_ && words[5] == cursor_);
    for (std::size_t i = 0; i < model_.size(); ++i) {
        FUZZ_CHECK(std::memcmp(Address(i), model_[i].data(), size_) == 0);
    }
}

void Pair::Insert(Input& input) {
    string item = input.Text(size_);
    item.resize(size_);
    std::uint32_t const index = input.Number();
    bool const full = model_.size() >= capacity_;
    bool const fits = !full || capacity_ + increment_ > model_.size();
    auto const place = std::min<std::size_t>(index, model_.size());
    LPCVOID address = item.data();
    switch (input.Pick(4)) {
        case 0:
            address = nullptr;
            item.assign(size_, '\0');
            break;
        case 1:
            if (std::size_t const own = input.Pick(256); own < model_.size()) {
                address = Address(own);
                item = model_[own];
            }
            break;
        default:
            break;
    }
    DWORD const result = LIST_Insert(&list_, address, index);
    FUZZ_CHECK(result == (fits ? place : kFailed));
    if (fits) {
        capacity_ += full ? increment_ : 0;
        model_.insert(model_.begin() + static_cast<std::ptrdiff_t>(place), item);
    }
}

void Pair::Walk(Input& input) {
    std::uint32_t const index = input.Number();
    auto const count = static_cast<std::uint32_t>(model_.size());
    switch (input.Pick(4)) {
        case 0:
            FUZZ_CHECK(LIST_GetFirstItem(list_) == (count ? Address(0) : nullptr));
            cursor_ = count ? 0 : cursor_;
            break;
        case 1: {
            bool const more = cursor_ + 1 < count;
            cursor_ += more ? 1 : 0;
            FUZZ_CHECK(LIST_GetNextItem(list_) == (more ? Address(cursor_) : nullptr));
            break;
        }
        case 2:
            FUZZ_CHECK(LIST_SetCurrentItem(list_, index) == (index < count ? Address(index) : nullptr));
            cursor_ = index < count ? index : cursor_;
            break;
        default:
            FUZZ_CHECK(LIST_GetCurrentItem(list_) == (count ? Address(cursor_) : nullptr));
    }
}

template <class Number>
void Pair::FindNumber(DWORD type, Number key) {
    std::vector<Number> numbers(model_.size());
    for (std::size_t i = 0; i < model_.size(); ++i) {
        std::memcpy(&numbers[i], model_[i].data() + size_ - sizeof key, sizeof key);
    }
    auto const offset = static_cast<LONG>(size_ - sizeof key);
    auto const first = static_cast<std::size_t>(std::find(numbers.begin(), numbers.end(), key) - numbers.begin());
    DWORD index = 77;
    LPVOID item = LIST_LFind(list_, type, offset, &key, &index);
    FUZZ_CHECK(index == first);
    FUZZ_CHECK(item == (first < numbers.size() ? Address(first) : nullptr));
    if (!std::is_sorted(numbers.begin(), numbers.end())) {
        return;
    }
    item = LIST_BFind(list_, type, offset, &key, &index);
    auto const order = [&](std::size_t i) { return (key > numbers[i]) - (key < numbers[i]); };
    fuzz::Halved const place = fuzz::Halve(numbers.size(), order);
    FUZZ_CHECK(index == place.index);
    FUZZ_CHECK(item == (place.found ? Address(index) : nullptr));
}

void Pair::Find(Input& input) {
    unsigned const type = input.Pick(12);
    std::uint32_t key = input.Byte();
    key = input.Pick(2) ? key : ~key;
    switch (type) {
        case LIST_TYPE_SHORT:
            return FindNumber(type, static_cast<std::int16_t>(key));
        case LIST_TYPE_LONG:
            return FindNumber(type, static_cast<std::int32_t>(key));
        case LIST_TYPE_WORD:
            return FindNumber(type, static_cast<std::uint16_t>(key));
        case LIST_TYPE_DWORD:
        case 6:
        case 7:
            return FindNumber(type, key);
        case LIST_TYPE_LPSTR:
            return;  // the items hold no pointers
        case LIST_TYPE_STRING: {
            string const text = input.Text(3, "abAB-");
            auto const match = [&](string const& item) { return lstrcmpA(text.c_str(), item.c_str()) == 0; };
            for (string& item : model_) {
                item.back() = '\0';  // texts must end
            }
            for (std::size_t i = 0; i < model_.size(); ++i) {
                *(Address(i + 1) - 1) = '\0';
            }
            DWORD index = 77;
            LPVOID const item = LIST_LFind(list_, type, 0, text.c_str(), &index);
            auto const place = std::find_if(model_.begin(), model_.end(), match) - model_.begin();
            FUZZ_CHECK(index == static_cast<DWORD>(place));
            FUZZ_CHECK((item != nullptr) == (index < model_.size()));
            return;
        }
        default: {
            DWORD index = 77;
            FUZZ_CHECK(!LIST_LFind(list_, type, 0, &key, &index) && !LIST_BFind(list_, type, 0, &key, &index));
            FUZZ_CHECK(index == (model_.empty() ? 0 : 77));
        }
    }
}

void Pair::Step(Input& input) {
    switch (input.Pick(7)) {
        case 0:
        case 1:
            if (model_.size() < kMostItems) {
                Insert(input);
            }
            break;
        case 2: {
            std::uint32_t const index = input.Number();
            FUZZ_CHECK(LIST_Delete(list_, index) == (index < model_.size() ? TRUE : FALSE));
            if (index < model_.size()) {
                model_.erase(model_.begin() + static_cast<std::ptrdiff_t>(index));
            }
            break;
        }
        case 3: {
            // Below the count the items go, one by one, with their memory; that is not followed here.
            std::uint32_t const capacity = std::max<std::uint32_t>(input.Byte(), model_.size());
            LPVOID const moved = LIST_Realloc(list_, capacity);
            FUZZ_CHECK(moved);
            list_ = moved;
            capacity_ = capacity;
            break;
        }
        case 4:
            Walk(input);
            break;
        case 5:
            if (auto* const fresh = static_cast<char*>(model_.size() < kMostItems ? LIST_New(&list_) : nullptr)) {
                capacity_ += model_.size() >= capacity_ ? increment_ : 0;
                model_.emplace_back(size_, '\0');
                FUZZ_CHECK(fresh == Address(model_.size() - 1));
            }
            break;
        default:
            Find(input);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    std::uint32_t const capacity = input.Pick(6);
    Pair pair(capacity, 4 + input.Pick(16));
    while (!input.empty()) {
        pair.Step(input);
        pair.Check();
    }
    return 0;
}
