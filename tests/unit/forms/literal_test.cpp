#include "forms/literal.h"

#include <limits>

#include <gmock/gmock.h>

#include "frame/runtime_error.h"

namespace lumenkit::forms {
namespace {

TEST(Literal, IsWrittenAsDesignersDo) {
    EXPECT_EQ(SourceOf(Text(u"a \"b\"")), u"\"a \"\"b\"\"\"");
    EXPECT_EQ(SourceOf(Text()), u"\"\"");
    EXPECT_EQ(SourceOf(true), u"-1  'True");
    EXPECT_EQ(SourceOf(false), u"0   'False");
    EXPECT_EQ(SourceOf(-240), u"-240");
    EXPECT_EQ(SourceOf(HexNumber{0x80000005}), u"&H80000005&");
    EXPECT_EQ(SourceOf(HexNumber{0xC0FFEE}), u"&H00C0FFEE&");
    EXPECT_EQ(SourceOf(8.25), u"8.25");
    EXPECT_EQ(SourceOf(0.5), u"0.5");
    EXPECT_EQ(SourceOf(-0.5), u"-0.5");
    EXPECT_EQ(SourceOf(1e20), u"1E+20");
    EXPECT_EQ(SourceOf(4294967295.0), u"4294967295");
    EXPECT_EQ(SourceOf(Shortcut{u"^N"}), u"^N");
    EXPECT_EQ(SourceOf(Guid{u"{1}"}), u"{1}");
    EXPECT_EQ(SourceOf(Reference{u"x.frx", 0, false}), u"\"x.frx\":0000");
    EXPECT_EQ(SourceOf(Reference{u"x.frx", 0x1AF, true}), u"$\"x.frx\":01AF");
    EXPECT_EQ(SourceOf(Reference{u"x.frx", 0xABCDE, true}), u"$\"x.frx\":ABCDE");
}

TEST(Literal, KeepsShortPlainTextsInTheForm) {
    EXPECT_EQ(TextLiteral(u""), Literal(Text()));
    EXPECT_EQ(TextLiteral(u"a \"b\" ä"), Literal(Text(u"a \"b\" ä")));
    const Text longest(128, u'x');
    EXPECT_EQ(TextLiteral(longest), Literal(longest));
}

TEST(Literal, MovesOtherTextsToTheCompanion) {
    const Text tooLong(129, u'x');
    EXPECT_EQ(TextLiteral(tooLong), Literal(CompanionText{tooLong}));
    for (const Text& text : {Text(u"a\r\nb"), Text(u"a\nb"), Text(u"a\tb"), Text(1, u'\0')}) {
        EXPECT_EQ(TextLiteral(text), Literal(CompanionText{text}));
    }
}

TEST(Literal, TakesNumbersWithoutAFractionAsWhole) {
    EXPECT_EQ(NumberLiteral(240.0), Literal(240));
    EXPECT_EQ(NumberLiteral(240.0F), Literal(240));
    EXPECT_EQ(NumberLiteral(-2147483648.0), Literal(std::numeric_limits<std::int32_t>::min()));
    EXPECT_EQ(NumberLiteral(2147483648.0), Literal(2147483648.0));
    EXPECT_EQ(NumberLiteral(0.1F), Literal(0.1));
    EXPECT_EQ(NumberLiteral(8.25F), Literal(8.25));
    EXPECT_THROW(NumberLiteral(std::numeric_limits<double>::infinity()), RuntimeError);
    EXPECT_THROW(NumberLiteral(std::numeric_limits<float>::quiet_NaN()), RuntimeError);
}

}  // namespace
}  // namespace lumenkit::forms
