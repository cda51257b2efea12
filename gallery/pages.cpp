#include "gallery/pages.h"

#include "gallery/pages/dialogs/browse_page.h"
#include "gallery/pages/controls/buttons_page.h"
#include "gallery/pages/fields/dates_page.h"
#include "gallery/pages/fields/datetime_page.h"
#include "gallery/pages/dialogs/dialogs_page.h"
#include "gallery/pages/controls/lists_page.h"
#include "gallery/pages/fields/numbers_page.h"
#include "gallery/pages/controls/standard_page.h"

namespace gallery {

std::span<const Page> Pages() {
    static const Page pages[] = {
        DatesPage(), DateTimePage(), NumbersPage(),  ButtonsPage(),
        ListsPage(), BrowsePage(),   StandardPage(), DialogsPage(),
    };
    return pages;
}

}  // namespace gallery
