// What a check found, and where.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/position.h"

namespace lumenkit::check {

/// Something to say about a text. All texts are UTF-8.
struct Remark {
    std::string_view rule;   ///< a name of Rules()
    std::size_t offset = 0;  ///< in the text, UTF-16 units from 0
    std::string message;
    std::string suggestion;  ///< what was probably meant, empty where nobody knows
};

using Remarks = std::vector<Remark>;

/// Something to say about a file.
struct Finding {
    std::string_view rule;  ///< a name of Rules()
    std::string file;       ///< as it was named
    forms::Position place;  ///< in the file
    std::string control;    ///< "VLabel1", "VLabel1(2)"; empty for a caption that is a file
    std::string property;   ///< "Caption"
    std::optional<std::size_t> offset;  ///< in the property's text, where the finding lies in one
    std::string message;
    std::string suggestion;
    bool isElsewhere = false;  ///< whether the text does not stand at the place itself

    friend bool operator==(const Finding&, const Finding&) = default;
};

using Findings = std::vector<Finding>;

}  // namespace lumenkit::check
