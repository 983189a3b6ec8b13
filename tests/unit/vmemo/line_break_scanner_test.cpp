#include "vmemo/line_break_scanner.h"

#include <algorithm>
#include <random>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit {

namespace {

using ::testing::ElementsAre;

std::vector<std::size_t> Breaks(TextView text) {
    std::vector<std::size_t> breaks;
    LineBreakScanner scanner(text);
    for (std::size_t found = scanner.Next(0); found < text.size();
         found = scanner.Next(found + 2)) {
        breaks.push_back(found);
    }
    return breaks;
}

TEST(LineBreakScannerTest, FindsNothingInATextWithoutLineBreaks) {
    EXPECT_THAT(Breaks(u""), ElementsAre());
    EXPECT_THAT(Breaks(u"a"), ElementsAre());
    EXPECT_THAT(Breaks(u"\r"), ElementsAre());
    EXPECT_THAT(Breaks(u"\n"), ElementsAre());
    EXPECT_THAT(Breaks(u"\n\r"), ElementsAre());
    EXPECT_THAT(Breaks(Text(1000, u'a')), ElementsAre());
}

TEST(LineBreakScannerTest, FindsEveryLineBreak) {
    EXPECT_THAT(Breaks(u"\r\n"), ElementsAre(0));
    EXPECT_THAT(Breaks(u"ab\r\n\r\ncd\r\n"), ElementsAre(2, 4, 8));
}

TEST(LineBreakScannerTest, DoesNotTakeLoneUnitsForALineBreak) {
    EXPECT_THAT(Breaks(u"\r\r\n\n\r"), ElementsAre(1));
    EXPECT_THAT(Breaks(u"\n\r\n\r"), ElementsAre(1));
}

TEST(LineBreakScannerTest, DoesNotTakeUnitsForALineBreakThatShareItsBytes) {
    EXPECT_THAT(Breaks(u"\u0D00\u0A00\u0D0D\u0A0A\u000D\u0A0D\u0D0A\u000A\u800D\u800A"),
                ElementsAre());
}

// Uses texts of several blocks, with and without line breaks in each block.
TEST(LineBreakScannerTest, FindsWhatASearchFinds) {
    std::mt19937 random(testing::TestSeed());
    for (int round = 0; round < testing::Rounds(3000); ++round) {
        Text text(random() % 400, u'x');
        for (std::size_t left = random() % 12; left > 0 && !text.empty(); --left) {
            const std::size_t at = random() % text.size();
            static constexpr TextView pieces[] = {u"\r\n", u"\r", u"\n"};
            const TextView piece = pieces[random() % 3];
            text.replace(at, std::min(piece.size(), text.size() - at), piece);
        }
        std::vector<std::size_t> expected;
        for (std::size_t found = text.find(crLf); found != Text::npos;
             found = text.find(crLf, found + 2)) {
            expected.push_back(found);
        }
        ASSERT_EQ(Breaks(text), expected) << ToUtf8(text);
    }
}

TEST(LineBreakScannerTest, FindsALineBreakAtEveryOffsetOfATextOfEveryLength) {
    for (std::size_t size = 2; size < 110; ++size) {
        for (std::size_t offset = 0; offset + 2 <= size; ++offset) {
            Text text(size, u'x');
            text.replace(offset, 2, u"\r\n");
            EXPECT_THAT(Breaks(text), ElementsAre(offset)) << size;
        }
    }
}

TEST(LineBreakScannerTest, FindsNoLineBreakBehindTheEndOfTheText) {
    const Text text = Text(70, u'x') + u"\r\n";
    for (std::size_t size = 0; size < text.size(); ++size) {
        EXPECT_THAT(Breaks(TextView(text).substr(0, size)), ElementsAre()) << size;
    }
}

TEST(LineBreakScannerTest, StartsAnywhere) {
    const Text text = Text(40, u'x') + u"\r\n" + Text(40, u'x') + u"\r\n";
    for (std::size_t from = 0; from < text.size(); ++from) {
        const std::size_t expected = from <= 40 ? 40 : from <= 82 ? 82 : text.size();
        EXPECT_EQ(LineBreakScanner(text).Next(from), expected) << from;
    }
}

TEST(LineBreakScannerTest, SkipsLineBreaksThatLieBeforeTheStart) {
    const TextView text = u"a\r\nb\r\nc\r\nd";
    LineBreakScanner scanner(text);
    EXPECT_EQ(scanner.Next(0), 1U);
    EXPECT_EQ(scanner.Next(5), 7U);
    EXPECT_EQ(scanner.Next(8), text.size());
}

TEST(LineBreakScannerTest, ToleratesAStartBehindTheEnd) {
    LineBreakScanner scanner(u"a\r\n");
    EXPECT_EQ(scanner.Next(7), 3U);
}

}  // namespace

}  // namespace lumenkit
