// Draws lines and shapes.
#pragma once

#include <QPen>
#include <QWidget>
#include <cstdint>
#include <optional>

#include "apps/lumenform/form_view/block_reader.h"
#include "frame/color.h"

namespace lumenkit::lumenform {

/// The pen of lines and of the borders of shapes, from BorderColor, BorderStyle and BorderWidth.
struct Stroke {
    enum Style : std::int32_t { Transparent, Solid, Dash, Dot, DashDot, DashDotDot, InsideSolid };

    Color color = Color::WindowText;
    Style style = Solid;
    int width = 1;  ///< in pixels

    /// Reads the stroke from a block. Unknown styles are solid.
    static Stroke Of(const BlockReader& reader);

    /// The pen for painting. Only lines of one pixel are dashed.
    QPen Pen() const;
    /// The number of pixels by which the stroke exceeds the line that it follows.
    int Reach() const;
};

/// Draws a line from one corner of its box to the opposite one.
class LineWidget final : public QWidget {
 public:
    explicit LineWidget(const Stroke& stroke);

    /// Sets whether the line rises from left to right. Initially it falls.
    void SetRises(bool rises);

    /// The number of pixels by which the widget exceeds the box between the ends on each side.
    int Reach() const;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    Stroke stroke_;
    bool rises_ = false;
};

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
