// The properties: where they are stored, whom they notify, and when they are refused.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/placed_option_list.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Mode = PlacedOptionList::Mode;

class Properties : public ::testing::Test {
 protected:
    std::vector<std::string> Log() { return placed->TakeLog(); }

    std::unique_ptr<PlacedOptionList> placed = PlacedOptionList::New(Mode::Design);
    VOptList* list = &placed->List();
};

TEST_F(Properties, OfANewControl) {
    EXPECT_TRUE(list->pGetEnabled());
    EXPECT_EQ(list->pGetFont()->Name(), u"MS Sans Serif");
    EXPECT_EQ(list->pGetBorderStyle(), 1);
    EXPECT_EQ(list->pGetCaption(), u"Caption");
    EXPECT_EQ(list->pGetContents(), u"0;Item 0");
    EXPECT_EQ(list->pGetItemAlignment(), 0);
    EXPECT_FALSE(list->pGetItemFontBold());
    EXPECT_FALSE(list->pGetItemFontItalic());
    EXPECT_EQ(list->pGetItemFontName(), u"MS Sans Serif");
    EXPECT_EQ(list->pGetItemFontSize(), 8.25F);
    EXPECT_EQ(list->pGetItemForeColor(), Color::ButtonText);
    EXPECT_EQ(list->pGetLeftMargin(), 0);
    EXPECT_EQ(list->pGetListIndex(), -1);
    EXPECT_EQ(list->pGetSpacing(), 240);
    EXPECT_EQ(list->pGetTopMargin(), 0);
    EXPECT_THAT(placed->Items(), ElementsAre(";Item 0"));
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Properties, FrameAppearanceLivesOnTheFrame) {
    list->pLetEnabled(false);
    list->pLetBorderStyle(0);
    list->pLetCaption(u"Choices");
    EXPECT_FALSE(placed->Frame().IsEnabled());
    EXPECT_EQ(placed->Frame().BorderStyle(), 0);
    EXPECT_EQ(placed->Frame().Caption(), u"Choices");
    EXPECT_THAT(Log(), ElementsAre("changed Enabled", "changed BorderStyle", "changed Caption"));
    placed->Frame().SetCaption(u"Other");
    EXPECT_EQ(list->pGetCaption(), u"Other");
    EXPECT_FALSE(list->pGetEnabled());
    EXPECT_EQ(list->pGetBorderStyle(), 0);
}

TEST_F(Properties, TheFrameTakesAFontByReference) {
    const auto font = placed->Form().NewFont(u"Arial", 12);
    list->pSetFont(font);
    EXPECT_THAT(Log(), ElementsAre("changed Font"));
    EXPECT_EQ(list->pGetFont(), font);
    EXPECT_EQ(placed->Frame().CurrentFont(), font);
    EXPECT_EQ(list->pGetItemFontName(), u"MS Sans Serif") << "the items have their own";
}

TEST_F(Properties, RefusedValuesAreReportedAndNotNotified) {
    list->pLetBorderStyle(2);
    list->pLetItemAlignment(2);
    list->pLetItemFontSize(0);
    list->pSetFont(nullptr);
    EXPECT_THAT(Log(), ElementsAre("error 380 in pLetBorderStyle", "error 380 in pLetItemAlignment",
                                   "error 380 in pLetItemFontSize", "error 91 in pSetFont"));
    EXPECT_EQ(list->pGetBorderStyle(), 1);
    EXPECT_EQ(list->pGetItemAlignment(), 0);
    EXPECT_EQ(list->pGetItemFontSize(), 8.25F);
}

TEST_F(Properties, RefreshRepaintsTheFrame) {
    list->Refresh();
    EXPECT_EQ(placed->Frame().RefreshCount(), 1);
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Properties, ItemAppearanceLivesOnTheFirstButton) {
    list->pLetItemAlignment(1);
    list->pLetItemFontBold(true);
    list->pLetItemFontItalic(true);
    list->pLetItemFontName(u"Arial");
    list->pLetItemFontSize(9.75F);
    list->pLetItemForeColor(Rgb(10, 20, 30));
    EXPECT_THAT(Log(), ElementsAre("changed ItemAlignment", "changed ItemFontBold",
                                   "changed ItemFontItalic", "changed ItemFontName",
                                   "changed ItemFontSize", "changed ItemForeColor"));
    memory::OptionButton& button = placed->Button(0);
    EXPECT_EQ(button.Alignment(), 1);
    EXPECT_TRUE(button.CurrentFont()->Bold());
    EXPECT_TRUE(button.CurrentFont()->Italic());
    EXPECT_EQ(button.CurrentFont()->Name(), u"Arial");
    EXPECT_EQ(button.CurrentFont()->Size(), 9.75F);
    EXPECT_EQ(button.ForeColor(), Rgb(10, 20, 30));
    EXPECT_EQ(list->pGetItemAlignment(), 1);
    EXPECT_TRUE(list->pGetItemFontBold());
    EXPECT_TRUE(list->pGetItemFontItalic());
    EXPECT_EQ(list->pGetItemFontName(), u"Arial");
    EXPECT_EQ(list->pGetItemFontSize(), 9.75F);
    EXPECT_EQ(list->pGetItemForeColor(), Rgb(10, 20, 30));
}

TEST_F(Properties, ItemAppearanceStaysReadableAtRunTime) {
    list->pLetItemAlignment(1);
    list->pLetItemFontName(u"Arial");
    placed->SetMode(Mode::Run);
    Log();
    EXPECT_EQ(list->pGetItemAlignment(), 1);
    EXPECT_FALSE(list->pGetItemFontBold());
    EXPECT_FALSE(list->pGetItemFontItalic());
    EXPECT_EQ(list->pGetItemFontName(), u"Arial");
    EXPECT_EQ(list->pGetItemFontSize(), 8.25F);
    EXPECT_EQ(list->pGetItemForeColor(), Color::ButtonText);
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Properties, DistancesAreKeptAtDesignTime) {
    list->pLetLeftMargin(10.5F);
    list->pLetSpacing(300);
    list->pLetTopMargin(-20);
    EXPECT_THAT(Log(), ElementsAre("changed LeftMargin", "changed Spacing", "changed TopMargin"));
    EXPECT_EQ(list->pGetLeftMargin(), 10.5F);
    EXPECT_EQ(list->pGetSpacing(), 300);
    EXPECT_EQ(list->pGetTopMargin(), -20);
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Properties, DistancesAreNeitherReadNorAssignedAtRunTime) {
    list->pLetLeftMargin(10);
    placed->SetMode(Mode::Run);
    Log();
    EXPECT_EQ(list->pGetLeftMargin(), 0);
    EXPECT_EQ(list->pGetSpacing(), 0);
    EXPECT_EQ(list->pGetTopMargin(), 0);
    EXPECT_THAT(Log(), ElementsAre("error 393 in pGetLeftMargin", "error 393 in pGetSpacing",
                                   "error 393 in pGetTopMargin"));
    const host::Placement before = placed->Button(0).Where();
    list->pLetLeftMargin(100);
    list->pLetSpacing(100);
    list->pLetTopMargin(100);
    EXPECT_THAT(Log(), ElementsAre("error 382 in pLetLeftMargin", "error 382 in pLetSpacing",
                                   "error 382 in pLetTopMargin"));
    EXPECT_EQ(placed->Button(0).Where(), before);
    placed->SetMode(Mode::Design);
    EXPECT_EQ(list->pGetLeftMargin(), 10);
    EXPECT_EQ(list->pGetSpacing(), 240);
    EXPECT_EQ(list->pGetTopMargin(), 0);
}

TEST_F(Properties, ItemAppearanceIsNotAssignedAtRunTime) {
    placed->SetMode(Mode::Run);
    list->pLetItemAlignment(1);
    list->pLetItemFontBold(true);
    list->pLetItemFontItalic(true);
    list->pLetItemFontName(u"Arial");
    list->pLetItemFontSize(20);
    list->pLetItemForeColor(Rgb(1, 1, 1));
    EXPECT_THAT(Log(),
                ElementsAre("error 382 in pLetItemAlignment", "error 382 in pLetItemFontBold",
                            "error 382 in pLetItemFontItalic", "error 382 in pLetItemFontName",
                            "error 382 in pLetItemFontSize", "error 382 in pLetItemForeColor"));
    EXPECT_EQ(list->pGetItemAlignment(), 0);
    EXPECT_FALSE(list->pGetItemFontBold());
    EXPECT_FALSE(list->pGetItemFontItalic());
    EXPECT_EQ(list->pGetItemFontName(), u"MS Sans Serif");
    EXPECT_EQ(list->pGetItemFontSize(), 8.25F);
    EXPECT_EQ(list->pGetItemForeColor(), Color::ButtonText);
}

TEST_F(Properties, TheRestIsAssignedInBothModes) {
    for (const Mode mode : {Mode::Design, Mode::Run}) {
        placed->SetMode(mode);
        list->pLetEnabled(true);
        list->pSetFont(placed->Form().NewFont(u"Arial", 12));
        list->pLetBorderStyle(0);
        list->pLetCaption(u"c");
        list->pLetContents(u"a");
        list->pLetItemCaption(0, u"b");
        EXPECT_THAT(Log(), ElementsAre("changed Enabled", "changed Font", "changed BorderStyle",
                                       "changed Caption", "changed Contents"));
    }
}

TEST_F(Properties, ContentsAreKeptExactlyAsAssigned) {
    const Text contents = u"| 1 ;a;b||x|";
    list->pLetContents(contents);
    EXPECT_EQ(list->pGetContents(), contents);
}

TEST_F(Properties, ContentsMayBeAssignedToThemselves) {
    list->pLetContents(u"a value too long to lie in place|b");
    list->pLetContents(list->pGetContents());
    EXPECT_EQ(list->pGetContents(), u"a value too long to lie in place|b");
}

TEST_F(Properties, ContentsAreNotifiedBeforeTheButtonsChange) {
    const Text contents = u"a|b";
    EXPECT_TRUE(placed->Uses(u"Container.PropertyChanged", [&] { list->pLetContents(contents); }));
    EXPECT_THAT(Log(), ElementsAre("error 51 in pLetContents"));
    EXPECT_EQ(list->pGetContents(), contents) << "stored first";
    EXPECT_THAT(placed->Items(), ElementsAre(";Item 0")) << "set up last";
}

TEST_F(Properties, AFailedCopyDoesNotKeepTheButtonsFromTheirPlaces) {
    placed->Faults().FailCall(u"OptionButton.SetCurrentFont", 1, ErrorNumber::OutOfMemory);
    list->pLetContents(u"a|b");
    EXPECT_THAT(Log(), ElementsAre("changed Contents", "error 7 in CopyProperties"));
    EXPECT_EQ(placed->Button(1).Where(), (host::Placement{0, 240, 2970, 240}));
}

TEST_F(Properties, ItemCaptionChangesTheButtonAlone) {
    list->pLetContents(u"1;A|2;B|3;C");
    Log();
    list->pLetItemCaption(1, u"x");
    EXPECT_THAT(placed->Items(), ElementsAre("1;A", "2;x", "3;C"));
    EXPECT_EQ(list->pGetContents(), u"1;A|2;B|3;C");
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Properties, ItemCaptionWithoutAnItemIsIgnored) {
    list->pLetContents(u"1;A|2;B|3;C|4;D");
    list->pLetContents(u"1;A|2;B|3;C");
    Log();
    for (const std::int16_t index : std::initializer_list<std::int16_t>{-32768, -1, 3, 7, 32767}) {
        list->pLetItemCaption(index, u"x");
    }
    EXPECT_THAT(placed->Items(), ElementsAre("1;A", "2;B", "3;C", "(4;D)"));
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Properties, ItemCaptionLastsUntilTheItemsAreSetUp) {
    list->pLetContents(u"1;A|2;B");
    list->pLetItemCaption(1, u"x");
    list->pLetContents(u"1;A|2;B");
    EXPECT_THAT(placed->Items(), ElementsAre("1;A", "2;B"));
    list->pLetItemCaption(1, u"x");
    memory::PropertyBag bag = placed->Placed().Save();
    EXPECT_THAT(PlacedOptionList::Saved(Mode::Run, bag)->Items(), ElementsAre("1;A", "2;B"));
}

}  // namespace

}  // namespace lumenkit::testing
