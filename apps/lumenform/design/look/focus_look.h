// How lists show where the keyboard is.
#pragma once

#include <QPalette>
#include <QWidget>

namespace lumenkit::lumenform {

/// Draws a frame in the selection colour inside the edges of the widget. Call it in a paint event.
void DrawFocusFrame(QWidget& widget);
/// The same on this ground, instead of that of lists.
void DrawFocusFrame(QWidget& widget, const QColor& ground);

/// Gives the palette the colours of a selection in a list without the keyboard: a light shade of
/// the background with the usual text.
void MuteSelection(QPalette& palette);

}  // namespace lumenkit::lumenform
