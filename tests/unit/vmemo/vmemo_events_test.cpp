// The events of the boxes, and the container's handlers for them.
#include <array>
#include <stdexcept>

#include <gmock/gmock.h>

#include "tests/support/placed_memo.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(VMemoEventsTest, ClicksOfAnyBoxAreForwarded) {
    PlacedMemo memo;
    memo.User().Click(memo.Box(0));
    memo->pLetScrollBars(host::ScrollBars::Both);
    memo.TakeLog();
    memo.User().Click(memo.Box(3));
    memo.User().DblClick(memo.Box(3));
    EXPECT_THAT(memo.TakeLog(), ElementsAre("event Click", "event DblClick"));
}

TEST(VMemoEventsTest, MouseEventsCarryWhatTheBoxSaid) {
    PlacedMemo memo;
    memo.User().Mouse(memo.Box(0), memory::MouseAction::Down, {1, 2, 30.5F, 40});
    const std::vector<const memory::RaisedEvent*> events = memo.Form().GetLog().Events();
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0]->name, u"MouseDown");
    EXPECT_THAT(events[0]->arguments, ElementsAre(Value(std::int16_t{1}), Value(std::int16_t{2}),
                                                  Value(30.5F), Value(40.0F)));
}

TEST(VMemoEventsTest, KeyEventsCarryCodeAndShift) {
    PlacedMemo memo;
    memo->pLetText(u"");
    memo.TakeLog();
    memo.Type(u"A");
    const std::vector<const memory::RaisedEvent*> events = memo.Form().GetLog().Events();
    ASSERT_EQ(events.size(), 4U);
    EXPECT_EQ(events[0]->name, u"KeyDown");
    EXPECT_THAT(events[0]->arguments, ElementsAre(Value(std::int16_t{65}), ::testing::_));
    EXPECT_EQ(events[1]->name, u"KeyPress");
    EXPECT_THAT(events[1]->arguments, ElementsAre(Value(std::int16_t{65})));
    EXPECT_EQ(events[2]->name, u"Change");
    EXPECT_THAT(events[2]->arguments, IsEmpty());
    EXPECT_EQ(events[3]->name, u"KeyUp");
}

// Makes the container replace the code of a key event.
void Replace(PlacedMemo& memo, TextView event, std::int16_t code) {
    memo.Placed().Site().SetEventHandler(
        [event = Text(event), code](TextView name, std::span<Value> arguments) {
            if (name == event) {
                arguments[0] = code;
            }
        });
}

TEST(VMemoEventsTest, TheContainerTypesAnotherCharacter) {
    PlacedMemo memo;
    memo->pLetText(u"");
    Replace(memo, u"KeyPress", u'X');
    memo.Type(u"ab");
    EXPECT_EQ(memo.Shown(), u"XX");
}

TEST(VMemoEventsTest, TheContainerTakesTheKeyAway) {
    PlacedMemo memo;
    memo->pLetText(u"");
    memo.TakeLog();
    Replace(memo, u"KeyPress", 0);
    memo.Type(u"a");
    EXPECT_EQ(memo.Shown(), u"");
    EXPECT_THAT(memo.TakeLog(), ElementsAre("event KeyDown", "event KeyPress", "event KeyUp"));
    Replace(memo, u"KeyDown", 0);
    memo.Type(u"a");
    EXPECT_EQ(memo.Shown(), u"");
    EXPECT_THAT(memo.TakeLog(), ElementsAre("event KeyDown", "event KeyUp"));
}

TEST(VMemoEventsTest, TheKeyIsKnownWhenKeyDownComesAndForgottenWhenKeyUpComes) {
    PlacedMemo memo;
    memo->pLetText(u"abc");
    memo.PutCaret(2);
    std::vector<std::int32_t> seen;
    memo.Placed().Site().SetEventHandler([&](TextView name, std::span<Value>) {
        if (name == u"KeyDown" || name == u"KeyUp") {
            seen.push_back(memo.Probe().KeyDownSelStart());
            seen.push_back(memo.Probe().LastKeyCode());
        }
    });
    memo.Type(u"A");
    EXPECT_THAT(seen, ElementsAre(2, 65, 2, 0));
}

TEST(VMemoEventsTest, ValidateIsNeverRaised) {
    PlacedMemo memo;
    memo.PutCaret(0);
    memo.User().LeaveFocus();
    EXPECT_THAT(memo.TakeLog(), IsEmpty());
}

TEST(VMemoEventsTest, AChangeOfAHiddenBoxIsNoChangeOfTheMemo) {
    PlacedMemo memo;
    memo.Box(2).SetText(u"by somebody else");
    EXPECT_THAT(memo.TakeLog(), IsEmpty());
    memo.Box(0).SetText(u"by somebody else");
    EXPECT_THAT(memo.TakeLog(), ElementsAre("event Change"));
}

TEST(VMemoEventsTest, AHiddenBoxIsHeldToTheLimitsByItself) {
    PlacedMemo memo;
    memo->pLetMaxCharsPerLine(3);
    memo->pLetText(u"abc");
    memo.Box(2).SetText(u"longer");
    EXPECT_EQ(memo.Box(2).Contents(), u"abc");
    EXPECT_EQ(memo.Box(0).Contents(), u"abc");
}

// Constituents of the memory runtime. Records the objects that receive the events of the boxes.
class OverheardConstituents final : public host::Constituents {
 public:
    explicit OverheardConstituents(host::Constituents& real) : real_(real) {}

    std::unique_ptr<host::TextBox> AddTextBox(const host::TextBoxDesign& design,
                                              host::TextBoxEvents& events) override {
        boxes.push_back(&events);
        return real_.AddTextBox(design, events);
    }
    std::unique_ptr<host::OptionButtons> AddOptionButtons(const host::OptionButtonDesign&,
                                                          host::Frame&,
                                                          host::OptionButtonEvents&) override {
        return nullptr;
    }
    std::unique_ptr<host::Frame> AddFrame(const host::CaptionDesign&) override { return nullptr; }
    std::unique_ptr<host::Label> AddLabel(const host::CaptionDesign&) override { return nullptr; }
    std::unique_ptr<host::CheckBox> AddCheckBox(const host::CaptionDesign&,
                                                host::ClickEvents&) override {
        return nullptr;
    }
    std::unique_ptr<host::CommandButton> AddCommandButton(const host::CaptionDesign&,
                                                          host::ClickEvents&) override {
        return nullptr;
    }
    std::unique_ptr<host::PictureBox> AddPictureBox(const host::Design&) override {
        return nullptr;
    }
    std::unique_ptr<host::ScrollBar> AddScrollBar(const host::Design&, host::Orientation,
                                                  host::ScrollBarEvents&) override {
        return nullptr;
    }
    std::unique_ptr<host::EmbeddedControl> AddControl(const host::Design&, TextView) override {
        return nullptr;
    }

    std::vector<host::TextBoxEvents*> boxes;

 private:
    host::Constituents& real_;
};

TEST(VMemoEventsTest, AllArgumentsPassByReferenceBothWays) {
    PlacedMemo placed;
    const ControlHost& real = placed.Placed().Host();
    memory::Constituents made(placed.Form(), nullptr, true, memory::EmbedControl);
    OverheardConstituents constituents(made);
    VMemo memo({.surface = real.surface,
                .container = real.container,
                .ambient = real.ambient,
                .extender = real.extender,
                .screen = real.screen,
                .application = real.application,
                .interaction = real.interaction,
                .constituents = constituents});
    ASSERT_EQ(constituents.boxes.size(), 4U);
    placed.Placed().Site().SetEventHandler([](TextView, std::span<Value> arguments) {
        for (Value& argument : arguments) {
            argument = ToDouble(argument) + 1;
        }
    });
    for (host::TextBoxEvents* box : constituents.boxes) {
        std::int16_t code = 10;
        std::int16_t shift = 20;
        box->KeyDown(code, shift);
        EXPECT_EQ(code, 11);
        EXPECT_EQ(shift, 21);
        box->KeyPress(code);
        EXPECT_EQ(code, 12);
        box->KeyUp(code, shift);
        EXPECT_EQ(code, 13);
        EXPECT_EQ(shift, 22);
        host::MouseArguments mouse{1, 2, 3.5F, 4.5F};
        box->MouseDown(mouse);
        box->MouseMove(mouse);
        box->MouseUp(mouse);
        EXPECT_EQ(mouse.button, 4);
        EXPECT_EQ(mouse.shift, 5);
        EXPECT_EQ(mouse.x, 6.5F);
        EXPECT_EQ(mouse.y, 7.5F);
    }
}

}  // namespace

}  // namespace lumenkit::testing
