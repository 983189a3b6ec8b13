#include "vlabel/caption_renderer.h"

#include <exception>
#include <span>

#include "frame/checked_integer.h"
#include "frame/numbers.h"
#include "frame/raised_flag.h"
#include "vlabel/bar_scanner.h"
#include "vlabel/bullet.h"
#include "vlabel/word_wrap.h"

namespace lumenkit {

namespace {

// The scope of a drawing with a font of its own.
class OwnFont {
 public:
    OwnFont(host::Surface& surface, host::FontRef& font) : surface_(surface), font_(font) {
        font_ = surface_.BeginDrawing();
    }
    ~OwnFont() {
        font_.reset();
        surface_.EndDrawing();
    }
    OwnFont(const OwnFont&) = delete;
    OwnFont& operator=(const OwnFont&) = delete;

 private:
    host::Surface& surface_;
    host::FontRef& font_;
};

}  // namespace

CaptionRenderer::CaptionRenderer(const Module& module, host::Surface& surface,
                                 CaptionSettings& settings)
    : module_(module), surface_(surface), settings_(settings), compiler_(module) {}

void CaptionRenderer::DisplayCaption() {
    module_.Procedure(u"DisplayCaption", [&] {
        if (isDrawing_) {
            return;
        }
        const RaisedFlag drawing(isDrawing_);
        CompileIfChanged();
        const OwnFont font(surface_, font_);
        DrawCaption();
    });
}

// Another caption may be assigned while an error of the compiler is reported. That one is compiled
// by the next drawing.
void CaptionRenderer::CompileIfChanged() {
    if (!settings_.IsCompiled) {
        compiling_ = settings_.Caption;
        compiler_.CompileCaption(compiling_);
        settings_.IsCompiled = settings_.Caption == compiling_;
    }
}

void CaptionRenderer::DrawCaption() {
    if (!SaveState()) {
        return;  // without a saved state, the colour and font could not be restored
    }
    try {
        DrawLines();
    } catch (...) {
        RestoreState();
        throw;
    }
    RestoreState();
}

void CaptionRenderer::DrawLines() {
    surface_.Cls();
    drawing_.CommandIndex = 0;
    drawing_.MaxLineX = 0;
    drawing_.BeforeSpacing = 0;
    visibleBottom_ = surface_.VisibleBottom();
    const TextList& lines = compiler_.Compiled().CaptionLines;
    for (std::int32_t index = 1; index <= lines.Count(); ++index) {
        DrawLine(lines.Item(index));
    }
    drawing_.IdealHeight = RoundToInt16(surface_.CurrentY());
}

void CaptionRenderer::DrawLine(TextView line) {
    drawing_.LineHeight = surface_.TextHeight(line);
    surface_.SetCurrentX(LineStart());
    BarScanner bars(line);
    std::size_t begin = 0;
    for (std::size_t at = bars.Next(begin); at < line.size(); at = bars.Next(begin)) {
        if (at > begin) {
            DisplayText(line.substr(begin, at - begin), false);
        }
        begin = at + 1;
        ExecuteNextCommand(line.substr(begin), drawing_.LineHeight);
    }
    DisplayText(line.substr(begin), true);
}

void CaptionRenderer::DisplayText(TextView text, bool endOfLine) {
    module_.Procedure(u"DisplayText", [&] {
        const float x0 = surface_.CurrentX();
        const TextView printed = DrawBulletOf(text, x0);
        if (settings_.WordWrap) {
            PrintWrapped(printed, x0);
        } else if (IsVisible()) {
            surface_.Print(printed);
        } else {
            Skip(surface_.TextWidth(printed));
        }
        if (endOfLine) {
            float newX = 0;
            StartNewLine(1, newX);
        }
    });
}

// Draws the bullet if the run starts with the prefix, and returns the run without the prefix.
TextView CaptionRenderer::DrawBulletOf(TextView text, float x0) {
    const TextView prefix = settings_.BulletPrefix;
    if (x0 != LineStart() || prefix.empty() || !text.starts_with(prefix)) {
        return text;
    }
    const float y0 = surface_.CurrentY();
    const float height = drawing_.LineHeight;
    DrawBullet(height / 8, y0 + height / 2, height / 4);
    surface_.SetCurrentX(x0);
    surface_.SetCurrentY(y0);
    return text.substr(prefix.size());
}

void CaptionRenderer::PrintWrapped(TextView text, float x0) {
    if (widthEnds_.size() < text.size()) {
        widthEnds_.resize(text.size());
    }
    const std::span ends(widthEnds_.data(), text.size());
    surface_.TextWidths(text, ends);
    const float edge = surface_.ScaleWidth();
    for (WordWrap wrap(text, ends);;) {
        const WordWrap::Step step = wrap.Next(x0, edge, x0 == LineStart());
        switch (step.action) {
            case WordWrap::Action::PrintRest:
                Print(step.text, step.width);
                return;
            case WordWrap::Action::PrintLine:
                Print(step.text, step.width);
                StartNewLine(0, x0);
                break;
            case WordWrap::Action::StartNewLine:
                StartNewLine(0, x0);
                break;
            case WordWrap::Action::Stop:
                return;
        }
    }
}

void CaptionRenderer::Print(TextView text, float width) {
    if (IsVisible()) {
        surface_.Print(text);
    } else {
        Skip(width);
    }
}

bool CaptionRenderer::IsVisible() const {
    return surface_.CurrentY() < visibleBottom_;
}

// Below the visible part, only the pen moves.
void CaptionRenderer::Skip(float width) {
    surface_.SetCurrentX(surface_.CurrentX() + width);
}

void CaptionRenderer::StartNewLine(std::int16_t useBefore, float& newX) {
    module_.Procedure(u"StartNewLine", [&] {
        const float endX = surface_.CurrentX();
        if (endX > drawing_.MaxLineX) {
            drawing_.MaxLineX = endX;
        }
        newX = LineStart();
        surface_.SetCurrentX(newX);
        surface_.SetCurrentY(ToSingle(double{surface_.CurrentY()} + drawing_.LineHeight +
                                      double{drawing_.BeforeSpacing} * useBefore));
    });
}

void CaptionRenderer::ExecuteNextCommand(TextView restOfLine, float& lineHeight) {
    module_.Procedure(u"ExecuteNextCommand", [&] {
        ++drawing_.CommandIndex;
        const TextView parameter = compiler_.Compiled().CommandParams.Item(drawing_.CommandIndex);
        const TextView name = compiler_.Compiled().CommandNames.Item(drawing_.CommandIndex);
        drawing_.InCommand = true;
        Execute(name, parameter, restOfLine, lineHeight);
        drawing_.InCommand = false;
    });
}

void CaptionRenderer::Execute(TextView name, TextView parameter, TextView restOfLine,
                              float& lineHeight) {
    if (name == u"b") {
        font_->SetBold(parameter == u"1");
    } else if (name == u"i") {
        font_->SetItalic(parameter == u"1");
    } else if (name == u"u") {  // only for "|u" at the end of a line; "|u:1|" is compiled to "i"
        font_->SetUnderline(parameter == u"1");
    } else if (name == u"color") {
        surface_.SetForeColor(static_cast<Color>(RoundToInt32(ParseNumber(parameter))));
    } else if (name == u"size") {
        const double size = ParseNumber(parameter);
        if (size > 1) {
            font_->SetSize(ToSingle(size));
            const float height = surface_.TextHeight(restOfLine);
            if (height > lineHeight) {
                lineHeight = height;
            }
        }
    } else if (name == u"before") {
        drawing_.BeforeSpacing = ToSingle(ParseNumber(parameter));
    }
}

void CaptionRenderer::DrawBullet(float x, float centreY, float radius) {
    module_.Procedure(u"DrawBullet", [&] {
        PaintBullet(surface_, settings_.TwipsPerPixelX, settings_.TwipsPerPixelY, x, centreY,
                    radius);
    });
}

bool CaptionRenderer::SaveState() {
    return module_.Function<bool>(u"SaveState", [&](bool& saved) {
        SurfaceState state;
        state.SavedForeColor = surface_.ForeColor();
        state.SavedBold = font_->Bold();
        state.SavedItalic = font_->Italic();
        state.SavedSize = font_->Size();
        state.SavedUnderline = font_->Underline();
        saved_ = state;
        saved = true;
    });
}

// Restores each attribute separately and retries once on failure, because a leftover attribute
// would spoil every later drawing. Reports the first error.
void CaptionRenderer::RestoreState() {
    module_.Procedure(u"RestoreState", [&] {
        std::exception_ptr firstError;
        const auto restore = [&](auto&& put) {
            for (int attempt = 0; attempt < 2; ++attempt) {
                try {
                    put();
                    return;
                } catch (...) {
                    firstError = firstError ? firstError : std::current_exception();
                }
            }
        };
        restore([&] { surface_.SetForeColor(saved_.SavedForeColor); });
        restore([&] { font_->SetBold(saved_.SavedBold); });
        restore([&] { font_->SetItalic(saved_.SavedItalic); });
        restore([&] { font_->SetSize(saved_.SavedSize); });
        restore([&] { font_->SetUnderline(saved_.SavedUnderline); });
        if (firstError) {
            std::rethrow_exception(firstError);
        }
    });
}

}  // namespace lumenkit
