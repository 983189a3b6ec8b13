#pragma once

#include <QWidget>
#include <cstdint>
#include <optional>

#include "apps/lumenform/form_view/stroke.h"

namespace lumenkit::lumenform {

/// The filling of a shape, from BackColor, BackStyle, FillColor and FillStyle.
struct Filling {
    std::optional<Color> ground;  ///< behind hatches; empty: transparent
    Color color = Rgb(0, 0, 0);
    Qt::BrushStyle style = Qt::NoBrush;

    static Filling Of(const BlockReader& reader);
};

/// A rectangle, square, oval or circle.
class ShapeWidget final : public QWidget {
 public:
    enum class Form : std::uint8_t {
        Rectangle,
        Square,
        Oval,
        Circle,
        RoundedRectangle,
        RoundedSquare
    };

    ShapeWidget(Form form, const Stroke& stroke, const Filling& filling);

    /// The number of pixels by which the border exceeds the shape on each side.
    int Reach() const { return stroke_.Reach(); }

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QRectF Outline() const;
    void Draw(QPainter& painter, const QRectF& outline) const;

    Form form_;
    Stroke stroke_;
    Filling filling_;
};

}  // namespace lumenkit::lumenform
