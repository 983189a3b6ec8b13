#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <span>

#include "frame/control.h"
#include "frame/host/surface.h"
#include "runtime/memory/display_list.h"
#include "runtime/memory/fault_plan.h"
#include "runtime/memory/font.h"

namespace lumenkit::memory {

/// A surface that records its drawing. Its border takes no space: the drawing area is as large as
/// the control. It keeps every item, so VisibleBottom is infinite unless a test sets it.
class Surface final : public host::Surface {
 public:
    /// `width` and `height` are in twips.
    Surface(std::shared_ptr<FaultPlan> faults, float width, float height);

    float CurrentX() const override;
    void SetCurrentX(float x) override;
    float CurrentY() const override;
    void SetCurrentY(float y) override;
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
    host::FontRef CurrentFont() const override;
    /// Raises 13 for a font of another runtime.
    void SetCurrentFont(host::FontRef font) override;
    host::FontRef BeginDrawing() override;
    void EndDrawing() override { isDrawing_ = false; }
    Color ForeColor() const override;
    void SetForeColor(Color color) override;
    Color BackColor() const override;
    void SetBackColor(Color color) override;
    bool FontTransparent() const override;
    void SetFontTransparent(bool transparent) override;
    bool AutoRedraw() const override;
    void SetAutoRedraw(bool keep) override;
    void Refresh() override;
    float Width() const override;
    float Height() const override;
    /// Raises 380 for a negative width or height.
    void Size(float width, float height) override;
    bool Enabled() const override;
    void SetEnabled(bool enabled) override;
    std::int16_t BorderStyle() const override;
    void SetBorderStyle(std::int16_t style) override;
    std::int16_t Pointer() const override;
    void SetPointer(std::int16_t pointer) override;

    // For the runtime and for tests: these do not count as calls of the contract.
    const DisplayList& Drawn() const { return drawn_; }
    void SetVisibleBottom(float y) { visibleBottom_ = y; }
    /// The size of a pixel is 15 by 15 twips unless a test sets it.
    void SetPixelSize(float width, float height) {
        pixelWidth_ = width;
        pixelHeight_ = height;
    }
    /// Sets the control that is notified to paint and of a changed size; null for none.
    void SetControl(Control* control) { control_ = control; }
    float CurrentWidth() const { return width_; }
    float CurrentHeight() const { return height_; }
    /// Same as Size.
    void Resize(float width, float height);
    /// If the control is shown and draws on demand, erases the surface and lets the control paint.
    void PaintControl();
    bool IsShown() const { return shown_; }
    void SetShown(bool shown) { shown_ = shown; }
    bool AcceptsInput() const { return shown_ && enabled_; }

 private:
    void Call(TextView member) const { faults_->Call(u"Surface", member); }
    const Font::Attributes& Attributes() const {
        return (isDrawing_ ? drawingFont_ : font_)->Now();
    }

    std::shared_ptr<FaultPlan> faults_;
    std::shared_ptr<Font> font_;
    std::shared_ptr<Font> drawingFont_;
    bool isDrawing_ = false;  // between BeginDrawing and EndDrawing
    Control* control_ = nullptr;
    DisplayList drawn_;
    float currentX_ = 0;
    float currentY_ = 0;
    float width_;
    float height_;
    float pixelWidth_ = twipsPerPixel;
    float pixelHeight_ = twipsPerPixel;
    float visibleBottom_ = std::numeric_limits<float>::infinity();
    Color foreColor_ = Color::ButtonText;
    Color backColor_ = Color::ButtonFace;
    std::int16_t borderStyle_ = 0;
    std::int16_t pointer_ = 0;
    bool fontTransparent_ = true;
    bool autoRedraw_ = false;
    bool enabled_ = true;
    bool shown_ = false;
};

}  // namespace lumenkit::memory
