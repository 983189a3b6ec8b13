// Short forms of remarks for comparison: "rule@offset".
#pragma once

#include <string>
#include <vector>

#include "apps/lumenkit/check/finding.h"

namespace lumenkit::check {

inline std::vector<std::string> Described(const Remarks& remarks) {
    std::vector<std::string> described;
    for (const Remark& remark : remarks) {
        described.push_back(std::string(remark.rule) + '@' + std::to_string(remark.offset));
    }
    return described;
}

}  // namespace lumenkit::check
