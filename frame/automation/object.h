// Late binding: objects whose members are found by name or identifier at run time.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit {

/// Identifier of the default member of an object.
inline constexpr std::int32_t defaultMember = 0;

enum class InvokeKind {
    Get,   ///< read a property; the arguments are its indices
    Let,   ///< assign a property; the last argument is the new value
    Set,   ///< assign an object by reference; the last argument is the object
    Call,  ///< call a method or read a property; automation clients do not distinguish the two
};

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

}  // namespace lumenkit
