#include "runtime/qt/font_face.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <list>

#include "runtime/qt/font_families.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

namespace {

constexpr double twipsPerPoint = 20;
constexpr std::size_t mostFaces = 200;
constexpr std::size_t mostWords = 4096;
constexpr std::uint32_t unknownGlyph = 0xFFFF'FFFF;
constexpr TextView sample = u"The quick brown fox, 0123456789; JUMPS over (fi) the \"lazy\" dog!";

bool IsBetween(char16_t unit, char16_t first, char16_t last) {
    return unit >= first && unit <= last;
}

// Whether the advance of the unit is the same in every word.
bool IsSimple(char16_t unit) {
    return unit < 0x300 ? unit != 0xAD
                        : IsBetween(unit, 0x370, 0x482) || IsBetween(unit, 0x48A, 0x52F);
}

bool IsSimple(TextView word) {
    return std::ranges::all_of(word, [](char16_t unit) { return IsSimple(unit); });
}

QString Drawable(TextView text) {
    QString drawable = ToQString(text);
    for (QChar& unit : drawable) {
        if (IsControl(unit.unicode())) {
            unit = QLatin1Char(' ');
        }
    }
    return drawable;
}

QFont FontFor(const FontAttributes& attributes, double scale) {
    QFont font;
    font.setFamilies(FamiliesFor(ToQString(attributes.name)));
    const double twips = attributes.size * twipsPerPoint;
    font.setPixelSize(std::max(ToPixels(twips * scale, TwipsPerPixel::OfScreens().y), 1));
    font.setWeight(static_cast<QFont::Weight>(
        attributes.weight <= 0 ? FontAttributes::regularWeight
                               : std::min<std::int16_t>(attributes.weight, QFont::Black)));
    font.setItalic(attributes.italic);
    font.setUnderline(attributes.underline);
    font.setStrikeOut(attributes.strikethrough);
    font.setKerning(false);
    return font;
}

// Most recently used first.
std::list<std::shared_ptr<FontFace>>& Faces() {
    static std::list<std::shared_ptr<FontFace>> faces;
    return faces;
}

// Fonts must not outlive the application.
void ForgetFacesAtEnd() {
    static bool arranged = false;
    if (!arranged) {
        arranged = true;
        qAddPostRoutine([] { Faces().clear(); });
    }
}

}  // namespace

std::shared_ptr<FontFace> FontFace::For(const FontAttributes& attributes, double scale) {
    auto& faces = Faces();
    const auto found = std::ranges::find_if(
        faces, [&](const auto& face) { return face->IsFor(attributes, scale); });
    if (found != faces.end()) {
        faces.splice(faces.begin(), faces, found);
        return faces.front();
    }
    ForgetFacesAtEnd();
    faces.push_front(std::make_shared<FontFace>(attributes, scale));
    std::shared_ptr<FontFace> made = faces.front();
    if (faces.size() > mostFaces) {
        faces.pop_back();
    }
    return made;
}

FontFace::FontFace(const FontAttributes& attributes, double scale)
    : attributes_(attributes),
      scale_(scale),
      simple_(FontFor(attributes, scale)),
      shaped_(simple_) {
    simple_.setStyleStrategy(QFont::PreferNoShaping);
    const QFontMetricsF metrics(shaped_);
    ascent_ = std::ceil(metrics.ascent());
    lineHeight_ = ascent_ + std::ceil(metrics.descent());
    advances_.fill(-1);
    glyphs_.fill(unknownGlyph);
    // AddsUp reads the other members.
    // NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer)
    trustsTable_ = AddsUp(sample);
    glyphFont_ = QRawFont::fromFont(simple_);
    if (!trustsTable_ || attributes.underline || attributes.strikethrough ||
        !HasGlyphsOfLayout(sample)) {
        glyphFont_ = QRawFont();
    }
}

QFont FontFace::WidgetFont() const {
    return scale_ == 1 ? shaped_ : FontFor(attributes_, 1);
}

// Whether the single advances add up to the width that Qt measures for a whole text.
bool FontFace::AddsUp(TextView text) {
    double sum = 0;
    for (const char16_t unit : text) {
        sum += AdvanceOf(unit);
    }
    return sum == QFontMetricsF(simple_).horizontalAdvance(ToQString(text));
}

double FontFace::AdvanceOf(char16_t unit) {
    const char16_t drawn = IsControl(unit) ? blank : unit;
    double& advance = advances_[drawn];
    if (advance < 0) {
        advance = QFontMetricsF(simple_).horizontalAdvance(QChar(drawn));
    }
    return advance;
}

// Returns 0 if the glyph of the unit comes from another font.
std::uint32_t FontFace::GlyphOf(char16_t unit) {
    const char16_t drawn = IsControl(unit) ? blank : unit;
    std::uint32_t& glyph = glyphs_[drawn];
    if (glyph == unknownGlyph) {
        const QChar character(drawn);
        int count = 1;
        if (!glyphFont_.glyphIndexesForChars(&character, 1, &glyph, &count) || count != 1) {
            glyph = 0;
        }
    }
    return glyph;
}

// Whether the single glyphs equal Qt's layout of the whole text: font, glyphs and positions.
bool FontFace::HasGlyphsOfLayout(TextView text) {
    const std::optional<GlyphLine> own = FromTable(text);
    const GlyphLine laidOut = LaidOut(text);
    return own && laidOut.runs.size() == 1 && own->runs.front() == laidOut.runs.front();
}

void FontFace::LayOut(QTextLayout& layout) {
    layout.setCacheEnabled(true);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LeftToRight);  // also where the text begins with Hebrew
    option.setUseDesignMetrics(false);
    layout.setTextOption(option);
    layout.beginLayout();
    layout.createLine().setPosition({0, 0});
    layout.endLayout();
}

const FontFace::WordEnds& FontFace::Measured(TextView word) {
    if (words_.size() >= mostWords) {
        words_.clear();
    }
    WordEnds& ends = words_[Text(word)];
    if (!ends.empty()) {
        return ends;
    }
    QTextLayout layout(Drawable(word), shaped_);
    LayOut(layout);
    const QTextLine line = layout.lineAt(0);
    const double whole = line.naturalTextWidth();
    ends.resize(word.size(), whole);
    for (std::size_t index = 0; index + 1 < word.size(); ++index) {
        const double x = line.cursorToX(static_cast<int>(index + 1));
        ends[index] = std::clamp(x, index == 0 ? 0.0 : ends[index - 1], whole);
    }
    return ends;
}

// Calls `take` with the end of each unit in turn.
template <typename Take>
void FontFace::WalkWords(TextView text, Take&& take) {
    double x = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(blank, start), text.size());
        const TextView word = text.substr(start, end - start);
        if (trustsTable_ && IsSimple(word)) {
            for (const char16_t unit : word) {
                x += AdvanceOf(unit);
                take(x);
            }
        } else if (!word.empty()) {
            for (const double wordEnd : Measured(word)) {
                take(x + wordEnd);
            }
            x += Measured(word).back();
        }
        if (end < text.size()) {
            x += AdvanceOf(blank);
            take(x);
        }
        start = end + 1;
    }
}

// Does the same for a text of simple characters that were all measured before. Returns false for
// any other text; `take` may have been called for some of its units by then.
template <typename Take>
bool FontFace::WalkKnown(TextView text, Take&& take) const {
    if (!trustsTable_) {
        return false;
    }
    double x = 0;
    for (const char16_t unit : text) {
        const double advance = unit < tableSize ? advances_[unit] : -1;
        if (advance < 0) {
            return false;
        }
        x += advance;
        take(x);
    }
    return true;
}

double FontFace::WidthOf(TextView text) {
    double width = 0;
    if (!WalkKnown(text, [&](double end) { width = end; })) {
        width = 0;
        WalkWords(text, [&](double end) { width = end; });
    }
    return width / scale_;
}

void FontFace::Ends(TextView text, double factor, std::span<double> ends) {
    std::size_t index = 0;
    const auto take = [&](double end) { ends[index++] = end / scale_ * factor; };
    if (!WalkKnown(text, take)) {
        index = 0;
        WalkWords(text, take);
    }
}

GlyphLine FontFace::GlyphsOf(TextView text) {
    std::optional<GlyphLine> glyphs = FromTable(text);
    return glyphs ? *std::move(glyphs) : LaidOut(text);
}

void FontFace::Draw(QPainter& painter, QPointF at, const GlyphLine& glyphs) const {
    if (scale_ == 1) {
        for (const QGlyphRun& run : glyphs.runs) {
            painter.drawGlyphRun(at, run);
        }
        return;
    }
    const QTransform pixels = painter.transform();
    painter.translate(at);
    painter.scale(1 / scale_, 1 / scale_);
    for (const QGlyphRun& run : glyphs.runs) {
        painter.drawGlyphRun({}, run);
    }
    painter.setTransform(pixels);
}

std::optional<GlyphLine> FontFace::FromTable(TextView text) {
    if (!glyphFont_.isValid() || !IsSimple(text)) {
        return std::nullopt;
    }
    if (text.empty()) {
        return GlyphLine{};
    }
    const auto count = static_cast<qsizetype>(text.size());
    QList<quint32> glyphs;
    QList<QPointF> positions;
    glyphs.reserve(count);
    positions.reserve(count);
    double x = 0;
    for (const char16_t unit : text) {
        const std::uint32_t glyph = GlyphOf(unit);
        if (glyph == 0) {
            return std::nullopt;
        }
        glyphs.append(glyph);
        positions.append({x, 0});
        x += AdvanceOf(unit);
    }
    QGlyphRun run;
    run.setRawFont(glyphFont_);
    run.setGlyphIndexes(glyphs);
    run.setPositions(positions);
    return GlyphLine{.runs = {run}};
}

GlyphLine FontFace::LaidOut(TextView text) const {
    QTextLayout layout(Drawable(text), IsSimple(text) ? simple_ : shaped_);
    LayOut(layout);
    const QTextLine line = layout.lineAt(0);
    GlyphLine glyphs{.runs = layout.glyphRuns()};
    // Move the origin from the top of the line to its baseline.
    for (QGlyphRun& run : glyphs.runs) {
        QList<QPointF> positions = run.positions();
        for (QPointF& position : positions) {
            position.ry() -= line.ascent();
        }
        run.setPositions(positions);
    }
    return glyphs;
}

}  // namespace lumenkit::qt
