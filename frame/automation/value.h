// Values as automation passes them: in property bags, late-bound calls and event arguments.
#pragma once

#include <cstdint>
#include <memory>
#include <variant>

#include "frame/color.h"
#include "frame/text.h"

namespace lumenkit {

class Object;
using ObjectRef = std::shared_ptr<Object>;

/// No value yet; reads as 0, "" or False.
struct Empty {
    friend bool operator==(Empty, Empty) = default;
};
/// No valid value; using it raises 94.
struct Null {
    friend bool operator==(Null, Null) = default;
};
/// An argument that the caller left out; using it raises 449.
struct Missing {
    Missing() = default;
    ~Missing() = default;
    // Not trivial: a Value of nothing but trivial types and texts is one to g++ 12 whose copying
    // cannot fail, and when memory runs out over a text it destroys what was not made.
    // NOLINTNEXTLINE(modernize-use-equals-default)
    Missing(const Missing& /*other*/) noexcept {}
    Missing& operator=(const Missing& /*other*/) noexcept = default;

    friend bool operator==(const Missing&, const Missing&) = default;
};

using Value = std::variant<Empty, Null, Missing, bool, std::int16_t, std::int32_t, float, double,
                           Text, ObjectRef>;

// Conversions, as the platform makes them. Numbers are rounded half to even; True is -1; a text
// becomes a number if the whole of it is numeric; an object stands for its default member.
// All raise 13 (type mismatch) where there is no conversion, 6 (overflow) out of range, 91 for an
// object reference that is nothing, and what the conversion of Null and Missing raises.
bool ToBoolean(const Value& value);
std::int16_t ToInteger(const Value& value);
std::int32_t ToLong(const Value& value);
float ToSingle(const Value& value);
double ToDouble(const Value& value);
Text ToText(const Value& value);
/// Also accepts the unsigned form of a system colour (2147483653 for 0x80000005).
Color ToColor(const Value& value);
/// The object; raises 13 when the value is none. The reference may be nothing.
ObjectRef ToObject(const Value& value);

/// A colour as automation carries it: a 32-bit signed integer.
Value FromColor(Color color);

/// Same value once numbers of different types are taken as numbers. Objects are the same when
/// Object::IsSame says so.
bool SameValue(const Value& left, const Value& right);

}  // namespace lumenkit
