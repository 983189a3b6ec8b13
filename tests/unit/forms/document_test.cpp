#include "forms/document.h"

#include <algorithm>

#include <gmock/gmock.h>

#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

using ::testing::ElementsAre;
using namespace std::string_literals;

std::vector<Text> NamesOf(const std::vector<Block*>& blocks) {
    std::vector<Text> names;
    for (const Block* block : blocks) {
        names.push_back(block->Name());
    }
    return names;
}

Literal ValueIn(const Block& block, TextView name) {
    const Property* property = block.FindProperty(name);
    return property == nullptr ? Literal(Text(u"(none)")) : property->Literal();
}

TEST(Document, KnowsTheLibrariesOfAForm) {
    const Document document = Sample("unknown.frm").Parse();
    ASSERT_EQ(document.Libraries().size(), 2U);
    EXPECT_EQ(document.Libraries()[0].library, u"*\\AGauges.vbp");
    EXPECT_EQ(document.Libraries()[0].file, u"");
    EXPECT_EQ(document.Libraries()[0].place, (Position{2, 10}));
    EXPECT_EQ(document.Libraries()[1].library, u"{00025600-0000-0000-C000-000000000046}#5.2#0");
    EXPECT_EQ(document.Libraries()[1].file, u"crystl32.ocx");
}

TEST(Document, HasTheTreeOfNestedControls) {
    const Document document = Sample("all_three.frm").Parse();
    EXPECT_EQ(document.Root().ClassName(), u"VB.Form");
    EXPECT_EQ(document.Root().Name(), u"frmAll");
    EXPECT_EQ(document.Root().Kind(), BlockKind::Control);
    EXPECT_THAT(NamesOf(document.Root().Controls()), ElementsAre(u"fraLeft", u"VMemo1"));
    EXPECT_THAT(NamesOf(Find(document, {u"fraLeft", u"picInner"}).Controls()),
                ElementsAre(u"VLabel1", u"VOptList1"));
    const Block& label = Find(document, {u"fraLeft", u"picInner", u"VLabel1"});
    EXPECT_EQ(label.ClassName(), u"lumenkit.VLabel");
    EXPECT_EQ(ValueIn(label, u"CAPTION"), Literal(Text(u"In a |i|box|n| in a frame")));
    EXPECT_EQ(ValueIn(label, u"Missing"), Literal(Text(u"(none)")));
    EXPECT_EQ(label.FindGroup(u"Font"), nullptr);
}

TEST(Document, KnowsThePlacesOfNamesAndValues) {
    const Document document = Sample("all_three.frm").Parse();
    const Block& label = Find(document, {u"fraLeft", u"picInner", u"VLabel1"});
    // Line 29 is `         Begin lumenkit.VLabel VLabel1 `.
    EXPECT_EQ(label.ClassPlace(), (Position{29, 16}));
    EXPECT_EQ(label.NamePlace(), (Position{29, 32}));
    EXPECT_EQ(label.FindProperty(u"Caption")->NamePlace(), (Position{38, 13}));
    EXPECT_EQ(label.FindProperty(u"Caption")->ValuePlace(), (Position{38, 33}));
    const Document fonts = Sample("label.frm").Parse();
    const Block& font = *Find(fonts, {u"VLabel1"}).FindGroup(u"Font");
    // Line 23 is `      BeginProperty Font {0BE3...} `.
    EXPECT_EQ(font.NamePlace(), (Position{23, 21}));
    EXPECT_EQ(font.ClassPlace(), (Position{23, 26}));
    EXPECT_EQ(font.FindProperty(u"Name")->ValuePlace(), (Position{24, 30}));
}

TEST(Document, TypesValues) {
    const Document document = Sample("unknown.frm").Parse();
    EXPECT_EQ(ValueIn(document.Root(), u"Caption"), Literal(Text(u"She said \"yes\", then left")));
    const Block& thing = Find(document, {u"Thing1"});
    EXPECT_EQ(ValueIn(thing, u"Ratio"), Literal(-0.5));
    EXPECT_EQ(ValueIn(thing, u"Tiny"), Literal(1.5e-5));
    EXPECT_EQ(ValueIn(thing, u"Huge"), Literal(1e20));
    EXPECT_EQ(ValueIn(thing, u"TooLong"), Literal(4294967295.0));
    EXPECT_EQ(ValueIn(thing, u"Lowest"), Literal(-2147483647 - 1));
    EXPECT_EQ(ValueIn(thing, u"Mask"), Literal(HexNumber{0xFF}));
    EXPECT_EQ(ValueIn(thing, u"Word"), Literal(HexNumber{0xFFFFFFFF}));
    EXPECT_EQ(ValueIn(thing, u"Format"), Literal(Guid{u"{6B263850-900B-11D0-9484-00A0C91110ED}"}));
    EXPECT_EQ(ValueIn(thing, u"Item(0)"), Literal(Text(u"zero")));
    EXPECT_EQ(ValueIn(thing, u"Item(1)"), Literal(Text()));
    EXPECT_EQ(ValueIn(thing, u"Cell(1,2).Text"), Literal(Text(u"\t tab \t")));
    EXPECT_EQ(ValueIn(thing, u"Tight"), Literal(1));
    EXPECT_EQ(ValueIn(thing, u"BLOB"), Literal(Reference{u"unknown.frx", 3, false}));
    const Block& tab = Find(document, {u"SSTab1"});
    EXPECT_EQ(ValueIn(tab, u"Tab(0).ControlEnabled"), Literal(true));
    EXPECT_EQ(ValueIn(tab, u"Tab(1).ControlEnabled"), Literal(false));
    const Block& designer = Find(document, {u"Designer1"});
    EXPECT_EQ(designer.ClassName(), u"{C0E45035-5775-11D0-B388-00A0C9055D8E}");
    EXPECT_EQ(designer.FindProperty(u"Mystery")->Comment(), u"an enumerated value");
}

TEST(Document, KnowsShortcutsOfMenus) {
    const Document document = Sample("menus.frm").Parse();
    const auto shortcut = [&](TextView menu, TextView item) {
        return ValueIn(Find(document, {menu, item}), u"Shortcut");
    };
    EXPECT_EQ(shortcut(u"mnuFile", u"mnuFileNew"), Literal(Shortcut{u"^N"}));
    EXPECT_EQ(shortcut(u"mnuHelp", u"mnuHelpTopics"), Literal(Shortcut{u"{F1}"}));
    EXPECT_EQ(shortcut(u"mnuHelp", u"mnuHelpBack"), Literal(Shortcut{u"+^{F12}"}));
}

TEST(Document, KnowsNestedGroups) {
    const Document document = Sample("fonts.frm").Parse();
    const Block& bar = Find(document, {u"stbMain"});
    const Block* panels = bar.FindGroup(u"Panels");
    ASSERT_NE(panels, nullptr);
    EXPECT_EQ(panels->ClassName(), u"{8E3867A5-8586-11D1-B16A-00C0F0283628}");
    EXPECT_EQ(ValueIn(*panels->FindGroup(u"panel1"), u"Object.Width"), Literal(5292));
    EXPECT_EQ(document.Root().FindGroup(u"Font")->ClassName(), u"");
    EXPECT_EQ(bar.FindProperty(u"Panels"), nullptr);
    EXPECT_TRUE(bar.Controls().empty());
}

TEST(Document, KeepsCodeAsItStands) {
    const SampleForm& sample = Sample("code.frm");
    const Document document = sample.Parse();
    const std::string tail(document.Tail().begin(), document.Tail().end());
    EXPECT_TRUE(sample.form.ends_with(tail));
    EXPECT_TRUE(tail.starts_with("Attribute VB_Name = \"frmCode\"\r\n"));
    EXPECT_EQ(document.TailPlace(), (Position{13, 1}));
    EXPECT_EQ(Sample("ends_at_end.frm").Parse().Tail(), u"");
    EXPECT_EQ(Sample("ends_at_end.frm").Parse().TailPlace(), (Position{12, 4}));
}

TEST(Document, ReadsKeywordsInAnyCaseAndKeepsIdleLines) {
    const Document document = Sample("by_hand.frm").Parse();
    const Block& label = Find(document, {u"VLabel1"});
    EXPECT_EQ(ValueIn(label, u"Caption"), Literal(Text(u"|b|bold")));
    EXPECT_EQ(ValueIn(*label.FindGroup(u"Font"), u"Name"), Literal(Text(u"Arial")));
    EXPECT_EQ(ValueIn(label, u"Enabled"), Literal(-1));
    EXPECT_EQ(std::count_if(label.Items().begin(), label.Items().end(),
                            [](const Block::Item& item) {
                                return std::holds_alternative<std::unique_ptr<IdleLine>>(item);
                            }),
              1);
}

TEST(Document, ReadsTextsOfTheCompanion) {
    const auto text = [](std::string_view sample, TextView control) {
        const Document document = Sample(sample).Parse();
        return document.TextOf(*Find(document, {control}).FindProperty(u"Text"));
    };
    EXPECT_EQ(text("memo.frm", u"VMemo1"),
              u"Dear reader,\r\n\r\nthis is the second paragraph.\r\n");
    EXPECT_EQ(text("umlauts.frm", u"Übersicht"), u"Äpfel\r\nÖl\r\nÜbung – 3 €");
    EXPECT_EQ(text("cyrillic.frm", u"VMemo1"), u"первая\r\nвторая");
    EXPECT_EQ(text("utf8.frm", u"VMemo1"), u"Größe\r\n5 €");
    EXPECT_EQ(text("all_three.frm", u"VMemo1"), u"One line");
    EXPECT_EQ(text("settings.pag", u"txtCaption"), u"first\r\nsecond");
    EXPECT_EQ(text("leftovers.frm", u"VMemo1"), u"kept\r\n");
    EXPECT_EQ(text("leftovers.frm", u"VMemo2").size(), 66000U);
}

TEST(Document, ReadsLongTextsOfTheCompanion) {
    const Document document = Sample("long_texts.frm").Parse();
    std::vector<std::size_t> lengths;
    for (const Block* memo : document.Root().Controls()) {
        lengths.push_back(document.TextOf(*memo->FindProperty(u"Text")).size());
    }
    EXPECT_THAT(lengths, ElementsAre(0, 254, 255, 65535, 65536));
}

TEST(Document, GivesOtherRecordsAsBytes) {
    const Document document = Sample("lists.frm").Parse();
    const Block& list = Find(document, {u"lstColors"});
    EXPECT_EQ(document.RecordOf(*list.FindProperty(u"ItemData")), "\3\0\0\0\0\0\0\0\0\0\0\0\0\0"s);
    EXPECT_EQ(document.RecordOf(*list.FindProperty(u"List")),
              "\3\0\7\0\3\0red\5\0green\4\0"s + "blue");
    const Document pictures = Sample("mdi_parent.frm").Parse();
    EXPECT_EQ(pictures.RecordOf(*pictures.Root().FindProperty(u"Icon")).size(), 80U);
}

std::string Refusal(const Document& document, const Property& property) {
    try {
        document.TextOf(property);
        return "";
    } catch (const FormError& error) {
        return error.what();
    }
}

TEST(Document, RefusesTextsWhereThereAreNone) {
    const Document pictures = Sample("mdi_parent.frm").Parse();
    Block& root = pictures.Root();
    EXPECT_EQ(Refusal(pictures, *root.FindProperty(u"Icon")),
              "mdi_parent.frm:9:24: expected a string in the companion, found a picture");
    EXPECT_EQ(Refusal(pictures, *root.FindProperty(u"ClientTop")),
              "mdi_parent.frm:7:24: expected a text");
    EXPECT_THROW(pictures.RecordOf(*root.FindProperty(u"Caption")), FormError);
}

TEST(Document, AReferenceThatAnEditAddsMayBeLost) {
    const Document pictures = Sample("mdi_parent.frm").Parse();
    const Reference lost{u"mdi_parent.frx", 99, true};
    const Property& added = pictures.Root().Set(u"Tag", lost);
    EXPECT_TRUE(pictures.IsLost(lost));
    EXPECT_EQ(pictures.TextOf(added), u"");
    EXPECT_TRUE(pictures.RecordOf(added).empty());
}

TEST(Document, NamesItsCompanion) {
    const auto companionOf = [](const std::string& name) {
        return Document::Parse(name, "VERSION 5.00\nBegin A B\nEnd\n", nullptr).CompanionName();
    };
    EXPECT_EQ(companionOf("a.frm"), "a.frx");
    EXPECT_EQ(companionOf("some/where\\a.b.CTL"), "a.b.ctx");
    EXPECT_EQ(companionOf("/a.pag"), "a.pgx");
    EXPECT_EQ(companionOf("a.dob"), "a.dox");
    EXPECT_EQ(companionOf("a"), "a.frx");
    EXPECT_EQ(companionOf("a.txt"), "a.frx");
    EXPECT_EQ(Sample("memo.frm").Parse().CompanionName(), "memo.frx");
}

TEST(Document, AsksForItsCompanionOnceAndOnlyIfItRefersToIt) {
    std::vector<std::string> asked;
    const CompanionReader reader = [&](const std::string& name) {
        asked.push_back(name);
        return "\1a"s;
    };
    Document::Parse("a.frm", "VERSION 5.00\nBegin A B\nEnd\n", reader);
    EXPECT_TRUE(asked.empty());
    Document::Parse(
        "a.frm", "VERSION 5.00\nBegin A B\n C = $\"Old.frx\":0\n D = \"OLD.FRX\":0\nEnd\n", reader);
    EXPECT_THAT(asked, ElementsAre("Old.frx"));
}

TEST(Document, SaysWhatItIsWrittenIn) {
    EXPECT_EQ(Sample("umlauts.frm").Parse().FormCodePage(), 1252);
    EXPECT_EQ(Sample("cyrillic.frm").Parse().FormCodePage(), 1251);
    EXPECT_EQ(Sample("polish.frm").Parse().FormCodePage(), 1250);
    EXPECT_EQ(Sample("utf8.frm").Parse().FormCodePage(), 65001);
    EXPECT_EQ(Sample("utf8_mark.frm").Parse().FormCodePage(), 65001);
    EXPECT_EQ(Sample("cyrillic.frm").Parse().Root().Name(), u"frmПривет");
    EXPECT_EQ(ValueIn(Sample("polish.frm").Parse().Root(), u"Caption"),
              Literal(Text(u"Zażółć gęślą jaźń")));
    EXPECT_EQ(ValueIn(Sample("utf8.frm").Parse().Root(), u"Caption"),
              Literal(Text(u"Ελληνικά, Русский, 日本語, \U0001F600")));
}

TEST(Document, UneditedLinesKeepOtherBytesForTheSameCharacter) {
    // Two bytes for a character in the head, a first and last line, a property, a comment, an idle
    // line and the code; each beside a line with the usual bytes.
    const std::string unusual = "\x87\x90";
    const std::string usual = "\x81\xE0";
    const std::string form =
        "VERSION 5.00\n' " + unusual + "\n' " + usual + "\nBegin VB.Form Form1 ' " + unusual +
        "\n   Caption = \"" + unusual + "\"\n   Tag = \"" + usual + "\" '" + unusual + "\n   ' " +
        unusual + "\n   ' " + usual + "\n   Begin VB.Label A\n      Caption = \"" + usual +
        "\"\n   End ' " + unusual + "\n   Begin VB.Label B\n      Caption = \"" + unusual +
        "\"\n   End ' " + usual + "\nEnd\nAttribute VB_Name = \"Form1\"\n' " + unusual + "\n' " +
        usual;
    Document document = ParseBytes(form, {}, 932);
    EXPECT_EQ(document.TextOf(*document.Root().FindProperty(u"Caption")), u"≒");
    EXPECT_EQ(document.Write().form, form);
    EXPECT_EQ(document.WithBytes(document.Write()).Write().form, form);
    // New lines before, a block that moves, and an edited line.
    document.AddLibrary(u"{0}", u"x.ocx");
    document.RenameForm(u"Form2");
    Block& first = Find(document, {u"A"});
    document.Root().MoveControl(first, nullptr);
    document.Root().FindProperty(u"Tag")->Set(Literal(Text(u"≒")));
    const std::string expected =
        "VERSION 5.00\n' " + unusual + "\n' " + usual +
        "\nObject = \"{0}\"; \"x.ocx\"\nBegin VB.Form Form2 ' " + usual + "\n   Caption = \"" +
        unusual + "\"\n   Tag = \"" + usual + "\"\n   ' " + unusual + "\n   ' " + usual +
        "\n   Begin VB.Label B\n      Caption = \"" + unusual + "\"\n   End ' " + usual +
        "\n   Begin VB.Label A\n      Caption = \"" + usual + "\"\n   End ' " + unusual +
        "\nEnd\nAttribute VB_Name = \"Form2\"\n' " + unusual + "\n' " + usual;
    EXPECT_EQ(document.Write().form, expected);
}

TEST(Document, TextsOfTwoBytesPerCharacterHaveTheirLengthInBytes) {
    Document document = ParseBytes("VERSION 5.00\nBegin VB.Form Form1\nEnd\n", {}, 936);
    document.Root().Set(u"Text", TextLiteral(u"中\r\n文"));
    const FormBytes bytes = document.Write();
    EXPECT_EQ(bytes.companion, "\x06\xD6\xD0\r\n\xCE\xC4");
    const Document again = ParseBytes(bytes.form, bytes.companion, 936);
    EXPECT_EQ(again.TextOf(*again.Root().FindProperty(u"Text")), u"中\r\n文");
    document.Root().Set(u"Caption", TextLiteral(u"한"));
    try {
        document.Write();
        FAIL();
    } catch (const FormError& error) {
        EXPECT_EQ(error.Description(), "U+D55C cannot be written in Windows-936");
    }
}

TEST(Document, ControlsWithOneNameAreWarnings) {
    const std::string form =
        "VERSION 5.00\nBegin VB.Form Form1\n Begin VB.Label A\n End\n Begin VB.Label a\n End\n"
        " Begin VB.Label B\n  Index = 0\n End\n Begin VB.Label b\n  Index = 1\n End\n"
        " Begin VB.Label b\n  Index = 1\n End\n Begin VB.Label B\n End\nEnd\n";
    const Document document = ParseBytes(form);
    EXPECT_EQ(document.Write().form, form);
    const std::vector<Warning> warnings = document.Warnings();
    ASSERT_EQ(warnings.size(), 3U);
    EXPECT_EQ(warnings[0], (Warning{{5, 17},
                                    "there is a control \"A\" already (line 3); upper and lower "
                                    "case make no difference"}));
    EXPECT_EQ(warnings[1].place, (Position{13, 17}));
    EXPECT_EQ(warnings[2].place, (Position{16, 17}));
}

}  // namespace
}  // namespace lumenkit::forms::testing
