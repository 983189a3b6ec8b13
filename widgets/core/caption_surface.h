#pragma once

#include <QPainter>
#include <QRectF>
#include <limits>
#include <memory>
#include <vector>

#include "frame/host/surface.h"
#include "runtime/qt/font.h"
#include "runtime/qt/kept_picture.h"

namespace lumenkit::widgets {

/// A surface without a window, which keeps what is drawn on it. It has no border and no end at the
/// bottom. Its pixels are those of the screen; texts are measured and drawn at `scale`, in device
/// pixels for each of them.
class CaptionSurface final : public host::Surface {
 public:
    struct Run {
        Text text;  ///< empty for a box
        QRectF rect;
        Color color{};
    };

    /// `width` is in twips.
    CaptionSurface(std::shared_ptr<qt::Font> font, Color foreColor, float width, double scale);

    const std::vector<Run>& Runs() const { return runs_; }
    /// Draws in pixels of the surface.
    void DrawOn(QPainter& painter, const QRectF& visible) {
        picture_.DrawOn(painter, visible, QPalette(), 1);
    }

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
    float ScaleWidth() const override { return width_; }
    float ScaleHeight() const override { return VisibleBottom(); }
    float VisibleBottom() const override { return std::numeric_limits<float>::infinity(); }
    host::FontRef CurrentFont() const override { return font_; }
    void SetCurrentFont(host::FontRef font) override { font_ = qt::Font::From(std::move(font)); }
    host::FontRef BeginDrawing() override;
    void EndDrawing() override { drawingFont_.reset(); }
    Color ForeColor() const override { return foreColor_; }
    void SetForeColor(Color color) override { foreColor_ = color; }
    Color BackColor() const override { return {}; }
    void SetBackColor(Color /*color*/) override {}
    bool FontTransparent() const override { return true; }
    void SetFontTransparent(bool /*transparent*/) override {}
    bool AutoRedraw() const override { return true; }
    void SetAutoRedraw(bool /*keep*/) override {}
    void Refresh() override {}
    float Width() const override { return width_; }
    float Height() const override { return VisibleBottom(); }
    void Size(float /*width*/, float /*height*/) override {}
    bool Enabled() const override { return true; }
    void SetEnabled(bool /*enabled*/) override {}
    std::int16_t BorderStyle() const override { return 0; }
    void SetBorderStyle(std::int16_t /*style*/) override {}
    std::int16_t Pointer() const override { return 0; }
    void SetPointer(std::int16_t /*pointer*/) override {}

 private:
    const std::shared_ptr<qt::FontFace>& Face() const {
        return (drawingFont_ ? drawingFont_ : font_)->FaceAt(scale_);
    }
    Color Filled(Color color) const { return color == Color{} ? foreColor_ : color; }
    void AddBox(const QRectF& box, Color color);

    std::shared_ptr<qt::Font> font_;
    std::shared_ptr<qt::Font> drawingFont_;  // null outside of a drawing
    Color foreColor_;
    float width_;
    double scale_;
    float currentX_ = 0;
    float currentY_ = 0;
    std::vector<Run> runs_;
    qt::KeptPicture picture_;
};

}  // namespace lumenkit::widgets
