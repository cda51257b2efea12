#include "gallery/pages.h"

#include "gallery/pages/browse_page.h"
#include "gallery/pages/buttons_page.h"
#include "gallery/pages/dates_page.h"
#include "gallery/pages/datetime_page.h"
#include "gallery/pages/dialogs_page.h"
#include "gallery/pages/lists_page.h"
#include "gallery/pages/numbers_page.h"
#include "gallery/pages/standard_page.h"

namespace gallery {

std::span<const Page> Pages() {
    static const Page pages[] = {
        DatesPage(), DateTimePage(), NumbersPage(),  ButtonsPage(),
        ListsPage(), BrowsePage(),   StandardPage(), DialogsPage(),
    };
    return pages;
}

}  // namespace gallery
