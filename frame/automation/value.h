// What automation passes in property bags, late-bound calls and event arguments: values, and among
// them late-bound objects, whose members are found by name or identifier at run time.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
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
    // Not trivial on purpose: when all alternatives of Value are trivial types or texts, g++ 12
    // assumes that copying a Value cannot fail. If copying a text then runs out of memory, g++ 12's
    // code destroys an object that was never constructed.
    // NOLINTNEXTLINE(modernize-use-equals-default)
    Missing(const Missing& /*other*/) noexcept {}
    Missing& operator=(const Missing& /*other*/) noexcept = default;

    friend bool operator==(const Missing&, const Missing&) = default;
};

using Value = std::variant<Empty, Null, Missing, bool, std::int16_t, std::int32_t, float, double,
                           Text, ObjectRef>;

/// Identifier of the default member of an object.
inline constexpr std::int32_t defaultMember = 0;

enum class InvokeKind {
    Get,   ///< read a property; the arguments are its indices
    Let,   ///< assign a property; the last argument is the new value
    Set,   ///< assign an object by reference; the last argument is the object
    Call,  ///< call a method or read a property; automation clients do not distinguish the two
};

/// An object whose members are found by name or identifier at run time.
class Object {
 public:
    virtual ~Object() = default;

    /// Returns the identifier of the member `name`, compared without regard to case; nullopt when
    /// there is none.
    virtual std::optional<std::int32_t> FindMember(TextView name) const = 0;

    /// Invokes the member `identifier`. Writes results back to `arguments` where the member takes
    /// them by reference. Raises 438 for an unknown member or one that does not support `kind`, 394
    /// for reading a write-only property, 383 for assigning a read-only property, 450 for a wrong
    /// number of arguments, 13 and 6 for arguments that do not convert.
    virtual Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) = 0;

    /// Returns whether both objects represent the same value. Compares identities unless a class
    /// overrides it.
    virtual bool IsSame(const Object& other) const { return this == &other; }

    // Shorthands for Invoke. The functions that take a name raise 438 for an unknown member.
    Value Get(TextView name);
    Value Get(std::int32_t identifier);
    void Let(TextView name, Value value);
    void Let(std::int32_t identifier, Value value);
    void Set(TextView name, ObjectRef object);
    Value Call(TextView name, std::initializer_list<Value> arguments = {});

 private:
    std::int32_t Identifier(TextView name) const;
};

// The platform's conversions. Numbers are rounded half to even; True is -1; a text converts to a
// number if the whole of it is numeric; an object is replaced by its default member. All raise 13
// (type mismatch) when there is no conversion, 6 (overflow) when the result is out of range, 91 for
// a null object reference, 94 for Null and 449 for Missing.
bool ToBoolean(const Value& value);
std::int16_t ToInteger(const Value& value);
std::int32_t ToLong(const Value& value);
float ToSingle(const Value& value);
double ToDouble(const Value& value);
Text ToText(const Value& value);
/// Also accepts the unsigned form of a system colour (2147483653 for 0x80000005).
Color ToColor(const Value& value);
/// Returns the object, which may be null. Raises 13 when the value is not an object reference.
ObjectRef ToObject(const Value& value);

/// Returns the colour as automation passes it: a 32-bit signed integer.
Value FromColor(Color color);

/// Returns whether both values are the same. Numbers of different types are compared by their
/// numeric values, non-null objects by Object::IsSame.
bool SameValue(const Value& left, const Value& right);

}  // namespace lumenkit
