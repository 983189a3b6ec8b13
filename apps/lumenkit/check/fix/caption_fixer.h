#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "apps/lumenkit/check/caption_outline.h"
#include "apps/lumenkit/check/finding.h"
#include "apps/lumenkit/check/fix/caption_holder.h"
#include "apps/lumenkit/check/fix/drawn_control.h"
#include "apps/lumenkit/check/fix/mending.h"
#include "frame/text.h"

namespace lumenkit::check {

/// Which mendings are made.
enum class FixScope {
    Safe,  ///< those after which the same is drawn
    All,   ///< also those that change what is drawn
};

/// Mends a caption. Makes no mending after which the label reports another error, has more findings
/// or still has the finding.
class CaptionFixer {
 public:
    /// `holder` must outlive the fixer.
    CaptionFixer(CaptionHolder& holder, FixScope scope) : holder_(holder), scope_(scope) {}

    /// Mends as many of the findings as possible. They are about the caption as it is now. Returns
    /// those that were mended.
    Findings Fix(const Findings& findings);

 private:
    struct Attempt {
        Finding finding;
        Mending mending;
    };
    using Attempts = std::vector<Attempt>;
    struct State {
        Text caption;
        Findings findings;
        DrawnControl drawn;
    };

    State Look() const;
    std::optional<Attempt> AttemptFor(const Finding& finding, const CaptionOutline& outline) const;
    Attempts AttemptsFor(const Findings& findings, bool areAboutAll) const;
    void FixParts(Attempts attempts, Findings& fixed);
    bool Try(const Attempts& attempts);
    bool IsAccepted(const Attempts& attempts, const TextEdits& edits, const State& after) const;

    CaptionHolder& holder_;
    FixScope scope_;
    State now_;
    std::size_t work_ = 0;
};

}  // namespace lumenkit::check
