// CLIST in both layouts, of plain records and of objects, beside a std::vector of what its elements hold.
#include <cvutil32/clist.h>
#include <cvutil32/cstring.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "tests/fuzz/halving.h"
#include "tests/fuzz/input.h"

namespace {

using fuzz::Input;
using std::string;

constexpr std::size_t kMostElements = 80;
unsigned g_size;  // bytes of a record; 0 in a list of objects

char const* Bytes(CSTRING const& text) {
    return text;
}

string Content(void const* element) {
    return g_size ? string(static_cast<char const*>(element), g_size) : Bytes(*static_cast<CSTRING const*>(element));
}

int CompareFirst(void* key, void* element) {
    return static_cast<unsigned char>(*static_cast<char*>(key)) -
           static_cast<unsigned char>(*static_cast<char*>(element));
}

int CompareTexts(void* key, void* element) {
    return std::strcmp(Bytes(*static_cast<CSTRING*>(key)), Bytes(*static_cast<CSTRING*>(element)));
}

int Compare(string const& first, string const& second) {
    return g_size ? static_cast<unsigned char>(first[0]) - static_cast<unsigned char>(second[0])
                  : std::strcmp(first.c_str(), second.c_str());
}

/// What an element holds; nothing where the list holds no element, but an empty slot.
struct Slot {
    Slot() = default;
    Slot(string text) : held(true), content(std::move(text)) {}

    explicit operator bool() const {
        return held;
    }
    string const& operator*() const {
        return content;
    }
    bool operator==(Slot const&) const = default;

    bool held = false;
    string content;
};

class Pair {
  public:
    Pair(CLISTTYPE type, unsigned size)
        : list_(size ? CLIST(size, 0, type) : CLIST(CSTRING("none"), 0, type)), type_(type) {
        g_size = size;
    }

    void Step(Input& input);
    void Check();

  private:
    /// An item for the list; its content.
    string Item(Input& input) {
        // Few different ones, so that there are equal keys.
        string const text = input.Text(std::max(g_size, 8u), "abc\x80");
        record_ = text;
        record_.resize(std::max<std::size_t>(g_size, 1));
        object_ = text.substr(0, text.find('\x80')).c_str();
        return g_size ? record_.substr(0, g_size) : Bytes(object_);
    }
    void* Address() {
        return g_size ? static_cast<void*>(record_.data()) : &object_;
    }
    string Fresh() const {
        return g_size ? string(g_size, '\0') : "none";
    }
    bool HasGaps() const {
        return std::find(model_.begin(), model_.end(), Slot()) != model_.end();
    }
    void Insert(Input& input);
    void Find(Input& input);
    void Sort();
    void Assign(Input& input);

    CLIST list_;
    CLISTTYPE type_;
    std::vector<Slot> model_;
    string record_;
    CSTRING object_;
};

void Pair::Check() {
    FUZZ_CHECK(list_.IsValid());
    FUZZ_CHECK(list_.GetCount() == model_.size());
    for (std::size_t i = 0; i < model_.size(); ++i) {
        void* const element = list_.GetItem(static_cast<unsigned>(i));
        if (model_[i]) {
            FUZZ_CHECK(element && Content(element) == *model_[i]);
        } else if (g_size && type_ != CLISTTYPE_POINTER) {
            FUZZ_CHECK(Content(element) == string(g_size, '\0'));
        } else if (type_ == CLISTTYPE_POINTER) {
            FUZZ_CHECK(!element);
        }
    }
    FUZZ_CHECK(!list_.GetItem(static_cast<unsigned>(model_.size())));
    FUZZ_CHECK(!list_.GetItem(CLIST_NOINDEX));
    void* const last = model_.empty() ? nullptr : list_.GetItem(static_cast<unsigned>(model_.size() - 1));
    FUZZ_CHECK(list_.GetItem(CLIST_LAST) == last);
}

void Pair::Insert(Input& input) {
    string const content = Item(input);
    std::uint32_t index = input.Number();
    void* item = Address();
    Slot expected = content;
    switch (input.Pick(4)) {
        case 0:
            index = list_.GetCount();
            break;
        case 1:
            item = nullptr;
            expected = Fresh();
            break;
        case 2:
            if (std::size_t const own = input.Pick(256); own < model_.size() && model_[own]) {
                item = list_.GetItem(static_cast<unsigned>(own));
                expected = model_[own];
            }
            break;
        default:
            break;
    }
    void* const element = list_.Insert(item, index);
    FUZZ_CHECK((element != nullptr) == (index <= model_.size()));
    if (element) {
        model_.insert(model_.begin() + index, expected);
        FUZZ_CHECK(element == list_.GetItem(index));
    }
}

void Pair::Find(Input& input) {
    string const key = Item(input);
    unsigned const start = input.Number();
    unsigned index = start;
    auto const compare = g_size ? CompareFirst : CompareTexts;
    if (HasGaps()) {
        return;  // a comparison of the caller's would be given empty slots
    }
    auto const match = [&](Slot const& slot) { return Compare(key, *slot) == 0; };
    auto const from = model_.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(start, model_.size()));
    auto const found = std::find_if(from, model_.end(), match);
    unsigned const place = found == model_.end() ? CLIST_NOINDEX : static_cast<unsigned>(found - model_.begin());
    void* element = list_.FindLinear(Address(), compare, &index);
    FUZZ_CHECK(index == place);
    FUZZ_CHECK(element == (place == CLIST_NOINDEX ? nullptr : list_.GetItem(place)));

    auto const before = [](Slot const& a, Slot const& b) { return Compare(*a, *b) < 0; };
    if (!std::is_sorted(model_.begin(), model_.end(), before)) {
        return;
    }
    element = list_.FindBinary(Address(), compare, &index);
    fuzz::Halved const halved = fuzz::Halve(model_.size(), [&](std::size_t i) { return Compare(key, *model_[i]); });
    FUZZ_CHECK(index == halved.index);
    FUZZ_CHECK(element == (halved.found ? list_.GetItem(index) : nullptr));
}

void Pair::Sort() {
    if (HasGaps()) {
        return;
    }
    list_.Sort(g_size ? CompareFirst : CompareTexts);
    std::stable_sort(model_.begin(), model_.end(), [](Slot const& a, Slot const& b) { return Compare(*a, *b) < 0; });
}

void Pair::Assign(Input& input) {
    CLIST other(list_);
    std::vector<Slot> copied = model_;
    for (Slot& slot : copied) {
        slot = slot ? slot : type_ == CLISTTYPE_POINTER || g_size ? Slot(Fresh()) : slot;
    }
    // Bytes of zeros are no object: a copy of such an element is one of the prototype, if it is made at all.
    if (!g_size && HasGaps()) {
        return;
    }
    if (model_.size() > kMostElements / 4) {
        return;
    }
    for (unsigned shorter = input.Pick(4); shorter && !copied.empty(); --shorter) {
        other.Delete(CLIST_LAST);
        copied.pop_back();
    }
    switch (input.Pick(3)) {
        case 0:
            list_ = other;
            std::fill(model_.begin(), model_.end(), Slot());
            model_.insert(model_.end(), copied.begin(), copied.end());
            break;
        case 1:
            list_ += other;
            model_.insert(model_.end(), copied.begin(), copied.end());
            break;
        default: {
            CLIST fresh(g_size + 1, 3, type_);
            fresh += list_;
            FUZZ_CHECK(fresh.GetCount() == 0);
        }
    }
}

void Pair::Step(Input& input) {
    switch (input.Pick(8)) {
        case 0:
        case 1:
            if (model_.size() < kMostElements) {
                Insert(input);
            }
            break;
        case 2: {
            string const content = Item(input);
            std::uint32_t const index = input.Number();
            std::size_t const place = index == CLIST_LAST && !model_.empty() ? model_.size() - 1 : index;
            bool const gap = place < model_.size() && !model_[place] && type_ == CLISTTYPE_POINTER;
            void* const element = list_.SetItem(Address(), index);
            FUZZ_CHECK((element != nullptr) == (place < model_.size() && !gap));
            if (element) {
                model_[place] = content;
            }
            break;
        }
        case 3: {
            std::uint32_t const index = input.Number();
            std::size_t const place = index == CLIST_LAST && !model_.empty() ? model_.size() - 1 : index;
            bool const there = place < model_.size();
            unsigned const left = list_.Delete(index);
            FUZZ_CHECK(left == (there ? model_.size() - 1 : 0));
            if (there) {
                model_.erase(model_.begin() + static_cast<std::ptrdiff_t>(place));
            }
            break;
        }
        case 4:
        case 5:
            Find(input);
            break;
        case 6:
            Sort();
            break;
        default:
            Assign(input);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    Input input(data, size);
    CLISTTYPE const type = input.Pick(2) ? CLISTTYPE_INLINE : CLISTTYPE_POINTER;
    Pair pair(type, input.Pick(20));
    while (!input.empty()) {
        pair.Step(input);
        pair.Check();
    }
    return 0;
}
