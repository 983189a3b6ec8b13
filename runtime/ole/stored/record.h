// The settings of a control as plain data, independent of their storage.
#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "frame/text.h"

namespace lumenkit::stored {

/// All attributes of a font.
struct FontRecord {
    static constexpr std::int16_t regularWeight = 400;

    Text name;
    std::int64_t size = 0;  ///< in 1/10000 points
    std::int16_t weight = regularWeight;
    std::int16_t charset = 0;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;

    friend bool operator==(const FontRecord&, const FontRecord&) = default;
};

/// One setting.
struct Record {
    /// std::monostate represents a null object.
    using Value = std::variant<std::monostate, bool, std::int16_t, std::int32_t, float, double,
                               Text, FontRecord>;

    Text name;
    Value value;
};

using Records = std::vector<Record>;

}  // namespace lumenkit::stored
