// Converts the values, log, drawing and properties of controls to JSON for the drive command.
#pragma once

#include <nlohmann/json.hpp>

#include "frame/automation/value.h"
#include "runtime/memory/display_list.h"
#include "runtime/memory/element.h"
#include "runtime/memory/log.h"
#include "runtime/memory/property_bag.h"

namespace lumenkit::cli {

/// Keeps the members in insertion order.
using Json = nlohmann::ordered_json;

// Texts are UTF-8. U+FFFD replaces half of a surrogate pair.

/// Whole numbers have no decimal point. Single-precision numbers have the fewest digits that read
/// back as the same number. Fonts are objects. Empty values are null.
Json ToJson(const Value& value);
Json ToJson(const memory::Log& log);
Json ToJson(const memory::DisplayList& list);
Json ToJson(const memory::PropertyList& properties);
Json ToJson(const memory::PropertyBag& bag);

}  // namespace lumenkit::cli
