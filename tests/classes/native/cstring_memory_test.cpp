// CSTRING when the heap is exhausted. Here the program's operator new serves the library as well, so it can be made to
// fail.
#include <cvutil32/cstring.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <new>

namespace {

bool g_exhausted = false;

struct Exhausted {
    Exhausted() {
        g_exhausted = true;
    }
    ~Exhausted() {
        g_exhausted = false;
    }
};

char const* Text(CSTRING const& string) {
    return string;
}

}  // namespace

void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
    return g_exhausted ? nullptr : std::malloc(size ? size : 1);
}

void* operator new(std::size_t size) {
    if (void* const block = std::malloc(size ? size : 1)) {
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

namespace {

TEST(CStringMemory, FailedGrowthEmptiesOnAssignmentAndKeepsOnAppend) {
    CSTRING text("0123456789");
    char longer[200];
    std::memset(longer, 'x', sizeof longer - 1);
    longer[sizeof longer - 1] = '\0';
    {
        Exhausted const now;
        text += longer;
        EXPECT_STREQ("0123456789", Text(text));
        EXPECT_EQ(10u, text.GetStrLen());
        EXPECT_EQ(nullptr, text.BufferLock(10));
        EXPECT_EQ(nullptr, static_cast<char*>(text));
        text += "ok";
        EXPECT_STREQ("0123456789ok", Text(text)) << "what fits needs no memory";
        text = longer;
        EXPECT_STREQ("", Text(text));
        EXPECT_EQ(0u, text.GetStrLen());
        CSTRING const none("text");
        EXPECT_EQ(1, none.IsValid());
        EXPECT_STREQ("", Text(none));
    }
    text = "again";
    EXPECT_STREQ("again", Text(text));
}

}  // namespace
