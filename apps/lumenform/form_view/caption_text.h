// Draws the captions of buttons, check boxes and option buttons.
#pragma once

#include <QPainter>
#include <QPalette>
#include <QRect>
#include <QString>
#include <QWidget>

namespace lumenkit::lumenform {

/// A caption in the room that a button has for it. It is wrapped at the width of the room and
/// centred vertically. A caption that does not fit is cut at its end: too high a one begins at the
/// top, and one with too wide a word at the left.
struct CaptionText {
    QString text;  ///< the letter after & is underlined
    QRect room;
    Qt::Alignment across = Qt::AlignLeft;
};

/// Returns the part of the room that the text takes.
QRect TextRect(QPainter& painter, const CaptionText& caption);

/// Draws the caption in the colour of a role. The palette's current group tells whether it looks
/// disabled.
void DrawCaption(QPainter& painter, const QWidget& widget, const CaptionText& caption,
                 const QPalette& palette, QPalette::ColorRole role);

}  // namespace lumenkit::lumenform
