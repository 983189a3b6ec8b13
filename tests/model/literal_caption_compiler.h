// A slow, literal model of the caption compiler. Each step is separate; texts are searched from the
// start and rebuilt each time. It shares no code with the compiler except frame/.
#pragma once

#include <string>
#include <vector>

#include "frame/text.h"

namespace lumenkit::testing {

struct LiteralCaption {
    std::vector<Text> CaptionLines;
    std::vector<Text> CommandNames;
    std::vector<Text> CommandParams;
    /// The messages of the error reports, in order.
    std::vector<Text> reports;
};

LiteralCaption CompileLiterally(TextView caption);

}  // namespace lumenkit::testing
