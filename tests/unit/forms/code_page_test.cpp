#include "forms/code_page.h"

#include <random>
#include <set>
#include <stdexcept>
#include <string>

#include <gmock/gmock.h>

#include "forms/known_code_pages.h"
#include "forms/spelling.h"
#include "tests/support/test_seed.h"

namespace lumenkit::forms {
namespace {

using ::testing::Field;
using ::testing::Throws;

constexpr int pagesOfPairs[] = {932, 936, 949, 950, 1361};

std::vector<int> AllPages() {
    std::vector<int> numbers;
    for (const KnownCodePage& page : KnownCodePages()) {
        if (page.number != utf8CodePage) {
            numbers.push_back(page.number);
        }
    }
    return numbers;
}

std::string AllBytes() {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    return bytes;
}

// Whether a form with these bytes in its only line is written with the same bytes.
bool IsWrittenAgain(const CodePage& page, const std::string& bytes) {
    const Text text = page.Decode(bytes);
    const std::string encoded = page.Encode(text);
    if (encoded == bytes) {
        return true;
    }
    const Spelling spelling(page, bytes);
    const std::string* const kept = spelling.Find(1, text);
    return page.Decode(encoded) == text && kept != nullptr && *kept == bytes;
}

TEST(CodePage, DecodesAndEncodesSamplesOfEveryPage) {
    const struct {
        int page;
        std::string bytes;
        Text text;
    } samples[] = {
        {874, "\xCA\xC7\xD1\xCA\xB4\xD5", u"สวัสดี"},
        {932, "\x93\xFA\x96{\x8C\xEA \x83\x5C\x83t\x83g \x95\x5C \xB1\xB2\xB3 \x81|",
         u"日本語 ソフト 表 ｱｲｳ －"},
        {932, "\x87\x40\xFA\x40\xF0\x40", u"①ⅰ\xE000"},
        {936, "\xD6\xD0\xCE\xC4 \x80 \x81\x5C \xA1\xA4 \xA1\xAA \xFD\x7C \xAA\xA1",
         u"中文 € 乗 · — 齶 \xE000"},
        {949, "\xC7\xD1\xB1\xDB \xB0\xA1 \x8C\x63 \xC9\xA1", u"한글 가 똠 \xE000"},
        {950, "\xA4\xA4\xA4\xE5 \xB3\x5C \xA5\x5C \xA3\xE1 \xA1\x45 \xFA\x40",
         u"中文 許 功 € ‧ \xE000"},
        {1361, "\xD0\x65\x8B\x69 \x5C \xD8\x31", u"한글 \\ \xE000"},
        {1250, "\xAF\xBF\xB3\x8C\xE5", u"ŻżłŚĺ"},
        {1251, "\xCF\xF0\xE8\xA8\x80", u"ПриЁЂ"},
        {1252, "\x80\xE4\x9F\xA0\xFF", u"€äŸ\u00A0ÿ"},
        {1253, "\xC1\xE1\xF9\xA2", u"ΑαωΆ"},
        {1254, "\xDD\xFD\xDE\xF0", u"İıŞğ"},
        {1255, "\xE0\xFA\xA4", u"את₪"},
        {1256, "\xC7\xE1\x81\xA1", u"ال\u067E\u060C"},
        {1257, "\xC0\xE0\xFE", u"Ąąž"},
        {1258, "\xD0\xF0\xFE\xD5", u"Đđ₫Ơ"},
    };
    for (const auto& sample : samples) {
        const CodePage page(sample.page);
        EXPECT_EQ(page.Decode(sample.bytes), sample.text) << sample.page;
        EXPECT_EQ(page.Encode(sample.text), sample.bytes) << sample.page;
        EXPECT_TRUE(page.Defines(sample.bytes)) << sample.page;
    }
}

TEST(CodePage, GivesEveryByteOfAOneBytePageAUnitOfItsOwnAndBack) {
    for (const int number : {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258}) {
        const CodePage page(number);
        EXPECT_EQ(page.Number(), number);
        const std::string bytes = AllBytes();
        const Text text = page.Decode(bytes);
        EXPECT_EQ(std::set<char16_t>(text.begin(), text.end()).size(), 256U) << number;
        EXPECT_EQ(page.Encode(text), bytes) << number;
        for (std::size_t i = 0; i < 128; ++i) {
            EXPECT_EQ(text[i], i);
        }
    }
}

TEST(CodePage, AnyTwoBytesAreWrittenAsTheyWereRead) {
    for (const int number : pagesOfPairs) {
        const CodePage page(number);
        for (unsigned first = 0x80; first < 256; ++first) {
            for (unsigned second = 0; second < 256; ++second) {
                const std::string two = {static_cast<char>(first), static_cast<char>(second)};
                ASSERT_TRUE(IsWrittenAgain(page, two)) << number << ' ' << first << ' ' << second;
            }
        }
    }
}

TEST(CodePage, AnyTextIsWrittenAsItWasRead) {
    std::mt19937 random(lumenkit::testing::TestSeed());
    for (const int number : AllPages()) {
        const CodePage page(number);
        for (int round = 0; round < 2000; ++round) {
            std::string bytes(1 + random() % 8, '\0');
            for (char& byte : bytes) {
                // Mostly bytes beyond ASCII, and never a line feed: the spelling is that of a line.
                byte =
                    static_cast<char>(random() % 4 != 0 ? 0x80 + random() % 128 : random() % 128);
                byte = byte == '\n' ? '"' : byte;
            }
            ASSERT_TRUE(IsWrittenAgain(page, bytes)) << number;
        }
    }
}

TEST(CodePage, PagesOfPairsHaveTheirCharacters) {
    // The numbers of characters in the tables of Windows, without undefined single bytes.
    const struct {
        int page;
        int leastPairs;
    } pages[] = {{932, 9300}, {936, 23000}, {949, 17200}, {950, 19000}, {1361, 17000}};
    for (const auto& expected : pages) {
        const CodePage page(expected.page);
        int count = 0;
        for (unsigned first = 0x80; first < 256; ++first) {
            for (unsigned second = 0; second < 256; ++second) {
                const std::string pair = {static_cast<char>(first), static_cast<char>(second)};
                count += page.Decode(pair).size() == 1 ? 1 : 0;
            }
        }
        EXPECT_GE(count, expected.leastPairs) << expected.page;
    }
}

TEST(CodePage, ASecondByteIsNoQuoteBackslashOrBar) {
    EXPECT_EQ(CodePage(932).Decode("\x83\x5C|\x83|\""), u"ソ|ポ\"");
    EXPECT_EQ(CodePage(936).Decode("\x81\x5C|\x81|\""), u"乗|亅\"");
    EXPECT_EQ(CodePage(950).Decode("\xA5\x5C|\xA5|\""), u"功|四\"");
    // No page has a quotation mark or a line end as the second byte.
    for (const int number : pagesOfPairs) {
        for (unsigned lead = 0x80; lead < 256; ++lead) {
            for (const char plain : {'"', '\r', '\n', ' ', '\'', '\0'}) {
                const Text text =
                    CodePage(number).Decode(std::string{static_cast<char>(lead), plain});
                EXPECT_EQ(text.back(), plain) << number << ' ' << lead;
                EXPECT_EQ(text.size(), 2U) << number << ' ' << lead;
            }
        }
    }
}

TEST(CodePage, KeepsBytesThatThePageLeavesUndefined) {
    EXPECT_EQ(CodePage(1252).Decode("\x81\x8D\x8F\x90\x9D"), u"\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(CodePage(1253).Decode("\xAA"), u"\xF8F9");
    EXPECT_EQ(CodePage(932).Decode("\x80\xFF\xFD"), u"\xF880\xF8FF\xF8FD");
    // A first byte without a second one, before a quotation mark, and in a pair without a character
    EXPECT_EQ(CodePage(936).Decode("\xD6"), u"\xF8D6");
    EXPECT_EQ(CodePage(936).Decode("\xD6\""), u"\xF8D6\"");
    EXPECT_EQ(CodePage(936).Decode("\xA2\xAB\xD6\xD0"), u"\xF8A2\xF8AB中");
    for (const auto& [page, bytes] : {std::pair(1252, "\x81"),
                                      {1253, "\xAA"},
                                      {932, "\x80"},
                                      {936, "\xD6"},
                                      {950, "\xA1\xFF"}}) {
        EXPECT_FALSE(CodePage(page).Defines(bytes)) << page;
    }
}

TEST(CodePage, AKeptByteIsNotWrittenAsAPartOfACharacter) {
    const CodePage page(936);
    EXPECT_EQ(page.Encode(u"a\xF8D6\"b"), "a\xD6\"b");
    EXPECT_THAT([&] { page.Encode(u"a\xF8D6中"); },
                Throws<Unmappable>(Field(&Unmappable::index, 1)));
    EXPECT_THAT([&] { page.Encode(u"ab\xF8D6@"); },
                Throws<Unmappable>(Field(&Unmappable::index, 2)));
}

TEST(CodePage, HasNoBytesForOtherUnits) {
    const struct {
        int page;
        Text text;
    } strangers[] = {{1252, u"Я"},      {1251, u"é"},      {1252, u"\x80"},     {1252, u"\xD83D"},
                     {1252, u"\xFFFF"}, {1252, u"\xF880"}, {932, u"é"},         {936, u"한"},
                     {949, u"ä"},       {950, u"한"},      {932, u"\U0001F600"}};
    for (const auto& stranger : strangers) {
        EXPECT_THAT([&] { CodePage(stranger.page).Encode(u"a" + stranger.text); },
                    Throws<Unmappable>(Field(&Unmappable::index, 1)))
            << stranger.page;
    }
    EXPECT_EQ(CodePage(1252).Encode(u"€"), "\x80");
}

TEST(CodePage, OfTwoByteSequencesTheOneOfTheSystemIsWritten) {
    const CodePage japanese(932);
    EXPECT_EQ(japanese.Decode("\x81\xE0\x87\x90"), u"≒≒");
    EXPECT_EQ(japanese.Encode(u"≒"), "\x81\xE0");
    EXPECT_EQ(japanese.Decode("\xED\x40\xFA\x5C"), u"纊纊");
    EXPECT_EQ(japanese.Encode(u"纊"), "\xFA\x5C");
    EXPECT_EQ(japanese.Decode("\xEE\xEF\xFA\x40"), u"ⅰⅰ");
    EXPECT_EQ(japanese.Encode(u"ⅰ"), "\xFA\x40");
    EXPECT_EQ(japanese.Encode(u"Ⅰ"), "\x87\x54");
    EXPECT_EQ(japanese.Encode(u"￢"), "\x81\xCA");
}

TEST(CodePage, IsRefusedWhereItIsNotKnown) {
    for (const int number : {0, 437, 850, 1249, 1259, 54936, 65001}) {
        EXPECT_THROW(CodePage{number}, std::invalid_argument) << number;
    }
}

TEST(Spelling, IsKeptByLine) {
    const CodePage page(932);
    const std::string bytes = "plain\r\n\x87\x90 a\r\n\x81\xE0 a\r\n\x87\x90 a";
    const Spelling spelling(page, bytes);
    EXPECT_FALSE(spelling.IsUsual());
    EXPECT_EQ(*spelling.Find(2, u"≒ a\r"), "\x87\x90 a\r");
    EXPECT_EQ(spelling.Find(2, u"≒ b\r"), nullptr);
    EXPECT_EQ(spelling.Find(3, u"≒ a\r"), nullptr);
    EXPECT_EQ(*spelling.Find(4, u"≒ a"), "\x87\x90 a");
    EXPECT_TRUE(Spelling(page, "\x81\xE0\r\n\x80\x81").IsUsual());
    EXPECT_TRUE(Spelling().IsUsual());
}

TEST(CodePageNamed, IsFoundByNumberAndName) {
    const struct {
        std::string name;
        int page;
    } names[] = {{"932", 932},     {"cp932", 932},  {"Shift_JIS", 932}, {"SJIS", 932},
                 {"gbk", 936},     {"GB2312", 936}, {"ms936", 936},     {"uhc", 949},
                 {"big5", 950},    {"johab", 1361}, {"874", 874},       {"windows-1251", 1251},
                 {"utf-8", 65001}, {"UTF8", 65001}, {"65001", 65001}};
    for (const auto& [name, page] : names) {
        EXPECT_EQ(CodePageNamed(name), page) << name;
    }
    for (const std::string name : {"", "0", "437", "932x", "cp", "-932", "latin", "windows-"}) {
        EXPECT_EQ(CodePageNamed(name), std::nullopt) << name;
    }
}

TEST(CodePageNamed, EveryPageHasItsCharsetAndTitle) {
    EXPECT_EQ(FindCodePageOfCharset(128)->number, 932);
    EXPECT_EQ(FindCodePageOfCharset(134)->number, 936);
    EXPECT_EQ(FindCodePageOfCharset(129)->number, 949);
    EXPECT_EQ(FindCodePageOfCharset(136)->number, 950);
    EXPECT_EQ(FindCodePageOfCharset(130)->number, 1361);
    EXPECT_EQ(FindCodePageOfCharset(222)->number, 874);
    for (const int none : {0, 1, 2, 77, 255}) {
        EXPECT_EQ(FindCodePageOfCharset(none), nullptr) << none;
    }
    EXPECT_EQ(NameOfCodePage(1361), "Korean (Johab), code page 1361");
    EXPECT_EQ(NameOfCodePage(437), "437");
}

}  // namespace
}  // namespace lumenkit::forms
