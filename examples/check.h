/* What the examples without a window share: each shows what holds, and ends with 1 where something does not. */
#pragma once

#include <stdio.h>

static int wrong;

static void Check(int holds, const char* what) {
    printf("%s  %s\n", holds ? "yes" : "NO ", what);
    wrong |= !holds;
}

#define CHECK(what) Check((what) ? 1 : 0, #what)
