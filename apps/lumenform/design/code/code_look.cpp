#include "apps/lumenform/design/code/code_look.h"

#include <algorithm>
#include <cmath>

#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr double leastContrast = 4.5;

double Luminance(const QColor& color) {
    const auto part = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) +
           0.0722 * part(color.blueF());
}

QColor Mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [&](double from, double to) {
        return static_cast<float>(from + (to - from) * share);
    };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

}  // namespace

double ContrastOf(const QColor& one, const QColor& other) {
    constexpr double flare = 0.05;
    const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
    return (high + flare) / (low + flare);
}

QColor DimmedText(const QPalette& palette) {
    constexpr int mostPercent = 40;
    constexpr int step = 5;
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    for (int percent = mostPercent; percent > 0; percent -= step) {
        if (const QColor dimmed = Mixed(text, base, percent / 100.0);
            ContrastOf(dimmed, base) >= leastContrast) {
            return dimmed;
        }
    }
    return text;
}

CodeLook::CodeLook(QTextDocument& document, const QPalette& palette)
    : QSyntaxHighlighter(&document) {
    keyword_.setFontWeight(QFont::Bold);
    comment_.setForeground(DimmedText(palette));
}

void CodeLook::SetPalette(const QPalette& palette) {
    comment_.setForeground(DimmedText(palette));
    rehighlight();
}

void CodeLook::highlightBlock(const QString& text) {
    const TextView line = qt::ViewOf(text);
    const auto former = static_cast<Continued>(std::max(previousBlockState(), 0));
    setCurrentBlockState(static_cast<int>(DivideLine(line, former, parts_)));
    for (const CodePart& part : parts_) {
        const auto start = static_cast<int>(part.start);
        const auto length = static_cast<int>(part.length);
        if (part.kind == CodePart::Kind::Comment) {
            setFormat(start, length, comment_);
        } else if (part.kind == CodePart::Kind::Word &&
                   IsCodeKeyword(line.substr(part.start, part.length))) {
            setFormat(start, length, keyword_);
        }
    }
}

}  // namespace lumenkit::lumenform
