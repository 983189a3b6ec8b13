#include "frame/utf8.h"

#include <cstdint>
#include <string>
#include <string_view>

#include <gmock/gmock.h>

namespace lumenkit {
namespace {

using namespace std::string_literals;

struct Pair {
    std::string utf8;
    Text utf16;
};

// Both edges of every length, written by hand.
const Pair pairs[] = {
    {"", u""},
    {"\0"s, Text(1, u'\0')},
    {"\x7F", u"\x7F"},
    {"\xC2\x80", u"\x80"},
    {"\xDF\xBF", u"\x7FF"},
    {"\xE0\xA0\x80", u"\x800"},
    {"\xED\x9F\xBF", u"\xD7FF"},
    {"\xEE\x80\x80", u"\xE000"},
    {"\xEF\xBF\xBF", u"\xFFFF"},
    {"\xF0\x90\x80\x80", u"\xD800\xDC00"},
    {"\xF4\x8F\xBF\xBF", u"\xDBFF\xDFFF"},
    {"a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z", u"aé€\U0001F600z"},
};

TEST(Utf8, IsReadAsUtf16) {
    for (const Pair& pair : pairs) {
        EXPECT_EQ(FromUtf8(pair.utf8), pair.utf16);
    }
}

TEST(Utf8, IsWrittenFromUtf16) {
    for (const Pair& pair : pairs) {
        EXPECT_EQ(ToUtf8(pair.utf16), pair.utf8);
    }
}

TEST(Utf8, CarriesEveryCharacterThereAndBack) {
    Text all;
    for (std::uint32_t code = 0; code <= 0x10FFFF; ++code) {
        if (code >= 0xD800 && code <= 0xDFFF) {
            continue;
        }
        if (code > 0xFFFF) {
            all += static_cast<char16_t>(0xD7C0 + code / 0x400);
            all += static_cast<char16_t>(0xDC00 + code % 0x400);
        } else {
            all += static_cast<char16_t>(code);
        }
    }
    const std::string bytes = ToUtf8(all);
    EXPECT_EQ(bytes.size(), 128U + 2 * 1920 + 3 * (65536 - 2048 - 2048) + 4 * 1048576);
    EXPECT_TRUE(FromUtf8(bytes) == all);
}

TEST(Utf8, IsRefusedWhereItIsMalformedWithThePlace) {
    const std::string malformed[] = {
        // a continuation byte without a first byte
        "\x80",
        "\xBF",
        // bytes that never occur
        "\xC0\x80",
        "\xC1\xBF",
        "\xF5\x80\x80\x80",
        "\xFE",
        "\xFF",
        // longer than needed
        "\xE0\x80\x80",
        "\xE0\x9F\xBF",
        "\xF0\x80\x80\x80",
        "\xF0\x8F\xBF\xBF",
        // surrogates
        "\xED\xA0\x80",
        "\xED\xBF\xBF",
        "\xED\xA0\xBD\xED\xB8\x80",
        // beyond the last character
        "\xF4\x90\x80\x80",
        // cut at the end
        "\xC3",
        "\xE2",
        "\xE2\x82",
        "\xF0",
        "\xF0\x9F",
        "\xF0\x9F\x98",
        // cut by another byte
        "\xC3x",
        "\xC3\xC3\xA9",
        "\xE2xx",
        "\xE2\x82x",
        "\xF0xxx",
        "\xF0\x9Fxx",
        "\xF0\x9F\x98x",
    };
    for (const std::string& sound : {""s, "ab"s, "\xC3\xA9"s, "\xF0\x9F\x98\x80"s}) {
        for (const std::string& bad : malformed) {
            EXPECT_THAT([&] { FromUtf8(sound + bad); },
                        ::testing::Throws<MalformedUtf8>(::testing::AllOf(
                            ::testing::Field(&MalformedUtf8::offset, sound.size()),
                            ::testing::Property(&MalformedUtf8::what,
                                                ::testing::StrEq("not valid UTF-8 at byte " +
                                                                 std::to_string(sound.size()))))))
                << ::testing::PrintToString(bad);
        }
    }
}

TEST(Utf8, CarriesALoneSurrogateAsReplacement) {
    const std::string replacement = "\xEF\xBF\xBD";
    const std::string smile = "\xF0\x9F\x98\x80";
    EXPECT_EQ(ToUtf8(u"\xD83D"), replacement);
    EXPECT_EQ(ToUtf8(u"\xDE00"), replacement);
    EXPECT_EQ(ToUtf8(u"a\xD83D!"), "a" + replacement + "!");
    EXPECT_EQ(ToUtf8(u"a\xDE00!"), "a" + replacement + "!");
    EXPECT_EQ(ToUtf8(u"\xDE00\xD83D"), replacement + replacement);
    EXPECT_EQ(ToUtf8(u"\xD83D\xD83D\xDE00"), replacement + smile);
    EXPECT_EQ(ToUtf8(u"\xD83D\xDE00\xDE00"), smile + replacement);
}

}  // namespace
}  // namespace lumenkit
