// The selection as ListIndex, Text and Value, and its notifications to the container.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "runtime/memory/property_bag.h"
#include "tests/support/placed_option_list.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Mode = PlacedOptionList::Mode;

class Selection : public ::testing::Test {
 protected:
    Selection() {
        list->pLetContents(u"one;First|two;Second|three;Third");
        placed->TakeLog();
    }

    std::vector<std::string> Log() { return placed->TakeLog(); }

    std::unique_ptr<PlacedOptionList> placed = PlacedOptionList::New(Mode::Run);
    VOptList* list = &placed->List();
};

TEST_F(Selection, NothingIsSelectedAtFirst) {
    EXPECT_EQ(list->pGetListIndex(), -1);
    EXPECT_EQ(list->pGetText(), u"");
    EXPECT_EQ(list->pGetValue(), u"");
}

TEST_F(Selection, ListIndexSelectsAndItsClickNotifiesOnce) {
    list->pLetListIndex(1);
    EXPECT_THAT(placed->Items(), ElementsAre("one;First", "two;Second *", "three;Third"));
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "changed Text", "event Click"));
    EXPECT_EQ(list->pGetListIndex(), 1);
}

TEST_F(Selection, TextAndValueAreTheValueNeverTheCaption) {
    list->pLetListIndex(2);
    EXPECT_EQ(list->pGetText(), u"three");
    EXPECT_EQ(list->pGetValue(), u"three");
}

TEST_F(Selection, SelectingTheSelectedItemDoesNothing) {
    list->pLetListIndex(1);
    Log();
    list->pLetListIndex(1);
    list->pLetText(u"two");
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_EQ(list->pGetListIndex(), 1);
}

TEST_F(Selection, MovingTheSelectionClearsTheOldButton) {
    list->pLetListIndex(0);
    list->pLetListIndex(2);
    EXPECT_THAT(placed->Items(), ElementsAre("one;First", "two;Second", "three;Third *"));
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "changed Text", "event Click",
                                   "changed ListIndex", "changed Text", "event Click"));
}

TEST_F(Selection, MinusOneDeselectsAndNotifiesWithoutClick) {
    list->pLetListIndex(1);
    Log();
    list->pLetListIndex(-1);
    EXPECT_THAT(placed->Items(), ElementsAre("one;First", "two;Second", "three;Third"));
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "changed Text"));
}

TEST_F(Selection, IndexWithoutAnItemDeselects) {
    for (const std::int16_t index : std::initializer_list<std::int16_t>{3, 5, -2, 32767, -32768}) {
        list->pLetListIndex(1);
        Log();
        list->pLetListIndex(index);
        EXPECT_EQ(list->pGetListIndex(), -1) << index;
        EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "changed Text")) << index;
    }
}

TEST_F(Selection, DeselectingNothingDoesNothing) {
    list->pLetListIndex(-1);
    list->pLetListIndex(7);
    list->pLetText(u"unknown");
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Selection, TextSelectsByValueWithoutRegardToCase) {
    list->pLetText(u"TWO");
    EXPECT_EQ(list->pGetListIndex(), 1);
    EXPECT_EQ(list->pGetText(), u"two");
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "changed Text", "event Click"));
}

TEST_F(Selection, CaseIsDisregardedBeyondAscii) {
    list->pLetContents(
        u"\u00C4pfel|\u0396\u0395\u03A5\u03A3|\u041C\u0418\u0420|\u0141\u00F3d\u017A");
    list->pLetText(u"\u00E4PFEL");
    EXPECT_EQ(list->pGetListIndex(), 0);
    list->pLetText(u"\u03B6\u03B5\u03C5\u03C3");
    EXPECT_EQ(list->pGetListIndex(), 1);
    list->pLetText(u"\u043C\u0438\u0440");
    EXPECT_EQ(list->pGetListIndex(), 2);
    list->pLetText(u"\u0142\u00D3D\u0179");
    EXPECT_EQ(list->pGetListIndex(), 3);
    list->pLetText(u"apfel");
    EXPECT_EQ(list->pGetListIndex(), -1);
}

TEST_F(Selection, TextDoesNotMatchCaptionsNorPartsNorTrimmedValues) {
    for (const TextView text : {u"First", u"on", u"one ", u" one", u"onee"}) {
        list->pLetText(text);
        EXPECT_EQ(list->pGetListIndex(), -1);
    }
}

TEST_F(Selection, UnknownTextDeselectsAndNotifiesWithoutClick) {
    list->pLetListIndex(0);
    Log();
    list->pLetText(u"four");
    EXPECT_EQ(list->pGetListIndex(), -1);
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "changed Text"));
}

TEST_F(Selection, OfEqualValuesTextSelectsTheFirst) {
    list->pLetContents(u"a;1|b;2|B;3");
    list->pLetText(u"B");
    EXPECT_EQ(list->pGetListIndex(), 1);
}

TEST_F(Selection, TextOfAnEarlierEqualValueMovesTheSelectionThere) {
    list->pLetContents(u"a;1|b;2|b;3");
    list->pLetListIndex(2);
    list->pLetText(u"b");
    EXPECT_EQ(list->pGetListIndex(), 1);
}

TEST_F(Selection, EmptyTextSelectsAnItemOfEmptyValue) {
    list->pLetContents(u"a||b");
    list->pLetText(u"");
    EXPECT_EQ(list->pGetListIndex(), 1);
    EXPECT_EQ(list->pGetText(), u"");
    EXPECT_THAT(
        Log(), ElementsAre("changed Contents", "changed ListIndex", "changed Text", "event Click"));
}

TEST_F(Selection, TextOfTheOnlyItemOfEmptyContentsIsEmpty) {
    list->pLetContents(u"");
    EXPECT_THAT(placed->Items(), ElementsAre(";", "(two;Second)", "(three;Third)"));
    list->pLetListIndex(0);
    EXPECT_EQ(list->pGetListIndex(), 0);
    EXPECT_EQ(list->pGetText(), u"");
}

TEST_F(Selection, TextIsNotNotifiedWhereItMayNotChange) {
    placed->Placed().Site().AllowChange(u"Text", false);
    list->pLetListIndex(1);
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "event Click"));
    list->pLetText(u"unknown");
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex"));
    list->pLetListIndex(0);
    list->pLetListIndex(-1);
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "event Click", "changed ListIndex"));
    EXPECT_EQ(list->pGetListIndex(), -1);
}

TEST_F(Selection, TheUsersClickNotifiesLikeCode) {
    EXPECT_TRUE(placed->Click(2));
    EXPECT_EQ(list->pGetListIndex(), 2);
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "changed Text", "event Click"));
}

TEST_F(Selection, HiddenAndDisabledButtonsCannotBeClicked) {
    list->pLetContents(u"a");
    EXPECT_FALSE(placed->Click(1));
    list->pLetEnabled(false);
    EXPECT_FALSE(placed->Click(0));
    EXPECT_EQ(list->pGetListIndex(), -1);
}

TEST_F(Selection, CodeSelectsInADisabledFrameToo) {
    list->pLetEnabled(false);
    list->pLetListIndex(0);
    EXPECT_EQ(list->pGetText(), u"one");
}

TEST_F(Selection, TheEventSeesTheNewSelection) {
    Text seen;
    placed->Placed().Site().SetEventHandler(
        [&](TextView, std::span<Value>) { seen = list->pGetText(); });
    list->pLetListIndex(1);
    EXPECT_EQ(seen, u"two");
}

TEST_F(Selection, TheEventMayChangeTheSelectionAgain) {
    placed->Placed().Site().SetEventHandler([&](TextView, std::span<Value>) {
        if (list->pGetListIndex() == 1) {
            list->pLetListIndex(2);
        }
    });
    list->pLetListIndex(1);
    EXPECT_EQ(list->pGetListIndex(), 2);
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "changed Text", "event Click",
                                   "changed ListIndex", "changed Text", "event Click"));
}

TEST_F(Selection, ListIndexHasNoRuleOfDesignAndRunTime) {
    placed->SetMode(Mode::Design);
    list->pLetListIndex(1);
    EXPECT_EQ(list->pGetListIndex(), 1);
    EXPECT_EQ(list->pGetText(), u"two");
    EXPECT_THAT(Log(), ElementsAre("changed ListIndex", "changed Text", "event Click"));
}

TEST_F(Selection, TextIsRefusedAtDesignTime) {
    list->pLetListIndex(1);
    placed->SetMode(Mode::Design);
    Log();
    list->pLetText(u"x");
    EXPECT_THAT(Log(), ElementsAre("error 387 in pLetText"));
    list->pLetText(u"one");
    EXPECT_THAT(Log(), ElementsAre("error 387 in pLetText"));
    EXPECT_EQ(list->pGetListIndex(), 1);
}

TEST_F(Selection, SurvivesNewContents) {
    list->pLetListIndex(1);
    Log();
    list->pLetContents(u"x;X|y;Y");
    EXPECT_EQ(list->pGetListIndex(), 1);
    EXPECT_EQ(list->pGetText(), u"y");
    EXPECT_THAT(Log(), ElementsAre("changed Contents"));
}

TEST_F(Selection, IsOutOfSightWhileItsItemIsHidden) {
    list->pLetListIndex(2);
    Log();
    list->pLetContents(u"x|y");
    EXPECT_EQ(list->pGetListIndex(), -1);
    EXPECT_EQ(list->pGetText(), u"");
    EXPECT_THAT(placed->Items(), ElementsAre("x;x", "y;y", "(three;Third *)"));
    list->pLetListIndex(-1);
    EXPECT_THAT(Log(), ElementsAre("changed Contents")) << "there was nothing to deselect";
    list->pLetContents(u"x|y|z");
    EXPECT_EQ(list->pGetListIndex(), 2);
    EXPECT_EQ(list->pGetText(), u"z");
}

TEST_F(Selection, AHiddenSelectionGivesWayToAnother) {
    list->pLetListIndex(2);
    list->pLetContents(u"x|y");
    list->pLetListIndex(0);
    list->pLetContents(u"x|y|z");
    EXPECT_THAT(placed->Items(), ElementsAre("x;x *", "y;y", "z;z"));
}

TEST_F(Selection, TheButtonOfANewControlHasItsCaptionButNoValue) {
    const auto fresh = PlacedOptionList::New(Mode::Run);
    EXPECT_THAT(fresh->Items(), ElementsAre(";Item 0"));
    EXPECT_EQ(fresh->List().pGetContents(), u"0;Item 0");
    fresh->List().pLetListIndex(0);
    EXPECT_EQ(fresh->List().pGetListIndex(), 0);
    EXPECT_EQ(fresh->List().pGetText(), u"");
    fresh->List().pLetContents(fresh->List().pGetContents());
    EXPECT_EQ(fresh->List().pGetText(), u"0");
}

// Calls the control while its buttons are placed. While properties are read and clicks are ignored,
// no other outside code runs.
class CallingScreen final : public host::Screen {
 public:
    std::int16_t TwipsPerPixelX() const override {
        if (call) {
            call();
        }
        return 15;
    }
    std::int16_t TwipsPerPixelY() const override { return 15; }

    std::function<void()> call;
};

class WhileReading : public ::testing::Test {
 protected:
    WhileReading() {
        list.UserControl_Initialize();
        bag.Store(u"Contents", Text(u"one|two"));
        list.UserControl_ReadProperties(bag);
        list.pLetListIndex(1);
        placed.TakeLog();
    }

    /// Reads the same properties again, and calls `action` during the reading.
    std::vector<std::string> ReadAnd(std::function<void()> action) {
        screen.call = std::move(action);
        list.UserControl_ReadProperties(bag);
        return placed.TakeLog();
    }

    ControlHost HostWithScreen() {
        const ControlHost& host = placed.Placed().Host();
        return {.surface = host.surface,
                .container = host.container,
                .ambient = host.ambient,
                .extender = host.extender,
                .screen = screen,
                .application = host.application,
                .interaction = host.interaction,
                .constituents = host.constituents};
    }

    PlacedOptionList placed{Mode::Run};
    CallingScreen screen;
    VOptList list{HostWithScreen()};
    memory::PropertyBag bag;
};

TEST_F(WhileReading, AClickNeitherNotifiesNorRaisesClick) {
    EXPECT_THAT(ReadAnd([&] { list.pLetListIndex(0); }), IsEmpty());
    EXPECT_THAT(ReadAnd([&] { list.pLetText(u"two"); }), IsEmpty());
}

TEST_F(WhileReading, DeselectingByListIndexDoesNotNotify) {
    EXPECT_THAT(ReadAnd([&] { list.pLetListIndex(-1); }), IsEmpty());
    EXPECT_EQ(list.pGetListIndex(), -1);
}

TEST_F(WhileReading, DeselectingByTextNotifiesAllTheSame) {
    EXPECT_THAT(ReadAnd([&] { list.pLetText(u"unknown"); }),
                ElementsAre("changed ListIndex", "changed Text"));
}

TEST_F(WhileReading, RestoringNoSelectionDoesNotNotify) {
    EXPECT_THAT(ReadAnd({}), IsEmpty());
    EXPECT_EQ(list.pGetListIndex(), -1);
}

TEST_F(WhileReading, ClicksCountAgainAfterwards) {
    ReadAnd({});
    list.pLetListIndex(0);
    EXPECT_THAT(placed.TakeLog(), ElementsAre("changed ListIndex", "changed Text", "event Click"));
}

}  // namespace

}  // namespace lumenkit::testing
