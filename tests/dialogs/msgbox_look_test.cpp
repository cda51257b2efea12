// Message boxes as they come up: texts, sizes, places and buttons.
#include <cvutil32/msgbox.h>

#include "tests/support/leaks.h"
#include "tests/support/modal.h"
#include "tests/support/window.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace testing_support;

constexpr int kIcon = 10101;
constexpr int kMessage = 10102;
constexpr int kPanel = 10103;

int Width(RECT const& r) {
    return r.right - r.left;
}

int Height(RECT const& r) {
    return r.bottom - r.top;
}

/// What the tests look at, read while the box is up.
struct Seen {
    RECT window = {};
    RECT client = {};
    RECT message = {};
    RECT panel = {};
    RECT icon = {};
    std::vector<RECT> buttons;
    std::vector<std::string> labels;
    std::string caption;
    std::string text;
    bool iconVisible = false;
    int defaultId = 0;
    int focusId = 0;
    int lineHeight = 0;
    // Of the template, in pixels.
    RECT narrowPanel = {};
    RECT widePanel = {};
    RECT narrowMessage = {};
    RECT wideMessage = {};
    RECT firstButton = {};
    int step = 0;
};

Seen Read(HWND box, WORD count, KVMB_BUTTON const* buttons) {
    Seen seen;
    GetWindowRect(box, &seen.window);
    GetClientRect(box, &seen.client);
    seen.message = PlaceIn(box, kMessage);
    seen.panel = PlaceIn(box, kPanel);
    seen.icon = PlaceIn(box, kIcon);
    seen.iconVisible = IsWindowVisible(GetDlgItem(box, kIcon)) != 0;
    for (WORD i = 0; i < count; ++i) {
        HWND const button = GetDlgItem(box, buttons[i].id);
        seen.buttons.push_back(PlaceIn(box, buttons[i].id));
        seen.labels.push_back(TextOf(button));
        if (SendMessageA(button, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) {
            seen.defaultId = buttons[i].id;
        }
    }
    seen.caption = TextOf(box);
    seen.text = TextOf(GetDlgItem(box, kMessage));
    seen.focusId = GetFocus() ? GetDlgCtrlID(GetFocus()) : 0;

    HDC const context = GetDC(box);
    HGDIOBJ const former =
        SelectObject(context, reinterpret_cast<HFONT>(SendDlgItemMessageA(box, kMessage, WM_GETFONT, 0, 0)));
    TEXTMETRICA metrics = {};
    GetTextMetricsA(context, &metrics);
    seen.lineHeight = metrics.tmHeight;
    SelectObject(context, former);
    ReleaseDC(box, context);

    seen.narrowPanel = ToPixels(box, {6, 6, 6 + 144, 20});
    seen.widePanel = ToPixels(box, {6, 6, 6 + 204, 20});
    seen.narrowMessage = ToPixels(box, {40, 12, 40 + 104, 12});
    seen.wideMessage = ToPixels(box, {40, 12, 40 + 164, 12});
    seen.firstButton = ToPixels(box, {156, 6, 156 + 48, 20});
    seen.step = ToPixels(box, {0, 6, 0, 24}).bottom - ToPixels(box, {0, 6, 0, 24}).top;
    return seen;
}

class MessageBoxLook : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        testing_support::OpenFirstDialog();
    }

    MessageBoxLook() {
        box_.owner = owner_;
        box_.title = "Caption";
        box_.buttonCount = 1;
        for (int i = 0; i < KVMB_MAXBUTTONS; ++i) {
            box_.buttons[i].kind = static_cast<DWORD>(i % 4);
            box_.buttons[i].id = 101 + i;
        }
    }

    Seen Show(char const* text, LPCSTR icon = nullptr) {
        box_.text = text;
        box_.icon = icon ? LoadIconA(nullptr, icon) : nullptr;
        Seen seen;
        testing_support::OnNextDialog([&](HWND box) {
            seen = Read(box, box_.buttonCount, box_.buttons);
            PostMessageA(box, WM_COMMAND, 777, 0);
        });
        EXPECT_EQ(777, KVMB_MessageBoxExtended(&box_));
        return seen;
    }

    LeakCheck const leaks_;
    TestWindow const owner_{nullptr, {200, 150, 700, 550}};
    KVMB_MESSAGEBOX box_ = {};
};

std::string Words(std::size_t length) {
    std::string text;
    while (text.size() < length) {
        text += "abc ";
    }
    text.resize(length);
    text.back() = 'x';
    return text;
}

TEST_F(MessageBoxLook, TheLengthPicksTheWidthUnlessAFlagDoes) {
    auto const isWide = [&](std::size_t length, WORD flags) {
        box_.flags = flags;
        Seen const seen = Show(Words(length).c_str());
        EXPECT_TRUE(Width(seen.panel) == Width(seen.narrowPanel) || Width(seen.panel) == Width(seen.widePanel));
        return Width(seen.panel) == Width(seen.widePanel);
    };
    EXPECT_FALSE(isWide(140, 0));
    EXPECT_TRUE(isWide(141, 0));
    EXPECT_FALSE(isWide(500, KVMB_SMALL));
    EXPECT_FALSE(isWide(500, KVMB_SMALL | KVMB_LARGE));
    EXPECT_TRUE(isWide(5, KVMB_LARGE));
}

TEST_F(MessageBoxLook, AShortMessageIsCentred) {
    Seen const plain = Show("Done.");
    EXPECT_EQ("Caption", plain.caption);
    EXPECT_EQ("Done.", plain.text);
    EXPECT_FALSE(plain.iconVisible);
    EXPECT_EQ(plain.lineHeight, Height(plain.message));
    EXPECT_EQ(plain.narrowMessage.top, plain.message.top);
    int const centred = plain.narrowMessage.left + ((Width(plain.narrowMessage) - Width(plain.message)) >> 1);
    EXPECT_EQ(centred - ((plain.narrowMessage.left - plain.icon.left) >> 1), plain.message.left);

    Seen const withIcon = Show("Done.", IDI_ASTERISK);
    EXPECT_TRUE(withIcon.iconVisible);
    EXPECT_EQ(GetSystemMetrics(SM_CYICON), Height(withIcon.icon));
    EXPECT_EQ(centred, withIcon.message.left);
    EXPECT_EQ(plain.narrowMessage.top + ((GetSystemMetrics(SM_CYICON) - plain.lineHeight) >> 1), withIcon.message.top);
}

// About what the manual says of the smallest screen, whose fonts differ a little from one system to the next.
TEST_F(MessageBoxLook, TextsThatFitOnAScreenOf640By480) {
    std::string text;
    while (text.size() < 1500) {
        text += "The document has been changed by somebody else since it was opened here. Do you want to save it? ";
    }
    EXPECT_LE(Height(Show(text.substr(0, 1300).c_str(), IDI_HAND).window), 480);
    box_.flags = KVMB_SMALL;
    EXPECT_LE(Height(Show(text.substr(0, 800).c_str(), IDI_HAND).window), 480);
    EXPECT_GT(Height(Show(text.substr(0, 1100).c_str(), IDI_HAND).window), 480);
    EXPECT_LE(Height(Show(std::string(30, '\n').c_str(), IDI_HAND).window), 480);
    EXPECT_GT(Height(Show(std::string(32, '\n').c_str(), IDI_HAND).window), 480);
}

TEST_F(MessageBoxLook, EmptyAndStrangeTexts) {
    EXPECT_EQ("", Show(nullptr).text);
    EXPECT_EQ("", Show("").text);
    Seen const seen = Show("R&D:\tm\xFCller \xA9 \x80 && more");
    EXPECT_EQ("R&D:\tm\xFCller \xA9 \x80 && more", seen.text);
    EXPECT_GE(Height(seen.message), seen.lineHeight);
    box_.title = nullptr;
    EXPECT_EQ("", Show("Done.").caption);
}

TEST_F(MessageBoxLook, ButtonsStandInAColumn) {
    box_.buttonCount = 4;
    Seen const seen = Show("Done.");
    EXPECT_EQ((std::vector<std::string>{"OK", "Cancel", "&Yes", "&No"}), seen.labels);
    for (int i = 0; i < 4; ++i) {
        RECT const& button = seen.buttons[static_cast<std::size_t>(i)];
        EXPECT_EQ(seen.firstButton.left, button.left);
        EXPECT_EQ(seen.firstButton.top + i * seen.step, button.top);
        EXPECT_EQ(Width(seen.firstButton), Width(button));
        EXPECT_EQ(Height(seen.firstButton), Height(button));
    }
    EXPECT_EQ(seen.buttons[3].bottom + seen.firstButton.top, seen.client.bottom);

    box_.buttonCount = 8;
    std::string const label(47, 'W');
    for (KVMB_BUTTON& button : box_.buttons) {
        button.label = label.c_str();
    }
    box_.defaultButton = 7;
    Seen const eight = Show("Done.");
    EXPECT_EQ(label, eight.labels[7]);
    EXPECT_EQ(Width(eight.firstButton), Width(eight.buttons[7]));
    EXPECT_EQ(108, eight.focusId);

    box_.buttonCount = 0;
    Seen const none = Show("Done.", IDI_HAND);
    EXPECT_EQ(Height(none.panel) + 2 * none.firstButton.top, none.client.bottom);
}

TEST_F(MessageBoxLook, OneButtonIsTheDefaultAndHasTheFocus) {
    box_.buttonCount = 3;
    box_.defaultButton = 1;
    Seen seen = Show("Done.");
    EXPECT_EQ(102, seen.defaultId);
    EXPECT_EQ(102, seen.focusId);
    EXPECT_EQ(1, box_.defaultButton);

    box_.buttonCount = 2;
    box_.defaultButton = 5;
    seen = Show("Done.");
    EXPECT_EQ(101, seen.defaultId);
    EXPECT_EQ(101, seen.focusId);
    EXPECT_EQ(0, box_.defaultButton) << "the caller learns of it";
}

TEST_F(MessageBoxLook, CentredOverItsOwnerOrWhereItIsTold) {
    Seen const centred = Show("Done.");
    EXPECT_EQ((200 + 700 - Width(centred.window)) / 2, centred.window.left);
    EXPECT_EQ((150 + 550 - Height(centred.window)) / 2, centred.window.top);
    POINT const there = {33, 44};
    box_.position = &there;
    Seen const told = Show("Done.");
    EXPECT_EQ(33, told.window.left);
    EXPECT_EQ(44, told.window.top);
    EXPECT_EQ(Width(centred.window), Width(told.window));
}

}  // namespace
