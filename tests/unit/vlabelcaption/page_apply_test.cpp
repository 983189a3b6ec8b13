// Applying: the checks and the assignments.
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/support/placed_caption_page.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;

class PageApply : public ::testing::Test {
 protected:
    PageApply() {
        page_.Select(edited_);
        edited_->TakeLog();
        page_.Form().GetLog().Clear();
    }

    // Whether the indent is refused. Checks that a refusal beeps, shows the message and writes
    // nothing.
    bool IsRefused() {
        page_.Page().Apply();
        if (page_.Form().GetLog().Entries().empty()) {
            return false;
        }
        const memory::Log& log = page_.Form().GetLog();
        EXPECT_EQ(log.Entries().size(), 2U);
        EXPECT_TRUE(std::holds_alternative<memory::HeardBeep>(log.Entries().front()));
        EXPECT_EQ(*log.Messages().at(0),
                  (memory::ShownMessage{.text = u"Illegal indent. Must be 0 to 9999",
                                        .title = std::nullopt,
                                        .style = host::MessageStyle::OkOnly}));
        EXPECT_THAT(edited_->TakeLog(), ElementsAre());
        page_.Form().GetLog().Clear();
        return true;
    }

    PlacedCaptionPage page_;
    std::shared_ptr<EditedDouble> edited_ = page_.NewEdited();
};

TEST_F(PageApply, WritesFourPropertiesInOrder) {
    page_.Prefix().SetText(u"- ");
    page_.Indent().SetText(u"120");
    page_.Wrap().SetCheckState(0);
    page_.Caption().SetText(u"|i:1|Bye");
    page_.Page().Apply();
    EXPECT_THAT(edited_->TakeLog(),
                ElementsAre("let BulletPrefix String - ", "let BulletIndent Integer 120",
                            "let WordWrap Boolean False", "let Caption String |i:1|Bye"));
    EXPECT_TRUE(page_.Form().GetLog().Entries().empty());
}

TEST_F(PageApply, AcceptsIndentsFrom0To9999) {
    struct Accepted {
        TextView text;
        std::int16_t indent;
    };
    const std::vector<Accepted> accepted = {
        {u"0", 0},         {u"9999", 9999},     {u"12.5", 12},   {u"13.5", 14},   {u"0.5", 0},
        {u"1.5", 2},       {u"2.5", 2},         {u"12.4", 12},   {u"12.6", 13},   {u"9998.5", 9998},
        {u"9998.6", 9999}, {u"9999.0", 9999},   {u"0099", 99},   {u".5", 0},      {u"5.", 5},
        {u"+7", 7},        {u" 12 ", 12},       {u"\t12\n", 12}, {u"1e3", 1000},  {u"1E3", 1000},
        {u"1d3", 1000},    {u"9.999e+3", 9999}, {u"125e-1", 12}, {u"1e-400", 0},  {u"-0", 0},
        {u"&H10", 16},     {u"&h270F", 9999},   {u"&O17", 15},   {u"&HFF&", 255},
    };
    for (const Accepted& text : accepted) {
        page_.Indent().SetText(text.text);
        EXPECT_FALSE(IsRefused()) << ToUtf8(text.text);
        EXPECT_EQ(edited_->Held(u"BulletIndent"), Value(text.indent)) << ToUtf8(text.text);
        edited_->TakeLog();
    }
}

TEST_F(PageApply, RefusesAnyOtherIndent) {
    for (const TextView text :
         {u"",    u"abc",    u"10000",  u"-1",    u"9999.5", u"9999.0001", u"-0.4", u"12abc",
          u"1 2", u" ",      u".",      u"-",     u"1e",     u"1e4",       u"--1",  u"1,5",
          u"&H",  u"&H2710", u"&HFFFF", u"1.2.3", u"twelve", u"\u0661"}) {
        page_.Indent().SetText(text);
        EXPECT_TRUE(IsRefused()) << ToUtf8(text);
    }
}

// The preview cannot show such a number. Applying refuses it like any other invalid number.
TEST_F(PageApply, RefusesNumbersBeyondThePreviewsRangeAndBeyondAllRange) {
    for (const TextView text :
         {u"32768", u"&HFFFF&", u"1e300", u"1e400", u"-1e400", u"&HFFFFFFFFF"}) {
        EXPECT_THAT([&] { page_.Indent().SetText(text); }, Raises(6)) << ToUtf8(text);
        EXPECT_TRUE(IsRefused()) << ToUtf8(text);
    }
}

TEST_F(PageApply, LeavesTheChangedFlagAlone) {
    for (const bool changed : {false, true}) {
        for (const TextView indent : {u"12", u"x"}) {
            page_.Indent().SetText(indent);
            page_.Page().Site().SetChanged(changed);
            page_.Page().Apply();
            EXPECT_EQ(page_.Page().Site().IsChanged(), changed);
        }
    }
}

// Applying treats only a checked box as wrapped. The preview also wraps if the box is greyed.
TEST_F(PageApply, AppliesAGreyedWordWrapBoxAsNotWrapped) {
    page_.Wrap().SetCheckState(2);
    page_.Page().Apply();
    EXPECT_EQ(edited_->Held(u"WordWrap"), Value(false));
    EXPECT_EQ(page_.Previewed(u"WordWrap"), "True");
    page_.Wrap().SetCheckState(1);
    page_.Page().Apply();
    EXPECT_EQ(edited_->Held(u"WordWrap"), Value(true));
}

TEST_F(PageApply, NeedsASelectedControl) {
    page_.Page().Selected().Assign({});
    EXPECT_THAT([&] { page_.Page().Apply(); }, Raises(9));
}

}  // namespace

}  // namespace lumenkit::testing
