// Requests as they come in: JSON, read with every type checked, and the controls' values in it.
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

/// A request that cannot be served; what() tells the person why.
class BadRequest : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Finds members fast, however many there are.
using RequestJson = nlohmann::json;

/// The JSON in `line`. Throws BadRequest with the place (columns are characters, from 1) where it
/// is none, and where it nests deeper than any request needs.
RequestJson ParseRequest(std::string_view line);

/// The members of a JSON object. Every reader throws BadRequest where the member is of another
/// type; those without a fallback also where there is no such member.
class Fields {
 public:
    /// `what` names the object in messages: "the request". Throws BadRequest for what is no object.
    /// Both must outlive the fields.
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
    /// The elements of an array; none where there is no such member.
    std::vector<RequestJson> List(std::string_view key) const;
    /// A whole number in the range of `Integer`; 3.0 is one too.
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

/// Whether controls are to be at run time, as "mode" says; they are unless it says "design".
bool IsUserMode(const Fields& request);
/// A value of the controls: an object is a font, null is Empty. Throws BadRequest for an array.
Value ValueOf(const RequestJson& json, memory::Form& form);
/// Name and Size are those of the form's ambient font, the rest false, unless given. Throws
/// BadRequest for what is no font; raises 380 for a size that fonts refuse.
std::shared_ptr<memory::Font> FontOf(const RequestJson& json, memory::Form& form);
/// Throws BadRequest for what is no object.
memory::PropertyBag BagOf(const RequestJson& json, memory::Form& form);

}  // namespace lumenkit::cli
