#include "runtime/qt/font_face.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <cmath>

#include <gtest/gtest.h>

#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {
namespace {

std::shared_ptr<FontFace> FaceOf(TextView name, float size, double scale = 1) {
    return FontFace::For({.size = size, .name = Text(name)}, scale);
}

// Returns the width that Qt measures for the whole text.
double MeasuredByQt(const FontFace& face, TextView text) {
    QTextLayout layout(ToQString(text), face.WidgetFont());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    return line.naturalTextWidth();
}

float Between(const std::vector<double>& ends, std::size_t begin, std::size_t end) {
    return static_cast<float>(ends[end - 1] - (begin == 0 ? 0.0 : ends[begin - 1]));
}

const TextView mixed[] = {
    u"plain words, with A AV To fi ffi and 1,234",
    u"\u0441\u043B\u043E\u0432\u0430 \u03BB\u03CC\u03B3\u03BF\u03C2 caf\u00E9",
    u"e\u0301 a\u0308 combining n\u0303",
    u"\u05E9\u05DC\u05D5\u05DD \u05E2\u05D5\u05DC\u05DD",
    u"\u0633\u0644\u0627\u0645 \u0639\u0644\u06CC",
    u"smile \xD83D\xDE00 then \xD835\xDD04 end",
    u"lone \xD83D high and \xDE00 low",
    u" leading  and   trailing ",
};

TEST(FaceTest, WordsOfSimpleCharactersAreAsWideAsQtSays) {
    for (const TextView name : {u"MS Sans Serif", u"Courier", u"Times New Roman", u"System"}) {
        for (const float size : {8.25F, 9.75F, 12.0F, 33.3F}) {
            const auto face = FaceOf(name, size);
            for (const TextView text : {mixed[0], mixed[1], mixed[7]}) {
                QFont unshaped = face->WidgetFont();
                unshaped.setStyleStrategy(QFont::PreferNoShaping);
                EXPECT_DOUBLE_EQ(face->WidthOf(text),
                                 QFontMetricsF(unshaped).horizontalAdvance(ToQString(text)))
                    << ToQString(text).toStdString();
            }
        }
    }
}

TEST(FaceTest, OtherWordsAreAsWideAsQtSays) {
    const auto face = FaceOf(u"Arial", 12);
    for (const TextView word : {u"e\u0301", u"\u05E9\u05DC\u05D5\u05DD",
                                u"\u0633\u0644\u0627\u0645", u"\xD83D\xDE00", u"\xD835\xDD04x"}) {
        EXPECT_DOUBLE_EQ(face->WidthOf(word), MeasuredByQt(*face, word));
    }
}

TEST(FaceTest, WidthsAddUpAtBlanks) {
    constexpr double factor = 1440.0 / 96.0;
    for (const TextView text : mixed) {
        const auto face = FaceOf(u"Arial", 11);
        std::vector<double> ends(text.size());
        face->Ends(text, factor, ends);
        for (std::size_t begin = 0; begin < text.size(); ++begin) {
            if (begin > 0 && text[begin - 1] != u' ') {
                continue;
            }
            for (std::size_t end = begin + 1; end <= text.size(); ++end) {
                if (end < text.size() && text[end] != u' ' && text[end - 1] != u' ') {
                    continue;
                }
                EXPECT_EQ(
                    Between(ends, begin, end),
                    static_cast<float>(face->WidthOf(text.substr(begin, end - begin)) * factor));
            }
        }
    }
}

TEST(FaceTest, WhatHasNoPictureIsABlankOnOneLine) {
    const auto face = FaceOf(u"Arial", 12);
    EXPECT_DOUBLE_EQ(face->WidthOf(u"a\r\nb"), face->WidthOf(u"a  b"));
    EXPECT_DOUBLE_EQ(face->WidthOf(u"a\u2028b"), face->WidthOf(u"a b"));
    EXPECT_DOUBLE_EQ(face->WidthOf(TextView(u"\0", 1)), face->WidthOf(u" "));
}

TEST(FaceTest, GlyphsReachAsFarAsMeasured) {
    const auto face = FaceOf(u"Arial", 12);
    for (const TextView text : mixed) {
        const GlyphLine line = face->GlyphsOf(text);
        ASSERT_FALSE(line.runs.isEmpty());
        for (const QGlyphRun& run : line.runs) {
            for (const QPointF& position : run.positions()) {
                EXPECT_LE(position.x(), face->WidthOf(text) + 0.5) << ToQString(text).toStdString();
                EXPECT_NEAR(position.y(), 0, 6);
            }
        }
    }
}

// Returns the glyph runs that a QTextLayout makes of simple characters, relative to the baseline.
QList<QGlyphRun> LaidOutByQt(const FontFace& face, TextView text) {
    QFont font = face.WidgetFont();
    font.setStyleStrategy(QFont::PreferNoShaping);
    QTextLayout layout(ToQString(text), font);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setPosition({0, 0});
    layout.endLayout();
    QList<QGlyphRun> runs = layout.glyphRuns();
    for (QGlyphRun& run : runs) {
        QList<QPointF> positions = run.positions();
        for (QPointF& position : positions) {
            position.ry() -= line.ascent();
        }
        run.setPositions(positions);
    }
    return runs;
}

TEST(FaceTest, SimpleCharactersAreDrawnByTheGlyphsOfALayout) {
    for (const TextView name : {u"MS Sans Serif", u"Courier", u"Times New Roman", u"System"}) {
        for (const float size : {8.25F, 9.75F, 12.0F, 33.3F}) {
            for (const bool marked : {false, true}) {
                const auto face = FontFace::For(
                    {.size = size,
                     .weight = marked ? FontAttributes::boldWeight : FontAttributes::regularWeight,
                     .italic = marked,
                     .name = Text(name)},
                    1);
                for (const TextView text :
                     {mixed[0], mixed[1], mixed[7], TextView(u"\u00A0\u0192")}) {
                    const QList<QGlyphRun> runs = face->GlyphsOf(text).runs;
                    EXPECT_EQ(runs, LaidOutByQt(*face, text)) << ToQString(text).toStdString();
                }
            }
        }
    }
}

TEST(FaceTest, UnderlinedTextKeepsItsLine) {
    const auto face = FontFace::For({.size = 12, .underline = true, .name = u"Arial"}, 1);
    const GlyphLine line = face->GlyphsOf(u"word");
    ASSERT_EQ(line.runs.size(), 1);
    EXPECT_TRUE(line.runs.front().underline());
}

TEST(FaceTest, AnEmptyTextHasNoGlyphs) {
    EXPECT_TRUE(FaceOf(u"Arial", 12)->GlyphsOf(u"").runs.isEmpty());
}

TEST(FaceTest, ALineIsWholeRealPixelsHigh) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        const auto face = FaceOf(u"Arial", 9.75F, scale);
        const double pixels = face->LineHeight() * scale;
        EXPECT_NEAR(pixels, std::round(pixels), 1e-9);
        EXPECT_GE(face->LineHeight(), face->Ascent());
    }
}

TEST(FaceTest, IsSharedByAllWhoAskForTheSame) {
    EXPECT_EQ(FaceOf(u"Arial", 12), FaceOf(u"Arial", 12));
    EXPECT_NE(FaceOf(u"Arial", 12), FaceOf(u"Arial", 12.5F));
}

TEST(FaceTest, SizesAreTheNearestWholePixels) {
    const auto width = [](float size) { return FaceOf(u"Arial", size)->WidthOf(u"a size"); };
    EXPECT_EQ(width(8.25F), width(8.5F)) << "11 and 11.33 pixels";
    EXPECT_EQ(width(8.9F), width(9)) << "11.87 and 12 pixels";
    EXPECT_LT(width(8.25F), width(9));
}

// 10 points are 13.33 pixels: 13 at scale 1, 26.67 device pixels and therefore 27 at scale 2.
TEST(FaceTest, SizesAreTheNearestWholeDevicePixels) {
    const auto width = [](float size, double scale) {
        return FaceOf(u"Arial", size, scale)->WidthOf(u"a size");
    };
    EXPECT_EQ(width(10, 2), width(20.25F, 1) / 2);
    EXPECT_EQ(width(10, 1.5), width(15, 1) / 1.5);
    EXPECT_GT(width(10, 2), width(10, 1));
}

TEST(FaceTest, KnownNamesHaveTheirKindOfFont) {
    const auto equalWidths = [](TextView name) {
        return FaceOf(name, 12)->WidthOf(u"iiii") == FaceOf(name, 12)->WidthOf(u"WWWW");
    };
    for (const TextView name : {u"Courier", u"courier new", u"Fixedsys", u"Terminal"}) {
        EXPECT_TRUE(equalWidths(name)) << ToQString(name).toStdString();
    }
    for (const TextView name : {u"MS Sans Serif", u"System", u"Tahoma", u"Times New Roman", u"?"}) {
        EXPECT_FALSE(equalWidths(name)) << ToQString(name).toStdString();
    }
    EXPECT_NE(FaceOf(u"Times New Roman", 12)->WidthOf(u"serif"),
              FaceOf(u"Arial", 12)->WidthOf(u"serif"));
}

}  // namespace
}  // namespace lumenkit::qt
