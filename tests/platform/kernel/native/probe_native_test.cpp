#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <sys/mman.h>
#include <ucontext.h>
#include <unistd.h>

#include <atomic>
#include <thread>

namespace {

TEST(MemoryProbe, FindsUnmappedAndReadOnlyPagesWithinARange) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    auto* area =
        static_cast<char*>(mmap(nullptr, page * 4, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(area, MAP_FAILED);
    mprotect(area + page, page, PROT_READ);
    munmap(area + page * 3, page);
    EXPECT_FALSE(IsBadWritePtr(area, page));
    EXPECT_TRUE(IsBadWritePtr(area, page + 1));
    EXPECT_TRUE(IsBadWritePtr(area + page - 4, 8));
    EXPECT_FALSE(IsBadWritePtr(area + page * 2, page));
    EXPECT_TRUE(IsBadWritePtr(area + page * 3 - 1, 2));
    EXPECT_TRUE(IsBadWritePtr(area, page * 3));

    // A text that runs into a page without access.
    mprotect(area + page, page, PROT_NONE);
    std::memset(area, 'x', page);
    char copy[8] = "kept";
    EXPECT_EQ(lstrlenA(area), 0);
    EXPECT_EQ(lstrcpyA(copy, area + page - 4), nullptr);
    EXPECT_STREQ(copy, "kept");
    EXPECT_EQ(lstrcpynA(copy, area + page - 4, 5), copy);
    EXPECT_STREQ(copy, "xxxx");
    EXPECT_EQ(GlobalHandle(area + page + 16), nullptr);
    munmap(area, page * 3);
}

TEST(MemoryProbe, NonCanonicalAddressesAreBad) {
    EXPECT_TRUE(IsBadWritePtr(reinterpret_cast<void*>(0x8000000000000000u), 8));
    EXPECT_EQ(lstrlenA(reinterpret_cast<LPCSTR>(0xDEADBEEFDEADBEEFu)), 0);
}

TEST(MemoryProbe, LosesNoWriteOfAnotherThread) {
    std::atomic<int> counter{0};
    std::atomic<bool> stop{false};
    std::thread prober([&] {
        while (!stop) {
            IsBadWritePtr(&counter, sizeof counter);
        }
    });
    constexpr int kRounds = 300000;
    for (int i = 0; i < kRounds; ++i) {
        counter.fetch_add(1, std::memory_order_relaxed);
    }
    stop = true;
    prober.join();
    EXPECT_EQ(counter.load(), kRounds);
}

// What is known by its bounds must not reach beyond them: a heap that shrank, and a stack that is not the thread's own,
// next to which anything may lie.
TEST(MemoryProbe, TheHeapEndsWhereItEndsNow) {
    constexpr std::intptr_t kSize = 1 << 20;
    auto* const area = static_cast<char*>(sbrk(kSize));
    ASSERT_NE(area, reinterpret_cast<char*>(-1));
    EXPECT_FALSE(IsBadWritePtr(area + kSize / 2, 8));
    EXPECT_FALSE(IsBadWritePtr(area, kSize));
    EXPECT_TRUE(IsBadWritePtr(area, 2 * kSize));
    ASSERT_EQ(sbrk(-kSize), area + kSize);
    EXPECT_TRUE(IsBadWritePtr(area + kSize / 2, 8));
}

struct OtherStack {
    static constexpr std::size_t kSize = 256 * 1024;
    ucontext_t outside, inside;
    char* pages = nullptr;  ///< the stack, then a page that cannot be written
    BOOL ownIsBad = TRUE;
    BOOL readOnlyIsBad = FALSE;
};
OtherStack g_other;

void ProbeFromOtherStack() {
    char local[16] = {};
    g_other.ownIsBad = IsBadWritePtr(local, sizeof local);
    g_other.readOnlyIsBad = IsBadWritePtr(g_other.pages + OtherStack::kSize, 8);
}

TEST(MemoryProbe, OnAnotherStackNothingIsTakenForGranted) {
    std::thread([] {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        char local[16] = {};
        EXPECT_FALSE(IsBadWritePtr(local, sizeof local));
        void* const pages =
            mmap(nullptr, OtherStack::kSize + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        ASSERT_NE(pages, MAP_FAILED);
        g_other.pages = static_cast<char*>(pages);
        mprotect(g_other.pages + OtherStack::kSize, page, PROT_READ);
        getcontext(&g_other.inside);
        g_other.inside.uc_stack.ss_sp = pages;
        g_other.inside.uc_stack.ss_size = OtherStack::kSize;
        g_other.inside.uc_link = &g_other.outside;
        makecontext(&g_other.inside, ProbeFromOtherStack, 0);
        swapcontext(&g_other.outside, &g_other.inside);
        munmap(pages, OtherStack::kSize + page);
        EXPECT_FALSE(g_other.ownIsBad);
        EXPECT_TRUE(g_other.readOnlyIsBad);
    }).join();
}

TEST(MemoryProbe, ConstantsBesideTheProgramsVariablesAreReadOnly) {
    static char variable[16];
    static const void* const relocated = &variable;
    EXPECT_FALSE(IsBadWritePtr(variable, sizeof variable));
    EXPECT_TRUE(IsBadWritePtr(const_cast<const void**>(&relocated), sizeof relocated));
}

TEST(MemoryProbeDeathTest, OtherFaultsStillEndTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            volatile int* null = nullptr;
            *null = 1;
        },
        "");
}

TEST(GlobalMemory, StaleAndForeignHandlesFailCleanly) {
    HGLOBAL handle = GlobalAlloc(GMEM_MOVEABLE, 8);
    void* bytes = GlobalLock(handle);
    GlobalUnlock(handle);
    GlobalFree(handle);
    char local[64];
    for (HGLOBAL bad : {handle, HGLOBAL(nullptr), reinterpret_cast<HGLOBAL>(UINT_PTR{0x12345678}),
                        static_cast<HGLOBAL>(local + 16)}) {
        SetLastError(0);
        EXPECT_EQ(GlobalLock(bad), nullptr);
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
        EXPECT_EQ(GlobalReAlloc(bad, 9, 0), nullptr);
        EXPECT_EQ(GlobalSize(bad), 0u);
        EXPECT_EQ(GlobalFree(bad), bad);
    }
    EXPECT_EQ(GlobalHandle(local), nullptr);
    EXPECT_EQ(GlobalHandle(nullptr), nullptr);
    (void)bytes;
}

}  // namespace
