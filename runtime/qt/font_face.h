#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPainter>
#include <QPointF>
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

/// The attributes that define a font for the controls.
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

/// The glyphs of one line of text, in device pixels. The origin is the left end of the baseline.
struct GlyphLine {
    QList<QGlyphRun> runs;
};

/// A font prepared for measuring and drawing at one scale of the screen. Lengths are in pixels. The
/// font size is rounded to whole device pixels.
///
/// A text is measured word by word, so that widths add up at blanks. A word of simple characters
/// has neither kerning nor joined letters and is measured by the advances of its characters. Qt
/// shapes and measures all other words. A text of simple characters that the font contains is drawn
/// by single glyphs, provided that Qt's own layout produces the same glyphs. Characters without a
/// glyph (control characters, line separators) count as blanks.
class FontFace {
 public:
    /// Returns one shared face for equal arguments. `scale` is the number of device pixels per
    /// pixel.
    static std::shared_ptr<FontFace> For(const FontAttributes& attributes, double scale);

    /// Use For instead.
    FontFace(const FontAttributes& attributes, double scale);

    bool IsFor(const FontAttributes& attributes, double scale) const {
        return scale == scale_ && attributes == attributes_;
    }
    /// Returns the font for widgets that draw text themselves. Its size is a whole number of pixels
    /// at every scale; a face of scale 1 has its measures.
    QFont WidgetFont() const;

    double WidthOf(TextView text);
    /// Stores the width of the first i + 1 units, times `factor`, in ends[i].
    void Ends(TextView text, double factor, std::span<double> ends);
    /// A whole number of device pixels, as is Ascent.
    double LineHeight() const { return lineHeight_ / scale_; }
    double Ascent() const { return ascent_ / scale_; }
    GlyphLine GlyphsOf(TextView text);
    /// Draws glyphs of this face with the left end of their baseline at `at`.
    void Draw(QPainter& painter, QPointF at, const GlyphLine& glyphs) const;

 private:
    // All lengths below are in device pixels.
    // The measures of a word: element i is the width of its first i + 1 units.
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
    std::array<double, tableSize> advances_{};  // negative: not measured yet
    QRawFont glyphFont_;                        // invalid: glyphs are not taken from the table
    std::array<std::uint32_t, tableSize> glyphs_{};
    std::unordered_map<Text, WordEnds> words_;
};

}  // namespace lumenkit::qt
