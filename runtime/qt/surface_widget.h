#pragma once

#include <QWidget>

#include "frame/control.h"
#include "runtime/qt/boundary.h"

namespace lumenkit::qt {

class Surface;

/// The drawing area of a control, inside its border: what its constituents lie on, and what the
/// mouse hits. Screen readers find the painted text in it.
class SurfaceWidget final : public QWidget {
 public:
    SurfaceWidget(QWidget& outside, Surface& surface, ErrorSink errors);

    /// Where errors go that nobody else hears of.
    const ErrorSink& Errors() const { return errors_; }

    /// The surface goes away.
    void Detach();
    QString PaintedText() const;

 protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
    using MouseHandler = void (Control::*)(host::MouseArguments&);

    Control* GetControl() const;
    void Tell(MouseHandler handler, host::MouseArguments mouse);
    void Tell(void (Control::*handler)());

    Surface* surface_;
    ErrorSink errors_;
    bool isPressed_ = false;
};

}  // namespace lumenkit::qt
