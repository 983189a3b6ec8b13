#pragma once

#include <string>
#include <string_view>

#include "tests/model/literal_caption_compiler.h"
#include "tests/support/fake_reporter.h"
#include "vlabel/caption_compiler.h"

namespace lumenkit::testing {

/// Compiles captions with the compiler and with its literal model. The compiler is one and the
/// same for all of them, so what a caption leaves behind would show in the next.
class CaptionComparison {
 public:
    /// Where the two disagree on `caption`, lines, commands or error reports; empty where they
    /// do not.
    std::string Difference(TextView caption);

    /// The model's result for the last caption.
    const LiteralCaption& Literal() const { return literal_; }

 private:
    ReportingModule module_{u"VLABEL"};
    CaptionCompiler compiler_{module_};
    LiteralCaption literal_;
};

/// The bytes of a corpus file as a caption: UTF-8 or, where they are not that, a unit for each
/// byte.
Text CaptionFromBytes(std::string_view bytes);

}  // namespace lumenkit::testing
