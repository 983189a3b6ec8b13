// Lines of differently styled words: as a caption, and as what there is to be drawn.
#pragma once

#include <vector>

#include "bench/marked_texts.h"
#include "frame/text.h"

namespace lumenkit::bench {

struct StyledRun {
    Text words;
    bool bold = false;
    bool italic = false;
    bool blue = false;
};
using StyledLine = std::vector<StyledRun>;

/// `count` lines of seven runs in plain, bold, italic and blue.
std::vector<StyledLine> StyledLines(MarkedTexts& texts, int count);
Text CaptionOf(const std::vector<StyledLine>& lines);
/// The same for rich text in HTML.
Text HtmlOf(const std::vector<StyledLine>& lines);

}  // namespace lumenkit::bench
