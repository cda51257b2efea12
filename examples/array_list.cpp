// CLIST: records and whole objects in order, sorted and found.
#include <cvutil32.h>

#include "check.h"

struct City {
    int people;
    char name[20];
};

static int BySize(void* first, void* second) {
    return static_cast<City*>(first)->people - static_cast<City*>(second)->people;
}

static void Records() {
    City const known[] = {{3769, "Berlin"}, {2103, "Paris"}, {8866, "London"}};
    CLIST cities(sizeof(City));
    for (City city : known) {
        cities.Append(&city);  // copied; the address of a variable, not of a constant
    }
    cities.Sort(BySize);
    City key{3769, ""};
    unsigned int place;
    City* const found = static_cast<City*>(cities.FindBinary(&key, BySize, &place));
    CHECK(found && lstrcmpA(found->name, "Berlin") == 0);
    CHECK(place == 1);
    key.people = 5000;
    CHECK(!cities.FindBinary(&key, BySize, &place) && place == 2);  // where it would belong
    CHECK(cities.Delete(CLIST_LAST) == 2);                          // how many remain
}

static int ByText(void* text, void* string) {
    return lstrcmpA(static_cast<char const*>(text), *static_cast<CSTRING const*>(string));
}

static void Objects() {
    CSTRING name;
    CLIST names(name, 10, CLISTTYPE_POINTER);  // a list of strings, each with an address that stays
    name = "Ada";
    names.Append(&name);
    name = "Grace";
    names.Append(&name);
    char key[] = "Grace";
    unsigned int place = 0;  // where to begin
    CSTRING* const found = static_cast<CSTRING*>(names.FindLinear(key, ByText, &place));
    CHECK(found && place == 1 && *found == "Grace");

    CLIST const copy(names);
    CHECK(copy.GetCount() == 2);
    CHECK(*static_cast<CSTRING*>(copy.GetItem(CLIST_LAST)) == "Grace");
}

// An object of the list's own changes places by way of a copy.
static void MoveToFront(CLIST* names, unsigned int index) {
    CSTRING copy(*static_cast<CSTRING*>(names->GetItem(index)));
    names->Delete(index);
    names->Insert(&copy, 0);
}

int main() {
    Records();
    Objects();
    CSTRING name("Ada");
    CLIST names(name);
    names.Append(&name);
    name = "Bea";
    names.Append(&name);
    MoveToFront(&names, 1);
    CHECK(*static_cast<CSTRING*>(names.GetItem(0)) == "Bea");
    return wrong;
}
