#pragma once

#include <QWidget>

#include "frame/control.h"
#include "runtime/qt/boundary.h"

namespace lumenkit::qt {

class Surface;

/// The drawing area of a control, inside its border. It is the parent of the constituents and
/// receives the mouse events. Screen readers read the painted text from it.
class SurfaceWidget final : public QWidget {
 public:
    SurfaceWidget(QWidget& outside, Surface& surface, ErrorSink errors);

    /// Receives the errors that reach no caller.
    const ErrorSink& Errors() const { return errors_; }

    /// Called when the surface is destroyed.
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
