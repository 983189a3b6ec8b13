#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QRawFont>
#include <QTextLayout>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "frame/text.h"

namespace lumenkit::qt {

/// What makes a font, as the controls see it.
struct FontAttributes {
    static constexpr std::int16_t regularWeight = 400;
    static constexpr std::int16_t boldWeight = 700;

    float size = 0;  ///< points
    std::int16_t weight = regularWeight;
    std::int16_t charset = 0;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    Text name;

    bool IsBold() const { return weight > 550; }
    friend bool operator==(const FontAttributes&, const FontAttributes&) = default;
};

/// Glyphs of one line of text, placed with the left end of the base line at the origin. Pixels.
struct GlyphLine {
    QList<QGlyphRun> runs;
};

/// A font ready to measure and draw with at one scale of the screen. Lengths are in pixels. Its
/// size is the nearest whole number of them.
///
/// A text is measured word by word, so that widths add up at blanks: words of simple characters by
/// their single advances, as there is neither kerning nor joining in them, all others as Qt shapes
/// them. Texts of simple characters that the font has itself are drawn by their single glyphs, too,
/// where that is what Qt's own layout makes. Characters without a picture (control characters, line
/// separators) count as blanks.
class Face {
 public:
    /// One face for all who ask for the same; `scale` is the number of real pixels in a pixel.
    static std::shared_ptr<Face> For(const FontAttributes& attributes, double scale);

    /// Use For.
    Face(const FontAttributes& attributes, double scale);

    bool IsFor(const FontAttributes& attributes, double scale) const {
        return scale == scale_ && attributes == attributes_;
    }
    /// The font for widgets that draw texts by themselves.
    const QFont& WidgetFont() const { return shaped_; }

    double WidthOf(TextView text);
    /// Puts the width of the first i + 1 units, times `factor`, into ends[i].
    void Ends(TextView text, double factor, std::span<double> ends);
    /// Whole real pixels.
    double LineHeight() const { return lineHeight_; }
    double Ascent() const { return ascent_; }
    GlyphLine GlyphsOf(TextView text);

 private:
    // A word that Qt has measured: the width of its first i + 1 units.
    using WordEnds = std::vector<double>;

    static constexpr std::size_t tableSize = 0x530;  // Latin, Greek, Cyrillic

    template <typename Take>
    void WalkWords(TextView text, Take&& take);
    template <typename Take>
    bool WalkKnown(TextView text, Take&& take) const;
    double AdvanceOf(char16_t unit);
    std::uint32_t GlyphOf(char16_t unit);
    bool AddsUp(TextView text);
    bool HasGlyphsOfLayout(TextView text);
    GlyphLine LaidOut(TextView text) const;
    std::optional<GlyphLine> FromTable(TextView text);
    const WordEnds& Measured(TextView word);
    static void LayOut(QTextLayout& layout);

    FontAttributes attributes_;
    double scale_;
    QFont simple_;  // without shaping
    QFont shaped_;
    double ascent_ = 0;
    double lineHeight_ = 0;
    bool trustsTable_ = true;
    std::array<double, tableSize> advances_{};  // negative: not known yet
    QRawFont glyphFont_;                        // invalid: glyphs are not taken from the table
    std::array<std::uint32_t, tableSize> glyphs_{};
    std::unordered_map<Text, WordEnds> words_;
};

}  // namespace lumenkit::qt
