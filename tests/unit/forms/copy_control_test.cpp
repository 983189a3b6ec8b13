#include "forms/copy_control.h"

#include <gmock/gmock.h>

#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

using namespace std::string_literals;

constexpr const char* emptyForm = "VERSION 5.00\r\nBegin VB.Form frmTo \r\nEnd\r\n";

TEST(CopyControl, BringsEverythingThatLiesInIt) {
    const Document from = Sample("all_three.frm").Parse();
    Document to = ParseBytes(emptyForm);
    Block& copy = CopyControl(from, Find(from, {u"fraLeft"}), to, to.Root(), u"fraCopy");
    EXPECT_EQ(copy.Name(), u"fraCopy");
    const std::string written = to.Write().form;
    const std::string original = from.Write().form;
    const std::size_t start = original.find("   Begin VB.Frame fraLeft");
    const std::size_t end = original.find("   Begin lumenkit.VMemo VMemo1");
    std::string expected = original.substr(start, end - start);
    expected.replace(expected.find("fraLeft"), 7, "fraCopy");
    EXPECT_EQ(written, "VERSION 5.00\r\nBegin VB.Form frmTo \r\n" + expected + "End\r\n");
}

TEST(CopyControl, BringsTextsAndRecordsFromTheCompanion) {
    const Document from = ParseBytes(
        "VERSION 5.00\nBegin A B\n   Begin C D\n      Text = $\"x.frx\":0000\n"
        "      Picture = \"x.frx\":0005\n   End\nEnd\n",
        "\4a\r\nbPICTURE"s);
    Document to = ParseBytes("VERSION 5.00\nBegin A B\n   Icon = \"own.frx\":0000\nEnd\n", "ICON");
    Block& copy = CopyControl(from, Find(from, {u"D"}), to, to.Root(), u"D");
    EXPECT_EQ(to.TextOf(*copy.FindProperty(u"Text")), u"a\r\nb");
    EXPECT_EQ(to.RecordOf(*copy.FindProperty(u"Picture")), "PICTURE");
    EXPECT_EQ(to.RecordOf(*to.Root().FindProperty(u"Icon")), "ICON");
    const FormBytes written = to.Write();
    EXPECT_EQ(written.companion, "ICONPICTURE\4a\r\nb"s);
    const Document again = to.WithBytes(written);
    const Block& block = Find(again, {u"D"});
    EXPECT_EQ(again.TextOf(*block.FindProperty(u"Text")), u"a\r\nb");
    EXPECT_EQ(again.RecordOf(*block.FindProperty(u"Picture")), "PICTURE");
}

TEST(CopyControl, SharesTheCompanionWithinOneForm) {
    Document document = ParseBytes(
        "VERSION 5.00\nBegin A B\n   Begin C D\n      Text = $\"x.frx\":0000\n   End\nEnd\n",
        "\4a\r\nb"s);
    CopyControl(document, Find(document, {u"D"}), document, document.Root(), u"E");
    const FormBytes written = document.Write();
    EXPECT_EQ(written.form,
              "VERSION 5.00\nBegin A B\n   Begin C D\n      Text = $\"x.frx\":0000\n   End\n"
              "   Begin C E \n      Text            =   $\"x.frx\":0000\n   End\nEnd\n");
    EXPECT_EQ(written.companion, "\4a\r\nb"s);
}

TEST(CopyControl, KeepsTheFirstOfSeveralOfOneName) {
    const Document from =
        ParseBytes("VERSION 5.00\nBegin A B\nBegin C D\nE = 1\ne = 2\nEnd\nEnd\n");
    Document to = ParseBytes("VERSION 5.00\nBegin A B\nEnd\n");
    CopyControl(from, Find(from, {u"D"}), to, to.Root(), u"D");
    EXPECT_EQ(to.Write().form,
              "VERSION 5.00\nBegin A B\n   Begin C D \n      E               =   1\n   End\n"
              "End\n");
}

TEST(DocumentRename, LeadsItsReferencesToACompanionOfItsOwn) {
    Document document = Sample("memo.frm").Parse();
    const FormBytes before = document.Write();
    ASSERT_NE(before.form.find("\"memo.frx\""), std::string::npos);
    document.Rename("/somewhere/other.frm");
    EXPECT_EQ(document.CompanionName(), "other.frx");
    const FormBytes renamed = document.Write();
    EXPECT_EQ(renamed.form.find("memo.frx"), std::string::npos);
    EXPECT_EQ(renamed.companion, before.companion);
    // WithBytes restores an earlier state but keeps the present name.
    const Document earlier = document.WithBytes(before);
    EXPECT_EQ(earlier.Name(), "/somewhere/other.frm");
    EXPECT_EQ(earlier.Write().form, renamed.form);
    document.Rename("memo.frm");
    EXPECT_EQ(document.Write().form, before.form);
}

TEST(DocumentWithBytes, KeepsTheEncoding) {
    for (const SampleForm& sample : SampleForms()) {
        const Document document = sample.Parse();
        const Document again = document.WithBytes(document.Write());
        EXPECT_EQ(again.Write().form, sample.form) << sample.name;
        EXPECT_EQ(again.Write().companion, sample.companion) << sample.name;
        EXPECT_EQ(again.FormCodePage(), document.FormCodePage()) << sample.name;
    }
}

}  // namespace
}  // namespace lumenkit::forms::testing
