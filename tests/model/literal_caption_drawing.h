// A slow, literal model of the label's drawing. Each step is separate, on texts that are cut and
// copied, on a surface of a few lines of code. It shares no code with the control except frame/.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "frame/text.h"
#include "tests/support/label_scene.h"

namespace lumenkit::testing {

/// The number of times that each branch was taken, by the name of the branch.
using BranchCounts = std::map<std::string_view, long>;

/// A surface with fixed metrics in twips. A unit is 10 times the font size wide, a bold one 11
/// times; a line is 24 times the font size high. The surface records everything that is drawn.
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
    /// Raises 380 for sizes up to 0 and above 2160, as the runtime's font does.
    void SetSize(float points);
};

class LiteralLabel {
 public:
    /// Ignores the scene's visibleBottom.
    void SetUp(const LabelScene& scene);

    void DisplayCaption();
    void SetIdealSize();

    /// Returns the picture, with the reports since the last call.
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

    bool IsCompiled = false;
    std::vector<Text> CaptionLines;
    std::vector<Text> CommandNames;
    std::vector<Text> CommandParams;
    std::int16_t CommandIndex = 0;
    float LineHeight = 0;
    float BeforeSpacing = 0;
    float MaxLineX = 0;
    std::int16_t IdealHeight = 0;
    Saved saved_;
};

}  // namespace lumenkit::testing
