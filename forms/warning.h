#pragma once

#include <string>

#include "forms/position.h"

namespace lumenkit::forms {

/// A remark about a value or line that was kept without being understood.
struct Warning {
    Position place;
    std::string text;  ///< in UTF-8, without the position
    friend bool operator==(const Warning&, const Warning&) = default;
};

}  // namespace lumenkit::forms
