#pragma once

#include <memory>

#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <lumenkit/widgets/export.h>

class QPainter;

namespace lumenkit::widgets {

/// A part of a caption that is drawn in one piece: the text between two commands, or the part of it
/// that is on one line.
struct CaptionRun {
    QString text;
    QRectF rect;  ///< pixels, from the upper left corner of the caption
    QColor color;
    bool isBullet = false;  ///< the mark in front of a line; it has no text
};

/// Draws captions without a widget: into pictures, into other widgets and on paper. Draws what a
/// VLabel with the same properties draws.
///
/// Sizes are in pixels of the screen, as those of widgets. On a device with another resolution,
/// such as a printer, everything is drawn larger in the same proportion, as Qt draws fonts of a
/// size in points.
///
/// Used on the thread of the user interface; needs a QGuiApplication. No function throws (except
/// std::bad_alloc).
class LUMENKIT_WIDGETS_EXPORT CaptionPainter {
 public:
    CaptionPainter();
    explicit CaptionPainter(const QString& caption);
    ~CaptionPainter();
    CaptionPainter(const CaptionPainter& other);
    CaptionPainter& operator=(const CaptionPainter& other);
    CaptionPainter(CaptionPainter&& other) noexcept;
    CaptionPainter& operator=(CaptionPainter&& other) noexcept;

    /// The text with its markup. Initially empty.
    QString caption() const;
    void setCaption(const QString& caption);

    /// Initially the font of the application.
    QFont font() const;
    void setFont(const QFont& font);

    /// The colour of texts that the caption does not colour. Initially, or if it is invalid, the
    /// text colour of the application's palette.
    QColor color() const;
    void setColor(const QColor& color);

    /// Whether lines wrap at the right border of the rectangle. Initially false.
    bool wordWrap() const;
    void setWordWrap(bool wrap);

    /// The left edge of every line, in twips, 0 to 32767. Initially 0. Other numbers become the
    /// nearest of these.
    int bulletIndent() const;
    void setBulletIndent(int twips);

    /// The beginning of a line that is drawn as a bullet. Initially empty.
    QString bulletPrefix() const;
    void setBulletPrefix(const QString& prefix);

    /// Returns the size that the caption takes. If lines wrap, they wrap at `width` pixels; a
    /// negative width means that there is no border.
    QSizeF size(qreal width = -1) const;
    /// Returns what is drawn, in the order of drawing.
    QList<CaptionRun> runs(qreal width = -1) const;
    /// Returns the index of the run at this point, or -1. The last of several runs is in front.
    int runAt(QPointF point, qreal width = -1) const;
    /// Returns the caption without its markup, its lines separated by line feeds.
    QString plainText() const;
    /// Returns the first error in the caption, such as a number that overflows; empty if there is
    /// none. The rest of the caption is drawn.
    QString errorString() const;

    /// Draws the caption into the rectangle, in the coordinates of the painter. What does not fit
    /// is cut off. The background is not painted. Restores the painter.
    void draw(QPainter& painter, const QRectF& rect) const;

 private:
    class Private;
    std::unique_ptr<Private> d_;
};

}  // namespace lumenkit::widgets
