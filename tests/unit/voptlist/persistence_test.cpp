// Saving to a property bag and loading from one.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "runtime/memory/property_bag.h"
#include "tests/support/placed_option_list.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using Mode = PlacedOptionList::Mode;

std::string Describe(const Value& value) {
    if (std::holds_alternative<ObjectRef>(value)) {
        const host::FontRef font = host::ToFont(value);
        return ToUtf8(font->Name()) + " " + ToUtf8(ToText(Value(font->Size())));
    }
    return ToUtf8(ToText(value));
}

// Records the calls, with the defaults and their types, and stores nothing.
class NotingBag final : public host::PropertyBag {
 public:
    Value ReadProperty(TextView name, const Value& defaultValue) override {
        lines.push_back(ToUtf8(name) + ": " + Describe(defaultValue));
        types.push_back(defaultValue.index());
        return defaultValue;
    }
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override {
        lines.push_back(ToUtf8(name) + ": " + Describe(value) + ", by default " +
                        Describe(defaultValue));
        EXPECT_EQ(value.index(), defaultValue.index()) << ToUtf8(name);
        types.push_back(defaultValue.index());
    }

    std::vector<std::string> lines;
    std::vector<std::size_t> types;
};

std::vector<std::size_t> DocumentedTypes() {
    const std::vector<Value> examples = {
        true,   ObjectRef(), std::int16_t{}, Text(), Text(),         std::int16_t{}, true, true,
        Text(), 0.0F,        std::int32_t{}, 0.0F,   std::int16_t{}, 0.0F,           0.0F};
    std::vector<std::size_t> types;
    for (const Value& example : examples) {
        types.push_back(example.index());
    }
    return types;
}

// Returns a list in which no property has its default.
std::unique_ptr<PlacedOptionList> Changed() {
    auto placed = PlacedOptionList::New(Mode::Design);
    VOptList& list = placed->List();
    list.pLetEnabled(false);
    list.pSetFont(placed->Form().NewFont(u"Courier", 12));
    list.pLetBorderStyle(0);
    list.pLetCaption(u"Choices");
    list.pLetContents(u"a;A|b;B|c;C");
    list.pLetItemAlignment(1);
    list.pLetItemFontBold(true);
    list.pLetItemFontItalic(true);
    list.pLetItemFontName(u"Arial");
    list.pLetItemFontSize(9.75F);
    list.pLetItemForeColor(Rgb(1, 2, 0));
    list.pLetLeftMargin(100);
    list.pLetListIndex(2);
    list.pLetSpacing(300);
    list.pLetTopMargin(50.5F);
    placed->TakeLog();
    return placed;
}

TEST(Persistence, ReadsInOrderWithTheDocumentedDefaults) {
    NotingBag bag;
    const auto placed = PlacedOptionList::Saved(Mode::Run, bag);
    EXPECT_THAT(bag.lines, ElementsAre("Enabled: True", "Font: MS Sans Serif 10", "BorderStyle: 1",
                                       "Caption: Frame1", "Contents: 0;Item 0", "ItemAlignment: 0",
                                       "ItemFontBold: False", "ItemFontItalic: False",
                                       "ItemFontName: MS Sans Serif", "ItemFontSize: 8.25",
                                       "ItemForeColor: -2147483630", "LeftMargin: 0",
                                       "ListIndex: -1", "Spacing: 240", "TopMargin: 0"));
    EXPECT_THAT(bag.types, ElementsAreArray(DocumentedTypes()));
    EXPECT_THAT(placed->TakeLog(), IsEmpty());
}

TEST(Persistence, WritesInOrderWithTheSameDefaults) {
    const auto placed = Changed();
    NotingBag bag;
    placed->Placed().Save(bag);
    EXPECT_THAT(
        bag.lines,
        ElementsAre(
            "Enabled: False, by default True", "Font: Courier 12, by default MS Sans Serif 10",
            "BorderStyle: 0, by default 1", "Caption: Choices, by default Frame1",
            "Contents: a;A|b;B|c;C, by default 0;Item 0", "ItemAlignment: 1, by default 0",
            "ItemFontBold: True, by default False", "ItemFontItalic: True, by default False",
            "ItemFontName: Arial, by default MS Sans Serif", "ItemFontSize: 9.75, by default 8.25",
            "ItemForeColor: 513, by default -2147483630", "LeftMargin: 100, by default 0",
            "ListIndex: 2, by default -1", "Spacing: 300, by default 240",
            "TopMargin: 50.5, by default 0"));
    EXPECT_THAT(bag.types, ElementsAreArray(DocumentedTypes()));
    EXPECT_THAT(placed->TakeLog(), IsEmpty());
}

TEST(Persistence, WritesAtRunTimeToo) {
    const auto placed = Changed();
    placed->SetMode(Mode::Run);
    EXPECT_EQ(placed->Placed().Save().Entries().size(), 15U);
    EXPECT_THAT(placed->TakeLog(), IsEmpty()) << "the refusal of the distances does not apply";
}

TEST(Persistence, AnEmptyBagGivesTheDefaults) {
    memory::PropertyBag empty;
    const auto placed = PlacedOptionList::Saved(Mode::Design, empty);
    VOptList& list = placed->List();
    EXPECT_TRUE(list.pGetEnabled());
    EXPECT_EQ(list.pGetFont()->Size(), 10) << "the container's font";
    EXPECT_EQ(list.pGetBorderStyle(), 1);
    EXPECT_EQ(list.pGetCaption(), u"Frame1") << "a newly placed one has \"Caption\"";
    EXPECT_EQ(list.pGetContents(), u"0;Item 0");
    EXPECT_EQ(list.pGetItemFontSize(), 8.25F);
    EXPECT_EQ(list.pGetItemForeColor(), Color::ButtonText);
    EXPECT_EQ(list.pGetSpacing(), 240);
    EXPECT_EQ(list.pGetListIndex(), -1);
    EXPECT_THAT(placed->Items(), ElementsAre("0;Item 0"));
    EXPECT_THAT(placed->TakeLog(), IsEmpty());
}

TEST(Persistence, DefaultsAreNotStored) {
    memory::PropertyBag empty;
    const auto placed = PlacedOptionList::Saved(Mode::Design, empty);
    EXPECT_THAT(placed->Placed().Save().Entries(), IsEmpty());
}

TEST(Persistence, OfANewControlOnlyCaptionAndFontAreStored) {
    const memory::PropertyBag bag = PlacedOptionList::New(Mode::Design)->Placed().Save();
    ASSERT_EQ(bag.Entries().size(), 2U);
    EXPECT_EQ(bag.Entries()[0].first, u"Font") << "8.25 points, not the container's 10";
    EXPECT_EQ(bag.Entries()[1].first, u"Caption");
}

TEST(Persistence, EverythingComesBack) {
    const auto placed = Changed();
    memory::PropertyBag bag = placed->Placed().Save();
    const auto saved = PlacedOptionList::Saved(Mode::Design, bag);
    VOptList& list = saved->List();
    EXPECT_FALSE(list.pGetEnabled());
    EXPECT_EQ(list.pGetFont()->Name(), u"Courier");
    EXPECT_EQ(list.pGetFont()->Size(), 12);
    EXPECT_EQ(list.pGetBorderStyle(), 0);
    EXPECT_EQ(list.pGetCaption(), u"Choices");
    EXPECT_EQ(list.pGetContents(), u"a;A|b;B|c;C");
    EXPECT_EQ(list.pGetItemAlignment(), 1);
    EXPECT_TRUE(list.pGetItemFontBold());
    EXPECT_TRUE(list.pGetItemFontItalic());
    EXPECT_EQ(list.pGetItemFontName(), u"Arial");
    EXPECT_EQ(list.pGetItemFontSize(), 9.75F);
    EXPECT_EQ(list.pGetItemForeColor(), Rgb(1, 2, 0));
    EXPECT_EQ(list.pGetLeftMargin(), 100);
    EXPECT_EQ(list.pGetListIndex(), 2);
    EXPECT_EQ(list.pGetSpacing(), 300);
    EXPECT_EQ(list.pGetTopMargin(), 50.5F);
    EXPECT_THAT(saved->Items(), ElementsAre("a;A", "b;B", "c;C *"));
    for (std::size_t index = 0; index < 3; ++index) {
        memory::OptionButton& button = saved->Button(index);
        EXPECT_EQ(button.Alignment(), 1);
        EXPECT_EQ(button.CurrentFont()->Name(), u"Arial");
        EXPECT_EQ(button.ForeColor(), Rgb(1, 2, 0));
        EXPECT_EQ(button.Where(),
                  (host::Placement{100, 50.5F + 300 * static_cast<float>(index), 2870, 300}));
    }
    EXPECT_THAT(saved->TakeLog(), IsEmpty()) << "neither Click nor notifications";
}

TEST(Persistence, ReadsAtRunTimeWhatIsRefusedThere) {
    memory::PropertyBag bag = Changed()->Placed().Save();
    const auto saved = PlacedOptionList::Saved(Mode::Run, bag);
    EXPECT_THAT(saved->TakeLog(), IsEmpty());
    EXPECT_EQ(saved->Button(1).Where(), (host::Placement{100, 350.5F, 2870, 300}));
    EXPECT_EQ(saved->List().pGetItemFontName(), u"Arial");
}

TEST(Persistence, ClicksCountAfterReading) {
    memory::PropertyBag bag = Changed()->Placed().Save();
    bag.Store(u"Enabled", true);
    const auto saved = PlacedOptionList::Saved(Mode::Run, bag);
    EXPECT_TRUE(saved->Click(0));
    EXPECT_THAT(saved->TakeLog(), ElementsAre("changed ListIndex", "changed Text", "event Click"));
}

TEST(Persistence, ASavedIndexWithoutAnItemSelectsNothing) {
    memory::PropertyBag bag;
    bag.Store(u"Contents", Text(u"a|b"));
    bag.Store(u"ListIndex", std::int16_t{2});
    const auto saved = PlacedOptionList::Saved(Mode::Run, bag);
    EXPECT_EQ(saved->List().pGetListIndex(), -1);
    EXPECT_THAT(saved->TakeLog(), IsEmpty());
}

TEST(Persistence, StoredValuesOfOtherTypesConvert) {
    memory::PropertyBag bag;
    bag.Store(u"enabled", Text(u"0"));
    bag.Store(u"BORDERSTYLE", 0.4);
    bag.Store(u"Contents", std::int32_t{17});
    bag.Store(u"Spacing", Text(u" 120 "));
    bag.Store(u"ItemForeColor", 2147483653.0);
    const auto saved = PlacedOptionList::Saved(Mode::Design, bag);
    EXPECT_THAT(saved->TakeLog(), IsEmpty());
    EXPECT_FALSE(saved->List().pGetEnabled());
    EXPECT_EQ(saved->List().pGetBorderStyle(), 0);
    EXPECT_THAT(saved->Items(), ElementsAre("17;17"));
    EXPECT_EQ(saved->List().pGetSpacing(), 120);
    EXPECT_EQ(saved->List().pGetItemForeColor(), Color::WindowBackground);
}

TEST(Persistence, AValueThatDoesNotConvertIsReported) {
    const std::vector<std::pair<TextView, Value>> bad = {
        {u"Enabled", Text(u"perhaps")}, {u"Font", std::int16_t{1}},
        {u"BorderStyle", 40000.0},      {u"BorderStyle", std::int16_t{7}},
        {u"ItemAlignment", Text(u"x")}, {u"ItemFontSize", -1.0F},
        {u"LeftMargin", Text(u"wide")}, {u"ListIndex", std::int32_t{40000}},
        {u"Font", ObjectRef()},
    };
    for (const auto& [name, value] : bad) {
        memory::PropertyBag bag;
        bag.Store(name, value);
        const auto saved = PlacedOptionList::Saved(Mode::Run, bag);
        const std::vector<std::string> log = saved->TakeLog();
        ASSERT_EQ(log.size(), 1U) << ToUtf8(name);
        EXPECT_THAT(log[0], ::testing::EndsWith(" in UserControl_ReadProperties"));
        saved->List().pLetContents(u"a|b");
        saved->List().pLetListIndex(1);
        EXPECT_THAT(saved->TakeLog(), ElementsAre("changed Contents", "changed ListIndex",
                                                  "changed Text", "event Click"))
            << "usable all the same";
    }
}

// The report of an error that occurs while clicks are ignored can itself fail.
TEST(Persistence, ClicksCountAfterReadingHasFailed) {
    PlacedOptionList placed(Mode::Run);
    memory::PropertyBag bag;
    bag.Store(u"Contents", Text(40'000, u'x'));
    placed.Faults().FailCall(u"Interaction.MsgBox", 1, ErrorNumber::InternalError);
    placed.Placed().StartSaved(bag);
    EXPECT_THAT(placed.TakeLog(), ElementsAre("error 51 in UserControl_ReadProperties"));
    placed->pLetListIndex(0);
    EXPECT_THAT(placed.TakeLog(), ElementsAre("changed ListIndex", "changed Text", "event Click"));
}

}  // namespace

}  // namespace lumenkit::testing
