// The caption compiler's slow twin: every step is done for itself, on texts that are searched from
// the start and rebuilt each time. It shares no code with the compiler beyond frame/.
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
