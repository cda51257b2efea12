// The dialog of the manual's tour (examples/tour.cpp), used by its keys as a person would, and its picture for the page.
#include <cvutil32.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "examples/tour.h"
#include "gallery/capture.h"
#include "tests/support/leaks.h"
#include "tests/support/modal.h"
#include "tests/support/profile.h"

namespace {

using testing_support::Counts;
using testing_support::IntlSetting;
using testing_support::OnNextDialog;
using testing_support::PressKey;
using testing_support::TextOf;

constexpr int kBoxMessage = 10102;
constexpr char kKept[] = "Trip";

class Tour : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        testing_support::OpenFirstDialog();
    }

    Tour() {
        HKEY const base = Reg_OpenBaseUserKey(nullptr);
        RegDeleteKeyA(base, kKept);
        Reg_CloseKey(base);
    }

    /// Runs the program; all its windows and pictures are gone afterwards. (A bar with arrow keys keeps the data of its field.)
    static int Run() {
        Counts const before = Counts::Now();
        char noArguments[] = "";
        int const code = WinMain(GetModuleHandleA(nullptr), nullptr, noArguments, SW_SHOWNORMAL);
        EXPECT_LE(Counts::Now().gdi, before.gdi);
        EXPECT_LE(Counts::Now().user, before.user);
        return code;
    }
    static void Keys(HWND dialog, std::initializer_list<int> keys) {
        for (int const key : keys) {
            PressKey(dialog, static_cast<WORD>(key));
        }
    }
    /// Types a date where month and day were brought to 1 before, whatever they are: mmddyy.
    static void TypeDate(HWND dialog, std::string const& digits) {
        Keys(dialog, {VK_HOME, VK_RIGHT, '1', VK_HOME, '0', VK_RIGHT, VK_RIGHT, VK_RIGHT, '1', VK_LEFT, VK_LEFT,
                      VK_LEFT, '0', VK_HOME});
        for (char const digit : digits) {
            PressKey(dialog, static_cast<WORD>(digit));
        }
    }
    static DWORD Kept(char const* name) {
        return Reg_GetProfileInt(HKEY_CURRENT_USER, kKept, name, 99);
    }
    static int Persons(HWND dialog) {
        return NUMFLD_GetValue(GetDlgItem(dialog, IDC_PERSONS));
    }

    IntlSetting order_{"iDate", "0"};
    IntlSetting separator_{"sDate", "/"};
};

/// The picture has a caption, white fields and grey around them; the page gets it where the environment names a folder.
void TakePicture(HWND dialog) {
    auto const picture = gallery::CaptureWindow(dialog);
    ASSERT_TRUE(picture);
    auto const count = [&](int which) {
        COLORREF const colour = GetSysColor(which);
        auto const pixel = static_cast<std::uint32_t>(RGB(GetBValue(colour), GetGValue(colour), GetRValue(colour)));
        return std::ranges::count(picture->pixels, pixel);
    };
    auto const all = static_cast<std::ptrdiff_t>(picture->pixels.size());
    EXPECT_GT(count(COLOR_WINDOW), all / 5);
    EXPECT_GT(count(COLOR_3DFACE), all / 4);
    if (char const* const folder = std::getenv("CVUTIL32_PICTURES")) {
        EXPECT_TRUE(gallery::WritePng(std::string(folder) + "/tour.png", *picture));
    }
}

TEST_F(Tour, BooksWhatIsTypedAndKeepsIt) {
    OnNextDialog([](HWND dialog) {
        EXPECT_EQ("Trip", TextOf(dialog));
        SYSTEMTIME date = {};
        EXPECT_TRUE(DATECTRL_GetDate(GetDlgItem(dialog, IDC_DATE), &date)) << "today";
        EXPECT_EQ(1, Persons(dialog));
        TypeDate(dialog, "031527");
        Keys(dialog,
             {VK_TAB, '3', VK_UP, VK_TAB, VK_TAB, VK_TAB, VK_SPACE, VK_DOWN, VK_DOWN, VK_SPACE, VK_TAB, VK_TAB});
        TakePicture(dialog);
        OnNextDialog([](HWND box) {
            EXPECT_EQ("A trip for 4 on 2027-03-15?", TextOf(GetDlgItem(box, kBoxMessage)));
            PressKey(box, VK_RETURN);
        });
        PressKey(dialog, VK_RETURN);
    });
    EXPECT_EQ(0, Run());
    EXPECT_EQ(20270315U, Kept("Day"));
    EXPECT_EQ(4U, Kept("Persons"));
    EXPECT_EQ(1U, Kept("Breakfast"));
    EXPECT_EQ(0U, Kept("Bicycle"));
    EXPECT_EQ(1U, Kept("Seat at the window"));

    OnNextDialog([](HWND dialog) {
        SYSTEMTIME date = {};
        EXPECT_TRUE(DATECTRL_GetDate(GetDlgItem(dialog, IDC_DATE), &date));
        EXPECT_EQ(15, date.wDay);
        EXPECT_EQ(4, Persons(dialog));
        EXPECT_EQ(2, SendDlgItemMessageA(dialog, IDC_EXTRAS, LB_GETSELCOUNT, 0, 0));
        PressKey(dialog, VK_ESCAPE);
    });
    EXPECT_EQ(0, Run());
}

TEST_F(Tour, StaysOpenUntilTheTripCanBeBooked) {
    OnNextDialog([](HWND dialog) {
        TypeDate(dialog, "013127");
        Keys(dialog, {VK_HOME, VK_UP});  // the 31st of February
        OnNextDialog([](HWND box) {
            EXPECT_NE(std::string::npos, TextOf(GetDlgItem(box, kBoxMessage)).find("There is no such day."));
            PressKey(box, VK_RETURN);
        });
        PressKey(dialog, VK_RETURN);
        TypeDate(dialog, "022827");
        Keys(dialog, {VK_TAB, '0'});
        OnNextDialog([](HWND box) {
            EXPECT_NE(std::string::npos, TextOf(GetDlgItem(box, kBoxMessage)).find("one to nine"));
            PressKey(box, VK_RETURN);
        });
        PressKey(dialog, VK_RETURN);
        Keys(dialog, {VK_BACK, '2'});
        OnNextDialog([](HWND box) { PressKey(box, VK_ESCAPE); });
        PressKey(dialog, VK_RETURN);
        EXPECT_TRUE(IsWindowVisible(dialog)) << "not booked after all";
        PressKey(dialog, VK_ESCAPE);
    });
    EXPECT_EQ(0, Run());
    EXPECT_EQ(99U, Kept("Day"));
}

TEST_F(Tour, TellsAboutItself) {
    OnNextDialog([](HWND dialog) {
        OnNextDialog([](HWND box) {
            EXPECT_EQ("About Trip", TextOf(box));
            PressKey(box, VK_RETURN);
        });
        PressKey(dialog, 'A', true);
        PressKey(dialog, VK_ESCAPE);
    });
    EXPECT_EQ(0, Run());
}

}  // namespace
