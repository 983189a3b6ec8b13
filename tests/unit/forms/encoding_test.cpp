#include "forms/encoding.h"

#include <gmock/gmock.h>

#include "frame/utf8.h"

namespace lumenkit::forms {
namespace {

using ::testing::AllOf;
using ::testing::Field;
using ::testing::Throws;

TEST(Encoding, IsTheCodePageUnlessTheBytesAreUtf8) {
    EXPECT_EQ(Encoding::Of("plain", 1252).FormCodePage(), 1252);
    EXPECT_EQ(Encoding::Of("plain", 1251).FormCodePage(), 1251);
    EXPECT_EQ(Encoding::Of("Gr\xFC\xDF"
                           "e",
                           1252)
                  .FormCodePage(),
              1252);
    EXPECT_EQ(Encoding::Of("Gr\xC3\xBC\xC3\x9F"
                           "e",
                           1252)
                  .FormCodePage(),
              65001);
    EXPECT_EQ(Encoding::Of("\xEF\xBB\xBFplain", 1252).FormCodePage(), 65001);
    EXPECT_EQ(Encoding::Of("plain", 65001).FormCodePage(), 65001);
}

TEST(Encoding, KeepsTheCodePageForTheCompanion) {
    EXPECT_EQ(Encoding::Of("\xEF\xBB\xBFplain", 1251).CompanionPage().Number(), 1251);
    EXPECT_EQ(Encoding::Of("plain", 65001).CompanionPage().Number(), 1252);
}

TEST(Encoding, WithoutANamedPageTheFontsOfAFormInUtf8OrAsciiNameThatOfItsTexts) {
    const std::string font = "BeginProperty Font\n Charset = 134\nEndProperty\n";
    const Encoding utf8 = Encoding::Of(font + "Gr\xC3\xBC\xC3\x9F", guessedCodePage);
    EXPECT_EQ(utf8.FormCodePage(), 65001);
    EXPECT_EQ(utf8.CompanionPage().Number(), 936);
    EXPECT_EQ(utf8.Guess(), std::nullopt);
    const Encoding ascii = Encoding::Of(font, guessedCodePage);
    EXPECT_EQ(ascii.FormCodePage(), 936);
    EXPECT_EQ(ascii.Guess(), std::nullopt);
    EXPECT_EQ(Encoding::Of(font, 1252).FormCodePage(), 1252);
    EXPECT_EQ(Encoding::Of(font + "\xFC", 1252).Guess(), std::nullopt);
    EXPECT_EQ(Encoding::Of("plain", guessedCodePage).FormCodePage(), 1252);
}

TEST(Encoding, DecodesAndEncodesToTheSameBytes) {
    const struct {
        std::string bytes;
        Text text;
    } samples[] = {
        {"Gr\xFC\xDF"
         "e \x80",
         u"Grüße €"},
        {"Gr\xC3\xBC\xC3\x9F"
         "e \xF0\x9F\x98\x80",
         u"Grüße \U0001F600"},
        {"\xEF\xBB\xBFGr\xC3\xBC\xC3\x9F"
         "e",
         u"Grüße"},
        {"\xEF\xBB\xBF\xEF\xBB\xBF", u"\xFEFF"},
        {"", u""},
    };
    for (const auto& sample : samples) {
        const Encoding encoding = Encoding::Of(sample.bytes, 1252);
        EXPECT_EQ(encoding.Decode(sample.bytes), sample.text);
        EXPECT_EQ(encoding.Encode(sample.text), sample.bytes);
    }
}

TEST(Encoding, RefusesMalformedBytesWithTheirPlace) {
    const std::string marked =
        "\xEF\xBB\xBF"
        "ab\xFF";
    EXPECT_THAT([&] { Encoding::Of(marked, 1252).Decode(marked); },
                Throws<MalformedUtf8>(Field(&MalformedUtf8::offset, 5)));
    EXPECT_THAT([&] { Encoding::Of("a\xFF", 65001).Decode("a\xFF"); },
                Throws<MalformedUtf8>(Field(&MalformedUtf8::offset, 1)));
}

TEST(Encoding, RefusesUnitsThatItDoesNotHave) {
    EXPECT_THAT([] { Encoding::Of("", 1252).Encode(u"abя"); },
                Throws<Unmappable>(AllOf(Field(&Unmappable::index, 2),
                                         Field(&Unmappable::encoding, "Windows-1252"))));
    for (const Text& lone : {Text(u"\U0001F600\xD83D"), Text(u"ab\xDE00"), Text(u"ab\xD83Dz")}) {
        EXPECT_THAT([&] { Encoding::Of("", 65001).Encode(lone); },
                    Throws<Unmappable>(AllOf(Field(&Unmappable::index, 2),
                                             Field(&Unmappable::encoding, "UTF-8"))));
    }
}

}  // namespace
}  // namespace lumenkit::forms
