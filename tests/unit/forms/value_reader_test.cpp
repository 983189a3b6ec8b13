#include "forms/value_reader.h"

#include <gmock/gmock.h>

namespace lumenkit::forms {
namespace {

Literal Read(TextView source) {
    Scanner scanner(source, "x");
    Literal literal = ReadValue(scanner).literal;
    EXPECT_TRUE(scanner.AtEnd());
    return literal;
}

Text CommentIn(TextView source) {
    Scanner scanner(source, "x");
    return ReadValue(scanner).comment;
}

TEST(ValueReader, ReadsTexts) {
    EXPECT_EQ(Read(u"\"a\""), Literal(Text(u"a")));
    EXPECT_EQ(Read(u"\"\""), Literal(Text()));
    EXPECT_EQ(Read(u"\"\"\"\""), Literal(Text(u"\"")));
    EXPECT_EQ(Read(u"\"say \"\"x\"\"\""), Literal(Text(u"say \"x\"")));
    EXPECT_EQ(Read(u"\"it's; a = b\t{\""), Literal(Text(u"it's; a = b\t{")));
}

TEST(ValueReader, ReadsNumbers) {
    EXPECT_EQ(Read(u"0"), Literal(0));
    EXPECT_EQ(Read(u"-1"), Literal(-1));
    EXPECT_EQ(Read(u"007"), Literal(7));
    EXPECT_EQ(Read(u"2147483647"), Literal(2147483647));
    EXPECT_EQ(Read(u"2147483648"), Literal(2147483648.0));
    EXPECT_EQ(Read(u"8.25"), Literal(8.25));
    EXPECT_EQ(Read(u"-.5"), Literal(-0.5));
    EXPECT_EQ(Read(u"1.5E-05"), Literal(1.5e-5));
    EXPECT_EQ(Read(u"1E20"), Literal(1e20));
    EXPECT_EQ(Read(u"1e+3"), Literal(1000.0));
}

TEST(ValueReader, ReadsHexadecimalNumbers) {
    EXPECT_EQ(Read(u"&H80000005&"), Literal(HexNumber{0x80000005}));
    EXPECT_EQ(Read(u"&H00c0ffee&"), Literal(HexNumber{0xC0FFEE}));
    EXPECT_EQ(Read(u"&hFFFF&"), Literal(HexNumber{0xFFFF}));
    EXPECT_EQ(Read(u"&HFFFF"), Literal(HexNumber{0xFFFFFFFF}));
    EXPECT_EQ(Read(u"&H7FFF"), Literal(HexNumber{0x7FFF}));
    EXPECT_EQ(Read(u"&H10000"), Literal(HexNumber{0x10000}));
}

TEST(ValueReader, ReadsBooleansByTheirComment) {
    EXPECT_EQ(Read(u"-1  'True"), Literal(true));
    EXPECT_EQ(Read(u"0   'False"), Literal(false));
    EXPECT_EQ(Read(u"-1 ' true "), Literal(true));
    EXPECT_EQ(Read(u"-1"), Literal(-1));
    EXPECT_EQ(Read(u"1   'True"), Literal(1));
    EXPECT_EQ(Read(u"-1  'False"), Literal(-1));
    EXPECT_EQ(Read(u"0   'None"), Literal(0));
}

TEST(ValueReader, ReadsComments) {
    EXPECT_EQ(CommentIn(u"1  'Fixed Single\r\n"), u"Fixed Single");
    EXPECT_EQ(CommentIn(u"1\t'"), u"");
    EXPECT_EQ(CommentIn(u"\"'\"  ' it's"), u" it's");
    EXPECT_EQ(CommentIn(u"1 \n'no"), u"");
}

TEST(ValueReader, ReadsShortcuts) {
    for (const Text& keys :
         {Text(u"^N"), Text(u"{F1}"), Text(u"+^{F12}"), Text(u"{DEL}"), Text(u"%{BKSP}")}) {
        EXPECT_EQ(Read(keys), Literal(Shortcut{keys}));
    }
}

TEST(ValueReader, ReadsIdentifiers) {
    const Text identifier = u"{0BE35203-8F91-11CE-9de3-00AA004BB851}";
    EXPECT_EQ(Read(identifier), Literal(Guid{identifier}));
}

TEST(ValueReader, ReadsReferences) {
    EXPECT_EQ(Read(u"\"x.frx\":0000"), Literal(Reference{u"x.frx", 0, false}));
    EXPECT_EQ(Read(u"$\"x y.frx\":1aF"), Literal(Reference{u"x y.frx", 0x1AF, true}));
    EXPECT_EQ(Read(u"$\"x.frx\":FFFFFFFF"), Literal(Reference{u"x.frx", 0xFFFFFFFF, true}));
}

}  // namespace
}  // namespace lumenkit::forms
