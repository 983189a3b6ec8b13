#include "runtime/win32/surface.h"

#include <algorithm>
#include <utility>

#include "frame/host/accepted_values.h"
#include "runtime/win32/device.h"
#include "runtime/win32/device_canvas.h"

namespace lumenkit::win32 {

namespace {

// Draws nothing. Collects the printed texts, line by line, for screen readers.
class ShownText final : public Canvas {
 public:
    void Clear(Color /*paper*/) override { text_.clear(); }
    void Print(const TextRun& run) override {
        if (!text_.empty() && run.at.y != line_) {
            text_ += crLf;
        }
        line_ = run.at.y;
        text_ += run.text;
    }
    void Fill(const RECT& /*box*/, Color /*color*/) override {}

    const Text& Gathered() const { return text_; }

 private:
    Text text_;
    LONG line_ = 0;
};

}  // namespace

// The scope in which the control paints on one canvas. Paintings may nest: a device can request one
// while the screen is painted.
class Surface::Painting {
 public:
    Painting(Surface& surface, Canvas& canvas)
        : surface_(surface),
          former_(std::exchange(surface.canvas_, &canvas)),
          wasErased_(std::exchange(surface.isErased_, true)),
          x_(surface.currentX_),
          y_(surface.currentY_) {}
    ~Painting() {
        surface_.canvas_ = former_;
        surface_.isErased_ = wasErased_;
        surface_.currentX_ = x_;
        surface_.currentY_ = y_;
    }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;

 private:
    Surface& surface_;
    Canvas* former_;
    bool wasErased_;
    float x_;
    float y_;
};

Surface::Surface(SurfaceOwner& owner, std::shared_ptr<Font> font, Resolution resolution)
    : owner_(owner), resolution_(resolution), font_(*this, std::move(font)) {}

// ---- Drawing

template <typename Draw>
void Surface::Put(Draw&& draw) {
    if (autoRedraw_) {
        draw(kept_);
        Changed();
    } else if (canvas_ != nullptr) {
        draw(*canvas_);
    } else if (owner_.IsShown()) {
        const WindowDevice device(owner_.SurfaceWindow());
        const RECT area = Area();
        const SIZE size = SizeOf(area);
        DeviceCanvas canvas(device.Handle(), Mapping::Plain(size), {0, 0, size.cx, size.cy});
        draw(canvas);
    }
}

void Surface::Cls() {
    currentX_ = 0;
    currentY_ = 0;
    if (autoRedraw_ || !isErased_) {
        Put([&](Canvas& canvas) { canvas.Clear(backColor_); });
    }
}

void Surface::Print(TextView text) {
    const ScreenFontRef font = Realised();
    isErased_ = false;
    Put([&](Canvas& canvas) {
        canvas.Print(
            {.text = text,
             .at = {ToPixels(currentX_, resolution_.x), ToPixels(currentY_, resolution_.y)},
             .font = font,
             .ink = foreColor_,
             .hasPaper = !fontTransparent_,
             .paper = backColor_});
    });
    currentX_ += ToTwips(font->Width(text), resolution_.x);
}

void Surface::FillBox(float x1, float y1, float x2, float y2, Color color) {
    const auto [left, right] =
        std::minmax({ToPixels(x1, resolution_.x), ToPixels(x2, resolution_.x)});
    const auto [top, bottom] =
        std::minmax({ToPixels(y1, resolution_.y), ToPixels(y2, resolution_.y)});
    const RECT box = {left, top, right + 1, bottom + 1};
    isErased_ = false;
    Put([&](Canvas& canvas) { canvas.Fill(box, color == Color{} ? foreColor_ : color); });
    currentX_ = x2;
    currentY_ = y2;
}

void Surface::DrawOn(Canvas& canvas) {
    isChanged_ = false;
    hasPainted_ = true;
    canvas.Clear(backColor_);
    if (autoRedraw_) {
        kept_.DrawOn(canvas);
        return;
    }
    const Painting painting(*this, canvas);
    owner_.PaintControl();
}

Text Surface::ShownTexts() {
    ShownText texts;
    if (canvas_ != nullptr) {
        return {};  // a painting is in progress
    }
    visibleBottom_ = std::numeric_limits<float>::infinity();
    const bool wasChanged = isChanged_;
    DrawOn(texts);
    isChanged_ = wasChanged;
    visibleBottom_ = -1;
    return texts.Gathered();
}

void Surface::Refresh() {
    if (canvas_ != nullptr) {
        return;  // it is being painted
    }
    owner_.PictureChanged();
    if (!owner_.IsShown()) {
        return;
    }
    hasPainted_ = false;
    Invalidate();
    UpdateWindow(owner_.SurfaceWindow());
    if (!hasPainted_ && !autoRedraw_) {
        ShownText unseen;  // the window is covered, but the control paints nevertheless
        DrawOn(unseen);
    }
}

void Surface::Invalidate() {
    if (const HWND window = owner_.SurfaceWindow()) {
        InvalidateRect(window, nullptr, FALSE);
    }
}

// Called when the kept picture changed. Notifies once until the picture is drawn.
void Surface::Changed() {
    if (!std::exchange(isChanged_, true)) {
        Invalidate();
        owner_.PictureChanged();
    }
}

void Surface::SetAutoRedraw(bool keep) {
    if (autoRedraw_ != keep) {
        autoRedraw_ = keep;
        kept_.Clear(backColor_);
    }
}

void Surface::SetBackColor(Color color) {
    backColor_ = color;
    kept_.Clear(color);
    isErased_ = false;
    Invalidate();
    owner_.PictureChanged();
}

// ---- Measuring

const ScreenFontRef& Surface::Realised() {
    if (realised_ == nullptr) {
        realised_ = cache_->Find(font_.Get()->Handle());
    }
    return realised_;
}

float Surface::TextWidth(TextView text) {
    return ToTwips(Realised()->Width(text), resolution_.x);
}

void Surface::TextWidths(TextView text, std::span<double> ends) {
    if (ends_.size() < text.size()) {
        ends_.resize(text.size());
    }
    Realised()->Ends(text, std::span(ends_).first(text.size()));
    for (std::size_t index = 0; index < text.size(); ++index) {
        ends[index] = static_cast<double>(ends_[index]) * twipsPerInch / resolution_.x;
    }
}

float Surface::TextHeight(TextView /*text*/) {
    return ToTwips(Realised()->LineHeight(), resolution_.y);
}

void Surface::SetCurrentFont(host::FontRef font) {
    font_.Assign(font);
    realised_.reset();
}

RECT Surface::Area() const {
    const SIZE whole = owner_.WholeSize();
    const LONG edgeX = borderStyle_ == 0 ? 0 : GetSystemMetrics(SM_CXEDGE);
    const LONG edgeY = borderStyle_ == 0 ? 0 : GetSystemMetrics(SM_CYEDGE);
    return {.left = edgeX,
            .top = edgeY,
            .right = std::max(whole.cx - edgeX, edgeX),
            .bottom = std::max(whole.cy - edgeY, edgeY)};
}

float Surface::ScaleWidth() const {
    const RECT area = Area();
    return ToTwips(static_cast<int>(area.right - area.left), resolution_.x);
}

float Surface::ScaleHeight() const {
    const RECT area = Area();
    return ToTwips(static_cast<int>(area.bottom - area.top), resolution_.y);
}

float Surface::VisibleBottom() const {
    if (autoRedraw_) {
        return std::numeric_limits<float>::infinity();
    }
    return visibleBottom_ < 0 ? ScaleHeight() : visibleBottom_;
}

// ---- The control on its container

float Surface::Width() const {
    return ToTwips(static_cast<int>(owner_.WholeSize().cx), resolution_.x);
}

float Surface::Height() const {
    return ToTwips(static_cast<int>(owner_.WholeSize().cy), resolution_.y);
}

void Surface::Size(float width, float height) {
    RequireSize(width, height);
    const SIZE size = {ToPixels(width, resolution_.x), ToPixels(height, resolution_.y)};
    const SIZE whole = owner_.WholeSize();
    if (size.cx != whole.cx || size.cy != whole.cy) {
        owner_.RequestSize(size);
    }
}

void Surface::SetEnabled(bool enabled) {
    enabled_ = enabled;
    if (const HWND window = owner_.SurfaceWindow()) {
        EnableWindow(window, enabled ? TRUE : FALSE);
    }
}

void Surface::SetBorderStyle(std::int16_t style) {
    const auto accepted = AcceptedNumber<std::int16_t>(style, 0, 1);
    if (std::exchange(borderStyle_, accepted) != accepted) {
        owner_.BorderChanged();
    }
}

void Surface::SetPointer(std::int16_t pointer) {
    RequirePointer(pointer);
    pointer_ = pointer;
}

}  // namespace lumenkit::win32
