// Forms in another code page than the one they were read in.
#include "forms/change_encoding.h"

#include <stdexcept>

#include <gmock/gmock.h>

#include "forms/known_code_pages.h"
#include "frame/utf8.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

using ::testing::HasSubstr;

const std::string german =
    "VERSION 5.00\r\nBegin VB.Form F\r\n   Caption = \"Gr\xFC\xDF"
    "e\"\r\nEnd\r\n' \xC4\r\n";
const std::string germanInUtf8 =
    "VERSION 5.00\r\nBegin VB.Form F\r\n   Caption = \"Gr\xC3\xBC\xC3\x9F"
    "e\"\r\nEnd\r\n' \xC3\x84\r\n";

std::string ErrorIn(const Document& document, int codePage) {
    try {
        InCodePage(document, codePage);
        return "no error";
    } catch (const FormError& error) {
        return error.what();
    }
}

TEST(InCodePage, HasTheSameTextsInOtherBytes) {
    const Document utf8 = InCodePage(ParseBytes(german), utf8CodePage);
    EXPECT_EQ(utf8.FormCodePage(), utf8CodePage);
    EXPECT_EQ(utf8.CompanionCodePage(), defaultCodePage);
    EXPECT_EQ(utf8.Write().form, germanInUtf8);
    const Document back = InCodePage(utf8, defaultCodePage);
    EXPECT_EQ(back.FormCodePage(), defaultCodePage);
    EXPECT_EQ(back.Write().form, german);
    EXPECT_EQ(InCodePage(utf8, 1250).CompanionCodePage(), 1250);
}

TEST(InCodePage, TakesTextsOfTheNewPage) {
    const Document utf8 = InCodePage(ParseBytes(german), utf8CodePage);
    utf8.Root().FindProperty(u"Caption")->Set(Text(u"Привет"));
    EXPECT_THAT(utf8.Write().form, HasSubstr("Caption = \"" + ToUtf8(u"Привет") + '"'));
}

TEST(InCodePage, KeepsTheUtf8Mark) {
    const Document marked = ParseBytes("\xEF\xBB\xBF" + germanInUtf8);
    EXPECT_EQ(InCodePage(marked, utf8CodePage).Write().form, "\xEF\xBB\xBF" + germanInUtf8);
    EXPECT_EQ(InCodePage(marked, defaultCodePage).Write().form, german);
}

TEST(InCodePage, RefusesACharacterThatThePageDoesNotHave) {
    const Document document = ParseBytes(german);
    EXPECT_EQ(ErrorIn(document, 1251), "x.frm:3:17: U+00FC cannot be written in Windows-1251");
    EXPECT_EQ(document.Write().form, german);
}

TEST(InCodePage, RefusesBytesThatAreNoCharacters) {
    EXPECT_EQ(ErrorIn(ParseBytes("VERSION 5.00\nBegin VB.Form F\nEnd\n' \x81\n"), utf8CodePage),
              "x.frm: has bytes that are no characters of code page 1252");
}

TEST(InCodePage, RefusesAnUnknownPage) {
    EXPECT_THROW(InCodePage(ParseBytes(german), 12345), std::invalid_argument);
}

TEST(InCodePage, RefusesBytesThatWouldBeReadAsUtf8) {
    const Document document =
        ParseBytes("VERSION 5.00\nBegin VB.Form F\n   Caption = \"" + ToUtf8(u"Ã¼") + "\"\nEnd\n");
    EXPECT_THAT(ErrorIn(document, defaultCodePage), HasSubstr("would be read as UTF-8"));
}

const std::string withText =
    "VERSION 5.00\r\nBegin VB.Form F\r\n   Begin VB.TextBox T\r\n      Text = $\"x.frx\":0000\r\n"
    "   End\r\nEnd\r\n";
const std::string withList =
    "VERSION 5.00\r\nBegin VB.Form F\r\n   Begin VB.ListBox L\r\n      List = \"x.frx\":0000\r\n"
    "   End\r\nEnd\r\n";
using namespace std::string_literals;

TEST(InCodePage, KeepsThePageOfTextsInTheCompanion) {
    const std::string record = "\x03\xCF\xF0\xE8";  // "При" in 1251
    const Document cyrillic = ParseBytes(withText, record, 1251);
    EXPECT_EQ(ErrorIn(cyrillic, 1252),
              "x.frm: x.frx has texts in code page 1251, which would be read in code page 1252");
    EXPECT_EQ(ErrorIn(cyrillic, utf8CodePage),
              "x.frm: x.frx has texts in code page 1251, which would be read in code page 1252")
        << "no font names the page";
    const Document western = ParseBytes(withText, record, 1252);
    EXPECT_EQ(ErrorIn(western, utf8CodePage), "no error");
    EXPECT_EQ(InCodePage(western, utf8CodePage).Write().companion, record);
    EXPECT_EQ(ErrorIn(ParseBytes(withText,
                                 "\x03"
                                 "abc",
                                 1251),
                      1252),
              "no error");
}

TEST(InCodePage, KeepsThePageOfListsInTheCompanion) {
    const std::string list = "\x01\x00\x03\x00\x01\x00\xE9"s;
    EXPECT_THAT(ErrorIn(ParseBytes(withList, list, 1252), 1250), HasSubstr("has texts"));
    EXPECT_EQ(ErrorIn(ParseBytes(withList, "\x01\x00\x03\x00\x01\x00z"s, 1252), 1250), "no error");
    EXPECT_THAT(ErrorIn(ParseBytes(withList, "\x05\x00\x03\x00\x01"s, 1252), 1250),
                HasSubstr("has texts"))
        << "it is not understood";
    EXPECT_EQ(ErrorIn(ParseBytes(withList, list, 1252), utf8CodePage), "no error");
}

TEST(InCodePage, GoesThereAndBackWithEverySample) {
    int changed = 0;
    for (const SampleForm& sample : SampleForms()) {
        const Document document = sample.Parse();
        if (document.FormCodePage() == utf8CodePage) {
            continue;
        }
        const std::string error = ErrorIn(document, utf8CodePage);
        if (error != "no error") {
            EXPECT_THAT(error, HasSubstr("has texts in code page")) << sample.name;
            continue;
        }
        const CodePage page(document.FormCodePage());
        const Document utf8 = InCodePage(document, utf8CodePage);
        EXPECT_EQ(FromUtf8(utf8.Write().form), page.Decode(sample.form)) << sample.name;
        const FormBytes back = InCodePage(utf8, document.FormCodePage()).Write();
        EXPECT_EQ(back.form, page.Encode(page.Decode(sample.form)))
            << sample.name << ": the usual bytes of characters that the page has twice";
        EXPECT_EQ(back.companion, sample.companion) << sample.name;
        changed += utf8.Write().form != sample.form ? 1 : 0;
    }
    EXPECT_GT(changed, 3);
}

}  // namespace
}  // namespace lumenkit::forms::testing
