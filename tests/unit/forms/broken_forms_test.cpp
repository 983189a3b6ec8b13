#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

using namespace std::string_literals;

std::string ErrorOf(std::string_view form, const std::string& companion = {},
                    int codePage = defaultCodePage) {
    try {
        ParseBytes(form, companion, codePage);
        return "no error";
    } catch (const FormError& error) {
        return error.what();
    }
}

// Returns a form with one line in its block. The line is the third of the form.
std::string WithLine(const std::string& line) {
    return "VERSION 5.00\nBegin VB.Form Form1 \n" + line + "\nEnd\n";
}

struct Broken {
    std::string form;
    std::string error;
    std::string companion = {};
};

void ExpectErrors(const std::vector<Broken>& table) {
    for (const Broken& broken : table) {
        EXPECT_EQ(ErrorOf(broken.form, broken.companion), broken.error)
            << ::testing::PrintToString(broken.form);
    }
}

TEST(BrokenForms, HeadIsRefused) {
    ExpectErrors({
        {"", "x.frm:1:1: expected VERSION, found the end of the file"},
        {"\n", "x.frm:1:1: expected VERSION, found the end of the line"},
        {"Begin VB.Form Form1\nEnd\n", "x.frm:1:1: expected VERSION, found Begin"},
        {"VERSIONS 5.00\n", "x.frm:1:1: expected VERSION, found VERSIONS"},
        {"VERSION", "x.frm:1:8: expected a version number, found the end of the file"},
        {"VERSION five\n", "x.frm:1:9: expected a version number, found five"},
        {"VERSION 1.0 CLASS\n", "x.frm:1:13: expected the end of the line, found CLASS"},
        {"VERSION 5.00", "x.frm:1:13: expected Object or Begin, found the end of the file"},
        {"VERSION 5.00\n", "x.frm:2:1: expected Object or Begin, found the end of the file"},
        {"VERSION 5.00\r\n  Attribute VB_Name = 1\r\n",
         "x.frm:2:3: expected Object or Begin, found Attribute"},
        {"VERSION 5.00\nBeginning\n", "x.frm:2:1: expected Object or Begin, found Beginning"},
        {"VERSION 5.00\nObject\n", "x.frm:2:7: expected '=', found the end of the line"},
        {"VERSION 5.00\nObject = {1}\n", "x.frm:2:10: expected '\"', found {1}"},
        {"VERSION 5.00\nObject = \"a\"; b\n", "x.frm:2:15: expected '\"', found b"},
        {"VERSION 5.00\nObject = \"a\", \"b\"\n",
         "x.frm:2:13: expected the end of the line, found ,"},
        {"VERSION 5.00\nObject = \"a\n",
         "x.frm:2:12: expected '\"' to end the text, found the end of the line"},
        {"VERSION 5.00\rBegin VB.Form Form1\rEnd\r",
         "x.frm:1:13: expected the end of the line, found U+000D"},
        {"VERSION 5.00\0\n"s, "x.frm:1:13: expected the end of the line, found U+0000"},
        {"\0\0\0\0"s, "x.frm:1:1: expected VERSION, found U+0000"},
    });
}

TEST(BrokenForms, BlocksAreRefused) {
    ExpectErrors({
        {"VERSION 5.00\nBegin\n", "x.frm:2:6: expected a class name, found the end of the line"},
        {"VERSION 5.00\nBegin VB.Form\n",
         "x.frm:2:14: expected a control name, found the end of the line"},
        {"VERSION 5.00\nBegin VB.Form \n",
         "x.frm:2:15: expected a control name, found the end of the line"},
        {"VERSION 5.00\nBegin VB.Form Form1 Form2\n",
         "x.frm:2:21: expected the end of the line, found Form2"},
        {"VERSION 5.00\nBegin VB.Form \"Form1\"\n",
         "x.frm:2:15: expected a control name, found \"Form1\""},
        {"VERSION 5.00\nBegin VB.Form Form1",
         "x.frm:2:20: expected End of Form1 (begun in line 2), found the end of the file"},
        {"VERSION 5.00\nBegin VB.Form Form1\n",
         "x.frm:3:1: expected End of Form1 (begun in line 2), found the end of the file"},
        {"VERSION 5.00\nBegin VB.Form Form1\n   Begin VB.Label Label1\n   End\n   ",
         "x.frm:5:4: expected End of Form1 (begun in line 2), found the end of the file"},
        {WithLine("   BeginProperty Font \n      Size = 8\n   End"),
         "x.frm:5:4: expected a property or EndProperty, found End"},
        {WithLine("   BeginProperty Font \n      Begin VB.Label Label1\n"),
         "x.frm:4:7: expected a property or EndProperty, found Begin"},
        {WithLine("   EndProperty"),
         "x.frm:3:4: expected a property, a block or End, found EndProperty"},
        {WithLine("   BeginProperty"),
         "x.frm:3:17: expected a property name, found the end of the line"},
        {WithLine("   BeginProperty Font Name"),
         "x.frm:3:23: expected the end of the line, found Name"},
        {WithLine("   BeginProperty Font {0BE35203}"), "x.frm:3:32: expected '-', found }"},
        {WithLine("   BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB85}"),
         "x.frm:3:59: expected a hexadecimal digit, found }"},
        {WithLine("   BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB8511}"),
         "x.frm:3:60: expected '}', found 1}"},
        {WithLine("   BeginProperty Font"),
         "x.frm:4:1: expected a property or EndProperty, found End"},
        {WithLine("End of it"), "x.frm:3:5: expected the end of the line, found of"},
    });
}

TEST(BrokenForms, PropertiesAreRefused) {
    ExpectErrors({
        {WithLine("   Caption"), "x.frm:3:11: expected '=', found the end of the line"},
        {WithLine("   Caption \"x\""), "x.frm:3:12: expected '=', found \"x\""},
        {WithLine("   = 1"), "x.frm:3:4: expected a property, a block or End, found ="},
        {WithLine("   \"x\" = 1"), "x.frm:3:4: expected a property, a block or End, found \"x\""},
        {WithLine("   Cap\x01tion = 1"), "x.frm:3:7: expected '=', found U+0001"},
        {WithLine("   Caption ="), "x.frm:3:13: expected a value, found the end of the line"},
        {WithLine("   Caption = 'none"), "x.frm:3:14: expected a value, found 'none"},
        {WithLine("   Caption = Form1"), "x.frm:3:14: expected a value, found Form1"},
        {WithLine("   Caption = \"Form1"),
         "x.frm:3:20: expected '\"' to end the text, found the end of the line"},
        {WithLine("   Caption = \"Form1\"\""),
         "x.frm:3:22: expected '\"' to end the text, found the end of the line"},
        {WithLine("   Caption = \"Form\0001\""s),
         "x.frm:3:19: expected '\"' to end the text, found U+0000"},
        {WithLine("   Caption = \"a\" \"b\""),
         "x.frm:3:18: expected the end of the line, found \"b\""},
        {WithLine("   Width = 12x"), "x.frm:3:14: expected the end of the line, found x"},
        {WithLine("   Width = 1 2"), "x.frm:3:14: expected the end of the line, found 2"},
        {WithLine("   Width = -"), "x.frm:3:13: expected a digit, found the end of the line"},
        {WithLine("   Width = --1"), "x.frm:3:13: expected a digit, found -1"},
        {WithLine("   Width = 1."), "x.frm:3:14: expected a digit, found the end of the line"},
        {WithLine("   Width = 1E"), "x.frm:3:14: expected a digit, found the end of the line"},
        {WithLine("   Width = 1E+ 5"), "x.frm:3:15: expected a digit, found a blank"},
        {WithLine("   Width = 1E400"),
         "x.frm:3:12: expected a number that double precision can hold"},
        {WithLine("   Color = &80000005&"), "x.frm:3:13: expected H, found 80000005&"},
        {WithLine("   Color = &H&"), "x.frm:3:14: expected a hexadecimal digit, found &"},
        {WithLine("   Color = &H100000000&"),
         "x.frm:3:14: expected at most 8 hexadecimal digits, found 9"},
        {WithLine("   Color = &HFG&"), "x.frm:3:15: expected the end of the line, found G&"},
        {WithLine("   Shortcut = ^"), "x.frm:3:16: expected a key, found the end of the line"},
        {WithLine("   Shortcut = ^NN"), "x.frm:3:17: expected the end of the line, found N"},
        {WithLine("   Shortcut = {F1"), "x.frm:3:18: expected '}', found the end of the line"},
        {WithLine("   Shortcut = ^{}"), "x.frm:3:17: expected the name of a key, found }"},
        {WithLine("   Format = {6B263850-900B}"), "x.frm:3:27: expected '-', found }"},
        // the longest part of a line that an error quotes
        {WithLine("   Caption = abcdefghijklmnopqrstuvwxyz"),
         "x.frm:3:14: expected a value, found abcdefghijklmnopqrstuvwx"},
    });
}

TEST(BrokenForms, ReferencesAreRefused) {
    ExpectErrors({
        {WithLine("   Text = $\"x.frx\""),
         "x.frm:3:19: expected ':' and an offset, found the end of the line"},
        {WithLine("   Text = $x.frx"), "x.frm:3:12: expected '\"', found x.frx"},
        {WithLine("   Text = \"x.frx\":"),
         "x.frm:3:19: expected a hexadecimal digit, found the end of the line"},
        {WithLine("   Text = \"x.frx\":123456789"),
         "x.frm:3:19: expected at most 8 hexadecimal digits, found 9"},
        {WithLine("   Text = \"..\\x.frx\":0000"),
         "x.frm:3:11: expected the name of a file beside the form"},
        {WithLine("   Text = \"/etc/x.frx\":0000"),
         "x.frm:3:11: expected the name of a file beside the form"},
        {WithLine("   Text = \"C:x.frx\":0000"),
         "x.frm:3:11: expected the name of a file beside the form"},
        {WithLine("   Text = $\"..\":0000"),
         "x.frm:3:12: expected the name of a file beside the form"},
        {WithLine("   Text = \"\":0000"),
         "x.frm:3:11: expected the name of a file beside the form"},
        {WithLine("   Text = \"x.frx\":0000\n   Tag = \"y.frx\":0000"),
         "x.frm:4:10: expected a reference into x.frx, found y.frx", "a"},
        {WithLine("   Text = \"x.frx\":0000"),
         "x.frm:3:11: expected an offset below the companion's size of 0 bytes, found 0"},
        {WithLine("   Icon = \"x.frx\":0004"),
         "x.frm:3:11: expected an offset below the companion's size of 4 bytes, found 4", "abcd"},
        {WithLine("   Icon = \"x.frx\":FFFFFFFF"),
         "x.frm:3:11: expected an offset below the companion's size of 4 bytes, found 4294967295",
         "abcd"},
        {WithLine("   Text = $\"x.frx\":0000"),
         "x.frm:3:11: expected a string of 5 bytes in the companion, found 4", "\x05"s + "abcd"},
        {WithLine("   Text = $\"x.frx\":0001"),
         "x.frm:3:11: expected the length of a string in the companion, found 2 bytes",
         "\0\xFF\0"s},
        {WithLine("   Text = $\"x.frx\":0000"),
         "x.frm:3:11: expected a string of 65535 bytes in the companion, found 3",
         "\xFF\xFF\xFF"s + "abc"},
        {WithLine("   Text = $\"x.frx\":0000\n   Tag = $\"x.frx\":0002"),
         "x.frm:3:11: expected a string of 3 bytes in the companion, found 1", "\x03"s + "a\x01z"},
        {WithLine("   Text = $\"x.frx\":0000"),
         "x.frm:3:11: expected a string in the companion, found a picture",
         "\x0C\0\0\0lt\0\0\x04\0\0\0abcd"s},
    });
}

TEST(BrokenForms, EncodingsAreRefused) {
    EXPECT_EQ(ErrorOf("VERSION 5.00\n", "", 932),
              "x.frm: code page 932 is not known; 1250 to 1258 are, and 65001 (UTF-8)");
    EXPECT_EQ(ErrorOf(WithLine("   Caption = \"\xC3\xA9\xE9\""), "", utf8CodePage),
              "x.frm:3:16: expected UTF-8");
    EXPECT_EQ(ErrorOf("\xEF\xBB\xBF"
                      "VERSION \xFF"),
              "x.frm:1:9: expected UTF-8");
    EXPECT_EQ(ErrorOf("\xEF\xBB\xBF"
                      "VERSION x"),
              "x.frm:1:9: expected a version number, found x");
}

TEST(BrokenForms, ShowWhatWasFoundInUtf8) {
    EXPECT_EQ(ErrorOf(WithLine("   Caption = \xDC"
                               "ber")),
              "x.frm:3:14: expected a value, found \xC3\x9C"
              "ber");
    // 23 units, then a surrogate pair, which is quoted whole
    EXPECT_EQ(ErrorOf(WithLine("   Caption = abcdefghijklmnopqrstuvw\xF0\x9F\x98\x80z")),
              "x.frm:3:14: expected a value, found abcdefghijklmnopqrstuvw\xF0\x9F\x98\x80");
}

TEST(BrokenForms, TellFileAndPlaceApart) {
    try {
        ParseBytes(WithLine("   Width = x"));
        FAIL();
    } catch (const FormError& error) {
        EXPECT_EQ(error.File(), "x.frm");
        EXPECT_EQ(error.Place(), (Position{3, 12}));
        EXPECT_EQ(error.Description(), "expected a value, found x");
    }
}

std::string Nested(std::size_t depth, const std::string& open, const std::string& close) {
    std::string form = "VERSION 5.00\n";
    for (std::size_t i = 0; i < depth; ++i) {
        form += open;
    }
    for (std::size_t i = 0; i < depth; ++i) {
        form += close;
    }
    return form;
}

TEST(BrokenForms, NestingIsBounded) {
    EXPECT_EQ(ErrorOf(Nested(256, "Begin A B\n", "End\n")), "no error");
    EXPECT_EQ(ErrorOf(Nested(257, "Begin A B\n", "End\n")),
              "x.frm:258:7: expected at most 256 blocks in one another");
    EXPECT_EQ(ErrorOf(Nested(1000000, "Begin A B\n", "")),
              "x.frm:258:7: expected at most 256 blocks in one another");
    EXPECT_EQ(
        ErrorOf("VERSION 5.00\nBegin A B\n" + Nested(300, "BeginProperty C\n", "").substr(13)),
        "x.frm:258:15: expected at most 256 blocks in one another");
}

// Not a measure of speed: if reading were worse than linear, the test would take hours.
TEST(BrokenForms, LargeOnesEnd) {
    std::string properties;
    std::string names;
    for (int i = 0; i < 300000; ++i) {
        properties += "   P" + std::to_string(i) + " = $\"x.frx\":" + "0\n";
        names += "   Begin VB.Label Label1 \n   End\n";
    }
    const std::string text(1000000, 'x');
    const std::string shared = "\x40\x42\x0F\0"s + text + "left over";
    EXPECT_EQ(ErrorOf(WithLine(properties), shared), "no error");
    EXPECT_EQ(ErrorOf(WithLine(names)), "no error");
    EXPECT_EQ(ErrorOf(WithLine(names) + std::string(5000000, '\0')), "no error");
    EXPECT_EQ(ErrorOf(WithLine("   Caption = \"" + text + "\"")), "no error");
    EXPECT_EQ(ErrorOf(WithLine("   Width = " + std::string(1000000, '9'))),
              "x.frm:3:12: expected a number that double precision can hold");
    EXPECT_EQ(ErrorOf(WithLine("   Key = " + std::string(1000000, '{'))),
              "x.frm:3:11: expected the name of a key, found " + std::string(24, '{'));
    EXPECT_EQ(ErrorOf(std::string(5000000, '\n')),
              "x.frm:1:1: expected VERSION, found the end of the line");
}

}  // namespace
}  // namespace lumenkit::forms::testing
