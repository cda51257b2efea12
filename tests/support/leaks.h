// Counts the system's objects before and after a piece of a test.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

namespace testing_support {

/// Objects of the process that somebody has to release.
struct Counts {
    DWORD gdi;
    DWORD user;
    DWORD global;  ///< blocks of global memory, where the host can count them; else 0

    static Counts Now();
};

/// Fails the test if there are more objects of a kind at its end than at its beginning.
class LeakCheck {
  public:
    LeakCheck() : before_(Counts::Now()) {}
    ~LeakCheck() {
        Counts const after = Counts::Now();
        EXPECT_LE(after.gdi, before_.gdi) << "GDI objects leaked";
        EXPECT_LE(after.user, before_.user) << "USER objects leaked";
        EXPECT_LE(after.global, before_.global) << "global blocks leaked";
    }
    LeakCheck(LeakCheck const&) = delete;
    LeakCheck& operator=(LeakCheck const&) = delete;

  private:
    Counts before_;
};

}  // namespace testing_support
