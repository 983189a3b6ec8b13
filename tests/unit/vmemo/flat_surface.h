#pragma once

#include <cstdint>
#include <span>
#include <utility>

#include "frame/host/surface.h"

namespace lumenkit::testing {

/// A surface with fonts whose letters have no width.
class FlatSurface final : public host::Surface {
 public:
    explicit FlatSurface(host::Surface& real) : real_(real) {}

    float TextWidth(TextView) override { return 0; }

    float CurrentX() const override { return real_.CurrentX(); }
    void SetCurrentX(float x) override { real_.SetCurrentX(x); }
    float CurrentY() const override { return real_.CurrentY(); }
    void SetCurrentY(float y) override { real_.SetCurrentY(y); }
    void Cls() override { real_.Cls(); }
    void Print(TextView text) override { real_.Print(text); }
    void FillBox(float x1, float y1, float x2, float y2, Color color) override {
        real_.FillBox(x1, y1, x2, y2, color);
    }
    void TextWidths(TextView text, std::span<double> ends) override {
        real_.TextWidths(text, ends);
    }
    float TextHeight(TextView text) override { return real_.TextHeight(text); }
    float ScaleWidth() const override { return real_.ScaleWidth(); }
    float ScaleHeight() const override { return real_.ScaleHeight(); }
    float VisibleBottom() const override { return real_.VisibleBottom(); }
    void FillPixels(float x, float y, const host::PixelBox& box, Color color) override {
        real_.FillPixels(x, y, box, color);
    }
    host::FontRef BeginDrawing() override { return real_.BeginDrawing(); }
    void EndDrawing() override { real_.EndDrawing(); }
    host::FontRef CurrentFont() const override { return real_.CurrentFont(); }
    void SetCurrentFont(host::FontRef font) override { real_.SetCurrentFont(std::move(font)); }
    Color ForeColor() const override { return real_.ForeColor(); }
    void SetForeColor(Color color) override { real_.SetForeColor(color); }
    Color BackColor() const override { return real_.BackColor(); }
    void SetBackColor(Color color) override { real_.SetBackColor(color); }
    bool FontTransparent() const override { return real_.FontTransparent(); }
    void SetFontTransparent(bool transparent) override { real_.SetFontTransparent(transparent); }
    bool AutoRedraw() const override { return real_.AutoRedraw(); }
    void SetAutoRedraw(bool keep) override { real_.SetAutoRedraw(keep); }
    void Refresh() override { real_.Refresh(); }
    float Width() const override { return real_.Width(); }
    float Height() const override { return real_.Height(); }
    void Size(float width, float height) override { real_.Size(width, height); }
    bool Enabled() const override { return real_.Enabled(); }
    void SetEnabled(bool enabled) override { real_.SetEnabled(enabled); }
    std::int16_t BorderStyle() const override { return real_.BorderStyle(); }
    void SetBorderStyle(std::int16_t style) override { real_.SetBorderStyle(style); }
    std::int16_t Pointer() const override { return real_.Pointer(); }
    void SetPointer(std::int16_t pointer) override { real_.SetPointer(pointer); }

 private:
    host::Surface& real_;
};

}  // namespace lumenkit::testing
