// The handle table under load: full, and used from many threads.
#include <cvplatform.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <thread>
#include <vector>

namespace {

TEST(Handles, AFullTableFailsCleanlyAndRecovers) {
    std::vector<HGLOBAL> blocks;
    blocks.reserve(1u << 20);
    const std::size_t before = CvPlatformCount(CV_PLATFORM_GLOBAL_BLOCKS);
    for (HGLOBAL block; blocks.size() <= 1u << 20 && (block = GlobalAlloc(GMEM_MOVEABLE, 1)) != nullptr;) {
        blocks.push_back(block);
    }
    EXPECT_LE(blocks.size(), 1u << 20);
    EXPECT_GT(blocks.size(), 1000000u);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NOT_ENOUGH_MEMORY));
    EXPECT_EQ(CreateEventA(nullptr, FALSE, FALSE, nullptr), nullptr);
    EXPECT_EQ(CvPlatformCount(CV_PLATFORM_GLOBAL_BLOCKS), before + blocks.size());
    EXPECT_TRUE(std::all_of(blocks.begin(), blocks.end(), [](HGLOBAL block) {
        const auto value = reinterpret_cast<ULONG_PTR>(block);
        return value >= 0x10000 && value <= 0x7FFFFFFF && GlobalSize(block) == 1;
    }));
    EXPECT_TRUE(std::all_of(blocks.begin(), blocks.end(), [](HGLOBAL block) { return !GlobalFree(block); }));
    EXPECT_EQ(CvPlatformCount(CV_PLATFORM_GLOBAL_BLOCKS), before);
    HGLOBAL again = GlobalAlloc(GMEM_MOVEABLE, 1);
    EXPECT_NE(again, nullptr);
    EXPECT_EQ(GlobalSize(blocks.back()), 0u) << "the freed handles stay stale";
    GlobalFree(again);
}

TEST(Handles, ThreadsMakeUseAndDropThemAtOnce) {
    const std::size_t before = CvPlatformCount(CV_PLATFORM_GLOBAL_BLOCKS);
    std::atomic<int> faults{0};
    std::vector<std::thread> threads;
    std::atomic<HGLOBAL> shared{nullptr};
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 20000; ++i) {
                HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 16);
                auto* bytes = static_cast<int*>(GlobalLock(block));
                *bytes = i;
                faults += GlobalHandle(bytes) != block;
                // The handle of another thread is either dead or of a kind that is not an event.
                faults += SetEvent(shared.exchange(block)) != FALSE;
                faults += *bytes != i;
                GlobalUnlock(block);
                faults += GlobalFree(block) != nullptr;
                faults += GlobalFree(block) != block;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(faults, 0);
    EXPECT_EQ(CvPlatformCount(CV_PLATFORM_GLOBAL_BLOCKS), before);
}

TEST(GlobalMemory, FixedMovableAndDiscardedBlocks) {
    HGLOBAL fixed = GlobalAlloc(GMEM_FIXED, 24);
    EXPECT_EQ(GlobalReAlloc(fixed, 1 << 20, 0), nullptr) << "a fixed block does not move unasked";
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NOT_ENOUGH_MEMORY));
    GlobalFree(fixed);
    HGLOBAL movable = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 24);
    ASSERT_NE(movable, nullptr);
    *static_cast<char*>(GlobalLock(movable)) = 'f';
    EXPECT_EQ(GlobalReAlloc(movable, 1 << 20, 0), nullptr) << "nor does a locked one";
    EXPECT_EQ(GlobalReAlloc(movable, 1 << 20, GMEM_MOVEABLE | GMEM_ZEROINIT), movable);
    GlobalUnlock(movable);
    const auto* bytes = static_cast<const char*>(GlobalLock(movable));
    EXPECT_EQ(bytes[0], 'f');
    EXPECT_EQ(bytes[(1 << 20) - 1], 0);
    GlobalUnlock(movable);
    EXPECT_EQ(GlobalReAlloc(movable, 0, GMEM_MOVEABLE), movable);
    EXPECT_EQ(GlobalLock(movable), nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_DISCARDED));
    EXPECT_EQ(GlobalFree(movable), nullptr) << "locked or not";
}

TEST(GlobalMemory, AShrunkenBlockGrowsWithZerosAgain) {
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 64);
    std::memset(GlobalLock(block), 0xEE, 64);
    ASSERT_NE(GlobalReAlloc(block, 8, 0), nullptr);
    EXPECT_EQ(GlobalSize(block), 8u);
    GlobalUnlock(block);
    ASSERT_NE(GlobalReAlloc(block, 64, GMEM_ZEROINIT), nullptr);
    const auto* bytes = static_cast<const unsigned char*>(GlobalLock(block));
    EXPECT_EQ(bytes[7], 0xEE);
    EXPECT_TRUE(std::all_of(bytes + 8, bytes + 64, [](unsigned char byte) { return byte == 0; }));
    GlobalUnlock(block);
    GlobalFree(block);
}

}  // namespace
