#include "user/controls/listbox/list.h"

namespace platform::user {

bool ListItems::Insert(int index, const char* text) try {
    auto made = std::make_unique<ListItem>();
    made->text = text;
    items_.insert(items_.begin() + index, made.get());
    made.release();
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

void ListItems::Remove(int index) {
    delete items_[static_cast<std::size_t>(index)];
    items_.erase(items_.begin() + index);
}

void ListItems::Clear() {
    for (ListItem* item : items_)
        delete item;
    items_.clear();
}

}  // namespace platform::user
