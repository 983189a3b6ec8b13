#include "runtime/win32/surface.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "frame/host/accepted_values.h"

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
    void FillFigure(Figure /*figure*/, const RECT& /*box*/, Color /*color*/) override {}
    void BeginClip(const RECT& /*box*/) override {}
    void EndClip() override {}

    const Text& Gathered() const { return text_; }

 private:
    Text text_;
    LONG line_ = 0;
};

}  // namespace

// The scope in which the control paints. The pen does not move.
class Surface::Painting {
 public:
    explicit Painting(Surface& surface)
        : surface_(surface), x_(surface.currentX_), y_(surface.currentY_) {
        surface_.isPainting_ = true;
    }
    ~Painting() {
        surface_.isPainting_ = false;
        surface_.currentX_ = x_;
        surface_.currentY_ = y_;
    }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;

 private:
    Surface& surface_;
    float x_;
    float y_;
};

Surface::Surface(SurfaceOwner& owner, std::shared_ptr<Font> font, Resolution resolution)
    : owner_(owner), resolution_(resolution), font_(*this, std::move(font)) {}

Surface::~Surface() {
    boxes_->Remove(*this);
}

// ---- Drawing

template <typename Draw>
void Surface::Put(Draw&& draw) {
    if (autoRedraw_) {
        draw(kept_);
        Changed();
    } else if (isPainting_) {
        draw(recording_);
    }
}

void Surface::Cls() {
    currentX_ = 0;
    currentY_ = 0;
    Put([&](Canvas& canvas) { canvas.Clear(backColor_); });
}

void Surface::Print(TextView text) {
    const ScreenFontRef font = Realised();
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
    Put([&](Canvas& canvas) { canvas.Fill(box, color == Color{} ? foreColor_ : color); });
    currentX_ = x2;
    currentY_ = y2;
}

void Surface::FillPixels(float x, float y, const host::PixelBox& box, Color color) {
    const int column = ToPixels(x, resolution_.x);
    const int row = ToPixels(y, resolution_.y);
    const RECT place = {column + box.left, row + box.top, column + box.right + 1,
                        row + box.bottom + 1};
    Put([&](Canvas& canvas) { canvas.Fill(place, color == Color{} ? foreColor_ : color); });
    currentX_ = x + ToTwips(box.right, resolution_.x);
    currentY_ = y + ToTwips(box.bottom, resolution_.y);
}

// ---- Painting

void Surface::DrawOn(Canvas& canvas) {
    isChanged_ = false;
    canvas.Clear(backColor_);
    kept_.DrawOn(canvas);
}

Text Surface::ShownTexts() const {
    ShownText texts;
    kept_.DrawOn(texts);
    return texts.Gathered();
}

bool Surface::IsOutdated() const {
    const SIZE size = SizeOf(Area());
    return isOutdated_ || size.cx != paintedSize_.cx || size.cy != paintedSize_.cy;
}

// Whether a change comes from the painting itself. While a message box interrupts the painting,
// changes come from elsewhere.
bool Surface::IsPaintedByControl() const {
    return isPainting_ && !boxes_->IsAny();
}

void Surface::PaintIfOutdated() {
    if (autoRedraw_ || isPainting_ || !IsOutdated()) {
        return;
    }
    if (boxes_->IsAny()) {
        boxes_->Add(*this);
    } else {
        PaintControl();
    }
}

void Surface::PaintControl() {
    isOutdated_ = false;
    paintedSize_ = SizeOf(Area());
    {
        const Painting painting(*this);
        recording_.Clear(backColor_);
        if (!owner_.PaintControl()) {
            isOutdated_ = true;
            return;
        }
    }
    std::swap(kept_, recording_);
    Invalidate();  // parts may have been shown meanwhile
}

void Surface::PictureOutdated() {
    isOutdated_ = true;
    Invalidate();
    owner_.PictureChanged();
}

void Surface::Refresh() {
    if (IsPaintedByControl()) {
        return;
    }
    PictureOutdated();
    if (!isPainting_ && owner_.IsShown()) {
        UpdateWindow(owner_.SurfaceWindow());
        PaintIfOutdated();  // a covered window receives no request to paint
    }
}

void Surface::FontChanged() {
    realised_.reset();
    const bool isByControl = (isPainting_ || isDrawing_) && !boxes_->IsAny();
    if (!isByControl) {
        PictureOutdated();
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
        isOutdated_ = true;
    }
}

void Surface::SetBackColor(Color color) {
    backColor_ = color;
    if (IsPaintedByControl()) {
        recording_.Clear(color);
        return;
    }
    if (autoRedraw_) {
        kept_.Clear(color);
    }
    PictureOutdated();
}

// ---- Measuring

const ScreenFontRef& Surface::Realised() {
    if (realised_ == nullptr) {
        const HeldFont& font = isDrawing_ ? *drawingFont_ : font_;
        realised_ = cache_->Find(font.Get()->Handle());
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
    FontChanged();
}

host::FontRef Surface::BeginDrawing() {
    if (!drawingFont_ || !drawingFont_->Get()->IsSame(*font_.Get())) {
        FontListener& listener = *this;
        drawingFont_.emplace(listener, font_.Get()->Clone());
    }
    isDrawing_ = true;
    realised_.reset();
    return drawingFont_->Get();
}

void Surface::EndDrawing() {
    isDrawing_ = false;
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
    return autoRedraw_ ? std::numeric_limits<float>::infinity() : ScaleHeight();
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
