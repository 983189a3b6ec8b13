#pragma once

#include <QPainter>
#include <QRect>
#include <QSize>
#include <cstdint>
#include <memory>
#include <span>

#include "frame/control.h"
#include "frame/host/surface.h"
#include "runtime/qt/boundary.h"
#include "runtime/qt/font.h"
#include "runtime/qt/kept_picture.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/surface_widget.h"
#include "runtime/shared/open_boxes.h"

namespace lumenkit::qt {

/// The owner of a surface: the control's widget, which draws the border of the surface.
class SurfaceOwner {
 public:
    virtual ~SurfaceOwner() = default;

    virtual QWidget& Outside() = 0;
    /// Called when the size or border of the surface changed. The owner lays it out again.
    virtual void SurfaceResized() = 0;
    /// Returns the width of the border on each side, in twips.
    virtual float BorderWidth(std::int16_t style) const = 0;
    /// Called when the colours of the area's palette changed.
    virtual void PaletteChanged() = 0;
};

/// The drawing surface of a control. Its size is kept in twips as it was set, however many whole
/// pixels it takes on the screen.
///
/// The surface keeps what was drawn on it and answers exposures from that. Without AutoRedraw,
/// drawing has an effect only during UserControl_Paint, which runs for a reason: the first time,
/// for Refresh, and after a change of the size, the font, the background colour or the scale of the
/// screen. At other times the pen moves and nothing is drawn. While a message box of a control is
/// open, the surface shows its former picture, and the control paints after the box is closed.
class Surface final : public host::Surface, public ShownSurface, private shared::BoxWaiter {
 public:
    /// Lengths are in twips. `owner` and `errors` must outlive the surface. Raises 380 for a
    /// negative width or height.
    Surface(SurfaceOwner& owner, const ErrorSink& errors, float width, float height);
    ~Surface() override;
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    float CurrentX() const override { return currentX_; }
    void SetCurrentX(float x) override { currentX_ = x; }
    float CurrentY() const override { return currentY_; }
    void SetCurrentY(float y) override { currentY_ = y; }
    void Cls() override;
    void Print(TextView text) override;
    void FillBox(float x1, float y1, float x2, float y2, Color color) override;
    void FillPixels(float x, float y, const host::PixelBox& box, Color color) override;
    float TextWidth(TextView text) override;
    void TextWidths(TextView text, std::span<double> ends) override;
    float TextHeight(TextView text) override;
    float ScaleWidth() const override;
    float ScaleHeight() const override;
    float VisibleBottom() const override;
    host::FontRef CurrentFont() const override { return font_.Get(); }
    /// Raises 13 for a font of another runtime.
    void SetCurrentFont(host::FontRef font) override { font_.Assign(std::move(font)); }
    host::FontRef BeginDrawing() override;
    void EndDrawing() override { isDrawing_ = false; }
    Color ForeColor() const override { return foreColor_; }
    void SetForeColor(Color color) override;
    Color BackColor() const override { return backColor_; }
    void SetBackColor(Color color) override;
    bool FontTransparent() const override { return fontTransparent_; }
    void SetFontTransparent(bool transparent) override { fontTransparent_ = transparent; }
    bool AutoRedraw() const override { return autoRedraw_; }
    void SetAutoRedraw(bool keep) override;
    void Refresh() override;
    float Width() const override { return width_; }
    float Height() const override { return height_; }
    /// Raises 380 for a negative width or height.
    void Size(float width, float height) override;
    bool Enabled() const override { return enabled_; }
    void SetEnabled(bool enabled) override;
    std::int16_t BorderStyle() const override { return borderStyle_; }
    void SetBorderStyle(std::int16_t style) override;
    std::int16_t Pointer() const override { return pointer_; }
    void SetPointer(std::int16_t pointer) override;

    // Used by the runtime.
    SurfaceWidget& Area() { return *area_; }
    /// Sets the control that is notified of painting and of a changed size. Null: no control yet.
    void SetControl(Control* control) {
        control_ = control;
        isOutdated_ = true;
    }

    // ShownSurface
    Control* GetControl() const override { return control_; }
    bool IsPainting() const override { return isPainting_; }
    void DrawOn(QPainter& painter, const QRect& exposed) override;
    QString PaintedText() const override;
    void UpdateScale() override;
    void PaletteChanged() override;

 private:
    const std::shared_ptr<FontFace>& CurrentFace() const {
        return (isDrawing_ ? drawingFont_ : font_.Get())->FaceAt(scale_);
    }
    /// Whether drawing has an effect now.
    bool IsRecording() const { return autoRedraw_ || isPainting_; }
    bool IsOutdated() const { return isOutdated_ || paintedSize_ != area_->size(); }
    void PaintIfOutdated();
    void PaintControl();
    void BoxesClosed() override { area_->update(); }
    void Touch();
    void PictureOutdated();

    SurfaceOwner& owner_;
    std::unique_ptr<SurfaceWidget> area_;
    HeldFont font_;
    std::shared_ptr<Font> drawingFont_;
    bool isDrawing_ = false;  // between BeginDrawing and EndDrawing
    Control* control_ = nullptr;
    double scale_;  // device pixels per pixel
    float currentX_ = 0;
    float currentY_ = 0;
    float width_;
    float height_;
    Color foreColor_ = Color::ButtonText;
    Color backColor_ = Color::ButtonFace;
    std::int16_t borderStyle_ = 0;
    std::int16_t pointer_ = 0;
    bool fontTransparent_ = true;
    bool autoRedraw_ = false;
    bool enabled_ = true;
    bool isPainting_ = false;
    bool isOutdated_ = true;  // the control must paint before the picture is shown again
    QSize paintedSize_;       // of the area, pixels
    KeptPicture picture_;
};

}  // namespace lumenkit::qt
