// Message boxes when memory runs out, which only this host's platform layer can be told to pretend.
#include <cvutil32/msgbox.h>

#include "tests/support/leaks.h"
#include "tests/support/modal.h"
#include "tests/support/window.h"

#include <cvplatform.h>

#include <gtest/gtest.h>

namespace {

TEST(MessageBoxMemory, WhatCannotBeNotedStaysEnabled) {
    testing_support::OpenFirstDialog();
    testing_support::LeakCheck const leaks;
    testing_support::TestWindow const owner;
    testing_support::TestWindow const others[6];
    SetActiveWindow(owner);
    // The list is made by the first allocation, and grows by the second one.
    for (unsigned failing : {1u, 2u}) {
        KVMB_MESSAGEBOX box = {};
        box.owner = owner;
        box.flags = KVMB_TASKMODAL;
        int disabled = 0;
        testing_support::OnNextDialog([&](HWND dialog) {
            CvPlatformFailAllocation(0);
            for (HWND const window : others) {
                disabled += !IsWindowEnabled(window);
            }
            PostMessageA(dialog, WM_COMMAND, 5, 0);
        });
        CvPlatformFailAllocation(failing);
        EXPECT_EQ(5, KVMB_MessageBoxExtended(&box)) << failing;
        EXPECT_EQ(failing == 1 ? 0 : 5, disabled) << "room for four, and one after the failure";
        for (HWND const window : others) {
            EXPECT_TRUE(IsWindowEnabled(window)) << failing;
        }
    }
}

}  // namespace
