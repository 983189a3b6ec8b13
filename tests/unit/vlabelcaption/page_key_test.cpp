// The shortcuts of the caption box, and their help.
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "frame/utf8.h"
#include "tests/support/placed_caption_page.h"
#include "tests/unit/vlabelcaption/tapped_page.h"
#include "vlabelcaption/caption_shortcuts.h"

namespace lumenkit::testing {

namespace {

constexpr TextView ctrlB = u"\x02";
constexpr TextView ctrlS = u"\x13";
constexpr TextView enterKey = u"\r";

class PageKeys : public ::testing::Test {
 protected:
    PageKeys() {
        page_.Select(page_.NewEdited());
        page_.Form().GetLog().Clear();
    }

    void Show(TextView caption, std::int32_t start, std::int32_t length = 0) {
        page_.Caption().SetText(caption);
        page_.User().Select(page_.Caption(), start, length);
    }
    void Press(TextView keys) { page_.User().Type(page_.Caption(), keys); }
    /// Returns the caption with its selection.
    std::string Shown() { return ToUtf8(page_.Caption().Contents()) + " " + page_.Selection(); }
    std::size_t Beeps() { return page_.Form().GetLog().BeepCount(); }

    PlacedCaptionPage page_;
};

TEST_F(PageKeys, ReplaceTheSelectionByTheTokenAndSelectIt) {
    Show(u"x abc y", 2, 3);
    Press(ctrlB);
    EXPECT_EQ(Shown(), "x |B:1| y 2-7");
}

TEST_F(PageKeys, PutTheCaretBehindTheTokenWhereNothingIsSelected) {
    Show(u"x abc y", 2);
    Press(ctrlB);
    EXPECT_EQ(Shown(), "x |B:1|abc y 7-7");
}

TEST_F(PageKeys, MarkThePageChangedAndFollowInThePreview) {
    Show(u"x", 1);
    page_.Page().Site().Reset();
    Press(ctrlB);
    EXPECT_TRUE(page_.Page().Site().IsChanged());
    EXPECT_EQ(page_.Previewed(u"Caption"), "x|B:1|");
    EXPECT_EQ(page_.Magnifier(), "B:1|||");
}

TEST_F(PageKeys, ReplaceATokenByItself) {
    Show(u"|B:1|", 0, 5);
    Press(ctrlB);
    EXPECT_EQ(Shown(), "|B:1| 0-5");
}

TEST_F(PageKeys, EnterASeparatorForEnter) {
    Show(u"ab", 1);
    Press(enterKey);
    EXPECT_EQ(Shown(), "a|CR|b 5-5");
    EXPECT_EQ(Beeps(), 0U);
}

TEST_F(PageKeys, BeepForEnterWithASelection) {
    Show(u"ab", 0, 1);
    Press(enterKey);
    EXPECT_EQ(Shown(), "ab 0-1");
    EXPECT_EQ(Beeps(), 1U);
    EXPECT_EQ(page_.Form().GetLog().Entries().size(), 1U);
}

TEST_F(PageKeys, EnterAQuoteForADoubleQuote) {
    Show(u"ab", 1);
    Press(u"\"");
    EXPECT_EQ(Shown(), "a|Q|b 4-4");
    Show(u"ab", 0, 2);
    Press(u"\"");
    EXPECT_EQ(Shown(), "|Q| 0-3");
}

TEST_F(PageKeys, SelectNextWalksThroughWordsAndCommands) {
    Show(u"|B:1|Hello world|B:0|", 0);
    for (const char* const selection : {"0-5", "5-10", "11-16", "16-21", "16-21"}) {
        Press(ctrlS);
        EXPECT_EQ(page_.Selection(), selection);
    }
    EXPECT_EQ(page_.Caption().Contents(), u"|B:1|Hello world|B:0|");
}

TEST_F(PageKeys, SelectNextTakesAllThatNoCommandFollows) {
    Show(u"one two", 0);
    Press(ctrlS);
    EXPECT_EQ(page_.Selection(), "0-7");
    EXPECT_EQ(page_.Magnifier(), "|[one two]|");
}

TEST_F(PageKeys, SelectNextFindsNothingBehindTheLastWord) {
    Show(u"one  ", 3);
    Press(ctrlS);
    EXPECT_EQ(page_.Selection(), "3-3");
    Show(u"", 0);
    Press(ctrlS);
    EXPECT_EQ(page_.Selection(), "0-0");
}

struct Key {
    TextView token;
    bool swallowed;
};

const std::map<int, Key>& KeyTable() {
    static const std::map<int, Key> table = {
        {2, {u"|B:1|", false}},  {7, {u"|Fore:0,128,0|", false}},
        {9, {u"|i:1|", true}},   {12, {u"|before:0|", false}},
        {13, {u"|CR|", true}},   {14, {u"|B:0|", false}},
        {15, {u"|i:0|", false}}, {34, {u"|Q|", true}},
    };
    return table;
}

// Passes every code to the page as the box does, before the box handles the key.
class PageKeyCodes : public ::testing::Test {
 protected:
    struct Outcome {
        std::int16_t code;
        std::string shown;
        std::size_t beeps;
    };

    Outcome Press(std::int16_t code, TextView caption, std::int32_t start, std::int32_t end) {
        page_.Caption().SetText(caption);
        page_.Caption().SetSelection(start, end);
        page_.Form().GetLog().Clear();
        page_.Taps().CaptionEvents().KeyPress(code);
        page_.Caption().GetSelection(start, end);
        return {code,
                ToUtf8(page_.Caption().Contents()) + " " + std::to_string(start) + "-" +
                    std::to_string(end),
                page_.Form().GetLog().BeepCount()};
    }

    TappedPage page_;
};

std::string Range(std::size_t start, std::size_t end) {
    return " " + std::to_string(start) + "-" + std::to_string(end);
}

TEST_F(PageKeyCodes, DoWhatTheTableSaysWithNothingSelected) {
    for (int number = -32768; number <= 32767; ++number) {
        const auto code = static_cast<std::int16_t>(number);
        const Outcome outcome = Press(code, u"ab cd", 1, 1);
        const auto key = KeyTable().find(number);
        if (key != KeyTable().end()) {
            const std::size_t behind = 1 + key->second.token.size();
            EXPECT_EQ(outcome.shown,
                      "a" + ToUtf8(key->second.token) + "b cd" + Range(behind, behind));
            EXPECT_EQ(outcome.code, key->second.swallowed ? 0 : code);
        } else {
            ASSERT_EQ(outcome.shown, number == 19 ? "ab cd 1-5" : "ab cd 1-1") << number;
            ASSERT_EQ(outcome.code, code) << number;
        }
        ASSERT_EQ(outcome.beeps, 0U) << number;
    }
}

TEST_F(PageKeyCodes, DoWhatTheTableSaysWithASelection) {
    for (int number = -32768; number <= 32767; ++number) {
        const auto code = static_cast<std::int16_t>(number);
        const Outcome outcome = Press(code, u"ab cd|", 0, 2);
        const auto key = KeyTable().find(number);
        if (number == 13) {
            EXPECT_EQ(outcome.shown, "ab cd| 0-2");
            EXPECT_EQ(outcome.code, 0);
            EXPECT_EQ(outcome.beeps, 1U);
            continue;
        }
        if (key != KeyTable().end()) {
            EXPECT_EQ(outcome.shown,
                      ToUtf8(key->second.token) + " cd|" + Range(0, key->second.token.size()));
            EXPECT_EQ(outcome.code, key->second.swallowed ? 0 : code);
        } else {
            ASSERT_EQ(outcome.shown, number == 19 ? "ab cd| 3-5" : "ab cd| 0-2") << number;
            ASSERT_EQ(outcome.code, code) << number;
        }
        ASSERT_EQ(outcome.beeps, 0U) << number;
    }
}

// Here the box handles the key too: a key that is no shortcut types its character.
TEST_F(PageKeys, LeaveAllOtherKeysToTheBox) {
    for (int unit = 32; unit <= 0xFFFF; ++unit) {
        if (unit == 34 || unit == 127) {
            continue;
        }
        Show(u"ab", 1);
        Press(Text(1, static_cast<char16_t>(unit)));
        ASSERT_EQ(page_.Caption().Contents(), (Text{u'a', static_cast<char16_t>(unit), u'b'}))
            << unit;
    }
}

TEST_F(PageKeys, AreExplainedByTheHelpButton) {
    page_.User().Click(page_.Part<memory::CommandButton>(u"cmdHelp"));
    const memory::Log& log = page_.Form().GetLog();
    ASSERT_EQ(log.Entries().size(), 1U);
    EXPECT_EQ(*log.Messages().at(0),
              (memory::ShownMessage{.text = Text(MarkupKeysHelp()),
                                    .title = u"Shortcut Keys (while editing caption)",
                                    .style = host::MessageStyle::OkOnly}));
}

}  // namespace

}  // namespace lumenkit::testing
