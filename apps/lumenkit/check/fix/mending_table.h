// Which rules have a mending.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "apps/lumenkit/check/fix/caption_mendings.h"
#include "apps/lumenkit/check/fix/mending.h"
#include "apps/lumenkit/check/fix/property_mendings.h"

namespace lumenkit::check {

struct RuleMending {
    std::string_view rule;
    /// Null for a rule about properties.
    std::optional<Mending> (*ofCaption)(const CaptionFault& fault) = nullptr;
    /// Null for a rule about captions.
    std::optional<MendedProperty> (*ofProperty)(const forms::Block& control,
                                                const forms::Property& property,
                                                const Finding& finding) = nullptr;
    /// Whether one finding stands for all faults of this kind in a caption.
    bool isAboutAll = false;
};

std::span<const RuleMending> AllMendings();

/// Returns null for a rule whose findings only the author can mend.
const RuleMending* FindMending(std::string_view rule);

}  // namespace lumenkit::check
