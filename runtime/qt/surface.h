#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "frame/control.h"
#include "frame/host/surface.h"
#include "runtime/qt/boundary.h"
#include "runtime/qt/font.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/surface_widget.h"

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
/// Without AutoRedraw, drawing has an effect only during UserControl_Paint. At other times the pen
/// moves and nothing is drawn. Repeating the previous painting does not measure or shape its text
/// again: the glyphs of each run are kept, in the order of drawing.
class Surface final : public host::Surface, public ShownSurface {
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
    float TextWidth(TextView text) override;
    void TextWidths(TextView text, std::span<double> ends) override;
    float TextHeight(TextView text) override;
    float ScaleWidth() const override;
    float ScaleHeight() const override;
    float VisibleBottom() const override;
    host::FontRef CurrentFont() const override { return font_.Get(); }
    /// Raises 13 for a font of another runtime.
    void SetCurrentFont(host::FontRef font) override { font_.Assign(std::move(font)); }
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
    void SetControl(Control* control) { control_ = control; }

    // ShownSurface
    Control* GetControl() const override { return control_; }
    bool IsPainting() const override { return painter_ != nullptr; }
    void DrawOn(QPainter& painter, const QRect& exposed) override;
    QString PaintedText() const override;
    void UpdateScale() override;
    void PaletteChanged() override;

 private:
    // One printed text, kept for drawing it again.
    struct Run {
        Text text;
        std::shared_ptr<FontFace> face;
        std::optional<GlyphLine> glyphs;
        double width = 0;  // pixels
        float y = 0;
    };

    const std::shared_ptr<FontFace>& CurrentFace() const { return font_.Get()->FaceAt(scale_); }
    QPainter* Target();
    QPainter& PicturePainter();
    void FinishPicture();
    void FitPicture();
    QImage NewPicture() const;
    Run& NextRun(TextView text, const std::shared_ptr<FontFace>& face);
    void DrawRun(QPainter& painter, Run& run);
    void UsePen(QPainter& painter, Color color);
    void PaintControl(QPainter* painter);
    void Touch(const QRectF& pixels);
    void FontChanged();
    QRect WholeArea() const;
    QColor Shown(Color color) const;

    SurfaceOwner& owner_;
    std::unique_ptr<SurfaceWidget> area_;
    HeldFont font_;
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
    bool hasPainted_ = false;
    bool isBlank_ = true;  // nothing was drawn on the target since it was erased

    QPainter* painter_ = nullptr;  // while painting
    QRect exposed_;
    std::optional<Color> pen_;  // the pen colour of the target
    QImage picture_;
    std::unique_ptr<QPainter> picturePainter_;
    std::vector<Run> runs_;
    std::size_t nextRun_ = 0;
};

}  // namespace lumenkit::qt
