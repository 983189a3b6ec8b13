#pragma once

#include <string>
#include <string_view>

#include "tests/model/literal_restrictions.h"
#include "vmemo/restriction_engine.h"

namespace lumenkit::testing {

struct RestrictionCase {
    Text text;
    TextLimits limits;  ///< not both 0
    RestrictionMode mode = RestrictionMode::Plain;
};

/// Restricts texts with the engine and with its literal model.
class RestrictionComparison {
 public:
    /// Returns the difference between the two; empty if there is none.
    std::string Difference(const RestrictionCase& given);

    /// The model's result for the last case.
    const LiteralRestriction& Literal() const { return literal_; }

 private:
    LiteralRestriction literal_;
};

/// Quotes a text for messages. Some control characters are named.
std::string Quoted(const Text& text);

/// Converts a fuzzer's input to a case: mode, limits and text.
RestrictionCase RestrictionFromBytes(std::string_view bytes);

}  // namespace lumenkit::testing
