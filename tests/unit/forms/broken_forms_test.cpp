#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/test_rounds.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

using namespace std::string_literals;

// Returns the error, or the first warning of a form that is kept.
std::string ErrorOf(std::string_view form, const std::string& companion = {},
                    int codePage = defaultCodePage) {
    try {
        const Document document = ParseBytes(form, companion, codePage);
        EXPECT_TRUE(document.Write().form == form);
        const std::vector<Warning> warnings = document.Warnings();
        return warnings.empty()
                   ? "no error"
                   : std::string("kept: ") +
                         FormError(document.Name(), warnings.front().place, warnings.front().text)
                             .what();
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
        {WithLine("   BeginProperty Font"),
         "x.frm:4:1: expected a property or EndProperty, found End"},
    });
}

TEST(BrokenForms, OddEndsOfLinesAreKept) {
    const auto withLibrary = [](const std::string& library) {
        return "VERSION 5.00\nObject = " + library + "\nBegin VB.Form Form1\nEnd\n";
    };
    const auto withGroup = [](const std::string& rest) {
        return WithLine("   BeginProperty Font " + rest + "\n   EndProperty");
    };
    ExpectErrors({
        {withLibrary("{1}"), "kept: x.frm:2:10: expected '\"', found {1}"},
        {withLibrary("\"a\"; b"), "kept: x.frm:2:15: expected '\"', found b"},
        {withLibrary("\"a\", \"b\""), "kept: x.frm:2:13: expected the end of the line, found ,"},
        {withLibrary("\"a"),
         "kept: x.frm:2:12: expected '\"' to end the text, found the end of the line"},
        {"VERSION 5.00\nBegin VB.Form Form1 Form2\nEnd\n",
         "kept: x.frm:2:21: expected the end of the line, found Form2"},
        {withGroup("Name"), "kept: x.frm:3:23: expected the end of the line, found Name"},
        {withGroup("{0BE35203}"), "kept: x.frm:3:32: expected '-', found }"},
        {withGroup("{0BE35203-8F91-11CE-9DE3-00AA004BB85}"),
         "kept: x.frm:3:59: expected a hexadecimal digit, found }"},
        {withGroup("{0BE35203-8F91-11CE-9DE3-00AA004BB8511}"),
         "kept: x.frm:3:60: expected '}', found 1}"},
        {WithLine("End of it"), "kept: x.frm:3:5: expected the end of the line, found of"},
    });
}

TEST(BrokenForms, OddPropertiesAreKept) {
    ExpectErrors({
        {WithLine("   Caption"), "kept: x.frm:3:11: expected '=', found the end of the line"},
        {WithLine("   Caption \"x\""), "kept: x.frm:3:12: expected '=', found \"x\""},
        {WithLine("   = 1"), "kept: x.frm:3:4: expected a property, a block or End, found ="},
        {WithLine("   \"x\" = 1"),
         "kept: x.frm:3:4: expected a property, a block or End, found \"x\""},
        {WithLine("   Cap\x01tion = 1"), "kept: x.frm:3:7: expected '=', found U+0001"},
        {WithLine("   Caption ="), "kept: x.frm:3:13: expected a value, found the end of the line"},
        {WithLine("   Caption = 'none"), "kept: x.frm:3:14: expected a value, found 'none"},
        {WithLine("   Caption = Form1"), "kept: x.frm:3:14: expected a value, found Form1"},
        {WithLine("   Caption = \"Form1"),
         "kept: x.frm:3:20: expected '\"' to end the text, found the end of the line"},
        {WithLine("   Caption = \"Form1\"\""),
         "kept: x.frm:3:22: expected '\"' to end the text, found the end of the line"},
        {WithLine("   Caption = \"Form\0001\""s),
         "kept: x.frm:3:19: expected '\"' to end the text, found U+0000"},
        {WithLine("   Caption = \"a\" \"b\""),
         "kept: x.frm:3:18: expected the end of the line, found \"b\""},
        {WithLine("   Width = 12x"), "kept: x.frm:3:14: expected the end of the line, found x"},
        {WithLine("   Width = 1 2"), "kept: x.frm:3:14: expected the end of the line, found 2"},
        {WithLine("   Width = -"), "kept: x.frm:3:13: expected a digit, found the end of the line"},
        {WithLine("   Width = --1"), "kept: x.frm:3:13: expected a digit, found -1"},
        {WithLine("   Width = 1."),
         "kept: x.frm:3:14: expected a digit, found the end of the line"},
        {WithLine("   Width = 1E"),
         "kept: x.frm:3:14: expected a digit, found the end of the line"},
        {WithLine("   Width = 1E+ 5"), "kept: x.frm:3:15: expected a digit, found a blank"},
        {WithLine("   Width = 1E400"),
         "kept: x.frm:3:12: expected a number that double precision can hold"},
        {WithLine("   Color = &80000005&"), "kept: x.frm:3:13: expected H, found 80000005&"},
        {WithLine("   Color = &H&"), "kept: x.frm:3:14: expected a hexadecimal digit, found &"},
        {WithLine("   Color = &H100000000&"),
         "kept: x.frm:3:14: expected at most 8 hexadecimal digits, found 9"},
        {WithLine("   Color = &HFG&"), "kept: x.frm:3:15: expected the end of the line, found G&"},
        {WithLine("   Shortcut = ^"),
         "kept: x.frm:3:16: expected a key, found the end of the line"},
        {WithLine("   Shortcut = ^NN"), "kept: x.frm:3:17: expected the end of the line, found N"},
        {WithLine("   Shortcut = {F1"),
         "kept: x.frm:3:18: expected '}', found the end of the line"},
        {WithLine("   Shortcut = ^{}"), "kept: x.frm:3:17: expected the name of a key, found }"},
        {WithLine("   Format = {6B263850-900B}"), "kept: x.frm:3:27: expected '-', found }"},
        // the longest part of a line that an error quotes
        {WithLine("   Caption = abcdefghijklmnopqrstuvwxyz"),
         "kept: x.frm:3:14: expected a value, found abcdefghijklmnopqrstuvwx"},
    });
}

TEST(BrokenForms, OddReferencesAreKept) {
    ExpectErrors({
        {WithLine("   Text = $\"x.frx\""),
         "kept: x.frm:3:19: expected ':' and an offset, found the end of the line"},
        {WithLine("   Text = $x.frx"), "kept: x.frm:3:12: expected '\"', found x.frx"},
        {WithLine("   Text = \"x.frx\":"),
         "kept: x.frm:3:19: expected a hexadecimal digit, found the end of the line"},
        {WithLine("   Text = \"x.frx\":123456789"),
         "kept: x.frm:3:19: expected at most 8 hexadecimal digits, found 9"},
        {WithLine("   Text = \"..\\x.frx\":0000"),
         "kept: x.frm:3:11: expected the name of a file beside the form"},
        {WithLine("   Text = \"/etc/x.frx\":0000"),
         "kept: x.frm:3:11: expected the name of a file beside the form"},
        {WithLine("   Text = \"C:x.frx\":0000"),
         "kept: x.frm:3:11: expected the name of a file beside the form"},
        {WithLine("   Text = $\"..\":0000"),
         "kept: x.frm:3:12: expected the name of a file beside the form"},
        {WithLine("   Text = \"\":0000"),
         "kept: x.frm:3:11: expected the name of a file beside the form"},
        {WithLine("   Text = \"x.frx\":0000\n   Tag = \"y.frx\":0000"),
         "kept: x.frm:4:10: expected a reference into x.frx, found y.frx", "a"},
        {WithLine("   Text = \"x.frx\":0000"),
         "kept: x.frm:3:11: expected an offset below the companion's size of 0 bytes, found 0"},
        {WithLine("   Icon = \"x.frx\":0004"),
         "kept: x.frm:3:11: expected an offset below the companion's size of 4 bytes, found 4",
         "abcd"},
        {WithLine("   Icon = \"x.frx\":FFFFFFFF"),
         "kept: x.frm:3:11: expected an offset below the companion's size of 4 bytes, found "
         "4294967295",
         "abcd"},
        {WithLine("   Text = $\"x.frx\":0000"),
         "kept: x.frm:3:11: expected a string of 5 bytes in the companion, found 4",
         "\x05"s + "abcd"},
        {WithLine("   Text = $\"x.frx\":0001"),
         "kept: x.frm:3:11: expected the length of a string in the companion, found 2 bytes",
         "\0\xFF\0"s},
        {WithLine("   Text = $\"x.frx\":0000"),
         "kept: x.frm:3:11: expected a string of 65535 bytes in the companion, found 3",
         "\xFF\xFF\xFF"s + "abc"},
        {WithLine("   Text = $\"x.frx\":0000\n   Tag = $\"x.frx\":0002"),
         "kept: x.frm:3:11: expected a string of 3 bytes in the companion, found 1",
         "\x03"s + "a\x01z"},
        {WithLine("   Text = $\"x.frx\":0000"),
         "kept: x.frm:3:11: expected a string in the companion, found a picture",
         "\x0C\0\0\0lt\0\0\x04\0\0\0abcd"s},
    });
}

TEST(BrokenForms, EncodingsAreRefused) {
    EXPECT_EQ(
        ErrorOf("VERSION 5.00\n", "", 437),
        "x.frm: code page 437 is not known; these are: 874, 932, 936, 949, 950, 1250 to 1258, "
        "1361 or 65001 (UTF-8)");
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
              "kept: x.frm:3:14: expected a value, found \xC3\x9C"
              "ber");
    // 23 units, then a surrogate pair, which is quoted whole
    EXPECT_EQ(ErrorOf(WithLine("   Caption = abcdefghijklmnopqrstuvw\xF0\x9F\x98\x80z")),
              "kept: x.frm:3:14: expected a value, found abcdefghijklmnopqrstuvw\xF0\x9F\x98\x80");
}

TEST(BrokenForms, TellFileAndPlaceApart) {
    try {
        ParseBytes("VERSION five\n");
        FAIL();
    } catch (const FormError& error) {
        EXPECT_EQ(error.File(), "x.frm");
        EXPECT_EQ(error.Place(), (Position{1, 9}));
        EXPECT_EQ(error.Description(), "expected a version number, found five");
    }
}

std::string Nested(std::size_t depth, const std::string& open, const std::string& close) {
    std::string form = "VERSION 5.00\n";
    for (std::size_t i = 0; i < depth; ++i) {
        form += open + std::to_string(i) + '\n';
    }
    for (std::size_t i = 0; i < depth; ++i) {
        form += close;
    }
    return form;
}

TEST(BrokenForms, NestingIsBounded) {
    EXPECT_EQ(ErrorOf(Nested(256, "Begin A B", "End\n")), "no error");
    EXPECT_EQ(ErrorOf(Nested(257, "Begin A B", "End\n")),
              "x.frm:258:7: expected at most 256 blocks in one another");
    EXPECT_EQ(ErrorOf(Nested(1000000, "Begin A B", "")),
              "x.frm:258:7: expected at most 256 blocks in one another");
    EXPECT_EQ(ErrorOf("VERSION 5.00\nBegin A B\n" + Nested(300, "BeginProperty C", "").substr(13)),
              "x.frm:258:15: expected at most 256 blocks in one another");
}

// Not a measure of speed: if reading were worse than linear, the test would take hours.
TEST(BrokenForms, LargeOnesEnd) {
    std::string properties;
    std::string names;
    for (int i = 0; i < lumenkit::testing::Rounds(300000); ++i) {
        properties += "   P" + std::to_string(i) + " = $\"x.frx\":" + "0\n";
        names += "   Begin VB.Label Label" + std::to_string(i) + " \n   End\n";
    }
    const std::string text(1000000, 'x');
    const std::string shared = "\x40\x42\x0F\0"s + text + "left over";
    EXPECT_EQ(ErrorOf(WithLine(properties), shared), "no error");
    EXPECT_EQ(ErrorOf(WithLine(names)), "no error");
    EXPECT_EQ(ErrorOf(WithLine(names) + std::string(5000000, '\0')), "no error");
    EXPECT_EQ(ErrorOf(WithLine("   Caption = \"" + text + "\"")), "no error");
    EXPECT_EQ(ErrorOf(WithLine("   Width = " + std::string(1000000, '9'))),
              "kept: x.frm:3:12: expected a number that double precision can hold");
    EXPECT_EQ(ErrorOf(WithLine("   Key = " + std::string(1000000, '{'))),
              "kept: x.frm:3:11: expected the name of a key, found " + std::string(24, '{'));
    EXPECT_EQ(ErrorOf(std::string(5000000, '\n')),
              "x.frm:1:1: expected VERSION, found the end of the line");
}

}  // namespace
}  // namespace lumenkit::forms::testing
