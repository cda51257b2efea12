#include "gallery/pages.h"

#include "gallery/pages/dates_page.h"

namespace gallery {

std::span<const Page> Pages() {
    static const Page pages[] = {
        DatesPage(),
    };
    return pages;
}

}  // namespace gallery
