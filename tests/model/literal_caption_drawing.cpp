#include "tests/model/literal_caption_drawing.h"

#include <cmath>
#include <utility>

#include "frame/checked_integer.h"
#include "frame/numbers.h"
#include "frame/runtime_error.h"
#include "frame/text_positions.h"
#include "tests/model/literal_caption_compiler.h"
#include "tests/support/brief_report.h"

namespace lumenkit::testing {

namespace {

constexpr std::int16_t twipsPerPixelX = 15;
constexpr std::int16_t twipsPerPixelY = 15;

// Returns the k-th entry, counted from 1.
const Text& Entry(const std::vector<Text>& list, std::int16_t k) {
    if (k < 1 || static_cast<std::size_t>(k) > list.size()) {
        Raise(ErrorNumber::SubscriptOutOfRange);
    }
    return list[static_cast<std::size_t>(k) - 1];
}

}  // namespace

void LiteralSurface::Cls() {
    items = {Cleared()};
    CurrentX = 0;
    CurrentY = 0;
}

void LiteralSurface::Print(const Text& text) {
    items.emplace_back(
        PrintedText{.x = CurrentX, .y = CurrentY, .text = text, .font = Font, .color = ForeColor});
    CurrentX = CurrentX + TextWidth(text);
}

void LiteralSurface::Box(float x1, float y1, float x2, float y2) {
    items.emplace_back(FilledBox{.x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .color = ForeColor});
    CurrentX = x2;
    CurrentY = y2;
}

float LiteralSurface::TextWidth(TextView text) const {
    return static_cast<float>(Len(text) * (Font.bold ? 11.0 : 10.0) * Font.size);
}

float LiteralSurface::TextHeight(TextView) const {
    return static_cast<float>(24.0 * Font.size);
}

void LiteralSurface::SetSize(float points) {
    const double kept = std::nearbyint(double{points} * 10000) / 10000;
    if (kept <= 0 || kept > 2160) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
    Font.size = static_cast<float>(kept);
}

void LiteralLabel::SetUp(const LabelScene& scene) {
    scene_ = scene;
    surface_.Font = scene.font;
    surface_.ForeColor = scene.foreColor;
    surface_.ScaleWidth = scene.width;
    IsCompiled = false;
}

LabelPicture LiteralLabel::Picture() {
    return {.items = surface_.items,
            .penX = surface_.CurrentX,
            .penY = surface_.CurrentY,
            .maxLineX = MaxLineX,
            .idealHeight = IdealHeight,
            .font = surface_.Font,
            .foreColor = surface_.ForeColor,
            .reports = std::exchange(reports_, {})};
}

template <typename Body>
void LiteralLabel::Trap(const char* procedure, const Body& body) {
    try {
        body();
    } catch (const RuntimeError& error) {
        Took("an error is reported");
        reports_.push_back("error " + std::to_string(error.Number()) + " in " + procedure);
    }
}

void LiteralLabel::DisplayCaption() {
    Trap("DisplayCaption", [&] {
        if (!IsCompiled) {
            LiteralCaption compiled = CompileLiterally(scene_.caption);
            CaptionLines = compiled.CaptionLines;
            CommandNames = compiled.CommandNames;
            CommandParams = compiled.CommandParams;
            for (const Text& message : compiled.reports) {
                Took("compiling reports");
                reports_.push_back(BriefReport(u"VLABEL", message));
            }
            IsCompiled = true;
        }
        SaveState();
        try {
            surface_.Cls();
            CommandIndex = 0;
            MaxLineX = 0;
            BeforeSpacing = 0;
            for (const Text& line : CaptionLines) {
                DrawLine(line);
            }
            IdealHeight = RoundToInt16(surface_.CurrentY);
        } catch (const RuntimeError&) {
            Took("the drawing's own error");
            RestoreState();
            throw;
        }
        RestoreState();
    });
}

void LiteralLabel::DrawLine(Text line) {
    LineHeight = surface_.TextHeight(line);
    surface_.CurrentX = scene_.bulletIndent;
    for (;;) {
        const std::int32_t bar = InStr(1, line, u"|");
        if (bar == 0) {
            DisplayText(line, true);
            return;
        }
        if (bar != 1) {
            DisplayText(Text(Left(line, bar - 1)), false);
        }
        line = Text(Mid(line, bar + 1));
        ExecuteNextCommand(line, LineHeight);
    }
}

void LiteralLabel::ExecuteNextCommand(const Text& restOfLine, float& lineHeight) {
    Trap("ExecuteNextCommand", [&] {
        CommandIndex = (Int16(CommandIndex) + 1).Value();
        const Text parameter = Entry(CommandParams, CommandIndex);
        const Text name = Entry(CommandNames, CommandIndex);
        if (name == u"b") {
            surface_.Font.bold = parameter == u"1";
            Took(surface_.Font.bold ? "bold on" : "bold off");
        } else if (name == u"i") {
            surface_.Font.italic = parameter == u"1";
            Took(surface_.Font.italic ? "italic on" : "italic off");
        } else if (name == u"u") {
            surface_.Font.underline = parameter == u"1";
            Took("underline");
        } else if (name == u"color") {
            surface_.ForeColor = static_cast<Color>(RoundToInt32(ParseNumber(parameter)));
            Took("color");
        } else if (name == u"size") {
            if (ParseNumber(parameter) > 1) {
                surface_.SetSize(ToSingle(ParseNumber(parameter)));
                const float h = surface_.TextHeight(restOfLine);
                Took(h > lineHeight ? "size raises the line" : "size does not lower the line");
                if (h > lineHeight) {
                    lineHeight = h;
                }
            } else {
                Took("size is ignored");
            }
        } else if (name == u"before") {
            BeforeSpacing = ToSingle(ParseNumber(parameter));
            Took(BeforeSpacing < 0 ? "before is negative" : "before");
        } else {
            Took("unknown command");
        }
    });
}

void LiteralLabel::DisplayText(Text text, const bool& endOfLine) {
    Trap("DisplayText", [&] {
        float x0 = surface_.CurrentX;
        const std::int32_t n = Len(scene_.bulletPrefix);
        if (x0 == static_cast<float>(scene_.bulletIndent) && n > 0 &&
            Left(text, n) == scene_.bulletPrefix) {
            Took(surface_.items.size() > 1 && CommandIndex > 0 ? "bullet, commands before it"
                                                               : "bullet");
            const float y0 = surface_.CurrentY;
            DrawBullet(LineHeight / 8, y0 + LineHeight / 2, LineHeight / 4);
            surface_.CurrentX = x0;
            surface_.CurrentY = y0;
            text = Text(Mid(text, n + 1));
        } else if (n > 0 && Left(text, n) == scene_.bulletPrefix) {
            Took("prefix not at the line start");
        }
        if (!scene_.wordWrap) {
            Took("no wrap");
            surface_.Print(text);
        } else {
            Wrap(text, x0);
        }
        if (endOfLine) {
            float x = 0;
            StartNewLine(1, x);
        }
    });
}

void LiteralLabel::Wrap(Text text, float& x0) {
    std::int32_t limit = Len(RTrim(text));
    std::int16_t guard = 0;
    bool broken = false;
    for (;;) {
        const Text trimmed(RTrim(text));
        if (static_cast<float>(x0 + surface_.TextWidth(trimmed)) <= surface_.ScaleWidth) {
            Took(text.empty()      ? "wrap: empty run"
                 : trimmed.empty() ? "wrap: blank run"
                                   : "wrap: rest fits");
            if (static_cast<float>(x0 + surface_.TextWidth(trimmed)) == surface_.ScaleWidth) {
                Took("wrap: rest fits just");
            }
            surface_.Print(text);
            return;
        }
        const std::int32_t p = limit > Len(trimmed) ? 0 : InStrRev(trimmed, u" ", limit);
        if (p < 2) {
            if (broken && limit > Len(trimmed)) {
                Took("wrap: the limit survives a break");
            }
            if (p == 1) {
                Took("wrap: a blank in the first place is no break");
            }
            if (x0 == static_cast<float>(scene_.bulletIndent)) {
                Took("wrap: too wide, printed whole");
                surface_.Print(text);
                return;
            }
            Took(text.empty() ? "wrap: empty run starts a new line" : "wrap: starts a new line");
            StartNewLine(0, x0);
        } else {
            const Text first(Left(text, p));
            if (static_cast<float>(x0 + surface_.TextWidth(RTrim(first))) <= surface_.ScaleWidth) {
                Took("wrap: breaks");
                surface_.Print(first);
                StartNewLine(0, x0);
                text = Text(Mid(text, p + 1));
                broken = true;
            } else {
                limit = Len(RTrim(first));
                Took(limit == 0 ? "wrap: the limit becomes 0" : "wrap: looks for an earlier blank");
            }
        }
        guard = (Int16(guard) + 1).Value();
        if (guard > 1000) {
            Took("wrap: gives up");
            return;
        }
        if (text.empty()) {
            return;
        }
    }
}

void LiteralLabel::StartNewLine(const std::int16_t& useBefore, float& newX) {
    Trap("StartNewLine", [&] {
        if (surface_.CurrentX > MaxLineX) {
            MaxLineX = surface_.CurrentX;
        }
        newX = scene_.bulletIndent;
        surface_.CurrentX = scene_.bulletIndent;
        surface_.CurrentY = ToSingle(double{surface_.CurrentY} + double{LineHeight} +
                                     useBefore * double{BeforeSpacing});
    });
}

void LiteralLabel::DrawBullet(const float& x, const float& centreY, const float& radius) {
    Trap("DrawBullet", [&] {
        const float px = twipsPerPixelX;
        const float py = twipsPerPixelY;
        const float X = std::floor(x / px) * px;
        const float Y = std::floor(centreY / py + 1) * py;
        const float R = radius / py + 1;
        if (R <= 2) {
            Took("bullet of R <= 2");
            surface_.Box(X, Y - py, X + px, Y);
        } else if (R <= 3) {
            Took("bullet of R <= 3");
            surface_.Box(X, Y - py, X + 2 * px, Y + py);
        } else if (R <= 4) {
            Took("bullet of R <= 4");
            surface_.Box(X, Y - py, X + 3 * px, Y);
            surface_.Box(X + px, Y - 2 * py, X + 2 * px, Y + py);
        } else if (R <= 5) {
            Took("bullet of R <= 5");
            surface_.Box(X, Y - py, X + 4 * px, Y + py);
            surface_.Box(X + px, Y - 2 * py, X + 3 * px, Y + 2 * py);
        } else if (R <= 6) {
            Took("bullet of R <= 6");
            surface_.Box(X + px, Y - 2 * py, X + 4 * px, Y + py);
            surface_.Box(X, Y - py, X + 5 * px, Y);
            surface_.Box(X + 2 * px, Y - 3 * py, X + 3 * px, Y + 2 * py);
        } else if (R <= 7) {
            Took("bullet of R <= 7");
            surface_.Box(X + px, Y - 2 * py, X + 5 * px, Y + 2 * py);
            surface_.Box(X, Y - py, X + 6 * px, Y + py);
            surface_.Box(X + 2 * px, Y - 3 * py, X + 4 * px, Y + 3 * py);
        } else if (R <= 255) {
            Took("bullet of R <= 255");
            surface_.Box(X + px, Y - 3 * py, X + 6 * px, Y + 2 * py);
            surface_.Box(X, Y - 2 * py, X + 7 * px, Y + py);
            surface_.Box(X + 2 * px, Y - 4 * py, X + 5 * px, Y + 3 * py);
        } else {
            Took("bullet of R > 255");
        }
    });
}

void LiteralLabel::SaveState() {
    saved_ = {.ForeColor = surface_.ForeColor,
              .Bold = surface_.Font.bold,
              .Italic = surface_.Font.italic,
              .Size = surface_.Font.size,
              .Underline = surface_.Font.underline};
}

void LiteralLabel::RestoreState() {
    surface_.ForeColor = saved_.ForeColor;
    surface_.Font.bold = saved_.Bold;
    surface_.Font.italic = saved_.Italic;
    surface_.SetSize(saved_.Size);
    surface_.Font.underline = saved_.Underline;
}

void LiteralLabel::SetIdealSize() {
    Trap("SetIdealSize", [&] {
        if (scene_.wordWrap) {
            return;
        }
        const std::int16_t px = twipsPerPixelX;
        const std::int16_t py = twipsPerPixelY;
        float W = scene_.width;
        float H = scene_.height;
        DisplayCaption();
        bool changed = false;
        if (static_cast<float>(double{MaxLineX} + px) > W) {
            W = static_cast<float>(MaxLineX + px * 1.1);
            changed = true;
            Took("ideal size: wider");
        }
        if (static_cast<float>(MaxLineX + 2.0 * px) < W) {
            W = static_cast<float>(MaxLineX + px * 1.9);
            changed = true;
            Took("ideal size: narrower");
        }
        if (H < (Int16(IdealHeight) + py).Value()) {
            H = static_cast<float>(IdealHeight + py * 1.1);
            changed = true;
            Took("ideal size: higher");
        }
        if (H > (Int16(IdealHeight) + Int16(2) * py).Value()) {
            H = static_cast<float>(IdealHeight + py * 1.9);
            changed = true;
            Took("ideal size: lower");
        }
        if (changed) {
            if (W < 0 || H < 0) {
                Raise(ErrorNumber::InvalidPropertyValue);
            }
            scene_.width = W;
            scene_.height = H;
        } else {
            Took("ideal size: kept");
        }
    });
}

}  // namespace lumenkit::testing
