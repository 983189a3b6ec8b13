// The results of checks, with their places.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/position.h"

namespace lumenkit::check {

/// A remark about a text. All strings are UTF-8.
struct Remark {
    std::string_view rule;   ///< the name of a rule in rules.h
    std::size_t offset = 0;  ///< in the text, UTF-16 units from 0
    std::string message;
    std::string suggestion;  ///< the probable intention; empty if unknown
};

using Remarks = std::vector<Remark>;

/// A remark about a place in a file.
struct Finding {
    std::string_view rule;              ///< the name of a rule in rules.h
    std::string file;                   ///< as named by the caller
    forms::Position place;              ///< in the file
    std::string control;                ///< "VLabel1", "VLabel1(2)"; empty for a caption file
    std::string property;               ///< "Caption"; empty if it is not about one property
    std::optional<std::size_t> offset;  ///< in the text of the property, if it is about a text
    std::string message;
    std::string suggestion;
    bool isElsewhere = false;  ///< whether the text is not written at `place`

    friend bool operator==(const Finding&, const Finding&) = default;
};

using Findings = std::vector<Finding>;

}  // namespace lumenkit::check
