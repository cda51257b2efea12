#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <vector>

namespace {

TEST(GlobalMemory, LocksAreCountedAndBlocksFoundByTheirAddress) {
    HGLOBAL handle = GlobalAlloc(GMEM_MOVEABLE, 16);
    void* first = GlobalLock(handle);
    EXPECT_EQ(GlobalHandle(first), handle);
    EXPECT_EQ(GlobalLock(handle), first);
    EXPECT_TRUE(GlobalUnlock(handle));
    EXPECT_FALSE(GlobalUnlock(handle));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(NO_ERROR));
    EXPECT_FALSE(GlobalUnlock(handle));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NOT_LOCKED));
    GlobalFree(handle);
    HGLOBAL fixed = GlobalAlloc(GMEM_FIXED | GMEM_ZEROINIT, 32);
    EXPECT_EQ(GlobalLock(fixed), fixed);
    EXPECT_EQ(GlobalHandle(fixed), fixed);
    EXPECT_EQ(GlobalFree(fixed), nullptr);
}

TEST(GlobalMemory, ImpossibleSizesFailAndKeepTheBlock) {
    // Read through a volatile, so that no compiler foresees the failure.
    volatile SIZE_T impossible = static_cast<SIZE_T>(-1) / 2 - 64;
    EXPECT_EQ(GlobalAlloc(GMEM_MOVEABLE, impossible), nullptr);
    HGLOBAL handle = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 8);
    std::memcpy(GlobalLock(handle), "kept", 5);
    GlobalUnlock(handle);
    EXPECT_EQ(GlobalReAlloc(handle, impossible, GMEM_ZEROINIT), nullptr);
    EXPECT_STREQ(static_cast<char*>(GlobalLock(handle)), "kept");
    GlobalUnlock(handle);
    GlobalFree(handle);
}

TEST(MemoryProbe, TellsGoodFromNull) {
    std::vector<char> good(100000);
    EXPECT_FALSE(IsBadWritePtr(good.data(), good.size()));
    EXPECT_FALSE(IsBadWritePtr(nullptr, 0));
    EXPECT_TRUE(IsBadWritePtr(nullptr, 1));
    EXPECT_TRUE(IsBadWritePtr(good.data(), static_cast<UINT_PTR>(-1)));
    EXPECT_TRUE(IsBadWritePtr(reinterpret_cast<void*>(UINT_PTR{64}), 4));
}

}  // namespace
