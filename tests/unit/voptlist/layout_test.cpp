// The option buttons: loading, copying of properties, placing, showing and hiding.
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/numbers.h"
#include "runtime/memory/property_bag.h"
#include "tests/support/placed_option_list.h"
#include "tests/support/rows.h"

namespace lumenkit::testing {

namespace {

using host::Placement;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Mode = PlacedOptionList::Mode;

// Members that one of the procedures calls, and the others do not.
constexpr TextView setupControls = u"OptionButton.Tag";
constexpr TextView copyProperties = u"OptionButton.Alignment";
constexpr TextView moveControls = u"Screen.TwipsPerPixelX";

class Layout : public ::testing::Test {
 protected:
    std::vector<Placement> Places() {
        std::vector<Placement> places;
        for (const memory::OptionButton* button : placed->Buttons()) {
            places.push_back(button->Where());
        }
        return places;
    }

    // The control is 3000 wide, so the buttons are 3000 - 2 * 15 wide.
    std::unique_ptr<PlacedOptionList> placed = PlacedOptionList::New(Mode::Design);
    VOptList* list = &placed->List();
};

TEST_F(Layout, TheFrameFillsTheControl) {
    EXPECT_EQ(placed->Frame().Where(), (Placement{0, 0, 3000, 1500}));
    placed->Placed().Resize(700, 800);
    EXPECT_EQ(placed->Frame().Where(), (Placement{0, 0, 700, 800}));
}

TEST_F(Layout, RowsAreOneSpacingApartAndHigh) {
    list->pLetContents(u"a|b|c");
    EXPECT_THAT(Places(), ElementsAre(Placement{0, 0, 2970, 240}, Placement{0, 240, 2970, 240},
                                      Placement{0, 480, 2970, 240}));
}

TEST_F(Layout, MarginsAndSpacingPlaceTheRows) {
    list->pLetContents(u"a|b|c");
    list->pLetLeftMargin(120);
    list->pLetTopMargin(200);
    list->pLetSpacing(300.5F);
    EXPECT_THAT(Places(),
                ElementsAre(Placement{120, 200, 2850, 300.5F}, Placement{120, 500.5F, 2850, 300.5F},
                            Placement{120, 801, 2850, 300.5F}));
}

TEST_F(Layout, NegativeMarginsAreTakenAsTheyAre) {
    list->pLetLeftMargin(-100);
    list->pLetTopMargin(-50);
    EXPECT_THAT(Places(), ElementsAre(Placement{-100, -50, 3070, 240}));
}

TEST_F(Layout, ResizingTheControlWidensTheButtons) {
    list->pLetContents(u"a|b");
    placed->Placed().Resize(1000, 300);
    EXPECT_THAT(Places(), ElementsAre(Placement{0, 0, 970, 240}, Placement{0, 240, 970, 240}));
}

TEST_F(Layout, ButtonsAreNotPlacedInAFrameTooNarrow) {
    list->pLetContents(u"a|b");
    const std::vector<Placement> before = Places();
    placed->Placed().Resize(50, 300);  // 50 - 30 = 20
    EXPECT_EQ(Places(), before);
    list->pLetSpacing(500);
    EXPECT_EQ(Places(), before);
    placed->Placed().Resize(51, 300);
    EXPECT_THAT(Places(), ElementsAre(Placement{0, 0, 21, 500}, Placement{0, 500, 21, 500}));
}

TEST_F(Layout, TheMarginNarrowsTheButtonsToo) {
    list->pLetLeftMargin(2950);  // 3000 - 30 - 2950 = 20
    EXPECT_THAT(Places(), ElementsAre(Placement{0, 0, 2970, 240}));
    list->pLetLeftMargin(2949.5F);
    EXPECT_THAT(Places(), ElementsAre(Placement{2949.5F, 0, 20.5F, 240}));
}

TEST_F(Layout, RowsBeyondTheFrameArePlacedBelowIt) {
    list->pLetContents(u"1|2|3|4|5|6|7|8|9");
    EXPECT_EQ(placed->Button(8).Where(), (Placement{0, 1920, 2970, 240}));
    EXPECT_TRUE(placed->Button(8).IsVisible());
    EXPECT_EQ(placed->Frame().Where(), (Placement{0, 0, 3000, 1500}));
}

TEST_F(Layout, SurplusButtonsAreHiddenWithTheirOldCaptionAndValue) {
    list->pLetContents(u"1;A|2;B|3;C|4;D|5;E");
    list->pLetContents(u"6;F|7;G");
    EXPECT_THAT(placed->Items(), ElementsAre("6;F", "7;G", "(3;C)", "(4;D)", "(5;E)"));
}

TEST_F(Layout, ReturningItemsLoadNothingAndKeepTheirPlaces) {
    list->pLetContents(u"1|2|3|4|5");
    const std::vector<Placement> before = Places();
    list->pLetContents(u"a|b");
    EXPECT_FALSE(placed->Uses(u"OptionButtons.Load", [&] { list->pLetContents(u"w|x|y;Y|z"); }));
    EXPECT_THAT(placed->Items(), ElementsAre("w;w", "x;x", "y;Y", "z;z", "(5;5)"));
    EXPECT_EQ(Places(), before);
}

TEST_F(Layout, ContentsThatAddNothingMoveNothing) {
    list->pLetContents(u"1|2|3");
    placed->Placed().Resize(40, 300);  // too narrow: the rows keep their places
    list->pLetSpacing(500);
    const std::vector<Placement> before = Places();
    placed->Frame().Move({.width = 1000, .height = 300});
    list->pLetContents(u"a|b");
    list->pLetContents(u"a|b|c");
    EXPECT_EQ(Places(), before);
    list->pLetContents(u"a|b|c|d");
    EXPECT_THAT(Places(), ElementsAre(Placement{0, 0, 970, 500}, Placement{0, 500, 970, 500},
                                      Placement{0, 1000, 970, 500}, Placement{0, 1500, 970, 500}));
}

TEST_F(Layout, HiddenButtonsAreNotMoved) {
    list->pLetContents(u"1|2|3");
    list->pLetContents(u"1");
    list->pLetSpacing(100);
    EXPECT_THAT(Places(), ElementsAre(Placement{0, 0, 2970, 100}, Placement{0, 240, 2970, 240},
                                      Placement{0, 480, 2970, 240}));
}

TEST_F(Layout, NewButtonsLookLikeTheFirst) {
    list->pLetItemAlignment(1);
    list->pLetItemFontName(u"Arial");
    list->pLetItemForeColor(Rgb(1, 2, 3));
    list->pLetContents(u"1|2|3");
    for (memory::OptionButton* button : placed->Buttons()) {
        EXPECT_EQ(button->Alignment(), 1);
        EXPECT_EQ(button->CurrentFont(), placed->Button(0).CurrentFont()) << "by reference";
        EXPECT_EQ(button->CurrentFont()->Name(), u"Arial");
        EXPECT_EQ(button->ForeColor(), Rgb(1, 2, 3));
    }
}

TEST_F(Layout, ItemAppearanceReachesHiddenButtonsToo) {
    list->pLetContents(u"1|2|3");
    list->pLetContents(u"1");
    list->pLetItemFontName(u"Arial");
    list->pLetItemFontSize(12);
    list->pLetItemFontBold(true);
    list->pLetItemFontItalic(true);
    list->pLetItemAlignment(1);
    list->pLetItemForeColor(Rgb(9, 8, 7));
    ASSERT_THAT(placed->Buttons(), SizeIs(3));
    for (memory::OptionButton* button : placed->Buttons()) {
        EXPECT_EQ(button->CurrentFont()->Name(), u"Arial");
        EXPECT_EQ(button->CurrentFont()->Size(), 12);
        EXPECT_TRUE(button->CurrentFont()->Bold());
        EXPECT_TRUE(button->CurrentFont()->Italic());
        EXPECT_EQ(button->Alignment(), 1);
        EXPECT_EQ(button->ForeColor(), Rgb(9, 8, 7));
    }
}

struct Caller {
    const char* name;
    std::function<void(PlacedOptionList&)> call;
    bool setsUp;
    bool copies;
    bool moves;
};

void PrintTo(const Caller& caller, std::ostream* out) {
    *out << caller.name;
}

class WhoCallsWhat : public ::testing::TestWithParam<Caller> {
 protected:
    // Uses two items at design time, so that each procedure has something to do.
    bool Calls(TextView procedure) {
        const auto placed = PlacedOptionList::New(Mode::Design);
        placed->List().pLetContents(u"1|2");
        return placed->Uses(procedure, [&] { GetParam().call(*placed); });
    }
};

TEST_P(WhoCallsWhat, IsAsDocumented) {
    EXPECT_EQ(Calls(setupControls), GetParam().setsUp);
    EXPECT_EQ(Calls(copyProperties), GetParam().copies);
    EXPECT_EQ(Calls(moveControls), GetParam().moves);
}

void ReadDefaults(PlacedOptionList& placed) {
    memory::PropertyBag empty;
    placed->UserControl_ReadProperties(empty);
}

INSTANTIATE_TEST_SUITE_P(
    Callers, WhoCallsWhat,
    ::testing::Values(
        Caller{"MoreContents", [](auto& p) { p->pLetContents(u"1|2|3"); }, true, true, true},
        Caller{"AsMuchContents", [](auto& p) { p->pLetContents(u"a|b"); }, true, false, false},
        Caller{"LessContents", [](auto& p) { p->pLetContents(u"a"); }, true, false, false},
        Caller{"ReadProperties", ReadDefaults, true, true, true},
        Caller{"InitProperties", [](auto& p) { p->UserControl_InitProperties(); }, false, false,
               true},
        Caller{"Resize", [](auto& p) { p->UserControl_Resize(); }, false, false, true},
        Caller{"LeftMargin", [](auto& p) { p->pLetLeftMargin(5); }, false, false, true},
        Caller{"TopMargin", [](auto& p) { p->pLetTopMargin(5); }, false, false, true},
        Caller{"Spacing", [](auto& p) { p->pLetSpacing(5); }, false, false, true},
        Caller{"ItemAlignment", [](auto& p) { p->pLetItemAlignment(1); }, false, true, false},
        Caller{"ItemFontBold", [](auto& p) { p->pLetItemFontBold(true); }, false, true, false},
        Caller{"ItemFontItalic", [](auto& p) { p->pLetItemFontItalic(true); }, false, true, false},
        Caller{"ItemFontName", [](auto& p) { p->pLetItemFontName(u"x"); }, false, true, false},
        Caller{"ItemFontSize", [](auto& p) { p->pLetItemFontSize(9); }, false, true, false},
        Caller{"ItemForeColor", [](auto& p) { p->pLetItemForeColor({}); }, false, true, false},
        Caller{"ItemCaption", [](auto& p) { p->pLetItemCaption(0, u"x"); }, false, false, false},
        Caller{"Caption", [](auto& p) { p->pLetCaption(u"x"); }, false, false, false},
        Caller{"ListIndex", [](auto& p) { p->pLetListIndex(1); }, false, false, false},
        Caller{"Refresh", [](auto& p) { p->Refresh(); }, false, false, false}),
    testing::RowName());

// The cost of assigning contents: only different properties are set.
class Reassigning : public ::testing::Test {
 protected:
    Reassigning() {
        for (int item = 0; item < 1000; ++item) {
            contents.push_back(Decimal(item) + u";Item " + Decimal(item));
        }
        list->pLetContents(Joined());
        list->pLetListIndex(500);
        before = placed->Items();
        placed->TakeLog();
    }

    Text Joined() const {
        Text joined;
        for (const Text& item : contents) {
            joined.append(joined.empty() ? u"" : u"|").append(item);
        }
        return joined;
    }

    /// Whether assigning the contents calls `member` exactly `count` times.
    bool Puts(TextView member, std::int64_t count) {
        const bool reachesCount = count == 0 || Reaches(member, count);
        return reachesCount && !Reaches(member, count + 1);
    }

    // Uses another list, because an injected fault may leave it half assigned.
    bool Reaches(TextView member, std::int64_t count) {
        const auto other = PlacedOptionList::New(Mode::Design);
        other->List().pLetContents(list->pGetContents());
        other->Faults().FailCall(member, count, ErrorNumber::InternalError);
        other->List().pLetContents(Joined());
        return !other->Faults().IsArmed();
    }

    std::unique_ptr<PlacedOptionList> placed = PlacedOptionList::New(Mode::Design);
    VOptList* list = &placed->List();
    std::vector<Text> contents;
    std::vector<std::string> before;
};

TEST_F(Reassigning, TheSameContentsPutNothing) {
    for (const TextView put : {u"OptionButton.SetCaption", u"OptionButton.SetTag",
                               u"OptionButton.SetVisible", u"OptionButton.Move"}) {
        EXPECT_TRUE(Puts(put, 0));
    }
    list->pLetContents(Joined());
    EXPECT_EQ(placed->Items(), before);
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Contents"));
}

TEST_F(Reassigning, OneChangedItemIsPutAlone) {
    contents[700] = u"x;X";
    EXPECT_TRUE(Puts(u"OptionButton.SetCaption", 1));
    EXPECT_TRUE(Puts(u"OptionButton.SetTag", 1));
    EXPECT_TRUE(Puts(u"OptionButton.SetVisible", 0));
    EXPECT_TRUE(Puts(u"OptionButton.Move", 0));
    list->pLetContents(Joined());
    before[700] = "x;X";
    EXPECT_EQ(placed->Items(), before);
}

TEST_F(Reassigning, OneMoreItemIsLoadedAlone) {
    contents.emplace_back(u"x;X");
    EXPECT_TRUE(Puts(u"OptionButtons.Load", 1));
    EXPECT_TRUE(Puts(u"OptionButton.SetCaption", 1));
    EXPECT_TRUE(Puts(u"OptionButton.SetTag", 1));
    EXPECT_TRUE(Puts(u"OptionButton.SetVisible", 1));
    EXPECT_TRUE(Puts(u"OptionButton.SetCurrentFont", 1));
    EXPECT_TRUE(Puts(u"OptionButton.Move", 1));
}

TEST_F(Reassigning, OneItemLessIsHiddenAlone) {
    contents.pop_back();
    EXPECT_TRUE(Puts(u"OptionButton.SetVisible", 1));
    EXPECT_TRUE(Puts(u"OptionButton.SetCaption", 0));
}

TEST_F(Reassigning, AnItemCaptionIsPutBack) {
    list->pLetItemCaption(3, u"B");
    EXPECT_EQ(placed->Button(3).Caption(), u"B");
    list->pLetContents(Joined());
    EXPECT_EQ(placed->Items(), before);
}

class ManyItems : public Layout {
 protected:
    static Text Contents(int count) {
        Text contents;
        for (int item = 0; item < count; ++item) {
            contents += u"|" + Decimal(item);
        }
        return contents.substr(1);
    }

    /// Returns the number of contract calls when so many items are assigned to a new list.
    static std::int64_t Calls(int count) {
        const auto placed = PlacedOptionList::New(Mode::Design);
        const std::int64_t before = placed->Faults().Calls();
        placed->List().pLetContents(Contents(count));
        return placed->Faults().Calls() - before;
    }
};

TEST_F(ManyItems, FiveThousandWork) {
    list->pLetContents(Contents(5000));
    EXPECT_THAT(placed->Buttons(), SizeIs(5000));
    EXPECT_EQ(placed->Button(4999).Where(), (Placement{0, 4999 * 240, 2970, 240}));
    list->pLetListIndex(4999);
    EXPECT_EQ(list->pGetText(), u"4999");
    EXPECT_EQ(placed->TakeLog().back(), "event Click");
}

TEST_F(ManyItems, TakeCallsInProportion) {
    const std::int64_t oneMore = Calls(3) - Calls(2);
    EXPECT_GT(oneMore, 0);
    EXPECT_EQ(Calls(101) - Calls(100), oneMore);
    EXPECT_EQ(Calls(1001) - Calls(1000), oneMore);
}

TEST_F(ManyItems, AsManyAsThereCanBe) {
    list->pLetContents(Text(32766, u'|'));
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Contents"));
    EXPECT_THAT(placed->Buttons(), SizeIs(32766));
    list->pLetListIndex(32765);
    EXPECT_EQ(list->pGetListIndex(), 32765);
}

// Contents at the largest countable position, and one unit beyond it.
class TooLong : public Layout {
 protected:
    static Text Long(std::size_t units) { return u"1;One|2;Two|3;Three|" + Text(units - 20, u'x'); }

    TooLong() {
        list->pLetContents(u"a|b");
        list->pLetListIndex(1);
        placed->TakeLog();
    }
};

TEST_F(TooLong, TheLongestContentsWork) {
    list->pLetContents(Long(32766));
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Contents"));
    EXPECT_THAT(placed->Buttons(), SizeIs(4));
}

TEST_F(TooLong, OverflowIsReportedWithTheItemsBeforeItSetUp) {
    list->pLetContents(Long(32767));
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Contents", "error 6 in SetupControls"));
    EXPECT_THAT(placed->Items(), ElementsAre("1;One", "2;Two *", "3;Three"));
    EXPECT_EQ(list->pGetContents(), Long(32767));
}

TEST_F(TooLong, TheControlStaysUsable) {
    list->pLetContents(Long(32767));
    placed->TakeLog();
    EXPECT_EQ(list->pGetText(), u"2");
    list->pLetListIndex(0);
    EXPECT_EQ(list->pGetText(), u"1");
    list->pLetListIndex(2);
    EXPECT_EQ(list->pGetListIndex(), -1) << "there are still two items";
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed ListIndex", "changed Text", "event Click",
                                               "changed ListIndex", "changed Text"));
}

TEST_F(TooLong, FewerItemsAfterwardsHideWhatWasLeftOver) {
    list->pLetContents(Long(32767));
    list->pLetContents(u"x|y");
    EXPECT_THAT(placed->Items(), ElementsAre("x;x", "y;y *", "(3;Three)"));
}

TEST_F(TooLong, MoreItemsAfterwardsUseWhatWasLeftOver) {
    list->pLetItemFontBold(true);
    list->pLetContents(Long(32767));
    placed->TakeLog();
    list->pLetContents(u"w|x|y|z");
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Contents"));
    EXPECT_THAT(placed->Items(), ElementsAre("w;w", "x;x *", "y;y", "z;z"));
    EXPECT_EQ(placed->Button(2).Where(), (Placement{0, 480, 2970, 240}));
    EXPECT_EQ(placed->Button(2).CurrentFont(), placed->Button(0).CurrentFont());
    EXPECT_EQ(placed->Button(3).Where(), (Placement{0, 720, 2970, 240}));
}

TEST_F(TooLong, AgainAndAgain) {
    for (int time = 0; time < 3; ++time) {
        list->pLetContents(Long(32767));
        EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Contents", "error 6 in SetupControls"));
    }
    EXPECT_THAT(placed->Buttons(), SizeIs(3));
}

TEST_F(TooLong, WithAllTheButtonsThereCanBe) {
    list->pLetContents(Text(32767, u'|'));
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Contents", "error 6 in SetupControls"));
    EXPECT_THAT(placed->Buttons(), SizeIs(32767));
    list->pLetContents(u"x|y|z");
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Contents"));
    const std::vector<std::string> items = placed->Items();
    EXPECT_THAT(std::vector(items.begin(), items.begin() + 4),
                ElementsAre("x;x", "y;y *", "z;z", "(;)"));
    EXPECT_EQ(std::count(items.begin(), items.end(), "(;)"), 32764);
}

TEST_F(TooLong, AlsoWhenRead) {
    memory::PropertyBag bag;
    bag.Store(u"Contents", Long(32767));
    bag.Store(u"ListIndex", std::int16_t{0});
    const auto saved = PlacedOptionList::Saved(Mode::Run, bag);
    EXPECT_THAT(saved->TakeLog(), ElementsAre("error 6 in SetupControls"));
    EXPECT_EQ(saved->List().pGetListIndex(), 0);
    saved->List().pLetListIndex(-1);
    saved->List().pLetListIndex(0);
    EXPECT_THAT(saved->TakeLog(), ElementsAre("changed ListIndex", "changed Text",
                                              "changed ListIndex", "changed Text", "event Click"));
}

TEST_F(Layout, ANegativeSpacingIsReportedByMoveControls) {
    list->pLetSpacing(-1);
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Spacing", "error 380 in MoveControls"));
    EXPECT_EQ(list->pGetSpacing(), -1);
}

TEST_F(Layout, AnOverflowOfTheRowsIsReportedByMoveControls) {
    list->pLetTopMargin(3e38F);
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed TopMargin"));
    list->pLetSpacing(3e38F);
    EXPECT_THAT(placed->TakeLog(), ElementsAre("changed Spacing", "error 6 in MoveControls"));
    EXPECT_EQ(placed->Button(0).Where(), (Placement{0, 3e38F, 2970, 3e38F}));
}

}  // namespace

}  // namespace lumenkit::testing
