// Reads requests: JSON with checked types, and the values of controls in it.
#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "frame/automation/value.h"
#include "frame/text.h"
#include "runtime/memory/font.h"
#include "runtime/memory/form.h"
#include "runtime/memory/property_bag.h"

namespace lumenkit::cli {

/// A request that cannot be served; what() says why.
class BadRequest : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Finds members fast in objects of any size.
using RequestJson = nlohmann::json;

/// Parses `line`. Throws BadRequest if it is not JSON, with the column (in characters, from 1), or
/// if it is nested too deeply.
RequestJson ParseRequest(std::string_view line);

/// The members of a JSON object. Every reader throws BadRequest if the member has another type.
/// Readers without a fallback also throw if there is no such member.
class Fields {
 public:
    /// `what` names the object in messages: "the request". Throws BadRequest if `json` is not an
    /// object. Both arguments must outlive this object.
    Fields(const RequestJson& json, std::string_view what);

    bool Has(std::string_view key) const { return json_.contains(key); }
    const RequestJson& At(std::string_view key) const;
    auto Items() const { return json_.items(); }

    std::string String(std::string_view key) const;
    std::string String(std::string_view key, std::string_view fallback) const;
    bool Boolean(std::string_view key) const;
    bool Boolean(std::string_view key, bool fallback) const;
    float Single(std::string_view key) const;
    float Single(std::string_view key, float fallback) const;
    std::vector<std::string> Strings(std::string_view key) const;
    /// The elements of an array; empty if there is no such member.
    std::vector<RequestJson> List(std::string_view key) const;
    /// A whole number in the range of `Integer`. 3.0 counts as whole.
    template <std::integral Integer>
    Integer Whole(std::string_view key) const {
        using Limits = std::numeric_limits<Integer>;
        return static_cast<Integer>(WholeBetween(key, Limits::min(), Limits::max()));
    }
    template <std::integral Integer>
    Integer Whole(std::string_view key, Integer fallback) const {
        return Has(key) ? Whole<Integer>(key) : fallback;
    }

 private:
    std::int64_t WholeBetween(std::string_view key, std::int64_t lowest,
                              std::int64_t highest) const;

    const RequestJson& json_;
    std::string_view what_;
};

/// Returns whether "mode" is "run", which is the default, and not "design".
bool IsUserMode(const Fields& request);
/// Converts JSON to a value of a control: an object becomes a font, null becomes Empty. Throws
/// BadRequest for an array.
Value ValueOf(const RequestJson& json, memory::Form& form);
/// Converts JSON to a font. The defaults are Name and Size of the form's ambient font and false for
/// the rest. Throws BadRequest if `json` is not a font. Raises 380 for an invalid size.
std::shared_ptr<memory::Font> FontOf(const RequestJson& json, memory::Form& form);
/// Converts an object to a property bag. Throws BadRequest if `json` is not an object.
memory::PropertyBag BagOf(const RequestJson& json, memory::Form& form);

}  // namespace lumenkit::cli
