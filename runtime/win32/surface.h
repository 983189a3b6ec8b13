#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <vector>

#include "frame/host/surface.h"
#include "runtime/win32/canvas.h"
#include "runtime/win32/font.h"
#include "runtime/win32/font_cache.h"
#include "runtime/win32/kept_picture.h"
#include "runtime/win32/pixels.h"
#include "runtime/win32/thread_shared.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// The services that a surface needs from its control.
class SurfaceOwner {
 public:
    virtual ~SurfaceOwner() = default;

    /// The control's window, or null if it was destroyed.
    virtual HWND SurfaceWindow() const = 0;
    /// Size of the control, border included, in pixels.
    virtual SIZE WholeSize() const = 0;
    /// Whether the control is shown on its container.
    virtual bool IsShown() const = 0;
    /// Runs UserControl_Paint.
    virtual void PaintControl() = 0;
    virtual void RequestSize(SIZE size) = 0;
    /// Called when the border was added or removed.
    virtual void BorderChanged() = 0;
    virtual void PictureChanged() = 0;
};

/// The drawing surface of a control: the client area of its window. With AutoRedraw it records all
/// drawing since Cls as a list and draws that list. Without AutoRedraw, drawing inside
/// UserControl_Paint goes to the current device; drawing at other times stays on the screen until
/// the next repaint.
class Surface final : public host::Surface, private FontListener {
 public:
    /// The owner must outlive the surface.
    Surface(SurfaceOwner& owner, std::shared_ptr<Font> font, Resolution resolution);

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
    void SetCurrentFont(host::FontRef font) override;
    Color ForeColor() const override { return foreColor_; }
    void SetForeColor(Color color) override { foreColor_ = color; }
    Color BackColor() const override { return backColor_; }
    void SetBackColor(Color color) override;
    bool FontTransparent() const override { return fontTransparent_; }
    void SetFontTransparent(bool transparent) override { fontTransparent_ = transparent; }
    bool AutoRedraw() const override { return autoRedraw_; }
    void SetAutoRedraw(bool keep) override;
    void Refresh() override;
    float Width() const override;
    float Height() const override;
    /// Raises 380 for a negative width or height.
    void Size(float width, float height) override;
    bool Enabled() const override { return enabled_; }
    void SetEnabled(bool enabled) override;
    std::int16_t BorderStyle() const override { return borderStyle_; }
    void SetBorderStyle(std::int16_t style) override;
    std::int16_t Pointer() const override { return pointer_; }
    void SetPointer(std::int16_t pointer) override;

    // Used by the runtime; not part of the host contract.
    /// Returns the drawing area in coordinates of the control, in pixels.
    RECT Area() const;
    /// Clears the canvas and draws the surface's picture on it. The pen does not move. If the
    /// surface does not keep its picture, the control paints.
    void DrawOn(Canvas& canvas);
    /// Returns the texts that the picture shows, in lines.
    Text ShownTexts();

 private:
    class Painting;

    void FontChanged() override { realised_.reset(); }
    const ScreenFontRef& Realised();
    template <typename Draw>
    void Put(Draw&& draw);
    void Invalidate();
    void Changed();

    SurfaceOwner& owner_;
    Resolution resolution_;
    ThreadShared<FontCache> cache_;
    HeldFont font_;
    ScreenFontRef realised_;    // null: not realised since the font changed
    Canvas* canvas_ = nullptr;  // the canvas that the control paints on now
    KeptPicture kept_;
    std::vector<int> ends_;
    float currentX_ = 0;
    float currentY_ = 0;
    float visibleBottom_ = -1;  // below 0: the bottom of the drawing area
    Color foreColor_ = Color::ButtonText;
    Color backColor_ = Color::ButtonFace;
    std::int16_t borderStyle_ = 0;
    std::int16_t pointer_ = 0;
    bool fontTransparent_ = true;
    bool autoRedraw_ = false;
    bool enabled_ = true;
    bool isErased_ = false;   // nothing is drawn on the canvas yet
    bool isChanged_ = false;  // since the picture was drawn last
    bool hasPainted_ = false;
};

}  // namespace lumenkit::win32
