// Draws a compiled caption on a surface, line by line: text runs, the commands between them, word
// wrap and bullets.
//
// Runs on one line are aligned at their top. There is no margin: the first line is drawn at Y = 0,
// and every line starts at X = BulletIndent. Only this class lays out text; the ideal size is
// computed from its results MaxLineX and IdealHeight.
#pragma once

#include <cstdint>
#include <vector>

#include "frame/color.h"
#include "frame/host/surface.h"
#include "frame/module.h"
#include "frame/text.h"
#include "vlabel/caption_compiler.h"

namespace lumenkit {

/// The settings of a label that affect the drawing of its caption. The label owns and assigns them.
struct CaptionSettings {
    Text Caption;
    Text BulletPrefix;
    std::int16_t BulletIndent = 0;  ///< twips
    bool WordWrap = false;
    /// False after Caption changed: the next drawing compiles it first.
    bool IsCompiled = false;
    /// Pixel sizes of the screen when the control was initialised.
    std::int16_t TwipsPerPixelX = 0;
    std::int16_t TwipsPerPixelY = 0;
};

/// The state of one drawing pass, reset at its start.
struct CaptionDrawing {
    std::int16_t CommandIndex = 0;  ///< commands applied so far
    float LineHeight = 0;           ///< advance of the line being drawn, twips
    float BeforeSpacing = 0;        ///< added to it at explicit line ends, twips
    float MaxLineX = 0;             ///< largest X of the pen at the end of any line, twips
    std::int16_t IdealHeight = 0;   ///< Y of the pen after the last line, twips
    /// True while a command is applied. Nothing reads it; it is a part of the documented state.
    bool InCommand = false;
};

class CaptionRenderer {
 public:
    /// All arguments must outlive the renderer. The settings are read at each drawing.
    CaptionRenderer(const Module& module, host::Surface& surface, CaptionSettings& settings);

    /// Clears the surface and draws the caption, after compiling it if it changed. Restores
    /// ForeColor at the end, also after an error; the font of the surface is not changed at all.
    /// Errors are reported, not raised. If the host requests a repaint during an error report, the
    /// nested call draws nothing.
    void DisplayCaption();

    /// Returns the results of the last drawing; sizing uses MaxLineX and IdealHeight.
    const CaptionDrawing& Drawing() const { return drawing_; }

 private:
    struct SurfaceState {
        Color SavedForeColor{};
        bool SavedBold = false;
        bool SavedItalic = false;
        bool SavedUnderline = false;
        float SavedSize = 0;
    };

    void CompileIfChanged();
    void DrawCaption();
    void DrawLines();
    void DrawLine(TextView line);
    void DisplayText(TextView text, bool endOfLine);
    TextView DrawBulletOf(TextView text, float x0);
    void PrintWrapped(TextView text, float x0);
    void Print(TextView text, float width);
    void Skip(float width);
    bool IsVisible() const;
    void StartNewLine(std::int16_t useBefore, float& newX);
    void ExecuteNextCommand(TextView restOfLine, float& lineHeight);
    void Execute(TextView name, TextView parameter, TextView restOfLine, float& lineHeight);
    void DrawBullet(float x, float centreY, float radius);
    bool SaveState();
    void RestoreState();
    float LineStart() const { return settings_.BulletIndent; }

    const Module& module_;
    host::Surface& surface_;
    CaptionSettings& settings_;
    CaptionCompiler compiler_;
    CaptionDrawing drawing_;
    host::FontRef font_;  // of the drawing; null between drawings
    SurfaceState saved_;
    float visibleBottom_ = 0;
    bool isDrawing_ = false;
    Text compiling_;  // a copy: the host may assign another caption during an error report
    std::vector<double> widthEnds_;  // reused, so that wrapping stops allocating
};

}  // namespace lumenkit
