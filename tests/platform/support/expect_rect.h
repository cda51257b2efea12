#pragma once

#include <gtest/gtest.h>
#include <windows.h>

inline void ExpectRect(const RECT& rect, LONG left, LONG top, LONG right, LONG bottom) {
    EXPECT_EQ(left, rect.left);
    EXPECT_EQ(top, rect.top);
    EXPECT_EQ(right, rect.right);
    EXPECT_EQ(bottom, rect.bottom);
}
