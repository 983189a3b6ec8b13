#pragma once

#include <QString>
#include <QWidget>

#include "frame/control.h"
#include "runtime/qt/accessible.h"
#include "runtime/qt/boundary.h"

namespace lumenkit::qt {

/// The surface that a SurfaceWidget shows.
class ShownSurface {
 public:
    virtual ~ShownSurface() = default;

    /// Returns the control that receives the mouse events, or null if there is none yet.
    virtual Control* GetControl() const = 0;
    virtual bool IsPainting() const = 0;
    /// Draws the content of the area, at least in `exposed` (pixels of the area).
    virtual void DrawOn(QPainter& painter, const QRect& exposed) = 0;
    /// Returns the texts of the last painting, with a line break where the vertical position
    /// changed.
    virtual QString PaintedText() const = 0;
    /// Called when the scale of the screen may have changed.
    virtual void UpdateScale() = 0;
    /// Called when the colours of the area's palette changed.
    virtual void PaletteChanged() = 0;
};

/// The drawing area of a control, inside its border. It is the parent of the constituents and
/// receives the mouse events. Screen readers read the control's text from it.
class SurfaceWidget final : public QWidget, public SelfDescribing, public ErrorReceiver {
 public:
    SurfaceWidget(QWidget& outside, ShownSurface& surface, ErrorSink errors);

    /// Receives the errors that reach no caller.
    const ErrorSink& Errors() const override { return errors_; }

    /// Called when the surface is destroyed.
    void Detach();
    /// Returns what screen readers say: the control's text, or the text painted last if the control
    /// does not tell it.
    QString SpokenText() const;
    /// Called when that text may have changed.
    void SpokenTextChanged();
    QAccessibleInterface* NewDescription() override;

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

    ShownSurface* surface_;
    ErrorSink errors_;
    Qt::MouseButtons pressed_;
};

}  // namespace lumenkit::qt
