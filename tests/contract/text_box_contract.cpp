#include <algorithm>
#include <functional>
#include <ostream>
#include <string>
#include <utility>

#include "tests/contract/contract_test.h"

namespace lumenkit::contract {
namespace {

// Records the events of the box, and reacts as the test says.
class Recorder final : public host::TextBoxEvents {
 public:
    void Change() override {
        lines.emplace_back("change");
        if (onChange) {
            onChange();
        }
    }
    void GotFocus() override { lines.emplace_back("got"); }
    void LostFocus() override { lines.emplace_back("lost"); }
    void KeyDown(std::int16_t& keyCode, std::int16_t&) override {
        lines.push_back("down " + std::to_string(keyCode));
        keyCode = takesKeyDown ? std::int16_t{0} : keyCode;
    }
    void KeyPress(std::int16_t& keyAscii) override {
        lines.push_back("press " + std::to_string(keyAscii));
        keyAscii = takesKeyPress ? std::int16_t{0} : keyAscii;
    }
    void KeyUp(std::int16_t& keyCode, std::int16_t&) override {
        lines.push_back("up " + std::to_string(keyCode));
    }
    Lines Take() { return std::exchange(lines, {}); }

    bool takesKeyDown = false;
    bool takesKeyPress = false;
    std::function<void()> onChange;
    Lines lines;
};

struct Selection {
    std::int32_t start = 0;
    std::int32_t end = 0;
    friend bool operator==(const Selection&, const Selection&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Selection& selection) {
        return out << selection.start << ".." << selection.end;
    }
};

class TextBoxContract : public ContractTest {
 protected:
    host::TextBox& Box(TextView text, bool multiLine = true) {
        box_ = Parts().AddTextBox({{.name = u"Text1", .placement = {.width = 1500, .height = 900}},
                                   multiLine,
                                   host::ScrollBars::None,
                                   text},
                                  recorder_);
        return *box_;
    }
    // A box that has the focus. The record is emptied, so that it holds only later events.
    host::TextBox& FocusedBox(TextView text, bool multiLine = true) {
        host::TextBox& box = Box(text, multiLine);
        runtime_->Focus(box);
        recorder_.lines.clear();
        return box;
    }
    Selection Selected() {
        Selection selection;
        box_->GetSelection(selection.start, selection.end);
        return selection;
    }

    Recorder recorder_;
    std::unique_ptr<host::TextBox> box_;
};
INSTANTIATE_TEST_SUITE_P(Runtime, TextBoxContract, ::testing::Values(RuntimeUnderTest()),
                         ::testing::PrintToStringParamName());

TEST_P(TextBoxContract, ATextBoxStartsAsDesigned) {
    host::TextBox& box = Box(u"a\r\nb");
    EXPECT_EQ(box.GetText(), u"a\r\nb");
    EXPECT_FALSE(box.Locked());
    EXPECT_EQ(box.MaxLength(), 0);
    EXPECT_EQ(box.Pointer(), host::MousePointer::Default);
    EXPECT_TRUE(box.Enabled());
    EXPECT_TRUE(box.Visible());
    EXPECT_NE(box.WindowHandle(), 0);
    EXPECT_EQ(recorder_.lines, Lines{});
}

TEST_P(TextBoxContract, ANewTextNotifiesBeforeTheCallReturns) {
    host::TextBox& box = Box(u"old");
    Text seen;
    recorder_.onChange = [&] { seen = box.GetText(); };
    box.SetSelStart(2);
    box.SetText(u"new\r\nlines");
    EXPECT_EQ(seen, u"new\r\nlines");
    EXPECT_EQ(recorder_.Take(), Lines{"change"});
    EXPECT_EQ(Selected(), (Selection{0, 0})) << "the caret stands before the text";
}

TEST_P(TextBoxContract, AssigningTheSameTextNotifiesNothing) {
    host::TextBox& box = Box(u"same");
    box.SetSelStart(1);
    box.SetSelLength(2);
    box.SetText(u"same");
    EXPECT_EQ(recorder_.Take(), Lines{});
    EXPECT_EQ(Selected(), (Selection{1, 3}));
}

TEST_P(TextBoxContract, AChangeHandlerMaySetTheText) {
    host::TextBox& box = Box(u"");
    recorder_.onChange = [&] { box.SetText(u"mine"); };
    box.SetText(u"yours");
    EXPECT_EQ(box.GetText(), u"mine");
    EXPECT_EQ(recorder_.Take(), (Lines{"change", "change"}));
}

TEST_P(TextBoxContract, AnExceptionOfAHandlerReachesTheCaller) {
    host::TextBox& box = Box(u"");
    recorder_.onChange = [] { Raise(ErrorNumber::DivisionByZero); };
    EXPECT_TRUE(Raises(ErrorNumber::DivisionByZero, [&] { box.SetText(u"x"); }));
    EXPECT_EQ(box.GetText(), u"x");
}

TEST_P(TextBoxContract, AnAssignedTextIsCutToTheMaxLength) {
    host::TextBox& box = Box(u"abcdef");
    box.SetMaxLength(3);
    EXPECT_EQ(box.GetText(), u"abcdef") << "what is there stays";
    box.SetText(u"uvwxyz");
    EXPECT_EQ(box.GetText(), u"uvw");
    EXPECT_EQ(recorder_.Take(), Lines{"change"});
    box.SetText(u"uvw and more");
    EXPECT_EQ(recorder_.Take(), Lines{}) << "the same once it is cut";
}

TEST_P(TextBoxContract, SelStartMovesTheCaretAndSelectsNothing) {
    host::TextBox& box = Box(u"abcdef");
    box.SetSelStart(1);
    box.SetSelLength(3);
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 3);
    box.SetSelStart(2);
    EXPECT_EQ(Selected(), (Selection{2, 2}));
    box.SetSelStart(100);
    EXPECT_EQ(Selected(), (Selection{6, 6}));
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { box.SetSelStart(-1); }));
    EXPECT_EQ(box.SelStart(), 6);
}

TEST_P(TextBoxContract, SelLengthEndsAtTheEndOfTheText) {
    host::TextBox& box = Box(u"abcdef");
    box.SetSelStart(4);
    box.SetSelLength(2147483647);
    EXPECT_EQ(Selected(), (Selection{4, 6}));
    box.SetSelLength(1);
    EXPECT_EQ(Selected(), (Selection{4, 5}));
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { box.SetSelLength(-1); }));
    EXPECT_EQ(Selected(), (Selection{4, 5}));
}

TEST_P(TextBoxContract, SetSelectionKeepsTheSelectionInTheText) {
    struct Case {
        Selection sent;
        Selection expected;
    };
    host::TextBox& box = Box(u"abcdef");
    for (const Case& one :
         {Case{{1, 3}, {1, 3}}, Case{{2, 2}, {2, 2}}, Case{{0, -1}, {0, 6}}, Case{{3, -1}, {3, 6}},
          Case{{5, 2}, {2, 5}}, Case{{4, 100}, {4, 6}}, Case{{50, 100}, {6, 6}}}) {
        box.SetSelection(one.sent.start, one.sent.end);
        EXPECT_EQ(Selected(), one.expected) << one.sent;
    }
    box.SetSelection(1, 4);
    box.SetSelection(-1, 0);
    EXPECT_EQ(Selected().start, Selected().end);
    EXPECT_EQ(recorder_.Take(), Lines{});
}

TEST_P(TextBoxContract, ATextBoxKeepsItsProperties) {
    host::TextBox& box = Box(u"");
    box.SetForeColor(Rgb(9, 8, 7));
    box.SetLocked(true);
    box.SetMaxLength(77);
    box.SetPointer(host::MousePointer::Custom);
    box.Move({.left = 150, .top = 300, .width = 600, .height = 450});
    EXPECT_EQ(box.ForeColor(), Rgb(9, 8, 7));
    EXPECT_TRUE(box.Locked());
    EXPECT_EQ(box.MaxLength(), 77);
    EXPECT_EQ(box.Pointer(), host::MousePointer::Custom);
    EXPECT_NEAR(box.Place().left, 150, Pixel());
    EXPECT_NEAR(box.Place().height, 450, Pixel());
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { box.SetMaxLength(-1); }));
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue,
                       [&] { box.SetPointer(static_cast<host::MousePointer>(16)); }));
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { box.Move({.width = -15}); }));
    EXPECT_TRUE(Raises(ErrorNumber::ObjectNotSet, [&] { box.SetCurrentFont(nullptr); }));
    EXPECT_EQ(box.MaxLength(), 77);
}

TEST_P(TextBoxContract, TheFontIsHeldByReference) {
    host::TextBox& box = Box(u"");
    const host::FontRef font = runtime_->NewFont(u"Arial", 11);
    box.SetCurrentFont(font);
    EXPECT_EQ(box.CurrentFont(), font);
}

TEST_P(TextBoxContract, AKeyNotifiesDownPressChangeAndUp) {
    host::TextBox& box = FocusedBox(u"");
    runtime_->Type(box, u"a\r");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 65", "press 97", "change", "up 65", "down 13",
                                       "press 13", "change", "up 13"}));
    EXPECT_EQ(box.GetText(), u"a\r\n");
    EXPECT_EQ(Selected(), (Selection{3, 3}));
}

TEST_P(TextBoxContract, AHandlerMayTakeAKeyAway) {
    host::TextBox& box = FocusedBox(u"");
    recorder_.takesKeyPress = true;
    runtime_->Type(box, u"a");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 65", "press 97", "up 65"}));
    recorder_.takesKeyPress = false;
    recorder_.takesKeyDown = true;
    runtime_->Type(box, u"a");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 65", "up 65"}));
    EXPECT_EQ(box.GetText(), u"");
}

TEST_P(TextBoxContract, ControlKeysNotifyAPressAndInsertNothing) {
    host::TextBox& box = FocusedBox(u"x");
    runtime_->Type(box, u"\x02");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 66", "press 2", "up 66"}));
    EXPECT_EQ(box.GetText(), u"x");
}

TEST_P(TextBoxContract, BackspaceDeletesALineBreakAsOneCharacter) {
    host::TextBox& box = FocusedBox(u"a\r\nb");
    runtime_->Select(box, 3, 0);
    runtime_->Type(box, u"\b");
    EXPECT_EQ(box.GetText(), u"ab");
    EXPECT_EQ(Selected(), (Selection{1, 1}));
    runtime_->Select(box, 0, 2);
    runtime_->Type(box, u"\b");
    EXPECT_EQ(box.GetText(), u"");
}

TEST_P(TextBoxContract, ACaretInsideALineBreakReadsBack) {
    host::TextBox& box = Box(u"ab\r\ncd");
    box.SetSelStart(3);
    EXPECT_EQ(box.SelStart(), 3);
    EXPECT_EQ(Selected(), (Selection{3, 3}));
    box.SetSelection(3, 5);
    EXPECT_EQ(Selected(), (Selection{3, 5}));
}

TEST_P(TextBoxContract, TheUserEditsBeforeALineBreakThatHoldsTheCaret) {
    host::TextBox& box = FocusedBox(u"ab\r\ncd");
    box.SetSelStart(3);
    runtime_->Type(box, u"x");
    EXPECT_EQ(box.GetText(), u"abx\r\ncd");
    EXPECT_EQ(Selected(), (Selection{3, 3}));
    box.SetSelStart(4);
    runtime_->Type(box, u"\b");
    EXPECT_EQ(box.GetText(), u"ab\r\ncd");
    EXPECT_EQ(Selected(), (Selection{2, 2}));
    box.SetSelStart(3);
    runtime_->Paste(box, u"1\r\n2");
    EXPECT_EQ(box.GetText(), u"ab1\r\n2\r\ncd");
    EXPECT_EQ(Selected(), (Selection{6, 6}));
    box.SetSelection(7, 9);
    runtime_->Type(box, u"x");
    EXPECT_EQ(box.GetText(), u"ab1\r\n2xd") << "a line break is replaced as a whole";
}

constexpr std::int16_t endKey = 35;
constexpr std::int16_t homeKey = 36;
constexpr std::int16_t leftKey = 37;
constexpr std::int16_t rightKey = 39;
constexpr std::int16_t deleteKey = 46;

TEST_P(TextBoxContract, KeysMoveACaretFromBeforeTheLineBreakThatHoldsIt) {
    struct Case {
        std::int16_t key;
        std::int32_t expected;
    };
    host::TextBox& box = FocusedBox(u"ab\r\ncd");
    for (const Case& one :
         {Case{leftKey, 2}, Case{rightKey, 4}, Case{homeKey, 0}, Case{endKey, 2}}) {
        box.SetSelStart(3);
        runtime_->Press(box, one.key);
        EXPECT_EQ(Selected(), (Selection{one.expected, one.expected})) << one.key;
    }
    for (const Case& one :
         {Case{leftKey, 2}, Case{rightKey, 5}, Case{homeKey, 4}, Case{endKey, 6}}) {
        box.SetSelStart(4);
        runtime_->Press(box, one.key);
        EXPECT_EQ(box.SelStart(), one.expected) << one.key;
    }
}

TEST_P(TextBoxContract, DeleteAtTheEndOfALineJoinsTheNext) {
    host::TextBox& box = FocusedBox(u"ab\r\ncd\r\n");
    for (const std::int32_t caret : {2, 3}) {
        box.SetText(u"ab\r\ncd\r\n");
        box.SetSelStart(caret);
        recorder_.lines.clear();
        runtime_->Press(box, deleteKey);
        EXPECT_EQ(box.GetText(), u"abcd\r\n") << caret;
        EXPECT_EQ(Selected(), (Selection{2, 2})) << caret;
        EXPECT_EQ(recorder_.Take(), (Lines{"down 46", "change", "up 46"}));
    }
    box.SetSelStart(5);
    runtime_->Press(box, deleteKey);
    EXPECT_EQ(box.GetText(), u"abcd");
    EXPECT_EQ(Selected(), (Selection{4, 4})) << "the caret was in the deleted line break";
    recorder_.lines.clear();
    runtime_->Press(box, deleteKey);
    EXPECT_EQ(recorder_.Take(), (Lines{"down 46", "up 46"})) << "nothing follows";
    box.SetSelection(1, 3);
    runtime_->Press(box, deleteKey);
    EXPECT_EQ(box.GetText(), u"ad");
    EXPECT_EQ(Selected(), (Selection{1, 1}));
}

TEST_P(TextBoxContract, TypingReplacesTheSelection) {
    host::TextBox& box = FocusedBox(u"abcd");
    runtime_->Select(box, 1, 2);
    runtime_->Type(box, u"X");
    EXPECT_EQ(box.GetText(), u"aXd");
}

TEST_P(TextBoxContract, EnterDoesNothingInASingleLine) {
    host::TextBox& box = FocusedBox(u"", false);
    runtime_->Type(box, u"a\rb");
    EXPECT_EQ(box.GetText(), u"ab");
}

TEST_P(TextBoxContract, PasteIsOneChange) {
    host::TextBox& box = FocusedBox(u"ab");
    runtime_->Select(box, 1, 1);
    runtime_->Paste(box, u"1\r\n2");
    EXPECT_EQ(box.GetText(), u"a1\r\n2");
    EXPECT_EQ(std::count(recorder_.lines.begin(), recorder_.lines.end(), "change"), 1);
}

TEST_P(TextBoxContract, TheUserCannotExceedTheMaxLength) {
    host::TextBox& box = FocusedBox(u"");
    box.SetMaxLength(4);
    runtime_->Type(box, u"abcdef");
    EXPECT_EQ(box.GetText(), u"abcd");
    runtime_->Select(box, 0, 4);
    runtime_->Paste(box, u"uvwxyz");
    EXPECT_EQ(box.GetText(), u"uvwx");
}

TEST_P(TextBoxContract, TheUserCannotEditALockedBox) {
    host::TextBox& box = FocusedBox(u"abc");
    box.SetLocked(true);
    runtime_->Type(box, u"x");
    runtime_->Paste(box, u"y");
    EXPECT_EQ(box.GetText(), u"abc");
    box.SetText(u"by code");
    EXPECT_EQ(box.GetText(), u"by code");
}

TEST_P(TextBoxContract, TheUserCannotUseADisabledOrHiddenBox) {
    host::TextBox& box = Box(u"abc");
    recorder_.lines.clear();
    box.SetEnabled(false);
    runtime_->Type(box, u"x");
    box.SetEnabled(true);
    box.SetVisible(false);
    runtime_->Type(box, u"y");
    EXPECT_EQ(box.GetText(), u"abc");
    EXPECT_EQ(recorder_.Take(), Lines{});
}

// Two boxes of one control array with the same place, of which the first is shown.
class TwinBoxesContract : public ContractTest {
 protected:
    std::unique_ptr<host::TextBox> NewBox(std::int16_t index, host::TextBoxEvents& receiver) {
        return Parts().AddTextBox({{.name = u"Text1",
                                    .index = index,
                                    .placement = {.width = 1500, .height = 900},
                                    .visible = index == 0},
                                   true,
                                   host::ScrollBars::None,
                                   u"abcd"},
                                  receiver);
    }
    void Swap(TextView text) {
        second_->SetText(text);
        second_->SetVisible(true);
        first_->SetVisible(false);
    }

    Recorder firstEvents_;
    Recorder secondEvents_;
    std::unique_ptr<host::TextBox> first_ = NewBox(0, firstEvents_);
    std::unique_ptr<host::TextBox> second_ = NewBox(1, secondEvents_);
};
INSTANTIATE_TEST_SUITE_P(Runtime, TwinBoxesContract, ::testing::Values(RuntimeUnderTest()),
                         ::testing::PrintToStringParamName());

TEST_P(TwinBoxesContract, AHiddenBoxPassesFocusCaretAndSelectionOn) {
    runtime_->Focus(*first_);
    first_->SetSelection(1, 3);
    Swap(u"other");
    EXPECT_TRUE(runtime_->HasFocus(*second_));
    EXPECT_EQ(second_->SelStart(), 1);
    EXPECT_EQ(second_->SelLength(), 2);
    EXPECT_EQ(firstEvents_.Take(), (Lines{"got", "lost"}));
    EXPECT_EQ(secondEvents_.Take(), (Lines{"change", "got"}));
    runtime_->Type(*second_, u"x");
    EXPECT_EQ(second_->GetText(), u"oxer");
}

TEST_P(TwinBoxesContract, ACaretBeyondTheOtherTextIsAtItsEnd) {
    first_->SetSelStart(4);
    Swap(u"ab");
    EXPECT_EQ(second_->SelStart(), 2);
    EXPECT_FALSE(runtime_->HasFocus(*second_)) << "no box had it";
}

TEST_P(TwinBoxesContract, ACaretThatCodeHasJustPlacedStays) {
    runtime_->Focus(*first_);
    first_->SetSelStart(4);
    secondEvents_.onChange = [this] { second_->SetSelStart(1); };
    Swap(u"abcde");
    EXPECT_TRUE(runtime_->HasFocus(*second_));
    EXPECT_EQ(second_->SelStart(), 1);
    secondEvents_.onChange = nullptr;
    first_->SetText(u"abcde");
    first_->SetVisible(true);
    second_->SetSelStart(3);
    second_->SetVisible(false);
    EXPECT_EQ(first_->SelStart(), 3);
    first_->SetSelStart(2);
    Swap(u"abcde");
    EXPECT_EQ(second_->SelStart(), 2) << "code placed the other caret earlier";
}

TEST_P(TextBoxContract, ABoxThatIsDisabledAndEnabledHasTheFocusAgain) {
    host::TextBox& box = FocusedBox(u"abcd");
    box.SetSelStart(2);
    box.SetEnabled(false);
    runtime_->Type(box, u"x");
    box.SetEnabled(true);
    EXPECT_TRUE(runtime_->HasFocus(box));
    runtime_->Type(box, u"y");
    EXPECT_EQ(box.GetText(), u"abycd");
}

TEST_P(TextBoxContract, GettingAndLosingTheFocusIsNotifiedOnce) {
    host::TextBox& box = Box(u"");
    host::TextBoxEvents otherEvents;
    const auto other = Parts().AddTextBox(
        {{.name = u"Other", .placement = {.top = 900, .width = 600, .height = 300}}}, otherEvents);
    runtime_->Focus(*other);
    recorder_.lines.clear();
    runtime_->Focus(box);
    runtime_->Focus(box);
    runtime_->Focus(*other);
    EXPECT_EQ(recorder_.Take(), (Lines{"got", "lost"}));
}

}  // namespace
}  // namespace lumenkit::contract
