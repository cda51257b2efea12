#include "gallery/pages.h"

#include "gallery/pages/buttons_page.h"
#include "gallery/pages/dates_page.h"
#include "gallery/pages/lists_page.h"

namespace gallery {

std::span<const Page> Pages() {
    static const Page pages[] = {
        DatesPage(),
        ButtonsPage(),
        ListsPage(),
    };
    return pages;
}

}  // namespace gallery
