/* LIST_: an array that grows, from plain C. */
#include <cvutil32.h>

#include "check.h"

typedef struct {
    LONG number;
    char name[20];
} PART;

int main(void) {
    static const PART parts[] = {{40, "Belt"}, {10, "Filter"}, {30, "Pump"}};
    LPVOID list = LIST_Malloc(2, sizeof(PART)); /* room for two, and two more whenever it is full */
    DWORD place;
    for (int i = 0; i < 3; ++i) {
        if (!LIST_BFind(list, LIST_TYPE_LONG, 0, &parts[i].number, &place)) {
            LIST_Insert(&list, &parts[i], place); /* in order; the handle may move */
        }
    }
    const PART* part = (const PART*)list; /* the handle is item 0 */
    CHECK(LIST_GetCount(list) == 3);
    CHECK(part[0].number == 10 && part[1].number == 30 && part[2].number == 40);

    const PART* found = (const PART*)LIST_LFind(list, LIST_TYPE_STRING, sizeof(LONG), "Pump", &place);
    CHECK(found && found->number == 30);

    int count = 0;
    for (part = (const PART*)LIST_GetFirstItem(list); part; part = (const PART*)LIST_GetNextItem(list)) {
        ++count;
    }
    CHECK(count == 3);
    CHECK(LIST_Delete(list, 0) && LIST_GetCount(list) == 2);
    CHECK(LIST_Free(list));
    return wrong;
}
