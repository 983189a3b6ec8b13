#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "frame/color.h"
#include "frame/module.h"
#include "frame/module_errors.h"
#include "frame/text.h"
#include "runtime/memory/display_list.h"
#include "runtime/memory/fault_plan.h"
#include "runtime/memory/surface.h"
#include "vlabel/caption_renderer.h"

namespace lumenkit::svg {

/// The properties of a label besides its caption. Lengths are in twips, colours are RGB.
struct LabelLook {
    Text fontName = u"MS Sans Serif";
    float fontSize = 10;  ///< points; see IsFontSize
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    Color foreColor = Rgb(0, 0, 0);
    Color backColor = Rgb(255, 255, 255);
    Text bulletPrefix = {};
    std::int16_t bulletIndent = 0;
    /// Words wrap at this width. Without it, the label is as wide as its drawing.
    std::optional<float> width = {};
};

/// Whether a font can have this size, in points.
bool IsFontSize(float points);

/// A caption drawn without a window, as a label draws it.
class DrawnCaption {
 public:
    /// Reports errors of the compiler and of the drawing to `errors`.
    DrawnCaption(ModuleErrors& errors, TextView caption, const LabelLook& look);

    const memory::DisplayList& Drawn() const { return surface_.Drawn(); }
    /// The size of the label in twips. A size that follows from the drawing is that of a label
    /// fitted to its caption, in whole pixels.
    double Width() const;
    double Height() const;

    /// Returns an SVG document with the drawing.
    std::string ToSvg() const;

 private:
    LabelLook look_;
    CaptionSettings settings_;
    std::shared_ptr<memory::FaultPlan> faults_ = std::make_shared<memory::FaultPlan>();
    memory::Surface surface_;
    Module module_;
    CaptionRenderer renderer_;
};

}  // namespace lumenkit::svg
