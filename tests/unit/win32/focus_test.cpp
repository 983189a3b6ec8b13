// The keyboard in a form with a memo and an option list, as a dialog passes it on.
#include <array>

#include <gtest/gtest.h>

#include "project/lumenkit_classes.h"
#include "runtime/win32/keyboard.h"
#include "tests/support/windows_form.h"

namespace lumenkit::testing {
namespace {

class FocusTest : public ::testing::Test {
 protected:
    FocusTest() {
        list_.Start();
        list_.MoveTo({0, 150, 200, 300});
        Let(list_, u"Contents", Text(u"a;&Alpha|b;&Beta|c;&Gamma"));
        memo_.Start();
        Let(memo_, u"Text", Text());
        memo_.Hosted().Focus();
        form_.GetLog().Clear();
    }

    static const ClassDescriptor& Class(TextView name) {
        return *lumenkitClasses.Find(u"lumenkit." + Text(name));
    }
    static void Let(FormControl& control, TextView name, Value value) {
        control.Hosted().Automation().Let(name, std::move(value));
    }
    static Text TextOf(FormControl& control) {
        return ToText(control.Hosted().Automation().Get(u"Text"));
    }
    // Types letters as a person does in a dialog.
    void Type(TextView letters) {
        for (const char16_t letter : letters) {
            MSG message = {};
            message.hwnd = GetFocus();
            message.message = WM_CHAR;
            message.wParam = letter;
            message.lParam = 1;
            if (IsDialogMessageW(form_.Window(), &message) == FALSE) {
                DispatchMessageW(&message);
            }
        }
    }
    static void Strike(WORD key) {
        const HWND window = GetFocus();
        SendMessageW(window, WM_KEYDOWN, key, 1);
        SendMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }
    bool MemoHasFocus() { return GetFocus() != Window() && win32::HasFocusInside(Window()); }
    HWND Window() { return memo_.Hosted().Handle(); }

    WindowsForm form_{lumenkitClasses};
    FormControl list_{form_, Class(u"VOptList"), {200, 150}};
    FormControl memo_{form_, Class(u"VMemo"), {200, 100}};
};

TEST_F(FocusTest, OtherScrollBarsKeepTheKeyboardAndTheCaret) {
    for (std::int32_t from = 0; from < 4; ++from) {
        for (std::int32_t to = 0; to < 4; ++to) {
            Let(memo_, u"Text", Text());
            Let(memo_, u"ScrollBars", from);
            ASSERT_TRUE(MemoHasFocus()) << from;
            Type(u"abxcd");
            SendMessageW(GetFocus(), EM_SETSEL, 2, 3);
            const int lost = memo_.focusLost;
            Let(memo_, u"ScrollBars", to);
            EXPECT_TRUE(MemoHasFocus()) << from << " " << to;
            EXPECT_EQ(memo_.focusLost, lost) << "the container hears nothing";
            Type(u"B");
            EXPECT_EQ(TextOf(memo_), u"abBcd");
        }
    }
    EXPECT_EQ(TextOf(list_), u"") << "no letter chose an item";
}

TEST_F(FocusTest, ASelectionToTheLeftGoesOverAsOne) {
    Type(u"abcdef");
    SendMessageW(GetFocus(), EM_SETSEL, 4, 2);
    Let(memo_, u"ScrollBars", std::int32_t{1});
    std::array<BYTE, 256> keys = {};
    keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys.data());
    SendMessageW(GetFocus(), WM_KEYDOWN, VK_LEFT, 1);
    keys[VK_SHIFT] = 0;
    SetKeyboardState(keys.data());
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(GetFocus(), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                 reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 1U);
    EXPECT_EQ(end, 4U);
}

TEST_F(FocusTest, TheHiddenBoxGivesTheKeyboardToTheVisibleOne) {
    Type(u"ab");
    const HWND former = GetFocus();
    SetFocus(form_.Window());
    Let(memo_, u"ScrollBars", std::int32_t{3});
    SetFocus(former);
    EXPECT_NE(GetFocus(), former);
    EXPECT_TRUE(MemoHasFocus());
    Type(u"c");
    EXPECT_EQ(TextOf(memo_).size(), 3U);
}

TEST_F(FocusTest, ACaretThatTheLimitsPlacedStays) {
    Let(memo_, u"MaxCharsPerLine", std::int16_t{6});
    Type(u"abcdef");
    Let(memo_, u"MaxCharsPerLine", std::int16_t{3});
    SendMessageW(GetFocus(), EM_SETSEL, 1, 1);
    Strike(VK_SHIFT);  // the caret at the last key press
    SendMessageW(GetFocus(), EM_SETSEL, 5, 5);
    Let(memo_, u"ScrollBars", std::int32_t{2});
    EXPECT_TRUE(MemoHasFocus());
    DWORD start = 99;
    SendMessageW(GetFocus(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
    EXPECT_EQ(start, 1U);
}

TEST_F(FocusTest, ADisabledMemoKeepsTheKeyboardForLater) {
    Type(u"ab");
    Let(memo_, u"Enabled", false);
    EXPECT_EQ(GetFocus(), Window());
    Type(u"B");
    EXPECT_EQ(TextOf(list_), u"") << "no mnemonic of the list";
    Let(memo_, u"Enabled", true);
    EXPECT_TRUE(MemoHasFocus());
    Type(u"c");
    EXPECT_EQ(TextOf(memo_), u"abc");
}

TEST_F(FocusTest, AMemoThatWasDisabledUnderOtherScrollBarsGetsTheKeyboardToo) {
    Let(memo_, u"Enabled", false);
    Let(memo_, u"ScrollBars", std::int32_t{3});
    Let(memo_, u"Enabled", true);
    EXPECT_TRUE(MemoHasFocus());
    Type(u"c");
    EXPECT_EQ(TextOf(memo_), u"c");
}

TEST_F(FocusTest, AKeyboardThatTheUserMovedOnIsNotTakenBack) {
    Let(memo_, u"Enabled", false);
    list_.Hosted().Focus();
    const HWND option = GetFocus();
    Let(memo_, u"Enabled", true);
    EXPECT_EQ(GetFocus(), option);
}

TEST_F(FocusTest, AClickOnADisabledMemoMovesNoKeyboard) {
    list_.Hosted().Focus();
    const HWND option = GetFocus();
    Let(memo_, u"Enabled", false);
    SendMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(Window(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(GetFocus(), option);
}

TEST_F(FocusTest, TheControlsOwnWindowPassesTheKeyboardOn) {
    SetFocus(form_.Window());
    SetFocus(Window());
    EXPECT_TRUE(MemoHasFocus());
}

TEST_F(FocusTest, AShorterListKeepsTheKeyboardAndSelectsNothing) {
    list_.Hosted().Focus();
    Strike(VK_DOWN);
    Strike(VK_DOWN);
    EXPECT_EQ(TextOf(list_), u"c");
    form_.GetLog().Clear();
    Let(list_, u"Contents", Text(u"a;&Alpha|b;&Beta"));
    EXPECT_TRUE(win32::HasFocusInside(list_.Hosted().Handle()));
    EXPECT_NE(GetFocus(), list_.Hosted().Handle());
    EXPECT_EQ(TextOf(list_), u"");
    EXPECT_TRUE(form_.GetLog().Events().empty());
    Strike(VK_DOWN);
    EXPECT_EQ(TextOf(list_), u"b") << "the keyboard was on the first item";
}

}  // namespace
}  // namespace lumenkit::testing
