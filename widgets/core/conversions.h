#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <memory>

#include "frame/color.h"
#include "runtime/qt/font.h"

namespace lumenkit::widgets {

/// Returns the colour without its transparency, which controls do not know.
Color ToColor(const QColor& color);

/// Returns a font object with the attributes of a widget's font. A size in pixels is converted with
/// the resolution of the screen.
std::shared_ptr<qt::Font> ToFontObject(const QFont& font);

/// Returns the font of a widget with the attributes of the object. What the object does not say,
/// such as the spacing of letters, is that of `model`.
QFont ToWidgetFont(const host::Font& font, const QFont& model);

}  // namespace lumenkit::widgets
