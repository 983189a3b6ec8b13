// Values, lines and references that are kept without being understood.
#include <gmock/gmock.h>

#include "forms/copy_control.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string odd =
    "VERSION 5.00\r\n"
    "Begin VB.Form Form1 \r\n"
    "   an odd line \x01\r\n"
    "   Begin Vendor.Grid Grid1 \r\n"
    "      ColumnWidth     =   764,787   ' wide\r\n"
    "      font            =   \"x.frx\":0030\r\n"
    "      Left            =   120\r\n"
    "      TabIndex        =   99999\r\n"
    "      Top             =   1E+300\r\n"
    "      Width           =   -1\r\n"
    "   End\r\n"
    "End\r\n"
    "Option Explicit\r\n";

Document Odd(const std::string& form = odd) {
    return Document::Parse("x.frm", form, nullptr);
}

TEST(Warnings, HaveTheirPlaces) {
    EXPECT_THAT(
        Odd().Warnings(),
        ElementsAre(Warning{{3, 7}, "expected '=', found odd"},
                    Warning{{5, 30}, "expected the end of the line, found ,787"},
                    Warning{{6, 27},
                            "x.frx cannot be read; its texts and pictures are "
                            "missing"},
                    Warning{{8, 27}, "TabIndex: Overflow"}, Warning{{9, 27}, "Top: Overflow"},
                    Warning{{10, 27}, "Width: Invalid property value"}));
    EXPECT_THAT(Sample("memo.frm").Parse().Warnings(), IsEmpty());
}

TEST(Warnings, AreOnePerPlace) {
    const Document document = Odd();
    const std::size_t count = document.Warnings().size();
    document.Warn({8, 27}, "again");
    document.Warn({7, 27}, "another");
    EXPECT_EQ(document.Warnings().size(), count + 1);
    EXPECT_EQ(document.Warnings()[3], (Warning{{7, 27}, "another"}));
}

TEST(Warnings, TheirLinesAreKept) {
    const Document document = Odd();
    EXPECT_EQ(document.Write().form, odd);
    Find(document, {u"Grid1"}).Set(u"Left", Literal(240));
    std::string expected = odd;
    expected.replace(expected.find("120"), 3, "240");
    EXPECT_EQ(document.Write().form, expected);
    EXPECT_EQ(document.WithBytes(document.Write()).Write().form, expected);
    EXPECT_EQ(document.WithBytes(document.Write()).Warnings(), document.Warnings());
}

TEST(Warnings, AnUnreadValueCanBeReplacedAndCopied) {
    const Document document = Odd();
    Document other = Document::Parse("y.frm", "VERSION 5.00\nBegin A B\nEnd\n", nullptr);
    Block& grid = Find(document, {u"Grid1"});
    CopyControl(document, grid, other, other.Root(), u"Copy");
    EXPECT_THAT(other.Write().form, HasSubstr("ColumnWidth     =   764,787   ' wide\n"));
    EXPECT_TRUE(other.Write().companion.empty());
    EXPECT_EQ(other.Root().Controls().front()->FindProperty(u"Font"), nullptr);
    grid.Set(u"ColumnWidth", Literal(3));
    EXPECT_THAT(document.Write().form, HasSubstr("ColumnWidth     =   3\r\n"));
}

TEST(Warnings, AReferenceIntoAnotherFileIsKept) {
    const std::string form =
        "VERSION 5.00\nBegin A B\n Icon = \"x.frx\":0000\n Logo = \"y.frx\":0000\nEnd\n";
    Document document = Document::Parse("x.frm", form, [](const std::string&) { return "ab"; });
    const Property& logo = *document.Root().FindProperty(u"Logo");
    EXPECT_EQ(document.RecordOf(logo), "");
    document.Rename("z.frm");
    EXPECT_THAT(document.Write().form, HasSubstr("\"z.frx\":0000\n Logo = \"y.frx\":0000\n"));
    // Without the first reference, the other one does not become the companion.
    document.Root().Remove(u"Icon");
    const Document again = document.WithBytes(document.Write());
    EXPECT_EQ(again.RecordOf(*again.Root().FindProperty(u"Logo")), "");
    EXPECT_THAT(again.Write().form, HasSubstr(" Logo = \"y.frx\":0000\n"));
}

}  // namespace
}  // namespace lumenkit::forms::testing
