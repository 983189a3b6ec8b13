#pragma once

#include <string>
#include <string_view>

#include "tests/model/literal_caption_drawing.h"
#include "tests/support/label_scene.h"
#include "tests/support/placed_label.h"

namespace lumenkit::testing {

/// Draws scenes with a label and with the literal model of its drawing. The label is one and the
/// same for all of them, so what a scene leaves behind would show in the next.
class DrawingComparison {
 public:
    DrawingComparison() { label_.Placed().StartNew(); }

    /// Where the two disagree on `scene`, on the part of it that can be seen, or on the size that
    /// the label gives itself for it; empty where they do not.
    std::string Difference(LabelScene scene);

    /// The branches that the model has taken so far.
    const BranchCounts& Branches() const { return model_.Branches(); }

 private:
    std::string SizeDifference();

    PlacedLabel label_;
    LiteralLabel model_;
};

/// A fuzzer's input as a scene: settings, the bullet prefix as a line, and the caption.
LabelScene SceneFromBytes(std::string_view bytes);

}  // namespace lumenkit::testing
