// Lines of words in several styles: as runs, as a caption and as HTML.
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
