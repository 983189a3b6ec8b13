#pragma once

#include <string>
#include <string_view>

#include "tests/model/literal_caption_drawing.h"
#include "tests/support/label_scene.h"
#include "tests/support/placed_label.h"

namespace lumenkit::testing {

/// Draws scenes with a label and with the literal model of its drawing. One label is used for all
/// scenes, so that state left by one scene shows in the next.
class DrawingComparison {
 public:
    DrawingComparison() { label_.Placed().StartNew(); }

    /// Returns the differences between the two for `scene`: in the drawing of its visible part, in
    /// the whole drawing, and in the size that SetIdealSize sets; empty if there are none.
    std::string Difference(LabelScene scene);

    /// The branches that the model has taken so far.
    const BranchCounts& Branches() const { return model_.Branches(); }

 private:
    std::string SizeDifference();

    PlacedLabel label_;
    LiteralLabel model_;
};

/// Converts a fuzzer's input to a scene: settings, the bullet prefix as a line, and the caption.
LabelScene SceneFromBytes(std::string_view bytes);

}  // namespace lumenkit::testing
