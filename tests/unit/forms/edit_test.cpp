#include <gmock/gmock.h>

#include "forms/document.h"
#include "frame/numbers.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

using namespace std::string_literals;

std::string RefusalOf(const Document& document) {
    try {
        document.Write();
        return "none";
    } catch (const FormError& error) {
        return error.what();
    }
}

TEST(Edit, ReplacesInsertsAndRemovesProperties) {
    const Document document = Sample("label.frm").Parse();
    Block& label = Find(document, {u"VLabel1"});
    label.Set(u"Caption", Text(u"He said \"|b|no\""));
    label.Set(u"WORDWRAP", false);
    EXPECT_TRUE(label.Remove(u"bulletprefix"));
    label.Set(u"BackStyle", 1);
    label.Set(u"ForeColor", HexNumber{0xFF});
    label.Set(u"Object.ToolTipText", Text(u"new"), u"forecolor");
    EXPECT_FALSE(label.Remove(u"Missing"));
    EXPECT_EQ(document.Write().form, GoldenForm("label_edited.frm"));
    EXPECT_EQ(label.FindProperty(u"BackStyle")->NamePlace(), Position{});
}

TEST(Edit, ReplacesValuesAndNamesAndKeepsTheRestOfTheLine) {
    const Document document = Document::Parse("x.frm",
                                              "VERSION 5.00\nBegin VB.Form F\n"
                                              "  Captoin =\t\"a\"\t' old  \n"
                                              "  Tag = \"b\"  '\n"
                                              "  Left=2   \n"
                                              "  Visible = 0   'False\n"
                                              "End\n",
                                              {});
    Block& form = document.Root();
    const auto change = [&](TextView name, auto edit) {
        Property& property = *form.FindProperty(name);
        Property changed = property;
        edit(changed);
        form.Replace(property, std::move(changed));
    };
    change(u"Captoin", [](Property& property) {
        property.Replace(Text(u"x'y"));
        property.Rename(u"Caption");
    });
    change(u"Tag", [](Property& property) { property.Replace(Text()); });
    change(u"Left", [](Property& property) { property.Replace(-1); });
    change(u"Visible", [](Property& property) { property.Replace(7); });
    EXPECT_EQ(document.Write().form,
              "VERSION 5.00\nBegin VB.Form F\n"
              "  Caption =\t\"x'y\"\t' old  \n"
              "  Tag = \"\"  '\n"
              "  Left=-1   \n"
              "  Visible = 7\n"
              "End\n");
    EXPECT_EQ(form.FindProperty(u"Captoin"), nullptr);
    EXPECT_EQ(form.FindProperty(u"caption")->Comment(), u" old  ");
}

TEST(Edit, ReplacesALineByATextInTheCompanionAndKeepsItsComment) {
    const Document document =
        Document::Parse("x.frm", "VERSION 5.00\nBegin VB.Form F\nTag = \"b\"  'old\nEnd\n", {});
    Property& tag = *document.Root().FindProperty(u"Tag");
    tag.Replace(TextLiteral(u"a\nb"));
    const FormBytes bytes = document.Write();
    EXPECT_EQ(bytes.form, "VERSION 5.00\nBegin VB.Form F\nTag = $\"x.frx\":0000  'old\nEnd\n");
    EXPECT_EQ(bytes.companion,
              "\x03"
              "a\nb");
    tag.Replace(Text(u"c"));
    EXPECT_EQ(document.Write().form, "VERSION 5.00\nBegin VB.Form F\nTag = \"c\"  'old\nEnd\n");
}

TEST(Edit, AddsAndRemovesControlsAndLibraries) {
    Document document = Sample("all_three.frm").Parse();
    Block& box = Find(document, {u"fraLeft", u"picInner"});
    Block& old = Find(document, {u"fraLeft", u"picInner", u"VLabel1"});
    Block& added = box.AddControl(u"VB.Label", u"Label1", &old);
    added.Set(u"Caption", Text(u"plain"));
    Block& font = added.Group(u"Font", u"{0BE35203-8F91-11CE-9DE3-00AA004BB851}");
    font.Set(u"Name", Text(u"Arial"));
    added.Group(u"FONT", u"{unused}").Set(u"Size", NumberLiteral(9.75F));
    EXPECT_FALSE(document.Root().RemoveControl(old));
    EXPECT_TRUE(box.RemoveControl(old));
    document.Root().AddControl(u"VB.Timer", u"Timer1").Set(u"Interval", 500);
    document.AddLibrary(u"{00025600-0000-0000-C000-000000000046}#5.2#0", u"crystl32.ocx");
    EXPECT_EQ(document.Write().form, GoldenForm("all_three_edited.frm"));
    EXPECT_EQ(document.Libraries().size(), 2U);
}

TEST(Edit, MovesTextsToTheCompanion) {
    const Document document = Sample("memo.frm").Parse();
    Block& memo = Find(document, {u"VMemo1"});
    memo.Set(u"Text", TextLiteral(u"Ä\r\nmore\r\n.."));
    Text longText;
    for (int i = 0; i < 30; ++i) {
        longText += u"0123456789";
    }
    memo.Set(u"Tag", TextLiteral(longText));
    // Writing twice gives the same result: the second time appends nothing more.
    for (int i = 0; i < 2; ++i) {
        const FormBytes written = document.Write();
        EXPECT_EQ(written.form, GoldenForm("memo_edited.frm"));
        EXPECT_EQ(written.companion, GoldenForm("memo_edited.frx"));
    }
    EXPECT_EQ(document.TextOf(*memo.FindProperty(u"Tag")), longText);
}

TEST(Edit, KeepsTheWaysOfAFormThatWasWrittenByHand) {
    const Document document = Sample("by_hand.frm").Parse();
    document.Root().Set(u"Caption", Text(u"By machine"));
    Block& label = Find(document, {u"VLabel1"});
    label.Set(u"Caption", Text(u"|i|slanted"));
    label.Group(u"Font", u"").Set(u"Size", 12);
    label.Set(u"AutoSize", true);
    EXPECT_EQ(document.Write().form, GoldenForm("by_hand_edited.frm"));
}

TEST(Edit, GivesAFormItsFirstCompanion) {
    const Document document = ParseBytes("VERSION 5.00\nBegin A B\nEnd\n");
    document.Root().Set(u"Text", TextLiteral(u"a\r\nb"));
    const FormBytes written = document.Write();
    EXPECT_EQ(written.form,
              "VERSION 5.00\nBegin A B\n   Text            =   $\"x.frx\":0000\nEnd\n");
    EXPECT_EQ(written.companion, "\4a\r\nb"s);
}

TEST(Edit, SwapsPropertiesAndGroupsInTheirPlace) {
    const Document document =
        ParseBytes("VERSION 5.00\nBegin A B\n   First = 1\n   Middle = 2\n   Last = 3\nEnd\n");
    document.Root().Group(u"Middle", u"").Set(u"Name", Text(u"x"));
    EXPECT_EQ(document.Write().form,
              "VERSION 5.00\nBegin A B\n   First = 1\n   BeginProperty Middle \n"
              "      Name            =   \"x\"\n   EndProperty\n   Last = 3\nEnd\n");
    document.Root().Set(u"middle", 4);
    EXPECT_EQ(
        document.Write().form,
        "VERSION 5.00\nBegin A B\n   First = 1\n   middle          =   4\n   Last = 3\nEnd\n");
}

TEST(Edit, PutsNewPropertiesBeforeControls) {
    const Document document = ParseBytes(
        "VERSION 5.00\nBegin A B\n\n   Begin C D\n   End\n   Late = 1\n   Begin E F\n   End\n"
        "End\n");
    document.Root().Set(u"New", 2);
    Find(document, {u"D"}).Set(u"Only", 3);
    EXPECT_EQ(document.Write().form,
              "VERSION 5.00\nBegin A B\n\n   Begin C D\n      Only            =   3\n   End\n"
              "   Late = 1\n   New             =   2\n   Begin E F\n   End\nEnd\n");
    const Document empty = ParseBytes("VERSION 5.00\nBegin A B\n   Begin C D\n   End\nEnd\n");
    empty.Root().Set(u"New", 2);
    EXPECT_EQ(empty.Write().form,
              "VERSION 5.00\nBegin A B\n   New             =   2\n   Begin C D\n   End\nEnd\n");
}

TEST(Edit, RenamesAControlInItsLine) {
    const Document document =
        ParseBytes("VERSION 5.00\nBegin A.Begin Begin\n\tBegin\t C.D  D \'of D\n\tEnd\nEnd\n");
    Find(document, {u"D"}).Rename(u"Longer_1");
    document.Root().Rename(u"x");
    EXPECT_EQ(document.Write().form,
              "VERSION 5.00\nBegin A.Begin x\n\tBegin\t C.D  Longer_1 \'of D\n\tEnd\nEnd\n");
    EXPECT_EQ(Find(document, {u"Longer_1"}).ClassName(), u"C.D");
}

TEST(Edit, MovesControlsAmongTheirNeighbours) {
    const Document document = ParseBytes(
        "VERSION 5.00\nBegin A B\nBegin C c1\nEnd\nBegin C c2\nEnd\nBegin C c3\nEnd\nEnd\n");
    const auto order = [&] {
        Text names;
        for (const Block* control : document.Root().Controls()) {
            names += control->Name();
        }
        return names;
    };
    Block& first = Find(document, {u"c1"});
    Block& second = Find(document, {u"c2"});
    Block& third = Find(document, {u"c3"});
    EXPECT_TRUE(document.Root().MoveControl(third, &first));
    EXPECT_EQ(order(), u"c3c1c2");
    EXPECT_TRUE(document.Root().MoveControl(third, &third));
    EXPECT_EQ(order(), u"c3c1c2");
    EXPECT_TRUE(document.Root().MoveControl(first, nullptr));
    EXPECT_EQ(order(), u"c3c2c1");
    EXPECT_TRUE(document.Root().MoveControl(third, &first));
    EXPECT_EQ(order(), u"c2c3c1");
    EXPECT_FALSE(second.MoveControl(first, nullptr));
    EXPECT_EQ(order(), u"c2c3c1");
}

TEST(Edit, AControlInAnotherBlockKeepsItsLinesAtTheNewIndentation) {
    const Document document = ParseBytes(
        "VERSION 5.00\r\nBegin A B\r\n   Begin C c1\r\n      X  =  1 'one\r\n\r\n"
        "      BeginProperty Font\r\n         Size = 8\r\n      EndProperty\r\n"
        "  ' odd\r\n   End\r\n   Begin C c2\r\n      Y = 2\r\n      Begin C c3\r\n"
        "      End\r\n   End\r\nEnd\r\n");
    Block& first = Find(document, {u"c1"});
    Block& second = Find(document, {u"c2"});
    EXPECT_FALSE(second.TakeControl(second, first, nullptr));
    EXPECT_TRUE(second.TakeControl(document.Root(), first, second.Controls().front()));
    EXPECT_EQ(document.Write().form,
              "VERSION 5.00\r\nBegin A B\r\n   Begin C c2\r\n      Y = 2\r\n"
              "      Begin C c1\r\n         X  =  1 'one\r\n\r\n"
              "         BeginProperty Font\r\n            Size = 8\r\n"
              "         EndProperty\r\n  ' odd\r\n      End\r\n      Begin C c3\r\n"
              "      End\r\n   End\r\nEnd\r\n");
    EXPECT_TRUE(document.Root().TakeControl(second, *second.Controls().front(), &second));
    EXPECT_EQ(document.Write().form,
              "VERSION 5.00\r\nBegin A B\r\n   Begin C c1\r\n      X  =  1 'one\r\n\r\n"
              "      BeginProperty Font\r\n         Size = 8\r\n      EndProperty\r\n"
              "  ' odd\r\n   End\r\n   Begin C c2\r\n      Y = 2\r\n      Begin C c3\r\n"
              "      End\r\n   End\r\nEnd\r\n");
}

TEST(Edit, RefusesWhatWouldBeReadAsUtf8) {
    const Document document = Sample("empty.frm").Parse();
    document.Root().Set(u"Caption", Text(u"Ã©"));  // C3 A9, which is é in UTF-8
    EXPECT_EQ(RefusalOf(document),
              "empty.frm: all its characters beyond ASCII together would be read as UTF-8");
    document.Root().Set(u"Tag", Text(u"é"));
    EXPECT_EQ(RefusalOf(document), "none");
    const Document other = Sample("utf8.frm").Parse();
    other.Root().Set(u"Caption", Text(u"Ã©"));
    EXPECT_EQ(RefusalOf(other), "none");
}

TEST(Edit, ChangesTheFirstOfSeveralOfOneName) {
    const Document document = ParseBytes("VERSION 5.00\nBegin A B\n   C = 1\n   c = 2\nEnd\n");
    document.Root().Set(u"C", 3);
    EXPECT_EQ(document.Write().form, "VERSION 5.00\nBegin A B\n   C = 3\n   c = 2\nEnd\n");
}

TEST(Edit, RefusesToLoseCharactersWithTheirPlace) {
    const Document document = Sample("empty.frm").Parse();
    document.Root().Set(u"Caption", Text(u"a 中"));
    // Line 3, after `   Caption         =   "a `.
    EXPECT_EQ(RefusalOf(document), "empty.frm:3:27: U+4E2D cannot be written in Windows-1252");
    document.Root().Set(u"Caption", Text(u"a ä"));
    EXPECT_EQ(RefusalOf(document), "none");
    document.Root().Set(u"Tag", TextLiteral(u"two\r\nlines я"), u"Caption");
    EXPECT_EQ(RefusalOf(document), "empty.frm:4:24: U+044F cannot be written in Windows-1252");
    document.Root().Set(u"Tag", Text());
    EXPECT_EQ(RefusalOf(document), "none");
}

TEST(Edit, RefusesHalfCharactersInUtf8) {
    const Document document = Sample("utf8.frm").Parse();
    document.Root().Set(u"Tag", Text(u"\xD83D"));
    EXPECT_EQ(RefusalOf(document), "utf8.frm:13:25: U+D83D cannot be written in UTF-8");
    document.Root().Set(u"Tag", TextLiteral(u"日\r\n本"));
    EXPECT_EQ(RefusalOf(document), "utf8.frm:13:24: U+65E5 cannot be written in Windows-1252");
}

// A block that is searched often keeps its names sorted.
TEST(Edit, ABlockOfManyPropertiesIsSearchedLikeASmallOne) {
    std::string lines;
    constexpr int count = 5000;
    for (int i = 0; i < count; ++i) {
        lines += "P" + std::to_string(i * 7919 % count) + " = " + std::to_string(i) + "\n";
    }
    const Document document =
        ParseBytes("VERSION 5.00\nBegin VB.Form F\n" + lines +
                   "p17 = 99999\nBeginProperty Font\nEndProperty\nBegin VB.Label L\nEnd\nEnd\n");
    Block& block = document.Root();
    const auto find = [&](int number) {
        const Property* const found = block.FindProperty(u"p" + Decimal(number));
        return found == nullptr ? -1 : std::get<std::int32_t>(found->Literal()) * 7919 % count;
    };
    for (int number = 0; number < count; ++number) {
        ASSERT_EQ(find(number), number);
    }
    EXPECT_EQ(find(count), -1);
    EXPECT_EQ(block.FindProperty(u"L"), nullptr);
    EXPECT_NE(block.FindGroup(u"FONT"), nullptr);

    EXPECT_TRUE(block.Remove(u"P4000"));
    EXPECT_EQ(find(4000), -1);
    block.Set(u"New", NumberLiteral(5.0), u"P10");
    block.MoveControl(*block.Controls().front(), nullptr);
    for (int number = 0; number < count; ++number) {
        ASSERT_EQ(find(number), number == 4000 ? -1 : number);
    }
    EXPECT_NE(block.FindProperty(u"NEW"), nullptr);
    EXPECT_TRUE(block.Remove(u"p17"));
    EXPECT_EQ(std::get<std::int32_t>(block.FindProperty(u"P17")->Literal()), 99999);
}

}  // namespace
}  // namespace lumenkit::forms::testing
