#include "runtime/memory/hosted_control.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "runtime/memory/option_button.h"
#include "runtime/memory/text_box.h"
#include "runtime/memory/user.h"
#include "tests/unit/memory/sample_control.h"

namespace lumenkit::memory {
namespace {

using testing::SampleControl;

const std::vector<std::string>& CallsOf(HostedControl& control) {
    return static_cast<SampleControl&>(control.GetControl()).calls;
}

class MemoryPlacedControl : public ::testing::Test {
 protected:
    Form form_{testing::SampleClasses()};
};

TEST_F(MemoryPlacedControl, ANewControlStartsInOrder) {
    const auto control = PlaceControl(form_, u"Sample");
    EXPECT_EQ(CallsOf(*control),
              (std::vector<std::string>{"Initialize", "InitProperties", "Resize", "Show"}));
    EXPECT_EQ(control->Name(), u"Sample1");
    EXPECT_EQ(control->Drawing().Width(), 3000);
    EXPECT_EQ(control->Drawing().Height(), 1500);
    EXPECT_TRUE(control->GetAmbient().UserMode());
    EXPECT_TRUE(form_.GetLog().Entries().empty());
    EXPECT_EQ(PlaceControl(form_, u"SAMPLE.sample")->Name(), u"Sample2");
}

TEST_F(MemoryPlacedControl, ASavedControlReadsItsBag) {
    PropertyBag bag;
    bag.Store(u"Caption", Text(u"stored"));
    const auto control = PlaceControl(form_, u"Sample",
                                      {.name = u"mine", .userMode = false, .visible = false}, &bag);
    EXPECT_EQ(CallsOf(*control),
              (std::vector<std::string>{"Initialize", "ReadProperties", "Resize"}));
    EXPECT_EQ(control->Name(), u"mine");
    EXPECT_FALSE(control->IsShown());
    EXPECT_FALSE(control->GetAmbient().UserMode());
    EXPECT_EQ(control->Automation().Get(u"Caption"), Value(Text(u"stored")));
}

TEST_F(MemoryPlacedControl, SavesWhatIsNoDefault) {
    const auto control = PlaceControl(form_, u"Sample");
    EXPECT_TRUE(control->Save().Entries().empty());
    control->Automation().Let(u"Caption", Text(u"other"));
    form_.AmbientFont().SetSize(20);
    const PropertyBag bag = control->Save();
    ASSERT_EQ(bag.Entries().size(), 2U);
    EXPECT_EQ(bag.Entries()[0], (PropertyBag::Entry{u"Caption", Text(u"other")}));
    EXPECT_EQ(bag.Entries()[1].first, u"Font");
}

TEST_F(MemoryPlacedControl, PaintsOnRequest) {
    const auto control = PlaceControl(form_, u"Sample");
    EXPECT_EQ(control->Drawing().Drawn().Size(), 0U);
    const std::vector<DisplayItem> expected = {
        ClsItem{},
        BoxItem{.x1 = 15, .y1 = 15, .x2 = 30, .y2 = 45, .color = Color::ButtonText},
        PrintItem{.text = u"Sample",
                  .x = 100,
                  .y = 200,
                  .size = 10,
                  .color = Color::ButtonText,
                  .fontName = u"MS Sans Serif"},
    };
    EXPECT_EQ(control->Paint().Items(), expected);
    EXPECT_EQ(control->Paint().Items(), expected);
    control->SetShown(false);
    control->Paint();
    EXPECT_EQ(CallsOf(*control).size(), 4U + 2U);
}

TEST_F(MemoryPlacedControl, ResizesItsConstituents) {
    const auto control = PlaceControl(form_, u"Sample", {.width = 600, .height = 450});
    auto& box = control->Parts().Get<TextBox>(u"text1");
    EXPECT_EQ(box.Where().width, 600);
    control->Resize(900, 450);
    EXPECT_EQ(box.Where().width, 900);
    EXPECT_EQ(box.Where().height, 450);
}

TEST_F(MemoryPlacedControl, FindsConstituentsByName) {
    const auto control = PlaceControl(form_, u"Sample");
    const Constituents& parts = control->Parts();
    EXPECT_EQ(parts.Find(u"OPTION1(1)")->FullName(), u"Option1(1)");
    EXPECT_EQ(&parts.Get<OptionButton>(u"Option1", 1), parts.Find(u"Option1(1)"));
    EXPECT_EQ(parts.VisibleTextBox(), parts.Find(u"Text1"));
    EXPECT_EQ(parts.Find(u"Option1"), nullptr);
    EXPECT_EQ(parts.Find(u"Option1(2)"), nullptr);
    EXPECT_THROW(parts.Get<TextBox>(u"Text2"), std::out_of_range);
    EXPECT_THROW(parts.Get<TextBox>(u"Frame1"), std::out_of_range) << "of another kind";
    std::vector<Text> names;
    for (const Element* element : parts.All()) {
        names.push_back(element->FullName());
    }
    EXPECT_EQ(names, (std::vector<Text>{u"Text1", u"Frame1", u"Option1(0)", u"Option1(1)"}));
}

TEST_F(MemoryPlacedControl, LogsMessagesAndBeeps) {
    const auto control = PlaceControl(form_, u"Sample");
    control->Automation().Call(u"Ask");
    ASSERT_EQ(form_.GetLog().Entries().size(), 2U);
    EXPECT_TRUE(std::holds_alternative<HeardBeep>(form_.GetLog().Entries()[0]));
    EXPECT_EQ(std::get<ShownMessage>(form_.GetLog().Entries()[1]),
              (ShownMessage{.text = u"Sure?", .title = std::nullopt}));
}

TEST_F(MemoryPlacedControl, AnEventHandlerMayCallTheControlAgain) {
    const auto control = PlaceControl(form_, u"Sample");
    control->Site().SetEventHandler([&](TextView name, std::span<Value>) {
        if (name == u"Change") {
            control->Automation().Let(u"Caption", Text(u"from the event"));
        }
    });
    User user(form_);
    EXPECT_TRUE(user.Type(control->Parts().Get<TextBox>(u"Text1"), u"x"));
    EXPECT_EQ(control->Automation().Get(u"Caption"), Value(Text(u"from the event")));
    ASSERT_EQ(form_.GetLog().Changes().size(), 1U);
    EXPECT_EQ(form_.GetLog().Changes()[0]->name, u"Caption");
}

TEST_F(MemoryPlacedControl, RefusesMisuse) {
    EXPECT_THROW(PlaceControl(form_, u"Nothing"), std::out_of_range);
    const ClassDescriptor page = {.name = u"Page", .kind = ClassKind::PropertyPage};
    EXPECT_THROW(HostedControl(form_, page), std::logic_error);
}

}  // namespace
}  // namespace lumenkit::memory
