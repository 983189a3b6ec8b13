#pragma once

#include <QColor>
#include <QPalette>

namespace lumenkit::lumenform {

/// The least contrasts by the Web Content Accessibility Guidelines 2.1.
constexpr double textContrast = 4.5;
constexpr double signContrast = 3;

/// Returns the contrast of two opaque colours as these guidelines define it: from 1 to 21.
double Contrast(const QColor& one, const QColor& other);

/// Returns the colour, or one nearer to black or white that has this contrast to the ground.
QColor Legible(const QColor& color, const QColor& ground, double least = textContrast);

/// Returns the colour between two colours. A share of 0 is the first and 1 the second.
QColor Blend(const QColor& from, const QColor& to, double share);

/// Returns the palette's text colour, nearer to its background but with a contrast to it of at
/// least 4.5, if the text itself has as much.
QColor DimmedText(const QPalette& palette);

/// Returns the colour of a mark such as a frame or a line on this ground: the palette's highlight,
/// as far as it can be seen there.
QColor MarkOn(const QColor& ground, const QPalette& palette);

}  // namespace lumenkit::lumenform
