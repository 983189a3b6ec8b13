// Reads the documents that lumenkit writes. Lengths are in the unit of the document, points.
#pragma once

#include <string>
#include <vector>

#include "frame/text.h"

namespace lumenkit::testing {

struct SvgRun {
    Text text;
    double x = 0;
    double y = 0;
    double length = 0;
    // Own or inherited.
    double size = 0;
    std::string family;
    std::string fill;
    bool bold = false;
    bool italic = false;
    std::string decoration;
};

struct SvgBox {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    std::string fill;

    friend bool operator==(const SvgBox&, const SvgBox&) = default;
};

struct SvgDrawing {
    double width = 0;  ///< pixels
    double height = 0;
    double viewWidth = 0;
    double viewHeight = 0;
    Text title;
    SvgBox background;
    std::vector<SvgRun> runs;
    std::vector<SvgBox> boxes;

    /// All texts in their order.
    Text Joined() const;
};

/// Fails the test if the document is not well-formed XML, or contains an element, an attribute or a
/// value that the programs do not write.
SvgDrawing ReadSvg(const std::string& bytes);

}  // namespace lumenkit::testing
