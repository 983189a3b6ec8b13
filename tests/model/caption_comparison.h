#pragma once

#include <string>
#include <string_view>

#include "tests/model/literal_caption_compiler.h"
#include "tests/support/fake_reporter.h"
#include "vlabel/caption_compiler.h"

namespace lumenkit::testing {

/// Compiles captions with the compiler and with its literal model. One compiler is used for all
/// captions, so that state left by one caption shows in the next.
class CaptionComparison {
 public:
    /// Returns the first differences between the two for `caption`, in lines, commands and error
    /// reports; empty if there are none.
    std::string Difference(TextView caption);

    /// The model's result for the last caption.
    const LiteralCaption& Literal() const { return literal_; }

 private:
    ReportingModule module_{u"VLABEL"};
    CaptionCompiler compiler_{module_};
    LiteralCaption literal_;
};

/// Returns the bytes of a corpus file as a caption: decoded from UTF-8, or one unit for each byte
/// if they are not valid UTF-8.
Text CaptionFromBytes(std::string_view bytes);

}  // namespace lumenkit::testing
