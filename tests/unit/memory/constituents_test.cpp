#include "runtime/memory/constituents.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "runtime/memory/check_box.h"
#include "runtime/memory/command_button.h"
#include "runtime/memory/form.h"
#include "runtime/memory/frame_box.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/label.h"
#include "runtime/memory/option_buttons.h"
#include "runtime/memory/picture_box.h"
#include "runtime/memory/scroll_bar.h"
#include "runtime/memory/text_box.h"
#include "tests/unit/memory/expect_error.h"
#include "tests/unit/memory/sample_control.h"

namespace lumenkit::memory {
namespace {

using testing::Raises;

class MemoryConstituents : public ::testing::Test {
 protected:
    std::vector<TextView> Names(const PropertyList& list) {
        std::vector<TextView> names;
        for (const auto& [name, value] : list) {
            names.push_back(name);
        }
        return names;
    }

    Form form_{testing::SampleClasses()};
    Constituents parts_{form_, nullptr, true, EmbedControl};
    host::TextBoxEvents textEvents_;
    host::ClickEvents clickEvents_;
    host::ScrollBarEvents scrollEvents_;
    host::OptionButtonEvents optionEvents_;
};

TEST_F(MemoryConstituents, ALabelFitsItsCaption) {
    const auto label = parts_.AddLabel(
        {{.name = u"L", .placement = {.width = 500, .height = 400}, .fontSize = 10}, u"abc"});
    label->SetCaption(u"abcd");
    EXPECT_EQ(label->Place().width, 500);
    label->SetAutoSize(true);
    EXPECT_EQ(label->Place().width, 400);
    EXPECT_EQ(label->Place().height, 240);
    label->SetCaption(u"a\r\nb");
    EXPECT_EQ(label->Place().width, 400) << "every unit counts";
    label->SetCaption(u"");
    EXPECT_EQ(label->Place().width, 0);
    label->Move({.width = 70, .height = 80});
    EXPECT_EQ(label->Place().height, 80);
    label->SetCurrentFont(form_.NewFont(u"Courier", 20));
    EXPECT_EQ(label->Place().height, 480);
}

TEST_F(MemoryConstituents, APictureBoxHasATwoPixelBorder) {
    const auto box =
        parts_.AddPictureBox({.name = u"P", .placement = {.width = 600, .height = 50}});
    EXPECT_EQ(box->ScaleWidth(), 540);
    EXPECT_EQ(box->ScaleHeight(), 0);
}

TEST_F(MemoryConstituents, EachKindStartsAsDocumented) {
    const auto frame = parts_.AddFrame({{.name = u"F"}, u"Caption"});
    EXPECT_EQ(frame->BorderStyle(), 1);
    const auto bar =
        parts_.AddScrollBar({.name = u"S"}, host::Orientation::Vertical, scrollEvents_);
    EXPECT_EQ(bar->ScrollValue(), 0);
    EXPECT_EQ(bar->Max(), 32767);
    EXPECT_EQ(bar->LargeChange(), 1);
    EXPECT_EQ(bar->SmallChange(), 1);
    const auto box = parts_.AddTextBox({{.name = u"T"}}, textEvents_);
    EXPECT_EQ(box->ForeColor(), Color::WindowText);
    EXPECT_EQ(box->CurrentFont()->Name(), u"MS Sans Serif");
    EXPECT_EQ(box->CurrentFont()->Size(), 8.25F);
}

TEST_F(MemoryConstituents, WindowHandlesAreTheirOwn) {
    const auto first = parts_.AddTextBox({{.name = u"A"}}, textEvents_);
    const auto second = parts_.AddTextBox({{.name = u"B"}}, textEvents_);
    EXPECT_NE(first->WindowHandle(), 0);
    EXPECT_NE(first->WindowHandle(), second->WindowHandle());
}

TEST_F(MemoryConstituents, TellTheirState) {
    const auto box =
        parts_.AddTextBox({{.name = u"Text1",
                            .index = 2,
                            .placement = {.left = 1, .top = 2, .width = 3, .height = 4}},
                           true,
                           host::ScrollBars::Both,
                           u"abc"},
                          textEvents_);
    box->SetSelStart(1);
    box->SetSelLength(2);
    box->SetLocked(true);
    box->SetMaxLength(9);
    const PropertyList list = parts_.Find(u"text1(2)")->Properties();
    const PropertyList expected = {{u"Left", 1.0F},
                                   {u"Top", 2.0F},
                                   {u"Width", 3.0F},
                                   {u"Height", 4.0F},
                                   {u"Visible", true},
                                   {u"Enabled", true},
                                   {u"Font", ObjectRef(box->CurrentFont())},
                                   {u"ForeColor", FromColor(Color::WindowText)},
                                   {u"Text", Text(u"abc")},
                                   {u"SelStart", std::int32_t{1}},
                                   {u"SelLength", std::int32_t{2}},
                                   {u"MaxLength", std::int32_t{9}},
                                   {u"Locked", true},
                                   {u"MultiLine", true},
                                   {u"ScrollBars", std::int32_t{3}},
                                   {u"MousePointer", std::int32_t{0}}};
    EXPECT_EQ(list, expected);
}

TEST_F(MemoryConstituents, TellTheStateOfEachKind) {
    const auto frame = parts_.AddFrame({{.name = u"Frame"}});
    const auto label = parts_.AddLabel({{.name = u"Label"}});
    const auto check = parts_.AddCheckBox({{.name = u"Check"}}, clickEvents_);
    const auto button = parts_.AddCommandButton({{.name = u"Button"}}, clickEvents_);
    const auto bar =
        parts_.AddScrollBar({.name = u"Bar"}, host::Orientation::Horizontal, scrollEvents_);
    const auto options = parts_.AddOptionButtons({{.name = u"Option"}}, *frame, optionEvents_);
    const std::int64_t calls = form_.Faults().Calls();

    const auto ownNames = [&](TextView name) {
        std::vector<TextView> names = Names(parts_.Find(name)->Properties());
        names.erase(names.begin(), names.begin() + 6);
        return names;
    };
    using List = std::vector<TextView>;
    EXPECT_EQ(ownNames(u"Frame"), (List{u"Font", u"Caption", u"BorderStyle"}));
    EXPECT_EQ(ownNames(u"Label"),
              (List{u"Font", u"Caption", u"AutoSize", u"ForeColor", u"BackColor"}));
    EXPECT_EQ(ownNames(u"Check"), (List{u"Font", u"Caption", u"Value"}));
    EXPECT_EQ(ownNames(u"Button"), (List{u"Font", u"Caption"}));
    EXPECT_EQ(ownNames(u"Bar"), (List{u"Value", u"Min", u"Max", u"LargeChange", u"SmallChange"}));
    EXPECT_EQ(ownNames(u"Option(0)"),
              (List{u"Font", u"Caption", u"Tag", u"Value", u"Alignment", u"ForeColor"}));
    EXPECT_EQ(form_.Faults().Calls(), calls) << "looking is no call of the contract";
}

TEST_F(MemoryConstituents, GoWithTheirOwner) {
    auto label = parts_.AddLabel({{.name = u"L"}});
    EXPECT_NE(parts_.Find(u"L"), nullptr);
    label.reset();
    EXPECT_EQ(parts_.Find(u"L"), nullptr);
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue,
                       [&] { parts_.AddLabel({{.name = u"L", .fontSize = 0}}); }));
    EXPECT_TRUE(parts_.All().empty());
}

TEST_F(MemoryConstituents, TheFirstVisibleTextBoxIsFound) {
    EXPECT_EQ(parts_.VisibleTextBox(), nullptr);
    const auto label = parts_.AddLabel({{.name = u"L"}});
    const auto hidden = parts_.AddTextBox({{.name = u"A", .visible = false}}, textEvents_);
    const auto shown = parts_.AddTextBox({{.name = u"B"}}, textEvents_);
    EXPECT_EQ(parts_.VisibleTextBox(), parts_.Find(u"B"));
}

TEST_F(MemoryConstituents, FailByKindAndMember) {
    const auto box = parts_.AddTextBox({{.name = u"T"}}, textEvents_);
    const auto label = parts_.AddLabel({{.name = u"L"}});
    form_.Faults().FailCall(u"Label.Move", 1, ErrorNumber::OutOfMemory);
    box->Move({.width = 1});
    EXPECT_TRUE(Raises(ErrorNumber::OutOfMemory, [&] { label->Move({.width = 5}); }));
    EXPECT_EQ(label->Place().width, 0);
}

TEST_F(MemoryConstituents, TakeNoParentOfAnotherRuntime) {
    class Stranger final : public host::PictureBox {
     public:
        host::Placement Place() const override { return {}; }
        void Move(const host::Placement&) override {}
        bool Visible() const override { return true; }
        void SetVisible(bool) override {}
        bool Enabled() const override { return true; }
        void SetEnabled(bool) override {}
        void Refresh() override {}
        float ScaleWidth() const override { return 0; }
        float ScaleHeight() const override { return 0; }
    } stranger;
    EXPECT_THROW(parts_.AddLabel({{.name = u"L", .parent = &stranger}}), std::logic_error);
}

}  // namespace
}  // namespace lumenkit::memory
