#include "runtime/memory/user.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/memory/check_box.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/option_button.h"
#include "runtime/memory/scroll_bar.h"
#include "runtime/memory/text_box.h"
#include "tests/unit/memory/sample_control.h"

namespace lumenkit::memory {
namespace {

// Records the events of a text box, and changes keys as the test says.
class Recorder final : public host::TextBoxEvents {
 public:
    void Change() override { lines.emplace_back("change"); }
    void Click() override { lines.emplace_back("click"); }
    void DblClick() override { lines.emplace_back("dblclick"); }
    void GotFocus() override { lines.emplace_back("got"); }
    void LostFocus() override { lines.emplace_back("lost"); }
    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override {
        Note("down", keyCode, shift);
        keyCode = swallowDown ? std::int16_t{0} : keyCode;
    }
    void KeyPress(std::int16_t& keyAscii) override {
        lines.push_back("press " + std::to_string(keyAscii));
        keyAscii = replacement.value_or(keyAscii);
    }
    void KeyUp(std::int16_t& keyCode, std::int16_t& shift) override { Note("up", keyCode, shift); }
    void MouseDown(host::MouseArguments& mouse) override { Note("mousedown", mouse); }
    void MouseMove(host::MouseArguments& mouse) override { Note("mousemove", mouse); }
    void MouseUp(host::MouseArguments& mouse) override { Note("mouseup", mouse); }

    std::vector<std::string> Take() { return std::exchange(lines, {}); }

    bool swallowDown = false;
    std::optional<std::int16_t> replacement;
    std::vector<std::string> lines;

 private:
    void Note(const char* what, std::int16_t code, std::int16_t shift) {
        lines.push_back(std::string(what) + " " + std::to_string(code) + "," +
                        std::to_string(shift));
    }
    void Note(const char* what, const host::MouseArguments& mouse) {
        lines.push_back(std::string(what) + " " + std::to_string(mouse.button) + "," +
                        std::to_string(static_cast<int>(mouse.x)));
    }
};

using Lines = std::vector<std::string>;

class MemoryUser : public ::testing::Test {
 protected:
    MemoryUser() { recorder_.lines.clear(); }

    std::unique_ptr<TextBox> NewBox(bool multiLine, TextView text) {
        auto box = std::make_unique<TextBox>(
            elements_, host::TextBoxDesign{{.name = u"T"}, multiLine, host::ScrollBars::None, text},
            recorder_);
        user_.MoveFocusTo(*box);
        recorder_.lines.clear();
        return box;
    }

    Form form_{testing::SampleClasses()};
    Elements elements_{form_, nullptr, true};
    Recorder recorder_;
    User user_{form_};
};

TEST_F(MemoryUser, EachUnitIsAKeyFromDownToUp) {
    const auto box = NewBox(true, u"");
    EXPECT_TRUE(user_.Type(*box, u"aB\r\x02"));
    EXPECT_EQ(box->Contents(), u"aB\r\n");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 65,0", "press 97", "change", "up 65,0", "down 66,0",
                                       "press 66", "change", "up 66,0", "down 13,0", "press 13",
                                       "change", "up 13,0", "down 66,2", "press 2", "up 66,2"}));
}

TEST_F(MemoryUser, UnitsFromTheUpperHalfGoThrough) {
    const auto box = NewBox(false, u"");
    user_.Type(*box, u"\xD83D\xDE00");
    EXPECT_EQ(box->Contents(), u"\xD83D\xDE00");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 231,0", "press -10179", "change", "up 231,0",
                                       "down 231,0", "press -8704", "change", "up 231,0"}));
}

TEST_F(MemoryUser, ASwallowedKeyStillGoesUp) {
    const auto box = NewBox(false, u"");
    recorder_.swallowDown = true;
    user_.Type(*box, u"a");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 65,0", "up 65,0"}));
    recorder_.swallowDown = false;
    recorder_.replacement = std::int16_t{0};
    user_.Type(*box, u"a");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 65,0", "press 97", "up 65,0"}));
    EXPECT_EQ(box->Contents(), u"");
    recorder_.replacement = std::int16_t{u'X'};
    user_.Type(*box, u"a");
    EXPECT_EQ(box->Contents(), u"X");
}

TEST_F(MemoryUser, TypingReplacesTheSelection) {
    const auto box = NewBox(false, u"abcdef");
    EXPECT_TRUE(user_.Select(*box, 1, 3));
    EXPECT_EQ(recorder_.Take(), Lines{});
    user_.Type(*box, u"x");
    EXPECT_EQ(box->Contents(), u"axef");
    EXPECT_EQ(box->SelStart(), 2);
    EXPECT_EQ(box->SelLength(), 0);
}

TEST_F(MemoryUser, SelectsWhatThereIs) {
    const auto box = NewBox(false, u"abc");
    user_.Select(*box, 2, 10);
    EXPECT_EQ(box->SelStart(), 2);
    EXPECT_EQ(box->SelLength(), 1);
    user_.Select(*box, 9, 1);
    EXPECT_EQ(box->SelStart(), 3);
    EXPECT_EQ(box->SelLength(), 0);
}

TEST_F(MemoryUser, BackspaceDeletesOneCharacterOrTheSelection) {
    const auto box = NewBox(true, u"ab\r\n\xD83D\xDE00");
    user_.Select(*box, 6, 0);
    user_.Type(*box, u"\b");
    EXPECT_EQ(box->Contents(), u"ab\r\n");
    user_.Type(*box, u"\b");
    EXPECT_EQ(box->Contents(), u"ab");
    user_.Type(*box, u"\b");
    EXPECT_EQ(box->Contents(), u"a");
    user_.Select(*box, 0, 1);
    user_.Type(*box, u"\b");
    EXPECT_EQ(box->Contents(), u"");
    recorder_.Take();
    user_.Type(*box, u"\b");
    EXPECT_EQ(recorder_.Take(), (Lines{"down 8,0", "press 8", "up 8,0"}));
}

TEST_F(MemoryUser, EnterDoesNothingInASingleLine) {
    const auto box = NewBox(false, u"");
    user_.Type(*box,
               u"a\r\t\n\x7F"
               u"b");
    EXPECT_EQ(box->Contents(), u"ab");
}

TEST_F(MemoryUser, TypingKeepsToTheMaxLength) {
    const auto box = NewBox(true, u"");
    box->SetMaxLength(3);
    user_.Type(*box, u"ab\rcd");
    EXPECT_EQ(box->Contents(), u"abc") << "a line break takes two units";
    user_.Select(*box, 1, 1);
    user_.Type(*box, u"xy");
    EXPECT_EQ(box->Contents(), u"axc");
    box->SetMaxLength(2);
    user_.Type(*box, u"z");
    EXPECT_EQ(box->Contents(), u"axc");
    user_.Type(*box, u"\b");
    EXPECT_EQ(box->Contents(), u"ac");
}

TEST_F(MemoryUser, PasteIsOneChangeWithoutKeys) {
    const auto box = NewBox(true, u"ab");
    user_.Select(*box, 1, 0);
    EXPECT_TRUE(user_.Paste(*box, u"1\n2\r\n3"));
    EXPECT_EQ(box->Contents(), u"a1\n2\r\n3b");
    EXPECT_EQ(box->SelStart(), 7);
    EXPECT_EQ(recorder_.Take(), Lines{"change"});
    EXPECT_TRUE(user_.Paste(*box, u""));
    user_.Select(*box, 0, 1);
    EXPECT_TRUE(user_.Paste(*box, u"a"));
    EXPECT_EQ(recorder_.Take(), Lines{}) << "the text did not change";
    EXPECT_EQ(box->SelStart(), 1);
}

TEST_F(MemoryUser, ASingleLineTakesTheFirstLineOfAPaste) {
    const auto box = NewBox(false, u"");
    user_.Paste(*box, u"one\ntwo");
    user_.Paste(*box, u"\r\nthree");
    EXPECT_EQ(box->Contents(), u"one");
}

TEST_F(MemoryUser, APasteIsCutToTheMaxLengthBetweenCharacters) {
    const auto box = NewBox(true, u"ab");
    box->SetMaxLength(5);
    user_.Select(*box, 1, 1);
    user_.Paste(*box, u"123\xD83D\xDE00");
    EXPECT_EQ(box->Contents(), u"a123");
    user_.Paste(*box, u"\r\n");
    EXPECT_EQ(box->Contents(), u"a123");
    user_.Paste(*box, u"45");
    EXPECT_EQ(box->Contents(), u"a1234");
    user_.Paste(*box, u"6");
    EXPECT_EQ(box->Contents(), u"a1234");
}

TEST_F(MemoryUser, CannotUseWhatIsHiddenOrDisabled) {
    const auto box = NewBox(true, u"");
    box->SetEnabled(false);
    EXPECT_FALSE(user_.Type(*box, u"a"));
    EXPECT_FALSE(user_.Paste(*box, u"a"));
    EXPECT_FALSE(user_.Select(*box, 0, 0));
    EXPECT_FALSE(user_.Click(*box));
    EXPECT_FALSE(user_.DblClick(*box));
    EXPECT_FALSE(user_.Mouse(*box, MouseAction::Move, {}));
    EXPECT_FALSE(user_.MoveFocusTo(*box));
    box->SetEnabled(true);
    box->SetVisible(false);
    EXPECT_FALSE(user_.Type(*box, u"a"));
    EXPECT_EQ(recorder_.Take(), Lines{});
    EXPECT_EQ(box->Contents(), u"");
}

TEST_F(MemoryUser, ALockedBoxGetsKeysButNoEdits) {
    const auto box = NewBox(true, u"abc");
    box->SetLocked(true);
    user_.Select(*box, 0, 1);
    EXPECT_TRUE(user_.Type(*box, u"x\b\r"));
    EXPECT_FALSE(user_.Paste(*box, u"x"));
    EXPECT_EQ(box->Contents(), u"abc");
    EXPECT_EQ(recorder_.lines.size(), 9U);
}

TEST_F(MemoryUser, MouseAndClicksReachTheBox) {
    const auto box = NewBox(false, u"");
    EXPECT_TRUE(user_.Mouse(*box, MouseAction::Down, {.button = 1, .x = 5}));
    EXPECT_TRUE(user_.Mouse(*box, MouseAction::Move, {.button = 1, .x = 6}));
    EXPECT_TRUE(user_.Mouse(*box, MouseAction::Up, {.button = 2, .x = 7}));
    EXPECT_TRUE(user_.Click(*box));
    EXPECT_TRUE(user_.DblClick(*box));
    EXPECT_EQ(recorder_.Take(),
              (Lines{"mousedown 1,5", "mousemove 1,6", "mouseup 2,7", "click", "dblclick"}));
}

TEST_F(MemoryUser, ABoxGetsTheFocusBeforeItIsUsed) {
    const auto box = NewBox(false, u"");
    user_.LeaveFocus();
    recorder_.Take();
    user_.Type(*box, u"a");
    EXPECT_EQ(recorder_.Take(), (Lines{"got", "down 65,0", "press 97", "change", "up 65,0"}));
}

TEST_F(MemoryUser, ScrollsAsFarAsTheBarGoes) {
    class Counter final : public host::ScrollBarEvents {
     public:
        void Change() override { ++changes; }
        int changes = 0;
    } counter;
    ScrollBar bar(elements_, {.name = u"S"}, host::Orientation::Vertical, counter);
    bar.SetMax(100);
    EXPECT_TRUE(user_.Scroll(bar, 40));
    EXPECT_TRUE(user_.Scroll(bar, 40));
    EXPECT_TRUE(user_.Scroll(bar, 70000));
    EXPECT_EQ(bar.ScrollValue(), 100);
    EXPECT_TRUE(user_.Scroll(bar, -1));
    EXPECT_EQ(bar.ScrollValue(), 0);
    EXPECT_EQ(counter.changes, 3);
    bar.SetEnabled(false);
    EXPECT_FALSE(user_.Scroll(bar, 40));
    EXPECT_EQ(bar.ScrollValue(), 0);
}

TEST_F(MemoryUser, TogglesACheckBox) {
    host::ClickEvents events;
    CheckBox box(elements_, {{.name = u"C"}}, events);
    user_.Click(box);
    EXPECT_EQ(box.CheckState(), 1);
    user_.Click(box);
    EXPECT_EQ(box.CheckState(), 0);
    box.SetCheckState(2);
    user_.Click(box);
    EXPECT_EQ(box.CheckState(), 0);
}

class MemoryUserOnAControl : public ::testing::Test {
 protected:
    Form form_{testing::SampleClasses()};
    std::unique_ptr<HostedControl> control_ = PlaceControl(form_, u"Sample");
    testing::SampleControl& sample_ = static_cast<testing::SampleControl&>(control_->GetControl());
    User user_{form_};
};

TEST_F(MemoryUserOnAControl, ClicksAnOptionButton) {
    auto& button = control_->Parts().Get<OptionButton>(u"Option1", 1);
    EXPECT_TRUE(user_.Click(button));
    EXPECT_TRUE(user_.Click(button));
    EXPECT_TRUE(button.IsSelected());
    ASSERT_EQ(form_.GetLog().Events().size(), 1U);
    EXPECT_EQ(form_.GetLog().Events()[0]->arguments, std::vector<Value>{std::int16_t{1}});
}

TEST_F(MemoryUserOnAControl, ADisabledFrameKeepsItsButtonsFromTheUser) {
    auto& button = control_->Parts().Get<OptionButton>(u"Option1", 0);
    auto* frame = dynamic_cast<host::Frame*>(control_->Parts().Find(u"Frame1"));
    frame->SetEnabled(false);
    EXPECT_FALSE(user_.Click(button));
    frame->SetEnabled(true);
    frame->SetVisible(false);
    EXPECT_FALSE(user_.Click(button));
    frame->SetVisible(true);
    control_->Drawing().SetEnabled(false);
    EXPECT_FALSE(user_.Click(button));
    control_->Drawing().SetEnabled(true);
    control_->SetShown(false);
    EXPECT_FALSE(user_.Click(button));
    control_->SetShown(true);
    EXPECT_TRUE(user_.Click(button));
}

TEST_F(MemoryUserOnAControl, UsesTheSurface) {
    sample_.calls.clear();
    EXPECT_TRUE(user_.Click(*control_));
    EXPECT_TRUE(user_.DblClick(*control_));
    EXPECT_TRUE(user_.Mouse(*control_, MouseAction::Down, {}));
    EXPECT_TRUE(user_.Mouse(*control_, MouseAction::Move, {}));
    EXPECT_TRUE(user_.Mouse(*control_, MouseAction::Up, {.button = 2, .x = 1.5F}));
    EXPECT_EQ(sample_.calls,
              (std::vector<std::string>{"Click", "DblClick", "MouseDown", "MouseMove", "MouseUp"}));
    ASSERT_EQ(form_.GetLog().Events().size(), 1U);
    EXPECT_EQ(form_.GetLog().Events()[0]->arguments, (std::vector<Value>{std::int16_t{2}, 1.5F}));
    control_->Drawing().SetEnabled(false);
    EXPECT_FALSE(user_.Click(*control_));
    EXPECT_FALSE(user_.DblClick(*control_));
    EXPECT_FALSE(user_.Mouse(*control_, MouseAction::Down, {}));
}

TEST_F(MemoryUserOnAControl, AnEventMayTakeAKeyAway) {
    control_->Site().SetEventHandler([](TextView name, std::span<Value> arguments) {
        if (name == u"KeyPress" && arguments[0] == Value(std::int16_t{u'b'})) {
            arguments[0] = std::int16_t{0};
        }
    });
    auto& box = control_->Parts().Get<TextBox>(u"Text1");
    user_.Type(box, u"abc");
    EXPECT_EQ(box.Contents(), u"acstart");
}

TEST_F(MemoryUserOnAControl, TypingStopsWhenTheBoxGoesAway) {
    auto& box = control_->Parts().Get<TextBox>(u"Text1");
    control_->Site().SetEventHandler([&](TextView name, std::span<Value>) {
        if (name == u"Change") {
            box.SetVisible(false);
        }
    });
    EXPECT_FALSE(user_.Type(box, u"ab"));
    EXPECT_EQ(box.Contents(), u"astart");
}

}  // namespace
}  // namespace lumenkit::memory
