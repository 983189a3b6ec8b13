#pragma once

#include <QImage>
#include <QRect>
#include <QWidget>
#include <functional>
#include <string>

namespace lumenkit::testing {

/// The picture of a widget. Places are in pixels of the widget, which can be several pixels of the
/// device.
class Grabbed {
 public:
    explicit Grabbed(QWidget& widget) : Grabbed(widget.grab()) {}
    explicit Grabbed(const QPixmap& pixmap);

    /// Returns the colour in the middle of a pixel.
    QColor At(QPoint at) const;
    /// Returns the smallest rectangle around the pixels that have another colour than in `other`, a
    /// picture of the same size.
    QRect DifferenceFrom(const Grabbed& other) const;
    /// Returns the smallest rectangle around the pixels whose colour passes the test.
    QRect Where(const std::function<bool(const QColor&)>& test) const;
    /// Returns the part of the picture in a rectangle.
    QImage Part(const QRect& rect) const;

    friend bool operator==(const Grabbed& left, const Grabbed& right) {
        return left.image_ == right.image_;
    }

 private:
    template <typename Test>
    QRect Around(Test&& test) const;

    QImage image_;
    qreal ratio_;
};

/// Returns the record of a companion that holds a picture of one colour.
std::string PictureRecord(QSize size, const QColor& color);

}  // namespace lumenkit::testing
