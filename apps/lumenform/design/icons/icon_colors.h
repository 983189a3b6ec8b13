#pragma once

#include <QByteArray>
#include <QIcon>
#include <QPalette>

namespace lumenkit::lumenform {

/// Returns the drawing of an icon with the colours of the palette in its style sheet, in place of
/// those of Breeze. Selected icons are on the highlight, all others on the window.
QByteArray Recoloured(const QByteArray& drawing, const QPalette& palette, QIcon::Mode mode);

}  // namespace lumenkit::lumenform
