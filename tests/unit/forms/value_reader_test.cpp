#include "forms/value_reader.h"

#include <initializer_list>
#include <utility>

#include <gtest/gtest.h>

#include "frame/utf8.h"

namespace lumenkit::forms {
namespace {

struct Reading {
    TextView source;
    Literal literal;
};

void ExpectReadings(std::initializer_list<Reading> readings) {
    for (const Reading& reading : readings) {
        Scanner scanner(reading.source, "x");
        EXPECT_EQ(ReadValue(scanner).literal, reading.literal) << ToUtf8(reading.source);
        EXPECT_TRUE(scanner.AtEnd()) << ToUtf8(reading.source);
    }
}

TEST(ValueReader, ReadsTexts) {
    ExpectReadings({
        {u"\"a\"", Text(u"a")},
        {u"\"\"", Text()},
        {u"\"\"\"\"", Text(u"\"")},
        {u"\"say \"\"x\"\"\"", Text(u"say \"x\"")},
        {u"\"it's; a = b\t{\"", Text(u"it's; a = b\t{")},
    });
}

TEST(ValueReader, ReadsNumbers) {
    ExpectReadings({
        {u"0", 0},
        {u"-1", -1},
        {u"007", 7},
        {u"2147483647", 2147483647},
        {u"2147483648", 2147483648.0},
        {u"8.25", 8.25},
        {u"-.5", -0.5},
        {u"1.5E-05", 1.5e-5},
        {u"1E20", 1e20},
        {u"1e+3", 1000.0},
    });
}

TEST(ValueReader, ReadsHexadecimalNumbers) {
    ExpectReadings({
        {u"&H80000005&", HexNumber{0x80000005}},
        {u"&H00c0ffee&", HexNumber{0xC0FFEE}},
        {u"&hFFFF&", HexNumber{0xFFFF}},
        {u"&HFFFF", HexNumber{0xFFFFFFFF}},
        {u"&H7FFF", HexNumber{0x7FFF}},
        {u"&H10000", HexNumber{0x10000}},
    });
}

TEST(ValueReader, ReadsBooleansByTheirComment) {
    ExpectReadings({
        {u"-1  'True", true},
        {u"0   'False", false},
        {u"-1 ' true ", true},
        {u"-1", -1},
        {u"1   'True", 1},
        {u"-1  'False", -1},
        {u"0   'None", 0},
    });
}

TEST(ValueReader, ReadsShortcuts) {
    ExpectReadings({
        {u"^N", Shortcut{u"^N"}},
        {u"{F1}", Shortcut{u"{F1}"}},
        {u"+^{F12}", Shortcut{u"+^{F12}"}},
        {u"{DEL}", Shortcut{u"{DEL}"}},
        {u"%{BKSP}", Shortcut{u"%{BKSP}"}},
    });
}

TEST(ValueReader, ReadsIdentifiers) {
    ExpectReadings({
        {u"{0BE35203-8F91-11CE-9de3-00AA004BB851}",
         Guid{u"{0BE35203-8F91-11CE-9de3-00AA004BB851}"}},
    });
}

TEST(ValueReader, ReadsReferences) {
    ExpectReadings({
        {u"\"x.frx\":0000", Reference{u"x.frx", 0, false}},
        {u"$\"x y.frx\":1aF", Reference{u"x y.frx", 0x1AF, true}},
        {u"$\"x.frx\":FFFFFFFF", Reference{u"x.frx", 0xFFFFFFFF, true}},
    });
}

TEST(ValueReader, ReadsComments) {
    const std::pair<TextView, TextView> comments[] = {
        {u"1  'Fixed Single\r\n", u"Fixed Single"},
        {u"1\t'", u""},
        {u"\"'\"  ' it's", u" it's"},
        {u"1 \n'no", u""},
    };
    for (const auto& [source, comment] : comments) {
        Scanner scanner(source, "x");
        EXPECT_EQ(ReadValue(scanner).comment, comment) << ToUtf8(source);
    }
}

}  // namespace
}  // namespace lumenkit::forms
