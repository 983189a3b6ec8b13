// A drawn caption as an SVG document: places, looks and characters.
#include "apps/lumenkit/svg/svg_document.h"

#include <limits>
#include <locale>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "apps/lumenkit/svg/drawn_caption.h"
#include "apps/lumenkit/svg/font_family.h"
#include "apps/lumenkit/svg/svg_text.h"
#include "tests/apps/svg/svg_reader.h"
#include "tests/support/fake_reporter.h"
#include "tests/support/rows.h"

namespace lumenkit::testing {

namespace {

using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::SizeIs;

SvgDrawing DrawSvg(TextView caption, const svg::LabelLook& look = {}) {
    FakeReporter host;
    ModuleErrors errors(host, host);
    const svg::DrawnCaption drawn(errors, caption, look);
    EXPECT_TRUE(host.messages.empty());
    return ReadSvg(drawn.ToSvg());
}

// At 10 points, a unit is 5 points wide (bold: 5.5) and a line 12 points high. The base line is 9.5
// points below the top.
TEST(SvgDocument, PutsEachRunAtItsPlace) {
    const SvgDrawing drawing = DrawSvg(u"Only |B:1|three|B:0| are left.|CR|Next");
    ASSERT_THAT(drawing.runs, SizeIs(4));
    const auto expect = [&](std::size_t index, TextView text, double x, double y, double length) {
        const SvgRun& run = drawing.runs[index];
        EXPECT_EQ(run.text, text);
        EXPECT_EQ(run.x, x) << index;
        EXPECT_EQ(run.y, y) << index;
        EXPECT_EQ(run.length, length) << index;
        EXPECT_EQ(run.size, 10) << index;
        EXPECT_EQ(run.bold, index == 1) << index;
    };
    expect(0, u"Only ", 0, 9.5, 25);
    expect(1, u"three", 25, 9.5, 27.5);
    expect(2, u" are left.", 52.5, 9.5, 50);
    expect(3, u"Next", 0, 21.5, 20);
}

TEST(SvgDocument, IsAsLargeAsAFittedLabelInWholePixels) {
    // 102.5 by 12 points are 136.7 by 16 pixels. A label that grows adds 1.1 pixels.
    const SvgDrawing drawing = DrawSvg(u"Only |B:1|three|B:0| are left.");
    EXPECT_EQ(drawing.width, 138);
    EXPECT_EQ(drawing.height, 18);
    EXPECT_EQ(drawing.viewWidth, 103.5);
    EXPECT_EQ(drawing.viewHeight, 13.5);
    EXPECT_EQ(drawing.background, (SvgBox{.width = 103.5, .height = 13.5, .fill = "#ffffff"}));

    const SvgDrawing empty = DrawSvg(u"");
    EXPECT_EQ(empty.width, 2);
    EXPECT_EQ(empty.height, 18);
    EXPECT_THAT(empty.runs, SizeIs(0));
    EXPECT_EQ(DrawSvg(u"|Before:-9000|above").height, 1) << "the pen ends above the label";
}

TEST(SvgDocument, BreaksWordsAtTheWidthOfTheLabel) {
    const SvgDrawing drawing = DrawSvg(u"aaaa bbbb cccc", {.width = 1007});  // ten units
    ASSERT_THAT(drawing.runs, SizeIs(2));
    EXPECT_EQ(drawing.runs[0].text, u"aaaa bbbb ");
    EXPECT_EQ(drawing.runs[1].text, u"cccc");
    EXPECT_EQ(drawing.runs[1].y, 21.5);
    EXPECT_THAT(drawing.width, DoubleNear(1007.0 / 15, 0.0005));
    EXPECT_EQ(drawing.viewWidth, 50.35);
    EXPECT_EQ(drawing.height, 34) << "two lines of 16 pixels, and 1.1 pixels rounded up";
}

TEST(SvgDocument, DrawsTheMarksOfBullets) {
    const SvgDrawing drawing =
        DrawSvg(u"* a", {.foreColor = Rgb(1, 2, 3), .bulletPrefix = u"* ", .bulletIndent = 300});
    // The mark of a line of 16 pixels begins at pixel 2; its origin is at pixel 9 from the top.
    // Pixels are 0.75 points; the last one of each box belongs to it.
    EXPECT_THAT(drawing.boxes, ElementsAre(SvgBox{1.5, 6, 3.75, 2.25, "#010203"},
                                           SvgBox{2.25, 5.25, 2.25, 3.75, "#010203"}));
    ASSERT_THAT(drawing.runs, SizeIs(1));
    EXPECT_EQ(drawing.runs[0].text, u"a");
    EXPECT_EQ(drawing.runs[0].x, 15);
    EXPECT_EQ(drawing.title, u"\u2022 a");
}

TEST(SvgDocument, NamesTheLookOfEachRun) {
    const SvgDrawing drawing =
        DrawSvg(u"a|i:1|b|Fore:1,20,255|c|Size:24.5|d|B:1|e", {.fontName = u"Arial",
                                                               .fontSize = 12,
                                                               .underline = true,
                                                               .strikethrough = true,
                                                               .foreColor = Rgb(9, 9, 9),
                                                               .backColor = Rgb(16, 0, 200)});
    ASSERT_THAT(drawing.runs, SizeIs(5));
    EXPECT_EQ(drawing.background.fill, "#1000c8");
    const std::vector<std::string> fills = {"#090909", "#090909", "#0114ff", "#0114ff", "#0114ff"};
    for (std::size_t index = 0; index < 5; ++index) {
        const SvgRun& run = drawing.runs[index];
        EXPECT_EQ(run.fill, fills[index]) << index;
        EXPECT_EQ(run.size, index < 3 ? 12 : 24.5) << index;
        EXPECT_EQ(run.italic, index >= 1) << index;
        EXPECT_EQ(run.bold, index == 4) << index;
        EXPECT_EQ(run.family, "'Arial', sans-serif") << index;
        EXPECT_EQ(run.decoration, "underline line-through") << index;
    }
    EXPECT_EQ(DrawSvg(u"a", {.underline = true}).runs.at(0).decoration, "underline");
    EXPECT_EQ(DrawSvg(u"a", {.strikethrough = true}).runs.at(0).decoration, "line-through");
    EXPECT_EQ(DrawSvg(u"a").runs.at(0).decoration, "");
    EXPECT_TRUE(DrawSvg(u"a", {.bold = true}).runs.at(0).bold);
    EXPECT_TRUE(DrawSvg(u"a", {.italic = true}).runs.at(0).italic);
}

TEST(SvgDocument, NamesAnotherFontOfARun) {
    memory::DisplayList list;
    list.Print(u"a", 20, 40, {.name = u"Arial", .size = 8}, Rgb(0, 0, 0));
    list.Print(u"b", 20, 40, {.name = u"Symbol", .size = 8}, Rgb(0, 0, 0));
    const SvgDrawing drawing =
        ReadSvg(svg::ToSvg(list, {.width = 15, .height = 15, .fontName = u"Arial", .fontSize = 8}));
    ASSERT_THAT(drawing.runs, SizeIs(2));
    EXPECT_EQ(drawing.runs[0].family, "'Arial', sans-serif");
    EXPECT_EQ(drawing.runs[1].family, "'Symbol', 'Arial', sans-serif");
    EXPECT_EQ(drawing.runs[1].x, 1);
    EXPECT_EQ(drawing.runs[1].y, 2 + 0.95 * 8);
}

TEST(SvgDocument, HasThePlainTextAsTitle) {
    EXPECT_EQ(DrawSvg(u"|B:1|One|B:0| & |Q|two|Q||CR||Fore:1,2,3|three|CR|").title,
              u"One & \"two\"\nthree\n");
}

TEST(SvgDocument, KeepsBlanks) {
    EXPECT_EQ(DrawSvg(u"  a   b  |b:1|  ").Joined(), u"  a   b    ");
}

TEST(SvgDocument, EndsWithTheLastLineOfAHighDrawing) {
    FakeReporter host;
    ModuleErrors errors(host, host);
    Text caption;
    for (int line = 1; line < 301; ++line) {
        caption += u"x|CR|";
    }
    const svg::DrawnCaption drawn(errors, caption + u"last", {});
    const SvgDrawing drawing = ReadSvg(drawn.ToSvg());
    EXPECT_THAT(host.messages, SizeIs(1)) << "the height is no 16-bit integer";
    EXPECT_EQ(drawing.height, 301 * 16 + 2);
    EXPECT_EQ(drawing.runs.back().text, u"last");
}

TEST(SvgDocument, HoldsTheLargestAdvances) {
    FakeReporter host;
    ModuleErrors errors(host, host);
    const svg::DrawnCaption drawn(errors, u"|before:3.4E38|a|CR|b", {.fontSize = 2160});
    EXPECT_THAT(ReadSvg(drawn.ToSvg()).runs, SizeIs(2));
}

class DecimalComma final : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

TEST(SvgDocument, IsTheSameInEveryLocale) {
    const std::locale before = std::locale::global(
        std::locale(std::locale::classic(), new DecimalComma));  // the locale owns it
    const SvgDrawing drawing = DrawSvg(u"a");
    std::locale::global(before);
    EXPECT_EQ(drawing.runs.at(0).y, 9.5);
}

std::string Written(TextView text) {
    std::string xml;
    svg::AppendText(xml, text);
    return xml;
}

struct SvgTextTest : ::testing::TestWithParam<Row<TextView, std::string_view>> {};
TEST_P(SvgTextTest, IsWritten) {
    EXPECT_EQ(Written(GetParam().input), GetParam().expected);
}
constexpr Row<TextView, std::string_view> texts[] = {
    {"AsItIs", u"a b  c'", "a b  c'"},
    {"WithReferencesForMarkup", u"<a & \"b\">]]>", "&lt;a &amp; &quot;b&quot;&gt;]]&gt;"},
    {"InUtf8", u"\u00E4\u20AC\U0001F600", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"},
    {"WithBlanksForControlCharacters",
     {u"a\tb\nc\rd\0e\x1F\x7F\x85\u2028\u2029", 14},
     "a b c d e     "},
    {"WithSignsForSingleSurrogates", {u"\xD83Dx\xDE00", 3}, "\xEF\xBF\xBDx\xEF\xBF\xBD"},
    {"WithSignsForNonCharacters", u"\uFFFE\uFFFF\uFFFD", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
};
INSTANTIATE_TEST_SUITE_P(Texts, SvgTextTest, ::testing::ValuesIn(texts), RowName());

struct SvgNumberTest : ::testing::TestWithParam<Row<double, std::string_view>> {};
TEST_P(SvgNumberTest, IsWritten) {
    std::string xml;
    svg::AppendNumber(xml, GetParam().input);
    EXPECT_EQ(xml, GetParam().expected);
}
constexpr Row<double, std::string_view> numbers[] = {
    {"Zero", 0, "0"},
    {"Whole", 1200, "1200"},
    {"BelowZero", -12.5, "-12.5"},
    {"WithThreePlaces", 0.125, "0.125"},
    {"Rounded", 2.0 / 3, "0.667"},
    {"RoundedToAWhole", 9.99996, "10"},
    {"LargeWithoutAnExponent", 1e21, "1000000000000000000000"},
};
INSTANTIATE_TEST_SUITE_P(Numbers, SvgNumberTest, ::testing::ValuesIn(numbers), RowName());

struct SvgFamilyTest : ::testing::TestWithParam<Row<TextView, TextView>> {};
TEST_P(SvgFamilyTest, EndsWithTheKindOfTheFont) {
    EXPECT_EQ(svg::FontFamily(GetParam().input), GetParam().expected);
}
constexpr Row<TextView, TextView> families[] = {
    {"Known", u"MS Sans Serif", u"'MS Sans Serif', 'Arial', sans-serif"},
    {"Serif", u"georgia", u"'georgia', 'Times New Roman', serif"},
    {"Monospaced", u"Courier", u"'Courier', 'Courier New', monospace"},
    {"NamedOnce", u"courier new", u"'courier new', monospace"},
    {"Unknown", u"Nobody's \\ Font", u"'Nobody\\'s \\\\ Font', 'Arial', sans-serif"},
    {"PartOfAName", u"new", u"'new', 'Arial', sans-serif"},
};
INSTANTIATE_TEST_SUITE_P(Families, SvgFamilyTest, ::testing::ValuesIn(families), RowName());

TEST(SvgFontSize, IsAboveZeroAndUpTo2160Points) {
    EXPECT_TRUE(svg::IsFontSize(0.0001F));
    EXPECT_TRUE(svg::IsFontSize(2160));
    EXPECT_FALSE(svg::IsFontSize(0));
    EXPECT_FALSE(svg::IsFontSize(-1));
    EXPECT_FALSE(svg::IsFontSize(2160.1F));
    EXPECT_FALSE(svg::IsFontSize(std::numeric_limits<float>::infinity()));
    EXPECT_FALSE(svg::IsFontSize(std::numeric_limits<float>::quiet_NaN()));
}

}  // namespace

}  // namespace lumenkit::testing
