#include "forms/code_page.h"

#include <set>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace lumenkit::forms {
namespace {

std::string AllBytes() {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    return bytes;
}

TEST(CodePage, DecodesSamplesOfEveryPage) {
    const struct {
        int page;
        std::string bytes;
        Text text;
    } samples[] = {
        {1250, "\xAF\xBF\xB3\x8C\xE5", u"ŻżłŚĺ"},      {1251, "\xCF\xF0\xE8\xA8\x80", u"ПриЁЂ"},
        {1252, "\x80\xE4\x9F\xA0\xFF", u"€äŸ\u00A0ÿ"}, {1253, "\xC1\xE1\xF9\xA2", u"ΑαωΆ"},
        {1254, "\xDD\xFD\xDE\xF0", u"İıŞğ"},           {1255, "\xE0\xFA\xA4", u"את₪"},
        {1256, "\xC7\xE1\x81\xA1", u"ال\u067E\u060C"}, {1257, "\xC0\xE0\xFE", u"Ąąž"},
        {1258, "\xD0\xF0\xFE\xD5", u"Đđ₫Ơ"},
    };
    for (const auto& sample : samples) {
        EXPECT_EQ(CodePage(sample.page).Decode(sample.bytes), sample.text) << sample.page;
    }
}

TEST(CodePage, GivesEveryByteAUnitOfItsOwnAndBack) {
    for (int number = 1250; number <= 1258; ++number) {
        const CodePage page(number);
        EXPECT_EQ(page.Number(), number);
        const std::string bytes = AllBytes();
        const Text text = page.Decode(bytes);
        EXPECT_EQ(std::set<char16_t>(text.begin(), text.end()).size(), 256U) << number;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            EXPECT_EQ(page.Encode(text[i]), bytes[i]) << number << " " << i;
        }
        for (std::size_t i = 0; i < 128; ++i) {
            EXPECT_EQ(text[i], i);
        }
    }
}

TEST(CodePage, KeepsBytesThatThePageLeavesUndefined) {
    EXPECT_EQ(CodePage(1252).Decode("\x81\x8D\x8F\x90\x9D"), u"\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(CodePage(1253).Decode("\xAA"), u"\xF8F9");
}

TEST(CodePage, HasNoByteForOtherUnits) {
    EXPECT_FALSE(CodePage(1252).Encode(u'Я'));
    EXPECT_FALSE(CodePage(1251).Encode(u'é'));
    EXPECT_FALSE(CodePage(1252).Encode(u'\x80'));
    EXPECT_FALSE(CodePage(1252).Encode(u'\xD83D'));
    EXPECT_FALSE(CodePage(1252).Encode(u'\xFFFF'));
    EXPECT_EQ(CodePage(1252).Encode(u'€'), '\x80');
}

TEST(CodePage, IsRefusedWhereItIsNotKnown) {
    for (const int number : {0, 437, 850, 932, 936, 1249, 1259, 65001}) {
        EXPECT_THROW(CodePage{number}, std::invalid_argument) << number;
    }
}

}  // namespace
}  // namespace lumenkit::forms
