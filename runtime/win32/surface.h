#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "frame/host/surface.h"
#include "runtime/shared/open_boxes.h"
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
    /// Runs UserControl_Paint. Returns false if the control is not started yet.
    virtual bool PaintControl() = 0;
    virtual void RequestSize(SIZE size) = 0;
    /// Called when the border was added or removed.
    virtual void BorderChanged() = 0;
    virtual void PictureChanged() = 0;
};

/// The drawing surface of a control: the client area of its window.
///
/// The surface keeps what was drawn on it, and every device is drawn from that. Without AutoRedraw,
/// drawing has an effect only during UserControl_Paint, which runs for a reason: the first time,
/// for Refresh, and after a change of the size, the font, the background colour or the ambient
/// properties. At other times the pen moves and nothing is drawn. While a message box of a control
/// is open, the surface shows its former picture, and the control paints after the box is closed.
class Surface final : public host::Surface, private FontListener, private shared::BoxWaiter {
 public:
    /// The owner must outlive the surface.
    Surface(SurfaceOwner& owner, std::shared_ptr<Font> font, Resolution resolution);
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
    void SetCurrentFont(host::FontRef font) override;
    host::FontRef BeginDrawing() override;
    void EndDrawing() override;
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
    /// Makes the control paint again before the picture is shown next.
    void PictureOutdated();
    /// Lets the control paint if the picture is outdated.
    void PaintIfOutdated();
    /// Clears the canvas and draws the surface's picture on it.
    void DrawOn(Canvas& canvas);
    /// Returns the texts that were drawn last, in lines.
    Text ShownTexts() const;

 private:
    class Painting;

    void FontChanged() override;
    void BoxesClosed() override { PictureOutdated(); }
    const ScreenFontRef& Realised();
    template <typename Draw>
    void Put(Draw&& draw);
    bool IsOutdated() const;
    bool IsPaintedByControl() const;
    void PaintControl();
    void Invalidate();
    void Changed();

    SurfaceOwner& owner_;
    Resolution resolution_;
    ThreadShared<FontCache> cache_;
    HeldFont font_;
    std::optional<HeldFont> drawingFont_;
    bool isDrawing_ = false;  // between BeginDrawing and EndDrawing
    ScreenFontRef realised_;  // null: not realised since the font changed
    KeptPicture kept_;        // is shown
    KeptPicture recording_;   // is being painted
    ThreadShared<shared::OpenBoxes> boxes_;
    std::vector<int> ends_;
    float currentX_ = 0;
    float currentY_ = 0;
    Color foreColor_ = Color::ButtonText;
    Color backColor_ = Color::ButtonFace;
    std::int16_t borderStyle_ = 0;
    std::int16_t pointer_ = 0;
    bool fontTransparent_ = true;
    bool autoRedraw_ = false;
    bool enabled_ = true;
    bool isPainting_ = false;
    bool isOutdated_ = true;  // the control must paint before the picture is shown again
    bool isChanged_ = false;  // since the picture was drawn last
    SIZE paintedSize_ = {};
};

}  // namespace lumenkit::win32
