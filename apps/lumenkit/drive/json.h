// JSON as the drive command speaks it, and the controls' values in it.
#pragma once

#include <nlohmann/json.hpp>

#include "frame/automation/value.h"
#include "frame/text.h"
#include "runtime/memory/display_list.h"
#include "runtime/memory/element.h"
#include "runtime/memory/form.h"
#include "runtime/memory/log.h"
#include "runtime/memory/property_bag.h"

namespace lumenkit::cli {

/// Members in the order in which they are put in.
using Json = nlohmann::ordered_json;

Json ToJson(TextView text);
/// Single-precision numbers become the shortest decimal that reads back as the same one; fonts
/// become objects; what is no value becomes null.
Json ToJson(const Value& value);
Json ToJson(const memory::Log& log);
Json ToJson(const memory::DisplayList& list);
Json ToJson(const memory::PropertyList& properties);
Json ToJson(const memory::PropertyBag& bag);

/// A text; throws nlohmann's type error for what is none.
Text TextOf(const Json& json);
/// A value of the controls; an object with a Name is a font of the form. Throws
/// std::invalid_argument for an array and for an object that is no font.
Value ValueOf(const Json& json, memory::Form& form);

}  // namespace lumenkit::cli
