// The About box: its texts, what it tells of the machine and its user, its size, and how it ends.
#include <cvutil32/about.h>
#include <cvutil32/util.h>

#include "dialogs/about/machine.h"
#include "dialogs/about/resource.h"
#include "tests/dialogs/registration.h"
#include "tests/support/leaks.h"
#include "tests/support/modal.h"
#include "tests/support/profile.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using namespace testing_support;

// --- the machine

TEST(AboutMachine, ProcessorsHaveNames) {
    EXPECT_EQ(UINT{CVAB_CPU_386}, about::ProcessorString(386));
    EXPECT_EQ(UINT{CVAB_CPU_ALPHA}, about::ProcessorString(21064));
    EXPECT_EQ(UINT{CVAB_CPU_UNKNOWN}, about::ProcessorString(587));
}

TEST(AboutMachine, MemoryIsToldInKilobytes) {
    IntlSetting const separator("sThousand", ",");
    EXPECT_EQ("16,384 KB", about::MemoryLine("%s KB", SIZE_T{16} << 20));
    EXPECT_EQ("1 KB", about::MemoryLine("%s KB", 2047)) << "what is not whole is left out";
    separator.Change(".");
    EXPECT_EQ("<1.048.576>", about::MemoryLine("<%s>", SIZE_T{1} << 30));
}

// --- the box

std::string OwnString(UINT id) {
    char text[256] = {};
    LoadStringA(UTIL_GetModuleInstance(), id, text, sizeof text);
    return text;
}

class AboutBox : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        testing_support::OpenFirstDialog();
    }

    struct Seen {
        std::string caption;
        std::string product;
        std::string version;
        std::string notice;
        HICON icon;
    };

    int Show(LPCSTR title, LPCSTR product, LPCSTR version, LPCSTR notice, std::function<void(HWND)> visit,
             LPCSTR icon = nullptr, HINSTANCE instance = nullptr) {
        OnNextDialog([this, visit](HWND dialog) {
            seen_ = {TextOf(dialog), TextOf(GetDlgItem(dialog, CVAB_PRODUCT)), TextOf(GetDlgItem(dialog, CVAB_VERSION)),
                     TextOf(GetDlgItem(dialog, CVAB_NOTICE)),
                     reinterpret_cast<HICON>(SendDlgItemMessageA(dialog, CVAB_ICON, STM_GETICON, 0, 0))};
            visit(dialog);
        });
        return ABOUT_DisplayAboutBox(owner_, instance, title, product, version, notice, icon);
    }

    static void Close(HWND dialog) {
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    }

    LeakCheck const leaks_;
    TestWindow const owner_{nullptr, {200, 150, 700, 550}};
    Registration const user_{"RegisteredOwner", nullptr};
    Registration const organization_{"RegisteredOrganization", nullptr};
    Seen seen_ = {};
};

TEST_F(AboutBox, TextsOfTheCaller) {
    HICON const hand = LoadIconA(nullptr, IDI_HAND);
    EXPECT_EQ(0, Show("Info", "Planner", "Version 2", "Copyright \xA9 M\xFCller", Close, IDI_HAND));
    EXPECT_EQ("Info", seen_.caption);
    EXPECT_EQ("Planner", seen_.product);
    EXPECT_EQ("Version 2", seen_.version);
    EXPECT_EQ(0U, seen_.notice.find("Copyright \xA9 M\xFCller\n\n"));
    EXPECT_EQ(hand, seen_.icon);
    EXPECT_EQ(hand, LoadIconA(nullptr, IDI_HAND)) << "the shared icon lives on";

    HINSTANCE const module = GetModuleHandleA(nullptr);
    Show(nullptr, MAKEINTRESOURCEA(100), MAKEINTRESOURCEA(9), MAKEINTRESOURCEA(101), Close, nullptr, module);
    EXPECT_EQ("About tests", seen_.caption);
    EXPECT_EQ("tests", seen_.product);
    EXPECT_EQ("", seen_.version) << "a missing string";
    EXPECT_EQ(std::string(255, 'x') + "\n\n", seen_.notice.substr(0, 257));
}

TEST_F(AboutBox, TextsOfItsOwn) {
    EXPECT_EQ(0, Show(nullptr, nullptr, nullptr, nullptr, Close, "NoSuchIcon"));
    EXPECT_EQ("About ", seen_.caption) << "the blank too: the caption is made of one string";
    EXPECT_EQ("", seen_.product);
    EXPECT_EQ("Beta Release 1", seen_.version);
    EXPECT_EQ(0U, seen_.notice.find("CVUTIL32 user-interface utility library\n"));
    EXPECT_EQ(nullptr, seen_.icon);

    SYSTEM_INFO system = {};
    GetSystemInfo(&system);
    MEMORYSTATUS memory = {};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatus(&memory);
    std::string const machine = "\n\n" + OwnString(about::ProcessorString(system.dwProcessorType)) + '\n' +
                                about::MemoryLine("Physical Memory:   %s KB", memory.dwTotalPhys);
    EXPECT_EQ(machine, seen_.notice.substr(seen_.notice.size() - machine.size()));
}

TEST_F(AboutBox, TheRegisteredUser) {
    if (!user_.IsOpen()) {
        GTEST_SKIP() << "the registration may not be written here";
    }
    auto const lines = [this] {
        Show("A", "P", "V", "N", Close);
        std::size_t const end = seen_.notice.rfind("\n\n");
        return seen_.notice.substr(0, end);
    };
    EXPECT_EQ("N", lines());
    organization_.Set("Calverin");
    EXPECT_EQ("N", lines()) << "no organisation without a user";
    user_.Set("M. M\xFCller");
    EXPECT_EQ("N\n\nThis product is licensed to:\nM. M\xFCller\nCalverin", lines());
    organization_.Set("");
    EXPECT_EQ("N\n\nThis product is licensed to:\nM. M\xFCller", lines());
}

TEST_F(AboutBox, GrowsWithItsNotice) {
    int formerHeight = 0;
    std::string notice = "one line";
    for (int const lines : {1, 20}) {
        for (int i = 1; i < lines; ++i) {
            notice += "\nand another one";
        }
        Show("A", "P", "V", notice.c_str(), [&](HWND dialog) {
            RECT client = {};
            RECT window = {};
            GetClientRect(dialog, &client);
            GetWindowRect(dialog, &window);
            RECT const field = PlaceIn(dialog, CVAB_NOTICE);
            RECT const frame = PlaceIn(dialog, CVAB_FRAME);
            RECT const fieldBefore = ToPixels(dialog, {30, 56, 30 + 202, 56 + 9});
            RECT const frameBefore = ToPixels(dialog, {6, 32, 6 + 236, 32 + 22});
            LONG const growth = field.bottom - field.top + (fieldBefore.bottom - fieldBefore.top);
            EXPECT_EQ(fieldBefore.left, field.left);
            EXPECT_EQ(fieldBefore.top, field.top);
            EXPECT_EQ(ToPixels(dialog, {0, 0, 0, 62}).bottom + growth, client.bottom);
            EXPECT_EQ(frameBefore.bottom - frameBefore.top + growth, frame.bottom - frame.top);
            EXPECT_LT(field.bottom, frame.bottom);
            EXPECT_EQ((200 + 700 - (window.right - window.left)) / 2, window.left);
            EXPECT_EQ((150 + 550 - (window.bottom - window.top)) / 2, window.top);
            EXPECT_EQ(GetDlgItem(dialog, IDOK), GetFocus());
            if (lines > 1) {
                EXPECT_EQ(0, (client.bottom - formerHeight) % (lines - 1)) << "whole lines";
                EXPECT_GT(client.bottom, formerHeight);
            }
            formerHeight = client.bottom;
            Close(dialog);
        });
    }
}

/// The field as it is drawn, and as its text would be drawn with a format.
bool LooksLike(HWND dialog, int id, std::string const& text, UINT format) {
    HWND const field = GetDlgItem(dialog, id);
    Picture const shown = PictureOf(field);
    RECT client = {};
    GetClientRect(field, &client);
    HDC const context = GetDC(field);
    auto const font = reinterpret_cast<HFONT>(SendMessageA(field, WM_GETFONT, 0, 0));
    HGDIOBJ const former = SelectObject(context, font);
    FillRect(context, &client, GetSysColorBrush(COLOR_3DFACE));
    SetBkColor(context, GetSysColor(COLOR_3DFACE));
    SetTextColor(context, GetSysColor(COLOR_WINDOWTEXT));
    DrawTextA(context, text.c_str(), -1, &client, DT_WORDBREAK | DT_EXPANDTABS | format);
    SelectObject(context, former);
    ReleaseDC(field, context);
    return shown == PictureOf(field);
}

TEST_F(AboutBox, AnAmpersandIsAnOrdinaryCharacter) {
    if (user_.IsOpen()) {
        user_.Set("Smith & Sons");
        organization_.Set("A&B");
    }
    Show(nullptr, "This & that", "Version 1 & 2", "By Miller && Miller", [&](HWND dialog) {
        UpdateWindow(dialog);
        EXPECT_TRUE(LooksLike(dialog, CVAB_PRODUCT, seen_.product, DT_NOPREFIX));
        EXPECT_TRUE(LooksLike(dialog, CVAB_VERSION, seen_.version, DT_NOPREFIX));
        EXPECT_TRUE(LooksLike(dialog, CVAB_NOTICE, seen_.notice, DT_NOPREFIX));
        EXPECT_FALSE(LooksLike(dialog, CVAB_PRODUCT, seen_.product, 0)) << "and that can be told";
        Close(dialog);
    });
    EXPECT_EQ("About This & that", seen_.caption);
    EXPECT_EQ(0U, seen_.notice.find("By Miller && Miller\n")) << "the text itself stays as it was given";
    if (user_.IsOpen()) {
        EXPECT_NE(std::string::npos, seen_.notice.find("\nSmith & Sons\nA&B\n"));
    }
}

TEST_F(AboutBox, AWordThatIsWiderThanTheFieldGoesOnInTheNextLine) {
    std::string const path =
        "\\\\server\\share\\a_folder_with_a_long_name\\and_another_one_in_it\\and_one_more\\that_ends_it.txt";
    int height = 0;
    for (std::string const& notice : {std::string("See"), "See " + path}) {
        Show("A", "P", "V", notice.c_str(), [&](HWND dialog) {
            RECT const field = PlaceIn(dialog, CVAB_NOTICE);
            RECT const fieldBefore = ToPixels(dialog, {30, 56, 30 + 202, 56 + 9});
            EXPECT_LE(field.right, fieldBefore.right);
            RECT client = {};
            GetClientRect(dialog, &client);
            EXPECT_EQ(ToPixels(dialog, {0, 0, 248, 62}).right, client.right) << "the width stays";
            EXPECT_EQ(ToPixels(dialog, {0, 0, 248, 62}).bottom + fieldBefore.bottom - fieldBefore.top,
                      client.bottom - (field.bottom - field.top));
            EXPECT_GT(field.bottom - field.top, height) << "the path takes lines of its own";
            height = field.bottom - field.top;
            UpdateWindow(dialog);
            EXPECT_TRUE(LooksLike(dialog, CVAB_NOTICE, seen_.notice, DT_NOPREFIX | DT_EDITCONTROL));
            Close(dialog);
        });
        EXPECT_EQ(0U, seen_.notice.find(notice + "\n"));
    }
}

TEST_F(AboutBox, EndsWithZeroAndGivesTheFocusBack) {
    TestWindow const child(owner_, {10, 10, 60, 40});
    SetFocus(child);
    EXPECT_EQ(0, Show("A", "P", "V", "N", [](HWND dialog) { PressKey(dialog, VK_ESCAPE); }));
    EXPECT_EQ(child.Handle(), GetFocus());
    EXPECT_EQ(0, Show("A", "P", "V", "N", [](HWND dialog) { PressKey(dialog, VK_RETURN); }));
    EXPECT_EQ(0, Show("A", "P", "V", "N", [](HWND dialog) {
                  // Other commands do not close it.
                  SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_DOUBLECLICKED), 0);
                  SendMessageA(dialog, WM_COMMAND, CVAB_NOTICE, 0);
                  EXPECT_TRUE(IsWindowVisible(dialog));
                  PostMessageA(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
              }));
    EXPECT_EQ(child.Handle(), GetFocus());

    HINSTANCE const library = UTIL_GetModuleInstance();
    UTIL_SetModuleInstance(GetModuleHandleA(nullptr));
    EXPECT_EQ(-1, ABOUT_DisplayAboutBox(owner_, nullptr, "A", "P", "V", "N", nullptr)) << "no template there";
    UTIL_SetModuleInstance(library);
    EXPECT_TRUE(IsWindowEnabled(owner_));
}

}  // namespace
