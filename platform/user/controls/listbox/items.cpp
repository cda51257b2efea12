#include "user/controls/listbox/list.h"

namespace platform::user {

ListItems::~ListItems() {
    for (ListItem* item : items_)
        delete item;
}

bool ListItems::Insert(int index, const char* text, ULONG_PTR data) try {
    auto made = std::make_unique<ListItem>();
    if (text)
        made->text = text;
    made->data = data;
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

}  // namespace platform::user
