#include <windows.h>

#include <gtest/gtest.h>

extern "C" BOOL HeadersServeC(void);

TEST(Headers, ServeC) {
    EXPECT_TRUE(HeadersServeC());
}
