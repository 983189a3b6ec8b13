#pragma once

#include <QPainter>
#include <QPalette>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "frame/color.h"
#include "frame/host/surface.h"
#include "frame/text.h"
#include "runtime/qt/font_face.h"

namespace lumenkit::qt {

/// The texts and boxes that were drawn on a surface since it was cleared. The picture can be drawn
/// any number of times, at any scale. Lengths are in pixels of the surface.
///
/// A picture that is recorded again reuses the glyphs of the texts that did not change, and
/// allocates nothing for them. Colours of the system are looked up when the picture is drawn.
class KeptPicture {
 public:
    void Clear() { count_ = 0; }
    /// Records a text with its upper left corner at `at` and returns its width. `paper` is the
    /// colour of its background, if it has one.
    double Print(TextView text, const std::shared_ptr<FontFace>& face, QPointF at, Color ink,
                 std::optional<Color> paper);
    /// Records a box between two corner pixels, which belong to it.
    void Fill(QPointF corner, QPointF opposite, Color color);
    /// Records a box of device pixels that are counted from the one at `origin`.
    void FillPixels(QPointF origin, const host::PixelBox& box, Color color);
    /// Draws the marks that touch `visible`. `scale` is the number of device pixels per pixel for
    /// which the boxes of device pixels were recorded. At another scale of the painter, they grow
    /// and shrink with the texts.
    void DrawOn(QPainter& painter, const QRectF& visible, const QPalette& palette, double scale);
    /// Returns the area that the last mark may cover.
    QRectF LastExtent() const;
    /// Returns the recorded texts, with a line break where the vertical position changed.
    QString Texts() const;

 private:
    struct Mark {
        QPointF at{};
        QPointF opposite{};              // of a box
        host::PixelBox cells{};          // of a box, device pixels to add to both corners
        std::shared_ptr<FontFace> face;  // null: a box
        Text text;
        std::optional<GlyphLine> glyphs;  // made when the text is drawn first
        double width = 0;
        Color color{};
        std::optional<Color> paper{};

        QRectF Place() const;
        /// Letters may extend beyond their advance, by less than the height of the line.
        QRectF Extent() const;
    };

    Mark& Next();
    void AddBox(QPointF corner, QPointF opposite, const host::PixelBox& cells, Color color);
    static void DrawText(QPainter& painter, Mark& mark, const QPalette& palette,
                         std::optional<Color>& pen);
    static void DrawBox(QPainter& painter, const Mark& mark, const QPalette& palette, double scale);

    std::vector<Mark> marks_;  // those behind count_ are reused
    std::size_t count_ = 0;
};

}  // namespace lumenkit::qt
