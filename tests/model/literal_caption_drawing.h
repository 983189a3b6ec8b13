// The label's drawing as its slow twin: every step done for itself, on texts that are cut and
// copied, on a surface of a few lines. It shares no code with the control beyond frame/.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "frame/text.h"
#include "tests/support/label_scene.h"

namespace lumenkit::testing {

/// How often each branch was taken, by its name.
using BranchCounts = std::map<std::string_view, long>;

/// A surface of fixed metrics: a unit is 10 (bold: 11) times the font's size wide, a line 24 times
/// the size high, in twips. It keeps all that is drawn.
struct LiteralSurface {
    std::vector<PictureItem> items;
    float CurrentX = 0;
    float CurrentY = 0;
    float ScaleWidth = 0;
    Color ForeColor = {};
    FontState Font;

    void Cls();
    void Print(const Text& text);
    void Box(float x1, float y1, float x2, float y2);
    float TextWidth(TextView text) const;
    float TextHeight(TextView text) const;
    /// Raises 380 as the runtime's font does.
    void SetSize(float points);
};

class LiteralLabel {
 public:
    /// The scene's visibleBottom plays no part.
    void SetUp(const LabelScene& scene);

    void DisplayCaption();
    void SetIdealSize();

    /// What is drawn, and what was reported since the last call.
    LabelPicture Picture();
    float Width() const { return scene_.width; }
    float Height() const { return scene_.height; }
    const BranchCounts& Branches() const { return branches_; }

 private:
    struct Saved {
        Color ForeColor = {};
        bool Bold = false;
        bool Italic = false;
        float Size = 0;
        bool Underline = false;
    };

    template <typename Body>
    void Trap(const char* procedure, const Body& body);
    void Took(std::string_view branch) { ++branches_[branch]; }
    void DrawLine(Text line);
    void DisplayText(Text text, const bool& endOfLine);
    void Wrap(Text text, float& x0);
    void StartNewLine(const std::int16_t& useBefore, float& newX);
    void ExecuteNextCommand(const Text& restOfLine, float& lineHeight);
    void DrawBullet(const float& x, const float& centreY, const float& radius);
    void SaveState();
    void RestoreState();

    LabelScene scene_;
    LiteralSurface surface_;
    std::vector<std::string> reports_;
    BranchCounts branches_;

    bool IsCompiled_ = false;
    std::vector<Text> CaptionLines_;
    std::vector<Text> CommandNames_;
    std::vector<Text> CommandParams_;
    std::int16_t CommandIndex_ = 0;
    float LineHeight_ = 0;
    float BeforeSpacing_ = 0;
    float MaxLineX_ = 0;
    std::int16_t IdealHeight_ = 0;
    Saved saved_;
};

}  // namespace lumenkit::testing
