// What the controls hold and do, as the drive command's answers say it.
#pragma once

#include <nlohmann/json.hpp>

#include "frame/automation/value.h"
#include "runtime/memory/display_list.h"
#include "runtime/memory/element.h"
#include "runtime/memory/log.h"
#include "runtime/memory/property_bag.h"

namespace lumenkit::cli {

/// Members in the order in which they are put in.
using Json = nlohmann::ordered_json;

// Texts are UTF-8, where U+FFFD stands for half of a surrogate pair.

/// Whole numbers have no point, single-precision ones the fewest digits that read back as the same;
/// fonts are objects; what is no value is null.
Json ToJson(const Value& value);
Json ToJson(const memory::Log& log);
Json ToJson(const memory::DisplayList& list);
Json ToJson(const memory::PropertyList& properties);
Json ToJson(const memory::PropertyBag& bag);

}  // namespace lumenkit::cli
